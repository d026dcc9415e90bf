#pragma once

// Words of the reports that two places must agree on: headlines are written by the text and found again by the
// formatting.

namespace varnok::Berichtswort {

inline constexpr const char* Titel = "V A R N O K";
inline constexpr const char* Untertitel = "Soil Residue Forecast Tool";
inline constexpr const char* Verfasser = "developed by Emil Tarrasch";
inline constexpr const char* Ergebnisse = "RESULTS OF THE CALCULATION";
inline constexpr const char* Stoffkopf = "RESULTS FOR: ";
inline constexpr const char* Jahr = "Calculations over one year";
inline constexpr const char* Hintergrund = "Calculation of background concentrations after many years";
inline constexpr const char* Anreicherung =
    "Calculations of concentrations considering accumulation after many years of application";
inline constexpr const char* Warnungsanfang = "In the simulation a final";
inline constexpr const char* Bildkopf = "GRAPHIC REPRESENTATION OF THE CALCULATION";
inline constexpr const char* Bildplatz = "A diagram should appear here!";

}  // namespace varnok::Berichtswort
