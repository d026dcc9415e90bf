#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include "base/dateipfad.h"

namespace varnok::batch {

// Name of a record from its path: without the folder and the four characters of the extension.
inline std::string Satzname(const std::string& Pfad) {
    constexpr std::size_t Endung = 4;
    const std::u8string Datei = als_Pfad(Pfad).filename().u8string();
    return std::string(Datei.begin(), Datei.end() - static_cast<std::ptrdiff_t>(std::min(Endung, Datei.size())));
}

}  // namespace varnok::batch
