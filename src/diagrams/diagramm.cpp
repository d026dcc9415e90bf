#include "diagrams/diagramm.h"

#include <algorithm>
#include <cmath>

#include "base/zahlen.h"
#include "diagrams/lesegang.h"
#include "run/bezeichnungen.h"

namespace varnok {

namespace {

// The peak nearest to the point, the distances measured in those of the catch.
std::optional<Ablesung> fange_Spitze(const Diagramm& d, Punkt p, Punkt Fang) {
    std::optional<Ablesung> naechste;
    double Abstand = 1;
    for (const Kurve& k : d.Kurven) {
        const double Anfang = std::max(0.0, std::ceil(p.x - Fang.x - k.erster_Tag));
        for (auto i = static_cast<std::size_t>(Anfang); i < k.Werte.size(); ++i) {
            const int Tag = k.erster_Tag + static_cast<int>(i);
            if (Tag > p.x + Fang.x) break;
            const double dieser = std::hypot((Tag - p.x) / Fang.x, (static_cast<double>(k.Werte[i]) - p.y) / Fang.y);
            if (!(dieser <= Abstand) || !ist_Spitze(k.Werte, i)) continue;
            naechste = Ablesung{k.Name, Tag, k.Werte[i], k.Farbe};
            Abstand = dieser;
        }
    }
    return naechste;
}

}  // namespace

std::optional<Ablesung> lies_ab(const Diagramm& d, Punkt p, Punkt Fang) {
    std::optional<Ablesung> naechste;
    if (Fang.x > 0 && Fang.y > 0) naechste = fange_Spitze(d, p, Fang);
    if (naechste) return naechste;
    double Abstand = 0;
    const double Tagesort = std::nearbyint(p.x);
    for (const Kurve& k : d.Kurven) {
        const double Stelle = Tagesort - k.erster_Tag;
        if (!(Stelle >= 0 && Stelle < static_cast<double>(k.Werte.size()))) continue;
        const float Wert = k.Werte[static_cast<std::size_t>(Stelle)];
        const double dieser = std::abs(static_cast<double>(Wert) - p.y);
        if (naechste && !(dieser < Abstand)) continue;
        naechste = Ablesung{k.Name, static_cast<int>(Tagesort), Wert, k.Farbe};
        Abstand = dieser;
    }
    return naechste;
}

std::string Ablesungstext(const Diagramm& d, const Ablesung& a) {
    constexpr int Stellen = 4;
    return "day " + std::to_string(a.Tag) + ": " + gekuerzte_Zahl(static_cast<double>(a.Wert), Stellen) + ' ' +
           std::string(Konzentrationseinheit(d.Einheit, d.Endpunkt)) + ", " + a.Name;
}

}  // namespace varnok
