// Time of reading the records of a simulation.

#include <benchmark/benchmark.h>

#include "records/satz.h"

namespace {

using namespace varnok;

void lies_Satz(benchmark::State& Zustand) {
    const Projektordner Ordner(VARNOK_DATENORDNER);
    Eingabe e;
    Ansicht a;
    for (auto _ : Zustand) {
        benchmark::DoNotOptimize(Satz_lesen(Ordner, "Programcheck", static_cast<Satzart>(Zustand.range(0)), e, a));
    }
}
BENCHMARK(lies_Satz)->DenseRange(1, 3)->ArgName("type")->Unit(benchmark::kMicrosecond);

}  // namespace
