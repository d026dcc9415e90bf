#pragma once

#include <string>

#include "session/kern/schauplatz.h"

namespace varnok {

// False for a typed text that has two or more separators: read as told it would be a thousandth of what was meant.
bool ist_eindeutig(const std::string& Text);

// What stands for a text that is accepted: itself where it is one number as a whole, else the number taken of it. `Meldung` then
// gains a sentence for the status line: of which field, and what was read as what.
std::string nimm_Zahl_an(const Schauplatz& z, const std::string& Feld, const std::string& Text, std::string& Meldung);

// The same with the sentence in the status line.
std::string nimm_Zahl_an(Schauplatz& z, const std::string& Feld, const std::string& Text);

}  // namespace varnok
