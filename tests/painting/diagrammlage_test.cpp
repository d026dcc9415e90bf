// A drawing fitted to surfaces of many sizes.

#include "painting/diagrammlage.h"

#include <gtest/gtest.h>

#include "painting/bildprobe.h"

namespace varnok::probe {
namespace {

// 1.3333 mg/kg: the axis ends at 1.5 and has a hundred and fifty fine ticks.
TEST(Diagrammlage, every_tick_stays_on_any_surface) {
    const Diagramm d = Wirkstoffdiagramm(Lauf_bauer().nach_SFO(0.014, 1));
    for (const QSizeF& g : {QSizeF(340, 255), QSizeF(453, 340), QSizeF(640, 500), QSizeF(1561, 1015)}) {
        Zeichenliste z = d.Liste;
        passe_an_Flaeche(z, g, {40, 20});
        EXPECT_EQ(z.Linien, d.Liste.Linien) << g.width();
    }
}

}  // namespace
}  // namespace varnok::probe
