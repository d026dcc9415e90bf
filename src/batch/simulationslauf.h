#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "batch/berichtsauftrag.h"
#include "batch/simulationsergebnis.h"
#include "records/klimadatei.h"
#include "records/projektordner.h"
#include "run/lauf.h"

namespace varnok::batch {

// What all simulations of a call have in common. Read by several threads at once.
struct Auftrag {
    explicit Auftrag(const Projektordner& o) : Ordner(o) {}

    Projektordner Ordner;
    std::optional<int> Studie;  // counted from 1
    std::optional<TWA_Listen> TWA;
    std::vector<Bemerkung> zu_den_Einstellungen;  // of the file that gave these lists
    std::string Serienordner;                     // empty: no series
    std::string Berichtsordner;                   // empty: no reports
    Berichtsschreiber schreibe_Bericht;
    bool erweitert = false;     // the report of all studies, too
    const Uhr* Zeit = nullptr;  // of reports
    // Descriptions that several of the chosen simulations share: their reports carry the simulation's name as well.
    std::vector<std::string> mehrfache_Beschreibungen;
};

// What a worker uses again for each of its simulations. What it was used for before plays no part in the results.
struct Arbeitsplatz {
    std::unique_ptr<Lauf> Rechnung;  // made where there is none
    std::optional<Klimagedaechtnis> Klima;
};

// Reads the records of the simulation and calculates its studies in rising order. Where one study that is asked for cannot be
// calculated, the whole simulation is a fault. Writes series and reports of a calculated simulation. Throws nothing but what
// naming a fault itself may throw.
Simulationsausgang rechne_Simulation(const Auftrag& a, const std::string& Name, Arbeitsplatz& Platz);

}  // namespace varnok::batch
