// What cannot be kept is asked about, and stands in nobody's way.

#include <fstream>

#include "session/kern/probesitzung.h"
#include "support/versager.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;

constexpr const char* unhaltbar = "\xD0\xB6\xD0\xB8\xD1\x82\xD0\xBE";  // no place in the code page

class Sicherungsfrage : public Probesitzung {
protected:
    Sicherungsfrage() { schreibe_Saetze("Other", Felder_); }

    void verstelle_backup() const { std::ofstream(Wurzel_ / "backup") << "a file in the way"; }
    const Zustand& z() const { return s_->Stand(); }
    int Platz(Satzart Art, const std::string& Name) const {
        const auto& Liste = z().Listen[Art];
        return static_cast<int>(std::find(Liste.begin(), Liste.end(), Name) - Liste.begin());
    }
    std::vector<std::string> gesicherte() const {
        std::vector<std::string> Namen;
        if (!fs::exists(Wurzel_ / "backup")) return Namen;
        for (const auto& f : fs::recursive_directory_iterator(Wurzel_ / "backup")) {
            if (f.is_regular_file()) Namen.push_back(f.path().filename().string());
        }
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }
    void erwarte_Frage(const std::string& Anfang, Knopf Antwort) { Fragen_.erwarte_Anfang("Runtime error", Anfang, Antwort); }
};

TEST_F(Sicherungsfrage, yes_does_the_command_without_the_backup) {
    gestartet();
    verstelle_backup();
    Fragen_.erwarte_Anfang("Delete record", "Do you really", Knopf::Ja);
    erwarte_Frage("Cannot make the folder", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_FALSE(gibt_es("input/Probe.sce"));
}

TEST_F(Sicherungsfrage, esc_is_not_now) {
    gestartet();
    verstelle_backup();
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein);
    erwarte_Frage("Cannot make the folder", Knopf::nicht_jetzt);
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, Platz(Wirkstoff, "Other"));
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Sicherungsfrage, value_that_no_record_can_hold_blocks_no_simulation) {
    schreibe_Simulation(Projektordner(Wurzel_.string()), "Second", {"Another", {"", "Other", "Other", "Other"}});
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>(unhaltbar);
    erwarte_Frage("unsaved Second.vnk: ", Knopf::Nein);
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(Simulation, "Probe"));
    EXPECT_EQ(z().gewaehlt(Simulation), "Second");
    erwarte_Frage("unsaved Second.vnk: ", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(Simulation, "Probe"));
    EXPECT_EQ(z().gewaehlt(Simulation), "Probe");
    EXPECT_EQ(z().Vorgabe.Beschreibung, "A trial");
}

TEST_F(Sicherungsfrage, what_can_be_kept_beside_it_is_kept) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>(unhaltbar);
    tippe("S_DT50_0", "12");
    erwarte_Frage("unsaved Probe.vnk: ", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(0);
    EXPECT_EQ(gesicherte(), std::vector<std::string>{"unsaved Probe.che"});
}

TEST_F(Sicherungsfrage, value_that_no_record_can_hold_blocks_no_exit) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>(unhaltbar);
    erwarte_Frage("unsaved Probe.vnk: ", Knopf::Nein);
    EXPECT_FALSE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    erwarte_Frage("unsaved Probe.vnk: ", Knopf::Ja);
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
}

TEST_F(Sicherungsfrage, value_that_no_record_can_hold_blocks_no_program_defaults) {
    for (const char* Endung : {".chn", ".apn", ".scn"}) {
        const std::string Satz = std::string("Other") + (Endung[1] == 'c' ? ".che" : Endung[1] == 'a' ? ".app" : ".sce");
        fs::copy_file(Wurzel_ / "input" / Satz, Wurzel_ / "input" / (std::string("Do not delete this file") + Endung));
    }
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>(unhaltbar);
    erwarte_Frage("unsaved Probe.vnk: ", Knopf::Ja);
    Fragen_.erwarte_Anfang("Default settings", "The default parameters");
    s_->fuehre_aus<&Satzverwaltung::lade_Voreinstellungen>();
    EXPECT_TRUE(z().beendet());
}

TEST_F(Sicherungsfrage, a_record_that_cannot_be_read_can_be_deleted) {
    gestartet();
    fs::resize_file(Wurzel_ / "input/Other.sce", (std::size_t{16} << 20) + 1);
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Applikation, Platz(Applikation, "Other"));  // any command
    Fragen_.erwarte_Anfang("Runtime error", "Cannot read the file");
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, Platz(Szenario, "Other"));
    Fragen_.erwarte_Anfang("Delete record", "Do you really", Knopf::Ja);
    erwarte_Frage("Cannot read the file", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_FALSE(gibt_es("input/Other.sce"));
}

TEST_F(Sicherungsfrage, the_same_values_dropped_twice_are_kept_once) {
    gestartet();
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(0);
    tippe("S_DT50_0", "12");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(0);
    EXPECT_EQ(gesicherte(), std::vector<std::string>{"unsaved Probe.che"});
}

// ---- a disk that fails, see tests/versager

class Versagende_Platte : public Sicherungsfrage {
protected:
    void SetUp() override {
        if (!Versager::geladen()) GTEST_SKIP() << "needs the library of tests/versager, see the test of that name";
    }
};

TEST_F(Versagende_Platte, record_whose_flush_fails_is_not_called_saved) {
    gestartet();
    tippe("S_DT50_0", "12");
    const std::string vorher = Datei("input/Probe.che");
    const Versager Platte(1, 0);
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.che"), vorher);
    EXPECT_TRUE(z().Saetze[Wirkstoff].Geaendert());
    EXPECT_TRUE(z().verschieden(Wirkstoff));
    EXPECT_EQ(z().Statuszeile.Text().find("saved"), std::string::npos) << z().Statuszeile.Text();
}

TEST_F(Versagende_Platte, full_disk_keeps_nobody_from_going_on_and_leaving) {
    gestartet();
    const Versager Platte(0, 1);
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");  // by-products, once
    tippe("S_DT50_0", "12");
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein);
    erwarte_Frage("Cannot write the file", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, Platz(Wirkstoff, "Other"));
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Other");
    EXPECT_FALSE(z().abgedeckt());
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    tippe("S_DT50_0", "15");
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Ja);
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(z().beendet()) << "a Yes that could not be done keeps the program";
    Fragen_.erwarte_Anfang("Save changes?", "You modified", Knopf::Nein);
    erwarte_Frage("Cannot write the file", Knopf::Ja);
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_FALSE(gibt_es("backup"));
}

}  // namespace
}  // namespace varnok
