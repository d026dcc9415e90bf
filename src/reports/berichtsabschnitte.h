#pragma once

// Sections that the reports are made of.

#include <string>

#include "reports/berichtstext.h"
#include "reports/textaufbau.h"

namespace varnok {

enum class Berichtsart { Standard, erweitert };

// Title, version, date, description.
void haenge_Kopf_an(Textaufbau& t, const Lauf& l, const Berichtsangaben& a, Berichtsart Art);
void haenge_Programmeinstellungen_an(Textaufbau& t, const Lauf& l);
void haenge_Szenario_an(Textaufbau& t, const Lauf& l, Berichtsart Art);
void haenge_Applikationen_an(Textaufbau& t, const Eingabe& e);
// Scheme and table of compounds.
void haenge_Stoffe_an(Textaufbau& t, const Lauf& l);
void haenge_Kinetik_an(Textaufbau& t, const Lauf& l, Berichtsart Art);

// Name of the metabolism scheme in a report.
const char* Schemaname(int Berechnungsmodus);

// Text of a run parameter: about five significant figures, zeros at the end cut. Throws Laufzeitfehler with
// the label for a negative value.
std::string Parametertext(const char* Beschriftung, double Wert);

}  // namespace varnok
