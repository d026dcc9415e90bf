#pragma once

// A part of a diagram's time, looked at more closely. The diagram itself, and the file that it leaves, stay what they are.

#include "diagrams/diagramm.h"

namespace varnok {

// Days of a time axis, whole numbers.
struct Zeitraum {
    double von = 0;
    double bis = 0;

    double Laenge() const { return bis - von; }
    friend bool operator==(const Zeitraum&, const Zeitraum&) = default;
};

// The days that a diagram shows; nothing where it has no curve.
std::optional<Zeitraum> gezeigter_Zeitraum(const Diagramm& d);

// The same length as wanted, if the diagram has as much, in whole days within its own; not shorter than is of use.
Zeitraum halte_in(const Zeitraum& ganzer, Zeitraum gewuenschter);

// A range in which `Tag` stays at its place of the picture, `Faktor` times as long.
Zeitraum gestreckt(const Zeitraum& r, double Faktor, double Tag);

// The diagram on these days alone, which lie within its own; the y axis fits what is seen of curves and averages.
Diagramm zeige_Ausschnitt(const Diagramm& ganzes, const Zeitraum& r);

}  // namespace varnok
