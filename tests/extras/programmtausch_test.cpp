#include "extras/programmtausch.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "base/laufzeitfehler.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

std::string Inhalt(const fs::path& Pfad) {
    std::ifstream Strom(Pfad, std::ios::binary);
    std::ostringstream Text;
    Text << Strom.rdbuf();
    return Text.str();
}

// A program that notes its name and its current folder in a file beside it.
std::string Programm(const std::string& Name) { return "#!/bin/sh\npwd >\"${0%/*}/" + Name + " was here\"\n"; }

class Tausch : public ::testing::Test {
protected:
    Tausch() : Wurzel_(Ordner_.path().toStdString()), Programme_(Wurzel_ / "it's a folder") {
        fs::create_directories(Programme_);
        fs::create_directories(Wurzel_ / "project");
        std::ofstream(alt()) << Programm("old");
        fs::permissions(alt(), fs::perms(0750));
    }

    fs::path alt() const { return Programme_ / "varnok"; }
    Dateitausch Tauscher(std::int64_t Prozess) const { return {alt().string(), (Wurzel_ / "project").string(), Prozess}; }

    static bool warte_auf(const std::function<bool()>& Bedingung) {
        QElapsedTimer Uhr;
        for (Uhr.start(); Uhr.elapsed() < 30000; QThread::msleep(20)) {
            if (Bedingung()) return true;
        }
        return false;
    }
    std::vector<std::string> Dateien() const {
        std::vector<std::string> Namen;
        for (const auto& Eintrag : fs::directory_iterator(Programme_)) Namen.push_back(Eintrag.path().filename().string());
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }

    QTemporaryDir Ordner_;
    fs::path Wurzel_, Programme_;
};

// A program that runs until its input ends.
class Laufender {
public:
    Laufender() {
        p_.start(QStringLiteral("/bin/cat"), {});
        if (!p_.waitForStarted()) ADD_FAILURE() << "no /bin/cat";
    }
    ~Laufender() { beende(); }
    std::int64_t Nummer() const { return p_.processId(); }
    void beende() {
        p_.closeWriteChannel();
        p_.waitForFinished();
    }

private:
    QProcess p_;
};

TEST_F(Tausch, puts_the_new_program_beside_the_old_one_with_its_rights) {
    Dateitausch t = Tauscher(1);
    EXPECT_TRUE(t.moeglich());
    t.bereite_vor(Programm("new"));
    EXPECT_EQ(Dateien().size(), 3U);
    EXPECT_EQ(Inhalt(t.neue_Datei()), Programm("new"));
    EXPECT_EQ(fs::status(t.neue_Datei()).permissions(), fs::perms(0750));
    EXPECT_EQ(Inhalt(alt()), Programm("old"));
}

TEST_F(Tausch, what_was_prepared_can_be_discarded) {
    Dateitausch t = Tauscher(1);
    t.bereite_vor(Programm("new"));
    t.verwirf();
    EXPECT_EQ(Dateien(), (std::vector<std::string>{"varnok"}));
}

// The order: nothing while the program runs; then copied, deleted, restarted where the old one was started.
TEST_F(Tausch, the_script_replaces_the_program_after_its_end_and_starts_it) {
    Laufender alter;
    Dateitausch t = Tauscher(alter.Nummer());
    t.bereite_vor(Programm("new"));
    ASSERT_TRUE(t.starte_neues_Programm());
    QThread::msleep(500);
    EXPECT_EQ(Dateien().size(), 3U);
    EXPECT_EQ(Inhalt(alt()), Programm("old"));

    alter.beende();
    ASSERT_TRUE(warte_auf([this] { return !Inhalt(Programme_ / "new was here").empty(); }));
    EXPECT_EQ(Dateien(), (std::vector<std::string>{"new was here", "varnok"}));
    EXPECT_EQ(Inhalt(alt()), Programm("new"));
    EXPECT_EQ(fs::status(alt()).permissions(), fs::perms(0750));
    EXPECT_EQ(Inhalt(Programme_ / "new was here"), fs::canonical(Wurzel_ / "project").string() + "\n");
}

