#include "run/studientabellen.h"

#include <algorithm>
#include <array>

namespace varnok {
namespace {

using Stoffwert = Stofftabelle<double> Laufparameter::*;
using Studienwert = Studientabelle<double> Laufparameter::*;

constexpr std::array<Stoffwert, 4> ortsfest = {&Laufparameter::KOC, &Laufparameter::Q10, &Laufparameter::Walker,
                                               &Laufparameter::TRef};
constexpr std::array<Stoffwert, 4> Konstanten_je_Stoff = {&Laufparameter::k_SFO, &Laufparameter::k1_DFOP, &Laufparameter::k2_DFOP,
                                                          &Laufparameter::g_DFOP};
constexpr std::array<Studienwert, 5> Konstanten = {&Laufparameter::alpha_FOMC, &Laufparameter::beta_FOMC, &Laufparameter::k1_HS,
                                                   &Laufparameter::k2_HS, &Laufparameter::Tb_HS};

template <class T>
void uebernimm(Studientabelle<T>& Tabelle, const Studientabelle<T>& Start, std::size_t ab) {
    std::copy(Start.begin() + static_cast<std::ptrdiff_t>(ab), Start.end(), Tabelle.begin() + static_cast<std::ptrdiff_t>(ab));
}

void ruecke_vor(Studientabelle<double>& Tabelle, std::size_t Studie, std::size_t Anzahl) {
    for (std::size_t i = Studie; i + 1 < Anzahl; ++i) Tabelle[i] = Tabelle[i + 1];
}

}  // namespace

void setze_Startwerte(Laufparameter& p, std::size_t ab) {
    const Laufparameter Start;
    for (std::size_t i = 0; i < Stoffe; ++i) {
        uebernimm(p.Kinetik[i], Start.Kinetik[i], ab);
        for (const Stoffwert w : ortsfest) uebernimm((p.*w)[i], (Start.*w)[i], ab);
        for (const Stoffwert w : Konstanten_je_Stoff) uebernimm((p.*w)[i], (Start.*w)[i], ab);
    }
    for (const Studienwert w : Konstanten) uebernimm(p.*w, Start.*w, ab);
}

void ruecke_Kinetik_vor(Laufparameter& p, std::size_t Studie, std::size_t Anzahl) {
    for (const Stoffwert w : Konstanten_je_Stoff) {
        for (auto& Tabelle : p.*w) ruecke_vor(Tabelle, Studie, Anzahl);
    }
    for (const Studienwert w : Konstanten) ruecke_vor(p.*w, Studie, Anzahl);
}

}  // namespace varnok
