#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/projektordner.h"

namespace varnok {

// The start simulation that a project can always be given back.
inline constexpr const char* Startsimulation = "Programcheck";

// Path of the template of a record: that of the project, else of the first folder of `Quellen` that has one in its own folder
// `input`. Nothing where it is missing everywhere.
std::optional<std::string> finde_Vorlage(const Projektordner& Ordner, const std::vector<std::string>& Quellen, Satzart Vorlage);

// Makes the records and the summary file of the start simulation anew from the templates: first those of the
// project, over them those of the folders in `Quellen`, each with its own folder `input`. Throws Laufzeitfehler
// that names a template missing everywhere, before any file is touched.
void stelle_Voreinstellungen_her(const Projektordner& Ordner, const std::vector<std::string>& Quellen);

}  // namespace varnok
