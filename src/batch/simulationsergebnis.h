#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "exposure/ergebnis.h"

namespace varnok::batch {

// Results of studies in rising order.
using Studienergebnisse = std::vector<std::shared_ptr<const Ergebnis>>;

// What one simulation gave; every writer of results reads this and nothing else.
struct Simulationsergebnis {
    std::string Name;
    std::string Beschreibung;
    std::array<std::string, 4> Dateinamen;   // places 1 to 3: compound, application, scenario
    std::shared_ptr<const Eingabe> Vorgabe;  // as the records give it
    Studienergebnisse Studien;
    std::vector<Bemerkung> Bemerkungen;  // about the files that were read, each under its path in the project
};

// What became of one simulation. With a `Fehler` the result holds the name and the remarks alone.
struct Simulationsausgang {
    Simulationsergebnis Ergebnis;
    std::optional<std::string> Fehler;
    std::vector<std::string> Schreibfehler;  // series and reports that could not be written
};

}  // namespace varnok::batch
