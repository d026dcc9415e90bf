// Metabolites: formation, decay, and the two schemes with two of them.

#include "exposure/metabolit.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

float Bildung(const Lauf& l, int Metabolit, int d) {
    return l.Speicher.Bildung_Bodentiefe[static_cast<std::size_t>(Metabolit)][static_cast<std::size_t>(d)];
}
float Bildung_Plateau(const Lauf& l, int Metabolit, int d) {
    return l.Speicher.Bildung_Plateautiefe[static_cast<std::size_t>(Metabolit)][static_cast<std::size_t>(d)];
}

// Parent with two doses a year; the metabolite is not corrected unless a case says so.
Lauf_bauer mit_Metabolit(int Schema = 1) {
    Lauf_bauer b;
    b.Schema(Schema).nach_SFO(0.02).regelmaessige_Gaben(2, 40);
    b.nach_SFO(0.004, 1).nach_SFO(0.006, 2).Korrektur(1, 0, 20, 1).Korrektur(1, 0, 20, 2);
    return b;
}

// Each day rounds the store twice at most; n days are off by n times that.
double Genauigkeit(double v, int Tage) { return std::abs(v) * (2 * Tage + 4) * 0x1p-24; }

TEST(Bildung, is_what_the_parent_lost_in_the_mass_of_the_metabolite) {
    const Lauf l = mit_Metabolit().Molmassen(200, 150).Bildungsanteile(50).rechne();
    for (const int d : {1, 39, 41, 400}) {
        const double Verlust = static_cast<double>(Boden(l, d - 1)) - static_cast<double>(Boden(l, d));
        EXPECT_NEAR(Bildung(l, 0, d), Verlust * 0.5 * 0.75, 1E-9) << d;
    }
}

TEST(Bildung, goes_on_under_a_dose) {
    const Lauf l = mit_Metabolit().Molmassen(200, 200).Bildungsanteile(100).rechne();
    EXPECT_NEAR(Bildung(l, 0, 40), static_cast<double>(Boden(l, 39)) * (1 - std::exp(-0.02)), 1E-8);
}

TEST(Bildung, is_kept_for_both_depths) {
    const Lauf l = mit_Metabolit().rechne();
    EXPECT_NEAR(Bildung_Plateau(l, 0, 20), Bildung(l, 0, 20) / 4, 1E-9);
    EXPECT_GT(Bildung_Plateau(l, 0, 400), Bildung(l, 0, 400) / 4 * 2);  // the tillage depth took the doses of year 2
}

TEST(Bildung, nothing_forms_on_day_0) { EXPECT_EQ(Bildung(mit_Metabolit().rechne(), 0, 0), 0.0F); }

TEST(Bildung, of_parallel_metabolites_takes_a_share_of_the_parent_each) {
    const Lauf l = mit_Metabolit(2).Molmassen(200, 100, 50).Bildungsanteile(60, 20).rechne();
    for (const int d : {1, 41, 400}) EXPECT_NEAR(Bildung(l, 1, d), Bildung(l, 0, d) * (0.2 * 0.25) / (0.6 * 0.5), 1E-9) << d;
}

TEST(Bildung, without_a_second_metabolite_its_place_stays_empty) {
    const Lauf l = mit_Metabolit(1).Bildungsanteile(60, 20).rechne();
    for (int d = 0; d < Tagesplaetze; ++d) ASSERT_EQ(Bildung(l, 1, d) + Bildung_Plateau(l, 1, d), 0.0F) << d;
}

TEST(Bildung, without_metabolites_both_places_stay_empty) {
    const Lauf l = mit_Metabolit(0).Bildungsanteile(60, 20).rechne();
    for (int d = 0; d < Tagesplaetze; ++d) ASSERT_EQ(Bildung(l, 0, d) + Bildung(l, 1, d), 0.0F) << d;
}

// Under FOMC without separate residues a later dose resets the clock of the soil depth as well.
TEST(Bildung, is_negative_where_the_parent_rises_without_a_dose) {
    Lauf_bauer b = mit_Metabolit();
    const Lauf l = b.nach_FOMC(0.8, 15).rechne();
    EXPECT_LT(Bildung(l, 0, 366), 0.0F);
    EXPECT_GT(Bildung_Plateau(l, 0, 366), 0.0F);
}

// ---- the series ----

