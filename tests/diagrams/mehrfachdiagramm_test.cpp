#include <gtest/gtest.h>

#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;
using probe::Linien;
using probe::setze_Boden;
using probe::setze_Maximumtag;
using probe::setze_TWA;
using probe::Zeitachse;

Handergebnis Schema(Stoffschema Berechnungsmodus) {
    Handergebnis h;
    h.Felder.Berechnungsmodus = Berechnungsmodus;
    return h;
}

TEST(Mehrfachdiagramm, shows_all_compounds_of_the_scheme) {
    for (const auto& [d, Modus] : {std::pair{3, ein_Metabolit}, {7, zwei_parallel}, {11, zwei_in_Folge}}) {
        Handergebnis h = Schema(Modus);
        setze_Boden(h, {4, 2}, 0);
        setze_Boden(h, {1, 2}, 1);
        setze_Boden(h, {0, 1}, 2);
        for (int k = 0; k < 3; ++k) setze_TWA(h, 20, 0.5F, 10 * k, k);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        const Diagramm D = erstelle_Diagramm_mehrfach(h, b, d, 0, 0);
        EXPECT_EQ(D.Nummer, d);
        EXPECT_EQ(Linien(D, 1, 2).front(), (Linie{{0, 4}, {1, 2}, 1, 2})) << d;
        EXPECT_EQ(Linien(D, 2, 2).front(), (Linie{{0, 1}, {1, 2}, 2, 2})) << d;
        EXPECT_EQ(Linien(D, 9, 1).front(), (Linie{{0, 0.5}, {20, 0.5}, 9, 1})) << d;
        EXPECT_EQ(Linien(D, 10, 1).front(), (Linie{{10, 0.5}, {30, 0.5}, 10, 1})) << d;
        if (d == 3) {
            EXPECT_TRUE(Linien(D, 4, 2).empty());
            EXPECT_TRUE(Linien(D, 12, 1).empty());
        } else {
            EXPECT_EQ(Linien(D, 4, 2).front(), (Linie{{0, 0}, {1, 1}, 4, 2})) << d;
            EXPECT_EQ(Linien(D, 12, 1).front(), (Linie{{20, 0.5}, {40, 0.5}, 12, 1})) << d;
        }
    }
}

TEST(Mehrfachdiagramm, legend_has_a_group_for_each_compound) {
    Handergebnis h = Schema(zwei_in_Folge);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Legende L = erstelle_Diagramm_mehrfach(h, b, 11, 0, 0).Legendeninhalt;
    const Legende erwartet = {Legendenart::mehrfach,
                              {{"parent", {{"PEC", {1, 2}}, {"TWA  (1 d)", {9, 1}}}},
                               {"first metabolite", {{"PEC", {2, 2}}, {"TWA  (1 d)", {10, 1}}}},
                               {"second metabolite", {{"PEC", {4, 2}}, {"TWA  (1 d)", {12, 1}}}}}};
    EXPECT_EQ(L, erwartet);
    h.Felder.Berechnungsmodus = ein_Metabolit;
    EXPECT_EQ(erstelle_Diagramm_mehrfach(h, b, 3, 0, 0).Legendeninhalt.Gruppen.size(), 2U);
}

TEST(Mehrfachdiagramm, the_background_shows_no_window_but_the_legend_is_set) {
    Handergebnis h = Schema(zwei_parallel);
    h.Sicht.PEC_Typ = Hintergrund;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_mehrfach(h, b, 7, 0, 0);
    for (const int Farbe : {9, 10, 12}) EXPECT_TRUE(Linien(d, Farbe, 1).empty());
    EXPECT_EQ(d.Legendeninhalt.Gruppen.at(2).Eintraege.at(1), (Legendeneintrag{"TWA  (1 d)", {12, 1}}));
    EXPECT_EQ(Zeitachse(d), (Punkt{0, 3649}));
    EXPECT_EQ(b.X_Ende[7], 3649);
}

TEST(Mehrfachdiagramm, is_as_high_as_the_highest_compound_of_the_scheme) {
    Handergebnis h = Schema(ein_Metabolit);
    setze_Boden(h, {2}, 0);
    setze_Boden(h, {5}, 1);
    setze_Boden(h, {8}, 2);  // of no concern with one metabolite
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(erstelle_Diagramm_mehrfach(h, b, 3, 0, 0).Liste.Linien[1].bis.y, 5);
    h.Felder.Berechnungsmodus = zwei_parallel;
    EXPECT_EQ(erstelle_Diagramm_mehrfach(h, b, 7, 0, 0).Liste.Linien[1].bis.y, 8);
}

