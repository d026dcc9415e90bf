// The whole update against a real server, on a copy of a small program.

#include "extras/aktualisierung.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "extras/netzabruf.h"
#include "extras/schluessel.h"
#include "extras/signatur.h"
#include "extras/testserver.h"
#include "support/drehbuch.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;
using Ausgang = Aktualisierungsausgang;

constexpr const char* Seitenpfad = "/download/permanent/zq/VARNOK/";
const std::string Programmpfad = "/download/permanent/zq/VARNOK_update/" + Aktualisierungsziel::Programmname();
const std::string Signaturpfad = Programmpfad + ".sig";

constexpr const char* neue_Version = "There is a new version of the software available.\nDo you want to update online?";
constexpr const char* geladen =
    "The new version has been downloaded!\nVARNOK will now exit. Please call it again if it does not start automatically.";
const std::string neues_Programm = "#!/bin/sh\necho new >\"${0%/*}/started\"\n";

QByteArray Seite(const std::string& Version) {
    return QByteArray::fromStdString("<html>\r\n<a href=\"Varnok_package_" + Version + ".zip\">VARNOK</a>\r\n");
}

class Update : public ::testing::Test {
protected:
    Update() : Wurzel_(Ordner_.path().toStdString()) {
        std::ofstream(Wurzel_ / "varnok") << "old";
        fs::permissions(Wurzel_ / "varnok", fs::perms(0755));
        laufend_.start(QStringLiteral("/bin/cat"), {});
        EXPECT_TRUE(laufend_.waitForStarted());
        Tausch_ = std::make_unique<Dateitausch>((Wurzel_ / "varnok").string(), Wurzel_.string(), laufend_.processId());
        Welt_ = {{"http", Server_.Host(), Hersteller_.Hex()}, &Abruf_, Tausch_.get()};
        biete_an("20180922",
                 Hersteller_.signiere(signierter_Text("20180922", Aktualisierungsziel::Programmname(), neues_Programm)));
    }
    ~Update() override { beende_alten(); }

    void biete_an(const std::string& Version, const std::string& Signatur) {
        Server_.bei(Seitenpfad, antworte(Seite(Version)));
        Server_.bei(Programmpfad.c_str(), antworte(QByteArray::fromStdString(neues_Programm)));
        Server_.bei(Signaturpfad.c_str(), antworte(QByteArray::fromStdString(Signatur)));
    }
    Ausgang suche(std::function<void()> vor_dem_Ende = {}) {
        return Aktualisierung(Fragen_, Welt_, std::move(vor_dem_Ende)).Suche_nach_Update();
    }
    Drehbuch& Nutzer_will() { return Fragen_.erwarte("Update available!", neue_Version, Knopf::Ja); }
    Drehbuch& Nutzer_hoert_Ablehnung(const std::string& Grund) {
        return Fragen_.erwarte("Update not installed", Grund + "\nNothing was replaced.");
    }
    Drehbuch& Download_gescheitert() {
        return Nutzer_hoert_Ablehnung(
            "The new version could not be downloaded: the connection broke off, or nothing came any more.");
    }
    Drehbuch& Signatur_falsch() {
        return Nutzer_hoert_Ablehnung(
            "The signature of the new version does not fit: it was damaged on its way, or it is not from the maker of VARNOK.");
    }
    std::string Inhalt(const char* Name) const {
        std::ifstream Strom(Wurzel_ / Name, std::ios::binary);
        std::ostringstream Text;
        Text << Strom.rdbuf();
        return Text.str();
    }
    // The old program and nothing else.
    void erwarte_nichts_geschehen() const {
        std::vector<std::string> Namen;
        for (const auto& Eintrag : fs::directory_iterator(Wurzel_)) Namen.push_back(Eintrag.path().filename().string());
        EXPECT_EQ(Namen, std::vector<std::string>{"varnok"});
        EXPECT_EQ(Inhalt("varnok"), "old");
    }
    void beende_alten() {
        laufend_.closeWriteChannel();
        laufend_.waitForFinished();
    }

    QTemporaryDir Ordner_;
    fs::path Wurzel_;
    Testschluessel Hersteller_;
    Testserver Server_;
    Netzabruf Abruf_;
    QProcess laufend_;  // in place of this program
    std::unique_ptr<Dateitausch> Tausch_;
    Drehbuch Fragen_;
    Aktualisierungswelt Welt_;
};

