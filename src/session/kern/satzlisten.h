#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace varnok {

// The selectors: simulation, compound, application pattern, scenario. What is selected is a name, and this is the one place
// where it is kept; a record whose file is missing keeps it.
struct Satzlisten {
    std::array<std::vector<std::string>, 4> Listen;
    std::array<std::string, 4> Namen;  // empty without a selection

    // Place of the selected name in the list, -1 where the list does not have it.
    int Auswahl(std::size_t Art) const {
        const auto Treffer = std::find(Listen[Art].begin(), Listen[Art].end(), Namen[Art]);
        return Treffer == Listen[Art].end() ? -1 : static_cast<int>(Treffer - Listen[Art].begin());
    }
    // The entry selected, empty without one.
    std::string gewaehlt(std::size_t Art) const { return Auswahl(Art) < 0 ? std::string() : Namen[Art]; }
    // Selects the entry at a place of the list; none for -1.
    void waehle_Platz(std::size_t Art, int Position) {
        Namen[Art] = Position < 0 ? std::string() : Listen[Art].at(static_cast<std::size_t>(Position));
    }
};

}  // namespace varnok
