#include "session/eingabe/applikationstabelle.h"

#include <utility>

#include "base/text.h"

namespace varnok {

void Applikationstabelle::setze(Zelle z, std::string Text) {
    auto& Tabelle = z_.Felder().Applikationsschema;
    if (z.Zeile < 0 || z.Spalte < 0 || z.Zeile >= static_cast<int>(Tabelle.size()) || z.Spalte >= 4) return;
    Zahlwert& Ziel = Tabelle[static_cast<std::size_t>(z.Zeile)][static_cast<std::size_t>(z.Spalte)];
    if (Ziel.Text() == Text) return;
    Ziel = std::move(Text);
    z_.Saetze[2].Geaendert = true;
}

const std::string& Applikationstabelle::Text(Zelle z) const {
    return z_.Felder().Applikationsschema.at(static_cast<std::size_t>(z.Zeile)).at(static_cast<std::size_t>(z.Spalte)).Text();
}

void Applikationstabelle::haenge_an(Zelle z, char Zeichen) { setze(z, Text(z) + Zeichen); }

void Applikationstabelle::nimm_letztes(Zelle z) {
    std::string gekuerzt = Text(z);
    if (gekuerzt.empty()) return;
    gekuerzt.pop_back();
    setze(z, std::move(gekuerzt));
}

void Applikationstabelle::leere(Zelle z) { setze(z, ""); }

void Applikationstabelle::fuege_ein(Zelle z, const std::string& Text) {
    int i = z.Zeile;
    for (std::string_view Zeile : zerlege_an(Text, '\n')) {
        if (!Zeile.empty() && Zeile.back() == '\r') Zeile.remove_suffix(1);
        if (Zeile.empty()) continue;
        int j = z.Spalte;
        for (const std::string_view Wert : zerlege_an(Zeile, '\t')) setze({i, j++}, std::string(ohne_Randblanks(Wert)));
        ++i;
    }
}

void Applikationstabelle::bestaetige() {
    z_.Zusammenfassung_aktiv = false;
    Laeufe_.berechne_auf_Wunsch(true);
}

}  // namespace varnok
