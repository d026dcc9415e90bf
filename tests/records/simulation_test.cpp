#include "records/simulation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <utility>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::AllOf;
using ::testing::HasSubstr;
using namespace std::chrono_literals;

std::string Fehler(const Probeordner& o, const std::string& Name) {
    try {
        lies_Simulation(o.Ordner(), Name);
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
    return {};
}

TEST(Simulation_Datei, four_lines_byte_for_byte) {
    const Probeordner o;
    const Simulationssatz s{"Vines at 20 °C", {"", "Compound A", "Vines", "Löss"}};
    schreibe_Simulation(o.Ordner(), "Vines, A", s);
    EXPECT_EQ(o.Inhalt("Vines, A.vnk"),
              "Vines at 20 \xB0"
              "C\r\nCompound A\r\nVines\r\nL\xF6ss\r\n");
    EXPECT_EQ(lies_Simulation(o.Ordner(), "Vines, A"), s);
    EXPECT_EQ(lies_Simulation(o.Ordner(), "VINES, a"), s);
}

TEST(Simulation_Datei, empty_lines_are_lines_and_what_follows_is_left_alone) {
    const Probeordner o;
    o.lege_an("x.vnk", "\r\n\r\nB\r\nC\r\nmore\r\n");
    EXPECT_EQ(lies_Simulation(o.Ordner(), "x"), (Simulationssatz{"", {"", "", "B", "C"}}));
    o.lege_an("y.vnk", "d\nA\nB\nC");
    EXPECT_EQ(lies_Simulation(o.Ordner(), "y"), (Simulationssatz{"d", {"", "A", "B", "C"}}));
}

TEST(Simulation_Datei, fewer_than_four_lines_are_told_with_file_and_line) {
    const Probeordner o;
    o.lege_an("x.vnk", "description\r\nA\r\nB\r\n");
    EXPECT_EQ(Fehler(o, "x"), "File x.vnk, line 4: the file ends before the name of the scenario record");
    o.lege_an("x.vnk", "");
    EXPECT_EQ(Fehler(o, "x"), "File x.vnk, line 1: the file ends before the description");
}

TEST(Simulation_Datei, fault_tells_its_place) {
    const Probeordner o;
    o.lege_an("x.vnk", "description\r\nA\r\nB\r\n");
    for (const auto& [Name, Zeile] : {std::pair{"x", 4}, std::pair{"none", 0}}) {
        try {
            lies_Simulation(o.Ordner(), Name);
            ADD_FAILURE() << Name;
        } catch (const Laufzeitfehler& f) {
            EXPECT_EQ(f.Ort().Datei, std::string(Name) + ".vnk");
            EXPECT_EQ(f.Ort().Zeile, Zeile);
        }
    }
}

TEST(Simulation_Datei, missing_file_and_folder_are_told) {
    const Probeordner o;
    EXPECT_THAT(Fehler(o, "none"), HasSubstr("File none.vnk is missing"));
    EXPECT_THAT(Fehler(o, "../none"), HasSubstr("is missing"));
    std::filesystem::create_directory(o.Eingabedatei("x.vnk"));
    EXPECT_THAT(Fehler(o, "x"), AllOf(HasSubstr("x.vnk"), HasSubstr("it is a folder")));
}

TEST(Simulation_Datei, line_break_in_a_description_read_back_would_shift_the_names) {
    const Probeordner o;
    o.lege_an("x.vnk", "first\r\nsecond\r\nA\r\nB\r\nC\r\n");
    EXPECT_EQ(lies_Simulation(o.Ordner(), "x").Dateinamen[Wirkstoff], "second");
}

TEST(Simulation_Datei, refuses_what_the_file_cannot_hold_and_keeps_the_old_one) {
    const Probeordner o;
    o.lege_an("x.vnk", "old");
    for (const auto& [s, Grund] :
         {std::pair{Simulationssatz{"first\nsecond", {}}, "the description holds a line end"},
          std::pair{Simulationssatz{"Δ", {}}, "the description holds the character \"Δ\""},
          std::pair{Simulationssatz{"", {"", "Ω", "", ""}}, "the name of the compound record holds the character \"Ω\""}}) {
        try {
            schreibe_Simulation(o.Ordner(), "x", s);
            ADD_FAILURE() << Grund;
        } catch (const Laufzeitfehler& f) {
            EXPECT_THAT(f.what(), HasSubstr(Grund));
        }
        EXPECT_EQ(o.Inhalt("x.vnk"), "old");
    }
    EXPECT_THROW(schreibe_Simulation(o.Ordner(), "../x", {}), Laufzeitfehler);
}

TEST(Simulation_Datei, name_of_other_case_is_no_entry_of_a_selector_but_opens_the_file) {
    const Probeordner o;
    o.lege_an("Compound A.che");
    o.lege_an("x.vnk", "d\r\ncompound a\r\nB\r\nC\r\n");
    const std::string Name = lies_Simulation(o.Ordner(), "x").Dateinamen[Wirkstoff];
    const auto Namen = o.Ordner().Namen(".che");
    EXPECT_EQ(std::count(Namen.begin(), Namen.end(), Name), 0);
    EXPECT_TRUE(o.Ordner().finde(Name, ".che"));
}

class Simulation_neueste : public ::testing::Test {
protected:
    void lege_an(const std::string& Name, std::chrono::nanoseconds Alter) const {
        o.lege_an(Name + ".vnk", "d\r\nA\r\nB\r\nC\r\n");
        std::filesystem::last_write_time(o.Eingabedatei(Name + ".vnk"),
                                         jetzt - std::chrono::duration_cast<std::filesystem::file_time_type::duration>(Alter));
    }

    Probeordner o;
    std::filesystem::file_time_type jetzt = std::filesystem::file_time_type::clock::now() - 1h;
};

TEST_F(Simulation_neueste, none_without_a_summary_file) {
    o.lege_an("x.che");
    EXPECT_EQ(neueste_Simulation(o.Ordner()), std::nullopt);
}

TEST_F(Simulation_neueste, latest_stamp_wins) {
    lege_an("a", 3s);
    lege_an("b", 1s);
    lege_an("c", 2s);
    EXPECT_EQ(neueste_Simulation(o.Ordner()), "b");
}

TEST_F(Simulation_neueste, stamps_are_compared_to_the_last_digit) {
    lege_an("a", 1us);
    lege_an("b", 0us);
    lege_an("c", 2us);
    EXPECT_EQ(neueste_Simulation(o.Ordner()), "b");
}

TEST_F(Simulation_neueste, of_equal_stamps_the_first_of_the_selector_wins) {
    for (const char* Name : {"d", "B", "c", "a2"}) lege_an(Name, 0s);
    EXPECT_EQ(neueste_Simulation(o.Ordner()), "a2");
}

TEST_F(Simulation_neueste, copy_that_nobody_chose_is_the_newest) {
    lege_an("used", 10s);
    schreibe_Simulation(o.Ordner(), "copy of used", lies_Simulation(o.Ordner(), "used"));
    EXPECT_EQ(neueste_Simulation(o.Ordner()), "copy of used");
}

TEST_F(Simulation_neueste, writing_makes_a_simulation_the_newest) {
    lege_an("a", 10s);
    lege_an("b", 5s);
    schreibe_Simulation(o.Ordner(), "a", lies_Simulation(o.Ordner(), "a"));
    EXPECT_EQ(neueste_Simulation(o.Ordner()), "a");
}

TEST_F(Simulation_neueste, stamp_before_1970_counts_as_any_other) {
    lege_an("a", std::chrono::hours(24 * 365 * 80));
    EXPECT_EQ(neueste_Simulation(o.Ordner()), "a");
}

TEST(lies_Simulation, text_that_no_record_holds_and_lines_behind_the_last_are_remarks) {
    const Probeordner o;
    const auto Bemerkungen = [&](const std::string& Bytes) {
        o.lege_an("x.vnk", Bytes);
        std::vector<Bemerkung> b;
        lies_Simulation(o.Ordner(), "x", &b);
        return b.empty() ? std::string() : als_Zeile(b.front());
    };
    EXPECT_EQ(Bemerkungen("d\r\nA\r\nB\r\nC\r\n"), "");
    EXPECT_EQ(Bemerkungen("d\r\nA\r\nB\r\nC\r\n\r\n  \r\n"), "");
    EXPECT_EQ(Bemerkungen("d\r\nA\r\nB\r\nC\r\nD\r\nE\r\n"), "x.vnk:5: remark: nothing reads the lines from here on (D)");
    EXPECT_THAT(Bemerkungen("a\tb\r\nA\r\nB\r\nC\r\n"),
                testing::StartsWith("x.vnk:1: remark: description: it holds a control character"));
    EXPECT_THAT(Bemerkungen("\xEF\xBB\xBF"
                            "d\r\nA\r\nB\r\nC\r\n"),
                testing::StartsWith("x.vnk:1: remark: description: the file begins with the mark of UTF-8"));
}

}  // namespace
}  // namespace varnok
