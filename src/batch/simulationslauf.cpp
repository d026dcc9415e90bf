#include "batch/simulationslauf.h"

#include <algorithm>
#include <exception>
#include <new>
#include <numeric>
#include <utility>

#include "base/laufzeitfehler.h"
#include "batch/fundstelle.h"
#include "batch/satzladen.h"
#include "batch/serien.h"
#include "batch/volle_serien.h"
#include "exposure/darstellung.h"
#include "exposure/twa.h"
#include "records/dateien.h"
#include "records/simulation.h"

namespace varnok::batch {
namespace {

// A simulation or variant in work: what its records and the call give.
struct Gelesenes {
    const Simulationssatz& Satz;
    std::shared_ptr<const Eingabe> Vorgabe;
    Ansicht Sicht;
};

void lies(const Auftrag& a, const std::string& Name, Lesung& l) {
    std::vector<Bemerkung> zur_Simulation;
    l.Satz = lies_Simulation(a.Ordner, Name, &zur_Simulation);
    haenge_an(l.Bemerkungen, zur_Simulation, a.Ordner);
    Eingabe e;
    if (a.TWA) e.Parameter.TWA = *a.TWA;
    if (a.mit_Summe) l.Summe.emplace();
    lade_Saetze(a, Name, l.Satz, e, l.Sicht, l.Bemerkungen, l.Summe ? &*l.Summe : nullptr);
    l.Vorgabe = std::make_shared<const Eingabe>(std::move(e));
}

// The input in force, with the values of the call. Throws Laufzeitfehler for values that do not go together.
Gelesenes setze_ein(const Auftrag& a, const Lesung& l, const std::optional<Variante>& Herkunft) {
    Gelesenes g{l.Satz, l.Vorgabe, l.Sicht};
    if (!a.Vorgaben.leer()) {
        auto e = std::make_shared<Eingabe>(*l.Vorgabe);
        a.Vorgaben.setze_ein(Herkunft ? &*Herkunft : nullptr, *e, g.Sicht);
        g.Vorgabe = std::move(e);
    }
    g.Sicht.TWA_Laenge = TWA_Vorauswahl(g.Vorgabe->Parameter.TWA_Zeiten);
    return g;
}

// Records, climate file, settings and --set: what the variants of a simulation have in common under one climate.
Eingabensumme gemeinsame_Summe(const Auftrag& a, const Lesung& l, const std::string& Klima) {
    Eingabensumme Summe = *l.Summe;
    const auto Klimadatei = Klima.empty() ? std::nullopt : a.Ordner.finde(Klima, Klima_Endung);
    const auto Klimabytes = Klimadatei ? lies_Datei_falls_moeglich(*Klimadatei) : std::nullopt;
    if (Klimabytes) Summe.nimm_Datei(*Klimabytes);
    if (a.Einstellungen) Summe.nimm_Datei(*a.Einstellungen);
    for (const gegebener_Wert& w : a.Vorgaben.Werte()) Summe.nimm_Wert(w.Bezug.Text, w.Wert.Text());
    return Summe;
}

std::string Summe_von(const Auftrag& a, const std::shared_ptr<const Lesung>& l, const Eingabe& e,
                      const std::optional<Variante>& Herkunft, Arbeitsplatz& Platz) {
    if (!l->Summe) return {};
    const std::string Klima = e.Parameter.Klimamodus == nach_Klimadatei ? e.Klimaszenario : std::string();
    if (!Platz.Summe || Platz.Summe->von != l || Platz.Summe->Klima != Klima)
        Platz.Summe = Arbeitsplatz::Summenstand{l, Klima, gemeinsame_Summe(a, *l, Klima)};
    Eingabensumme Summe = Platz.Summe->Summe;
    const auto& Namen = a.Vorgaben.Variantennamen();
    for (std::size_t i = 0; Herkunft && i < Namen.size(); ++i) Summe.nimm_Wert(Namen[i].Text, Herkunft->Werte[i].Text());
    return Summe.als_Text();
}

// Positions of the studies that results are wanted of.
std::vector<int> gewaehlte_Studien(const Auftrag& a, const Gelesenes& g) {
    const int Anzahl = g.Vorgabe->Studienzahl();
    if (a.Studie && *a.Studie > Anzahl) {
        const std::string Datei = Satzdatei(g.Satz, Wirkstoff);
        throw Laufzeitfehler(
            "there is no study " + std::to_string(*a.Studie) + ": " + Dateistelle(Datei) + " has " + std::to_string(Anzahl),
            {.Datei = Datei, .i_studie = *a.Studie - 1});
    }
    if (a.Studie) return {*a.Studie - 1};
    std::vector<int> alle(static_cast<std::size_t>(Anzahl));
    std::iota(alle.begin(), alle.end(), 0);
    return alle;
}

// A study that cannot be calculated.
[[noreturn]] void melde(const std::string& Grund, const Fundstelle& Stelle, const Eingabe& e) {
    const int st = Stelle.Ort.i_studie;
    const std::string Studie = "study " + std::to_string(st + 1) + " \"" + e.Studie[static_cast<std::size_t>(st)] + '"';
    throw Laufzeitfehler(Grund, Stelle.Ort, Stelle.Text.empty() ? Studie : Studie + ": " + Stelle.Text);
}

std::shared_ptr<const Ergebnis> rechne_Studie(const Gelesenes& g, int st, Umfang u, const Arbeitsplatz& Platz) {
    const Eingabe& e = *g.Vorgabe;
    Studienlauf Fertig;
    try {
        Fertig = berechne_Studie(*Platz.Rechnung, g.Vorgabe, st, *Platz.Klima, u);
    } catch (const Laufzeitfehler& f) {
        melde(f.Grund(), finde_Fundstelle(f, e, g.Satz, st), e);
    }
    if (!Fertig.Ausgang.gelungen()) melde(Meldung(Fertig.Ausgang.Ausgang), finde_Fundstelle(Fertig.Ausgang, e, g.Satz, st), e);
    return Fertig.Werte;
}

// The studies wanted; all of them for an extended report, which tells of every one.
Ergebnisse rechne_Studien(const Auftrag& a, const Gelesenes& g, const std::vector<int>& Gewaehlte, const Arbeitsplatz& Platz) {
    const bool mit_Reihen = a.mit_Reihen || !a.Serienordner.empty() || !a.volle_Serien.empty() || !a.Berichtsordner.empty();
    const Umfang u = mit_Reihen ? Umfang::vollstaendig : Umfang::ohne_Reihen;
    Ergebnisse Studien;
    for (int st = 0; st < g.Vorgabe->Studienzahl(); ++st) {
        if (!a.erweitert && std::find(Gewaehlte.begin(), Gewaehlte.end(), st) == Gewaehlte.end()) continue;
        Studien.at(static_cast<std::size_t>(st)) = rechne_Studie(g, st, u, Platz);
    }
    return Studien;
}

std::string Variantenzusatz(const std::optional<Variante>& Herkunft) {
    return Herkunft ? " - variant " + std::to_string(Herkunft->Reihe) : std::string();
}

// The standard report of each study chosen, and the extended one with the study selected that opening the simulation selects.
void schreibe_Berichte(const Auftrag& a, const std::string& Simulation, const Gelesenes& g, const Ergebnisse& Studien,
                       const std::vector<int>& Gewaehlte, const std::string& Variante, const std::string& Summe,
                       std::vector<std::string>& Schreibfehler) {
    const std::string Herkunft = std::string(Eingabensummenname) + " " + Summe;
    const std::string Zusatz = a.Namen.Simulationszusatz(Simulation);
    const std::string& Applikationssatz = g.Satz.Dateinamen[Applikation];
    for (const int st : Gewaehlte) {
        Ansicht Sicht = g.Sicht;
        Sicht.Studie_Index = st;
        const std::string Studie = Studienzusatz(*g.Vorgabe, st);
        a.schreibe_Bericht({a.Berichtsordner, false, Applikationssatz, a.Zeit, Herkunft, Zusatz + Studie + Variante},
                           {Studien, Sicht, *g.Vorgabe}, Schreibfehler);
    }
    if (!a.erweitert) return;
    a.schreibe_Bericht({a.Berichtsordner, true, Applikationssatz, a.Zeit, Herkunft, Zusatz + " - extended" + Variante},
                       {Studien, g.Sicht, *g.Vorgabe}, Schreibfehler);
}

void rechne(const Auftrag& a, const Arbeitsstueck& s, Arbeitsplatz& Platz, Simulationsausgang& Ausgang) {
    Simulationsergebnis& r = Ausgang.Ergebnis;
    const auto l = s.Gelesenes ? s.Gelesenes : lies_Simulationssaetze(a, s.Simulation);
    r.Bemerkungen = l->Bemerkungen;
    if (l->Fehler) throw *l->Fehler;
    const Gelesenes g = setze_ein(a, *l, s.Herkunft);
    const Eingabe& e = *g.Vorgabe;
    r.Eingabensumme = Summe_von(a, l, e, s.Herkunft, Platz);
    if (s.Herkunft && Platz.Summe && l->Summe) r.gemeinsame_Summe = Platz.Summe->Summe.als_Text();
    if (e.Parameter.Klimamodus == nach_Klimadatei && Platz.Klima->lade(e.Klimaszenario))
        haenge_an(r.Bemerkungen, Platz.Klima->Bemerkungen(), a.Ordner);
    r.Bemerkungen.insert(r.Bemerkungen.end(), a.zu_den_Einstellungen.begin(), a.zu_den_Einstellungen.end());
    if (!a.Vorgaben.leer()) {
        const auto dazu = a.Vorgaben.Bemerkungen(s.Herkunft ? &*s.Herkunft : nullptr, e, a.Variantenquelle);
        r.Bemerkungen.insert(r.Bemerkungen.end(), dazu.begin(), dazu.end());
    }
    const std::vector<int> Gewaehlte = gewaehlte_Studien(a, g);
    const Ergebnisse Studien = rechne_Studien(a, g, Gewaehlte, Platz);

    r.Beschreibung = g.Satz.Beschreibung;
    r.Dateinamen = g.Satz.Dateinamen;
    r.Vorgabe = g.Vorgabe;
    r.Sicht = g.Sicht;
    for (const int st : Gewaehlte) r.Studien.push_back(Studien.at(static_cast<std::size_t>(st)));
    const std::string Variante = Variantenzusatz(s.Herkunft);
    if (!a.Berichtsordner.empty())
        schreibe_Berichte(a, r.Name, g, Studien, Gewaehlte, Variante, r.Eingabensumme, Ausgang.Schreibfehler);
    if (!a.Serienordner.empty()) schreibe_Serien(a.Serienordner, r.Name + Variante, r.Studien, Ausgang.Schreibfehler);
    if (!a.volle_Serien.empty())
        schreibe_volle_Serien(a.volle_Serien, r.Name + Variante, r, *Platz.Klima, *Platz.Rechnung, Ausgang.Schreibfehler);
}

}  // namespace

std::shared_ptr<const Lesung> lies_Simulationssaetze(const Auftrag& a, const std::string& Name) {
    auto l = std::make_shared<Lesung>();
    try {
        lies(a, Name, *l);
    } catch (const Laufzeitfehler& f) {
        l->Fehler = f;
        l->Vorgabe.reset();
    }
    return l;
}

std::string Summe_der_Eingaben(const Auftrag& a, const Arbeitsstueck& s, Arbeitsplatz& Platz) {
    try {
        const Gelesenes g = setze_ein(a, *s.Gelesenes, s.Herkunft);
        return Summe_von(a, s.Gelesenes, *g.Vorgabe, s.Herkunft, Platz);
    } catch (const Laufzeitfehler&) {
        return {};
    }
}

Simulationsausgang rechne_Simulation(const Auftrag& a, const Arbeitsstueck& s, Arbeitsplatz& Platz) {
    Simulationsausgang Ausgang;
    Ausgang.Ergebnis.Name = s.Simulation;
    Ausgang.Position = s.Position;
    Ausgang.Herkunft = s.Herkunft;
    try {
        if (!Platz.Rechnung) Platz.Rechnung = std::make_unique<Lauf>();
        if (!Platz.Klima) Platz.Klima.emplace(a.Ordner);
        rechne(a, s, Platz, Ausgang);
        return Ausgang;
    } catch (const std::bad_alloc&) {
        Ausgang.Fehler.emplace("there is not enough memory for this simulation; fewer --jobs need less");
        Ausgang.Ergebnis.Eingabensumme.clear();  // another attempt may well succeed
    } catch (const Laufzeitfehler& f) {
        Ausgang.Fehler = f;
    } catch (const std::exception& f) {
        Ausgang.Fehler.emplace(f.what());
    }
    Ausgang.Ergebnis.Studien.clear();
    return Ausgang;
}

Simulationsausgang rechne_Simulation(const Auftrag& a, const std::string& Name, Arbeitsplatz& Platz) {
    return rechne_Simulation(a, Arbeitsstueck{0, Name, nullptr, std::nullopt}, Platz);
}

}  // namespace varnok::batch
