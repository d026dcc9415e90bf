// DFOP, FOMC and HS of the parent.

#include <gtest/gtest.h>

#include <cmath>

#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

constexpr double C0 = 4.0 / 3;  // 1000 g/ha in 5 cm of 1.5 kg/L, mg/kg

double einfach_genau(double v, int Rundungen) { return std::abs(v) * (Rundungen + 2) * 0x1p-24; }

// The whole soil series within the rounding of its days, and an absolute hair where nothing is left.
void erwarte_gleich(const Lauf& a, const Lauf& b, double Genauigkeit) {
    for (int d = 0; d < 3650; ++d) {
        ASSERT_NEAR(Boden(a, d), Boden(b, d), Genauigkeit * std::abs(Boden(b, d)) + 1E-30) << d;
        ASSERT_NEAR(Plateau(a, d), Plateau(b, d), Genauigkeit * std::abs(Plateau(b, d)) + 1E-30) << d;
    }
}

const double Tagesrundungen = 3650 * 0x1p-24;

// ---- DFOP ----

TEST(DFOP, follows_the_sum_of_two_exponentials) {
    const Lauf l = Lauf_bauer().nach_DFOP(0.05, 0.002, 0.7).rechne();
    for (const int d : {1, 10, 100, 1000, 3649}) {
        const double C = C0 * (0.7 * std::exp(-0.05 * d) + 0.3 * std::exp(-0.002 * d));
        EXPECT_NEAR(Boden(l, d), C, einfach_genau(C, 2)) << d;  // the compartments keep double precision
    }
}

TEST(DFOP, both_rates_take_the_correction) {
    const Lauf l = Lauf_bauer().nach_DFOP(0.05, 0.002, 0.7).Temperatur(10).rechne();
    const double C = C0 * (0.7 * std::exp(-0.05 / 2.58 * 100) + 0.3 * std::exp(-0.002 / 2.58 * 100));
    EXPECT_NEAR(Boden(l, 100), C, einfach_genau(C, 2));
}

TEST(DFOP, with_all_in_the_first_compartment_is_SFO_with_k1) {
    erwarte_gleich(Lauf_bauer().nach_DFOP(0.01, 0.5, 1).regelmaessige_Gaben(2, 20).rechne(),
                   Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 20).rechne(), Tagesrundungen);
}

TEST(DFOP, with_all_in_the_second_compartment_is_SFO_with_k2) {
    erwarte_gleich(Lauf_bauer().nach_DFOP(0.5, 0.01, 0).regelmaessige_Gaben(2, 20).rechne(),
                   Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 20).rechne(), Tagesrundungen);
}

TEST(DFOP, with_equal_rates_is_SFO) {
    erwarte_gleich(Lauf_bauer().nach_DFOP(0.01, 0.01, 0.3).regelmaessige_Gaben(2, 20).rechne(),
                   Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 20).rechne(), Tagesrundungen);
}

// Each compartment decays on its own, so the dose before does not matter.
TEST(DFOP, repeated_doses_are_exact_in_every_way_to_keep_residues) {
    const auto Fall = [](int r) {
        return Lauf_bauer().nach_DFOP(0.05, 0.001, 0.7).regelmaessige_Gaben(3, 20).Rueckstaende(r).rechne();
    };
    const Lauf zusammen = Fall(0);
    erwarte_gleich(Fall(1), zusammen, 40 * 0x1p-24);
    erwarte_gleich(Fall(2), zusammen, 40 * 0x1p-24);
}

TEST(DFOP, on_the_day_of_a_dose_the_store_is_the_sum_of_the_compartments) {
    const Lauf l = Lauf_bauer().nach_DFOP(0.05, 0.002, 0.7).regelmaessige_Gaben(2, 20).rechne();
    const double alt = 0.7 * std::exp(-0.05 * 20) + 0.3 * std::exp(-0.002 * 20);
    EXPECT_NEAR(Boden(l, 20), C0 * (alt + 1), einfach_genau(C0 * 2, 2));
}

// ---- FOMC ----

double FOMC_Rest(double t, double alpha, double beta) { return 1 / std::pow(t / beta + 1, alpha); }

TEST(FOMC, follows_its_curve_from_the_first_dose) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).rechne();
    for (const int d : {1, 10, 100, 364}) EXPECT_NEAR(Boden(l, d), C0 * FOMC_Rest(d, 0.8, 15), einfach_genau(C0, 2)) << d;
}

TEST(FOMC, rounding_does_not_accumulate) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).Rueckstaende(1).rechne();
    const double C = C0 * FOMC_Rest(3649, 0.8, 15);
    EXPECT_NEAR(Boden(l, 3649), C, einfach_genau(C, 2));
}

