#pragma once

#include "session/eingabe/feldeingabe.h"
#include "session/ergebnis/diagrammsteuerung.h"
#include "session/ergebnis/laufsteuerung.h"
#include "session/kern/verlauf.h"

namespace varnok {

// Undo and redo.
class Ruecknahme {
public:
    Ruecknahme(Eingabestand& z, Laufsteuerung& Laeufe, Feldeingabe& Felder, Diagrammsteuerung& Diagramme)
        : z_(z), Laeufe_(Laeufe), Felder_(Felder), Diagramme_(Diagramme) {}

    void mache_rueckgaengig();
    void wiederhole();
    // What they would change; empty where there is nothing.
    std::string Name_zurueck() const;
    std::string Name_vor() const { return Verlauf_.Name_vor(); }

    // An action is over, or a command begins: what was entered up to here is a step of its own.
    void merke();

private:
    void stelle_her(const Eingabe& e);
    int Folge_der_Saetze() const;

    Eingabestand& z_;
    Laufsteuerung& Laeufe_;
    Feldeingabe& Felder_;
    Diagrammsteuerung& Diagramme_;
    Verlauf Verlauf_;
    int Folge_ = 0;  // of the records, at the last step
};

}  // namespace varnok
