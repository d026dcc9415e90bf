#pragma once

#include "run/lauf.h"

namespace varnok {

// The calculations of this folder as a run needs them.
extern const Rechenschritte alle_Rechenschritte;

}  // namespace varnok
