#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "batch/aufruf.h"
#include "batch/simulationsergebnis.h"
#include "records/projektordner.h"

namespace varnok::batch {

// Looks whether the outputs of the call can be written, before any work is done, and makes the folder of the
// series. Throws Aufruffehler: no such folder, a folder in a file's place, a target among the input files.
void bereite_Ausgaben_vor(const Aufruf& a, const Projektordner& Ordner);

// Writes table, JSON and CSV as far as asked for. Returns what could not be written, one text for each.
std::vector<std::string> schreibe_Ausgaben(const Aufruf& a, const std::vector<Simulationsausgang>& Ausgaenge, std::ostream& aus);

}  // namespace varnok::batch
