// Doses on the time axis.

#include "run/applikation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "base/laufzeitfehler.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

// Only what the time axis needs, without the series.
struct Zeitachse {
    explicit Zeitachse(const Lauf_bauer& b) : gelungen(Lade_Applikationen(b.Felder, b.i_studie, s)) {}
    int Tag(int Ereignis) const { return s.Applikationstag[static_cast<std::size_t>(Ereignis)]; }
    float Rate(int d) const { return s.Tagesrate[static_cast<std::size_t>(d)]; }

    Ergebnisspeicher s;
    bool gelungen;
};

const std::vector<Applikationszeile> Mai_Juni_Oktober = {
    {"15", "5", "100", "0"}, {"1", "6", "200", "0"}, {"1", "10", "300", "0"}};

TEST(Applikation, interception_of_a_quarter_leaves_three_quarters_of_the_rate) {
    EXPECT_EQ(Zeitachse(Lauf_bauer().Dosis("100", "25")).Rate(0), 75.0F);
}

TEST(Applikation, the_net_dose_is_rounded_once_after_three_operations) {
    const double Dosis = 33.3 * (100 - 7.7) / 100;
    EXPECT_EQ(Zeitachse(Lauf_bauer().Dosis("33,3", "7.7")).Rate(0), static_cast<float>(Dosis));
}

TEST(Applikation, single_pattern_has_one_event_on_day_0_of_each_year) {
    const Zeitachse z(Lauf_bauer().Dosis("100"));
    EXPECT_EQ(z.s.Anzahl_pro_Jahr, 1);
    EXPECT_EQ(z.Tag(1), 0);
    EXPECT_EQ(z.Tag(2), 365);
    EXPECT_EQ(z.Tag(11), 3650);
    EXPECT_EQ(z.Rate(3285), 100.0F);
}

TEST(Applikation, doses_are_listed_for_ten_years_though_events_for_eleven) {
    EXPECT_EQ(Zeitachse(Lauf_bauer().Dosis("100")).Rate(3650), 0.0F);
}

TEST(Applikation, single_pattern_ignores_the_list_of_numbers) {
    Lauf_bauer b;
    b.regelmaessige_Gaben(5, 10).Felder.Applikationsmuster = einzeln;
    EXPECT_EQ(Zeitachse(b).s.Anzahl_pro_Jahr, 1);
}

TEST(Applikation, twenty_events_at_interval_18_end_on_day_342_and_start_again_on_365) {
    const Zeitachse z(Lauf_bauer().regelmaessige_Gaben(20, 18));
    EXPECT_EQ(z.Tag(20), 342);
    EXPECT_EQ(z.Tag(21), 365);
    EXPECT_EQ(z.Tag(220), 3992);  // eleven years fill the places exactly
}

TEST(Applikation, regular_doses_fall_on_their_days_only) {
    const Zeitachse z(Lauf_bauer().regelmaessige_Gaben(3, 14).Dosis("50"));
    for (int d = 0; d < 3650; ++d) {
        const int im_Jahr = d % 365;
        EXPECT_EQ(z.Rate(d), im_Jahr == 0 || im_Jahr == 14 || im_Jahr == 28 ? 50.0F : 0.0F) << d;
    }
}

TEST(Applikation, the_date_of_the_first_application_does_not_move_the_axis) {
    const Zeitachse a(Lauf_bauer().regelmaessige_Gaben(2, 30).Beginn(1, 1));
    const Zeitachse b(Lauf_bauer().regelmaessige_Gaben(2, 30).Beginn(12, 31));
    EXPECT_EQ(a.s.Applikationstag, b.s.Applikationstag);
    EXPECT_EQ(a.s.Tagesrate, b.s.Tagesrate);
}

TEST(Applikation, irregular_dates_count_from_the_first_one) {
    const Zeitachse z(Lauf_bauer().Termine(Mai_Juni_Oktober));
    ASSERT_TRUE(z.gelungen);
    EXPECT_EQ((std::vector{z.Tag(1), z.Tag(2), z.Tag(3)}), (std::vector{0, 17, 139}));
    EXPECT_EQ((std::vector{z.Tag(4), z.Tag(5), z.Tag(6)}), (std::vector{365, 382, 504}));
}

