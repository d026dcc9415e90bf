#include "run/wirkstoff.h"

#include <vector>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/abbau.h"
#include "run/auswertung.h"
#include "run/tageswerte.h"

namespace varnok {
namespace {

// How much of a metabolite comes of what the parent loses.
struct Bildungsweg {
    double Anteil = 0;             // fraction formed
    double Massenverhaeltnis = 0;  // molar mass of the metabolite over that of the parent
};

std::vector<Bildungsweg> lies_Bildungswege(const Eingabe& e) {
    const int Metaboliten = Anzahl_Stoffe(e.Berechnungsmodus) - 1;
    if (Metaboliten == 0) return {};
    const double Molmasse = e.Molmasse_Wirkstoff.Zahl();
    if (Molmasse == 0) {
        melde_unmoegliche_Rechnung("molar mass of " + e.Name_Wirkstoff + " = " + e.Molmasse_Wirkstoff.Text(),
                                   {{}, 0, "Molmasse", -1, 0});
    }
    std::vector<Bildungsweg> Wege = {{e.Bildungsanteil_Met_1.Zahl() / 100, e.Molmasse_Met_1.Zahl() / Molmasse}};
    if (Metaboliten == 2) Wege.push_back({e.Bildungsanteil_Met_2.Zahl() / 100, e.Molmasse_Met_2.Zahl() / Molmasse});
    return Wege;
}

class Wirkstofflauf {
public:
    explicit Wirkstofflauf(Lauf& l)
        : l_(l), Reihen_(l), Abbau_(erstelle_Abbau(l)), Wege_(lies_Bildungswege(l.Felder)), Auswertung_(l) {}

    void rechne() {
        beginne_Tageswerte(l_);
        l_.Tag.Summe_Temperatur = l_.Tag.Summe_Niederschlag = l_.Tag.Summe_Verdunstung = 0;
        Auswertung_.beginne();
        rechne_Tag_0();
        for (int d = 1; d <= letzter_Tag; ++d) rechne_Tag(d);
    }

private:
    void rechne_Tag_0();
    void setze_Maxima_Tag_0();
    void rechne_Tag(int d);
    void lies_Wetter(int d);
    void baue_ab(int d);
    void bilde(int d, std::size_t Weg);
    void appliziere(int d);
    void summiere(int d);
    double Konzentration(int d, double Tiefe) const;

    bool getrennt() const { return l_.Felder.Parameter.Separate_Rueckstaende != 0; }