TEST_F(Update, the_same_version_is_the_latest) {
    biete_an("20180921", "");
    Fragen_.erwarte("VARNOK", "You have the latest version of the software.");
    EXPECT_EQ(suche(), Ausgang::beantwortet);
    EXPECT_EQ(Server_.gefragt(), QList<QByteArray>{Seitenpfad});
    erwarte_nichts_geschehen();
}

TEST_F(Update, an_older_version_on_the_server_makes_this_one_unofficial) {
    for (const Knopf Antwort : {Knopf::OK, Knopf::Abbrechen}) {
        biete_an("20180920", "");
        Fragen_.erwarte("VARNOK", "You are using an unofficial version of the software.\n", Antwort);
        EXPECT_EQ(suche(), Ausgang::beantwortet);
    }
    biete_an("x0180922", "");
    Fragen_.erwarte("VARNOK", "You are using an unofficial version of the software.\n");
    EXPECT_EQ(suche(), Ausgang::beantwortet);
    erwarte_nichts_geschehen();
}

TEST_F(Update, a_newer_version_that_is_not_wanted_is_not_fetched) {
    Fragen_.erwarte("Update available!", neue_Version, Knopf::Nein);
    EXPECT_EQ(suche(), Ausgang::beantwortet);
    EXPECT_EQ(Server_.gefragt(), QList<QByteArray>{Seitenpfad});
    erwarte_nichts_geschehen();
}

TEST_F(Update, a_newer_version_replaces_the_program_after_its_end_and_starts) {
    Nutzer_will().erwarte("VARNOK", geladen);
    bool gesichert = false;
    EXPECT_EQ(suche([&] { gesichert = true; }), Ausgang::Programmende);
    EXPECT_TRUE(gesichert);
    EXPECT_EQ(Inhalt("varnok"), "old");
    beende_alten();
    QElapsedTimer Uhr;
    for (Uhr.start(); Inhalt("started").empty() && Uhr.elapsed() < 30000;) QThread::msleep(20);
    EXPECT_EQ(Inhalt("started"), "new\n");
    EXPECT_EQ(Inhalt("varnok"), neues_Programm);
    EXPECT_FALSE(fs::exists(Wurzel_ / "New_varnok"));
    EXPECT_FALSE(fs::exists(Wurzel_ / "update.sh"));
}

TEST_F(Update, a_program_that_cannot_be_replaced_is_told_where_the_new_one_is) {
    const Dateitausch Paket("/usr/bin/env", "/", laufend_.processId());
    Dateitausch fest = Paket;
    Welt_.Tausch = &fest;
    Fragen_.erwarte("Update available!", "There is a new version of the software available.\n" + Server_.Adresse(Seitenpfad));
    EXPECT_EQ(suche(), Ausgang::beantwortet);
    EXPECT_EQ(Server_.gefragt(), QList<QByteArray>{Seitenpfad});
}

TEST_F(Update, a_page_that_offers_no_version_is_no_answer) {
    const QByteArray neueste = Seite("20180922");
    for (const QByteArray& Antwort :
         {QByteArray(), QByteArray("<html></html>"), QByteArray("20180922.zip"), QByteArray(neueste + "</html>\r\n")}) {
        Server_.bei(Seitenpfad, antworte(Antwort));
        EXPECT_EQ(suche(), Ausgang::keine_Antwort) << Antwort.toStdString();
    }
    erwarte_nichts_geschehen();
}

TEST_F(Update, a_page_that_does_not_come_whole_is_no_answer) {
    const QByteArray Kopf = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n";
    const QByteArray Antwort = Seite("20180922");
    for (const auto& v : {sende(Kopf + Antwort), antworte(Antwort, "404 Not Found"),
                          antworte(Antwort, "500 Internal Server Error"), antworte(QByteArray(1 << 20, '\n') + Antwort)}) {
        Server_.bei(Seitenpfad, v);
        EXPECT_EQ(suche(), Ausgang::keine_Antwort);
    }
    erwarte_nichts_geschehen();
}

TEST_F(Update, without_a_server_there_is_no_answer) {
    Server_.close();
    EXPECT_EQ(suche(), Ausgang::keine_Antwort);
}

TEST_F(Update, a_silent_server_is_no_answer_after_a_few_seconds) {
    Server_.bei(Seitenpfad, schweige());
    EXPECT_EQ(suche(), Ausgang::keine_Antwort);
}

