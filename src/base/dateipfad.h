#pragma once

#include <filesystem>
#include <string>

namespace varnok {

// A path of the program's texts, which are UTF-8, for the file system.
inline std::filesystem::path als_Pfad(const std::string& Utf8) { return {std::u8string(Utf8.begin(), Utf8.end())}; }

// What stands behind the last slash of a path.
inline std::string letzter_Teil(const std::string& Pfad) { return Pfad.substr(Pfad.rfind('/') + 1); }

}  // namespace varnok
