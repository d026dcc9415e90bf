// Numbers from text.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/zahlen.h"

namespace varnok {
namespace {

constexpr double unendlich = std::numeric_limits<double>::infinity();

TEST(Wert, comma_and_point_are_the_same) {
    EXPECT_EQ(Wert("1,5"), 1.5);
    EXPECT_EQ(Wert("1.5"), 1.5);
}

TEST(Wert, every_comma_becomes_a_point_so_the_second_ends_the_number) {
    EXPECT_EQ(Wert("1,5,7"), 1.5);
    EXPECT_EQ(Wert("1,000.5"), 1.0);
}

TEST(Wert, empty_or_blank_gives_0) {
    EXPECT_EQ(Wert(""), 0.0);
    EXPECT_EQ(Wert("   "), 0.0);
}

TEST(Wert, letters_give_0) {
    EXPECT_EQ(Wert("abc"), 0.0);
    EXPECT_EQ(Wert("x12"), 0.0);
    EXPECT_EQ(Wert("E5"), 0.0);
}

TEST(Wert, a_unit_behind_the_number_is_left_alone) {
    EXPECT_EQ(Wert("20 °C"), 20.0);
    EXPECT_EQ(Wert("1,5 kg/L"), 1.5);
    EXPECT_EQ(Wert("12abc"), 12.0);
    EXPECT_EQ(Wert("12%"), 12.0);
}

TEST(Wert, blanks_before_and_inside_are_skipped) {
    EXPECT_EQ(Wert("  7"), 7.0);
    EXPECT_EQ(Wert("1 000"), 1000.0);
    EXPECT_EQ(Wert("- 3"), -3.0);
}

TEST(Wert, signs) {
    EXPECT_EQ(Wert("-2.5"), -2.5);
    EXPECT_EQ(Wert("+2.5"), 2.5);
    EXPECT_EQ(Wert("5-3"), 5.0);
    EXPECT_EQ(Wert("--5"), 0.0);
    EXPECT_EQ(Wert("+-5"), 0.0);
    EXPECT_EQ(Wert("-"), 0.0);
}

TEST(Wert, a_point_may_stand_first_or_last) {
    EXPECT_EQ(Wert(".5"), 0.5);
    EXPECT_EQ(Wert("-,5"), -0.5);
    EXPECT_EQ(Wert("5."), 5.0);
    EXPECT_EQ(Wert("."), 0.0);
}

TEST(Wert, exponents_in_either_case_and_with_either_sign) {
    EXPECT_EQ(Wert("1E-05"), 1E-5);
    EXPECT_EQ(Wert("1e3"), 1000.0);
    EXPECT_EQ(Wert("2,5E+02"), 250.0);
}

TEST(Wert, an_unfinished_exponent_does_not_count) {
    EXPECT_EQ(Wert("3E"), 3.0);
    EXPECT_EQ(Wert("3E-"), 3.0);
    EXPECT_EQ(Wert("3Ex"), 3.0);
}

TEST(Wert, an_exponent_takes_no_decimals_and_no_second_exponent) {
    EXPECT_EQ(Wert("1E2.5"), 100.0);
    EXPECT_EQ(Wert("1E2E3"), 100.0);
}

TEST(Wert, too_large_a_number_is_infinite) {
    EXPECT_EQ(Wert("1E400"), unendlich);
    EXPECT_EQ(Wert("-1E400"), -unendlich);
    EXPECT_EQ(Wert(std::string(400, '9')), unendlich);
}

TEST(Wert, too_small_a_number_is_0) {
    EXPECT_EQ(Wert("1E-400"), 0.0);
    EXPECT_EQ(Wert("0." + std::string(400, '0') + "1"), 0.0);
}

// The sign of the exponent alone does not tell which end of the range is left.
TEST(Wert, many_digits_outweigh_the_sign_of_the_exponent) {
    EXPECT_EQ(Wert("1" + std::string(400, '0') + "E-20"), unendlich);
    EXPECT_EQ(Wert("0." + std::string(400, '0') + "1E+20"), 0.0);
}

TEST(Wert, infinity_and_nan_as_words_are_letters) {
    EXPECT_EQ(Wert("inf"), 0.0);
    EXPECT_EQ(Wert("nan"), 0.0);
}

TEST(Wert, the_nearest_double_is_read) {
    EXPECT_EQ(Wert("0.1"), 0.1);
    EXPECT_EQ(Wert("123456789.123456789"), 123456789.123456789);
    EXPECT_EQ(Wert("4.9E-324"), std::numeric_limits<double>::denorm_min());
}

TEST(fuehrende_Zahl, a_comma_ends_the_number) {
    EXPECT_EQ(fuehrende_Zahl("1,5"), 1.0);
    EXPECT_EQ(fuehrende_Zahl("1.5"), 1.5);
    EXPECT_EQ(fuehrende_Zahl("44% of the final plateau"), 44.0);
    EXPECT_EQ(fuehrende_Zahl(""), 0.0);
}

TEST(ist_Zahl_oder_leer, tells_a_word_from_a_number_and_from_nothing) {
    EXPECT_TRUE(ist_Zahl_oder_leer("0"));
    EXPECT_TRUE(ist_Zahl_oder_leer("1,5 d"));
    EXPECT_TRUE(ist_Zahl_oder_leer(""));
    EXPECT_TRUE(ist_Zahl_oder_leer("  "));
    EXPECT_FALSE(ist_Zahl_oder_leer("abc"));
    EXPECT_FALSE(ist_Zahl_oder_leer("-"));
}

TEST(ganze_Zahl, ties_go_to_the_even_number) {
    EXPECT_EQ(ganze_Zahl(0.5, -10, 10), 0);
    EXPECT_EQ(ganze_Zahl(1.5, -10, 10), 2);
    EXPECT_EQ(ganze_Zahl(2.5, -10, 10), 2);
    EXPECT_EQ(ganze_Zahl(-0.5, -10, 10), 0);
    EXPECT_EQ(ganze_Zahl(-1.5, -10, 10), -2);
}

TEST(ganze_Zahl, else_the_nearest) {
    EXPECT_EQ(ganze_Zahl(2.4999, -10, 10), 2);
    EXPECT_EQ(ganze_Zahl(2.5001, -10, 10), 3);
}

TEST(ganze_Zahl, both_limits_belong_to_the_range) {
    EXPECT_EQ(ganze_Zahl(1, 1, 12), 1);
    EXPECT_EQ(ganze_Zahl(12, 1, 12), 12);
    EXPECT_EQ(ganze_Zahl(0, 1, 12), std::nullopt);
    EXPECT_EQ(ganze_Zahl(13, 1, 12), std::nullopt);
}

TEST(ganze_Zahl, the_limits_hold_the_rounded_number) {
    EXPECT_EQ(ganze_Zahl(12.5, 1, 12), 12);
    EXPECT_EQ(ganze_Zahl(12.6, 1, 12), std::nullopt);
}

TEST(ganze_Zahl, what_is_no_number_fits_nowhere) {
    EXPECT_EQ(ganze_Zahl(std::nan(""), -10, 10), std::nullopt);
    EXPECT_EQ(ganze_Zahl(unendlich, -10, 10), std::nullopt);
    EXPECT_EQ(ganze_Zahl(1E30, -10, 10), std::nullopt);
}

}  // namespace
}  // namespace varnok
