#include "base/wertebereiche.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/bemerkung.h"

namespace varnok {
namespace {

TEST(Bereich, ends_are_in_or_out_as_told) {
    constexpr Bereich b = {0, true, 100, false};
    EXPECT_TRUE(b.enthaelt(0));
    EXPECT_TRUE(b.enthaelt(99.9));
    EXPECT_FALSE(b.enthaelt(100));
    EXPECT_FALSE(b.enthaelt(-1e-300));
    EXPECT_FALSE(Bereiche::ueber_0.enthaelt(0));
}

TEST(Bereich, no_range_holds_what_is_not_finite) {
    for (const Wertebereich& w : Wertebereiche) {
        for (const double v : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
            EXPECT_FALSE(w.Grenzen.enthaelt(v)) << w.Name;
            EXPECT_FALSE(w.ueblich.enthaelt(v)) << w.Name;
        }
    }
}

TEST(Bereich, is_worded_as_people_say_it) {
    EXPECT_EQ(als_Text(Bereiche::ab_0), "0 or above");
    EXPECT_EQ(als_Text(Bereiche::ueber_0), "above 0");
    EXPECT_EQ(als_Text(Bereiche::unter_100), "0 to below 100");
    EXPECT_EQ(als_Text(Bereiche::Tiefe), "0.1 to 500");
    EXPECT_EQ(als_Text(Bereich{0, false, 100, true}), "above 0 to 100");
    EXPECT_EQ(als_Text(Bereich{}), "any number");
    EXPECT_EQ(als_Text(Bereich{-Bereich::ohne_Ende, true, 5, true}), "5 or below");
    EXPECT_EQ(als_Text(Bereich{-Bereich::ohne_Ende, true, 5, false}), "below 5");
}

TEST(Wertebereiche, each_store_stands_there_once) {
    for (const Wertebereich& w : Wertebereiche) EXPECT_EQ(finde_Wertebereich(w.Name), &w);
    EXPECT_EQ(finde_Wertebereich("none"), nullptr);
}

TEST(Bemerkung, reads_as_one_line) {
    const Bemerkung b = {"X.che", 11, "KOC (L/kg), parent", "only its beginning was taken as a number", "7x5", 7};
    EXPECT_EQ(als_Zeile(b), "X.che:11: remark: KOC (L/kg), parent: only its beginning was taken as a number (7x5 -> 7)");
    EXPECT_EQ(als_Zeile({"x.cli", 1, {}, "there are 366 days", {}, {}}), "x.cli:1: remark: there are 366 days");
    EXPECT_EQ(als_Zeile({"x.sce", 5, "Plateaudepth", "below the soil depth", {}, 3}),
              "x.sce:5: remark: Plateaudepth: below the soil depth ( -> 3)");
}

}  // namespace
}  // namespace varnok
