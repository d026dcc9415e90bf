#include "base/laufzeitfehler.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

TEST(Laufzeitfehler, impossible_calculation_names_the_value_behind_the_message) {
    try {
        melde_unmoegliche_Rechnung("Soil density (kg/L) = 0");
        FAIL() << "no exception";
    } catch (const Laufzeitfehler& f) {
        EXPECT_STREQ(f.what(),
                     "The calculation is not possible with these input data. Please correct! (Soil density (kg/L) = 0)");
    }
}

TEST(Laufzeitfehler, tells_file_and_line_in_front_of_the_reason) {
    const Laufzeitfehler f("the file ends", {.Datei = "X.che", .Zeile = 12});
    EXPECT_STREQ(f.what(), "File X.che, line 12: the file ends");
    EXPECT_EQ(f.Grund(), "the file ends");
    EXPECT_EQ(f.Ort().Datei, "X.che");
    EXPECT_EQ(f.Ort().Zeile, 12);
}

TEST(Laufzeitfehler, without_a_line_is_the_reason_alone) {
    EXPECT_STREQ(Laufzeitfehler("Cannot read the file \"/a/X.che\"", {.Datei = "X.che"}).what(),
                 "Cannot read the file \"/a/X.che\"");
    EXPECT_STREQ(Laufzeitfehler("y", {.Feld = "Bodendichte", .Reihe = 2}).what(), "y");
    EXPECT_EQ(Fehlerort{.Feld = "Bodendichte"}.Name(), "Bodendichte");
}

TEST(Laufzeitfehler, more_may_stand_in_front_of_the_reason) {
    const Laufzeitfehler f("the file ends", {.Datei = "X.che", .Zeile = 12}, "study 1: file X.che, line 12");
    EXPECT_STREQ(f.what(), "study 1: file X.che, line 12: the file ends");
    EXPECT_EQ(f.Grund(), "the file ends");
    EXPECT_EQ(f.Ort().Zeile, 12);
}

TEST(Laufzeitfehler, is_caught_as_a_standard_runtime_error) {
    EXPECT_THROW(throw Laufzeitfehler("File x, line 3: y"), std::runtime_error);
}

}  // namespace
}  // namespace varnok
