// Lines of the report of one study, from closed formulas and set values.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "berichtsprobe.h"

namespace varnok::probe {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

std::string Text_von(const Lauf_bauer& b) { return erstelle_Standardbericht(mit_Ergebnissen(b), Angaben); }

// The first `n` lines of a part.
std::vector<std::string> Anfang(std::vector<std::string> Zeilen, std::size_t n) {
    Zeilen.resize(std::min(n, Zeilen.size()));
    return Zeilen;
}

TEST(Standardbericht, head_names_version_date_and_problem) {
    EXPECT_THAT(
        Anfang(Zeilen(Text_von({})), 14),
        ElementsAre("V A R N O K", "Soil Residue Forecast Tool", "", "developed by Emil Tarrasch          ", "", "",
                    "Program version:                    \t2.0 (test)", "Date of this simulation:      \t21 Nov 2025, 14:05",
                    "Calculation problem: \tthe problem", "", "", "", "PROGRAM SETTINGS", ""));
}

// 1 kg/ha in 5 cm of 1.5 kg/L are 1.3333 mg/kg, which decline by exp(-0.01 d).
TEST(Standardbericht, dose_of_a_kilogram_by_hand) {
    const auto Tabelle = ab_Zeile(Text_von({}), "Time(d)\tPECact*");
    EXPECT_EQ(Tabelle[0], "Time(d)\tPECact*\tPECtwa\tBegin TWAframe(d)\tEnd TWAframe(d)");
    const double C = 1000.0 / 1000 / (1.5 * 5 / 10);
    int Zeile = 1;
    for (const int d : {1, 2, 4, 7, 14, 21, 28, 42, 50, 100}) {
        double Summe = 0;  // trapezoids of a day
        for (int t = 0; t < d; ++t) Summe += C * (std::exp(-0.01 * t) + std::exp(-0.01 * (t + 1))) / 2;
        EXPECT_EQ(Tabelle[static_cast<std::size_t>(Zeile++)], std::to_string(d) + "\t" + feste_Zahl(C * std::exp(-0.01 * d), 4) +
                                                                  "\t" + feste_Zahl(Summe / d, 4) + "\t0\t" + std::to_string(d));
    }
    EXPECT_EQ(Tabelle[11], "(* PECact values are related to the time after the first application)");
}

// The yearly loss leaves x = exp(-3.65); the sum of all earlier years' doses is C x / (1 - x) in the tillage depth.
TEST(Standardbericht, background_and_accumulation_by_hand) {
    Lauf_bauer b;
    b.Sicht.Fruchtwechsel = jedes_dritte_Jahr;
    const std::string Text = Text_von(b);
    const double x = std::exp(-3.65);
    const double Plateau = 1000.0 / 1000 / (1.5 * 20 / 10) * x / (1 - x);
    EXPECT_EQ(Zeile_mit(Text, "Final Background concentration in total soil for"),
              "Final Background concentration in total soil for the problem over 20 cm(mg/kg):            \t" +
                  feste_Zahl(Plateau, 4) + "**");
    EXPECT_EQ(Zeile_mit(Text, "Reduction factor"), "Reduction factor to account for crop rotation: \t3");
    EXPECT_EQ(Zeile_mit(Text, "Final Background concentration in total soil including"),
              "Final Background concentration in total soil including crop rotation(mg/kg):            \t" +
                  feste_Zahl(Plateau / 3, 4));
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Maximum total soil")), feste_Zahl(Plateau / 3 + 4.0 / 3, 4));
    const auto Tabelle = ab_Zeile(Text, "Time(d)\tPECact**");
    EXPECT_THAT(Tabelle[1], ::testing::StartsWith("1\t" + feste_Zahl(Plateau / 3 + 4.0 / 3 * std::exp(-0.01), 4) + "\t"));
    EXPECT_EQ(Tabelle[11], "(*  a tillage depth of 20 cm was considered for calculating the background concentration)");
}

TEST(Standardbericht, text_ends_with_the_place_of_the_diagram) {
    const auto Ende = ab_Zeile(Text_von({}), "(** PECact");
    EXPECT_THAT(Ende, ElementsAre("(** PECact values are related to the time after the first application)", "", "", "", "", "",
                                  "GRAPHIC REPRESENTATION OF THE CALCULATION", "", "A diagram should appear here!", ""));
}

TEST(Standardbericht, constant_climate_has_no_weather_lines) {
    Lauf_bauer b;
    b.Temperatur(20);
    const auto Zeilen = ab_Zeile(Text_von(b), "Climatic conditions:");
    EXPECT_EQ(Zeilen[0], "Climatic conditions:                        \t20 °C constant");
    EXPECT_EQ(Zeilen[1], "(* for calculation of background concentrations)");
}

// 3649 days are read; the mean counts the 3751 of the time axis.
TEST(Standardbericht, weather_sums_of_a_run) {
    const std::string Text = Text_von(Lauf_bauer().Wetter({{2, 1, 15}}));
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Mean temperature")), feste_Zahl(3649 * 15.0 / 3751, 1));
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Annual Rainfall")), "7298");
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Annual pot.")), "3649");
}

TEST(Standardbericht, no_rain_at_all_is_an_empty_text) {
    EXPECT_EQ(Zeile_mit(Text_von(Lauf_bauer().Wetter({{0, 0, 15}})), "Annual Rainfall"),
              "Annual Rainfall (mm):                                \t");
}

TEST(Standardbericht, modes_follow_residues_and_view) {
    Lauf_bauer b;
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von(b), "Calculation mode")),
              "Residues from different applications are not considered separately");
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von(b), "Application mode")),
              "Single annual application pattern (calculation period 1 year)");
    b.Sicht.PEC_Typ = Anreicherung;
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von(b.Rueckstaende(1)), "Calculation mode")),
              "Residues from different applications are considered separately");
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von(b), "Application mode")),
              "Single annual application pattern (calculation period 1 year)");
    b.Sicht.PEC_Typ = Hintergrund;
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von(b.Rueckstaende(2)), "Calculation mode")),
              "Residues from different applications are considered separately over one year");
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von(b), "Application mode")), "Iteration of annual application pattern over 10 years");
}