TEST(Applikation, irregular_doses_move_with_their_dates) {
    const Zeitachse z(Lauf_bauer().Termine(Mai_Juni_Oktober));
    for (int d = 0; d < 3650; ++d) {
        const int im_Jahr = d % 365;
        EXPECT_EQ(z.Rate(d), im_Jahr == 0 ? 100.0F : im_Jahr == 17 ? 200.0F : im_Jahr == 139 ? 300.0F : 0.0F) << d;
    }
}

// A dose may move to a day on which another one stood before.
TEST(Applikation, moved_doses_do_not_overwrite_each_other) {
    const Zeitachse z(Lauf_bauer().Termine({{"11", "1", "1", "0"}, {"21", "1", "2", "0"}, {"31", "1", "4", "0"}}));
    EXPECT_EQ((std::vector{z.Rate(0), z.Rate(10), z.Rate(20), z.Rate(30)}), (std::vector{1.0F, 2.0F, 4.0F, 0.0F}));
}

TEST(Applikation, a_first_date_on_1_January_stays_where_it_is) {
    const Zeitachse z(Lauf_bauer().Termine({{"1", "1", "5", "0"}, {"31", "12", "7", "0"}}));
    EXPECT_EQ(z.Rate(0), 5.0F);
    EXPECT_EQ(z.Rate(364), 7.0F);
    EXPECT_EQ(z.Tag(2), 364);
}

TEST(Applikation, two_rows_of_one_day_are_an_error) {
    EXPECT_FALSE(Zeitachse(Lauf_bauer().Termine({{"1", "3", "5", "0"}, {"1", "3", "7", "0"}})).gelungen);
}

TEST(Applikation, dates_that_go_back_are_an_error) {
    EXPECT_FALSE(Zeitachse(Lauf_bauer().Termine({{"2", "3", "5", "0"}, {"1", "3", "7", "0"}})).gelungen);
}

TEST(Applikation, a_row_of_rate_0_keeps_its_event_without_a_dose) {
    const Zeitachse z(Lauf_bauer().Termine({{"1", "3", "5", "0"}, {"11", "3", "0", "0"}, {"21", "3", "7", "0"}}));
    EXPECT_EQ(z.Tag(2), 10);
    EXPECT_EQ(z.Rate(10), 0.0F);
    EXPECT_EQ(z.s.Anzahl_pro_Jahr, 3);
}

// Slot 2 takes the dose of event 3, as its number runs behind the events.
TEST(Applikation, slots_run_one_behind_the_events_after_a_row_of_rate_0) {
    const auto l =
        Lauf_bauer().Rueckstaende(1).Termine({{"1", "3", "5", "0"}, {"11", "3", "0", "0"}, {"21", "3", "7", "0"}}).rechne();
    EXPECT_EQ(Bodenslot(l, 2, 10), 0.0F);
    EXPECT_GT(Bodenslot(l, 2, 20), 0.0F);
    EXPECT_EQ(Bodenslot(l, 3, 364), 0.0F);
}

TEST(Applikation, effective_rate_of_a_single_dose_is_the_dose) {
    EXPECT_EQ(Zeitachse(Lauf_bauer().Dosis("100", "25").nach_SFO(0.5)).s.Wirksame_Rate, 75.0);
}

TEST(Applikation, effective_rate_decays_each_dose_to_the_last_one) {
    const Zeitachse z(Lauf_bauer().regelmaessige_Gaben(3, 14).Dosis("50").nach_SFO(0.02));
    EXPECT_DOUBLE_EQ(z.s.Wirksame_Rate, 50 * (std::exp(-0.02 * 28) + std::exp(-0.02 * 14) + 1));
}

TEST(Applikation, effective_rate_of_irregular_doses) {
    const Zeitachse z(Lauf_bauer().Termine(Mai_Juni_Oktober).nach_SFO(0.01));
    EXPECT_DOUBLE_EQ(z.s.Wirksame_Rate, 100 * std::exp(-1.39) + 200 * std::exp(-1.22) + 300);
}

TEST(Applikation, effective_rate_takes_the_SFO_constant_under_any_kinetics) {
    const Zeitachse z(Lauf_bauer().regelmaessige_Gaben(2, 10).Dosis("50").nach_SFO(0.1).nach_DFOP(0.5, 0.5, 0.5));
    EXPECT_DOUBLE_EQ(z.s.Wirksame_Rate, 50 * std::exp(-1.0) + 50);
}

