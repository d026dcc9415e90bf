#pragma once

#include <string>
#include <string_view>

namespace varnok {

// What the maker signs: the eight characters of the version, the name of the program's file, then the program. One that was
// signed once cannot be offered again under a newer version, nor to another platform.
std::string signierter_Text(std::string_view Version, std::string_view Datei, std::string_view Programm);

// Whether the 64 bytes are the Ed25519 signature of the text under the public key (64 hexadecimal digits).
bool Signatur_passt(std::string_view Signatur, std::string_view Text, std::string_view Schluessel);

}  // namespace varnok
