#pragma once

// The picture of a diagram for other programs: with labels and legend, in the size that the user wants.

#include <QByteArray>
#include <QImage>
#include <QString>

#include "diagrams/zeichenliste.h"
#include "painting/svg_schreiber.h"

namespace varnok {

// The units of 1/96 inch of a length.
constexpr double mm_in_Einheiten(double mm) { return mm / 25.4 * 96; }

// `Groesse` of each in units.
QSize Pixelzahl(const QSizeF& Groesse, int dpi);
QImage Bild_als_Pixel(const Zeichenliste& z, const QSizeF& Groesse, int dpi);
QByteArray Bild_als_PNG(const Zeichenliste& z, const QSizeF& Groesse, int dpi);
QByteArray Bild_als_PDF(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse);

}  // namespace varnok
