// What other programs and windows do to the files while the simulation organiser is open.

#include "records/projektsperre.h"
#include "session/saetze/organiserprobe.h"

namespace varnok {
namespace {

using Liste = std::vector<std::string>;

class Organiserfremde : public Organiserprobe {};

TEST_F(Organiserfremde, a_summary_changed_by_another_program_is_replaced_after_a_question_alone) {
    oeffne();
    waehle(Simulation, "Second");
    schreibe("Second.vnk", Zeilen("Somebody else's", "Probe", "Probe", "Probe"));
    const auto vorher = Dateien();
    const std::string Text =
        "The record 'Second.vnk' was changed by another program since it was read. Do you want to replace it?";
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Nein);
    EXPECT_FALSE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Ja);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Second.vnk"), Zeilen("The second one", "Second", "Second", "Second"));
    EXPECT_EQ(Gesichertes().at("Second.vnk"), vorher.at("Second.vnk"));
}

TEST_F(Organiserfremde, a_record_that_another_program_took_away_is_told_and_loses_its_entry) {
    oeffne();
    waehle(Wirkstoff, "Second");
    std::filesystem::remove(Wurzel_ / "input/Second.che");
    const auto vorher = Dateien();
    Fragen_.erwarte_Anfang("Runtime error", "File Second.che is missing in the folder");
    EXPECT_FALSE(fertig());
    EXPECT_EQ(o().Listen().Listen[Wirkstoff], Liste{"Probe"});
    EXPECT_EQ(gewaehlt(Wirkstoff), "");
    EXPECT_EQ(Dateien(), vorher);
    Fragen_.erwarte("Record not set", "Pesticide record not set. Please select!");
    EXPECT_FALSE(fertig());
    waehle(Wirkstoff, "Probe");
    EXPECT_TRUE(fertig());
}

TEST_F(Organiserfremde, a_simulation_that_another_program_took_away_is_not_written_again) {
    oeffne();
    waehle(Simulation, "Second");
    std::filesystem::remove(Wurzel_ / "input/Second.vnk");
    Fragen_.erwarte_Anfang("Runtime error", "File Second.vnk is missing in the folder");
    EXPECT_FALSE(fertig());
    Fragen_.erwarte("Record not set", "Simulation not set. Please select!", Knopf::Abbrechen);
    EXPECT_FALSE(fertig());
    EXPECT_FALSE(gibt_es("input/Second.vnk"));
    waehle(Simulation, "Probe");
    EXPECT_TRUE(fertig());
}

TEST_F(Organiserfremde, a_folder_that_has_lost_all_simulations_lets_the_user_out_and_is_not_written_to) {
    gestartet();
    for (const char* Name : {"Probe.vnk", "Second.vnk", "Torn.vnk"}) std::filesystem::remove(Wurzel_ / "input" / Name);
    oeffne();
    EXPECT_TRUE(o().Listen().Listen[Simulation].empty());
    EXPECT_EQ(gewaehlt(Wirkstoff), "Probe");
    const auto vorher = Dateien();
    waehle(Wirkstoff, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
}

TEST_F(Organiserfremde, a_second_window_on_the_folder_asks_before_done_saves) {
    const Projektordner Ordner(Wurzel_.string());
    Projektsperre anderes_Fenster(Ordner);
    Fragen_.erwarte_Anfang("Project folder in use", "Another window of VARNOK works on this project folder.");
    gestartet();
    oeffne();
    waehle(Simulation, "Second");
    const auto vorher = Dateien();
    const std::string Text = "Another window of VARNOK works on this project folder. Do you want to save all the same?";
    Fragen_.erwarte("Save changes?", Text, Knopf::Nein);
    EXPECT_FALSE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    Fragen_.erwarte("Save changes?", Text, Knopf::Ja);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
}

}  // namespace
}  // namespace varnok
