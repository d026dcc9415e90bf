#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::HasSubstr;

const std::string Satz = Bytes(Applikation, volle_Probe());

TEST(Applikation_lesen, each_line_goes_to_its_place) {
    Satzprobe p;
    EXPECT_EQ(lies(Satz, Applikation, p).Ausgang, Leseausgang::gelesen);
    Satzprobe erwartet;
    erwartet.Felder.Applikationsmuster = unregelmaessig;
    erwartet.Sicht.PEC_Typ = Hintergrund;
    erwartet.Felder.App_Monat = 2;
    erwartet.Felder.App_Tag = 30;
    erwartet.Felder.Applikationsrate = "750.5";
    erwartet.Felder.Interzeption = "25";
    erwartet.Felder.Intervall_Index = 13;
    erwartet.Felder.Anzahl_Index = 1;
    erwartet.Felder.Applikationsschema = {{"01", "04", "100", "0"}, {"15", "04", "200.5", "12.5"}, {"30", "11", "75", "50"}};
    EXPECT_EQ(p, erwartet);
}

TEST(Applikation_lesen, each_number_is_the_one_that_its_text_means) {
    for (const char z : {'.', ','}) {
        Satzprobe p;
        auto Zeilen = zerlegt(Satz);
        Zeilen[9] = "1\t4\t 100,25 g\t12,50";
        lies(verbunden(Zeilen), Applikation, p, z);
        EXPECT_EQ(p.Felder.Applikationsrate.Zahl(), 750.5);
        EXPECT_EQ(p.Felder.Interzeption.Zahl(), 25);
        const auto& [Tag, Monat, Rate, Interzeption] = p.Felder.Applikationsschema[0];
        EXPECT_EQ(Tag.Zahl(), 1);
        EXPECT_EQ(Monat.Zahl(), 4);
        EXPECT_EQ(Rate.Zahl(), 100.25);
        EXPECT_EQ(Interzeption.Zahl(), 12.5);
    }
}

TEST(Applikation_lesen, list_positions_are_the_numbers_less_the_first_entry) {
    Satzprobe p;
    auto Zeilen = zerlegt(Satz);
    Zeilen[3] = "Regular application date:\t12\t1";
    Zeilen[6] = "Time between applications:\t1";
    Zeilen[7] = "Number of applications per year:\t2";
    EXPECT_EQ(lies(verbunden(Zeilen), Applikation, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.App_Monat, 11);
    EXPECT_EQ(p.Felder.App_Tag, 0);
    EXPECT_EQ(p.Felder.Intervall_Index, 0);
    EXPECT_EQ(p.Felder.Anzahl_Index, 0);
}

TEST(Applikation_lesen, rate_and_interception_come_back_in_general_form) {
    for (const char z : {'.', ','}) {
        Satzprobe p;
        auto Zeilen = zerlegt(Satz);
        Zeilen[4] = "Application rate (g/ha):\t 0750,50 g";
        Zeilen[5] = "Crop interception (%):\t";
        Zeilen[9] = "1\t4\t 100,0 \t12,50";
        lies(verbunden(Zeilen), Applikation, p, z);
        EXPECT_EQ(p.Felder.Applikationsrate.Text(), std::string("750") + z + "5");
        EXPECT_EQ(p.Felder.Interzeption.Text(), "0");
        // In the table the rate stays as it stands, without the blanks around it.
        EXPECT_EQ(p.Felder.Applikationsschema[0], (Applikationszeile{"01", "04", "100,0", std::string("12") + z + "5"}));
    }
}

TEST(Applikation_lesen, day_and_month_of_the_table_have_two_digits_and_blanks_stay_blank) {
    Satzprobe p;
    auto Zeilen = zerlegt(Satz);
    Zeilen[9] = "7\t 3 \t\t";
    Zeilen[10] = "\t\t\t";
    Zeilen[11] = "-1\t1E300\tx\ty";
    const Lesebefund b = lies(verbunden(Zeilen), Applikation, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Applikationsschema[0], (Applikationszeile{"07", "03", "", "0"}));
    EXPECT_EQ(p.Felder.Applikationsschema[1], (Applikationszeile{"", "", "", "0"}));
    EXPECT_EQ(p.Felder.Applikationsschema[2], (Applikationszeile{"-01", "1E+300", "x", "0"}));
    const auto steht = [&](int Zeile, const std::string& Spalte, const std::string& Meldung) {
        return std::any_of(b.Bemerkungen.begin(), b.Bemerkungen.end(), [&](const Bemerkung& x) {
            return x.Zeile == Zeile && x.Meldung == Meldung &&
                   x.Feld == "row " + std::to_string(Zeile - 9) + " of the application table, " + Spalte;
        });
    };
    EXPECT_TRUE(steht(10, "rate", "there is no value"));
    EXPECT_TRUE(steht(11, "day", "there is no value; outside the range 1 to 31"));
    EXPECT_TRUE(steht(12, "day", "outside the range 1 to 31"));
    EXPECT_TRUE(steht(12, "month", "outside the range 1 to 12"));
    EXPECT_TRUE(steht(12, "rate", "this is no number"));
    EXPECT_TRUE(steht(12, "interception", "this is no number"));
}

TEST(Applikation_lesen, text_as_a_day_of_the_table_reads_as_00) {
    Satzprobe p;
    const Lesebefund b = lies(mit_Zeile(Satz, 10, "May\t1\t2\t3"), Applikation, p);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Meldung, "this is no number; outside the range 1 to 31");
    EXPECT_EQ(b.Bemerkungen[0].Text, "May");
    EXPECT_EQ(b.Bemerkungen[0].Wert, 0);
    EXPECT_EQ(p.Felder.Applikationsschema[0][0].Text(), "00");
}

