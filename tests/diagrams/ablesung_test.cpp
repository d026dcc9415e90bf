#include <gtest/gtest.h>

#include <cmath>

#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;
using probe::setze_Boden;

TEST(Ablesung, day_and_value_under_the_point) {
    Handergebnis h;
    setze_Boden(h, {4, 2, 1});
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    const auto a = lies_ab(d, {1.4, 3.9});
    ASSERT_TRUE(a);
    EXPECT_EQ(a->Name, "parent");
    EXPECT_EQ(a->Tag, 1);
    EXPECT_EQ(a->Wert, 2);
    EXPECT_EQ(a->Farbe, 1);
}

TEST(Ablesung, the_nearest_of_several_curves) {
    Handergebnis h;
    h.Felder.Berechnungsmodus = ein_Metabolit;
    setze_Boden(h, {4, 2, 1}, 0);
    setze_Boden(h, {0, 1, 1}, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_mehrfach(h, b, 3, 0, 0);
    EXPECT_EQ(lies_ab(d, {1, 1.6})->Name, "parent");
    EXPECT_EQ(lies_ab(d, {1, 1.4})->Name, "first metabolite");
    EXPECT_EQ(lies_ab(d, {2, 0.1})->Name, "parent");  // both the same: the first
}

TEST(Ablesung, in_a_summary_the_study) {
    auto h = probe::Handergebnis_Studien(2);
    setze_Boden(h, {4, 2}, 0, 0);
    setze_Boden(h, {6, 5}, 0, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_Zusammenfassung(h, b, 0, 0);
    EXPECT_EQ(lies_ab(d, {1, 10})->Name, "study 1");
    EXPECT_EQ(lies_ab(d, {1, 10})->Wert, 5);
    EXPECT_EQ(lies_ab(d, {1, 0})->Name, "study 0");
}

TEST(Ablesung, includes_the_background_in_the_accumulation) {
    Handergebnis h;
    setze_Boden(h, {4, 2});
    probe::setze_Plateauwert(h, 0.5F);
    h.Sicht.PEC_Typ = Anreicherung;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(lies_ab(erstelle_Diagramm(h, b, 0, 0), {1, 0})->Wert, 2.5F);
}

TEST(Ablesung, nothing_outside_the_days_shown) {
    Handergebnis h;
    setze_Boden(h, {4, 2, 1});
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Start[0] = 10;
    b.X_Ende[0] = 20;
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_FALSE(lies_ab(d, {9, 0}));
    EXPECT_TRUE(lies_ab(d, {10, 0}));
    EXPECT_TRUE(lies_ab(d, {20.4, 0}));
    EXPECT_FALSE(lies_ab(d, {21, 0}));
    EXPECT_FALSE(lies_ab(d, {std::nan(""), 0}));
    EXPECT_FALSE(lies_ab(Diagramm(), {0, 0}));
}

TEST(Linienzuege, a_curve_is_one_pull) {
    Handergebnis h;
    setze_Boden(h, {4, 2, 1});
    probe::setze_TWA(h, 20, 1, 5);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    std::size_t Strecken = 0;
    std::size_t Kurven = 0;
    for (const Linienzug& z : verbinde_Linien(d.Liste.Linien)) {
        Strecken += z.Punkte.size() - 1;
        if (z.Breite != 2) continue;
        ++Kurven;
        EXPECT_EQ(z.Farbe, 1);
        EXPECT_EQ(z.Punkte.size(), 365U);
    }
    EXPECT_EQ(Kurven, 1U);
    EXPECT_EQ(Strecken, d.Liste.Linien.size());
}

TEST(Linienzuege, colour_width_and_gaps_part_them) {
    const std::vector<Linie> Linien = {
        {{0, 0}, {1, 1}, 1, 2}, {{1, 1}, {2, 0}, 1, 2}, {{2, 0}, {3, 0}, 2, 2}, {{3, 0}, {4, 0}, 2, 1}, {{5, 0}, {6, 0}, 2, 1}};
    const std::vector<Linienzug> Zuege = verbinde_Linien(Linien);
    ASSERT_EQ(Zuege.size(), 4U);
    EXPECT_EQ(Zuege[0].Punkte, (std::vector<Punkt>{{0, 0}, {1, 1}, {2, 0}}));
    EXPECT_EQ(Zuege[3].Punkte, (std::vector<Punkt>{{5, 0}, {6, 0}}));
}

// The diagrams of a calculated run: everything finite, curves below the top, the window's area that of the curve over it.
TEST(Diagramme_eines_Laufs, stand_on_the_results) {
    probe::Darstellungsprobe h = probe::gerechnet(probe::Lauf_bauer().Schema(zwei_in_Folge).regelmaessige_Gaben(3, 14));
    h.Sicht.TWA_Laenge = 6;
    for (int Art = 0; Art < 3; ++Art) {
        h.Sicht.PEC_Typ = static_cast<PEC_Ansicht>(Art);
        Diagrammbereiche b = Startbereiche(static_cast<PEC_Ansicht>(Art));
        for (const Diagramm& d : erstelle_Diagramme(h, b, 0)) {
            const double Hoehe = d.Liste.Linien[1].bis.y;
            for (const Linie& s : d.Liste.Linien) {
                EXPECT_TRUE(std::isfinite(s.von.x) && std::isfinite(s.von.y) && std::isfinite(s.bis.x) && std::isfinite(s.bis.y));
                EXPECT_LE(std::max(s.von.y, s.bis.y), Hoehe);
            }
        }
    }
}

TEST(Diagramme_eines_Laufs, the_window_covers_as_much_as_the_curve_over_it) {
    probe::Darstellungsprobe h = probe::gerechnet({});
    h.Sicht.TWA_Laenge = 6;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    const Linie oben = probe::Linien(d, 9, 1).at(0);
    EXPECT_EQ(oben.bis.x - oben.von.x, 28);
    double Flaeche = 0;
    for (const Linie& s : probe::Linien(d, 1, 2)) {
        if (s.von.x >= oben.von.x && s.bis.x <= oben.bis.x) Flaeche += (s.von.y + s.bis.y) / 2;
    }
    EXPECT_NEAR(oben.von.y * 28, Flaeche, 1E-5 * Flaeche);
}

// The catch is two days wide and 0.5 high.
TEST(Ablesung, near_a_peak_the_peak_itself) {
    Handergebnis h;
    setze_Boden(h, {1, 1, 1, 4, 3, 2, 1});
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    const Punkt Fang = {2, 0.5};
    EXPECT_EQ(lies_ab(d, {4.4, 4.1}, Fang)->Tag, 3);
    EXPECT_EQ(lies_ab(d, {4.4, 4.1}, Fang)->Wert, 4);
    EXPECT_EQ(lies_ab(d, {4.4, 4.1})->Tag, 4);        // without a catch
    EXPECT_EQ(lies_ab(d, {4.4, 3.4}, Fang)->Tag, 4);  // too far below
    EXPECT_EQ(lies_ab(d, {5.1, 4}, Fang)->Tag, 5);    // too far behind
    EXPECT_EQ(lies_ab(d, {1, 1}, Fang)->Tag, 1);      // level, no peak
}

TEST(Ablesung, the_nearer_one_of_two_peaks) {
    Handergebnis h;
    h.Felder.Berechnungsmodus = ein_Metabolit;
    setze_Boden(h, {4, 2, 1}, 0);
    setze_Boden(h, {0, 3.8F, 1}, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_mehrfach(h, b, 3, 0, 0);
    EXPECT_EQ(lies_ab(d, {0.2, 3.9}, {2, 1})->Name, "parent");
    EXPECT_EQ(lies_ab(d, {0.8, 3.9}, {2, 1})->Name, "first metabolite");
}

TEST(Ablesung, tells_significant_digits) {
    Handergebnis h;
    setze_Boden(h, {4, 0.000263F, 12.34567F});
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(Ablesungstext(d, *lies_ab(d, {1, 0})), "day 1: 0.000263 mg/kg, parent");
    EXPECT_EQ(Ablesungstext(d, *lies_ab(d, {2, 0})), "day 2: 12.35 mg/kg, parent");
    EXPECT_EQ(Ablesungstext(d, *lies_ab(d, {0, 0})), "day 0: 4 mg/kg, parent");
}

}  // namespace
}  // namespace varnok
