#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnok {

// Without the blanks at both ends.
std::string_view ohne_Randblanks(std::string_view Text);

// Whether a text is digits from end to end, one at least.
bool nur_Ziffern(std::string_view Text);

// Whether two texts differ at most in the case of the letters A to Z.
bool gleich_ohne_Gross_Klein(std::string_view a, std::string_view b);

// The pieces of a text between the separators; one more piece than there are separators.
std::vector<std::string_view> zerlege_an(std::string_view Text, char Trenner);

}  // namespace varnok
