#include "records/projektordner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using Namenliste = std::vector<std::string>;
namespace fs = std::filesystem;

TEST(Projektordner, folder_that_does_not_exist_is_refused) {
    const Zeitordner o;
    EXPECT_THROW(Projektordner(o.Pfad("none")), Laufzeitfehler);
    EXPECT_THROW(Projektordner(""), Laufzeitfehler);
    schreibe(o.Pfad("file"), "");
    EXPECT_THROW(Projektordner(o.Pfad("file")), Laufzeitfehler);
}

TEST(Projektordner, input_is_found_without_regard_to_case) {
    const Probeordner o("INput");
    o.lege_an("x.che");
    EXPECT_EQ(o.Ordner().Eingabeordner(), o.Pfad() + "/INput");
    EXPECT_EQ(o.Ordner().finde("x", ".che"), o.Pfad() + "/INput/x.che");
}

TEST(Projektordner, exact_input_wins) {
    const Probeordner o("INPUT");
    fs::create_directory(o.Pfad() + "/input");
    fs::create_directory(o.Pfad() + "/Input");
    EXPECT_EQ(o.Ordner().Eingabeordner(), o.Pfad() + "/input");
}

TEST(Projektordner, input_that_is_missing_still_has_a_path_and_no_names) {
    const Zeitordner o;
    schreibe(o.Pfad("Input"), "a file, no folder");
    const Projektordner p(o.Pfad());
    EXPECT_EQ(p.Eingabeordner(), o.Pfad() + "/input");
    EXPECT_TRUE(p.Namen(".che").empty());
    EXPECT_EQ(p.finde("x", ".che"), std::nullopt);
    EXPECT_EQ(p.Zielpfad("x", ".che"), o.Pfad() + "/input/x.che");
}

TEST(Projektordner, slash_behind_the_path_is_not_doubled) {
    const Probeordner o;
    EXPECT_EQ(Projektordner(o.Pfad() + "/").Eingabeordner(), o.Pfad() + "/input");
}

TEST(Projektordner, other_folders_are_found_the_same_way) {
    const Probeordner o("Output");
    EXPECT_EQ(o.Ordner().Unterordner("output"), o.Pfad() + "/Output");
}

TEST(Projektordner, file_is_found_without_regard_to_case_of_name_and_extension) {
    const Probeordner o;
    o.lege_an("Größe ÄÖ.CHE");
    const auto Pfad = o.Eingabedatei("Größe ÄÖ.CHE");
    for (const char* Name : {"Größe ÄÖ", "größe äö", "GRÖßE ÄÖ"}) {
        EXPECT_EQ(o.Ordner().finde(Name, ".che"), Pfad) << Name;
        EXPECT_EQ(o.Ordner().Zielpfad(Name, ".che"), Pfad) << Name;
    }
    EXPECT_EQ(o.Ordner().finde("Grösse ÄÖ", ".che"), std::nullopt);
}

TEST(Projektordner, exact_name_wins) {
    const Probeordner o;
    for (const char* Datei : {"loam.sce", "Loam.sce", "LOAM.sce"}) o.lege_an(Datei);
    EXPECT_EQ(o.Ordner().finde("Loam", ".sce"), o.Eingabedatei("Loam.sce"));
    EXPECT_EQ(o.Ordner().finde("loam", ".sce"), o.Eingabedatei("loam.sce"));
    EXPECT_EQ(o.Ordner().finde("lOAM", ".sce"), o.Eingabedatei("LOAM.sce"));  // the first in exact order
}

TEST(Projektordner, file_wins_over_a_folder_of_its_name) {
    const Probeordner o;
    fs::create_directory(o.Eingabedatei("x.sce"));
    EXPECT_EQ(o.Ordner().finde("x", ".sce"), o.Eingabedatei("x.sce"));
    o.lege_an("X.sce");
    EXPECT_EQ(o.Ordner().finde("x", ".sce"), o.Eingabedatei("X.sce"));
}

TEST(Projektordner, name_that_leads_elsewhere_is_never_found) {
    const Probeordner o;
    schreibe(o.Pfad() + "/x.che", "");
    o.lege_an("x.che");
    for (const char* Name : {"../x", "../input/x", "./x", "", "..", "."})
        EXPECT_EQ(o.Ordner().finde(Name, ".che"), std::nullopt) << Name;
}

TEST(Projektordner, new_file_is_written_under_the_name_as_given) {
    const Probeordner o;
    EXPECT_EQ(o.Ordner().Zielpfad("New Name", ".app"), o.Eingabedatei("New Name.app"));
}

TEST(Projektordner, names_stand_in_the_order_of_a_sort_without_case) {
    const Probeordner o;
    for (const char* Datei : {"b.che", "C.CHE", "a.che", "A.che", "Äpfel.che", "B 2.che"}) o.lege_an(Datei);
    EXPECT_EQ(o.Ordner().Namen(".che"), (Namenliste{"A", "a", "b", "B 2", "C", "Äpfel"}));
}