TEST(Applikation_lesen, interval_above_365_by_number_becomes_the_last_entry) {
    Satzprobe p;
    lies(mit_Zeile(Satz, 7, "Time between applications:\t365"), Applikation, p);
    EXPECT_EQ(p.Felder.Anzahl(), 3);
    EXPECT_EQ(p.Felder.Intervall(), 122);  // 365/3
}

TEST(Applikation_lesen, what_a_record_gives_does_not_depend_on_the_one_before) {
    Satzprobe viele = volle_Probe();
    viele.Felder.Anzahl_Index = 18;
    viele.Felder.Intervall_Index = 5;
    viele.Felder.Applikationsschema.assign(20, {"09", "09", "9", "9"});
    viele.Felder.Parameter = {};
    viele.Felder.Studie.clear();
    Satzprobe keine;
    const std::string weit = mit_Zeile(Satz, 7, "Time between applications:\t100");
    lies(weit, Applikation, viele);
    lies(weit, Applikation, keine);
    EXPECT_EQ(Bytes(Applikation, viele), Bytes(Applikation, keine));
    EXPECT_EQ(viele.Felder.Intervall(), 100);
    EXPECT_EQ(viele.Felder.Applikationsschema.size(), 3u);
}

TEST(Applikation_lesen, crop_rotation_is_left_alone) {
    Satzprobe p;
    p.Sicht.Fruchtwechsel = jedes_dritte_Jahr;
    lies(Satz, Applikation, p);
    EXPECT_EQ(p.Sicht.Fruchtwechsel, 2);
}

TEST(Applikation_lesen, type_and_day_know_no_decimal_comma) {
    Satzprobe p;
    auto Zeilen = zerlegt(Satz);
    Zeilen[1] = "Application type:\t1,9";
    Zeilen[3] = "Regular application date:\t3\t7,9";
    lies(verbunden(Zeilen), Applikation, p);
    EXPECT_EQ(p.Felder.Applikationsmuster, 1);
    EXPECT_EQ(p.Felder.App_Tag, 6);
}

TEST(Applikation_lesen, position_is_rounded_after_the_subtraction) {
    Satzprobe p;
    // 2.5 - 1 = 1.5 rounds to position 2; 2.5 itself would round to 2 and so to position 1.
    lies(mit_Zeile(Satz, 4, "Regular application date:\t2.5\t1"), Applikation, p);
    EXPECT_EQ(p.Felder.App_Monat, 2);
}

struct Abbruch {
    std::size_t Zeile;
    const char* Text;
    const char* Grund;
};

class Applikation_Abbruch : public ::testing::TestWithParam<Abbruch> {};

