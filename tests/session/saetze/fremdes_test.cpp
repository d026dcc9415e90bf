// Records and simulations that another program or another window touches while this one runs.

#include <chrono>

#include <gmock/gmock.h>
#include "records/dateien.h"

#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

class Fremdes : public Befehlsprobe {
protected:
    std::string Pfad(const std::string& Datei) const { return (Wurzel_ / "input" / Datei).string(); }
    void aendere_von_aussen(const std::string& Datei) const { schreibe_Datei(Pfad(Datei), lies_Datei(Pfad(Datei)) + "theirs"); }
    void entferne_von_aussen(const std::string& Datei) const { std::filesystem::remove(Pfad(Datei)); }
    bool Status_nennt(const std::string& Text) const { return z().Statuszeile.Text().find(Text) != std::string::npos; }
    void erwarte_Ersatzfrage(const std::string& Datei, Knopf Antwort) {
        Fragen_.erwarte("Replace existing record?",
                        "The record '" + Datei + "' was changed by another program since it was read. Do you want to replace it?",
                        Antwort);
    }
    void erwarte_Sicherungsfrage(Knopf Antwort) { Fragen_.erwarte_Anfang("Save changes?", "You modified pesticide", Antwort); }
};

TEST_F(Fremdes, a_changed_record_is_told_at_refresh_and_the_values_stay) {
    gestartet();
    aendere_von_aussen("Probe.che");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(z().Statuszeile.Text(), "\"Probe.che\" was changed by another program since it was read.");
    EXPECT_EQ(z().Vorgabe.Name_Wirkstoff, "Parent P");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Fremdes, a_deleted_record_is_told_at_refresh_and_save_writes_it_anew) {
    gestartet();
    const std::string Inhalt = Datei("input/Probe.app");
    entferne_von_aussen("Probe.app");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(z().Statuszeile.Text(), "\"Probe.app\" was deleted by another program since it was read.");
    EXPECT_EQ(z().gewaehlt(Applikation), "Probe");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_TRUE(gibt_es("input/Probe.app"));
    EXPECT_TRUE(Status_nennt("saved. \"Probe.app\" was deleted by another program"));
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(z().Statuszeile.Text(), "");
}

TEST_F(Fremdes, a_copy_of_a_changed_record_is_theirs_and_is_not_saved_over_unasked) {
    gestartet();
    aendere_von_aussen("Probe.che");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Wirkstoff);
    EXPECT_TRUE(Status_nennt("changed by another program"));
    const std::string ihres = Datei("input/copy of Probe.che");
    EXPECT_EQ(ihres, Datei("input/Probe.che"));
    erwarte_Ersatzfrage("copy of Probe.che", Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/copy of Probe.che"), ihres);
}

