#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace varnok {

// The largest of `Wert(0)` to `Wert(Anzahl - 1)`, `Start` if none is above it. Eight side by side, as a single chain of
// comparisons would wait for itself.
template <class Funktion>
float groesster_Wert(std::size_t Anzahl, float Start, Funktion Wert) {
    constexpr std::size_t nebeneinander = 8;
    std::array<float, nebeneinander> m;
    m.fill(Start);
    const std::size_t ganze = Anzahl - Anzahl % nebeneinander;
    for (std::size_t i = 0; i < ganze; i += nebeneinander) {
        for (std::size_t j = 0; j < nebeneinander; ++j) m[j] = Wert(i + j) > m[j] ? Wert(i + j) : m[j];
    }
    for (std::size_t i = ganze; i < Anzahl; ++i) m[0] = Wert(i) > m[0] ? Wert(i) : m[0];
    return *std::max_element(m.begin(), m.end());
}

}  // namespace varnok
