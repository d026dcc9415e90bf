#include "session/programm/aktualisierungssteuerung.h"

#include "extras/schluessel.h"
#include "extras/signatur.h"
#include "session/kern/probesitzung.h"
#include "support/updatewelt.h"

namespace varnok {
namespace {

constexpr const char* neue_Version = "There is a new version of the software available.\nDo you want to update online?";
constexpr const char* geladen =
    "The new version has been downloaded!\nVARNOK will now exit. Please call it again if it does not start automatically.";

std::string Seite(const std::string& Version) { return "<a href=\"Varnok_package_" + Version + ".zip\">VARNOK</a>\r\n"; }

class Onlinecheck : public Probesitzung {
protected:
    Onlinecheck() : Ziel_{"http", "example.org", Testschluessel().Hex()} {
        Netz_.Antworten[Ziel_.Programm()] = "new program";
        Netz_.Antworten[Ziel_.Signatur()] =
            Testschluessel().signiere(signierter_Text("20180922", Aktualisierungsziel::Programmname(), "new program"));
    }
    // Before the members that it uses.
    ~Onlinecheck() override { s_.reset(); }

    Sitzung& geladene() {
        s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Wurzel_.string(), "", '.', nullptr, {Ziel_, &Netz_, &Tausch_}});
        EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        return *s_;
    }
    Sitzung& gestartete() {
        geladene().fuehre_aus<&Programmablauf::verlasse_Startseite>();
        return *s_;
    }
    void Server_bietet(const std::string& Version) { Netz_.Antworten[Ziel_.Versionsseite()] = Seite(Version); }
    // The check of the start; counts the actions that it leads to.
    void suche_beim_Start() {
        s_->fuehre_aus<&Aktualisierungssteuerung::suche_beim_Start>([this](const std::string& Seite) {
            ++Handlungen_;
            s_->fuehre_aus<&Aktualisierungssteuerung::melde>(Seite);
        });
    }
    void erwarte_keine_Verbindung() { Fragen_.erwarte("Connection error", "Varnok could not connect to the update server"); }

    Aktualisierungsziel Ziel_;
    Scheinnetz Netz_;
    Scheintausch Tausch_;
    int Handlungen_ = 0;
};

TEST_F(Onlinecheck, without_a_host_answers_with_the_connection_message) {
    gestartet();
    erwarte_keine_Verbindung();
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(s_->zeige<Aktualisierungssteuerung>().Fehler());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Onlinecheck, without_a_host_asks_nobody) {
    Ziel_.Host.clear();
    gestartete();
    suche_beim_Start();
    erwarte_keine_Verbindung();
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(Netz_.gefragt.empty());
    EXPECT_TRUE(Netz_.nebenher_gefragt.empty());
    EXPECT_EQ(Netz_.abgebrochen, 0);
}

TEST_F(Onlinecheck, without_an_answer_tells_that_there_is_no_connection) {
    gestartete();
    erwarte_keine_Verbindung();
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(s_->zeige<Aktualisierungssteuerung>().Fehler());
    EXPECT_EQ(Netz_.gefragt, std::vector<std::string>{Ziel_.Versionsseite()});
}

TEST_F(Onlinecheck, with_the_latest_version_says_so_and_clears_the_error) {
    gestartete();
    erwarte_keine_Verbindung();
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    Server_bietet("20180921");
    Fragen_.erwarte("VARNOK", "You have the latest version of the software.");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_FALSE(s_->zeige<Aktualisierungssteuerung>().Fehler());
    EXPECT_FALSE(s_->Stand().beendet());
}

TEST_F(Onlinecheck, with_an_older_version_on_the_server_calls_this_one_unofficial) {
    Server_bietet("20180920");
    gestartete();
    Fragen_.erwarte("VARNOK", "You are using an unofficial version of the software.\n", Knopf::Abbrechen);
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_FALSE(s_->zeige<Aktualisierungssteuerung>().Fehler());
}

TEST_F(Onlinecheck, with_a_newer_version_that_is_not_wanted_goes_on) {
    Server_bietet("20180922");
    gestartete();
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Nein);
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_FALSE(s_->Stand().beendet());
    EXPECT_TRUE(Tausch_.bereit.empty());
}

TEST_F(Onlinecheck, an_update_drops_what_is_not_saved_and_ends) {
    Server_bietet("20180922");
    gestartete();
    tippe("Applikationsrate", "500");
    const std::string vorher = Datei("input/Probe.app");
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja).erwarte("VARNOK", geladen);
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_EQ(Tausch_.bereit, "new program");
    EXPECT_EQ(Tausch_.gestartet, 1);
    EXPECT_TRUE(s_->Stand().beendet());
    EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());  // without a question
    EXPECT_EQ(Datei("input/Probe.app"), vorher);
}

TEST_F(Onlinecheck, a_download_that_fails_is_told_as_such) {
    Server_bietet("20180922");
    Netz_.Antworten.erase(Ziel_.Programm());
    gestartete();
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja);
    Fragen_.erwarte_Anfang("Update not installed", "The new version could not be downloaded:");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(s_->zeige<Aktualisierungssteuerung>().Fehler());
    EXPECT_FALSE(s_->Stand().beendet());
}

