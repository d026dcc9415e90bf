#include "session/saetze/beschreibungseingabe.h"

#include <algorithm>
#include <utility>

namespace varnok {

void Beschreibungseingabe::oeffne() {
    alter_Text_ = z_.Vorgabe.Beschreibung;
    alte_Marke_ = z_.Saetze[Simulation].Geaendert();
    offen_ = true;
}

void Beschreibungseingabe::aendere(const std::string& Text) {
    std::string eine_Zeile = Text;
    std::replace_if(
        eine_Zeile.begin(), eine_Zeile.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    if (eine_Zeile == z_.Vorgabe.Beschreibung) return;
    z_.Vorgabe.Beschreibung = eine_Zeile;
    z_.Saetze[Simulation].merke_Aenderung();
}

void Beschreibungseingabe::schliesse() { offen_ = false; }

void Beschreibungseingabe::nimm_zurueck() {
    if (!std::exchange(offen_, false)) return;
    z_.Vorgabe.Beschreibung = alter_Text_;
    z_.Saetze[Simulation].stelle_Marke(alte_Marke_);
}

}  // namespace varnok
