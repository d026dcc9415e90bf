#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <fstream>
#include <ostream>
#include <streambuf>

#include "batch/probeprojekt.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct Ausgaben : testing::Test {
    Probeprojekt Projekt;
    Ausgaben() { Projekt.schreibe("case"); }
    std::string im_Projekt(const std::string& Name) const { return Projekt.Pfad() + "/" + Name; }
};

TEST_F(Ausgaben, files_hold_what_standard_output_would) {
    const std::string JSON = Projekt.daneben("r.json"), CSV = Projekt.daneben("r.csv");
    const auto r = rufe({"--json", JSON, "--csv", CSV, Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_EQ(r.aus, "");
    EXPECT_EQ(Inhalt(JSON), rufe({"--json", "-", Projekt.Pfad()}).aus);
    EXPECT_EQ(Inhalt(CSV), rufe({"--csv", "-", Projekt.Pfad()}).aus);
}

TEST_F(Ausgaben, one_on_standard_output_and_the_other_in_a_file) {
    const auto r = rufe({"--json", "-", "--csv", Projekt.daneben("r.csv"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.JSON()["simulations"].size(), 1U);
    EXPECT_THAT(Inhalt(Projekt.daneben("r.csv")), testing::StartsWith("simulation,study,"));
}

TEST_F(Ausgaben, old_file_is_replaced_whole) {
    fs::create_directories(Projekt.daneben("output"));
    const std::string JSON = Projekt.daneben("output/r.json");
    std::ofstream(JSON) << std::string(1'000'000, 'x');
    EXPECT_EQ(rufe({"--json", JSON, Projekt.Pfad()}).Status, 0);
    EXPECT_THAT(Inhalt(JSON), Not(HasSubstr("x}")));
    EXPECT_TRUE(nlohmann::json::accept(Inhalt(JSON)));
}

TEST_F(Ausgaben, missing_folder_is_found_before_the_calculation) {
    for (const char* Option : {"--json", "--csv"}) {
        // The simulation could not be calculated: had it been tried, standard error would tell.
        Projekt.schreibe_Bytes("case.vnk", "");
        const auto r = rufe({Option, Projekt.daneben("no/such/file"), Projekt.Pfad()});
        EXPECT_EQ(r.Status, 2);
        EXPECT_THAT(r.fehler, HasSubstr(Option));
        EXPECT_THAT(r.fehler, HasSubstr("no/such"));
        EXPECT_THAT(r.fehler, Not(HasSubstr("case")));
    }
}

TEST_F(Ausgaben, folder_in_a_files_place_is_a_wrong_call) {
    EXPECT_EQ(rufe({"--json", Projekt.Pfad(), Projekt.Pfad()}).Status, 2);
    EXPECT_EQ(rufe({"--csv", Projekt.Pfad(), Projekt.Pfad()}).Status, 2);
}

TEST_F(Ausgaben, file_in_the_series_folders_place_is_a_wrong_call) {
    std::ofstream(Projekt.daneben("days")) << "text";
    const auto r = rufe({"--series", Projekt.daneben("days"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("--series"));
    EXPECT_EQ(Inhalt(Projekt.daneben("days")), "text");
}

TEST_F(Ausgaben, same_file_for_json_and_csv_is_a_wrong_call) {
    EXPECT_EQ(rufe({"--json", Projekt.daneben("r"), "--csv", Projekt.Pfad() + "/../r", Projekt.Pfad()}).Status, 2);
}

TEST_F(Ausgaben, no_output_lands_among_the_input_files) {
    const std::string davor = Inhalt(Projekt.Eingabedatei("case.che"));
    EXPECT_EQ(rufe({"--json", Projekt.Eingabedatei("case.che"), Projekt.Pfad()}).Status, 2);
    EXPECT_EQ(rufe({"--csv", Projekt.Eingabedatei("new.csv"), Projekt.Pfad()}).Status, 2);
    EXPECT_EQ(rufe({"--series", Projekt.Eingabedatei("days"), Projekt.Pfad()}).Status, 2);
    EXPECT_EQ(Inhalt(Projekt.Eingabedatei("case.che")), davor);
    EXPECT_FALSE(fs::exists(Projekt.Eingabedatei("new.csv")));
    EXPECT_FALSE(fs::exists(Projekt.Eingabedatei("days")));
}

// ---- what the project holds is replaced by earlier outputs' successors alone

TEST_F(Ausgaben, no_file_of_the_project_is_replaced) {
    fs::create_directories(im_Projekt("backup/2026-01-01 10-00-00"));
    for (const char* Name : {"VARNOK.ini", "Diagram.txt", "backup/2026-01-01 10-00-00/case.che"}) {
        std::ofstream(im_Projekt(Name)) << "mine";
        for (const char* Option : {"--json", "--csv"}) {
            const auto r = rufe({Option, im_Projekt(Name), Projekt.Pfad()});
            EXPECT_EQ(r.Status, 2);
            EXPECT_THAT(r.fehler, HasSubstr(Name));
        }
        EXPECT_EQ(Inhalt(im_Projekt(Name)), "mine");
    }
}

TEST_F(Ausgaben, neither_the_project_nor_its_backups_are_a_folder_for_them) {
    fs::create_directories(im_Projekt("backup"));
    for (const std::string& Ordner : {Projekt.Pfad(), Projekt.Pfad() + "/.", im_Projekt("backup"), im_Projekt("backup/x")}) {
        EXPECT_EQ(rufe({"--series", Ordner, Projekt.Pfad()}).Status, 2) << Ordner;
    }
    EXPECT_FALSE(fs::exists(im_Projekt("case - study 1.tab")));
}

TEST_F(Ausgaben, link_is_replaced_and_its_target_stays) {
    std::ofstream(im_Projekt("VARNOK.ini")) << "mine";
    fs::create_directories(im_Projekt("output/days"));
    fs::create_symlink(im_Projekt("VARNOK.ini"), im_Projekt("output/r.csv"));
    fs::create_symlink(Projekt.Eingabedatei("case.che"), im_Projekt("output/days/case - study 1.tab"));
    const std::string vorher = Inhalt(Projekt.Eingabedatei("case.che"));
    const auto r = rufe({"--csv", im_Projekt("output/r.csv"), "--series", im_Projekt("output/days"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0) << r.fehler;
    EXPECT_EQ(Inhalt(im_Projekt("VARNOK.ini")), "mine");
    EXPECT_EQ(Inhalt(Projekt.Eingabedatei("case.che")), vorher);
    EXPECT_THAT(Inhalt(im_Projekt("output/r.csv")), testing::StartsWith("simulation,study,"));
    EXPECT_FALSE(fs::is_symlink(im_Projekt("output/days/case - study 1.tab")));
}

TEST_F(Ausgaben, folder_that_is_a_link_to_the_records_is_none_for_outputs) {
    fs::create_directory_symlink(im_Projekt("input"), Projekt.daneben("elsewhere"));
    EXPECT_EQ(rufe({"--series", Projekt.daneben("elsewhere"), Projekt.Pfad()}).Status, 2);
    EXPECT_EQ(rufe({"--csv", Projekt.daneben("elsewhere/case.che"), Projekt.Pfad()}).Status, 2);
}

TEST_F(Ausgaben, no_message_steers_a_terminal_or_looks_like_another) {
    const std::string boese =
        "\x1B]0;title\x07 \xC2\x9B"
        "31m";
    Probe p;
    p.Felder.Studie = {"\x1B]0;title\x07"};
    Projekt.schreibe("bad", p);
    Projekt.ersetze_Zeile("bad.che", 9 + 7, "SFO k (1/d):\t-1E+300\t0\t0");
    const std::string Ordner = Projekt.daneben("a\nvarnok-batch: all is well\x1B[2J");
    fs::create_directories(Ordner + "/case - study 1.tab");
    for (auto Argumente : std::vector<std::vector<std::string>>{{"--simulation", "bad"},
                                                                {"--simulation", "case", "--series", Ordner},
                                                                {"--simulation", boese},
                                                                {"--json", Ordner},
                                                                {"--jobs", boese}}) {
        Argumente.push_back(Projekt.Pfad());
        const auto r = rufe(Argumente);
        EXPECT_NE(r.Status, 0) << r.aus;
        for (const char* Zeichen : {"\x1B", "\x07", "\xC2\x9B", "\nvarnok-batch: all is well"}) {
            EXPECT_EQ((r.fehler + r.aus).find(Zeichen), std::string::npos) << r.fehler;
        }
    }
}

TEST_F(Ausgaben, settings_file_is_never_an_output) {
    const std::string v = Projekt.daneben("v.ini");
    std::string Bytes = "Tooltips:\t0\r\nAppearance:\t0\r\nEU\r\n";
    for (int i = 1; i <= 10; ++i) Bytes += std::to_string(i) + "\r\n";
    Bytes += "Month\r\n";
    for (int i = 1; i <= 12; ++i) Bytes += std::to_string(i) + "\r\n";
    std::ofstream(v, std::ios::binary) << Bytes;
    EXPECT_EQ(rufe({"--settings", v, "--json", v, Projekt.Pfad()}).Status, 2);
    EXPECT_EQ(Inhalt(v), Bytes);
}

TEST_F(Ausgaben, unreadable_settings_file_is_a_wrong_call) {
    std::ofstream(Projekt.daneben("v.ini")) << "no settings";
    for (const std::string& Datei : {Projekt.daneben("v.ini"), Projekt.daneben("missing.ini"), Projekt.Pfad()}) {
        const auto r = rufe({"--settings", Datei, Projekt.Pfad()});
        EXPECT_EQ(r.Status, 2);
        EXPECT_THAT(r.fehler, HasSubstr(Datei));
        EXPECT_EQ(r.aus, "");
    }
}

TEST_F(Ausgaben, full_device_is_an_output_that_cannot_be_written) {
    // A node of its own: a fault of the program must not replace the machine's device by a file.
    const std::string voll = Projekt.daneben("full");
    if (mknod(voll.c_str(), S_IFCHR | 0666, makedev(1, 7)) != 0) GTEST_SKIP() << "needs the right to make a device";
    const auto r = rufe({"--json", voll, "--csv", Projekt.daneben("r.csv"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr(voll));
    EXPECT_TRUE(fs::exists(Projekt.daneben("r.csv"))) << "the other output is written";
}

TEST_F(Ausgaben, series_that_cannot_be_written_give_status_2) {
    fs::create_directories(Projekt.daneben("days/case - study 1.tab"));
    const auto r = rufe({"--series", Projekt.daneben("days"), "--json", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("case - study 1.tab"));
    EXPECT_EQ(r.JSON()["simulations"].size(), 1U) << "the results are written all the same";
}

// A stream that takes nothing, such as a pipe whose reader is gone.
class Verstopft : public std::streambuf {
    int overflow(int) override { return traits_type::eof(); }
};

TEST_F(Ausgaben, standard_output_that_takes_nothing_gives_status_2) {
    Verstopft Puffer;
    std::ostream aus(&Puffer);
    std::ostringstream fehler;
    const std::string Pfad = Projekt.Pfad();
    for (const char* Option : {"--json", "--csv"}) {
        const char* argv[] = {"varnok-batch", Option, "-", Pfad.c_str()};
        aus.clear();
        EXPECT_EQ(varnok_batch(4, argv, aus, fehler, {[] { return false; }}), 2);
        EXPECT_THAT(fehler.str(), HasSubstr("standard output"));
    }
}

TEST_F(Ausgaben, input_files_are_untouched_by_every_output) {
    std::vector<std::pair<fs::path, std::string>> davor;
    std::vector<fs::file_time_type> Zeiten;
    for (const auto& d : fs::directory_iterator(Projekt.Pfad() + "/input")) {
        davor.emplace_back(d.path(), Inhalt(d.path().string()));
        Zeiten.push_back(d.last_write_time());
    }
    ASSERT_EQ(davor.size(), 4U);
    rufe({"--all", "--json", Projekt.daneben("j"), "--csv", Projekt.daneben("c"), "--series", Projekt.daneben("s"),
          Projekt.Pfad()});
    std::size_t Anzahl = 0;
    for ([[maybe_unused]] const auto& d : fs::directory_iterator(Projekt.Pfad() + "/input")) ++Anzahl;
    EXPECT_EQ(Anzahl, davor.size());
    for (std::size_t i = 0; i < davor.size(); ++i) {
        EXPECT_EQ(Inhalt(davor[i].first.string()), davor[i].second);
        EXPECT_EQ(fs::last_write_time(davor[i].first), Zeiten[i]);
    }
}

TEST_F(Ausgaben, table_shows_peak_day_plateau_and_averages_with_the_unit_in_the_head) {
    const auto r = rufe({Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.fehler, "");
    for (const char* Text : {"case", "One application in spring", "total soil (mg/kg)", "pore water (mg/L)", "Maximum", "Day",
                             "Plateau", "TWA 21 d", "TWA 28 d", "1 Field", "Parent", "1.3333"}) {
        EXPECT_THAT(r.aus, HasSubstr(Text));
    }
}

TEST_F(Ausgaben, columns_of_the_table_are_aligned) {
    Probe p;
    p.Felder.Name_Wirkstoff = "Ätzkalk";
    fuege_Studie_an(p, "A much longer name");
    Projekt.schreibe("wide", p);
    std::vector<std::size_t> Enden;
    for (const std::string& z : probe::Zeilen(rufe({Projekt.Pfad()}).aus)) {
        // The last digit of the first number column; "Ä" has two bytes and one place.
        const auto Stelle = z.find("Maximum") != std::string::npos  ? z.find("Maximum") + 7
                            : z.find("1.3333") != std::string::npos ? z.find("1.3333") + 6
                                                                    : 0;
        if (Stelle > 0) Enden.push_back(Stelle - (z.find("Ä") != std::string::npos ? 1 : 0));
    }
    ASSERT_EQ(Enden.size(), 4U);  // two heads, two studies in total soil
    EXPECT_EQ(Enden[0], Enden[1]);
    EXPECT_EQ(Enden[0], Enden[2]);
}

TEST_F(Ausgaben, plateau_that_was_not_calculated_is_a_dash) {
    // The closed series of a parent under SFO in a constant climate gives no plateau for pore water.
    const auto Zeilen = probe::Zeilen(rufe({Projekt.Pfad()}).aus);
    EXPECT_THAT(Zeilen.back(), testing::EndsWith(" -"));
}

TEST_F(Ausgaben, quiet_prints_nothing) {
    const auto r = rufe({"--quiet", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 0);
    EXPECT_EQ(r.aus, "");
    EXPECT_EQ(r.fehler, "");
}

}  // namespace
}  // namespace varnok::batch
