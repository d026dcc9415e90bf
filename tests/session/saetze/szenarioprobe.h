#pragma once

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {

// The scenario editor on a session of its own.
class Szenarioprobe : public Probesitzung {
protected:
    Sitzung& offen() {
        if (!s_) gestartet();
        EXPECT_TRUE(s_->fuehre_aus<&Szenarioeditor::oeffne>());
        return *s_;
    }
    const Szenarioentwurf& Entwurf() { return s_->zeige<Szenarioeditor>().Entwurf(); }
    const Laufparameter& p() const { return s_->Stand().Parameter(); }
    // "Done", and what follows when the dialog has closed.
    void fertig() {
        s_->fuehre_aus<&Szenarioeditor::uebernimm>();
        s_->fuehre_aus<&Szenarioeditor::schliesse>();
    }
    void abgebrochen() {
        s_->fuehre_aus<&Szenarioeditor::verwirf>();
        s_->fuehre_aus<&Szenarioeditor::schliesse>();
    }

    void klimadatei(const std::string& Name) {
        std::ofstream Strom(Wurzel_ / "input" / (Name + ".cli"), std::ios::binary);
        Strom << "Header\r\n";
        for (int Tag = 1; Tag <= 365; ++Tag) Strom << "1988001       1.0       2.0                20.0\r\n";
    }
    // The record names a climate file that is not there.
    void ohne_Klimadatei() {
        Parameter_.Klimamodus = nach_Klimadatei;
        Felder_.Klimaszenario = "gone";
        schreibe_Probe();
    }
    void gestartet_mit_Meldung() {
        Fragen_.erwarte("Data file missing", "Cannot load climate data file. Please correct!");
        gestartet();
        ASSERT_TRUE(s_->zeige<Laufsteuerung>().Klimadatei_fehlt());
    }
    // A simulation that names a scenario that is not there.
    void ohne_Szenario_geladen() {
        schreibe_Simulation(Projektordner(Wurzel_.string()), "Torn", {"Torn", {"", "Probe", "Probe", "gone"}});
        const auto Pfad = Wurzel_ / "input/Torn.vnk";
        std::filesystem::last_write_time(Pfad, std::filesystem::last_write_time(Pfad) - std::chrono::hours(1));
        gestartet();
        const auto& Liste = s_->Stand().Listen[Simulation];
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(
            static_cast<int>(std::find(Liste.begin(), Liste.end(), "Torn") - Liste.begin()));
        ASSERT_EQ(s_->Stand().Auswahl(Szenario), -1);
    }
    void zweites_Szenario() {
        Eingabe andere = Felder_;
        andere.Parameter.Bodendichte = 1.1;
        Satz_schreiben(Projektordner(Wurzel_.string()), "Another", Szenario, andere, Sicht_);
    }
};

}  // namespace varnok
