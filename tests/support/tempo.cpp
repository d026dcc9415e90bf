#include "support/tempo.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <stdexcept>

#include "exposure/ergebnis.h"
#include "support/referenzlauf.h"

namespace varnok::probe {
namespace {

Lauf_bauer schwerer_Fall(Kinetikart Kinetik) {
    Lauf_bauer b;
    b.nach_SFO(0.01).nach_DFOP(0.05, 0.004, 0.6).nach_FOMC(0.9, 30).nach_HS(0.02, 0.006, 40);
    b.Felder.Parameter.Kinetik[0][0] = Kinetik;
    b.nach_DFOP(0.03, 0.002, 0.4, 1).nach_SFO(0.01, 2).Schema(zwei_in_Folge).Rueckstaende(1);
    std::vector<Applikationszeile> Termine;
    for (int i = 0; i < max_Applikationen; ++i) {
        const int Tag = 1 + i * 7 % 5 * 5 + i % 2;
        Termine.push_back({std::to_string(Tag), std::to_string(1 + i / 2), std::to_string(300 + 20 * i), "10"});
        if (i % 2 == 1) Termine.back()[0] = std::to_string(27 + i % 3 / 2);
    }
    b.Termine(Termine).Wetter(wechselndes_Wetter(Tage_pro_Jahr)).Beginn(1, 1);
    return b;
}

double Millisekunden(auto Arbeit) {
    const auto Beginn = std::chrono::steady_clock::now();
    Arbeit();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - Beginn).count();
}

}  // namespace

std::vector<Tempofall> Tempofaelle() {
    return {{"one SFO study", Lauf_bauer().nach_SFO(0.01), 20},
            {"20 applications, DFOP", schwerer_Fall(DFOP), 15},
            {"20 applications, HS", schwerer_Fall(HS), 15},
            {"20 applications, FOMC", schwerer_Fall(FOMC), 12}};
}

Tempo miss_Tempo(const Lauf_bauer& Fall, int Runden) {
    const auto Vorgabe = std::make_shared<const Eingabe>(Fall.Felder);
    const std::vector<Klimatag> Tage = Fall.Klima.value_or(std::vector<Klimatag>());
    const Klimaliste Quelle(Tage);
    Lauf Arbeitsplatz;
    Tempo t = {1E9, 1E9};
    for (int Runde = 0; Runde < Runden; ++Runde) {
        t.Referenz_ms = std::min(t.Referenz_ms, Millisekunden([&] {
                                     if (referenz::rechne(Vorgabe->Parameter, *Vorgabe, 0, Tage).Stoffe.empty())
                                         throw std::logic_error("no compound");
                                 }));
        for (int i = 0; i < 10; ++i) {
            t.Lauf_ms = std::min(t.Lauf_ms, Millisekunden([&] {
                                     if (!berechne_Studie(Arbeitsplatz, Vorgabe, 0, Quelle, Umfang::ohne_Reihen).Werte)
                                         throw std::logic_error("no result");
                                 }));
        }
    }
    return t;
}

}  // namespace varnok::probe
