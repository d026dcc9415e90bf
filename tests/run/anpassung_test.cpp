// Scaling of stored results to another dose.

#include "run/anpassung.h"

#include <gtest/gtest.h>

#include <utility>

#include "base/laufzeitfehler.h"
#include "exposure/plateau.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

// Slow decay, so that no value is small enough to lose digits.
Lauf_bauer Fall(int Kinetik) {
    Lauf_bauer b;
    b.nach_SFO(0.003).nach_DFOP(0.01, 0.001, 0.6).nach_FOMC(0.7, 20).nach_HS(0.01, 0.002, 60);
    b.Parameter.Kinetik[0][0] = Kinetik;
    b.Schema(3).nach_DFOP(0.01, 0.002, 0.5, 1).nach_SFO(0.004, 2).regelmaessige_Gaben(2, 40).Rueckstaende(2);
    return b;
}

class Anpassung : public ::testing::TestWithParam<int> {};

void erwarte_gleiche_Reihen(const Lauf& a, const Lauf& b) {
    for (int e = 0; e < Endpunkte; ++e) {
        for (int c = 0; c < Stoffe; ++c) {
            for (int Slot = 0; Slot < Slots_Plateau; ++Slot) {
                const auto x = a.Speicher.Reihe_Plateautiefe(e, 0, c, Slot);
                const auto y = b.Speicher.Reihe_Plateautiefe(e, 0, c, Slot);
                ASSERT_TRUE(std::equal(x.begin(), x.end(), y.begin())) << "tillage depth " << e << c << Slot;
            }
            for (int Slot = 0; Slot < Slots_Boden; ++Slot) {
                const auto x = a.Speicher.Reihe_Bodentiefe(e, 0, c, Slot);
                const auto y = b.Speicher.Reihe_Bodentiefe(e, 0, c, Slot);
                ASSERT_TRUE(std::equal(x.begin(), x.end(), y.begin())) << "soil depth " << e << c << Slot;
            }
        }
    }
}

TEST_P(Anpassung, by_a_power_of_two_equals_a_run_with_the_new_dose) {
    Lauf l = Fall(GetParam()).Dosis("500").rechne();
    const Lauf neu = Fall(GetParam()).Dosis("2000").rechne();
    Werte_anpassen(l, 0, 4, 4);
    erwarte_gleiche_Reihen(l, neu);
    EXPECT_EQ(l.Speicher.Maximum_Bodentiefe, neu.Speicher.Maximum_Bodentiefe);
    EXPECT_EQ(l.Speicher.Maximum_Plateautiefe, neu.Speicher.Maximum_Plateautiefe);
    EXPECT_EQ(l.Speicher.Jahresmaximum, neu.Speicher.Jahresmaximum);
    EXPECT_EQ(l.Speicher.TWA_Maximum, neu.Speicher.TWA_Maximum);
}

TEST_P(Anpassung, the_background_follows_on_its_own) {
    Lauf l = Fall(GetParam()).Dosis("500").rechne();
    const Lauf neu = Fall(GetParam()).Dosis("2000").rechne();
    skaliere_Plateau(l, 0, 4);
    EXPECT_EQ(l.Speicher.Plateauwert, neu.Speicher.Plateauwert);
    EXPECT_EQ(l.Speicher.Plateauzuwachs, neu.Speicher.Plateauzuwachs);
    EXPECT_EQ(l.Speicher.Plateautext, neu.Speicher.Plateautext);
}

INSTANTIATE_TEST_SUITE_P(Kinetik, Anpassung, ::testing::Values(SFO, DFOP, FOMC, HS));

TEST(Werte_anpassen, the_two_depths_have_a_factor_each) {
    Lauf l = Lauf_bauer().rechne();
    const float B = Boden(l, 100);
    const float P = Plateau(l, 100);
    const float TWA = l.Speicher.TWA_Maximum[0][0][0][1];
    const float Peak = l.Speicher.Jahresmaximum[0][0][0][3];
    Werte_anpassen(l, 0, 2, 0.5);
    EXPECT_EQ(Boden(l, 100), 2 * B);
    EXPECT_EQ(Plateau(l, 100), P / 2);
    EXPECT_EQ(l.Speicher.TWA_Maximum[0][0][0][1], 2 * TWA);
    EXPECT_EQ(l.Speicher.Jahresmaximum[0][0][0][3], Peak / 2);
}

