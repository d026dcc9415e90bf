// Inputs of a region that writes a comma stand in the reports with a point.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "berichtsprobe.h"
#include "reports/berichtsabschnitte.h"

namespace varnok::probe {
namespace {

using ::testing::HasSubstr;

using Berichtsroutine = std::string (*)(const Darstellung&, const Berichtsangaben&);

class Dezimalkomma : public ::testing::TestWithParam<Berichtsroutine> {
protected:
    std::string Text(const Lauf_bauer& b) const { return GetParam()(mit_Ergebnissen(b), Angaben); }
};

// A separator in every text of the input that holds a number.
Lauf_bauer Stoffe(char Trenner) {
    const auto t = [&](std::string Zahl) {
        std::replace(Zahl.begin(), Zahl.end(), '.', Trenner);
        return Zahl;
    };
    Lauf_bauer b = Lauf_bauer().Schema(2).nach_SFO(0.02, 1).nach_SFO(0.01, 2).Dosis(t("750.5"), t("12.5"));
    b.Felder.Molmasse_Wirkstoff = t("200.25");
    b.Felder.Molmasse_Met_1 = t("150.75");
    b.Felder.Molmasse_Met_2 = t("100.125");
    b.Felder.Bildungsanteil_Met_1 = t("50.5");
    b.Felder.Bildungsanteil_Met_2 = t("30.25");
    return b;
}

std::vector<Applikationszeile> Tabelle(char Trenner) {
    const std::string t(1, Trenner);
    return {{"01", "03", "100" + t + "5", "12" + t + "5"}, {"20", "04", "150" + t + "25", "0" + t + "5"}};
}

TEST_P(Dezimalkomma, is_a_point_in_the_single_pattern) {
    const std::string t = Text(Stoffe(','));
    EXPECT_EQ(Wert_in(Zeile_mit(t, "Application rate (g/ha):")), "750.5");
    EXPECT_EQ(Wert_in(Zeile_mit(t, "Crop interception (%):")), "12.5");
}

TEST_P(Dezimalkomma, is_a_point_in_the_regular_pattern) {
    const std::string t = Text(Stoffe(',').regelmaessige_Gaben(3, 14));
    EXPECT_EQ(Wert_in(Zeile_mit(t, "Application rate (g/ha):")), "750.5");
    EXPECT_EQ(Wert_in(Zeile_mit(t, "Crop interception (%):")), "12.5");
}

TEST_P(Dezimalkomma, is_a_point_in_every_cell_of_the_irregular_pattern) {
    const auto Zeilen = ab_Zeile(Text(Stoffe(',').Termine(Tabelle(','))), "Day\tMonth");
    EXPECT_EQ(Zeilen.at(1), "01\t03\t100.5\t12.5\t");
    EXPECT_EQ(Zeilen.at(2), "20\t04\t150.25\t0.5\t");
}

TEST_P(Dezimalkomma, is_a_point_in_the_table_of_compounds) {
    const auto Zeilen = ab_Zeile(Text(Stoffe(',')), "Compound\t");
    EXPECT_EQ(Zeilen.at(1), "parent\t200.25");
    EXPECT_EQ(Zeilen.at(2), "first metabolite\t150.75                       \t100          \t50.5");
    EXPECT_EQ(Zeilen.at(3), "second metabolite\t100.125                       \t100          \t30.25");
}

// The number is the same, so nothing else in the report may differ.
TEST_P(Dezimalkomma, leaves_the_report_of_the_point_to_the_byte) {
    EXPECT_EQ(Text(Stoffe(',')), Text(Stoffe('.')));
    EXPECT_EQ(Text(Stoffe(',').regelmaessige_Gaben(3, 14)), Text(Stoffe('.').regelmaessige_Gaben(3, 14)));
    EXPECT_EQ(Text(Stoffe(',').Termine(Tabelle(','))), Text(Stoffe('.').Termine(Tabelle('.'))));
}

// Commas of names are none of numbers.
TEST_P(Dezimalkomma, stays_in_names) {
    Lauf_bauer b = Stoffe(',');
    b.Felder.Beschreibung = "1,5 kg";
    b.Felder.Name_Met_1 = "2,4-D";
    b.Felder.Studie = {"3,5"};
    const std::string t = Text(b);
    EXPECT_EQ(Wert_in(Zeile_mit(t, "Calculation problem")), "1,5 kg");
    EXPECT_THAT(t, HasSubstr("RESULTS FOR: 2,4-D\r\n"));
    EXPECT_EQ(Wert_in(Zeile_mit(t, "Soil study:")), "3,5");
}

INSTANTIATE_TEST_SUITE_P(Bericht, Dezimalkomma, ::testing::Values(erstelle_Standardbericht, erstelle_erweiterten_Bericht),
                         [](const auto& i) { return i.param == erstelle_Standardbericht ? "standard" : "extended"; });

TEST(Punkttext, of_one_number_has_a_point) {
    EXPECT_EQ(Punkttext("12,5"), "12.5");
    EXPECT_EQ(Punkttext("12.5"), "12.5");
    EXPECT_EQ(Punkttext("1000"), "1000");
    EXPECT_EQ(Punkttext("01"), "01");
    EXPECT_EQ(Punkttext(" 12,50 "), " 12.50 ");
    EXPECT_EQ(Punkttext("+0,5"), "+0.5");
    EXPECT_EQ(Punkttext("-,5"), "-.5");
    EXPECT_EQ(Punkttext("5,"), "5.");
    EXPECT_EQ(Punkttext("1,5E-05"), "1.5E-05");
    EXPECT_EQ(Punkttext("1,5e3"), "1.5e3");
}

TEST(Punkttext, of_anything_else_stays) {
    for (const char* Text : {"", " ", ",", "-,", "a,b", "12,5 %", "12,5g", "1,2,3", "1.250,5", "1,250.5", "1 250,5", "1,5E",
                             "1,5E-", "E,5", "--1,5", "about 1,5"}) {
        EXPECT_EQ(Punkttext(Text), Text);
    }
}

}  // namespace
}  // namespace varnok::probe
