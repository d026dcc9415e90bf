#pragma once

// What units, endpoints, views, patterns, months, crop rotations and kinetics are called: one table for each.

#include <array>
#include <string_view>

#include "run/arten.h"
#include "run/kalender.h"

namespace varnok {

// [unit][endpoint]
inline constexpr std::array<std::array<std::string_view, 2>, 2> Einheiten = {{{"mg/kg", "mg/L"}, {"µg/kg", "µg/L"}}};
inline constexpr std::array<std::string_view, 2> Masseneinheiten = {"mg", "µg"};
inline constexpr std::array<std::string_view, 2> Endpunktnamen = {"total soil", "pore water"};
inline constexpr std::array<std::string_view, 3> Ansichtsnamen = {"annual", "background", "accumulated"};
inline constexpr std::array<std::string_view, 3> Musternamen = {"single", "regular", "irregular"};
// The heads of the table of applications.
inline constexpr std::array<std::string_view, 4> Tabellenkoepfe = {"Day", "Month", "Rate (g/ha)", "Interception(%)"};
inline constexpr std::array<std::string_view, Monate> Monatsnamen = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
inline constexpr std::array<std::string_view, 3> Fruchtwechselnamen = {"every year", "every 2nd year", "every 3rd year"};
inline constexpr std::array<std::string_view, 4> Kinetiknamen = {"SFO", "DFOP", "FOMC", "HS"};
inline constexpr std::array<std::string_view, 4> Schemanamen = {
    "Parent only", "Parent with 1 metabolite", "Parent and 2 metabolites (parallel)", "Parent and 2 metabolites (sequence)"};

inline constexpr std::string_view konstantes_Klima = "constant";  // in the place of the name of a climate file

// The endpoint of a name that the program has written.
constexpr Endpunktart Endpunkt_von(std::string_view Name) {
    return Name == Endpunktnamen[Gesamtgehalt] ? Gesamtgehalt : Porenwasser;
}

// Unit of a concentration: "mg/kg", "mg/L", "µg/kg" or "µg/L".
constexpr std::string_view Konzentrationseinheit(Einheitsart Einheit, Endpunktart Endpunkt) {
    return Einheiten[Einheit][Endpunkt];
}

}  // namespace varnok
