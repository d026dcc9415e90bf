#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <iosfwd>

#include "base/schnittstellen.h"
#include "batch/berichtsauftrag.h"

namespace varnok::batch {

enum Beendigung {
    alles_berechnet = 0,
    Simulation_gescheitert = 1,  // at least one; the others are written
    falscher_Aufruf = 2,         // or an output that cannot be written
    abgebrochen = 130,           // from outside; lines and databases hold what was done
};

// What the program asks of its surroundings.
struct Umgebung {
    std::function<bool()> Fehlerausgabe_ist_Terminal;
    std::chrono::milliseconds Wartezeit_bis_Balken{1000};
    const Uhr* Zeit = nullptr;                   // of reports; the machine's without one
    const std::atomic<bool>* Abbruch = nullptr;  // set from outside where the work is to end: no further simulation begins then
    std::function<Berichtsschreiber()> Berichte =
        {};  // what writes reports; asked once, before any work, for a call that wants some
};

// Whether standard error of the process is a terminal.
Umgebung Umgebung_des_Prozesses();

// The whole program: the call `argv`, results to `aus`, messages to `fehler`. Returns a `Beendigung`
// as the exit status; throws nothing.
int varnok_batch(int argc, const char* const* argv, std::ostream& aus, std::ostream& fehler,
                 const Umgebung& Umwelt = Umgebung_des_Prozesses());

}  // namespace varnok::batch
