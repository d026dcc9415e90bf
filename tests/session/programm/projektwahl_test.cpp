// Which project the program opens, with an argument and without one.

#include "session/programm/projektwahl.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "records/simulation.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Dateien(const fs::path& Ordner) {
    std::vector<std::string> Namen;
    for (const auto& e : fs::directory_iterator(Ordner)) Namen.push_back(e.path().filename().string());
    std::sort(Namen.begin(), Namen.end());
    return Namen;
}

class Projektwahl_Start : public ::testing::Test {
protected:
    fs::path Ordner(const std::string& Name) const {
        fs::create_directories(Wurzel_ / Name);
        return Wurzel_ / Name;
    }
    static void lege_an(const fs::path& Datei) { std::ofstream(Datei) << '\n'; }
    Projektorte Orte() const {
        return {Ordner("hier").string(), (Wurzel_ / "daten").string(), Ordner("Documents").string(), VARNOK_DATENORDNER};
    }
    std::string Einwand(const fs::path& Argument) const { return waehle_Projekt(Argument.string(), Orte()).Einwand; }

    QTemporaryDir Wurzelordner_;
    fs::path Wurzel_ = fs::path(Wurzelordner_.path().toStdString());
};

TEST_F(Projektwahl_Start, current_folder_with_a_project_is_taken_as_it_is) {
    Projektorte o = Orte();
    Ordner("hier/Input");
    EXPECT_EQ(waehle_Projekt("", o).Ordner, o.aktueller_Ordner);
    o.aktueller_Ordner = Ordner("mit_Einstellungen").string();
    lege_an(Wurzel_ / "mit_Einstellungen/varnok.INI");
    EXPECT_EQ(waehle_Projekt("", o).Ordner, o.aktueller_Ordner);
    EXPECT_TRUE(fs::is_empty(Wurzel_ / "Documents"));
}

TEST_F(Projektwahl_Start, elsewhere_a_project_is_made_among_the_documents) {
    const Projektwahl w = waehle_Projekt("", Orte());
    EXPECT_EQ(w.Ordner, (Wurzel_ / "Documents/VARNOK").string());
    EXPECT_TRUE(fs::is_empty(Wurzel_ / "hier"));
    EXPECT_EQ(Dateien(fs::path(w.Ordner) / "input"), Dateien(fs::path(VARNOK_DATENORDNER) / "input"));
    // The first start opens the start simulation, not one of the examples.
    EXPECT_EQ(neueste_Simulation(Projektordner(w.Ordner)), "Programcheck");
}

TEST_F(Projektwahl_Start, project_in_the_data_of_the_user_goes_on) {
    Ordner("daten/input");
    EXPECT_EQ(waehle_Projekt("", Orte()).Ordner, (Wurzel_ / "daten").string());
    EXPECT_TRUE(fs::is_empty(Wurzel_ / "Documents"));
}

TEST_F(Projektwahl_Start, project_with_a_simulation_is_not_filled_again) {
    const fs::path Projekt = waehle_Projekt("", Orte()).Ordner;
    fs::remove(Projekt / "input/Temperate site.cli");
    waehle_Projekt("", Orte());
    EXPECT_FALSE(fs::exists(Projekt / "input/Temperate site.cli"));
}

TEST_F(Projektwahl_Start, project_without_a_simulation_is_filled_and_keeps_what_it_holds) {
    const fs::path Projekt = Ordner("Documents/VARNOK/input").parent_path();
    lege_an(Projekt / "input/Programcheck.che");
    waehle_Projekt("", Orte());
    EXPECT_TRUE(fs::exists(Projekt / "input/Programcheck.vnk"));
    EXPECT_EQ(fs::file_size(Projekt / "input/Programcheck.che"), 1u);
}

TEST_F(Projektwahl_Start, folder_given_is_the_project) {
    Ordner("Feld/INPUT");
    const Projektwahl w = waehle_Projekt((Wurzel_ / "Feld").string(), Orte());
    EXPECT_EQ(w.Ordner, (Wurzel_ / "Feld").string());
    EXPECT_EQ(w.Simulation, "");
    EXPECT_EQ(w.Einwand, "");
}

TEST_F(Projektwahl_Start, simulation_given_is_opened_in_its_project) {
    Ordner("Feld/Input");
    lege_an(Wurzel_ / "Feld/Input/Vines, 3.5 kg.VNK");
    const Projektwahl w = waehle_Projekt((Wurzel_ / "Feld/Input/Vines, 3.5 kg.VNK").string(), Orte());
    EXPECT_EQ(w.Ordner, (Wurzel_ / "Feld").string());
    EXPECT_EQ(w.Simulation, "Vines, 3.5 kg");
}

TEST_F(Projektwahl_Start, what_cannot_be_opened_is_named_with_the_reason) {
    lege_an(Ordner("Post") / "a.vnk");
    lege_an(Ordner("Feld/input") / "a.che");
    const std::string davor = "\"" + Wurzel_.string();
    EXPECT_EQ(Einwand(Wurzel_ / "Post/a.vnk"), davor +
                                                   "/Post/a.vnk\" cannot be opened: a simulation is opened from the folder "
                                                   "\"input\" of its project, which this file is not in");
    EXPECT_EQ(Einwand(Wurzel_ / "Post"),
              davor + "/Post\" cannot be opened: this folder is no project: it holds no folder \"input\"");
    EXPECT_EQ(Einwand(Wurzel_ / "Feld/input/a.che"),
              davor + "/Feld/input/a.che\" cannot be opened: this is neither a project folder nor a simulation (*.vnk)");
    EXPECT_EQ(Einwand(Wurzel_ / "nichts"), davor + "/nichts\" cannot be opened: there is no such file or folder");
    EXPECT_TRUE(fs::is_empty(Wurzel_ / "Documents"));
}

TEST_F(Projektwahl_Start, installed_data_lie_beside_the_folder_of_the_program) {
    EXPECT_EQ(installierte_Daten("/opt/varnok/bin/varnok"), "/opt/varnok/share/varnok");
    // A link to the program, such as one in the user's path, leads to where the program is.
    lege_an(Ordner("paket/bin") / "varnok");
    fs::create_symlink(Wurzel_ / "paket/bin/varnok", Ordner("pfad") / "varnok");
    EXPECT_EQ(installierte_Daten((Wurzel_ / "pfad/varnok").string()), (fs::canonical(Wurzel_) / "paket/share/varnok").string());
}

}  // namespace
}  // namespace varnok
