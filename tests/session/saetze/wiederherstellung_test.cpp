// "File, Restore...": what the backups hold comes back.

#include <algorithm>
#include <fstream>

#include "session/kern/probesitzung.h"
#include "support/versager.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;
using Abgleich = Gesichertes::Abgleich;

class Restoreprobe : public Probesitzung {
protected:
    const Zustand& z() const { return s_->Stand(); }
    void lege_in_Sicherung(const std::string& Datum, const std::string& Name, const std::string& Bytes) const {
        fs::create_directories(Wurzel_ / "backup" / Datum);
        std::ofstream(Wurzel_ / "backup" / Datum / Name, std::ios::binary) << Bytes;
    }
    // The record of the compound with another name of the parent.
    std::string Wirkstoffsatz(const std::string& Name) const {
        Eingabe e = Felder_;
        e.Name_Wirkstoff = Name;
        return Satz_als_Bytes(Wirkstoff, e, Sicht_);
    }
    std::vector<Gesichertes> Angebot() const { return s_->zeige<Wiederherstellung>().Angebot(); }
    // The ones of these names in backups.
    std::vector<Gesichertes> suche(const std::vector<std::string>& Namen) const {
        std::vector<Gesichertes> Gefundene;
        for (const Gesichertes& g : Angebot()) {
            if (std::find(Namen.begin(), Namen.end(), g.Dateiname) != Namen.end()) Gefundene.push_back(g);
        }
        return Gefundene;
    }
};

TEST_F(Restoreprobe, offers_the_newest_first_and_says_how_each_stands_to_now) {
    lege_in_Sicherung("2026-01-01 10-00-00", "Probe.che", Datei("input/Probe.che"));
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.che", Wirkstoffsatz("Old one"));
    lege_in_Sicherung("2026-01-02 10-00-00", "unsaved Gone.app", Datei("input/Probe.app"));
    lege_in_Sicherung("2026-01-02 10-00-00", "notes.txt", "no record");
    lege_in_Sicherung("mine", "Probe.che", "of the user");
    nur_geladen();
    const auto Alle = Angebot();
    ASSERT_EQ(Alle.size(), 3U);
    EXPECT_EQ(Alle[0].Sicherung, "2026-01-02 10-00-00");
    EXPECT_EQ(Alle[0].Stand, Abgleich::anders);
    EXPECT_EQ(Alle[1].Name, "Gone");
    EXPECT_TRUE(Alle[1].ungesichert);
    EXPECT_EQ(Alle[1].Stand, Abgleich::fehlt);
    EXPECT_EQ(Alle[2].Stand, Abgleich::gleich);
}

TEST_F(Restoreprobe, shows_the_lines_that_differ) {
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.che", Wirkstoffsatz("Old one"));
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.app", Datei("input/Probe.app"));
    lege_in_Sicherung("2026-01-02 10-00-00", "Gone.sce", "x");
    nur_geladen();
    const std::string Text = s_->zeige<Wiederherstellung>().Unterschiede(suche({"Probe.che"}).front());
    EXPECT_NE(Text.find("Old one"), std::string::npos) << Text;
    EXPECT_NE(Text.find("Parent P"), std::string::npos) << Text;
    EXPECT_EQ(std::count(Text.begin(), Text.end(), '\n'), 3) << "one line differs: " << Text;
    EXPECT_EQ(s_->zeige<Wiederherstellung>().Unterschiede(suche({"Probe.app"}).front()), "\"Probe.app\" is the same now.");
    EXPECT_EQ(s_->zeige<Wiederherstellung>().Unterschiede(suche({"Gone.sce"}).front()), "There is no \"Gone.sce\" now.");
}

TEST_F(Restoreprobe, brings_several_back_and_keeps_what_they_replace) {
    const std::string jetzt = Datei("input/Probe.che"), damals = Wirkstoffsatz("Old one");
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.che", damals);
    lege_in_Sicherung("2026-01-01 10-00-00", "Gone.app", Datei("input/Probe.app"));
    gestartet();
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(suche({"Probe.che", "Gone.app"}));
    EXPECT_EQ(Datei("input/Probe.che"), damals);
    EXPECT_EQ(Datei("input/Gone.app"), Datei("input/Probe.app"));
    EXPECT_EQ(z().Vorgabe.Name_Wirkstoff, "Old one") << "the screen shows what came back";
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(z().Listen[Applikation], (std::vector<std::string>{"Gone", "Probe"}));
    const auto neu = Angebot().front();
    EXPECT_EQ(neu.Dateiname, "Probe.che");
    EXPECT_EQ(Datei("backup/" + neu.Sicherung + "/Probe.che"), jetzt);
    EXPECT_EQ(z().Statuszeile.Text().find("Restored: "), 0U) << z().Statuszeile.Text();
}

