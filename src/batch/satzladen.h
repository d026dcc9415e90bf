#pragma once

#include <string>
#include <vector>

#include "batch/simulationslauf.h"
#include "records/simulation.h"
#include "run/ansicht.h"
#include "run/eingabe.h"

namespace varnok::batch {

// "file X.che" or "file X.che, line 12", as messages begin.
std::string Dateistelle(const std::string& Dateiname, int Zeile = 0);

// Name of a simulation's record with its extension.
std::string Satzdatei(const Simulationssatz& Satz, Satzart Art);

// Adds remarks of the readers under the names that files of the project go by in outputs: "input/X.che".
void haenge_an(std::vector<Bemerkung>& Bemerkungen, const std::vector<Bemerkung>& neue, const Projektordner& Ordner);

// Reads the three records of a simulation into the input and the view: compound, scenario, application. Their bytes go to
// `Summe`, where one is wanted, in the order compound, application, scenario. Doubts about their content are added to
// `Bemerkungen`. Throws Laufzeitfehler that names file, line and reason for a record that is not there letter for letter, cannot
// be used, or ends too early.
void lade_Saetze(const Auftrag& a, const std::string& Simulation, const Simulationssatz& Satz, Eingabe& e, Ansicht& Sicht,
                 std::vector<Bemerkung>& Bemerkungen, Eingabensumme* Summe = nullptr);

}  // namespace varnok::batch
