#pragma once

// A second, plain calculation of one study, written from the formulas alone: nested vectors, one day
// after the other, every power and exponential computed anew where it is used. It shares no
// calculating code with src/run and src/exposure and is the witness of their results.

#include <array>
#include <string>
#include <vector>

#include "run/eingabe.h"
#include "run/klima.h"
#include "run/laufparameter.h"

namespace varnok::referenz {

// One compound of one study. The first place of every pair is the endpoint: total soil, pore water.
struct Stoffergebnis {
    std::array<std::vector<float>, 2> Boden, Plateau, Integral;  // sum slot, 3752 days
    std::vector<std::vector<float>> Slots_Boden, Slots_Plateau;  // total soil, [slot 0..22 / 0..220][day]
    std::array<float, 2> Maximum_Bodentiefe{}, Maximum_Plateautiefe{}, Plateauwert{}, Plateaujahr{};
    std::array<int, 2> Maximumtag_Bodentiefe{}, Maximumtag_Plateautiefe{};
    std::array<std::array<float, 11>, 2> Jahresmaximum{};  // years 1..10
    std::array<double, 2> Plateauzuwachs{};
    std::array<std::string, 2> Plateautext;
    std::array<std::array<float, 13>, 2> TWA_Maximum{};  // windows in force, from 1
    std::array<std::array<int, 13>, 2> TWA_Starttag{};
};

struct Studienergebnis {
    std::vector<Stoffergebnis> Stoffe;  // those of the metabolism scheme, parent first
    // [metabolite 0..1][day]; in the sequential scheme place 1 ends up with what the first metabolite fed
    std::array<std::vector<float>, 2> Bildung_Boden, Bildung_Plateau;
    int Anzahl_pro_Jahr = 0;
    double Wirksame_Rate = 0;             // g/ha
    std::vector<int> Applikationstag;     // events 1..220
    std::vector<float> Tagesrate;         // g/ha, 3752 days
    std::array<double, 3> Klimasummen{};  // temperature, rainfall, evapotranspiration
    std::vector<std::string> Warnungen;   // texts, in the order of the compounds
};

// One study (0..5), from stores that hold zeros. `Klima` holds the day lines of the climate file in
// their order; it is read under variable climate only. Throws std::runtime_error for invalid input
// and where the arithmetic is impossible.
Studienergebnis rechne(const Laufparameter& p, const Eingabe& e, int i_studie, const std::vector<Klimatag>& Klima);

// The fixed-point search for the final plateau y(t) = P (1 - exp(-k t)) through two points, round by
// round. Returns P; NaN if it has not stopped after `max_rounds` rounds (0: no bound).
double plateau_schleife(float y_a, float y_b, double t_a, double t_b, long long max_rounds);

}  // namespace varnok::referenz
