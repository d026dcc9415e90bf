#include "extras/tooltipdatei.h"

#include <algorithm>
#include <optional>

#include "base/laufzeitfehler.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/projektordner.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

std::string naechster_Tip(Zeilenfolge& Zeilen) {
    std::string Tip;
    for (auto Zeile = Zeilen.naechste(); Zeile && !Zeile->empty(); Zeile = Zeilen.naechste()) {
        if (!Tip.empty()) Tip += '\n';
        Tip += aus_Windows_1252(*Zeile);
    }
    return Tip;
}

std::optional<std::string> finde_in(const std::string& Ordner) {
    try {
        return Projektordner(Ordner).finde("tooltips", ".uk");
    } catch (const Laufzeitfehler&) {
        return std::nullopt;  // no such folder
    }
}

std::string Klage_ueber_Fehlen(const std::vector<std::string>& Ordner) {
    std::vector<std::string> genannt;
    std::string Orte;
    for (const std::string& o : Ordner) {
        if (o.empty() || std::find(genannt.begin(), genannt.end(), o) != genannt.end()) continue;
        genannt.push_back(o);
        Orte += (Orte.empty() ? "\"" : ", \"") + o + "\"";
    }
    return "File tooltips.uk is missing. It was sought in the folder \"input\" of " + Orte +
           ". The program goes on without tips.";
}

}  // namespace

std::vector<std::string> zerlege_Tooltips(std::string_view Bytes) {
    std::vector<std::string> Texte;
    Zeilenfolge Zeilen(Bytes);
    while (Texte.size() < Anzahl_Tooltips && Zeilen.voraus()) Texte.push_back(naechster_Tip(Zeilen));
    return Texte;
}

Tooltips lies_Tooltips(const std::vector<std::string>& Ordner) {
    std::optional<std::string> Pfad;
    for (auto o = Ordner.begin(); o != Ordner.end() && !Pfad; ++o) Pfad = finde_in(*o);
    Tooltips t;
    if (!Pfad) {
        t.Fehler = Klage_ueber_Fehlen(Ordner);
        return t;
    }
    try {
        t.Texte = zerlege_Tooltips(lies_Datei(*Pfad));
    } catch (const Laufzeitfehler& f) {
        t.Fehler = std::string(f.what()) + ". The program goes on without tips.";
        return t;
    }
    if (t.Texte.size() < Anzahl_Tooltips) {
        t.Fehler = "File \"" + *Pfad + "\" is too short: it ends after tip " + std::to_string(t.Texte.size()) + " of " +
                   std::to_string(Anzahl_Tooltips) + ". The program goes on without the others.";
    }
    return t;
}

}  // namespace varnok
