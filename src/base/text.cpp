#include "base/text.h"

#include <algorithm>

namespace varnok {
namespace {

char klein(char z) { return z >= 'A' && z <= 'Z' ? static_cast<char>(z - 'A' + 'a') : z; }

}  // namespace

std::string_view ohne_Randblanks(std::string_view Text) {
    const auto erstes = Text.find_first_not_of(' ');
    if (erstes == std::string_view::npos) return {};
    return Text.substr(erstes, Text.find_last_not_of(' ') - erstes + 1);
}

bool nur_Ziffern(std::string_view Text) {
    return !Text.empty() && Text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool gleich_ohne_Gross_Klein(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return klein(x) == klein(y); });
}

std::vector<std::string_view> zerlege_an(std::string_view Text, char Trenner) {
    std::vector<std::string_view> Stuecke;
    for (auto Ende = Text.find(Trenner); Ende != std::string_view::npos; Ende = Text.find(Trenner)) {
        Stuecke.push_back(Text.substr(0, Ende));
        Text.remove_prefix(Ende + 1);
    }
    Stuecke.push_back(Text);
    return Stuecke;
}

}  // namespace varnok
