#include "run/eingabe.h"

#include <algorithm>

#include "run/kalender.h"

namespace varnok {

void waehle_Anzahl(Eingabe& e, int Anzahl) {
    e.Anzahl_Index = Anzahl - 2;
    e.Applikationsschema.resize(static_cast<std::size_t>(Anzahl));
    e.Intervall_Index = std::min(e.Intervall_Index, laengstes_Intervall(Anzahl) - 1);
}

int kleinste_Anzahl(const Eingabe& e) { return std::min(2, e.Anzahl()); }

const std::string& Stoffname(const Eingabe& e, int i_substanz) {
    return i_substanz == 0 ? e.Name_Wirkstoff : i_substanz == 1 ? e.Name_Met_1 : e.Name_Met_2;
}

const Zahlwert& Molmasse(const Eingabe& e, int i_substanz) {
    return i_substanz == 0 ? e.Molmasse_Wirkstoff : i_substanz == 1 ? e.Molmasse_Met_1 : e.Molmasse_Met_2;
}

const Zahlwert& Bildungsanteil(const Eingabe& e, int i_substanz) {
    return i_substanz == 1 ? e.Bildungsanteil_Met_1 : e.Bildungsanteil_Met_2;
}

std::string Klimatext(const Eingabe& e) {
    if (e.Parameter.Klimamodus == nach_Klimadatei) return e.Klimaszenario;
    return std::to_string(static_cast<int>(e.Parameter.Szenariotemperatur)) + " °C constant";
}

}  // namespace varnok
