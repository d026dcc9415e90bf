#include "records/klimadatei.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::HasSubstr;

// A day line with the three values right-aligned in their columns.
std::string Tageszeile(const std::string& Regen, const std::string& Verdunstung, const std::string& Temperatur) {
    const auto rechts = [](const std::string& Text) { return std::string(10 - Text.size(), ' ') + Text; };
    return "01-Jan " + rechts(Regen) + rechts(Verdunstung) + "0123456789" + rechts(Temperatur) + "99999\r\n";
}

// A year whose temperature is the number of the day, from 1.
std::string Jahr(int Tage = 365) {
    std::string Datei = "header\r\n";
    for (int i = 1; i <= Tage; ++i) Datei += Tageszeile("0", "0", std::to_string(i));
    return Datei;
}

std::string Fehler(const std::string& Bytes) {
    try {
        zerlege_Klimadatei(Bytes, "site.cli");
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
    return {};
}

TEST(Klimadatei, values_stand_in_fixed_columns) {
    const auto Tage =
        zerlege_Klimadatei("Date...\r\n" + Tageszeile("1.5", "2.25", "-3.75") + Tageszeile("4", "5", "6"), "site.cli");
    ASSERT_EQ(Tage.size(), 2u);
    EXPECT_EQ(Tage[0].Tagesniederschlag, 1.5);
    EXPECT_EQ(Tage[0].Tagesverdunstung, 2.25);
    EXPECT_EQ(Tage[0].Tagestemperatur, -3.75);
    EXPECT_EQ(Tage[1].Tagestemperatur, 6);
}

TEST(Klimadatei, columns_are_ten_wide_and_their_neighbours_are_never_read) {
    const std::string Zeile =
        "xxxxxxx"
        "1234567890"
        "2234567890"
        "xxxxxxxxxx"
        "3234567890"
        "7777";
    const auto Tage = zerlege_Klimadatei("\r\n" + Zeile, "site.cli");
    EXPECT_EQ(Tage[0].Tagesniederschlag, 1234567890);
    EXPECT_EQ(Tage[0].Tagesverdunstung, 2234567890);
    EXPECT_EQ(Tage[0].Tagestemperatur, 3234567890);
}

TEST(Klimadatei, columns_are_counted_in_bytes) {
    const std::string Zeile = std::string("\xB0\xE4\xFF    ") + "         1" + "         2" + "          " + "         3";
    EXPECT_EQ(zerlege_Klimadatei("\r\n" + Zeile, "site.cli")[0].Tagestemperatur, 3);
}

TEST(Klimadatei, decimal_comma_gives_the_same_value_as_a_point) {
    const auto Komma = zerlege_Klimadatei("\r\n" + Tageszeile("1,5", "0,25", "-3,75"), "site.cli");
    const auto Punkt = zerlege_Klimadatei("\r\n" + Tageszeile("1.5", "0.25", "-3.75"), "site.cli");
    EXPECT_EQ(Komma[0].Tagesniederschlag, Punkt[0].Tagesniederschlag);
    EXPECT_EQ(Komma[0].Tagesverdunstung, Punkt[0].Tagesverdunstung);
    EXPECT_EQ(Komma[0].Tagestemperatur, -3.75);
}

TEST(Klimadatei, short_line_blank_field_and_text_give_0) {
    const std::string ganz = Tageszeile("1", "2", "3");
    for (std::size_t n = 0; n < 47; ++n) {
        const auto Tag = zerlege_Klimadatei("\r\n" + ganz.substr(0, n) + "\r\n", "site.cli").front();
        EXPECT_EQ(Tag.Tagesniederschlag, n >= 17 ? 1 : 0) << n;
        EXPECT_EQ(Tag.Tagesverdunstung, n >= 27 ? 2 : 0) << n;
        EXPECT_EQ(Tag.Tagestemperatur, 0) << n;
    }
    const auto Tag = zerlege_Klimadatei("\r\n" + Tageszeile("", "rain", "7"), "site.cli").front();
    EXPECT_EQ(Tag.Tagesniederschlag, 0);
    EXPECT_EQ(Tag.Tagesverdunstung, 0);
    EXPECT_EQ(Tag.Tagestemperatur, 7);
}

TEST(Klimadatei, first_line_is_a_header_whatever_it_holds) {
    EXPECT_EQ(zerlege_Klimadatei(Tageszeile("1", "1", "1") + Tageszeile("2", "2", "2"), "site.cli").front().Tagestemperatur, 2);
}

TEST(Klimadatei, every_further_line_is_a_day_also_an_empty_one) {
    const auto Tage = zerlege_Klimadatei("h\r\n" + Tageszeile("1", "1", "1") + "\r\n" + Tageszeile("1", "1", "3"), "site.cli");
    ASSERT_EQ(Tage.size(), 3u);
    EXPECT_EQ(Tage[1].Tagestemperatur, 0);
}

TEST(Klimadatei, any_line_end_will_do) {
    EXPECT_EQ(zerlege_Klimadatei("h\na\nb", "site.cli").size(), 2u);
    EXPECT_EQ(zerlege_Klimadatei("h\ra\rb\r", "site.cli").size(), 2u);
}

TEST(Klimadatei, file_without_a_day_is_told) {
    for (const char* Bytes : {"", "\r\n", "header", "header\r\n"}) {
        EXPECT_EQ(Fehler(Bytes), "File site.cli, line 2: the file ends before the first day");
    }
}

TEST(Klimadatei, value_that_is_not_finite_is_told_with_its_line) {
    EXPECT_EQ(Fehler("h\r\n" + Tageszeile("1", "1", "1") + Tageszeile("1", "1E400", "1")),
              "File site.cli, line 3: \"1E400\" is too large a number");
}

TEST(Klimadatei, fault_tells_its_place) {
    for (const auto& [Bytes, Zeile] :
         {std::pair{std::string("header"), 2}, std::pair{"h\r\n\r\n" + Tageszeile("1E400", "", ""), 3}}) {
        try {
            zerlege_Klimadatei(Bytes, "site.cli");
            ADD_FAILURE() << Bytes;
        } catch (const Laufzeitfehler& f) {
            EXPECT_EQ(f.Ort().Datei, "site.cli");
            EXPECT_EQ(f.Ort().Zeile, Zeile);
        }
    }
}

TEST(Klimadatei, lines_that_no_run_reaches_are_not_kept) {
    EXPECT_EQ(zerlege_Klimadatei(Jahr(3650 + 365), "site.cli").size(), 3650u + 365);
    EXPECT_EQ(zerlege_Klimadatei(std::string(10 << 20, '\n'), "site.cli").size(), 3650u + 365);
}

TEST(Klimadatei, run_from_1_january_starts_with_the_second_line) {
    const Wetter w(zerlege_Klimadatei(Jahr(), "site.cli"), 0, 0);
    EXPECT_EQ(w.Tag(1).Tagestemperatur, 1);
    EXPECT_EQ(w.Tag(365).Tagestemperatur, 365);
    EXPECT_EQ(w.Tag(366).Tagestemperatur, 1);
}

TEST(Klimadatei, run_from_31_december_wraps_to_1_january_after_one_day) {
    const Wetter w(zerlege_Klimadatei(Jahr(), "site.cli"), 11, 30);
    EXPECT_EQ(w.Tag(1).Tagestemperatur, 365);
    EXPECT_EQ(w.Tag(2).Tagestemperatur, 1);
}

TEST(Klimadatei, leap_year_file_shifts_with_every_year) {
    const Wetter w(zerlege_Klimadatei(Jahr(366), "site.cli"), 0, 0);
    EXPECT_EQ(w.Tag(366).Tagestemperatur, 366);
    EXPECT_EQ(w.Tag(367).Tagestemperatur, 1);
}

std::vector<std::string> Bemerkungen_zu(const std::string& Bytes) {
    std::vector<Bemerkung> Gefundene;
    zerlege_Klimadatei(Bytes, "site.cli", &Gefundene);
    std::vector<std::string> Zeilen;
    for (const Bemerkung& b : Gefundene) Zeilen.push_back(als_Zeile(b));
    return Zeilen;
}

// A year of weather that there is.
std::string Wetterjahr(int Tage = 365) {
    std::string Datei = "header\r\n";
    for (int i = 1; i <= Tage; ++i) Datei += Tageszeile("1.5", "0.5", "12");
    return Datei;
}

TEST(Klimabemerkungen, a_year_of_weather_has_none) { EXPECT_TRUE(Bemerkungen_zu(Wetterjahr()).empty()); }

TEST(Klimabemerkungen, number_of_days_is_told) {
    EXPECT_EQ(Bemerkungen_zu(Wetterjahr(366)),
              std::vector<std::string>{"site.cli:1: remark: there are 366 days behind the header line, not 365"});
    EXPECT_EQ(Bemerkungen_zu(Wetterjahr(200)),
              std::vector<std::string>{"site.cli:1: remark: there are 200 days behind the header line, not 365"});
    EXPECT_EQ(Bemerkungen_zu(Wetterjahr(9000)),
              std::vector<std::string>{"site.cli:1: remark: there are at least 4015 days behind the header line, not 365"});
    // Without a header line the first day is taken for it.
    EXPECT_EQ(Bemerkungen_zu(Wetterjahr().substr(8)),
              std::vector<std::string>{"site.cli:1: remark: there are 364 days behind the header line, not 365"});
}

TEST(Klimabemerkungen, cell_that_is_no_weather_is_told_with_line_and_column) {
    struct Fall {
        std::string Zeile;
        const char* Bemerkung;
    };
    for (const auto& [Zeile, Bemerkung] :
         {Fall{Tageszeile("-999", "0", "1"),
               "site.cli:3: remark: rain, columns 8 to 17: outside the range 0 to 500 (-999 -> -999)"},
          Fall{Tageszeile("501", "0", "1"), "site.cli:3: remark: rain, columns 8 to 17: outside the range 0 to 500 (501 -> 501)"},
          Fall{Tageszeile("0", "50.1", "1"),
               "site.cli:3: remark: evapotranspiration, columns 18 to 27: outside the range 0 to 50 (50.1 -> 50.1)"},
          Fall{Tageszeile("0", "0", "200"),
               "site.cli:3: remark: temperature, columns 38 to 47: outside the range -60 to 60 (200 -> 200)"},
          Fall{Tageszeile("0", "0", "warm"), "site.cli:3: remark: temperature, columns 38 to 47: this is no number (warm -> 0)"},
          Fall{Tageszeile("0", "0", ""), "site.cli:3: remark: temperature, columns 38 to 47: there is no value ( -> 0)"},
          Fall{Tageszeile("0", "0", "1 2"),
               "site.cli:3: remark: temperature, columns 38 to 47: there are blanks inside the number (1 2 -> 12)"}}) {
        const std::string Datei = "header\r\n" + Tageszeile("1", "1", "1") + Zeile + Wetterjahr(363).substr(8);
        EXPECT_EQ(Bemerkungen_zu(Datei), std::vector<std::string>{Bemerkung});
    }
}

TEST(Klimabemerkungen, ends_of_the_ranges_are_weather) {
    const std::string Datei = "h\r\n" + Tageszeile("0", "0", "-60") + Tageszeile("500", "50", "60") + Wetterjahr(363).substr(8);
    EXPECT_TRUE(Bemerkungen_zu(Datei).empty());
}

TEST(Klimabemerkungen, what_is_wrong_all_down_a_file_is_told_a_few_times_and_counted) {
    std::string Tabelle = "date,rain,evapotranspiration,temperature\n";
    for (int i = 0; i < 365; ++i) Tabelle += "2020-01-01,1.5,0.5,12.5\n";  // another kind of file under this name
    const auto Zeilen = Bemerkungen_zu(Tabelle);
    ASSERT_EQ(Zeilen.size(), 12u);  // three columns, each three times and once for the rest
    EXPECT_EQ(Zeilen[0],
              "site.cli:2: remark: rain, columns 8 to 17: only its beginning was taken as a number (-01,1.5,0. -> -1.1)");
    EXPECT_EQ(Zeilen[2], "site.cli:2: remark: temperature, columns 38 to 47: there is no value ( -> 0)");
    EXPECT_EQ(Zeilen.back(),
              "site.cli:366: remark: temperature, columns 38 to 47: there is no value, in 362 more lines down to this one");
}

TEST(Klimabemerkungen, mark_of_utf8_in_the_header_says_nothing) {
    EXPECT_TRUE(Bemerkungen_zu("\xEF\xBB\xBF" + Wetterjahr()).empty());
}

TEST(Klimabemerkungen, columns_shifted_by_one_show) {
    std::string Datei = "header\r\n";
    for (int i = 1; i <= 365; ++i) Datei += " " + Tageszeile("1.5", "0.5", "12");
    EXPECT_FALSE(Bemerkungen_zu(Datei).empty());
}

TEST(Projektklima, file_is_loaded_without_regard_to_case) {
    const Probeordner o;
    o.lege_an("Site.CLI", Jahr());
    const Projektordner p = o.Ordner();
    const auto Tage = Projektklima(p).lade("site");
    ASSERT_TRUE(Tage);
    EXPECT_EQ(Tage->size(), 365u);
}

TEST(Projektklima, constant_temperature_is_no_file) {
    const Probeordner o;
    const Projektordner p = o.Ordner();
    EXPECT_FALSE(Projektklima(p).lade("20 °C constant"));
}

TEST(Projektklima, nothing_where_no_file_can_be_opened) {
    const Probeordner o;
    schreibe(o.Pfad() + "/outside.cli", Jahr());
    std::filesystem::create_directory(o.Eingabedatei("folder.cli"));
    const Projektordner p = o.Ordner();
    for (const char* Name : {"none", "", "folder", "../outside", ".."}) EXPECT_FALSE(Projektklima(p).lade(Name)) << Name;
}

TEST(Projektklima, file_that_cannot_be_used_is_told) {
    const Probeordner o;
    o.lege_an("empty.cli", "header\r\n");
    o.lege_an("huge.cli");
    std::filesystem::resize_file(o.Eingabedatei("huge.cli"), 100u << 20);
    const Projektordner p = o.Ordner();
    EXPECT_THROW(Projektklima(p).lade("empty"), Laufzeitfehler);
    EXPECT_THROW(Projektklima(p).lade("huge"), Laufzeitfehler);
}

TEST(Klimagedaechtnis, climate_asked_for_last_is_kept) {
    const Probeordner o;
    o.lege_an("a.cli", Jahr(1));
    o.lege_an("b.cli", Jahr(2));
    const Projektordner Ordner = o.Ordner();
    const Klimagedaechtnis Klima(Ordner);
    EXPECT_EQ(Klima.lade("a")->size(), 1U);
    o.lege_an("a.cli", Jahr(3));
    EXPECT_EQ(Klima.lade("a")->size(), 1U);
    EXPECT_EQ(Klima.lade("b")->size(), 2U);
    EXPECT_EQ(Klima.lade("a")->size(), 3U);
    EXPECT_FALSE(Klima.lade("none"));
}

TEST(Klimagedaechtnis, fault_of_a_file_is_told_each_time) {
    const Probeordner o;
    o.lege_an("a.cli", Jahr(1));
    o.lege_an("empty.cli");
    const Projektordner Ordner = o.Ordner();
    const Klimagedaechtnis Klima(Ordner);
    for (int Mal = 0; Mal < 2; ++Mal) EXPECT_THROW(Klima.lade("empty"), Laufzeitfehler);
    EXPECT_EQ(Klima.lade("a")->size(), 1U);
}

}  // namespace
}  // namespace varnok
