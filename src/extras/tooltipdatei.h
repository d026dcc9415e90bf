#pragma once

// The file "tooltips.uk": the texts that pop up over the controls, in a fixed order. Users may reword them.

#include <string>
#include <string_view>
#include <vector>

namespace varnok {

inline constexpr std::size_t Anzahl_Tooltips = 53;

struct Tooltips {
    std::vector<std::string> Texte;  // the first tip first; fewer than `Anzahl_Tooltips` where the file is short
    std::string Fehler;              // what is wrong with the file, empty if nothing is
};

// The tips of a file in Windows-1252 as UTF-8. A tip is a block of lines up to the first empty line or the end of the file,
// joined by line breaks; a block that starts with an empty line is an empty tip.
std::vector<std::string> zerlege_Tooltips(std::string_view Bytes);

// The tips of the first of the folders that has the file in its `input`.
Tooltips lies_Tooltips(const std::vector<std::string>& Ordner);

}  // namespace varnok
