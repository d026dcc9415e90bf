// The background that remains in the long run.

#include "exposure/plateau.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/laufzeitfehler.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

constexpr int Met = 1;  // a metabolite always takes the estimate

// A run that has reached the plateau: only the yearly peaks matter.
Lauf mit_Peaks(double erstes, double achtes, double neuntes, double zehntes, int i_substanz = Met) {
    Lauf l = Lauf_bauer().Schema(1).baue();
    l.i_substanz = i_substanz;
    for (const Endpunktart e : alle_Endpunkte) {
        auto& J = l.Speicher.Jahresmaximum[static_cast<std::size_t>(e)][0][static_cast<std::size_t>(i_substanz)];
        const float Teiler = e == 0 ? 1.0F : 2.0F;
        J[1] = static_cast<float>(erstes) / Teiler;
        J[8] = static_cast<float>(achtes) / Teiler;
        J[9] = static_cast<float>(neuntes) / Teiler;
        J[10] = static_cast<float>(zehntes) / Teiler;
    }
    return l;
}

Lauf berechnet(Lauf l) {
    berechne_Plateau(l);
    return l;
}

float Wert_von(const Lauf& l, int e = 0) {
    return l.Speicher.Plateauwert[static_cast<std::size_t>(e)][0][static_cast<std::size_t>(l.i_substanz)];
}
double Zuwachs(const Lauf& l, int e = 0) {
    return l.Speicher.Plateauzuwachs[static_cast<std::size_t>(e)][0][static_cast<std::size_t>(l.i_substanz)];
}
std::string Text(const Lauf& l, int e = 0) {
    return l.Speicher.Plateautext[static_cast<std::size_t>(e)][0][static_cast<std::size_t>(l.i_substanz)];
}
float Jahr(const Lauf& l, int e = 0) {
    return l.Speicher.Plateaujahr[static_cast<std::size_t>(e)][0][static_cast<std::size_t>(l.i_substanz)];
}

const std::string grenzenlos = " grow without limit: there is no final plateau. The growth over 10 years is shown instead.";

// ---- the estimate ----

TEST(Schaetzung, takes_the_first_peak_off_the_plateau) {
    const double k = 0.3;
    const auto y = [&](int t) { return 5 * (1 - std::exp(-k * t)); };
    const Lauf l = berechnet(mit_Peaks(y(1), y(8), y(9), y(10)));
    EXPECT_NEAR(Wert_von(l), 5 - y(1), 1E-4);
    EXPECT_NEAR(Zuwachs(l), y(10) - y(1), 1E-6);
    EXPECT_EQ(Text(l), "93% of the final plateau");  // 3.4551 of 3.7041
}

TEST(Schaetzung, runs_for_both_endpoints) {
    const Lauf l = berechnet(mit_Peaks(1, 1.8, 1.9, 1.95));
    EXPECT_GT(Wert_von(l, 0), 0);
    EXPECT_EQ(Wert_von(l, 1), Wert_von(l, 0) / 2);
    EXPECT_EQ(Text(l, 1), Text(l, 0));
}

TEST(Schaetzung, without_growth_there_is_no_background) {
    const Lauf l = berechnet(mit_Peaks(2, 1.5, 1.5, 1.5));
    for (const Endpunktart e : alle_Endpunkte) {
        EXPECT_EQ(Zuwachs(l, e), 0) << int{e};
        EXPECT_EQ(Wert_von(l, e), 0) << int{e};
        EXPECT_EQ(Text(l, e), "100% of the final plateau") << int{e};
        EXPECT_EQ(Jahr(l, e), 10) << int{e};
    }
}

// A metabolite with a formation fraction of 0.
TEST(Schaetzung, a_compound_that_never_appears_has_no_background) {
    const Lauf l = berechnet(mit_Peaks(0, 0, 0, 0));
    EXPECT_EQ(Wert_von(l), 0);
    EXPECT_EQ(Text(l), "100% of the final plateau");
    EXPECT_TRUE(l.Warnungen.empty());
}

TEST(Schaetzung, a_peak_that_falls_at_the_end_has_passed_the_plateau) {
    const Lauf l = berechnet(mit_Peaks(1, 2, 3, 2.5));
    EXPECT_EQ(Wert_von(l), 2);  // the peak of year 9 less that of year 1
    EXPECT_EQ(Text(l), "75% of the final plateau");
    EXPECT_EQ(Wert_von(l, 1), 1);
    EXPECT_EQ(Text(l, 1), "75% of the final plateau");
}

