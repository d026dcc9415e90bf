#include "records/einstellungen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::ElementsAre;

Gelesene_Einstellungen Probe() {
    Gelesene_Einstellungen g;
    g.Werte.Tips_anzeigen = 1;
    g.Werte.Farbeinstellung = 3;
    g.Werte.TWA_Titel_EU = "Mine µ";
    g.Werte.TWA_Titel_Monat = "";
    g.Werte.Projektpfad = "/home/über/project";
    g.TWA.EU = {0.5, 1, 2, 3, 4, 5, 6, 7, 1.0 / 3, 365};
    g.TWA.Monat[11] = 3649;
    return g;
}

std::string als_Bytes(const Gelesene_Einstellungen& g) { return Einstellungen_als_Bytes(g.Werte, g.TWA); }

TEST(Einstellungen, defaults_line_by_line) {
    Einstellungen e;
    e.Projektpfad = "/p";
    EXPECT_THAT(zerlegt(Einstellungen_als_Bytes(e, {})),
                ElementsAre("Tooltips:\t0", "Appearance:\t0", "EU-Regulation", " 1 ", " 2 ", " 4 ", " 7 ", " 14 ", " 21 ", " 28 ",
                            " 42 ", " 50 ", " 100 ", "TWA according to JKI", " 30 ", " 60 ", " 90 ", " 120 ", " 150 ", " 180 ",
                            " 210 ", " 240 ", " 270 ", " 300 ", " 330 ", " 360 ", "/p"));
}

TEST(Einstellungen, what_was_written_reads_back) {
    EXPECT_EQ(zerlege_Einstellungen(Einstellungen_als_Bytes({}, {})), Gelesene_Einstellungen{});
    const std::string Bytes = als_Bytes(Probe());
    auto e = zerlege_Einstellungen(Bytes);
    ASSERT_TRUE(e);
    EXPECT_EQ(als_Bytes(*e), Bytes);
    EXPECT_NEAR(e->TWA.EU[8], 1.0 / 3, 1e-15);  // 15 digits
    e->TWA.EU[8] = 1.0 / 3;
    EXPECT_EQ(*e, Probe());
}

TEST(Einstellungen, pictures_have_a_line_where_they_are_others_than_at_first) {
    Einstellungen e;
    e.Projektpfad = "/p";
    e.Bild = {90, 70, 600, true};
    const std::string Bytes = Einstellungen_als_Bytes(e, {});
    EXPECT_EQ(zerlegt(Bytes).back(), "Pictures:\t90\t70\t600\t1");
    EXPECT_EQ(zerlege_Einstellungen(Bytes)->Werte, e);
}

TEST(Einstellungen, a_line_for_pictures_that_makes_no_sense_is_left_alone) {
    const std::string Bytes = Einstellungen_als_Bytes({}, {});
    for (const char* Zeile :
         {"Pictures:\t9000\t70\t600\t1", "Pictures:\t90\t70", "Something:\t90\t70\t600\t1", "\t\t\t\t", "x"}) {
        const auto e = zerlege_Einstellungen(Bytes + Zeile + "\r\n");
        ASSERT_TRUE(e) << Zeile;
        EXPECT_EQ(e->Werte.Bild, Bildeinstellung()) << Zeile;
    }
}

TEST(Einstellungen, any_path_comes_back_as_it_was) {
    for (const char* Pfad : {"", "/plain", "/über", "/Ω/日本", "/Ã¤", "/â‚¬", "/\u0081", "C:\\Users\\x", " blank "}) {
        Einstellungen e;
        e.Projektpfad = Pfad;
        EXPECT_EQ(zerlege_Einstellungen(Einstellungen_als_Bytes(e, {}))->Werte, e) << Pfad;
    }
}

TEST(Einstellungen, path_in_the_code_page_is_read) {
    Einstellungen e;
    e.Projektpfad = "/p";
    auto e2 = zerlege_Einstellungen(mit_Zeile(Einstellungen_als_Bytes(e, {}), 27,
                                              "/\xFC"
                                              "ber"));
    ASSERT_TRUE(e2);
    EXPECT_EQ(e2->Werte.Projektpfad, "/über");
}

TEST(Einstellungen, file_without_line_27_has_an_empty_path) {
    const auto e = zerlege_Einstellungen(vor_Zeile(als_Bytes(Probe()), 27));
    ASSERT_TRUE(e);
    EXPECT_EQ(e->Werte.Projektpfad, "");
    EXPECT_EQ(e->TWA.Monat, Probe().TWA.Monat);
}

TEST(Einstellungen, any_earlier_end_is_no_settings_file) {
    const std::string Bytes = als_Bytes(Probe());
    for (std::size_t Zeile = 1; Zeile <= 26; ++Zeile) EXPECT_FALSE(zerlege_Einstellungen(vor_Zeile(Bytes, Zeile))) << Zeile;
}

