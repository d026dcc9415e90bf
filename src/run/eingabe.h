#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/zahlwert.h"
#include "run/arten.h"
#include "run/laufparameter.h"
#include "run/zeitachse.h"

namespace varnok {

// One row of the table of irregular applications: day, month, rate in g/ha, interception in %.
using Applikationszeile = std::array<Zahlwert, 4>;

// All inputs of a calculation as one value: what the three records, the description and the settings hold. Two equal
// inputs give equal results to the bit. The window shows it and writes to it; the run, the records and the reports read
// it and nothing else.
struct Eingabe {
    Laufparameter Parameter;

    // simulation
    std::string Beschreibung;

    // compound record
    std::vector<std::string> Studie;  // the names, one for each study
    Stoffschema Berechnungsmodus = nur_Wirkstoff;
    std::string Name_Wirkstoff;
    Zahlwert Molmasse_Wirkstoff;  // g/mol
    std::string Name_Met_1;
    Zahlwert Molmasse_Met_1, Bildungsanteil_Met_1;  // g/mol, %
    std::string Name_Met_2;
    Zahlwert Molmasse_Met_2, Bildungsanteil_Met_2;

    // application pattern record
    Applikationsart Applikationsmuster = einzeln;
    int App_Monat = 0;                   // month less one
    int App_Tag = 0;                     // day of the month less one
    Zahlwert Applikationsrate = "1000";  // g/ha
    Zahlwert Interzeption = "0";         // %
    int Intervall_Index = 364;           // days less one; the list is full before a record is read
    int Anzahl_Index = 0;                // applications a year less two; -1 only from a record
    std::vector<Applikationszeile> Applikationsschema = std::vector<Applikationszeile>(2);  // `Anzahl` rows

    // scenario record
    std::string Bodenszenario;
    std::string Klimaszenario;  // name of the climate file; in constant climate see `Klimatext`

    int Anzahl() const { return Anzahl_Index + 2; }
    int Intervall() const { return Intervall_Index + 1; }
    int Studienzahl() const { return static_cast<int>(Studie.size()); }

    friend bool operator==(const Eingabe&, const Eingabe&) = default;
};

// Sets `Anzahl` as its list does: the table gets as many rows, and `Intervall`, whose list then ends
// at 365/`Anzahl`, keeps its position or takes the last one.
void waehle_Anzahl(Eingabe& e, int Anzahl);
// Where that list begins: with 2, with 1 only while the input holds that.
int kleinste_Anzahl(const Eingabe& e);

// Name of a compound as the scheme shows it, and its molar mass.
const std::string& Stoffname(const Eingabe& e, int i_substanz);
const Zahlwert& Molmasse(const Eingabe& e, int i_substanz);
// Formation fraction of a metabolite (1 or 2).
const Zahlwert& Bildungsanteil(const Eingabe& e, int i_substanz);

// What the climate is called: the name of the climate file, or the constant temperature as "20 °C constant".
std::string Klimatext(const Eingabe& e);

}  // namespace varnok
