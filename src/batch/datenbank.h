#pragma once

// Results in an SQLite database, beside what it holds.

#include <string>
#include <vector>

#include "batch/datenbankziel.h"
#include "batch/simulationsergebnis.h"

namespace varnok::batch {

struct Datenbankumfang {
    std::string Projekt;             // name of its folder
    bool geteilt = false;            // one shard of several: rows of other variants stay, positions are kept
    std::size_t Varianten = 0;       // of each simulation; 0 without
    std::vector<std::string> Namen;  // of their values
    bool mit_Reihen = false;
};

class Datenbank {
public:
    // Throws Laufzeitfehler that names the file: no database, locked, no room.
    Datenbank(const std::string& Datei, Datenbankumfang u);

    // In the order of the call. Replaces what is there of the same project, simulation and variant.
    void nimm(const Simulationsausgang& a);
    void beende() { Ziel_.beende(); }

private:
    void betrete(const Simulationsergebnis& r);
    void beschreibe(const Simulationsergebnis& r, bool mit_Variante);
    void schreibe_Werte(const Simulationsausgang& a, long long Variante);
    void schreibe(const Ergebnis& s, const Variantennummer& Variante);
    void schreibe_Einzelwerte(const Endpunktergebnis& w, long long Ergebnis);
    void melde(const Simulationsausgang& a, const Variantennummer& Variante);

    Datenbankumfang u_;
    Datenbankziel Ziel_;
    std::string Name_;  // the simulation in work
    long long Simulation_ = 0;
    bool beschrieben_ = false;
};

}  // namespace varnok::batch
