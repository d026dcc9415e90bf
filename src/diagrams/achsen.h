#pragma once

// Round axis ends and tick distances.

#include <vector>

namespace varnok {

// A round axis end at or above x, which must be above 0: mantissas 1.5, 2, 2.5, 3, 4, 5 ... 10. A value within 0.01
// of a half step counts as round already and comes back unchanged.
double runde_Achsenmaximum(double x);

// Distances of the ticks: numbered, minor and fine.
struct Teilstriche {
    double Haupt = 0;
    double Mitte = 0;
    double Fein = 0;
};

// Tick distances of an axis that ends at x, above 0: between about 4 and 16 numbers from 0 to x.
Teilstriche bestimme_Teilstriche(double x);

// Positions from `Start` to `Ende` in steps of `Abstand`, both ends with it. Each is worked out from its number and
// not from the one before, so that the last tick of a decimal axis is not lost to rounding.
std::vector<double> Teilstrichlagen(double Start, double Ende, double Abstand);

// The rounded end of a y axis whose largest value is `Y_Maximum`; nothing to show gives an axis from 0 to 1.
// Throws Laufzeitfehler for a value that is not finite.
double erstelle_Diagramm_skaliere_y_Achse(double Y_Maximum);

}  // namespace varnok
