#pragma once

#include <string>

#include "session/kern/zustand.h"

namespace varnok {

// Where the figures on display come from, beside a report: the sum over compound, application and scenario record and the climate
// file in use, as `varnok-batch` gives it, while nothing on the screen differs from these files; else that it is not saved.
std::string Herkunft_der_Ergebnisse(const Zustand& z);

}  // namespace varnok