TEST(FOMC, temperature_acts_on_time) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).Temperatur(10).rechne();
    EXPECT_NEAR(Boden(l, 100), C0 * FOMC_Rest(100 / 2.58, 0.8, 15), einfach_genau(C0, 3));
}

TEST(FOMC, with_a_very_large_beta_approaches_SFO) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.01 * 1E8, 1E8).rechne();
    for (const int d : {1, 50, 364}) EXPECT_NEAR(Boden(l, d), C0 * std::exp(-0.01 * d), 1E-6) << d;
}

TEST(FOMC, where_time_stands_still_the_concentration_stays) {
    // No moisture at all, as long as nothing rains.
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).Feuchte(40, 0).Wetter({{0, 9, 20}}).rechne();
    for (int d = 2; d < 365; ++d) ASSERT_EQ(Boden(l, d), Boden(l, 1)) << d;
}

TEST(FOMC, a_second_dose_without_separation_restarts_the_whole_residue) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).regelmaessige_Gaben(2, 30).rechne();
    const double Start = C0 * (1 + FOMC_Rest(30, 0.8, 15));
    EXPECT_NEAR(Boden(l, 30), Start, einfach_genau(Start, 2));
    for (const int d : {31, 50, 200}) EXPECT_NEAR(Boden(l, d), Start * FOMC_Rest(d - 30, 0.8, 15), einfach_genau(Start, 3)) << d;
}

TEST(FOMC, kept_apart_each_dose_has_its_own_curve) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).regelmaessige_Gaben(2, 30).Rueckstaende(1).rechne();
    for (const int d : {31, 50, 200, 3649}) {
        const double C = C0 * (FOMC_Rest(d, 0.8, 15) + FOMC_Rest(d - 30, 0.8, 15));
        EXPECT_NEAR(Boden(l, d), C, einfach_genau(C, 4)) << d;
    }
}

TEST(FOMC, after_a_second_dose_falls_faster_without_separation) {
    const Lauf zusammen = Lauf_bauer().nach_FOMC(0.8, 15).regelmaessige_Gaben(2, 30).rechne();
    const Lauf getrennt = Lauf_bauer().nach_FOMC(0.8, 15).regelmaessige_Gaben(2, 30).Rueckstaende(1).rechne();
    EXPECT_NEAR(Boden(zusammen, 30), Boden(getrennt, 30), 1E-6);
    EXPECT_LT(Boden(zusammen, 31), Boden(getrennt, 31));
    EXPECT_LT(Boden(zusammen, 100), Boden(getrennt, 100));
}

// The clock is shared by both series: a dose of a later year resets it.
TEST(FOMC, without_separation_the_soil_depth_repeats_its_saw_tooth_every_year) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).regelmaessige_Gaben(2, 30).rechne();
    for (int Jahr = 1; Jahr < 10; ++Jahr) {
        EXPECT_EQ(Boden(l, 365 * Jahr + 100), Boden(l, 100)) << Jahr;
    }
}

TEST(FOMC, without_separation_the_soil_depth_rises_on_the_day_after_a_later_dose) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).rechne();
    EXPECT_LT(Boden(l, 365), Boden(l, 364));
    EXPECT_GT(Boden(l, 366), Boden(l, 365));
    EXPECT_EQ(Boden(l, 366), Boden(l, 1));
}

TEST(FOMC, kept_apart_the_soil_depth_only_falls) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).Rueckstaende(1).rechne();
    for (int d = 1; d < 3650; ++d) ASSERT_LE(Boden(l, d), Boden(l, d - 1)) << d;
}

TEST(FOMC, the_yearly_merge_restarts_the_residue_of_all_years) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).Rueckstaende(2).rechne();
    const double Start = C0 / 4 * (1 + FOMC_Rest(365, 0.8, 15));
    EXPECT_NEAR(Plateau(l, 365), Start, einfach_genau(Start, 3));
    EXPECT_NEAR(Plateau(l, 465), Start * FOMC_Rest(100, 0.8, 15), einfach_genau(Start, 3));
}

TEST(FOMC, merged_slots_stay_empty) {
    const Lauf l = Lauf_bauer().nach_FOMC(0.8, 15).Rueckstaende(2).regelmaessige_Gaben(2, 30).rechne();
    for (int d = 365; d < 3650; ++d) ASSERT_EQ(Plateauslot(l, 1, d) + Plateauslot(l, 2, d), 0.0F) << d;
}

