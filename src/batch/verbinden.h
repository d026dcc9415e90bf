#pragma once

#include "batch/aufruf.h"
#include "batch/textziel.h"

namespace varnok::batch {

// Joins the outputs of shards into one of their kind, and makes the summary over all of them where one is asked for: the bytes of
// the call without shards, of a database the same rows. Throws Aufruffehler for parts that do not go together, Laufzeitfehler for
// an output that cannot be written. True where an entry is that of a simulation that could not be calculated.
bool verbinde_Teile(const Aufruf& a, const Textziel::Standardausgabe& aus);

}  // namespace varnok::batch
