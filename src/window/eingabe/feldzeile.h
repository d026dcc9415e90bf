#pragma once

#include "window/eingabe/feldsteuerung.h"
#include "window/kern/bausteine.h"

namespace varnok {

// Where the unit of a field stands.
enum class Einheitsort { im_Schild, dahinter };

// A numeric field with its label and its unit, shown and hidden as one.
struct Feldzeile {
    QLabel* Schild = nullptr;
    Zahlenfeld* Feld = nullptr;
    QLabel* Einheit = nullptr;  // none where the label tells the unit, or there is none

    void zeige(bool sichtbar) const;
};

// Puts the field of that object name into a row of the grid, in its left or right half.
Feldzeile erstelle_Feldzeile(Feldsteuerung& Felder, Raster& Gitter, int Zeile, bool rechts, const QString& Objektname,
                             Einheitsort Ort, QWidget* parent);

}  // namespace varnok
