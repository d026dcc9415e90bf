#include "diagrams/achsen.h"

#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {
namespace {

double dekadischer_Logarithmus(double x) { return std::log(x) / std::log(10.0); }

}  // namespace

double runde_Achsenmaximum(double x) {
    const double p = std::pow(10.0, std::floor(dekadischer_Logarithmus(x)));
    const double m = x / p;
    const double h = std::floor(2 * m) / 2;
    if (m - h < 0.01) return x;
    double gerundet = h + 0.5;
    if (gerundet > 3 && gerundet - std::floor(gerundet) > 0.1) gerundet += 0.5;
    return gerundet * p;
}

Teilstriche bestimme_Teilstriche(double x) {
    const double Logarithmus = dekadischer_Logarithmus(x);
    const double p = std::pow(10.0, std::floor(Logarithmus));
    const double f = Logarithmus - std::floor(Logarithmus);
    if (f < 0.2) return {p / 10, p / 10 / 2, p / 10 / 10};
    if (f < 0.6) return {p / 2, p / 2 / 5, p / 2 / 10};
    return {p, p / 2, p / 10};
}

std::vector<double> Teilstrichlagen(double Start, double Ende, double Abstand) {
    std::vector<double> Lagen;
    for (int i = 0; Start + i * Abstand <= Ende + 1E-9 * Abstand; ++i) Lagen.push_back(Start + i * Abstand);
    return Lagen;
}

double erstelle_Diagramm_skaliere_y_Achse(double Y_Maximum) {
    if (!std::isfinite(Y_Maximum)) {
        melde_unmoegliche_Rechnung("largest concentration of a diagram = " + allgemeine_Zahl(Y_Maximum));
    }
    return runde_Achsenmaximum(Y_Maximum > 0 ? Y_Maximum : 1);
}

}  // namespace varnok
