#pragma once

#include <span>

#include "run/lauf.h"

namespace varnok {

// A value of a series and its day.
struct Tageswert {
    float Wert;
    int Tag;
};

// The largest of the values, of which the first one counts, if it is above `bisher`; else that. `erster_Tag` is the day of
// the first value.
Tageswert suche_Maximum(std::span<const float> Werte, int erster_Tag, Tageswert bisher);

// Throws Laufzeitfehler if a concentration of the compound in work on day d is not finite.
void pruefe_Konzentration(const Lauf& l, int d, float Plateau, float Boden);

// What every compound calculation does with its sum slots, for `i_studie` and `i_substanz`: pore water, running
// integral, and the maxima of the run and of the years. The parent's maxima start from its day 0, those of a metabolite
// from below any concentration. Throws Laufzeitfehler for the first concentration that is not finite.
void werte_Reihen_aus(Lauf& l);

}  // namespace varnok
