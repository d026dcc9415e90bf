// Making, copying, deleting and renaming records and simulations: files on disk, lists and names before and after.

#include <chrono>
#include <fstream>

#include "records/dateien.h"
#include "records/simulation.h"
#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

TEST_F(Befehlsprobe, a_new_record_takes_the_values_of_its_template_the_first_number_and_one_run) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Szenario);
    EXPECT_EQ(z().gewaehlt(Szenario), "new scenario1");
    EXPECT_EQ(Datei(in("new scenario1", Szenario)), Datei(in("Second", Szenario)));
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_TRUE(z().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(z().abgedeckt());
    erwarte_Gleichstand(Szenario);
}

TEST_F(Befehlsprobe, each_kind_has_its_base_name) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Applikation);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "new compound1");
    EXPECT_EQ(z().gewaehlt(Applikation), "new application pattern1");
    erwarte_Gleichstand(Wirkstoff);
    erwarte_Gleichstand(Applikation);
}

TEST_F(Befehlsprobe, a_second_new_record_gets_the_number_2) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "new compound2");
    EXPECT_TRUE(gibt_es("input/new compound1.che"));
}

TEST_F(Befehlsprobe, a_missing_template_is_named_and_nothing_changes) {
    std::filesystem::remove(Wurzel_ / "input/Do not delete this file.scn");
    gestartet();
    const auto vorher = z().Listen;
    Fragen_.erwarte("Runtime error", "The template \"do not delete this file.scn\" is missing in the folder \"" +
                                         (Wurzel_ / "input").string() + "\"");
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Szenario);
    EXPECT_EQ(z().Listen, vorher);
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, unsaved_values_are_in_backup_before_a_new_record_replaces_them) {
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.che"});
    EXPECT_FALSE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_NE(z().Statuszeile.Text().find("backup/"), std::string::npos);
}

TEST_F(Befehlsprobe, a_copy_has_the_file_of_the_old_name_and_the_values_of_the_screen_stay) {
    gestartet();
    tippe("S_DT50_0", "12");
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
    EXPECT_EQ(Datei("input/copy of Probe.che"), Datei("input/Probe.che"));
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "copy of Probe");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_TRUE(z().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_FALSE(z().abgedeckt());
    erwarte_Gleichstand(Wirkstoff);
}

TEST_F(Befehlsprobe, a_copy_of_a_simulation_marks_nothing_and_is_the_newest) {
    gestartet().fuehre_aus<&Satzverwaltung::kopiere>(Simulation);
    EXPECT_EQ(z().gewaehlt(Simulation), "copy of Probe");
    EXPECT_FALSE(z().Saetze[Simulation].Geaendert());
    EXPECT_EQ(neueste_Simulation(Projektordner(Wurzel_.string())), "copy of Probe");
    erwarte_Gleichstand(Simulation);
}

