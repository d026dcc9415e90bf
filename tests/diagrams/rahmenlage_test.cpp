// Where frames stand on a diagram: on a surface of 1 by 1, y up, with room from edge to edge.

#include "diagrams/rahmenlage.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

constexpr int Kurve = 1;
constexpr Flaechenort daheim = {0.6, 0.3};

struct Feldprobe {
    Feldprobe() { Liste.System = {0, 1, 1, 0}; }
    // A line between places from the upper left corner.
    void Strich(double x0, double y0, double x1, double y1, int Farbe = Kurve, int Breite = 2) {
        Liste.Linien.push_back({{x0, 1 - y0}, {x1, 1 - y1}, Farbe, Breite});
    }
    Rahmenfeld Feld() const { return {Liste, {0, 0, 1, 1}, Texte, 0, 0}; }
    Rahmenstand stelle(const Rahmenwunsch& w) const { return ordne_Rahmen(Feld(), {w}).front(); }

    Zeichenliste Liste;
    std::vector<Flaechenrechteck> Texte;
};

Rahmenwunsch kleiner() { return {0.2, 0.2, daheim}; }

void steht(const Rahmenstand& s, Rahmenplatz Platz, double links, double oben) {
    EXPECT_EQ(s.Platz, Platz);
    EXPECT_DOUBLE_EQ(s.Ort.links, links);
    EXPECT_DOUBLE_EQ(s.Ort.oben, oben);
}

TEST(Rahmenlage, home_while_it_covers_nothing) { steht(Feldprobe().stelle(kleiner()), Rahmenplatz::Heimat, 0.6, 0.3); }

// Each place in turn is struck out, the next one is taken: corners before the middles of the edges.
TEST(Rahmenlage, the_first_free_place_in_its_order) {
    Feldprobe f;
    const std::vector<std::pair<Rahmenplatz, Flaechenort>> Folge = {
        {Rahmenplatz::rechts_oben, {0.8, 0}}, {Rahmenplatz::links_oben, {0, 0}}, {Rahmenplatz::rechts_unten, {0.8, 0.8}},
        {Rahmenplatz::links_unten, {0, 0.8}}, {Rahmenplatz::oben, {0.4, 0}},     {Rahmenplatz::rechts, {0.8, 0.4}},
        {Rahmenplatz::unten, {0.4, 0.8}},     {Rahmenplatz::links, {0, 0.4}}};
    f.Strich(0.65, 0.35, 0.66, 0.36);
    for (const auto& [Platz, Ort] : Folge) {
        steht(f.stelle(kleiner()), Platz, Ort.links, Ort.oben);
        f.Strich(Ort.links + 0.1, Ort.oben + 0.1, Ort.links + 0.11, Ort.oben + 0.11);
    }
}

TEST(Rahmenlage, a_line_that_runs_through_without_a_point_inside_is_covered) {
    Feldprobe f;
    f.Strich(0, 0.4, 1, 0.4);
    EXPECT_EQ(f.stelle(kleiner()).Platz, Rahmenplatz::rechts_oben);
}

TEST(Rahmenlage, a_line_that_passes_by_is_not) {
    Feldprobe f;
    f.Strich(0.55, 0.25, 0.55, 0.6);
    f.Strich(0, 0.95, 1, 0.55);  // its ends lie on both sides
    EXPECT_EQ(f.stelle(kleiner()).Platz, Rahmenplatz::Heimat);
}

TEST(Rahmenlage, axes_and_ticks_are_no_curves_and_numbers_are_not_covered) {
    Feldprobe f;
    f.Strich(0, 0.4, 1, 0.4, Schwarz, 1);
    EXPECT_EQ(f.stelle(kleiner()).Platz, Rahmenplatz::Heimat);
    f.Texte = {{0.7, 0.4, 0.05, 0.02}};
    EXPECT_EQ(f.stelle(kleiner()).Platz, Rahmenplatz::rechts_oben);
}

// Home has three points, upper left one, every other place two.
TEST(Rahmenlage, without_a_free_place_the_one_with_the_fewest_points) {
    Feldprobe f;
    for (int i = 0; i < 2; ++i) {
        for (double x = 0.05; x < 1; x += 0.1) {
            for (double y = 0.05; y < 1; y += 0.1) {
                if (i == 1 && x < 0.2 && y < 0.2) continue;
                f.Strich(x, y, x + 0.001, y + 0.001);
            }
        }
    }
    EXPECT_EQ(f.stelle(kleiner()).Platz, Rahmenplatz::links_oben);
}

TEST(Rahmenlage, two_frames_keep_clear_of_each_other) {
    const Feldprobe f;
    const auto Staende = ordne_Rahmen(f.Feld(), {kleiner(), {0.5, 0.5, {0.5, 0.2}}});
    EXPECT_FALSE(Staende[0].Ort.links < Staende[1].Ort.links + 0.5 && Staende[1].Ort.links < Staende[0].Ort.links + 0.2 &&
                 Staende[0].Ort.oben < Staende[1].Ort.oben + 0.5 && Staende[1].Ort.oben < Staende[0].Ort.oben + 0.2);
}

