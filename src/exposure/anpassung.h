#pragma once

#include <memory>

#include "exposure/ergebnis.h"

namespace varnok {

// The results of a study for another dose without a run: every concentration is linear in it. Only for a single or regular
// pattern whose net dose changes by `Faktor`, a power of two, and while every value stays so far above the smallest normal
// number that nothing rounds in another way: then the outcome is a run's to the bit. Null for anything else: there a run
// is made. `neue_Vorgabe` is the input with the other dose.
std::shared_ptr<const Ergebnis> Werte_anpassen(const Ergebnis& r, std::shared_ptr<const Eingabe> neue_Vorgabe, double Faktor);

}  // namespace varnok
