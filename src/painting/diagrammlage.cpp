#include "painting/diagrammlage.h"

#include <QFontMetricsF>
#include <algorithm>
#include <limits>

#include "painting/zeichner.h"

namespace varnok {
namespace {

constexpr double Luecke = 4;  // between a number and its tick, and between two numbers

// The axes as the drawing has them: margins in shares of the axis lengths.
struct Achsen {
    explicit Achsen(const Koordinaten& k) : Laenge_x(k.Breite() / 1.13), Start(k.links + Laenge_x / 10), Laenge_y(k.oben / 1.1) {}

    bool an_x_Achse(const Schriftzug& s) const { return s.Ort.y < 0; }
    bool an_y_Achse(const Schriftzug& s) const { return s.Ort.x < Start - Laenge_x / 20; }

    double Laenge_x;
    double Start;
    double Laenge_y;
};

double Textbreite(const Schriftzug& s) {
    return QFontMetricsF(Diagrammschrift(s.Groesse, s.fett, s.kursiv)).horizontalAdvance(QString::fromStdString(s.Inhalt));
}

// Numbers run along their axis; the first that does not touch the one before stays.
template <class Gehoert, class Strecke>
void lichte(std::vector<Schriftzug>& Texte, Gehoert gehoert, Strecke strecke) {
    double frei_ab = -std::numeric_limits<double>::infinity();
    const auto stoert = [&](const Schriftzug& s) {
        if (!gehoert(s)) return false;
        const auto [Anfang, Ende] = strecke(s);
        if (Anfang < frei_ab) return true;
        frei_ab = Ende;
        return false;
    };
    Texte.erase(std::remove_if(Texte.begin(), Texte.end(), stoert), Texte.end());
}

struct Raender {
    double links, oben, rechts, unten;
};

Raender bestimme_Raender(const Zeichenliste& z, const Achsen& a, const QSizeF& Flaeche, const Diagrammrand& Rand, double Zeile) {
    double Breite_y = 0;
    double Breite_x = 0;
    for (const Schriftzug& s : z.Texte) {
        if (a.an_y_Achse(s)) Breite_y = std::max(Breite_y, Textbreite(s));
        if (a.an_x_Achse(s)) Breite_x = std::max(Breite_x, Textbreite(s));
    }
    const double w = Flaeche.width();
    const double h = Flaeche.height();
    return {std::max(w * 0.1 / 1.13, Breite_y + Luecke + w / 1.13 / 50 + 2), std::max(h * 0.1 / 1.225, Rand.oben + Zeile / 2),
            std::max(w * 0.03 / 1.13, Breite_x / 2 + 1), std::max(h * 0.125 / 1.225, h / 1.225 / 30 + Zeile + Rand.unten)};
}

}  // namespace

Koordinaten passe_an_Flaeche(Zeichenliste& z, const QSizeF& Flaeche, const Diagrammrand& Rand) {
    const Achsen a(z.System);
    const double Zeile = QFontMetricsF(Diagrammschrift(Schriftgroesse_Fenster)).height();
    const Raender r = bestimme_Raender(z, a, Flaeche, Rand, Zeile);
    // Logical values of one unit of the surface.
    const double x = a.Laenge_x / std::max(1.0, Flaeche.width() - r.links - r.rechts);
    const double y = a.Laenge_y / std::max(1.0, Flaeche.height() - r.oben - r.unten);
    z.System = {a.Start - r.links * x, a.Laenge_y + r.oben * y, a.Start + a.Laenge_x + r.rechts * x, -r.unten * y};

    for (Schriftzug& s : z.Texte) {
        if (a.an_x_Achse(s)) {
            s.Ort.x += a.Laenge_x / 50;
            s.Halt = Anker::mittig;
        } else if (a.an_y_Achse(s)) {
            s.Ort.y += Zeile / 2 * y - a.Laenge_y / 50;
            s.Ort.x = a.Start - a.Laenge_x / 50 - Luecke * x;
            s.Halt = Anker::rechts;
        }
    }
    lichte(
        z.Texte, [&](const Schriftzug& s) { return a.an_x_Achse(s); },
        [&](const Schriftzug& s) {
            const double halbe = Textbreite(s) / 2 * x;
            return std::pair(s.Ort.x - halbe, s.Ort.x + halbe + Luecke * x);
        });
    lichte(
        z.Texte, [&](const Schriftzug& s) { return !a.an_x_Achse(s) && s.Ort.x < a.Start; },
        [&](const Schriftzug& s) { return std::pair(s.Ort.y, s.Ort.y + 0.8 * Zeile * y); });
    return {a.Start, a.Laenge_y, a.Start + a.Laenge_x, 0};
}

}  // namespace varnok
