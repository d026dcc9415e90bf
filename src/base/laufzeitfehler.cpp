#include "base/laufzeitfehler.h"

namespace varnok {

void melde_unmoegliche_Rechnung(const std::string& Eingabewert) {
    throw Laufzeitfehler("The calculation is not possible with these input data. Please correct! (" + Eingabewert + ")");
}

}  // namespace varnok
