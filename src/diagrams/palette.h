#pragma once

// Colours of the diagrams: indices of the classic 16-colour palette.

#include <array>
#include <cstdint>

namespace varnok {

struct Farbwert {
    std::uint8_t Rot = 0;
    std::uint8_t Gruen = 0;
    std::uint8_t Blau = 0;

    friend bool operator==(const Farbwert&, const Farbwert&) = default;
};

inline constexpr int Schwarz = 0;

// Index -> red, green, blue.
inline constexpr std::array<Farbwert, 16> Palette = {{
    {0, 0, 0},
    {0, 0, 128},
    {0, 128, 0},
    {0, 128, 128},  // black, blue, green, cyan
    {128, 0, 0},
    {128, 0, 128},
    {128, 128, 0},
    {192, 192, 192},  // red, magenta, brown, light grey
    {128, 128, 128},
    {0, 0, 255},
    {0, 255, 0},
    {0, 255, 255},  // dark grey, light blue, light green, light cyan
    {255, 0, 0},
    {255, 0, 255},
    {255, 255, 0},
    {255, 255, 255},  // light red, light magenta, yellow, white
}};

// A compound's curve is dark, its averaging window the same colour in light; a study has one light colour for both.
constexpr int Kurvenfarbe(int i_substanz) { return 1 << i_substanz; }
constexpr int TWA_Farbe(int i_substanz) { return Kurvenfarbe(i_substanz) + 8; }
constexpr int Studienfarbe(int i_studie) { return i_studie + 9; }

// Patterns of dashes: one for each study of a summary, 0 is an unbroken line.
inline constexpr int Strichmusterzahl = 6;

}  // namespace varnok
