#pragma once

#include <string>
#include <vector>

namespace varnok {

// The controls that take a tip, by their object names.
struct Tooltipziel {
    std::size_t Tip;  // counted from 1
    std::vector<std::string> Objektnamen;
};

// In the order in which the tips are given out: a control that is named again takes the later tip. Some names stand for controls
// that the window need not have.
const std::vector<Tooltipziel>& Tooltiptabelle();

}  // namespace varnok
