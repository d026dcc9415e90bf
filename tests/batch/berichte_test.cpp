// --report and --extended: reports without a window.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::HasSubstr;
using testing::StartsWith;

struct Berichte : testing::Test {
    Probeprojekt Projekt;

    std::set<std::string> Namen(const std::string& Ordner) const {
        std::set<std::string> Ergebnis;
        for (const auto& e : fs::directory_iterator(Projekt.daneben(Ordner))) Ergebnis.insert(e.path().filename().string());
        return Ergebnis;
    }
};

TEST_F(Berichte, one_for_the_study_of_a_simulation_in_a_folder_that_is_made) {
    Projekt.schreibe("case");
    const auto r = rufe({"--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_EQ(r.aus, "");
    ASSERT_EQ(Namen("reports").size(), 1U);
    const std::string RTF = Inhalt(Projekt.daneben("reports/" + *Namen("reports").begin()));
    EXPECT_THAT(RTF, StartsWith("{\\rtf1"));
    EXPECT_THAT(RTF, HasSubstr("RESULTS OF THE CALCULATION"));
    EXPECT_THAT(RTF, HasSubstr("\\pngblip"));
}

TEST_F(Berichte, the_extended_one_comes_with_its_option) {
    Projekt.schreibe("case");
    const auto r = rufe({"--report", Projekt.daneben("reports"), "--extended", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_EQ(Namen("reports").size(), 2U);
}

// A report without the line that its clock changes.
std::string ohne_Datum(const std::string& RTF) {
    std::string Rest;
    for (const std::string& Zeile : probe::Zeilen(RTF)) {
        if (Zeile.find("Date of this simulation:") == std::string::npos) Rest += Zeile + "\n";
    }
    return Rest;
}

TEST_F(Berichte, the_extended_one_is_of_all_studies_whichever_study_is_chosen) {
    Probe p;
    fuege_Studie_an(p, "Second");
    p.Felder.Parameter.k_SFO[0][1] = 0.002;
    Projekt.schreibe("case", p);
    rufe({"--report", Projekt.daneben("all"), "--extended", Projekt.Pfad()});
    for (const char* Studie : {"1", "2"}) {
        const std::string Ordner = std::string("chosen ") + Studie;
        const auto r = rufe({"--study", Studie, "--report", Projekt.daneben(Ordner), "--extended", Projekt.Pfad()});
        EXPECT_EQ(r.Status, 0) << r.fehler;
        EXPECT_EQ(Namen(Ordner).size(), 2U);
        for (const std::string& Name : Namen(Ordner)) {
            if (Name.find("extended") == std::string::npos) continue;
            const std::string RTF = Inhalt(Projekt.daneben(Ordner + "/" + Name));
            EXPECT_THAT(RTF, HasSubstr("Second"));
            EXPECT_EQ(ohne_Datum(RTF), ohne_Datum(Inhalt(Projekt.daneben("all/" + Name))));
        }
    }
}

TEST_F(Berichte, simulation_at_fault_writes_none) {
    Probe p;
    fuege_Studie_an(p, "Second");
    Projekt.schreibe("case", p);
    Projekt.ersetze_Zeile("case.che", 9 + 15 + 7, "SFO k (1/d):\t-1E+300\t0\t0");
    EXPECT_EQ(rufe({"--report", Projekt.daneben("reports"), "--extended", Projekt.Pfad()}).Status, 1);
    EXPECT_THAT(Namen("reports"), testing::IsEmpty());
}

TEST_F(Berichte, extended_without_report_is_a_wrong_call) {
    Projekt.schreibe("case");
    EXPECT_EQ(rufe({"--extended", Projekt.Pfad()}).Status, 2);
}

TEST_F(Berichte, simulations_of_one_description_do_not_replace_each_other) {
    Projekt.schreibe("first");
    Projekt.schreibe("second");
    const auto r = rufe({"--all", "--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_EQ(Namen("reports").size(), 2U);
}

// ---- names: none replaces another, whatever call or shard writes it

TEST_F(Berichte, descriptions_that_are_equal_but_for_case_and_forbidden_characters_are_told_apart) {
    const std::map<std::string, std::string> Beschreibungen = {
        {"a", "Field A/B"}, {"b", "field a_b"}, {"c", "Field A:B"}, {"d", "Another"}};
    for (const auto& [Name, Beschreibung] : Beschreibungen) {
        Probe p;
        p.Felder.Beschreibung = Beschreibung;
        Projekt.schreibe(Name, p);
    }
    const auto r = rufe({"--all", "--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_THAT(Namen("reports"),
                testing::ElementsAre("Another.rtf", "Field A_B - a.rtf", "Field A_B - c.rtf", "field a_b - b.rtf"));
}

TEST_F(Berichte, names_of_simulations_that_differ_in_case_are_told_apart) {
    Projekt.schreibe("case");
    Projekt.schreibe_Bytes("Case.vnk", Inhalt(Projekt.Eingabedatei("case.vnk")));
    rufe({"--all", "--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_EQ(Namen("reports").size(), 2U);
}

TEST_F(Berichte, call_and_shard_play_no_part_in_their_names) {
    Probe p;
    fuege_Studie_an(p, "Second");
    p.Felder.Parameter.Ausgabename_Teile[1] = 0;
    for (const char* Name : {"a", "b", "c"}) Projekt.schreibe(Name, p);
    rufe({"--all", "--report", Projekt.daneben("all"), "--extended", Projekt.Pfad()});
    EXPECT_EQ(Namen("all").size(), 9U);
    for (const char* Teil : {"0/2", "1/2"})
        rufe({"--all", "--shard", Teil, "--report", Projekt.daneben("shards"), "--extended", Projekt.Pfad()});
    EXPECT_EQ(Namen("shards"), Namen("all"));
    for (const char* Name : {"a", "b", "c"}) {
        for (const char* Studie : {"1", "2"})
            rufe({"--simulation", Name, "--study", Studie, "--report", Projekt.daneben("single"), "--extended", Projekt.Pfad()});
    }
    EXPECT_EQ(Namen("single"), Namen("all"));
}

TEST_F(Berichte, repeated_names_of_studies_are_numbered) {
    Probe p;
    p.Felder.Parameter.Ausgabename_Teile[1] = 1;
    p.Felder.Studie = {"Field"};
    fuege_Studie_an(p, "field");
    fuege_Studie_an(p, "Other");
    p.Felder.Beschreibung = "x";
    Projekt.schreibe("case", p);
    rufe({"--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_THAT(Namen("reports"), testing::ElementsAre("x - Field - study 1.rtf", "x - Other.rtf", "x - field - study 2.rtf"));
}

TEST_F(Berichte, study_called_like_the_extended_report_is_not_replaced_by_it) {
    Probe p;
    p.Felder.Parameter.Ausgabename_Teile[1] = 1;
    p.Felder.Studie = {"Extended"};
    p.Felder.Beschreibung = "x";
    Projekt.schreibe("case", p);
    rufe({"--report", Projekt.daneben("reports"), "--extended", Projekt.Pfad()});
    EXPECT_EQ(Namen("reports").size(), 2U);
}

TEST_F(Berichte, long_descriptions_are_cut_in_front_of_what_tells_them_apart) {
    Probe p;
    p.Felder.Beschreibung = std::string(300, 'x');
    fuege_Studie_an(p, "Second");
    Projekt.schreibe("a", p);
    p.Felder.Beschreibung += "y";
    Projekt.schreibe("b", p);
    const auto r = rufe({"--all", "--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_EQ(Namen("reports").size(), 4U);
}

TEST_F(Berichte, link_in_the_place_of_one_is_replaced) {
    Probe p;
    p.Felder.Beschreibung = "x";
    p.Felder.Parameter.Ausgabename_Teile.fill(0);
    Projekt.schreibe("case", p);
    fs::create_directories(Projekt.daneben("output"));
    fs::create_symlink(Projekt.Eingabedatei("case.che"), Projekt.daneben("output/x.rtf"));
    const std::string vorher = Inhalt(Projekt.Eingabedatei("case.che"));
    EXPECT_EQ(rufe({"--report", Projekt.daneben("output"), Projekt.Pfad()}).Status, 0);
    EXPECT_EQ(Inhalt(Projekt.Eingabedatei("case.che")), vorher);
    EXPECT_THAT(Inhalt(Projekt.daneben("output/x.rtf")), StartsWith("{\\rtf1"));
}

TEST_F(Berichte, a_file_in_the_folders_place_is_a_wrong_call) {
    Projekt.schreibe("case");
    std::ofstream(Projekt.daneben("reports")) << "a file";
    const auto r = rufe({"--report", Projekt.daneben("reports"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("--report"));
}

TEST_F(Berichte, the_number_of_threads_does_not_show) {
    for (const char* Name : {"a", "b", "c", "d"}) Projekt.schreibe(Name);
    rufe({"--all", "--jobs", "1", "--report", Projekt.daneben("one"), Projekt.Pfad()});
    rufe({"--all", "--jobs", "4", "--report", Projekt.daneben("four"), Projekt.Pfad()});
    EXPECT_EQ(Namen("one"), Namen("four"));
    EXPECT_EQ(Namen("one").size(), 4U);
}

}  // namespace
}  // namespace varnok::batch
