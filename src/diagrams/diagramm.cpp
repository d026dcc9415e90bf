#include "diagrams/diagramm.h"

#include <cmath>

namespace varnok {

std::optional<Ablesung> lies_ab(const Diagramm& d, Punkt p) {
    std::optional<Ablesung> naechste;
    double Abstand = 0;
    const double Tag = std::nearbyint(p.x);
    for (const Kurve& k : d.Kurven) {
        const double Stelle = Tag - k.erster_Tag;
        if (!(Stelle >= 0 && Stelle < static_cast<double>(k.Werte.size()))) continue;
        const float Wert = k.Werte[static_cast<std::size_t>(Stelle)];
        const double dieser = std::abs(static_cast<double>(Wert) - p.y);
        if (naechste && !(dieser < Abstand)) continue;
        naechste = Ablesung{k.Name, static_cast<int>(Tag), Wert, k.Farbe};
        Abstand = dieser;
    }
    return naechste;
}

}  // namespace varnok
