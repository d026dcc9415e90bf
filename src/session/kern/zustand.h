#pragma once

// What is entered and what was calculated from it: all that the screen shows follows from these values.

#include <string>

#include "exposure/darstellung.h"
#include "session/ergebnis/ergebnisstand.h"
#include "session/kern/eingabestand.h"

namespace varnok {

class Feldeingabe;
class Laufsteuerung;

struct Zustand : Eingabestand {
    Ergebnisstand Gerechnetes;
    Eigen<Laufsteuerung, Klimabytes> Klima;  // looked at before each command
    // The text of the field in work was refused and is neither accepted nor taken back yet.
    Eigen<Feldeingabe> Feld_abgelehnt;

    const Ergebnisse& Werte() const { return Gerechnetes.Werte(); }
    // What tables, diagrams and reports show.
    Darstellung zeige() const { return {Werte(), Sicht, Vorgabe}; }

    // ---- what follows from all that; nobody keeps it ----

    bool gueltig(int i_studie) const { return Gerechnetes.gueltig(i_studie, Vorgabe, Klima); }
    bool alles_Gezeigte_gueltig() const;
    // The hint picture: what is on display is not of the present input, or nothing valid is.
    bool Hinweis() const { return Gestartet && !alles_Gezeigte_gueltig(); }
    // The word on the cover, empty while the results may be seen.
    std::string Abdeckungswort() const;
    bool abgedeckt() const { return !Abdeckungswort().empty(); }
    // Whether runs are allowed and can do something.
    bool Neu_berechnen() const;
};

}  // namespace varnok
