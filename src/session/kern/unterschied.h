#pragma once

#include <array>
#include <string>

#include "run/eingabe.h"

namespace varnok {

// What tells two inputs apart: for the name of a step in the history, and for what to show after it.
struct Unterschied {
    std::string Name;             // "DT50 (d)", "application date"; empty for equal inputs
    int i_studie = -1;            // the study concerned, -1 where it is all or none
    int i_substanz = -1;          // the compound concerned
    std::array<bool, 4> Arten{};  // the records that hold it
};

Unterschied vergleiche(const Eingabe& a, const Eingabe& b);

}  // namespace varnok