TEST(Werte_anpassen, integral_background_and_formation_stay) {
    Lauf l = Fall(FOMC).rechne();
    const std::vector<float> Integral(l.Speicher.Integral_Bodentiefe(0, 0, 0).begin(),
                                      l.Speicher.Integral_Bodentiefe(0, 0, 0).end());
    const auto Plateauwert = l.Speicher.Plateauwert;
    const auto Bildung = l.Speicher.Bildung_Bodentiefe;
    Werte_anpassen(l, 0, 4, 4);
    EXPECT_TRUE(std::equal(Integral.begin(), Integral.end(), l.Speicher.Integral_Bodentiefe(0, 0, 0).begin()));
    EXPECT_EQ(l.Speicher.Plateauwert, Plateauwert);
    EXPECT_EQ(l.Speicher.Bildung_Bodentiefe, Bildung);
}

// A year, yet it is scaled with the rest.
TEST(Werte_anpassen, the_year_of_the_vertex_is_scaled_as_well) {
    Lauf l = Lauf_bauer().rechne();
    l.Speicher.Plateaujahr[0][0][0] = 12;
    Werte_anpassen(l, 0, 1, 2);
    EXPECT_EQ(l.Speicher.Plateaujahr[0][0][0], 24);
}

TEST(Werte_anpassen, days_stay) {
    Lauf l = Lauf_bauer().regelmaessige_Gaben(3, 20).rechne();
    const auto Tage = l.Speicher.Maximumtag_Bodentiefe;
    const auto Start = l.Speicher.TWA_Starttag;
    Werte_anpassen(l, 0, 2, 2);
    EXPECT_EQ(l.Speicher.Maximumtag_Bodentiefe, Tage);
    EXPECT_EQ(l.Speicher.TWA_Starttag, Start);
}

TEST(Werte_anpassen, the_other_studies_stay_byte_for_byte) {
    Lauf l = Lauf_bauer().rechne();
    ASSERT_TRUE(Lauf_bauer().Studie(1).rechne_in(l).gelungen());
    const std::string davor = Abbild(l, 0);
    Werte_anpassen(l, 1, 3, 3);
    EXPECT_TRUE(Abbild(l, 0) == davor);
}

// A run with such a dose is refused; the short way must not let it through either.
TEST(Werte_anpassen, a_factor_that_leaves_the_range_of_numbers_is_refused) {
    Lauf l = Lauf_bauer().rechne();
    EXPECT_TRUE(lassen_sich_anpassen(l.Speicher, 0, 1E30, 1E30));
    for (const auto& [Boden, Plateau] : {std::pair{1E39, 1E39}, {1E39, 1.0}, {1.0, 1E39}}) {
        EXPECT_FALSE(lassen_sich_anpassen(l.Speicher, 0, Boden, Plateau));
        EXPECT_THROW(Werte_anpassen(l, 0, Boden, Plateau), Laufzeitfehler);
    }
    EXPECT_EQ(nicht_endlicher_Speicher(l, 0), "");
}

// The background of slow decay lies far above the peaks of ten years.
TEST(skaliere_Plateau, a_factor_that_leaves_the_range_of_numbers_is_refused) {
    Lauf l = Lauf_bauer().rechne();
    EXPECT_TRUE(laesst_sich_skalieren(l, 0, 1000));
    EXPECT_FALSE(laesst_sich_skalieren(l, 0, 1E39));  // for the peaks
    l.Speicher.Plateauwert[0][0][0] = 1E38F;
    EXPECT_FALSE(laesst_sich_skalieren(l, 0, 1000));
    EXPECT_THROW(skaliere_Plateau(l, 0, 1000), Laufzeitfehler);
    EXPECT_EQ(nicht_endlicher_Speicher(l, 0), "");
}

TEST(skaliere_Plateau, pore_water_of_the_closed_series_stays) {
    Lauf l = Lauf_bauer().nach_SFO(0.003).rechne();
    l.Speicher.Plateauwert[1][0][0] = 7;
    const float Wert = l.Speicher.Plateauwert[0][0][0];
    skaliere_Plateau(l, 0, 2);
    EXPECT_EQ(l.Speicher.Plateauwert[0][0][0], 2 * Wert);
    EXPECT_EQ(l.Speicher.Plateauwert[1][0][0], 7);
}

}  // namespace
}  // namespace varnok::probe
