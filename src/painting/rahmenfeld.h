#pragma once

// What frames on a surface must not cover, measured in letters.

#include <QRectF>

#include "diagrams/rahmenlage.h"

namespace varnok {

// A rectangle of the surface (units) in fractions of it.
Flaechenrechteck in_Anteilen(const QRectF& r, const QSizeF& Flaeche);

// The field of a drawing that was fitted to the surface, with the numbers of its axes; `Kopf` units at the top belong to the
// labels.
Rahmenfeld bilde_Rahmenfeld(const Zeichenliste& z, const QRectF& Flaeche, const Koordinaten& Achsen, double Kopf);

}  // namespace varnok
