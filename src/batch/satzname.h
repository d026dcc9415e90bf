#pragma once

#include <string>

#include "base/dateipfad.h"

namespace varnok::batch {

// Name of a record from its path: without the folder and the ending.
inline std::string Satzname(const std::string& Pfad) { return ohne_Endung(Pfadtext(als_Pfad(Pfad).filename())); }

}  // namespace varnok::batch
