#include "records/sicherung.h"

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
    std::string sichere_etwas(const std::string& Bytes = "x") { return sichere(Ort_.Ordner(), Uhr_, {{"Probe.che", Bytes}}); }
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

TEST_F(Sicherung, that_cannot_be_made_is_a_fault) {
    schreibe(Ort_.Pfad() + "/backup", "a file in the way");
    EXPECT_THROW(sichere_etwas(), Laufzeitfehler);
}

}  // namespace
}  // namespace varnok
