#pragma once

#include <memory>
#include <string>
#include <vector>

#include "run/eingabe.h"
#include "run/ergebnisspeicher.h"
#include "run/klima.h"
#include "run/slotbeobachter.h"
#include "run/slotzeilen.h"
#include "run/tagesfaktoren.h"

namespace varnok {

// Values of the day in work. Every compound calculation rewrites them; after it they keep the last day's.
struct Tageswerte {
    double Tagestemperatur = 20;   // degrees C
    double Bodenfeuchte = 0;       // Vol%
    double Referenzfeuchte = 0;    // Vol%, moisture at which the correction factor is 1
    double Tagesniederschlag = 0;  // mm
    double Tagesverdunstung = 0;   // mm
    double Summe_Temperatur = 0;   // sums of what was read from the climate file
    double Summe_Niederschlag = 0;
    double Summe_Verdunstung = 0;
};

// Where a run keeps its intermediate numbers. It starts with none of them.
struct Werkbank {
    Tagesfaktoren Faktoren;
    Slotzeilen Zeilen;
    std::vector<double> Kehrwerte;  // of the powers of FOMC, by slot of the first year and age; empty before they are needed
};

// One calculation: what goes in, what comes out and where it stands. A value without ties to
// anything outside; runs in different threads do not know of each other.
struct Lauf {
    Eingabe Felder;
    Ergebnisspeicher Speicher;

    int i_studie = 0;
    int i_substanz = 0;
    Tageswerte Tag;
    Wetter Klima;
    std::vector<std::string> Warnungen;  // of the last run, each once

    std::unique_ptr<Werkbank> Platz = std::make_unique<Werkbank>();
    std::shared_ptr<Slotbeobachter> Beobachter;  // none but in tests
};

// The calculations above the parent's series that a run needs; `exposure/` supplies them.
struct Rechenschritte {
    void (*Berechnung_Metabolit_1)(Lauf&);
    void (*Berechnung_Metabolit_2)(Lauf&);
    void (*berechne_Plateau)(Lauf&);
    void (*berechne_TWA)(Lauf&);
};

enum class Laufausgang {
    berechnet,
    Tabelle_ungueltig,      // a day or month cell of the table converts to 0; the stores are untouched
    Datumsfolge_ungueltig,  // irregular dates do not ascend; the study's stores are cleared
    Klimadatei_fehlt,       // the climate file cannot be opened; the study's stores are cleared
};

struct Laufergebnis {
    Laufausgang Ausgang = Laufausgang::berechnet;
    int Zeile = 0;  // cell at fault of the table, counted from 0
    int Spalte = 0;

    bool gelungen() const { return Ausgang == Laufausgang::berechnet; }
};

// The text that tells the user of a run that ended early, empty for one that did not.
std::string Meldung(Laufausgang Ausgang);

// Runs the calculation of one study (0 to 5) and leaves everything in the stores.
// Throws Laufzeitfehler for input that makes the arithmetic impossible; the stores of the study then
// hold no result. May repair an interception of 100 or more in the table of applications.
Laufergebnis berechne_PEC(Lauf& l, int i_studie, const Klimaquelle& Quelle, const Rechenschritte& Schritte);

}  // namespace varnok
