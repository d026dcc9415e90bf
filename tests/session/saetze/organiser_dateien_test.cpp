// Copying, deleting and renaming in the simulation organiser: files, its own lists and those of the main screen before and
// after.

#include "session/saetze/organiserprobe.h"

namespace varnok {
namespace {

using Liste = std::vector<std::string>;

class Organiserdateien : public Organiserprobe {};

// Copy

TEST_F(Organiserdateien, a_copied_record_is_selected_and_counts_as_chosen) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    oeffne();
    auto erwartet = Dateien();
    kopiere(Wirkstoff);
    erwartet["copy of Probe.che"] = erwartet["Probe.che"];
    EXPECT_EQ(Dateien(), erwartet);
    EXPECT_EQ(o().Listen().Listen[Wirkstoff], (Liste{"copy of Probe", "Probe", "Second"}));
    EXPECT_EQ(gewaehlt(Wirkstoff), "copy of Probe");
    EXPECT_EQ(z().Listen[Wirkstoff], (Liste{"Probe", "Second"}));
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("A trial", "copy of Probe", "Probe", "Probe"));
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "copy of Probe");
    EXPECT_NE(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");  // the copy is that of the file, and was read
    EXPECT_EQ(Gesichertes().count("unsaved Probe.che"), 1U);
    EXPECT_FALSE(z().Hinweis());
}

TEST_F(Organiserdateien, a_copied_simulation_is_read_into_the_dialog) {
    oeffne();
    waehle(Simulation, "Second");
    waehle(Wirkstoff, "Probe");
    beschreibe("typed and not saved");
    kopiere(Simulation);
    EXPECT_EQ(gewaehlt(Simulation), "copy of Second");
    EXPECT_EQ(o().Projektname(), "The second one");
    EXPECT_EQ(s_->zeige<Organiser>().gezeigte_Beschreibung(), "The second one");
    EXPECT_EQ(gewaehlt(Wirkstoff), "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(z().gewaehlt(Simulation), "copy of Second");
    EXPECT_EQ(Datei("input/copy of Second.vnk"), Datei("input/Second.vnk"));
}

TEST_F(Organiserdateien, a_copy_stays_on_the_disk_after_closing_and_the_main_screen_does_not_show_it) {
    oeffne();
    kopiere(Szenario);
    kopiere(Simulation);
    schliesse();
    EXPECT_TRUE(gibt_es("input/copy of Probe.sce"));
    EXPECT_TRUE(gibt_es("input/copy of Probe.vnk"));
    EXPECT_EQ(z().Listen[Szenario], (Liste{"Probe", "Second"}));
    EXPECT_EQ(z().Listen[Simulation], (Liste{"Probe", "Second", "Torn"}));
    EXPECT_EQ(Maske().Beschreibung, "A trial");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, a_copy_over_an_existing_file_asks_and_keeps_what_it_replaces) {
    schreibe("copy of Probe.app", "something else");
    oeffne();
    const auto vorher = Dateien();
    const std::string Text = "The record 'copy of Probe.app' already exists. Do you want to replace it?";
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Nein);
    kopiere(Applikation);
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(gewaehlt(Applikation), "Probe");
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Ja);
    kopiere(Applikation);
    EXPECT_EQ(gewaehlt(Applikation), "copy of Probe");
    EXPECT_EQ(o().Listen().Listen[Applikation], (Liste{"copy of Probe", "Probe", "Second"}));
    EXPECT_EQ(Datei("input/copy of Probe.app"), Datei("input/Probe.app"));
    EXPECT_EQ(Gesichertes().at("copy of Probe.app"), "something else");
}

TEST_F(Organiserdateien, a_copy_over_the_record_on_the_screen_leaves_its_values_unread) {
    schreibe_Saetze("copy of Second", "Parent C", 2);
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 0);
    ASSERT_EQ(z().gewaehlt(Wirkstoff), "copy of Second");
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    oeffne();
    waehle(Wirkstoff, "Second");
    Fragen_.erwarte("Replace existing record?", "The record 'copy of Second.che' already exists. Do you want to replace it?",
                    Knopf::Ja);
    kopiere(Wirkstoff);
    EXPECT_EQ(Gesichertes().count("unsaved copy of Second.che"), 1U);
    schliesse();
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_FALSE(z().Saetze[Wirkstoff].Geaendert());
    s_->fuehre_aus<&Satzverwaltung::speichere>();  // writes no file of a record that was not read
    EXPECT_EQ(Datei("input/copy of Second.che"), Datei("input/Second.che"));
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_FALSE(z().abgedeckt());
}

