#pragma once

#include "run/lauf.h"

namespace varnok {

// Throws Laufzeitfehler if a concentration of the compound in work on day d is not finite.
void pruefe_Konzentration(const Lauf& l, int d, float Plateau, float Boden);

// What every compound calculation does at the end of each day, for `i_studie` and `i_substanz`: pore water
// of the sum slot, running integral, and the maxima of the run and of the year.
class Tagesauswertung {
public:
    explicit Tagesauswertung(Lauf& l);

    // Marks of maxima not yet seen, below any concentration.
    void beginne();

    // `PW` is the divisor of the day. Throws Laufzeitfehler for a concentration that is not finite.
    void werte_aus(int d, double PW);

private:
    void werte_Endpunkt_aus(std::size_t e, int d);

    Lauf* l_;
    std::size_t st_;
    std::size_t c_;
    std::array<Tagesreihe, Endpunkte> Plateau_;
    std::array<Tagesreihe, Endpunkte> Boden_;
    std::array<Tagesreihe, Endpunkte> Integral_;
};

}  // namespace varnok
