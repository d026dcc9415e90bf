// The parent's series: doses, slots, maxima, and SFO against its closed form.

#include "run/wirkstoff.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

constexpr double ln2 = 0.693147180559945309;

// Each day rounds once to 24 bits, half a unit at most: n days are off by n times that.
double einfach_genau(double v, int Rundungen) { return std::abs(v) * (Rundungen + 2) * 0x1p-24; }

TEST(Wirkstoff, one_kilogram_per_hectare_in_5_and_20_cm) {
    const Lauf l = Lauf_bauer().Dosis("1000").Boden(1.5, 5, 20).rechne();
    EXPECT_NEAR(Boden(l, 0), 4.0 / 3, einfach_genau(4.0 / 3, 1));
    EXPECT_NEAR(Plateau(l, 0), 1.0 / 3, einfach_genau(1.0 / 3, 1));
}

TEST(Wirkstoff, micrograms_are_a_thousand_times_as_many) {
    const Lauf l = Lauf_bauer().Dosis("1000").Boden(1.5, 5, 20).Einheit(1).rechne();
    EXPECT_NEAR(Boden(l, 0), 4000.0 / 3, einfach_genau(4000.0 / 3, 1));
    EXPECT_NEAR(Plateau(l, 365) - Plateau(l, 364) * std::exp(-0.01), 1000.0 / 3, 1E-3);
}

TEST(Wirkstoff, SFO_follows_the_exponential) {
    const double k = 0.002;
    const Lauf l = Lauf_bauer().nach_SFO(k).Dosis("1000").Boden(1.5, 5, 20).rechne();
    for (const int d : {1, 10, 364, 1000, 3649})
        EXPECT_NEAR(Boden(l, d), 4.0 / 3 * std::exp(-k * d), einfach_genau(4.0 / 3 * std::exp(-k * d), d)) << d;
}

TEST(Wirkstoff, temperature_speeds_SFO_up_by_Q10) {
    const double k = 0.002 / 2.58;
    const Lauf l = Lauf_bauer().nach_SFO(0.002).Temperatur(10).rechne();
    for (const int d : {1, 364, 3649}) EXPECT_NEAR(Boden(l, d), 4.0 / 3 * std::exp(-k * d), einfach_genau(4.0 / 3, d)) << d;
}

TEST(Wirkstoff, at_the_reference_temperature_k_is_unchanged) {
    const Lauf mit = Lauf_bauer().Korrektur(2.58, 0.7, 15).Temperatur(15).rechne();
    const Lauf ohne = Lauf_bauer().Korrektur(1, 0, 20).Temperatur(15).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(mit, d), Plateau(ohne, d)) << d;
}

TEST(Wirkstoff, yearly_doses_add_up_as_a_geometric_series) {
    const double x = std::exp(-0.002 * 365);
    const Lauf l = Lauf_bauer().nach_SFO(0.002).rechne();
    for (int Jahr = 1; Jahr <= 10; ++Jahr) {
        const double Peak = 1.0 / 3 * (1 - std::pow(x, Jahr)) / (1 - x);
        EXPECT_NEAR(l.Speicher.Jahresmaximum[0][0][0][static_cast<std::size_t>(Jahr)], Peak, einfach_genau(Peak, 365 * Jahr))
            << Jahr;
    }
}

TEST(Wirkstoff, without_degradation_the_residue_stays) {
    const Lauf l = Lauf_bauer().nach_SFO(0).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Boden(l, d), Boden(l, 0)) << d;
}

TEST(Wirkstoff, without_degradation_the_tillage_depth_counts_the_doses) {
    const Lauf l = Lauf_bauer().nach_SFO(0).rechne();
    EXPECT_NEAR(Plateau(l, 3649), 10.0 / 3, einfach_genau(10.0 / 3, 10));
}

