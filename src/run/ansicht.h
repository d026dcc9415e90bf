#pragma once

#include "run/arten.h"

namespace varnok {

// What the user has chosen to look at. No result depends on it, and a change of it starts no run. `PEC_Typ` and
// `Substanz` stand in records, which are saved with them as they are.
struct Ansicht {
    int Studie_Index = 0;  // the study selected
    int Substanz = 0;      // compound shown
    Endpunktart Endpunkt = Gesamtgehalt;
    PEC_Ansicht PEC_Typ = jaehrlich;
    Fruchtfolge Fruchtwechsel = jedes_Jahr;
    int TWA_Laenge = 0;  // position in the list of windows

    friend bool operator==(const Ansicht&, const Ansicht&) = default;
};

}  // namespace varnok