// Two neighbouring singles: the fall lies at the edge of what the search resolves.
TEST(Schaetzung, a_fall_by_one_part_in_ten_million_has_passed_the_plateau) {
    const float y_9 = 1.0625F;
    const float y_10 = std::nextafter(y_9, 0.0F);  // 1 - 1.12E-7
    EXPECT_EQ(Wert_von(berechnet(mit_Peaks(0.5, 1, y_9, y_10))), y_9 - 0.5F);
}

TEST(Schaetzung, a_lesser_fall_is_still_searched) {
    const float y_9 = 1.9375F;
    const float y_10 = std::nextafter(y_9, 0.0F);  // 1 - 0.62E-7
    EXPECT_NEAR(Wert_von(berechnet(mit_Peaks(0.5, 1, y_9, y_10))), finde_maximales_Plateau(y_9, y_10, 9, 10) - 0.5, 1E-6);
}

TEST(Schaetzung, linear_growth_has_no_plateau) {
    const Lauf l = berechnet(mit_Peaks(1, 8, 9, 10));
    for (const Endpunktart e : alle_Endpunkte) {
        EXPECT_EQ(Wert_von(l, e), static_cast<float>(Zuwachs(l, e))) << int{e};
        EXPECT_EQ(Text(l, e), "0% of the final plateau") << int{e};
    }
    EXPECT_EQ(Zuwachs(l), 9);
}

TEST(Schaetzung, growth_within_rounding_of_the_linear_one_has_no_plateau) {
    EXPECT_EQ(Text(berechnet(mit_Peaks(1, 8, 9, 9 * (10.0 / 9 - 0.9E-5)))), "0% of the final plateau");
}

TEST(Schaetzung, growth_a_little_slower_has_one) {
    const Lauf l = berechnet(mit_Peaks(1, 8, 9, 9 * (10.0 / 9 - 1.2E-5)));
    EXPECT_GT(Wert_von(l), 1000);  // far above the growth of 9 so far
    EXPECT_TRUE(l.Warnungen.empty());
}

TEST(Schaetzung, growth_from_nothing_has_no_plateau) {
    const Lauf l = berechnet(mit_Peaks(0, 0, 0, 1));
    EXPECT_EQ(Wert_von(l), 1);
    EXPECT_EQ(Text(l), "0% of the final plateau");
}

TEST(Schaetzung, the_user_is_told_of_growth_without_limit_once_for_both_endpoints) {
    const Lauf l = berechnet(mit_Peaks(1, 8, 9, 10));
    EXPECT_EQ(l.Warnungen, (std::vector<std::string>{"The residues of first metabolite" + grenzenlos}));
}

TEST(Schaetzung, the_year_of_the_vertex_stays_where_there_is_growth) {
    Lauf l = mit_Peaks(1, 1.8, 1.9, 1.95);
    l.Speicher.Plateaujahr[0][0][Met] = 17;
    EXPECT_EQ(Jahr(berechnet(std::move(l))), 17);
}

// ---- which way is taken ----

Lauf_bauer Stamm(double k = 0.002) { return Lauf_bauer().nach_SFO(k); }

// The closed series of one year's dose, in double precision.
double geschlossene_Reihe(double Wirksame_Rate, double k) {
    const double x = std::exp(-365 * k);
    return Wirksame_Rate / 1000 / (1.5 * 2) * x / (1 - x);
}

TEST(Geschlossen, SFO_parent_in_constant_climate_is_a_geometric_series) {
    const Lauf l = Stamm().rechne();
    EXPECT_NEAR(Wert_von(l), geschlossene_Reihe(1000, 0.002), 1E-6);
}

TEST(Geschlossen, equals_the_peak_of_a_very_long_run_less_one_dose) {
    // Half a year of half-life: after ten years the series has come to its end.
    const Lauf l = Stamm(0.004).rechne();
    EXPECT_NEAR(Wert_von(l), Plateau(l, 3285) - Plateau(l, 0), 1E-6);
}

TEST(Geschlossen, several_doses_count_decayed_to_the_last_one) {
    const Lauf l = Stamm().regelmaessige_Gaben(2, 30).rechne();
    EXPECT_NEAR(Wert_von(l), geschlossene_Reihe(1000 * (1 + std::exp(-0.06)), 0.002), 1E-6);
}

TEST(Geschlossen, corrects_k_for_temperature) {
    const Lauf l = Stamm().Temperatur(10).rechne();
    EXPECT_NEAR(Wert_von(l), geschlossene_Reihe(1000, 0.002 / 2.58), 1E-6);
}

