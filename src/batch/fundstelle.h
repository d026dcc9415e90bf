#pragma once

#include <string>

#include "base/laufzeitfehler.h"
#include "records/simulation.h"
#include "run/lauf.h"

namespace varnok::batch {

// Where the user finds what a calculation could not go on with: "file X.sce, line 3"; where the fault does not tell,
// the three records. Empty for a message that names its file itself. `i_studie` is the study in work, from 0.
std::string Fundstelle(const Laufzeitfehler& Fehler, const Eingabe& e, const Simulationssatz& Satz, int i_studie);

// The same for a run that ended early.
std::string Fundstelle(const Laufergebnis& Ergebnis, const Eingabe& e, const Simulationssatz& Satz);

}  // namespace varnok::batch
