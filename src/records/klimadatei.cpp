#include "records/klimadatei.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/wertebereiche.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/einwaende.h"
#include "records/zeilen.h"
#include "run/zeitachse.h"

namespace varnok {
namespace {

struct Spalten {
    std::size_t erste;  // counted from 1
    double Klimatag::*Ziel;
    Wertebereich Grenzen;
};

constexpr std::size_t Breite = 10;
constexpr std::array<Spalten, 3> Aufteilung = {{
    {8, &Klimatag::Tagesniederschlag, {"rain, columns 8 to 17", "mm", {0, true, 500, true}, ""}},
    {18, &Klimatag::Tagesverdunstung, {"evapotranspiration, columns 18 to 27", "mm", {0, true, 50, true}, ""}},
    {38, &Klimatag::Tagestemperatur, {"temperature, columns 38 to 47", "°C", {-60, true, 60, true}, ""}},
}};

// The remarks about a file. What is wrong in one line of a column is mostly wrong in all of them, so only the first few are told
// one by one.
class Klimabemerkungen {
public:
    Klimabemerkungen(const std::string& Datei, std::vector<Bemerkung>* Ziel) : Datei_(Datei), Ziel_(Ziel) {}

    void pruefe(const Spalten& s, int Zeile, std::string_view Text, const Zahllesung& l) {
        if (!Ziel_) return;
        const std::string am_Text = Einwand_gegen_Zahl(l, l.Zahl);
        const std::string Einwand = am_Text.empty() ? Einwand_gegen_Wert(s.Grenzen, l.Zahl) : am_Text;
        if (Einwand.empty()) return;
        auto& [Anzahl, letzte] = Gezaehlte_[{s.erste, Einwand}];
        letzte = Zeile;
        if (++Anzahl <= einzeln) Ziel_->push_back({Datei_, Zeile, std::string(s.Grenzen.Name), Einwand, Auszug(Text), l.Zahl});
    }

    // `Tage` as counted; with `mindestens` the file goes on.
    void schliesse_ab(std::size_t Tage, bool mindestens) {
        if (!Ziel_) return;
        for (const auto& [Was, Wie_oft] : Gezaehlte_) {
            const auto& [Anzahl, letzte] = Wie_oft;
            if (Anzahl <= einzeln) continue;
            const auto& [erste, Einwand] = Was;
            const auto Spalte = std::find_if(Aufteilung.begin(), Aufteilung.end(),
                                             [Stelle = erste](const Spalten& s) { return s.erste == Stelle; });
            const std::string Meldung = Einwand + ", in " + std::to_string(Anzahl - einzeln) + " more lines down to this one";
            Ziel_->push_back({Datei_, letzte, std::string(Spalte->Grenzen.Name), Meldung, {}, {}});
        }
        std::stable_sort(Ziel_->begin(), Ziel_->end(), [](const Bemerkung& a, const Bemerkung& b) { return a.Zeile < b.Zeile; });
        if (Tage == Tage_pro_Jahr) return;
        const std::string Zahl = (mindestens ? "at least " : "") + std::to_string(Tage);
        Ziel_->insert(Ziel_->begin(), {Datei_, 1, {}, "there are " + Zahl + " days behind the header line, not 365", {}, {}});
    }

private:
    static constexpr int einzeln = 3;

    struct Haeufigkeit {
        int Anzahl = 0;
        int letzte_Zeile = 0;
    };

    const std::string& Datei_;
    std::vector<Bemerkung>* Ziel_;
    std::map<std::pair<std::size_t, std::string>, Haeufigkeit> Gezaehlte_;  // by column and objection
};

Klimatag zerlege_Tag(std::string_view Zeile, int Nummer, const std::string& Datei, Klimabemerkungen& Bemerkungen) {
    Klimatag Tag;
    for (const Spalten& s : Aufteilung) {
        const std::string_view Zelle = Zeile.size() < s.erste ? std::string_view() : Zeile.substr(s.erste - 1, Breite);
        const std::string_view Text = ohne_Randblanks(Zelle);
        const Zahllesung l = lies_Zahl(Text);
        Tag.*s.Ziel = l.Zahl;
        if (!std::isfinite(l.Zahl)) {
            throw Laufzeitfehler('"' + aus_Windows_1252(Text) + "\" is too large a number",
                                 {.Datei = Datei,
                                  .Zeile = Nummer,
                                  .Feld = "Klimaszenario",
                                  .Text = Auszug(Text),
                                  .Bezeichnung = std::string(s.Grenzen.Name)});
        }
        Bemerkungen.pruefe(s, Nummer, Text, l);
    }
    return Tag;
}

}  // namespace

std::vector<Klimatag> zerlege_Klimadatei(const std::string& Bytes, const std::string& Datei,
                                         std::vector<Bemerkung>* Bemerkungen) {
    // No run reaches a later line: it starts within the first year and never comes to the end then.
    constexpr std::size_t genug = Tage_pro_Jahr + letzter_Tag + 1;
    std::vector<Bemerkung> Gefundene;
    Klimabemerkungen Sammler(Datei, Bemerkungen ? &Gefundene : nullptr);
    Zeilenfolge Zeilen(Bytes);
    Zeilen.naechste();
    std::vector<Klimatag> Tage;
    while (Tage.size() < genug) {
        const auto Zeile = Zeilen.naechste();
        if (!Zeile) break;
        Tage.push_back(zerlege_Tag(*Zeile, Zeilen.Nummer(), Datei, Sammler));
    }
    if (Tage.empty()) throw Laufzeitfehler("the file ends before the first day", {Datei, 2});
    Sammler.schliesse_ab(Tage.size(), Zeilen.voraus().has_value());
    if (Bemerkungen) Bemerkungen->insert(Bemerkungen->end(), Gefundene.begin(), Gefundene.end());
    return Tage;
}

std::optional<std::vector<Klimatag>> Projektklima::lade(const std::string& Name, std::vector<Bemerkung>* Bemerkungen) const {
    const auto Pfad = Ordner_->finde(Name, Klima_Endung);
    if (!Pfad) return std::nullopt;
    const auto Bytes = lies_Datei_falls_moeglich(*Pfad);
    if (!Bytes) return std::nullopt;
    return zerlege_Klimadatei(*Bytes, Name + Klima_Endung, Bemerkungen);
}

std::optional<std::vector<Klimatag>> Klimagedaechtnis::lade(const std::string& Name) const {
    if (Name_ != Name) {
        Name_.reset();
        Bemerkungen_.clear();
        Tage_ = Dateien_.lade(Name, &Bemerkungen_);
        Name_ = Name;
    }
    return Tage_;
}

}  // namespace varnok
