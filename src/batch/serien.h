#pragma once

#include <string>
#include <vector>

#include "batch/simulationsergebnis.h"

namespace varnok::batch {

// The daily series of a study as text: a header line, then days 0 to 3649, tab separated, each
// number in the shortest form that reads back as the same single precision value.
std::string Serientext(const Ergebnis& s);

// Name of a study's file of series; `Studie` counts from 1.
std::string Serienname(const std::string& Simulation, int Studie);

// One file for each study into the folder. What cannot be written is added to `Schreibfehler`.
void schreibe_Serien(const std::string& Ordner, const std::string& Simulation, const Studienergebnisse& Studien,
                     std::vector<std::string>& Schreibfehler);

}  // namespace varnok::batch