TEST(Standardbericht, scenario_is_called_by_the_application_pattern) {
    EXPECT_EQ(Wert_in(Zeile_mit(Text_von({}), "Name of the scenario:")), "pattern record");
}

TEST(Standardbericht, irregular_table_has_its_head_and_a_tab_behind_each_cell) {
    const auto Zeilen =
        ab_Zeile(Text_von(Lauf_bauer().Termine({{"01", "03", "100", "0"}, {"20", "04", "150", ""}})), "Number of Applications");
    EXPECT_THAT(Anfang(Zeilen, 8),
                ElementsAre("Number of Applications :            \t2", "Day\tMonth\tRate (g/ha)\tInterception(%)\t",
                            "01\t03\t100\t0\t", "20\t04\t150\t\t", "", "", "", "COMPOUNDS CONSIDERED IN THE CALCULATION"));
}

TEST(Standardbericht, regular_pattern_stands_one_line_end_further_from_the_compounds) {
    const auto Zeilen =
        ab_Zeile(Text_von(Lauf_bauer().regelmaessige_Gaben(4, 12).Dosis("75.5", "20").Beginn(2, 28)), "Number of Applications");
    EXPECT_THAT(
        Anfang(Zeilen, 10),
        ElementsAre("Number of Applications :            \t4", "1st Application date:               \t28 Feb",
                    "Application rate (g/ha):            \t75.5", "Time between two applications (d):  \t12",
                    "Crop interception (%):              \t20", "", "", "", "", "COMPOUNDS CONSIDERED IN THE CALCULATION"));
}

