#include "exposure/anpassung.h"

#include <cmath>
#include <initializer_list>
#include <utility>

#include "run/applikation.h"

namespace varnok {
namespace {

bool ist_Zweierpotenz(double Faktor) {
    int Exponent = 0;
    return std::isnormal(Faktor) && std::frexp(Faktor, &Exponent) == 0.5;
}

// Below these values the residue of a single dose, which the result does not hold, may have been so small that it lost digits,
// and the sum over the doses could show it. What a metabolite is formed of has lost them earlier.
double kleinster_Wert(Stoffschema s) { return std::ldexp(1.0, s == nur_Wirkstoff ? -88 : -40); }

// Scales values and remembers whether one of them left the range in which that is exact.
class Skalierung {
public:
    Skalierung(double Faktor, double kleinster) : Faktor_(Faktor), kleinster_(kleinster) {}

    template <class Zahl>
    void skaliere(Zahl& Wert) {
        const auto alt = static_cast<double>(Wert);
        Wert = static_cast<Zahl>(alt * Faktor_);
        const auto neu = static_cast<double>(Wert);
        exakt_ = exakt_ && (alt == 0 || (alt >= kleinster_ && neu >= kleinster_ && std::isfinite(neu)));
    }
    template <class Bereich>
    void skaliere_alle(Bereich& Werte) {
        for (auto& w : Werte) skaliere(w);
    }

    bool exakt() const { return exakt_; }

private:
    double Faktor_;
    double kleinster_;
    bool exakt_ = true;
};

bool aendert_die_Dosis(const Eingabe& alt, const Eingabe& neu, double Faktor) {
    if (neu.Applikationsmuster == unregelmaessig) return false;
    const double Dosis = Nettodosis(neu.Applikationsrate, neu.Interzeption);
    return Dosis == Nettodosis(alt.Applikationsrate, alt.Interzeption) * Faktor;
}

void skaliere_Endpunkt(Endpunktergebnis& e, Skalierung& s) {
    s.skaliere(e.Maximum_Bodentiefe);
    s.skaliere(e.Maximum_Plateautiefe);
    s.skaliere_alle(e.Jahresmaximum);
    s.skaliere(e.Plateauwert);
    s.skaliere(e.Plateauzuwachs);
    for (Fensterergebnis& f : e.TWA) {
        s.skaliere(f.Maximum);
        s.skaliere(f.aktuell);
    }
    for (auto* Reihe : {&e.Reihe_Bodentiefe, &e.Reihe_Plateautiefe, &e.Integral_Bodentiefe}) s.skaliere_alle(*Reihe);
}

}  // namespace

std::shared_ptr<const Ergebnis> Werte_anpassen(const Ergebnis& r, std::shared_ptr<const Eingabe> neue_Vorgabe, double Faktor) {
    if (!ist_Zweierpotenz(Faktor) || !aendert_die_Dosis(*r.Vorgabe, *neue_Vorgabe, Faktor)) return nullptr;
    auto neues = std::make_shared<Ergebnis>(r);
    Skalierung s(Faktor, kleinster_Wert(r.Vorgabe->Berechnungsmodus));
    s.skaliere(neues->Wirksame_Rate);
    s.skaliere(neues->erste_Rate);
    s.skaliere_alle(neues->Tagesrate);
    for (auto& Reihe : neues->Bildung_Plateautiefe) s.skaliere_alle(Reihe);
    for (Stoffergebnis& Stoff : neues->Stoffwerte) {
        for (Endpunktergebnis& e : Stoff.Endpunktwerte) skaliere_Endpunkt(e, s);
    }
    if (!s.exakt()) return nullptr;
    neues->Vorgabe = std::move(neue_Vorgabe);
    return neues;
}

}  // namespace varnok
