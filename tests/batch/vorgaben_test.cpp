// Values of a call in place of those of the records: --set and --vary.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/probeprojekt.h"
#include "records/eingabenamen.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// One simulation with two studies, a metabolite and a climate file beside it.
struct Vorgaben : testing::Test {
    Probeprojekt Projekt;
    Probe Basis;

    Vorgaben() {
        Basis.Felder.Berechnungsmodus = ein_Metabolit;
        fuege_Studie_an(Basis, "Second");
        Projekt.schreibe("s", Basis);
    }

    std::string schreibe_Tabelle(const std::string& Text) const {
        Projekt.schreibe_Bytes("../../plan.csv", Text);
        return Projekt.daneben("plan.csv");
    }
    JSON gerechnet(std::vector<std::string> Argumente) const {
        Argumente.insert(Argumente.end(), {"--inputs", "--json", "-", Projekt.Pfad()});
        const auto r = rufe(Argumente);
        EXPECT_EQ(r.Status, 0) << r.fehler;
        return r.JSON()["simulations"];
    }
    // The message of a call that is refused.
    std::string abgelehnt(std::vector<std::string> Argumente) const {
        Argumente.insert(Argumente.end(), {"--json", "-", Projekt.Pfad()});
        const auto r = rufe(Argumente);
        EXPECT_EQ(r.Status, 2);
        EXPECT_EQ(r.aus, "");
        return r.fehler;
    }
    std::string gesetzt(const std::string& Text) const { return abgelehnt({"--set", Text}); }
};

TEST_F(Vorgaben, every_name_reads_back_what_it_puts_in) {
    Projekt.schreibe_Bytes("Wet.cli", "head\r\n");
    const Projektordner Ordner(Projekt.Pfad());
    for (const Eingabename& n : Eingabenamen()) {
        SCOPED_TRACE(std::string(n.Name));
        Eingabe e = Basis.Felder;
        Ansicht Sicht;
        const std::string Text = n.ist_Klima()                                ? "Wet"
                                 : !n.Worte.empty()                           ? std::string(n.Worte.back())
                                 : n.Name == "g"                              ? "0.25"
                                 : n.Name == "scheme" || n.Name == "separate" ? "2"
                                                                              : "3";
        const std::string Reihe = n.Indizes == Indexart::Tabellenreihe ? "[2]" : "";
        const Namensbezug b = lies_Namensbezug(std::string(n.Name) + Reihe);
        setze(e, Sicht, b, lies_Eingabewert(b, Text, Ordner));
        bool gefunden = false;
        for (const Eingabeort& o : Orte(b, e)) {
            EXPECT_EQ(n.lies(e, Sicht, o).Text(), Text);
            gefunden = true;
        }
        EXPECT_TRUE(gefunden);
    }
}

TEST_F(Vorgaben, index_left_out_means_all_that_the_simulation_has) {
    const Namensbezug alle = lies_Namensbezug("DT50");
    EXPECT_EQ(Orte(alle, Basis.Felder).size(), 4U);  // two studies, two compounds
    EXPECT_EQ(Orte(lies_Namensbezug("DT50[2,]"), Basis.Felder).size(), 2U);
    EXPECT_EQ(Orte(lies_Namensbezug(" DT50 [ , 1 ] "), Basis.Felder).size(), 2U);
    EXPECT_EQ(Orte(lies_Namensbezug("formation"), Basis.Felder).size(), 1U);
    EXPECT_EQ(Orte(lies_Namensbezug("kinetics"), Basis.Felder).size(), 2U);  // of the parent alone
}

TEST_F(Vorgaben, set_value_gives_what_a_record_with_it_gives) {
    Probe andere = Basis;
    andere.Felder.Parameter.k_SFO[0].fill(std::log(2.0) / 33);
    andere.Felder.Applikationsrate = "750";
    Projekt.schreibe("t", andere);
    const auto ohne_Namen = [](JSON s) {
        for (const char* Schluessel : {"simulation", "description", "compound_record", "application_record", "scenario_record",
                                       "inputs_sha256", "remarks"})
            s.erase(Schluessel);
        return s.dump();
    };
    const JSON gesetzte = gerechnet({"--simulation", "s", "--set", "DT50[,0]=33", "--set", "rate=750"});
    EXPECT_EQ(ohne_Namen(gesetzte[0]), ohne_Namen(gerechnet({"--simulation", "t"})[0]));
    EXPECT_EQ(gesetzte[0]["inputs"]["DT50[1,0]"], 33);
    EXPECT_EQ(gesetzte[0]["inputs"]["rate"], 750);
}

