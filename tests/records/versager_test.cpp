// Runs in a process of its own with a disk that fails.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/sicherung.h"
#include "satzprobe.h"
#include "support/versager.h"

namespace varnok {
namespace {

using namespace probe;
namespace fs = std::filesystem;

class Versagende_Platte : public ::testing::Test {
protected:
    void SetUp() override {
        if (!Versager::geladen()) GTEST_SKIP() << "needs the library of tests/versager, see the test of that name";
    }
    // A file and, where it is a failure, its text.
    static std::string ersetze(const std::string& Pfad) {
        try {
            schreibe_Datei(Pfad, "new");
            return {};
        } catch (const Laufzeitfehler& f) {
            return f.what();
        }
    }
    Probeordner o_;
};

TEST_F(Versagende_Platte, failed_flush_is_told_and_the_old_file_stays) {
    schreibe(o_.Pfad() + "/x.che", "old");
    {
        const Versager Platte(1, 0);
        EXPECT_THAT(ersetze(o_.Pfad() + "/x.che"), ::testing::HasSubstr("quota"));
    }
    EXPECT_EQ(Inhalt(o_.Pfad() + "/x.che"), "old");
    EXPECT_EQ(ersetze(o_.Pfad() + "/x.che"), "");
    EXPECT_EQ(std::distance(fs::directory_iterator(o_.Pfad()), fs::directory_iterator{}), 2) << "the file and input/";
}

TEST_F(Versagende_Platte, failed_write_is_told_and_the_old_file_stays) {
    schreibe(o_.Pfad() + "/x.che", "old");
    {
        const Versager Platte(0, 1);
        EXPECT_THAT(ersetze(o_.Pfad() + "/x.che"), ::testing::HasSubstr("No space left"));
    }
    EXPECT_EQ(Inhalt(o_.Pfad() + "/x.che"), "old");
}

// Whatever fails: what was told as written is written, and nothing else has changed.
TEST_F(Versagende_Platte, every_nth_flush_and_write_is_told_or_done) {
    for (int n = 2; n <= 7; ++n) {
        const Versager Platte(n, n + 1);
        std::string steht = "old";
        schreibe(o_.Pfad() + "/y", steht);
        for (int i = 0; i < 40; ++i) {
            const std::string neu = std::to_string(i);
            try {
                schreibe_Datei(o_.Pfad() + "/y", neu);
                steht = neu;
            } catch (const Laufzeitfehler&) {
                static_cast<void>(n);
            }
            ASSERT_EQ(Inhalt(o_.Pfad() + "/y"), steht) << n << ", " << i;
        }
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(o_.Pfad()), fs::directory_iterator{}), 2);
}

TEST_F(Versagende_Platte, backup_that_failed_half_way_leaves_no_folder) {
    const Systemuhr Uhr;
    {
        const Versager Platte(2, 0);
        EXPECT_THROW(sichere(o_.Ordner(), Uhr, {{"a.che", "1"}, {"b.che", "2"}}), Laufzeitfehler);
    }
    EXPECT_FALSE(fs::exists(o_.Pfad() + "/backup"));
    EXPECT_NE(sichere(o_.Ordner(), Uhr, {{"a.che", "1"}, {"b.che", "2"}}), "");
}

}  // namespace
}  // namespace varnok
