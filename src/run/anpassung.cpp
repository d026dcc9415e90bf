#include "run/anpassung.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {
namespace {

void skaliere(float& Wert, double Faktor) { Wert = static_cast<float>(static_cast<double>(Wert) * Faktor); }

template <class Bereich>
void skaliere_alle(Bereich&& Werte, double Faktor, std::size_t ab = 0) {
    for (std::size_t i = ab; i < Werte.size(); ++i) skaliere(Werte[i], Faktor);
}

void skaliere_Stoff(Lauf& l, int i_endpunkt, int i_studie, int i_substanz, double faktor_Boden, double faktor_Plateau) {
    Ergebnisspeicher& s = l.Speicher;
    const auto e = static_cast<std::size_t>(i_endpunkt);
    const auto st = static_cast<std::size_t>(i_studie);
    const auto c = static_cast<std::size_t>(i_substanz);
    skaliere(s.Maximum_Bodentiefe[e][st][c], faktor_Boden);
    skaliere(s.Maximum_Plateautiefe[e][st][c], faktor_Plateau);
    skaliere(s.Plateaujahr[e][st][c], faktor_Plateau);  // a year, yet scaled with the rest; nothing shows it
    skaliere_alle(s.Jahresmaximum[e][st][c], faktor_Plateau, 1);
    skaliere_alle(s.TWA_Maximum[e][st][c], faktor_Boden);
    for (int Slot = 0; Slot < Slots_Plateau; ++Slot) {
        skaliere_alle(s.Reihe_Plateautiefe(i_endpunkt, i_studie, i_substanz, Slot), faktor_Plateau);
    }
    for (int Slot = 0; Slot < Slots_Boden; ++Slot) {
        skaliere_alle(s.Reihe_Bodentiefe(i_endpunkt, i_studie, i_substanz, Slot), faktor_Boden);
    }
}

}  // namespace

bool bleibt_im_Bereich(float Wert, double Faktor) {
    return std::isfinite(static_cast<float>(static_cast<double>(Wert) * Faktor));
}

// No value of a study is above the maxima of its sums.
bool lassen_sich_anpassen(const Ergebnisspeicher& s, int i_studie, double faktor_Boden, double faktor_Plateau) {
    const auto st = static_cast<std::size_t>(i_studie);
    for (std::size_t e = 0; e < Endpunkte; ++e) {
        for (std::size_t c = 0; c < Stoffe; ++c) {
            if (!bleibt_im_Bereich(s.Maximum_Bodentiefe[e][st][c], faktor_Boden)) return false;
            if (!bleibt_im_Bereich(s.Maximum_Plateautiefe[e][st][c], faktor_Plateau)) return false;
        }
    }
    return true;
}

void Werte_anpassen(Lauf& l, int i_studie, double faktor_Boden, double faktor_Plateau) {
    if (!lassen_sich_anpassen(l.Speicher, i_studie, faktor_Boden, faktor_Plateau)) {
        melde_unmoegliche_Rechnung("change of the dose by the factor " + allgemeine_Zahl(std::max(faktor_Boden, faktor_Plateau)));
    }
    for (int e = 0; e < Endpunkte; ++e) {
        for (int c = 0; c < Stoffe; ++c) skaliere_Stoff(l, e, i_studie, c, faktor_Boden, faktor_Plateau);
    }
}

}  // namespace varnok
