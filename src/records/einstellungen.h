#pragma once

// The settings file: what belongs to the installation and not to a simulation.

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace varnok {

struct Einstellungen {
    std::uint8_t Tips_anzeigen = 0;
    std::uint8_t Farbeinstellung = 0;
    std::string TWA_Titel_EU = "EU-Regulation";
    std::array<double, 10> TWA_Liste_EU = {1, 2, 4, 7, 14, 21, 28, 42, 50, 100};
    std::string TWA_Titel_Monat = "TWA according to JKI";
    std::array<double, 12> TWA_Liste_Monat = {30, 60, 90, 120, 150, 180, 210, 240, 270, 300, 330, 360};
    std::string Projektpfad;  // line 27, empty where the file has none

    friend bool operator==(const Einstellungen&, const Einstellungen&) = default;
};

// Nothing if lines 1 to 26 cannot be read from these bytes.
std::optional<Einstellungen> zerlege_Einstellungen(const std::string& Bytes);

// All 27 lines as they stand in the file.
std::string Einstellungen_als_Bytes(const Einstellungen& e);

}  // namespace varnok