TEST(Rahmenlage, what_was_dragged_stays_and_the_other_gives_way) {
    Feldprobe f;
    f.Strich(0, 0.55, 1, 0.55);
    Rahmenwunsch gezogener = kleiner();
    gezogener.gezogen = {0.6, 0.45};
    const auto Staende = ordne_Rahmen(f.Feld(), {gezogener, kleiner()});
    steht(Staende[0], Rahmenplatz::Heimat, 0.6, 0.45);
    EXPECT_EQ(Staende[1].Platz, Rahmenplatz::rechts_oben);
}

TEST(Rahmenlage, a_place_that_covers_nothing_is_kept_though_home_is_free_again) {
    Rahmenwunsch w = kleiner();
    w.bisheriger = Rahmenplatz::links_unten;
    steht(Feldprobe().stelle(w), Rahmenplatz::links_unten, 0, 0.8);
    Feldprobe f;
    f.Strich(0, 0.9, 1, 0.9);
    EXPECT_EQ(f.stelle(w).Platz, Rahmenplatz::Heimat);
    w.bleibt = true;  // neither view nor record nor size are others
    EXPECT_EQ(f.stelle(w).Platz, Rahmenplatz::links_unten);
}

TEST(Rahmenlage, home_is_moved_inside_the_room) {
    const Feldprobe f;
    Rahmenfeld Feld = f.Feld();
    Feld.Raum = {0.1, 0.4, 0.6, 0.5};
    const Rahmenstand s = ordne_Rahmen(Feld, {kleiner()}).front();
    steht(s, Rahmenplatz::Heimat, 0.5, 0.4);
}

// One that covers no curve at its place leaves it all the same where another frame stands upon it.
TEST(Rahmenlage, what_stands_there_makes_room_for_another_frame) {
    Rahmenwunsch Legende = {0.4, 0.4, {0.6, 0}};
    Legende.bisheriger = Rahmenplatz::Heimat;
    Rahmenwunsch Tafel = {0.4, 0.3, {0.6, 0.6}};
    Tafel.bisheriger = Rahmenplatz::rechts;
    const auto Staende = ordne_Rahmen(Feldprobe().Feld(), {Legende, Tafel});
    steht(Staende[0], Rahmenplatz::Heimat, 0.6, 0);
    steht(Staende[1], Rahmenplatz::Heimat, 0.6, 0.6);
}

TEST(Rahmengroesse, the_first_that_covers_nothing) {
    Feldprobe f;
    const Rahmenwunsch w = {0, 0, {0, 0}};
    const std::vector<Rahmengroesse> Groessen = {{0.6, 0.6}, {0.4, 0.4}, {0.1, 0.1}};
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, Groessen), 0U);
    f.Strich(0.5, 0, 0.5, 1);
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, Groessen), 1U);
}

TEST(Rahmengroesse, frames_stay_clear_of_each_other) {
    const Rahmenwunsch w = {0, 0, {0, 0}};
    EXPECT_EQ(waehle_Groesse(Feldprobe().Feld(), {{0.5, 1, {0, 0}}, w}, {{0.6, 0.6}, {0.4, 0.4}, {0.1, 0.1}}), 1U);
}

TEST(Rahmengroesse, that_for_need_only_where_the_others_hide_too_much) {
    Feldprobe f;
    const Rahmenwunsch w = {0, 0, {0, 0}};
    for (int i = 0; i < 20; ++i) f.Strich(i / 20.0, 0, i / 20.0, 1);
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.9, 0.5}, {0.9, 0.45}, {0.2, 0.2}}), 2U);
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.9, 0.5}, {0.7, 0.5}, {0.2, 0.2}}), 1U);
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.9, 0.4}, {0.8, 0.4}, {0.2, 0.2}}), 0U);
}

TEST(Rahmengroesse, that_for_need_where_all_is_free_with_it) {
    Feldprobe f;
    for (int i = 6; i < 20; ++i) f.Strich(i / 20.0, 0, i / 20.0, 1);
    const Rahmenwunsch w = {0, 0, {0, 0}};
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.9, 0.5}, {0.7, 0.5}, {0.2, 0.2}}), 2U);
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.8, 0.4}, {0.7, 0.4}, {0.2, 0.2}}), 0U);
}

TEST(Rahmengroesse, one_that_was_dragged_covers_what_it_will) {
    Feldprobe f;
    f.Strich(0.5, 0, 0.5, 1);
    const Rahmenwunsch w = {0, 0, {0, 0}, Flaechenort{0.3, 0.3}};
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.6, 0.6}, {0.4, 0.4}, {0.1, 0.1}}), 0U);
    EXPECT_EQ(waehle_Groesse(f.Feld(), {w}, {{0.7, 0.6}, {0.4, 0.4}, {0.1, 0.1}}), 1U);
}

}  // namespace
}  // namespace varnok
