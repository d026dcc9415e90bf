#include <gtest/gtest.h>

#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;
using probe::setze_TWA;

// The lines of the averaging window of a parent's diagram over the days `Start` to `Ende`.
std::vector<Linie> Kasten_von(Handergebnis& h, double Start, double Ende) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Start[0] = Start;
    b.X_Ende[0] = Ende;
    return probe::Linien(erstelle_Diagramm(h, b, 0, 0), 9, 1);
}

Linie waagerecht(double von, double bis, double h) { return {{von, h}, {bis, h}, 9, 1}; }
Linie senkrecht(double Tag, double h) { return {{Tag, 0}, {Tag, h}, 9, 1}; }

TEST(TWA_Kasten, stands_over_its_window) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 10);
    EXPECT_EQ(Kasten_von(h, 0, 100), (std::vector<Linie>{waagerecht(10, 38, 0.75), senkrecht(38, 0.75), senkrecht(10, 0.75)}));
}

TEST(TWA_Kasten, window_before_the_start_of_the_axis_has_no_left_side) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 10);
    EXPECT_EQ(Kasten_von(h, 20, 100), (std::vector<Linie>{waagerecht(20, 38, 0.75), senkrecht(38, 0.75)}));
}

TEST(TWA_Kasten, sides_on_the_start_of_the_axis_are_drawn) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 10);
    EXPECT_EQ(Kasten_von(h, 10, 100), (std::vector<Linie>{waagerecht(10, 38, 0.75), senkrecht(38, 0.75), senkrecht(10, 0.75)}));
    EXPECT_EQ(Kasten_von(h, 38, 100), (std::vector<Linie>{waagerecht(38, 38, 0.75), senkrecht(38, 0.75)}));
}

// The top shrinks to a point at the start.
TEST(TWA_Kasten, window_wholly_before_the_axis_has_no_sides) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 10);
    EXPECT_EQ(Kasten_von(h, 50, 100), (std::vector<Linie>{waagerecht(50, 50, 0.75)}));
}

TEST(TWA_Kasten, window_beyond_the_end_is_cut_at_the_top_but_not_at_the_sides) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 90);
    EXPECT_EQ(Kasten_von(h, 0, 100), (std::vector<Linie>{waagerecht(90, 100, 0.75), senkrecht(118, 0.75), senkrecht(90, 0.75)}));
}

// Without a peak nothing widens the axis to the window.
TEST(TWA_Kasten, window_longer_than_the_axis_has_no_top) {
    Handergebnis h;
    probe::setze_Maximumtag(h, -99);
    setze_TWA(h, 100, 0.75F, 3);
    EXPECT_EQ(Kasten_von(h, 0, 50), (std::vector<Linie>{senkrecht(103, 0.75), senkrecht(3, 0.75)}));
}

TEST(TWA_Kasten, window_as_long_as_the_axis_has_its_top) {
    Handergebnis h;
    probe::setze_Maximumtag(h, -99);
    setze_TWA(h, 50, 0.75F, 0);
    EXPECT_EQ(Kasten_von(h, 0, 50), (std::vector<Linie>{waagerecht(0, 50, 0.75), senkrecht(50, 0.75), senkrecht(0, 0.75)}));
}

TEST(TWA_Kasten, the_accumulation_adds_the_plateau) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 10);
    probe::setze_Plateauwert(h, 0.1F);
    EXPECT_EQ(Kasten_von(h, 0, 100).at(0).von.y, 0.75);
    h.Sicht.PEC_Typ = Anreicherung;
    EXPECT_EQ(Kasten_von(h, 0, 100).at(0).von.y, static_cast<double>(0.1F + 0.75F));
}

TEST(TWA_Kasten, the_background_has_none) {
    Handergebnis h;
    setze_TWA(h, 28, 0.75F, 10);
    h.Sicht.PEC_Typ = Hintergrund;
    EXPECT_TRUE(Kasten_von(h, 0, 100).empty());
}

TEST(TWA_Kasten, the_selected_window_counts) {
    Handergebnis h;
    setze_TWA(h, 1, 0.9F, 0);
    h.Sicht.TWA_Laenge = 6;
    setze_TWA(h, 28, 0.5F, 4);
    EXPECT_EQ(Kasten_von(h, 0, 100).at(0), waagerecht(4, 32, 0.5));
    h.Sicht.TWA_Laenge = 0;
    EXPECT_EQ(Kasten_von(h, 0, 100).at(0), (Linie{{0, static_cast<double>(0.9F)}, {1, static_cast<double>(0.9F)}, 9, 1}));
}

}  // namespace
}  // namespace varnok
