#include "painting/rahmenfeld.h"

#include "painting/zeichner.h"

namespace varnok {
namespace {

constexpr double Rand = 6;  // units around a frame
constexpr double Luft = 3;  // to a curve

}  // namespace

Flaechenrechteck in_Anteilen(const QRectF& r, const QSizeF& Flaeche) {
    return {r.left() / Flaeche.width(), r.top() / Flaeche.height(), r.width() / Flaeche.width(), r.height() / Flaeche.height()};
}

Rahmenfeld bilde_Rahmenfeld(const Zeichenliste& z, const QRectF& Flaeche, const Koordinaten& Achsen, double Kopf) {
    const QSizeF g = Flaeche.size();
    const QPointF Ursprung = auf_Flaeche(Flaeche, z.System, {Achsen.links, 0});
    const QRectF Raum(QPointF(Ursprung.x() + Rand, Kopf + 2), QPointF(g.width() - Rand, Ursprung.y() - Rand / 2));
    Rahmenfeld f = {z, in_Anteilen(Raum, g), {}, Luft / g.width(), Luft / g.height()};
    for (const Schriftzug& s : z.Texte) f.Texte.push_back(in_Anteilen(setze_Schrift(Flaeche, z.System, s).Platz, g));
    return f;
}

}  // namespace varnok
