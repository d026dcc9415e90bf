#pragma once

// Names of the files that reports go to.

#include <string>

#include "base/schnittstellen.h"
#include "exposure/darstellung.h"

namespace varnok {

// Date and time, the same in every region: "03 May 2026", "14:05".
struct Berichtszeit {
    std::string Datum;
    std::string Zeit;
};

// The moment of the clock in local time.
Berichtszeit Berichtszeit_nach(const Uhr& u);

// Date and time as parts of a name, which can hold no colon: "03 May 2026", "14.05".
std::string Datum_als_Text(const Berichtszeit& z);
std::string Zeit_als_Text(const Berichtszeit& z);

// Name of the report of the selected study, without folder and extension: the description of the simulation and
// the parts that `Ausgabename_Teile` wants.
std::string Ausgabename_Standardbericht(const Darstellung& d, const Berichtszeit& z);

// Name of the report of all studies. The flags stand one place further on than in the standard report: year, date
// and time hang on those of date, time and on one that no option sets.
std::string Ausgabename_erweiterter_Bericht(const Darstellung& d, const Berichtszeit& z);

}  // namespace varnok
