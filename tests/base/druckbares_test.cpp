#include "base/druckbares.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

TEST(Druckbares, control_characters_of_both_sets_become_question_marks) {
    EXPECT_EQ(druckbar("a\x1b[31m\n\x7f"), "a?[31m??");
    EXPECT_EQ(druckbar("a\xC2\x9B"
                       "31m"),
              "a?31m");
}

TEST(Druckbares, letters_of_any_script_stay) {
    EXPECT_EQ(druckbar("caf\xC3\xA9 \xCE\xA9 \xC2\xA0"), "caf\xC3\xA9 \xCE\xA9 \xC2\xA0");
    EXPECT_EQ(druckbar("\xC2"), "\xC2");
}

}  // namespace
}  // namespace varnok
