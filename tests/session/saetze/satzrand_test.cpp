// Rare states of the record commands: no right to write, nothing selected, records that were not read.

#include <unistd.h>

#include <chrono>

#include "records/dateien.h"
#include "session/saetze/befehlsprobe.h"
#include "session/saetze/dateioperationen.h"

namespace varnok {
namespace {

class Satzrand : public Befehlsprobe {
protected:
    void erwarte_Sicherungsfrage(Knopf Antwort, const std::string& Wort = "pesticide") {
        Fragen_.erwarte_Anfang("Save changes?", "You modified " + Wort + " input data!", Antwort);
    }
    void schreibe_Simulation_ohne_Satz(const std::string& Name) {
        schreibe_Simulation(Projektordner(Wurzel_.string()), Name, {Name, {"", "Second", "no such record", "Second"}});
        const auto frueher = std::filesystem::last_write_time(Wurzel_ / "input/Second.vnk");
        std::filesystem::last_write_time(Wurzel_ / "input" / (Name + ".vnk"), frueher);
    }
    bool Status_nennt(const std::string& Text) const { return z().Statuszeile.Text().find(Text) != std::string::npos; }
};

struct Befehl {
    const char* Fall;
    std::function<void(Sitzung&, Drehbuch&)> Tat;
};
void PrintTo(const Befehl& b, std::ostream* Strom) { *Strom << b.Fall; }

class OhneSchreibrecht : public Satzrand, public ::testing::WithParamInterface<Befehl> {};

// Access rights bind nobody who is root, so the command runs in a process that gives that up.
TEST_P(OhneSchreibrecht, a_command_is_one_message_and_changes_neither_lists_nor_values) {
    gestartet();
    tippe("S_DT50_0", "12");
    std::filesystem::create_directory(Wurzel_ / "backup");
    std::filesystem::permissions(Wurzel_ / "backup", std::filesystem::perms::all);
    std::filesystem::permissions(Wurzel_ / "input", std::filesystem::perms(0555));
    constexpr int nie = 1000000;
    const int Status = fuehre_aus_bis_Operation(nie, [&] {
        ASSERT_TRUE(geteuid() != 0 || seteuid(65534) == 0);
        const Satzlisten vorher = z();
        GetParam().Tat(*s_, Fragen_);
        EXPECT_EQ(z().Listen, vorher.Listen);
        EXPECT_EQ(z().Namen, vorher.Namen);
        EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
        EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
        EXPECT_FALSE(z().abgedeckt());
    });
    std::filesystem::permissions(Wurzel_ / "input", std::filesystem::perms::owner_all);
    EXPECT_EQ(Status, 0);
}

void erwarte_Fehler(Drehbuch& d, const std::string& Vorgang) {
    d.erwarte_Anfang("Runtime error", "Cannot " + Vorgang + " the file");
}

INSTANTIATE_TEST_SUITE_P(Commands, OhneSchreibrecht,
                         ::testing::Values(Befehl{"new_record",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      erwarte_Fehler(d, "write");
                                                      s.fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
                                                  }},
                                           Befehl{"copy",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      erwarte_Fehler(d, "write");
                                                      s.fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
                                                  }},
                                           Befehl{"deletion",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      d.erwarte_Anfang("Delete record", "", Knopf::Ja);
                                                      erwarte_Fehler(d, "delete");
                                                      s.fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
                                                  }},
                                           Befehl{"rename",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      erwarte_Fehler(d, "rename");
                                                      benenne_um(s, Wirkstoff, "x", true);
                                                  }},
                                           Befehl{"rename_over_a_record",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      d.erwarte_Anfang("Replace existing record?", "", Knopf::Ja);
                                                      erwarte_Fehler(d, "rename");
                                                      benenne_um(s, Wirkstoff, "Second", true);
                                                  }},
                                           Befehl{"save",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      erwarte_Fehler(d, "write");
                                                      s.fuehre_aus<&Satzverwaltung::speichere>();
                                                  }},
                                           Befehl{"choice_with_yes",
                                                  [](Sitzung& s, Drehbuch& d) {
                                                      d.erwarte_Anfang("Save changes?", "", Knopf::Ja);
                                                      erwarte_Fehler(d, "write");
                                                      s.fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 1);
                                                  }}),
                         [](const auto& i) { return std::string(i.param.Fall); });