TEST(Metabolit, is_0_on_day_0_and_appears_on_day_1) {
    const Lauf l = mit_Metabolit().rechne();
    EXPECT_GT(Boden(l, 0), 0.0F);
    EXPECT_EQ(Boden(l, 0, 1), 0.0F);
    EXPECT_EQ(Plateau(l, 0, 1), 0.0F);
    EXPECT_EQ(Boden(l, 1, 1), Bildung(l, 0, 1));
    EXPECT_EQ(l.Speicher.Integral_Bodentiefe(Gesamtgehalt, 0, 1)[0], 0.0F);
}

TEST(Metabolit, what_forms_on_a_day_decays_from_the_next_day_on) {
    const Lauf l = mit_Metabolit().rechne();
    EXPECT_NEAR(Boden(l, 2, 1), Bildung(l, 0, 1) * std::exp(-0.004) + Bildung(l, 0, 2), 1E-9);
}

TEST(Metabolit, SFO_is_the_sum_of_its_decayed_daily_formation) {
    const Lauf l = mit_Metabolit().rechne();
    for (const int d : {1, 2, 50, 365, 1000, 3649}) {
        double Summe = 0;
        for (int j = 1; j <= d; ++j) Summe += static_cast<double>(Bildung_Plateau(l, 0, j)) * std::exp(-0.004 * (d - j));
        EXPECT_NEAR(Plateau(l, d, 1), Summe, Genauigkeit(Summe, d)) << d;
    }
}

TEST(Metabolit, DFOP_is_the_sum_of_its_decayed_daily_formation) {
    const Lauf l = mit_Metabolit().nach_DFOP(0.03, 0.001, 0.6, 1).rechne();
    for (const int d : {1, 2, 50, 365, 1000, 3649}) {
        double Summe = 0;
        for (int j = 1; j <= d; ++j) {
            Summe += static_cast<double>(Bildung(l, 0, j)) * (0.6 * std::exp(-0.03 * (d - j)) + 0.4 * std::exp(-0.001 * (d - j)));
        }
        EXPECT_NEAR(Boden(l, d, 1), Summe, Genauigkeit(Summe, d)) << d;
    }
}

TEST(Metabolit, SFO_parent_and_SFO_metabolite_follow_the_daily_Bateman_sum) {
    // One dose: formation of day j is C0 (e^-kp(j-1) - e^-kp j) f, a geometric sum with the decay of the metabolite.
    const double p = std::exp(-0.02);
    const double m = std::exp(-0.004);
    const Lauf l = Lauf_bauer().Schema(1).nach_SFO(0.02).nach_SFO(0.004, 1).Molmassen(200, 200).Bildungsanteile(50).rechne();
    for (const int d : {1, 10, 200, 364}) {
        const double C = 4.0 / 3 * 0.5 * (1 - p) * (std::pow(m, d) - std::pow(p, d)) / (m - p);
        EXPECT_NEAR(Boden(l, d, 1), C, Genauigkeit(4.0 / 3, d)) << d;
    }
}

TEST(Metabolit, DFOP_keeps_its_compartments_in_slots_1_and_2) {
    const Lauf l = mit_Metabolit().nach_DFOP(0.03, 0.001, 0.6, 1).rechne();
    EXPECT_NEAR(Bodenslot(l, 1, 1, 1), Bildung(l, 0, 1) * 0.6, 1E-9);
    EXPECT_NEAR(Bodenslot(l, 2, 1, 1), Bildung(l, 0, 1) * 0.4, 1E-9);
    for (const int d : {1, 100, 3649}) EXPECT_EQ(Boden(l, d, 1), Bodenslot(l, 1, d, 1) + Bodenslot(l, 2, d, 1)) << d;
}

TEST(Metabolit, with_g_of_1_the_second_compartment_stays_empty) {
    const Lauf l = mit_Metabolit().nach_DFOP(0.03, 0.001, 1, 1).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Bodenslot(l, 2, d, 1) + Plateauslot(l, 2, d, 1), 0.0F) << d;
}

TEST(Metabolit, decays_with_its_own_correction) {
    // The parent has no factor at 10 degrees, the metabolite half.
    Lauf_bauer b = mit_Metabolit();
    const Lauf l = b.Korrektur(1, 0, 20, 0).Korrektur(2, 0, 20, 1).Temperatur(10).rechne();
    double Summe = 0;
    for (int j = 1; j <= 300; ++j) Summe += static_cast<double>(Bildung(l, 0, j)) * std::exp(-0.002 * (300 - j));
    EXPECT_NEAR(Boden(l, 300, 1), Summe, Genauigkeit(Summe, 300));
}

TEST(Metabolit, constant_climate_ignores_the_Walker_exponent) {
    const Lauf a = mit_Metabolit().Korrektur(2.58, 0, 20, 1).rechne();
    const Lauf b = mit_Metabolit().Korrektur(2.58, 3, 20, 1).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(a, d, 1), Plateau(b, d, 1)) << d;
}

