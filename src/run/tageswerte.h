#pragma once

#include "run/lauf.h"

namespace varnok {

// a if a is greater than b, else b; and the lesser one.
constexpr double Maximum(double a, double b) { return a > b ? a : b; }
constexpr double Minimum(double a, double b) { return a < b ? a : b; }

// Start of every compound calculation: moisture halfway between field capacity and wilting point.
void beginne_Tageswerte(Lauf& l);

// Takes the weather of a day from the climate file and moves the soil moisture by rain less
// evapotranspiration, between wilting point and field capacity. Only for variable climate.
void lies_Klimatag(Lauf& l, int d);

// Constant climate of the scenario: its temperature, and moisture at field capacity.
void setze_konstantes_Klima(Lauf& l);

// The weather of all days of a run with variable climate, from `beginne_Tageswerte` on, and its sums.
void lies_Klimatage(Lauf& l);

// Divisor between total soil content (mg/kg) and pore water concentration (mg/L), in L/kg, with the
// moisture of the day. Throws Laufzeitfehler if it is 0.
double PW_faktor(const Lauf& l, int i_studie, int i_substanz);

// Correction of degradation for the temperature and moisture of the day: Q10 rule and Walker equation.
// The two powers are applied one after the other, temperature first.
struct Korrektur {
    double Temperatur = 1;  // Q10 ^ ((T - TRef) / 10)
    double Feuchte = 1;     // (moisture / reference moisture) ^ Walker

    double korrigiert(double k) const { return k * Temperatur * Feuchte; }
    double Faktor() const { return Temperatur * Feuchte; }
};

// Throws Laufzeitfehler if the correction is not finite.
Korrektur bestimme_Korrektur(const Lauf& l, int i_studie, int i_substanz);

// Throws Laufzeitfehler for a density, depth or field capacity that is not above 0.
void pruefe_Boden(const Laufparameter& p);

// The same for a KOC below 0 or a fraction g outside 0 to 1 of a compound of the scheme: concentrations below 0 would come of
// them.
void pruefe_Stoffe(const Eingabe& e, int i_studie);

}  // namespace varnok
