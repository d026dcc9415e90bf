// What a simulation can have wrong with it: each fault gives status 1, a message that names the file (and its
// line), an entry of "errors", and leaves the other simulations as they are.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "base/druckbares.h"
#include "batch/probeprojekt.h"
#include "batch/schreiber.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;
using JSON = nlohmann::ordered_json;
using probe::Antwort;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

constexpr int Zeile_Studienzahl = 9;
constexpr int Zeile_Kinetik = 15;  // of the first study

class Fehler : public testing::Test {
protected:
    Fehler() { Projekt.schreibe("good"); }

    // The message of the simulation "bad" in a run of the whole project.
    std::string Meldung_von_bad() {
        const Antwort r = rufe({"--all", "--json", "-", Projekt.Pfad()});
        EXPECT_EQ(r.Status, 1);
        const JSON Dokument = r.JSON();
        EXPECT_EQ(Dokument["errors"].size(), 1U);
        EXPECT_EQ(Dokument["simulations"].size(), 1U);
        EXPECT_EQ(Dokument["simulations"][0]["simulation"], "good");
        EXPECT_EQ(Dokument["simulations"][0]["studies"].size(), 1U);
        if (Dokument["errors"].empty()) return "no error";
        EXPECT_EQ(Dokument["errors"][0]["simulation"], "bad");
        const std::string Meldung = Dokument["errors"][0]["message"];
        EXPECT_THAT(r.fehler, HasSubstr("varnok-batch: bad: " + druckbar(Meldung) + "\n"));
        return Meldung;
    }

    // The same with line `Zeile` of a record of "bad" replaced.
    std::string Meldung_mit_Zeile(const std::string& Endung, int Zeile, const std::string& Text) {
        Projekt.schreibe("bad", Vorlage);
        Projekt.ersetze_Zeile("bad" + Endung, static_cast<std::size_t>(Zeile), Text);
        return Meldung_von_bad();
    }

    Probe Vorlage;
    Probeprojekt Projekt;
};

TEST_F(Fehler, missing_record_names_summary_file_line_and_record) {
    const std::tuple<const char*, int, const char*> Saetze[] = {
        {".che", 2, "compound record"}, {".app", 3, "application pattern record"}, {".sce", 4, "scenario record"}};
    for (const auto& [Endung, Zeile, Art] : Saetze) {
        Projekt.schreibe("bad");
        fs::remove(Projekt.Eingabedatei(std::string("bad") + Endung));
        EXPECT_EQ(Meldung_von_bad(), "file bad.vnk, line " + std::to_string(Zeile) + ": there is no " + Art + " \"bad\"");
    }
}

TEST_F(Fehler, record_name_in_another_case_is_not_found_but_hinted_at) {
    Projekt.verweise("bad", "good", "Good", "good");
    EXPECT_EQ(Meldung_von_bad(),
              "file bad.vnk, line 3: there is no application pattern record \"Good\"; there is \"good\", "
              "which differs in upper and lower case");
}

TEST_F(Fehler, record_name_that_leaves_the_folder_is_no_record) {
    Projekt.verweise("bad", "../input/good", "good", "good");
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("file bad.vnk, line 2"));
}

TEST_F(Fehler, empty_record_name_is_no_record) {
    Projekt.schreibe_Bytes("bad.vnk", "text\r\ngood\r\n\r\ngood\r\n");
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("file bad.vnk, line 3"));
}

TEST_F(Fehler, summary_file_with_three_lines) {
    Projekt.schreibe_Bytes("bad.vnk", "text\r\ngood\r\ngood\r\n");
    EXPECT_THAT(Meldung_von_bad(), ContainsRegex("bad.vnk, line 4"));
}

TEST_F(Fehler, empty_summary_file) {
    Projekt.schreibe_Bytes("bad.vnk", "");
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("bad.vnk"));
}

TEST_F(Fehler, empty_record_names_file_and_line) {
    for (const char* Endung : {".che", ".app", ".sce"}) {
        Projekt.schreibe("bad");
        Projekt.schreibe_Bytes(std::string("bad") + Endung, "");
        EXPECT_THAT(Meldung_von_bad(), HasSubstr(std::string("ile bad") + Endung + ", line 1"));
    }
}

