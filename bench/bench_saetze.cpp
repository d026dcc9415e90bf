// Time of reading the records of a simulation.

#include <benchmark/benchmark.h>

#include "records/satz.h"

namespace {

using namespace varnok;

void lies_Satz(benchmark::State& Zustand) {
    const Projektordner Ordner(VARNOK_DATENORDNER);
    Laufparameter p;
    Eingabe e;
    for (auto _ : Zustand) {
        benchmark::DoNotOptimize(Satz_lesen(Ordner, "Programcheck", static_cast<Satzart>(Zustand.range(0)), p, e));
    }
}
BENCHMARK(lies_Satz)->DenseRange(1, 3)->ArgName("type")->Unit(benchmark::kMicrosecond);

}  // namespace
