#pragma once

// A way along the curves of a diagram, step by step, for reading off without a mouse.

#include <cstddef>
#include <optional>
#include <vector>

#include "diagrams/diagramm.h"

namespace varnok {

// A day of a curve that the diagram shows.
struct Lesestelle {
    std::size_t Kurve = 0;
    int Tag = 0;

    friend bool operator==(const Lesestelle&, const Lesestelle&) = default;
};

enum class Leserichtung { frueher, spaeter, vorige_Spitze, naechste_Spitze, hoehere_Kurve, tiefere_Kurve };

// Higher than the day before and the day after.
bool ist_Spitze(const std::vector<float>& Werte, std::size_t i);

// Where a step leads. The first one stands on the highest value of the first curve. A step of several days stops at a peak that
// it would pass; at the last day, peak or curve it stays. Nothing where there is no curve.
std::optional<Lesestelle> gehe(const Diagramm& d, const std::optional<Lesestelle>& bisher, Leserichtung r, int Tage);

// The same place where the diagram still shows it.
std::optional<Lesestelle> halte(const Diagramm& d, const std::optional<Lesestelle>& bisher);

Ablesung Ablesung_an(const Diagramm& d, const Lesestelle& s);

}  // namespace varnok
