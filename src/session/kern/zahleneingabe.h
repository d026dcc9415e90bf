#pragma once

#include <string>

#include "base/zahlwert.h"
#include "session/kern/schauplatz.h"

namespace varnok {

// What stands for a text that is accepted: itself where it is one number as a whole, else the number taken of it. `Meldung` then
// gains a sentence for the status line: of which field, and what was read as what.
Zahlwert nimm_Zahl_an(const Schauplatz& z, const std::string& Feld, const Zahlwert& v, std::string& Meldung);

// The same with the sentence in the status line.
Zahlwert nimm_Zahl_an(Schauplatz& z, const std::string& Feld, const Zahlwert& v);

}  // namespace varnok
