#pragma once

// The plain text of the two reports, `Berichtstext`: UTF-8, lines end in CR LF, a tab between label and value.
// Formatting comes later and finds its places by the words of this text.

#include <string>

#include "exposure/darstellung.h"

namespace varnok {

// What a report tells beside the calculation.
struct Berichtsangaben {
    std::string Programmversion;
    std::string Datum;  // short format of the region, e.g. "21/11/2025"
    std::string Zeit;   // e.g. "14:05:09"
    std::string Applikationssatz;
};

// The report of the selected study, whose results it needs. Throws Laufzeitfehler that names the parameter for a negative one,
// which has no text.
std::string erstelle_Standardbericht(const Darstellung& d, const Berichtsangaben& a);

// The report of all studies side by side; it needs the results of each.
std::string erstelle_erweiterten_Bericht(const Darstellung& d, const Berichtsangaben& a);

// Appends the results of one compound under the name given: over one year, background, accumulation.
void erstelle_Standardbericht_TWA_Tabelle(std::string& Berichtstext, const std::string& Name, const Darstellung& d,
                                          int i_substanz);
void erstelle_erweiterten_Bericht_TWA_Tabelle(std::string& Berichtstext, const std::string& Name, const Darstellung& d,
                                              int i_substanz);

// Name under which the kinetics and the results of a compound stand: a parent without metabolites goes by the
// description of the simulation.
const std::string& Berichtsname(const Darstellung& d, int i_substanz);

}  // namespace varnok
