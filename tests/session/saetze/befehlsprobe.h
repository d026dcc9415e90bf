#pragma once

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {

using Namen = std::vector<std::string>;

// The simulations "Probe", which is loaded, and "Second", with records of their own, and the templates.
class Befehlsprobe : public Probesitzung {
protected:
    Befehlsprobe() {
        const Projektordner Ordner(Wurzel_.string());
        Eingabe e = Felder_;
        e.Parameter.Bodendichte = 3;
        schreibe_Saetze("Second", e);
        schreibe_Simulation(Ordner, "Second", {"second", {"", "Second", "Second", "Second"}});
        const auto Pfad = Wurzel_ / "input/Second.vnk";
        const auto Stempel = std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk");
        std::filesystem::last_write_time(Pfad, Stempel - std::chrono::hours(1));
        for (const Satzart Art : Eingabearten) {
            const std::string Vorlage = std::string("input/Do not delete this file") + Endungen[Art + 3];
            std::filesystem::copy_file(Wurzel_ / "input" / (std::string("Second") + Endungen[Art]), Wurzel_ / Vorlage);
        }
    }

    const Zustand& z() const { return s_->Stand(); }
    std::string in(const std::string& Name, Satzart Art) const { return "input/" + Name + Endungen[Art]; }
    Namen auf_Platte(Satzart Art) const { return Projektordner(Wurzel_.string()).Namen(Endungen[Art]); }
    void waehle(Satzart Art, const std::string& Name) {
        const auto& l = z().Listen[Art];
        s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Art, static_cast<int>(std::find(l.begin(), l.end(), Name) - l.begin()));
    }
    void bejahe_Loeschen(Knopf Antwort = Knopf::Ja) {
        Fragen_.erwarte_Anfang("Delete record", "Do you really want to delete this record?", Antwort);
    }
    // What lies in `backup`, by file name without its folder.
    Namen gesichert() const {
        Namen Gefundene;
        if (!gibt_es("backup")) return Gefundene;
        for (const auto& f : std::filesystem::recursive_directory_iterator(Wurzel_ / "backup")) {
            if (f.is_regular_file()) Gefundene.push_back(f.path().filename().string());
        }
        std::sort(Gefundene.begin(), Gefundene.end());
        return Gefundene;
    }
    void erwarte_Gleichstand(Satzart Art) const {
        EXPECT_EQ(z().Listen[Art], auf_Platte(Art));
        EXPECT_TRUE(z().Namen[Art].empty() || z().Auswahl(Art) >= 0) << z().Namen[Art];
    }
};

}  // namespace varnok