TEST(Standardbericht, compounds_of_scheme_1_have_no_gap_behind_the_KOC) {
    const auto Zeilen = ab_Zeile(Text_von(Lauf_bauer().Schema(1).KOC(1234.5, 1)), "Compound\t");
    EXPECT_THAT(Anfang(Zeilen, 4), ElementsAre("Compound\tMolecular mass(g/mol)\tFormation (%)", "parent\t200",
                                               "first metabolite\t150                       \t1234.5\t50", ""));
}

TEST(Standardbericht, KOC_is_that_of_the_selected_study) {
    Lauf_bauer b = mit_Studien(Lauf_bauer().Schema(2).KOC(10, 1), 2);
    b.Felder.Parameter.KOC[1][1] = 77;
    b.Sicht.Studie_Index = 1;
    EXPECT_EQ(Zeile_mit(Text_von(b), "first metabolite\t"), "first metabolite\t150                       \t77          \t50");
}

TEST(Standardbericht, parameters_are_about_five_figures_long) {
    Lauf_bauer b;
    b.nach_SFO(0.0000012).Korrektur(1, 0, 0).KOC(0);
    const std::string Text = Text_von(b);
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Rate constant")), "0.0000");
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "DT50")), feste_Zahl(std::log(2) / 0.0000012, 0));
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Q10-factor")), "1");
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Walker-exponent")), "0.0");
    EXPECT_EQ(Parametertext("x", 0.693), "0.693");
    EXPECT_EQ(Parametertext("x", 120), "120");
    EXPECT_EQ(Parametertext("x", 10000), "10000");
    EXPECT_EQ(Parametertext("x", 12.345678), "12.346");
}

TEST(Standardbericht, names_are_the_present_ones_and_numbers_those_of_the_results) {
    auto l = mit_Ergebnissen(Lauf_bauer().Schema(1).Dosis("120"));
    l.Felder.Beschreibung = "later";
    l.Felder.Name_Met_1 = "renamed";
    l.Felder.Studie = {"garden"};
    l.Felder.Applikationsrate = "7";
    l.Felder.Parameter.Bodendichte = 9;
    const std::string Text = erstelle_Standardbericht(l, Angaben);
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Calculation problem")), "later");
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Soil study:")), "garden");
    EXPECT_THAT(Text, HasSubstr("RESULTS FOR: renamed\r\n"));
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Application rate")), "120");
    EXPECT_EQ(Wert_in(Zeile_mit(Text, "Soil density")), "1.5");
}

TEST(Standardbericht, negative_parameter_is_a_fault_that_names_it) {
    const auto l = mit_Ergebnissen(Lauf_bauer().Korrektur(2.58, 0.7, -5));
    try {
        erstelle_Standardbericht(l, Angaben);
        FAIL() << "no fault";
    } catch (const Laufzeitfehler& f) {
        EXPECT_STREQ(f.what(), "The report cannot show a negative value: Ref. temperature (°C): -5");
    }
}

// The half-lives of every kinetics hang on the rate constant of first order.
TEST(Standardbericht, DFOP_without_first_order_constant_has_no_half_lives) {
    Lauf_bauer b;
    b.nach_DFOP(0.1, 0.01, 0.7).Felder.Parameter.k_SFO[0][0] = 0;
    const std::string Text = Text_von(b);
    EXPECT_THAT(Text, Not(HasSubstr("DT50")));
    EXPECT_THAT(Anfang(ab_Zeile(Text, "Kinetics for"), 5),
                ElementsAre("Kinetics for the problem:\tDouble First Order in Parallel (DFOP)", "Rate constant 1 (1/d):\t0.1",
                            "Rate constant 2 (1/d):\t0.01", "Parameter g:\t0.7", "Q10-factor:\t2.58"));
}

