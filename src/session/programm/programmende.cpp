#include "session/programm/programmende.h"

#include "base/laufzeitfehler.h"
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
    z.Statuszeile.clear();
    Saetze.sichere_Ungesichertes(Dateien_der_Startsimulation(z));
    stelle_Voreinstellungen_her(*z.Ordner, {z.Welt.installierte_Daten, z.Welt.Programmpfad});
    z.beendet = true;
    melde(z, "Default settings",
          "The default parameters have been loaded and VARNOK will now quit.\n"
          "The settings become available after the next program call.");
}

void beende_oder_stelle_her(Zustand& z, Satzverwaltung& Saetze, const std::string& Text, bool beim_Start) {
    const Knopf Antwort = z.Welt.Fragen->frage({Texte::Datei_fehlt, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}});
    if (Antwort == Knopf::nicht_jetzt && !beim_Start) return;
    if (Antwort == Knopf::Ja) {
        Voreinstellungen_laden(z, Saetze);
    } else {
        Saetze.sichere_Ungesichertes();
    }
    z.beendet = true;  // not where something unsaved could not be kept
}

namespace {

// What is not saved at the end goes into `backup`. Where that is not possible the user decides, or the program could never end.
bool sichere_am_Ende(const Zustand& z, Satzverwaltung& Saetze) {
    try {
        Saetze.sichere_Ungesichertes();
        return true;
    } catch (const Laufzeitfehler& f) {
        const std::string Text = std::string(f.what()) + "\nIt cannot be kept. Go on?";
        return z.Welt.Fragen->frage({Texte::Laufzeitfehler, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}}) == Knopf::Ja;
    }
}

// The text of a fault, empty without one.
template <class Handlung>
std::string Fehler_bei(Handlung h) {
    try {
        h();
        return {};
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
}

}  // namespace

bool Ende(Zustand& z, Satzverwaltung& Saetze) {
    const auto zu_sichern = Saetze.frage_nach_Sicherung();
    if (!zu_sichern || !Saetze.pruefe_Auswahl({Knopf::OK, Knopf::Abbrechen})) return false;
    if (!zu_sichern->empty() && !Saetze.speichere_Arten(*zu_sichern)) return false;
    // A save has just written the summary file, unless it was not read: then its time is what is missing.
    const bool geschrieben = !zu_sichern->empty() && z.Saetze[Simulation].gelesen;
    bool weiter = true;
    std::string Fehler;
    if (!geschrieben && (z.Saetze[0].Geaendert || z.Neu_berechnen()))
        Fehler = Fehler_bei([&] { weiter = Saetze.schreibe_Zusammenfassungsdatei(); });
    if (!weiter || !sichere_am_Ende(z, Saetze)) return false;
    const std::string zweiter = Fehler_bei([&] { Einstellungen_schreiben(z); });
    Fehler += (Fehler.empty() || zweiter.empty() ? "" : "\n") + zweiter;
    if (!Fehler.empty()) melde(z, Texte::Laufzeitfehler, Fehler);
    z.beendet = true;
    return true;
}

bool schliesse(const Zustand& z, Satzverwaltung& Saetze) {
    const auto zu_sichern = Saetze.frage_nach_Sicherung();
    if (!zu_sichern) return false;
    if (!zu_sichern->empty() && !Saetze.speichere_Arten(*zu_sichern)) return false;
    return sichere_am_Ende(z, Saetze);
}

}  // namespace varnok
