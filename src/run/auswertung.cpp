#include "run/auswertung.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/reihensuche.h"

namespace varnok {
namespace {

constexpr auto Platz = [](int i) { return static_cast<std::size_t>(i); };

// One compound's series at both endpoints.
class Reihenauswertung {
public:
    explicit Reihenauswertung(Lauf& l)
        : l_(l),
          st_(Platz(l.i_studie)),
          c_(Platz(l.i_substanz)),
          letzter_(l.Platz->Faktoren.letzter()),
          Plateau_{l.Speicher.Reihe_Plateautiefe(Gesamtgehalt, l.i_studie, l.i_substanz),
                   l.Speicher.Reihe_Plateautiefe(Porenwasser, l.i_studie, l.i_substanz)},
          Boden_{l.Speicher.Reihe_Bodentiefe(Gesamtgehalt, l.i_studie, l.i_substanz),
                 l.Speicher.Reihe_Bodentiefe(Porenwasser, l.i_studie, l.i_substanz)},
          Integral_{l.Speicher.Integral_Bodentiefe(Gesamtgehalt, l.i_studie, l.i_substanz),
                    l.Speicher.Integral_Bodentiefe(Porenwasser, l.i_studie, l.i_substanz)} {}

    void teile_durch_PW() {
        const Tageszahlen& PW = l_.Platz->Faktoren.PW();
        for (std::size_t d = 1; d <= Platz(letzter_); ++d) {
            Plateau_[Porenwasser][d] = static_cast<float>(static_cast<double>(Plateau_[Gesamtgehalt][d]) / PW[d]);
            Boden_[Porenwasser][d] = static_cast<float>(static_cast<double>(Boden_[Gesamtgehalt][d]) / PW[d]);
        }
    }

    void integriere() {
        std::array<float, Endpunkte> Summe = {Boden_[Gesamtgehalt][0], Boden_[Porenwasser][0]};
        for (const Endpunktart e : alle_Endpunkte) Integral_[e][0] = Summe[e];
        for (std::size_t d = 1; d <= Platz(letzter_); ++d) {
            for (const Endpunktart e : alle_Endpunkte) {
                const double Zuwachs = (static_cast<double>(Boden_[e][d]) + static_cast<double>(Boden_[e][d - 1])) / 2;
                Summe[e] = static_cast<float>(Zuwachs + static_cast<double>(Summe[e]));
                Integral_[e][d] = Summe[e];
            }
        }
    }

    // The integral goes wherever the soil depth goes, and stays there.
    void pruefe() const {
        if (std::isfinite(Integral_[Gesamtgehalt][Platz(letzter_)]) && std::isfinite(Integral_[Porenwasser][Platz(letzter_)]) &&
            endlich(Plateau_[Gesamtgehalt]) && endlich(Plateau_[Porenwasser])) {
            return;
        }
        for (int d = 1; d <= letzter_; ++d) {
            for (const Endpunktart e : alle_Endpunkte) pruefe_Konzentration(l_, d, Plateau_[e][Platz(d)], Integral_[e][Platz(d)]);
        }
    }

    void bestimme_Maxima(Endpunktart e) {
        Ergebnisspeicher& s = l_.Speicher;
        const bool Stamm = l_.i_substanz == 0;
        const auto alle_Tage = [&](Tagesreihe_lesend Reihe) { return Reihe.subspan(1, Platz(letzter_)); };
        const Tageswert Boden = suche_Maximum(alle_Tage(Boden_[e]), 1, Stamm ? Tageswert{Boden_[e][0], 0} : Tageswert{0, -99});
        s.Maximum_Bodentiefe[e][st_][c_] = Boden.Wert;
        s.Maximumtag_Bodentiefe[e][st_][c_] = static_cast<std::int16_t>(Boden.Tag);

        const Tageswert Anfang = Stamm ? Tageswert{Plateau_[e][0], 0} : Tageswert{-1, -99};
        const Tageswert Plateau = suche_Maximum(alle_Tage(Plateau_[e]), 1, Anfang);
        s.Maximum_Plateautiefe[e][st_][c_] = Plateau.Wert;
        const int letzter_Jahrestag = bestimme_Jahresmaxima(e, Anfang);
        s.Maximumtag_Plateautiefe[e][st_][c_] = static_cast<std::int16_t>(std::max(Plateau.Tag, letzter_Jahrestag));
    }

private:
    // The day of the last one that was found.
    int bestimme_Jahresmaxima(Endpunktart e, Tageswert Anfang) {
        Tageswert m = Anfang;
        for (int Jahr = 1; Jahr <= Jahre; ++Jahr) {
            const int von = std::max(1, (Jahr - 1) * Tage_pro_Jahr);
            const int Tage = std::max(0, std::min(letzter_ + 1, Jahr * Tage_pro_Jahr) - von);
            m = suche_Maximum(Tagesreihe_lesend(Plateau_[e]).subspan(Platz(von), Platz(Tage)), von,
                              Jahr == 1 ? Anfang : Tageswert{-1, m.Tag});
            l_.Speicher.Jahresmaximum[e][st_][c_][Platz(Jahr)] = m.Wert;
        }
        return m.Tag;
    }

    // Any number times 0 is 0, but for infinity and what is no number.
    static bool endlich(Tagesreihe_lesend Reihe) {
        std::array<float, 8> Probe{};
        static_assert(Tagesplaetze % 8 == 0);
        for (std::size_t d = 0; d < Tagesplaetze; d += 8) {
            for (std::size_t j = 0; j < 8; ++j) Probe[j] += Reihe[d + j] * 0;
        }
        return std::all_of(Probe.begin(), Probe.end(), [](float p) { return p == 0; });
    }

    Lauf& l_;
    std::size_t st_;
    std::size_t c_;
    int letzter_;
    std::array<Tagesreihe, Endpunkte> Plateau_;
    std::array<Tagesreihe, Endpunkte> Boden_;
    std::array<Tagesreihe, Endpunkte> Integral_;
};

}  // namespace

Tageswert suche_Maximum(std::span<const float> Werte, int erster_Tag, Tageswert bisher) {
    const float m = groesster_Wert(Werte.size(), bisher.Wert, [&](std::size_t i) { return Werte[i]; });
    if (!(m > bisher.Wert)) return bisher;
    return {m, erster_Tag + static_cast<int>(std::find(Werte.begin(), Werte.end(), m) - Werte.begin())};
}

void pruefe_Konzentration(const Lauf& l, int d, float Plateau, float Boden) {
    if (std::isfinite(Plateau) && std::isfinite(Boden)) return;
    melde_unmoegliche_Rechnung("concentration of " + Stoffname(l.Felder, l.i_substanz) + " on day " + std::to_string(d) + " = " +
                                   allgemeine_Zahl(Plateau) + ", " + allgemeine_Zahl(Boden),
                               {{}, 0, {}, l.i_studie, l.i_substanz});
}

void werte_Reihen_aus(Lauf& l) {
    Reihenauswertung a(l);
    a.teile_durch_PW();
    a.integriere();
    a.pruefe();
    for (const Endpunktart e : alle_Endpunkte) a.bestimme_Maxima(e);
}

}  // namespace varnok
