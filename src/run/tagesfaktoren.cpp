#include "run/tagesfaktoren.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "run/tageswerte.h"

namespace varnok {
namespace {

constexpr auto Platz = [](int d) { return static_cast<std::size_t>(d); };

}  // namespace

void Tagesfaktoren::bestimme(Lauf& l, int ab, std::span<const double> Konstanten) {
    Fehler_ = nullptr;
    rueckwaerts_ = false;
    const int Wiederkehr = l.Klima.variabel() ? l.Klima.Laenge() : 1;
    try {
        for (int d = 1; d <= letzter_Tag; ++d) {
            letzter_ = d - 1;
            if (d > ab && !l.Klima.variabel()) {
                uebernimm_alle(d);  // constant climate stays as it is
                break;
            }
            if (d > ab && gleicht(d, d - 1)) {
                uebernimm(d, d - 1);
            } else if (d - Wiederkehr >= ab && gleicht(d, d - Wiederkehr)) {
                uebernimm(d, d - Wiederkehr);
            } else {
                rechne_Tag(l, d, d >= ab, Konstanten);
            }
        }
        letzter_ = letzter_Tag;
    } catch (const Laufzeitfehler&) {
        Fehler_ = std::current_exception();  // the days before it may hold another one
    }
    l.Tag.Tagestemperatur = Temperatur[letzter_Tag];
    l.Tag.Bodenfeuchte = Feuchte[letzter_Tag];
}

void Tagesfaktoren::melde_Fehler() const {
    if (Fehler_) std::rethrow_exception(Fehler_);
}

bool Tagesfaktoren::gleicht(int d, int anderer) const {
    return Temperatur[Platz(d)] == Temperatur[Platz(anderer)] && Feuchte[Platz(d)] == Feuchte[Platz(anderer)];
}

void Tagesfaktoren::uebernimm(int d, int von) {
    for (Tageszahlen* Zahlen : {&Faktor_, &Rest_[0], &Rest_[1], &PW_}) (*Zahlen)[Platz(d)] = (*Zahlen)[Platz(von)];
}

void Tagesfaktoren::uebernimm_alle(int ab) {
    for (Tageszahlen* Zahlen : {&Faktor_, &Rest_[0], &Rest_[1], &PW_}) {
        std::fill(Zahlen->begin() + ab, Zahlen->end(), (*Zahlen)[Platz(ab - 1)]);
    }
}

void Tagesfaktoren::rechne_Tag(Lauf& l, int d, bool korrigiert, std::span<const double> Konstanten) {
    l.Tag.Tagestemperatur = Temperatur[Platz(d)];
    l.Tag.Bodenfeuchte = Feuchte[Platz(d)];
    if (korrigiert) {
        const Korrektur k = bestimme_Korrektur(l, l.i_studie, l.i_substanz);
        Faktor_[Platz(d)] = k.Faktor();
        rueckwaerts_ = rueckwaerts_ || k.Faktor() < 0;
        for (std::size_t i = 0; i < Konstanten.size(); ++i) Rest_[i][Platz(d)] = std::exp(-k.korrigiert(Konstanten[i]));
    }
    PW_[Platz(d)] = PW_faktor(l, l.i_studie, l.i_substanz);
}

}  // namespace varnok
