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
        ASSERT_TRUE(s_->oeffne_Organiser());
    }

    const Organiser& o() const { return s_->Organisation(); }
    const Zustand& z() const { return s_->Stand(); }
    const Eingabe& Maske() const { return s_->Stand().Felder(); }
    std::string gewaehlt(Satzart Art) const { return o().Listen().gewaehlt(Art); }

    // What the user does in the dialog.
    template <class Handlung>
    void tue(Handlung h) {
        s_->organisiere([&](Organiser& x) { h(x); });
    }
    static int Platz(const std::vector<std::string>& Liste, const std::string& Name) {
        return static_cast<int>(std::find(Liste.begin(), Liste.end(), Name) - Liste.begin());
    }
    void waehle(Satzart Art, const std::string& Name) {
        const int i = Platz(o().Listen().Listen[Art], Name);
        tue([&](Organiser& x) { Art == Simulation ? x.waehle_Simulation(i) : x.waehle_Satz(Art, i); });
    }
    void loesche(Satzart Art, Knopf Antwort = Knopf::Ja) {
        Fragen_.erwarte_Anfang("Delete record", "Do you really want to delete this record?", Antwort);
        tue([&](Organiser& x) { x.loesche(Art); });
    }
    void kopiere(Satzart Art) {
        tue([&](Organiser& x) { x.kopiere(Art); });
    }
    bool benenne_um(Satzart Art, const std::string& Text, bool mit_Frage = true) {
        bool fertig = false;
        tue([&](Organiser& x) { fertig = x.benenne_um(Art, Text, mit_Frage); });
        return fertig;
    }
    void beschreibe(const std::string& Text) {
        tue([&](Organiser& x) { x.aendere_Projektname(Text); });
    }
    // The scenario editor, left with "Done" or with "Cancel".
    template <class Handlung>
    void bearbeite(Handlung h, bool mit_Done = true) {
        tue([](Organiser& x) { x.beginne_Bearbeiten(); });
        s_->Editor().oeffne();
        h(s_->Editor());
        mit_Done ? s_->Editor().uebernimm() : s_->Editor().verwirf();
        tue([](Organiser& x) { x.beende_Bearbeiten(); });
    }
    // "Done", and what the caller does when the dialog has closed.
    bool fertig() {
        bool zu = false;
        tue([&](Organiser& x) { zu = x.uebernimm(); });
        if (zu) s_->schliesse_Organiser();
        return zu;
    }
    void schliesse() {
        tue([](Organiser& x) { x.verwirf(); });
        s_->schliesse_Organiser();
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