TEST_F(Restoreprobe, keeps_what_was_entered_for_the_record_on_the_screen) {
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.che", Wirkstoffsatz("Old one"));
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(suche({"Probe.che"}));
    EXPECT_EQ(z().Vorgabe.Name_Wirkstoff, "Old one");
    const auto Alle = Angebot();
    EXPECT_EQ(Alle[0].Dateiname, "Probe.che");
    EXPECT_EQ(Alle[1].Dateiname, "unsaved Probe.che");
}

TEST_F(Restoreprobe, brings_back_what_was_never_saved_under_its_own_name) {
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(0);
    EXPECT_NE(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(suche({"unsaved Probe.che"}));
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_FALSE(gibt_es("input/unsaved Probe.che"));
}

TEST_F(Restoreprobe, brings_a_deleted_simulation_back) {
    schreibe_Simulation(Projektordner(Wurzel_.string()), "Second", {"Another", {"", "Probe", "Probe", "Probe"}});
    gestartet();
    Fragen_.erwarte_Anfang("Delete record", "Do you really", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Simulation);
    EXPECT_EQ(z().Listen[Simulation], std::vector<std::string>{"Probe"});
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(suche({"Second.vnk"}));
    EXPECT_EQ(z().Listen[Simulation], (std::vector<std::string>{"Probe", "Second"}));
}

TEST_F(Restoreprobe, two_states_of_one_record_are_refused_before_anything_is_written) {
    lege_in_Sicherung("2026-01-01 10-00-00", "Probe.che", Wirkstoffsatz("One"));
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.che", Wirkstoffsatz("Two"));
    gestartet();
    const std::string vorher = Datei("input/Probe.che");
    Fragen_.erwarte_Anfang("Runtime error", "\"Probe.che\" is chosen more than once.");
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(suche({"Probe.che"}));
    EXPECT_EQ(Datei("input/Probe.che"), vorher);
}

TEST_F(Restoreprobe, no_backup_offers_nothing) {
    nur_geladen();
    EXPECT_TRUE(Angebot().empty());
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(std::vector<Gesichertes>{});
}

TEST_F(Restoreprobe, a_backup_full_of_links_offers_none_of_them) {
    fs::create_directories(Wurzel_ / "backup/2026-01-01 10-00-00");
    fs::create_symlink("/etc/passwd", Wurzel_ / "backup/2026-01-01 10-00-00/Probe.che");
    fs::create_directory_symlink("/etc", Wurzel_ / "backup/2026-01-02 10-00-00");
    nur_geladen();
    EXPECT_TRUE(Angebot().empty());
}

// ---- a disk that fails, see tests/versager

class Versagende_Platte_beim_Restore : public Restoreprobe {
protected:
    void SetUp() override {
        if (!Versager::geladen()) GTEST_SKIP() << "needs the library of tests/versager, see the test of that name";
    }
};

TEST_F(Versagende_Platte_beim_Restore, what_came_back_before_it_failed_is_told_and_on_the_screen) {
    lege_in_Sicherung("2026-01-01 10-00-00", "Probe.app", "not as now\r\n");
    lege_in_Sicherung("2026-01-02 10-00-00", "Probe.che", Wirkstoffsatz("Old one"));
    gestartet();
    const std::string vorher = Datei("input/Probe.app");
    const auto Gewaehlte = suche({"Probe.che", "Probe.app"});
    ASSERT_EQ(Gewaehlte[0].Dateiname, "Probe.che");
    const Versager Platte(0, 4);  // two that are replaced, and the compound record
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file \"" + (Wurzel_ / "input/Probe.app").string());
    s_->fuehre_aus<&Wiederherstellung::stelle_her>(Gewaehlte);
    EXPECT_EQ(Datei("input/Probe.che"), Wirkstoffsatz("Old one"));
    EXPECT_EQ(z().Vorgabe.Name_Wirkstoff, "Old one");
    EXPECT_TRUE(z().Statuszeile.Text().starts_with("Restored: \"Probe.che\".")) << z().Statuszeile.Text();
    EXPECT_EQ(Datei("input/Probe.app"), vorher);
}

}  // namespace
}  // namespace varnok
