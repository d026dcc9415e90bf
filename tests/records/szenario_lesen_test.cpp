#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::HasSubstr;

const std::string Satz = Bytes(Szenario, volle_Probe());

TEST(Szenario_lesen, each_line_goes_to_its_place) {
    Satzprobe p;
    const Lesebefund b = lies(Satz, Szenario, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    Satzprobe erwartet;
    erwartet.Felder.Parameter.Bodendichte = 1.5;
    erwartet.Felder.Parameter.Bodentiefe = 5;
    erwartet.Felder.Parameter.Plateautiefe = 20;
    erwartet.Felder.Parameter.Kohlenstoffgehalt = 1.25;
    erwartet.Felder.Parameter.Feldkapazitaet = 30.5;
    erwartet.Felder.Parameter.Welkepunkt = 10.1;
    erwartet.Felder.Parameter.Klimamodus = nach_Klimadatei;
    erwartet.Felder.Parameter.Szenariotemperatur = 21;
    erwartet.Felder.Bodenszenario = "Sandy loam, \"dry\"";
    erwartet.Felder.Klimaszenario = "Temperate site";
    EXPECT_EQ(p, erwartet);
}

TEST(Szenario_lesen, divider_in_place_of_the_climate_lines_means_constant_20_degrees) {
    Satzprobe p = volle_Probe();
    const std::string alt = vor_Zeile(Satz, 10) + Trennlinie + "\r\n";
    EXPECT_EQ(lies(alt, Szenario, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Klimamodus, konstante_Temperatur);
    EXPECT_EQ(p.Felder.Parameter.Szenariotemperatur, 20);
    EXPECT_EQ(p.Felder.Klimaszenario, "");
    EXPECT_EQ(Klimatext(p.Felder), "20 °C constant");
    const auto Zeilen = zerlegt(Bytes(Szenario, p));
    EXPECT_EQ(Zeilen[8],
              "Climatic condition:\t20 \xB0"
              "C constant");
    EXPECT_EQ(Zeilen[9], "Climate mode:\t0");
    EXPECT_EQ(Zeilen[10], "Scenario Temperature:\t20");
}

TEST(Szenario_lesen, six_hyphens_anywhere_in_line_10_are_the_divider) {
    Satzprobe p;
    EXPECT_EQ(lies(mit_Zeile(Satz, 10, "Climate mode:\t1 ------"), Szenario, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Klimamodus, konstante_Temperatur);
    p = {};
    EXPECT_EQ(lies(mit_Zeile(Satz, 10, "Climate mode:\t1 -----"), Szenario, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Klimamodus, nach_Klimadatei);
}

TEST(Szenario_lesen, constant_temperature_takes_the_place_of_the_climate_name) {
    Satzprobe p;
    lies(mit_Zeile(Satz, 10, "Climate mode:\t0"), Szenario, p);
    EXPECT_EQ(p.Felder.Klimaszenario, "");
    EXPECT_EQ(Klimatext(p.Felder), "21 °C constant");
    EXPECT_EQ(zerlegt(Bytes(Szenario, p))[8],
              "Climatic condition:\t21 \xB0"
              "C constant");
}

TEST(Szenario_lesen, decimal_comma_gives_the_same_density_as_a_point) {
    Satzprobe p;
    lies(mit_Zeile(Satz, 3, "Soil density (kg/L):\t1,35"), Szenario, p);
    EXPECT_EQ(p.Felder.Parameter.Bodendichte, 1.35);
    lies(mit_Zeile(Satz, 3, "Soil density (kg/L):\t1.35"), Szenario, p);
    EXPECT_EQ(p.Felder.Parameter.Bodendichte, 1.35);
}

TEST(Szenario_lesen, temperature_is_whole_with_halves_to_the_even_neighbour) {
    struct Fall {
        const char* Text;
        int Temperatur;
    };
    for (const auto& [Text, Temperatur] : {Fall{"20.5", 20}, Fall{"21.5", 22}, Fall{"-0.5", 0}, Fall{"255.5", 256}}) {
        Satzprobe p;
        const std::string konstant = mit_Zeile(Satz, 10, "Climate mode:\t0");
        const Lesebefund b = lies(mit_Zeile(konstant, 11, std::string("Scenario Temperature:\t") + Text), Szenario, p);
        if (Temperatur == 256) {
            EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen);
            continue;
        }
        EXPECT_EQ(p.Felder.Parameter.Szenariotemperatur, Temperatur) << Text;
        ASSERT_EQ(b.Bemerkungen.size(), 1u) << Text;
        EXPECT_EQ(b.Bemerkungen[0].Zeile, 11);
    }
}

TEST(Szenario_lesen, climate_lines_know_no_decimal_comma) {
    Satzprobe p;
    const Lesebefund b = lies(mit_Zeile(Satz, 11, "Scenario Temperature:\t19,9"), Szenario, p);
    EXPECT_EQ(p.Felder.Parameter.Szenariotemperatur, 19);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(als_Zeile(b.Bemerkungen[0]),
              "probe.sce:11: remark: Scenario Temperature: only its beginning was taken as a number (19,9 -> 19)");
}

TEST(Szenario_lesen, value_outside_its_place_that_a_run_needs_changes_nothing) {
    struct Fall {
        int Klimamodus;
        std::size_t Zeile;
        const char* Text;
        const char* Grund;
    };
    for (const auto& [Modus, Zeile, Text, Grund] :
         {Fall{1, 10, "Climate mode:\t2", "\"2\" is not valid for \"Climate mode:\" (0 to 1)"},
          Fall{0, 11, "Scenario Temperature:\t300", "\"300\" is not valid for \"Scenario Temperature:\" (0 to 255)"},
          Fall{0, 11, "Scenario Temperature:\t-1", "\"-1\" is not valid for \"Scenario Temperature:\" (0 to 255)"},
          Fall{1, 4, "Soil depth (cm):\t1E400", "\"1E400\" is too large a number for \"Soil depth (cm):\""}}) {
        Satzprobe p = volle_Probe(4);
        p.Felder.Klimaszenario = "old";
        const Satzprobe vorher = p;
        const std::string mit_Modus = mit_Zeile(Satz, 10, "Climate mode:\t" + std::to_string(Modus));
        const Lesebefund b = lies(mit_Zeile(mit_Modus, Zeile, Text), Szenario, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen);
        EXPECT_EQ(b.Ort.Zeile, static_cast<int>(Zeile));
        EXPECT_EQ(b.Grund, Grund);
        EXPECT_EQ(p, vorher);
    }
}

TEST(Szenario_lesen, file_that_ends_before_its_soil_is_whole_changes_nothing) {
    for (std::size_t Zeile = 1; Zeile <= 8; ++Zeile) {
        Satzprobe p = volle_Probe(4);
        p.Felder.Parameter.Bodendichte = 7;
        const Satzprobe vorher = p;
        const Lesebefund b = lies(vor_Zeile(Satz, Zeile), Szenario, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen) << Zeile;
        EXPECT_EQ(b.Ort.Zeile, static_cast<int>(Zeile));
        EXPECT_THAT(b.Grund, HasSubstr("the file ends before"));
        EXPECT_EQ(p, vorher) << Zeile;
    }
    Satzprobe p;
    EXPECT_EQ(lies(vor_Zeile(Satz, 12), Szenario, p).Ausgang, Leseausgang::gelesen);
}

TEST(Szenario_lesen, file_that_ends_before_its_climate_lines_means_constant_20_degrees_whatever_line_9_says) {
    const std::string zehn_Grad = mit_Zeile(Satz, 9,
                                            "Climatic condition:\t10 \xB0"
                                            "C constant");
    for (const std::size_t Zeile : {9U, 10U}) {
        for (const int Modus : {0, 1}) {
            Satzprobe p = volle_Probe(4);
            p.Felder.Parameter.Klimamodus = static_cast<Klimaart>(Modus);
            p.Felder.Parameter.Szenariotemperatur = 5;
            p.Felder.Klimaszenario = "old";
            const Lesebefund b = lies(vor_Zeile(zehn_Grad, Zeile), Szenario, p);
            EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
            EXPECT_EQ(p.Felder.Parameter.Klimamodus, konstante_Temperatur);
            EXPECT_EQ(Klimatext(p.Felder), "20 °C constant");
            ASSERT_EQ(b.Bemerkungen.size(), 1u);
            EXPECT_EQ(b.Bemerkungen[0].Zeile, static_cast<int>(Zeile));
            EXPECT_THAT(b.Bemerkungen[0].Meldung, HasSubstr("20 °C constant"));
        }
    }
}

TEST(Szenario_lesen, temperature_may_be_missing_only_where_a_climate_file_is_named) {
    Satzprobe p = volle_Probe(4);
    p.Felder.Parameter.Szenariotemperatur = 5;
    const Satzprobe vorher = p;
    const std::string konstant = mit_Zeile(Satz, 10, "Climate mode:\t0");
    EXPECT_EQ(lies(vor_Zeile(konstant, 11), Szenario, p).Ausgang, Leseausgang::abgebrochen);
    EXPECT_EQ(p, vorher);
    for (const std::string& Bytes : {vor_Zeile(Satz, 11), mit_Zeile(Satz, 11, "Scenario Temperature:\t300")}) {
        p = vorher;
        const Lesebefund b = lies(Bytes, Szenario, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
        EXPECT_EQ(p.Felder.Parameter.Klimamodus, nach_Klimadatei);
        EXPECT_EQ(p.Felder.Klimaszenario, "Temperate site");
        EXPECT_EQ(p.Felder.Parameter.Szenariotemperatur, 20);  // not that of the record before
        ASSERT_EQ(b.Bemerkungen.size(), 1u);
        EXPECT_EQ(b.Bemerkungen[0].Zeile, 11);
    }
}

TEST(Szenario_lesen, text_without_a_number_is_0_and_noted_with_its_line) {
    Satzprobe p = volle_Probe();
    const Lesebefund b = lies(mit_Zeile(Satz, 7, "Field capacity (Vol%):\tmuch"), Szenario, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Feldkapazitaet, 0);
    ASSERT_EQ(b.Bemerkungen.size(), 2u);
    EXPECT_EQ(als_Zeile(b.Bemerkungen[0]),
              "probe.sce:7: remark: Field capacity (Vol%): this is no number; outside the range above 0 to 100 (much -> 0)");
    EXPECT_EQ(als_Zeile(b.Bemerkungen[1]),
              "probe.sce:8: remark: Wilting point (Vol%): above the field capacity (line 7) ( -> 10.1)");
}

TEST(Szenario_lesen, blank_value_is_0_and_noted) {
    Satzprobe p = volle_Probe();
    const Lesebefund b = lies(mit_Zeile(Satz, 6, "Organic carbon content:\t  "), Szenario, p);
    EXPECT_EQ(p.Felder.Parameter.Kohlenstoffgehalt, 0);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Meldung, "there is no value");
}

TEST(Szenario_lesen, line_without_its_tab_reads_the_label_and_so_0) {
    Satzprobe p = volle_Probe();
    const Lesebefund b = lies(mit_Zeile(Satz, 4, "Soil depth (cm): 5"), Szenario, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Bodentiefe, 0);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Text, "Soil depth (cm): 5");
}

TEST(Szenario_lesen, number_with_its_unit_behind_gives_the_number_and_a_note) {
    Satzprobe p;
    const Lesebefund b = lies(mit_Zeile(Satz, 4, "Soil depth (cm):\t 7.5 cm"), Szenario, p);
    EXPECT_EQ(p.Felder.Parameter.Bodentiefe, 7.5);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(als_Zeile(b.Bemerkungen[0]),
              "probe.sce:4: remark: Soil depth (cm): only its beginning was taken as a number (7.5 cm -> 7.5)");
}

TEST(Szenario_lesen, value_outside_its_range_is_noted_and_taken) {
    struct Fall {
        std::size_t Zeile;
        const char* Text;
        const char* Meldung;
    };
    for (const auto& [Zeile, Text, Meldung] : {Fall{3, "Soil density (kg/L):\t0.045", "outside the usual range 0.2 to 3"},
                                               Fall{3, "Soil density (kg/L):\t-1", "outside the range above 0"},
                                               Fall{5, "Plateaudepth:\t600", "outside the range 0.1 to 500"},
                                               Fall{5, "Plateaudepth:\t4", "below the soil depth (line 4)"},
                                               Fall{6, "Organic carbon content:\t-1", "outside the range 0 to 100"},
                                               Fall{8, "Wilting point (Vol%):\t40", "above the field capacity (line 7)"}}) {
        Satzprobe p;
        const Lesebefund b = lies(mit_Zeile(Satz, Zeile, Text), Szenario, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
        ASSERT_EQ(b.Bemerkungen.size(), 1u) << Text;
        EXPECT_EQ(b.Bemerkungen[0].Zeile, static_cast<int>(Zeile));
        EXPECT_EQ(b.Bemerkungen[0].Meldung, Meldung);
    }
}

TEST(Szenario_lesen, temperature_is_noted_only_where_no_climate_file_takes_its_place) {
    Satzprobe p;
    const std::string heiss = mit_Zeile(Satz, 11, "Scenario Temperature:\t200");
    EXPECT_TRUE(lies(heiss, Szenario, p).Bemerkungen.empty());
    const Lesebefund b = lies(mit_Zeile(heiss, 10, "Climate mode:\t0"), Szenario, p);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Meldung, "outside the range 0 to 40");
}

TEST(Szenario_lesen, mark_of_utf8_is_noted) {
    Satzprobe p;
    const Lesebefund b = lies("\xEF\xBB\xBF" + Satz, Szenario, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Zeile, 1);
}

TEST(Szenario_lesen, labels_are_never_compared) {
    auto Zeilen = zerlegt(Satz);
    for (auto& Zeile : Zeilen) {
        const auto Tabulator = Zeile.find('\t');
        if (Tabulator != std::string::npos) Zeile = "x" + Zeile.substr(Tabulator);
    }
    Satzprobe p;
    EXPECT_EQ(lies(verbunden(Zeilen), Szenario, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(Bytes(Szenario, p), Satz);
}

TEST(Szenario_lesen, any_line_end_will_do) {
    for (const char* Ende : {"\n", "\r"}) {
        std::string Text;
        for (const auto& Zeile : zerlegt(Satz)) Text += Zeile + Ende;
        Satzprobe p;
        EXPECT_EQ(lies(Text, Szenario, p).Ausgang, Leseausgang::gelesen);
        EXPECT_EQ(Bytes(Szenario, p), Satz);
    }
}

TEST(Szenario_lesen, text_keeps_its_outer_blanks) {
    Satzprobe p;
    lies(mit_Zeile(Satz, 2, "Soil scenario:     \t two blanks  "), Szenario, p);
    EXPECT_EQ(p.Felder.Bodenszenario, " two blanks  ");
}

TEST(Szenario_lesen, tab_in_a_text_is_noted) {
    Satzprobe p;
    const Lesebefund b = lies(mit_Zeile(Satz, 2, "Soil scenario:\ta\tb"), Szenario, p);
    EXPECT_EQ(p.Felder.Bodenszenario, "a\tb");
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Zeile, 2);
}

TEST(Szenario_lesen, compound_record_under_the_extension_of_a_scenario_is_read_by_position) {
    Satzprobe p;
    const Lesebefund b = lies(Bytes(Wirkstoff, volle_Probe(1)), Szenario, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Bodenszenario, "1");                 // the unit
    EXPECT_EQ(p.Felder.Parameter.Bodendichte, 1);           // the first flag of the output name
    EXPECT_EQ(p.Felder.Parameter.Bodentiefe, 2);            // separate residues
    EXPECT_EQ(p.Felder.Parameter.Szenariotemperatur, 110);  // the first KOC
}

}  // namespace
}  // namespace varnok
