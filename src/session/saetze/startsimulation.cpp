// What the program can start with beside the simulation used last: the start simulation made anew, and what a start before left
// unsaved.

#include "records/dateien.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"
#include "session/saetze/satzverwaltung.h"

namespace varnok {
namespace {

// The files of the start simulation, as far as they are there.
Sicherungsgut Dateien_der_Startsimulation(const Eingabestand& z) {
    Sicherungsgut Gut;
    for (const Satzart Art : alle_Arten) {
        const auto Pfad = z.Ordner->finde(Startsimulation, Endungen[Art]);
        if (Pfad) Gut.nimm_Datei(*Pfad, std::string(Startsimulation) + Endungen[Art]);
    }
    return Gut;
}

}  // namespace

void Satzverwaltung::lade_Voreinstellungen() {
    verlange_Schreibrecht(z_);
    z_.Statuszeile.vergiss_Frueheres();
    sichere_Ungesichertes(Dateien_der_Startsimulation(z_));
    stelle_Voreinstellungen_her(*z_.Ordner, {z_.Welt.installierte_Daten, z_.Welt.Programmpfad});
    z_.beende();
    melde(z_, "Default settings",
          "The default parameters have been loaded and VARNOK will now quit.\n"
          "The settings become available after the next program call.");
}

void Satzverwaltung::beende_oder_stelle_her(const std::string& Text, bool beim_Start) {
    const Knopf Antwort = z_.Welt.Fragen->frage({Texte::Datei_fehlt, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}});
    if (Antwort == Knopf::nicht_jetzt && !beim_Start) return;
    if (Antwort == Knopf::Ja) {
        lade_Voreinstellungen();
    } else {
        sichere_Ungesichertes();
    }
    z_.beende();  // not where something unsaved could not be kept
}

bool Satzverwaltung::lade_Zwischenstand(const Zwischenstand& Stand) {
    const std::string Datei = Stand.Simulation + Endungen[Simulation];
    const Simulationssatz Satz = zerlege_Simulation(Stand.Zusammenfassung, Datei);
    const Simulationssatz gespeicherter = lies_Simulation(*z_.Ordner, Stand.Simulation);
    uebernimm(Stand.Simulation, gespeicherter);
    z_.Vorgabe.Beschreibung = Satz.Beschreibung;
    for (const Satzart Art : Eingabearten) z_.Namen[Art] = Satz.Dateinamen[Art];
    z_.Saetze[Simulation].stelle_Marke(z_.verschieden(Simulation));
    beim_Start_ = true;
    bool alles = lies_fehlende_Saetze();
    beim_Start_ = false;
    for (const Sicherungsstueck& Stueck : Stand.Stuecke) alles = lies_Stueck(Stueck) && alles;
    Diagramme_.setze_Startbereiche();
    return alles;
}

// Values of a record that is on the screen; a piece of any other stays where it is.
bool Satzverwaltung::lies_Stueck(const Sicherungsstueck& Stueck) {
    for (const Satzart Art : Eingabearten) {
        if (!z_.Saetze[Art].gelesen() || Stueck.Dateiname != Name_des_Ungesicherten(z_, Art)) continue;
        const TWA_Listenart alte_TWA_Zeiten = z_.Parameter().TWA_Zeiten;
        const Lesebefund Befund =
            Satz_lesen_aus(Stueck.Bytes, Stueck.Dateiname, Art, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen);
        if (Befund.Ausgang != Leseausgang::gelesen) return false;
        z_.Saetze[Art].merke_Aenderung();
        folge_dem_Satz(Art, alte_TWA_Zeiten);
        return true;
    }
    return false;
}

}  // namespace varnok