TEST(Projektordner, names_are_those_of_files_with_the_extension) {
    const Probeordner o;
    for (const char* Datei : {"x.che", "x.chn", "x.chex", "x.che.bak", "che", ".che", "y.che.che"}) o.lege_an(Datei);
    fs::create_directory(o.Eingabedatei("folder.che"));
    fs::create_symlink(o.Eingabedatei("x.che"), o.Eingabedatei("link.che"));
    fs::create_symlink(o.Eingabedatei("none"), o.Eingabedatei("dead.che"));
    ASSERT_EQ(mkfifo(o.Eingabedatei("pipe.che").c_str(), 0600), 0);
    EXPECT_EQ(o.Ordner().Namen(".che"), (Namenliste{"link", "x", "y.che"}));
    EXPECT_EQ(o.Ordner().Namen(".chn"), Namenliste{"x"});
}

TEST(Projektordner, extensions_of_different_case_make_one_name) {
    const Probeordner o;
    o.lege_an("x.che", "lower");
    o.lege_an("x.CHE", "upper");
    EXPECT_EQ(o.Ordner().Namen(".che"), Namenliste{"x"});
    EXPECT_EQ(Inhalt(*o.Ordner().finde("x", ".che")), "lower");
}

TEST(Projektordner, names_that_no_selector_could_open_again_are_left_out) {
    const Probeordner o;
    for (const char* Datei : {"a\nb.che", "a\tb.che", "back\\slash.che", "latin \xE4.che", "..che", "good.che"}) o.lege_an(Datei);
    EXPECT_EQ(o.Ordner().Namen(".che"), Namenliste{"good"});
}

TEST(Projektordner, objections_to_a_name) {
    for (const std::string Name : {"", ".", "..", "a/b", "/", "a\\b", "a\nb", "\x01", "\x7F", "a\tb", "latin \xE4"}) {
        EXPECT_NE(Einwand_gegen_Namen(Name), "") << Name;
    }
    EXPECT_NE(Einwand_gegen_Namen(std::string("a\0b", 3)), "");
    for (const std::string Name : {"a", "Größe µ", "new compound1", "...", ".hidden", "a.che", "100% \"x\" 'y'", " "}) {
        EXPECT_EQ(Einwand_gegen_Namen(Name), "") << Name;
    }
}

TEST(Projektordner, folder_read_once_answers_as_one_that_is_read_each_time) {
    const Probeordner o("INput");
    for (const char* Datei : {"loam.sce", "Loam.SCE", "LOAM.sce", "Größe ÄÖ.CHE", "x.che", "x.CHE", "a\tb.che", "good.che"})
        o.lege_an(Datei);
    fs::create_directory(o.Eingabedatei("folder.che"));
    fs::create_directory(o.Eingabedatei("Good.sce"));
    fs::create_symlink(o.Eingabedatei("x.che"), o.Eingabedatei("link.che"));
    fs::create_symlink(o.Eingabedatei("none"), o.Eingabedatei("dead.che"));
    ASSERT_EQ(mkfifo(o.Eingabedatei("pipe.che").c_str(), 0600), 0);
    const Projektordner jedesmal = o.Ordner(), einmal = o.Ordner().mit_Verzeichnis();
    EXPECT_EQ(einmal.Eingabeordner(), jedesmal.Eingabeordner());
    for (const char* Endung : {".sce", ".che", ".app"}) {
        EXPECT_EQ(einmal.Namen(Endung), jedesmal.Namen(Endung));
        for (const char* Name :
             {"loam", "Loam", "lOAM", "größe äö", "x", "X", "folder", "good", "GOOD", "link", "dead", "pipe", "", "../x"}) {
            EXPECT_EQ(einmal.finde(Name, Endung), jedesmal.finde(Name, Endung)) << Name << Endung;
            EXPECT_EQ(einmal.enthaelt(Name, Endung), jedesmal.enthaelt(Name, Endung)) << Name << Endung;
        }
    }
}

TEST(Projektordner, name_is_held_if_the_list_of_names_has_it) {
    const Probeordner o;
    for (const char* Datei : {"loam.sce", "Loam.SCE", "clay.SCE", "back\\slash.sce"}) o.lege_an(Datei);
    fs::create_directory(o.Eingabedatei("folder.sce"));
    const Namenliste Namen = o.Ordner().Namen(".sce");
    EXPECT_EQ(Namen, (Namenliste{"clay", "Loam", "loam"}));
    for (const std::string Name : {"loam", "Loam", "LOAM", "clay", "Clay", "folder", "back\\slash", ""}) {
        EXPECT_EQ(o.Ordner().enthaelt(Name, ".sce"), std::count(Namen.begin(), Namen.end(), Name) > 0) << Name;
    }
}

TEST(Projektordner, folder_read_once_keeps_what_it_held) {
    const Probeordner o;
    o.lege_an("a.che");
    const Projektordner einmal = o.Ordner().mit_Verzeichnis();
    o.lege_an("b.che");
    EXPECT_EQ(einmal.Namen(".che"), Namenliste{"a"});
    EXPECT_EQ(einmal.finde("b", ".che"), std::nullopt);
    EXPECT_EQ(einmal.mit_Verzeichnis().Namen(".che"), (Namenliste{"a", "b"}));
}

}  // namespace
}  // namespace varnok
