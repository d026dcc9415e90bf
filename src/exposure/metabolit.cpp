#include "exposure/metabolit.h"

#include <array>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/abbau.h"
#include "run/auswertung.h"
#include "run/tageswerte.h"

namespace varnok {
namespace {

// In a metabolite slots 1 and 2 are the compartments of DFOP and slot 0 the total; under SFO only slot 0
// has a meaning.
constexpr int Gesamt = 0;

enum class Stellung { erster, Endglied };

class Metabolitlauf {
public:
    Metabolitlauf(Lauf& l, Stellung s)
        : l_(l),
          c_(static_cast<std::size_t>(l.i_substanz)),
          st_(static_cast<std::size_t>(l.i_studie)),
          Stellung_(s),
          doppelt_(l.Felder.Parameter.Kinetik[c_][st_] == DFOP),
          Reihen_(l),
          Auswertung_(l) {
        const Kinetikart Kinetik = l.Felder.Parameter.Kinetik[c_][st_];
        if (Kinetik != SFO && Kinetik != DFOP) {
            melde_unmoegliche_Rechnung("kinetics of " + Stoffname(l.Felder, l.i_substanz) + " = " + std::to_string(Kinetik),
                                       {{}, 0, "Kinetik", l.i_studie, l.i_substanz});
        }
        if (doppelt_) g_ = l.Felder.Parameter.g_DFOP[c_][st_];
        if (s == Stellung::erster && l.Felder.Berechnungsmodus == zwei_in_Folge) lies_Weitergabe();
    }

    void rechne() {
        beginne_Tageswerte(l_);
        Auswertung_.beginne();
        for (int e = 0; e < Endpunkte; ++e) {
            l_.Speicher.Reihe_Plateautiefe(e, l_.i_studie, l_.i_substanz, Gesamt)[0] = 0;
            // The soil depth holds nothing on day 0 either.
            l_.Speicher.Integral_Bodentiefe(e, l_.i_studie, l_.i_substanz)[0] = 0;
        }
        for (int d = 1; d <= letzter_Tag; ++d) rechne_Tag(d);
    }

private:
    void lies_Weitergabe() {
        const double Molmasse = l_.Felder.Molmasse_Met_1.Zahl();
        if (Molmasse == 0) {
            melde_unmoegliche_Rechnung("molar mass of " + l_.Felder.Name_Met_1 + " = " + l_.Felder.Molmasse_Met_1.Text(),
                                       {{}, 0, "Molmasse", -1, 1});
        }
        gibt_weiter_ = true;
        Anteil_ = l_.Felder.Bildungsanteil_Met_2.Zahl() / 100;
        Massenverhaeltnis_ = l_.Felder.Molmasse_Met_2.Zahl() / Molmasse;
    }

    void rechne_Tag(int d) {
        bestimme_Wetter(d);
        if (Korrektur_.aktualisiere(l_, l_.i_studie, l_.i_substanz)) korrigiere(Korrektur_.heute());
        const auto t = static_cast<std::size_t>(d);
        Ergebnisspeicher& s = l_.Speicher;
        rechne_Reihe(Reihen_.Plateau, d, s.Bildung_Plateautiefe[c_ - 1][t], s.Bildung_Plateautiefe[1][t]);
        rechne_Reihe(Reihen_.Boden, d, s.Bildung_Bodentiefe[c_ - 1][t], s.Bildung_Bodentiefe[1][t]);
        Auswertung_.werte_aus(d, PW_faktor(l_, l_.i_studie, l_.i_substanz));
    }

    // The two metabolite routines override and limit the moisture in a different order, which shows only
    // if field capacity lies below wilting point: the first then works with the wilting point.
    void bestimme_Wetter(int d) {
        if (l_.Klima.variabel()) {
            lies_Klimatag(l_, d);
            return;
        }
        setze_konstantes_Klima(l_);
        if (Stellung_ == Stellung::erster) l_.Tag.Bodenfeuchte = Maximum(l_.Felder.Parameter.Welkepunkt, l_.Tag.Bodenfeuchte);
    }

    void korrigiere(const Korrektur& k) {
        const Laufparameter& p = l_.Felder.Parameter;
        if (doppelt_) {
            Rest_ = {0, std::exp(-k.korrigiert(p.k1_DFOP[c_][st_])), std::exp(-k.korrigiert(p.k2_DFOP[c_][st_]))};
        } else {
            Rest_ = {std::exp(-k.korrigiert(p.k_SFO[c_][st_])), 0, 0};
        }
    }

    // What the second metabolite gains of the day's decline.
    double weitergegeben(const float* Reihe, int d) const {
        return (static_cast<double>(Reihe[d - 1]) - static_cast<double>(Reihe[d])) * Anteil_ * Massenverhaeltnis_;
    }

    // Decay first, then what the decay passes on, then the day's own formation: it does not decay on its day.
    void rechne_Reihe(const Slotreihen& Reihe, int d, const float& Bildung, float& Weitergabe) {
        const int erster = doppelt_ ? 1 : Gesamt;
        const int letzter = doppelt_ ? 2 : Gesamt;
        for (int s = erster; s <= letzter; ++s) {
            Reihe[s][d] = static_cast<float>(static_cast<double>(Reihe[s][d - 1]) * Rest_[static_cast<std::size_t>(s)]);
        }
        if (gibt_weiter_) {
            Weitergabe = doppelt_ ? 0 : static_cast<float>(weitergegeben(Reihe[Gesamt], d));
            for (int s = 1; doppelt_ && s <= 2; ++s) waechst_um(Weitergabe, weitergegeben(Reihe[s], d));
        }
        const double Menge = static_cast<double>(Bildung);
        waechst_um(Reihe[1][d], Menge * g_);
        waechst_um(Reihe[2][d], Menge * (1 - g_));
        if (doppelt_) {
            Reihe[Gesamt][d] = static_cast<float>(static_cast<double>(Reihe[1][d]) + static_cast<double>(Reihe[2][d]));
        } else {
            waechst_um(Reihe[Gesamt][d], Menge);
        }
    }

    Lauf& l_;
    std::size_t c_;
    std::size_t st_;
    Stellung Stellung_;
    bool doppelt_;
    double g_ = 0;
    bool gibt_weiter_ = false;
    double Anteil_ = 0;
    double Massenverhaeltnis_ = 0;
    Reihenpaar Reihen_;
    Tagesauswertung Auswertung_;
    Tageskorrektur Korrektur_;
    std::array<double, 3> Rest_ = {1, 1, 1};
};

}  // namespace

void Berechnung_Metabolit_1(Lauf& l) { Metabolitlauf(l, Stellung::erster).rechne(); }

void Berechnung_Metabolit_2(Lauf& l) { Metabolitlauf(l, Stellung::Endglied).rechne(); }

}  // namespace varnok