// Delete

TEST_F(Organiserdateien, no_to_the_question_deletes_nothing) {
    oeffne();
    const auto vorher = Dateien();
    loesche(Szenario, Knopf::Nein);
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(gewaehlt(Szenario), "Probe");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Dateien(), vorher);
}

TEST_F(Organiserdateien, the_entry_that_moves_up_after_a_deletion_counts_as_chosen) {
    oeffne();
    auto erwartet = Dateien();
    loesche(Szenario);
    EXPECT_EQ(Gesichertes().at("Probe.sce"), erwartet["Probe.sce"]);
    erwartet.erase("Probe.sce");
    EXPECT_EQ(Dateien(), erwartet);
    EXPECT_EQ(o().Listen().Listen[Szenario], Liste{"Second"});
    EXPECT_EQ(gewaehlt(Szenario), "Second");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_EQ(Datei("input/Probe.vnk"), Zeilen("A trial", "Probe", "Probe", "Second"));
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, deleting_the_last_entry_selects_the_new_last_one) {
    oeffne();
    waehle(Simulation, "Torn");
    loesche(Simulation);
    EXPECT_EQ(gewaehlt(Simulation), "Second");
    EXPECT_EQ(o().Projektname(), "The second one");
}

TEST_F(Organiserdateien, a_neighbour_that_cannot_be_read_takes_nothing_from_the_simulation_deleted) {
    schreibe("Torn.vnk", "text\r\n");
    mache_alt("Torn.vnk");
    oeffne();
    waehle(Simulation, "Second");
    Fragen_.erwarte_Anfang("Delete record", "Do you really want to delete this record?", Knopf::Ja);
    Fragen_.erwarte_Anfang("Runtime error", "File Torn.vnk, line 2");
    tue<&Organiser::loesche>(Simulation);
    EXPECT_EQ(gewaehlt(Simulation), "Torn");
    EXPECT_EQ(o().Projektname(), "");
    for (const Satzart Art : Eingabearten) EXPECT_EQ(gewaehlt(Art), "");
}

TEST_F(Organiserdateien, the_last_record_of_a_kind_cannot_be_deleted) {
    oeffne();
    EXPECT_TRUE(o().darf_loeschen(Wirkstoff));
    loesche(Wirkstoff);
    EXPECT_FALSE(o().darf_loeschen(Wirkstoff));
    kopiere(Wirkstoff);
    EXPECT_TRUE(o().darf_loeschen(Wirkstoff));
}

TEST_F(Organiserdateien, nothing_can_be_copied_or_deleted_without_a_selection) {
    oeffne();
    waehle(Simulation, "Torn");
    EXPECT_FALSE(o().darf_kopieren(Szenario));
    EXPECT_FALSE(o().darf_loeschen(Szenario));
}

TEST_F(Organiserdateien, deleting_the_simulation_of_the_main_screen_loads_its_neighbour_on_done) {
    oeffne();
    const std::string Nachbar = Datei("input/Second.vnk");
    loesche(Simulation);
    EXPECT_EQ(gewaehlt(Simulation), "Second");
    EXPECT_EQ(o().Projektname(), "The second one");
    EXPECT_TRUE(fertig());
    EXPECT_FALSE(gibt_es("input/Probe.vnk"));
    EXPECT_EQ(z().Listen[Simulation], (Liste{"Second", "Torn"}));
    EXPECT_EQ(z().gewaehlt(Simulation), "Second");
    EXPECT_EQ(Datei("input/Second.vnk"), Nachbar);
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, after_deleting_a_record_on_the_screen_and_closing_it_is_selected_no_more) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    oeffne();
    kopiere(Wirkstoff);
    waehle(Wirkstoff, "Probe");
    loesche(Wirkstoff);
    schliesse();
    EXPECT_EQ(z().Listen[Wirkstoff], Liste{"Second"});
    EXPECT_EQ(z().Auswahl(Wirkstoff), -1);
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_EQ(z().Abdeckungswort(), "Record deleted: choose or refresh");
    EXPECT_EQ(Gesichertes().count("unsaved Probe.che"), 1U);
    Fragen_.erwarte("Record not set", "Pesticide record not set. Please select!");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_FALSE(gibt_es("input/Probe.che"));
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 0);
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, after_deleting_the_simulation_and_closing_saving_and_leaving_do_not_bring_it_back) {
    oeffne();
    loesche(Simulation);
    schliesse();
    EXPECT_EQ(z().Listen[Simulation], (Liste{"Second", "Torn"}));
    EXPECT_EQ(z().Auswahl(Simulation), -1);
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_EQ(Maske().Beschreibung, "A trial");
    const auto vorher = Dateien();
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_TRUE(z().beendet());
}

