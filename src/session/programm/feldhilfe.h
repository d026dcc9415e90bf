#pragma once

#include <string>
#include <vector>

namespace varnok {

// A control that the user asks about.
struct Hilfefrage {
    std::vector<std::string> Objektnamen;  // its own, then those of what it stands in
    std::string Aufschrift;                // what the user knows it by
    std::vector<std::string> Tips;         // of the file of tips
    std::string installierte_Daten;        // the folder of the pages
};

// The tip, range and unit, and below a line the part of the pages that the control belongs to, with links to the whole pages;
// Markdown. What there is not is left out.
std::string Feldhilfe(const Hilfefrage& f);

}  // namespace varnok