TEST_F(Satzrand, a_folder_in_the_place_of_the_copy_is_told_and_stays) {
    std::filesystem::create_directory(Wurzel_ / "input/copy of Probe.che");
    gestartet();
    Fragen_.erwarte_Anfang("Replace existing record?", "The record 'copy of Probe.che' already exists.", Knopf::Ja)
        .erwarte_Anfang("Runtime error", "Cannot read the file");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_TRUE(std::filesystem::is_directory(Wurzel_ / "input/copy of Probe.che"));
}

TEST_F(Satzrand, a_new_record_leaves_out_a_number_taken_in_another_case) {
    schreibe_Datei((Wurzel_ / "input/NEW COMPOUND1.CHE").string(), "mine");
    gestartet().fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "new compound2");
    EXPECT_EQ(Datei("input/NEW COMPOUND1.CHE"), "mine");
}

TEST_F(Satzrand, a_template_that_cannot_be_used_is_told_and_the_values_are_in_backup) {
    schreibe_Datei((Wurzel_ / "input/Do not delete this file.chn").string(), "Pesticide data\r\nUnit:\t7\r\n");
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Runtime error", "File new compound1.che, line ");
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.che"});
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_FALSE(z().Saetze[Wirkstoff].gelesen());
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/new compound1.che"), "Pesticide data\r\nUnit:\t7\r\n");
}

TEST_F(Satzrand, a_missing_template_makes_no_backup) {
    std::filesystem::remove(Wurzel_ / "input/Do not delete this file.chn");
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Runtime error", "The template");
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff);
    EXPECT_TRUE(gesichert().empty());
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Satzrand, a_copy_over_a_file_in_another_case_selects_the_entry_that_is_there) {
    schreibe_Datei((Wurzel_ / "input/COPY OF PROBE.che").string(), "old");
    gestartet();
    Fragen_.erwarte_Anfang("Replace existing record?", "The record 'copy of Probe.che' already exists.", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "COPY OF PROBE");
    EXPECT_EQ(Datei("input/COPY OF PROBE.che"), Datei("input/Probe.che"));
    EXPECT_FALSE(gibt_es("input/copy of Probe.che"));
    erwarte_Gleichstand(Wirkstoff);
}

TEST_F(Satzrand, a_copy_whose_name_grows_too_long_is_refused) {
    gestartet();
    ASSERT_TRUE(benenne_um(*s_, Szenario, std::string(235, 'x'), true));
    Fragen_.erwarte_Anfang("Runtime error", "\"copy of xxx");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    EXPECT_EQ(z().gewaehlt(Szenario), std::string(235, 'x'));
    EXPECT_EQ(z().Listen[Szenario].size(), 2u);
}

TEST_F(Satzrand, a_name_of_the_longest_kind_can_be_left_with_unsaved_values) {
    gestartet();
    ASSERT_TRUE(benenne_um(*s_, Wirkstoff, std::string(240, 'x'), true));
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Second");
    EXPECT_EQ(gesichert().size(), 2u);  // record and simulation
}

TEST_F(Satzrand, unchanged_text_stays_also_where_the_name_ends_like_an_extension) {
    gestartet();
    ASSERT_TRUE(benenne_um(*s_, Szenario, "field.sce.sce", true));
    EXPECT_EQ(z().gewaehlt(Szenario), "field.sce");
    EXPECT_TRUE(benenne_um(*s_, Szenario, "field.sce", true));
    EXPECT_EQ(z().gewaehlt(Szenario), "field.sce");
}

TEST_F(Satzrand, a_copy_without_a_selection_is_refused) {
    schreibe_Simulation_ohne_Satz("Torn");
    gestartet().fuehre_aus<&Satzverwaltung::waehle_Simulation>(2);
    EXPECT_FALSE(s_->zeige<Satzverwaltung>().darf_kopieren(Applikation));
    Fragen_.erwarte("Runtime error", "No entry is selected. Please select!");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Applikation);
    EXPECT_FALSE(gibt_es("input/copy of .app"));
}

TEST_F(Satzrand, deletion_keeps_the_file_and_the_unsaved_values_in_one_backup) {
    gestartet();
    tippe("S_DT50_0", "12");
    const std::string alt = Datei("input/Probe.che");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
    EXPECT_EQ(gesichert(), (Namen{"Probe.che", "unsaved Probe.che"}));
    EXPECT_FALSE(z().Saetze[Wirkstoff].Geaendert());
    const auto Ort = std::filesystem::directory_iterator(Wurzel_ / "backup")->path();
    EXPECT_EQ(lies_Datei((Ort / "Probe.che").string()), alt);
    EXPECT_EQ(z().Statuszeile.Text(),
              "What was there before is kept in backup/" + Ort.filename().string() + ": \"Probe.che\", \"unsaved Probe.che\"");
}

