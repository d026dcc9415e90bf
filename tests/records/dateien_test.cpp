#include "records/dateien.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <functional>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::AllOf;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

std::string Meldung_von(const std::function<void()>& Tat) {
    try {
        Tat();
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
    return {};
}

std::size_t Eintraege(const std::string& Ordner) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(Ordner), fs::directory_iterator{}));
}

TEST(Dateien, bytes_go_out_and_come_back_unchanged) {
    const Zeitordner o;
    std::string Bytes;
    for (int i = 0; i < 200000; ++i) Bytes += static_cast<char>(i);
    schreibe_Datei(o.Pfad("Größe.che"), Bytes);
    EXPECT_EQ(lies_Datei(o.Pfad("Größe.che")), Bytes);
    EXPECT_EQ(lies_Datei_falls_moeglich(o.Pfad("Größe.che")), Bytes);
    schreibe_Datei(o.Pfad("empty"), "");
    EXPECT_EQ(lies_Datei(o.Pfad("empty")), "");
}

TEST(Dateien, written_file_is_all_that_is_left_in_the_folder) {
    const Zeitordner o;
    schreibe_Datei(o.Pfad("x"), "old and longer");
    schreibe_Datei(o.Pfad("x"), "new");
    EXPECT_EQ(lies_Datei(o.Pfad("x")), "new");
    EXPECT_EQ(Eintraege(o.Pfad()), 1u);
}

TEST(Dateien, access_rights_of_a_replaced_file_stay) {
    const Zeitordner o;
    schreibe_Datei(o.Pfad("x"), "old");
    fs::permissions(o.Pfad("x"), fs::perms(0640));
    schreibe_Datei(o.Pfad("x"), "new");
    EXPECT_EQ(fs::status(o.Pfad("x")).permissions(), fs::perms(0640));
}

TEST(Dateien, missing_file_is_told_with_name_and_reason) {
    const Zeitordner o;
    const std::string Pfad = o.Pfad("none.che");
    EXPECT_THAT(Meldung_von([&] { lies_Datei(Pfad); }),
                AllOf(HasSubstr("Cannot read the file \"" + Pfad + "\": "), HasSubstr("No such file")));
    EXPECT_EQ(lies_Datei_falls_moeglich(Pfad), std::nullopt);
}

TEST(Dateien, folder_is_no_file) {
    const Zeitordner o;
    EXPECT_THAT(Meldung_von([&] { lies_Datei(o.Pfad()); }), HasSubstr("it is a folder"));
    EXPECT_THAT(Meldung_von([&] { schreibe_Datei(o.Pfad(), "x"); }), HasSubstr("it is a folder"));
    EXPECT_EQ(lies_Datei_falls_moeglich(o.Pfad()), std::nullopt);
}

TEST(Dateien, endless_device_is_too_large) {
    EXPECT_THAT(Meldung_von([] { lies_Datei("/dev/zero", Quelle::alles); }), HasSubstr("larger than 16 MB"));
}

TEST(Dateien, device_or_pipe_is_read_only_where_one_is_expected) {
    const Zeitordner o;
    ASSERT_EQ(mkfifo(o.Pfad("pipe.che").c_str(), 0600), 0);
    for (const std::string& Pfad : {std::string("/dev/zero"), o.Pfad("pipe.che")}) {
        EXPECT_THAT(Meldung_von([&] { lies_Datei(Pfad); }), HasSubstr("it is no plain file"));
        EXPECT_EQ(lies_Datei_falls_moeglich(Pfad), std::nullopt);
    }
}

TEST(Dateien, largest_size_is_still_read) {
    const Zeitordner o;
    schreibe(o.Pfad("x"), "");
    fs::resize_file(o.Pfad("x"), Hoechstgroesse_Datei);
    EXPECT_EQ(lies_Datei(o.Pfad("x")).size(), Hoechstgroesse_Datei);
    fs::resize_file(o.Pfad("x"), Hoechstgroesse_Datei + 1);
    EXPECT_THROW(lies_Datei(o.Pfad("x")), Laufzeitfehler);
}

TEST(Dateien, folder_that_does_not_exist_is_told) {
    const Zeitordner o;
    const std::string Pfad = o.Pfad("none/x.che");
    EXPECT_THAT(Meldung_von([&] { schreibe_Datei(Pfad, "x"); }), HasSubstr("Cannot write the file \"" + Pfad + "\": "));
    EXPECT_EQ(Eintraege(o.Pfad()), 0u);
}

// Devices of the test's own: one that is replaced by mistake must not be the machine's.
TEST(Dateien, full_device_is_told_and_stays_a_device) {
    const Zeitordner o;
    const std::string Pfad = o.Pfad("full");
    if (mknod(Pfad.c_str(), S_IFCHR | 0600, makedev(1, 7)) != 0) GTEST_SKIP() << "no right to make a device";
    if (const int Probe = open(Pfad.c_str(), O_WRONLY); Probe < 0) {
        GTEST_SKIP() << "devices cannot be used in this folder";
    } else {
        close(Probe);
    }
    EXPECT_THAT(Meldung_von([&] { schreibe_Datei(Pfad, "x"); }), HasSubstr("No space left"));
    EXPECT_TRUE(fs::is_character_file(Pfad));
}

