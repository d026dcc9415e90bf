#include "exposure/twa.h"

#include <algorithm>
#include <cmath>

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

void uebernehme_TWA_Liste(Lauf& l) {
    const auto verkuerze = [](double Tage) { return static_cast<float>(Tage); };
    const auto Ziel = l.Speicher.TWA_Tage.begin() + 1;
    const Laufparameter& p = l.Parameter;
    if (p.TWA_Zeiten == 1) {
        std::transform(p.TWA_Liste_EU.begin(), p.TWA_Liste_EU.end(), Ziel, verkuerze);
    } else {
        std::transform(p.TWA_Liste_Monat.begin(), p.TWA_Liste_Monat.end(), Ziel, verkuerze);
    }
}

void TWA_Listbox_initialisieren(Lauf& l) {
    uebernehme_TWA_Liste(l);
    l.Felder.TWA_Laenge = TWA_Vorauswahl(l.Parameter.TWA_Zeiten);
}

std::vector<std::string> TWA_Eintraege(const Lauf& l, char Dezimalzeichen) {
    std::vector<std::string> Eintraege;
    for (int j = 1; j <= Anzahl_TWA(l.Parameter.TWA_Zeiten); ++j) {
        Eintraege.push_back("TWA (" + allgemeine_Zahl(l.Speicher.TWA_Tage[static_cast<std::size_t>(j)], Dezimalzeichen) + " d)");
    }
    return Eintraege;
}

void berechne_TWA(Lauf& l) {
    Ergebnisspeicher& s = l.Speicher;
    const auto st = static_cast<std::size_t>(l.i_studie);
    const auto c = static_cast<std::size_t>(l.i_substanz);
    for (std::size_t j = 1; j <= static_cast<std::size_t>(Anzahl_TWA(l.Parameter.TWA_Zeiten)); ++j) {
        const auto Laenge = static_cast<double>(s.TWA_Tage[j]);
        if (!(Laenge > 0) || !std::isfinite(Laenge))
            melde_unmoegliche_Rechnung("length of TWA window " + std::to_string(j) + " (d) = " + allgemeine_Zahl(Laenge));
        for (std::size_t e = 0; e < Endpunkte; ++e) {
            const Fenstermaximum m = suche(s.Integral_Bodentiefe(static_cast<int>(e), l.i_studie, l.i_substanz), Laenge);
            if (!std::isfinite(m.Mittel)) melde_unmoegliche_Rechnung("length of TWA window (d) = " + allgemeine_Zahl(Laenge));
            s.TWA_Maximum[e][st][c][j] = m.Mittel;
            s.TWA_Starttag[e][st][c][j] = m.Start;
        }
    }
}

}  // namespace varnok
