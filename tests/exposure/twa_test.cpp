// Time-weighted averages.

#include "exposure/twa.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/laufzeitfehler.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

// A run whose integral is what a test says; averages are searched in it alone.
Lauf mit_Integral(double (*Integral)(int)) {
    Lauf l = Lauf_bauer().baue();
    for (const Endpunktart e : alle_Endpunkte) {
        const auto Reihe = l.Speicher.Integral_Bodentiefe(e, 0, 0);
        for (int d = 0; d <= letzter_Tag; ++d) Reihe[static_cast<std::size_t>(d)] = static_cast<float>(Integral(d));
    }
    return l;
}

float Mittel(const Lauf& l, std::size_t j, std::size_t e = 0, std::size_t c = 0) { return l.Speicher.TWA_Maximum[e][0][c][j]; }
int Start(const Lauf& l, std::size_t j, std::size_t e = 0, std::size_t c = 0) { return l.Speicher.TWA_Starttag[e][0][c][j]; }

TEST(TWA_Liste, the_regulation_has_ten_windows) {
    EXPECT_EQ(TWA_Eintraege(Laufparameter{}),
              (std::vector<std::string>{"TWA (1 d)", "TWA (2 d)", "TWA (4 d)", "TWA (7 d)", "TWA (14 d)", "TWA (21 d)",
                                        "TWA (28 d)", "TWA (42 d)", "TWA (50 d)", "TWA (100 d)"}));
}

TEST(TWA_Liste, the_monthly_list_has_twelve) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA_Zeiten = Monatsliste;
    const auto Eintraege = TWA_Eintraege(b.Felder.Parameter);
    ASSERT_EQ(Eintraege.size(), 12U);
    EXPECT_EQ(Eintraege.front(), "TWA (30 d)");
    EXPECT_EQ(Eintraege.back(), "TWA (360 d)");
}

TEST(TWA_Liste, the_28_or_the_30_day_window_is_preselected) {
    Lauf_bauer b;
    EXPECT_EQ(TWA_Eintraege(b.Felder.Parameter)[static_cast<std::size_t>(TWA_Vorauswahl(EU_Liste))], "TWA (28 d)");
    b.Felder.Parameter.TWA_Zeiten = Monatsliste;
    EXPECT_EQ(TWA_Eintraege(b.Felder.Parameter)[static_cast<std::size_t>(TWA_Vorauswahl(Monatsliste))], "TWA (30 d)");
}

TEST(TWA_Liste, an_edited_length_is_narrowed_to_single_precision) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA.EU[0] = 0.1;
    EXPECT_EQ(TWA_Fenster(b.Felder.Parameter)[0], 0.1F);
    EXPECT_EQ(TWA_Eintraege(b.Felder.Parameter)[0], "TWA (0.1 d)");
    EXPECT_EQ(TWA_Eintraege(b.Felder.Parameter, ',')[0], "TWA (0,1 d)");
}

TEST(TWA, are_the_means_of_the_series_in_double_precision) {
    const Lauf l = Lauf_bauer().nach_DFOP(0.05, 0.005, 0.5).regelmaessige_Gaben(3, 25).rechne();
    std::vector<double> Integral = {static_cast<double>(Boden(l, 0))};
    for (int d = 1; d < 3650; ++d)
        Integral.push_back(Integral.back() + (static_cast<double>(Boden(l, d)) + static_cast<double>(Boden(l, d - 1))) / 2);
    for (std::size_t j = 1; j <= 10; ++j) {
        const auto L = static_cast<std::size_t>(TWA_Fenster(l.Felder.Parameter)[j - 1]);
        double groesstes = 0;
        for (std::size_t d = 0; d + L < 3650; ++d)
            groesstes = std::max(groesstes, (Integral[d + L] - Integral[d]) / static_cast<double>(L));
        // Each day of the stored integral rounds by 2^-24 of its size, 2^-23 of it over a window.
        EXPECT_NEAR(Mittel(l, j), groesstes, Integral.back() * 0x1p-23) << L;
    }
}

TEST(TWA, of_a_constant_concentration_is_that_concentration) {
    const Lauf l = Lauf_bauer().nach_SFO(0).rechne();
    for (std::size_t j = 1; j <= 10; ++j) EXPECT_NEAR(Mittel(l, j), 4.0 / 3, 1E-3) << j;
}

TEST(TWA, of_a_single_dose_start_on_day_0) {
    const Lauf l = Lauf_bauer().nach_SFO(0.02).rechne();
    for (std::size_t j = 1; j <= 10; ++j) EXPECT_EQ(Start(l, j), 0) << j;
}

TEST(TWA, the_first_day_counts_by_the_difference_of_the_integral) {
    const Lauf l = Lauf_bauer().nach_SFO(0.5).rechne();
    EXPECT_NEAR(Mittel(l, 1), (4.0 / 3 + 4.0 / 3 * std::exp(-0.5)) / 2, 1E-6);
}

TEST(TWA, of_two_equal_windows_the_first_keeps_its_day) {
    // Two steps of the same height, on days 10 and 1000.
    Lauf l = mit_Integral([](int d) { return d < 10 ? 0.0 : d < 1000 ? 1.0 : 2.0; });
    berechne_TWA(l);
    EXPECT_EQ(Start(l, 1), 9);
    EXPECT_EQ(Mittel(l, 1), 1.0F);
}

