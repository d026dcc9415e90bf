#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "run/zeitachse.h"

namespace varnok::batch {

// The results of one simulation as plain values, taken from the stores when its run is over; every
// writer reads these and nothing else. Concentrations are in `Endpunktergebnis::Einheit`.

struct Fensterergebnis {
    float Tage = 0;     // length of the averaging window
    float Maximum = 0;  // largest mean
    int Starttag = 0;   // first day of that window
    float aktuell = 0;  // concentration that many days after the day of the peak
};

struct Endpunktergebnis {
    std::string Name;     // "total soil" or "pore water"
    std::string Einheit;  // "mg/kg", "mg/L", "µg/kg", "µg/L"
    float Maximum_Bodentiefe = 0;
    int Maximumtag_Bodentiefe = 0;
    float Maximum_Plateautiefe = 0;
    std::array<float, Jahre> Jahresmaximum{};  // year 1 first
    float Plateauwert = 0;
    double Plateauzuwachs = 0;
    std::string Plateautext;  // empty where no plateau was calculated
    std::vector<Fensterergebnis> TWA;
};

struct Stoffergebnis {
    int i_substanz = 0;
    std::string Name;
    std::array<Endpunktergebnis, Endpunkte> Endpunktwerte;  // total soil first
};

struct Studienergebnis {
    int Nummer = 0;  // counted from 1
    std::string Name;
    int Anzahl_pro_Jahr = 0;
    double Wirksame_Rate = 0;               // g/ha
    std::vector<int> Applikationstag;       // the events of the first year
    std::vector<Stoffergebnis> Stoffwerte;  // those of the scheme, parent first
    std::vector<std::string> Warnungen;
};

struct Simulationsergebnis {
    std::string Name;
    std::string Beschreibung;
    std::array<std::string, 4> Dateinamen;  // places 1 to 3: compound, application, scenario
    int Einheit = 0;
    int Separate_Rueckstaende = 0;
    int TWA_Zeiten = 0;
    int Klimamodus = 0;
    int Schema = 0;
    std::vector<Studienergebnis> Studien;
    std::vector<std::string> Bemerkungen;  // doubts about the records, with file and line
};

// What became of one simulation. With a `Fehler` the result holds the name and the remarks alone.
struct Simulationsausgang {
    Simulationsergebnis Ergebnis;
    std::optional<std::string> Fehler;
    std::vector<std::string> Schreibfehler;  // series that could not be written
};

}  // namespace varnok::batch
