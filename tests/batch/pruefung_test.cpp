// Findings about the files of a project, the table of records, and the series for people.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/zahlen.h"
#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Pruefung : testing::Test {
    Probeprojekt Projekt;
    Pruefung() { Projekt.schreibe("s"); }

    std::vector<std::string> Befunde(int Status) const {
        const auto r = rufe({"--check", Projekt.Pfad()});
        EXPECT_EQ(r.Status, Status);
        EXPECT_EQ(r.fehler, "");
        return probe::Zeilen(r.aus);
    }
};

TEST_F(Pruefung, sound_project_has_no_finding) { EXPECT_THAT(Befunde(0), IsEmpty()); }

TEST_F(Pruefung, remark_tells_file_line_field_text_and_value) {
    Projekt.ersetze_Zeile("s.che", 11, "KOC (L/kg):\t7x5\t100\t100");
    const auto Zeilen = Befunde(0);
    ASSERT_EQ(Zeilen.size(), 1U);
    EXPECT_THAT(Zeilen[0], testing::StartsWith("input/s.che:11: remark: KOC (L/kg)"));
    EXPECT_THAT(Zeilen[0], HasSubstr("(7x5 -> 7)"));
}

TEST_F(Pruefung, records_that_no_simulation_names_are_read_too) {
    Probe p;
    p.Felder.Parameter.Bodendichte = 0;
    Projekt.schreibe("lonely", p);
    std::filesystem::remove(Projekt.Eingabedatei("lonely.vnk"));
    const auto Zeilen = Befunde(1);
    EXPECT_THAT(Zeilen, testing::Contains(testing::StartsWith("input/lonely.sce:3: fault: Soil density (kg/L): ")));
}

TEST_F(Pruefung, faults_of_every_kind_of_file) {
    Projekt.schreibe_Bytes("empty.vnk", "");
    Projekt.verweise("lost", "s", "nowhere", "s");
    Projekt.schreibe_Bytes("short.che", "Pesticide data\r\n");
    Projekt.schreibe_Bytes("broken.cli", "head\r\n");
    Probe p;
    p.Felder.Applikationsmuster = unregelmaessig;
    p.Felder.Applikationsschema = {{"15", "05", "500", "0"}, {"01", "04", "500", "0"}};
    p.Felder.Parameter.Klimamodus = nach_Klimadatei;
    p.Felder.Klimaszenario = "Desert";
    Projekt.schreibe("turned", p);
    const auto Zeilen = Befunde(1);
    for (const char* Anfang :
         {"input/empty.vnk:1: fault: ", "input/lost.vnk:3: fault: application record: there is no record",
          "input/short.che:2: fault: ", "input/broken.cli:2: fault: ", "input/turned.app:10: fault: application table: ",
          "input/turned.sce:9: fault: Climatic condition: there is no climate file of that name (Desert)"}) {
        EXPECT_THAT(Zeilen, testing::Contains(testing::StartsWith(Anfang)));
    }
}

