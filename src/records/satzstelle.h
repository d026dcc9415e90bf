#pragma once

// Where a value of the input stands in its record.

#include <optional>
#include <string>

#include "base/laufzeitfehler.h"
#include "records/projektordner.h"
#include "run/eingabe.h"

namespace varnok {

struct Satzstelle {
    Satzart Art = Wirkstoff;
    int Zeile = 0;          // counted from 1; 0 where the fault does not tell which row of the table it is about
    std::string Name = {};  // of the line, as messages call it; empty without one

    friend bool operator==(const Satzstelle&, const Satzstelle&) = default;
};

// Record and line of the store that a fault names. Nothing for a store that no record holds, or one of a study or compound
// that the fault does not name.
std::optional<Satzstelle> finde_Satzstelle(const Fehlerort& Ort, const Eingabe& e);

// A row of the table of irregular applications, counted from 1.
Satzstelle Stelle_der_Reihe(int Reihe, const Eingabe& e);

}  // namespace varnok
