#pragma once

// The numbers behind a diagram as text for other programs.

#include <string>
#include <vector>

#include "diagrams/diagramm.h"
#include "exposure/ergebnistabelle.h"

namespace varnok {

struct Datentafel {
    std::string Titel;
    Ergebniswerte Inhalt;
};

// How rows are written.
struct Datenform {
    char Trenner = ',';
    char Dezimalzeichen = '.';
};

// Comma separated values, with semicolons where numbers have commas.
constexpr Datenform CSV_mit(char Dezimalzeichen) { return {Dezimalzeichen == ',' ? ';' : ',', Dezimalzeichen}; }

// Title and comment, a row for each day with a column for each curve that is shown, the boxes of the averages, the tables. UTF-8,
// rows end with CR LF.
std::string Diagrammdaten(const Diagramm& d, const std::vector<Datentafel>& Tafeln, const Datenform& f);

}  // namespace varnok