    Lauf& l_;
    Reihenpaar Reihen_;
    std::unique_ptr<Abbau> Abbau_;
    std::vector<Bildungsweg> Wege_;
    Tagesauswertung Auswertung_;
    Tageskorrektur Korrektur_;
    int Anzahl_Slots_ = 0;
    bool Jahreswechsel_ = false;
};

// Concentration of the dose of day d in a depth in cm: g/ha over dm and kg/L gives mg/kg.
double Wirkstofflauf::Konzentration(int d, double Tiefe) const {
    const double Rate = static_cast<double>(l_.Speicher.Tagesrate[static_cast<std::size_t>(d)]);
    const double Einheitenfaktor = l_.Felder.Parameter.Einheit == 0 ? 1 : 1000;
    return (Rate / 1000) / ((Tiefe / 10) * l_.Felder.Parameter.Bodendichte) * Einheitenfaktor;
}

void Wirkstofflauf::rechne_Tag_0() {
    if (l_.Speicher.Tagesrate[0] > 0) {
        const auto Plateau = static_cast<float>(Konzentration(0, l_.Felder.Parameter.Plateautiefe));
        const auto Boden = static_cast<float>(Konzentration(0, l_.Felder.Parameter.Bodentiefe));
        // In constant climate too, day 0 sees the mean moisture: it is set to field capacity from day 1 on.
        const double PW = PW_faktor(l_, l_.i_studie, 0);
        const auto Plateau_Wasser = static_cast<float>(static_cast<double>(Plateau) / PW);
        const auto Boden_Wasser = static_cast<float>(static_cast<double>(Boden) / PW);
        pruefe_Konzentration(l_, 0, Plateau, Boden);
        pruefe_Konzentration(l_, 0, Plateau_Wasser, Boden_Wasser);
        for (int Slot = 0; Slot <= 1; ++Slot) {
            Reihen_.Plateau[Slot][0] = Plateau;
            Reihen_.Boden[Slot][0] = Boden;
            l_.Speicher.Reihe_Plateautiefe(1, l_.i_studie, 0, Slot)[0] = Plateau_Wasser;
            l_.Speicher.Reihe_Bodentiefe(1, l_.i_studie, 0, Slot)[0] = Boden_Wasser;
        }
        // The integral starts at the first concentration, as if day 0 counted for a full day.
        for (int e = 0; e < Endpunkte; ++e) {
            l_.Speicher.Integral_Bodentiefe(e, l_.i_studie, 0)[0] = l_.Speicher.Reihe_Bodentiefe(e, l_.i_studie, 0, 0)[0];
        }
        Anzahl_Slots_ = 1;
        Abbau_->beginne_Tag_0();
    }
    if (!getrennt()) Anzahl_Slots_ = 1;
    setze_Maxima_Tag_0();
}

void Wirkstofflauf::setze_Maxima_Tag_0() {
    Ergebnisspeicher& s = l_.Speicher;
    const auto st = static_cast<std::size_t>(l_.i_studie);
    for (std::size_t e = 0; e < Endpunkte; ++e) {
        const float C = s.Reihe_Plateautiefe(static_cast<int>(e), l_.i_studie, 0, 0)[0];
        s.Maximum_Plateautiefe[e][st][0] = C;
        s.Maximumtag_Plateautiefe[e][st][0] = 0;
        s.Jahresmaximum[e][st][0][1] = C;
        s.Maximum_Bodentiefe[e][st][0] = s.Reihe_Bodentiefe(static_cast<int>(e), l_.i_studie, 0, 0)[0];
        s.Maximumtag_Bodentiefe[e][st][0] = 0;
    }
}

void Wirkstofflauf::rechne_Tag(int d) {
    if (l_.Klima.variabel()) lies_Wetter(d);
    if (d % Tage_pro_Jahr == 0) Jahreswechsel_ = true;
    baue_ab(d);
    for (std::size_t Weg = 0; Weg < Wege_.size(); ++Weg) bilde(d, Weg);
    if (l_.Speicher.Tagesrate[static_cast<std::size_t>(d)] > 0) appliziere(d);
    summiere(d);
    Auswertung_.werte_aus(d, PW_faktor(l_, l_.i_studie, 0));
}

void Wirkstofflauf::lies_Wetter(int d) {
    lies_Klimatag(l_, d);
    l_.Tag.Summe_Temperatur += l_.Tag.Tagestemperatur;
    l_.Tag.Summe_Niederschlag += l_.Tag.Tagesniederschlag;
    l_.Tag.Summe_Verdunstung += l_.Tag.Tagesverdunstung;
}

void Wirkstofflauf::baue_ab(int d) {
    if (Anzahl_Slots_ == 0) return;  // in constant climate the moisture then stays at its mean, too
    if (!l_.Klima.variabel()) setze_konstantes_Klima(l_);
    if (Korrektur_.aktualisiere(l_, l_.i_studie, 0)) Abbau_->korrigiere(Korrektur_.heute());
    Abbau_->baue_ab(d, Anzahl_Slots_);
}

// What the parent lost on this day feeds the metabolite, in the metabolite's own mass.
void Wirkstofflauf::bilde(int d, std::size_t Weg) {
    const auto [Anteil, Massenverhaeltnis] = Wege_[Weg];
    const auto bilde_Reihe = [&, Anteil = Anteil, Massenverhaeltnis = Massenverhaeltnis](const Slotreihen& Reihe, int Slots,
                                                                                         float& Bildung) {
        for (int s = 1; s <= Slots; ++s) {
            const double Verlust = static_cast<double>(Reihe[s][d - 1]) - static_cast<double>(Reihe[s][d]);
            waechst_um(Bildung, Verlust * Anteil * Massenverhaeltnis);
        }
    };
    const auto t = static_cast<std::size_t>(d);
    bilde_Reihe(Reihen_.Plateau, Anzahl_Slots_, l_.Speicher.Bildung_Plateautiefe[Weg][t]);
    bilde_Reihe(Reihen_.Boden, Bodenslots(Anzahl_Slots_), l_.Speicher.Bildung_Bodentiefe[Weg][t]);
}

void Wirkstofflauf::appliziere(int d) {
    if (getrennt()) ++Anzahl_Slots_;
    const int Slot = Anzahl_Slots_;
    Abbau_->beginne_Slot(Slot, d);
    if (l_.Felder.Parameter.Separate_Rueckstaende == 2 && Jahreswechsel_) {
        Jahreswechsel_ = false;
        for (int s = 1; s < Slot; ++s) Abbau_->vereinige(s, Slot, d);
    }
    Abbau_->dosiere(Slot, d, Konzentration(d, l_.Felder.Parameter.Bodentiefe));
}

void Wirkstofflauf::summiere(int d) {
    for (int s = 1; s <= Anzahl_Slots_; ++s) waechst_um(Reihen_.Plateau[0][d], static_cast<double>(Reihen_.Plateau[s][d]));
    for (int s = 1; s <= Bodenslots(Anzahl_Slots_); ++s)
        waechst_um(Reihen_.Boden[0][d], static_cast<double>(Reihen_.Boden[s][d]));
}

}  // namespace

void Berechnung_Wirkstoff(Lauf& l) { Wirkstofflauf(l).rechne(); }

}  // namespace varnok
