#include "records/satztext.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

struct Fall {
    const char* getippt;
    const char* Text;
    const char* abgewiesen;
};

class Satzfaehig : public ::testing::TestWithParam<Fall> {};

TEST_P(Satzfaehig, text_is_taken_without_what_no_record_holds) {
    const Satzfaehiges s = nur_Satzfaehiges(GetParam().getippt);
    EXPECT_EQ(s.Text, GetParam().Text);
    EXPECT_EQ(s.abgewiesen, GetParam().abgewiesen);
    EXPECT_EQ(Einwand_gegen_Text(s.Text), "");
    EXPECT_EQ(Meldung_ueber(s).empty(), s.abgewiesen.empty());
}

INSTANTIATE_TEST_SUITE_P(
    alle, Satzfaehig,
    ::testing::Values(Fall{"", "", ""}, Fall{"Compound A", "Compound A", ""},
                      Fall{"\xC2\xB5g \xC3\xBC\xE2\x82\xAC\xE2\x80\x99", "\xC2\xB5g \xC3\xBC\xE2\x82\xAC\xE2\x80\x99", ""},
                      Fall{"\xCE\xB1-endosulfan", "-endosulfan", "\xCE\xB1"},        // Greek alpha
                      Fall{"M\xCE\xA9\xCE\xB1 1", "M 1", "\xCE\xA9"},                // the first one is named
                      Fall{"\xD9\xA1\xD9\xA2", "", "\xD9\xA1"},                      // Arabic digits
                      Fall{"\xF0\x9F\x8C\xBE wheat", " wheat", "\xF0\x9F\x8C\xBE"},  // beyond 16 bits
                      Fall{"1\xE2\x80\xAF"
                           "250",
                           "1250", "\xE2\x80\xAF"},  // narrow blank
                      Fall{"two\nlines", "two lines", ""}, Fall{"two\r\nlines", "two lines", ""}, Fall{"a\tb", "a b", ""},
                      Fall{"a\x01"
                           "b",
                           "ab", "\x01"},
                      Fall{"a\x7F", "a", "\x7F"}, Fall{"\xFF\xFE", "", "\xFF"}));  // no text at all

TEST(Satzfaehig, message_names_the_character) {
    EXPECT_EQ(Meldung_ueber(nur_Satzfaehiges("\xCE\xB1")), "\"\xCE\xB1\" was left out: the records have no such character.");
    EXPECT_EQ(Meldung_ueber(nur_Satzfaehiges("\x02")), "A control character was left out: the records cannot hold it.");
}

}  // namespace
}  // namespace varnok
