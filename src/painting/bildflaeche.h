#pragma once

// The surface of every picture that leaves the program: of one size, whatever the window's.

#include <QImage>
#include <QRectF>
#include <optional>

#include "diagrams/beschriftung.h"
#include "diagrams/diagramm.h"

namespace varnok {

inline constexpr int Bildbreite = 640;  // units of the surface
inline constexpr int Bildhoehe = 500;
inline constexpr int Bildpunkte_pro_Einheit = 3;

inline const QRectF Bildflaeche(0, 0, Bildbreite, Bildhoehe);

// The drawing fitted to the surface, with its labels and legend in it. `Legende` is the place that the legend was dragged
// to, its upper left corner; without it it stands at home.
Zeichenliste mit_Beschriftung(Diagramm d, const std::optional<Flaechenort>& Legende = std::nullopt);

// Paints a drawing on white, 1920 x 1500 pixels: the picture of a report.
QImage erstelle_Berichtsbild(const Zeichenliste& z);

}  // namespace varnok
