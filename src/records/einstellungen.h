#pragma once

// The settings file: what belongs to the installation and not to a simulation.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "run/laufparameter.h"

namespace varnok {

// How pictures of diagrams are made.
struct Bildeinstellung {
    int Breite = 160;  // millimetres
    int Hoehe = 125;
    int Aufloesung = 300;  // pixels per inch
    bool fuer_Druck = false;

    friend bool operator==(const Bildeinstellung&, const Bildeinstellung&) = default;
};

// What is taken for a width or a height, and for a resolution.
inline constexpr int kleinstes_Bild = 60;
inline constexpr int groesstes_Bild = 420;
inline constexpr int kleinste_Aufloesung = 72;
inline constexpr int groesste_Aufloesung = 1200;

struct Einstellungen {
    std::uint8_t Tips_anzeigen = 0;
    std::uint8_t Farbeinstellung = 0;
    std::string TWA_Titel_EU = "EU-Regulation";
    std::string TWA_Titel_Monat = "TWA according to JKI";
    std::string Projektpfad;  // line 27, empty where the file has none
    Bildeinstellung Bild;     // line 28, which a file has where it is another than at first

    friend bool operator==(const Einstellungen&, const Einstellungen&) = default;
};

// What a settings file holds. The lists of averaging windows belong to the input of a run, and stand there alone.
struct Gelesene_Einstellungen {
    Einstellungen Werte;
    TWA_Listen TWA;

    friend bool operator==(const Gelesene_Einstellungen&, const Gelesene_Einstellungen&) = default;
};

// Nothing if lines 1 to 26 cannot be read from these bytes; `Bemerkungen` ends with why then. Remarks about numbers that were
// read only in part and about lengths of averaging windows that no run takes name `Datei`.
std::optional<Gelesene_Einstellungen> zerlege_Einstellungen(const std::string& Bytes, const std::string& Datei = {},
                                                            std::vector<Bemerkung>* Bemerkungen = nullptr);

// All lines as they stand in the file.
std::string Einstellungen_als_Bytes(const Einstellungen& e, const TWA_Listen& TWA);

}  // namespace varnok
