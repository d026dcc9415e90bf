#pragma once

#include <filesystem>
#include <string>

namespace varnok {

// A path of the program's texts, which are UTF-8, for the file system.
inline std::filesystem::path als_Pfad(const std::string& Utf8) { return {std::u8string(Utf8.begin(), Utf8.end())}; }

}  // namespace varnok
