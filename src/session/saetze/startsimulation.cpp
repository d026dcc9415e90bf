// The start simulation made anew, on the user's wish and where nothing else is left.

#include "records/dateien.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"
#include "session/saetze/satzverwaltung.h"

namespace varnok {
namespace {

// The files of the start simulation, as far as they are there.
std::vector<Sicherungsstueck> Dateien_der_Startsimulation(const Zustand& z) {
    std::vector<Sicherungsstueck> Stuecke;
    for (const Satzart Art : {Simulation, Wirkstoff, Applikation, Szenario}) {
        const auto Pfad = z.Ordner->finde(Startsimulation, Endungen[Art]);
        const auto Bytes = Pfad ? lies_Datei_falls_moeglich(*Pfad) : std::nullopt;
        if (Bytes) Stuecke.push_back({std::string(Startsimulation) + Endungen[Art], *Bytes});
    }
    return Stuecke;
}

}  // namespace

void Satzverwaltung::lade_Voreinstellungen() {
    z_.Statuszeile.clear();
    sichere_Ungesichertes(Dateien_der_Startsimulation(z_));
    stelle_Voreinstellungen_her(*z_.Ordner, {z_.Welt.installierte_Daten, z_.Welt.Programmpfad});
    z_.beendet = true;
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
    z_.beendet = true;  // not where something unsaved could not be kept
}

}  // namespace varnok
