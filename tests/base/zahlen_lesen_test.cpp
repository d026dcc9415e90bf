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

TEST(lies_Zahl, takes_what_wert_takes_and_names_the_rest) {
    struct Fall {
        const char* Text;
        double Zahl;
        const char* Rest;
    };
    for (const auto& [Text, Zahl, Rest] :
         {Fall{"12abc", 12, "abc"}, Fall{"7x5", 7, "x5"}, Fall{"20 °C", 20, "°C"}, Fall{"1e", 1, "e"}, Fall{"1e+", 1, "e+"},
          Fall{"0x1F", 0, "x1F"}, Fall{"1,250.5", 1.25, ".5"}, Fall{"1.250,5", 1.25, ",5"}, Fall{"1'250", 1, "'250"},
          Fall{"5-3", 5, "-3"}, Fall{"1e5.5", 1e5, ".5"}, Fall{"3\t", 3, "\t"}}) {
        const Zahllesung l = lies_Zahl(Text);
        EXPECT_EQ(l.Zahl, Zahl) << Text;
        EXPECT_EQ(l.Zahl, Wert(Text)) << Text;
        EXPECT_EQ(l.Rest, Rest) << Text;
        EXPECT_FALSE(l.ganz()) << Text;
        EXPECT_FALSE(l.ohne_Zahl) << Text;
    }
}

TEST(lies_Zahl, one_number_from_end_to_end_is_whole) {
    for (const char* Text : {"0", "12", " 12 ", "-3.5", "+3,5", "1E-05", "1e5", ".5", "5.", "0.0", "00012"}) {
        const Zahllesung l = lies_Zahl(Text);
        EXPECT_TRUE(l.ganz()) << Text;
        EXPECT_EQ(l.Zahl, Wert(Text)) << Text;
        EXPECT_EQ(l.Rest, "") << Text;
    }
    EXPECT_TRUE(lies_Zahl(std::string(400, '3')).Rest.empty());  // too large, and told so by whoever takes it
    EXPECT_TRUE(lies_Zahl("0." + std::string(400, '3')).ganz());
}

TEST(lies_Zahl, text_without_a_digit_holds_no_number) {
    for (const char* Text : {"abc", "-", "--5", "+-5", "inf", "nan", "-inf", "e5", ".", "\xD9\xA1\xD9\xA2", "\u00A05", "$5"}) {
        const Zahllesung l = lies_Zahl(Text);
        EXPECT_TRUE(l.ohne_Zahl) << Text;
        EXPECT_FALSE(l.leer) << Text;
        EXPECT_FALSE(l.ganz()) << Text;
        EXPECT_EQ(l.Zahl, 0) << Text;
        EXPECT_EQ(l.Rest, Text);
    }
    for (const char* Text : {"", " ", "   "}) {
        EXPECT_TRUE(lies_Zahl(Text).leer);
        EXPECT_TRUE(lies_Zahl(Text).ohne_Zahl);
        EXPECT_FALSE(lies_Zahl(Text).ganz());
    }
}

TEST(lies_Zahl, blanks_inside_a_number_are_skipped_and_told) {
    for (const char* Text : {"1 250", "- 5", "1 .5", "1 e 3"}) {
        EXPECT_TRUE(lies_Zahl(Text).mit_Luecke) << Text;
        EXPECT_FALSE(lies_Zahl(Text).ganz()) << Text;
    }
    EXPECT_FALSE(lies_Zahl("5 e").mit_Luecke);
    EXPECT_FALSE(lies_Zahl(" 5 ").mit_Luecke);
}

TEST(lies_Zahl, two_separators_may_mean_a_thousand_times_as_much) {
    for (const char* Text : {"1.250,5", "1,250.5", "1.250.000", "1'250",
                             "1\xE2\x80\x99"
                             "250",
                             "1\xC2\xA0"
                             "250",
                             "1\xE2\x80\xAF"
                             "250",
                             "1_250", "1`250",
                             "1\xE2\x80\x89"
                             "250",
                             "1..5", "12.5 kg."}) {
        EXPECT_TRUE(lies_Zahl(Text).mehrere_Trennzeichen) << Text;
        EXPECT_FALSE(lies_Zahl(Text).ganz()) << Text;
    }
    for (const char* Text : {"1.250", "1,25", "1 250", "12'", "5' 3", "a'b", "12abc"}) {
        EXPECT_FALSE(lies_Zahl(Text).mehrere_Trennzeichen) << Text;
    }
}

TEST(lies_Zahl, number_too_small_for_a_double_is_not_the_0_that_is_left_of_it) {
    EXPECT_TRUE(lies_Zahl("1e-400").zu_klein);
    EXPECT_FALSE(lies_Zahl("1e-400").ganz());
    EXPECT_TRUE(lies_Zahl("0e-400").ganz());
    EXPECT_TRUE(lies_Zahl("0.000").ganz());
}

TEST(lies_fuehrende_Zahl, comma_is_left) {
    EXPECT_EQ(lies_fuehrende_Zahl("19,9").Zahl, 19);
    EXPECT_EQ(lies_fuehrende_Zahl("19,9").Rest, ",9");
    EXPECT_TRUE(lies_fuehrende_Zahl("19.9").ganz());
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
