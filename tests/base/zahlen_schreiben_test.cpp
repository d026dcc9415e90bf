// Numbers to text.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/zahlen.h"

namespace varnok {
namespace {

TEST(allgemeine_Zahl, whole_numbers_have_no_point) {
    EXPECT_EQ(allgemeine_Zahl(0.0), "0");
    EXPECT_EQ(allgemeine_Zahl(7.0), "7");
    EXPECT_EQ(allgemeine_Zahl(1000.0), "1000");
    EXPECT_EQ(allgemeine_Zahl(-20.0), "-20");
}

TEST(allgemeine_Zahl, no_more_digits_than_the_value_needs) {
    EXPECT_EQ(allgemeine_Zahl(0.1), "0.1");
    EXPECT_EQ(allgemeine_Zahl(2.58), "2.58");
    EXPECT_EQ(allgemeine_Zahl(100.25), "100.25");
}

TEST(allgemeine_Zahl, at_most_15_digits_of_a_double) {
    EXPECT_EQ(allgemeine_Zahl(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(allgemeine_Zahl(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(allgemeine_Zahl(123456.7890123456), "123456.789012346");
    EXPECT_EQ(allgemeine_Zahl(0.1 + 0.2), "0.3");
}

TEST(allgemeine_Zahl, at_most_7_digits_of_a_single) {
    EXPECT_EQ(allgemeine_Zahl(1.0F / 3), "0.3333333");
    EXPECT_EQ(allgemeine_Zahl(0.1F), "0.1");
    EXPECT_EQ(allgemeine_Zahl(1234567.9F), "1234568");
    EXPECT_EQ(allgemeine_Zahl(16777216.0F), "16777220");
}

TEST(allgemeine_Zahl, an_exponent_below_a_ten_thousandth) {
    EXPECT_EQ(allgemeine_Zahl(0.0001), "0.0001");
    EXPECT_EQ(allgemeine_Zahl(0.00012), "0.00012");
    EXPECT_EQ(allgemeine_Zahl(0.00009), "9E-05");
    EXPECT_EQ(allgemeine_Zahl(0.00001), "1E-05");
    EXPECT_EQ(allgemeine_Zahl(0.0000123), "1.23E-05");
    EXPECT_EQ(allgemeine_Zahl(-0.00005), "-5E-05");
    EXPECT_EQ(allgemeine_Zahl(0.00005F), "5E-05");
}

TEST(allgemeine_Zahl, an_exponent_from_a_thousand_million_million_on) {
    EXPECT_EQ(allgemeine_Zahl(999999999999999.0), "999999999999999");
    EXPECT_EQ(allgemeine_Zahl(1E15), "1E+15");
    EXPECT_EQ(allgemeine_Zahl(1.5E20), "1.5E+20");
    EXPECT_EQ(allgemeine_Zahl(1E14F), "100000000000000");
}

TEST(allgemeine_Zahl, exponents_of_three_digits) {
    EXPECT_EQ(allgemeine_Zahl(1E100), "1E+100");
    EXPECT_EQ(allgemeine_Zahl(2.5E-300), "2.5E-300");
}

TEST(allgemeine_Zahl, zero_has_no_sign) {
    EXPECT_EQ(allgemeine_Zahl(-0.0), "0");
    EXPECT_EQ(allgemeine_Zahl(-0.0F), "0");
}

TEST(allgemeine_Zahl, the_separator_of_the_region) {
    EXPECT_EQ(allgemeine_Zahl(1.5, ','), "1,5");
    EXPECT_EQ(allgemeine_Zahl(0.25, ','), "0,25");
    EXPECT_EQ(allgemeine_Zahl(1.5E-7, ','), "1,5E-07");
    EXPECT_EQ(allgemeine_Zahl(10.0, ','), "10");
}

TEST(allgemeine_Zahl, reads_back_within_15_digits) {
    for (const double v : {1.0 / 3, 1E-5, 1E15, 123.456, 5E-324, 1.7E308, -2.5E-10}) {
        EXPECT_NEAR(Wert(allgemeine_Zahl(v, ',')), v, std::abs(v) * 1E-14);
    }
}

TEST(wie_im_Satz, keeps_15_digits_of_a_number) {
    EXPECT_EQ(wie_im_Satz(1.0 / 3), 0.333333333333333);
    EXPECT_NE(wie_im_Satz(1.0 / 3), 1.0 / 3);
    // ln 2 divided by 68 days, by 0.7 days
    EXPECT_EQ(wie_im_Satz(std::log(2.0) / 68), 0.0101933408905874);
    EXPECT_EQ(wie_im_Satz(std::log(2.0) / 0.7), 0.990210257942779);
}

TEST(wie_im_Satz, leaves_a_number_of_15_digits_as_it_is) {
    for (const double Zahl : {0.0, 1.0, -2.5, 0.1, 1e-5, 123456.789012345, 1e300, 5e-324}) EXPECT_EQ(wie_im_Satz(Zahl), Zahl);
}

TEST(wie_im_Satz, a_second_time_changes_nothing) {
    for (double Zahl = 1e-9; Zahl < 1e9; Zahl *= 1.37) EXPECT_EQ(wie_im_Satz(wie_im_Satz(Zahl)), wie_im_Satz(Zahl));
}

TEST(feste_Zahl, as_many_places_as_asked_for) {
    EXPECT_EQ(feste_Zahl(1.0, 4), "1.0000");
    EXPECT_EQ(feste_Zahl(1.0, 1), "1.0");
    EXPECT_EQ(feste_Zahl(1.0, 0), "1");
    EXPECT_EQ(feste_Zahl(0.0, 2), "0.00");
    EXPECT_EQ(feste_Zahl(1234.5678, 2), "1234.57");
}

TEST(feste_Zahl, halves_go_away_from_zero) {
    EXPECT_EQ(feste_Zahl(0.125, 2), "0.13");
    EXPECT_EQ(feste_Zahl(2.5, 0), "3");
    EXPECT_EQ(feste_Zahl(0.5, 0), "1");
    EXPECT_EQ(feste_Zahl(-2.5, 0), "-3");
    EXPECT_EQ(feste_Zahl(-0.125, 2), "-0.13");
}

// The binary value of 1.005 lies a little below the decimal text that people read.
TEST(feste_Zahl, the_decimal_text_of_the_value_decides) {
    EXPECT_EQ(feste_Zahl(1.005, 2), "1.01");
    EXPECT_EQ(feste_Zahl(0.00005, 4), "0.0001");
    EXPECT_EQ(feste_Zahl(0.00004, 4), "0.0000");
    EXPECT_EQ(feste_Zahl(0.00014999, 4), "0.0001");
}

TEST(feste_Zahl, a_carry_runs_through_all_digits) {
    EXPECT_EQ(feste_Zahl(9.99995, 4), "10.0000");
    EXPECT_EQ(feste_Zahl(9.99994, 4), "9.9999");
    EXPECT_EQ(feste_Zahl(99.5, 0), "100");
    EXPECT_EQ(feste_Zahl(0.9996, 3), "1.000");
}

TEST(feste_Zahl, what_rounds_to_zero_has_no_sign) {
    EXPECT_EQ(feste_Zahl(-0.00001, 4), "0.0000");
    EXPECT_EQ(feste_Zahl(-0.4, 0), "0");
}

TEST(feste_Zahl, very_large_and_very_small_values) {
    EXPECT_EQ(feste_Zahl(1E20, 1), "100000000000000000000.0");
    EXPECT_EQ(feste_Zahl(1E-300, 4), "0.0000");
    EXPECT_EQ(feste_Zahl(5E-324, 0), "0");
}

TEST(feste_Zahl, a_stored_single_is_widened_before_it_is_rounded) {
    EXPECT_EQ(feste_Zahl(static_cast<double>(0.1F), 4), "0.1000");
    EXPECT_EQ(feste_Zahl(static_cast<double>(0.00005F), 4), "0.0000");  // the single lies at 0.0000499999987
}

TEST(feste_Zahl, the_separator_of_the_region) { EXPECT_EQ(feste_Zahl(1.25, 1, ','), "1,3"); }

TEST(genaue_Zahl, singles_of_every_size_read_back_the_same) {
    for (std::uint32_t Bits = 1; Bits < 0x7F800000U; Bits += 999'983) {
        const float v = std::bit_cast<float>(Bits);
        ASSERT_EQ(static_cast<float>(Wert(genaue_Zahl(v))), v) << Bits;
    }
}

TEST(genaue_Zahl, doubles_of_every_size_read_back_the_same) {
    for (std::uint64_t Bits = 1; Bits < 0x7FF0000000000000U; Bits += 0x000FFFFFFFFFF123U) {
        const double v = std::bit_cast<double>(Bits);
        ASSERT_EQ(Wert(genaue_Zahl(v)), v) << Bits;
        ASSERT_EQ(Wert(genaue_Zahl(-v)), -v) << Bits;
    }
}

TEST(genaue_Zahl, is_the_shortest_such_text) {
    EXPECT_EQ(genaue_Zahl(0.1F), "0.1");
    EXPECT_EQ(genaue_Zahl(0.1), "0.1");
    EXPECT_EQ(genaue_Zahl(20.0), "20");
    EXPECT_EQ(genaue_Zahl(1.0 / 3), "0.3333333333333333");
}

TEST(Zweistellig, of_a_day_or_month_has_a_zero_in_front) {
    EXPECT_EQ(zweistellig(3), "03");
    EXPECT_EQ(zweistellig(12), "12");
    EXPECT_EQ(zweistellig(0), "00");
    EXPECT_EQ(zweistellig(-5), "-05");
    EXPECT_EQ(zweistellig(120), "120");
    EXPECT_EQ(zweistellig(1e20), "1E+20");
}

TEST(Gekuerzt, is_what_the_text_of_so_many_digits_means) {
    EXPECT_EQ(gekuerzt(69.31471805599453, 3), 69.3);
    EXPECT_EQ(gekuerzt(-0.000123456, 2), -0.00012);
    EXPECT_EQ(gekuerzt(9.99e20, 1), 1e21);
    EXPECT_EQ(gekuerzt(0, 5), 0);
}

}  // namespace
}  // namespace varnok