TEST_F(Fehler, binary_record_names_file_and_line) {
    std::string Bytes;
    for (int i = 0; i < 4096; ++i) Bytes += static_cast<char>(i * 7 % 256);
    for (const char* Endung : {".che", ".app", ".sce"}) {
        Projekt.schreibe("bad");
        Projekt.schreibe_Bytes(std::string("bad") + Endung, Bytes);
        EXPECT_THAT(Meldung_von_bad(), ContainsRegex(std::string("ile bad") + Endung + ", line [0-9]+"));
    }
}

TEST_F(Fehler, line_of_100_MB_is_refused_quickly) {
    for (const char* Endung : {".che", ".app", ".sce", ".vnk"}) {
        Projekt.schreibe("bad");
        fs::resize_file(Projekt.Eingabedatei(std::string("bad") + Endung), 100'000'000);  // zeros on no disk
        EXPECT_THAT(Meldung_von_bad(), HasSubstr(std::string("bad") + Endung));
    }
}

TEST_F(Fehler, folder_in_a_records_place_is_no_record) {
    Projekt.schreibe("bad");
    fs::remove(Projekt.Eingabedatei("bad.che"));
    fs::create_directory(Projekt.Eingabedatei("bad.che"));
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("file bad.vnk, line 2"));
}

TEST_F(Fehler, number_of_studies_that_no_record_can_have) {
    for (const char* Anzahl : {"0", "7", "1000000", "-1", "1E+300"}) {
        EXPECT_THAT(Meldung_mit_Zeile(".che", Zeile_Studienzahl, std::string("Number of studies:\t") + Anzahl),
                    HasSubstr("ile bad.che, line 9"))
            << Anzahl;
    }
}

TEST_F(Fehler, unknown_kinetics) {
    EXPECT_THAT(Meldung_mit_Zeile(".che", Zeile_Kinetik, "Kinetics:\t9\t0\t0"), HasSubstr("ile bad.che, line 15"));
}

TEST_F(Fehler, record_that_ends_early_is_an_error_of_its_simulation) {
    Projekt.schreibe("bad");
    Projekt.schreibe_Bytes("bad.sce", "Soil Parameters\r\nSoil scenario:\tSand\r\n");
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("file bad.sce, line 3: "));
}

struct Nullfall {
    const char* Endung;
    int Zeile;
    const char* Text;
};

class Unmoegliche_Werte : public Fehler, public testing::WithParamInterface<Nullfall> {};

TEST_P(Unmoegliche_Werte, name_file_and_line) {
    const Nullfall& f = GetParam();
    Vorlage.Felder.Berechnungsmodus = zwei_in_Folge;
    const std::string Meldung = Meldung_mit_Zeile(f.Endung, f.Zeile, f.Text);
    EXPECT_THAT(Meldung, HasSubstr(std::string("file bad") + f.Endung + ", line " + std::to_string(f.Zeile) + ": "));
    EXPECT_THAT(Meldung, HasSubstr("The calculation is not possible with these input data."));
}

// A compound record with one study has its scheme on line 28 and the compounds on lines 29 to 31.
INSTANTIATE_TEST_SUITE_P(Fehler, Unmoegliche_Werte,
                         testing::Values(Nullfall{".sce", 3, "Soil density (kg/L):\t0"},
                                         Nullfall{".sce", 4, "Soil depth (cm):\t0"}, Nullfall{".sce", 5, "Plateaudepth:\t0"},
                                         Nullfall{".sce", 7, "Field capacity (Vol%):\t0"},
                                         Nullfall{".sce", 3, "Soil density (kg/L):\tabc"},
                                         Nullfall{".che", 29, "Parent:\tParent\t0"},
                                         Nullfall{".che", 30, "Metabolite 1:\tMet 1\t0\t50"},
                                         Nullfall{".app", 5, "Application rate (g/ha):\t1E+300"}));

TEST_F(Fehler, fault_in_a_later_study_names_the_study) {
    fuege_Studie_an(Vorlage, "Second");
    EXPECT_THAT(Meldung_mit_Zeile(".che", 9 + 15 + 7, "SFO k (1/d):\t-1E+300\t0\t0"),
                testing::AllOf(HasSubstr("study 2 \"Second\": "), HasSubstr("bad.che")));
}

