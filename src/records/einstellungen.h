#pragma once

// The settings file: what belongs to the installation and not to a simulation.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "run/laufparameter.h"

namespace varnok {

struct Einstellungen {
    std::uint8_t Tips_anzeigen = 0;
    std::uint8_t Farbeinstellung = 0;
    std::string TWA_Titel_EU = "EU-Regulation";
    std::string TWA_Titel_Monat = "TWA according to JKI";
    TWA_Listen TWA;
    std::string Projektpfad;  // line 27, empty where the file has none

    friend bool operator==(const Einstellungen&, const Einstellungen&) = default;
};

// Nothing if lines 1 to 26 cannot be read from these bytes; `Bemerkungen` ends with why then. Remarks about numbers that were
// read only in part and about lengths of averaging windows that no run takes name `Datei`.
std::optional<Einstellungen> zerlege_Einstellungen(const std::string& Bytes, const std::string& Datei = {},
                                                   std::vector<Bemerkung>* Bemerkungen = nullptr);

// All 27 lines as they stand in the file.
std::string Einstellungen_als_Bytes(const Einstellungen& e);

}  // namespace varnok
