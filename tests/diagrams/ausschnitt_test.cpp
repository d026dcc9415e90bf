// A closer look at a part of the time.

#include "diagrams/ausschnitt.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;

// Falls from 100 by one each day; the window of the average begins on day 20.
Diagramm fallendes() {
    Handergebnis h;
    std::vector<float> Werte;
    for (int t = 0; t <= 100; ++t) Werte.push_back(static_cast<float>(100 - t));
    probe::setze_Boden(h, Werte);
    probe::setze_TWA(h, 10, 75, 20);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    return erstelle_Diagramm(h, b, 0, 0);
}

TEST(Ausschnitt, the_range_of_a_diagram_is_that_of_its_curve) {
    EXPECT_EQ(gezeigter_Zeitraum(fallendes()), (Zeitraum{0, 364}));
    EXPECT_EQ(gezeigter_Zeitraum(Diagramm()), std::nullopt);
}

TEST(Ausschnitt, is_kept_within_the_range_in_whole_days) {
    const Zeitraum ganz = {0, 364};
    EXPECT_EQ(halte_in(ganz, {-50, 400}), ganz);
    EXPECT_EQ(halte_in(ganz, {10.4, 60.2}), (Zeitraum{10, 60}));
    EXPECT_EQ(halte_in(ganz, {350, 400}), (Zeitraum{314, 364}));
    EXPECT_EQ(halte_in(ganz, {100, 101}), (Zeitraum{100, 110}));
    EXPECT_EQ(halte_in({0, 4}, {1, 2}), (Zeitraum{0, 4}));
}

TEST(Ausschnitt, the_day_under_the_pointer_keeps_its_place) {
    EXPECT_EQ(gestreckt({0, 100}, 0.5, 20), (Zeitraum{10, 60}));
    EXPECT_EQ(gestreckt({10, 60}, 2, 20), (Zeitraum{0, 100}));
}

TEST(Ausschnitt, shows_the_values_of_its_days) {
    const Diagramm d = zeige_Ausschnitt(fallendes(), {40, 60});
    ASSERT_EQ(d.Kurven.size(), 1U);
    EXPECT_EQ(d.Kurven[0].erster_Tag, 40);
    EXPECT_EQ(d.Kurven[0].Werte.size(), 21U);
    EXPECT_EQ(d.Kurven[0].Werte.front(), 60);
    EXPECT_EQ(d.Kurven[0].Werte.back(), 40);
    const auto Linien = probe::Linien(d, 1, 2);
    ASSERT_EQ(Linien.size(), 20U);
    EXPECT_EQ(Linien.front().von, (Punkt{40, 60}));
    EXPECT_EQ(Linien.back().bis, (Punkt{60, 40}));
}

TEST(Ausschnitt, has_round_days_and_a_y_axis_for_what_is_seen) {
    const Diagramm d = zeige_Ausschnitt(fallendes(), {83, 103});
    EXPECT_EQ(probe::Zeitachse(d), (Punkt{83, 103}));
    EXPECT_EQ(probe::Zahlen_x(d), (std::vector<std::string>{"85", "90", "95", "100"}));
    EXPECT_DOUBLE_EQ(d.Liste.System.oben, 1.1 * 20);  // 17 is the largest value, rounded up to 20
}

TEST(Ausschnitt, box_of_an_average_ends_at_its_edges) {
    EXPECT_EQ(probe::Linien(zeige_Ausschnitt(fallendes(), {10, 25}), 9, 1),
              (std::vector<Linie>{{{20, 75}, {25, 75}, 9}, {{20, 0}, {20, 75}, 9}}));
    EXPECT_TRUE(probe::Linien(zeige_Ausschnitt(fallendes(), {40, 60}), 9, 1).empty());
    EXPECT_TRUE(zeige_Ausschnitt(fallendes(), {40, 60}).Mittelwerte.empty());
}

TEST(Ausschnitt, leaves_file_and_labels_as_they_are) {
    const Diagramm ganz = fallendes();
    const Diagramm d = zeige_Ausschnitt(ganz, {40, 60});
    EXPECT_EQ(d.Datei.Zeilen, ganz.Datei.Zeilen);
    EXPECT_EQ(d.Titel, ganz.Titel);
    EXPECT_EQ(d.Legendeninhalt, ganz.Legendeninhalt);
}

}  // namespace
}  // namespace varnok