TEST_F(Fehler, value_too_large_for_a_number_names_file_and_line) {
    EXPECT_THAT(Meldung_mit_Zeile(".sce", 4, "Soil depth (cm):\t1E+999"), HasSubstr("ile bad.sce, line 4"));
}

Probe mit_Tabelle(const std::vector<Applikationszeile>& Zeilen) {
    Probe p;
    p.Felder.Applikationsmuster = unregelmaessig;
    p.Felder.Applikationsschema = Zeilen;
    p.Felder.Anzahl_Index = static_cast<int>(Zeilen.size()) - 2;
    return p;
}

TEST_F(Fehler, dates_out_of_order_name_the_application_record) {
    Projekt.schreibe("bad", mit_Tabelle({{"15", "05", "100", "0"}, {"01", "04", "100", "0"}}));
    EXPECT_EQ(Meldung_von_bad(),
              "study 1 \"Field\": file bad.app: The sequence of application dates that is not valid. Please correct!");
}

TEST_F(Fehler, date_of_0_names_line_row_and_cell_of_the_table) {
    Projekt.schreibe("bad", mit_Tabelle({{"15", "05", "100", "0"}, {"01", "00", "100", "0"}}));
    EXPECT_EQ(Meldung_von_bad(),
              "study 1 \"Field\": file bad.app, line 11, row 2 of the table, month: "
              "You entered application dates that are not valid. Please correct!");
}

TEST_F(Fehler, dose_of_the_table_that_is_too_large_names_its_line) {
    Projekt.schreibe("bad", mit_Tabelle({{"01", "04", "100", "0"}, {"15", "05", "1E+300", "0"}}));
    EXPECT_THAT(Meldung_von_bad(),
                testing::StartsWith("study 1 \"Field\": file bad.app, line 11: The calculation is not possible"));
}

Probe mit_Klimadatei() {
    Probe p;
    p.Felder.Parameter.Klimamodus = nach_Klimadatei;
    p.Felder.Klimaszenario = "weather";
    return p;
}

// A day without rain and evapotranspiration at this temperature: columns 8, 18 and 38, ten wide.
std::string Klimazeile(const std::string& Temperatur) {
    return std::string(7, ' ') + "         0         0" + std::string(10, ' ') + std::string(10 - Temperatur.size(), ' ') +
           Temperatur + "\r\n";
}

TEST_F(Fehler, missing_climate_file_is_named) {
    Projekt.schreibe("bad", mit_Klimadatei());
    EXPECT_EQ(Meldung_von_bad(), "study 1 \"Field\": file weather.cli: Cannot load climate data file. Please correct!");
}

TEST_F(Fehler, climate_file_without_a_day_is_named) {
    for (const char* Bytes : {"", "header", "header\r\n"}) {
        Projekt.schreibe("bad", mit_Klimadatei());
        Projekt.schreibe_Bytes("weather.cli", Bytes);
        EXPECT_THAT(Meldung_von_bad(), HasSubstr("weather.cli"));
    }
}

TEST_F(Fehler, climate_value_too_large_names_file_and_line) {
    Projekt.schreibe("bad", mit_Klimadatei());
    Projekt.schreibe_Bytes("weather.cli", "header\r\n" + Klimazeile("20") + Klimazeile("1E+999"));
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("ile weather.cli, line 3"));
}

TEST_F(Fehler, folder_in_the_climate_files_place_is_named) {
    Projekt.schreibe("bad", mit_Klimadatei());
    fs::create_directory(Projekt.Eingabedatei("weather.cli"));
    EXPECT_THAT(Meldung_von_bad(), HasSubstr("weather.cli"));
}