TEST(TWA, of_a_compound_that_never_appears_are_0_on_day_0) {
    const Lauf l = Lauf_bauer().Schema(1).Bildungsanteile(0).rechne();
    for (std::size_t e = 0; e < 2; ++e) {
        for (std::size_t j = 1; j <= 10; ++j) {
            EXPECT_EQ(Mittel(l, j, e, 1), 0.0F);
            EXPECT_EQ(Start(l, j, e, 1), 0);
        }
    }
}

TEST(TWA, an_old_value_does_not_survive_a_smaller_one) {
    Lauf l = Lauf_bauer().Dosis("5000").rechne();
    ASSERT_TRUE(Lauf_bauer().Dosis("10").rechne_in(l).gelungen());
    EXPECT_NEAR(Mittel(l, 1), 0.01327, 1E-4);
}

TEST(TWA, pore_water_has_its_own) {
    const Lauf l = Lauf_bauer().nach_SFO(0.02).rechne();
    EXPECT_GT(Mittel(l, 5, 1), 0.0F);
    EXPECT_LT(Mittel(l, 5, 1), Mittel(l, 5, 0));
}

// ---- the last window ----

// Everything happens on the last day, so that the last window wins.
Lauf am_Ende(double Laenge) {
    Lauf l = mit_Integral([](int d) { return d == letzter_Tag ? 1.0 : 0.0; });
    l.Felder.Parameter.TWA.EU[0] = Laenge;
    berechne_TWA(l);
    return l;
}

TEST(Letztes_Fenster, of_100_days_starts_on_day_3549) { EXPECT_EQ(Start(am_Ende(100), 1), 3549); }

TEST(Letztes_Fenster, of_360_days_starts_on_day_3289) { EXPECT_EQ(Start(am_Ende(360), 1), 3289); }

TEST(Letztes_Fenster, of_3649_days_is_the_whole_run) {
    EXPECT_EQ(Start(am_Ende(3649), 1), 0);
    EXPECT_EQ(Mittel(am_Ende(3649), 1), 1.0F / 3649);
}

TEST(Letztes_Fenster, a_longer_one_than_the_run_finds_nothing) {
    EXPECT_EQ(Mittel(am_Ende(3650), 1), 0.0F);
    EXPECT_EQ(Start(am_Ende(3650), 1), 0);
    EXPECT_EQ(Mittel(am_Ende(1E9), 1), 0.0F);
}

// ---- lengths that are no whole numbers ----

// The end of the window is rounded, the divisor is not.
TEST(Gebrochenes_Fenster, divides_by_the_length_as_stored) {
    Lauf l = mit_Integral([](int d) { return d < 10 ? 0.0 : 3.0; });
    l.Felder.Parameter.TWA.EU[0] = 1.25;
    berechne_TWA(l);
    EXPECT_EQ(Mittel(l, 1), 2.4F);  // 3 / 1.25
    EXPECT_EQ(Start(l, 1), 9);
}

TEST(Gebrochenes_Fenster, ties_of_the_end_go_to_the_even_day) {
    // From day 0, 2.5 days end on day 2; from day 1, 3.5 end on day 4.
    Lauf l = mit_Integral([](int d) { return d < 2 ? 0.0 : 1.0; });
    l.Felder.Parameter.TWA.EU[0] = 2.5;
    berechne_TWA(l);
    EXPECT_EQ(Start(l, 1), 0);
    Lauf m = mit_Integral([](int d) { return d < 3 ? 0.0 : 1.0; });
    m.Felder.Parameter.TWA.EU[0] = 2.5;
    berechne_TWA(m);
    EXPECT_EQ(Start(m, 1), 1);
}

TEST(Gebrochenes_Fenster, a_window_that_rounds_to_no_day_finds_nothing) {
    Lauf l = mit_Integral([](int d) { return static_cast<double>(d); });
    l.Felder.Parameter.TWA.EU[0] = 0.25;
    berechne_TWA(l);
    EXPECT_EQ(Mittel(l, 1), 0.0F);
}

TEST(Gebrochenes_Fenster, half_a_day_behind_the_run_reads_the_spare_days_as_0) {
    Lauf l = mit_Integral([](int d) { return static_cast<double>(d); });
    l.Felder.Parameter.TWA.EU[0] = 1.5;
    berechne_TWA(l);
    EXPECT_NEAR(Mittel(l, 1), 2 / 1.5, 1E-6);
}

TEST(TWA, a_length_of_0_is_a_fault) {
    Lauf l = mit_Integral([](int d) { return static_cast<double>(d); });
    l.Felder.Parameter.TWA.EU[3] = 0;
    EXPECT_THROW(berechne_TWA(l), Laufzeitfehler);
}

TEST(TWA, places_behind_the_last_window_keep_their_values) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA_Zeiten = Monatsliste;
    Lauf l = b.rechne();
    const float zwoelftes = Mittel(l, 12);
    ASSERT_TRUE(Lauf_bauer().Dosis("1").rechne_in(l).gelungen());
    EXPECT_EQ(Mittel(l, 12), zwoelftes);
}

}  // namespace
}  // namespace varnok::probe
