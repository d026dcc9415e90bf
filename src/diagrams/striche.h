#pragma once

// The strokes that all kinds of diagrams share.

#include <string>

#include "diagrams/diagramm.h"
#include "diagrams/ergebnissicht.h"

namespace varnok {

// The axes of a diagram in work. A range that holds nothing, its start not before its end, is drawn one day wide.
struct Achsenbereich {
    double Start = 0;
    double Ende = 0;
    double Y_Maximum = 1;
    bool leer = false;
    bool runde_Tage =
        false;  // ticks at round days and as far apart as the range wants it, else from its start, as its end wants it

    double Breite() const { return Ende - Start; }
    // The days whose curve segments end there; `letzter` before `erster` if there is none.
    int erster_Tag() const;
    int letzter_Tag() const;
};

Achsenbereich bilde_Achsenbereich(double X_Start, double X_Ende, double Y_Maximum);

// Coordinate system, axes, ticks and numbers.
void zeichne_Achsen(Zeichenliste& z, const Achsenbereich& a);

// The line of a curve from day to day.
void zeichne_Verlauf(Zeichenliste& z, const Kurve& k);

// The curve of a compound and study, day by day; also kept as numbers under `Name`.
void zeichne_Kurve(Diagramm& d, const Achsenbereich& a, const Ergebnissicht& Sicht, int i_studie, int i_substanz, int Farbe,
                   const std::string& Name);

// The window of the largest average as a flat-topped box; none in the view "Background". Also kept as numbers under `Name`.
void zeichne_TWA(Diagramm& d, const Achsenbereich& a, const Ergebnissicht& Sicht, int i_studie, int i_substanz, int Farbe,
                 const std::string& Name);

// A label whose left edge centres it roughly: a character counts as a share of the time axis, 1/`Teile`.
Beschriftung mittige_Beschriftung(std::string Text, const Achsenbereich& a, int Zusatz, int Teile);

// Axis names, and what they tell as data: unit and endpoint of the curves.
void beschrifte_Achsen(Diagramm& d, const Ergebnissicht& Sicht);

}  // namespace varnok