TEST(Standardbericht, half_life_of_a_constant_of_0_is_0) {
    const std::string Text = Text_von(Lauf_bauer().nach_DFOP(0.1, 0, 0.7).Rueckstaende(1));
    EXPECT_EQ(Zeile_mit(Text, "DT50 1(d):"), "DT50 1(d):\t6.9315");
    EXPECT_EQ(Zeile_mit(Text, "DT50 2(d):"), "DT50 2(d):\t0");
}

TEST(Standardbericht, parent_without_metabolites_goes_by_the_description) {
    const std::string Text = Text_von({});
    EXPECT_EQ(Zeile_mit(Text, "RESULTS FOR:"), "RESULTS FOR: the problem");
    EXPECT_THAT(Text_von(Lauf_bauer().Schema(1)), HasSubstr("RESULTS FOR: parent\r\n"));
}

// --- results -----------------------------------------------------------------------------------------------

TEST(Ergebnisblock, footnotes_of_a_later_peak) {
    const std::string Text = Text_von(Lauf_bauer().regelmaessige_Gaben(2, 10));
    EXPECT_THAT(Text, HasSubstr("\r\n(* PECact values  are related to the time after the maximum concentration)\r\n\r\n\r\n"));
    EXPECT_THAT(Text, HasSubstr("\r\n(** PECact values  are related to the time after the maximum concentration)'\r\n\r\n\r\n"));
    EXPECT_THAT(Text, Not(HasSubstr("first application)")));
}

// Half of 1 kg/ha becomes metabolite of 3/4 the mass: at most 75 % of the theory on any day.
TEST(Ergebnisblock, share_of_the_theoretical_maximum) {
    const auto l = mit_Ergebnissen(Lauf_bauer().Schema(1).nach_SFO(0.02, 1));
    const std::string Text = erstelle_Standardbericht(l, Angaben);
    EXPECT_EQ(Anzahl_von(Text, "(^ This is "), 1);
    const double Peak = static_cast<double>(l.zeige().Werte(0, 1).Jahresmaximum[0]);
    const double T = 150.0 / 200 * (1000.0 / 1000) / (5 * 1.5 / 10);
    EXPECT_EQ(Zeile_mit(Text, "(^ This is "),
              "(^ This is " + feste_Zahl(Peak * 100 / T, 2) + " % of the theoretical maximum concentration of the metabolite)");
    const auto Block = ab_Zeile(Text, "Maximum annual total soil concentration for first metabolite");
    EXPECT_THAT(Block[0], ::testing::EndsWith("^"));
    EXPECT_THAT(Anfang({Block.begin() + 1, Block.end()}, 4),
                ElementsAre(::testing::StartsWith("(^ This is"), "", "", ::testing::StartsWith("Calculated time dependent")));
}

TEST(Ergebnisblock, share_counts_the_first_of_several_applications) {
    const auto l =
        mit_Ergebnissen(Lauf_bauer().Schema(1).nach_SFO(0.02, 1).regelmaessige_Gaben(3, 30).Dosis("200", "10").Einheit(1));
    const double Peak = static_cast<double>(l.zeige().Werte(0, 1).Jahresmaximum[0]);
    const double T = 1000 * (150.0 / 200 * (180.0 / 1000)) / (5 * 1.5 / 10);
    EXPECT_EQ(Zeile_mit(erstelle_Standardbericht(l, Angaben), "(^ This is").substr(0, 17),
              ("(^ This is " + feste_Zahl(Peak * 100 / T, 2) + " % of").substr(0, 17));
}

TEST(Ergebnisblock, share_of_pore_water_uses_the_formula_of_soil) {
    Lauf_bauer b = Lauf_bauer().Schema(1).nach_SFO(0.02, 1);
    b.Sicht.Endpunkt = Porenwasser;
    const auto l = mit_Ergebnissen(b);
    const double Peak = static_cast<double>(l.zeige().Werte(0, 1).Jahresmaximum[0]);
    EXPECT_THAT(erstelle_Standardbericht(l, Angaben), HasSubstr("(^ This is " + feste_Zahl(Peak * 100, 2) + " % of"));
}

