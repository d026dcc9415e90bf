// The scenario editor out of the simulation organiser.

#include "session/saetze/organiserprobe.h"

namespace varnok {
namespace {

class Organiserszenario : public Organiserprobe {};

TEST_F(Organiserszenario, a_scenario_can_be_edited_while_it_is_the_one_on_the_screen) {
    oeffne();
    EXPECT_EQ(o().Einwand_gegen_Bearbeiten(), "");
    waehle(Szenario, "Second");
    EXPECT_EQ(o().Einwand_gegen_Bearbeiten(),
              "The scenario \"Second\" is not loaded: leave with \"Done\", then it can be edited on the main screen.");
    waehle(Simulation, "Torn");
    EXPECT_EQ(o().Einwand_gegen_Bearbeiten(), "No scenario is selected.");
    waehle(Szenario, "Probe");
    EXPECT_EQ(o().Einwand_gegen_Bearbeiten(), "");
    ASSERT_TRUE(benenne_um(Szenario, "Renamed"));
    EXPECT_EQ(o().Einwand_gegen_Bearbeiten(), "");
    loesche(Szenario);
    EXPECT_NE(o().Einwand_gegen_Bearbeiten(), "");
}

TEST_F(Organiserszenario, an_edited_scenario_keeps_its_values_when_the_other_records_are_read) {
    oeffne();
    bearbeite([](Sitzung& s) { s.fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodendichte, "6"); });
    waehle(Wirkstoff, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_EQ(z().Parameter().Bodendichte, 6);
    EXPECT_TRUE(z().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(Gesichertes().count("unsaved Probe.sce"), 0U);
}

// The file on the disk differs from the screen, so that a reading shows.
TEST_F(Organiserszenario, a_scenario_that_the_editor_left_as_it_was_is_read_where_it_was_chosen) {
    for (const bool mit_Done : {true, false}) {
        schreibe_Probe();
        s_.reset();
        oeffne();
        Eingabe andere = Felder_;
        andere.Parameter.Bodendichte = 6;
        Satz_schreiben(Projektordner(Wurzel_.string()), "Probe", Szenario, andere, Sicht_);
        bearbeite(
            [&](Sitzung& s) { s.fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodendichte, mit_Done ? "1.5" : "3"); },
            mit_Done);
        waehle(Szenario, "Probe");
        EXPECT_TRUE(fertig());
        EXPECT_EQ(z().Parameter().Bodendichte, 6);
    }
}

TEST_F(Organiserszenario, an_edited_scenario_is_in_the_backup_where_another_one_is_read) {
    oeffne();
    bearbeite([](Sitzung& s) { s.fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodendichte, "6"); });
    waehle(Szenario, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_EQ(Gesichertes().count("unsaved Probe.sce"), 1U);
}

TEST_F(Organiserszenario, a_name_picked_in_the_editor_is_followed_and_saved_and_no_record_is_read) {
    oeffne();
    bearbeite([](Sitzung& s) { s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(1); });
    EXPECT_EQ(gewaehlt(Szenario), "Second");
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("A trial", "Probe", "Probe", "Second"));
    EXPECT_EQ(z().Parameter().Bodendichte, 1.5);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_FALSE(z().Simulation_markiert());
}

TEST_F(Organiserszenario, the_editor_does_not_take_back_what_was_picked_before_it) {
    oeffne();
    waehle(Wirkstoff, "Second");
    bearbeite([](Sitzung&) {}, false);
    EXPECT_EQ(gewaehlt(Wirkstoff), "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("A trial", "Second", "Probe", "Probe"));
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
}

}  // namespace
}  // namespace varnok
