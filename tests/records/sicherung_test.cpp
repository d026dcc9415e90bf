#include "records/sicherung.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
namespace fs = std::filesystem;

class Stelluhr : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override { return Zeit; }
    std::chrono::system_clock::time_point Zeit{std::chrono::hours(24 * 365 * 50)};
};

class Sicherung : public ::testing::Test {
protected:
    std::string sichere_etwas(const std::string& Bytes) { return sichere(Ort_.Ordner(), Uhr_, {{"Probe.che", Bytes}}); }
    // Nothing that was kept before.
    std::string sichere_etwas() { return sichere_etwas("content " + std::to_string(++Zahl_)); }
    std::vector<std::string> Ordner() const {
        std::vector<std::string> Namen;
        for (const auto& f : fs::directory_iterator(Ort_.Pfad() + "/backup")) {
            Namen.push_back("backup/" + f.path().filename().string());
        }
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }

    Probeordner Ort_;
    Stelluhr Uhr_;
    int Zahl_ = 0;
};

TEST_F(Sicherung, puts_the_pieces_of_one_action_into_one_folder_named_after_the_time) {
    const std::string Ort = sichere(Ort_.Ordner(), Uhr_, {{"Probe.che", "old"}, {"unsaved Probe.app", "typed"}});
    EXPECT_EQ(Ordner(), std::vector{Ort});
    EXPECT_EQ(Ort.substr(0, 12), "backup/2019-");
    EXPECT_EQ(Inhalt(Ort_.Pfad() + "/" + Ort + "/Probe.che"), "old");
    EXPECT_EQ(Inhalt(Ort_.Pfad() + "/" + Ort + "/unsaved Probe.app"), "typed");
}

TEST_F(Sicherung, without_a_piece_makes_no_folder) {
    EXPECT_EQ(sichere(Ort_.Ordner(), Uhr_, {}), "");
    EXPECT_FALSE(fs::exists(Ort_.Pfad() + "/backup"));
}

TEST_F(Sicherung, of_forty_actions_in_one_second_loses_none_and_keeps_their_order) {
    std::vector<std::string> Orte;
    for (int i = 0; i < 40; ++i) Orte.push_back(sichere_etwas(std::to_string(i)));
    EXPECT_EQ(Ordner(), Orte);
    EXPECT_EQ(Inhalt(Ort_.Pfad() + "/" + Orte[7] + "/Probe.che"), "7");
}

TEST_F(Sicherung, keeps_the_newest_fifty) {
    std::vector<std::string> Orte;
    for (int i = 0; i < 53; ++i) {
        Orte.push_back(sichere_etwas());
        Uhr_.Zeit += std::chrono::minutes(1);
    }
    Orte.erase(Orte.begin(), Orte.begin() + 3);
    EXPECT_EQ(Ordner(), Orte);
}

TEST_F(Sicherung, never_removes_a_folder_that_the_user_put_there) {
    fs::create_directories(Ort_.Pfad() + "/backup/0 mine");
    for (int i = 0; i < 52; ++i) sichere_etwas();
    EXPECT_TRUE(fs::exists(Ort_.Pfad() + "/backup/0 mine"));
    EXPECT_EQ(Ordner().size(), Hoechstzahl_Sicherungen + 1);
}

TEST_F(Sicherung, stays_also_where_the_clock_was_put_back) {
    for (std::size_t i = 0; i < Hoechstzahl_Sicherungen; ++i) sichere_etwas();
    Uhr_.Zeit -= std::chrono::hours(48);
    const std::string Ort = sichere_etwas();
    EXPECT_TRUE(fs::exists(Ort_.Pfad() + "/" + Ort));
    EXPECT_EQ(Ordner().size(), Hoechstzahl_Sicherungen);
}

TEST_F(Sicherung, cuts_a_name_at_the_limit_of_the_file_system_before_its_extension) {
    std::string Name = "unsaved ";
    while (Name.size() < 246) Name += "\xC3\xA4";
    const std::string Ort = sichere(Ort_.Ordner(), Uhr_, {{Name + ".che", "x"}});
    const auto Datei = fs::directory_iterator(Ort_.Pfad() + "/" + Ort)->path().filename().string();
    EXPECT_LE(Datei.size(), 240u);
    EXPECT_EQ(Datei, Name.substr(0, Datei.size() - 4) + ".che");
    EXPECT_EQ(Datei.size() % 2, 0u) << "no character is cut in two";
}

TEST_F(Sicherung, tells_apart_two_names_that_are_cut_alike) {
    const std::string lang(240, 'x');
    const std::string Ort = sichere(Ort_.Ordner(), Uhr_, {{lang + "1.che", "one"}, {lang + "2.che", "two"}});
    std::vector<std::string> Inhalte;
    for (const auto& f : fs::directory_iterator(Ort_.Pfad() + "/" + Ort)) Inhalte.push_back(Inhalt(f.path().string()));
    EXPECT_THAT(Inhalte, ::testing::UnorderedElementsAre("one", "two"));
}

TEST_F(Sicherung, that_cannot_be_made_is_a_fault) {
    schreibe(Ort_.Pfad() + "/backup", "a file in the way");
    EXPECT_THROW(sichere_etwas(), Laufzeitfehler);
}