TEST_F(Organiserdateien, deleting_what_the_main_screen_does_not_show_leaves_its_results) {
    oeffne();
    waehle(Wirkstoff, "Second");
    loesche(Wirkstoff);
    schliesse();
    EXPECT_EQ(z().Listen[Wirkstoff], Liste{"Probe"});
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

// Rename

TEST_F(Organiserdateien, a_renamed_record_alone_is_written_into_the_summary_and_nothing_is_read) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    oeffne();
    auto erwartet = Dateien();
    EXPECT_TRUE(benenne_um(Wirkstoff, "Better name"));
    EXPECT_EQ(o().Listen().Listen[Wirkstoff], (Liste{"Better name", "Second"}));
    EXPECT_TRUE(fertig());
    erwartet["Better name.che"] = erwartet["Probe.che"];
    erwartet.erase("Probe.che");
    erwartet["Probe.vnk"] = Zeilen("A trial", "Better name", "Probe", "Probe");
    EXPECT_EQ(Dateien(), erwartet);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Better name");
    EXPECT_EQ(z().Namen[Wirkstoff], "Better name");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_TRUE(Gesichertes().empty());
    EXPECT_FALSE(z().Simulation_markiert());
    s_->fuehre_aus<&Satzverwaltung::speichere>();  // the file is the one that was read: no question, and nothing to be kept
    EXPECT_NE(Datei("input/Better name.che"), erwartet["Better name.che"]);
    EXPECT_TRUE(Gesichertes().empty());
}

// The selector keeps the name of a record whose file is gone. Another record that gets this name is not what the screen shows.
TEST_F(Organiserdateien, a_record_renamed_to_the_name_of_a_missing_one_counts_as_not_read) {
    gestartet();
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    Fragen_.erwarte_Anfang("Runtime error", "File Probe.sce is missing");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    EXPECT_EQ(z().gewaehlt(Szenario), "");
    EXPECT_EQ(z().Namen[Szenario], "Probe");
    oeffne();
    waehle(Szenario, "Second");
    EXPECT_TRUE(benenne_um(Szenario, "Probe"));
    schliesse();
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
    EXPECT_EQ(z().Parameter().Bodendichte, 1.5);
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_EQ(Gesichertes().count("unsaved Probe.sce"), 1U);
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, after_a_rename_and_closing_the_main_screen_has_the_new_name_and_says_that_it_is_not_saved) {
    oeffne();
    const std::string Zusammenfassung = Datei("input/Probe.vnk");
    EXPECT_TRUE(benenne_um(Szenario, "Better name"));
    EXPECT_TRUE(benenne_um(Simulation, "Zebra"));
    schliesse();
    EXPECT_EQ(z().Listen[Szenario], (Liste{"Better name", "Second"}));
    EXPECT_EQ(z().gewaehlt(Szenario), "Better name");
    EXPECT_EQ(z().Listen[Simulation], (Liste{"Second", "Torn", "Zebra"}));
    EXPECT_EQ(z().gewaehlt(Simulation), "Zebra");
    EXPECT_EQ(Datei("input/Zebra.vnk"), Zusammenfassung);
    EXPECT_TRUE(z().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, the_status_line_names_the_simulations_that_a_rename_leaves_behind) {
    oeffne();
    waehle(Wirkstoff, "Second");
    EXPECT_TRUE(benenne_um(Wirkstoff, "Third"));
    EXPECT_EQ(z().Statuszeile.Text(), "Simulations that still name \"Second\": \"Second\", \"Torn\"");
}

TEST_F(Organiserdateien, a_typed_extension_is_not_doubled_and_an_unchanged_name_changes_nothing) {
    oeffne();
    const auto vorher = Dateien();
    EXPECT_TRUE(benenne_um(Wirkstoff, "Probe"));
    EXPECT_TRUE(benenne_um(Wirkstoff, "Probe.che"));
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Dateien(), vorher);
    oeffne();
    EXPECT_TRUE(benenne_um(Wirkstoff, "Better.che"));
    EXPECT_EQ(gewaehlt(Wirkstoff), "Better");
    EXPECT_TRUE(benenne_um(Wirkstoff, "BETTER"));
    EXPECT_EQ(gewaehlt(Wirkstoff), "BETTER");
    EXPECT_FALSE(gibt_es("input/Better.che"));
}