// The file starts over behind its last day and is left behind the last day of the run, so its length is free: with
// the same weather on every day the results are those of one day.
TEST_F(Fehler, climate_file_of_one_day_or_10000_days_is_none) {
    JSON Ergebnisse[2];
    const int Tage[2] = {1, 10'000};
    for (std::size_t i = 0; i < 2; ++i) {
        std::string Bytes = "header\r\n";
        for (int d = 0; d < Tage[i]; ++d) Bytes += Klimazeile("12,5");
        Projekt.schreibe("weather", mit_Klimadatei());
        Projekt.schreibe_Bytes("weather.cli", Bytes);
        const Antwort r = rufe({"--simulation", "weather", "--json", "-", Projekt.Pfad()});
        ASSERT_EQ(r.Status, 0) << r.fehler;
        Ergebnisse[i] = r.JSON()["simulations"][0]["studies"];
    }
    EXPECT_EQ(Ergebnisse[0], Ergebnisse[1]);
}

TEST_F(Fehler, window_of_length_0_in_the_settings_is_told) {
    Projekt.schreibe_Bytes("../v.ini", [] {
        std::string Bytes = "Tooltips:\t0\r\nAppearance:\t0\r\nEU\r\n";
        for (int i = 0; i < 10; ++i) Bytes += " 0 \r\n";
        Bytes += "Month\r\n";
        for (int i = 0; i < 12; ++i) Bytes += " 30 \r\n";
        return Bytes;
    }());
    const Antwort r = rufe({"--settings", Projekt.Pfad() + "/v.ini", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    EXPECT_THAT(r.fehler, HasSubstr("settings file: The calculation is not possible"));
}

TEST_F(Fehler, remark_about_a_record_goes_to_remarks_and_standard_error_and_leaves_the_status) {
    Projekt.schreibe("odd");
    Projekt.ersetze_Zeile("odd.che", 11, "KOC (L/kg):\tabc\t0\t0");
    const Antwort r = rufe({"--simulation", "odd", "--json", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    const JSON Dokument = r.JSON();
    const JSON erwartet = {
        {"file", "input/odd.che"},        {"line", 11},    {"kind", "remark"}, {"field", "KOC (L/kg), parent, study 1"},
        {"message", "this is no number"}, {"text", "abc"}, {"value", 0.0},
    };
    EXPECT_EQ(Dokument["simulations"][0]["remarks"], JSON::array({erwartet}));
    EXPECT_EQ(r.fehler,
              "varnok-batch: odd: input/odd.che:11: remark: KOC (L/kg), parent, study 1: this is no number (abc -> 0)\n");
}

// What a file holds, and where a remark must say so.
struct Verdacht {
    const char* Datei;
    std::size_t Zeile;
    const char* Inhalt;
    const char* Feld;
    const char* Meldung;
    double Wert;
};

class Bemerkungen : public Fehler, public testing::WithParamInterface<Verdacht> {};

TEST_P(Bemerkungen, doubtful_value_of_a_record_is_told_with_its_place_and_stops_nothing) {
    const Verdacht& v = GetParam();
    Projekt.schreibe("odd");
    Projekt.ersetze_Zeile(v.Datei, v.Zeile, v.Inhalt);
    const Antwort r = rufe({"--simulation", "odd", "--json", "-", "--quiet", Projekt.Pfad()});
    EXPECT_NE(r.Status, 2) << r.fehler;
    EXPECT_THAT(r.fehler, HasSubstr("varnok-batch: odd: input/" + std::string(v.Datei) + ":" + std::to_string(v.Zeile) +
                                    ": remark: " + v.Feld + ": " + v.Meldung));
    if (r.Status != 0) return;  // calculated only where the calculation takes it
    const JSON b = r.JSON()["simulations"][0]["remarks"].at(0);
    EXPECT_EQ(b["file"], "input/" + std::string(v.Datei));
    EXPECT_EQ(b["line"], v.Zeile);
    EXPECT_EQ(b["field"], v.Feld);
    EXPECT_EQ(b["message"], v.Meldung);
    EXPECT_EQ(b["value"], v.Wert);
}

INSTANTIATE_TEST_SUITE_P(
    alle, Bemerkungen,
    testing::Values(
        Verdacht{"odd.che", 11, "KOC (L/kg):\t-3400\t0\t0", "KOC (L/kg), parent, study 1", "outside the range 0 or above", -3400},
        Verdacht{"odd.che", 11, "KOC (L/kg):\t1.250,5\t0\t0", "KOC (L/kg), parent, study 1",
                 "only its beginning was taken as a number", 1.25},
        Verdacht{"odd.che", 11, "KOC (L/kg):\t1 250\t0\t0", "KOC (L/kg), parent, study 1", "there are blanks inside the number",
                 1250},
        Verdacht{"odd.che", 12, "Q10-factor:\t-2.58\t1\t1", "Q10-factor, parent, study 1", "outside the range above 0", -2.58},
        Verdacht{"odd.app", 6, "Crop interception (%):\t150", "Crop interception (%)", "outside the range 0 to below 100", 150},
        Verdacht{"odd.app", 5, "Application rate (g/ha):\t7x5", "Application rate (g/ha)",
                 "only its beginning was taken as a number", 7},
        Verdacht{"odd.sce", 3, "Soil density (kg/L):\t0.045", "Soil density (kg/L)", "outside the usual range 0.2 to 3", 0.045},
        Verdacht{"odd.sce", 5, "Plateaudepth:\t3", "Plateaudepth", "below the soil depth (line 4)", 3}));

TEST_F(Fehler, line_of_a_summary_file_that_nothing_reads_is_a_remark) {
    Projekt.schreibe("odd");
    Projekt.schreibe_Bytes("odd.vnk", "d\r\nodd\r\nodd\r\nodd\r\n\r\nleft over\r\n");
    const Antwort r = rufe({"--simulation", "odd", "--quiet", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.fehler, "varnok-batch: odd: input/odd.vnk:6: remark: nothing reads the lines from here on (left over)\n");
}

TEST_F(Fehler, line_of_the_settings_that_cannot_be_read_is_named) {
    Projekt.schreibe("odd");
    Projekt.schreibe_Bytes("../v.ini", "Tooltips:\t0\r\nAppearance:\t0\r\nEU\r\nseven\r\n");
    const Antwort r = rufe({"--settings", Projekt.Pfad() + "/v.ini", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler,
                HasSubstr("this is no settings file (line 4, length of an averaging window: this is no number of days)"));
}

TEST_F(Fehler, residues_that_grow_without_limit_are_a_warning) {
    Projekt.schreibe("endless");
    Projekt.ersetze_Zeile("endless.che", 16, "SFO k (1/d):\t0\t0\t0");
    const Antwort r = rufe({"--simulation", "endless", "--json", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    const JSON Studie = r.JSON()["simulations"][0]["studies"][0];
    ASSERT_EQ(Studie["warnings"].size(), 1U);
    EXPECT_EQ(Studie["warnings"][0],
              "The residues of Parent grow without limit: there is no final plateau. The growth over 10 years is shown instead.");
    EXPECT_EQ(Studie["compounds"][0]["endpoints"][0]["Plateautext"], "0% of the final plateau");
    const Antwort Tabelle = rufe({"--simulation", "endless", Projekt.Pfad()});
    EXPECT_THAT(Tabelle.aus, HasSubstr("Warning, study 1: The residues of Parent grow without limit"));
}

TEST_F(Fehler, one_bad_study_makes_the_whole_simulation_an_error_and_writes_no_series) {
    fuege_Studie_an(Vorlage, "Second");
    Projekt.schreibe("bad", Vorlage);
    Projekt.ersetze_Zeile("bad.che", 9 + 15 + 7, "SFO k (1/d):\t-1E+300\t0\t0");
    const Antwort r = rufe({"--all", "--series", Projekt.daneben("days"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    EXPECT_TRUE(fs::exists(Projekt.daneben("days/good - study 1.tab")));
    EXPECT_FALSE(fs::exists(Projekt.daneben("days/bad - study 1.tab")));
}

TEST_F(Fehler, control_characters_of_a_file_do_not_reach_the_terminal) {
    Projekt.schreibe_Bytes("bad.vnk", "text\r\n\x1B[2J\r\ngood\r\ngood\r\n");
    const Antwort r = rufe({"--simulation", "bad", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    EXPECT_THAT(r.fehler, Not(HasSubstr("\x1B")));
}

TEST_F(Fehler, faults_are_told_with_quiet_too) {
    Projekt.schreibe_Bytes("bad.vnk", "");
    const Antwort r = rufe({"--all", "--quiet", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.aus, "");
    EXPECT_THAT(r.fehler, HasSubstr("varnok-batch: bad: "));
}

}  // namespace
}  // namespace varnok::batch
