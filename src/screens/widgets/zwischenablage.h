#pragma once

class QTableWidget;

namespace varnok {

// Copies the selected cells as tab separated lines and as a table for word processors, each cell without the
// blanks around it.
void kopiere_Auswahl(const QTableWidget& Tafel);

}  // namespace varnok
