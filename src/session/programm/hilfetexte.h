#pragma once

#include <string>
#include <vector>

#include "session/kern/schauplatz.h"

namespace varnok {

// Texts about the program that come from files beside it.
class Hilfetexte {
public:
    explicit Hilfetexte(Schauplatz& z) : z_(z) {}

    // The tips as far as the file has them, read anew. What is wrong with the file is told once; nothing ends for want of a tip.
    std::vector<std::string> Tooltips();
    // Who made the program, its licence and the libraries in it; each line ends in CR LF.
    std::string Programmangaben() const;
    // Help about the control of these object names, the innermost first, with the caption that the user knows it by; Markdown.
    std::string Feldhilfe(const std::vector<std::string>& Objektnamen, const std::string& Aufschrift) const;

private:
    Schauplatz& z_;
    std::string gemeldet_;  // what was told about the file of tips
};

}  // namespace varnok
