#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;
using probe::Antwort;
using probe::Probeprojekt;
using probe::rufe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Names of the simulations that a call calculates, in their order.
std::vector<std::string> gewaehlt(std::vector<std::string> Argumente) {
    Argumente.insert(Argumente.begin(), {"--json", "-"});
    const Antwort r = rufe(Argumente);
    EXPECT_EQ(r.Status, 0) << r.fehler;
    std::vector<std::string> Namen;
    const auto JSON = r.JSON();
    for (const auto& s : JSON["simulations"]) Namen.push_back(s["simulation"]);
    return Namen;
}

struct Drei_Simulationen : testing::Test {
    Probeprojekt Projekt;
    Drei_Simulationen() {
        for (const char* Name : {"beta", "Alpha", "gamma"}) Projekt.schreibe(Name);
    }
};

using Simulationswahl = Drei_Simulationen;

TEST_F(Simulationswahl, default_is_the_newest_summary_file) {
    EXPECT_THAT(gewaehlt({Projekt.Pfad()}), ElementsAre("gamma"));
    fs::last_write_time(Projekt.Eingabedatei("Alpha.vnk"), fs::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_THAT(gewaehlt({Projekt.Pfad()}), ElementsAre("Alpha"));
}

TEST_F(Simulationswahl, all_comes_in_the_order_of_the_selector) {
    EXPECT_THAT(gewaehlt({"--all", Projekt.Pfad()}), ElementsAre("Alpha", "beta", "gamma"));
}

TEST_F(Simulationswahl, names_keep_the_order_of_the_call_and_count_once) {
    EXPECT_THAT(gewaehlt({"--simulation", "gamma", "--simulation", "beta", "--simulation", "gamma", Projekt.Pfad()}),
                ElementsAre("gamma", "beta"));
}

TEST_F(Simulationswahl, case_does_not_matter_where_no_name_matches_exactly) {
    EXPECT_THAT(gewaehlt({"--simulation", "ALPHA", "--simulation", "alpha", Projekt.Pfad()}), ElementsAre("Alpha"));
    fs::copy(Projekt.Eingabedatei("Alpha.vnk"), Projekt.Eingabedatei("ALPHA.vnk"));
    EXPECT_THAT(gewaehlt({"--simulation", "ALPHA", Projekt.Pfad()}), ElementsAre("ALPHA"));
}

TEST_F(Simulationswahl, case_does_not_matter_for_letters_beyond_ascii_either) {
    Projekt.schreibe("Äpfel");
    EXPECT_THAT(gewaehlt({"--simulation", "äPFEL", Projekt.Pfad()}), ElementsAre("Äpfel"));
}

TEST_F(Simulationswahl, shards_take_every_nth_and_together_all) {
    const auto Teil = [&](const char* Wunsch) {
        std::vector<std::string> Namen;
        const auto r = rufe({"--all", "--shard", Wunsch, "--json", "-", Projekt.Pfad()});
        EXPECT_EQ(r.Status, 0);
        const auto Dokument = r.JSON();
        for (const auto& s : Dokument["simulations"]) Namen.push_back(s["simulation"]);
        return Namen;
    };
    EXPECT_THAT(Teil("0/2"), ElementsAre("Alpha", "gamma"));
    EXPECT_THAT(Teil("1/2"), ElementsAre("beta"));
    EXPECT_THAT(Teil("0/1"), ElementsAre("Alpha", "beta", "gamma"));
    EXPECT_THAT(Teil("7/9"), IsEmpty());
}

TEST_F(Simulationswahl, unknown_simulation_is_a_wrong_call_that_calculates_nothing) {
    const auto r = rufe({"--simulation", "beta", "--simulation", "delta", "--json", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_EQ(r.aus, "");
    EXPECT_THAT(r.fehler, HasSubstr("\"delta\""));
}

TEST_F(Simulationswahl, path_in_place_of_a_simulation_name_is_unknown) {
    EXPECT_EQ(rufe({"--simulation", "../input/beta", Projekt.Pfad()}).Status, 2);
}

TEST_F(Simulationswahl, input_folder_is_found_whatever_its_case) {
    fs::rename(Projekt.Pfad() + "/input", Projekt.Pfad() + "/INPUT");
    EXPECT_THAT(gewaehlt({"--all", Projekt.Pfad()}), ElementsAre("Alpha", "beta", "gamma"));
}

TEST_F(Simulationswahl, project_path_may_end_in_a_slash) { EXPECT_THAT(gewaehlt({Projekt.Pfad() + "/"}), ElementsAre("gamma")); }

TEST(Projektpfad, missing_project_is_a_wrong_call) {
    const auto r = rufe({"/no/such/project"});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("/no/such/project"));
}

TEST(Projektpfad, file_in_the_projects_place_is_a_wrong_call) {
    Probeprojekt Projekt;
    std::ofstream(Projekt.daneben("file")) << "text";
    const auto r = rufe({Projekt.daneben("file")});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("file"));
}

TEST(Projektpfad, project_without_input_folder_is_a_wrong_call) {
    Probeprojekt Projekt;
    fs::remove(Projekt.Pfad() + "/input");
    const auto r = rufe({"--all", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("\"input\""));
}

TEST(Projektpfad, project_without_simulations_is_a_wrong_call) {
    Probeprojekt Projekt;
    for (const std::vector<std::string>& Wahl : {std::vector<std::string>{}, {"--all"}, {"--simulation", "a"}}) {
        auto Argumente = Wahl;
        Argumente.push_back(Projekt.Pfad());
        const auto r = rufe(Argumente);
        EXPECT_EQ(r.Status, 2);
        EXPECT_THAT(r.fehler, HasSubstr("no simulation"));
    }
}

TEST(Studienwahl, one_study_gives_what_it_gives_among_all) {
    Probeprojekt Projekt;
    probe::Probe p;
    fuege_Studie_an(p, "Laboratory");
    p.Felder.Parameter.k_SFO[0][1] = 0.002;
    Projekt.schreibe("two", p);
    const auto alle = rufe({"--json", "-", Projekt.Pfad()}).JSON();
    const auto eine = rufe({"--json", "-", "--study", "2", Projekt.Pfad()}).JSON();
    ASSERT_EQ(alle["simulations"][0]["studies"].size(), 2U);
    ASSERT_EQ(eine["simulations"][0]["studies"].size(), 1U);
    EXPECT_EQ(eine["simulations"][0]["studies"][0], alle["simulations"][0]["studies"][1]);
    EXPECT_EQ(eine["simulations"][0]["studies"][0]["name"], "Laboratory");
}

TEST(Studienwahl, study_beyond_the_last_is_an_error_of_that_simulation_alone) {
    Probeprojekt Projekt;
    probe::Probe p;
    fuege_Studie_an(p, "Laboratory");
    Projekt.schreibe("one");
    Projekt.schreibe("two", p);
    const auto r = rufe({"--all", "--study", "2", "--json", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    const auto JSON = r.JSON();
    ASSERT_EQ(JSON["errors"].size(), 1U);
    EXPECT_EQ(JSON["errors"][0]["simulation"], "one");
    EXPECT_THAT(JSON["errors"][0]["message"].get<std::string>(), HasSubstr("no study 2: file one.che has 1"));
    ASSERT_EQ(JSON["simulations"].size(), 1U);
    EXPECT_EQ(JSON["simulations"][0]["simulation"], "two");
}

}  // namespace
}  // namespace varnok::batch
