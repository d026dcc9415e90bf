#pragma once

// Sections that the reports are made of.

#include <string>

#include "reports/berichtstext.h"
#include "reports/textaufbau.h"

namespace varnok {

enum class Berichtsart { Standard, erweitert };

// Title, version, date, description.
void haenge_Kopf_an(Textaufbau& t, const Darstellung& d, const Berichtsangaben& a, Berichtsart Art);
void haenge_Programmeinstellungen_an(Textaufbau& t, const Darstellung& d);
void haenge_Szenario_an(Textaufbau& t, const Darstellung& d, const Berichtsangaben& a, Berichtsart Art);
void haenge_Applikationen_an(Textaufbau& t, const Darstellung& d);
// Scheme and table of compounds.
void haenge_Stoffe_an(Textaufbau& t, const Darstellung& d);
void haenge_Kinetik_an(Textaufbau& t, const Darstellung& d, Berichtsart Art);

// Name of the metabolism scheme in a report.
const char* Schemaname(Stoffschema s);

// Text of an input as the user wrote it, a number with a point in every region: "12,5" as 12.5. A text that is not one
// number as a whole stays as it is.
std::string Punkttext(const Zahlwert& z);

// Text of a run parameter: about five significant figures, zeros at the end cut. Throws Laufzeitfehler with
// the label for a negative value.
std::string Parametertext(const char* Beschriftung, double Wert);

}  // namespace varnok
