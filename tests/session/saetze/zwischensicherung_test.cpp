// What is unsaved survives a program that does not come to its end.

#include <gmock/gmock.h>

#include <fstream>

#include "session/saetze/organiserprobe.h"
#include "support/ohne_rechte.h"

namespace varnok {
namespace {

using ::testing::HasSubstr;

class Absturz : public Organiserprobe {
protected:
    // The action is over and drawn.
    void gezeichnet() { s_->fuehre_aus<&Zwischensicherung::schreibe>(); }
    bool liegt_da() const { return gibt_es("backup/unsaved"); }
    // Killed, and started again.
    void starte_neu(Knopf Antwort) {
        Fragen_.erwarte_Anfang("Unsaved values", "The program did not come to its end the last time.", Antwort);
        gestartet();
    }
    std::string Feldtext(const char* Name) { return s_->zeige<Feldeingabe>().Text(Feld(Name)); }
};

TEST_F(Absturz, an_accepted_value_comes_back_as_a_change_that_no_file_holds) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    gezeichnet();
    const std::string vorher = Datei("input/Probe.che");
    starte_neu(Knopf::Ja);
    EXPECT_EQ(Feldtext("S_DT50_0"), "12");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_TRUE(z().verschieden(Wirkstoff));
    EXPECT_FALSE(z().verschieden(Applikation));
    EXPECT_FALSE(z().Hinweis());
    EXPECT_EQ(Datei("input/Probe.che"), vorher);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Probe.che"), vorher);
}

TEST_F(Absturz, no_keeps_it_in_backup_and_starts_as_usual) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const std::string Werte = z().Speicherbytes(Wirkstoff);
    gezeichnet();
    starte_neu(Knopf::Nein);
    EXPECT_NE(Feldtext("S_DT50_0"), "12");
    EXPECT_FALSE(liegt_da());
    EXPECT_EQ(Gesichertes()["unsaved Probe.che"], Werte);
    gestartet();  // and is not asked again
}

TEST_F(Absturz, another_simulation_with_another_record_and_description_comes_back) {
    gestartet();
    const auto waehle = [&](Satzart Art, const char* Name) {
        const int i = Platz(z().Listen[Art], Name);
        if (Art == Simulation) return s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(i);
        return s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Art, i);
    };
    waehle(Simulation, "Second");
    waehle(Szenario, "Probe");
    s_->fuehre_aus<&Beschreibungseingabe::oeffne>();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("Typed");
    s_->fuehre_aus<&Beschreibungseingabe::schliesse>();
    ASSERT_TRUE(tippe("Applikationsrate", "700"));
    gezeichnet();
    starte_neu(Knopf::Ja);
    EXPECT_EQ(z().gewaehlt(Simulation), "Second");
    EXPECT_EQ(z().gewaehlt(Szenario), "Probe");
    EXPECT_EQ(z().Vorgabe.Beschreibung, "Typed");
    EXPECT_EQ(Feldtext("Applikationsrate"), "700");
    EXPECT_TRUE(z().Simulation_markiert());
    EXPECT_EQ(Datei("input/Second.vnk"), Zeilen("The second one", "Second", "Second", "Second"));
}

TEST_F(Absturz, nothing_lies_there_while_nothing_is_unsaved) {
    gestartet();
    gezeichnet();
    EXPECT_FALSE(liegt_da());
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    gezeichnet();
    EXPECT_TRUE(liegt_da());
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    gezeichnet();
    EXPECT_FALSE(liegt_da());
}

TEST_F(Absturz, a_value_in_work_is_not_accepted_yet) {
    gestartet();
    s_->fuehre_aus<&Feldeingabe::betrete>(Feld("S_DT50_0"));
    s_->fuehre_aus<&Feldeingabe::aendere>(Feld("S_DT50_0"), "-5");
    gezeichnet();
    EXPECT_FALSE(liegt_da());
}

TEST_F(Absturz, the_end_of_the_program_removes_it) {
    for (const bool Fenster : {false, true}) {
        gestartet();
        ASSERT_TRUE(tippe("S_DT50_0", Fenster ? "12" : "13"));
        gezeichnet();
        ASSERT_TRUE(liegt_da());
        Fragen_.erwarte_Anfang("Save changes?", "You modified pesticide", Knopf::Nein);
        Fenster ? s_->fuehre_aus<&Programmablauf::schliesse_Fenster>() : s_->fuehre_aus<&Programmablauf::beende>();
        EXPECT_TRUE(z().beendet());
        EXPECT_FALSE(liegt_da());
    }
}

TEST_F(Absturz, the_second_window_leaves_that_of_the_first_alone) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    gezeichnet();
    const std::string erstes = Datei("backup/unsaved");
    Sitzung zweite(Umgebung{&Fragen_, Wurzel_.string(), "", '.'});
    Fragen_.erwarte_Anfang("Project folder in use", "Another window", Knopf::OK);
    ASSERT_TRUE(zweite.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    zweite.fuehre_aus<&Programmablauf::verlasse_Startseite>();
    zweite.fuehre_aus<&Zwischensicherung::schreibe>();
    EXPECT_EQ(Datei("backup/unsaved"), erstes);
}

