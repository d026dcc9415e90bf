#pragma once

#include <string>
#include <vector>

#include "batch/aufruf.h"
#include "records/projektordner.h"

namespace varnok::batch {

// Names of the simulations to calculate in the order chosen, each once: those of --simulation, with
// --all every one in the order of the selector, without either the newest. A name without an exact match is looked up without
// regard to case. Throws Aufruffehler for a name that there is none of, and for a project without an input folder or without
// simulations.
std::vector<std::string> waehle_Simulationen(const Projektordner& Ordner, const Aufruf& a);

}  // namespace varnok::batch