TEST_F(Satzrand, what_is_typed_after_a_deletion_is_in_backup_before_the_neighbour_is_read) {
    gestartet();
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed later");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(gesichert(), (Namen{"Probe.che", "unsaved Probe.che"}));
    EXPECT_EQ(z().Vorgabe.Name_Wirkstoff, "Parent P");
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Satzrand, save_says_that_a_record_was_not_read_and_keeps_what_was_typed) {
    gestartet();
    const std::string Nachbar = Datei("input/Second.che");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed later");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Second.che"), Nachbar);
    EXPECT_TRUE(Status_nennt("\"Second.che\" was not read and stays."));
    EXPECT_TRUE(Status_nennt("\"unsaved Probe.che\""));
}

TEST_F(Satzrand, exit_after_a_deletion_asks_nothing_and_leaves_the_neighbour_alone) {
    gestartet();
    const std::string Nachbar = Datei("input/Second.che");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed later");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Datei("input/Second.che"), Nachbar);
    EXPECT_EQ(gesichert(), (Namen{"Probe.che", "unsaved Probe.che"}));
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nSecond\r\nProbe\r\nProbe\r\n");
}

TEST_F(Satzrand, after_a_deletion_a_choice_of_the_neighbour_reads_it) {
    gestartet();
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    waehle(Szenario, "Second");
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Satzrand, a_yes_that_cannot_save_puts_selection_and_mark_back) {
    schreibe_Simulation_ohne_Satz("Torn");
    gestartet().fuehre_aus<&Satzverwaltung::waehle_Simulation>(2);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed");
    const bool Marke = z().Simulation_markiert();
    const std::string vorher = Datei("input/Probe.che");
    erwarte_Sicherungsfrage(Knopf::Ja);
    Fragen_.erwarte("Record not set", "Application record not set. Please select!");
    waehle(Wirkstoff, "Probe");
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Second");
    EXPECT_EQ(z().Simulation_markiert(), Marke);
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(Datei("input/Probe.che"), vorher);
}

TEST_F(Satzrand, no_to_one_s_own_record_reads_the_file_again) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed");
    erwarte_Sicherungsfrage(Knopf::Nein);
    waehle(Wirkstoff, "Probe");
    EXPECT_EQ(z().Vorgabe.Name_Wirkstoff, "Parent P");
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.che"});
}

TEST_F(Satzrand, exit_that_is_refused_keeps_the_marks_of_what_was_not_saved) {
    schreibe_Simulation_ohne_Satz("Torn");
    gestartet().fuehre_aus<&Satzverwaltung::waehle_Simulation>(2);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed");
    erwarte_Sicherungsfrage(Knopf::Nein);
    Fragen_.erwarte("Record not set", "Application record not set. Please select!");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(z().beendet());
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Satzrand, yes_at_exit_and_at_the_close_box_with_an_empty_selector_writes_nothing_and_stays) {
    schreibe_Simulation_ohne_Satz("Torn");
    gestartet().fuehre_aus<&Satzverwaltung::waehle_Simulation>(2);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Typed");
    const std::string vorher = Datei("input/Second.che");
    for (int i = 0; i < 2; ++i) {
        erwarte_Sicherungsfrage(Knopf::Ja);
        Fragen_.erwarte("Record not set", "Application record not set. Please select!");
    }
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_FALSE(z().beendet());
    EXPECT_EQ(Datei("input/Second.che"), vorher);
    EXPECT_FALSE(gibt_es("input/.app"));
}

TEST_F(Satzrand, loading_clears_the_marks_of_types_behind_a_missing_record_and_keeps_their_values_in_backup) {
    schreibe_Simulation_ohne_Satz("Torn");
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Tag>(5);
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(2);
    EXPECT_FALSE(z().Saetze[Applikation].Geaendert());
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.app"});
    waehle(Applikation, "Second");
    EXPECT_FALSE(z().Saetze[Applikation].Geaendert());
    EXPECT_FALSE(z().abgedeckt());
}

}  // namespace
}  // namespace varnok
