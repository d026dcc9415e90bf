// Every input kept in fuzz/corpus goes through its reader again: what broke one once must not do so twice.

#include "../fuzz/leserproben.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "satzprobe.h"

namespace varnok {
namespace {

void spiele_ab(const std::string& Ordner, void (*pruefe)(const std::string&)) {
    int Anzahl = 0;
    for (const auto& Datei : std::filesystem::directory_iterator(std::string(VARNOK_TESTORDNER) + "/../fuzz/corpus/" + Ordner)) {
        SCOPED_TRACE(Datei.path().string());
        EXPECT_NO_THROW(pruefe(probe::Inhalt(Datei.path().string())));
        ++Anzahl;
    }
    EXPECT_GT(Anzahl, 0);
}

TEST(Leserproben, records) { spiele_ab("satz", fuzz::pruefe_Satz); }
TEST(Leserproben, findings_about_records) { spiele_ab("satz", fuzz::pruefe_Befunde); }
TEST(Leserproben, names_and_values) { spiele_ab("namen", fuzz::pruefe_Namen); }
TEST(Leserproben, climate_files) { spiele_ab("klima", fuzz::pruefe_Klima); }
TEST(Leserproben, numbers) { spiele_ab("zahl", fuzz::pruefe_Zahl); }
TEST(Leserproben, texts) { spiele_ab("zahl", fuzz::pruefe_Zeichen); }
TEST(Leserproben, simulations) { spiele_ab("simulation", fuzz::pruefe_Simulation); }
TEST(Leserproben, settings) { spiele_ab("einstellungen", fuzz::pruefe_Einstellungen); }

}  // namespace
}  // namespace varnok
