#include "run/ergebnisspeicher.h"

#include <algorithm>
#include <new>

namespace varnok {
namespace {

constexpr auto Platz = [](int i) { return static_cast<std::size_t>(i); };

}  // namespace

Ergebnisspeicher::Ergebnisspeicher() : Reihen_(static_cast<Block*>(std::calloc(1, sizeof(Block)))) {
    if (!Reihen_) throw std::bad_alloc();
}

Ergebnisspeicher::Stoffreihen& Ergebnisspeicher::beschreibe(int i_studie, int i_substanz) {
    beschrieben_[Platz(i_studie)][Platz(i_substanz)] = true;
    return (*Reihen_)[Platz(i_studie)][Platz(i_substanz)];
}
const Ergebnisspeicher::Stoffreihen& Ergebnisspeicher::lies(int i_studie, int i_substanz) const {
    return (*Reihen_)[Platz(i_studie)][Platz(i_substanz)];
}

Tagesreihe Ergebnisspeicher::Reihe_Plateautiefe(Endpunktart e, int i_studie, int i_substanz) {
    return beschreibe(i_studie, i_substanz).Plateau[e];
}
Tagesreihe_lesend Ergebnisspeicher::Reihe_Plateautiefe(Endpunktart e, int i_studie, int i_substanz) const {
    return lies(i_studie, i_substanz).Plateau[e];
}

Tagesreihe Ergebnisspeicher::Reihe_Bodentiefe(Endpunktart e, int i_studie, int i_substanz) {
    return beschreibe(i_studie, i_substanz).Boden[e];
}
Tagesreihe_lesend Ergebnisspeicher::Reihe_Bodentiefe(Endpunktart e, int i_studie, int i_substanz) const {
    return lies(i_studie, i_substanz).Boden[e];
}

Tagesreihe Ergebnisspeicher::Integral_Bodentiefe(Endpunktart e, int i_studie, int i_substanz) {
    return beschreibe(i_studie, i_substanz).Integral[e];
}
Tagesreihe_lesend Ergebnisspeicher::Integral_Bodentiefe(Endpunktart e, int i_studie, int i_substanz) const {
    return lies(i_studie, i_substanz).Integral[e];
}

void Ergebnisspeicher::leere_Studie(int i_studie) {
    Tagesrate.fill(0);
    Applikationstag.fill(0);
    const auto st = static_cast<std::size_t>(i_studie);
    for (const Endpunktart e : alle_Endpunkte) {
        Maximum_Plateautiefe[e][st].fill(0);
        Maximum_Bodentiefe[e][st].fill(0);
        Maximumtag_Plateautiefe[e][st].fill(0);
        Maximumtag_Bodentiefe[e][st].fill(0);
        for (auto& Jahreswerte : Jahresmaximum[e][st]) std::fill(Jahreswerte.begin() + 1, Jahreswerte.end(), 0.0F);
        Plateauwert[e][st] = {};
        Plateauzuwachs[e][st] = {};
        Plateautext[e][st] = {};
        Plateauprozent[e][st] = {};
        Plateaujahr[e][st] = {};
    }
    for (std::size_t c = 0; c < Stoffe; ++c) {
        if (!beschrieben_[st][c]) continue;  // nobody wrote there
        (*Reihen_)[st][c] = {};
        beschrieben_[st][c] = false;
    }
    for (auto& Reihe : Bildung_Plateautiefe) Reihe.fill(0);
    for (auto& Reihe : Bildung_Bodentiefe) Reihe.fill(0);
}

void Ergebnisspeicher::verwirf_Studie(int i_studie) {
    leere_Studie(i_studie);
    const auto st = static_cast<std::size_t>(i_studie);
    for (const Endpunktart e : alle_Endpunkte) {
        TWA_Maximum[e][st] = {};
        TWA_Starttag[e][st] = {};
    }
}

}  // namespace varnok
