// A number with its text.

#include "base/zahlwert.h"

#include <gtest/gtest.h>

namespace varnok {
namespace {

TEST(Zahlwert, knows_how_much_of_its_text_the_number_is) {
    struct Fall {
        const char* Text;
        double Zahl;
        bool ganz, eindeutig, ohne_Zahl;
    };
    for (const Fall& f : {Fall{"12,5", 12.5, true, true, false}, Fall{" 12.5 ", 12.5, true, true, false},
                          Fall{"7x5", 7, false, true, false}, Fall{"1.250,5", 1.25, false, false, false},
                          Fall{"1'250", 1, false, false, false}, Fall{"1 250", 1250, false, true, false},
                          Fall{"abc", 0, false, true, true}, Fall{"", 0, false, true, true}, Fall{" ", 0, false, true, true}}) {
        const Zahlwert v = f.Text;
        EXPECT_EQ(v.Text(), f.Text);
        EXPECT_EQ(v.Zahl(), f.Zahl) << f.Text;
        EXPECT_EQ(v.ganz(), f.ganz) << f.Text;
        EXPECT_EQ(v.eindeutig(), f.eindeutig) << f.Text;
        EXPECT_EQ(v.ohne_Zahl(), f.ohne_Zahl) << f.Text;
    }
}

TEST(Zahlwert, without_a_text_is_that_of_the_empty_one) {
    const Zahlwert v;
    const Zahlwert leer("");
    EXPECT_EQ(v, leer);
    EXPECT_EQ(v.ganz(), leer.ganz());
    EXPECT_EQ(v.eindeutig(), leer.eindeutig());
    EXPECT_EQ(v.ohne_Zahl(), leer.ohne_Zahl());
}

TEST(Zahlwert, equality_is_that_of_the_texts) {
    EXPECT_NE(Zahlwert("1"), Zahlwert("1.0"));
    EXPECT_EQ(Zahlwert("1,5"), Zahlwert("1,5"));
}

}  // namespace
}  // namespace varnok
