#include <gtest/gtest.h>

#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;
using probe::Linien;
using probe::setze_Boden;
using probe::setze_Maximumtag;
using probe::setze_Plateau;
using probe::setze_Plateauwert;
using probe::setze_TWA;
using probe::Zahlen_x;
using probe::Zahlen_y;
using probe::Zeitachse;

constexpr double genau = 1E-12;

void gleich(const Linie& l, Punkt von, Punkt bis, int Farbe, int Breite) {
    EXPECT_NEAR(l.von.x, von.x, genau);
    EXPECT_NEAR(l.von.y, von.y, genau);
    EXPECT_NEAR(l.bis.x, bis.x, genau);
    EXPECT_NEAR(l.bis.y, bis.y, genau);
    EXPECT_EQ(l.Farbe, Farbe);
    EXPECT_EQ(l.Breite, Breite);
}

// Two days long, from 4 down to 1; the largest average over one day is 3, from day 0 on.
Handergebnis zwei_Tage() {
    Handergebnis h;
    setze_Boden(h, {4, 2, 1});
    setze_TWA(h, 1, 3, 0);
    return h;
}

Diagrammbereiche bis_Tag(int Ende, int Start = 0) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Start.fill(Start);
    b.X_Ende.fill(Ende);
    return b;
}

TEST(Einzeldiagramm, line_by_line) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = bis_Tag(2);
    const std::vector<Linie> Strich = erstelle_Diagramm(h, b, 0, 0).Liste.Linien;
    ASSERT_EQ(Strich.size(), 2U + 5 + 21 + 41 + 5 + 9 + 41 + 2 + 3);
    std::size_t i = 0;
    gleich(Strich[i++], {0, 0}, {2, 0}, 0, 1);
    gleich(Strich[i++], {0, 0}, {0, 4}, 0, 1);
    for (int t = 0; t < 5; ++t) gleich(Strich[i++], {0.5 * t, 0}, {0.5 * t, -4.0 / 30}, 0, 1);
    for (int t = 0; t < 21; ++t) gleich(Strich[i++], {0.1 * t, 0}, {0.1 * t, -4.0 / 60}, 0, 1);
    for (int t = 0; t < 41; ++t) gleich(Strich[i++], {0.05 * t, 0}, {0.05 * t, -4.0 / 90}, 0, 1);
    for (int t = 0; t < 5; ++t) gleich(Strich[i++], {0, 1.0 * t}, {-2.0 / 50, 1.0 * t}, 0, 1);
    for (int t = 0; t < 9; ++t) gleich(Strich[i++], {0, 0.5 * t}, {-2.0 / 50, 0.5 * t}, 0, 1);
    for (int t = 0; t < 41; ++t) gleich(Strich[i++], {0, 0.1 * t}, {-2.0 / 100, 0.1 * t}, 0, 1);
    gleich(Strich[i++], {0, 4}, {1, 2}, 1, 2);
    gleich(Strich[i++], {1, 2}, {2, 1}, 1, 2);
    gleich(Strich[i++], {0, 3}, {1, 3}, 9, 1);
    gleich(Strich[i++], {1, 0}, {1, 3}, 9, 1);
    gleich(Strich[i++], {0, 0}, {0, 3}, 9, 1);
}

TEST(Einzeldiagramm, text_by_text) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = bis_Tag(2);
    const std::vector<Schriftzug> Texte = erstelle_Diagramm(h, b, 0, 0).Liste.Texte;
    const std::vector<std::string> erwartet = {"0", "0.5", "1", "1.5", "2", "0", "1", "2", "3", "4"};
    ASSERT_EQ(Texte.size(), erwartet.size());
    for (std::size_t i = 0; i < Texte.size(); ++i) {
        const auto k = static_cast<double>(i);
        EXPECT_EQ(Texte[i].Inhalt, erwartet[i]);
        EXPECT_NEAR(Texte[i].Ort.x, i < 5 ? 0.5 * k - 2.0 / 50 : -2.0 / 12, genau);
        EXPECT_NEAR(Texte[i].Ort.y, i < 5 ? -4.0 / 30 : 4.0 / 50 + (k - 5), genau);
        EXPECT_EQ(Texte[i].Groesse, 10);
        EXPECT_EQ(Texte[i].Farbe, 0);
        EXPECT_FALSE(Texte[i].fett || Texte[i].kursiv || Texte[i].einpassen);
    }
}

