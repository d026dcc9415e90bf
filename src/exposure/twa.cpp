#include "exposure/twa.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/reihensuche.h"

namespace varnok {
namespace {

constexpr auto Platz = [](int i) { return static_cast<std::size_t>(i); };

struct Fenstermaximum {
    float Mittel = 0;
    std::int16_t Start = 0;
};

// Days whose growth is looked at together.
constexpr int Abschnitt = 64;

// The means of windows of `Laenge` days that end within the run, and the first one of the largest.
class Fenster {
public:
    Fenster(Tagesreihe_lesend Integral, bool steigt, double Laenge)
        : Integral_(Integral),
          steigt_(steigt),
          Laenge_(Laenge),
          Anzahl_(Laenge > Tagesplaetze ? 0 : static_cast<int>(std::nearbyint(letzter_Tag - Laenge)) + 1) {}

    Fenstermaximum suche() const {
        const double Versatz = std::nearbyint(Laenge_);
        // With half a day over the rounded length differs from day to day.
        if (Anzahl_ < 1 || std::abs(Laenge_ - Versatz) == 0.5) {
            return suche_zwischen(0, Anzahl_, {},
                                  [&](int d) { return Integral_[Platz(static_cast<int>(std::nearbyint(d + Laenge_)))]; });
        }
        return suche_nahe(Integral_.data() + static_cast<int>(Versatz));
    }

private:
    // `Ende(d)` is the integral at the end of the window that starts on day d.
    template <class Funktion>
    Fenstermaximum suche_zwischen(int von, int bis, Fenstermaximum m, Funktion Ende) const {
        for (int d = von; d < bis; ++d) {
            const double Zuwachs = static_cast<double>(Ende(d)) - static_cast<double>(Integral_[Platz(d)]);
            const auto v = static_cast<float>(Zuwachs / Laenge_);
            if (v > m.Mittel) m = {v, static_cast<std::int16_t>(d)};
        }
        return m;
    }

    // The largest growth of the integral gives the largest mean. Means are worked out only where the growth comes so near to it
    // that rounding may have made them equal.
    Fenstermaximum suche_nahe(const float* Enden) const {
        const float* Anfaenge = Integral_.data();
        Fenstermaximum m;
        double Grenze = 0;
        for (int d = 0; d < Anzahl_; d += Abschnitt) {
            const int Tage = std::min(Abschnitt, Anzahl_ - d);
            // Nowhere in the section does a rising integral grow by more than from its first start to its last end.
            if (steigt_ && static_cast<double>(Enden[d + Tage - 1] - Anfaenge[d]) < Grenze) continue;
            const auto Zuwachs = static_cast<double>(
                groesster_Wert(Platz(Tage), 0, [&](std::size_t i) { return Enden[Platz(d) + i] - Anfaenge[Platz(d) + i]; }));
            if (Zuwachs < Grenze) continue;
            Grenze = std::max(Grenze, Zuwachs - std::ldexp(Zuwachs, -20) - std::ldexp(Laenge_ + 1, -147));
            m = suche_zwischen(d, d + Tage, m, [=](int i) { return Enden[i]; });
        }
        return m;
    }

    Tagesreihe_lesend Integral_;
    bool steigt_;
    double Laenge_;
    int Anzahl_;
};

}  // namespace

std::vector<float> TWA_Fenster(const Laufparameter& p) {
    std::vector<float> Fenster;
    const auto verkuerze = [](double Tage) { return static_cast<float>(Tage); };
    if (p.TWA_Zeiten == EU_Liste) {
        std::transform(p.TWA.EU.begin(), p.TWA.EU.end(), std::back_inserter(Fenster), verkuerze);
    } else {
        std::transform(p.TWA.Monat.begin(), p.TWA.Monat.end(), std::back_inserter(Fenster), verkuerze);
    }
    return Fenster;
}

std::string Fensterlaenge(float Tage, char Dezimalzeichen) { return allgemeine_Zahl(Tage, Dezimalzeichen) + " d"; }

std::string TWA_Eintrag(float Tage, char Dezimalzeichen) { return "TWA (" + Fensterlaenge(Tage, Dezimalzeichen) + ")"; }

std::vector<std::string> TWA_Eintraege(const Laufparameter& p, char Dezimalzeichen) {
    std::vector<std::string> Eintraege;
    for (const float Tage : TWA_Fenster(p)) Eintraege.push_back(TWA_Eintrag(Tage, Dezimalzeichen));
    return Eintraege;
}

void berechne_TWA(Lauf& l) {
    Ergebnisspeicher& s = l.Speicher;
    const auto st = static_cast<std::size_t>(l.i_studie);
    const auto c = static_cast<std::size_t>(l.i_substanz);
    const std::vector<float> Laengen = TWA_Fenster(l.Felder.Parameter);
    std::array<Tagesreihe_lesend, Endpunkte> Integral = {s.Integral_Bodentiefe(Gesamtgehalt, l.i_studie, l.i_substanz),
                                                         s.Integral_Bodentiefe(Porenwasser, l.i_studie, l.i_substanz)};
    std::array<bool, Endpunkte> steigt;
    for (const Endpunktart e : alle_Endpunkte)
        steigt[e] = std::is_sorted(Integral[e].begin(), Integral[e].begin() + letzter_Tag + 1);
    for (std::size_t j = 1; j <= Laengen.size(); ++j) {
        const auto Laenge = static_cast<double>(Laengen[j - 1]);
        if (!(Laenge > 0) || !std::isfinite(Laenge)) {
            melde_unmoegliche_Rechnung("length of TWA window " + std::to_string(j) + " (d) = " + allgemeine_Zahl(Laenge),
                                       {{}, 0, "TWA"});
        }
        for (const Endpunktart e : alle_Endpunkte) {
            const Fenstermaximum m = Fenster(Integral[e], steigt[e], Laenge).suche();
            if (!std::isfinite(m.Mittel)) {
                melde_unmoegliche_Rechnung("length of TWA window (d) = " + allgemeine_Zahl(Laenge), {{}, 0, "TWA"});
            }
            s.TWA_Maximum[e][st][c][j] = m.Mittel;
            s.TWA_Starttag[e][st][c][j] = m.Start;
        }
    }
}

}  // namespace varnok