TEST_F(Onlinecheck, a_wrong_signature_has_one_message_of_its_own) {
    Server_bietet("20180923");  // signed for the day before
    gestartete();
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja)
        .erwarte("Update not installed",
                 "The signature of the new version does not fit: "
                 "it was damaged on its way, or it is not from the maker of VARNOK.\n"
                 "Nothing was replaced.");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(s_->zeige<Aktualisierungssteuerung>().Fehler());
    EXPECT_TRUE(Tausch_.bereit.empty());
    EXPECT_FALSE(s_->Stand().beendet());
}

TEST_F(Onlinecheck, a_script_that_does_not_start_keeps_the_program_running) {
    Server_bietet("20180922");
    Tausch_.startet = false;
    gestartete();
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja)
        .erwarte("VARNOK", geladen)
        .erwarte("Update not installed", "The program that replaces this one could not be started.\nNothing was replaced.");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(Tausch_.bereit.empty());
    EXPECT_FALSE(s_->Stand().beendet());
}

TEST_F(Onlinecheck, of_a_program_that_cannot_be_replaced_gives_the_address) {
    Server_bietet("20180922");
    Tausch_.ersetzbar = false;
    gestartete();
    Fragen_.erwarte("Update available!",
                    "There is a new version of the software available.\nhttp://example.org/download/permanent/zq/VARNOK/");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_EQ(Netz_.gefragt.size(), 1U);
}

// The entry of the menu is disabled as long as this is set.
TEST_F(Onlinecheck, is_known_to_run_while_it_waits_for_the_server) {
    gestartete();
    bool laeuft = false;
    Netz_.waehrend = [&] { laeuft = s_->zeige<Aktualisierungssteuerung>().laeuft(); };
    erwarte_keine_Verbindung();
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(laeuft);
    EXPECT_FALSE(s_->zeige<Aktualisierungssteuerung>().laeuft());
}

TEST_F(Onlinecheck, waits_for_a_field_that_is_not_valid) {
    gestartete();
    const int f = Feld("Applikationsrate");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "-1");
    Fragen_.erwarte_Anfang("No valid input!", "");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_TRUE(Netz_.gefragt.empty());
}

TEST_F(Onlinecheck, at_the_start_returns_at_once_and_waits_for_three_seconds) {
    geladene();
    suche_beim_Start();
    EXPECT_EQ(Netz_.nebenher_gefragt, std::vector<std::string>{Ziel_.Versionsseite()});
    EXPECT_EQ(Netz_.Frist, std::chrono::seconds(3));
    EXPECT_EQ(Handlungen_, 0);
}

TEST_F(Onlinecheck, at_the_start_speaks_over_the_start_page) {
    geladene();
    suche_beim_Start();
    Fragen_.erwarte("VARNOK", "You have the latest version of the software.");
    Netz_.antworte(Seite("20180921"));
    EXPECT_EQ(Handlungen_, 1);
    EXPECT_FALSE(s_->zeige<Aktualisierungssteuerung>().Fehler());
}

TEST_F(Onlinecheck, at_the_start_can_update) {
    geladene();
    suche_beim_Start();
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja).erwarte("VARNOK", geladen);
    Netz_.antworte(Seite("20180922"));
    EXPECT_EQ(Tausch_.gestartet, 1);
    EXPECT_TRUE(s_->Stand().beendet());
}

TEST_F(Onlinecheck, at_the_start_is_silent_without_a_usable_answer) {
    geladene();
    for (const Abrufantwort& Antwort : {Abrufantwort(), Abrufantwort(""), Abrufantwort("20180922.zip")}) {
        suche_beim_Start();
        Netz_.antworte(Antwort);
        EXPECT_TRUE(s_->zeige<Aktualisierungssteuerung>().Fehler());
    }
    EXPECT_EQ(Handlungen_, 0);
}

// The user asked for it.
TEST_F(Onlinecheck, at_the_start_a_download_that_fails_is_told) {
    geladene();
    Netz_.Antworten.clear();
    suche_beim_Start();
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja);
    Fragen_.erwarte_Anfang("Update not installed", "The new version could not be downloaded:");
    Netz_.antworte(Seite("20180922"));
    EXPECT_TRUE(s_->zeige<Aktualisierungssteuerung>().Fehler());
}

TEST_F(Onlinecheck, at_the_start_says_nothing_any_more_on_the_working_screen) {
    geladene();
    suche_beim_Start();
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    Netz_.antworte(Seite("20180922"));
    EXPECT_EQ(Handlungen_, 0);
}

TEST_F(Onlinecheck, by_the_menu_takes_the_place_of_the_one_at_the_start) {
    geladene();
    suche_beim_Start();
    erwarte_keine_Verbindung();
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_EQ(Netz_.abgebrochen, 1);
    Netz_.antworte(Seite("20180922"));
    EXPECT_EQ(Handlungen_, 0);
}

TEST_F(Onlinecheck, at_the_start_ends_with_the_session) {
    geladene();
    suche_beim_Start();
    s_.reset();
    EXPECT_EQ(Netz_.abgebrochen, 1);
}

TEST_F(Onlinecheck, leaves_no_file_of_the_version_page) {
    Server_bietet("20180921");
    gestartete();
    Fragen_.erwarte("VARNOK", "You have the latest version of the software.");
    s_->fuehre_aus<&Aktualisierungssteuerung::suche>();
    EXPECT_FALSE(gibt_es("Version.htm"));
}

}  // namespace
}  // namespace varnok
