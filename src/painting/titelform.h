#pragma once

// A title or comment in the lines that it needs.

#include <QStringList>

#include "diagrams/diagramm.h"

namespace varnok {

struct Titelform {
    QStringList Zeilen;
    int Groesse = 0;  // points
    bool passt = false;
};

// One line where the text fits into the width, else two, broken where a new statement begins, or between words as evenly as can
// be where that does not fit, and smaller letters down to `kleinste` where these are too wide.
Titelform setze_in_zwei_Zeilen(const QString& Text, double Breite, int Groesse, int kleinste, bool fett, bool kursiv);

// Gives a label of a picture its lines within that width (units): more of them before anything is cut. `Groesse` (points) is that
// of its letters where they fit, `kleinste` that of more than two lines. Returns the number of lines.
int setze_Titel(Beschriftung& b, double Breite, int Groesse, int kleinste, bool fett, bool kursiv);

}  // namespace varnok
