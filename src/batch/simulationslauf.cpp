#include "batch/simulationslauf.h"

#include <algorithm>
#include <exception>
#include <new>
#include <numeric>

#include "base/laufzeitfehler.h"
#include "batch/fundstelle.h"
#include "batch/satzladen.h"
#include "batch/serien.h"
#include "exposure/darstellung.h"
#include "exposure/twa.h"
#include "records/simulation.h"

namespace varnok::batch {
namespace {

// A simulation as its records give it.
struct Gelesenes {
    Simulationssatz Satz;
    std::shared_ptr<const Eingabe> Vorgabe;
    Ansicht Sicht;
};

Gelesenes lies(const Auftrag& a, const std::string& Name, const Arbeitsplatz& Platz, std::vector<Bemerkung>& Bemerkungen) {
    Gelesenes g;
    std::vector<Bemerkung> zur_Simulation;
    g.Satz = lies_Simulation(a.Ordner, Name, &zur_Simulation);
    haenge_an(Bemerkungen, zur_Simulation, a.Ordner);
    Eingabe e;
    if (a.TWA) e.Parameter.TWA = *a.TWA;
    lade_Saetze(a, Name, g.Satz, e, g.Sicht, Bemerkungen);
    if (e.Parameter.Klimamodus == 1 && Platz.Klima->lade(e.Klimaszenario)) {
        haenge_an(Bemerkungen, Platz.Klima->Bemerkungen(), a.Ordner);
    }
    Bemerkungen.insert(Bemerkungen.end(), a.zu_den_Einstellungen.begin(), a.zu_den_Einstellungen.end());
    g.Sicht.TWA_Laenge = TWA_Vorauswahl(e.Parameter.TWA_Zeiten);
    g.Vorgabe = std::make_shared<const Eingabe>(std::move(e));
    return g;
}

// Positions of the studies that results are wanted of.
std::vector<int> gewaehlte_Studien(const Auftrag& a, const Gelesenes& g) {
    const int Anzahl = g.Vorgabe->Studienzahl();
    if (a.Studie && *a.Studie > Anzahl) {
        throw Laufzeitfehler("there is no study " + std::to_string(*a.Studie) + ": " + Dateistelle(Satzdatei(g.Satz, Wirkstoff)) +
                             " has " + std::to_string(Anzahl));
    }
    if (a.Studie) return {*a.Studie - 1};
    std::vector<int> alle(static_cast<std::size_t>(Anzahl));
    std::iota(alle.begin(), alle.end(), 0);
    return alle;
}

std::shared_ptr<const Ergebnis> rechne_Studie(const Gelesenes& g, int st, Umfang u, const Arbeitsplatz& Platz) {
    const Eingabe& e = *g.Vorgabe;
    const std::string davor = "study " + std::to_string(st + 1) + " \"" + e.Studie[static_cast<std::size_t>(st)] + "\": ";
    Studienlauf Fertig;
    try {
        Fertig = berechne_Studie(*Platz.Rechnung, g.Vorgabe, st, *Platz.Klima, u);
    } catch (const Laufzeitfehler& f) {
        const std::string Ort = Fundstelle(f, e, g.Satz, st);
        throw Laufzeitfehler(davor + (Ort.empty() ? "" : Ort + ": ") + f.what());
    }
    if (!Fertig.Ausgang.gelungen())
        throw Laufzeitfehler(davor + Fundstelle(Fertig.Ausgang, e, g.Satz) + ": " + Meldung(Fertig.Ausgang.Ausgang));
    return Fertig.Werte;
}

// The studies wanted; all of them for an extended report, which tells of every one.
Ergebnisse rechne_Studien(const Auftrag& a, const Gelesenes& g, const std::vector<int>& Gewaehlte, const Arbeitsplatz& Platz) {
    const Umfang u = a.Serienordner.empty() && a.Berichtsordner.empty() ? Umfang::ohne_Reihen : Umfang::vollstaendig;
    Ergebnisse Studien;
    for (int st = 0; st < g.Vorgabe->Studienzahl(); ++st) {
        if (!a.erweitert && std::find(Gewaehlte.begin(), Gewaehlte.end(), st) == Gewaehlte.end()) continue;
        Studien.at(static_cast<std::size_t>(st)) = rechne_Studie(g, st, u, Platz);
    }
    return Studien;
}

std::string Berichtszusatz(const Auftrag& a, const std::string& Simulation, const std::string& Beschreibung) {
    const auto& Mehrfache = a.mehrfache_Beschreibungen;
    return std::find(Mehrfache.begin(), Mehrfache.end(), Beschreibung) == Mehrfache.end() ? std::string() : " - " + Simulation;
}

// The standard report of each study chosen, and the extended one with the study selected that opening the simulation selects.
void schreibe_Berichte(const Auftrag& a, const std::string& Simulation, const Gelesenes& g, const Ergebnisse& Studien,
                       const std::vector<int>& Gewaehlte, std::vector<std::string>& Schreibfehler) {
    const std::string Zusatz = Berichtszusatz(a, Simulation, g.Satz.Beschreibung);
    const std::string& Applikationssatz = g.Satz.Dateinamen[Applikation];
    for (const int st : Gewaehlte) {
        Ansicht Sicht = g.Sicht;
        Sicht.Studie_Index = st;
        a.schreibe_Bericht(
            {a.Berichtsordner, false, Applikationssatz, a.Zeit, Zusatz + Studienzusatz(*g.Vorgabe, st, Gewaehlte.size())},
            {Studien, Sicht, *g.Vorgabe}, Schreibfehler);
    }
    if (!a.erweitert) return;
    a.schreibe_Bericht({a.Berichtsordner, true, Applikationssatz, a.Zeit, Zusatz + " - extended"}, {Studien, g.Sicht, *g.Vorgabe},
                       Schreibfehler);
}

void rechne(const Auftrag& a, const Arbeitsplatz& Platz, Simulationsergebnis& r, std::vector<std::string>& Schreibfehler) {
    const Gelesenes g = lies(a, r.Name, Platz, r.Bemerkungen);
    const std::vector<int> Gewaehlte = gewaehlte_Studien(a, g);
    const Ergebnisse Studien = rechne_Studien(a, g, Gewaehlte, Platz);

    r.Beschreibung = g.Satz.Beschreibung;
    r.Dateinamen = g.Satz.Dateinamen;
    r.Vorgabe = g.Vorgabe;
    for (const int st : Gewaehlte) r.Studien.push_back(Studien.at(static_cast<std::size_t>(st)));
    if (!a.Berichtsordner.empty()) schreibe_Berichte(a, r.Name, g, Studien, Gewaehlte, Schreibfehler);
    if (!a.Serienordner.empty()) schreibe_Serien(a.Serienordner, r.Name, r.Studien, Schreibfehler);
}

}  // namespace

Simulationsausgang rechne_Simulation(const Auftrag& a, const std::string& Name, Arbeitsplatz& Platz) {
    Simulationsausgang Ausgang;
    Ausgang.Ergebnis.Name = Name;
    try {
        if (!Platz.Rechnung) Platz.Rechnung = std::make_unique<Lauf>();
        if (!Platz.Klima) Platz.Klima.emplace(a.Ordner);
        rechne(a, Platz, Ausgang.Ergebnis, Ausgang.Schreibfehler);
        return Ausgang;
    } catch (const std::bad_alloc&) {
        Ausgang.Fehler = "there is not enough memory for this simulation; fewer --jobs need less";
    } catch (const std::exception& f) {
        Ausgang.Fehler = f.what();
    }
    Ausgang.Ergebnis.Studien.clear();
    return Ausgang;
}

}  // namespace varnok::batch
