// The scenario editor without its window: temperature, climate files, and what a missing file leads to.

#include "session/saetze/szenarioprobe.h"

namespace varnok {
namespace {

TEST_F(Szenarioprobe, another_temperature_alone_starts_no_run_and_shows_the_hint) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen().fuehre_aus<&Szenarioeditor::waehle_Temperatur>(10);
    fertig();
    EXPECT_EQ(p().Szenariotemperatur, 10);
    EXPECT_EQ(Klimatext(s_->Stand().Vorgabe),
              "10 \xC2\xB0"
              "C constant");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_TRUE(s_->Stand().Hinweis());
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
}

TEST_F(Szenarioprobe, a_chosen_climate_file_marks_the_scenario_and_runs) {
    klimadatei("Site A");
    klimadatei("Site B");
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    EXPECT_EQ(Entwurf().Klima, 1);  // none is equal: the search ends at the last entry
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimaszenario>(0);
    fertig();
    EXPECT_EQ(p().Klimamodus, nach_Klimadatei);
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "Site A");
    EXPECT_TRUE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
}

TEST_F(Szenarioprobe, a_preselected_climate_file_is_stored_with_the_variable_mode_only_and_marks_nothing) {
    klimadatei("Site A");
    gestartet();
    offen();
    fertig();
    EXPECT_EQ(Klimatext(s_->Stand().Vorgabe),
              "20 \xC2\xB0"
              "C constant");
    offen().fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "Site A");
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_TRUE(s_->Stand().Hinweis());
}

TEST_F(Szenarioprobe, without_a_climate_file_the_variable_mode_cannot_be_chosen) {
    offen();
    EXPECT_FALSE(s_->zeige<Szenarioeditor>().darf_variabel());
    klimadatei("Site A");
    offen();
    EXPECT_TRUE(s_->zeige<Szenarioeditor>().darf_variabel());
}

TEST_F(Szenarioprobe, a_missing_climate_file_asks_for_the_editor_once_and_done_runs_anew) {
    Parameter_.Klimamodus = nach_Klimadatei;
    Felder_.Klimaszenario = "gone";
    schreibe_Probe();
    klimadatei("Site A");
    Fragen_.erwarte_Anfang("Data file missing", "");
    gestartet();
    EXPECT_TRUE(s_->zeige<Laufsteuerung>().Klimadatei_fehlt());
    EXPECT_TRUE(s_->Stand().abgedeckt());
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen();
    EXPECT_FALSE(s_->zeige<Laufsteuerung>().Klimadatei_fehlt());
    abgebrochen();
    EXPECT_TRUE(s_->Stand().abgedeckt());
    offen().fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(konstante_Temperatur);
    fertig();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, mode_and_temperature_together_still_start_no_run) {
    klimadatei("Site A");
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Temperatur>(7);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    fertig();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_TRUE(s_->Stand().Hinweis());
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(s_->Stand().Hinweis());
}

// Under variable climate no day has the scenario's temperature.
TEST_F(Szenarioprobe, the_temperature_of_a_variable_climate_is_kept_and_makes_nothing_stale) {
    klimadatei("Site A");
    Parameter_.Klimamodus = nach_Klimadatei;
    Felder_.Klimaszenario = "Site A";
    schreibe_Probe();
    gestartet();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(konstante_Temperatur);
    s.fuehre_aus<&Szenarioeditor::waehle_Temperatur>(7);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    fertig();
    EXPECT_EQ(p().Szenariotemperatur, 7);
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "Site A");
    EXPECT_FALSE(s_->Stand().Hinweis());
}

// All six studies of the summary are calculated with the new temperature.
TEST_F(Szenarioprobe, the_next_run_in_the_summary_uses_the_new_temperature_for_every_study) {
    Parameter_.Q10 = fuer_alle(2.0);
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    offen().fuehre_aus<&Szenarioeditor::waehle_Temperatur>(0);
    fertig();
    EXPECT_FALSE(s_->Stand().gueltig(0));
    EXPECT_FALSE(s_->Stand().gueltig(1));
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_TRUE(s_->Stand().gueltig(0));
    EXPECT_TRUE(s_->Stand().gueltig(1));
}

