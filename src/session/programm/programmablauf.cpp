#include "session/programm/programmablauf.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/laufzeitfehler.h"
#include "exposure/twa.h"
#include "records/dateien.h"
#include "records/simulation.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"
#include "session/kern/versuch.h"
#include "session/programm/einstellungsdatei.h"

namespace varnok {
namespace {

std::optional<Gelesene_Einstellungen> lies_Einstellungen(Eingabestand& z) {
    const std::string Pfad = Einstellungspfad(z);
    try {
        return zerlege_Einstellungen(lies_Datei(Pfad), Pfad, &z.zu_den_Einstellungen);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;  // a missing file is the usual case of a first start
    }
}

// False where the file is missing or cannot be read: then it is made anew from the defaults without a word.
bool lade_Einstellungen(Eingabestand& z) {
    const auto gelesen = lies_Einstellungen(z);
    const Gelesene_Einstellungen geltende = gelesen.value_or(Gelesene_Einstellungen{});
    z.Einstellung = geltende.Werte;
    z.Parameter().TWA = geltende.TWA;
    // Who starts for the first time learns from the tips.
    if (!lies_Datei_falls_moeglich(Einstellungspfad(z))) z.Einstellung.Tips_anzeigen = 1;
    const bool hier = z.Welt.Projekt_genannt || z.Einstellung.Projektpfad.empty();
    z.Projektpfad = hier ? z.Welt.Programmpfad : z.Einstellung.Projektpfad;
    return gelesen.has_value();
}

// A folder that cannot be written is told at the end, when there is something to write.
void schreibe_erste_Einstellungen(const Eingabestand& z) {
    try {
        if (!z.nur_lesbar) Einstellungen_schreiben(z);
    } catch (const Laufzeitfehler&) {
        return;
    }
}

// Whether the program still runs on another machine only the user can know.
void sage_Sperre(Eingabestand& z) {
    const auto Inhaber = z.Sperre->anderer();
    if (!Inhaber) return;
    if (Inhaber->Rechner.empty()) return melde(z, Texte::Ordner_in_Gebrauch, Texte::zweites_Fenster);
    const std::string Text = Texte::andere_Maschine(Inhaber->Rechner, Inhaber->Alter) + Texte::Sperre_uebernehmen;
    const Frage f{Texte::Ordner_in_Gebrauch, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}};
    if (z.Welt.Fragen->frage(f) == Knopf::Ja) z.Sperre->uebernimm();
}

void oeffne_Ordner(Eingabestand& z) {
    try {
        z.Ordner.emplace(z.Projektpfad);
    } catch (const Laufzeitfehler&) {
        z.Statuszeile.sage("The project path \"" + z.Projektpfad + "\" is not there; \"" + z.Welt.Programmpfad + "\" is used.");
        z.Projektpfad = z.Welt.Programmpfad;
        z.Ordner.emplace(z.Projektpfad);
    }
    z.nur_lesbar = !ist_beschreibbar(z.Ordner->Pfad()) || !ist_beschreibbar(z.Ordner->Eingabeordner());
    setze_Ausgabeprojekt(z, z.Ordner->Pfad());
    if (z.nur_lesbar) z.Statuszeile.sage_dazu("\"" + z.Ordner->Pfad() + "\"" + Texte::nur_lesbar);
}

// The newest first; before it the one that the program was called with.
std::vector<std::string> Startfolge(const Eingabestand& z) {
    std::vector<std::string> Namen = Simulationen_nach_Alter(*z.Ordner);
    const auto gewollte = std::find(Namen.begin(), Namen.end(), z.Welt.erste_Simulation);
    if (gewollte != Namen.end()) std::rotate(Namen.begin(), gewollte, gewollte + 1);
    return Namen;
}

}  // namespace

// Loads the first simulation of the order whose summary file can be read. False without any, or if the program ends.
bool Programmablauf::lade_erste() {
    for (const std::string& Name : Startfolge(z_)) {
        if (versuche(z_, [&] { Saetze_.lade_Start(Name); })) return !z_.beendet();
    }
    Saetze_.beende_oder_stelle_her("Input files are missing. Should the default settings be loaded ", true);
    return false;
}

bool Programmablauf::oeffne_Projekt() {
    z_.Namen[Simulation] = Startsimulation;
    const bool mit_Einstellungen = lade_Einstellungen(z_);
    oeffne_Ordner(z_);
    if (!mit_Einstellungen) schreibe_erste_Einstellungen(z_);
    z_.Sperre = std::make_shared<Projektsperre>(*z_.Ordner);
    sage_Sperre(z_);
    Saetze_.fuelle_Listen();
    z_.Sicht.TWA_Laenge = TWA_Vorauswahl(z_.Parameter().TWA_Zeiten);
    z_.Vorgabe.Studie = {""};  // what stands under the cover where no compound can be read
    return (Zwischenstand_.biete_an() || lade_erste()) && !z_.beendet();
}

void Programmablauf::verlasse_Startseite() {
    if (z_.Gestartet) return;
    z_.Gestartet = true;
    Laeufe_.berechne();
}

// What is not saved at the end goes into `backup`; in a project that is open for reading only there is none. False where the user
// would rather stay than lose it.
bool Programmablauf::sichere_am_Ende() {
    if (z_.nur_lesbar) return true;
    try {
        Saetze_.sichere_Ungesichertes();
        return true;
    } catch (const Befehl_aufgegeben&) {
        return false;
    }
}

void Programmablauf::beende() {
    const auto zu_sichern = Saetze_.frage_nach_Sicherung();
    if (!zu_sichern || !Saetze_.pruefe_Auswahl({Knopf::OK, Knopf::Abbrechen})) return;
    if (!zu_sichern->empty() && !Saetze_.speichere_Arten(*zu_sichern)) return;
    // A save has just written the summary file, unless it was not read: then its time is what is missing.
    const bool geschrieben = z_.nur_lesbar || (!zu_sichern->empty() && z_.Saetze[Simulation].gelesen());
    bool weiter = true;
    std::string Fehler;
    if (!geschrieben && (z_.Saetze[Simulation].Geaendert() || z_.Neu_berechnen()))
        Fehler = Fehler_bei([&] { weiter = Saetze_.schreibe_Zusammenfassungsdatei(); });
    if (!weiter || !sichere_am_Ende()) return;
    const std::string zweiter = z_.nur_lesbar ? "" : Fehler_bei([&] { Einstellungen_schreiben(z_); });
    Fehler += (Fehler.empty() || zweiter.empty() ? "" : "\n") + zweiter;
    if (!Fehler.empty()) melde_Fehler(z_, Fehler);
    z_.beende();
}

bool Programmablauf::schliesse_Fenster() {
    if (z_.beendet()) return true;
    // No check: what is in work counts as typed, where it can.
    Felder_.nimm_Ungueltiges_zurueck();
    Tabelle_.nimm_Ungueltiges_zurueck();
    Tabelle_.schliesse_ab();
    Felder_.schliesse_ab(false);
    Studien_.bestaetige(false);
    versuche(z_, [this] { Umbenennung_.bestaetige(false); });
    z_.raeume_Marken_auf();
    const auto zu_sichern = Saetze_.frage_nach_Sicherung();
    if (!zu_sichern) return false;
    if (!zu_sichern->empty() && !Saetze_.speichere_Arten(*zu_sichern)) return false;
    if (sichere_am_Ende()) z_.beende();
    return z_.beendet();
}

}  // namespace varnok