TEST_F(Befehlsprobe, a_copy_over_an_existing_file_with_yes_adds_no_second_entry_and_keeps_the_old_file_in_backup) {
    schreibe_Datei((Wurzel_ / "input/copy of Probe.che").string(), "old");
    gestartet();
    const std::size_t Zahl = z().Listen[Wirkstoff].size();
    Fragen_.erwarte("Replace existing record?", "The record 'copy of Probe.che' already exists. Do you want to replace it?",
                    Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
    EXPECT_EQ(z().Listen[Wirkstoff].size(), Zahl);
    EXPECT_EQ(Datei("input/copy of Probe.che"), Datei("input/Probe.che"));
    EXPECT_EQ(gesichert(), Namen{"copy of Probe.che"});
}

TEST_F(Befehlsprobe, a_copy_over_an_existing_file_with_no_changes_nothing) {
    schreibe_Datei((Wurzel_ / "input/copy of Probe.che").string(), "old");
    gestartet();
    Fragen_.erwarte("Replace existing record?", "The record 'copy of Probe.che' already exists. Do you want to replace it?",
                    Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_EQ(Datei("input/copy of Probe.che"), "old");
    EXPECT_FALSE(z().Saetze[Simulation].Geaendert());
}

TEST_F(Befehlsprobe, no_to_the_delete_question_changes_nothing) {
    gestartet();
    bejahe_Loeschen(Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_TRUE(gibt_es("input/Probe.sce"));
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, deleting_the_entry_before_the_last_one_selects_the_one_that_moved_up) {
    gestartet();
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);  // "Probe" of "Probe", "Second"
    EXPECT_FALSE(gibt_es("input/Probe.sce"));
    EXPECT_EQ(z().gewaehlt(Szenario), "Second");
    EXPECT_EQ(gesichert(), Namen{"Probe.sce"});
    erwarte_Gleichstand(Szenario);
}

TEST_F(Befehlsprobe, deleting_the_last_entry_selects_the_new_last_one) {
    gestartet();
    waehle(Szenario, "Second");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
}

TEST_F(Befehlsprobe, the_last_record_of_a_kind_can_never_be_deleted) {
    gestartet();
    EXPECT_TRUE(s_->zeige<Satzverwaltung>().darf_loeschen(Szenario));
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_FALSE(s_->zeige<Satzverwaltung>().darf_loeschen(Szenario));
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    EXPECT_TRUE(s_->zeige<Satzverwaltung>().darf_loeschen(Szenario));
}

TEST_F(Befehlsprobe, after_a_deletion_the_neighbour_is_not_read_until_refresh) {
    gestartet();
    tippe("S_DT50_0", "12");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_EQ(z().Abdeckungswort(), "Record deleted: choose or refresh");
    EXPECT_EQ(z().Parameter().Bodendichte, 1.5);
    tippe("S_DT50_0", "13");
    EXPECT_TRUE(z().abgedeckt());
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, save_never_writes_deleted_values_over_the_neighbour) {
    gestartet();
    const std::string Nachbar = Datei("input/Second.sce");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Second.sce"), Nachbar);
}

TEST_F(Befehlsprobe, after_deleting_a_simulation_exit_only_renews_the_stamp_of_its_neighbour) {
    gestartet();
    const std::string Nachbar = Datei("input/Second.vnk");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Simulation);
    EXPECT_TRUE(z().abgedeckt());
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Datei("input/Second.vnk"), Nachbar);
    const auto Alter =
        std::filesystem::file_time_type::clock::now() - std::filesystem::last_write_time(Wurzel_ / "input/Second.vnk");
    EXPECT_LT(Alter, std::chrono::minutes(10));
}

