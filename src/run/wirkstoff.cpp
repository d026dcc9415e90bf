#include "run/wirkstoff.h"

#include <algorithm>
#include <vector>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/abbau.h"
#include "run/auswertung.h"
#include "run/slotsummen.h"
#include "run/tageswerte.h"

namespace varnok {
namespace {

std::vector<Bildungsweg> lies_Bildungswege(const Eingabe& e) {
    const int Metaboliten = Anzahl_Stoffe(e.Berechnungsmodus) - 1;
    if (Metaboliten == 0) return {};
    const double Molmasse = e.Molmasse_Wirkstoff.Zahl();
    if (Molmasse == 0) {
        melde_unmoegliche_Rechnung("molar mass of " + e.Name_Wirkstoff + " = " + e.Molmasse_Wirkstoff.Text(),
                                   {{}, 0, "Molmasse", -1, 0});
    }
    std::vector<Bildungsweg> Wege = {{e.Bildungsanteil_Met_1.Zahl() / 100, e.Molmasse_Met_1.Zahl() / Molmasse}};
    // In the sequence the first metabolite feeds the second one.
    if (e.Berechnungsmodus == zwei_parallel)
        Wege.push_back({e.Bildungsanteil_Met_2.Zahl() / 100, e.Molmasse_Met_2.Zahl() / Molmasse});
    return Wege;
}

class Wirkstofflauf {
public:
    explicit Wirkstofflauf(Lauf& l)
        : l_(l),
          s_(l.Speicher),
          Zeilen_(l.Platz->Zeilen),
          Faktoren_(l.Platz->Faktoren),
          Abbau_(erstelle_Abbau(l)),
          Wege_(lies_Bildungswege(l.Felder)),
          Plateau_(s_.Reihe_Plateautiefe(Gesamtgehalt, l.i_studie, 0)),
          Boden_(s_.Reihe_Bodentiefe(Gesamtgehalt, l.i_studie, 0)) {}

    void rechne() {
        beginne_Tageswerte(l_);
        l_.Tag.Summe_Temperatur = l_.Tag.Summe_Niederschlag = l_.Tag.Summe_Verdunstung = 0;
        Zeilen_.leere();
        rechne_Tag_0();
        bestimme_Faktoren();
        for (int d = 1; d <= Faktoren_.letzter();) d += rechne_Tage(d);
        werte_Reihen_aus(l_);
        Faktoren_.melde_Fehler();
    }

private:
    void rechne_Tag_0();
    void bestimme_Faktoren();
    int naechster_Dosistag(int d, int letzter) const;
    int rechne_Tage(int d);
    void appliziere(int d);
    void summiere(int d);
    void zeige(int d, int erster_Platz, int n) const;
    double Konzentration(int d, double Tiefe) const;
    Summenziel Ziel(Tagesreihe Gesamt, Bildungsreihen& Bildung, int d) const;

    bool dosiert(int d) const { return s_.Tagesrate[static_cast<std::size_t>(d)] > 0; }
    bool getrennt() const { return l_.Felder.Parameter.Separate_Rueckstaende != gemeinsam; }

