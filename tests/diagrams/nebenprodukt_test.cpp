#include <gtest/gtest.h>

#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;
using probe::setze_Boden;

using Zeilen = std::vector<std::string>;

Zeilen Datei(Handergebnis& h, double Start, double Ende) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Start[0] = Start;
    b.X_Ende[0] = Ende;
    return erstelle_Diagramm(h, b, 0, 0).Datei.Zeilen;
}

TEST(Tagesreihe, a_line_for_each_day_but_the_last) {
    Handergebnis h;
    setze_Boden(h, {0.6666667F, 0.66F, 0.5F, 1E-05F, 100});
    probe::setze_Maximumtag(h, 0);
    EXPECT_EQ(Datei(h, 0, 4), (Zeilen{"Time (d)\tPEC (mg/kg)", "0\t0.6666667", "1\t0.66", "2\t0.5", "3\t1E-05"}));
}

TEST(Tagesreihe, follows_the_range_of_the_diagram) {
    Handergebnis h;
    setze_Boden(h, {5, 4, 3, 2, 1});
    EXPECT_EQ(Datei(h, 1, 3), (Zeilen{"Time (d)\tPEC (mg/kg)", "1\t4", "2\t3"}));
    EXPECT_EQ(Datei(h, 0, 364).size(), 365U);
    EXPECT_EQ(Datei(h, 0, 3649).size(), 3650U);
    EXPECT_EQ(Datei(h, 0, 3649).back(), "3648\t0");
}

TEST(Tagesreihe, head_by_unit_and_endpoint) {
    const struct {
        int Einheit, Endpunkt;
        const char* Kopf;
    } Faelle[] = {{0, 0, "Time (d)\tPEC (mg/kg)"},
                  {0, 1, "Time (d)\tPEC (mg/L)"},
                  {1, 0, "Time (d)\tPEC (µg/kg)"},
                  {1, 1, "Time (d)\tPEC (µg/L)"}};
    for (const auto& f : Faelle) {
        Handergebnis h;
        h.Felder.Parameter.Einheit = static_cast<Einheitsart>(f.Einheit);
        h.Sicht.Endpunkt = static_cast<Endpunktart>(f.Endpunkt);
        EXPECT_EQ(Datei(h, 0, 10).front(), f.Kopf);
    }
}

TEST(Tagesreihe, is_that_of_the_view) {
    Handergebnis h;
    setze_Boden(h, {4, 2});
    probe::setze_Plateau(h, {1, 5});
    probe::setze_Plateauwert(h, 0.1F);
    EXPECT_EQ(Datei(h, 0, 10).at(1), "0\t4");
    h.Sicht.PEC_Typ = Hintergrund;
    EXPECT_EQ(Datei(h, 0, 10).at(2), "1\t5");
    h.Sicht.PEC_Typ = Anreicherung;
    EXPECT_EQ(Datei(h, 0, 10).at(1), "0\t4.1");
    EXPECT_EQ(Datei(h, 0, 10).at(2), "1\t2.1");
}

TEST(Tagesreihe, the_file_has_the_name_of_the_compound) {
    Handergebnis h;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const std::pair<int, const char*> Faelle[] = {{0, "parent"}, {1, "parent"},           {2, "first metabolite"},
                                                  {4, "parent"}, {5, "first metabolite"}, {6, "second metabolite"},
                                                  {8, "parent"}, {9, "first metabolite"}, {10, "second metabolite"}};
    for (const auto& [d, Name] : Faelle) {
        EXPECT_EQ(erstelle_Diagramm(h, b, d, 0).Datei.Dateiname, "Detailed Results - " + std::string(Name) + ".tab") << d;
    }
}

TEST(Tagesreihe, two_compounds_of_one_name_share_the_file) {
    Handergebnis h;
    h.Felder.Berechnungsmodus = ein_Metabolit;
    h.Felder.Name_Met_1 = "parent";
    setze_Boden(h, {4}, 0);
    setze_Boden(h, {2}, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const std::vector<Diagramm> D = erstelle_Diagramme(h, b, 0);
    EXPECT_EQ(D[0].Datei.Dateiname, D[1].Datei.Dateiname);
    EXPECT_EQ(D[1].Datei.Zeilen.at(1), "0\t2");  // the later drawing wins
}

TEST(Tagesreihe, what_a_file_name_cannot_hold_becomes_an_underscore) {
    EXPECT_EQ(Dateiname_Tagesreihe("a\\b/c:d*e?f\"g<h>i|j\tk"), "Detailed Results - a_b_c_d_e_f_g_h_i_j_k.tab");
    EXPECT_EQ(Dateiname_Tagesreihe("2,4-D (Säure)"), "Detailed Results - 2,4-D (Säure).tab");
}

// Study, compound, day, and the tillage depth whatever the curve shows.
TEST(Diagramm_txt, a_line_for_each_day_and_study_of_the_curves) {
    auto h = probe::Handergebnis_Studien(2);
    setze_Boden(h, {9, 9, 9}, 1, 0);
    probe::setze_Plateau(h, {1, 0.25F, 1E-06F}, 1, 0);
    probe::setze_Plateau(h, {3, 4.5F}, 1, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Nebenprodukt n = erstelle_Diagramm_Zusammenfassung(h, b, 2, 0).Datei;
    EXPECT_EQ(n.Dateiname, "Diagram.txt");
    ASSERT_EQ(n.Zeilen.size(), 2U * 364);
    EXPECT_EQ(n.Zeilen[0], "0 1 1 0.25");
    EXPECT_EQ(n.Zeilen[1], "0 1 2 1E-06");
    EXPECT_EQ(n.Zeilen[363], "0 1 364 0");
    EXPECT_EQ(n.Zeilen[364], "1 1 1 4.5");
    EXPECT_EQ(n.Zeilen.back(), "1 1 364 0");
}

TEST(Diagramm_txt, is_that_of_the_endpoint) {
    auto h = probe::Handergebnis_Studien(1);
    probe::setze_Plateau(h, {0, 2}, 0, 0, Gesamtgehalt);
    probe::setze_Plateau(h, {0, 3}, 0, 0, Porenwasser);
    h.Sicht.Endpunkt = Porenwasser;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(erstelle_Diagramm_Zusammenfassung(h, b, 0, 0).Datei.Zeilen.at(0), "0 0 1 3");
}

TEST(Diagramm_txt, can_be_left_out) {
    auto h = probe::Handergebnis_Studien(1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Nebenprodukt n = erstelle_Diagramm_Zusammenfassung(h, b, 0, 0, false).Datei;
    EXPECT_TRUE(n.Dateiname.empty());
    EXPECT_TRUE(n.Zeilen.empty());
}

}  // namespace
}  // namespace varnok
