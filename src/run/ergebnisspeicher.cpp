#include "run/ergebnisspeicher.h"

#include <algorithm>
#include <new>

namespace varnok {
namespace {

constexpr std::size_t Tage = Tagesplaetze;

// First element of a daily series of a block with the index order [study][endpoint][compound][slot][day].
// The study stands in front, so that the section of a run is one piece.
std::size_t Platz(int i_endpunkt, int i_studie, int i_substanz, int Slot, int Slots) {
    const auto Reihe = ((static_cast<std::size_t>(i_studie) * Endpunkte + static_cast<std::size_t>(i_endpunkt)) * Stoffe +
                        static_cast<std::size_t>(i_substanz)) *
                           static_cast<std::size_t>(Slots) +
                       static_cast<std::size_t>(Slot);
    return Reihe * Tage;
}

float* neuer_Block(int Slots) {
    const std::size_t Anzahl = Platz(0, max_Studien, 0, 0, Slots);
    auto* p = static_cast<float*>(std::calloc(Anzahl, sizeof(float)));
    if (p == nullptr) throw std::bad_alloc();
    return p;
}

void leere(float* Block, int i_studie, int Slots) {
    std::fill(Block + Platz(0, i_studie, 0, 0, Slots), Block + Platz(0, i_studie + 1, 0, 0, Slots), 0.0F);
}

}  // namespace

Ergebnisspeicher::Ergebnisspeicher()
    : Plateau_(neuer_Block(Slots_Plateau)), Boden_(neuer_Block(Slots_Boden)), Integral_(neuer_Block(1)) {}

Tagesreihe Ergebnisspeicher::Reihe_Plateautiefe(int i_endpunkt, int i_studie, int i_substanz, int Slot) {
    return Tagesreihe(Plateau_.get() + Platz(i_endpunkt, i_studie, i_substanz, Slot, Slots_Plateau), Tage);
}
Tagesreihe_lesend Ergebnisspeicher::Reihe_Plateautiefe(int i_endpunkt, int i_studie, int i_substanz, int Slot) const {
    return Tagesreihe_lesend(Plateau_.get() + Platz(i_endpunkt, i_studie, i_substanz, Slot, Slots_Plateau), Tage);
}

Tagesreihe Ergebnisspeicher::Reihe_Bodentiefe(int i_endpunkt, int i_studie, int i_substanz, int Slot) {
    return Tagesreihe(Boden_.get() + Platz(i_endpunkt, i_studie, i_substanz, Slot, Slots_Boden), Tage);
}
Tagesreihe_lesend Ergebnisspeicher::Reihe_Bodentiefe(int i_endpunkt, int i_studie, int i_substanz, int Slot) const {
    return Tagesreihe_lesend(Boden_.get() + Platz(i_endpunkt, i_studie, i_substanz, Slot, Slots_Boden), Tage);
}

Tagesreihe Ergebnisspeicher::Integral_Bodentiefe(int i_endpunkt, int i_studie, int i_substanz) {
    return Tagesreihe(Integral_.get() + Platz(i_endpunkt, i_studie, i_substanz, 0, 1), Tage);
}
Tagesreihe_lesend Ergebnisspeicher::Integral_Bodentiefe(int i_endpunkt, int i_studie, int i_substanz) const {
    return Tagesreihe_lesend(Integral_.get() + Platz(i_endpunkt, i_studie, i_substanz, 0, 1), Tage);
}

void Ergebnisspeicher::leere_Studie(int i_studie) {
    Tagesrate.fill(0);
    const auto st = static_cast<std::size_t>(i_studie);
    for (std::size_t e = 0; e < Endpunkte; ++e) {
        Maximum_Plateautiefe[e][st].fill(0);
        Maximum_Bodentiefe[e][st].fill(0);
        for (auto& Jahreswerte : Jahresmaximum[e][st]) std::fill(Jahreswerte.begin() + 1, Jahreswerte.end(), 0.0F);
        Plateauwert[e][st] = {};
        Plateauzuwachs[e][st] = {};
        Plateautext[e][st] = {};
        Plateauprozent[e][st] = {};
    }
    leere(Plateau_.get(), i_studie, Slots_Plateau);
    leere(Boden_.get(), i_studie, Slots_Boden);
    leere(Integral_.get(), i_studie, 1);
    for (auto& Reihe : Bildung_Plateautiefe) Reihe.fill(0);
    for (auto& Reihe : Bildung_Bodentiefe) Reihe.fill(0);
}

void Ergebnisspeicher::verwirf_Studie(int i_studie) {
    leere_Studie(i_studie);
    const auto st = static_cast<std::size_t>(i_studie);
    for (std::size_t e = 0; e < Endpunkte; ++e) {
        TWA_Maximum[e][st] = {};
        TWA_Starttag[e][st] = {};
    }
}

}  // namespace varnok
