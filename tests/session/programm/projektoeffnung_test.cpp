// Other projects from the window of one, and what was open last.

#include <fstream>

#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

class Oeffnung : public Probesitzung {
protected:
    Oeffnung() : Orte_(Wurzel_.string() + "-orte") { fs::create_directories(Orte_); }
    ~Oeffnung() override { fs::remove_all(Orte_); }

    Sitzung& starte() {
        s_.reset();
        Umgebung Welt{&Fragen_, Wurzel_.string(), "", '.'};
        Welt.zuletzt_Datei = (Orte_ / "kept/recent.txt").string();
        Welt.weiteres_Fenster = [this](const std::string& Pfad) {
            Fenster_.push_back(Pfad);
            return geht_;
        };
        s_ = std::make_unique<Sitzung>(Welt);
        EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
        s_->fuehre_aus<&Projektoeffnung::merke>();
        return *s_;
    }
    void oeffne(const std::string& Pfad) { s_->fuehre_aus<&Projektoeffnung::oeffne>(Pfad); }
    std::string Projekt(const std::string& Name) const {
        fs::create_directories(Orte_ / Name / "input");
        return (Orte_ / Name).string();
    }
    std::string lege_Simulation_an(const std::string& Name) {
        schreibe_Simulation(Projektordner(Wurzel_.string()), Name, {"Of " + Name, {"", "Probe", "Probe", "Probe"}});
        return (Wurzel_ / "input" / (Name + ".vnk")).string();
    }
    // Another window on another folder.
    void zeige_anderswo(const std::string& Ordner, const std::string& Name) {
        const std::string alt = Datei_zuletzt();
        std::ofstream(Orte_ / "kept/recent.txt", std::ios::binary)
            << "project\t" + Ordner + "\nsimulation\t" + Ordner + "/input/" + Name + ".vnk\n" + alt;
    }
    std::string Datei_zuletzt() const {
        std::ifstream Strom(Orte_ / "kept/recent.txt", std::ios::binary);
        return {std::istreambuf_iterator<char>(Strom), {}};
    }
    std::vector<Zuletztes> Projekte() const { return s_->zeige<Projektoeffnung>().Projekte(); }
    std::vector<Zuletztes> Simulationen() const { return s_->zeige<Projektoeffnung>().Simulationen(); }

    fs::path Orte_;
    std::vector<std::string> Fenster_;
    bool geht_ = true;
};

TEST_F(Oeffnung, another_project_gets_a_window_of_its_own) {
    starte();
    const std::string anderes = Projekt("Field");
    oeffne(anderes);
    EXPECT_EQ(Fenster_, std::vector{anderes});
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "\"" + anderes + "\" opens in a window of its own.");
    EXPECT_EQ(s_->Stand().Projektpfad, Wurzel_.string());
}

TEST_F(Oeffnung, simulation_of_another_project_does_too) {
    starte();
    const std::string Datei = Projekt("Field") + "/input/Vines.vnk";
    std::ofstream(Datei) << '\n';
    oeffne(Datei);
    EXPECT_EQ(Fenster_, std::vector{Datei});
}

TEST_F(Oeffnung, simulation_of_this_project_is_loaded_here_also_one_that_came_later) {
    starte();
    oeffne(lege_Simulation_an("Later"));
    EXPECT_TRUE(Fenster_.empty());
    EXPECT_EQ(s_->Stand().gewaehlt(Simulation), "Later");
    EXPECT_EQ(s_->Stand().Vorgabe.Beschreibung, "Of Later");
    EXPECT_FALSE(s_->Stand().Hinweis());
}

TEST_F(Oeffnung, this_project_by_another_name_is_not_opened_twice) {
    starte();
    fs::create_directory_symlink(Wurzel_, Orte_ / "link");
    oeffne((Orte_ / "link").string());
    EXPECT_TRUE(Fenster_.empty());
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "This window shows that project already.");
}

TEST_F(Oeffnung, what_cannot_be_opened_is_told_and_everything_stays) {
    starte();
    Fragen_.erwarte_Anfang("Runtime error", "\"" + Orte_.string() + "\" cannot be opened: this folder is no project");
    oeffne(Orte_.string());
    geht_ = false;
    const std::string anderes = Projekt("Field");
    Fragen_.erwarte_Anfang("Runtime error", "\"" + anderes + "\" cannot be opened: no further window");
    oeffne(anderes);
    EXPECT_EQ(s_->Stand().gewaehlt(Simulation), "Probe");
}

TEST_F(Oeffnung, number_in_work_that_is_refused_keeps_the_window_as_it_is) {
    starte();
    const int f = Feld("S_Q10_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "-1");
    Fragen_.erwarte_Anfang("No valid input!", "");
    oeffne(Projekt("Field"));
    EXPECT_TRUE(Fenster_.empty());
}

TEST_F(Oeffnung, what_was_open_is_listed_the_last_first_without_what_is_open_here) {
    starte();
    EXPECT_TRUE(Projekte().empty());
    EXPECT_TRUE(Simulationen().empty());
    const std::string anderes = Projekt("Field");
    zeige_anderswo(anderes, "Vines");
    const std::string Datei = lege_Simulation_an("Second");
    oeffne(Datei);
    s_->fuehre_aus<&Projektoeffnung::merke>();
    EXPECT_EQ(Projekte(), (std::vector<Zuletztes>{{anderes, anderes, true}}));
    const std::string Probe = (Wurzel_ / "input/Probe.vnk").string();
    const std::string fehlt = anderes + "/input/Vines.vnk";
    EXPECT_EQ(Simulationen(), (std::vector<Zuletztes>{{fehlt, "Vines  (" + anderes + ")", false}, {Probe, "Probe", true}}));
}

TEST_F(Oeffnung, ten_of_a_kind_are_kept) {
    starte();
    for (int i = 0; i < 12; ++i) {
        oeffne(lege_Simulation_an("Number " + std::to_string(i)));
        s_->fuehre_aus<&Projektoeffnung::merke>();
    }
    const auto Liste = Simulationen();
    ASSERT_EQ(Liste.size(), 9u);  // and the one on the screen
    EXPECT_EQ(Liste.front().Aufschrift, "Number 10");
    EXPECT_EQ(Liste.back().Aufschrift, "Number 2");
}

TEST_F(Oeffnung, file_that_cannot_be_written_or_read_says_nothing) {
    std::ofstream(Orte_ / "kept") << "a file where the folder should be";
    starte();
    EXPECT_TRUE(Projekte().empty());
    EXPECT_EQ(s_->Stand().Statuszeile.Text(), "");
}

}  // namespace
}  // namespace varnok
