#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "batch/simulationsergebnis.h"
#include "records/einstellungen.h"
#include "records/projektordner.h"

namespace varnok::batch {

// What all simulations of a call have in common. Read by several threads at once.
struct Auftrag {
    // Looks through the project's records once, so that thousands of simulations need not.
    explicit Auftrag(const Projektordner& o);

    Projektordner Ordner;
    std::array<std::vector<std::string>, 4> Satznamen;  // places 1 to 3: the records there are, sorted by bytes
    std::optional<int> Studie;                          // counted from 1
    std::optional<Einstellungen> TWA_Listen;
    std::string Serienordner;    // empty: no series
    std::string Berichtsordner;  // empty: no reports
    bool erweitert = false;      // the report of all studies, too
    // Descriptions that several of the chosen simulations share: their reports carry the simulation's name as well.
    std::vector<std::string> mehrfache_Beschreibungen;
};

// Reads the records of the simulation and calculates its studies in rising order in stores of its own.
// Where one study cannot be calculated, the whole simulation is a fault. Writes series and reports of a calculated
// simulation. Throws nothing but what naming a fault itself may throw.
Simulationsausgang rechne_Simulation(const Auftrag& a, const std::string& Name);

}  // namespace varnok::batch
