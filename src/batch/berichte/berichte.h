#pragma once

#include "batch/berichtsauftrag.h"

namespace varnok::batch {

// Fonts and pictures need the toolkit's application, not a display; to be called from the main thread.
Berichtsschreiber bereite_Berichte_vor();

}  // namespace varnok::batch
