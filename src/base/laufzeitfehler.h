#pragma once

#include <stdexcept>
#include <string>

namespace varnok {

// The one exception of the program: input or a file that makes going on impossible. The text names
// the file, the line or the input, and what is wrong with it; it is shown to the user as it stands.
class Laufzeitfehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Input that makes the arithmetic impossible, such as a soil density of 0. `Eingabewert` names the
// value at fault, e.g. "Soil density (kg/L) = 0".
[[noreturn]] void melde_unmoegliche_Rechnung(const std::string& Eingabewert);

}  // namespace varnok
