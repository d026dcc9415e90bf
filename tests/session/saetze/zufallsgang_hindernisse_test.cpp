// Commands in any order in a project where links stand, folders close and vanish, the disk fails and other machines lock:
// whatever happens, nothing is torn, nothing is gone without a word, nothing outside changes, and the program can be left.

#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"
#include "support/ohne_rechte.h"
#include "support/versager.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;
using Bytes_nach_Namen = std::map<std::string, std::string>;

class Antworter : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        gehoert += f.Titel + ": " + f.Text + "\n";
        Meldungen += f.Titel == "Runtime error" || f.Titel == "Save changes?" || f.Titel == "Record not set";
        if (auf_dem_Weg_hinaus) return f.Titel == "Save changes?" ? Knopf::Nein : f.Knoepfe.front();
        const bool Wahl = std::find(f.Knoepfe.begin(), f.Knoepfe.end(), Knopf::Ja) != f.Knoepfe.end();
        if (!Wahl) return f.Knoepfe.front();
        if (ja && f.Text.find("It cannot be kept. Go on?") != std::string::npos) eingewilligt = true;
        return ja ? Knopf::Ja : Knopf::Nein;
    }
    void beginne(bool Antwort) {
        ja = Antwort;
        eingewilligt = false;
        Meldungen = 0;
        gehoert.clear();
    }
    bool ja = true;
    bool auf_dem_Weg_hinaus = false;  // does not save and goes on
    bool eingewilligt = false;        // that something which cannot be kept is lost
    int Meldungen = 0;
    std::string gehoert;
};

// Runs with the library of tests/versager, see the test of that name.
class Versagende_Platte_im_Gang : public Probesitzung {
protected:
    void SetUp() override {
        if (!Versager::geladen()) GTEST_SKIP() << "needs the library of tests/versager, see the test of that name";
        fremd_ = Wurzel_.string() + " elsewhere";
        fs::create_directories(fremd_ / "folder");
        for (const char* Name : {"mine", "mine.che", "folder/mine", "unsaved"}) std::ofstream(fremd_ / Name) << "of the user\n";
        Fremdes_ = lies(fremd_);
        for (const std::string Name : {"alpha", "beta", "gamma"}) {
            Felder_.Name_Wirkstoff = "Compound " + Name;
            Felder_.Bodenszenario = "Soil " + Name;
            schreibe_Saetze(Name, Felder_);
            schreibe_Simulation(Projektordner(Wurzel_.string()), Name, {"About " + Name, {"", Name, Name, Name}});
        }
        for (const Satzart Art : Eingabearten) {
            const auto Vorlage = Wurzel_ / "input" / (std::string("do not delete this file") + Endungen[Art + 3]);
            fs::copy_file(Wurzel_ / "input" / (std::string("beta") + Endungen[Art]), Vorlage);
        }
        oeffne();
    }
    void TearDown() override {
        s_.reset();
        raeume_Hindernisse();
        fs::remove_all(fremd_);
    }

    // Files below a folder, read through links; what is no file, or leads nowhere, is left out.
    static Bytes_nach_Namen lies(const fs::path& Ordner) {
        Bytes_nach_Namen Gefundene;
        std::error_code Fehler;
        for (const auto& f : fs::recursive_directory_iterator(Ordner, Fehler)) {
            if (!fs::is_regular_file(f.path(), Fehler)) continue;
            std::ostringstream Inhalt;
            Inhalt << std::ifstream(f.path(), std::ios::binary).rdbuf();
            Gefundene[f.path().lexically_relative(Ordner).string()] = Inhalt.str();
        }
        return Gefundene;
    }
    int ganze_Zahl(int bis) { return std::uniform_int_distribution<int>(0, bis - 1)(Zufall_); }
    Satzart Satz() { return Eingabearten.at(static_cast<std::size_t>(ganze_Zahl(3))); }
    Satzart Art() { return alle_Arten.at(static_cast<std::size_t>(ganze_Zahl(4))); }
    const Zustand& z() const { return s_->Stand(); }

    void oeffne();
    std::string stelle_Hindernis();
    void setze_Link();
    void raeume_Hindernisse();
    std::string handle();
    std::string handle_mit_Dateien();
    std::string handle_auf_dem_Schirm();
    void verlange_dass_nichts_verloren_ging(const std::string& Befehl);
    void verlange_Gesichertes(const std::string& Befehl);
    void verlange_ganze_Dateien();
    void verlange_Ausweg();
    void schaue();

