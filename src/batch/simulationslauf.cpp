#include "batch/simulationslauf.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <new>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "batch/berichte.h"
#include "batch/fundstelle.h"
#include "batch/satzladen.h"
#include "batch/serien.h"
#include "exposure/ergebnistabelle.h"
#include "exposure/schritte.h"
#include "exposure/twa.h"
#include "records/klimadatei.h"
#include "records/simulation.h"
#include "run/lauf.h"

namespace varnok::batch {
namespace {

constexpr std::array<const char*, Endpunkte> Endpunktnamen = {"total soil", "pore water"};
constexpr std::array<std::array<const char*, Endpunkte>, 2> Einheiten = {{{"mg/kg", "mg/L"}, {"µg/kg", "µg/L"}}};
constexpr int erste_Tabellenzeile = 10;  // of an application pattern record

std::size_t Platz(int i) { return static_cast<std::size_t>(i); }

// The last gate in front of every file: what is no finite number is a fault of the input.
template <class Zahl>
Zahl endlich(Zahl Wert, const char* Name) {
    if (!std::isfinite(Wert)) melde_unmoegliche_Rechnung(std::string(Name) + " = " + allgemeine_Zahl(Wert));
    return Wert;
}

Endpunktergebnis entnimm_Endpunkt(const Lauf& l, int i_endpunkt, int st, int c) {
    const Ergebnisspeicher& s = l.Speicher;
    const auto aus = [&](const auto& Tabelle) -> const auto& { return Tabelle[Platz(i_endpunkt)][Platz(st)][Platz(c)]; };
    Endpunktergebnis e;
    e.Name = Endpunktnamen[Platz(i_endpunkt)];
    e.Einheit = Einheiten[l.Parameter.Einheit == 0 ? 0 : 1][Platz(i_endpunkt)];
    e.Maximum_Bodentiefe = endlich(aus(s.Maximum_Bodentiefe), "Maximum_Bodentiefe");
    e.Maximumtag_Bodentiefe = aus(s.Maximumtag_Bodentiefe);
    e.Maximum_Plateautiefe = endlich(aus(s.Maximum_Plateautiefe), "Maximum_Plateautiefe");
    for (std::size_t j = 0; j < Jahre; ++j) e.Jahresmaximum[j] = endlich(aus(s.Jahresmaximum)[j + 1], "Jahresmaximum");
    e.Plateauwert = endlich(aus(s.Plateauwert), "Plateauwert");
    e.Plateauzuwachs = endlich(aus(s.Plateauzuwachs), "Plateauzuwachs");
    e.Plateautext = aus(s.Plateautext);
    for (int j = 1; j <= Anzahl_TWA(l.Parameter.TWA_Zeiten); ++j) {
        e.TWA.push_back({endlich(s.TWA_Tage[Platz(j)], "TWA_Tage"), endlich(aus(s.TWA_Maximum)[Platz(j)], "TWA_Maximum"),
                         aus(s.TWA_Starttag)[Platz(j)], endlich(PECactual(l, i_endpunkt, st, c, j), "PECactual")});
    }
    return e;
}

Studienergebnis entnimm_Studie(const Lauf& l, int st) {
    Studienergebnis r;
    r.Nummer = st + 1;
    r.Name = l.Felder.Studie[Platz(st)];
    r.Anzahl_pro_Jahr = l.Speicher.Anzahl_pro_Jahr;
    r.Wirksame_Rate = endlich(l.Speicher.Wirksame_Rate, "Wirksame_Rate");
    const auto erster = l.Speicher.Applikationstag.begin() + 1;
    r.Applikationstag.assign(erster, erster + r.Anzahl_pro_Jahr);
    for (int c = 0; c < Anzahl_Stoffe(l.Felder.Berechnungsmodus); ++c) {
        r.Stoffwerte.push_back({c, Stoffname(l.Felder, c), {entnimm_Endpunkt(l, 0, st, c), entnimm_Endpunkt(l, 1, st, c)}});
    }
    r.Warnungen = l.Warnungen;
    return r;
}

// Where the user finds what ended a run.
std::string Fundstelle(const Laufergebnis& Ergebnis, const Lauf& l, const Simulationssatz& Satz) {
    if (Ergebnis.Ausgang == Laufausgang::Klimadatei_fehlt) return Dateistelle(l.Felder.Klimaszenario + Klima_Endung);
    const std::string Datei = Satzdatei(Satz, Applikation);
    if (Ergebnis.Ausgang != Laufausgang::Tabelle_ungueltig) return Dateistelle(Datei);
    return Dateistelle(Datei, erste_Tabellenzeile + Ergebnis.Zeile) + ", row " + std::to_string(Ergebnis.Zeile + 1) +
           " of the table, " + (Ergebnis.Spalte == 0 ? "day" : "month");
}

Studienergebnis rechne_Studie(Lauf& l, const Simulationssatz& Satz, const Klimaquelle& Klima, int st) {
    const std::string davor = "study " + std::to_string(st + 1) + " \"" + l.Felder.Studie[Platz(st)] + "\": ";
    Laufergebnis Ergebnis;
    try {
        l.Warnungen.clear();
        l.Felder.Studie_Index = st;
        Ergebnis = berechne_PEC(l, st, Klima, alle_Rechenschritte);
        if (Ergebnis.gelungen()) return entnimm_Studie(l, st);
    } catch (const Laufzeitfehler& f) {
        const std::string Ort = batch::Fundstelle(f.what(), l, Satz, st);
        throw Laufzeitfehler(davor + (Ort.empty() ? "" : Ort + ": ") + f.what());
    }
    throw Laufzeitfehler(davor + Fundstelle(Ergebnis, l, Satz) + ": " + Meldung(Ergebnis.Ausgang));
}

// Positions of the studies to calculate.
std::vector<int> waehle_Studien(const Auftrag& a, const Lauf& l, const Simulationssatz& Satz) {
    const int Anzahl = static_cast<int>(l.Felder.Studie.size());
    if (a.Studie && *a.Studie > Anzahl) {
        throw Laufzeitfehler("there is no study " + std::to_string(*a.Studie) + ": " + Dateistelle(Satzdatei(Satz, Wirkstoff)) +
                             " has " + std::to_string(Anzahl));
    }
    if (a.Studie) return {*a.Studie - 1};
    std::vector<int> alle;
    for (int st = 0; st < Anzahl; ++st) alle.push_back(st);
    return alle;
}

void uebernimm_TWA_Listen(const Auftrag& a, Laufparameter& p) {
    if (!a.TWA_Listen) return;
    p.TWA_Liste_EU = a.TWA_Listen->TWA_Liste_EU;
    p.TWA_Liste_Monat = a.TWA_Listen->TWA_Liste_Monat;
}

std::string Berichtszusatz(const Auftrag& a, const std::string& Simulation, const std::string& Beschreibung) {
    const auto& Mehrfache = a.mehrfache_Beschreibungen;
    return std::find(Mehrfache.begin(), Mehrfache.end(), Beschreibung) == Mehrfache.end() ? std::string() : " - " + Simulation;
}

void rechne(const Auftrag& a, Simulationsergebnis& r, std::vector<std::string>& Schreibfehler) {
    const Simulationssatz Satz = lies_Simulation(a.Ordner, r.Name);
    const auto l = std::make_unique<Lauf>();
    uebernimm_TWA_Listen(a, l->Parameter);
    lade_Saetze(a, r.Name, Satz, *l, r.Bemerkungen);
    uebernehme_TWA_Liste(*l);
    l->Felder.TWA_Laenge = TWA_Vorauswahl(l->Parameter.TWA_Zeiten);
    l->Felder.Beschreibung = Satz.Beschreibung;
    l->Felder.Aktuelle_Dateinamen = Satz.Dateinamen;

    const Projektklima Klima(a.Ordner);
    const std::vector<int> Studien = waehle_Studien(a, *l, Satz);
    const std::string Zusatz = Berichtszusatz(a, r.Name, Satz.Beschreibung);
    for (const int st : Studien) {
        r.Studien.push_back(rechne_Studie(*l, Satz, Klima, st));
        // The doses and the weather that a report tells of are those of the last run.
        if (a.Berichtsordner.empty()) continue;
        schreibe_Berichtsdatei(a.Berichtsordner, *l, Berichtsart::Standard, Zusatz + Studienzusatz(*l, st, Studien.size()),
                               Schreibfehler);
    }
    if (a.erweitert) schreibe_Berichtsdatei(a.Berichtsordner, *l, Berichtsart::erweitert, Zusatz + " - extended", Schreibfehler);

    r.Beschreibung = Satz.Beschreibung;
    r.Dateinamen = Satz.Dateinamen;
    r.Einheit = l->Parameter.Einheit;
    r.Separate_Rueckstaende = l->Parameter.Separate_Rueckstaende;
    r.TWA_Zeiten = l->Parameter.TWA_Zeiten;
    r.Klimamodus = l->Parameter.Klimamodus;
    r.Schema = l->Felder.Berechnungsmodus;
    if (!a.Serienordner.empty()) schreibe_Serien(a.Serienordner, r.Name, *l, Studien, Schreibfehler);
}

}  // namespace

Auftrag::Auftrag(const Projektordner& o) : Ordner(o) {
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario}) {
        Satznamen[Art] = Ordner.Namen(Endungen[Art]);
        std::sort(Satznamen[Art].begin(), Satznamen[Art].end());
    }
}

Simulationsausgang rechne_Simulation(const Auftrag& a, const std::string& Name) {
    Simulationsausgang Ausgang;
    Ausgang.Ergebnis.Name = Name;
    try {
        rechne(a, Ausgang.Ergebnis, Ausgang.Schreibfehler);
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