TEST(Wirkstoff, SFO_is_the_same_in_all_three_ways_to_keep_residues) {
    std::vector<Lauf> Laeufe;
    for (int r = 0; r <= 2; ++r)
        Laeufe.push_back(Lauf_bauer().nach_SFO(0.003).regelmaessige_Gaben(4, 30).Rueckstaende(r).rechne());
    for (int d = 0; d < 3650; ++d) {
        ASSERT_NEAR(Plateau(Laeufe[1], d), Plateau(Laeufe[0], d), einfach_genau(Plateau(Laeufe[0], d), d + 40)) << d;
        ASSERT_NEAR(Plateau(Laeufe[2], d), Plateau(Laeufe[0], d), einfach_genau(Plateau(Laeufe[0], d), d + 40)) << d;
        ASSERT_NEAR(Boden(Laeufe[1], d), Boden(Laeufe[0], d), einfach_genau(Boden(Laeufe[0], d), d + 4)) << d;
        ASSERT_EQ(Boden(Laeufe[2], d), Boden(Laeufe[1], d)) << d;
    }
}

TEST(Wirkstoff, a_dose_takes_full_effect_on_its_day) {
    const Lauf l = Lauf_bauer().regelmaessige_Gaben(2, 50).rechne();
    EXPECT_NEAR(Boden(l, 50) - Boden(l, 49) * std::exp(-0.01), 4.0 / 3, 1E-6);
}

TEST(Wirkstoff, a_second_dose_of_year_1_raises_both_series) {
    const Lauf l = Lauf_bauer().regelmaessige_Gaben(2, 50).rechne();
    EXPECT_GT(Boden(l, 50), Boden(l, 49));
    EXPECT_GT(Plateau(l, 50), Plateau(l, 49));
}

TEST(Wirkstoff, the_first_dose_of_year_2_raises_the_tillage_depth_alone) {
    const Lauf l = Lauf_bauer().regelmaessige_Gaben(2, 50).rechne();
    EXPECT_LT(Boden(l, 365), Boden(l, 364));
    EXPECT_GT(Plateau(l, 365), Plateau(l, 364));
}

// ---- pore water ----

TEST(Porenwasser, day_0_sees_the_mean_moisture_and_later_days_field_capacity) {
    const Lauf l = Lauf_bauer().nach_SFO(0).KOC(0).Feuchte(40, 10).rechne();
    EXPECT_NEAR(Boden(l, 0, 0, Porenwasser), 4.0 / 3 / (0.25 / 1.5), 1E-5);
    EXPECT_NEAR(Boden(l, 1, 0, Porenwasser), 4.0 / 3 / (0.40 / 1.5), 1E-5);
    EXPECT_EQ(Boden(l, 0), Boden(l, 1));  // no step in total soil
}

TEST(Porenwasser, of_day_0_is_that_of_slot_1) {
    const Lauf l = Lauf_bauer().Feuchte(40, 10).rechne();
    const double PW = 2 * 100 / 100.0 + 0.25 / 1.5;
    EXPECT_EQ(Boden(l, 0, 0, Porenwasser), static_cast<float>(static_cast<double>(Bodenslot(l, 1, 0)) / PW));
    EXPECT_EQ(Plateau(l, 0, 0, Porenwasser), static_cast<float>(static_cast<double>(Plateauslot(l, 1, 0)) / PW));
}

TEST(Porenwasser, is_that_of_the_sum_of_all_slots) {
    const Lauf l = Lauf_bauer().Feuchte(40, 10).Rueckstaende(1).regelmaessige_Gaben(3, 10).rechne();
    const double PW = 2 * 100 / 100.0 + 0.4 / 1.5;
    for (int d = 1; d < 3650; ++d) {
        float Summe = 0;
        for (int Slot = 1; Slot < Slots_Plateau; ++Slot) Summe += Plateauslot(l, Slot, d);
        ASSERT_EQ(Plateau(l, d, 0, Porenwasser), static_cast<float>(static_cast<double>(Summe) / PW)) << d;
    }
}

