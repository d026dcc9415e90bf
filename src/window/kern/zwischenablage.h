#pragma once

#include <QString>

#include "diagrams/zeichenliste.h"

class QTableWidget;

namespace varnok {

// Copies the selected cells as tab separated lines and as a table for word processors, each cell without the
// blanks around it.
void kopiere_Zellen(const QTableWidget& Tafel);

// Copies a picture as pixels and as SVG.
void kopiere_Bild(const Zeichenliste& z, const QString& Titel);

}  // namespace varnok
