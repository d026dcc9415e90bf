#pragma once

#include <cstddef>

#include "run/laufparameter.h"

namespace varnok {

// Gives all study places from `ab` on the values of a program that has read no record: a study added there does not
// inherit what an earlier record or a deleted study left.
void setze_Startwerte(Laufparameter& p, std::size_t ab);

// Moves the kinetic constants of the studies behind `Studie` one place forward, `Anzahl` studies in all. KOC, Q10, Walker
// exponent, reference temperature and kinetics stay with their place.
void ruecke_Kinetik_vor(Laufparameter& p, std::size_t Studie, std::size_t Anzahl);

}  // namespace varnok
