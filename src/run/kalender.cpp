#include "run/kalender.h"

#include <array>
#include <cmath>

#include "run/zeitachse.h"

namespace varnok {
namespace {

constexpr std::array<int, Monate + 1> Tage_davor = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, Tage_pro_Jahr};

}  // namespace

int Julian(int Monat) { return Monat >= 1 && Monat <= Monate ? Tage_davor[static_cast<std::size_t>(Monat - 1)] : 0; }

int Tage_im_Monat(int Monat) {
    const auto i = static_cast<std::size_t>(Monat);
    return Tage_davor.at(i) - Tage_davor.at(i - 1);
}

int laengstes_Intervall(int Anzahl) { return static_cast<int>(std::nearbyint(static_cast<double>(Tage_pro_Jahr) / Anzahl)); }

}  // namespace varnok
