#pragma once

// A simulation is a named combination of a compound, an application pattern and a scenario record.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "records/projektordner.h"

namespace varnok {

// The four lines of a summary file.
struct Simulationssatz {
    std::string Beschreibung;
    std::array<std::string, 4> Dateinamen;  // places 1 to 3: names of the records; place 0 is unused

    friend bool operator==(const Simulationssatz&, const Simulationssatz&) = default;
};

// Throws Laufzeitfehler that names the file: missing, unreadable, fewer than four lines. Adds remarks about lines that nothing
// reads and about a description that is no text of the records.
Simulationssatz lies_Simulation(const Projektordner& Ordner, const std::string& Name,
                                std::vector<Bemerkung>* Bemerkungen = nullptr);

// The same from bytes; `Datei` names the source in messages.
Simulationssatz zerlege_Simulation(const std::string& Bytes, const std::string& Datei,
                                   std::vector<Bemerkung>* Bemerkungen = nullptr);

// The four lines as they stand in the file. Throws Laufzeitfehler that names a text with a character that has no place there.
std::string Simulation_als_Bytes(const Simulationssatz& Satz);

// Throws Laufzeitfehler as `Satz_schreiben` does.
void schreibe_Simulation(const Projektordner& Ordner, const std::string& Name, const Simulationssatz& Satz);

// Names of all simulations, that with the latest time stamp of its summary file first; of equal stamps the first
// in the order of the selector.
std::vector<std::string> Simulationen_nach_Alter(const Projektordner& Ordner);

// The first of these: the simulation used last. Nothing without any simulation.
std::optional<std::string> neueste_Simulation(const Projektordner& Ordner);

}  // namespace varnok