    Antworter Antworten_;
    fs::path fremd_;
    Bytes_nach_Namen Fremdes_;
    std::mt19937 Zufall_{20180921};
    std::optional<Versager> Platte_;
    std::optional<Ohne_Schreibrecht> Rechte_;
    std::vector<std::string> verschwunden_;
    int letzte_Zahl_ = 0, Auslagerungen_ = 0;
    std::map<std::string, int> Zaehler_;
    // As it was before the command.
    Bytes_nach_Namen Eingaben_;
    std::set<std::string> ungesichert_;
    std::set<std::pair<std::string, std::string>> eigene_;  // name and bytes that a save replaces
};

void Versagende_Platte_im_Gang::oeffne() {
    s_.reset();
    s_ = std::make_unique<Sitzung>(Umgebung{&Antworten_, Wurzel_.string(), "", '.'});
    ASSERT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>()) << Antworten_.gehoert;
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
}

// A record that is kept elsewhere, or a trap.
void Versagende_Platte_im_Gang::setze_Link() {
    const auto Eingabe = Wurzel_ / "input";
    switch (ganze_Zahl(5)) {
        case 0: {
            const Satzart t = Satz();
            const auto& Liste = z().Listen[t];
            if (Liste.empty()) return;
            const std::string Name = Liste.at(static_cast<std::size_t>(ganze_Zahl(static_cast<int>(Liste.size()))));
            if (fs::is_symlink(Eingabe / (Name + Endungen[t])) || !fs::exists(Eingabe / (Name + Endungen[t]))) return;
            const auto Ziel = fremd_ / ("kept " + std::to_string(++Auslagerungen_) + Endungen[t]);
            fs::rename(Eingabe / (Name + Endungen[t]), Ziel);
            fs::create_symlink(Ziel, Eingabe / (Name + Endungen[t]));
            return;
        }
        case 1:
        case 2: {
            const fs::path Ordner = Wurzel_ / (ganze_Zahl(2) == 0 ? "backup" : "output");
            if (fs::is_symlink(Ordner)) return;
            if (fs::exists(Ordner)) fs::rename(Ordner, Ordner.string() + ".away");
            fs::create_directory_symlink(fremd_, Ordner);
            return;
        }
        default: {
            const std::string Name = ganze_Zahl(2) == 0 ? "epsilon.che" : "new scenario9.sce";
            if (fs::symlink_status(Eingabe / Name).type() != fs::file_type::not_found) return;
            fs::create_symlink(fremd_ / (ganze_Zahl(2) == 0 ? "mine" : "not there"), Eingabe / Name);
        }
    }
}

std::string Versagende_Platte_im_Gang::stelle_Hindernis() {
    switch (ganze_Zahl(5)) {
        case 0:
            setze_Link();
            return "link";
        case 1:
            Platte_.emplace(ganze_Zahl(2) == 0 ? 0 : 1 + ganze_Zahl(4), 1 + ganze_Zahl(4));
            return "disk";
        case 2:
            Rechte_.emplace(std::vector{Wurzel_ / "input", Wurzel_});
            return "rights";
        case 3: {
            const std::string Name = std::array{"input", "backup", "output"}.at(static_cast<std::size_t>(ganze_Zahl(3)));
            if (!fs::exists(Wurzel_ / Name) || fs::is_symlink(Wurzel_ / Name)) return "none";
            fs::rename(Wurzel_ / Name, Wurzel_ / (Name + ".gone"));
            verschwunden_.push_back(Name);
            return "vanished";
        }
        default: {
            // Whoever starts now finds the folder in use elsewhere.
            s_->fuehre_aus<&Zwischensicherung::schreibe>();
            s_.reset();
            std::ofstream(Wurzel_ / ".varnok.lock") << "4711\nvarnok\nlaboratory\n\n\n";
            oeffne();
            return "lock";
        }
    }
}

