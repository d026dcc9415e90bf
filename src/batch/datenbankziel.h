#pragma once

// The tables that results are written to, in whole variants per transaction, each at most a second's work.

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "batch/sqlite_verbindung.h"

namespace varnok::batch {

// What a row hangs on; nothing without variants.
using Variantennummer = std::optional<long long>;

// Binds a number, or nothing for one that is not there.
Anweisung& mit(Anweisung& a, int Stelle, const Variantennummer& Wert);

class Datenbankziel {
public:
    // Makes the tables where they are missing; with `mit_Positionen` also that of the positions of a shard.
    Datenbankziel(const std::string& Datei, bool mit_Positionen);

    // Before a simulation or variant is written, and after it.
    void beginne_Stueck();
    void beende_Stueck();
    // What was written stays.
    void beende();

    // Numbers of what the tables hold; made where it is missing.
    long long Simulation(const std::string& Projekt, const std::string& Name);
    long long Variante(long long Simulation, long long Reihe);
    // What an earlier call has written about it beside its name.
    void vergiss_Beschreibung(long long Simulation);

    // What was there of the same simulation and variant goes; its values go with it.
    void loesche_Ergebnisse(long long Simulation, const Variantennummer& Variante);
    // Rows above the highest that a call has.
    void loesche_Varianten_ueber(long long Simulation, long long hoechste);

    long long letzte_Nummer() const { return v_.letzte_Nummer(); }

private:
    long long finde_oder(Anweisung& suche, Anweisung& lege_an);

    Verbindung v_;
    bool offen_ = false;
    std::chrono::steady_clock::time_point Beginn_;

    struct Suchanweisungen {
        explicit Suchanweisungen(const Verbindung& v);
        Anweisung Suchen, Anlegen, Variante_suchen, Variante, Werte_loeschen, weitere, Variante_loeschen;
        std::vector<Anweisung> Loeschen;
    };
    std::optional<Suchanweisungen> Suche_;

    // The rows, in the order of their columns.
    struct Zeilenanweisungen {
        explicit Zeilenanweisungen(const Verbindung& v);
        Anweisung Beschreiben;  // simulation; then what it is, from the description on
        Anweisung Variantensumme, Variantenwert, Ergebnis, Jahr, TWA, Tag, Meldung;
    };
    std::optional<Zeilenanweisungen> Zeilen_;
    std::optional<Anweisung> Position_;

public:
    Zeilenanweisungen& Zeilen() { return *Zeilen_; }
    Anweisung& Position() { return *Position_; }
};

}  // namespace varnok::batch
