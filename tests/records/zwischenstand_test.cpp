#include "records/zwischenstand.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

const Zwischenstand Beispiel{
    "Alpha", "A text\r\nOne\r\nTwo\r\nThree\r\n", {{"unsaved Umlaut \xC3\xA4.che", "a\tb\r\nx\t3\r\n"}, {"unsaved b.app", ""}}};

TEST(Zwischenstand, comes_back_from_its_bytes) {
    EXPECT_EQ(zerlege_Zwischenstand(als_Bytes(Beispiel)), Beispiel);
    EXPECT_EQ(zerlege_Zwischenstand(als_Bytes({})), Zwischenstand{});
}

TEST(Zwischenstand, bytes_that_were_cut_anywhere_are_no_state) {
    const std::string Bytes = als_Bytes(Beispiel);
    const std::size_t letztes = Bytes.rfind("unsaved b.app");  // an end before it is one piece less
    for (std::size_t n = 0; n < Bytes.size(); ++n) {
        if (n == letztes || n == Bytes.find("unsaved Umlaut")) continue;
        EXPECT_EQ(zerlege_Zwischenstand(Bytes.substr(0, n)), std::nullopt) << n;
    }
    EXPECT_EQ(zerlege_Zwischenstand("rubbish"), std::nullopt);
}

TEST(Zwischenstand, is_one_file_of_the_project_and_goes_again) {
    const probe::Probeordner Ort;
    EXPECT_EQ(lies_Zwischenstand(Ort.Ordner()), std::nullopt);
    loesche_Zwischenstand(Ort.Ordner());
    schreibe_Zwischenstand(Ort.Ordner(), Beispiel);
    EXPECT_EQ(lies_Zwischenstand(Ort.Ordner()), als_Bytes(Beispiel));
    EXPECT_TRUE(fs::is_regular_file(Ort.Pfad() + "/backup/unsaved"));
    loesche_Zwischenstand(Ort.Ordner());
    EXPECT_FALSE(fs::exists(Ort.Pfad() + "/backup/unsaved"));
}

TEST(Zwischenstand, is_never_written_through_a_link) {
    const probe::Probeordner Ort, anderer;
    const fs::path fremde = fs::path(anderer.Pfad()) / "mine";
    std::ofstream(fremde) << "mine";
    fs::create_directories(Ort.Pfad() + "/backup");
    fs::create_symlink(fremde, Ort.Pfad() + "/backup/unsaved");
    EXPECT_THROW(schreibe_Zwischenstand(Ort.Ordner(), Beispiel), Laufzeitfehler);
    EXPECT_EQ(fs::file_size(fremde), 4U);
    fs::remove_all(Ort.Pfad() + "/backup");
    fs::create_directory_symlink(anderer.Pfad(), Ort.Pfad() + "/backup");
    EXPECT_THROW(schreibe_Zwischenstand(Ort.Ordner(), Beispiel), Laufzeitfehler);
    EXPECT_FALSE(fs::exists(fs::path(anderer.Pfad()) / "unsaved"));
}

TEST(Zwischenstand, behind_a_link_is_neither_read_nor_removed) {
    const probe::Probeordner Ort, anderer;
    const fs::path fremde = fs::path(anderer.Pfad()) / "unsaved";
    std::ofstream(fremde) << "mine";
    fs::create_directory_symlink(anderer.Pfad(), Ort.Pfad() + "/backup");
    EXPECT_EQ(lies_Zwischenstand(Ort.Ordner()), std::nullopt);
    loesche_Zwischenstand(Ort.Ordner());
    EXPECT_TRUE(fs::exists(fremde));
    fs::remove(Ort.Pfad() + "/backup");
    fs::create_directories(Ort.Pfad() + "/backup");
    fs::create_symlink(fremde, Ort.Pfad() + "/backup/unsaved");
    EXPECT_EQ(lies_Zwischenstand(Ort.Ordner()), std::nullopt);
    loesche_Zwischenstand(Ort.Ordner());
    EXPECT_TRUE(fs::is_symlink(Ort.Pfad() + "/backup/unsaved"));
}

TEST(Zwischenstand, pipe_in_its_place_makes_nobody_wait) {
    const probe::Probeordner Ort;
    fs::create_directories(Ort.Pfad() + "/backup");
    ASSERT_EQ(mkfifo((Ort.Pfad() + "/backup/unsaved").c_str(), 0600), 0);
    EXPECT_EQ(lies_Zwischenstand(Ort.Ordner()), std::nullopt);
    EXPECT_THROW(schreibe_Zwischenstand(Ort.Ordner(), Beispiel), Laufzeitfehler);
    loesche_Zwischenstand(Ort.Ordner());
    EXPECT_TRUE(fs::exists(Ort.Pfad() + "/backup/unsaved"));
}

}  // namespace
}  // namespace varnok
