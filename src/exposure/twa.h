#pragma once

#include <string>
#include <vector>

#include "run/lauf.h"

namespace varnok {

// Copies the list of averaging windows in force into `TWA_Tage`.
void uebernehme_TWA_Liste(Lauf& l);

// The same, and the entry that the selector of windows then begins with.
void TWA_Listbox_initialisieren(Lauf& l);

// Entries of the selector of windows, "TWA (21 d)", shortest list place first.
std::vector<std::string> TWA_Eintraege(const Lauf& l, char Dezimalzeichen = '.');

// Preselected position of that selector: the 28-day or the 30-day window.
constexpr int TWA_Vorauswahl(std::uint8_t TWA_Zeiten) { return 6 * TWA_Zeiten; }

// The largest mean concentration over any window of each length in `TWA_Tage`, and the first day of that
// window, for `i_studie` and `i_substanz` and both endpoints, from the running integral of the series in the
// soil depth. Throws Laufzeitfehler for a window of length 0 or below.
void berechne_TWA(Lauf& l);

}  // namespace varnok
