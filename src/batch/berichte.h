#pragma once

#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "exposure/darstellung.h"
#include "reports/berichtsabschnitte.h"

namespace varnok::batch {

// Fonts and pictures need the toolkit's application, not a display; to be called once before the first report, from
// the main thread.
void bereite_Berichte_vor();

// A report and where it goes.
struct Berichtsdatei {
    std::string Ordner;
    Berichtsart Art = Berichtsart::Standard;  // of the selected study, or of all studies
    std::string Applikationssatz;             // name of the application pattern record
    const Uhr* Zeit = nullptr;                // the machine's without one
    std::string Namenszusatz;  // behind the name that the desktop program would give, so that reports do not replace each other
};

// What cannot be written is added to `Schreibfehler`.
void schreibe_Berichtsdatei(const Berichtsdatei& b, const Darstellung& d, std::vector<std::string>& Schreibfehler);

// What tells the reports of several studies apart whose names leave the study out; empty where nothing is needed.
std::string Studienzusatz(const Eingabe& e, int i_studie, std::size_t Studien);

}  // namespace varnok::batch
