#pragma once

// Reports of every kind and width, for the tests of pages and for the pictures of the documentation.

#include "berichtsprobe.h"

namespace varnok::probe {

struct Berichtsfall {
    const char* Name;  // good for a file
    Berichtsart Art;
    Lauf_bauer (*Bauer)();

    Bericht schreibe() const { return Bericht_von(mit_Ergebnissen(Bauer()), Art); }
};

// The last one holds all that makes rows wide: six studies and three compounds with long names, twelve averages, results in
// µg, twenty applications.
const std::vector<Berichtsfall>& Berichtsfaelle();

}  // namespace varnok::probe
