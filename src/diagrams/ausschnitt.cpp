#include "diagrams/ausschnitt.h"

#include <algorithm>
#include <cmath>

#include "diagrams/achsen.h"
#include "diagrams/striche.h"

namespace varnok {
namespace {

constexpr double kuerzester = 10;  // days

Kurve schneide(const Kurve& k, const Zeitraum& r) {
    const auto von = static_cast<std::ptrdiff_t>(std::max(0.0, r.von - k.erster_Tag));
    const auto bis = std::min(static_cast<std::ptrdiff_t>(k.Werte.size()), static_cast<std::ptrdiff_t>(r.bis - k.erster_Tag) + 1);
    return {k.Name, k.Farbe, k.erster_Tag + static_cast<int>(von), {k.Werte.begin() + von, k.Werte.begin() + std::max(von, bis)}};
}

bool liegt_in(const Mittelwert& m, const Zeitraum& r) { return m.Start < r.bis && m.Start + m.Tage > r.von; }

double groesster_Wert(const Diagramm& d) {
    double y = 0;
    for (const Kurve& k : d.Kurven) {
        for (const float w : k.Werte) y = std::max(y, static_cast<double>(w));
    }
    for (const Mittelwert& m : d.Mittelwerte) y = std::max(y, m.Hoehe);
    return y;
}

void zeichne_Kasten(Zeichenliste& z, const Mittelwert& m, const Zeitraum& r) {
    const double Ende = m.Start + m.Tage;
    z.Linien.push_back({{std::max(r.von, m.Start), m.Hoehe}, {std::min(r.bis, Ende), m.Hoehe}, m.Farbe});
    for (const double Seite : {Ende, m.Start}) {
        if (Seite >= r.von && Seite <= r.bis) z.Linien.push_back({{Seite, 0}, {Seite, m.Hoehe}, m.Farbe});
    }
}

}  // namespace

std::optional<Zeitraum> gezeigter_Zeitraum(const Diagramm& d) {
    if (d.Kurven.empty()) return std::nullopt;
    const Kurve& k = d.Kurven.front();
    return Zeitraum{static_cast<double>(k.erster_Tag),
                    static_cast<double>(k.erster_Tag) + static_cast<double>(k.Werte.size()) - 1};
}

Zeitraum halte_in(const Zeitraum& ganzer, Zeitraum gewuenschter) {
    const double Laenge =
        std::clamp(std::nearbyint(gewuenschter.Laenge()), std::min(kuerzester, ganzer.Laenge()), ganzer.Laenge());
    const double von = std::clamp(std::nearbyint(gewuenschter.von), ganzer.von, ganzer.bis - Laenge);
    return {von, von + Laenge};
}

Zeitraum gestreckt(const Zeitraum& r, double Faktor, double Tag) {
    return {Tag - (Tag - r.von) * Faktor, Tag + (r.bis - Tag) * Faktor};
}

Diagramm zeige_Ausschnitt(const Diagramm& ganzes, const Zeitraum& r) {
    Diagramm d = ganzes;
    d.Liste = {};
    d.Kurven.clear();
    for (const Kurve& k : ganzes.Kurven) d.Kurven.push_back(schneide(k, r));
    std::erase_if(d.Mittelwerte, [&r](const Mittelwert& m) { return !liegt_in(m, r); });
    zeichne_Achsen(d.Liste, {r.von, r.bis, erstelle_Diagramm_skaliere_y_Achse(groesster_Wert(d)), false, true});
    for (std::size_t i = 0; i < d.Kurven.size(); ++i) {
        zeichne_Verlauf(d.Liste, d.Kurven[i]);
        // A box belongs to the curve of its place.
        if (i < ganzes.Mittelwerte.size() && liegt_in(ganzes.Mittelwerte[i], r))
            zeichne_Kasten(d.Liste, ganzes.Mittelwerte[i], r);
    }
    return d;
}

}  // namespace varnok