TEST_F(Szenarioprobe, the_same_climate_file_chosen_again_changes_nothing) {
    klimadatei("Site A");
    klimadatei("Site B");
    Parameter_.Klimamodus = nach_Klimadatei;
    Felder_.Klimaszenario = "Site A";
    schreibe_Probe();
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    EXPECT_EQ(Entwurf().Klima, 0);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimaszenario>(1);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimaszenario>(0);
    fertig();
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
}

TEST_F(Szenarioprobe, a_climate_file_chosen_and_not_used_changes_nothing) {
    klimadatei("Site A");
    klimadatei("Site B");
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimaszenario>(0);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(konstante_Temperatur);
    fertig();
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(s_->Stand().Hinweis());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_EQ(Klimatext(s_->Stand().Vorgabe),
              "20 \xC2\xB0"
              "C constant");
}

// Files are opened without regard to case, so this one is in use.
TEST_F(Szenarioprobe, a_climate_file_named_in_another_case_is_the_one_selected_and_stays) {
    klimadatei("Site A");
    klimadatei("Site B");
    Parameter_.Klimamodus = nach_Klimadatei;
    Felder_.Klimaszenario = "site a";
    schreibe_Probe();
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen();
    EXPECT_EQ(Entwurf().Klima, 0);
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "site a");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
}

// The editor shows the last file where the one of the record is gone: "Done" takes it, and the results follow.
TEST_F(Szenarioprobe, done_after_a_missing_climate_file_takes_the_file_on_display_and_runs_once) {
    ohne_Klimadatei();
    klimadatei("Site A");
    klimadatei("Site B");
    gestartet_mit_Meldung();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen();
    EXPECT_EQ(Entwurf().Klima, 1);
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "Site B");
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());  // preselected, not chosen
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, cancel_after_a_missing_climate_file_does_not_repeat_the_run) {
    ohne_Klimadatei();
    klimadatei("Site A");
    gestartet_mit_Meldung();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen().fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(konstante_Temperatur);
    abgebrochen();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->zeige<Laufsteuerung>().Klimadatei_fehlt());
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "gone");
}

// Neither a file nor a name to put in its place: no run, and the name is not lost.
TEST_F(Szenarioprobe, done_without_any_climate_file_keeps_the_name_and_runs_nothing) {
    ohne_Klimadatei();
    gestartet_mit_Meldung();
    offen();
    EXPECT_TRUE(s_->zeige<Szenarioeditor>().darf_variabel());
    EXPECT_EQ(Entwurf().Klima, -1);
    s_->fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(konstante_Temperatur);
    EXPECT_TRUE(s_->zeige<Szenarioeditor>().darf_variabel());  // back to what the record says
    s_->fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Klimaszenario, "gone");
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, a_run_of_the_editor_that_fails_again_does_not_open_it_again) {
    ohne_Klimadatei();
    klimadatei("Site A");
    gestartet_mit_Meldung();
    offen();
    std::filesystem::remove(Wurzel_ / "input/Site A.cli");
    Fragen_.erwarte("Data file missing", "Cannot load climate data file. Please correct!");
    fertig();
    EXPECT_FALSE(s_->zeige<Laufsteuerung>().Klimadatei_fehlt());
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

// The field is still in work after its Enter key; opening the editor must not run its dose a second time.
TEST_F(Szenarioprobe, a_field_in_work_is_not_told_twice_of_the_missing_file) {
    ohne_Klimadatei();
    gestartet_mit_Meldung();
    offen();
    abgebrochen();
    const int f = Feld("Applikationsrate");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "700");
    Fragen_.erwarte("Data file missing", "Cannot load climate data file. Please correct!");
    s_->fuehre_aus<&Feldeingabe::bestaetige>(f);
    EXPECT_TRUE(s_->zeige<Laufsteuerung>().Klimadatei_fehlt());
    offen();
    abgebrochen();
}

TEST_F(Szenarioprobe, an_invalid_field_keeps_the_editor_closed) {
    gestartet();
    const int f = Feld("S_Q10_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "0");
    Fragen_.erwarte_Anfang("No valid input!", "");
    EXPECT_FALSE(s_->fuehre_aus<&Szenarioeditor::oeffne>());
    EXPECT_EQ(s_->zeige<Feldeingabe>().aktives_Feld(), f);
}

}  // namespace
}  // namespace varnok
