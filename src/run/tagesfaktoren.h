#pragma once

#include <array>
#include <exception>
#include <span>

#include "run/zeitachse.h"

namespace varnok {

struct Lauf;

// A number for each day of a run.
using Tageszahlen = std::array<double, letzter_Tag + 1>;

// What temperature and moisture do to a compound, day by day: the correction of its degradation, what is left after a day of
// up to two rate constants, and the divisor of pore water. Worked out anew only where temperature or moisture differ both from
// the day before and from the day on which the climate file stood at the same line.
class Tagesfaktoren {
public:
    // Of `i_studie` and `i_substanz`, for the weather in place. Before day `ab` there is no residue to correct anything for.
    void bestimme(Lauf& l, int ab, std::span<const double> Konstanten);

    // The days are sound up to this one; behind it lies the fault that `melde_Fehler` throws.
    int letzter() const { return letzter_; }
    void melde_Fehler() const;

    // Whether a clock that runs by the correction runs backwards on some day.
    bool rueckwaerts() const { return rueckwaerts_; }

    const Tageszahlen& Faktor() const { return Faktor_; }
    const Tageszahlen& Rest(std::size_t i) const { return Rest_[i]; }  // exp(-k) of constant i
    const Tageszahlen& PW() const { return PW_; }

    // The weather of the days, filled by the compound calculation: temperature in degrees C, moisture in Vol%.
    Tageszahlen Temperatur{};
    Tageszahlen Feuchte{};

private:
    bool gleicht(int d, int anderer) const;
    void uebernimm(int d, int von);
    void uebernimm_alle(int ab);
    void rechne_Tag(Lauf& l, int d, bool korrigiert, std::span<const double> Konstanten);

    int letzter_ = 0;
    bool rueckwaerts_ = false;
    std::exception_ptr Fehler_;
    Tageszahlen Faktor_{};
    std::array<Tageszahlen, 2> Rest_{};
    Tageszahlen PW_{};
};

}  // namespace varnok
