#include "base/text.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

using Stuecke = std::vector<std::string_view>;

TEST(Text, blanks_go_at_both_ends_and_stay_inside) {
    EXPECT_EQ(ohne_Randblanks("  a b "), "a b");
    EXPECT_EQ(ohne_Randblanks("a"), "a");
}

TEST(Text, blanks_alone_leave_nothing) {
    EXPECT_EQ(ohne_Randblanks("   "), "");
    EXPECT_EQ(ohne_Randblanks(""), "");
}

TEST(Text, a_tab_is_no_blank) { EXPECT_EQ(ohne_Randblanks(" \ta\t "), "\ta\t"); }

TEST(Text, digits_alone) {
    for (const char* t : {"0", "0123456789"}) EXPECT_TRUE(nur_Ziffern(t)) << t;
    for (const char* t : {"", " 1", "1 ", "-1", "1.5", "1e3", "\xC2\xB2"}) EXPECT_FALSE(nur_Ziffern(t)) << t;
}

TEST(Text, letters_a_to_z_are_equal_in_either_case) {
    EXPECT_TRUE(gleich_ohne_Gross_Klein("Varnok.INI", "vARNOK.ini"));
    EXPECT_TRUE(gleich_ohne_Gross_Klein("", ""));
}

TEST(Text, other_texts_differ) {
    EXPECT_FALSE(gleich_ohne_Gross_Klein("a", "ab"));
    EXPECT_FALSE(gleich_ohne_Gross_Klein("ab", "a"));
    EXPECT_FALSE(gleich_ohne_Gross_Klein("a", "b"));
}

TEST(Text, characters_beside_the_letters_are_not_folded) {
    EXPECT_FALSE(gleich_ohne_Gross_Klein("@", "`"));
    EXPECT_FALSE(gleich_ohne_Gross_Klein("[", "{"));
    EXPECT_FALSE(gleich_ohne_Gross_Klein("\xC3\x84", "\xC3\xA4"));
}

TEST(Text, one_piece_more_than_separators) {
    EXPECT_EQ(zerlege_an("a\tb\t\tc", '\t'), (Stuecke{"a", "b", "", "c"}));
    EXPECT_EQ(zerlege_an("a", '\t'), (Stuecke{"a"}));
    EXPECT_EQ(zerlege_an("", '\t'), (Stuecke{""}));
    EXPECT_EQ(zerlege_an("\t", '\t'), (Stuecke{"", ""}));
}

}  // namespace
}  // namespace varnok
