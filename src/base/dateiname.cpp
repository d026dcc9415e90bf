#include "base/dateiname.h"

#include <algorithm>
#include <string_view>

namespace varnok {
namespace {

bool ist_Folgebyte(char z) { return (static_cast<unsigned char>(z) & 0xC0) == 0x80; }

// Control characters above 0x7F are 0xC2 and 0x80 to 0x9F in UTF-8.
bool beginnt_C1(std::string_view Text, std::size_t i) {
    return Text[i] == '\xC2' && i + 1 < Text.size() && static_cast<unsigned char>(Text[i + 1]) < 0xA0;
}

std::string ersetze_Zeichen(const std::string& Text) {
    constexpr std::string_view verboten = "\\/:*?\"<>|";
    std::string Name;
    for (std::size_t i = 0; i < Text.size(); ++i) {
        const auto z = static_cast<unsigned char>(Text[i]);
        const bool C1 = beginnt_C1(Text, i);
        const bool ersetzt = C1 || z < 0x20 || z == 0x7F || verboten.find(Text[i]) != std::string_view::npos;
        Name += ersetzt ? '_' : Text[i];
        if (C1) ++i;
    }
    return Name;
}

}  // namespace

std::string als_Dateiname(const std::string& Text, const std::string& Zusatz, std::size_t Hoechstlaenge) {
    const std::string Ende = ersetze_Zeichen(Zusatz);
    std::string Name = ersetze_Zeichen(Text);
    const std::size_t Platz = Hoechstlaenge - std::min(Ende.size(), Hoechstlaenge);
    if (Name.size() > Platz) {
        std::size_t Laenge = Platz;
        while (Laenge > 0 && ist_Folgebyte(Name[Laenge])) --Laenge;
        Name.resize(Laenge);
    }
    Name += Ende;
    if (Name.empty()) return "_";
    return Name == "." || Name == ".." ? std::string(Name.size(), '_') : Name;
}

}  // namespace varnok
