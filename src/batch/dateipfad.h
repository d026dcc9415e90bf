#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

namespace varnok::batch {

// A path of the program's texts, which are UTF-8, for the file system.
inline std::filesystem::path Dateipfad(const std::string& Utf8) {
    return std::filesystem::path(std::u8string(Utf8.begin(), Utf8.end()));
}

// Name of a record from its path: without the folder and the four characters of the extension.
inline std::string Satzname(const std::string& Pfad) {
    constexpr std::size_t Endung = 4;
    const std::u8string Datei = Dateipfad(Pfad).filename().u8string();
    return std::string(Datei.begin(), Datei.end() - static_cast<std::ptrdiff_t>(std::min(Endung, Datei.size())));
}

}  // namespace varnok::batch