TEST(Porenwasser, follows_the_moisture_of_the_day_in_variable_climate) {
    const Lauf l = Lauf_bauer().nach_SFO(0).KOC(0).Feuchte(40, 10).Wetter({{0, 9, 20}}).rechne();  // dry after one day
    EXPECT_NEAR(Boden(l, 1, 0, Porenwasser), 4.0 / 3 / (0.10 / 1.5), 1E-5);
}

// A table that begins with a row of rate 0 has no slot before its first dose, and the moisture of
// constant climate is set as the slots decay.
TEST(Porenwasser, without_a_slot_the_moisture_stays_at_its_mean_up_to_the_first_dose) {
    const Lauf l = Lauf_bauer()
                       .nach_SFO(0)
                       .KOC(0)
                       .Feuchte(40, 10)
                       .Rueckstaende(1)
                       .Termine({{"1", "3", "0", "0"}, {"6", "3", "1000", "0"}})
                       .rechne();
    EXPECT_NEAR(Boden(l, 5, 0, Porenwasser), 4.0 / 3 / (0.25 / 1.5), 1E-5);
    EXPECT_NEAR(Boden(l, 6, 0, Porenwasser), 4.0 / 3 / (0.40 / 1.5), 1E-5);
}

// ---- slots ----

TEST(Slots, together_in_one_slot_without_separation) {
    const Lauf l = Lauf_bauer().Rueckstaende(0).regelmaessige_Gaben(3, 20).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateauslot(l, 1, d), Plateau(l, d)) << d;
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateauslot(l, 2, d), 0.0F) << d;
}

TEST(Slots, one_for_each_event_when_kept_apart) {
    const Lauf l = Lauf_bauer().nach_SFO(0.001).Rueckstaende(1).regelmaessige_Gaben(20, 18).rechne();
    EXPECT_GT(Plateauslot(l, 200, 3649), 0.0F);
    EXPECT_EQ(Plateauslot(l, 201, 3649), 0.0F);
    EXPECT_GT(Bodenslot(l, 20, 3649), 0.0F);
}

TEST(Slots, the_soil_depth_holds_those_of_the_first_year_alone) {
    const Lauf l = Lauf_bauer().nach_SFO(0.001).Rueckstaende(1).regelmaessige_Gaben(20, 18).rechne();
    for (int Slot = 21; Slot < Slots_Boden; ++Slot) {
        for (int d = 0; d < 3650; ++d) ASSERT_EQ(Bodenslot(l, Slot, d), 0.0F) << Slot << " " << d;
    }
}

TEST(Slots, each_starts_on_the_day_of_its_event) {
    const Lauf l = Lauf_bauer().Rueckstaende(1).regelmaessige_Gaben(2, 30).rechne();
    for (int Slot = 1; Slot <= 20; ++Slot) {
        const int Tag = l.Speicher.Applikationstag[static_cast<std::size_t>(Slot)];
        EXPECT_EQ(Tag == 0 ? 0.0F : Plateauslot(l, Slot, Tag - 1), 0.0F) << Slot;
        EXPECT_NEAR(Plateauslot(l, Slot, Tag), 1.0 / 3, 1E-6) << Slot;
    }
}

TEST(Slots, the_sum_slot_adds_all_others_in_order) {
    const Lauf l = Lauf_bauer().Rueckstaende(1).regelmaessige_Gaben(3, 20).rechne();
    for (const int d : {0, 20, 364, 1000, 3649}) {
        float Summe = 0;
        for (int Slot = 1; Slot < Slots_Plateau; ++Slot) Summe += Plateauslot(l, Slot, d);
        EXPECT_EQ(Plateau(l, d), Summe) << d;
    }
}