TEST(Geschlossen, variable_climate_without_Q10_and_Walker_too) {
    const Lauf l = Stamm().Korrektur(1, 0, 20).Wetter({{1, 2, 10}}).rechne();
    EXPECT_NEAR(Wert_von(l), geschlossene_Reihe(1000, 0.002), 1E-6);
}

TEST(Geschlossen, micrograms_are_a_thousand_times_as_many) {
    EXPECT_NEAR(Wert_von(Stamm().Einheit(1).rechne()), 1000 * geschlossene_Reihe(1000, 0.002), 1E-3);
}

TEST(Geschlossen, tells_the_part_of_the_plateau_reached_after_ten_years) {
    const Lauf l = Stamm(0.0002).rechne();  // x = 0.9296, 1 - x^9 = 0.4816
    EXPECT_EQ(Text(l), "48% of the final plateau");
}

TEST(Geschlossen, fast_decay_leaves_a_tiny_background_and_100_percent) {
    const Lauf l = Stamm(std::log(2) / 10).rechne();
    EXPECT_GT(Wert_von(l), 0);
    EXPECT_LT(Wert_von(l), 1E-10);
    EXPECT_EQ(Text(l), "100% of the final plateau");
}

TEST(Geschlossen, very_fast_decay_stays_above_0_by_the_lower_limit) {
    const Lauf l = Stamm(10).rechne();
    EXPECT_NEAR(Wert_von(l), 1E-30 / 3, 1E-36);
    EXPECT_DOUBLE_EQ(Zuwachs(l), 1E-30 / 3);  // no growth takes the plateau itself
    EXPECT_EQ(Text(l), "100% of the final plateau");
}

TEST(Geschlossen, without_a_dose_there_is_no_background) {
    const Lauf l = Stamm().Dosis("0").rechne();
    EXPECT_EQ(Wert_von(l), 0);
    EXPECT_EQ(Text(l), "100% of the final plateau");
    EXPECT_TRUE(l.Warnungen.empty());
}

TEST(Geschlossen, without_a_dose_and_without_decay_neither) {
    const Lauf l = Stamm(0).Dosis("0").rechne();
    EXPECT_EQ(Wert_von(l), 0);
    EXPECT_EQ(Text(l), "100% of the final plateau");
    EXPECT_TRUE(l.Warnungen.empty());
}

TEST(Geschlossen, a_plateau_below_all_singles_is_0_and_reached) {
    const Lauf l = Stamm(10).Dosis("1E-13").rechne();
    EXPECT_EQ(Wert_von(l), 0);
    EXPECT_EQ(Text(l), "100% of the final plateau");
}

TEST(Geschlossen, without_decay_the_residues_grow_without_limit) {
    const Lauf l = Stamm(0).rechne();
    EXPECT_NEAR(Wert_von(l), 9 * 1.0 / 3, 1E-5);
    EXPECT_EQ(Wert_von(l), static_cast<float>(Zuwachs(l)));
    EXPECT_EQ(Text(l), "0% of the final plateau");
    EXPECT_EQ(l.Warnungen, (std::vector<std::string>{"The residues of parent" + grenzenlos}));
}

TEST(Geschlossen, pore_water_has_no_background_after_a_first_run) {
    const Lauf l = Stamm().rechne();
    EXPECT_GT(Plateau(l, 3649, 0, Porenwasser), 0);
    EXPECT_EQ(Wert_von(l, 1), 0);
    EXPECT_EQ(Zuwachs(l, 1), 0);
    EXPECT_EQ(Text(l, 1), "");
}

// A background that an earlier run left would be that of another input.
TEST(Geschlossen, pore_water_has_no_background_whatever_was_calculated_before) {
    Lauf l = Lauf_bauer().nach_DFOP(0.01, 0.0005, 0.5).rechne();
    ASSERT_GT(Wert_von(l, 1), 0);
    ASSERT_TRUE(Stamm().rechne_in(l).gelungen());
    EXPECT_EQ(Wert_von(l, 1), 0);
    EXPECT_EQ(Text(l, 1), "");
    EXPECT_EQ(Zuwachs(l, 1), 0);
}

TEST(Wahl, SFO_in_variable_climate_with_a_Q10_is_estimated) {
    const Lauf l = Stamm().Korrektur(2, 0, 20).Wetter(wechselndes_Wetter(365)).rechne();
    EXPECT_GT(Wert_von(l, 1), 0);  // the estimate serves pore water as well
}

