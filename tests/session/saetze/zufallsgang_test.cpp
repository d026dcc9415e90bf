// Two thousand commands on records in any order, against a simple model of what must be on disk and on the screen.

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <map>
#include <random>
#include <sstream>

#include "records/satz.h"
#include "records/sicherung.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"
#include "session/saetze/satzmodell.h"

namespace varnok {
namespace {

// Each look at the clock is a second later: each backup has a folder of its own.
class Schrittuhr : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override { return Zeit_ += std::chrono::seconds(1); }

private:
    mutable std::chrono::system_clock::time_point Zeit_{std::chrono::hours(24 * 365 * 50)};
};

// Gives every question with Yes and No the answer of the step, and keeps the titles.
class Antworter : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        gefragt.push_back(f.Titel);
        const bool Wahl = std::find(f.Knoepfe.begin(), f.Knoepfe.end(), Knopf::Ja) != f.Knoepfe.end();
        return Wahl ? (ja ? Knopf::Ja : Knopf::Nein) : Knopf::OK;
    }
    bool ja = false;
    Textliste gefragt;
};

// The value behind a label of a record.
void setze_Zeile(std::string& Bytes, const std::string& Anfang, const std::string& Wert, char Ende) {
    const std::size_t von = Bytes.find(Anfang) + Anfang.size();
    Bytes.replace(von, Bytes.find(Ende, von) - von, Wert);
}

class Zufallsgang : public Probesitzung {
protected:
    Zufallsgang() {
        std::filesystem::remove_all(Wurzel_ / "input");
        std::filesystem::create_directory(Wurzel_ / "input");
        const Projektordner Ordner(Wurzel_.string());
        // Values that reading leaves as they are: an interval that two applications a year allow, the text of a constant climate.
        Felder_.Intervall_Index = 181;
        Felder_.Klimaszenario =
            "20 \xC2\xB0"
            "C constant";
        for (const std::string Name : {"alpha", "beta", "gamma"}) {
            Felder_.Name_Wirkstoff = "Compound " + Name;
            Felder_.Bodenszenario = "Soil " + Name;
            schreibe_Saetze(Name, Felder_);
            schreibe_Simulation(Ordner, Name, {"About " + Name, {"", Name, Name, Name}});
        }
        for (const Satzart t : Eingabearten) {
            const auto Vorlage = Wurzel_ / "input" / (std::string("do not delete this file") + Endungen[t + 3]);
            std::filesystem::copy_file(Wurzel_ / "input" / (std::string("beta") + Endungen[t]), Vorlage);
        }
        s_ = std::make_unique<Sitzung>(Umgebung{&Antworten_, Wurzel_.string(), "", '.', &Zeit_});
        EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
        beginne_Modell();
    }

    void beginne_Modell() {
        m_.Platte = lies("input");
        const std::string Name = s_->Stand().gewaehlt(Simulation);
        m_.Name = m_.gelesen = {Name, Name, Name, Name};
        m_.Schirm[0] = "About " + Name;
        for (const Satzart t : Eingabearten) m_.Schirm[t] = m_.Platte.at(Name + Endungen[t]);
        for (const Satzart t : alle_Arten) m_.merke(t);
    }

    Dateien lies(const std::filesystem::path& Ordner) const {
        Dateien Gefundene;
        std::error_code Fehler;
        for (const auto& f : std::filesystem::directory_iterator(Wurzel_ / Ordner, Fehler)) {
            std::ostringstream Inhalt;
            Inhalt << std::ifstream(f.path(), std::ios::binary).rdbuf();
            Gefundene[f.path().filename().string()] = Inhalt.str();
        }
        return Gefundene;
    }

    Textliste Sicherungen() const {
        Textliste Namen;
        std::error_code Fehler;
        for (const auto& f : std::filesystem::directory_iterator(Wurzel_ / "backup", Fehler)) {
            Namen.push_back(f.path().filename().string());
        }
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }

