#pragma once

// A display list as SVG for other programs: each curve is one path, each text one text that keeps its place in any font.

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include "diagrams/zeichenliste.h"

namespace varnok {

// `Groesse` in units of 1/96 inch. Characters that XML cannot hold are left out.
QByteArray Bild_als_SVG(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse);

}  // namespace varnok