TEST_F(Fremdes, a_changed_record_that_got_another_name_is_not_saved_over_unasked) {
    gestartet();
    aendere_von_aussen("Probe.che");
    benenne_um(*s_, Wirkstoff, "Renamed", true);
    EXPECT_TRUE(Status_nennt("\"Probe.che\" was changed by another program"));
    erwarte_Ersatzfrage("Renamed.che", Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_TRUE(Datei("input/Renamed.che").ends_with("theirs"));
}

TEST_F(Fremdes, deleting_a_changed_record_keeps_theirs_and_what_was_read_before) {
    gestartet();
    const std::string gelesen = Datei("input/Probe.app");
    aendere_von_aussen("Probe.app");
    const std::string ihres = Datei("input/Probe.app");
    bejahe_Loeschen();
    s_->fuehre_aus<&Satzverwaltung::loesche>(Applikation);
    EXPECT_EQ(gesichert(), (Namen{"Probe.app", "unsaved Probe.app"}));
    EXPECT_TRUE(Status_nennt("\"Probe.app\" was changed by another program"));
    EXPECT_TRUE(Status_nennt("backup/"));
}

TEST_F(Fremdes, choosing_a_changed_record_again_reads_theirs_and_keeps_the_values_read_before) {
    gestartet();
    schreibe_Datei(Pfad("Probe.sce"), Datei("input/Second.sce"));
    waehle(Szenario, "Probe");
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.sce"});
    EXPECT_TRUE(Status_nennt("\"Probe.sce\" was changed by another program"));
    s_->fuehre_aus<&Satzverwaltung::speichere>();  // what is on the disk is what was read: no question
}

TEST_F(Fremdes, loading_a_simulation_keeps_values_whose_file_is_gone) {
    gestartet();
    entferne_von_aussen("Probe.sce");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.sce"});
    EXPECT_EQ(z().Listen[Szenario], Namen{"Second"});
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Fremdes, a_simulation_that_is_gone_is_told_when_chosen_and_leaves_the_list) {
    gestartet();
    entferne_von_aussen("Second.vnk");
    Fragen_.erwarte("Runtime error", "File Second.vnk is missing in the folder \"" + (Wurzel_ / "input").string() + "\"");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_EQ(z().Listen[Simulation], Namen{"Probe"});
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Fremdes, a_simulation_that_names_a_record_gone_since_the_start_waits_for_a_choice) {
    gestartet();
    entferne_von_aussen("Second.app");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_EQ(z().Auswahl(Applikation), -1);
    EXPECT_TRUE(z().abgedeckt());
    EXPECT_FALSE(z().beendet());
    waehle(Applikation, "Probe");
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(z().Parameter().Bodendichte, 3);
}

TEST_F(Fremdes, a_simulation_that_left_the_list_is_written_anew_under_its_name) {
    gestartet();
    entferne_von_aussen("Probe.vnk");
    Fragen_.erwarte_Anfang("Runtime error", "File Probe.vnk is missing");
    s_->fuehre_aus<&Satzverwaltung::kopiere>(Simulation);
    EXPECT_EQ(z().Auswahl(Simulation), -1);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    erwarte_Gleichstand(Simulation);
}

TEST_F(Fremdes, the_last_record_in_the_folder_stays_whatever_the_list_shows) {
    gestartet();
    entferne_von_aussen("Second.sce");
    Fragen_.erwarte("Runtime error", "\"Probe.sce\" is the last of its kind and stays.");
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_TRUE(gibt_es("input/Probe.sce"));
    EXPECT_EQ(z().Listen[Szenario], Namen{"Probe"});
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Fremdes, a_record_that_went_is_named_and_covers_while_there_are_others_to_choose) {
    gestartet();
    entferne_von_aussen("Second.app");
    waehle(Applikation, "Second");
    EXPECT_FALSE(z().beendet());
    EXPECT_EQ(z().Abdeckungswort(), "Record \"Second.app\" missing: choose one");
    EXPECT_NE(z().Statuszeile.Text().find("Second.app"), std::string::npos);
    waehle(Applikation, "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

class LetzterSatz : public Fremdes {
protected:
    // The last patterns go while another one is chosen.
    void waehle_ins_Leere(Knopf Antwort) {
        gestartet();
        tippe("S_DT50_0", "12");
        entferne_von_aussen("Second.app");
        entferne_von_aussen("Probe.app");
        Fragen_.erwarte("Data file missing", "File Second is missing. Should the default settings be loaded ", Antwort);
        waehle(Applikation, "Second");
    }
};

TEST_F(LetzterSatz, no_to_the_question_ends_the_program_with_all_unsaved_values_in_backup) {
    waehle_ins_Leere(Knopf::Nein);
    EXPECT_TRUE(z().beendet());
    for (const char* Name : {"unsaved Probe.app", "unsaved Probe.che", "unsaved Probe.vnk"}) {
        EXPECT_THAT(gesichert(), testing::Contains(Name));
    }
}

TEST_F(LetzterSatz, esc_at_the_question_never_ends_the_program) {
    waehle_ins_Leere(Knopf::nicht_jetzt);
    EXPECT_FALSE(z().beendet());
    EXPECT_EQ(z().Abdeckungswort(), "Record \"Second.app\" missing: choose one");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Fremdes, a_changed_summary_file_is_asked_about_at_exit_and_stays_on_no) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("mine");
    schreibe_Datei(Pfad("Probe.vnk"), "theirs\r\nSecond\r\nSecond\r\nSecond\r\n");
    erwarte_Ersatzfrage("Probe.vnk", Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Datei("input/Probe.vnk"), "theirs\r\nSecond\r\nSecond\r\nSecond\r\n");
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.vnk"});
}

TEST_F(Fremdes, a_changed_summary_file_is_replaced_at_exit_on_yes_and_kept_in_backup) {
    gestartet();
    schreibe_Datei(Pfad("Probe.vnk"), "theirs\r\nSecond\r\nSecond\r\nSecond\r\n");
    erwarte_Ersatzfrage("Probe.vnk", Knopf::Ja);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(gesichert(), Namen{"Probe.vnk"});
}

TEST_F(Fremdes, exit_stays_where_its_save_was_refused) {
    gestartet();
    tippe("S_DT50_0", "12");
    aendere_von_aussen("Probe.che");
    erwarte_Sicherungsfrage(Knopf::Ja);
    erwarte_Ersatzfrage("Probe.che", Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(z().beendet());
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Fremdes, a_record_that_cannot_be_read_is_not_replaced_and_nothing_else_is_written) {
    gestartet();
    tippe("S_DT50_0", "12");
    const std::string Wirkstoffdatei = Datei("input/Probe.che");
    entferne_von_aussen("Probe.sce");
    std::filesystem::create_directory(Pfad("Probe.sce"));
    Fragen_.erwarte("Runtime error", "Cannot read the file \"" + Pfad("Probe.sce") + "\": it is a folder");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.che"), Wirkstoffdatei);
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

class ZweitesFenster : public Fremdes {
protected:
    ZweitesFenster() : erstes_(Umgebung{&Antworten_, Wurzel_.string(), "", '.'}) {
        EXPECT_TRUE(erstes_.fuehre_aus<&Programmablauf::oeffne_Projekt>());
        Fragen_.erwarte_Anfang("Project folder in use", "Another window of VARNOK works on this project folder.");
        gestartet();
    }
    void erwarte_Fensterfrage(Knopf Antwort) {
        Fragen_.erwarte("Save changes?",
                        "Another window of VARNOK works on this project folder. Do you want to save all the same?", Antwort);
    }

    Drehbuch Antworten_;
    Sitzung erstes_;
};

TEST_F(ZweitesFenster, writes_nothing_at_exit_after_a_no) {
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("mine");
    erwarte_Fensterfrage(Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.vnk"});
}

TEST_F(ZweitesFenster, asks_once_for_an_exit_that_saves) {
    tippe("S_DT50_0", "12");
    const std::string vorher = Datei("input/Probe.che");
    erwarte_Sicherungsfrage(Knopf::Ja);
    erwarte_Fensterfrage(Knopf::Ja);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_NE(Datei("input/Probe.che"), vorher);
}

TEST_F(ZweitesFenster, stays_open_where_the_save_at_exit_was_refused) {
    tippe("S_DT50_0", "12");
    erwarte_Sicherungsfrage(Knopf::Ja);
    erwarte_Fensterfrage(Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(z().beendet());
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

TEST_F(ZweitesFenster, sees_what_the_first_one_saved) {
    erstes_.fuehre_aus<&Programmablauf::verlasse_Startseite>();
    erstes_.fuehre_aus<&Listenwahl::aendere_Namen>(0, "Saved by the first");
    erstes_.fuehre_aus<&Satzverwaltung::speichere>();
    erwarte_Fensterfrage(Knopf::Ja);
    erwarte_Ersatzfrage("Probe.che", Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Probe.che").find("Saved by the first"), std::string::npos);
}

}  // namespace
}  // namespace varnok
