#pragma once

#include <string>
#include <string_view>

namespace varnok {

// The bytes of a text in a record or a summary file. Throws Laufzeitfehler that names the field and
// the character for one without a place in Windows-1252, or for a line end.
std::string als_Satztext(std::string_view Utf8, std::string_view Feldname);

// Empty for a text that a record can hold as one value, else what is wrong with it: a control character, a character without
// a place in Windows-1252.
std::string Einwand_gegen_Text(std::string_view Utf8);

}  // namespace varnok
