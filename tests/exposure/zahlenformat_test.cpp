// How tables and reports write a concentration.

#include <gtest/gtest.h>

#include "base/laufzeitfehler.h"
#include "exposure/ergebnistabelle.h"

namespace varnok {
namespace {

std::string fest(double v, Einheitsart Einheit) { return Formatiere_Zahl(v, false, true, Einheit); }
std::string gekuerzt(double v) { return Formatiere_Zahl(v, true, false, Milligramm); }
std::string fuenfstellig(double v) { return Formatiere_Zahl(v, false, false, Milligramm); }

TEST(Formatiere_Zahl, the_unit_fixes_the_places_of_a_table) {
    EXPECT_EQ(fest(1.23456, Milligramm), "1.2346");
    EXPECT_EQ(fest(1.23456, Mikrogramm), "1.23");
    EXPECT_EQ(fest(12345.6, Milligramm), "12345.6000");
}

TEST(Formatiere_Zahl, below_the_last_place_of_mg_a_bound_is_told) {
    EXPECT_EQ(fest(0.00004, Milligramm), "<0.0001");
    EXPECT_EQ(fest(0.00005, Milligramm), "0.0001");
    EXPECT_EQ(fest(0, Milligramm), "<0.0001");
}

TEST(Formatiere_Zahl, below_the_last_place_of_micrograms_a_bound_is_told) {
    EXPECT_EQ(fest(0.004, Mikrogramm), "<0.01");
    EXPECT_EQ(fest(0.005, Mikrogramm), "0.01");
    EXPECT_EQ(fest(0, Mikrogramm), "<0.01");
}

// A metabolite can dip below 0 by a hair; the fixed pattern takes it.
TEST(Formatiere_Zahl, a_negative_value_passes_the_fixed_pattern) {
    EXPECT_EQ(fest(-0.00001, Milligramm), "<0.0001");
    EXPECT_EQ(fest(-0.5, Milligramm), "-0.5000");
}

TEST(Formatiere_Zahl, about_five_figures_by_the_size_of_the_value) {
    EXPECT_EQ(fuenfstellig(0.012345), "0.0123");
    EXPECT_EQ(fuenfstellig(1.23456), "1.2346");
    EXPECT_EQ(fuenfstellig(12.34567), "12.346");
    EXPECT_EQ(fuenfstellig(123.4567), "123.46");
    EXPECT_EQ(fuenfstellig(1234.567), "1234.6");
    EXPECT_EQ(fuenfstellig(12345.67), "12346");
    EXPECT_EQ(fuenfstellig(1234567.8), "1234568");
}

TEST(Formatiere_Zahl, the_pattern_changes_at_each_power_of_ten) {
    EXPECT_EQ(fuenfstellig(10), "10.000");
    EXPECT_EQ(fuenfstellig(100), "100.00");
    EXPECT_EQ(fuenfstellig(1000), "1000.0");
    EXPECT_EQ(fuenfstellig(10000), "10000");
}

TEST(Formatiere_Zahl, exactly_zero_reads_0_0) {
    EXPECT_EQ(fuenfstellig(0), "0.0");
    EXPECT_EQ(gekuerzt(0), "0.0");
    EXPECT_EQ(Formatiere_Zahl(0, true, true, Milligramm), "0.0");
}

TEST(Formatiere_Zahl, zeros_at_the_end_are_cut) {
    EXPECT_EQ(gekuerzt(12.5), "12.5");
    EXPECT_EQ(gekuerzt(0.1), "0.1");
    EXPECT_EQ(gekuerzt(1.0204), "1.0204");
}

TEST(Formatiere_Zahl, a_point_left_alone_is_cut_too) {
    EXPECT_EQ(gekuerzt(100), "100");
    EXPECT_EQ(gekuerzt(1), "1");
    EXPECT_EQ(gekuerzt(9.99999), "10");
}

TEST(Formatiere_Zahl, both_switches_cut_and_tell_no_bound) {
    EXPECT_EQ(Formatiere_Zahl(12.5, true, true, Milligramm), "12.5");
    EXPECT_EQ(Formatiere_Zahl(100, true, true, Milligramm), "100");
    EXPECT_EQ(Formatiere_Zahl(100, true, true, Mikrogramm), "100");
    EXPECT_EQ(Formatiere_Zahl(0.00001, true, true, Milligramm), "0.0000");
}

TEST(Formatiere_Zahl, zeros_before_the_point_stay) {
    EXPECT_EQ(gekuerzt(10000), "10000");
    EXPECT_EQ(gekuerzt(120000), "120000");
    EXPECT_EQ(gekuerzt(20), "20");
}

TEST(Formatiere_Zahl, what_rounds_to_zero_is_not_cut) { EXPECT_EQ(gekuerzt(0.00001), "0.0000"); }

TEST(Formatiere_Zahl, a_negative_value_has_no_decimal_logarithm) {
    EXPECT_THROW(fuenfstellig(-1), Laufzeitfehler);
    EXPECT_THROW(gekuerzt(-1E-10), Laufzeitfehler);
}

TEST(Ansichtswert, annual_shows_the_stored_value_alone) { EXPECT_EQ(Ansichtswert(8, jaehrlich, jedes_Jahr, 1.5F), 1.5); }

TEST(Ansichtswert, accumulation_adds_the_background) { EXPECT_EQ(Ansichtswert(8, Anreicherung, jedes_Jahr, 1.5F), 9.5); }

TEST(Ansichtswert, a_crop_every_third_year_builds_up_a_third_of_the_background) {
    EXPECT_EQ(Ansichtswert(8, Anreicherung, jedes_zweite_Jahr, 1.5F), 5.5);
    EXPECT_EQ(Ansichtswert(1, Anreicherung, jedes_dritte_Jahr, 1.5F), 1.0 / 3 + 1.5);
}

TEST(Ansichtswert, the_rotation_leaves_the_annual_view_alone) {
    EXPECT_EQ(Ansichtswert(8, jaehrlich, jedes_dritte_Jahr, 1.5F), 1.5);
}

}  // namespace
}  // namespace varnok