TEST_F(Update, a_program_that_does_not_come_whole_is_not_kept) {
    const QByteArray Kopf = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n";
    const QByteArray Programm = QByteArray::fromStdString(neues_Programm);
    const Testserver anderer;
    for (const auto& v : {sende(Kopf + Programm), antworte(Programm, "404 Not Found"),
                          sende("HTTP/1.1 200 OK\r\nContent-Length: 200000000\r\n\r\n" + Programm),
                          leite_um(QByteArray::fromStdString(anderer.Adresse(Programmpfad.c_str())))}) {
        Server_.bei(Programmpfad.c_str(), v);
        Nutzer_will();
        Download_gescheitert();
        EXPECT_EQ(suche(), Ausgang::nicht_geladen);
        erwarte_nichts_geschehen();
    }
}

TEST_F(Update, without_a_signature_the_program_is_not_even_fetched) {
    Server_.bei(Signaturpfad.c_str(), antworte("not here", "404 Not Found"));
    Nutzer_will();
    Download_gescheitert();
    EXPECT_EQ(suche(), Ausgang::nicht_geladen);
    EXPECT_FALSE(Server_.gefragt().contains(QByteArray::fromStdString(Programmpfad)));
    erwarte_nichts_geschehen();
}

TEST_F(Update, a_signature_that_does_not_fit_is_told_and_nothing_kept) {
    const std::string richtig =
        Hersteller_.signiere(signierter_Text("20180922", Aktualisierungsziel::Programmname(), neues_Programm));
    for (const std::string& Signatur : {Testschluessel(2).signiere(signierter_Text(
                                            "20180922", Aktualisierungsziel::Programmname(), neues_Programm)),  // another maker
                                        Hersteller_.signiere(neues_Programm),                                   // no version
                                        Hersteller_.signiere(signierter_Text("20180101", Aktualisierungsziel::Programmname(),
                                                                             neues_Programm)),  // an old one again
                                        // A program of the maker for another platform.
                                        Hersteller_.signiere(signierter_Text("20180922", "Varnok.exe", neues_Programm)),
                                        richtig.substr(0, 63), richtig + "x", std::string()}) {
        biete_an("20180922", Signatur);
        Nutzer_will();
        Signatur_falsch();
        EXPECT_EQ(suche(), Ausgang::falsch_signiert);
        erwarte_nichts_geschehen();
    }
}

TEST_F(Update, a_program_changed_on_its_way_is_told_and_not_kept) {
    Server_.bei(Programmpfad.c_str(), antworte(QByteArray::fromStdString(neues_Programm + "rm -rf everything\n")));
    Nutzer_will();
    Signatur_falsch();
    EXPECT_EQ(suche(), Ausgang::falsch_signiert);
    erwarte_nichts_geschehen();
}

TEST_F(Update, what_cannot_be_put_by_keeps_the_program_running) {
    Nutzer_will();
    Nutzer_hoert_Ablehnung("no room for the backup");
    EXPECT_EQ(suche([] { throw std::runtime_error("no room for the backup"); }), Ausgang::nicht_ersetzt);
    erwarte_nichts_geschehen();
}

// Nothing of a deployment without a server may go to one, whatever else is there.
TEST_F(Update, without_a_host_nothing_is_asked) {
    Welt_.Ziel.Host.clear();
    EXPECT_FALSE(Welt_.vorhanden());
    EXPECT_EQ(suche(), Ausgang::keine_Antwort);
    EXPECT_TRUE(Server_.gefragt().isEmpty());
}

TEST(Auslieferung, has_a_key_wherever_it_has_a_host) {
    const Aktualisierungsziel Ziel = Ziel_der_Auslieferung();
    EXPECT_TRUE(Ziel.Host.empty() || Ziel.Schluessel.size() == 64);
}

TEST(Auslieferung, asks_at_these_addresses) {
    const Aktualisierungsziel Ziel{"http", "example.org", ""};
    EXPECT_EQ(Ziel.Versionsseite(), "http://example.org/download/permanent/zq/VARNOK/");
    EXPECT_EQ(Ziel.Programm(), "http://example.org/download/permanent/zq/VARNOK_update/" + Aktualisierungsziel::Programmname());
    EXPECT_EQ(Ziel.Signatur(), Ziel.Programm() + ".sig");
    EXPECT_EQ(Aktualisierungsziel::Programmname().substr(0, 13), "varnok-linux-");
}

}  // namespace
}  // namespace varnok
