#pragma once

// The picture of a diagram for other programs: with labels and legend, in the size that the user wants.

#include <QByteArray>
#include <QImage>
#include <QString>
#include <array>

#include "diagrams/zeichenliste.h"
#include "painting/svg_schreiber.h"

namespace varnok {

// Resolutions of a saved picture, per inch.
inline constexpr std::array<int, 4> Bildaufloesungen = {96, 150, 300, 600};

// The units of 1/96 inch of a length.
constexpr double mm_in_Einheiten(double mm) { return mm / 25.4 * 96; }

// `Groesse` of each in units.
QSize Pixelzahl(const QSizeF& Groesse, int dpi);
QImage Bild_als_Pixel(const Zeichenliste& z, const QSizeF& Groesse, int dpi);
QByteArray Bild_als_PNG(const Zeichenliste& z, const QSizeF& Groesse, int dpi);
QByteArray Bild_als_PDF(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse);

}  // namespace varnok
