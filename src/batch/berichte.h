#pragma once

#include <string>
#include <vector>

#include "reports/berichtsabschnitte.h"
#include "run/lauf.h"

namespace varnok::batch {

// Fonts and pictures need the toolkit's application, not a display; to be called once before the first report, from
// the main thread.
void bereite_Berichte_vor();

// Writes the report of the selected study, or of all studies, into the folder. `Namenszusatz` goes behind the name that
// the desktop program would give, so that reports of one call do not replace each other. What cannot be written is
// added to `Schreibfehler`.
void schreibe_Berichtsdatei(const std::string& Ordner, const Lauf& l, Berichtsart Art, const std::string& Namenszusatz,
                            std::vector<std::string>& Schreibfehler);

// What tells the reports of several studies apart whose names leave the study out; empty where nothing is needed.
std::string Studienzusatz(const Lauf& l, int i_studie, std::size_t Studien);

}  // namespace varnok::batch
