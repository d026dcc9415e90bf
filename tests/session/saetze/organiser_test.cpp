// The simulation organiser: what it shows, what "Done" hands over, writes and runs, and what the close box leaves alone.

#include "session/saetze/organiserprobe.h"

namespace varnok {
namespace {

using Liste = std::vector<std::string>;

class Organisertest : public Organiserprobe {};

// Opening

TEST_F(Organisertest, opening_shows_the_simulation_and_the_records_of_the_main_screen) {
    oeffne();
    EXPECT_EQ(o().Listen().Listen[Simulation], (Liste{"Probe", "Second", "Torn"}));
    for (const Satzart Art : Eingabearten) {
        EXPECT_EQ(o().Listen().Listen[Art], (Liste{"Probe", "Second"}));
        EXPECT_EQ(gewaehlt(Art), "Probe");
    }
    EXPECT_EQ(gewaehlt(Simulation), "Probe");
    EXPECT_EQ(o().Projektname(), "A trial");
}

TEST_F(Organisertest, opening_reads_the_folder_anew) {
    gestartet();
    schreibe_Saetze("Added meanwhile", "X", 1);
    oeffne();
    EXPECT_EQ(o().Listen().Listen[Wirkstoff], (Liste{"Added meanwhile", "Probe", "Second"}));
    EXPECT_EQ(z().Listen[Wirkstoff], (Liste{"Probe", "Second"}));
}

TEST_F(Organisertest, a_description_that_is_not_saved_survives_the_opening_and_is_shown) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("not saved yet");
    const auto vorher = Dateien();
    oeffne();
    EXPECT_EQ(o().Projektname(), "not saved yet");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Beschreibung, "not saved yet");
    EXPECT_TRUE(z().Saetze[Simulation].Geaendert());
    EXPECT_EQ(Dateien(), vorher);
}

TEST_F(Organisertest, a_description_in_work_is_closed_by_the_opening) {
    gestartet().fuehre_aus<&Beschreibungseingabe::oeffne>();
    oeffne();
    EXPECT_FALSE(s_->zeige<Beschreibungseingabe>().offen());
}

TEST_F(Organisertest, without_a_simulation_on_the_main_screen_the_last_entry_is_shown_with_its_own_description) {
    oeffne();
    loesche(Simulation);
    schliesse();
    ASSERT_EQ(z().Auswahl(Simulation), -1);
    oeffne();
    EXPECT_EQ(gewaehlt(Simulation), "Torn");
    EXPECT_EQ(o().Projektname(), "A torn one");
    EXPECT_EQ(Maske().Beschreibung, "A trial");
}

TEST_F(Organisertest, a_summary_file_that_was_torn_meanwhile_does_not_keep_the_main_screens_combination_from_view) {
    gestartet();
    schreibe("Probe.vnk", "only one line\r\n");
    oeffne();
    EXPECT_EQ(gewaehlt(Simulation), "Probe");
    EXPECT_EQ(gewaehlt(Szenario), "Probe");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), "only one line\r\n");
}

TEST_F(Organisertest, a_field_that_refuses_its_value_keeps_the_dialog_closed) {
    gestartet();
    s_->fuehre_aus<&Feldeingabe::betrete>(Feld("S_DT50_0"));
    s_->fuehre_aus<&Feldeingabe::aendere>(Feld("S_DT50_0"), "-1");
    Fragen_.erwarte("No valid input!", "The DT50 is invalid. Please correct!");
    EXPECT_FALSE(s_->fuehre_aus<&Organiser::oeffne>());
}

// "Done"

TEST_F(Organisertest, done_without_any_selection_writes_nothing_and_runs_nothing) {
    oeffne();
    const auto vorher = Dateien();
    const auto Zeit = Stempel("Probe.vnk");
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(Stempel("Probe.vnk"), Zeit);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_TRUE(Gesichertes().empty());
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organisertest, done_hands_the_lists_over_as_the_dialog_shows_them) {
    gestartet();
    schreibe_Saetze("Added meanwhile", "X", 1);
    oeffne();
    EXPECT_TRUE(fertig());
    for (const Satzart Art : alle_Arten) EXPECT_EQ(z().Listen[Art], o().Listen().Listen[Art]);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_EQ(z().Namen, (std::array<std::string, 4>{"Probe", "Probe", "Probe", "Probe"}));
}

