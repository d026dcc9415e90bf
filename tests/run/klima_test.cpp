// Weather of the day, soil moisture and the correction of degradation.

#include "run/klima.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/laufzeitfehler.h"
#include "run/tageswerte.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

// Days that can be told apart by their temperature.
std::vector<Klimatag> numeriert(int n) {
    std::vector<Klimatag> Tage;
    for (int i = 0; i < n; ++i) Tage.push_back({0, 0, static_cast<double>(i)});
    return Tage;
}

TEST(Wetter, the_date_of_the_first_application_is_where_the_year_starts) {
    EXPECT_EQ(Wetter(numeriert(365), 0, 0).Tag(1).Tagestemperatur, 0);      // 1 January
    EXPECT_EQ(Wetter(numeriert(365), 2, 0).Tag(1).Tagestemperatur, 59);     // 1 March
    EXPECT_EQ(Wetter(numeriert(365), 11, 30).Tag(1).Tagestemperatur, 364);  // 31 December
}

TEST(Wetter, after_the_last_day_the_first_follows_without_a_gap) {
    const Wetter w(numeriert(10), 0, 0);
    EXPECT_EQ(w.Tag(10).Tagestemperatur, 9);
    EXPECT_EQ(w.Tag(11).Tagestemperatur, 0);
    EXPECT_EQ(w.Tag(3649).Tagestemperatur, 3648 % 10);
}

TEST(Wetter, the_way_to_the_start_wraps_at_the_end_of_the_file_too) {
    EXPECT_EQ(Wetter(numeriert(200), 6, 19).Tag(1).Tagestemperatur, 0);  // 20 July, 200 days on
    EXPECT_EQ(Wetter(numeriert(1), 6, 19).Tag(77).Tagestemperatur, 0);
}

TEST(Wetter, no_day_at_all_is_a_fault) { EXPECT_THROW(Wetter({}, 0, 0), Laufzeitfehler); }

TEST(Wetter, constant_climate_is_not_variable) {
    EXPECT_FALSE(Wetter().variabel());
    EXPECT_TRUE(Wetter(numeriert(1), 0, 0).variabel());
}

// One day of a climate on a soil whose moisture stands at 25 Vol%.
double Feuchte_nach(double Regen, double Verdunstung) {
    Lauf l = Lauf_bauer().Feuchte(40, 10).baue();
    l.Klima = Wetter({{Regen, Verdunstung, 8}}, 0, 0);
    beginne_Tageswerte(l);
    lies_Klimatag(l, 1);
    return l.Tag.Bodenfeuchte;
}

TEST(Bodenfeuchte, starts_halfway_between_the_limits) {
    Lauf l = Lauf_bauer().Feuchte(40, 10).baue();
    beginne_Tageswerte(l);
    EXPECT_EQ(l.Tag.Bodenfeuchte, 25);
    EXPECT_EQ(l.Tag.Referenzfeuchte, 40);
}

// Millimetres over the depth in centimetres times 100 is the balance of this model.
TEST(Bodenfeuchte, rain_less_evapotranspiration_over_the_depth) {
    EXPECT_DOUBLE_EQ(Feuchte_nach(0.5, 0.25), 25 + 0.25 / 5 * 100);
    EXPECT_DOUBLE_EQ(Feuchte_nach(0.25, 0.5), 25 - 0.25 / 5 * 100);
}

TEST(Bodenfeuchte, excess_water_leaves_at_field_capacity) { EXPECT_EQ(Feuchte_nach(50, 0), 40); }

TEST(Bodenfeuchte, drought_stops_at_the_wilting_point) { EXPECT_EQ(Feuchte_nach(0, 9), 10); }

TEST(Bodenfeuchte, reversed_limits_yield_the_wilting_point) {
    Lauf l = Lauf_bauer().Feuchte(10, 40).baue();
    l.Klima = Wetter({{0, 0, 8}}, 0, 0);
    beginne_Tageswerte(l);
    lies_Klimatag(l, 1);
    EXPECT_EQ(l.Tag.Bodenfeuchte, 40);
}

TEST(Klimasummen, sum_what_the_parent_read) {
    const Lauf l = Lauf_bauer().Wetter({{1, 2, 10}, {3, 0, 12}}).rechne();
    EXPECT_EQ(l.Tag.Summe_Temperatur, 1825 * 10 + 1824 * 12);
    EXPECT_EQ(l.Tag.Summe_Niederschlag, 1825 * 1 + 1824 * 3);
    EXPECT_EQ(l.Tag.Summe_Verdunstung, 1825 * 2);
}

TEST(Klimasummen, the_metabolites_read_the_same_days_and_add_nothing) {
    EXPECT_EQ(Lauf_bauer().Schema(3).Wetter({{1, 2, 10}}).rechne().Tag.Summe_Temperatur, 3649 * 10);
}

