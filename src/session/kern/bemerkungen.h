#pragma once

#include <vector>

#include "session/kern/zustand.h"

namespace varnok {

// What is doubtful in the files that the values on the screen come from, each under its path in the project: the records that
// were read, as they were read or saved last, the climate file in force, the settings. Corrected values stay doubtful until the
// file holds them.
std::vector<Bemerkung> Bemerkungen(const Zustand& z);

}  // namespace varnok
