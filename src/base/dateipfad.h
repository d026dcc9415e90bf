#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

namespace varnok {

// A path of the program's texts, which are UTF-8, for the file system.
inline std::filesystem::path als_Pfad(const std::string& Utf8) { return {std::u8string(Utf8.begin(), Utf8.end())}; }

inline std::string Pfadtext(const std::filesystem::path& Pfad) {
    const std::u8string Utf8 = Pfad.u8string();
    return {Utf8.begin(), Utf8.end()};
}

// What stands behind the last slash of a path.
inline std::string letzter_Teil(const std::string& Pfad) { return Pfad.substr(Pfad.rfind('/') + 1); }

// The name of a file of a project without its ending, a point and three letters.
inline std::string ohne_Endung(const std::string& Dateiname) {
    constexpr std::size_t Endung = 4;
    return Dateiname.substr(0, Dateiname.size() - std::min(Endung, Dateiname.size()));
}

}  // namespace varnok