TEST(Einzeldiagramm, margins_are_shares_of_the_data) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = bis_Tag(2);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(d.Liste.System, (Koordinaten{-0.2, 4.4, 2.06, -0.5}));
    EXPECT_TRUE(d.Liste.Kaesten.empty());
    EXPECT_EQ(d.Nummer, 0);
    EXPECT_FALSE(d.Zusammenfassung);
}

TEST(Einzeldiagramm, drawing_twice_gives_the_same) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = bis_Tag(2);
    const Diagramm erstes = erstelle_Diagramm(h, b, 0, 0);
    const Diagramm zweites = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(erstes.Liste, zweites.Liste);
    EXPECT_EQ(erstes.Datei.Zeilen, zweites.Datei.Zeilen);
}

// Time axis

TEST(Einzeldiagramm_Zeitachse, makes_room_for_the_window_behind_the_peak_and_never_shrinks) {
    Handergebnis h;
    setze_Maximumtag(h, 200);
    setze_TWA(h, 28, 0, 0);
    Diagrammbereiche b = bis_Tag(100);
    erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(b.X_Ende[0], 228);
    setze_Maximumtag(h, 10);
    erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(b.X_Ende[0], 228);
}

TEST(Einzeldiagramm_Zeitachse, stops_at_the_last_day_of_the_run) {
    Handergebnis h;
    setze_Maximumtag(h, 3640);
    setze_TWA(h, 28, 0, 0);
    Diagrammbereiche b = bis_Tag(100);
    EXPECT_EQ(Zeitachse(erstelle_Diagramm(h, b, 0, 0)), (Punkt{0, 3649}));
    EXPECT_EQ(b.X_Ende[0], 3649);
}

TEST(Einzeldiagramm_Zeitachse, a_manual_end_of_3650_becomes_3649) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 0, "0", "3650"));
    erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(b.X_Ende[0], 3649);
}

TEST(Einzeldiagramm_Zeitachse, a_manual_end_before_peak_and_window_is_overruled) {
    Handergebnis h;
    setze_Maximumtag(h, 90);
    setze_TWA(h, 28, 0, 0);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 0, "0", "50"));
    erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(b.X_Ende[0], 118);
}

TEST(Einzeldiagramm_Zeitachse, the_background_view_shows_ten_years_whatever_was_chosen) {
    Handergebnis h;
    h.Sicht.PEC_Typ = Hintergrund;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 0, "0", "50"));
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(Zeitachse(d), (Punkt{0, 3649}));
    EXPECT_EQ(b.X_Ende[0], 3649);
    EXPECT_EQ(Zahlen_x(d), (std::vector<std::string>{"0", "500", "1000", "1500", "2000", "2500", "3000", "3500"}));
    EXPECT_EQ(Linien(d, 1, 2).size(), 3649U);
    EXPECT_TRUE(Linien(d, 9, 1).empty());  // no averaging window there
    EXPECT_EQ(d.Legendeninhalt.Gruppen.at(0).Eintraege.at(1).Text, "TWA  (1 d)");
}

TEST(Einzeldiagramm_Zeitachse, the_end_after_a_view_click_is_365) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = Startbereiche(jaehrlich);
    setze_Bereiche_nach_Ansicht(b, jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(Zeitachse(d), (Punkt{0, 365}));
    EXPECT_EQ(Zahlen_x(d), (std::vector<std::string>{"0", "50", "100", "150", "200", "250", "300", "350"}));
    EXPECT_EQ(Linien(d, 1, 2).size(), 365U);
}

TEST(Einzeldiagramm_Zeitachse, a_late_start_starts_all_ticks_there) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = bis_Tag(100, 13);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(Zeitachse(d), (Punkt{13, 100}));
    EXPECT_EQ(Zahlen_x(d), (std::vector<std::string>{"13", "23", "33", "43", "53", "63", "73", "83", "93"}));
    EXPECT_EQ(d.Liste.System, (Koordinaten{13 - 8.7, 4.4, 13 + 1.03 * 87, -0.5}));
    EXPECT_EQ(Linien(d, 1, 2).size(), 87U);
    EXPECT_EQ(Linien(d, 1, 2).front().von, (Punkt{13, 0}));
}

