#pragma once

#include <QTextDocument>

namespace varnok {

// Sets a formatted report so that each row stands on one line and each cell of a table in its column: where a table
// of the results does not fit in the size of the text, all of them are set down to 8 points, and any row that still needs
// it by itself.
void passe_Zeilen_ein(QTextDocument& Dokument);

// What belongs together stays on one page: the lines of a table or list with each other, a headline or caption with what
// follows it.
void halte_Gruppen_beisammen(QTextDocument& Dokument);

}  // namespace varnok