TEST_F(Vorgaben, what_others_depend_on_is_put_in_before_them) {
    // The two constants are those of the kinetics in force in the end, whatever the order of the call.
    const JSON s = gerechnet({"--set", "DT50_1[,0]=5", "--set", "DT50_2[,0]=50", "--set", "Tb=12", "--set", "kinetics=HS"})[0];
    EXPECT_EQ(s["inputs"]["kinetics[1,0]"], "HS");
    EXPECT_EQ(s["inputs"]["kinetics[1,1]"], "SFO");
    EXPECT_EQ(s["inputs"]["DT50_1[2,0]"], 5);
    EXPECT_EQ(s["inputs"]["Tb[1]"], 12);
}

TEST_F(Vorgaben, rows_that_an_irregular_pattern_lacks_can_be_given_with_it) {
    Probe p = Basis;
    p.Felder.Applikationsmuster = unregelmaessig;
    Projekt.schreibe("s", p);
    const JSON s = gerechnet({"--set", "applications=3", "--set", "day[3]=1", "--set", "month[3]=9", "--set", "rate[3]=40",
                              "--set", "interception[3]=0"})[0];
    EXPECT_EQ(s["studies"][0]["Anzahl_pro_Jahr"], 3);
    EXPECT_THAT(gesetzt("applications=3"), HasSubstr("row 3 is not complete"));
    EXPECT_THAT(gesetzt("rate=5"), HasSubstr("rate[k]"));
    EXPECT_THAT(gesetzt("month=5"), HasSubstr("month[k]"));
    EXPECT_THAT(gesetzt("day[3]=5"), HasSubstr("has 2 rows"));
}

TEST_F(Vorgaben, what_cannot_be_taken_is_told_with_the_option_before_anything_runs) {
    EXPECT_THAT(gesetzt("DT50=-1"), HasSubstr("--set DT50=-1: DT50: \"-1\" lies outside its range (0 or above d)"));
    EXPECT_THAT(gesetzt("rate=0"), HasSubstr("above 0"));
    EXPECT_THAT(gesetzt("rate=1.250,5"), HasSubstr("is not one number"));
    EXPECT_THAT(gesetzt("rate=12abc"), HasSubstr("is not one number"));
    EXPECT_THAT(gesetzt("DT50=1e400"), HasSubstr("\"1e400\" is too large a number"));
    EXPECT_THAT(gesetzt("DT50=1e-400"), HasSubstr("is not one number"));
    EXPECT_THAT(gesetzt("Koc=1.7976931348623157e308"), HasSubstr("outside its range"));  // rounds to more than there is
    EXPECT_THAT(gesetzt("rate="), HasSubstr("no value is given"));
    EXPECT_THAT(gesetzt("rate"), HasSubstr("NAME=VALUE"));
    EXPECT_THAT(gesetzt("halflife=5"), HasSubstr("--help-names"));
    EXPECT_THAT(gesetzt("Koc[3,0]=5"), HasSubstr("there is no study 3, only 2"));
    EXPECT_THAT(gesetzt("Koc[7,0]=5"), HasSubstr("\"7\" is no study (1 to 6)"));
    EXPECT_THAT(gesetzt("Koc[1,3]=5"), HasSubstr("compound"));
    EXPECT_THAT(gesetzt("Koc[1]=5"), HasSubstr("[study,compound]"));
    EXPECT_THAT(gesetzt("formation[0]=5"), HasSubstr("1 to 2"));
    EXPECT_THAT(gesetzt("temperature=20.5"), HasSubstr("whole"));
    EXPECT_THAT(gesetzt("temperature=41"), HasSubstr("0 to 40"));
    EXPECT_THAT(gesetzt("density=0"), HasSubstr("above 0"));
    EXPECT_THAT(gesetzt("soil_depth=501"), HasSubstr("0.1 to 500"));
    EXPECT_THAT(gesetzt("interception=100"), HasSubstr("below 100"));
    EXPECT_THAT(gesetzt("climate=Nowhere"), HasSubstr("no climate file \"Nowhere\""));
    EXPECT_THAT(gesetzt("kinetics[1,1]=FOMC"), HasSubstr("parent alone"));
    EXPECT_THAT(gesetzt("unit=kg"), HasSubstr("mg or µg"));
    EXPECT_THAT(gesetzt("tillage_depth=4"), HasSubstr("lies below the soil depth of 5 cm"));
    EXPECT_THAT(gesetzt("wilting_point=31"), HasSubstr("lies above the field capacity of 30 Vol%"));
    EXPECT_THAT(abgelehnt({"--set", "month=2", "--set", "day=29"}), HasSubstr("month 2 has 28 days"));
}

