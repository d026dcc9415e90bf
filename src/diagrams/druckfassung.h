#pragma once

#include "diagrams/diagramm.h"

namespace varnok {

// For paper and for eyes that see no colours: each compound, or each study of a summary, gets dashes of its own, light colours
// become the dark ones of their hue, and the legend of a summary names the thin boxes of the averages.
void richte_fuer_Druck(Diagramm& d);

}  // namespace varnok
