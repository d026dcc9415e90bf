// A project folder without the right to write: everything can be looked at, changed and calculated.

#include <fstream>

#include "session/kern/probesitzung.h"
#include "support/ohne_rechte.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

constexpr const char* Titel = "Runtime error";

class Nur_lesen : public Probesitzung {
protected:
    Nur_lesen() {
        schreibe_Saetze("Other", Felder_);
        schreibe_Simulation(Projektordner(Wurzel_.string()), "Second", {"Another", {"", "Other", "Other", "Other"}});
        std::ofstream(Wurzel_ / "VARNOK.ini") << "";
        entziehe();
    }
    ~Nur_lesen() override { s_.reset(); }
    void entziehe() { Rechte_.emplace(std::vector{Wurzel_ / "input", Wurzel_}); }
    const Zustand& z() const { return s_->Stand(); }
    std::vector<std::string> Dateien() const {
        std::vector<std::string> Namen;
        for (const auto& f : fs::recursive_directory_iterator(Wurzel_)) Namen.push_back(f.path().string());
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }
    void erwarte_eine_Meldung() {
        Fragen_.erwarte_Anfang(Titel, "The project folder \"" + Wurzel_.string() + "\" is open for reading only");
    }

    std::optional<Ohne_Schreibrecht> Rechte_;
};

TEST_F(Nur_lesen, it_opens_calculates_and_ends_without_a_question) {
    const auto vorher = Dateien();
    gestartet();
    EXPECT_TRUE(z().nur_lesbar);
    EXPECT_FALSE(z().abgedeckt());
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Dateien(), vorher);
}

TEST_F(Nur_lesen, values_change_results_follow_and_a_report_goes_where_the_user_says) {
    gestartet();
    const float vorher = Maximum();
    tippe("Applikationsrate", "300");
    EXPECT_NE(Maximum(), vorher);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    const std::string Pfad = (fs::temp_directory_path() / ("varnok-report-" + std::to_string(getpid()))).string();
    for (const char* Endung : {".pdf", ".rtf"}) {
        s_->fuehre_aus<&Berichtssteuerung::speichere_PDF>(Pfad + Endung);
        EXPECT_TRUE(fs::exists(Pfad + Endung));
        std::ifstream Strom(Pfad + Endung, std::ios::binary);
        std::string Anfang(5, ' ');
        Strom.read(Anfang.data(), 5);
        EXPECT_EQ(Anfang, Endung == std::string(".pdf") ? "%PDF-" : "{\\rtf");
        fs::remove(Pfad + Endung);
    }
}

TEST_F(Nur_lesen, another_simulation_can_be_chosen) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(0);
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Nur_lesen, each_command_on_files_answers_with_one_message) {
    gestartet();
    tippe("S_DT50_0", "12");
    for (const auto Befehl : {+[](Sitzung& s) { s.fuehre_aus<&Satzverwaltung::speichere>(); },
                              +[](Sitzung& s) { s.fuehre_aus<&Satzverwaltung::lege_an>(Szenario); },
                              +[](Sitzung& s) { s.fuehre_aus<&Satzverwaltung::kopiere>(Szenario); },
                              +[](Sitzung& s) { s.fuehre_aus<&Satzverwaltung::loesche>(Szenario); },
                              +[](Sitzung& s) { benenne_um(s, Szenario, "New name", true); },
                              +[](Sitzung& s) { s.fuehre_aus<&Satzverwaltung::lade_Voreinstellungen>(); }}) {
        erwarte_eine_Meldung();
        Befehl(*s_);
    }
    EXPECT_FALSE(z().beendet());
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
}

TEST_F(Nur_lesen, at_the_end_yes_is_told_and_stays_and_no_ends_it) {
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Ja);
    erwarte_eine_Meldung();
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(z().beendet());
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
}

TEST_F(Nur_lesen, the_close_box_ends_like_that_too) {
    gestartet();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Ja);
    erwarte_eine_Meldung();
    EXPECT_FALSE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
}

TEST_F(Nur_lesen, options_are_taken_and_the_settings_stay) {
    Rechte_.reset();
    Einstellungen e;
    e.Tips_anzeigen = 1;
    std::ofstream(Wurzel_ / "VARNOK.ini", std::ios::binary) << Einstellungen_als_Bytes(e, {});
    const std::string vorher = Datei("VARNOK.ini");
    entziehe();
    gestartet();
    Optionsentwurf Optionen = s_->fuehre_aus<&Optionensteuerung::oeffne>();
    ASSERT_EQ(Optionen.Tips_anzeigen, 1);
    Optionen.Tips_anzeigen = 0;
    Optionen.Einheit = Mikrogramm;
    EXPECT_TRUE(s_->fuehre_aus<&Optionensteuerung::uebernimm>(Optionen));
    erwarte_eine_Meldung();
    Fragen_.erwarte_Anfang("Tooltips", "The tooltips will be switched off");
    s_->fuehre_aus<&Optionensteuerung::schliesse>();
    EXPECT_GT(Maximum(), 100);  // micrograms now
    EXPECT_EQ(Datei("VARNOK.ini"), vorher);
}

TEST_F(Nur_lesen, another_machine_that_has_the_folder_open_is_not_asked_about) {
    Rechte_.reset();
    std::ofstream(Wurzel_ / ".varnok.lock") << "4711\nvarnok\nlaboratory\n\n\n";
    entziehe();
    gestartet();
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Nur_lesen, what_an_earlier_program_left_unsaved_stays_until_the_folder_can_be_written) {
    Rechte_.reset();
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Zwischensicherung::schreibe>();
    s_.reset();  // killed
    const std::string Stand = Datei("backup/unsaved");
    ASSERT_NE(Stand, "");
    entziehe();
    gestartet();
    EXPECT_NE(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
    tippe("S_DT50_0", "13");
    s_->fuehre_aus<&Zwischensicherung::schreibe>();
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Datei("backup/unsaved"), Stand);
    Rechte_.reset();
    Fragen_.erwarte_Anfang("Unsaved values", "The program did not come to its end the last time.", Knopf::Ja);
    gestartet();
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
}

TEST_F(Nur_lesen, the_organiser_hands_over_what_was_chosen_and_writes_nothing) {
    const auto vorher = Dateien();
    gestartet();
    ASSERT_TRUE(s_->fuehre_aus<&Organiser::oeffne>());
    bool fertig = false;
    s_->fuehre_aus<&Organiser::waehle>(Simulation, 0);
    fertig = s_->fuehre_aus<&Organiser::uebernimm>();
    EXPECT_TRUE(fertig);
    s_->fuehre_aus<&Organiser::schliesse_ab>();
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(Dateien(), vorher);
}

}  // namespace
}  // namespace varnok