TEST(Mehrfachdiagramm, nothing_at_all_gives_an_axis_from_0_to_1) {
    Handergebnis h = Schema(zwei_parallel);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(erstelle_Diagramm_mehrfach(h, b, 7, 0, 0).Liste.Linien[1].bis.y, 1);
}

// After a click on the ring the parent is in work, after all diagrams were made the last compound.
TEST(Mehrfachdiagramm, the_compound_in_work_widens_the_axis) {
    Handergebnis h = Schema(ein_Metabolit);
    setze_TWA(h, 28, 0, 0, 0);
    setze_Maximumtag(h, 400, 0);
    setze_Maximumtag(h, 500, 1);
    Diagrammbereiche nach_Klick = Startbereiche(jaehrlich);
    erstelle_Diagramm_mehrfach(h, nach_Klick, 3, 0, 0);
    EXPECT_EQ(nach_Klick.X_Ende[3], 428);
    Diagrammbereiche nach_allen = Startbereiche(jaehrlich);
    erstelle_Diagramme(h, nach_allen, 0);
    EXPECT_EQ(nach_allen.X_Ende[3], 528);
}

TEST(Mehrfachdiagramm, the_parallel_scheme_looks_at_the_parent_after_a_click_and_at_the_second_metabolite_after_all) {
    Handergebnis h = Schema(zwei_parallel);
    setze_TWA(h, 28, 0, 0, 0);
    setze_Maximumtag(h, 600, 0);
    setze_Maximumtag(h, 500, 2);
    Diagrammbereiche nach_Klick = Startbereiche(jaehrlich);
    erstelle_Diagramm_mehrfach(h, nach_Klick, 7, 0, 0);
    EXPECT_EQ(nach_Klick.X_Ende[7], 628);
    Diagrammbereiche nach_allen = Startbereiche(jaehrlich);
    erstelle_Diagramme(h, nach_allen, 0);
    EXPECT_EQ(nach_allen.X_Ende[7], 601);  // 500 and the longest window of the list, and a day
}

// The last window of the list counts, whatever is selected: 100 days, or 360 in the monthly list.
TEST(Mehrfachdiagramm, the_second_metabolite_gets_room_for_the_longest_window) {
    for (const auto& [Liste, Ende] : {std::pair{1, 801.0}, {0, 1061.0}}) {
        Handergebnis h = Schema(zwei_in_Folge);
        h.Felder.Parameter.TWA_Zeiten = static_cast<TWA_Listenart>(Liste);
        setze_Maximumtag(h, 700, 2);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        erstelle_Diagramm_mehrfach(h, b, 11, 0, 0);
        EXPECT_EQ(b.X_Ende[11], Ende);
        setze_Maximumtag(h, 3640, 2);
        erstelle_Diagramm_mehrfach(h, b, 11, 0, 0);
        EXPECT_EQ(b.X_Ende[11], 3649);
    }
}

TEST(Mehrfachdiagramm, two_metabolites_show_a_year_at_least) {
    Handergebnis h = Schema(zwei_parallel);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 7, "0", "50"));
    erstelle_Diagramm_mehrfach(h, b, 7, 0, 0);
    EXPECT_EQ(b.X_Ende[7], 364);
    h.Felder.Berechnungsmodus = ein_Metabolit;
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 3, "0", "50"));
    erstelle_Diagramm_mehrfach(h, b, 3, 0, 0);
    EXPECT_EQ(b.X_Ende[3], 50);
}

TEST(Mehrfachdiagramm, writes_no_file_and_has_no_table) {
    Handergebnis h = Schema(ein_Metabolit);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_mehrfach(h, b, 3, 0, 0);
    EXPECT_TRUE(d.Datei.Dateiname.empty());
    EXPECT_TRUE(d.Datei.Zeilen.empty());
    EXPECT_TRUE(d.Ergebnistitel.empty());
}

TEST(Mehrfachdiagramm, an_empty_range_shows_axes_and_a_line_of_text_only) {
    Handergebnis h = Schema(zwei_parallel);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, false, 7, "3649", "3650"));
    const Diagramm d = erstelle_Diagramm_mehrfach(h, b, 7, 0, 0);
    EXPECT_EQ(d.Liste.Linien.size(), 2U);
    ASSERT_EQ(d.Liste.Texte.size(), 1U);
    EXPECT_EQ(d.Liste.Texte[0].Inhalt, "Start is not before the end of the axis");
}

}  // namespace
}  // namespace varnok
