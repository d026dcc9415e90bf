#pragma once

#include <string>
#include <string_view>

namespace varnok {

// What the maker signs: the eight characters of the version, then the program. An old program that was
// signed once cannot be offered again under a newer version.
std::string signierter_Text(std::string_view Version, std::string_view Programm);

// Whether the 64 bytes are the Ed25519 signature of the text under the public key (64 hexadecimal digits).
bool Signatur_passt(std::string_view Signatur, std::string_view Text, std::string_view Schluessel);

}  // namespace varnok
