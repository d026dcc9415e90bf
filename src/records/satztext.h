#pragma once

#include <string>
#include <string_view>

#include "base/laufzeitfehler.h"

namespace varnok {

// The bytes of a text in a record or a summary file. Throws Laufzeitfehler that names the field and
// the character for one without a place in Windows-1252, or for a line end; `Ort` is what else is known of its place.
std::string als_Satztext(std::string_view Utf8, std::string_view Feldname, Fehlerort Ort = {});

// Empty for a text that a record can hold as one value, else what is wrong with it: a control character, a character without
// a place in Windows-1252.
std::string Einwand_gegen_Text(std::string_view Utf8);

// A text as it may be typed or pasted into a value of a record: line ends and tabs have become blanks, every other character that
// `Einwand_gegen_Text` finds is left out.
struct Satzfaehiges {
    std::string Text;
    std::string abgewiesen;  // the first character left out, empty without one
};
Satzfaehiges nur_Satzfaehiges(std::string_view Utf8);

// What the user is told of a character left out.
std::string Meldung_ueber(const Satzfaehiges& s);

}  // namespace varnok