// The slot refers to the event of its number, and on that day it was still empty.
TEST(FOMC, behind_a_row_of_rate_0_a_slot_falls_to_0_on_the_day_after_its_dose) {
    const Lauf l = Lauf_bauer()
                       .nach_FOMC(0.8, 15)
                       .Rueckstaende(1)
                       .Termine({{"1", "3", "500", "0"}, {"11", "3", "0", "0"}, {"21", "3", "700", "0"}})
                       .rechne();
    EXPECT_GT(Bodenslot(l, 2, 20), 0.0F);
    EXPECT_EQ(Bodenslot(l, 2, 21), 0.0F);
    EXPECT_GT(Bodenslot(l, 1, 21), 0.0F);
}

TEST(FOMC, a_denominator_beyond_all_numbers_leaves_nothing) {
    const Lauf l = Lauf_bauer().nach_FOMC(1000, 0.001).rechne();
    EXPECT_GT(Boden(l, 0), 0.0F);
    EXPECT_EQ(Boden(l, 1), 0.0F);
}

// ---- HS ----

TEST(HS, two_exponentials_in_sequence) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0.002, 40).rechne();
    EXPECT_NEAR(Boden(l, 25), C0 * std::exp(-0.05 * 25), einfach_genau(C0, 25));
    EXPECT_NEAR(Boden(l, 300), C0 * std::exp(-0.05 * 40 - 0.002 * 260), einfach_genau(C0, 300));
}

TEST(HS, the_day_of_the_breakpoint_belongs_to_the_first_phase) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0, 40).rechne();
    EXPECT_LT(Boden(l, 40), Boden(l, 39));
    EXPECT_EQ(Boden(l, 41), Boden(l, 40));
}

TEST(HS, with_a_very_large_breakpoint_is_SFO_with_k1) {
    erwarte_gleich(Lauf_bauer().nach_HS(0.01, 0.5, 1E9).regelmaessige_Gaben(2, 20).rechne(),
                   Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 20).rechne(), 0);
}

TEST(HS, with_a_breakpoint_of_0_is_SFO_with_k2) {
    erwarte_gleich(Lauf_bauer().nach_HS(0.5, 0.01, 0).regelmaessige_Gaben(2, 20).rechne(),
                   Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 20).rechne(), 0);
}

TEST(HS, the_breakpoint_counts_in_biological_time) {
    const Lauf l = Lauf_bauer().Korrektur(2, 0, 20).nach_HS(0.05, 0, 40).Temperatur(30).rechne();  // twice as fast
    EXPECT_LT(Boden(l, 20), Boden(l, 19));
    EXPECT_EQ(Boden(l, 21), Boden(l, 20));
    EXPECT_NEAR(Boden(l, 21), C0 * std::exp(-0.05 * 2 * 20), einfach_genau(C0, 21));
}

TEST(HS, a_dose_without_separation_takes_all_residue_back_to_the_first_phase) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0, 40).regelmaessige_Gaben(2, 100).rechne();
    EXPECT_EQ(Boden(l, 99), Boden(l, 41));
    EXPECT_NEAR(Boden(l, 140), Boden(l, 100) * std::exp(-0.05 * 40), 1E-6);
    EXPECT_EQ(Boden(l, 141), Boden(l, 140));
}

TEST(HS, kept_apart_the_old_residue_stays_in_its_phase) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0, 40).regelmaessige_Gaben(2, 100).Rueckstaende(1).rechne();
    for (int d = 41; d < 3650; ++d) ASSERT_EQ(Bodenslot(l, 1, d), Bodenslot(l, 1, 41)) << d;
}

TEST(HS, a_later_dose_without_separation_takes_the_soil_depth_back_to_k1) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0, 40).rechne();
    EXPECT_EQ(Boden(l, 365), Boden(l, 100));
    EXPECT_LT(Boden(l, 366), Boden(l, 365));
    EXPECT_NEAR(Boden(l, 405), Boden(l, 365) * std::exp(-0.05 * 40), 1E-7);
}

TEST(HS, the_yearly_merge_starts_in_the_first_phase) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0, 40).Rueckstaende(2).rechne();
    EXPECT_NEAR(Plateau(l, 405), Plateau(l, 365) * std::exp(-0.05 * 40), 1E-6);
    EXPECT_EQ(Plateau(l, 406), Plateau(l, 405));
}

TEST(HS, within_a_year_slots_run_apart_after_the_merge) {
    const Lauf l = Lauf_bauer().nach_HS(0.05, 0, 40).Rueckstaende(2).regelmaessige_Gaben(2, 100).rechne();
    EXPECT_EQ(Plateauslot(l, 3, 365 + 100), Plateauslot(l, 3, 365 + 41));
    EXPECT_EQ(Plateauslot(l, 3, 365 + 200), Plateauslot(l, 3, 365 + 41));
}

}  // namespace
}  // namespace varnok::probe
