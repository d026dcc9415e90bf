#pragma once

#include <string>

#include "records/simulation.h"
#include "run/lauf.h"

namespace varnok::batch {

// Where the value stands that a message of the calculation names: "file X.sce, line 3". Where the message
// does not tell, the three records. Empty for a message that names its file itself. `i_studie` counts from 0.
std::string Fundstelle(const std::string& Meldung, const Lauf& l, const Simulationssatz& Satz, int i_studie);

}  // namespace varnok::batch
