// What the report of all studies does in its own way.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "berichtsprobe.h"

namespace varnok::probe {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

std::string Text_von(const Lauf_bauer& b) { return erstelle_erweiterten_Bericht(mit_Ergebnissen(b), Angaben); }

std::vector<std::string> Anfang(std::vector<std::string> Zeilen, std::size_t n) {
    Zeilen.resize(std::min(n, Zeilen.size()));
    return Zeilen;
}

TEST(ErweiterterBericht, says_that_it_is_the_summary) {
    EXPECT_THAT(Anfang(ab_Zeile(Text_von({}), "Calculation problem"), 9),
                ElementsAre("Calculation problem: \tthe problem", "", "SUMMARY REPORT CONSIDERING ALL SOIL STUDIES", "", "", "",
                            "", "PROGRAM SETTINGS", ""));
    EXPECT_EQ(Zeile_mit(Text_von({}), "SCENARIO DATA"), "SCENARIO DATA USED IN THE CALCULATION");
}

TEST(ErweiterterBericht, kinetics_of_each_study_under_its_name) {
    Lauf_bauer b = mit_Studien(Lauf_bauer(), 2);
    EXPECT_THAT(
        Anfang(ab_Zeile(Text_von(b), "DEGRADATION"), 24),
        ElementsAre("DEGRADATION KINETICS PARAMETERS CONSIDERED FOR THE CALCULATION", "",
                    "Metabolism scheme:\tParent compound without metabolites", "", "Kinetics for the problem:\t", "",
                    "Soil study:              \tfield", "", "Single First order (SFO)", "DT50 (d):\t69.315",
                    "Rate constant (1/d):\t0.01", "Q10-factor:\t2.58", "Walker-exponent:\t0.7", "TReference (°C):\t20", "",
                    "Soil study:              \tsoil 2", "", "Single First order (SFO)", "DT50 (d):\t92.42",
                    "Rate constant (1/d):\t0.0075", "Q10-factor:\t2.58", "Walker-exponent:\t0.7", "TReference (°C):\t20", ""));
}

TEST(ErweiterterBericht, reference_temperature_has_its_usual_label_with_metabolites) {
    const std::string Text = Text_von(Lauf_bauer().Schema(1));
    EXPECT_THAT(Text, Not(HasSubstr("TReference")));
    EXPECT_EQ(Anzahl_von(Text, "Ref. temperature (°C):\t20"), 2);
}

TEST(ErweiterterBericht, half_lives_hang_on_their_own_constants) {
    Lauf_bauer b;
    b.nach_DFOP(0.1, 0.01, 0.7).Felder.Parameter.k_SFO[0][0] = 0;
    EXPECT_THAT(Anfang(ab_Zeile(Text_von(b), "Double First"), 6),
                ElementsAre("Double First Order in Parallel (DFOP)", "DT50 (d):\t6.9315", "DT50 (d):\t69.315",
                            "Rate constant 1 (1/d):\t0.1", "Rate constant 2 (1/d):\t0.01", "Parameter g:\t0.7"));
    EXPECT_EQ(Anzahl_von(Text_von(Lauf_bauer().nach_DFOP(0.1, 0, 0.7)), "DT50 (d):"), 1);
}

TEST(ErweiterterBericht, labels_of_the_other_kinetics) {
    EXPECT_THAT(Anfang(ab_Zeile(Text_von(Lauf_bauer().nach_FOMC(1.2, 15)), "First Order Multi"), 3),
                ElementsAre("First Order Multi Compartment (FOMC)", "alpha(i_studie):\t1.2", "Beta:\t15"));
    EXPECT_THAT(Anfang(ab_Zeile(Text_von(Lauf_bauer().nach_HS(0.1, 0.01, 14)), "Hockey"), 6),
                ElementsAre("Hockey Stick (HS)", "DT50 (d):\t6.9315", "DT50 (d):\t69.315", "Rate constant 1 (1/d):\t0.1",
                            "Rate constant 2 (1/d):\t0.01", "Parameter Tb (d):\t14"));
}

// The first headings hold the density behind "over", the later ones the depth.
TEST(ErweiterterBericht, headings_of_the_first_block_hold_the_density) {
    const std::string Text = Text_von(Lauf_bauer().Boden(1.25, 5, 20));
    EXPECT_THAT(Text, HasSubstr("\r\nMaximum annual total soil concentration for the problem over 1.25 cm\r\n"));
    EXPECT_THAT(Text, HasSubstr("\r\n Calculated PECact* in soil over 1.25 cm for the problem(mg/kg)\r\n"));
    EXPECT_THAT(
        Text,
        HasSubstr("\r\n Calculated time weighted average (TWA) concentrations in soil over 1.25 cm for the problem(mg/kg)\r\n"));
    EXPECT_THAT(Text, HasSubstr("\r\nFinal background concentration in total soil for the problem over 20 cm\r\n"));
    EXPECT_THAT(Text,
                HasSubstr("\r\n Calculated PECact** in soil over 5 cm for the problem(mg/kg) considering accumulation*\r\n"));
}

TEST(ErweiterterBericht, names_lose_their_outer_blanks_in_the_headings_of_actual_values) {
    Lauf_bauer b = Lauf_bauer().Schema(1);
    b.Felder.Name_Wirkstoff = "  wide ";
    const std::string Text = Text_von(b);
    EXPECT_THAT(Text, HasSubstr("in soil over 1.5 cm for wide(mg/kg)"));
    EXPECT_THAT(Text, HasSubstr("(TWA) concentrations in soil over 1.5 cm for   wide (mg/kg)"));
}

// One per cent a day and three quarters of it; the peak of both is the dose.
TEST(ErweiterterBericht, columns_are_the_studies) {
    const auto Zeilen = ab_Zeile(Text_von(mit_Studien(Lauf_bauer(), 2)), "Maximum annual total");
    EXPECT_EQ(Zeilen[1], "field(mg/kg): \t1.3333 occurring on day 0");
    EXPECT_EQ(Zeilen[2], "soil 2(mg/kg): \t1.3333 occurring on day 0");
    EXPECT_THAT(Anfang({Zeilen.begin() + 6, Zeilen.end()}, 3),
                ElementsAre("Time (d)\tfield\tsoil 2", "1\t1.3201\t1.3234", "2\t1.3069\t1.3135"));
}

TEST(ErweiterterBericht, one_study_has_one_column) { EXPECT_EQ(Zeile_mit(Text_von({}), "Time (d)"), "Time (d)\tfield"); }

TEST(ErweiterterBericht, six_studies_have_six_columns) {
    EXPECT_EQ(Zeile_mit(Text_von(mit_Studien(Lauf_bauer(), 6)), "Time (d)"),
              "Time (d)\tfield\tsoil 2\tsoil 3\tsoil 4\tsoil 5\tsoil 6");
}

TEST(ErweiterterBericht, KOC_is_that_of_the_selected_study) {
    Lauf_bauer b = mit_Studien(Lauf_bauer().Schema(2).KOC(10, 1), 3);
    b.Felder.Parameter.KOC[1][1] = 77;
    b.Felder.Parameter.KOC[1][2] = 88;
    const auto Zeile = [&](int i_studie) {
        b.Sicht.Studie_Index = i_studie;
        return Zeile_mit(Text_von(b), "first metabolite\t");
    };
    EXPECT_EQ(Zeile(0), "first metabolite\t150                       \t10          \t50");
    EXPECT_EQ(Zeile(1), "first metabolite\t150                       \t77          \t50");
    EXPECT_EQ(Zeile(2), "first metabolite\t150                       \t88          \t50");
}

TEST(ErweiterterBericht, has_no_warning_and_no_share) {
    auto l = mit_Ergebnissen(Lauf_bauer().Schema(1).nach_DFOP(0.1, 0.01, 0.7));
    l.Werte().Plateautext = "3% of the final plateau";
    l.Werte().Plateauprozent = 3;
    const std::string Text = erstelle_erweiterten_Bericht(l, Angaben);
    EXPECT_THAT(Text, Not(HasSubstr("In the simulation a final")));
    EXPECT_THAT(Text, Not(HasSubstr("theoretical maximum")));
}

TEST(ErweiterterBericht, each_study_has_its_own_day_of_the_peak) {
    Lauf_bauer b = mit_Studien(Lauf_bauer(), 2);
    auto l = mit_Ergebnissen(b);
    b.i_studie = 1;
    Lauf zweite = b.rechne();
    zweite.Speicher.Maximumtag_Bodentiefe[0][1][0] = 100;
    zweite.Speicher.Reihe_Bodentiefe(Gesamtgehalt, 1, 0)[101] = 0.75F;
    l.Studien[1] = aus_Lauf(zweite).Studien[1];
    const auto Zeilen = ab_Zeile(erstelle_erweiterten_Bericht(l, Angaben), "Time (d)");
    EXPECT_EQ(Zeilen[1], "1\t1.3201\t0.7500");
}

}  // namespace
}  // namespace varnok::probe
