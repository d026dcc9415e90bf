#pragma once

#include <array>
#include <span>

#include "run/slotzeilen.h"

namespace varnok {

// How much of a metabolite comes of what the parent loses.
struct Bildungsweg {
    double Anteil = 0;             // fraction formed
    double Massenverhaeltnis = 0;  // molar mass of the metabolite over that of the parent
};

// Where the sums over the slots go: the first of the n days in the sum slot and in the formation of each metabolite.
struct Summenziel {
    float* Gesamt;
    std::span<const Bildungsweg> Wege;
    std::array<float*, 2> Bildung;
};

// Sums the rows of n days up, slot by slot and rounded after each: the residues, and for each metabolite what the slots lost
// from one day to the next, in the metabolite's own mass.
void summiere_Slots(Slotzeilen& Zeilen, Tiefe t, int Slots, int n, const Summenziel& Ziel);

}  // namespace varnok