TEST(Einstellungen, duration_is_read_in_free_form) {
    struct Fall {
        const char* Zeile;
        double Tage;
    };
    const std::string Bytes = Einstellungen_als_Bytes({}, {});
    for (const auto& [Zeile, Tage] :
         {Fall{"7", 7}, Fall{" 7 ", 7}, Fall{"\t 7.50", 7.5}, Fall{"7,5 days", 7.5}, Fall{"1E2", 100}, Fall{" -1 ", -1}}) {
        const auto e = zerlege_Einstellungen(mit_Zeile(Bytes, 7, Zeile));
        ASSERT_TRUE(e) << Zeile;
        EXPECT_EQ(e->TWA.EU[3], Tage) << Zeile;
    }
}

TEST(Einstellungen, negative_number_takes_the_place_of_the_sign) {
    TWA_Listen TWA;
    TWA.EU[0] = -1.5;
    EXPECT_EQ(zerlegt(Einstellungen_als_Bytes({}, TWA))[3], "-1.5 ");
}

TEST(Einstellungen, duration_that_is_no_finite_number_is_no_settings_file) {
    const std::string Bytes = Einstellungen_als_Bytes({}, {});
    for (const char* Zeile : {"", "   ", "\t", "abc", "1E400", "-"}) {
        EXPECT_FALSE(zerlege_Einstellungen(mit_Zeile(Bytes, 4, Zeile))) << Zeile;
        EXPECT_FALSE(zerlege_Einstellungen(mit_Zeile(Bytes, 26, Zeile))) << Zeile;
    }
}

TEST(Einstellungen, switches_are_read_behind_the_tab_as_whole_numbers) {
    const std::string Bytes = Einstellungen_als_Bytes({}, {});
    EXPECT_EQ(zerlege_Einstellungen(mit_Zeile(Bytes, 1, "any label\t 1 "))->Werte.Tips_anzeigen, 1);
    EXPECT_EQ(zerlege_Einstellungen(mit_Zeile(Bytes, 2, "x\t255"))->Werte.Farbeinstellung, 255);
    EXPECT_EQ(zerlege_Einstellungen(mit_Zeile(Bytes, 2, "no value"))->Werte.Farbeinstellung, 0);
    for (const char* Zeile : {"x\t256", "x\t-1", "x\t1E400"}) {
        EXPECT_FALSE(zerlege_Einstellungen(mit_Zeile(Bytes, 1, Zeile))) << Zeile;
        EXPECT_FALSE(zerlege_Einstellungen(mit_Zeile(Bytes, 2, Zeile))) << Zeile;
    }
}

TEST(Einstellungen, doubtful_number_is_a_remark_and_a_fault_is_the_last_one) {
    const auto Bemerkungen = [](std::size_t Zeile, const char* Text) {
        std::vector<Bemerkung> b;
        zerlege_Einstellungen(mit_Zeile(Einstellungen_als_Bytes({}, {}), Zeile, Text), "v.ini", &b);
        return b.empty() ? std::string() : als_Zeile(b.back());
    };
    EXPECT_EQ(Bemerkungen(4, " 7 "), "");
    EXPECT_EQ(Bemerkungen(4, "7x"),
              "v.ini:4: remark: length of an averaging window: only its beginning was taken as a number (7x -> 7)");
    EXPECT_EQ(Bemerkungen(4, "0"), "v.ini:4: remark: length of an averaging window: outside the range above 0 (0 -> 0)");
    EXPECT_EQ(Bemerkungen(1, "Tooltips:\t1.4"), "v.ini:1: remark: tooltips: this is not a whole number (1.4 -> 1)");
    EXPECT_EQ(Bemerkungen(2, "x\t256"), "v.ini:2: remark: appearance: this is no code from 0 to 255 (256)");
    EXPECT_EQ(Bemerkungen(26, "abc"), "v.ini:26: remark: length of an averaging window: this is no number of days (abc)");
}

TEST(Einstellungen, garbage_is_no_settings_file) {
    std::string binaer;
    for (int i = 0; i < 70000; ++i) binaer += static_cast<char>((i * 7919) >> 3);
    for (const std::string& Bytes :
         {std::string{}, std::string("\r\n"), std::string(100, '\n'), std::string(1 << 20, 'x'), binaer}) {
        EXPECT_FALSE(zerlege_Einstellungen(Bytes));
    }
}

TEST(Einstellungen, line_end_in_a_text_is_refused) {
    Einstellungen e;
    e.Projektpfad = "/a\n/b";
    EXPECT_THROW(Einstellungen_als_Bytes(e, {}), Laufzeitfehler);
}

}  // namespace
}  // namespace varnok