TEST_F(Vorgaben, value_that_no_run_reads_is_an_error_and_one_that_some_do_not_read_a_remark) {
    EXPECT_THAT(gesetzt("alpha=2"), HasSubstr("no run of the chosen simulations reads this value"));
    EXPECT_THAT(gesetzt("rate[1]=2"), HasSubstr("no run"));
    Probe p = Basis;
    p.Felder.Parameter.Kinetik[0].fill(FOMC);
    Projekt.schreibe("f", p);
    const JSON alle = gerechnet({"--all", "--set", "alpha=2"});
    EXPECT_EQ(alle[0]["simulation"], "f");
    EXPECT_THAT(alle[0]["remarks"], testing::IsEmpty());
    EXPECT_EQ(alle[1]["remarks"][0]["field"], "alpha");
    EXPECT_EQ(alle[1]["remarks"][0]["file"], "--set alpha=2");
    EXPECT_EQ(alle[1]["remarks"][0]["value"], 2);
}

TEST_F(Vorgaben, density_that_hardly_any_soil_has_is_a_remark) {
    const JSON s = gerechnet({"--set", "density=0.1"})[0];
    EXPECT_THAT(s["remarks"][0]["message"].get<std::string>(), HasSubstr("0.2 to 3"));
}

TEST_F(Vorgaben, microgram_may_be_written_in_three_ways) {
    const JSON erste = gerechnet({"--set", "unit=ug"})[0];
    EXPECT_EQ(erste["Einheit"], 1);
    for (const char* Schreibweise : {"unit=\u00B5g", "unit=\u03BCg"})
        EXPECT_EQ(gerechnet({"--set", Schreibweise})[0].dump(), erste.dump());
}

TEST_F(Vorgaben, rotation_changes_no_key_of_the_results) {
    JSON mit = gerechnet({"--set", "rotation=3"});
    JSON ohne = gerechnet({});
    EXPECT_EQ(mit[0]["inputs"]["rotation"], 3);
    EXPECT_EQ(mit[0]["studies"].dump(), ohne[0]["studies"].dump());
}

TEST_F(Vorgaben, variants_stand_behind_one_another_with_their_values) {
    const std::string Tabelle = schreibe_Tabelle("rate,\"DT50[1,0]\",unit\r\n750,48,mg\r\n\"1000,5\",1e2,ug\r\n");
    const JSON s = gerechnet({"--vary", Tabelle});
    ASSERT_EQ(s.size(), 2U);
    EXPECT_EQ(s[0]["variant"].dump(), R"({"row":1,"values":{"rate":750,"DT50[1,0]":48,"unit":"mg"}})");
    EXPECT_EQ(s[1]["variant"].dump(), R"({"row":2,"values":{"rate":1000.5,"DT50[1,0]":100,"unit":"µg"}})");
    EXPECT_EQ(s[1]["inputs"]["DT50[1,0]"], 100);
    EXPECT_EQ(s[1]["Einheit"], 1);
    auto Schluessel = s[0].begin();
    EXPECT_EQ((++Schluessel).key(), "variant");

    const auto Zeilen = probe::Zeilen(rufe({"--vary", Tabelle, "--csv", "-", Projekt.Pfad()}).aus, "\r\n");
    EXPECT_THAT(Zeilen.at(0), testing::StartsWith("simulation,variant,rate,\"DT50[1,0]\",unit,study,"));
    EXPECT_THAT(Zeilen.at(1), testing::StartsWith("s,1,750,48,mg,1,"));
    EXPECT_THAT(Zeilen.at(9), testing::StartsWith("s,2,1000.5,100,µg,1,"));
}

TEST_F(Vorgaben, table_for_the_eye_tells_which_variant_it_is_about) {
    const auto r = rufe({"--vary", schreibe_Tabelle("rate,Koc\n10,5\n20,6\n"), Projekt.Pfad()});
    EXPECT_THAT(r.aus, HasSubstr("Simulation:  s\nVariant:     2: rate = 20, Koc = 6\n"));
}

