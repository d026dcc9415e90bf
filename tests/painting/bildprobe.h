#pragma once

// Diagrams of calculated runs, with the ranges of a report's picture.

#include "diagrams/diagrammbau.h"
#include "support/darstellungsprobe.h"

namespace varnok::probe {

// The builder's input calculated; its description is "the problem" unless it has one.
Darstellungsprobe gerechnetes_Problem(Lauf_bauer b = {});

// The diagram of the parent in the first study.
Diagramm Wirkstoffdiagramm(const Lauf_bauer& b = {});

}  // namespace varnok::probe
