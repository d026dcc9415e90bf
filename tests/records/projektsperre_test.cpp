#include "records/projektsperre.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <optional>

#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
namespace fs = std::filesystem;

TEST(Projektsperre, tells_the_second_window_of_the_first_and_goes_with_it) {
    const Probeordner o;
    std::optional<Projektsperre> erste(o.Ordner());
    EXPECT_FALSE(erste->von_anderem_gehalten());
    Projektsperre zweite(o.Ordner());
    EXPECT_TRUE(zweite.von_anderem_gehalten());
    erste.reset();
    EXPECT_FALSE(zweite.von_anderem_gehalten());
    // The second one holds the folder now.
    EXPECT_TRUE(Projektsperre(o.Ordner()).von_anderem_gehalten());
}

TEST(Projektsperre, leaves_nothing_behind) {
    const Probeordner o;
    { const Projektsperre s(o.Ordner()); }
    EXPECT_FALSE(fs::exists(o.Pfad() + "/.varnok.lock"));
}

TEST(Projektsperre, of_a_program_that_was_killed_does_not_count) {
    const Probeordner o;
    const pid_t Kind = fork();
    if (Kind == 0) {
        const Projektsperre s(o.Ordner());
        _exit(0);  // no destructor runs
    }
    int Zustand = 0;
    waitpid(Kind, &Zustand, 0);
    ASSERT_TRUE(fs::exists(o.Pfad() + "/.varnok.lock"));
    EXPECT_FALSE(Projektsperre(o.Ordner()).von_anderem_gehalten());
}

TEST(Projektsperre, appears_in_no_list) {
    const Probeordner o;
    const Projektsperre s(o.Ordner());
    EXPECT_TRUE(o.Dateien().empty());
}

// Access rights bind nobody who is root, so the process gives that up first.
[[noreturn]] void ohne_Rechte(const std::string& Pfad) {
    if (geteuid() == 0 && seteuid(65534) != 0) _exit(2);
    _exit(Projektsperre(Projektordner(Pfad)).von_anderem_gehalten() ? 1 : 0);
}

TEST(ProjektsperreDeathTest, a_folder_in_which_nothing_can_be_written_is_nobodys) {
    const Probeordner o;
    fs::permissions(o.Pfad(), fs::perms(0555));
    EXPECT_EXIT(ohne_Rechte(o.Pfad()), ::testing::ExitedWithCode(0), "");
    fs::permissions(o.Pfad(), fs::perms::owner_all);
}

TEST(ProjektsperreDeathTest, nothing_is_asked_of_another_machine_where_nothing_can_be_written) {
    const Probeordner o;
    schreibe(o.Pfad() + "/.varnok.lock", "4711\nvarnok\nlaboratory\n\n\n");
    EXPECT_TRUE(Projektsperre(o.Ordner()).von_anderem_gehalten());
    fs::permissions(o.Pfad(), fs::perms(0555));
    EXPECT_EXIT(ohne_Rechte(o.Pfad()), ::testing::ExitedWithCode(0), "");
    fs::permissions(o.Pfad(), fs::perms::owner_all);
}

}  // namespace
}  // namespace varnok