// The bounds round half to even: 0.5 + 1 is 2, 10.5 is 10.
TEST(Einzeldiagramm_Zeitachse, broken_bounds_round_to_whole_days) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 0, "0.5", "10.5"));
    const std::vector<Linie> Kurve = Linien(erstelle_Diagramm(h, b, 0, 0), 1, 2);
    EXPECT_EQ(Kurve.front().von, (Punkt{1, 2}));
    EXPECT_EQ(Kurve.back().bis, (Punkt{10, 0}));
}

class Leerer_Bereich : public testing::TestWithParam<const char*> {};

TEST_P(Leerer_Bereich, shows_axes_and_a_line_of_text_only) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 0, GetParam(), "100"));
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(d.Liste.Linien.size(), 2U);
    ASSERT_EQ(d.Liste.Texte.size(), 1U);
    EXPECT_EQ(d.Liste.Texte[0].Inhalt, "Start is not before the end of the axis");
    EXPECT_GT(d.Liste.System.Breite(), 0);
    EXPECT_GT(d.Liste.Texte[0].Ort.x, d.Liste.System.links);
    EXPECT_TRUE(d.Kurven.empty());
    EXPECT_EQ(d.Datei.Zeilen, (std::vector<std::string>{"Time (d)\tPEC (mg/kg)"}));
    EXPECT_EQ(d.Titel.Text, "Annual concentration of Wheat Study: field");
}

INSTANTIATE_TEST_SUITE_P(Starts, Leerer_Bereich, testing::Values("100", "101", "3649", "5000", "1E9"));

TEST(Einzeldiagramm_Zeitachse, a_negative_start_is_day_0) {
    Handergebnis h = zwei_Tage();
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 0, "-1E9", "100"));
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(Zeitachse(d), (Punkt{0, 100}));
    EXPECT_EQ(b.X_Start[0], -1E9);  // stays as typed
    EXPECT_LT(d.Liste.Linien.size(), 500U);
}

// Height

TEST(Einzeldiagramm_Hoehe, nothing_applied_gives_an_axis_from_0_to_1) {
    Handergebnis h;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_EQ(d.Liste.Linien[1].bis, (Punkt{0, 1}));
    EXPECT_EQ(Zahlen_y(d), (std::vector<std::string>{"0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1"}));
}

TEST(Einzeldiagramm_Hoehe, the_top_number_of_a_decimal_axis_is_drawn) {
    for (const auto& [Maximum, Zahl] : {std::pair{0.00148F, "0.0015"}, {0.00066F, "0.0007"}, {0.0097F, "0.01"}}) {
        Handergebnis h;
        setze_Boden(h, {Maximum});
        Diagrammbereiche b = Startbereiche(jaehrlich);
        EXPECT_EQ(Zahlen_y(erstelle_Diagramm(h, b, 0, 0)).back(), Zahl);
    }
}

TEST(Einzeldiagramm_Hoehe, very_small_numbers_have_an_exponent) {
    Handergebnis h;
    setze_Boden(h, {0.00018F});
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(Zahlen_y(erstelle_Diagramm(h, b, 0, 0)), (std::vector<std::string>{"0", "5E-05", "0.0001", "0.00015", "0.0002"}));
}

TEST(Einzeldiagramm_Hoehe, is_that_of_the_view) {
    Handergebnis h;
    setze_Boden(h, {2});
    setze_Plateau(h, {7});
    setze_Plateauwert(h, 1.9F);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const double erwartet[3] = {2, 7, 4};
    for (int Art = 0; Art < 3; ++Art) {
        h.Sicht.PEC_Typ = static_cast<PEC_Ansicht>(Art);
        EXPECT_EQ(erstelle_Diagramm(h, b, 0, 0).Liste.Linien[1].bis.y, erwartet[Art]) << Art;
    }
}

// A manual range does not change the height: the maximum may lie outside.
TEST(Einzeldiagramm_Hoehe, stays_that_of_the_whole_run_in_a_manual_range) {
    Handergebnis h;
    setze_Boden(h, {9, 1, 1, 1});
    Diagrammbereiche b = bis_Tag(50, 2);
    EXPECT_EQ(erstelle_Diagramm(h, b, 0, 0).Liste.Linien[1].bis, (Punkt{2, 9}));
}

