#pragma once

#include <string>
#include <vector>

#include "records/projektordner.h"

namespace varnok {

// The start simulation that a project can always be given back.
inline constexpr const char* Startsimulation = "Programcheck";

// Makes the records and the summary file of the start simulation anew from the templates: first those of the
// project, over them those of the folders in `Quellen`, each with its own folder `input`. Throws Laufzeitfehler
// that names a template missing everywhere, before any file is touched.
void stelle_Voreinstellungen_her(const Projektordner& Ordner, const std::vector<std::string>& Quellen);

}  // namespace varnok
