#pragma once

// Puts a display list on a surface: a window, a picture, a page. One unit of the painter is 1/96 inch; a painter that is
// scaled, as for a screen of high density or for print, gives the same drawing with more pixels.

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

#include "diagrams/beschriftung.h"
#include "diagrams/zeichenliste.h"

namespace varnok {

// Labels that are too wide for the surface shrink to this size (points) before they are cut.
inline constexpr int Schriftgroesse_Fenster = 10;
inline constexpr int Schriftgroesse_Bericht = 7;
inline constexpr int Schriftgroesse_Titel = 12;

// How a text stands on a surface.
struct Schriftbild {
    QString Text;
    QFont Schrift;
    QRectF Platz;
    bool gekuerzt = false;  // the text was too wide and lost its middle
};

// Works out the place of a text. A label is moved inside the surface where it would leave it, then shrunk down
// to `kleinste_Groesse`, then cut in its middle; other texts stand where they stand.
Schriftbild setze_Schrift(const QRectF& Flaeche, const Koordinaten& System, const Schriftzug& s,
                          int kleinste_Groesse = Schriftgroesse_Fenster);

// A place of the drawing on the surface.
QPointF auf_Flaeche(const QRectF& Flaeche, const Koordinaten& System, Punkt p);

// The font of diagrams, the same on every desktop. Its size does not depend on the device.
QFont Diagrammschrift(int Punkte, bool fett = false, bool kursiv = false);

// Makes the frame of a legend as wide as its texts need, up to a third of a surface of that width (units), and
// keeps it on the surface. Then texts are worth more than long sample lines; what is still too long is cut at its end.
void passe_Legende_an(Legende& l, Beschriftungsplaetze& p, double Flaechenbreite);

// Paints lines, boxes and texts, clipped to the surface. The background is left as it is. Colours are those of the
// list, whatever the desktop's palette.
void male(QPainter& p, const QRectF& Flaeche, const Zeichenliste& z, int kleinste_Groesse = Schriftgroesse_Fenster);

}  // namespace varnok