TEST_F(Vorgaben, set_comes_first_and_a_variant_has_the_last_word) {
    const JSON s = gerechnet({"--set", "rate=5", "--set", "Koc=7", "--vary", schreibe_Tabelle("rate\n10\n20\n")});
    EXPECT_EQ(s[0]["inputs"]["rate"], 10);
    EXPECT_EQ(s[1]["inputs"]["rate"], 20);
    EXPECT_EQ(s[1]["inputs"]["Koc[2,1]"], 7);
}

TEST_F(Vorgaben, bad_cell_is_told_with_row_and_column_at_the_start) {
    std::string Text = "rate,Koc\n";
    for (int i = 0; i < 5000; ++i) Text += "100,50\n";
    const auto Meldung = [&](const std::string& Zeile) {
        return abgelehnt({"--vary", schreibe_Tabelle(Text + Zeile + "\n100,50\n"), "--json-lines", Projekt.daneben("none")});
    };
    EXPECT_THAT(Meldung("100,-50"), HasSubstr("row 5001 (line 5002), column 2: Koc: \"-50\" lies outside"));
    EXPECT_THAT(Meldung("100,"), HasSubstr("row 5001 (line 5002), column 2: Koc: no value is given"));
    EXPECT_THAT(Meldung("100"), HasSubstr("1 values for 2 names"));
    EXPECT_THAT(Meldung("100,\"5"), HasSubstr("quotation mark"));
    EXPECT_FALSE(std::filesystem::exists(Projekt.daneben("none")));
}

TEST_F(Vorgaben, bad_table_is_told) {
    const auto Meldung = [&](const std::string& Text) { return abgelehnt({"--vary", schreibe_Tabelle(Text)}); };
    EXPECT_THAT(Meldung(""), HasSubstr("the file is empty"));
    EXPECT_THAT(Meldung("rate\n"), HasSubstr("no line below the names"));
    EXPECT_THAT(Meldung("rate,rate\n1,2\n"), HasSubstr("stands here twice"));
    EXPECT_THAT(Meldung("rate,halflife\n1,2\n"), HasSubstr("line 1, column 2: halflife"));
    EXPECT_THAT(Meldung("rate;Koc\n1;2\n"), HasSubstr("commas stand between the names"));
    EXPECT_THAT(Meldung("tillage_depth\n30\n4\n"), HasSubstr("row 2, simulation \"s\": tillage_depth"));
    EXPECT_THAT(abgelehnt({"--vary", Projekt.daneben("nowhere.csv")}), HasSubstr("cannot be read"));
    EXPECT_THAT(abgelehnt({"--vary", Projekt.Pfad()}), HasSubstr("it is a folder"));
}

TEST_F(Vorgaben, dates_that_do_not_ascend_are_an_error_of_that_variant) {
    Probe p = Basis;
    p.Felder.Applikationsmuster = unregelmaessig;
    Projekt.schreibe("s", p);
    const auto r = rufe({"--vary", schreibe_Tabelle("month[1]\n4\n8\n"), "--json", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.JSON()["simulations"].size(), 1U);
    EXPECT_EQ(r.JSON()["errors"][0]["variant"]["row"], 2);
    EXPECT_THAT(r.fehler, HasSubstr("s, variant 2: "));
}

TEST_F(Vorgaben, series_and_reports_of_variants_have_names_of_their_own) {
    const std::string Ordner = Projekt.daneben("out");
    const auto r = rufe({"--vary", schreibe_Tabelle("rate\n10\n20\n"), "--series", Ordner, "--report", Ordner, Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_TRUE(std::filesystem::exists(Ordner + "/s - variant 2 - study 1.tab"));
    int Berichte = 0;
    for (const auto& d : std::filesystem::directory_iterator(Ordner))
        Berichte += d.path().stem().string().ends_with(" - variant 2") ? 1 : 0;
    EXPECT_EQ(Berichte, 2);  // of the two studies
}

TEST_F(Vorgaben, help_lists_every_name) {
    const auto r = rufe({"--help-names"});
    EXPECT_EQ(r.Status, 0);
    for (const Eingabename& n : Eingabenamen()) EXPECT_THAT(r.aus, HasSubstr(Name_mit_Indizes(n)));
}

}  // namespace
}  // namespace varnok::batch