TEST_F(Organiserdateien, a_name_that_is_taken_is_asked_about_with_enter) {
    oeffne();
    const auto vorher = Dateien();
    const std::string Text = "The record ' Second ' already exists. Do you want to replace it?";
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Nein);
    EXPECT_FALSE(benenne_um(Wirkstoff, "Second"));
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(gewaehlt(Wirkstoff), "Probe");
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Ja);
    EXPECT_TRUE(benenne_um(Wirkstoff, "Second"));
    EXPECT_EQ(o().Listen().Listen[Wirkstoff], Liste{"Second"});
    EXPECT_EQ(Datei("input/Second.che"), vorher.at("Probe.che"));
    EXPECT_EQ(Gesichertes().at("Second.che"), vorher.at("Second.che"));
    EXPECT_TRUE(fertig());
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Second");
    EXPECT_EQ(Maske().Name_Wirkstoff, "Parent P");
}

TEST_F(Organiserdateien, a_name_that_is_taken_is_a_fault_when_the_box_is_left) {
    oeffne();
    const auto vorher = Dateien();
    Fragen_.erwarte("Runtime error", "The record \"Second\" already exists. \"Probe\" keeps its name.");
    EXPECT_FALSE(benenne_um(Wirkstoff, "Second", false));
    EXPECT_EQ(Dateien(), vorher);
    EXPECT_EQ(gewaehlt(Wirkstoff), "Probe");
}

TEST_F(Organiserdateien, a_name_that_no_file_can_have_is_refused_before_any_file_is_touched) {
    oeffne();
    const auto vorher = Dateien();
    for (const char* Name : {"", "..", "a/b", "a\\b", "tab\tin it", "Δ"}) {
        Fragen_.erwarte_Anfang("Runtime error", std::string("\"") + Name + "\" cannot be the name of a record: ");
        EXPECT_FALSE(benenne_um(Simulation, Name));
        EXPECT_EQ(Dateien(), vorher);
        EXPECT_EQ(gewaehlt(Simulation), "Probe");
    }
}

TEST_F(Organiserdateien, a_rename_over_the_record_on_the_screen_leaves_its_values_unread) {
    oeffne();
    waehle(Wirkstoff, "Second");
    Fragen_.erwarte("Replace existing record?", "The record ' Probe ' already exists. Do you want to replace it?", Knopf::Ja);
    EXPECT_TRUE(benenne_um(Wirkstoff, "Probe"));
    schliesse();
    EXPECT_EQ(z().Listen[Wirkstoff], Liste{"Probe"});
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Parent P");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, done_without_any_selection_reads_what_the_screen_names_and_has_not_read) {
    oeffne();
    waehle(Wirkstoff, "Second");
    Fragen_.erwarte("Replace existing record?", "The record ' Probe ' already exists. Do you want to replace it?", Knopf::Ja);
    EXPECT_TRUE(benenne_um(Wirkstoff, "Probe"));
    schliesse();
    oeffne();
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Organiserdateien, a_record_of_that_name_on_the_screen_is_read_on_done_after_another_took_its_file) {
    oeffne();
    waehle(Wirkstoff, "Second");
    Fragen_.erwarte("Replace existing record?", "The record ' Probe ' already exists. Do you want to replace it?", Knopf::Ja);
    EXPECT_TRUE(benenne_um(Wirkstoff, "Probe"));
    EXPECT_TRUE(fertig());
    EXPECT_EQ(Maske().Name_Wirkstoff, "Other parent");
}

}  // namespace
}  // namespace varnok
