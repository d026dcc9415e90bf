#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/zahlen.h"
#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using probe::Zeilen;
using testing::ElementsAre;

struct Serien : testing::Test {
    Probeprojekt Projekt;
    std::string Ordner = Projekt.daneben("days");

    std::vector<std::string> gerechnet(const Probe& p, const std::string& Datei) {
        Projekt.schreibe("case", p);
        const auto r = rufe({"--series", Ordner, Projekt.Pfad()});
        EXPECT_EQ(r.Status, 0) << r.fehler;
        EXPECT_EQ(r.aus, "");
        return Zeilen(Inhalt(Ordner + "/" + Datei));
    }
};

TEST_F(Serien, header_and_a_line_for_each_day_from_0_to_3649) {
    const auto z = gerechnet({}, "case - study 1.tab");
    ASSERT_EQ(z.size(), 3651U);
    EXPECT_EQ(z[0], "day\tBoden_0_0\tPlateau_0_0\tBoden_0_1\tPlateau_0_1");
    EXPECT_EQ(z[1].substr(0, 2), "0\t");
    EXPECT_EQ(z[3650].substr(0, 5), "3649\t");
    for (const std::string& Zeile : z) EXPECT_EQ(std::count(Zeile.begin(), Zeile.end(), '\t'), 4);
}

TEST_F(Serien, columns_of_every_compound_of_the_scheme_parent_first) {
    Probe p;
    p.Felder.Berechnungsmodus = zwei_parallel;
    EXPECT_EQ(gerechnet(p, "case - study 1.tab")[0],
              "day\tBoden_0_0\tPlateau_0_0\tBoden_0_1\tPlateau_0_1\tBoden_1_0\tPlateau_1_0\tBoden_1_1\tPlateau_1_1\t"
              "Boden_2_0\tPlateau_2_0\tBoden_2_1\tPlateau_2_1");
}

// 1000 g/ha into 5 and 20 cm of 1.5 kg/L: 1.3333 and 0.3333 mg/kg. Sorption of 1 L/kg, and water at the mean of
// 30 and 10 Vol% on day 0: 1 + 0.2/1.5 L/kg between soil and water.
TEST_F(Serien, day_0_holds_the_dose_in_both_depths_and_endpoints) {
    const std::string Zeile = gerechnet({}, "case - study 1.tab")[1];
    const auto Werte = Zeilen(Zeile, "\t");
    ASSERT_EQ(Werte.size(), 5U);
    const double Faktor = 1 + 0.2 / 1.5;
    const double erwartet[4] = {4.0 / 3, 1.0 / 3, 4.0 / 3 / Faktor, 1.0 / 3 / Faktor};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(Wert(Werte[i + 1]), erwartet[i], 2e-7) << "column " << i + 1;
}

TEST_F(Serien, largest_value_of_a_column_is_the_maximum_of_the_results_to_the_bit) {
    const auto z = gerechnet({}, "case - study 1.tab");
    float Boden = 0, Plateau = 0;
    for (std::size_t i = 1; i < z.size(); ++i) {
        const auto Werte = Zeilen(z[i], "\t");
        Boden = std::max(Boden, static_cast<float>(Wert(Werte[1])));
        Plateau = std::max(Plateau, static_cast<float>(Wert(Werte[2])));
    }
    const auto JSON = rufe({"--json", "-", Projekt.Pfad()}).JSON();
    const auto& e = JSON["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][0];
    EXPECT_EQ(Boden, e["Maximum_Bodentiefe"].get<float>());
    EXPECT_EQ(Plateau, e["Maximum_Plateautiefe"].get<float>());
}

// Day 0 of an irregular pattern is the first row of the table, in every writing that the run takes for a date: 5 days before
// 1 February is 26 January.
TEST_F(Serien, full_series_begins_on_the_day_that_the_run_takes) {
    struct Fall {
        const char *Tag, *Monat, *Datum;
    };
    for (const Fall& f : {Fall{"03", "05", "03 May"}, Fall{"-05", "02", "26 Jan"}, Fall{"40", "01", "09 Feb"}}) {
        Probe p;
        p.Felder.Applikationsmuster = unregelmaessig;
        p.Felder.Applikationsschema = {{f.Tag, f.Monat, "100", "0"}, {"15", "06", "100", "0"}};
        p.Felder.Anzahl_Index = 0;
        Projekt.schreibe("case", p);
        const auto r = rufe({"--series-full", Ordner, Projekt.Pfad()});
        ASSERT_EQ(r.Status, 0) << r.fehler;
        const auto z = Zeilen(Inhalt(Ordner + "/case - study 1.csv"), "\r\n");
        ASSERT_GT(z.size(), 1U);
        EXPECT_EQ(z[1].substr(0, 11), std::string("0,1,") + f.Datum + ",") << f.Tag << " / " << f.Monat;
    }
}

std::vector<std::string> Dateien(const std::string& Ordner) {
    std::vector<std::string> Namen;
    for (const auto& d : fs::directory_iterator(Ordner)) Namen.push_back(d.path().filename().string());
    std::sort(Namen.begin(), Namen.end());
    return Namen;
}

TEST_F(Serien, file_for_each_simulation_and_study) {
    Probe p;
    fuege_Studie_an(p, "Second");
    Projekt.schreibe("two", p);
    Projekt.schreibe("one");
    ASSERT_EQ(rufe({"--all", "--series", Ordner, Projekt.Pfad()}).Status, 0);
    EXPECT_THAT(Dateien(Ordner), ElementsAre("one - study 1.tab", "two - study 1.tab", "two - study 2.tab"));
}

TEST_F(Serien, chosen_study_keeps_its_number) {
    Probe p;
    fuege_Studie_an(p, "Second");
    Projekt.schreibe("two", p);
    ASSERT_EQ(rufe({"--study", "2", "--series", Ordner, Projekt.Pfad()}).Status, 0);
    EXPECT_THAT(Dateien(Ordner), ElementsAre("two - study 2.tab"));
}

TEST_F(Serien, folder_is_made_and_old_files_are_replaced) {
    Projekt.schreibe("case");
    Ordner = Projekt.daneben("new/deep");
    ASSERT_EQ(rufe({"--series", Ordner, Projekt.Pfad()}).Status, 0);
    const std::string Datei = Ordner + "/case - study 1.tab";
    const std::string Text = Inhalt(Datei);
    fs::resize_file(Datei, 1'000'000);
    ASSERT_EQ(rufe({"--series", Ordner, Projekt.Pfad()}).Status, 0);
    EXPECT_EQ(Inhalt(Datei), Text);
}

}  // namespace
}  // namespace varnok::batch