TEST(Ergebnisblock, theoretical_maximum_of_0_gives_the_share_0) {
    auto l = mit_Ergebnissen(Lauf_bauer().Schema(1).nach_SFO(0.02, 1));
    l.Studie().erste_Rate = 0;
    EXPECT_THAT(erstelle_Standardbericht(l, Angaben), HasSubstr("(^ This is 0.00 % of"));
}

TEST(Ergebnisblock, mass_of_the_parent_of_0_is_a_fault) {
    auto l = mit_Ergebnissen(Lauf_bauer().Schema(1).nach_SFO(0.02, 1));
    l.Felder.Molmasse_Wirkstoff = "0";
    l.Studie();
    EXPECT_THROW(erstelle_Standardbericht(l, Angaben), Laufzeitfehler);
}

TEST(Ergebnisblock, metabolite_that_never_appears) {
    const std::string Text = Text_von(Lauf_bauer().Schema(1).Bildungsanteile(0));
    const auto Block = ab_Zeile(Text, "Maximum annual total soil concentration for first metabolite");
    EXPECT_EQ(Wert_in(Block[0]), "<0.0001 occurring on day -99^");
    EXPECT_EQ(Block[1], "(^ This is 0.00 % of the theoretical maximum concentration of the metabolite)");
    EXPECT_EQ(Block[7], "1\t<0.0001\t<0.0001\t0\t1");
    EXPECT_EQ(Block[16], "100\t<0.0001\t<0.0001\t0\t100");
}

TEST(Ergebnisblock, small_value_in_micrograms) {
    auto l = mit_Ergebnissen(Lauf_bauer().Einheit(1));
    l.Werte().Maximum_Bodentiefe = 0.004F;
    EXPECT_EQ(Wert_in(Zeile_mit(erstelle_Standardbericht(l, Angaben), "Maximum annual")), "<0.01 occurring on day 0");
    EXPECT_THAT(erstelle_Standardbericht(l, Angaben), HasSubstr("over 5 cm(µg/kg): \t"));
}

TEST(Ergebnisblock, actual_value_behind_the_run_is_that_of_its_last_day) {
    Lauf Rechnung = Lauf_bauer().rechne();
    Rechnung.Speicher.Maximumtag_Bodentiefe[0][0][0] = 3640;
    Rechnung.Speicher.Reihe_Bodentiefe(Gesamtgehalt, 0, 0)[3647] = 0.5F;
    Rechnung.Speicher.Reihe_Bodentiefe(Gesamtgehalt, 0, 0)[3649] = 0.25F;
    const auto l = aus_Lauf(Rechnung);
    const auto Tabelle = ab_Zeile(erstelle_Standardbericht(l, Angaben), "Time(d)\tPECact*");
    EXPECT_THAT(Tabelle[4], ::testing::StartsWith("7\t0.5000\t"));
    for (int i = 5; i <= 10; ++i) EXPECT_THAT(Tabelle[static_cast<std::size_t>(i)], HasSubstr("\t0.2500\t"));
}

TEST(Ergebnisblock, window_that_is_no_whole_number) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA.EU[0] = 2.1;
    EXPECT_THAT(ab_Zeile(Text_von(b), "Time(d)\tPECact*")[1], ::testing::MatchesRegex("2\\.1\t.*\t0\t2\\.1"));
}

TEST(Ergebnisblock, monthly_list_has_twelve_windows) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA_Zeiten = Monatsliste;
    const auto Tabelle = ab_Zeile(Text_von(b), "Time(d)\tPECact*");
    EXPECT_THAT(Tabelle[1], ::testing::StartsWith("30\t"));
    EXPECT_THAT(Tabelle[12], ::testing::StartsWith("360\t"));
    EXPECT_THAT(Tabelle[13], ::testing::StartsWith("(* PECact"));
}

