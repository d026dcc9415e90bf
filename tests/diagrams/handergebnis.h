#pragma once

// Results filled by hand: a diagram of a few known numbers.

#include <string>
#include <vector>

#include "diagrams/diagrammbau.h"
#include "support/darstellungsprobe.h"

namespace varnok::probe {

// Results whose series all are 0, of every compound whatever the scheme, to be filled by the routines below.
struct Handergebnis : Darstellungsprobe {
    // One study "field" and the description "Wheat".
    Handergebnis();

    // Shows the results as those of the input as it stands now.
    operator Darstellung();
};

// The same for n studies "study 0" and so on.
Handergebnis Handergebnis_Studien(int n);

// Days 0 and on of the series in the soil depth, with its maximum and the day of it.
void setze_Boden(Handergebnis& h, const std::vector<float>& Werte, int i_substanz = 0, int i_studie = 0,
                 Endpunktart Endpunkt = Gesamtgehalt);
// The same for the tillage depth.
void setze_Plateau(Handergebnis& h, const std::vector<float>& Werte, int i_substanz = 0, int i_studie = 0,
                   Endpunktart Endpunkt = Gesamtgehalt);

// Day of the peak in the soil depth.
void setze_Maximumtag(Handergebnis& h, int Tag, int i_substanz = 0, int i_studie = 0);

// Height and first day of the largest average over the selected window, whose length becomes `Laenge` for all.
void setze_TWA(Handergebnis& h, float Laenge, float Hoehe, int Start, int i_substanz = 0, int i_studie = 0);

void setze_Plateauwert(Handergebnis& h, float Wert, int i_substanz = 0, int i_studie = 0, Endpunktart Endpunkt = Gesamtgehalt);

// The lines of a colour and width, in order.
std::vector<Linie> Linien(const Diagramm& d, int Farbe, int Breite);

// The numbers along an axis.
std::vector<std::string> Zahlen_x(const Diagramm& d);
std::vector<std::string> Zahlen_y(const Diagramm& d);

// Ends of the time axis as drawn.
Punkt Zeitachse(const Diagramm& d);

}  // namespace varnok::probe
