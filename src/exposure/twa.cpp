#include "exposure/twa.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {
namespace {

struct Fenstermaximum {
    float Mittel = 0;
    std::int16_t Start = 0;
};

// Largest mean over a window of `Laenge` days that ends within the run.
Fenstermaximum suche(Tagesreihe_lesend Integral, double Laenge) {
    Fenstermaximum m;
    const double letzter_Start = std::nearbyint(letzter_Tag - Laenge);
    for (int d = 0; d <= letzter_Start; ++d) {
        const auto Ende = static_cast<std::size_t>(std::nearbyint(d + Laenge));
        const double Zuwachs = static_cast<double>(Integral[Ende]) - static_cast<double>(Integral[static_cast<std::size_t>(d)]);
        const auto v = static_cast<float>(Zuwachs / Laenge);
        if (v > m.Mittel) m = {v, static_cast<std::int16_t>(d)};
    }
    return m;
}

}  // namespace

std::vector<float> TWA_Fenster(const Laufparameter& p) {
    std::vector<float> Fenster;
    const auto verkuerze = [](double Tage) { return static_cast<float>(Tage); };
    if (p.TWA_Zeiten == 1) {
        std::transform(p.TWA.EU.begin(), p.TWA.EU.end(), std::back_inserter(Fenster), verkuerze);
    } else {
        std::transform(p.TWA.Monat.begin(), p.TWA.Monat.end(), std::back_inserter(Fenster), verkuerze);
    }
    return Fenster;
}

std::vector<std::string> TWA_Eintraege(const Laufparameter& p, char Dezimalzeichen) {
    std::vector<std::string> Eintraege;
    for (const float Tage : TWA_Fenster(p)) Eintraege.push_back("TWA (" + allgemeine_Zahl(Tage, Dezimalzeichen) + " d)");
    return Eintraege;
}

void berechne_TWA(Lauf& l) {
    Ergebnisspeicher& s = l.Speicher;
    const auto st = static_cast<std::size_t>(l.i_studie);
    const auto c = static_cast<std::size_t>(l.i_substanz);
    const std::vector<float> Fenster = TWA_Fenster(l.Felder.Parameter);
    for (std::size_t j = 1; j <= Fenster.size(); ++j) {
        const auto Laenge = static_cast<double>(Fenster[j - 1]);
        if (!(Laenge > 0) || !std::isfinite(Laenge)) {
            melde_unmoegliche_Rechnung("length of TWA window " + std::to_string(j) + " (d) = " + allgemeine_Zahl(Laenge),
                                       {{}, 0, "TWA"});
        }
        for (std::size_t e = 0; e < Endpunkte; ++e) {
            const Fenstermaximum m = suche(s.Integral_Bodentiefe(static_cast<int>(e), l.i_studie, l.i_substanz), Laenge);
            if (!std::isfinite(m.Mittel)) {
                melde_unmoegliche_Rechnung("length of TWA window (d) = " + allgemeine_Zahl(Laenge), {{}, 0, "TWA"});
            }
            s.TWA_Maximum[e][st][c][j] = m.Mittel;
            s.TWA_Starttag[e][st][c][j] = m.Start;
        }
    }
}

}  // namespace varnok