void Versagende_Platte_im_Gang::raeume_Hindernisse() {
    Platte_.reset();
    Rechte_.reset();
    for (const std::string& Name : verschwunden_) {
        // What was made meanwhile in the place of it is kept beside it.
        if (fs::exists(Wurzel_ / Name)) fs::rename(Wurzel_ / Name, Wurzel_ / (Name + ".made " + std::to_string(++letzte_Zahl_)));
        fs::rename(Wurzel_ / (Name + ".gone"), Wurzel_ / Name);
    }
    verschwunden_.clear();
    for (const char* Name : {"backup", "output"}) {
        if (!fs::is_symlink(Wurzel_ / Name)) continue;
        fs::remove(Wurzel_ / Name);
        if (const auto altes = Wurzel_ / (std::string(Name) + ".away"); fs::exists(altes)) fs::rename(altes, Wurzel_ / Name);
    }
}

std::string Versagende_Platte_im_Gang::handle_mit_Dateien() {
    const Satzart t = Art();
    if (z().Listen[t].size() > 9 || ganze_Zahl(4) == 0) {
        s_->fuehre_aus<&Satzverwaltung::loesche>(t);
        return "delete";
    }
    switch (ganze_Zahl(3)) {
        case 0:
            if (z().Namen[t].size() < 60) s_->fuehre_aus<&Satzverwaltung::kopiere>(t);
            return "copy";
        case 1:
            s_->fuehre_aus<&Satzverwaltung::lege_an>(Satz());
            return "new";
        default:
            break;
    }
    constexpr std::array Namen = {"alpha", "beta", "gamma", "delta", "epsilon", "zeta"};
    benenne_um(*s_, t, Namen.at(static_cast<std::size_t>(ganze_Zahl(6))), ganze_Zahl(3) > 0);
    return "rename";
}

std::string Versagende_Platte_im_Gang::handle_auf_dem_Schirm() {
    const std::string Zahl = std::to_string(++letzte_Zahl_);
    switch (ganze_Zahl(3)) {
        case 0:
            s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Compound " + Zahl);
            s_->fuehre_aus<&Listenwahl::verlasse_Namen>();
            break;
        case 1:
            tippe("Applikationsrate", Zahl);
            break;
        default:
            s_->fuehre_aus<&Beschreibungseingabe::aendere>("Text " + Zahl);
    }
    return "field";
}

std::string Versagende_Platte_im_Gang::handle() {
    const int Wahl = ganze_Zahl(15);
    if (Wahl < 4) return handle_mit_Dateien();
    if (Wahl < 7) return handle_auf_dem_Schirm();
    if (Wahl == 7) return s_->fuehre_aus<&Satzverwaltung::aktualisiere>(), "refresh";
    if (Wahl == 8) return s_->fuehre_aus<&Berichtssteuerung::erstelle>(), "report";
    if (Wahl < 11) return s_->fuehre_aus<&Satzverwaltung::speichere>(), "save";
    if (Wahl == 11) {
        auto Angebot = s_->zeige<Wiederherstellung>().Angebot();
        std::shuffle(Angebot.begin(), Angebot.end(), Zufall_);
        if (Angebot.size() > 2) Angebot.resize(2);
        s_->fuehre_aus<&Wiederherstellung::stelle_her>(Angebot);
        return "restore";
    }
    const Satzart t = Wahl == 12 ? Simulation : Satz();
    if (z().Listen[t].empty()) return "none";
    const int Platz = ganze_Zahl(static_cast<int>(z().Listen[t].size()));
    if (t == Simulation) return s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz), "simulation";
    return s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(t, Platz), "choose";
}

void Versagende_Platte_im_Gang::schaue() {
    Eingaben_ = lies(Wurzel_ / "input");
    ungesichert_.clear();
    eigene_.clear();
    for (const Satzart t : alle_Arten) {
        const Satzplatz& p = z().Saetze[t];
        if (t != Simulation && p.gelesen() && z().verschieden(t)) ungesichert_.insert(z().Speicherbild(t));
        eigene_.emplace(p.Datei().Name + Endungen[t], p.Datei().Bytes);
    }
}

// Each file and each unsaved record is still somewhere, unless the user was asked, typed over it or saved over it.
void Versagende_Platte_im_Gang::verlange_dass_nichts_verloren_ging(const std::string& Befehl) {
    if (Antworten_.eingewilligt) return;
    std::set<std::string> vorhanden;
    for (const fs::path& Ordner : {Wurzel_, fremd_}) {
        for (const auto& [Name, Bytes] : lies(Ordner)) vorhanden.insert(Bytes);
    }
    for (const Satzart t : alle_Arten) vorhanden.insert(z().Speicherbild(t));
    const bool sichernd = Befehl == "save" || (Befehl == "choose" && Antworten_.ja);
    for (const auto& [Name, Bytes] : Eingaben_) {
        if (sichernd && eigene_.contains({Name, Bytes})) continue;
        EXPECT_TRUE(vorhanden.contains(Bytes)) << Name << " is gone\n" << Antworten_.gehoert;
    }
    if (Befehl == "field") return;
    for (const std::string& Bytes : ungesichert_)
        EXPECT_TRUE(vorhanden.contains(Bytes)) << "what was not saved is gone\n" << Bytes;
}

