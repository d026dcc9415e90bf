// Time of one study: the cases that count beside the plain calculation, the usual one, and the worst of every kinetics.

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "exposure/ergebnis.h"
#include "exposure/plateau.h"
#include "support/tempo.h"

namespace {

using namespace varnok;
using probe::Lauf_bauer;

// Twenty applications a year, each with a slot of its own over ten years, and two metabolites. A DT50 of 5 days takes old
// slots into the smallest numbers that single precision has.
Lauf_bauer schlimmster_Fall(int Kinetik, int Klimamodus, double DT50) {
    const double k = std::log(2.0) / DT50;
    Lauf_bauer b;
    b.nach_SFO(k).nach_DFOP(3 * k, k / 2, 0.5).nach_FOMC(0.9, DT50).nach_HS(k, k / 3, 10);
    b.Felder.Parameter.Kinetik[0][0] = static_cast<Kinetikart>(Kinetik);
    b.nach_DFOP(3 * k, k / 2, 0.5, 1).nach_DFOP(3 * k, k / 2, 0.5, 2).Schema(zwei_parallel).Rueckstaende(1);
    b.regelmaessige_Gaben(max_Applikationen, 18);
    if (Klimamodus == 1) b.Wetter(probe::wechselndes_Wetter(Tage_pro_Jahr));
    return b;
}

void rechne(benchmark::State& Zustand, const Lauf_bauer& Fall) {
    const auto Vorgabe = std::make_shared<const Eingabe>(Fall.Felder);
    const probe::Klimaliste Klima(Fall.Klima.value_or(std::vector<Klimatag>()));
    Lauf l;
    for (auto _ : Zustand) benchmark::DoNotOptimize(berechne_Studie(l, Vorgabe, 0, Klima, Umfang::ohne_Reihen).Werte);
}

// The cases that count, side by side with the plain calculation of the tests.
void Verhaeltnis(benchmark::State& Zustand) {
    const probe::Tempofall f = probe::Tempofaelle()[static_cast<std::size_t>(Zustand.range(0))];
    probe::Tempo t;
    for (auto _ : Zustand) t = probe::miss_Tempo(f.Fall, 10);
    Zustand.SetLabel(f.Name);
    Zustand.counters["ms"] = t.Lauf_ms;
    Zustand.counters["plain_ms"] = t.Referenz_ms;
    Zustand.counters["ratio"] = t.Verhaeltnis();
    Zustand.counters["asked"] = f.gefordert;
}
BENCHMARK(Verhaeltnis)->DenseRange(0, 3)->Iterations(1)->Unit(benchmark::kMillisecond);

void eine_Studie_SFO(benchmark::State& Zustand) { rechne(Zustand, Lauf_bauer()); }
BENCHMARK(eine_Studie_SFO)->Unit(benchmark::kMillisecond);

// Arguments: kinetics 0 SFO, 1 DFOP, 2 FOMC, 3 HS; climate mode; DT50 in days.
void zweihundert_Slots(benchmark::State& Zustand) {
    rechne(Zustand, schlimmster_Fall(static_cast<int>(Zustand.range(0)), static_cast<int>(Zustand.range(1)),
                                     static_cast<double>(Zustand.range(2))));
}
BENCHMARK(zweihundert_Slots)
    ->ArgsProduct({{0, 1, 2, 3}, {0, 1}, {5, 100}})
    ->ArgNames({"kinetics", "climate", "DT50"})
    ->Unit(benchmark::kMillisecond);

// Peaks of years 9 and 10 in a ratio of 1 + 10^-n: the plain iteration would turn up to ten million times.
void Plateausuche(benchmark::State& Zustand) {
    const auto y_b = static_cast<float>(1 + std::pow(10.0, -static_cast<double>(Zustand.range(0))));
    for (auto _ : Zustand) benchmark::DoNotOptimize(finde_maximales_Plateau(1.0F, y_b, 9, 10));
}
BENCHMARK(Plateausuche)->Arg(1)->Arg(3)->Arg(6)->Unit(benchmark::kMicrosecond);

}  // namespace