TEST(Dateien, pipe_is_written_to_and_not_replaced) {
    const Zeitordner o;
    const std::string Pfad = o.Pfad("pipe");
    ASSERT_EQ(mkfifo(Pfad.c_str(), 0600), 0);
    const int Leser = open(Pfad.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(Leser, 0);
    schreibe_Datei(Pfad, "through the pipe");
    std::array<char, 64> Puffer{};
    const ssize_t Anzahl = read(Leser, Puffer.data(), Puffer.size());
    close(Leser);
    EXPECT_EQ(std::string(Puffer.data(), static_cast<std::size_t>(std::max<ssize_t>(Anzahl, 0))), "through the pipe");
    EXPECT_TRUE(fs::is_fifo(Pfad));
    EXPECT_EQ(Eintraege(o.Pfad()), 1u);
}

// Runs in a process of its own: there the disk is as good as full after 4 KB.
[[noreturn]] void schreibe_mit_Platznot(const std::string& Pfad) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit Grenze{4096, 4096};
    setrlimit(RLIMIT_FSIZE, &Grenze);
    const std::string Meldung = Meldung_von([&] { schreibe_Datei(Pfad, std::string(100000, 'x')); });
    _exit(Meldung.find(Pfad) != std::string::npos && Meldung.find("too large") != std::string::npos ? 0 : 1);
}

TEST(DateienDeathTest, old_file_is_untouched_when_the_disk_is_full) {
    const Zeitordner o;
    schreibe_Datei(o.Pfad("x.che"), "old");
    EXPECT_EXIT(schreibe_mit_Platznot(o.Pfad("x.che")), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(lies_Datei(o.Pfad("x.che")), "old");
    EXPECT_EQ(Eintraege(o.Pfad()), 1u);
}

// Access rights bind nobody who is root, so the process gives that up first.
[[noreturn]] void ohne_Rechte(const std::string& Pfad) {
    if (geteuid() == 0 && seteuid(65534) != 0) _exit(2);
    const bool gelesen = lies_Datei_falls_moeglich(Pfad).has_value() || Meldung_von([&] { lies_Datei(Pfad); }).empty();
    const bool geschrieben = Meldung_von([&] { schreibe_Datei(Pfad, "new"); }).empty();
    _exit(gelesen || geschrieben ? 1 : 0);
}

TEST(DateienDeathTest, file_without_access_rights_is_neither_read_nor_replaced) {
    const Zeitordner o;
    schreibe_Datei(o.Pfad("x.che"), "old");
    fs::permissions(o.Pfad("x.che"), fs::perms::none);
    EXPECT_EXIT(ohne_Rechte(o.Pfad("x.che")), ::testing::ExitedWithCode(0), "");
    fs::permissions(o.Pfad("x.che"), fs::perms::owner_all);
    EXPECT_EQ(lies_Datei(o.Pfad("x.che")), "old");
}

TEST(Dateischreiber, pieces_make_one_file_that_is_there_at_the_end) {
    const Zeitordner o;
    schreibe(o.Pfad("x"), "old");
    Dateischreiber Datei(o.Pfad("x"));
    Datei.schreibe("one, ");
    Datei.schreibe("");
    Datei.schreibe("two");
    EXPECT_EQ(Inhalt(o.Pfad("x")), "old");
    Datei.beende();
    EXPECT_EQ(Inhalt(o.Pfad("x")), "one, two");
    EXPECT_EQ(Eintraege(o.Pfad()), 1U);
}

TEST(Dateischreiber, what_is_not_ended_leaves_the_old_file) {
    const Zeitordner o;
    schreibe(o.Pfad("x"), "old");
    { Dateischreiber(o.Pfad("x")).schreibe("new"); }
    { Dateischreiber(o.Pfad("y")).schreibe("new"); }
    EXPECT_EQ(Inhalt(o.Pfad("x")), "old");
    EXPECT_EQ(Eintraege(o.Pfad()), 1U);
}

TEST(DateischreiberDeathTest, program_that_is_interrupted_leaves_the_old_file) {
    const Zeitordner o;
    schreibe(o.Pfad("x"), "old");
    const auto Abbruch = [&] {
        Dateischreiber Datei(o.Pfad("x"));
        Datei.schreibe("new");
        std::raise(SIGINT);
    };
    EXPECT_EXIT(Abbruch(), testing::KilledBySignal(SIGINT), "");
    EXPECT_EQ(Inhalt(o.Pfad("x")), "old");
}

TEST(Dateischreiber, folder_in_the_place_of_the_file_is_told_before_anything_is_written) {
    const Zeitordner o;
    const std::string Text = Meldung_von([&] { Dateischreiber(o.Pfad("")); });
    EXPECT_THAT(Text, AllOf(HasSubstr("Cannot write"), HasSubstr("it is a folder")));
}

}  // namespace
}  // namespace varnok