TEST_P(Applikation_Abbruch, value_outside_its_list_leaves_an_irregular_pattern_unread) {
    const auto& [Zeile, Text, Grund] = GetParam();
    Satzprobe p = volle_Probe(4);
    const Satzprobe vorher = p;
    const Lesebefund b = lies(mit_Zeile(Satz, Zeile, Text), Applikation, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen);
    EXPECT_EQ(b.Ort.Zeile, static_cast<int>(Zeile));
    EXPECT_THAT(b.Grund, HasSubstr(Grund));
    EXPECT_EQ(p, vorher);
}

INSTANTIATE_TEST_SUITE_P(
    alle, Applikation_Abbruch,
    ::testing::Values(
        Abbruch{2, "Application type:\t3", "\"3\" is not valid for \"Application type:\" (0 to 2)"},
        Abbruch{2, "Application type:\t-1", "\"-1\" is not valid"},
        Abbruch{3, "PEC-Type:\t3", "\"3\" is not valid for \"PEC-Type:\" (0 to 2)"},
        Abbruch{4, "Regular application date:\t13\t1", "\"13\" is not valid for \"Regular application date:\" (1 to 12)"},
        Abbruch{4, "Regular application date:\t0\t1", "\"0\" is not valid"},
        Abbruch{4, "Regular application date:\t4\t31", "\"31\" is not valid for \"Regular application date:\" (1 to 30)"},
        Abbruch{4, "Regular application date:\t2\t29", "(1 to 28)"}, Abbruch{4, "Regular application date:\t4\t0", "(1 to 30)"},
        Abbruch{4, "Regular application date:\t4", "has too few values"},
        Abbruch{5, "Application rate (g/ha):\t1E400", "\"1E400\" is too large a number"},
        Abbruch{6, "Crop interception (%):\t-1E400", "too large"}, Abbruch{7, "Time between applications:\t0", "(1 to 365)"},
        Abbruch{7, "Time between applications:\t366", "(1 to 365)"},
        Abbruch{8, "Number of applications per year:\t0", "(1 to 20)"},
        Abbruch{8, "Number of applications per year:\t21", "(1 to 20)"},
        Abbruch{8, "Number of applications per year:\t1E9", "(1 to 20)"}));

// The record "Satz" with another pattern: 0 single, 1 regular, 2 irregular.
std::string mit_Muster(int Muster) { return mit_Zeile(Satz, 2, "Application type:\t" + std::to_string(Muster)); }

TEST(Applikation_lesen, one_application_is_kept_and_is_doubtful_where_a_run_reads_the_number) {
    for (const int Muster : {einzeln, regelmaessig, unregelmaessig}) {
        Satzprobe p;
        const std::string eine = mit_Zeile(mit_Muster(Muster), 8, "Number of applications per year:\t1");
        const Lesebefund b = lies(eine, Applikation, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::gelesen) << b.Grund;
        EXPECT_EQ(p.Felder.Anzahl(), 1);
        EXPECT_EQ(p.Felder.Applikationsschema.size(), 1u);
        EXPECT_EQ(zerlegt(Bytes(Applikation, p))[7], "Number of applications per year:\t1");
        ASSERT_EQ(b.Bemerkungen.size(), Muster == einzeln ? 0u : 1u);
        if (Muster == einzeln) continue;
        EXPECT_EQ(b.Bemerkungen[0].Zeile, 8);
        EXPECT_EQ(b.Bemerkungen[0].Meldung, "outside the range 2 to 20");
    }
}

TEST(Applikation_lesen, no_number_outside_the_list_enters_where_a_run_needs_it) {
    for (const int Muster : {regelmaessig, unregelmaessig}) {
        for (const char* Text : {"0", "0.4", "-1", "21"}) {
            Satzprobe p = volle_Probe(4);
            const Satzprobe vorher = p;
            const std::string Zeile = std::string("Number of applications per year:\t") + Text;
            const Lesebefund b = lies(mit_Zeile(mit_Muster(Muster), 8, Zeile), Applikation, p);
            EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen) << Text;
            EXPECT_EQ(b.Ort.Zeile, 8);
            EXPECT_EQ(b.Ort.Feld, "Anzahl");
            EXPECT_EQ(b.Ort.Bezeichnung, "Number of applications per year");
            EXPECT_EQ(b.Ort.Text, Text);
            EXPECT_EQ(p, vorher);
        }
    }
}

