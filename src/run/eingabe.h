#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "run/zeitachse.h"

namespace varnok {

// One row of the table of irregular applications, as texts: day, month, rate in g/ha, interception in %.
using Applikationszeile = std::array<std::string, 4>;

enum Applikationsart { einzeln = 0, regelmaessig = 1, unregelmaessig = 2 };

// What the entry fields and selectors hold: texts as typed, selectors as zero-based positions.
// The widgets show it and write to it; the run, the records and the reports read it and nothing else.
struct Eingabe {
    // simulation
    std::string Beschreibung;
    std::array<std::string, 4> Aktuelle_Dateinamen;  // simulation, compound, application, scenario

    // compound record
    std::vector<std::string> Studie;  // the names, one for each study
    int Studie_Index = 0;
    int Substanz = 0;          // compound shown
    int Berechnungsmodus = 0;  // 0 parent, 1 one metabolite, 2 two parallel, 3 two in sequence
    std::string Name_Wirkstoff, Molmasse_Wirkstoff;
    std::string Name_Met_1, Molmasse_Met_1, Bildungsanteil_Met_1;
    std::string Name_Met_2, Molmasse_Met_2, Bildungsanteil_Met_2;

    // application pattern record
    int Applikationsmuster = einzeln;
    int PEC_Typ = 0;                        // 0 annual, 1 background, 2 accumulation
    int App_Monat = 0;                      // month less one
    int App_Tag = 0;                        // day of the month less one
    std::string Applikationsrate = "1000";  // g/ha
    std::string Interzeption = "0";         // %
    int Intervall_Index = 364;              // days less one; the list is full before a record is read
    int Anzahl_Index = 0;                   // applications a year less two, -1 without a selection
    std::vector<Applikationszeile> Applikationsschema = std::vector<Applikationszeile>(2);  // `Anzahl` rows

    // scenario record
    std::string Bodenszenario;
    std::string Klimaszenario;  // name of the climate file, or the constant temperature as text

    // result selectors, in no record
    int Endpunkt = 0;       // 0 total content, 1 pore water
    int Fruchtwechsel = 0;  // 0 every year, 1 every 2nd, 2 every 3rd
    int TWA_Laenge = 0;     // position in the list of windows

    int Anzahl() const { return Anzahl_Index + 2; }
    int Intervall() const { return Intervall_Index + 1; }

    friend bool operator==(const Eingabe&, const Eingabe&) = default;
};

// Sets `Anzahl` as its list does: the table gets as many rows, and `Intervall`, whose list then ends
// at 365/`Anzahl`, keeps its position or takes the last one.
void waehle_Anzahl(Eingabe& e, int Anzahl);

// Name of a compound as the scheme shows it.
const std::string& Stoffname(const Eingabe& e, int i_substanz);

// Number of compounds of a metabolism scheme.
constexpr int Anzahl_Stoffe(int Berechnungsmodus) { return std::min(Berechnungsmodus, 2) + 1; }

}  // namespace varnok
