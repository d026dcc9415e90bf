#pragma once

// The writers of results: each turns the same structs into a text.

#include <string>
#include <vector>

#include "batch/simulationsergebnis.h"

namespace varnok::batch {

// UTF-8; calculated simulations under "simulations", the others under "errors". A single precision value is
// written as the double that it widens to, so it reads back unchanged.
std::string als_JSON(const std::vector<Simulationsausgang>& Ausgaenge);

// A header line, then a row for each simulation, study, compound and endpoint, after RFC 4180 (CR LF). Columns for
// twelve averaging windows; those of a shorter list are empty.
std::string als_CSV(const std::vector<Simulationsausgang>& Ausgaenge);

// For the eye: for each simulation and endpoint a table of peaks, plateaus and averages.
std::string als_Tabelle(const std::vector<Simulationsausgang>& Ausgaenge);

// Control characters replaced by "?": a name out of a file shall not steer a terminal.
std::string druckbar(const std::string& Text);

}  // namespace varnok::batch
