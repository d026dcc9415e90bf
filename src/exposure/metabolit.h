#pragma once

#include "run/lauf.h"

namespace varnok {

// Daily series of a metabolite formed from the parent (`i_substanz` 1, or 2 in the parallel scheme):
// each day the decay of what is there (SFO or DFOP), then the day's formation. In the sequential scheme
// the decline feeds the second metabolite. Needs the parent's series of the same run and cleared stores.
// Throws Laufzeitfehler where the arithmetic is impossible.
void Berechnung_Metabolit_1(Lauf& l);

// The same for the second metabolite of the sequence, fed from the first one's decline.
void Berechnung_Metabolit_2(Lauf& l);

}  // namespace varnok