TEST(Applikation, effective_rate_takes_the_constant_of_the_study) {
    Lauf_bauer b;
    b.regelmaessige_Gaben(2, 10).Dosis("50").nach_SFO(0.1).Studie(3).nach_SFO(0.2);
    EXPECT_DOUBLE_EQ(Zeitachse(b).s.Wirksame_Rate, 50 * std::exp(-2.0) + 50);
}

// ---- the check of the table ----

std::optional<Tabellenzelle> pruefe(std::vector<Applikationszeile> Zeilen) {
    Lauf_bauer b;
    b.Termine(std::move(Zeilen));
    return Tabelle_mit_Applikationen_berechne_PEC(b.Felder);
}

TEST(Applikationstabelle, a_valid_table_passes) { EXPECT_FALSE(pruefe(Mai_Juni_Oktober)); }

TEST(Applikationstabelle, a_day_that_converts_to_0_is_named) {
    const auto Zelle = pruefe({{"1", "3", "5", "0"}, {"x", "4", "7", "0"}});
    ASSERT_TRUE(Zelle);
    EXPECT_EQ(Zelle->Zeile, 1);
    EXPECT_EQ(Zelle->Spalte, 0);
}

TEST(Applikationstabelle, a_month_that_converts_to_0_is_named) {
    const auto Zelle = pruefe({{"1", "", "5", "0"}, {"1", "4", "7", "0"}});
    ASSERT_TRUE(Zelle);
    EXPECT_EQ(Zelle->Zeile, 0);
    EXPECT_EQ(Zelle->Spalte, 1);
}

TEST(Applikationstabelle, the_rate_is_not_checked) { EXPECT_FALSE(pruefe({{"1", "3", "", "0"}, {"1", "4", "abc", "0"}})); }

// A date behind the end of the year would leave the time axis.
TEST(Applikationstabelle, a_date_outside_the_year_is_refused) {
    EXPECT_TRUE(pruefe({{"1", "3", "5", "0"}, {"32", "12", "7", "0"}}));
    EXPECT_TRUE(pruefe({{"1", "3", "5", "0"}, {"99999", "4", "7", "0"}}));
    EXPECT_TRUE(pruefe({{"-5", "1", "5", "0"}, {"1", "4", "7", "0"}}));
}

TEST(Applikationstabelle, an_interception_of_100_becomes_99) {
    Lauf_bauer b;
    b.Termine({{"1", "3", "500", "100"}, {"1", "4", "500", "120,5"}});
    ASSERT_FALSE(Tabelle_mit_Applikationen_berechne_PEC(b.Felder));
    EXPECT_EQ(b.Felder.Applikationsschema[0][3], "99");
    EXPECT_EQ(b.Felder.Applikationsschema[1][3], "99");
    EXPECT_EQ(Zeitachse(b).Rate(0), 5.0F);  // 1 % of the rate
}

TEST(Applikationstabelle, an_interception_below_100_keeps_its_text) {
    Lauf_bauer b;
    b.Termine({{"1", "3", "500", " 99,5"}, {"1", "4", "500", ""}});
    ASSERT_FALSE(Tabelle_mit_Applikationen_berechne_PEC(b.Felder));
    EXPECT_EQ(b.Felder.Applikationsschema[0][3], " 99,5");
    EXPECT_EQ(b.Felder.Applikationsschema[1][3], "");
}

TEST(Applikationstabelle, rows_before_the_fault_are_repaired_already) {
    Lauf_bauer b;
    b.Termine({{"1", "3", "500", "100"}, {"0", "4", "500", "100"}});
    ASSERT_TRUE(Tabelle_mit_Applikationen_berechne_PEC(b.Felder));
    EXPECT_EQ(b.Felder.Applikationsschema[0][3], "99");
    EXPECT_EQ(b.Felder.Applikationsschema[1][3], "100");
}

// The field refuses an interception of 100 before a run; were it let through, there is no event.
TEST(Applikation, an_interception_of_100_in_the_field_is_not_repaired) {
    EXPECT_EQ(Zeitachse(Lauf_bauer().Dosis("500", "100")).Rate(0), 0.0F);
}

}  // namespace
}  // namespace varnok::probe
