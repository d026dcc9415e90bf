#include "run/eingabe.h"

#include "run/kalender.h"

namespace varnok {

void waehle_Anzahl(Eingabe& e, int Anzahl) {
    e.Anzahl_Index = Anzahl - 2;
    e.Applikationsschema.resize(static_cast<std::size_t>(Anzahl));
    e.Intervall_Index = std::min(e.Intervall_Index, laengstes_Intervall(Anzahl) - 1);
}

const std::string& Stoffname(const Eingabe& e, int i_substanz) {
    return i_substanz == 0 ? e.Name_Wirkstoff : i_substanz == 1 ? e.Name_Met_1 : e.Name_Met_2;
}

}  // namespace varnok