// What was not told is saved.
void Versagende_Platte_im_Gang::verlange_Gesichertes(const std::string& Befehl) {
    if (Befehl != "save" || Antworten_.Meldungen > 0) return;
    for (const Satzart t : alle_Arten) {
        if (!z().Saetze[t].gelesen()) continue;
        EXPECT_EQ(Datei("input/" + z().Namen[t] + Endungen[t]), z().Speicherbild(t)) << Endungen[t];
        EXPECT_FALSE(z().verschieden(t));
    }
}

void Versagende_Platte_im_Gang::verlange_ganze_Dateien() {
    Bytes_nach_Namen Fremdes = lies(fremd_);
    std::erase_if(Fremdes, [](const auto& f) { return f.first.starts_with("kept "); });
    EXPECT_EQ(Fremdes, Fremdes_) << "outside of the project";
    for (const auto& [Name, Bytes] : lies(Wurzel_)) {
        const std::string Endung = fs::path(Name).extension().string();
        const bool bekannt =
            std::set<std::string>{".che", ".app", ".sce", ".vnk", ".chn", ".apn", ".scn", ".rtf", ".txt", ".tab", ".ini", ".lock"}
                .contains(Endung);
        EXPECT_TRUE(bekannt || Name == ".varnok.lock" || Name.ends_with("unsaved")) << Name << " was left";
        EXPECT_EQ(Name.find("unfinished"), std::string::npos) << Name << " was left";
        EXPECT_TRUE(Bytes.ends_with("\n") || !Name.starts_with("input/")) << Name << " is torn";
    }
}

// Whatever stands in the way, who does not want to save gets out.
void Versagende_Platte_im_Gang::verlange_Ausweg() {
    Antworten_.beginne(true);
    Antworten_.auf_dem_Weg_hinaus = true;
    s_->fuehre_aus<&Programmablauf::schliesse_Fenster>();
    Antworten_.auf_dem_Weg_hinaus = false;
    EXPECT_TRUE(z().beendet()) << Antworten_.gehoert;
    raeume_Hindernisse();
    oeffne();
}

TEST_F(Versagende_Platte_im_Gang, nothing_is_lost_torn_or_written_elsewhere) {
    std::string Weg, Hindernis = "none";
    for (int Schritt = 1; Schritt <= 600 && !HasFailure(); ++Schritt) {
        if (ganze_Zahl(4) == 0) {
            if (ganze_Zahl(4) == 0) verlange_Ausweg();
            raeume_Hindernisse();
            Antworten_.beginne(ganze_Zahl(2) == 0);
            Hindernis = ganze_Zahl(3) == 0 ? "none" : stelle_Hindernis();
            ++Zaehler_[Hindernis];
            Weg += " [" + Hindernis + "]";
        }
        schaue();
        Antworten_.beginne(ganze_Zahl(2) == 0);
        const std::string Befehl = handle();
        s_->fuehre_aus<&Zwischensicherung::schreibe>();
        ++Zaehler_[Befehl];
        Weg = Weg.substr(Weg.size() > 120 ? Weg.size() - 120 : 0) + " " + Befehl;
        SCOPED_TRACE("step " + std::to_string(Schritt) + " after" + Weg + (Antworten_.ja ? " (Yes)\n" : " (No)\n") +
                     Antworten_.gehoert);
        verlange_dass_nichts_verloren_ging(Befehl);
        verlange_Gesichertes(Befehl);
        verlange_ganze_Dateien();
    }
    for (const char* Was : {"link", "disk", "rights", "vanished", "lock", "new", "copy", "delete", "rename", "choose",
                            "simulation", "save", "refresh", "field", "restore", "report"}) {
        EXPECT_GE(Zaehler_[Was], 12) << Was;
    }
}

}  // namespace
}  // namespace varnok
