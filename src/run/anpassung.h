#pragma once

#include "run/lauf.h"

namespace varnok {

// Whether a stored value is still a number in single precision after it was scaled.
bool bleibt_im_Bereich(float Wert, double Faktor);

// Whether all results of a study are.
bool lassen_sich_anpassen(const Ergebnisspeicher& s, int i_studie, double faktor_Boden, double faktor_Plateau);

// Scales the stored results of a study to another dose, which is exact since every series is linear in it:
// the soil depth by `faktor_Boden`, the tillage depth by `faktor_Plateau`, each the new net dose over the old.
// Throws Laufzeitfehler, with nothing changed, where `lassen_sich_anpassen` says no.
void Werte_anpassen(Lauf& l, int i_studie, double faktor_Boden, double faktor_Plateau);

}  // namespace varnok
