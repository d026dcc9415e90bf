#include "records/schreibort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
namespace fs = std::filesystem;

// A project beside a folder of somebody else.
class Schreibort_ : public ::testing::Test {
protected:
    Schreibort_() {
        fs::create_directories(o_.Pfad("project/output"));
        fs::create_directories(o_.Pfad("foreign"));
        schreibe(fremde("file.che"), "mine");
    }
    std::string eigene(const std::string& Name = {}) const { return o_.Pfad("project") + (Name.empty() ? "" : "/" + Name); }
    std::string fremde(const std::string& Name = {}) const { return o_.Pfad("foreign") + (Name.empty() ? "" : "/" + Name); }
    void verknuepfe(const std::string& Ziel, const std::string& Name) const { fs::create_symlink(Ziel, eigene(Name)); }
    Schreibort ungefragt() const { return {Schreibweise::ungefragt, eigene()}; }
    Schreibort im_Projekt() const { return {Schreibweise::Datei, eigene()}; }
    // The text of what was refused, empty where it was written.
    static std::string schreibe_neu(const std::string& Pfad, const Schreibort& Ort) {
        try {
            schreibe_Datei(Pfad, "new", Ort);
            return {};
        } catch (const Laufzeitfehler& f) {
            return f.what();
        }
    }
    void Fremdes_ist_unberuehrt() const {
        EXPECT_EQ(Inhalt(fremde("file.che")), "mine");
        EXPECT_EQ(std::distance(fs::directory_iterator(fremde()), fs::directory_iterator{}), 1);
    }

    Zeitordner o_;
};

TEST_F(Schreibort_, record_is_written_through_a_link_to_a_file_of_its_kind) {
    verknuepfe(fremde("file.che"), "record.che");
    EXPECT_EQ(schreibe_neu(eigene("record.che"), als_Satz), "");
    EXPECT_TRUE(fs::is_symlink(eigene("record.che")));
    EXPECT_EQ(Inhalt(fremde("file.che")), "new");
}

TEST_F(Schreibort_, record_is_written_into_a_folder_that_is_a_link) {
    fs::create_directory_symlink(fremde(), eigene("input"));
    EXPECT_EQ(schreibe_neu(eigene("input/file.che"), als_Satz), "");
    EXPECT_EQ(Inhalt(fremde("file.che")), "new");
}

TEST_F(Schreibort_, record_is_not_written_over_a_file_that_is_none) {
    schreibe(o_.Pfad("profile"), "mine");
    verknuepfe(o_.Pfad("profile"), "record.che");
    EXPECT_THAT(schreibe_neu(eigene("record.che"), als_Satz), ::testing::HasSubstr("which is no .che file"));
    EXPECT_EQ(Inhalt(o_.Pfad("profile")), "mine");
}

TEST_F(Schreibort_, record_takes_the_place_of_a_link_to_nothing) {
    verknuepfe(fremde("none.che"), "record.che");
    EXPECT_EQ(schreibe_neu(eigene("record.che"), als_Satz), "");
    EXPECT_FALSE(fs::is_symlink(eigene("record.che")));
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, what_was_asked_for_takes_the_place_of_a_link) {
    for (const Schreibort& Ort : {Schreibort{}, als_Datei, im_Projekt()}) {
        verknuepfe(fremde("file.che"), "report.rtf");
        EXPECT_EQ(schreibe_neu(eigene("report.rtf"), Ort), "");
        EXPECT_FALSE(fs::is_symlink(eigene("report.rtf")));
        EXPECT_EQ(Inhalt(eigene("report.rtf")), "new");
        Fremdes_ist_unberuehrt();
        fs::remove(eigene("report.rtf"));
    }
}

TEST_F(Schreibort_, copy_takes_the_place_of_a_link) {
    schreibe(eigene("a.che"), "copied");
    verknuepfe(fremde("file.che"), "b.che");
    kopiere_Datei(eigene("a.che"), eigene("b.che"));
    EXPECT_EQ(Inhalt(eigene("b.che")), "copied");
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, rename_and_delete_act_on_the_link) {
    verknuepfe(fremde("file.che"), "a.che");
    schreibe(eigene("b.che"), "b");
    benenne_Datei_um(eigene("a.che"), eigene("c.che"));
    EXPECT_TRUE(fs::is_symlink(eigene("c.che")));
    benenne_Datei_um(eigene("b.che"), eigene("c.che"));
    EXPECT_EQ(Inhalt(eigene("c.che")), "b");
    verknuepfe(fremde("file.che"), "d.che");
    loesche_Datei(eigene("d.che"));
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, unasked_a_link_to_outside_is_refused) {
    verknuepfe(fremde("file.che"), "output/test.txt");
    EXPECT_THAT(schreibe_neu(eigene("output/test.txt"), ungefragt()), ::testing::HasSubstr("lies outside of"));
    EXPECT_TRUE(fs::is_symlink(eigene("output/test.txt")));
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, unasked_nothing_is_made_behind_a_link_to_nothing) {
    verknuepfe(fremde("none"), "output/test.txt");
    EXPECT_NE(schreibe_neu(eigene("output/test.txt"), ungefragt()), "");
    verknuepfe("../../foreign/none", "output/relative.txt");
    EXPECT_NE(schreibe_neu(eigene("output/relative.txt"), ungefragt()), "");
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, unasked_a_link_within_the_project_is_replaced_and_its_target_stays) {
    schreibe(eigene("record.che"), "record");
    verknuepfe("../record.che", "output/test.txt");
    EXPECT_EQ(schreibe_neu(eigene("output/test.txt"), ungefragt()), "");
    EXPECT_EQ(Inhalt(eigene("record.che")), "record");
    EXPECT_EQ(Inhalt(eigene("output/test.txt")), "new");
}