TEST(Einzeldiagramm_Hoehe, is_that_of_its_own_compound_only) {
    Handergebnis h;
    h.Felder.Berechnungsmodus = ein_Metabolit;
    setze_Boden(h, {9}, 0);
    setze_Boden(h, {2}, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(erstelle_Diagramm(h, b, 2, 0).Liste.Linien[1].bis.y, 2);
}

// Curve

TEST(Einzeldiagramm_Kurve, is_the_series_of_the_view) {
    Handergebnis h;
    setze_Boden(h, {4, 2, 1});
    setze_Plateau(h, {1, 5, 3});
    setze_Plateauwert(h, 0.1F);
    const std::vector<std::vector<double>> erwartet = {{4, 2, 1}, {1, 5, 3}, {4 + 0.1F, 2 + 0.1F, 1 + 0.1F}};
    for (int Art = 0; Art < 3; ++Art) {
        h.Sicht.PEC_Typ = static_cast<PEC_Ansicht>(Art);
        Diagrammbereiche b = bis_Tag(2);
        const std::vector<Linie> Kurve = Linien(erstelle_Diagramm(h, b, 0, 0), 1, 2);
        for (std::size_t t = 0; t < 2; ++t) {
            EXPECT_EQ(Kurve.at(t).von.y, erwartet[static_cast<std::size_t>(Art)][t]) << Art;
            EXPECT_EQ(Kurve.at(t).bis.y, erwartet[static_cast<std::size_t>(Art)][t + 1]) << Art;
        }
    }
}

TEST(Einzeldiagramm_Kurve, is_that_of_endpoint_and_study) {
    auto h = probe::Handergebnis_Studien(3);
    setze_Boden(h, {4}, 0, 2, Gesamtgehalt);
    setze_Boden(h, {6}, 0, 2, Porenwasser);
    Diagrammbereiche b = bis_Tag(2);
    EXPECT_EQ(Linien(erstelle_Diagramm(h, b, 0, 2), 1, 2)[0].von.y, 4);
    h.Sicht.Endpunkt = Porenwasser;
    EXPECT_EQ(Linien(erstelle_Diagramm(h, b, 0, 2), 1, 2)[0].von.y, 6);
    EXPECT_EQ(Linien(erstelle_Diagramm(h, b, 0, 1), 1, 2)[0].von.y, 0);
}

TEST(Einzeldiagramm_Kurve, has_the_colour_of_the_compound) {
    Handergebnis h;
    const struct {
        int d, Schema, Kurve, TWA;
    } Faelle[] = {{0, 0, 1, 9},  {1, 1, 1, 9}, {2, 1, 2, 10}, {4, 2, 1, 9},  {5, 2, 2, 10},
                  {6, 2, 4, 12}, {8, 3, 1, 9}, {9, 3, 2, 10}, {10, 3, 4, 12}};
    for (const auto& f : Faelle) {
        h.Felder.Berechnungsmodus = static_cast<Stoffschema>(f.Schema);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        const Diagramm d = erstelle_Diagramm(h, b, f.d, 0);
        EXPECT_EQ(Linien(d, f.Kurve, 2).size(), 364U) << f.d;
        EXPECT_EQ(Linien(d, f.TWA, 1).size(), 3U) << f.d;
        const std::vector<Legendeneintrag> Eintraege = d.Legendeninhalt.Gruppen.at(0).Eintraege;
        EXPECT_EQ(Eintraege.at(0), (Legendeneintrag{"PEC", {f.Kurve, 2}})) << f.d;
        EXPECT_EQ(Eintraege.at(1), (Legendeneintrag{"TWA  (1 d)", {f.TWA, 1}})) << f.d;
        EXPECT_EQ(d.Kommentar.Farbe, f.Kurve) << f.d;
    }
}

// A whole scheme

TEST(Alle_Diagramme, come_compound_by_compound_and_the_combined_one_last) {
    Handergebnis h;
    const std::vector<std::vector<int>> erwartet = {{0}, {1, 2, 3}, {4, 5, 6, 7}, {8, 9, 10, 11}};
    for (int Schema = 0; Schema < 4; ++Schema) {
        h.Felder.Berechnungsmodus = static_cast<Stoffschema>(Schema);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        std::vector<int> Folge;
        for (const Diagramm& d : erstelle_Diagramme(h, b, 0)) Folge.push_back(d.Nummer);
        EXPECT_EQ(Folge, erwartet[static_cast<std::size_t>(Schema)]);
    }
}

}  // namespace
}  // namespace varnok
