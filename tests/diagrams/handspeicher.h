#pragma once

// Stores filled by hand: a diagram of a few known numbers.

#include <string>
#include <vector>

#include "diagrams/diagrammbau.h"
#include "run/lauf.h"

namespace varnok::probe {

// A run of one study "field" and the description "Wheat" whose series all are 0.
Lauf Handspeicher();

// The same for n studies "study 0" and so on.
Lauf Handspeicher_Studien(int n);

// Days 0 and on of the series in the soil depth, with its maximum and the day of it.
void setze_Boden(Lauf& l, const std::vector<float>& Werte, int i_substanz = 0, int i_studie = 0, int i_endpunkt = 0);
// The same for the tillage depth.
void setze_Plateau(Lauf& l, const std::vector<float>& Werte, int i_substanz = 0, int i_studie = 0, int i_endpunkt = 0);

// Day of the peak in the soil depth.
void setze_Maximumtag(Lauf& l, int Tag, int i_substanz = 0, int i_studie = 0);

// Height and first day of the largest average over the selected window, whose length becomes `Laenge`.
void setze_TWA(Lauf& l, float Laenge, float Hoehe, int Start, int i_substanz = 0, int i_studie = 0);

void setze_Plateauwert(Lauf& l, float Wert, int i_substanz = 0, int i_studie = 0, int i_endpunkt = 0);

// The lines of a colour and width, in order.
std::vector<Linie> Linien(const Diagramm& d, int Farbe, int Breite);

// The numbers along an axis.
std::vector<std::string> Zahlen_x(const Diagramm& d);
std::vector<std::string> Zahlen_y(const Diagramm& d);

// Ends of the time axis as drawn.
Punkt Zeitachse(const Diagramm& d);

}  // namespace varnok::probe
