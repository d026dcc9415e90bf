// Links in a project: records may be kept elsewhere; nothing else leaves the folder.

#include <sys/stat.h>

#include <fstream>

#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

class Linksprobe : public Probesitzung {
protected:
    Linksprobe() : fremd_(Wurzel_.string() + " elsewhere") {
        fs::create_directories(fremd_);
        std::ofstream(fremd_ / "mine") << "mine";
    }
    ~Linksprobe() override { fs::remove_all(fremd_); }

    const Zustand& z() const { return s_->Stand(); }
    static std::string lies(const fs::path& p) {
        std::ifstream Strom(p, std::ios::binary);
        return {std::istreambuf_iterator<char>(Strom), {}};
    }
    // A record that is kept in the other folder.
    void verlege(const std::string& Name) const {
        fs::rename(Wurzel_ / "input" / Name, fremd_ / Name);
        fs::create_symlink(fremd_ / Name, Wurzel_ / "input" / Name);
    }
    void Fremdes_ist_unberuehrt() const {
        EXPECT_EQ(lies(fremd_ / "mine"), "mine");
        EXPECT_EQ(std::distance(fs::directory_iterator(fremd_), fs::directory_iterator{}), 1);
    }

    fs::path fremd_;
};

TEST_F(Linksprobe, record_is_read_and_saved_through_one) {
    verlege("Probe.che");
    const std::string vorher = lies(fremd_ / "Probe.che");
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_TRUE(fs::is_symlink(Wurzel_ / "input/Probe.che"));
    EXPECT_NE(lies(fremd_ / "Probe.che"), vorher);
}

TEST_F(Linksprobe, delete_takes_the_link_and_leaves_the_record_elsewhere) {
    schreibe_Saetze("Other", Felder_);
    verlege("Probe.sce");
    gestartet();
    Fragen_.erwarte_Anfang("Delete record", "Do you really", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_FALSE(fs::is_symlink(Wurzel_ / "input/Probe.sce"));
    EXPECT_TRUE(fs::exists(fremd_ / "Probe.sce"));
}

TEST_F(Linksprobe, rename_over_one_replaces_the_link) {
    std::ofstream(fremd_ / "Other.sce") << "mine";
    fs::create_symlink(fremd_ / "Other.sce", Wurzel_ / "input/Other.sce");
    gestartet();
    Fragen_.erwarte_Anfang("Replace existing record?", "The record", Knopf::Ja);
    EXPECT_TRUE(benenne_um(*s_, Szenario, "Other", true));
    EXPECT_FALSE(fs::is_symlink(Wurzel_ / "input/Other.sce"));
    EXPECT_EQ(lies(fremd_ / "Other.sce"), "mine");
}

TEST_F(Linksprobe, copy_over_one_replaces_the_link) {
    std::ofstream(fremd_ / "other.sce") << "mine";
    fs::create_symlink(fremd_ / "other.sce", Wurzel_ / "input/copy of Probe.sce");
    gestartet();
    Fragen_.erwarte_Anfang("Replace existing record?", "The record", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    EXPECT_FALSE(fs::is_symlink(Wurzel_ / "input/copy of Probe.sce"));
    EXPECT_EQ(lies(fremd_ / "other.sce"), "mine");
}

TEST_F(Linksprobe, exit_writes_no_summary_file_through_one) {
    verlege("Probe.vnk");
    const auto vorher = fs::last_write_time(fremd_ / "Probe.vnk");
    gestartet();
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(fs::last_write_time(fremd_ / "Probe.vnk"), vorher);
}

TEST_F(Linksprobe, exit_says_so_where_that_file_differs_and_keeps_the_difference) {
    verlege("Probe.vnk");
    const std::string vorher = lies(fremd_ / "Probe.vnk");
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("Another");
    Fragen_.erwarte_Anfang("Runtime error", "\"" + (Wurzel_ / "input/Probe.vnk").string() + "\" is a link to another folder");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(lies(fremd_ / "Probe.vnk"), vorher);
    EXPECT_TRUE(fs::exists(Wurzel_ / "backup"));
}

TEST_F(Linksprobe, first_results_leave_a_file_behind_a_link_alone) {
    fs::create_directories(Wurzel_ / "output");
    fs::create_symlink(fremd_ / "mine", Wurzel_ / "output/test.txt");
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    gestartet();
    EXPECT_FALSE(z().abgedeckt());
    Fremdes_ist_unberuehrt();
}

TEST_F(Linksprobe, output_that_is_one_to_outside_is_told_once_and_the_results_stand) {
    fs::create_directory_symlink(fremd_, Wurzel_ / "output");
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write to the folder");
    gestartet();
    tippe("S_DT50_0", "12");
    EXPECT_FALSE(z().abgedeckt());
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write to the folder");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    Fremdes_ist_unberuehrt();
}

TEST_F(Linksprobe, backup_that_is_one_to_outside_is_not_writable) {
    fs::create_directory_symlink(fremd_, Wurzel_ / "backup");
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write to the folder", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(0);
    Fremdes_ist_unberuehrt();
}

TEST_F(Linksprobe, settings_file_is_not_written_through_one) {
    fs::create_symlink(fremd_ / "mine", Wurzel_ / "VARNOK.ini");
    gestartet();
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    Fremdes_ist_unberuehrt();
}

TEST_F(Linksprobe, pipes_in_the_project_make_nobody_wait) {
    for (const char* Name : {"VARNOK.ini", ".varnok.lock", "Diagram.txt", "input/pipe.che", "input/Programcheck.vnk"}) {
        ASSERT_EQ(mkfifo((Wurzel_ / Name).c_str(), 0600), 0);
    }
    fs::create_directories(Wurzel_ / "output");
    ASSERT_EQ(mkfifo((Wurzel_ / "output/test.txt").c_str(), 0600), 0);
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    gestartet();
    EXPECT_EQ(z().Listen[Wirkstoff], std::vector<std::string>{"Probe"});
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
}

}  // namespace
}  // namespace varnok
