#include "run/halbwertszeit.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>

#include "base/zahlen.h"

namespace varnok {
namespace {

// The shortest text of the DT50 that means the constant again, found by writing and reading.
double durch_Texte(double k) {
    const double DT50 = Halbwertszeit(k);
    for (int Stellen = 1; Stellen < 15; ++Stellen) {
        const std::string Text = gekuerzte_Zahl(DT50, Stellen);
        if (allgemeine_Zahl(Halbwertszeit(Wert(Text))) == allgemeine_Zahl(k)) return Wert(Text);
    }
    return Wert(allgemeine_Zahl(DT50));
}

TEST(Gezeigte_Halbwertszeit, is_to_the_bit_what_its_text_means) {
    std::vector<double> Konstanten = {0, -1, 1, 0.01, 1e-300, 1e300, 0.0210044903, std::numeric_limits<double>::infinity()};
    std::mt19937_64 Zufall(11);
    std::uniform_real_distribution<double> Zehnerpotenz(-12, 6);
    for (int i = 0; i < 300; ++i) Konstanten.push_back(std::pow(10, Zehnerpotenz(Zufall)));
    for (int i = 1; i < 300; ++i) Konstanten.push_back(wie_im_Satz(Halbwertszeit(i / 7.0)));
    for (int i = 1; i < 1000; ++i) Konstanten.push_back(wie_im_Satz(Halbwertszeit(i / 10.0)));
    for (const double k : Konstanten) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(gezeigte_Halbwertszeit(k)), std::bit_cast<std::uint64_t>(durch_Texte(k))) << k;
        EXPECT_EQ(Text_der_Halbwertszeit(k, '.'), allgemeine_Zahl(durch_Texte(k))) << k;
    }
}

TEST(Gezeigte_Halbwertszeit, of_the_constant_of_a_short_DT50_is_that_DT50) {
    EXPECT_EQ(gezeigte_Halbwertszeit(wie_im_Satz(Halbwertszeit(33))), 33);
    EXPECT_EQ(gezeigte_Halbwertszeit(wie_im_Satz(Halbwertszeit(0.7))), 0.7);
    EXPECT_EQ(gezeigte_Halbwertszeit(0), 0);
}

}  // namespace
}  // namespace varnok