// A compiled program that is replaced while another one of the same file still runs.
TEST_F(Tausch, a_second_running_copy_does_not_hinder) {
    fs::copy_file("/bin/cat", alt(), fs::copy_options::overwrite_existing);
    QProcess zweites;
    zweites.start(QString::fromStdString(alt().string()), {});
    ASSERT_TRUE(zweites.waitForStarted());
    Laufender alter;
    Dateitausch t = Tauscher(alter.Nummer());
    t.bereite_vor(Programm("new"));
    ASSERT_TRUE(t.starte_neues_Programm());
    alter.beende();
    EXPECT_TRUE(warte_auf([this] { return !Inhalt(Programme_ / "new was here").empty(); }));
    EXPECT_EQ(Inhalt(alt()), Programm("new"));
    zweites.closeWriteChannel();
    EXPECT_TRUE(zweites.waitForFinished());
}

TEST_F(Tausch, a_copy_that_fails_restarts_the_old_program) {
    Laufender alter;
    Dateitausch t = Tauscher(alter.Nummer());
    t.bereite_vor(Programm("new"));
    fs::remove(t.neue_Datei());
    ASSERT_TRUE(t.starte_neues_Programm());
    alter.beende();
    ASSERT_TRUE(warte_auf([this] { return !Inhalt(Programme_ / "old was here").empty(); }));
    EXPECT_EQ(Dateien(), (std::vector<std::string>{"old was here", "varnok"}));
}

// The same script with a shorter patience.
TEST_F(Tausch, a_program_that_does_not_end_is_left_alone) {
    Laufender alter;
    Dateitausch t = Tauscher(alter.Nummer());
    t.bereite_vor(Programm("new"));
    std::string Text = Inhalt(t.Skriptdatei());
    const std::size_t Stelle = Text.find("-gt 600 ");
    ASSERT_NE(Stelle, std::string::npos);
    std::ofstream(t.Skriptdatei()) << Text.replace(Stelle, 8, "-gt 3 ");
    EXPECT_EQ(QProcess::execute(QStringLiteral("/bin/sh"), {QString::fromStdString(t.Skriptdatei())}), 1);
    EXPECT_EQ(Dateien(), (std::vector<std::string>{"varnok"}));
    EXPECT_EQ(Inhalt(alt()), Programm("old"));
}

TEST_F(Tausch, a_file_that_cannot_be_written_is_told_by_its_name) {
    Dateitausch t = Tauscher(1);
    fs::remove_all(Programme_);
    try {
        t.bereite_vor(Programm("new"));
        FAIL() << "written into no folder";
    } catch (const Laufzeitfehler& f) {
        EXPECT_NE(std::string(f.what()).find(".varnok-"), std::string::npos);
    }
}

// What lies beside the program under the names that earlier versions used, or of another's making, is the user's.
TEST_F(Tausch, nothing_of_the_user_is_written_over_or_removed) {
    std::ofstream(Wurzel_ / "elsewhere") << "mine";
    for (const char* Name : {"New_varnok", "New_varnok.part", "update.sh"}) std::ofstream(Programme_ / Name) << "mine";
    fs::create_symlink(Wurzel_ / "elsewhere", Programme_ / "link.sh");
    const auto vorher = Dateien();
    Laufender alter;
    Dateitausch t = Tauscher(alter.Nummer());
    t.bereite_vor(Programm("new"));
    ASSERT_TRUE(t.starte_neues_Programm());
    alter.beende();
    ASSERT_TRUE(warte_auf([this] { return !Inhalt(Programme_ / "new was here").empty(); }));
    fs::remove(Programme_ / "new was here");
    EXPECT_EQ(Dateien(), vorher);
    for (const char* Name : {"New_varnok", "New_varnok.part", "update.sh"}) EXPECT_EQ(Inhalt(Programme_ / Name), "mine");
    EXPECT_EQ(Inhalt(Wurzel_ / "elsewhere"), "mine");
}

