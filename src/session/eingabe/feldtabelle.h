#pragma once

// The numeric fields of the main screen as a table: what they are called and where the value goes. Ranges: `Wertebereiche`.

#include <span>
#include <string>
#include <variant>

#include "base/wertebereiche.h"
#include "run/eingabe.h"
#include "run/halbwertszeit.h"

namespace varnok {

// What a change of a field concerns.
enum class Feldgruppe {
    Dosis,                  // rate and interception: where that is exact, results are scaled instead of calculated anew
    Stoff,                  // masses and formation fractions: all studies
    Studie,                 // study data whose focus takes the hint picture away
    Studie_Hinweis_bleibt,  // study data whose focus leaves it: FOMC and HS
};

// Where a value is kept: a table of the run parameters, or a number of the entry fields with its text. A rate constant is
// shown as a DT50.
using Feldziel =
    std::variant<Stofftabelle<double> Laufparameter::*, Studientabelle<double> Laufparameter::*, Zahlwert Eingabe::*>;

struct Feldbeschreibung {
    const char* Name;  // object name, without the compound's index
    const char* Beschriftung;
    const Wertebereich* Bereich;
    int i_substanz;  // compound of the field, -1 in a line that stands for one field of each compound
    Feldgruppe Gruppe;
    bool DT50;  // shown as ln(2)/k
    Feldziel Ziel;
    const char* Meldung_Enter = nullptr;  // where Enter words it differently
    bool Null_bei_Enter = false;          // Enter lets 0 through although leaving refuses it
    bool je_Stoff = false;                // the object name carries the compound's index

    std::string Objektname() const;
    bool gilt(double v, bool Enter) const;
};

// All fields, in the order of the screen. A field is known by its place in this table.
std::span<const Feldbeschreibung> Feldtabelle();

// Place of the field of that object name, -1 without one.
int Feld_mit_Namen(const std::string& Objektname);

}  // namespace varnok
