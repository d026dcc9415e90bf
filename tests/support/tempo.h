#pragma once

// How many times faster the run is than the plain calculation of `referenzlauf.h`, for the cases that count.

#include <string>
#include <vector>

#include "support/lauf_bauer.h"

namespace varnok::probe {

struct Tempofall {
    std::string Name;
    Lauf_bauer Fall;
    double gefordert;  // ratio to be reached
};

// One SFO study with one application in constant climate; and twenty irregular applications a year, kept separate, with
// weather and two metabolites in sequence, under each other kinetics of the parent.
std::vector<Tempofall> Tempofaelle();

struct Tempo {
    double Lauf_ms = 0;
    double Referenz_ms = 0;
    double Verhaeltnis() const { return Referenz_ms / Lauf_ms; }
};

// The shortest time of each over rounds in turn, in one thread; other work of the machine falls on both alike.
Tempo miss_Tempo(const Lauf_bauer& Fall, int Runden);

}  // namespace varnok::probe
