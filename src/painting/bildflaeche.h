#pragma once

// The surface of a picture that leaves the program, whatever the window's size.

#include <QImage>
#include <QRectF>
#include <optional>

#include "diagrams/beschriftung.h"
#include "diagrams/diagramm.h"

namespace varnok {

inline constexpr int Bildbreite = 640;  // units of the surface of a report's picture
inline constexpr int Bildhoehe = 500;
inline constexpr int Bildpunkte_pro_Einheit = 3;

inline const QRectF Bildflaeche(0, 0, Bildbreite, Bildhoehe);

// How a picture is to be made.
struct Bildform {
    QSizeF Groesse = Bildflaeche.size();                // units
    std::optional<Flaechenort> Legende = std::nullopt;  // where it was dragged to, its upper left corner
    bool mit_Legende = true;
    bool fuer_Druck = false;  // curves told apart by dashes, in dark colours
};

// The drawing fitted to the surface, with its labels and legend in it. A legend that was not dragged stands at home, or where it
// covers no curve.
Zeichenliste mit_Beschriftung(Diagramm d, const Bildform& f = {});

// Paints a drawing on white, 1920 x 1500 pixels: the picture of a report.
QImage erstelle_Berichtsbild(const Zeichenliste& z);

}  // namespace varnok
