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

TEST(Laufzeitfehler, is_caught_as_a_standard_runtime_error) {
    EXPECT_THROW(throw Laufzeitfehler("File x, line 3: y"), std::runtime_error);
}

}  // namespace
}  // namespace varnok