TEST(Wahl, SFO_in_variable_climate_with_a_Walker_exponent_is_estimated) {
    EXPECT_GT(Wert_von(Stamm().Korrektur(1, 0.7, 20).Wetter(wechselndes_Wetter(365)).rechne(), 1), 0);
}

TEST(Wahl, any_other_kinetics_of_the_parent_is_estimated) {
    EXPECT_GT(Wert_von(Lauf_bauer().nach_DFOP(0.002, 0.002, 0.5).rechne(), 1), 0);
    EXPECT_GT(Wert_von(Lauf_bauer().nach_HS(0.002, 0.002, 10).rechne(), 1), 0);
}

TEST(Wahl, a_metabolite_is_estimated_whatever_the_parent) {
    const Lauf l = Stamm().Schema(1).nach_SFO(0.001, 1).rechne();
    EXPECT_EQ(l.i_substanz, 1);
    EXPECT_GT(Wert_von(l, 1), 0);
}

TEST(Wahl, the_kinetics_is_that_of_the_study) {
    Lauf_bauer b = Stamm();
    b.Studie(2).nach_DFOP(0.002, 0.002, 0.5);
    const Lauf l = b.rechne();
    EXPECT_GT(l.Speicher.Plateauwert[1][2][0], 0);
}

// The same decay by both ways: two equal compartments, and the estimate from the peaks.
TEST(Wahl, both_ways_agree_where_both_apply) {
    const Lauf zu = Stamm(0.001).rechne();
    const Lauf geschaetzt = Lauf_bauer().nach_DFOP(0.001, 0.001, 0.5).rechne();
    EXPECT_NEAR(Wert_von(geschaetzt), Wert_von(zu), 1E-4 * Wert_von(zu));
}

TEST(Wahl, micrograms_do_not_count_twice_in_the_estimate) {
    const Lauf mg = Lauf_bauer().nach_DFOP(0.01, 0.0005, 0.5).rechne();
    const Lauf Mikrogramm = Lauf_bauer().nach_DFOP(0.01, 0.0005, 0.5).Einheit(1).rechne();
    EXPECT_NEAR(Wert_von(Mikrogramm), 1000 * Wert_von(mg), 1E-3 * 1000 * Wert_von(mg));
}

// ---- the warning in a run ----

TEST(Warnung, once_for_each_compound_that_grows_without_limit) {
    const Lauf l = Lauf_bauer().Schema(1).nach_DFOP(0, 0, 0.5).rechne();
    EXPECT_EQ(l.Warnungen.size(), 1U);
    const Lauf beide = Lauf_bauer().Schema(1).nach_SFO(0.01).nach_SFO(0, 1).rechne();
    EXPECT_EQ(beide.Warnungen, (std::vector<std::string>{"The residues of first metabolite" + grenzenlos}));
}

TEST(Warnung, does_not_outlive_its_run) {
    Lauf l = Stamm(0).rechne();
    ASSERT_EQ(l.Warnungen.size(), 1U);
    ASSERT_TRUE(Stamm().rechne_in(l).gelungen());
    EXPECT_TRUE(l.Warnungen.empty());
}

// ---- the vertex of the parabola through the last peaks ----

// The closed series with peaks as given; the parabola is fitted to those alone.
Lauf mit_Parabel(double a, double b, double c) {
    const auto y = [&](int t) { return a * t * t + b * t + c; };
    Lauf l = mit_Peaks(y(1), y(8), y(9), y(10), 0);
    l.Speicher.Plateaujahr[0][0][0] = 99;
    l.Speicher.Wirksame_Rate = 1000;
    return berechnet(std::move(l));
}

TEST(Plateaujahr, is_the_vertex_of_the_parabola) { EXPECT_NEAR(Jahr(mit_Parabel(-0.25, 6, 1)), 12, 1E-3); }

TEST(Plateaujahr, is_not_before_year_10) { EXPECT_EQ(Jahr(mit_Parabel(-0.25, 4, 100)), 10); }

TEST(Plateaujahr, is_10_for_equal_peaks) { EXPECT_EQ(Jahr(mit_Parabel(0, 0, 0)), 10); }

TEST(Plateaujahr, stays_where_the_parabola_opens_upwards) { EXPECT_EQ(Jahr(mit_Parabel(0.5, 1, 1)), 99); }

TEST(Plateauzuwachs, small_negative_differences_count_as_none) {
    EXPECT_EQ(Zuwachs(berechnet(mit_Peaks(1, 1, 1, 0.9999999))), 0);
}

}  // namespace
}  // namespace varnok::probe
