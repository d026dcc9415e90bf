// The search for the final plateau against the plain loop that defines it.

#include <gtest/gtest.h>

#include <cmath>

#include "exposure/plateau.h"
#include "support/referenzlauf.h"

namespace varnok {
namespace {

// Pairs of singles whose ratio comes as near to r as singles allow.
struct Peaks {
    float y_9, y_10;
    double r() const { return static_cast<double>(y_10) / static_cast<double>(y_9); }
};

Peaks Peaks_mit(double r) {
    Peaks beste{1, static_cast<float>(r)};
    for (float y = 1; y < 2; y += 1.0F / 4096) {
        const Peaks p{y, static_cast<float>(static_cast<double>(y) * r)};
        if (std::abs(p.r() - r) < std::abs(beste.r() - r)) beste = p;
    }
    return beste;
}

constexpr double kleinstes = 1 - 0.9E-7;
constexpr double groesstes = 10.0 / 9.0 - 1.1E-5;

class Plateausuche : public ::testing::TestWithParam<double> {};

TEST_P(Plateausuche, ends_where_the_plain_loop_ends) {
    const Peaks p = Peaks_mit(GetParam());
    ASSERT_GT(p.r(), 1 - 1E-7);
    ASSERT_LT(p.r(), 10.0 / 9.0 - 1E-5);
    const double Schleife = referenz::plateau_schleife(p.y_9, p.y_10, 9, 10, 0);
    EXPECT_NEAR(finde_maximales_Plateau(p.y_9, p.y_10, 9, 10), Schleife, 1E-6 * Schleife) << "r - 1 = " << p.r() - 1;
}

INSTANTIATE_TEST_SUITE_P(Nahe_1, Plateausuche,
                         ::testing::Values(kleinstes, 1 - 0.5E-7, 1.0, 1 + 0.5E-7, 1 + 1E-7, 1 + 1E-6, 1 + 1E-5, 1 + 1E-4));
INSTANTIATE_TEST_SUITE_P(Mitte, Plateausuche, ::testing::Values(1.001, 1.005, 1.01, 1.02, 1.03, 1.05, 1.07, 1.09, 1.1));
// The start of the loop, k = 0.001, has the ratio 1.110556.
INSTANTIATE_TEST_SUITE_P(Nahe_dem_Beginn, Plateausuche,
                         ::testing::Values(1.1105, 1.11055, 1.1105555, 1.1105556, 1.1105557, 1.110556, 1.1106, 1.11065));
INSTANTIATE_TEST_SUITE_P(Nahe_am_linearen_Wachstum, Plateausuche,
                         ::testing::Values(1.1107, 1.1109, 1.111, 1.11105, 1.11109, groesstes));

// Peaks of a known curve give its plateau back.
TEST(Plateausuche, finds_the_plateau_of_an_exponential_approach) {
    for (const double k : {0.05, 0.2, 0.5, 1.0}) {
        const auto y_9 = static_cast<float>(7 * (1 - std::exp(-9 * k)));
        const auto y_10 = static_cast<float>(7 * (1 - std::exp(-10 * k)));
        EXPECT_NEAR(finde_maximales_Plateau(y_9, y_10, 9, 10), 7, 2E-4) << k;  // the loop stops 1E-7 short of the ratio
    }
}

TEST(Plateausuche, is_linear_in_the_peaks) {
    EXPECT_EQ(finde_maximales_Plateau(2.5F, 2.625F, 9, 10) * 1024, finde_maximales_Plateau(2560.0F, 2688.0F, 9, 10));
}

TEST(Plateausuche, lies_above_the_last_peak) {
    for (double r = 1 + 1E-6; r < groesstes; r = 1 + (r - 1) * 1.5)
        EXPECT_GT(finde_maximales_Plateau(1, static_cast<float>(r), 9, 10), r) << r;
}

}  // namespace
}  // namespace varnok