    Lauf& l_;
    Ergebnisspeicher& s_;
    Slotzeilen& Zeilen_;
    Tagesfaktoren& Faktoren_;
    std::unique_ptr<Abbau> Abbau_;
    std::vector<Bildungsweg> Wege_;
    Tagesreihe Plateau_;
    Tagesreihe Boden_;
    int Anzahl_Slots_ = 0;
    bool Jahreswechsel_ = false;
};

// Concentration of the dose of day d in a depth in cm: g/ha over dm and kg/L gives mg/kg.
double Wirkstofflauf::Konzentration(int d, double Tiefe) const {
    const double Rate = static_cast<double>(s_.Tagesrate[static_cast<std::size_t>(d)]);
    return (Rate / 1000) / ((Tiefe / 10) * l_.Felder.Parameter.Bodendichte) * Einheitenfaktor(l_.Felder.Parameter.Einheit);
}

void Wirkstofflauf::rechne_Tag_0() {
    if (!getrennt()) Anzahl_Slots_ = 1;
    if (!dosiert(0)) return;
    const auto Plateau = static_cast<float>(Konzentration(0, l_.Felder.Parameter.Plateautiefe));
    const auto Boden = static_cast<float>(Konzentration(0, l_.Felder.Parameter.Bodentiefe));
    // In constant climate too, day 0 sees the mean moisture: it is set to field capacity from day 1 on.
    const double PW = PW_faktor(l_, l_.i_studie, 0);
    const auto Plateau_Wasser = static_cast<float>(static_cast<double>(Plateau) / PW);
    const auto Boden_Wasser = static_cast<float>(static_cast<double>(Boden) / PW);
    pruefe_Konzentration(l_, 0, Plateau, Boden);
    pruefe_Konzentration(l_, 0, Plateau_Wasser, Boden_Wasser);
    Plateau_[0] = Zeilen_.heute(Tiefe::Plateau, 1) = Plateau;
    Boden_[0] = Zeilen_.heute(Tiefe::Boden, 1) = Boden;
    s_.Reihe_Plateautiefe(Porenwasser, l_.i_studie, 0)[0] = Plateau_Wasser;
    s_.Reihe_Bodentiefe(Porenwasser, l_.i_studie, 0)[0] = Boden_Wasser;
    Anzahl_Slots_ = 1;
    Abbau_->beginne_Tag_0();
    zeige(0, 0, 1);
}

void Wirkstofflauf::bestimme_Faktoren() {
    const int erster = dosiert(0) || !getrennt() ? 1 : naechster_Dosistag(1, letzter_Tag) + 1;
    if (l_.Klima.variabel()) {
        lies_Klimatage(l_);
    } else {
        Faktoren_.Feuchte.fill(l_.Tag.Bodenfeuchte);  // up to the first residue the moisture stays at its mean
        setze_konstantes_Klima(l_);
        Faktoren_.Temperatur.fill(l_.Tag.Tagestemperatur);
        std::fill(Faktoren_.Feuchte.begin() + std::min(erster, letzter_Tag + 1), Faktoren_.Feuchte.end(), l_.Tag.Bodenfeuchte);
    }
    Faktoren_.bestimme(l_, erster, Abbau_->Konstanten());
}

// The first day from d on with a dose, `letzter` if there is none before it.
int Wirkstofflauf::naechster_Dosistag(int d, int letzter) const {
    while (d < letzter && !dosiert(d)) ++d;
    return d;
}

// The days from d on as far as rows and sound days reach, up to the next dose. Returns their number.
int Wirkstofflauf::rechne_Tage(int d) {
    const int letzter = naechster_Dosistag(d, std::min(d + Slotzeilen::Tage - 1, Faktoren_.letzter()));
    const int n = letzter - d + 1;
    if (letzter / Tage_pro_Jahr != (d - 1) / Tage_pro_Jahr) Jahreswechsel_ = true;
    if (Anzahl_Slots_ > 0) {
        Abbau_->baue_ab(d, n, Anzahl_Slots_);
        zeige(d, 1, n);
        summiere_Slots(Zeilen_, Tiefe::Plateau, Anzahl_Slots_, n, Ziel(Plateau_, s_.Bildung_Plateautiefe, d));
        summiere_Slots(Zeilen_, Tiefe::Boden, Slots_von(Tiefe::Boden, Anzahl_Slots_), n, Ziel(Boden_, s_.Bildung_Bodentiefe, d));
        Zeilen_.ruecke_vor(Anzahl_Slots_, n);
    }
    if (dosiert(letzter)) appliziere(letzter);
    return n;
}

void Wirkstofflauf::appliziere(int d) {
    if (getrennt()) ++Anzahl_Slots_;
    const int Slot = Anzahl_Slots_;
    Abbau_->beginne_Slot(Slot, d);
    if (l_.Felder.Parameter.Separate_Rueckstaende == im_Jahr_getrennt && Jahreswechsel_) {
        Jahreswechsel_ = false;
        for (int s = 1; s < Slot; ++s) Abbau_->vereinige(s, Slot, d);
    }
    Abbau_->dosiere(Slot, d, Konzentration(d, l_.Felder.Parameter.Bodentiefe));
    zeige(d, 0, 1);
    summiere(d);
}

// The sum slot of a day with a dose, as the slots stand after it.
void Wirkstofflauf::summiere(int d) {
    for (const Tiefe t : {Tiefe::Plateau, Tiefe::Boden}) {
        float Summe = 0;
        for (int s = 1; s <= Slots_von(t, Anzahl_Slots_); ++s) Summe += Zeilen_.heute(t, s);
        (t == Tiefe::Plateau ? Plateau_ : Boden_)[static_cast<std::size_t>(d)] = Summe;
    }
}

Summenziel Wirkstofflauf::Ziel(Tagesreihe Gesamt, Bildungsreihen& Bildung, int d) const {
    const auto t = static_cast<std::size_t>(d);
    return {&Gesamt[t], Wege_, {&Bildung[0][t], &Bildung[1][t]}};
}

// Shows the observer n days from d on, which stand in the rows from `erster_Platz` on.
void Wirkstofflauf::zeige(int d, int erster_Platz, int n) const {
    if (!l_.Beobachter) return;
    for (const Tiefe t : {Tiefe::Plateau, Tiefe::Boden}) {
        for (int s = 1; s <= Slots_von(t, Anzahl_Slots_); ++s) {
            l_.Beobachter->sieh(0, t, s, d, {Zeilen_.Slotzeile(t, s) + erster_Platz, static_cast<std::size_t>(n)});
        }
    }
}

}  // namespace

void Berechnung_Wirkstoff(Lauf& l) { Wirkstofflauf(l).rechne(); }

}  // namespace varnok
