// Diagrams for paper.

#include "diagrams/druckfassung.h"

#include <gtest/gtest.h>

#include <set>

#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

Diagramm aller_Studien() {
    auto h = probe::Handergebnis_Studien(6);
    for (int st = 0; st < 6; ++st) probe::setze_TWA(h, 28, 1, 0, 0, st);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    return erstelle_Diagramm_Zusammenfassung(h, b, 0, 0);
}

TEST(Druckfassung, each_study_has_dashes_of_its_own_and_none_a_light_colour) {
    Diagramm d = aller_Studien();
    richte_fuer_Druck(d);
    std::set<std::pair<int, int>> Arten;
    for (const Linie& l : d.Liste.Linien) {
        if (l.Breite == 2) Arten.insert({l.Muster, l.Farbe});
    }
    // Light green, light cyan and yellow are dark green, dark cyan and brown.
    EXPECT_EQ(Arten, (std::set<std::pair<int, int>>{{0, 9}, {1, 2}, {2, 3}, {3, 12}, {4, 13}, {5, 6}}));
}

TEST(Druckfassung, the_legend_shows_what_the_curves_have_and_names_the_boxes) {
    Diagramm d = aller_Studien();
    richte_fuer_Druck(d);
    const auto& Eintraege = d.Legendeninhalt.Gruppen.at(0).Eintraege;
    ASSERT_EQ(Eintraege.size(), 7U);
    EXPECT_EQ(Eintraege[1].Linie, (Musterlinie{2, 2, 1}));
    EXPECT_EQ(Eintraege[5].Linie, (Musterlinie{6, 2, 5}));
    EXPECT_EQ(Eintraege[6], (Legendeneintrag{"thin: TWA (28 d)", {Schwarz, 1}}));
}

TEST(Druckfassung, a_compound_and_its_average_share_their_dashes) {
    probe::Handergebnis h;
    h.Felder.Berechnungsmodus = zwei_parallel;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    Diagramm d = erstelle_Diagramm_mehrfach(h, b, 7, 0, 0);
    richte_fuer_Druck(d);
    for (const auto& [Farbe, Muster] : {std::pair(1, 0), {9, 0}, {2, 1}, {4, 2}, {12, 2}}) {
        for (const Linie& l : d.Liste.Linien) {
            if (l.Farbe == Farbe) {
                EXPECT_EQ(l.Muster, Muster) << Farbe;
            }
        }
    }
    EXPECT_TRUE(probe::Linien(d, 10, 1).empty());
    EXPECT_EQ(d.Legendeninhalt.Gruppen.at(2).Eintraege.at(1).Linie, (Musterlinie{12, 1, 2}));
}

TEST(Druckfassung, axes_stay_as_they_are) {
    Diagramm d = aller_Studien();
    const auto Achsen = probe::Linien(d, Schwarz, 1);
    richte_fuer_Druck(d);
    EXPECT_EQ(probe::Linien(d, Schwarz, 1), Achsen);
}

}  // namespace
}  // namespace varnok
