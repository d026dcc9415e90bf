#include "diagrams/achsen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {
namespace {

// Values over twelve decades, 900 in each.
std::vector<double> zwoelf_Zehnerbereiche() {
    std::vector<double> Werte;
    for (int Exponent = -6; Exponent < 6; ++Exponent) {
        for (int i = 100; i < 1000; ++i) Werte.push_back(i / 100.0 * std::pow(10.0, Exponent));
    }
    return Werte;
}

TEST(Achsenmaximum, the_examples) {
    EXPECT_DOUBLE_EQ(runde_Achsenmaximum(0.0123), 0.015);
    EXPECT_DOUBLE_EQ(runde_Achsenmaximum(3.2), 4);
    EXPECT_DOUBLE_EQ(runde_Achsenmaximum(6.2), 7);
    EXPECT_EQ(runde_Achsenmaximum(2.004), 2.004);
    EXPECT_EQ(runde_Achsenmaximum(4.5), 4.5);
}

TEST(Achsenmaximum, steps_are_halves_up_to_3_and_wholes_above) {
    const struct {
        double Wert, Ende;
    } Faelle[] = {{1.2, 1.5}, {1.6, 2}, {2.2, 2.5}, {2.7, 3}, {3.3, 4},   {3.6, 4},
                  {4.2, 5},   {5.7, 6}, {7.1, 8},   {8.6, 9}, {9.02, 10}, {9.7, 10}};
    for (const auto& f : Faelle) {
        EXPECT_DOUBLE_EQ(runde_Achsenmaximum(f.Wert), f.Ende) << f.Wert;
        EXPECT_DOUBLE_EQ(runde_Achsenmaximum(f.Wert * 1000), f.Ende * 1000) << f.Wert;
        EXPECT_DOUBLE_EQ(runde_Achsenmaximum(f.Wert / 1000), f.Ende / 1000) << f.Wert;
    }
}

TEST(Achsenmaximum, within_a_hundredth_above_a_half_step_keeps_its_digits) {
    EXPECT_EQ(runde_Achsenmaximum(3.0099), 3.0099);
    EXPECT_DOUBLE_EQ(runde_Achsenmaximum(3.0101), 4);
    EXPECT_EQ(runde_Achsenmaximum(3.505), 3.505);
    EXPECT_EQ(runde_Achsenmaximum(1.009), 1.009);
    EXPECT_DOUBLE_EQ(runde_Achsenmaximum(1.011), 1.5);
}

TEST(Achsenmaximum, a_power_of_10_stays) {
    for (int Exponent = -9; Exponent <= 9; ++Exponent) {
        const double x = std::pow(10.0, Exponent);
        EXPECT_DOUBLE_EQ(runde_Achsenmaximum(x), x) << Exponent;
    }
}

TEST(Achsenmaximum, never_below_the_data_and_never_more_than_double) {
    for (const double x : zwoelf_Zehnerbereiche()) {
        const double Ende = runde_Achsenmaximum(x);
        EXPECT_GE(Ende, x);
        EXPECT_LE(Ende, 2 * x) << x;
    }
}

TEST(Achsenmaximum, its_own_result_stays) {
    for (const double x : zwoelf_Zehnerbereiche()) {
        const double Ende = runde_Achsenmaximum(x);
        EXPECT_DOUBLE_EQ(runde_Achsenmaximum(Ende), Ende) << x;
    }
}

TEST(Achsenmaximum, an_axis_without_anything_to_show_ends_at_1) {
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(0), 1);
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(-0.5), 1);
    EXPECT_DOUBLE_EQ(erstelle_Diagramm_skaliere_y_Achse(0.0123), 0.015);
}

TEST(Achsenmaximum, a_value_that_is_no_number_never_makes_an_axis) {
    EXPECT_THROW(erstelle_Diagramm_skaliere_y_Achse(std::numeric_limits<double>::quiet_NaN()), Laufzeitfehler);
    EXPECT_THROW(erstelle_Diagramm_skaliere_y_Achse(std::numeric_limits<double>::infinity()), Laufzeitfehler);
}

