// Time of one study: the usual case, and the worst of every kinetics.

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "exposure/plateau.h"
#include "exposure/schritte.h"
#include "exposure/twa.h"

namespace {

using namespace varnok;

// A year whose temperature and moisture differ from day to day.
class Jahresgang : public Klimaquelle {
public:
    std::optional<std::vector<Klimatag>> lade(const std::string&) const override {
        std::vector<Klimatag> Tage;
        for (int d = 0; d < Tage_pro_Jahr; ++d) {
            Tage.push_back({d % 3 * 2.0, 1.5 + d % 5 * 0.2, 10 + 8 * std::sin(d * 0.0172)});
        }
        return Tage;
    }
};

std::unique_ptr<Lauf> gewoehnlicher_Lauf() {
    auto l = std::make_unique<Lauf>();
    Laufparameter& p = l->Felder.Parameter;
    p.Bodendichte = 1.5;
    p.Bodentiefe = 5;
    p.Plateautiefe = 20;
    p.Kohlenstoffgehalt = 1.5;
    p.Feldkapazitaet = 30;
    p.Welkepunkt = 10;
    p.KOC = fuer_alle(100.0);
    p.Q10 = fuer_alle(2.58);
    p.Walker = fuer_alle(0.7);
    l->Felder.Studie = {"Field study"};
    return l;
}

// Twenty applications a year, each with a slot of its own over ten years, and two metabolites.
std::unique_ptr<Lauf> schlimmster_Lauf(int Kinetik, int Klimamodus, double DT50) {
    auto l = gewoehnlicher_Lauf();
    Laufparameter& p = l->Felder.Parameter;
    p.Separate_Rueckstaende = 1;
    p.Klimamodus = static_cast<std::uint8_t>(Klimamodus);
    p.Kinetik[0] = ueberall(static_cast<Kinetikart>(Kinetik));
    p.Kinetik[1] = p.Kinetik[2] = ueberall(DFOP);
    const double k = std::log(2.0) / DT50;
    p.k_SFO = fuer_alle(k);
    p.k1_DFOP = fuer_alle(3 * k);
    p.k2_DFOP = fuer_alle(k / 2);
    p.alpha_FOMC = ueberall(0.9);
    p.beta_FOMC = ueberall(DT50);
    p.k1_HS = ueberall(k);
    p.k2_HS = ueberall(k / 3);
    Eingabe& e = l->Felder;
    e.Applikationsmuster = regelmaessig;
    e.Berechnungsmodus = zwei_parallel;
    e.Molmasse_Wirkstoff = "300";
    e.Molmasse_Met_1 = "200";
    e.Molmasse_Met_2 = "150";
    e.Bildungsanteil_Met_1 = "40";
    e.Bildungsanteil_Met_2 = "30";
    waehle_Anzahl(e, max_Applikationen);
    return l;
}

void rechne(benchmark::State& Zustand, Lauf& l) {
    const Jahresgang Klima;
    for (auto _ : Zustand) {
        berechne_PEC(l, 0, Klima, alle_Rechenschritte);
        benchmark::DoNotOptimize(l.Speicher.Plateauwert);
    }
}

void eine_Studie_SFO(benchmark::State& Zustand) { rechne(Zustand, *gewoehnlicher_Lauf()); }
BENCHMARK(eine_Studie_SFO)->Unit(benchmark::kMillisecond);

// Arguments: kinetics 0 SFO, 1 DFOP, 2 FOMC, 3 HS; climate mode; DT50 in days. A DT50 of 5 days takes old
// slots into the smallest numbers that single precision has.
void zweihundert_Slots(benchmark::State& Zustand) {
    rechne(Zustand, *schlimmster_Lauf(static_cast<int>(Zustand.range(0)), static_cast<int>(Zustand.range(1)),
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