TEST(Slots, merge_at_the_first_dose_of_a_year) {
    const Lauf l = Lauf_bauer().Rueckstaende(2).regelmaessige_Gaben(2, 30).rechne();
    EXPECT_GT(Plateauslot(l, 1, 364), 0.0F);
    for (int d = 365; d < 3650; ++d) ASSERT_EQ(Plateauslot(l, 1, d) + Plateauslot(l, 2, d), 0.0F) << d;
    EXPECT_EQ(Plateauslot(l, 3, 366), Plateau(l, 366));
    EXPECT_GT(Plateauslot(l, 3, 396), 0.0F);  // the second dose of the year keeps its own
    EXPECT_GT(Plateauslot(l, 4, 396), 0.0F);
}

// The curve of a slot may refer to that day later on.
TEST(Slots, a_merge_empties_the_day_of_the_old_event) {
    const Lauf l = Lauf_bauer().Rueckstaende(2).regelmaessige_Gaben(2, 30).rechne();
    EXPECT_EQ(Plateauslot(l, 1, 0), 0.0F);
    EXPECT_EQ(Plateauslot(l, 2, 30), 0.0F);
    EXPECT_GT(Plateauslot(l, 1, 1), 0.0F);
    EXPECT_GT(Plateau(l, 0), 0.0F);  // the sum of that day stays
}

TEST(Slots, the_soil_depth_never_merges) {
    const Lauf getrennt = Lauf_bauer().Rueckstaende(1).regelmaessige_Gaben(2, 30).rechne();
    const Lauf jaehrlich = Lauf_bauer().Rueckstaende(2).regelmaessige_Gaben(2, 30).rechne();
    for (int Slot = 0; Slot < Slots_Boden; ++Slot) {
        for (int d = 0; d < 3650; ++d) ASSERT_EQ(Bodenslot(jaehrlich, Slot, d), Bodenslot(getrennt, Slot, d)) << Slot << " " << d;
    }
}

// ---- a first day without a dose ----

Lauf erst_ab_Tag_10(int Rueckstaende) {
    return Lauf_bauer().Rueckstaende(Rueckstaende).Termine({{"1", "3", "0", "0"}, {"11", "3", "1000", "0"}}).rechne();
}

TEST(Erster_Tag, without_a_dose_stays_0_in_both_series) {
    for (int r = 0; r <= 2; ++r) {
        const Lauf l = erst_ab_Tag_10(r);
        for (int d = 0; d < 10; ++d) ASSERT_EQ(Boden(l, d) + Plateau(l, d), 0.0F) << r << " " << d;
        EXPECT_GT(Boden(l, 10), 0.0F) << r;
    }
}

TEST(Erster_Tag, without_a_dose_the_first_dose_takes_slot_1) {
    for (int r = 0; r <= 2; ++r) EXPECT_GT(Plateauslot(erst_ab_Tag_10(r), 1, 10), 0.0F) << r;
}

TEST(Erster_Tag, without_a_dose_the_maxima_start_from_0) {
    const Lauf l = Lauf_bauer().Dosis("0").rechne();
    EXPECT_EQ(l.Speicher.Maximum_Bodentiefe[0][0][0], 0.0F);
    EXPECT_EQ(l.Speicher.Maximumtag_Bodentiefe[0][0][0], 0);
    EXPECT_EQ(l.Speicher.Jahresmaximum[0][0][0][1], 0.0F);
    EXPECT_EQ(l.Speicher.Jahresmaximum[0][0][0][10], 0.0F);
}

TEST(Erster_Tag, the_integral_starts_at_the_first_concentration) {
    const Lauf l = Lauf_bauer().rechne();
    for (const Endpunktart e : alle_Endpunkte) EXPECT_EQ(l.Speicher.Integral_Bodentiefe(e, 0, 0)[0], Boden(l, 0, 0, e)) << int{e};
}

