#include "base/dateiname.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

TEST(Dateiname, what_no_file_can_hold_becomes_a_line) {
    EXPECT_EQ(als_Dateiname("a\\b/c:d*e?f\"g<h>i|j"), "a_b_c_d_e_f_g_h_i_j");
    EXPECT_EQ(als_Dateiname("\x1B[31m\r\n\x7F"), "_[31m___");
    EXPECT_EQ(als_Dateiname("2,4-D (Säure) 100 % 'x'"), "2,4-D (Säure) 100 % 'x'");
}

TEST(Dateiname, control_characters_of_two_bytes_count_as_one) {
    EXPECT_EQ(als_Dateiname("a\xC2\x9B"
                            "b\xC2\xA0"
                            "c"),
              "a_b\xC2\xA0"
              "c")
        << "a blank that does not break is none";
}

TEST(Dateiname, is_never_empty_nor_a_folder) {
    EXPECT_EQ(als_Dateiname(""), "_");
    EXPECT_EQ(als_Dateiname("."), "_");
    EXPECT_EQ(als_Dateiname(".."), "__");
    EXPECT_EQ(als_Dateiname("../../etc/passwd"), ".._.._etc_passwd");
}

TEST(Dateiname, is_cut_at_a_whole_character_in_front_of_the_addition) {
    std::string lang;
    while (lang.size() < 300) lang += "ä";
    const std::string Name = als_Dateiname(lang, " - study 2");
    EXPECT_EQ(Name.size(), 240U);
    EXPECT_TRUE(Name.ends_with("ä - study 2"));
    EXPECT_EQ(als_Dateiname(lang, "x").size(), 239U);
    EXPECT_EQ(als_Dateiname("abcdef", "", 4), "abcd");
}

}  // namespace
}  // namespace varnok
