#pragma once

// The time ranges of the diagrams, in days: what the view and the user's scaling leave in force.

#include <array>

#include "base/zahlwert.h"
#include "diagrams/diagrammsaetze.h"

namespace varnok {

struct Diagrammbereiche {
    std::array<double, Diagrammzahl> X_Start{};
    std::array<double, Diagrammzahl> X_Ende{};
    std::array<double, Zusammenfassungszahl> X_Start_Zusammenfassung{};
    std::array<double, Zusammenfassungszahl> X_Ende_Zusammenfassung{};
    // End that the user set since the view last changed, 0 without one: a summary drawing works its end out anew and
    // goes by this one only if it is later.
    std::array<double, Zusammenfassungszahl> manuelles_Ende{};

    friend bool operator==(const Diagrammbereiche&, const Diagrammbereiche&) = default;
};

// The ranges at the start of the program: one year, ten years in the view "Background".
Diagrammbereiche Startbereiche(PEC_Ansicht PEC_Art);

// A view was chosen, by click or with an application pattern: all ranges are those of the view again.
void setze_Bereiche_nach_Ansicht(Diagrammbereiche& b, PEC_Ansicht PEC_Art);

// The same for one diagram.
void setze_Bereich_nach_Ansicht(Diagrammbereiche& b, PEC_Ansicht PEC_Art, bool Zusammenfassung, int Nummer);

// Start as it is drawn: within the days of a run, whatever was typed.
double gehaltener_Start(double X_Start);

// The dialog "Manual scaling".
inline constexpr std::array<int, 9> Skalierungsliste = {10, 20, 50, 100, 200, 365, 1000, 2000, 3650};
inline constexpr int letzter_Startzeitpunkt = 400;  // its list of starts runs from 0
inline constexpr const char* Skalierungsfehler = "The maximum Time shown on the x-axis must be between 2 d and 3650 d! ";
inline constexpr const char* Skalierungsfehler_Titel = "No valid input!";

// Takes over what was typed for a diagram, or for a summary diagram. False, and nothing is stored, if the end is not
// within 2 and 3650 days. The start is not checked: it may lie behind the end.
bool uebernimm_Skalierung(Diagrammbereiche& b, bool Zusammenfassung, int Nummer, const Zahlwert& Start, const Zahlwert& Ende);

}  // namespace varnok
