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

enum class Stellung { erster, Endglied };

// The compartments of a metabolite: one under SFO, the fast and the slow one under DFOP, which are slots 1 and 2.
template <std::size_t Kompartimente>
using Bestand = std::array<float, Kompartimente>;

class Metabolitlauf {
public:
    Metabolitlauf(Lauf& l, Stellung s)
        : l_(l),
          c_(static_cast<std::size_t>(l.i_substanz)),
          st_(static_cast<std::size_t>(l.i_studie)),
          Stellung_(s),
          doppelt_(l.Felder.Parameter.Kinetik[c_][st_] == DFOP),
          Faktoren_(l.Platz->Faktoren) {
        const Kinetikart Kinetik = l.Felder.Parameter.Kinetik[c_][st_];
        if (Kinetik != SFO && Kinetik != DFOP) {
            melde_unmoegliche_Rechnung("kinetics of " + Stoffname(l.Felder, l.i_substanz) + " = " + std::to_string(Kinetik),
                                       {{}, 0, "Kinetik", l.i_studie, l.i_substanz});
        }
        if (s == Stellung::erster && l.Felder.Berechnungsmodus == zwei_in_Folge) lies_Weitergabe();
    }

    void rechne() {
        beginne_Tageswerte(l_);
        if (!l_.Klima.variabel()) setze_Wetter();
        if (doppelt_) {
            const std::array<double, 2> k = {l_.Felder.Parameter.k1_DFOP[c_][st_], l_.Felder.Parameter.k2_DFOP[c_][st_]};
            Faktoren_.bestimme(l_, 1, k);
            rechne_Reihen<2>();
        } else {
            Faktoren_.bestimme(l_, 1, {&l_.Felder.Parameter.k_SFO[c_][st_], 1});
            rechne_Reihen<1>();
        }
        werte_Reihen_aus(l_);
        Faktoren_.melde_Fehler();
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

    // Constant climate; in variable climate the parent has left the weather of the days. The two metabolite routines override
    // and limit the moisture in a different order, which shows only if field capacity lies below wilting point: the first then
    // works with the wilting point.
    void setze_Wetter() {
        setze_konstantes_Klima(l_);
        if (Stellung_ == Stellung::erster) l_.Tag.Bodenfeuchte = Maximum(l_.Felder.Parameter.Welkepunkt, l_.Tag.Bodenfeuchte);
        Faktoren_.Temperatur.fill(l_.Tag.Tagestemperatur);
        Faktoren_.Feuchte.fill(l_.Tag.Bodenfeuchte);
    }

    // Both series at once, as each day waits for the rounding of the day before.
    template <std::size_t Kompartimente>
    void rechne_Reihen() {
        Ergebnisspeicher& s = l_.Speicher;
        Reihe<Kompartimente> Plateau(*this, s.Reihe_Plateautiefe(Gesamtgehalt, l_.i_studie, l_.i_substanz),
                                     s.Bildung_Plateautiefe, Tiefe::Plateau);
        Reihe<Kompartimente> Boden(*this, s.Reihe_Bodentiefe(Gesamtgehalt, l_.i_studie, l_.i_substanz), s.Bildung_Bodentiefe,
                                   Tiefe::Boden);
        for (int d = 1; d <= Faktoren_.letzter(); ++d) {
            Plateau.rechne_Tag(d);
            Boden.rechne_Tag(d);
        }
    }

    template <std::size_t Kompartimente>
    class Reihe;

    Lauf& l_;
    std::size_t c_;
    std::size_t st_;
    Stellung Stellung_;
    bool doppelt_;
    bool gibt_weiter_ = false;
    double Anteil_ = 0;
    double Massenverhaeltnis_ = 0;
    Tagesfaktoren& Faktoren_;
};

// One of the two series.
template <std::size_t Kompartimente>
class Metabolitlauf::Reihe {
public:
    Reihe(const Metabolitlauf& m, Tagesreihe Gesamt, Bildungsreihen& Bildung, Tiefe t)
        : Gesamt_(Gesamt.data()),
          Bildung_(Bildung[m.c_ - 1].data()),
          Weitergabe_(m.gibt_weiter_ ? Bildung[1].data() : nullptr),
          Anteil_(m.Anteil_),
          Massenverhaeltnis_(m.Massenverhaeltnis_),
          Rest_{m.Faktoren_.Rest(0).data(), m.Faktoren_.Rest(1).data()},
          Beobachter_(m.l_.Beobachter.get()),
          i_substanz_(m.l_.i_substanz),
          Tiefe_(t) {
        const double g = Kompartimente == 2 ? m.l_.Felder.Parameter.g_DFOP[m.c_][m.st_] : 1;
        Aufteilung_ = {g, 1 - g};
    }

    // Decay first, then what the decay passes on, then the day's own formation: it does not decay on its day.
    void rechne_Tag(int d) {
        const Bestand<Kompartimente> gestern = heute_;
        for (std::size_t i = 0; i < Kompartimente; ++i) {
            heute_[i] = static_cast<float>(static_cast<double>(gestern[i]) * Rest_[i][d]);
        }
        if (Weitergabe_ != nullptr) Weitergabe_[d] = weitergegeben(gestern);
        const double Menge = static_cast<double>(Bildung_[d]);
        if constexpr (Kompartimente == 1) {
            waechst_um(heute_[0], Menge);
            Gesamt_[d] = heute_[0];
        } else {
            for (std::size_t i = 0; i < Kompartimente; ++i) waechst_um(heute_[i], Menge * Aufteilung_[i]);
            Gesamt_[d] = heute_[0] + heute_[1];  // in single precision the same as rounded from the double precision sum
        }
        if (Beobachter_ != nullptr) zeige(d);
    }

private:
    // What the second metabolite gains of the day's decline.
    float weitergegeben(const Bestand<Kompartimente>& gestern) const {
        const auto aus = [&](std::size_t i) {
            return (static_cast<double>(gestern[i]) - static_cast<double>(heute_[i])) * Anteil_ * Massenverhaeltnis_;
        };
        if constexpr (Kompartimente == 1) {
            return static_cast<float>(aus(0));
        } else {
            float Menge = 0;
            for (std::size_t i = 0; i < Kompartimente; ++i) waechst_um(Menge, aus(i));
            return Menge;
        }
    }

    void zeige(int d) const {
        for (std::size_t i = 0; Kompartimente == 2 && i < 2; ++i) {
            Beobachter_->sieh(i_substanz_, Tiefe_, static_cast<int>(i) + 1, d, {&heute_[i], 1});
        }
    }

    float* Gesamt_;
    const float* Bildung_;
    float* Weitergabe_;
    double Anteil_;
    double Massenverhaeltnis_;
    std::array<const double*, 2> Rest_;
    std::array<double, 2> Aufteilung_;
    Slotbeobachter* Beobachter_;
    int i_substanz_;
    Tiefe Tiefe_;
    Bestand<Kompartimente> heute_{};
};

}  // namespace

void Berechnung_Metabolit_1(Lauf& l) { Metabolitlauf(l, Stellung::erster).rechne(); }

void Berechnung_Metabolit_2(Lauf& l) { Metabolitlauf(l, Stellung::Endglied).rechne(); }

}  // namespace varnok
