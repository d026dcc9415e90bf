// What stands over the columns of a table of studies.

#include "session/ergebnis/studienkoepfe.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

using Texte = std::vector<std::string>;

TEST(Studienkoepfe, names_without_common_words_stand_as_they_are) {
    const Texte Namen = {"Soil 1, first order", "Field study"};
    const auto v = Kopfvorschlaege(Namen);
    ASSERT_EQ(v.size(), 3U);
    EXPECT_EQ(v[0], Namen);
    EXPECT_EQ(v[1], Namen);
    EXPECT_EQ(v[2], (Texte{"1: Soil 1, first order", "2: Field study"}));
}

TEST(Studienkoepfe, words_that_all_begin_with_give_way) {
    const auto v = Kopfvorschlaege({"Field study, site 1 loam", "Field study, site 2 sand", "Field study, site 3 clay"});
    EXPECT_EQ(v[1], (Texte{"\u2026 1 loam", "\u2026 2 sand", "\u2026 3 clay"}));
}

TEST(Studienkoepfe, words_that_all_end_with_give_way) {
    const auto v = Kopfvorschlaege({"Loam from the north", "Sand from the north"});
    EXPECT_EQ(v[1], (Texte{"Loam", "Sand"}));
}

TEST(Studienkoepfe, each_name_keeps_a_word) {
    EXPECT_EQ(Kopfvorschlaege({"Soil", "Soil 2"})[1], (Texte{"Soil", "Soil 2"}));
    EXPECT_EQ(Kopfvorschlaege({"Soil A", "Soil A"})[1], (Texte{"\u2026 A", "\u2026 A"}));
    EXPECT_EQ(Kopfvorschlaege({"Soil A", "Soil A"})[2], (Texte{"1: \u2026 A", "2: \u2026 A"}));
}

TEST(Studienkoepfe, words_alike_at_both_ends_are_taken_once) {
    EXPECT_EQ(Kopfvorschlaege({"a b", "a b b"})[1], (Texte{"\u2026 b", "\u2026 b b"}));
}

TEST(Studienkoepfe, one_study_and_a_name_of_blanks_are_no_fault) {
    EXPECT_EQ(Kopfvorschlaege({"Soil 1"})[1], Texte{"Soil 1"});
    EXPECT_EQ(Kopfvorschlaege({" ", "Soil 1"})[2], (Texte{"1: ", "2: Soil 1"}));
    EXPECT_EQ(Kopfvorschlaege({})[0], Texte{});
}

}  // namespace
}  // namespace varnok