TEST_F(Sicherung, keeps_bytes_once_that_the_newest_holds_already) {
    const std::string Ort = sichere(Ort_.Ordner(), Uhr_, {{"a.che", "one"}, {"b.app", "two"}});
    Uhr_.Zeit += std::chrono::minutes(1);
    EXPECT_EQ(sichere(Ort_.Ordner(), Uhr_, {{"a.che", "one"}}), Ort);
    const std::string zweiter = sichere(Ort_.Ordner(), Uhr_, {{"a.che", "one"}, {"b.app", "three"}});
    EXPECT_EQ(Ordner(), (std::vector{Ort, zweiter}));
    EXPECT_FALSE(fs::exists(Ort_.Pfad() + "/" + zweiter + "/a.che"));
    EXPECT_EQ(Inhalt(Ort_.Pfad() + "/" + zweiter + "/b.app"), "three");
}

TEST_F(Sicherung, that_failed_leaves_nothing_and_pushes_nothing_out) {
    for (std::size_t i = 0; i < Hoechstzahl_Sicherungen; ++i) sichere_etwas();
    const auto vorher = Ordner();
    EXPECT_THROW(sichere(Ort_.Ordner(), Uhr_, {{"good.che", "x"}, {"no/folder/of/that/name.che", "y"}}), Laufzeitfehler);
    EXPECT_EQ(Ordner(), vorher);
}

TEST_F(Sicherung, that_failed_first_leaves_no_folder_at_all) {
    EXPECT_THROW(sichere(Ort_.Ordner(), Uhr_, {{"no/folder.che", "y"}}), Laufzeitfehler);
    EXPECT_FALSE(fs::exists(Ort_.Pfad() + "/backup"));
}

TEST_F(Sicherung, clears_what_a_program_that_was_killed_left_after_an_hour) {
    const auto Rest = [&](const char* Name) { return fs::path(Ort_.Pfad()) / "backup" / Name; };
    for (const char* Name : {"unfinished old", "unfinished new"}) fs::create_directories(Rest(Name));
    fs::last_write_time(Rest("unfinished old"), fs::file_time_type::clock::now() - std::chrono::hours(2));
    sichere_etwas();
    EXPECT_FALSE(fs::exists(Rest("unfinished old")));
    EXPECT_TRUE(fs::exists(Rest("unfinished new")));
}

// ---- links

class Sicherung_mit_Links : public Sicherung {
protected:
    Sicherung_mit_Links() {
        fs::create_directories(Ort_.Pfad() + "/backup");
        schreibe(fremd_.Pfad("precious"), "mine");
    }
    void pruefe_Fremdes() const {
        EXPECT_EQ(Inhalt(fremd_.Pfad("precious")), "mine");
        EXPECT_EQ(std::distance(fs::directory_iterator(fremd_.Pfad()), fs::directory_iterator{}), 1);
    }
    std::string in_Sicherung(const std::string& Name) const { return Ort_.Pfad() + "/backup/" + Name; }

    Zeitordner fremd_;
};

TEST_F(Sicherung_mit_Links, clean_up_follows_none) {
    fs::create_directory_symlink(fremd_.Pfad(), in_Sicherung("2001-01-01 00-00-00"));
    fs::create_directories(in_Sicherung("2001-01-01 00-00-01"));
    fs::create_directory_symlink(fremd_.Pfad(), in_Sicherung("2001-01-01 00-00-01/inside"));
    fs::create_symlink(fremd_.Pfad("precious"), in_Sicherung("2001-01-01 00-00-01/file.che"));
    for (std::size_t i = 0; i < Hoechstzahl_Sicherungen + 2; ++i) sichere_etwas();
    pruefe_Fremdes();
    EXPECT_TRUE(fs::is_symlink(in_Sicherung("2001-01-01 00-00-00"))) << "a link is no backup, so it is not cleared away";
    EXPECT_FALSE(fs::exists(in_Sicherung("2001-01-01 00-00-01")));
}

TEST_F(Sicherung_mit_Links, backup_that_is_a_link_to_outside_is_not_writable) {
    fs::remove(Ort_.Pfad() + "/backup");
    fs::create_directory_symlink(fremd_.Pfad(), Ort_.Pfad() + "/backup");
    EXPECT_THROW(sichere_etwas(), Laufzeitfehler);
    pruefe_Fremdes();
    EXPECT_TRUE(Sicherungen(Ort_.Ordner()).empty());
}

TEST_F(Sicherung_mit_Links, backup_that_is_a_link_to_nothing_makes_nothing_there) {
    fs::remove(Ort_.Pfad() + "/backup");
    fs::create_directory_symlink(fremd_.Pfad("none"), Ort_.Pfad() + "/backup");
    EXPECT_THROW(sichere_etwas(), Laufzeitfehler);
    pruefe_Fremdes();
}

// ---- what a restore shows

TEST_F(Sicherung, lists_the_newest_first_with_its_files) {
    EXPECT_TRUE(Sicherungen(Ort_.Ordner()).empty());
    sichere(Ort_.Ordner(), Uhr_, {{"b.che", "1"}, {"a.app", "2"}});
    Uhr_.Zeit += std::chrono::minutes(1);
    sichere(Ort_.Ordner(), Uhr_, {{"c.sce", "3"}});
    fs::create_directories(Ort_.Pfad() + "/backup/mine");
    fs::create_symlink("/etc/passwd", Ort_.Pfad() + "/" + Ordner().front() + "/link.che");
    const auto Alle = Sicherungen(Ort_.Ordner());
    ASSERT_EQ(Alle.size(), 2U);
    EXPECT_EQ(Alle[0].Dateien, std::vector<std::string>{"c.sce"});
    EXPECT_EQ(Alle[1].Dateien, (std::vector<std::string>{"a.app", "b.che"}));
    EXPECT_EQ(lies_Sicherung(Ort_.Ordner(), Alle[0].Name, "c.sce"), "3");
}

}  // namespace
}  // namespace varnok
