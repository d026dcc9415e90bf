#pragma once

#include <string>
#include <vector>

#include "run/lauf.h"

namespace varnok {

// Lengths in days of the averaging windows in force, as the calculation takes them: in single precision.
std::vector<float> TWA_Fenster(const Laufparameter& p);

// What a window is called: by its length, "21 d", and as an entry of the selector, "TWA (21 d)".
std::string Fensterlaenge(float Tage, char Dezimalzeichen = '.');
std::string TWA_Eintrag(float Tage, char Dezimalzeichen = '.');

// Entries of the selector of windows, first place of the list first.
std::vector<std::string> TWA_Eintraege(const Laufparameter& p, char Dezimalzeichen = '.');

// Preselected position of that selector: the 28-day or the 30-day window.
constexpr int TWA_Vorauswahl(TWA_Listenart Liste) { return Liste == EU_Liste ? 6 : 0; }

// The largest mean concentration over any window of each length in force, and the first day of that
// window, for `i_studie` and `i_substanz` and both endpoints, from the running integral of the series in the
// soil depth. Throws Laufzeitfehler for a window of length 0 or below.
void berechne_TWA(Lauf& l);

}  // namespace varnok
