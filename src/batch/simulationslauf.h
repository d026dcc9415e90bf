#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/laufzeitfehler.h"
#include "base/schnittstellen.h"
#include "batch/berichtsauftrag.h"
#include "batch/berichtsnamen.h"
#include "batch/simulationsergebnis.h"
#include "batch/vorgaben.h"
#include "records/eingabensumme.h"
#include "records/klimadatei.h"
#include "records/projektordner.h"
#include "records/simulation.h"
#include "run/lauf.h"

namespace varnok::batch {

// What all simulations of a call have in common. Read by several threads at once.
struct Auftrag {
    explicit Auftrag(const Projektordner& o) : Ordner(o) {}

    Projektordner Ordner;
    std::optional<int> Studie;  // counted from 1
    std::optional<TWA_Listen> TWA;
    std::vector<Bemerkung> zu_den_Einstellungen;  // of the file that gave these lists
    std::optional<std::string> Einstellungen;     // the bytes of that file
    Vorgabensatz Vorgaben;
    std::string Variantenquelle;  // the file that the variants come from
    bool mit_Summe = false;       // the sum of the inputs is wanted
    std::string Serienordner;     // empty: no series
    std::string volle_Serien;     // the same for people
    bool mit_Reihen = false;      // an output other than these holds series
    std::string Berichtsordner;   // empty: no reports
    Berichtsschreiber schreibe_Bericht;
    bool erweitert = false;     // the report of all studies, too
    const Uhr* Zeit = nullptr;  // of reports
    Berichtsnamen Namen;        // of all reports of the project
};

// A simulation as its records give it.
struct Lesung {
    Simulationssatz Satz;
    std::shared_ptr<const Eingabe> Vorgabe;  // null with a `Fehler`
    Ansicht Sicht;
    std::vector<Bemerkung> Bemerkungen;
    std::optional<Eingabensumme> Summe;    // of the three records, where it is wanted
    std::optional<Laufzeitfehler> Fehler;  // why it cannot be used
};

// What a worker uses again for each of its simulations. What it was used for before plays no part in the results.
struct Arbeitsplatz {
    std::unique_ptr<Lauf> Rechnung;  // made where there is none
    std::optional<Klimagedaechtnis> Klima;
    // The sum of the inputs as far as it is the same for the variants of a simulation.
    struct Summenstand {
        std::shared_ptr<const Lesung> von;
        std::string Klima;
        Eingabensumme Summe;
    };
    std::optional<Summenstand> Summe;
};

// One simulation or one variant of it.
struct Arbeitsstueck {
    std::size_t Position = 0;
    std::string Simulation;
    std::shared_ptr<const Lesung> Gelesenes;  // null: not read yet
    std::optional<Variante> Herkunft;
};

std::shared_ptr<const Lesung> lies_Simulationssaetze(const Auftrag& a, const std::string& Name);

// The sum of the inputs of a piece of work whose records could be read; empty where the values of the call do not go together.
std::string Summe_der_Eingaben(const Auftrag& a, const Arbeitsstueck& s, Arbeitsplatz& Platz);

// Puts the values of the call into what the records give and calculates the studies in rising order. Where one study that is
// asked for cannot be calculated, the whole simulation is a fault. Writes series and reports of a calculated simulation. Throws
// nothing but what naming a fault itself may throw.
Simulationsausgang rechne_Simulation(const Auftrag& a, const Arbeitsstueck& s, Arbeitsplatz& Platz);
Simulationsausgang rechne_Simulation(const Auftrag& a, const std::string& Name, Arbeitsplatz& Platz);

}  // namespace varnok::batch