    int ganze_Zahl(int bis) { return std::uniform_int_distribution<int>(0, bis - 1)(Zufall_); }
    Satzart Art() { return static_cast<Satzart>(ganze_Zahl(4)); }
    Satzart Satz() { return Eingabearten[static_cast<std::size_t>(ganze_Zahl(3))]; }

    // Does one command on the program and on the model; gives its name for messages.
    std::string handle();
    std::string handle_mit_Dateien(int Wahl);
    std::string tippe_etwas(int Wahl);
    void vergleiche(const Textliste& bisher);

    Antworter Antworten_;
    Schrittuhr Zeit_;
    std::string letzte_Sicherung_;  // and what is in it
    decltype(Modell::gesichert) letzter_Inhalt_;
    Modell m_;
    std::mt19937 Zufall_{20180921};
    std::map<std::string, int> Zaehler_;  // of commands
    int letzte_Zahl_ = 0;                 // what is typed is never what stood there
};

std::string Zufallsgang::tippe_etwas(int Wahl) {
    const std::string Zahl = std::to_string(++letzte_Zahl_);
    if (Wahl == 0) {
        const std::string Name = "Compound " + Zahl;
        s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, Name);
        s_->fuehre_aus<&Listenwahl::verlasse_Namen>();
        const std::string vorher = m_.Schirm[1];
        setze_Zeile(m_.Schirm[1], "Parent:\t", Name, '\t');
        m_.geaendert[1] = m_.geaendert[1] || m_.Schirm[1] != vorher;
    } else if (Wahl == 1) {
        EXPECT_TRUE(tippe("Applikationsrate", Zahl));
        const std::string vorher = m_.Schirm[2];
        setze_Zeile(m_.Schirm[2], "Application rate (g/ha):\t", Zahl, '\r');
        m_.geaendert[2] = m_.geaendert[2] || m_.Schirm[2] != vorher;
    } else {
        s_->fuehre_aus<&Beschreibungseingabe::aendere>("Text " + Zahl);
        m_.geaendert[0] = m_.geaendert[0] || m_.Schirm[0] != "Text " + Zahl;
        m_.Schirm[0] = "Text " + Zahl;
    }
    return "field";
}

std::string Zufallsgang::handle_mit_Dateien(int Wahl) {
    const Satzart t = Art();
    // Folders stay small: what is made goes again.
    if (m_.Liste(t).size() > 9 || Wahl == 0) {
        s_->fuehre_aus<&Satzverwaltung::loesche>(t);
        m_.loesche(t);
        return "delete";
    }
    if (Wahl <= 2 && m_.Name[t].size() < 60) {
        s_->fuehre_aus<&Satzverwaltung::kopiere>(t);
        m_.kopiere(t);
        return "copy";
    }
    if (Wahl == 3) {
        const Satzart r = Satz();
        s_->fuehre_aus<&Satzverwaltung::lege_an>(r);
        m_.lege_an(r);
        return "new";
    }
    constexpr std::array<const char*, 6> Namen = {"alpha", "beta", "gamma", "delta", "epsilon", "zeta"};
    const std::string Name = Namen[static_cast<std::size_t>(ganze_Zahl(6))];
    const bool Enter = ganze_Zahl(3) > 0;
    benenne_um(*s_, t, Name + (ganze_Zahl(2) == 0 ? Endungen[t] : ""), Enter);
    m_.benenne_um(t, Name, Enter);
    return "rename";
}