TEST(Klimasummen, do_not_move_in_constant_climate) { EXPECT_EQ(Lauf_bauer().rechne().Tag.Summe_Temperatur, 0); }

TEST(Klimasummen, start_anew_with_each_run) {
    Lauf l = Lauf_bauer().Wetter({{1, 2, 10}}).rechne();
    ASSERT_TRUE(Lauf_bauer().Wetter({{1, 2, 10}}).rechne_in(l).gelungen());
    EXPECT_EQ(l.Tag.Summe_Niederschlag, 3649);
}

// ---- the correction ----

Korrektur Korrektur_bei(double Q10, double Walker, double TRef, double Temperatur, double Feuchte) {
    Lauf l = Lauf_bauer().Korrektur(Q10, Walker, TRef).Feuchte(40, 10).baue();
    beginne_Tageswerte(l);
    l.Tag.Tagestemperatur = Temperatur;
    l.Tag.Bodenfeuchte = Feuchte;
    return bestimme_Korrektur(l, 0, 0);
}

TEST(Korrektur, at_the_reference_nothing_is_corrected) { EXPECT_EQ(Korrektur_bei(2.58, 0.7, 20, 20, 40).Faktor(), 1); }

TEST(Korrektur, ten_degrees_less_divide_by_Q10) { EXPECT_DOUBLE_EQ(Korrektur_bei(2.58, 0.7, 20, 10, 40).Faktor(), 1 / 2.58); }

TEST(Korrektur, ten_degrees_more_multiply_by_Q10) { EXPECT_DOUBLE_EQ(Korrektur_bei(2.58, 0.7, 20, 30, 40).Faktor(), 2.58); }

TEST(Korrektur, half_the_reference_moisture_counts_with_the_Walker_exponent) {
    EXPECT_DOUBLE_EQ(Korrektur_bei(2.58, 0.7, 20, 20, 20).Faktor(), std::pow(0.5, 0.7));
}

TEST(Korrektur, a_Walker_exponent_of_0_ignores_the_moisture) {
    EXPECT_EQ(Korrektur_bei(1, 0, 20, 5, 11).Faktor(), 1);
    EXPECT_EQ(Korrektur_bei(1, 0, 20, 5, 0).Faktor(), 1);
}

TEST(Korrektur, no_moisture_stops_degradation) { EXPECT_EQ(Korrektur_bei(2.58, 0.7, 20, 20, 0).Faktor(), 0); }

TEST(Korrektur, temperature_first_then_moisture) {
    const Korrektur k = Korrektur_bei(2.2, 0.7, 20, 13, 27);
    EXPECT_EQ(k.korrigiert(0.0123), std::pow(27.0 / 40, 0.7) * (std::pow(2.2, (13.0 - 20) / 10) * 0.0123));
}

TEST(Korrektur, a_walker_exponent_of_0_makes_the_climates_moisture_irrelevant_in_a_run) {
    const Lauf nass = Lauf_bauer().Korrektur(2.58, 0, 20).Wetter({{20, 0, 14}}).rechne();
    const Lauf trocken = Lauf_bauer().Korrektur(2.58, 0, 20).Wetter({{0, 9, 14}}).rechne();
    for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(nass, d), Plateau(trocken, d)) << d;
}

// ---- pore water ----

TEST(PW_faktor, organic_carbon_and_water) {
    Lauf l = Lauf_bauer().KOC(150).baue();
    l.Tag.Bodenfeuchte = 30;
    EXPECT_DOUBLE_EQ(PW_faktor(l, 0, 0), 2 * 150 / 100.0 + 0.3 / 1.5);
}

TEST(PW_faktor, takes_the_KOC_of_compound_and_study) {
    Lauf l = Lauf_bauer().Studie(4).KOC(70, 2).baue();
    l.Tag.Bodenfeuchte = 30;
    EXPECT_DOUBLE_EQ(PW_faktor(l, 4, 2), 2 * 70 / 100.0 + 0.3 / 1.5);
}

TEST(PW_faktor, without_sorption_and_water_there_is_no_pore_water) {
    Lauf l = Lauf_bauer().KOC(0).baue();
    l.Tag.Bodenfeuchte = 0;
    EXPECT_THROW(PW_faktor(l, 0, 0), Laufzeitfehler);
}

TEST(Vergleich_zweier_Werte, Maximum_and_Minimum) {
    EXPECT_EQ(Maximum(1, 2), 2);
    EXPECT_EQ(Maximum(2, 1), 2);
    EXPECT_EQ(Minimum(1, 2), 1);
    EXPECT_EQ(Minimum(2, 1), 1);
    EXPECT_EQ(Maximum(3, 3), 3);
}

}  // namespace
}  // namespace varnok::probe
