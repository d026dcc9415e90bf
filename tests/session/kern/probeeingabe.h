#pragma once

#include "run/eingabe.h"

namespace varnok {

// The input that most tests of the session begin with: a compound with two metabolites in two soils, constant climate.
Eingabe Probeeingabe();

}  // namespace varnok
