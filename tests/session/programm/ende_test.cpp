#include <algorithm>
#include <chrono>
#include <fstream>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

using Liste = std::vector<std::string>;

class Ende : public Probesitzung {
protected:
    // The names of what lies in `backup`.
    Liste gesichert() const {
        Liste Namen;
        if (!gibt_es("backup")) return Namen;
        for (const auto& f : std::filesystem::recursive_directory_iterator(Wurzel_ / "backup")) {
            if (f.is_regular_file()) Namen.push_back(f.path().filename().string());
        }
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }
};

std::string Frage_nach(const std::string& Wort) {
    return "You modified " + Wort + " input data!  Do you want to save the changes in your data base?\n'Probe'";
}

std::filesystem::file_time_type Stempel(const std::filesystem::path& p) { return std::filesystem::last_write_time(p); }

TEST_F(Ende, writes_the_summary_and_the_settings_without_a_question_when_nothing_changed) {
    gestartet();
    const auto alt = Stempel(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(1);
    std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk", alt);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(s_->Stand().beendet());
    EXPECT_GT(Stempel(Wurzel_ / "input/Probe.vnk"), alt);  // this is what makes the next start find it
}

TEST_F(Ende, asks_for_the_changed_record_and_saves_on_yes) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    Fragen_.erwarte("Save changes?", Frage_nach("pesticide"), Knopf::Ja);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(s_->Stand().beendet());
    Eingabe e;
    Ansicht a;
    Satz_lesen(Projektordner(Wurzel_.string()), "Probe", Wirkstoff, e, a);
    EXPECT_NEAR(Halbwertszeit(e.Parameter.k_SFO[0][0]), 12, 1e-12);
}

TEST_F(Ende, leaves_the_record_alone_on_no) {
    gestartet();
    const std::string vorher = Datei("input/Probe.che");
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    Fragen_.erwarte("Save changes?", Frage_nach("pesticide"), Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(Datei("input/Probe.che"), vorher);
}

TEST_F(Ende, asks_once_for_each_changed_record_and_saves_those_with_a_yes) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    ASSERT_TRUE(tippe("Applikationsrate", "500"));
    Fragen_.erwarte("Save changes?", Frage_nach("pesticide"), Knopf::Nein)
        .erwarte("Save changes?", Frage_nach("application"), Knopf::Ja);
    const std::string Wirkstoffdatei = Datei("input/Probe.che");
    const std::string Muster = Datei("input/Probe.app");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(s_->Stand().beendet());
    EXPECT_EQ(Datei("input/Probe.che"), Wirkstoffdatei);
    EXPECT_NE(Datei("input/Probe.app"), Muster);
    EXPECT_EQ(gesichert(), Liste{"unsaved Probe.che"});
}

TEST_F(Ende, not_now_at_any_question_does_nothing_and_does_not_end) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    ASSERT_TRUE(tippe("Applikationsrate", "500"));
    const std::string Wirkstoffdatei = Datei("input/Probe.che");
    const auto Zeit = Stempel(Wurzel_ / "input/Probe.vnk");
    for (const bool Fenster : {false, true}) {
        Fragen_.erwarte("Save changes?", Frage_nach("pesticide"), Knopf::Ja)
            .erwarte("Save changes?", Frage_nach("application"), Knopf::nicht_jetzt);
        Fenster ? s_->fuehre_aus<&Programmablauf::schliesse_Fenster>() : s_->fuehre_aus<&Programmablauf::beende>();
        EXPECT_FALSE(s_->Stand().beendet());
    }
    EXPECT_EQ(Datei("input/Probe.che"), Wirkstoffdatei);
    EXPECT_EQ(Stempel(Wurzel_ / "input/Probe.vnk"), Zeit);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert() && s_->Stand().Saetze[Applikation].Geaendert());
    EXPECT_FALSE(gibt_es("backup"));
}

TEST_F(Ende, by_the_close_box_keeps_a_changed_description_in_backup) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("In other words");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(gesichert(), Liste{"unsaved Probe.vnk"});
}

TEST_F(Ende, by_the_close_box_keeps_another_combination_and_values_without_a_mark_in_backup) {
    schreibe_Saetze("Second", Felder_);
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, 1);
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(3);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(gesichert(), (Liste{"unsaved Probe.app", "unsaved Probe.vnk"}));
}

TEST_F(Ende, tells_once_of_files_that_cannot_be_written_and_ends) {
    gestartet();
    for (const char* Name : {"input/Probe.vnk", "VARNOK.ini"}) {
        std::filesystem::remove(Wurzel_ / Name);
        std::filesystem::create_directory(Wurzel_ / Name);
    }
    Fragen_.erwarte_Anfang("Runtime error", "");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(s_->Stand().beendet());
}

TEST_F(Ende, stays_where_a_yes_cannot_be_done) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    std::filesystem::rename(Wurzel_ / "input", Wurzel_ / "elsewhere");
    for (const bool Fenster : {false, true}) {
        Fragen_.erwarte("Save changes?", Frage_nach("pesticide"), Knopf::Ja)
            .erwarte_Anfang("Runtime error", "Cannot write the file");
        Fenster ? s_->fuehre_aus<&Programmablauf::schliesse_Fenster>() : s_->fuehre_aus<&Programmablauf::beende>();
        EXPECT_FALSE(s_->Stand().beendet());
    }
}

TEST_F(Ende, with_an_empty_selector_is_refused_and_the_program_stays) {
    schreibe_Simulation(Projektordner(Wurzel_.string()), "Torn", {"", {"", "Probe", "no such record", "Probe"}});
    std::filesystem::last_write_time(Wurzel_ / "input/Torn.vnk", Stempel(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(1));
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    EXPECT_TRUE(s_->Stand().abgedeckt());
    Fragen_.erwarte("Record not set", "Application record not set. Please select!");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(s_->Stand().beendet());
}

TEST_F(Ende, by_the_close_box_leaves_the_summary_stamp_old_and_writes_no_settings) {
    gestartet();
    std::filesystem::remove(Wurzel_ / "VARNOK.ini");
    const auto alt = Stempel(Wurzel_ / "input/Probe.vnk");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(Stempel(Wurzel_ / "input/Probe.vnk"), alt);
    EXPECT_FALSE(gibt_es("VARNOK.ini"));
}

TEST_F(Ende, by_the_close_box_puts_an_invalid_text_back_and_has_nothing_to_ask_about) {
    gestartet();
    const int f = Feld("S_g_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "7");
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(f), "0.5");
}

TEST_F(Ende, a_save_that_fails_names_the_file_and_keeps_the_program_and_the_values) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    std::filesystem::rename(Wurzel_ / "input", Wurzel_ / "elsewhere");
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file \"" + (Wurzel_ / "input/Probe.vnk").string());
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_FALSE(s_->Stand().beendet());
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
}

TEST_F(Ende, program_defaults_restore_the_start_simulation_and_end_without_a_question) {
    gestartet();
    Fragen_.erwarte("Default settings",
                    "The default parameters have been loaded and VARNOK will now quit.\n"
                    "The settings become available after the next program call.");
    std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input", Wurzel_ / "input",
                          std::filesystem::copy_options::overwrite_existing | std::filesystem::copy_options::recursive);
    s_->fuehre_aus<&Satzverwaltung::lade_Voreinstellungen>();
    EXPECT_TRUE(s_->Stand().beendet());
}

}  // namespace
}  // namespace varnok
