#include "base/laufzeitfehler.h"

#include <utility>

namespace varnok {

void melde_unmoegliche_Rechnung(const std::string& Eingabewert, Fehlerort Ort) {
    throw Laufzeitfehler("The calculation is not possible with these input data. Please correct! (" + Eingabewert + ")",
                         std::move(Ort));
}

}  // namespace varnok
