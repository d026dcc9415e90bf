#pragma once

#include <cstddef>
#include <string>

namespace varnok {

// A text as the name of a file, without its extension: characters that some file system cannot hold and control characters
// become "_", a name that is too long is cut at a whole character, in front of `Zusatz`, which is always there as a whole.
// Never empty, never "." or "..". UTF-8.
std::string als_Dateiname(const std::string& Text, const std::string& Zusatz = {}, std::size_t Hoechstlaenge = 240);

}  // namespace varnok
