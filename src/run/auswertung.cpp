#include "run/auswertung.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {

void pruefe_Konzentration(const Lauf& l, int d, float Plateau, float Boden) {
    if (std::isfinite(Plateau) && std::isfinite(Boden)) return;
    melde_unmoegliche_Rechnung("concentration of " + Stoffname(l.Felder, l.i_substanz) + " on day " + std::to_string(d) + " = " +
                                   allgemeine_Zahl(Plateau) + ", " + allgemeine_Zahl(Boden),
                               {{}, 0, {}, l.i_studie, l.i_substanz});
}

Tagesauswertung::Tagesauswertung(Lauf& l)
    : l_(&l),
      st_(static_cast<std::size_t>(l.i_studie)),
      c_(static_cast<std::size_t>(l.i_substanz)),
      Plateau_{l.Speicher.Reihe_Plateautiefe(0, l.i_studie, l.i_substanz, 0),
               l.Speicher.Reihe_Plateautiefe(1, l.i_studie, l.i_substanz, 0)},
      Boden_{l.Speicher.Reihe_Bodentiefe(0, l.i_studie, l.i_substanz, 0),
             l.Speicher.Reihe_Bodentiefe(1, l.i_studie, l.i_substanz, 0)},
      Integral_{l.Speicher.Integral_Bodentiefe(0, l.i_studie, l.i_substanz),
                l.Speicher.Integral_Bodentiefe(1, l.i_studie, l.i_substanz)} {}

void Tagesauswertung::beginne() {
    Ergebnisspeicher& s = l_->Speicher;
    for (std::size_t e = 0; e < Endpunkte; ++e) {
        s.Maximum_Plateautiefe[e][st_][c_] = -1;
        s.Maximumtag_Plateautiefe[e][st_][c_] = -99;
        s.Maximumtag_Bodentiefe[e][st_][c_] = -99;
        auto& Jahreswerte = s.Jahresmaximum[e][st_][c_];
        std::fill(Jahreswerte.begin() + 1, Jahreswerte.end(), -1.0F);
    }
}

void Tagesauswertung::werte_aus(int d, double PW) {
    const auto t = static_cast<std::size_t>(d);
    Plateau_[1][t] = static_cast<float>(static_cast<double>(Plateau_[0][t]) / PW);
    Boden_[1][t] = static_cast<float>(static_cast<double>(Boden_[0][t]) / PW);
    for (std::size_t e = 0; e < Endpunkte; ++e) werte_Endpunkt_aus(e, d);
}

void Tagesauswertung::werte_Endpunkt_aus(std::size_t e, int d) {
    Ergebnisspeicher& s = l_->Speicher;
    const auto t = static_cast<std::size_t>(d);
    const float C = Plateau_[e][t];
    const float X = Boden_[e][t];
    const double Zuwachs = (static_cast<double>(X) + static_cast<double>(Boden_[e][t - 1])) / 2;
    Integral_[e][t] = static_cast<float>(Zuwachs + static_cast<double>(Integral_[e][t - 1]));
    pruefe_Konzentration(*l_, d, C, Integral_[e][t]);  // the integral goes wherever the soil depth goes

    const auto Tag = static_cast<std::int16_t>(d);
    if (C > s.Maximum_Plateautiefe[e][st_][c_]) {
        s.Maximum_Plateautiefe[e][st_][c_] = C;
        s.Maximumtag_Plateautiefe[e][st_][c_] = Tag;
    }
    float& Jahreswert = s.Jahresmaximum[e][st_][c_][static_cast<std::size_t>(Jahr_von(d))];
    if (C > Jahreswert) {
        Jahreswert = C;
        s.Maximumtag_Plateautiefe[e][st_][c_] = Tag;  // follows the yearly maxima; nothing reads it
    }
    if (X > s.Maximum_Bodentiefe[e][st_][c_]) {
        s.Maximum_Bodentiefe[e][st_][c_] = X;
        s.Maximumtag_Bodentiefe[e][st_][c_] = Tag;
    }
}

}  // namespace varnok
