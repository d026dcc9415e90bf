#pragma once

#include <algorithm>
#include <chrono>
#include <fstream>
#include <map>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {

// "Probe" on the screen, beside it "Second" with three records of its own and "Torn", which names a scenario that is not there.
class Organiserprobe : public Probesitzung {
protected:
    Organiserprobe() {
        schreibe_Saetze("Second", "Other parent", 3);
        simulation("Second", "The second one", {"Second", "Second", "Second"});
        simulation("Torn", "A torn one", {"Second", "Second", "no such record"});
    }

    // A compound of that name, a rate of 500 and a density.
    void schreibe_Saetze(const std::string& Name, const std::string& Stoff, double Dichte) {
        Eingabe e = Felder_;
        e.Parameter.Bodendichte = Dichte;
        e.Applikationsrate = "500";
        e.Name_Wirkstoff = Stoff;
        Probesitzung::schreibe_Saetze(Name, e);
    }

    // Older than "Probe", so that it is not the one to start with.
    void simulation(const std::string& Name, const std::string& Beschreibung, const std::array<std::string, 3>& Saetze) {
        schreibe_Simulation(Projektordner(Wurzel_.string()), Name, {Beschreibung, {"", Saetze[0], Saetze[1], Saetze[2]}});
        mache_alt(Name + ".vnk");
    }
    void schreibe(const std::string& Name, const std::string& Inhalt) const {
        std::ofstream(Wurzel_ / "input" / Name, std::ios::binary) << Inhalt;
    }
    void mache_alt(const std::string& Name) const {
        const auto Stempel = std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(1);
        std::filesystem::last_write_time(Wurzel_ / "input" / Name, Stempel);
    }

    void oeffne() {
        if (!s_) gestartet();
        ASSERT_TRUE(s_->fuehre_aus<&Organiser::oeffne>());
    }

    const Organiser& o() const { return s_->zeige<Organiser>(); }
    const Zustand& z() const { return s_->Stand(); }
    const Eingabe& Maske() const { return s_->Stand().Vorgabe; }
    std::string gewaehlt(Satzart Art) const { return o().Listen().gewaehlt(Art); }

    // What the user does in the dialog.
    template <auto Befehl, class... Angaben>
    auto tue(Angaben&&... a) {
        return s_->fuehre_aus<Befehl>(std::forward<Angaben>(a)...);
    }
    static int Platz(const std::vector<std::string>& Liste, const std::string& Name) {
        return static_cast<int>(std::find(Liste.begin(), Liste.end(), Name) - Liste.begin());
    }
    void waehle(Satzart Art, const std::string& Name) {
        const int i = Platz(o().Listen().Listen[Art], Name);
        tue<&Organiser::waehle>(Art, i);
    }
    void loesche(Satzart Art, Knopf Antwort = Knopf::Ja) {
        Fragen_.erwarte_Anfang("Delete record", "Do you really want to delete this record?", Antwort);
        tue<&Organiser::loesche>(Art);
    }
    void kopiere(Satzart Art) { tue<&Organiser::kopiere>(Art); }
    bool benenne_um(Satzart Art, const std::string& Text, bool mit_Frage = true) {
        return tue<&Organiser::benenne_um>(Art, Text, mit_Frage);
    }
    void beschreibe(const std::string& Text) { tue<&Organiser::aendere_Projektname>(Text); }
    // The scenario editor, left with "Done" or with "Cancel".
    template <class Handlung>
    void bearbeite(Handlung h, bool mit_Done = true) {
        tue<&Organiser::beginne_Bearbeiten>();
        s_->fuehre_aus<&Szenarioeditor::oeffne>();
        h(*s_);
        mit_Done ? s_->fuehre_aus<&Szenarioeditor::uebernimm>() : s_->fuehre_aus<&Szenarioeditor::verwirf>();
        tue<&Organiser::beende_Bearbeiten>();
    }
    // "Done", and what the caller does when the dialog has closed.
    bool fertig() {
        const bool zu = tue<&Organiser::uebernimm>();
        if (zu) s_->fuehre_aus<&Organiser::schliesse_ab>();
        return zu;
    }
    void schliesse() {
        tue<&Organiser::verwirf>();
        s_->fuehre_aus<&Organiser::schliesse_ab>();
    }

    // Every file of the input folder.
    std::map<std::string, std::string> Dateien() const {
        std::map<std::string, std::string> Alle;
        for (const auto& e : std::filesystem::directory_iterator(Wurzel_ / "input")) {
            const std::string Name = e.path().filename().string();
            Alle[Name] = Datei("input/" + Name);
        }
        return Alle;
    }
    // Name and content of all that was put into `backup`.
    std::map<std::string, std::string> Gesichertes() const {
        std::map<std::string, std::string> Alle;
        if (!gibt_es("backup")) return Alle;
        for (const auto& e : std::filesystem::recursive_directory_iterator(Wurzel_ / "backup")) {
            if (e.is_regular_file()) Alle[e.path().filename().string()] = Datei(e.path().lexically_relative(Wurzel_).string());
        }
        return Alle;
    }
    auto Stempel(const std::string& Name) const { return std::filesystem::last_write_time(Wurzel_ / "input" / Name); }
};

inline std::string Zeilen(const std::string& a, const std::string& b, const std::string& c, const std::string& d) {
    return a + "\r\n" + b + "\r\n" + c + "\r\n" + d + "\r\n";
}

}  // namespace varnok
