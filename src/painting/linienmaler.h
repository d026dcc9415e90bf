#pragma once

// Puts the lines and boxes of a display list on a surface. Where it has pixels, all lines of one width along the axes take the
// same whole number of them.

#include <QPainter>
#include <QRectF>
#include <QTransform>
#include <span>

#include "diagrams/zeichenliste.h"

namespace varnok {

// The dashes of a pattern in multiples of the line's width; none for an unbroken line.
QList<double> Strichmuster(int Muster);

// Whether all points lie on one line along an axis.
bool achsparallel(std::span<const Punkt> Punkte);

class Linienmaler {
public:
    Linienmaler(QPainter& p, const QRectF& Flaeche, const Koordinaten& System);

    void male(std::span<const Linie> Linien);
    void male(const Kasten& k);

private:
    void male_Kurve(const Linienzug& Zug, const QPolygonF& Ganzes);
    // A stretch of whole pixels between two places, and the pixels of a line's width at a place.
    struct Pixel {
        int von;
        int bis;
    };
    Pixel Strecke(double von, double bis, int Breite) const;
    void fuelle(Pixel x, Pixel y, int Farbe);
    void male_achsparallel(const QLineF& Linie, int Farbe, int Breite);

    QPainter& p_;
    QRectF Flaeche_;
    Koordinaten System_;
    QTransform Geraet_;  // units -> pixels
    bool Pixel_;
};

}  // namespace varnok
