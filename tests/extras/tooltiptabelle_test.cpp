#include "extras/tooltiptabelle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "extras/tooltipdatei.h"

namespace varnok {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

const std::vector<std::string>& Ziele(std::size_t Tip) { return Tooltiptabelle()[Tip - 1].Objektnamen; }

TEST(Tooltiptabelle, has_one_entry_for_each_tip_in_order) {
    ASSERT_EQ(Tooltiptabelle().size(), Anzahl_Tooltips);
    for (std::size_t i = 0; i < Anzahl_Tooltips; ++i) {
        EXPECT_EQ(Tooltiptabelle()[i].Tip, i + 1);
        EXPECT_FALSE(Tooltiptabelle()[i].Objektnamen.empty());
    }
}

TEST(Tooltiptabelle, counts_indices_from_0_to_the_last) {
    ASSERT_EQ(Ziele(1).size(), 12u + 9u);
    EXPECT_EQ(Ziele(1).front(), "Diagramm_0");
    EXPECT_EQ(Ziele(1)[11], "Diagramm_11");
    EXPECT_EQ(Ziele(1).back(), "Diagramm_Zusammenfassung_8");
    EXPECT_THAT(Ziele(10), ElementsAre("Simulationsliste", "Frame2"));
    EXPECT_THAT(Ziele(23), ElementsAre("S_Q10_0", "S_Q10_1", "S_Q10_2"));
    EXPECT_THAT(Ziele(40), ElementsAre("S_alpha"));
    EXPECT_THAT(Ziele(46), ElementsAre("Name_Wirkstoff_0", "Name_Wirkstoff_1"));
}

TEST(Tooltiptabelle, names_the_legends_twice_and_the_tables_once) {
    for (const char* Name : {"Legendenrahmen_0", "Legendenrahmen_mehrfach_3", "Legendenrahmen_Zusammenfassung_8"}) {
        EXPECT_THAT(Ziele(2), Contains(Name));
        EXPECT_THAT(Ziele(3), Contains(Name));
    }
    EXPECT_THAT(Ziele(2), Contains("Ergebnisse_11"));
    EXPECT_THAT(Ziele(3), Not(Contains("Ergebnisrahmen_0")));
}

}  // namespace
}  // namespace varnok