TEST_F(Tausch, names_differ_each_time) {
    Dateitausch eins = Tauscher(1), zwei = Tauscher(1);
    eins.bereite_vor(Programm("new"));
    zwei.bereite_vor(Programm("new"));
    EXPECT_NE(eins.neue_Datei(), zwei.neue_Datei());
    EXPECT_NE(eins.Skriptdatei(), zwei.Skriptdatei());
}

TEST_F(Tausch, a_program_that_is_a_link_is_not_replaced) {
    fs::rename(alt(), Wurzel_ / "elsewhere");
    fs::create_symlink(Wurzel_ / "elsewhere", alt());
    EXPECT_FALSE(Tauscher(1).moeglich());
}

TEST_F(Tausch, a_link_that_took_the_place_of_the_program_meanwhile_stays) {
    Laufender alter;
    Dateitausch t = Tauscher(alter.Nummer());
    t.bereite_vor(Programm("new"));
    fs::rename(alt(), Wurzel_ / "elsewhere");
    fs::create_symlink(Wurzel_ / "elsewhere", alt());
    ASSERT_TRUE(t.starte_neues_Programm());
    alter.beende();
    ASSERT_TRUE(warte_auf([this] { return !Inhalt(Programme_ / "old was here").empty(); }));
    EXPECT_TRUE(fs::is_symlink(alt()));
    EXPECT_EQ(Inhalt(Wurzel_ / "elsewhere"), Programm("old"));
}

TEST_F(Tausch, a_program_that_is_not_there_cannot_be_replaced) {
    fs::remove(alt());
    EXPECT_FALSE(Tauscher(1).moeglich());
    fs::create_directories(alt());
    EXPECT_FALSE(Tauscher(1).moeglich());
}

TEST_F(Tausch, a_program_without_the_right_to_write_cannot_be_replaced) {
    if (::geteuid() == 0) GTEST_SKIP() << "the administrator may write everywhere";
    fs::permissions(Programme_, fs::perms(0550));
    EXPECT_FALSE(Tauscher(1).moeglich());
    fs::permissions(Programme_, fs::perms(0750));
    fs::permissions(alt(), fs::perms(0550));
    EXPECT_FALSE(Tauscher(1).moeglich());
}

TEST(Tauschort, files_of_packages_are_left_alone_whoever_asks) {
    EXPECT_FALSE(Dateitausch("/bin/sh", "/", 1).moeglich());
    EXPECT_FALSE(Dateitausch("/usr/bin/env", "/", 1).moeglich());
}

TEST(Tauschstapel, has_these_lines_in_this_order) {
    EXPECT_EQ(Tauschstapel(),
              "Echo on\r\nPause\r\ncopy New_Varnok.exe Varnok.exe\r\ndel New_Varnok.exe\r\n"
              "Varnok.exe\r\ndel update.bat\r\nexit\r\n");
}

TEST(Tauschskript, waits_then_copies_deletes_and_restarts) {
    const std::string Text = Tauschskript({"/opt/it's", "varnok", "/home/user", 4711, ".new 1", ".it's.sh"});
    std::size_t Stelle = 0;
    for (const char* Teil : {"cd '/opt/it'\\''s'", "kill -0 4711", "mv -f './.new 1' './varnok'",
                             "rm -f './.new 1' './.it'\\''s.sh'\n", "cd '/home/user'\n", "exec '/opt/it'\\''s/varnok'\n"}) {
        const std::size_t hier = Text.find(Teil, Stelle);
        ASSERT_NE(hier, std::string::npos) << Teil << "\n" << Text;
        Stelle = hier;
    }
}

}  // namespace
}  // namespace varnok
