#pragma once

#include "run/lauf.h"

namespace varnok {

// Scales the stored results of a study to another dose, which is exact since every series is linear in it:
// the soil depth by `faktor_Boden`, the tillage depth by `faktor_Plateau`, each the new net dose over the old.
// Throws Laufzeitfehler, with nothing changed, for a factor that leaves the range of the stores.
void Werte_anpassen(Lauf& l, int i_studie, double faktor_Boden, double faktor_Plateau);

}  // namespace varnok