TEST(Teilstrichabstand, the_table) {
    const struct {
        double x, Haupt, Mitte, Fein;
    } Faelle[] = {{100, 10, 5, 1}, {365, 50, 10, 5}, {3649, 500, 100, 50}, {1, 0.1, 0.05, 0.01}, {0.5, 0.1, 0.05, 0.01}};
    for (const auto& f : Faelle) {
        const Teilstriche t = bestimme_Teilstriche(f.x);
        EXPECT_DOUBLE_EQ(t.Haupt, f.Haupt) << f.x;
        EXPECT_DOUBLE_EQ(t.Mitte, f.Mitte) << f.x;
        EXPECT_DOUBLE_EQ(t.Fein, f.Fein) << f.x;
    }
}

TEST(Teilstrichabstand, a_power_of_10_has_ten_numbered_steps) {
    for (int Exponent = -6; Exponent <= 6; ++Exponent) {
        const double x = std::pow(10.0, Exponent);
        const Teilstriche t = bestimme_Teilstriche(x);
        EXPECT_DOUBLE_EQ(t.Haupt, x / 10) << Exponent;
        EXPECT_DOUBLE_EQ(t.Mitte, x / 20) << Exponent;
        EXPECT_DOUBLE_EQ(t.Fein, x / 100) << Exponent;
        EXPECT_EQ(Teilstrichlagen(0, x, t.Haupt).size(), 11U) << Exponent;
    }
}

TEST(Teilstrichabstand, slightly_below_a_power_of_10) {
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(999).Haupt, 100);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(999).Mitte, 50);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(999).Fein, 10);
}

TEST(Teilstrichabstand, below_1_the_rules_hold_unchanged) {
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(0.0015).Haupt, 0.0001);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(0.003).Haupt, 0.0005);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(0.003).Mitte, 0.0001);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(0.003).Fein, 0.00005);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(0.007).Haupt, 0.001);
}

// Tenths up to a fifth of the decade (1.58), halves up to three fifths (3.98), then wholes.
TEST(Teilstrichabstand, changes_at_fifths_of_the_decade) {
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(1.58).Haupt, 0.1);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(1.59).Haupt, 0.5);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(3.98).Haupt, 0.5);
    EXPECT_DOUBLE_EQ(bestimme_Teilstriche(3.99).Haupt, 1);
}

TEST(Teilstrichabstand, between_4_and_16_numbers_over_twelve_decades) {
    for (const double x : zwoelf_Zehnerbereiche()) {
        const Teilstriche t = bestimme_Teilstriche(x);
        const std::size_t Anzahl = Teilstrichlagen(0, x, t.Haupt).size();
        EXPECT_GE(Anzahl, 4U) << x;
        EXPECT_LE(Anzahl, 16U) << x;
        EXPECT_LT(t.Fein, t.Mitte);
        EXPECT_LT(t.Mitte, t.Haupt);
    }
}

// Adding the distance again and again passes the end by rounding and loses the top number.
TEST(Teilstrichlage, the_top_tick_of_a_decimal_axis_is_there) {
    for (const double Ende : {0.001, 0.0015, 0.01, 0.015, 0.0007, 0.3, 0.7, 0.07, 1.5, 2500.0}) {
        const std::vector<double> Lagen = Teilstrichlagen(0, Ende, bestimme_Teilstriche(Ende).Haupt);
        EXPECT_EQ(allgemeine_Zahl(Lagen.back()), allgemeine_Zahl(Ende));
    }
}

TEST(Teilstrichlage, numbers_are_short) {
    for (const double x : zwoelf_Zehnerbereiche()) {
        for (const double Lage : Teilstrichlagen(0, x, bestimme_Teilstriche(x).Haupt)) {
            EXPECT_LE(allgemeine_Zahl(Lage).size(), 8U) << x;
        }
    }
}

TEST(Teilstrichlage, starts_where_the_axis_starts_and_stays_within) {
    EXPECT_EQ(Teilstrichlagen(7, 30, 10), (std::vector<double>{7, 17, 27}));
    EXPECT_EQ(Teilstrichlagen(0, 0.95, 0.5), (std::vector<double>{0, 0.5}));
}

}  // namespace
}  // namespace varnok
