#include "records/pruefung.h"

#include <optional>
#include <utility>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/klimadatei.h"
#include "records/satz.h"
#include "records/satzstelle.h"
#include "records/simulation.h"
#include "run/applikation.h"
#include "run/lauf.h"
#include "run/tageswerte.h"

namespace varnok {
namespace {

using Befunde = std::vector<Befund>;

// The findings about a file.
class Sammler {
public:
    Sammler(const Projektordner& Ordner, std::string Datei) : Ordner_(&Ordner), Datei_(std::move(Datei)) {}

    void bemerke(const std::vector<Bemerkung>& Bemerkungen) {
        for (Bemerkung b : Bemerkungen) {
            b.Datei = Ordner_->Eingabedatei(Datei_);
            Befunde_.push_back({std::move(b), false});
        }
    }
    void bemaengle(int Zeile, const std::string& Feld, const std::string& Meldung, const std::string& Text = {}) {
        Befunde_.push_back({{Ordner_->Eingabedatei(Datei_), Zeile > 0 ? Zeile : 1, Feld, Meldung, Text, std::nullopt}, true});
    }
    void bemaengle(const Satzstelle& Stelle, const std::string& Meldung, const std::string& Text = {}) {
        bemaengle(Stelle.Zeile, Stelle.Name, Meldung, Text);
    }
    void bemaengle(const Laufzeitfehler& f) { bemaengle(f.Ort().Zeile, f.Ort().Name(), f.Grund(), f.Ort().Text); }
    Befunde nimm() { return std::move(Befunde_); }

private:
    const Projektordner* Ordner_;
    std::string Datei_;
    Befunde Befunde_;
};

// What a run of the record would break off at, whatever it is combined with.
template <class Probe>
void probiere(Sammler& s, const Eingabe& e, Probe p) {
    try {
        p();
    } catch (const Laufzeitfehler& f) {
        const auto Stelle = finde_Satzstelle(f.Ort(), e);
        Stelle ? s.bemaengle(*Stelle, f.what()) : s.bemaengle(0, f.Ort().Name(), f.what());
    }
}

void pruefe_Applikation(Sammler& s, Eingabe e, Ergebnisspeicher& Speicher) {
    if (e.Applikationsmuster == unregelmaessig) {
        if (const auto Zelle = Tabelle_mit_Applikationen_berechne_PEC(e)) {
            s.bemaengle(Stelle_der_Reihe(Zelle->Zeile + 1, e), Meldung(Laufausgang::Tabelle_ungueltig));
            return;
        }
    }
    probiere(s, e, [&] {
        if (!Lade_Applikationen(e, 0, Speicher))
            s.bemaengle(Stelle_der_Reihe(1, e).Zeile, "application table", Meldung(Laufausgang::Datumsfolge_ungueltig));
    });
}

void pruefe_Szenario(Sammler& s, const Eingabe& e, const Projektordner& Ordner) {
    probiere(s, e, [&] { pruefe_Boden(e.Parameter); });
    if (e.Parameter.Klimamodus == nach_Klimadatei && !Ordner.finde(e.Klimaszenario, Klima_Endung))
        s.bemaengle(*finde_Satzstelle({.Feld = "Klimatext"}, e), "there is no climate file of that name", e.Klimaszenario);
}

}  // namespace

Projektpruefer::Projektpruefer(const Projektordner& Ordner) : Ordner_(Ordner), Speicher_(std::make_unique<Ergebnisspeicher>()) {}

Projektpruefer::~Projektpruefer() = default;

Befunde Projektpruefer::pruefe_Simulation(const std::string& Name) const {
    Sammler s(Ordner_, Name + Endungen[Simulation]);
    try {
        std::vector<Bemerkung> Bemerkungen;
        const Simulationssatz Satz = lies_Simulation(Ordner_, Name, &Bemerkungen);
        s.bemerke(Bemerkungen);
        for (const Satzart Art : Eingabearten) {
            const std::string& Satzname = Satz.Dateinamen[Art];
            if (!Ordner_.enthaelt(Satzname, Endungen[Art]))
                s.bemaengle(Art + 1, std::string(Satzart_Namen[Art]) + " record", "there is no record of that name", Satzname);
        }
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

Befunde Projektpruefer::pruefe_Klimadatei(const std::string& Name) const {
    Sammler s(Ordner_, Name + Klima_Endung);
    try {
        std::vector<Bemerkung> Bemerkungen;
        const auto Pfad = Ordner_.finde(Name, Klima_Endung);
        zerlege_Klimadatei(lies_Datei(Pfad.value_or(Name)), Name + Klima_Endung, &Bemerkungen);
        s.bemerke(Bemerkungen);
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

Befunde Projektpruefer::pruefe_Satz(const std::string& Name, Satzart Art) {
    Sammler s(Ordner_, Name + Endungen[Art]);
    try {
        if (const auto Pfad = Ordner_.finde(Name, Endungen[Art])) return pruefe_Satz(lies_Datei(*Pfad), Name, Art);
        s.bemaengle(1, {}, "the file is missing");
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

Befunde Projektpruefer::pruefe_Satz(const std::string& Bytes, const std::string& Name, Satzart Art) {
    Sammler s(Ordner_, Name + Endungen[Art]);
    try {
        Eingabe e;
        Ansicht Sicht;
        const Lesebefund b = Satz_lesen_aus(Bytes, Name + Endungen[Art], Art, e, Sicht);
        s.bemerke(b.Bemerkungen);
        if (b.Ausgang != Leseausgang::gelesen) {
            s.bemaengle(b.Ort.Zeile, b.Ort.Name(), b.Grund, b.Ort.Text);
        } else if (Art == Applikation || Art == Vorlage_Applikation) {
            pruefe_Applikation(s, e, *Speicher_);
        } else if (Art == Szenario || Art == Vorlage_Szenario) {
            pruefe_Szenario(s, e, Ordner_);
        }
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

Befunde Projektpruefer::pruefe() {
    Befunde Alle;
    const auto nimm = [&](Befunde neue) {
        for (Befund& b : neue) Alle.push_back(std::move(b));
    };
    for (const std::string& Name : Ordner_.Namen(Endungen[Simulation])) nimm(pruefe_Simulation(Name));
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario, Vorlage_Wirkstoff, Vorlage_Applikation, Vorlage_Szenario}) {
        for (const std::string& Name : Ordner_.Namen(Endungen[Art])) nimm(pruefe_Satz(Name, Art));
    }
    for (const std::string& Name : Ordner_.Namen(Klima_Endung)) nimm(pruefe_Klimadatei(Name));
    return Alle;
}

}  // namespace varnok
