// A drawing fitted to surfaces of many sizes.

#include "painting/diagrammlage.h"

#include <gtest/gtest.h>

#include <map>

#include "painting/bildprobe.h"

namespace varnok::probe {
namespace {

// Where ticks stand along an axis, each with its length; sums of another order are the same place.
using Teilungen = std::map<double, double>;
double Ort(double x) { return std::round(x * 1E9) / 1E9; }

Teilungen Striche_der_x_Achse(const Zeichenliste& z) {
    Teilungen t;
    for (const Linie& l : z.Linien) {
        if (l.Farbe == Schwarz && l.von.x == l.bis.x && l.bis.y < 0) t[Ort(l.von.x)] = std::max(t[Ort(l.von.x)], -l.bis.y);
    }
    return t;
}

Teilungen Striche_der_y_Achse(const Zeichenliste& z, double Start) {
    Teilungen t;
    for (const Linie& l : z.Linien) {
        if (l.Farbe == Schwarz && l.von.y == l.bis.y && l.bis.x < Start)
            t[Ort(l.von.y)] = std::max(t[Ort(l.von.y)], Start - l.bis.x);
    }
    return t;
}

double kleinster_Abstand(const Teilungen& t) {
    double kleinster = 1E300;
    for (auto i = t.begin(); i != t.end() && std::next(i) != t.end(); ++i)
        kleinster = std::min(kleinster, std::next(i)->first - i->first);
    return kleinster;
}

// 1.3333 mg/kg: the axis ends at 1.5 and has a hundred and fifty fine ticks.
const Diagramm& dichtes() {
    static const Diagramm d = Wirkstoffdiagramm(Lauf_bauer().nach_SFO(0.014, 1));
    return d;
}

TEST(Diagrammlage, ticks_never_run_into_a_bar) {
    for (const QSizeF& g : {QSizeF(340, 255), QSizeF(453, 340), QSizeF(640, 500), QSizeF(1561, 1015)}) {
        Zeichenliste z = dichtes().Liste;
        const Koordinaten Achsen = passe_an_Flaeche(z, g, {40, 20});
        const Teilungen x = Striche_der_x_Achse(z), y = Striche_der_y_Achse(z, Achsen.links);
        EXPECT_GE(kleinster_Abstand(x) / z.System.Breite() * g.width(), 2.999) << g.width();
        EXPECT_GE(kleinster_Abstand(y) / z.System.Hoehe() * g.height(), 2.999) << g.width();
        EXPECT_GE(y.size(), 16U);
        EXPECT_GE(x.size(), 8U);
    }
}

TEST(Diagrammlage, the_longer_ticks_stay_on_any_surface) {
    Zeichenliste z = dichtes().Liste;
    const Teilungen alle = Striche_der_y_Achse(z, 0);
    const Koordinaten Achsen = passe_an_Flaeche(z, {340, 255}, {40, 20});
    const Teilungen hier = Striche_der_y_Achse(z, Achsen.links);
    EXPECT_LT(hier.size(), alle.size());
    for (const auto& [y, Laenge] : alle) {
        EXPECT_TRUE(hier.contains(y) || Laenge < 364 / 60.0) << y;
    }
}

TEST(Diagrammlage, all_ticks_where_there_is_room) {
    Zeichenliste z = dichtes().Liste;
    const std::size_t Linien = z.Linien.size();
    passe_an_Flaeche(z, {1561, 1015}, {40, 20});
    EXPECT_EQ(z.Linien.size(), Linien);
}

}  // namespace
}  // namespace varnok::probe
