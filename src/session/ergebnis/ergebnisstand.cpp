#include "session/ergebnis/ergebnisstand.h"

#include <utility>

#include "run/laufeingang.h"

namespace varnok {
namespace {

bool gleiche_Bytes(const Klimabytes& a, const Klimabytes& b) { return a == b || (a && b && *a == *b); }

}  // namespace

bool Ergebnisstand::gueltig(int i_studie, const Eingabe& e, const Klimabytes& Klima) const {
    const auto st = static_cast<std::size_t>(i_studie);
    if (!Werte_.at(st)) return false;
    if (e.Parameter.Klimamodus == nach_Klimadatei && !gleiche_Bytes(Klima_[st], Klima)) return false;
    return gleicher_Laufeingang(*Werte_[st]->Vorgabe, e, i_studie);
}

void Ergebnisstand::uebernimm(int i_studie, std::shared_ptr<const Ergebnis> Werte, Klimabytes Klima) {
    const auto st = static_cast<std::size_t>(i_studie);
    Werte_.at(st) = std::move(Werte);
    Klima_[st] = std::move(Klima);
}

}  // namespace varnok
