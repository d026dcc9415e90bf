#include "run/klima.h"

#include <utility>

#include "base/laufzeitfehler.h"
#include "run/kalender.h"

namespace varnok {

Wetter::Wetter(std::vector<Klimatag> Tage, int App_Monat, int App_Tag) : Tage_(std::move(Tage)) {
    if (Tage_.empty()) throw Laufzeitfehler("The climate file holds no day.", {{}, 0, "Klimaszenario"});
    Start_ = static_cast<std::size_t>(Julian(App_Monat + 1) + App_Tag);
}

}  // namespace varnok