TEST(Metabolit, without_Q10_and_Walker_every_climate_gives_the_same_decay) {
    Lauf_bauer b = mit_Metabolit();
    b.Korrektur(1, 0, 20, 0);
    const Lauf fest = b.rechne();
    const Lauf wechselnd = b.Wetter(wechselndes_Wetter(365)).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(fest, d, 1), Plateau(wechselnd, d, 1)) << d;
}

TEST(Metabolit, sees_the_same_weather_as_the_parent) {
    // The same constants and one slot each: a day's factor shows in the decay of either.
    Lauf_bauer b;
    b.Schema(1)
        .nach_SFO(0.02)
        .nach_SFO(0.02, 1)
        .Molmassen(200, 200)
        .Bildungsanteile(100)
        .Wetter(wechselndes_Wetter(200))
        .Beginn(6, 1);
    const Lauf l = b.rechne();
    for (const int d : {2, 150, 199, 200, 201, 364}) {
        const double Stamm = static_cast<double>(Boden(l, d)) / static_cast<double>(Boden(l, d - 1));
        const double Rest = (static_cast<double>(Boden(l, d, 1)) - static_cast<double>(Bildung(l, 0, d))) /
                            static_cast<double>(Boden(l, d - 1, 1));
        EXPECT_NEAR(Rest, Stamm, 1E-6) << d;
    }
}

TEST(Metabolit, a_climate_of_one_year_repeats_without_a_gap) {
    const Lauf ein_Jahr = mit_Metabolit().Korrektur(2.58, 0.7, 20, 1).Wetter(wechselndes_Wetter(365)).rechne();
    auto zwei = wechselndes_Wetter(365);
    const auto eins = zwei;
    zwei.insert(zwei.end(), eins.begin(), eins.end());
    const Lauf zwei_Jahre = mit_Metabolit().Korrektur(2.58, 0.7, 20, 1).Wetter(zwei).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(ein_Jahr, d, 1), Plateau(zwei_Jahre, d, 1)) << d;
}

TEST(Metabolit, the_peak_of_a_compound_that_never_forms_is_never_seen) {
    const Lauf l = mit_Metabolit().Bildungsanteile(0).rechne();
    EXPECT_EQ(l.Speicher.Maximum_Bodentiefe[0][0][1], 0.0F);
    EXPECT_EQ(l.Speicher.Maximumtag_Bodentiefe[0][0][1], -99);
    EXPECT_EQ(l.Speicher.Jahresmaximum[0][0][1][1], 0.0F);  // 0 beats the mark below it
    EXPECT_EQ(l.Speicher.Maximumtag_Plateautiefe[0][0][1], 3285);
}

TEST(Metabolit, pore_water_is_a_rescaling_with_its_own_KOC) {
    const Lauf l = mit_Metabolit().KOC(300, 1).rechne();
    const double PW = 2 * 300 / 100.0 + 0.4 / 1.5;
    for (const int d : {1, 100, 3649}) {
        EXPECT_NEAR(Boden(l, d, 1, Porenwasser), Boden(l, d, 1) / PW, 1E-6 * static_cast<double>(Boden(l, d, 1))) << d;
        EXPECT_NEAR(Plateau(l, d, 1, Porenwasser), Plateau(l, d, 1) / PW, 1E-6 * static_cast<double>(Plateau(l, d, 1))) << d;
    }
}

// ---- the sequence ----

TEST(Folge, the_second_metabolite_gains_what_the_first_loses) {
    const Lauf l = mit_Metabolit(3).Molmassen(200, 100, 100).Bildungsanteile(50, 100).rechne();
    for (const int d : {2, 100, 1000}) {
        const double Verlust = static_cast<double>(Boden(l, d - 1, 1)) * (1 - std::exp(-0.004));
        EXPECT_NEAR(Bildung(l, 1, d), Verlust, 2E-7 * static_cast<double>(Boden(l, d - 1, 1))) << d;
    }
}

TEST(Folge, the_share_is_one_of_the_first_metabolite_in_the_mass_of_the_second) {
    const Lauf l = mit_Metabolit(3).Molmassen(200, 100, 50).Bildungsanteile(50, 40).rechne();
    const double Verlust = static_cast<double>(Boden(l, 99, 1)) * (1 - std::exp(-0.004));
    EXPECT_NEAR(Bildung(l, 1, 100), Verlust * 0.4 * 0.5, 1E-7 * static_cast<double>(Boden(l, 99, 1)));
}