TEST(Applikation_lesen, a_day_that_the_month_does_not_have_changes_nothing) {
    Satzprobe p;
    p.Felder.App_Monat = 0;
    p.Felder.App_Tag = 30;
    EXPECT_EQ(lies(mit_Zeile(Satz, 4, "Regular application date:\t2\t30"), Applikation, p).Ausgang, Leseausgang::abgebrochen);
    EXPECT_EQ(p.Felder.App_Monat, 0);
    EXPECT_EQ(p.Felder.App_Tag, 30);
}

TEST(Applikation_lesen, missing_row_of_an_irregular_pattern_changes_nothing) {
    Satzprobe p = volle_Probe(4);
    const Satzprobe vorher = p;
    const Lesebefund b = lies(vor_Zeile(Satz, 12) + Trennlinie + "\r\n", Applikation, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen);
    EXPECT_EQ(b.Ort.Zeile, 12);
    EXPECT_EQ(b.Grund, "row 3 of the application table has too few values (no tab behind value 1)");
    EXPECT_EQ(p, vorher);
}

TEST(Applikation_lesen, row_without_a_tab_of_an_irregular_pattern_changes_nothing) {
    Satzprobe p = volle_Probe(4);
    const Satzprobe vorher = p;
    EXPECT_EQ(lies(mit_Zeile(Satz, 11, "20\t05"), Applikation, p).Ort.Zeile, 11);
    EXPECT_EQ(p, vorher);
}

TEST(Applikation_lesen, table_that_no_run_reads_may_be_short_and_never_holds_rows_of_the_record_before) {
    for (const int Muster : {einzeln, regelmaessig}) {
        for (std::size_t Zeile = 9; Zeile <= 12; ++Zeile) {
            Satzprobe p;
            p.Felder.Applikationsschema.assign(5, {"09", "09", "9", "9"});
            p.Felder.Anzahl_Index = 3;
            const Lesebefund b = lies(vor_Zeile(mit_Muster(Muster), Zeile), Applikation, p);
            EXPECT_EQ(b.Ausgang, Leseausgang::gelesen) << Zeile;
            ASSERT_EQ(b.Bemerkungen.size(), 1u);
            EXPECT_EQ(b.Bemerkungen[0].Zeile, static_cast<int>(Zeile));
            EXPECT_THAT(b.Bemerkungen[0].Meldung, HasSubstr("the file ends before"));
            EXPECT_EQ(p.Felder.Applikationsmuster, Muster);
            ASSERT_EQ(p.Felder.Applikationsschema.size(), 3u);
            EXPECT_EQ(p.Felder.Applikationsschema[2], Applikationszeile{});
            EXPECT_EQ(p.Felder.Applikationsschema[0][0].Text(), Zeile > 10 ? "01" : "") << Zeile;
        }
    }
}

TEST(Applikation_lesen, file_that_ends_before_what_the_run_of_its_pattern_reads_changes_nothing) {
    for (const auto& [Muster, letzte] : {std::pair{einzeln, 6}, {regelmaessig, 8}, {unregelmaessig, 12}}) {
        for (int Zeile = 1; Zeile <= 12; ++Zeile) {
            Satzprobe p = volle_Probe(4);
            const Satzprobe vorher = p;
            const Lesebefund b = lies(vor_Zeile(mit_Muster(Muster), static_cast<std::size_t>(Zeile)), Applikation, p);
            EXPECT_EQ(b.Ausgang == Leseausgang::abgebrochen, Zeile <= letzte) << Muster << ' ' << Zeile;
            if (Zeile > letzte) continue;
            EXPECT_EQ(b.Ort.Zeile, Zeile);
            EXPECT_EQ(p, vorher) << Muster << ' ' << Zeile;
        }
    }
    Satzprobe p;
    EXPECT_EQ(lies(vor_Zeile(Satz, 13), Applikation, p).Ausgang, Leseausgang::gelesen);
}

}  // namespace
}  // namespace varnok
