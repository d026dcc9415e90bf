#include "run/kalender.h"

#include <gtest/gtest.h>

#include "run/eingabe.h"

namespace varnok {
namespace {

TEST(Kalender, days_before_the_first_of_each_month) {
    constexpr int erwartet[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    for (int Monat = 1; Monat <= 12; ++Monat) EXPECT_EQ(Julian(Monat), erwartet[Monat - 1]) << Monat;
}

TEST(Kalender, first_of_March_is_day_59_of_every_year) { EXPECT_EQ(Julian(3) + 1 - 1, 59); }

TEST(Kalender, a_month_that_does_not_exist_has_no_days_before_it) {
    EXPECT_EQ(Julian(13), 0);
    EXPECT_EQ(Julian(0), 0);
    EXPECT_EQ(Julian(-1), 0);
}

TEST(Kalender, February_has_28_days_and_the_year_365) {
    int Summe = 0;
    for (int Monat = 1; Monat <= 12; ++Monat) Summe += Tage_im_Monat(Monat);
    EXPECT_EQ(Tage_im_Monat(2), 28);
    EXPECT_EQ(Summe, 365);
}

TEST(Kalender, lengths_of_the_other_months) {
    for (const int Monat : {1, 3, 5, 7, 8, 10, 12}) EXPECT_EQ(Tage_im_Monat(Monat), 31) << Monat;
    for (const int Monat : {4, 6, 9, 11}) EXPECT_EQ(Tage_im_Monat(Monat), 30) << Monat;
}

TEST(Kalender, years_change_every_365_days) {
    EXPECT_EQ(Jahr_von(0), 1);
    EXPECT_EQ(Jahr_von(364), 1);
    EXPECT_EQ(Jahr_von(365), 2);
    EXPECT_EQ(Jahr_von(3285), 10);
    EXPECT_EQ(Jahr_von(3649), 10);
}

TEST(Kalender, longest_interval_is_the_year_shared_out_ties_to_even) {
    EXPECT_EQ(laengstes_Intervall(2), 182);  // 182.5
    EXPECT_EQ(laengstes_Intervall(3), 122);  // 121.67
    EXPECT_EQ(laengstes_Intervall(10), 36);  // 36.5
    EXPECT_EQ(laengstes_Intervall(20), 18);  // 18.25
}

TEST(Kalender, all_events_of_a_year_fall_within_it) {
    for (int n = 2; n <= 20; ++n) EXPECT_LT((n - 1) * laengstes_Intervall(n), 365) << n;
}

TEST(waehle_Anzahl, table_gets_a_row_for_each_application) {
    Eingabe e;
    waehle_Anzahl(e, 5);
    EXPECT_EQ(e.Anzahl(), 5);
    EXPECT_EQ(e.Applikationsschema.size(), 5U);
}

TEST(waehle_Anzahl, an_interval_that_the_list_still_holds_stays) {
    Eingabe e;
    e.Intervall_Index = 13;
    waehle_Anzahl(e, 4);
    EXPECT_EQ(e.Intervall(), 14);
}

TEST(waehle_Anzahl, an_interval_above_the_list_becomes_its_last_entry) {
    Eingabe e;
    e.Intervall_Index = 99;
    waehle_Anzahl(e, 20);
    EXPECT_EQ(e.Intervall(), 18);
}

}  // namespace
}  // namespace varnok
