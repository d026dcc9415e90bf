#pragma once

// A second writing of the reports: whole lines with places to fill in, and values from the reference calculation. It
// shares neither text nor values with src/reports and is the witness of the reports in tests/golden.

#include <string>
#include <vector>

#include "run/ansicht.h"
#include "run/eingabe.h"
#include "run/klima.h"

namespace varnok::zeuge {

struct Aufgabe {
    Eingabe Felder;
    Ansicht Sicht;
    std::vector<Klimatag> Klima;
    std::string Applikationssatz, Programmversion, Datum, Zeit;
};

std::string Standardbericht(const Aufgabe& a);
std::string erweiterter_Bericht(const Aufgabe& a);

}  // namespace varnok::zeuge