TEST_F(Schreibort_, folder_that_is_a_link_to_outside_is_not_writable) {
    fs::remove(eigene("output"));
    fs::create_directory_symlink(fremde(), eigene("output"));
    EXPECT_NE(schreibe_neu(eigene("output/a.txt"), ungefragt()), "");
    EXPECT_NE(schreibe_neu(eigene("output/a.rtf"), im_Projekt()), "");
    EXPECT_THROW(lege_Ordner_an(eigene("output"), eigene()), Laufzeitfehler);
    EXPECT_THROW(lege_Ordner_an(eigene("output/sub"), eigene()), Laufzeitfehler);
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, folder_that_is_a_link_to_nothing_is_not_made_there) {
    fs::remove(eigene("output"));
    fs::create_directory_symlink(fremde("none"), eigene("output"));
    EXPECT_THROW(lege_Ordner_an(eigene("output"), eigene()), Laufzeitfehler);
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, link_to_itself_is_refused_and_nobody_waits) {
    verknuepfe("circle.txt", "circle.txt");
    EXPECT_NE(schreibe_neu(eigene("circle.txt"), ungefragt()), "");
    EXPECT_TRUE(fs::is_symlink(eigene("circle.txt")));
}

TEST_F(Schreibort_, project_that_is_opened_through_a_link_is_inside_of_itself) {
    fs::create_directory_symlink(eigene(), o_.Pfad("other name"));
    const std::string Projekt = o_.Pfad("other name");
    EXPECT_EQ(schreibe_neu(Projekt + "/output/test.txt", {Schreibweise::ungefragt, Projekt}), "");
    EXPECT_FALSE(liegt_ausserhalb(eigene("output"), Projekt));
    EXPECT_FALSE(liegt_ausserhalb(Projekt + "/", Projekt));
    EXPECT_TRUE(liegt_ausserhalb(Projekt + "/../foreign", Projekt));
    EXPECT_TRUE(liegt_ausserhalb(o_.Pfad("project 2"), Projekt)) << "a name that only begins alike";
}

TEST_F(Schreibort_, pipe_is_neither_replaced_nor_waited_for_where_a_file_belongs) {
    ASSERT_EQ(mkfifo(eigene("output/test.txt").c_str(), 0600), 0);
    for (const Schreibort& Ort : {ungefragt(), im_Projekt(), als_Satz}) {
        EXPECT_THAT(schreibe_neu(eigene("output/test.txt"), Ort), ::testing::HasSubstr("it is no plain file"));
    }
    EXPECT_TRUE(fs::is_fifo(eigene("output/test.txt")));
}

TEST_F(Schreibort_, link_to_a_folder_is_no_place_for_a_file) {
    verknuepfe(fremde(), "report.rtf");
    for (const Schreibort& Ort : {Schreibort{}, ungefragt(), im_Projekt(), als_Satz}) {
        EXPECT_THAT(schreibe_neu(eigene("report.rtf"), Ort), ::testing::HasSubstr("it is a link to a folder"));
    }
}

TEST_F(Schreibort_, hard_link_to_a_file_of_somebody_else_is_parted_from_it) {
    fs::create_hard_link(fremde("file.che"), eigene("output/test.txt"));
    EXPECT_EQ(schreibe_neu(eigene("output/test.txt"), ungefragt()), "");
    EXPECT_EQ(Inhalt(eigene("output/test.txt")), "new");
    Fremdes_ist_unberuehrt();
}

TEST_F(Schreibort_, removing_a_folder_descends_into_no_link) {
    fs::create_directories(eigene("old/sub"));
    fs::create_directory_symlink(fremde(), eigene("old/sub/link"));
    fs::create_symlink(fremde("file.che"), eigene("old/file"));
    entferne_Ordner(eigene("old"), eigene());
    EXPECT_FALSE(fs::exists(eigene("old")));
    fs::create_directory_symlink(fremde(), eigene("link"));
    entferne_Ordner(eigene("link"), eigene());
    entferne_Ordner(fremde(), eigene());
    EXPECT_TRUE(fs::is_symlink(eigene("link")));
    Fremdes_ist_unberuehrt();
}

}  // namespace
}  // namespace varnok
