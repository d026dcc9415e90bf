#include "base/zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace varnok {
namespace {

// Bytes 0x80 to 0x9F; all others are the character of the same number.
constexpr std::array<char32_t, 32> Bereich_80 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t ungueltig = 0xFFFFFFFF;

void haenge_an(std::string& Utf8, char32_t Zeichen) {
    if (Zeichen < 0x80) {
        Utf8.push_back(static_cast<char>(Zeichen));
    } else if (Zeichen < 0x800) {
        Utf8.push_back(static_cast<char>(0xC0 | (Zeichen >> 6)));
        Utf8.push_back(static_cast<char>(0x80 | (Zeichen & 0x3F)));
    } else {
        Utf8.push_back(static_cast<char>(0xE0 | (Zeichen >> 12)));
        Utf8.push_back(static_cast<char>(0x80 | ((Zeichen >> 6) & 0x3F)));
        Utf8.push_back(static_cast<char>(0x80 | (Zeichen & 0x3F)));
    }
}

// Takes one character off the front of `Rest`; `ungueltig` for bytes that are no UTF-8.
char32_t naechstes_Zeichen(std::string_view& Rest) {
    const auto erstes = static_cast<unsigned char>(Rest.front());
    const std::size_t Laenge = erstes < 0x80 ? 1 : erstes >= 0xF0 ? 4 : erstes >= 0xE0 ? 3 : erstes >= 0xC0 ? 2 : 0;
    if (Laenge == 0 || Laenge > Rest.size()) {
        Rest.remove_prefix(1);
        return ungueltig;
    }
    char32_t Zeichen = Laenge == 1 ? erstes : erstes & (0xFF >> (Laenge + 1));
    for (std::size_t i = 1; i < Laenge; ++i) {
        const auto Byte = static_cast<unsigned char>(Rest[i]);
        if ((Byte & 0xC0) != 0x80) {
            Rest.remove_prefix(i);
            return ungueltig;
        }
        Zeichen = (Zeichen << 6) | (Byte & 0x3F);
    }
    Rest.remove_prefix(Laenge);
    // A character written longer than it needs would slip past every check of the bytes.
    constexpr char32_t kleinstes[] = {0, 0, 0x80, 0x800, 0x10000};
    return Zeichen < kleinstes[Laenge] ? ungueltig : Zeichen;
}

std::optional<char> Byte_fuer(char32_t Zeichen) {
    if (Zeichen < 0x80 || (Zeichen >= 0xA0 && Zeichen <= 0xFF)) return static_cast<char>(Zeichen);
    const auto Treffer = std::find(Bereich_80.begin(), Bereich_80.end(), Zeichen);
    if (Treffer == Bereich_80.end()) return std::nullopt;
    return static_cast<char>(0x80 + (Treffer - Bereich_80.begin()));
}

}  // namespace

std::string aus_Windows_1252(std::string_view Bytes) {
    std::string Utf8;
    Utf8.reserve(Bytes.size());
    for (const char z : Bytes) {
        const auto Byte = static_cast<unsigned char>(z);
        haenge_an(Utf8, Byte >= 0x80 && Byte < 0xA0 ? Bereich_80[Byte - 0x80] : Byte);
    }
    return Utf8;
}

std::optional<std::string> nach_Windows_1252(std::string_view Utf8) {
    std::string Bytes;
    while (!Utf8.empty()) {
        const char32_t Zeichen = naechstes_Zeichen(Utf8);
        const auto Byte = Zeichen == ungueltig ? std::nullopt : Byte_fuer(Zeichen);
        if (!Byte) return std::nullopt;
        Bytes.push_back(*Byte);
    }
    return Bytes;
}

std::string Zeichen_ohne_Platz(std::string_view Utf8) {
    while (!Utf8.empty()) {
        const std::string_view davor = Utf8;
        const char32_t Zeichen = naechstes_Zeichen(Utf8);
        if (Zeichen == ungueltig || !Byte_fuer(Zeichen)) return std::string(davor.substr(0, davor.size() - Utf8.size()));
    }
    return {};
}

std::size_t Zeichenzahl(std::string_view Utf8) {
    return static_cast<std::size_t>(
        std::count_if(Utf8.begin(), Utf8.end(), [](char z) { return (static_cast<unsigned char>(z) & 0xC0) != 0x80; }));
}

}  // namespace varnok
