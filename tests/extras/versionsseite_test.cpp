#include "extras/versionsseite.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

// A line of a page as a server may list its files: the name ends in a date code and ".zip".
std::string Zeile_mit(const std::string& Version) { return "<a href=\"Varnok_package_" + Version + ".zip\">VARNOK</a>"; }

double Zahl_von(const std::string& Version) { return Version_der_Seite(Zeile_mit(Version)).value_or(Serverversion{"", -1}).Zahl; }

TEST(Versionsseite, the_eight_characters_before_zip_are_the_version) {
    const auto v = Version_der_Seite(Zeile_mit("20180922"));
    ASSERT_TRUE(v);
    EXPECT_EQ(v->Zeichen, "20180922");
    EXPECT_EQ(v->Zahl, 20180922.0);
}

TEST(Versionsseite, a_day_later_is_newer_the_same_day_equal_a_day_earlier_older) {
    EXPECT_EQ(vergleiche_mit_eigener({"20180922", 20180922}), 1);
    EXPECT_EQ(vergleiche_mit_eigener({"20180921", 20180921}), 0);
    EXPECT_EQ(vergleiche_mit_eigener({"20180920", 20180920}), -1);
}

TEST(Versionsseite, characters_that_start_with_a_letter_read_as_0_and_are_older) {
    const auto v = Version_der_Seite(Zeile_mit("x0180922"));
    ASSERT_TRUE(v);
    EXPECT_EQ(v->Zahl, 0.0);
    EXPECT_EQ(vergleiche_mit_eigener(*v), -1);
}

TEST(Versionsseite, the_number_stops_at_what_is_no_digit_and_no_point) {
    EXPECT_EQ(Zahl_von("2018-922"), 2018.0);
    EXPECT_EQ(Zahl_von("2018e003"), 2018.0);  // no exponent
    EXPECT_EQ(Zahl_von("-2018092"), 0.0);
    EXPECT_EQ(Zahl_von("2018.5 x"), 2018.5);
}

TEST(Versionsseite, blanks_may_stand_before_the_number) {
    EXPECT_EQ(Zahl_von("  201809"), 201809.0);
    EXPECT_EQ(Zahl_von("        "), 0.0);
}

TEST(Versionsseite, only_the_last_line_counts) {
    EXPECT_FALSE(Version_der_Seite(Zeile_mit("20180922") + "\r\n</html>\r\n"));
    const auto v = Version_der_Seite(Zeile_mit("20180922") + "\r\n" + Zeile_mit("20180101"));
    ASSERT_TRUE(v);
    EXPECT_EQ(v->Zahl, 20180101.0);
}

TEST(Versionsseite, a_line_end_at_the_end_of_the_page_starts_no_line) {
    for (const char* Ende : {"\r\n", "\n", "\r"}) EXPECT_TRUE(Version_der_Seite(Zeile_mit("20180922") + Ende)) << Ende;
    EXPECT_FALSE(Version_der_Seite(Zeile_mit("20180922") + "\r\n\r\n"));  // the last line is blank
    EXPECT_EQ(letzte_Zeile("a\r\nb\r\n"), "b");
}

TEST(Versionsseite, the_first_zip_of_the_line_counts) {
    const auto v = Version_der_Seite(Zeile_mit("20180922") + Zeile_mit("20990101"));
    ASSERT_TRUE(v);
    EXPECT_EQ(v->Zahl, 20180922.0);
}

TEST(Versionsseite, without_zip_there_is_no_version) {
    EXPECT_FALSE(Version_der_Seite(""));
    EXPECT_FALSE(Version_der_Seite("\r\n"));
    EXPECT_FALSE(Version_der_Seite("<html>nothing here, 20180922 or not</html>"));
    EXPECT_FALSE(Version_der_Seite("<a href=\"Varnok_package_20180922.ZIP\">"));
}

// Position 27, counted from 1, is the first that leaves room for the name.
TEST(Versionsseite, zip_in_the_first_26_characters_is_no_version) {
    const std::string davor(17, ' ');
    EXPECT_FALSE(Version_der_Seite("20180922.zip"));
    EXPECT_FALSE(Version_der_Seite(davor + "20180922.zip"));  // position 26
    EXPECT_TRUE(Version_der_Seite(davor + " 20180922.zip"));
}

TEST(Versionsseite, zip_beyond_any_file_name_is_no_version) {
    EXPECT_TRUE(Version_der_Seite(std::string(32758, ' ') + "20180922.zip"));  // position 32767
    EXPECT_FALSE(Version_der_Seite(std::string(32759, ' ') + "20180922.zip"));
}

}  // namespace
}  // namespace varnok
