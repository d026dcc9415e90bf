// Results for another dose without a run.

#include "exposure/anpassung.h"

#include <gtest/gtest.h>

#include "support/darstellungsprobe.h"

namespace varnok::probe {
namespace {

// Slow decay, so that no value is small enough to lose digits.
Lauf_bauer Fall(Kinetikart Kinetik) {
    Lauf_bauer b;
    b.nach_SFO(0.003).nach_DFOP(0.002, 0.001, 0.6).nach_FOMC(0.7, 20).nach_HS(0.003, 0.002, 60);
    b.Felder.Parameter.Kinetik[0][0] = Kinetik;
    b.Schema(zwei_in_Folge).nach_DFOP(0.003, 0.002, 0.5, 1).nach_SFO(0.002, 2).regelmaessige_Gaben(2, 40).Rueckstaende(2);
    return b;
}

std::shared_ptr<const Ergebnis> rechne(const Lauf_bauer& b) { return gerechnet(b).Studien[0]; }

std::shared_ptr<const Ergebnis> skaliert(const Lauf_bauer& alt, const Lauf_bauer& neu, double Faktor) {
    return Werte_anpassen(*rechne(alt), std::make_shared<const Eingabe>(neu.Felder), Faktor);
}

void erwarte_gleich(const Endpunktergebnis& a, const Endpunktergebnis& b) {
    EXPECT_EQ(a.Maximum_Bodentiefe, b.Maximum_Bodentiefe);
    EXPECT_EQ(a.Maximumtag_Bodentiefe, b.Maximumtag_Bodentiefe);
    EXPECT_EQ(a.Maximum_Plateautiefe, b.Maximum_Plateautiefe);
    EXPECT_EQ(a.Jahresmaximum, b.Jahresmaximum);
    EXPECT_EQ(a.Plateauwert, b.Plateauwert);
    EXPECT_EQ(a.Plateauzuwachs, b.Plateauzuwachs);
    EXPECT_EQ(a.Plateautext, b.Plateautext);
    EXPECT_EQ(a.Plateauprozent, b.Plateauprozent);
    ASSERT_EQ(a.TWA.size(), b.TWA.size());
    for (std::size_t j = 0; j < a.TWA.size(); ++j) {
        EXPECT_EQ(a.TWA[j].Maximum, b.TWA[j].Maximum) << j;
        EXPECT_EQ(a.TWA[j].Starttag, b.TWA[j].Starttag) << j;
        EXPECT_EQ(a.TWA[j].aktuell, b.TWA[j].aktuell) << j;
    }
    EXPECT_EQ(a.Reihe_Bodentiefe, b.Reihe_Bodentiefe);
    EXPECT_EQ(a.Reihe_Plateautiefe, b.Reihe_Plateautiefe);
    EXPECT_EQ(a.Integral_Bodentiefe, b.Integral_Bodentiefe);
}

class Skalierung : public ::testing::TestWithParam<Kinetikart> {};

TEST_P(Skalierung, by_a_power_of_two_equals_a_run_with_the_new_dose) {
    const auto neu = rechne(Fall(GetParam()).Dosis("2000"));
    const auto r = skaliert(Fall(GetParam()).Dosis("500"), Fall(GetParam()).Dosis("2000"), 4);
    ASSERT_TRUE(r);
    for (int c = 0; c < 3; ++c) {
        for (const Endpunktart e : alle_Endpunkte) erwarte_gleich(r->Werte(e, c), neu->Werte(e, c));
    }
    EXPECT_EQ(r->Tagesrate, neu->Tagesrate);
    EXPECT_EQ(r->Wirksame_Rate, neu->Wirksame_Rate);
    EXPECT_EQ(r->erste_Rate, neu->erste_Rate);
    EXPECT_EQ(*r->Vorgabe, *neu->Vorgabe);
}

INSTANTIATE_TEST_SUITE_P(Kinetik, Skalierung, ::testing::Values(SFO, DFOP, FOMC, HS));

TEST(Skalierung, by_interception_equals_a_run_too) {
    const Lauf_bauer neu = Lauf_bauer().nach_SFO(0.002).Dosis("800", "50");
    const auto r = skaliert(Lauf_bauer().nach_SFO(0.002).Dosis("800", "0"), neu, 0.5);
    ASSERT_TRUE(r);
    erwarte_gleich(r->Werte(Gesamtgehalt, 0), rechne(neu)->Werte(Gesamtgehalt, 0));
    erwarte_gleich(r->Werte(Porenwasser, 0), rechne(neu)->Werte(Porenwasser, 0));
}

// Three times a rounded value is not the rounded triple: such a change is a run.
TEST(Skalierung, by_another_factor_is_left_to_a_run) {
    EXPECT_FALSE(skaliert(Lauf_bauer().nach_SFO(0.002).Dosis("500"), Lauf_bauer().nach_SFO(0.002).Dosis("1500"), 3));
}

TEST(Skalierung, by_a_factor_that_the_doses_do_not_have_is_left_to_a_run) {
    EXPECT_FALSE(skaliert(Lauf_bauer().nach_SFO(0.002).Dosis("500"), Lauf_bauer().nach_SFO(0.002).Dosis("1500"), 2));
    EXPECT_FALSE(skaliert(Lauf_bauer().nach_SFO(0.002).Dosis("500"), Lauf_bauer().nach_SFO(0.002).Dosis("0"), 0));
}

// After ten years nothing is left but numbers that have lost digits.
TEST(Skalierung, of_a_series_that_leaves_the_normal_range_is_left_to_a_run) {
    EXPECT_FALSE(skaliert(Lauf_bauer().nach_SFO(0.02).Dosis("500"), Lauf_bauer().nach_SFO(0.02).Dosis("1000"), 2));
    EXPECT_FALSE(skaliert(Lauf_bauer().nach_SFO(0.002).Dosis("2E-25"), Lauf_bauer().nach_SFO(0.002).Dosis("4E-25"), 2));
}

TEST(Skalierung, of_an_irregular_pattern_is_left_to_a_run) {
    const Lauf_bauer alt = Lauf_bauer().nach_SFO(0.002).Dosis("500").Termine({{"1", "3", "5", "0"}, {"1", "4", "5", "0"}});
    EXPECT_FALSE(skaliert(alt, Lauf_bauer(alt).Dosis("1000"), 2));
}

}  // namespace
}  // namespace varnok::probe
