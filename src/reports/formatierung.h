#pragma once

#include <string>
#include <vector>

#include "reports/berichtsabschnitte.h"
#include "reports/textstelle.h"

namespace varnok {

// Font of a report. The blanks behind the labels are made for a narrow one: in this one the values of a block stand
// at one tab stop. Where it is missing, one like it stands in.
inline constexpr const char* Berichtsschrift = "Times New Roman";

// Formats a report step by step: each step searches for words of the text and works on what it finds, so that a
// compound called like a headline draws a format to itself. Afterwards the document holds everything but the picture.
// `Stoffnamen` are those of the scheme, parent first.
void formatiere_Bericht(Textstelle& w, const std::string& Berichtstext, const std::vector<std::string>& Stoffnamen,
                        Berichtsart Art);

}  // namespace varnok