std::string Zufallsgang::handle() {
    m_.ja = Antworten_.ja = ganze_Zahl(2) == 0;
    const int Wahl = ganze_Zahl(14);
    if (Wahl < 6) return handle_mit_Dateien(Wahl);
    if (Wahl < 9) return tippe_etwas(Wahl - 6);
    if (Wahl == 9) {
        s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
        m_.aktualisiere();
        return "refresh";
    }
    if (Wahl == 10) {
        s_->fuehre_aus<&Satzverwaltung::speichere>();
        m_.speichere();
        return "save";
    }
    const Satzart t = Wahl == 11 ? Simulation : Satz();
    const Textliste Liste = m_.Liste(t);
    const int Platz = ganze_Zahl(static_cast<int>(Liste.size()));
    const std::string& Name = Liste[static_cast<std::size_t>(Platz)];
    if (t == Simulation) {
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz);
        m_.waehle_Simulation(Name);
        return "simulation";
    }
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(t, Platz);
    m_.waehle(t, Name);
    return "choose";
}

void Zufallsgang::vergleiche(const Textliste& bisher) {
    m_.raeume_Marken_auf();
    const Zustand& z = s_->Stand();
    EXPECT_EQ(lies("input"), m_.Platte);
    EXPECT_EQ(Antworten_.gefragt, m_.Fragen);
    EXPECT_EQ(z.abgedeckt(), !m_.vollstaendig());
    EXPECT_EQ(z.Vorgabe.Beschreibung, m_.Schirm[0]);
    for (const Satzart t : alle_Arten) {
        EXPECT_EQ(z.Saetze[t].Geaendert(), m_.geaendert[t]);
        EXPECT_EQ(z.Listen[t], m_.Liste(t));
        EXPECT_EQ(z.gewaehlt(t), m_.Name[t]);
        EXPECT_EQ(z.Namen[t], m_.Name[t].empty() ? m_.fehlend[t] : m_.Name[t]);
        if (t != Simulation) {
            EXPECT_EQ(Satz_als_Bytes(t, z.Vorgabe, z.Sicht), m_.Schirm[t]);
        }
    }
    const Textliste Ordner = Sicherungen();
    if (m_.gesichert.empty()) {
        EXPECT_EQ(Ordner, bisher);
        return;
    }
    ASSERT_FALSE(Ordner.empty());
    // What the newest held already is not kept again.
    auto neue = m_.gesichert;
    if (!bisher.empty() && bisher.back() == letzte_Sicherung_) {
        for (const auto& [Datei, Bytes] : letzter_Inhalt_) {
            if (const auto n = neue.find(Datei); n != neue.end() && n->second == Bytes) neue.erase(n);
        }
    }
    const std::size_t dazu = neue.empty() ? 0 : 1;
    EXPECT_EQ(Ordner.size(), std::min(bisher.size() + dazu, Hoechstzahl_Sicherungen));
    letzte_Sicherung_ = Ordner.back();
    letzter_Inhalt_ = lies(std::filesystem::path("backup") / Ordner.back());
    if (!neue.empty()) {
        EXPECT_EQ(letzter_Inhalt_, neue);
    }
    EXPECT_NE(z.Statuszeile.Text().find("backup/" + Ordner.back()), std::string::npos) << z.Statuszeile.Text();
}

TEST_F(Zufallsgang, over_2000_commands_keeps_lists_files_and_names_together) {
    std::string Weg;
    for (int Schritt = 1; Schritt <= 2000; ++Schritt) {
        m_.Fragen.clear();
        m_.gesichert.clear();
        Antworten_.gefragt.clear();
        const Textliste bisher = Sicherungen();
        const std::string Befehl = handle();
        ++Zaehler_[Befehl];
        Weg = Weg.substr(Weg.size() > 100 ? Weg.size() - 100 : 0) + " " + Befehl;
        SCOPED_TRACE("step " + std::to_string(Schritt) + " after" + Weg + (m_.ja ? " (Yes)" : " (No)"));
        vergleiche(bisher);
        if (HasFailure()) return;
    }
    EXPECT_EQ(Sicherungen().size(), Hoechstzahl_Sicherungen);
    for (const char* Befehl : {"new", "copy", "delete", "rename", "choose", "simulation", "save", "refresh", "field"}) {
        EXPECT_GE(Zaehler_[Befehl], 50) << Befehl;
    }
}

}  // namespace
}  // namespace varnok
