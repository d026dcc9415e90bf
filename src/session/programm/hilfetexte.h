#pragma once

#include <string>
#include <vector>

#include "session/kern/zustand.h"

namespace varnok {

// Texts about the program that come from files beside it.
class Hilfetexte {
public:
    explicit Hilfetexte(Zustand& z) : z_(z) {}

    // The tips as far as the file has them, read anew. What is wrong with the file is told once; nothing ends for want of a tip.
    std::vector<std::string> Tooltips();
    std::string Programmangaben() const;

private:
    Zustand& z_;
    std::string gemeldet_;  // what was told about the file of tips
};

}  // namespace varnok