TEST(Integral, grows_by_trapezoids) {
    const Lauf l = Lauf_bauer().nach_SFO(0.02).rechne();
    double Summe = static_cast<double>(Boden(l, 0));
    for (int d = 1; d < 3650; ++d) {
        Summe += (static_cast<double>(Boden(l, d)) + static_cast<double>(Boden(l, d - 1))) / 2;
        ASSERT_NEAR(l.Speicher.Integral_Bodentiefe(Gesamtgehalt, 0, 0)[static_cast<std::size_t>(d)], Summe,
                    einfach_genau(Summe, d))
            << d;
    }
}

// ---- maxima ----

TEST(Maxima, the_earliest_day_of_a_tie_stands) {
    const Lauf l = Lauf_bauer().nach_SFO(0).rechne();
    EXPECT_EQ(l.Speicher.Maximumtag_Bodentiefe[0][0][0], 0);
}

TEST(Maxima, fall_on_days_of_application) {
    const Lauf l = Lauf_bauer().nach_SFO(0.001).regelmaessige_Gaben(3, 20).rechne();
    EXPECT_EQ(l.Speicher.Maximumtag_Bodentiefe[0][0][0], 40);
    EXPECT_EQ(l.Speicher.Maximum_Bodentiefe[0][0][0], Boden(l, 40));
    EXPECT_EQ(l.Speicher.Maximum_Plateautiefe[0][0][0], Plateau(l, 9 * 365 + 40));
}

TEST(Maxima, each_year_has_its_own) {
    const Lauf l = Lauf_bauer().nach_SFO(0.001).regelmaessige_Gaben(3, 20).rechne();
    for (int Jahr = 1; Jahr <= 10; ++Jahr) {
        EXPECT_EQ(l.Speicher.Jahresmaximum[0][0][0][static_cast<std::size_t>(Jahr)], Plateau(l, (Jahr - 1) * 365 + 40)) << Jahr;
    }
}

TEST(Maxima, the_day_of_the_tillage_depth_follows_the_yearly_maxima) {
    // Fast decay: every year peaks on its first day, and no year is higher than the one before.
    const Lauf l = Lauf_bauer().nach_SFO(1).rechne();
    EXPECT_EQ(l.Speicher.Maximum_Plateautiefe[0][0][0], Plateau(l, 0));
    EXPECT_EQ(l.Speicher.Maximumtag_Plateautiefe[0][0][0], 3285);
}

TEST(Maxima, pore_water_has_its_own) {
    const Lauf l = Lauf_bauer().nach_SFO(0.001).KOC(0).Feuchte(40, 10).regelmaessige_Gaben(2, 10).rechne();
    EXPECT_EQ(l.Speicher.Maximumtag_Bodentiefe[0][0][0], 10);
    EXPECT_EQ(l.Speicher.Maximum_Bodentiefe[1][0][0], Boden(l, 10, 0, Porenwasser));
}

// An organic carbon content below 0 makes pore water negative: the first year then starts from day 0, the others from -1.
TEST(Maxima, below_0_start_from_day_0_in_the_first_year_alone) {
    Lauf_bauer b;
    b.Felder.Parameter.Kohlenstoffgehalt *= -1;
    const Lauf l = b.nach_SFO(0.0001).KOC(15).rechne();
    ASSERT_LT(Plateau(l, 0, 0, Porenwasser), -1.0F);
    ASSERT_LT(Plateau(l, 364, 0, Porenwasser), -1.0F);
    float groesster = Plateau(l, 0, 0, Porenwasser);
    for (int d = 1; d < 365; ++d) groesster = std::max(groesster, Plateau(l, d, 0, Porenwasser));
    EXPECT_EQ(l.Speicher.Jahresmaximum[1][0][0][1], groesster);
    EXPECT_EQ(l.Speicher.Jahresmaximum[1][0][0][2], -1.0F);
}

TEST(Wirkstoff, DT50_is_the_time_to_one_half) {
    const Lauf l = Lauf_bauer().nach_SFO(ln2 / 30).rechne();
    EXPECT_NEAR(Boden(l, 30), Boden(l, 0) / 2, 1E-6);
}

}  // namespace
}  // namespace varnok::probe