TEST(Folge, a_DFOP_metabolite_passes_on_the_loss_of_both_compartments) {
    const Lauf l = mit_Metabolit(3).nach_DFOP(0.03, 0.001, 0.6, 1).Molmassen(200, 100, 100).Bildungsanteile(50, 100).rechne();
    const double Verlust = static_cast<double>(Bodenslot(l, 1, 99, 1)) * (1 - std::exp(-0.03)) +
                           static_cast<double>(Bodenslot(l, 2, 99, 1)) * (1 - std::exp(-0.001));
    EXPECT_NEAR(Bildung(l, 1, 100), Verlust, 2E-7 * static_cast<double>(Boden(l, 99, 1)));
}

TEST(Folge, the_chain_delays_the_second_metabolite_by_one_more_day) {
    const Lauf l = mit_Metabolit(3).rechne();
    EXPECT_EQ(Boden(l, 0, 2), 0.0F);
    EXPECT_EQ(Boden(l, 1, 2), 0.0F);
    EXPECT_GT(Boden(l, 2, 2), 0.0F);
}

TEST(Folge, the_second_metabolite_is_the_sum_of_its_decayed_daily_formation) {
    const Lauf l = mit_Metabolit(3).rechne();
    for (const int d : {2, 365, 3649}) {
        double Summe = 0;
        for (int j = 1; j <= d; ++j) Summe += static_cast<double>(Bildung_Plateau(l, 1, j)) * std::exp(-0.006 * (d - j));
        EXPECT_NEAR(Plateau(l, d, 2), Summe, Genauigkeit(Summe, d)) << d;
    }
}

TEST(Folge, formation_of_an_earlier_study_is_overwritten) {
    Lauf l = mit_Metabolit(3).Dosis("5000").rechne();
    ASSERT_TRUE(mit_Metabolit(3).Studie(1).rechne_in(l).gelungen());
    const Lauf frisch = mit_Metabolit(3).rechne();
    EXPECT_EQ(l.Speicher.Bildung_Plateautiefe, frisch.Speicher.Bildung_Plateautiefe);
}

TEST(Parallel, the_second_metabolite_starts_with_the_first) {
    const Lauf l = mit_Metabolit(2).rechne();
    EXPECT_GT(Boden(l, 1, 1), 0.0F);
    EXPECT_GT(Boden(l, 1, 2), 0.0F);
}

TEST(Parallel, equal_metabolites_have_equal_series) {
    Lauf_bauer b = mit_Metabolit(2);
    const Lauf l = b.nach_SFO(0.004, 2).Molmassen(200, 150, 150).Bildungsanteile(30, 30).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(l, d, 1), Plateau(l, d, 2)) << d;
}

// ---- reversed moisture limits in constant climate ----

// (wilting point / field capacity)^Walker speeds the first routine up; the second one stays at field capacity.
TEST(Verkehrte_Feuchtegrenzen, the_first_metabolite_works_with_the_wilting_point) {
    Lauf_bauer b = mit_Metabolit(1);
    const Lauf l = b.Feuchte(20, 40).Korrektur(1, 1, 20, 1).rechne();
    double Summe = 0;
    for (int j = 1; j <= 300; ++j) Summe += static_cast<double>(Bildung(l, 0, j)) * std::exp(-0.008 * (300 - j));
    EXPECT_NEAR(Boden(l, 300, 1), Summe, Genauigkeit(Summe, 300));
}

TEST(Verkehrte_Feuchtegrenzen, so_does_the_second_parallel_one) {
    Lauf_bauer b = mit_Metabolit(2);
    const Lauf l = b.Feuchte(20, 40).Korrektur(1, 1, 20, 2).rechne();
    double Summe = 0;
    for (int j = 1; j <= 300; ++j) Summe += static_cast<double>(Bildung(l, 1, j)) * std::exp(-0.012 * (300 - j));
    EXPECT_NEAR(Boden(l, 300, 2), Summe, Genauigkeit(Summe, 300));
}

TEST(Verkehrte_Feuchtegrenzen, the_second_of_a_sequence_works_with_field_capacity) {
    Lauf_bauer b = mit_Metabolit(3);
    const Lauf l = b.Feuchte(20, 40).Korrektur(1, 1, 20, 2).rechne();
    double Summe = 0;
    for (int j = 1; j <= 300; ++j) Summe += static_cast<double>(Bildung(l, 1, j)) * std::exp(-0.006 * (300 - j));
    EXPECT_NEAR(Boden(l, 300, 2), Summe, Genauigkeit(Summe, 300));
}

}  // namespace
}  // namespace varnok::probe
