#include "session/programm/programmende.h"

#include "records/dateien.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"

namespace varnok {

std::string Einstellungspfad(const Zustand& z) { return z.Welt.Programmpfad + "/VARNOK.ini"; }

void Einstellungen_schreiben(const Zustand& z) {
    Einstellungen e = z.Einstellung;
    e.Projektpfad = z.Projektpfad;
    e.TWA = z.Parameter().TWA;
    schreibe_Datei(Einstellungspfad(z), Einstellungen_als_Bytes(e));
}

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

void Voreinstellungen_laden(Zustand& z, Satzverwaltung& Saetze) {
    Saetze.sichere_Ungesichertes(Dateien_der_Startsimulation(z));
    stelle_Voreinstellungen_her(*z.Ordner, {z.Welt.installierte_Daten, z.Welt.Programmpfad});
    z.beendet = true;
    melde(z, "Default settings",
          "The default parameters have been loaded and VARNOK will now quit.\n"
          "The settings become available after the next program call.");
}

void beende_oder_stelle_her(Zustand& z, Satzverwaltung& Saetze, const std::string& Text) {
    const Knopf Antwort = z.Welt.Fragen->frage({Texte::Datei_fehlt, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}});
    if (Antwort == Knopf::Ja) {
        Voreinstellungen_laden(z, Saetze);
    } else {
        Saetze.sichere_Ungesichertes();
    }
    z.beendet = true;  // not where something unsaved could not be kept
}

bool Ende(Zustand& z, Satzverwaltung& Saetze) {
    const auto Ausgang = Saetze.frage_nach_Sicherung();
    if (Ausgang == Satzverwaltung::Sicherung::verweigert) return false;
    if (!Saetze.pruefe_Auswahl({Knopf::OK, Knopf::Abbrechen})) return false;
    // A save has just written the summary file, unless it was not read: then its time is what is missing.
    const bool geschrieben = Ausgang == Satzverwaltung::Sicherung::erfolgt && !z.nicht_gelesen[Simulation];
    if (!geschrieben && (z.Geaendert[0] || z.Neu_berechnen)) Saetze.schreibe_Zusammenfassungsdatei();
    Einstellungen_schreiben(z);
    z.beendet = true;
    return true;
}

bool schliesse(Satzverwaltung& Saetze) { return Saetze.frage_nach_Sicherung() != Satzverwaltung::Sicherung::verweigert; }

}  // namespace varnok
