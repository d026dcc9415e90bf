#pragma once

// The picture of a diagram for other programs: with labels and legend, on the surface of a report's picture.

#include <QByteArray>
#include <QImage>
#include <QString>
#include <array>

#include "diagrams/diagramm.h"

namespace varnok {

// Resolutions of a saved picture, per inch.
inline constexpr std::array<int, 4> Bildaufloesungen = {96, 150, 300, 600};

QSize Bildgroesse(int dpi);
QImage Bild_als_Pixel(const Zeichenliste& z, int dpi);
QByteArray Bild_als_PNG(const Zeichenliste& z, int dpi);
QByteArray Bild_als_SVG(const Zeichenliste& z, const QString& Titel);
QByteArray Bild_als_PDF(const Zeichenliste& z, const QString& Titel);

// A name for the picture's file, without folder and ending.
QString Bilddateiname(const Diagramm& d);

}  // namespace varnok