TEST_F(Absturz, a_file_that_cannot_be_read_goes_to_backup_without_a_question) {
    std::filesystem::create_directories(Wurzel_ / "backup");
    std::ofstream(Wurzel_ / "backup/unsaved") << "rubbish";
    gestartet();
    EXPECT_FALSE(liegt_da());
    EXPECT_EQ(Gesichertes()["unsaved values"], "rubbish");
}

TEST_F(Absturz, values_whose_simulation_is_gone_are_kept_and_told) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(z().Listen[Simulation], "Second"));
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    gezeichnet();
    s_.reset();
    std::filesystem::remove(Wurzel_ / "input/Second.vnk");
    Fragen_.erwarte_Anfang("Unsaved values", "The program did not", Knopf::Ja)
        .erwarte_Anfang("Runtime error", "File Second.vnk is missing");
    gestartet();
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_TRUE(Gesichertes().contains("unsaved Second.che"));
}

TEST_F(Absturz, what_cannot_be_written_is_told_once) {
    gestartet();
    std::ofstream(Wurzel_ / "backup") << "a file";
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    gezeichnet();
    EXPECT_THAT(z().Statuszeile.Text(), HasSubstr("Unsaved values are not kept"));
    for (const char* Wert : {"13", "14"}) {  // a line stands until the next change
        ASSERT_TRUE(tippe("S_DT50_0", Wert));
        gezeichnet();
    }
    EXPECT_EQ(z().Statuszeile.Text(), "");
}

// ---- what the start before left and cannot be put into `backup`

TEST_F(Absturz, values_that_cannot_be_kept_at_the_start_stay_and_are_offered_again) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    gezeichnet();
    s_.reset();
    const std::string Stand = Datei("backup/unsaved");
    std::filesystem::remove_all(Wurzel_ / "output");
    for (const auto& p : {Wurzel_, Wurzel_ / "input"}) std::filesystem::permissions(p, std::filesystem::perms(0777));
    for (const Knopf weiter : {Knopf::Nein, Knopf::nicht_jetzt}) {
        const Ohne_Schreibrecht Rechte({Wurzel_ / "backup"});
        Fragen_.erwarte_Anfang("Unsaved values", "The program did not", Knopf::Ja)
            .erwarte_Anfang("Runtime error", "Cannot make the folder", weiter);
        gestartet();
        EXPECT_FALSE(z().nur_lesbar);
        EXPECT_EQ(Feldtext("S_DT50_0"), "12");
        ASSERT_TRUE(tippe("S_DT50_0", "13"));
        gezeichnet();
        EXPECT_EQ(Datei("backup/unsaved"), Stand) << "the values of this session do not take its place";
        Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein)
            .erwarte_Anfang("Runtime error", "Cannot make the folder", Knopf::Ja);
        s_->fuehre_aus<&Programmablauf::schliesse_Fenster>();
        EXPECT_TRUE(z().beendet());
        s_.reset();
        EXPECT_EQ(Datei("backup/unsaved"), Stand) << "nor does a clean end remove it";
    }
    starte_neu(Knopf::Ja);
    EXPECT_EQ(Feldtext("S_DT50_0"), "12");
    EXPECT_FALSE(liegt_da());
    EXPECT_TRUE(Gesichertes().contains("unsaved Probe.che"));
}

TEST_F(Absturz, a_file_larger_than_any_state_is_told_and_stays) {
    std::filesystem::create_directories(Wurzel_ / "backup");
    std::ofstream(Wurzel_ / "backup/unsaved") << "mine";
    std::filesystem::resize_file(Wurzel_ / "backup/unsaved", std::size_t{1} << 30);  // takes no room
    Fragen_.erwarte_Anfang("Runtime error", "Cannot read the file");
    gestartet();
    EXPECT_FALSE(z().abgedeckt());
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_TRUE(liegt_da());
}

TEST_F(Absturz, in_a_folder_that_is_a_link_to_outside_nothing_is_offered_or_removed) {
    const std::filesystem::path fremd = Wurzel_.string() + " elsewhere";
    std::filesystem::create_directories(fremd);
    std::ofstream(fremd / "unsaved") << "mine";
    std::filesystem::create_directory_symlink(fremd, Wurzel_ / "backup");
    gestartet();
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_TRUE(std::filesystem::exists(fremd / "unsaved"));
    std::filesystem::remove_all(fremd);
}

TEST_F(Absturz, the_close_box_takes_the_name_of_a_study_in_its_box_as_typed) {
    gestartet();
    const int vorher = z().Studienzahl();
    s_->fuehre_aus<&Studienverwaltung::addiere>();
    s_->fuehre_aus<&Studienverwaltung::aendere>("Third soil");
    Fragen_.erwarte_Anfang("Save changes?", "You modified pesticide", Knopf::Ja);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_EQ(z().Studienzahl(), vorher + 1);
    EXPECT_THAT(Datei("input/Probe.che"), HasSubstr("Third soil"));
}

}  // namespace
}  // namespace varnok