TEST_F(Organisertest, choosing_a_simulation_shows_its_text_and_names_and_reads_no_record) {
    oeffne();
    waehle(Simulation, "Second");
    EXPECT_EQ(o().Projektname(), "The second one");
    EXPECT_EQ(s_->zeige<Organiser>().gezeigte_Beschreibung(), "The second one");
    for (const Satzart Art : Eingabearten) EXPECT_EQ(gewaehlt(Art), "Second");
    EXPECT_EQ(Maske().Name_Wirkstoff, "Parent P");
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
}

TEST_F(Organisertest, done_reads_the_three_records_of_another_simulation_and_makes_one_run) {
    oeffne();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    waehle(Simulation, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_EQ(Maske().Applikationsrate, "500");
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_EQ(z().gewaehlt(Simulation), "Second");
    EXPECT_EQ(Maske().Beschreibung, "The second one");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_FALSE(z().Saetze[Simulation].Geaendert());
    EXPECT_EQ(Datei("input/Second.vnk"), Zeilen("The second one", "Second", "Second", "Second"));
    EXPECT_GT(Stempel("Second.vnk"), Stempel("Torn.vnk"));  // the one used last
}

TEST_F(Organisertest, another_record_is_saved_in_the_summary_file_and_loaded) {
    oeffne();
    waehle(Szenario, "Second");
    EXPECT_EQ(z().Parameter().Bodendichte, 1.5);  // nothing is read at this point
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("A trial", "Probe", "Probe", "Second"));
    EXPECT_FLOAT_EQ(Maximum(), 0.6666667F);  // 1000 g/ha in 5 cm at a density of 3
    EXPECT_FALSE(z().Simulation_markiert());
}

TEST_F(Organisertest, each_missing_record_holds_the_dialog_with_its_own_message_whatever_the_answer) {
    oeffne();
    const char* Texte[] = {"", "Pesticide record not set. Please select!", "Application record not set. Please select!",
                           "Scenario record not set. Please select!"};
    for (const Satzart Art : Eingabearten) {
        std::array<std::string, 3> Saetze = {"Second", "Second", "Second"};
        Saetze[Art - 1U] = "no such record";
        simulation("Torn", "A torn one", Saetze);
        waehle(Simulation, "Torn");
        EXPECT_EQ(gewaehlt(Art), "");
        const auto vorher = Dateien();
        for (const Knopf Antwort : {Knopf::OK, Knopf::Abbrechen}) {
            Fragen_.erwarte("Record not set", Texte[Art], Antwort);
            EXPECT_FALSE(fertig());
        }
        EXPECT_EQ(Dateien(), vorher);
        EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    }
    waehle(Szenario, "Probe");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Torn.vnk"), Zeilen("A torn one", "Second", "Second", "Probe"));
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organisertest, the_first_of_several_missing_records_is_told) {
    simulation("Torn", "A torn one", {"none", "none", "none"});
    oeffne();
    waehle(Simulation, "Torn");
    Fragen_.erwarte("Record not set", "Pesticide record not set. Please select!");
    EXPECT_FALSE(fertig());
}

TEST_F(Organisertest, a_name_that_differs_in_case_alone_selects_nothing) {
    simulation("Torn", "A torn one", {"SECOND", "Second", "Second"});
    oeffne();
    waehle(Simulation, "Torn");
    EXPECT_EQ(gewaehlt(Wirkstoff), "");
    EXPECT_EQ(gewaehlt(Applikation), "Second");
}

TEST_F(Organisertest, a_simulation_that_cannot_be_read_leaves_the_dialog_as_it_was) {
    schreibe("Torn.vnk", "text\r\nProbe\r\n");
    mache_alt("Torn.vnk");
    oeffne();
    waehle(Simulation, "Second");
    Fragen_.erwarte("Runtime error", "File Torn.vnk, line 3: the file ends before the name of the application pattern record");
    waehle(Simulation, "Torn");
    EXPECT_EQ(gewaehlt(Simulation), "Second");
    EXPECT_EQ(o().Projektname(), "The second one");
    EXPECT_EQ(s_->zeige<Organiser>().gezeigte_Beschreibung(), "The second one");
}

TEST_F(Organisertest, opening_and_done_leave_another_combination_on_the_screen_alone) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, 1);
    ASSERT_EQ(z().gewaehlt(Szenario), "Second");
    const auto vorher = Dateien();
    oeffne();
    EXPECT_EQ(gewaehlt(Szenario), "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_EQ(Dateien(), vorher);
}

TEST_F(Organisertest, another_record_and_what_was_typed_into_it_survive_a_changed_description) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 1);
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    oeffne();
    beschreibe("In other words");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("In other words", "Second", "Probe", "Probe"));
    EXPECT_TRUE(Gesichertes().empty());
}

