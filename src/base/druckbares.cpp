#include "base/druckbares.h"

namespace varnok {

std::string druckbar(const std::string& Text) {
    constexpr unsigned char erstes_von_C1 = 0xC2;  // C1 controls are 0xC2 and 0x80 to 0x9F in UTF-8
    std::string sauber = Text;
    for (std::size_t i = 0; i < sauber.size(); ++i) {
        const auto z = static_cast<unsigned char>(sauber[i]);
        if (z < 0x20 || z == 0x7F) sauber[i] = '?';
        if (z != erstes_von_C1 || i + 1 == sauber.size()) continue;
        const auto danach = static_cast<unsigned char>(sauber[i + 1]);
        if (danach >= 0x80 && danach < 0xA0) sauber.replace(i, 2, "?");
    }
    return sauber;
}

}  // namespace varnok
