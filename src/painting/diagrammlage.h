#pragma once

#include <QSizeF>

#include "diagrams/zeichenliste.h"

namespace varnok {

// Room that a surface keeps free of axes for labels, at its upper and lower edge (units of 1/96 inch).
struct Diagrammrand {
    double oben = 0;
    double unten = 0;
};

// Fits a finished drawing to a surface: the margins around the axes become as wide as numbers and labels need there, each
// number stands at its tick, and one that would run into its neighbour is left out. On a large surface the margins are
// those of the drawing. Curves, ticks and their logical values stay.
// Gives the rectangle that the axes span.
Koordinaten passe_an_Flaeche(Zeichenliste& z, const QSizeF& Flaeche, const Diagrammrand& Rand);

}  // namespace varnok
