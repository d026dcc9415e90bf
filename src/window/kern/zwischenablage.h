#pragma once

#include <QSizeF>
#include <QString>

#include "diagrams/zeichenliste.h"

class QTableWidget;

namespace varnok {

// Copies the selected cells as tab separated lines and as a table for word processors, each cell without the
// blanks around it.
void kopiere_Zellen(const QTableWidget& Tafel);

// Copies a picture of that size (units of 1/96 inch) as pixels and as SVG.
void kopiere_Bild(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse, int dpi);

// Copies numbers as tab separated lines, which a spreadsheet takes as cells, and as comma separated values.
void kopiere_Zahlen(const QString& mit_Tabulatoren, const QString& CSV);

}  // namespace varnok
