#include "session/programm/startablauf.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/laufzeitfehler.h"
#include "exposure/twa.h"
#include "records/dateien.h"
#include "records/simulation.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"
#include "session/programm/programmende.h"

namespace varnok {
namespace {

std::optional<Einstellungen> lies_Einstellungen(const Zustand& z) {
    try {
        return zerlege_Einstellungen(lies_Datei(Einstellungspfad(z)));
    } catch (const Laufzeitfehler&) {
        return std::nullopt;  // a missing file is the usual case of a first start
    }
}

// A settings file that is missing or cannot be read is made anew from the defaults without a word.
void lade_Einstellungen(Zustand& z) {
    const auto gelesen = lies_Einstellungen(z);
    z.Einstellung = gelesen.value_or(Einstellungen{});
    const bool hier = z.Welt.Projekt_genannt || z.Einstellung.Projektpfad.empty();
    z.Projektpfad = hier ? z.Welt.Programmpfad : z.Einstellung.Projektpfad;
    z.Parameter().TWA = z.Einstellung.TWA;
    if (!gelesen) Einstellungen_schreiben(z);
}

void oeffne_Ordner(Zustand& z) {
    try {
        z.Ordner.emplace(z.Projektpfad);
    } catch (const Laufzeitfehler&) {
        z.Statuszeile = "The project path \"" + z.Projektpfad + "\" is not there; \"" + z.Welt.Programmpfad + "\" is used.";
        z.Projektpfad = z.Welt.Programmpfad;
        z.Ordner.emplace(z.Projektpfad);
    }
    z.Ausgabeprojekt = z.Ordner;
}

// The newest first; before it the one that the program was called with.
std::vector<std::string> Startfolge(const Zustand& z) {
    std::vector<std::string> Namen = Simulationen_nach_Alter(*z.Ordner);
    const auto gewollte = std::find(Namen.begin(), Namen.end(), z.Welt.erste_Simulation);
    if (gewollte != Namen.end()) std::rotate(Namen.begin(), gewollte, gewollte + 1);
    return Namen;
}

// Loads the first simulation of that order whose summary file can be read. False without any, or if the program ends.
bool lade_erste(Zustand& z, Satzverwaltung& Saetze) {
    for (const std::string& Name : Startfolge(z)) {
        try {
            Saetze.lade_Start(Name);
            return !z.beendet;
        } catch (const Laufzeitfehler& f) {
            melde(z, Texte::Laufzeitfehler, f.what());
        }
    }
    beende_oder_stelle_her(z, Saetze, "Input files are missing. Should the default settings be loaded ", true);
    return false;
}

}  // namespace

bool starte_Programm(Zustand& z, Satzverwaltung& Saetze) {
    z.Namen[Simulation] = Startsimulation;
    lade_Einstellungen(z);
    oeffne_Ordner(z);
    z.Sperre = std::make_shared<Projektsperre>(*z.Ordner);
    if (z.Sperre->von_anderem_gehalten()) melde(z, Texte::Ordner_in_Gebrauch, Texte::zweites_Fenster);
    Saetze.fuelle_Listen();
    z.Sicht.TWA_Laenge = TWA_Vorauswahl(z.Parameter().TWA_Zeiten);
    z.Felder().Studie = {""};  // what stands under the cover where no compound can be read
    return lade_erste(z, Saetze) && !z.beendet;
}

}  // namespace varnok
