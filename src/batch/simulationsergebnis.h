#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "base/laufzeitfehler.h"
#include "batch/variantenquelle.h"
#include "exposure/ergebnis.h"
#include "run/ansicht.h"

namespace varnok::batch {

// Results of studies in rising order.
using Studienergebnisse = std::vector<std::shared_ptr<const Ergebnis>>;

// What one simulation, or one variant of it, gave; every writer of results reads this and nothing else.
struct Simulationsergebnis {
    std::string Name;
    std::string Beschreibung;
    std::array<std::string, 4> Dateinamen;   // places 1 to 3: compound, application, scenario
    std::shared_ptr<const Eingabe> Vorgabe;  // as the records and the call give it
    Ansicht Sicht;
    Studienergebnisse Studien;
    std::vector<Bemerkung> Bemerkungen;  // about the files that were read, each under its path in the project
    std::string gemeinsame_Summe;        // the same without the values of the variant
    std::string Eingabensumme;           // SHA-256 of what it comes from; empty where it was not asked for or not to be had
};

// What became of one simulation. With a `Fehler` the result holds the name, the sum and the remarks alone.
struct Simulationsausgang {
    Simulationsergebnis Ergebnis;
    std::size_t Position = 0;          // among the simulations and variants of the whole call, from 0
    std::optional<Variante> Herkunft;  // the variant that it is
    std::optional<Laufzeitfehler> Fehler;
    std::vector<std::string> Schreibfehler;  // series and reports that could not be written
};

}  // namespace varnok::batch
