#include "records/klimadatei.h"

#include <array>
#include <cmath>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/zeilen.h"
#include "run/zeitachse.h"

namespace varnok {
namespace {

struct Spalten {
    std::size_t erste;  // counted from 1
    double Klimatag::*Ziel;
};

constexpr std::size_t Breite = 10;
constexpr std::array<Spalten, 3> Aufteilung = {
    {{8, &Klimatag::Tagesniederschlag}, {18, &Klimatag::Tagesverdunstung}, {38, &Klimatag::Tagestemperatur}}};

Klimatag zerlege_Tag(std::string_view Zeile, int Nummer, const std::string& Datei) {
    Klimatag Tag;
    for (const auto& [erste, Ziel] : Aufteilung) {
        if (Zeile.size() < erste) continue;
        const std::string_view Text = ohne_Randblanks(Zeile.substr(erste - 1, Breite));
        Tag.*Ziel = Wert(Text);
        if (!std::isfinite(Tag.*Ziel)) {
            throw Laufzeitfehler("File " + Datei + ", line " + std::to_string(Nummer) + ": \"" + aus_Windows_1252(Text) +
                                     "\" is too large a number",
                                 {Datei, Nummer});
        }
    }
    return Tag;
}

}  // namespace

std::vector<Klimatag> zerlege_Klimadatei(const std::string& Bytes, const std::string& Datei) {
    // No run reaches a later line: it starts within the first year and never comes to the end then.
    constexpr std::size_t genug = Tage_pro_Jahr + letzter_Tag + 1;
    Zeilenfolge Zeilen(Bytes);
    Zeilen.naechste();
    std::vector<Klimatag> Tage;
    while (const auto Zeile = Zeilen.naechste()) {
        if (Tage.size() == genug) break;
        Tage.push_back(zerlege_Tag(*Zeile, Zeilen.Nummer(), Datei));
    }
    if (Tage.empty()) throw Laufzeitfehler("File " + Datei + ", line 2: the file ends before the first day", {Datei, 2});
    return Tage;
}

std::optional<std::vector<Klimatag>> Projektklima::lade(const std::string& Name) const {
    const auto Pfad = Ordner_->finde(Name, Klima_Endung);
    if (!Pfad) return std::nullopt;
    const auto Bytes = lies_Datei_falls_moeglich(*Pfad);
    if (!Bytes) return std::nullopt;
    return zerlege_Klimadatei(*Bytes, Name + Klima_Endung);
}

std::optional<std::vector<Klimatag>> Klimagedaechtnis::lade(const std::string& Name) const {
    if (Name_ != Name) {
        Name_.reset();
        Tage_ = Dateien_.lade(Name);
        Name_ = Name;
    }
    return Tage_;
}

}  // namespace varnok
