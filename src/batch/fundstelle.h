#pragma once

#include <string>

#include "base/laufzeitfehler.h"
#include "records/simulation.h"
#include "run/lauf.h"

namespace varnok::batch {

// Where the user finds what a calculation could not go on with.
struct Fundstelle {
    Fehlerort Ort;     // with file and line as far as one value of one record is at fault
    std::string Text;  // "file X.sce, line 3"; where the fault does not tell, the three records
};

// Of a fault that a calculation met; the text is empty for one that names its file itself. `i_studie` is the study in work, from
// 0.
Fundstelle finde_Fundstelle(const Laufzeitfehler& Fehler, const Eingabe& e, const Simulationssatz& Satz, int i_studie);

// Of a run that ended early.
Fundstelle finde_Fundstelle(const Laufergebnis& Ergebnis, const Eingabe& e, const Simulationssatz& Satz, int i_studie);

}  // namespace varnok::batch