TEST_F(Organisertest, values_that_done_reads_over_are_in_the_backup_and_nothing_is_asked) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("not saved yet");
    const std::string alt = Datei("input/Probe.che");
    oeffne();
    waehle(Simulation, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.che"), alt);
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_FALSE(z().Saetze[Wirkstoff].Geaendert());
    const auto Gerettet = Gesichertes();
    ASSERT_EQ(Gerettet.size(), 2U);
    Eingabe e;
    Ansicht a;
    Satz_lesen_aus(Gerettet.at("unsaved Probe.che"), "", Wirkstoff, e, a);
    EXPECT_NEAR(e.Parameter.k_SFO[0][0], 0.0577622650, 1e-9);  // ln 2 / 12
    EXPECT_EQ(Gerettet.at("unsaved Probe.vnk"), Zeilen("not saved yet", "Probe", "Probe", "Probe"));
    EXPECT_NE(z().Statuszeile.Text().find("backup/"), std::string::npos);
}

TEST_F(Organisertest, choosing_the_same_entry_again_reads_its_record_again) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const std::string Feldtext = s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0"));
    oeffne();
    waehle(Wirkstoff, "Probe");
    EXPECT_TRUE(fertig());
    EXPECT_NE(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), Feldtext);
    EXPECT_EQ(Gesichertes().count("unsaved Probe.che"), 1U);
}

TEST_F(Organisertest, a_changed_description_alone_is_written_and_shown_and_nothing_is_read) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    oeffne();
    beschreibe("In other words");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("In other words", "Probe", "Probe", "Probe"));
    EXPECT_EQ(Maske().Beschreibung, "In other words");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);  // the picture carries the description
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().vorderes()->Titel.Text.find("A trial"), std::string::npos);
    EXPECT_TRUE(Gesichertes().empty());
}

TEST_F(Organisertest, a_changed_description_clears_the_name_of_the_report) {
    gestartet().fuehre_aus<&Berichtssteuerung::erstelle>();
    s_->fuehre_aus<&Berichtssteuerung::schliesse>();
    ASSERT_FALSE(s_->zeige<Berichtssteuerung>().Ergebnisdatei().empty());
    oeffne();
    beschreibe("In other words");
    EXPECT_TRUE(fertig());
    EXPECT_TRUE(s_->zeige<Berichtssteuerung>().Ergebnisdatei().empty());
}

TEST_F(Organisertest, a_line_break_in_the_description_becomes_a_blank) {
    oeffne();
    beschreibe("two\nlines");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("two lines", "Probe", "Probe", "Probe"));
}

TEST_F(Organisertest, a_summary_file_that_cannot_be_written_leaves_the_main_screen_as_it_was) {
    oeffne();
    const auto vorher = Dateien();
    waehle(Simulation, "Second");
    beschreibe("Δ has no place in the file");
    Fragen_.erwarte_Anfang("Runtime error", "");
    EXPECT_FALSE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_EQ(z().Namen[Simulation], "Probe");
    EXPECT_EQ(Maske().Name_Wirkstoff, "Parent P");
    schliesse();
    EXPECT_EQ(Maske().Beschreibung, "A trial");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organisertest, before_the_start_the_records_are_read_and_nothing_is_run) {
    nur_geladen();
    ASSERT_TRUE(s_->fuehre_aus<&Organiser::oeffne>());
    waehle(Simulation, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), 0);
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), 1);
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organisertest, done_shows_in_the_summary_view_the_studies_of_the_new_input) {
    gestartet().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    oeffne();
    waehle(Szenario, "Second");
    EXPECT_TRUE(fertig());
    EXPECT_TRUE(z().Zusammenfassung_aktiv());
    EXPECT_FLOAT_EQ(Maximum(0), 0.6666667F);
    EXPECT_FLOAT_EQ(Maximum(1), 0.6666667F);
}

// Close box and Esc

TEST_F(Organisertest, closing_hands_nothing_over_and_writes_nothing) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("not saved yet");
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const auto vorher = Dateien();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    oeffne();
    waehle(Simulation, "Second");
    waehle(Wirkstoff, "Probe");
    beschreibe("typed");
    schliesse();
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(Maske().Beschreibung, "not saved yet");
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_TRUE(Gesichertes().empty());
}

TEST_F(Organisertest, what_was_picked_before_closing_does_not_come_up_at_the_next_opening) {
    oeffne();
    waehle(Simulation, "Second");
    schliesse();
    oeffne();
    EXPECT_EQ(gewaehlt(Simulation), "Probe");
    const auto vorher = Dateien();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
}

}  // namespace
}  // namespace varnok
