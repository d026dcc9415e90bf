#pragma once

#include "exposure/ergebnistabelle.h"
#include "session/kern/zustand.h"

namespace varnok {

// The result grids of the screen: of a compound for the selected study, and over all studies. Zeros where a study
// has no results of the compound.
Tabellentext Ergebnisse_einer_Studie(const Zustand& z, int i_substanz);
Tabellentext Ergebnisse_aller_Studien(const Zustand& z, int i_substanz);

// The values of these grids.
Ergebniswerte Werte_einer_Studie(const Zustand& z, int i_substanz);
Ergebniswerte Werte_aller_Studien(const Zustand& z, int i_substanz);

// The row of both grids for the average that the diagrams show.
int Zeile_des_Mittelwerts(const Ansicht& a);

}  // namespace varnok
