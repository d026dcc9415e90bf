#pragma once

#include "run/lauf.h"

namespace varnok {

// Daily series of the parent (`i_substanz` 0) of `i_studie` over ten years, and the amounts of metabolite
// formed from it. SFO, DFOP, FOMC and HS as in the FOCUS guidance on degradation kinetics (2006), stepped day
// by day with temperature and moisture correction; `Separate_Rueckstaende` decides how residues of several
// applications are kept. Needs cleared stores and loaded applications.
// Throws Laufzeitfehler where the arithmetic is impossible.
void Berechnung_Wirkstoff(Lauf& l);

}  // namespace varnok
