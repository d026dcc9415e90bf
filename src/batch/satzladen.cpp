#include "batch/satzladen.h"

#include <array>
#include <utility>

#include "base/laufzeitfehler.h"
#include "batch/satzname.h"
#include "records/dateien.h"
#include "records/satz.h"

namespace varnok::batch {
namespace {

constexpr std::array<const char*, 4> Satzwoerter = {"", "compound record", "application pattern record", "scenario record"};

// The compound brings the studies and the scheme; what else it needs of the screen comes after it.
constexpr std::array Lesefolge = {Wirkstoff, Szenario, Applikation};

// A selector finds a record only letter for letter, even where the file system would be content with less.
void fordere_Satz(const Auftrag& a, const std::string& Simulationsname, const Simulationssatz& Satz, Satzart Art) {
    const std::string& Name = Satz.Dateinamen[Art];
    if (a.Ordner.enthaelt(Name, Endungen[Art])) return;
    // Line 1 of the summary file is the description, so the kinds of record stand on lines 2 to 4.
    const Fehlerort Ort = {
        .Datei = Simulationsname + Endungen[Simulation], .Zeile = Art + 1, .Text = Name, .Bezeichnung = Satzwoerter[Art]};
    std::string Grund = std::string("there is no ") + Satzwoerter[Art] + " \"" + Name + "\"";
    const auto aehnlich = a.Ordner.finde(Name, Endungen[Art]);
    if (aehnlich && a.Ordner.enthaelt(Satzname(*aehnlich), Endungen[Art])) {
        Grund += "; there is \"" + Satzname(*aehnlich) + "\", which differs in upper and lower case";
    }
    throw Laufzeitfehler(Grund, Ort, Dateistelle(Ort.Datei, Ort.Zeile));
}

}  // namespace

std::string Dateistelle(const std::string& Dateiname, int Zeile) { return "file " + Zeilenangabe(Dateiname, Zeile); }

std::string Satzdatei(const Simulationssatz& Satz, Satzart Art) { return Satz.Dateinamen[Art] + Endungen[Art]; }

void haenge_an(std::vector<Bemerkung>& Bemerkungen, const std::vector<Bemerkung>& neue, const Projektordner& Ordner) {
    for (Bemerkung b : neue) {
        b.Datei = Ordner.Eingabedatei(b.Datei);
        Bemerkungen.push_back(std::move(b));
    }
}

void lade_Saetze(const Auftrag& a, const std::string& Simulation, const Simulationssatz& Satz, Eingabe& e, Ansicht& Sicht,
                 std::vector<Bemerkung>& Bemerkungen, Eingabensumme* Summe) {
    e.Beschreibung = Satz.Beschreibung;
    for (const Satzart Art : Eingabearten) fordere_Satz(a, Simulation, Satz, Art);
    std::array<std::string, 4> Bytes;
    for (const Satzart Art : Lesefolge) {
        const std::string Datei = Satzdatei(Satz, Art);
        const auto Pfad = a.Ordner.finde(Satz.Dateinamen[Art], Endungen[Art]);
        if (!Pfad) throw Laufzeitfehler(Dateistelle(Datei) + " is missing", {Datei});
        Bytes[Art] = lies_Datei(*Pfad);
        const Lesebefund Befund = Satz_lesen_aus(Bytes[Art], Datei, Art, e, Sicht);
        haenge_an(Bemerkungen, Befund.Bemerkungen, a.Ordner);
        if (Befund.Ausgang == Leseausgang::abgebrochen) {
            throw Laufzeitfehler(Befund.Grund, Befund.Ort, Dateistelle(Datei, Befund.Ort.Zeile));
        }
    }
    if (!Summe) return;
    for (const Satzart Art : Eingabearten) Summe->nimm_Datei(Bytes[Art]);
}

}  // namespace varnok::batch