TEST_F(Befehlsprobe, after_deleting_a_simulation_refresh_loads_its_neighbour) {
    gestartet();
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Simulation);
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(z().Vorgabe.Beschreibung, "second");
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, a_record_gets_another_name_and_nothing_is_read) {
    gestartet();
    tippe("S_DT50_0", "12");
    const std::string Inhalt = Datei("input/Probe.che");
    EXPECT_TRUE(benenne_um(*s_, Wirkstoff, "Renamed", true));
    EXPECT_FALSE(gibt_es("input/Probe.che"));
    EXPECT_EQ(Datei("input/Renamed.che"), Inhalt);
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_TRUE(z().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_FALSE(z().abgedeckt());
    erwarte_Gleichstand(Wirkstoff);
}

TEST_F(Befehlsprobe, a_typed_extension_of_the_kind_is_not_added_twice_and_another_one_stays) {
    gestartet();
    benenne_um(*s_, Wirkstoff, "abc.che", true);
    EXPECT_TRUE(gibt_es("input/abc.che"));
    benenne_um(*s_, Wirkstoff, "abc.app", true);
    EXPECT_TRUE(gibt_es("input/abc.app.che"));
}

TEST_F(Befehlsprobe, a_name_of_three_characters_is_taken_as_it_stands) {
    gestartet();
    benenne_um(*s_, Wirkstoff, "che", true);
    EXPECT_TRUE(gibt_es("input/che.che"));
}

TEST_F(Befehlsprobe, an_unchanged_name_asks_nothing_and_a_change_of_case_only_renames) {
    gestartet();
    EXPECT_TRUE(benenne_um(*s_, Wirkstoff, "Probe", true));
    EXPECT_FALSE(z().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(benenne_um(*s_, Wirkstoff, "PROBE", true));
    EXPECT_TRUE(gibt_es("input/PROBE.che"));
    EXPECT_FALSE(gibt_es("input/Probe.che"));
    erwarte_Gleichstand(Wirkstoff);
}

TEST_F(Befehlsprobe, a_taken_name_is_replaced_after_a_yes_and_kept_in_backup) {
    gestartet();
    const std::string Inhalt = Datei("input/Probe.sce");
    Fragen_.erwarte("Replace existing record?", "The record ' Second ' already exists. Do you want to replace it?", Knopf::Ja);
    EXPECT_TRUE(benenne_um(*s_, Szenario, "Second", true));
    EXPECT_EQ(Datei("input/Second.sce"), Inhalt);
    EXPECT_EQ(z().Listen[Szenario], Namen{"Second"});
    EXPECT_EQ(gesichert(), Namen{"Second.sce"});
}

TEST_F(Befehlsprobe, a_name_that_differs_only_in_case_from_another_record_is_told_as_existing) {
    gestartet();
    Fragen_.erwarte("Replace existing record?", "The record ' SECOND ' already exists. Do you want to replace it?", Knopf::Nein);
    EXPECT_FALSE(benenne_um(*s_, Szenario, "SECOND", true));
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
    Fragen_.erwarte("Replace existing record?", "The record ' SECOND ' already exists. Do you want to replace it?", Knopf::Ja);
    EXPECT_TRUE(benenne_um(*s_, Szenario, "SECOND", true));
    EXPECT_EQ(z().Listen[Szenario], Namen{"SECOND"});
    erwarte_Gleichstand(Szenario);
}

TEST_F(Befehlsprobe, a_taken_name_is_a_fault_where_the_box_was_only_left) {
    gestartet();
    Fragen_.erwarte("Runtime error", "The record \"Second\" already exists. \"Probe\" keeps its name.");
    EXPECT_FALSE(benenne_um(*s_, Szenario, "Second", false));
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
    EXPECT_TRUE(gibt_es("input/Probe.sce"));
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, a_rename_names_the_simulations_that_lose_their_record) {
    schreibe_Simulation(Projektordner(Wurzel_.string()), "Third", {"", {"", "Probe", "Second", "Second"}});
    std::filesystem::last_write_time(Wurzel_ / "input/Third.vnk", std::filesystem::last_write_time(Wurzel_ / "input/Second.vnk"));
    gestartet();
    benenne_um(*s_, Wirkstoff, "Renamed", true);
    EXPECT_EQ(z().Statuszeile.Text(), "Simulations that still name \"Probe\": \"Third\"");
}

struct Unname {
    const char* Fall;
    std::string Name;
};
class Unnamen : public Befehlsprobe, public ::testing::WithParamInterface<Unname> {};

TEST_P(Unnamen, are_refused_before_a_file_is_touched) {
    gestartet();
    const Namen vorher = auf_Platte(Wirkstoff);
    Fragen_.erwarte_Anfang("Runtime error", "\"" + GetParam().Name + "\" cannot be the name of a record: ");
    EXPECT_FALSE(benenne_um(*s_, Wirkstoff, GetParam().Name, true));
    EXPECT_EQ(auf_Platte(Wirkstoff), vorher);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_FALSE(z().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(gesichert().empty());
}

INSTANTIATE_TEST_SUITE_P(Names, Unnamen,
                         ::testing::Values(Unname{"empty", ""}, Unname{"dots", ".."}, Unname{"slash", "a/b"},
                                           Unname{"backslash", "a\\b"}, Unname{"control", "a\nb"},
                                           Unname{"long", std::string(300, 'x')}, Unname{"greek", "\xCE\xB1"}),
                         [](const auto& i) { return std::string(i.param.Fall); });

TEST_F(Befehlsprobe, choosing_with_yes_stores_the_values_left_under_the_name_chosen_and_keeps_that_file_in_backup) {
    gestartet();
    tippe("S_DT50_0", "12");
    const std::string alt = Datei("input/Second.che");
    Fragen_.erwarte("Save changes?",
                    "You modified pesticide input data!  Do you want to save the changes in your data base?\n"
                    "Yes writes these values to 'Second'; what 'Second' holds now goes to backup.",
                    Knopf::Ja);
    waehle(Wirkstoff, "Second");
    EXPECT_NE(Datei("input/Second.che"), alt);
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_EQ(gesichert(), Namen{"Second.che"});
}

TEST_F(Befehlsprobe, choosing_with_no_reads_the_record_and_keeps_the_dropped_values_in_backup) {
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte("Save changes?",
                    "You modified pesticide input data!  Do you want to save the changes in your data base?\n"
                    "Yes writes these values to 'Second'; what 'Second' holds now goes to backup.",
                    Knopf::Nein);
    waehle(Wirkstoff, "Second");
    EXPECT_NE(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.che"});
}

TEST_F(Befehlsprobe, loading_a_simulation_asks_nothing_and_keeps_all_dropped_values_in_one_backup) {
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Listenwahl::waehle_Tag>(5);
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_EQ(gesichert(), (Namen{"unsaved Probe.app", "unsaved Probe.che"}));
    const auto Ordner = std::filesystem::directory_iterator(Wurzel_ / "backup");
    EXPECT_EQ(std::distance(Ordner, std::filesystem::directory_iterator()), 1);
}

TEST_F(Befehlsprobe, program_defaults_keep_the_files_they_replace_and_unsaved_values) {
    schreibe_Datei((Wurzel_ / "input/Programcheck.che").string(), "mine");
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Default settings", "The default parameters");
    s_->fuehre_aus<&Satzverwaltung::lade_Voreinstellungen>();
    EXPECT_EQ(gesichert(), (Namen{"Programcheck.che", "unsaved Probe.che"}));
}

TEST_F(Befehlsprobe, a_backup_that_cannot_be_written_is_asked_about_and_no_stops_the_command_before_anything_is_touched) {
    schreibe_Datei((Wurzel_ / "backup").string(), "a file in the way");
    gestartet();
    bejahe_Loeschen();
    Fragen_.erwarte_Anfang("Runtime error", "Cannot make the folder", Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_TRUE(gibt_es("input/Probe.sce"));
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, a_record_changed_by_another_program_is_not_saved_over_without_a_question) {
    gestartet();
    tippe("S_DT50_0", "12");
    schreibe_Datei((Wurzel_ / "input/Probe.che").string(), "theirs");
    const std::string Text =
        "The record 'Probe.che' was changed by another program since it was read. Do you want to replace it?";
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.che"), "theirs");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    Fragen_.erwarte("Replace existing record?", Text, Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Probe.che"), "theirs");
    EXPECT_EQ(gesichert(), Namen{"Probe.che"});
    s_->fuehre_aus<&Satzverwaltung::speichere>();  // one's own state now: no further question
}

TEST_F(Befehlsprobe, a_record_deleted_by_another_program_is_told_at_its_next_use_and_leaves_the_list) {
    gestartet();
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    Fragen_.erwarte_Anfang("Runtime error", "File Probe.sce is missing");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    EXPECT_EQ(z().Listen[Szenario], Namen{"Second"});
    EXPECT_TRUE(z().abgedeckt());
    waehle(Szenario, "Second");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Befehlsprobe, saving_writes_a_record_anew_that_another_program_deleted) {
    gestartet();
    const std::string Inhalt = Datei("input/Probe.sce");
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_TRUE(gibt_es("input/Probe.sce"));
}

TEST_F(Befehlsprobe, a_second_window_on_the_folder_says_so_and_saves_only_after_asking) {
    gestartet();
    Drehbuch Antworten;
    Sitzung zweite(Umgebung{&Antworten, Wurzel_.string(), "", '.'});
    Antworten.erwarte_Anfang("Project folder in use", "Another window of VARNOK works on this project folder.");
    ASSERT_TRUE(zweite.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    zweite.fuehre_aus<&Programmablauf::verlasse_Startseite>();
    const auto vorher = std::filesystem::last_write_time(Wurzel_ / "input/Probe.che");
    Antworten.erwarte_Anfang("Save changes?", "Another window of VARNOK works on this project folder.", Knopf::Nein);
    zweite.fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(std::filesystem::last_write_time(Wurzel_ / "input/Probe.che"), vorher);
    s_.reset();
    zweite.fuehre_aus<&Satzverwaltung::speichere>();  // alone now: no question
}

TEST_F(Befehlsprobe, the_folder_of_backups_keeps_the_newest_50) {
    gestartet();
    for (int i = 0; i < 52; ++i) {
        // What the newest holds already is not kept again.
        std::ofstream(Wurzel_ / "input/Probe.sce", std::ios::app) << i << "\r\n";
        s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
        bejahe_Loeschen();
        s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
        s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    }
    const auto Ordner = std::filesystem::directory_iterator(Wurzel_ / "backup");
    EXPECT_EQ(std::distance(Ordner, std::filesystem::directory_iterator()), 50);
}

}  // namespace
}  // namespace varnok
