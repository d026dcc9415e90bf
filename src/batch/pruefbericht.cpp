#include "batch/pruefbericht.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "batch/csv_zeile.h"
#include "batch/dateipfad.h"
#include "batch/schreiber.h"
#include "records/dateien.h"
#include "records/klimadatei.h"
#include "records/satz.h"
#include "records/satzstelle.h"
#include "records/simulation.h"
#include "run/applikation.h"
#include "run/tageswerte.h"

namespace varnok::batch {
namespace {

using Befunde = std::vector<Befund>;

constexpr int Zeile_des_Klimas = 9;  // of a scenario record

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
    // The message of a fault names its file in front, which the finding has already.
    void bemaengle(const Laufzeitfehler& f) {
        std::string Meldung = f.what();
        const Fehlerort& Ort = f.Ort();
        std::string davor = "File " + Datei_;
        if (Ort.Zeile > 0) davor += ", line " + std::to_string(Ort.Zeile);
        if (Meldung.starts_with(davor + ": ")) Meldung.erase(0, davor.size() + 2);
        bemaengle(Ort.Zeile, Ort.Feld, Meldung, Ort.Text);
    }
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
        s.bemaengle(Stelle ? Stelle->Zeile : 1, f.Ort().Feld, f.what());
    }
}

void pruefe_Applikation(Sammler& s, Eingabe e) {
    if (e.Applikationsmuster == unregelmaessig) {
        if (const auto Zelle = Tabelle_mit_Applikationen_berechne_PEC(e)) {
            s.bemaengle(Zeile_der_Tabellenreihe(Zelle->Zeile + 1), Zelle->Spalte == 0 ? "Date" : "Month",
                        Meldung(Laufausgang::Tabelle_ungueltig));
            return;
        }
    }
    probiere(s, e, [&] {
        Ergebnisspeicher Speicher;
        if (!Lade_Applikationen(e, 0, Speicher))
            s.bemaengle(Zeile_der_Tabellenreihe(1), "Date", Meldung(Laufausgang::Datumsfolge_ungueltig));
    });
}

void pruefe_Szenario(Sammler& s, const Eingabe& e, const Projektordner& Ordner) {
    probiere(s, e, [&] { pruefe_Boden(e.Parameter); });
    if (e.Parameter.Klimamodus == 1 && !Ordner.finde(e.Klimaszenario, Klima_Endung))
        s.bemaengle(Zeile_des_Klimas, "Climatic condition", "there is no climate file of that name", e.Klimaszenario);
}

Befunde pruefe_Simulation(const Projektordner& Ordner, const std::string& Name) {
    Sammler s(Ordner, Name + Endungen[Simulation]);
    try {
        std::vector<Bemerkung> Bemerkungen;
        const Simulationssatz Satz = lies_Simulation(Ordner, Name, &Bemerkungen);
        s.bemerke(Bemerkungen);
        for (const Satzart Art : {Wirkstoff, Applikation, Szenario}) {
            const std::string& Satzname = Satz.Dateinamen[Art];
            if (!Ordner.enthaelt(Satzname, Endungen[Art]))
                s.bemaengle(Art + 1, std::string(Satzart_Namen[Art]) + " record", "there is no record of that name", Satzname);
        }
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

Befunde pruefe_Klimadatei(const Projektordner& Ordner, const std::string& Name) {
    Sammler s(Ordner, Name + Klima_Endung);
    try {
        std::vector<Bemerkung> Bemerkungen;
        const auto Pfad = Ordner.finde(Name, Klima_Endung);
        zerlege_Klimadatei(lies_Datei(Pfad.value_or(Name)), Name + Klima_Endung, &Bemerkungen);
        s.bemerke(Bemerkungen);
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

const char* Art_von(const Befund& b) { return b.Mangel ? "fault" : "remark"; }

}  // namespace

Befunde pruefe_Satz(const Projektordner& Ordner, const std::string& Name, Satzart Art) {
    Sammler s(Ordner, Name + Endungen[Art]);
    try {
        Eingabe e;
        Ansicht Sicht;
        const Lesebefund b = Satz_lesen(Ordner, Name, Art, e, Sicht);
        s.bemerke(b.Bemerkungen);
        if (b.Ausgang != Leseausgang::gelesen) {
            s.bemaengle(b.Zeile, b.Feld, b.Ausgang == Leseausgang::fehlt ? "the file is missing" : b.Grund, b.Text);
        } else if (Art == Applikation || Art == Vorlage_Applikation) {
            pruefe_Applikation(s, e);
        } else if (Art == Szenario || Art == Vorlage_Szenario) {
            pruefe_Szenario(s, e, Ordner);
        }
    } catch (const Laufzeitfehler& f) {
        s.bemaengle(f);
    }
    return s.nimm();
}

Befunde pruefe_Projekt(const Projektordner& Ordner) {
    Befunde Alle;
    const auto nimm = [&](Befunde neue) {
        for (Befund& b : neue) Alle.push_back(std::move(b));
    };
    for (const std::string& Name : Ordner.Namen(Endungen[Simulation])) nimm(pruefe_Simulation(Ordner, Name));
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario, Vorlage_Wirkstoff, Vorlage_Applikation, Vorlage_Szenario}) {
        for (const std::string& Name : Ordner.Namen(Endungen[Art])) nimm(pruefe_Satz(Ordner, Name, Art));
    }
    for (const std::string& Name : Ordner.Namen(Klima_Endung)) nimm(pruefe_Klimadatei(Ordner, Name));
    return Alle;
}

std::string als_Zeile(const Befund& b) {
    std::string Zeile = varnok::als_Zeile(b.Stelle);
    constexpr std::string_view Bemerkungswort = ": remark: ";
    if (b.Mangel) Zeile.replace(Zeile.find(Bemerkungswort, b.Stelle.Datei.size()), Bemerkungswort.size(), ": fault: ");
    return druckbar(Zeile);
}

std::string Befunde_als_JSON(const Befunde& Liste) {
    using JSON = nlohmann::ordered_json;
    JSON Alle = JSON::array();
    for (const Befund& b : Liste) {
        Alle.push_back({{"file", b.Stelle.Datei},
                        {"line", b.Stelle.Zeile},
                        {"kind", Art_von(b)},
                        {"field", b.Stelle.Feld},
                        {"message", b.Stelle.Meldung},
                        {"text", b.Stelle.Text},
                        {"value", b.Stelle.Wert ? JSON(*b.Stelle.Wert) : JSON()}});
    }
    return Alle.dump(2, ' ', false, JSON::error_handler_t::replace) + "\n";
}

std::string Befunde_als_CSV(const Befunde& Liste) {
    std::string Text = "file,line,kind,field,message,text,value\r\n";
    for (const Befund& b : Liste) {
        CSV_Zeile z(Text);
        z.Text(b.Stelle.Datei);
        z.Zahl(b.Stelle.Zeile);
        z.Text(Art_von(b));
        z.Text(b.Stelle.Feld);
        z.Text(b.Stelle.Meldung);
        z.Text(b.Stelle.Text);
        b.Stelle.Wert ? z.Text(allgemeine_Zahl(*b.Stelle.Wert)) : z.leer();
        z.beende();
    }
    return Text;
}

}  // namespace varnok::batch