TEST_F(Pruefung, list_for_machines_has_the_same_findings) {
    Projekt.ersetze_Zeile("s.che", 11, "KOC (L/kg):\t7x5\t100\t100");
    const auto r = rufe({"--check", "--json", "-", "--csv", Projekt.daneben("c.csv"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0);
    const JSON b = JSON::parse(r.aus);
    ASSERT_EQ(b.size(), 1U);
    std::vector<std::string> Schluessel;
    for (const auto& [k, w] : b[0].items()) Schluessel.push_back(k);
    EXPECT_THAT(Schluessel, ElementsAre("file", "line", "kind", "field", "message", "text", "value"));
    EXPECT_EQ(b[0]["file"], "input/s.che");
    EXPECT_EQ(b[0]["line"], 11);
    EXPECT_EQ(b[0]["kind"], "remark");
    EXPECT_EQ(b[0]["text"], "7x5");
    EXPECT_EQ(b[0]["value"], 7);
    const auto Zeilen = probe::Zeilen(Inhalt(Projekt.daneben("c.csv")), "\r\n");
    EXPECT_EQ(Zeilen[0], "file,line,kind,field,message,text,value");
    EXPECT_THAT(Zeilen[1], testing::StartsWith("input/s.che,11,remark,"));
    EXPECT_THAT(Zeilen[1], testing::EndsWith(",7x5,7"));
}

TEST_F(Pruefung, table_has_a_row_for_each_record_with_its_values) {
    Projekt.schreibe_Bytes("short.app", "Application Pattern\r\n");
    const auto r = rufe({"--records", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0);
    const auto Zeilen = probe::Zeilen(r.aus, "\r\n");
    ASSERT_EQ(Zeilen.size(), 5U);
    const auto Kopf = [&] {
        // Names with two indices stand in quotation marks.
        std::vector<std::string> Namen(1);
        bool offen = false;
        for (const char z : Zeilen[0]) {
            if (z == '"')
                offen = !offen;
            else if (z == ',' && !offen)
                Namen.emplace_back();
            else
                Namen.back() += z;
        }
        return Namen;
    }();
    const auto Wert = [&](std::size_t Zeile, const std::string& Name) {
        const auto i = static_cast<std::size_t>(std::find(Kopf.begin(), Kopf.end(), Name) - Kopf.begin());
        return probe::Zeilen(Zeilen[Zeile] + ",", ",").at(i);
    };
    EXPECT_EQ(Wert(1, "file"), "input/s.che");
    EXPECT_EQ(Wert(1, "Koc[1,2]"), "100");
    EXPECT_EQ(Wert(1, "Koc[2,0]"), "");
    EXPECT_EQ(Wert(1, "metabolite_2"), "Met 2");
    EXPECT_EQ(Wert(1, "density"), "");
    EXPECT_EQ(Wert(2, "file"), "input/s.app");
    EXPECT_EQ(Wert(2, "rate"), "1000");
    EXPECT_EQ(Wert(2, "rate[2]"), "500");
    EXPECT_EQ(Wert(3, "file"), "input/short.app");
    EXPECT_THAT(Wert(3, "faults"), HasSubstr("line 2"));
    EXPECT_EQ(Wert(3, "rate"), "");
    EXPECT_EQ(Wert(4, "kind"), "scenario");
    EXPECT_EQ(Wert(4, "density"), "1.5");
    EXPECT_EQ(Wert(4, "soil_scenario"), "Sandy loam");
}

// --- series for people ---

TEST_F(Pruefung, full_series_has_dates_weather_doses_and_the_three_views) {
    Probe p;
    p.Felder.App_Monat = 11;  // 31 December
    p.Felder.App_Tag = 30;
    std::string Klima = "head\r\n";
    for (int i = 1; i <= 365; ++i) {
        std::string Tag(47, ' ');
        Tag.replace(37, 4, genaue_Zahl(i % 30 + 0.5).substr(0, 4));
        Klima += Tag + "\r\n";
    }
    Projekt.schreibe_Bytes("Wet.cli", Klima);
    p.Felder.Parameter.Klimamodus = nach_Klimadatei;
    p.Felder.Klimaszenario = "Wet";
    Projekt.schreibe("s", p);
    const std::string Ordner = Projekt.daneben("days");
    const auto r = rufe({"--series-full", Ordner, "--set", "rotation=2", "--json", "-", Projekt.Pfad()});
    ASSERT_EQ(r.Status, 0) << r.fehler;
    const auto Zeilen = probe::Zeilen(Inhalt(Ordner + "/s - study 1.csv"), "\r\n");
    ASSERT_EQ(Zeilen.size(), 3651U);
    EXPECT_EQ(Zeilen[0],
              "day,year,date,temperature (°C),soil moisture (Vol%),dose (g/ha),Parent total soil annual (mg/kg),"
              "Parent total soil background (mg/kg),Parent total soil accumulated (mg/kg),Parent pore water annual (mg/L),"
              "Parent pore water background (mg/L),Parent pore water accumulated (mg/L)");
    const auto erster = probe::Zeilen(Zeilen[1], ",");
    const auto zweiter = probe::Zeilen(Zeilen[2], ",");
    EXPECT_EQ(erster[2], "31 Dec");
    EXPECT_EQ(zweiter[2], "01 Jan");
    EXPECT_EQ(erster[3], "");
    EXPECT_EQ(zweiter[3], "5.5");  // day 365 of the file, at which the weather of day 1 begins
    EXPECT_EQ(erster[4], "20");    // halfway between 10 and 30 Vol%
    EXPECT_EQ(erster[5], "1000");
    EXPECT_EQ(zweiter[5], "0");
    EXPECT_EQ(probe::Zeilen(Zeilen[366], ",")[1], "2");
    const auto e = r.JSON()["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][0];
    EXPECT_FLOAT_EQ(static_cast<float>(fuehrende_Zahl(erster[6])), e["Maximum_Bodentiefe"].get<float>());
    EXPECT_NEAR(fuehrende_Zahl(erster[8]) - fuehrende_Zahl(erster[6]), e["Plateauwert"].get<double>() / 2, 1e-6);
}

}  // namespace
}  // namespace varnok::batch
