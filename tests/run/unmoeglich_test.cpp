// Input that makes the arithmetic impossible: a message with the value, and no result.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <ostream>

#include "base/laufzeitfehler.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

const std::string Anfang = "The calculation is not possible with these input data. Please correct! (";

std::string Fehlertext(const Lauf_bauer& b, Lauf& l) {
    try {
        b.rechne_in(l);
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
    return {};
}

std::string Fehlertext(const Lauf_bauer& b) {
    Lauf l = b.baue();
    return Fehlertext(b, l);
}

struct Fall {
    std::string Name;
    std::string Wert;  // what the message names
    std::function<void(Lauf_bauer&)> setze;
};

void PrintTo(const Fall& f, std::ostream* Strom) { *Strom << f.Name; }

const std::vector<Fall> Faelle = {
    {"density_0", "Soil density (kg/L) = 0)", [](Lauf_bauer& b) { b.Boden(0, 5, 20); }},
    {"density_negative", "Soil density (kg/L) = -1.5)", [](Lauf_bauer& b) { b.Boden(-1.5, 5, 20); }},
    {"depth_0", "Soil depth (cm) = 0)", [](Lauf_bauer& b) { b.Boden(1.5, 0, 20); }},
    {"depth_negative", "Soil depth (cm) = -5)", [](Lauf_bauer& b) { b.Boden(1.5, -5, 20); }},
    {"tillage_depth_0", "Plateaudepth (cm) = 0)", [](Lauf_bauer& b) { b.Boden(1.5, 5, 0); }},
    {"tillage_depth_negative", "Plateaudepth (cm) = -20)", [](Lauf_bauer& b) { b.Boden(1.5, 5, -20); }},
    {"field_capacity_0", "Field capacity (Vol%) = 0)", [](Lauf_bauer& b) { b.Feuchte(0, 0); }},
    {"field_capacity_negative", "Field capacity (Vol%) = -4)", [](Lauf_bauer& b) { b.Feuchte(-4, 0); }},
    {"density_not_a_number", "Soil density (kg/L) = nan)", [](Lauf_bauer& b) { b.Felder.Parameter.Bodendichte = std::nan(""); }},
    {"molar_mass_of_the_parent_0", "molar mass of parent = 0)", [](Lauf_bauer& b) { b.Schema(1).Molmassen(0, 100); }},
    {"molar_mass_of_the_parent_empty", "molar mass of parent = )",
     [](Lauf_bauer& b) { b.Schema(1).Felder.Molmasse_Wirkstoff = ""; }},
    {"molar_mass_of_the_first_metabolite_0_in_a_sequence", "molar mass of first metabolite = 0)",
     [](Lauf_bauer& b) { b.Schema(3).Molmassen(200, 0, 100); }},
    {"beta_0", "FOMC beta = 0)", [](Lauf_bauer& b) { b.nach_FOMC(1, 0); }},
    {"Q10_beyond_all_numbers", "Q10-factor = 1E+200", [](Lauf_bauer& b) { b.Korrektur(1E200, 0, 0).Temperatur(40); }},
    {"Q10_0_below_the_reference", "Q10-factor = 0", [](Lauf_bauer& b) { b.Korrektur(0, 0, 20).Temperatur(10); }},
    {"Q10_of_a_metabolite", "Q10-factor = 1E+200", [](Lauf_bauer& b) { b.Schema(1).Korrektur(1E200, 0, 0, 1).Temperatur(40); }},
    {"Walker_negative_without_moisture", "Walker-exponent = -1",
     [](Lauf_bauer& b) {
         b.Korrektur(1, -1, 20).Feuchte(40, 0).Wetter({{0, 9, 20}});
     }},
    {"rate_1E308", "Application rate (g/ha) = 1E308", [](Lauf_bauer& b) { b.Dosis("1E308"); }},
    {"rate_beyond_single_precision", "Application rate (g/ha) = 1E39", [](Lauf_bauer& b) { b.Dosis("1E39"); }},
    {"rate_beyond_all_numbers", "Application rate (g/ha) = 1E999", [](Lauf_bauer& b) { b.Dosis("1E999"); }},
    {"interception_beyond_all_numbers", "Crop interception (%) = -1E400", [](Lauf_bauer& b) { b.Dosis("0", "-1E400"); }},
    {"rate_in_a_row_of_the_table", "Application rate (g/ha) = 1E308",
     [](Lauf_bauer& b) {
         b.Termine({{"1", "3", "5", "0"}, {"1", "4", "1E308", "0"}});
     }},
    {"rate_below_0", "Application rate (g/ha) = -5, Crop interception (%) = 0)", [](Lauf_bauer& b) { b.Dosis("-5"); }},
    {"rate_below_0_in_a_row_of_the_table", "Application rate (g/ha) = -0.1",
     [](Lauf_bauer& b) {
         b.Termine({{"1", "3", "5", "0"}, {"1", "4", "-0.1", "0"}});
     }},
    {"interception_above_100", "Crop interception (%) = 100.5)", [](Lauf_bauer& b) { b.Dosis("100", "100.5"); }},
    {"two_wrongs_that_make_a_dose_above_0", "Application rate (g/ha) = -5, Crop interception (%) = 150)",
     [](Lauf_bauer& b) { b.Dosis("-5", "150"); }},
    {"KOC_below_0", "KOC (L/kg) = -3400)", [](Lauf_bauer& b) { b.KOC(-3400); }},
    {"KOC_of_a_metabolite_below_0", "KOC (L/kg) = -1)", [](Lauf_bauer& b) { b.Schema(1).Felder.Parameter.KOC[1][0] = -1; }},
    {"KOC_no_number", "KOC (L/kg) = nan)", [](Lauf_bauer& b) { b.KOC(std::nan("")); }},
    {"fraction_g_below_0", "DFOP g = -0.01)", [](Lauf_bauer& b) { b.nach_DFOP(0.1, 0.01, -0.01); }},
    {"fraction_g_above_1", "DFOP g = 1.01)", [](Lauf_bauer& b) { b.nach_DFOP(0.1, 0.01, 1.01); }},
    {"concentration_beyond_single_precision", "concentration of parent on day",
     [](Lauf_bauer& b) { b.Dosis("3E38").Boden(0.01, 0.01, 20); }},
    {"negative_k_grows_beyond_all_numbers", "concentration of parent on day", [](Lauf_bauer& b) { b.nach_SFO(-1); }},
    {"negative_k_beyond_all_numbers_in_the_effective_rate", "SFO k (1/d) = -100",
     [](Lauf_bauer& b) { b.regelmaessige_Gaben(2, 100).nach_SFO(-100); }},
    {"negative_k_of_a_metabolite", "concentration of first metabolite on day",
     [](Lauf_bauer& b) { b.Schema(1).nach_SFO(-1, 1); }},
    {"formation_beyond_single_precision", "concentration of first metabolite on day",
     [](Lauf_bauer& b) { b.Schema(1).Bildungsanteile(1E300); }},
    {"unknown_kinetics_of_the_parent", "kinetics of the parent = 4)",
     [](Lauf_bauer& b) { b.Felder.Parameter.Kinetik[0][0] = static_cast<Kinetikart>(4); }},
    {"FOMC_of_a_metabolite", "kinetics of first metabolite = 2)",
     [](Lauf_bauer& b) { b.Schema(1).Felder.Parameter.Kinetik[1][0] = FOMC; }},
    {"window_of_0_days", "length of TWA window 3 (d) = 0)", [](Lauf_bauer& b) { b.Felder.Parameter.TWA.EU[2] = 0; }},
    {"window_of_negative_days", "length of TWA window 1 (d) = -7)", [](Lauf_bauer& b) { b.Felder.Parameter.TWA.EU[0] = -7; }},
    {"no_pore_water_without_sorption_and_moisture", "KOC (L/kg) = 0",
     [](Lauf_bauer& b) {
         b.KOC(0).Korrektur(1, 0, 20).Feuchte(40, 0).Wetter({{0, 9, 20}});
     }},
    {"plateau_beyond_single_precision", "final plateau of parent", [](Lauf_bauer& b) { b.nach_SFO(1E-9).Dosis("1E37"); }},
};

class Unmoeglich : public ::testing::TestWithParam<Fall> {
protected:
    Lauf_bauer gestoert() const {
        Lauf_bauer b;
        GetParam().setze(b);
        return b;
    }
};

TEST_P(Unmoeglich, the_message_names_the_value) {
    const std::string Text = Fehlertext(gestoert());
    EXPECT_EQ(Text.substr(0, Anfang.size()), Anfang);
    EXPECT_NE(Text.find(GetParam().Wert), std::string::npos) << Text;
}

TEST_P(Unmoeglich, the_stores_of_the_study_are_cleared) {
    Lauf l = Lauf_bauer().Schema(3).rechne();
    ASSERT_NE(Fehlertext(gestoert(), l), "");
    EXPECT_TRUE(geleert(l, 0));
}

TEST_P(Unmoeglich, no_store_holds_a_number_that_is_not_finite) {
    Lauf l = Lauf_bauer().Schema(3).rechne();
    ASSERT_NE(Fehlertext(gestoert(), l), "");
    EXPECT_EQ(nicht_endlicher_Speicher(l, 0), "");
}

INSTANTIATE_TEST_SUITE_P(Eingabe, Unmoeglich, ::testing::ValuesIn(Faelle), [](const auto& Info) { return Info.param.Name; });

TEST(Unmoegliche_Rechnung, values_that_no_run_reads_are_no_fault) {
    Lauf_bauer b;
    b.Felder.Parameter.KOC[1][0] = -1;    // no metabolite
    b.Felder.Parameter.g_DFOP[0][0] = 7;  // SFO
    b.Felder.Parameter.KOC[0][1] = -1;    // another study
    EXPECT_EQ(Fehlertext(b), "");
}

TEST(Unmoegliche_Rechnung, ends_of_the_ranges_are_calculated) {
    EXPECT_EQ(Fehlertext(Lauf_bauer().KOC(0)), "");
    EXPECT_EQ(Fehlertext(Lauf_bauer().nach_DFOP(0.1, 0.01, 0)), "");
    EXPECT_EQ(Fehlertext(Lauf_bauer().nach_DFOP(0.1, 0.01, 1)), "");
    EXPECT_EQ(Fehlertext(Lauf_bauer().Dosis("0", "100")), "");
    // The table repairs what is above 99 % before any dose is made of it.
    EXPECT_EQ(Fehlertext(Lauf_bauer().Termine({{"1", "3", "5", "150"}, {"1", "4", "5", "0"}})), "");
}

// One fault of each stage: before the parent, within its series, in a metabolite, in the averages.
const std::vector<Lauf_bauer> je_Stufe = {Lauf_bauer().Boden(0, 5, 20), Lauf_bauer().nach_SFO(-1),
                                          Lauf_bauer().Schema(1).nach_SFO(-1, 1), Lauf_bauer().Schema(3).Molmassen(200, 0)};

TEST(Unmoegliche_Rechnung, leaves_the_other_studies_byte_for_byte) {
    Lauf l = Lauf_bauer().Schema(3).Studie(1).rechne();
    const std::string davor = Abbild(l, 1);
    for (const auto& b : je_Stufe) {
        ASSERT_NE(Fehlertext(b, l), "");
        EXPECT_TRUE(Abbild(l, 1) == davor);
    }
}

TEST(Unmoegliche_Rechnung, the_next_run_with_sound_input_is_as_if_nothing_had_been) {
    const Lauf_bauer gesund = Lauf_bauer().Schema(3).nach_DFOP(0.05, 0.002, 0.7);
    const Lauf frisch = gesund.rechne();
    for (const auto& b : je_Stufe) {
        Lauf l = b.baue();
        ASSERT_NE(Fehlertext(b, l), "");
        ASSERT_TRUE(gesund.rechne_in(l).gelungen());
        l.Speicher.Plateaujahr = frisch.Speicher.Plateaujahr;  // a run does not always write it
        EXPECT_TRUE(Abbild(l, 0) == Abbild(frisch, 0));
        EXPECT_TRUE(Abbild_gemeinsam(l) == Abbild_gemeinsam(frisch));
    }
}

// A summary shows the studies side by side: no peak of 0 may stand beside an average of a former dose.
TEST(Unmoegliche_Rechnung, leaves_no_average_of_a_former_run) {
    Lauf l = Lauf_bauer().rechne();
    ASSERT_NE(Fehlertext(Lauf_bauer().Boden(0, 5, 20), l), "");
    EXPECT_EQ(l.Speicher.TWA_Maximum[0][0][0], (std::array<float, TWA_Plaetze>{}));
}

// ---- what is no fault ----

TEST(Moeglich, a_molar_mass_of_0_that_nothing_divides_by) {
    EXPECT_EQ(Fehlertext(Lauf_bauer().Schema(0).Molmassen(0, 0, 0)), "");
    EXPECT_EQ(Fehlertext(Lauf_bauer().Schema(1).Molmassen(200, 0, 0)), "");
    EXPECT_EQ(Fehlertext(Lauf_bauer().Schema(2).Molmassen(200, 0, 0)), "");
    EXPECT_EQ(Fehlertext(Lauf_bauer().Schema(3).Molmassen(200, 100, 0)), "");
}

TEST(Moeglich, a_beta_of_0_under_another_kinetics) { EXPECT_EQ(Fehlertext(Lauf_bauer().nach_FOMC(1, 0).nach_SFO(0.01)), ""); }

TEST(Moeglich, a_metabolite_that_is_not_in_the_scheme_may_be_anything) {
    EXPECT_EQ(Fehlertext(Lauf_bauer().Schema(0).Korrektur(1E200, 0, 0, 1).nach_SFO(-100, 2).Temperatur(20)), "");
}

TEST(Moeglich, a_reversed_pair_of_moisture_limits) { EXPECT_EQ(Fehlertext(Lauf_bauer().Schema(3).Feuchte(10, 40)), ""); }

// On day 0 the mean moisture stands in for field capacity, so that only this day's pore water is out of range.
TEST(Unmoegliche_Rechnung, pore_water_of_day_0_beyond_single_precision) {
    const Lauf_bauer b = Lauf_bauer().nach_SFO(5).KOC(0).Feuchte(40, 0).Boden(1.5, 5, 2.5).Dosis("2.25E37").Einheit(1);
    Lauf l = b.baue();
    EXPECT_NE(Fehlertext(b, l), "");
    EXPECT_EQ(nicht_endlicher_Speicher(l, 0), "");
}

}  // namespace
}  // namespace varnok::probe