TEST(Ergebnisblock, pore_water_has_its_word_and_unit_everywhere) {
    Lauf_bauer b;
    b.Sicht.Endpunkt = Porenwasser;
    const std::string Text = Text_von(b);
    EXPECT_THAT(Text, Not(HasSubstr("total soil")));
    EXPECT_THAT(Text, HasSubstr("Maximum annual pore water concentration for the problem over 5 cm(mg/L): \t"));
    EXPECT_THAT(Text, HasSubstr(" after one year (mg/L)\r\n"));
}

// --- plateau warning ---------------------------------------------------------------------------------------

void setze_Plateau(Endpunktergebnis& e, double Prozent) {
    e.Plateautext = std::to_string(static_cast<int>(Prozent)) + "% of the final plateau";
    e.Plateauprozent = Prozent;
}

int Warnungen(const Darstellung& l) {
    return Anzahl_von(erstelle_Standardbericht(l, Angaben), "In the simulation a final plateau");
}

TEST(Plateauwarnung, comes_below_50_percent) {
    auto l = mit_Ergebnissen(Lauf_bauer().nach_DFOP(0.1, 0.01, 0.7));
    setze_Plateau(l.Werte(), 49);
    EXPECT_EQ(Warnungen(l), 1);
    setze_Plateau(l.Werte(), 50);
    EXPECT_EQ(Warnungen(l), 0);
    setze_Plateau(l.Werte(), 0);
    EXPECT_EQ(Warnungen(l), 1);
}

TEST(Plateauwarnung, text_without_percent_reads_as_0) {
    auto l = mit_Ergebnissen(Lauf_bauer().nach_DFOP(0.1, 0.01, 0.7));
    l.Werte().Plateauprozent = 0;
    l.Werte().Plateautext = "80";
    EXPECT_EQ(Warnungen(l), 1);
    l.Werte().Plateautext.clear();
    EXPECT_EQ(Warnungen(l), 1);
}

TEST(Plateauwarnung, never_for_first_order) {
    auto l = mit_Ergebnissen({});
    for (const double Prozent : {1.0, 80.0}) {
        setze_Plateau(l.Werte(), Prozent);
        EXPECT_EQ(Warnungen(l), 0);
    }
    for (const char* Text : {"80", ""}) {
        l.Werte().Plateautext = Text;
        l.Werte().Plateauprozent = 0;
        EXPECT_EQ(Warnungen(l), 0);
    }
}

TEST(Plateauwarnung, asks_the_kinetics_of_the_compound_and_study) {
    Lauf_bauer b = mit_Studien(Lauf_bauer().Schema(1).nach_SFO(0.02, 1), 2);
    b.Felder.Parameter.Kinetik[1][1] = DFOP;
    auto l = mit_Ergebnissen(b);
    for (const int st : {0, 1}) {
        for (const int c : {0, 1}) setze_Plateau(l.Werte(c, st), 3);
    }
    EXPECT_EQ(Warnungen(l), 0);
    l.Sicht.Studie_Index = 1;
    EXPECT_EQ(Warnungen(l), 1);
}

TEST(Plateauwarnung, three_lines_between_table_and_next_headline) {
    auto l = mit_Ergebnissen(Lauf_bauer().Schema(1).nach_DFOP(0.1, 0.01, 0.7));
    setze_Plateau(l.Werte(), 3);
    EXPECT_THAT(
        Anfang(ab_Zeile(erstelle_Standardbericht(l, Angaben), "(** PECact"), 10),
        ElementsAre("(** PECact values are related to the time after the first application)", "",
                    "In the simulation a final plateau was estimated significantly higher than the residues after 10 years.",
                    "These results may not be reliable. Please check whether the separation of residues is reasonable for "
                    "the simulation.",
                    "If possible select a more suitable degradation kinetics for the simulation!", "", "", "",
                    "RESULTS FOR: first metabolite", ""));
}

}  // namespace
}  // namespace varnok::probe
