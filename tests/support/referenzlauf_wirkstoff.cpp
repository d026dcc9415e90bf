// The parent compound, day by day.

#include <cmath>

#include "base/zahlen.h"
#include "support/referenzlauf_intern.h"

namespace varnok::referenz {

namespace {

using Phasen = std::vector<std::vector<std::array<double, 2>>>;  // [day][slot][phase]

struct Wirkstofflauf {
    Lage& l;
    Stoffergebnis s = leere_Speicher();

    double Tiefe_Boden = l.p.Bodentiefe / 10;      // dm
    double Tiefe_Plateau = l.p.Plateautiefe / 10;  // dm
    double Dichte = l.p.Bodendichte;               // kg/L
    double Einheitenfaktor = std::pow(10.0, 3.0 * static_cast<int>(l.p.Einheit));
    int Kinetik = -1;
    double k = 0, k1 = 0, k2 = 0, g = 0, alpha = 0, beta = 0, Tb = 0;
    double Bildungsanteil_1 = 0, Bildungsanteil_2 = 0, M0 = 0, M1 = 0, M2 = 0;
    bool bildet_1 = l.e.Berechnungsmodus > 0;
    bool bildet_2 = l.e.Berechnungsmodus == 2 || l.e.Berechnungsmodus == 3;

    std::size_t Anzahl_Slots = 0;
    bool Jahreswechsel = false;
    std::size_t Bezugstag_Plateau = 0, Bezugstag_Boden = 0;
    std::vector<double> Zeit = std::vector<double>(221, 0.0);
    Phasen Phase_Plateau = Phasen(3752, std::vector<std::array<double, 2>>(221, {0.0, 0.0}));
    Phasen Phase_Boden = Phasen(3752, std::vector<std::array<double, 2>>(23, {0.0, 0.0}));
    std::vector<std::array<double, 2>> Bildung_Slot_Plateau = std::vector<std::array<double, 2>>(221, {0.0, 0.0});
    std::vector<std::array<double, 2>> Bildung_Slot_Boden = std::vector<std::array<double, 2>>(23, {0.0, 0.0});

    void vorbereiten();
    void Tag_0();
    void Konstanten();
    void erste_Maxima();
    void Klima_des_Tages();
    void Bezugstage(std::size_t Slot);
    void Zerfall(std::size_t Slot, std::size_t d);
    void Zerfall_SFO(std::size_t Slot, std::size_t d);
    void Zerfall_DFOP(std::size_t Slot, std::size_t d);
    void Zerfall_FOMC(std::size_t Slot, std::size_t d);
    void Zerfall_HS(std::size_t Slot, std::size_t d);
    void Bildung(std::size_t Slot, std::size_t d);
    std::size_t Slot_der_Dosis(std::size_t d);
    void zusammenfuehren(std::size_t neu, std::size_t d);
    void Dosis(std::size_t d);
    void summieren(std::size_t d);
    void Porenwasser(std::size_t d);
};

double weit(float Zahl) { return static_cast<double>(Zahl); }

void Wirkstofflauf::vorbereiten() {
    if (l.p.Klimamodus == 1) l.Klima_oeffnen();
    for (std::size_t e = 0; e <= 1; ++e) {
        s.Maximum_Plateautiefe[e] = -1;
        s.Maximumtag_Plateautiefe[e] = -99;
        s.Maximumtag_Bodentiefe[e] = -99;
        s.Maximum_Bodentiefe[e] = -99;
        for (std::size_t Jahr = 1; Jahr <= 10; ++Jahr) s.Jahresmaximum[e][Jahr] = -1;
    }
    l.Bodenfeuchte = (l.p.Feldkapazitaet + l.p.Welkepunkt) / 2;
    l.Referenzfeuchte = l.p.Feldkapazitaet;
    l.Ergebnis.Klimasummen = {0.0, 0.0, 0.0};
}

// The first dose. Its value in pore water uses the mean moisture: the weather begins on day 1.
void Wirkstofflauf::Tag_0() {
    const double R = weit(l.Ergebnis.Tagesrate[0]);
    if (!(R > 0)) return;
    s.Slots_Plateau[0][0] = einfach((R / 1000) / (Tiefe_Plateau * Dichte) * Einheitenfaktor);
    s.Slots_Plateau[1][0] = s.Slots_Plateau[0][0];
    s.Slots_Boden[0][0] = einfach((R / 1000) / (Tiefe_Boden * Dichte) * Einheitenfaktor);
    s.Slots_Boden[1][0] = s.Slots_Boden[0][0];
    Porenwasser(0);
    for (std::size_t e = 0; e <= 1; ++e) s.Integral[e][0] = s.Boden[e][0];
    Anzahl_Slots = 1;
    if (Kinetik != DFOP) return;
    for (std::size_t Slot = 0; Slot <= 1; ++Slot) {
        Phase_Plateau[0][Slot] = {g * weit(s.Slots_Plateau[Slot][0]), (1 - g) * weit(s.Slots_Plateau[Slot][0])};
        Phase_Boden[0][Slot] = {g * weit(s.Slots_Boden[Slot][0]), (1 - g) * weit(s.Slots_Boden[Slot][0])};
    }
}

void Wirkstofflauf::Konstanten() {
    const int Code = l.p.Kinetik[0][static_cast<std::size_t>(l.i_studie)];
    if (Code != 0 && Code != 1 && Code != 2 && Code != 3) unmoeglich("unknown kinetics of the parent");
    Kinetik = Code;
    if (Kinetik == SFO) k = l.von(l.p.k_SFO, 0);
    if (Kinetik == DFOP) {
        k1 = l.von(l.p.k1_DFOP, 0);
        k2 = l.von(l.p.k2_DFOP, 0);
        g = l.von(l.p.g_DFOP, 0);
    }
    if (Kinetik == FOMC) {
        alpha = l.von(l.p.alpha_FOMC);
        beta = l.von(l.p.beta_FOMC);
        if (beta == 0) unmoeglich("beta of 0");
    }
    if (Kinetik == HS) {
        k1 = l.von(l.p.k1_HS);
        k2 = l.von(l.p.k2_HS);
        Tb = l.von(l.p.Tb_HS);
    }
    if (bildet_1) {
        Bildungsanteil_1 = Wert(l.e.Bildungsanteil_Met_1.Text());
        M0 = Wert(l.e.Molmasse_Wirkstoff.Text());
        M1 = Wert(l.e.Molmasse_Met_1.Text());
    }
    if (bildet_2) {
        Bildungsanteil_2 = Wert(l.e.Bildungsanteil_Met_2.Text());
        M2 = Wert(l.e.Molmasse_Met_2.Text());
    }
}

void Wirkstofflauf::erste_Maxima() {
    for (std::size_t e = 0; e <= 1; ++e) {
        s.Maximum_Plateautiefe[e] = s.Plateau[e][0];
        s.Jahresmaximum[e][1] = s.Plateau[e][0];
        s.Maximumtag_Plateautiefe[e] = 0;
        s.Maximum_Bodentiefe[e] = s.Boden[e][0];
        s.Maximumtag_Bodentiefe[e] = 0;
    }
}

void Wirkstofflauf::Klima_des_Tages() {
    l.Klimazeile_lesen();
    const double Bilanz = (l.Tagesniederschlag - l.Tagesverdunstung) / l.p.Bodentiefe * 100 + l.Bodenfeuchte;
    l.Bodenfeuchte = Maximum(l.p.Welkepunkt, Minimum(l.p.Feldkapazitaet, Bilanz));
    l.Ergebnis.Klimasummen[0] = l.Ergebnis.Klimasummen[0] + l.Tagestemperatur;
    l.Ergebnis.Klimasummen[1] = l.Ergebnis.Klimasummen[1] + l.Tagesniederschlag;
    l.Ergebnis.Klimasummen[2] = l.Ergebnis.Klimasummen[2] + l.Tagesverdunstung;
}

void Wirkstofflauf::Bezugstage(std::size_t Slot) {
    const std::vector<int>& Tag = l.Ergebnis.Applikationstag;
    const std::size_t letztes_Ereignis = static_cast<std::size_t>(l.Ergebnis.Anzahl_pro_Jahr);
    Bezugstag_Plateau = static_cast<std::size_t>(Tag[Slot]);
    Bezugstag_Boden = static_cast<std::size_t>(Slot > letztes_Ereignis ? Tag[letztes_Ereignis] : Tag[Slot]);
}

void Wirkstofflauf::Zerfall(std::size_t Slot, std::size_t d) {
    if (Kinetik == SFO) Zerfall_SFO(Slot, d);
    if (Kinetik == DFOP) Zerfall_DFOP(Slot, d);
    if (Kinetik == FOMC) Zerfall_FOMC(Slot, d);
    if (Kinetik == HS) Zerfall_HS(Slot, d);
}

void Wirkstofflauf::Zerfall_SFO(std::size_t Slot, std::size_t d) {
    const double k_d = l.korrigiert(k, 0);
    s.Slots_Plateau[Slot][d] = einfach(weit(s.Slots_Plateau[Slot][d - 1]) * std::exp(-k_d));
    if (Slot < 23) s.Slots_Boden[Slot][d] = einfach(weit(s.Slots_Boden[Slot][d - 1]) * std::exp(-k_d));
}

void Wirkstofflauf::Zerfall_DFOP(std::size_t Slot, std::size_t d) {
    const double k1_d = l.korrigiert(k1, 0);
    const double k2_d = l.korrigiert(k2, 0);
    Phase_Plateau[d][Slot][0] = Phase_Plateau[d - 1][Slot][0] * std::exp(-k1_d);
    Phase_Plateau[d][Slot][1] = Phase_Plateau[d - 1][Slot][1] * std::exp(-k2_d);
    s.Slots_Plateau[Slot][d] = einfach(Phase_Plateau[d][Slot][0] + Phase_Plateau[d][Slot][1]);
    if (Slot >= 23) return;
    Phase_Boden[d][Slot][0] = Phase_Boden[d - 1][Slot][0] * std::exp(-k1_d);
    Phase_Boden[d][Slot][1] = Phase_Boden[d - 1][Slot][1] * std::exp(-k2_d);
    s.Slots_Boden[Slot][d] = einfach(Phase_Boden[d][Slot][0] + Phase_Boden[d][Slot][1]);
}

void Wirkstofflauf::Zerfall_FOMC(std::size_t Slot, std::size_t d) {
    Zeit[Slot] = endlich(Zeit[Slot] + l.Temperaturpotenz(0) * l.Feuchtepotenz(0), "biological time");
    s.Slots_Plateau[Slot][d] = einfach(weit(s.Slots_Plateau[Slot][Bezugstag_Plateau]) / std::pow(Zeit[Slot] / beta + 1, alpha));
    if (Slot < 23)
        s.Slots_Boden[Slot][d] = einfach(weit(s.Slots_Boden[Slot][Bezugstag_Boden]) / std::pow(Zeit[Slot] / beta + 1, alpha));
}

void Wirkstofflauf::Zerfall_HS(std::size_t Slot, std::size_t d) {
    Zeit[Slot] = endlich(Zeit[Slot] + l.Temperaturpotenz(0) * l.Feuchtepotenz(0), "biological time");
    const double k1_d = l.korrigiert(k1, 0);
    const double k2_d = l.korrigiert(k2, 0);
    const double k_d = Zeit[Slot] > Tb ? k2_d : k1_d;
    s.Slots_Plateau[Slot][d] = einfach(weit(s.Slots_Plateau[Slot][d - 1]) * std::exp(-k_d));
    if (Slot < 23) s.Slots_Boden[Slot][d] = einfach(weit(s.Slots_Boden[Slot][d - 1]) * std::exp(-k_d));
}

void Wirkstofflauf::Bildung(std::size_t Slot, std::size_t d) {
    if (!bildet_1) return;
    if (M0 == 0) unmoeglich("molar mass of the parent of 0");
    const double Verlust_Plateau = weit(s.Slots_Plateau[Slot][d - 1]) - weit(s.Slots_Plateau[Slot][d]);
    Bildung_Slot_Plateau[Slot][0] = Verlust_Plateau * (Bildungsanteil_1 / 100) * (M1 / M0);
    if (bildet_2) Bildung_Slot_Plateau[Slot][1] = Verlust_Plateau * (Bildungsanteil_2 / 100) * (M2 / M0);
    if (Slot >= 23) return;
    const double Verlust_Boden = weit(s.Slots_Boden[Slot][d - 1]) - weit(s.Slots_Boden[Slot][d]);
    Bildung_Slot_Boden[Slot][0] = Verlust_Boden * (Bildungsanteil_1 / 100) * (M1 / M0);
    if (bildet_2) Bildung_Slot_Boden[Slot][1] = Verlust_Boden * (Bildungsanteil_2 / 100) * (M2 / M0);
}

std::size_t Wirkstofflauf::Slot_der_Dosis(std::size_t d) {
    if (l.p.Separate_Rueckstaende == 0) {
        Zeit[1] = 0;
        Bezugstag_Plateau = d;
        if (d / 365 + 1 == 1) Bezugstag_Boden = d;
        return 1;
    }
    Anzahl_Slots = Anzahl_Slots + 1;
    Zeit[Anzahl_Slots] = 0;
    if (l.p.Separate_Rueckstaende == 2 && Jahreswechsel) {
        Jahreswechsel = false;
        zusammenfuehren(Anzahl_Slots, d);
    }
    return Anzahl_Slots;
}

// The residues of earlier years join the new slot. Emptying the day of each old slot's application
// keeps a curve that refers to that day at 0.
void Wirkstofflauf::zusammenfuehren(std::size_t neu, std::size_t d) {
    for (std::size_t alt = 1; alt <= neu - 1; ++alt) {
        const std::size_t Ereignistag = static_cast<std::size_t>(l.Ergebnis.Applikationstag[alt]);
        s.Slots_Plateau[neu][d] = einfach(weit(s.Slots_Plateau[neu][d]) + weit(s.Slots_Plateau[alt][d]));
        s.Slots_Plateau[alt][d] = 0;
        s.Slots_Plateau[alt][Ereignistag] = 0;
        for (std::size_t Phase = 0; Phase <= 1; ++Phase) {
            Phase_Plateau[d][neu][Phase] = Phase_Plateau[d][neu][Phase] + Phase_Plateau[d][alt][Phase];
            Phase_Plateau[d][alt][Phase] = 0;
            Phase_Plateau[Ereignistag][alt][Phase] = 0;
        }
    }
}

void Wirkstofflauf::Dosis(std::size_t d) {
    const double R = weit(l.Ergebnis.Tagesrate[d]);
    if (!(R > 0)) return;
    const bool erstes_Jahr = d / 365 + 1 == 1;
    const std::size_t Slot = Slot_der_Dosis(d);
    const double C = (R / 1000) / (Tiefe_Boden * Dichte) * Einheitenfaktor;
    if (Kinetik == DFOP) {
        std::array<double, 2>& Plateau = Phase_Plateau[d][Slot];
        Plateau[0] = Plateau[0] + g * C * Tiefe_Boden / Tiefe_Plateau;
        Plateau[1] = Plateau[1] + (1 - g) * C * Tiefe_Boden / Tiefe_Plateau;
        s.Slots_Plateau[Slot][d] = einfach(Plateau[0] + Plateau[1]);
        if (!erstes_Jahr) return;
        std::array<double, 2>& Boden = Phase_Boden[d][Slot];
        Boden[0] = Boden[0] + g * C;
        Boden[1] = Boden[1] + (1 - g) * C;
        s.Slots_Boden[Slot][d] = einfach(Boden[0] + Boden[1]);
        return;
    }
    s.Slots_Plateau[Slot][d] = einfach(weit(s.Slots_Plateau[Slot][d]) + C * Tiefe_Boden / Tiefe_Plateau);
    if (erstes_Jahr) s.Slots_Boden[Slot][d] = einfach(weit(s.Slots_Boden[Slot][d]) + C);
}

void Wirkstofflauf::summieren(std::size_t d) {
    Studienergebnis& r = l.Ergebnis;
    for (std::size_t Slot = 1; Slot <= Anzahl_Slots; ++Slot) {
        s.Slots_Plateau[0][d] = einfach(weit(s.Slots_Plateau[0][d]) + weit(s.Slots_Plateau[Slot][d]));
        if (Slot < 23) s.Slots_Boden[0][d] = einfach(weit(s.Slots_Boden[0][d]) + weit(s.Slots_Boden[Slot][d]));
        for (std::size_t m = 0; m <= 1; ++m) {
            if (!(m == 0 ? bildet_1 : bildet_2)) continue;
            r.Bildung_Plateau[m][d] = einfach(weit(r.Bildung_Plateau[m][d]) + Bildung_Slot_Plateau[Slot][m]);
            if (Slot < 23) r.Bildung_Boden[m][d] = einfach(weit(r.Bildung_Boden[m][d]) + Bildung_Slot_Boden[Slot][m]);
        }
    }
}

void Wirkstofflauf::Porenwasser(std::size_t d) {
    s.Plateau[0][d] = s.Slots_Plateau[0][d];
    s.Boden[0][d] = s.Slots_Boden[0][d];
    s.Plateau[1][d] = einfach(weit(s.Plateau[0][d]) / l.PW_faktor(0));
    s.Boden[1][d] = einfach(weit(s.Boden[0][d]) / l.PW_faktor(0));
}

}  // namespace

Stoffergebnis Berechnung_Wirkstoff(Lage& l) {
    Wirkstofflauf w{l};
    w.vorbereiten();
    w.Konstanten();
    w.Tag_0();
    if (l.p.Separate_Rueckstaende == 0) w.Anzahl_Slots = 1;
    w.erste_Maxima();
    for (int Tag = 1; Tag <= 3649; ++Tag) {
        const std::size_t d = static_cast<std::size_t>(Tag);
        if (l.p.Klimamodus == 1) w.Klima_des_Tages();
        if (Tag % 365 == 0) w.Jahreswechsel = true;
        const std::size_t Slots_am_Morgen = w.Anzahl_Slots;
        for (std::size_t Slot = 1; Slot <= Slots_am_Morgen; ++Slot) {
            if (l.p.Separate_Rueckstaende != 0) w.Bezugstage(Slot);
            if (l.p.Klimamodus == 0) {
                l.Tagestemperatur = l.p.Szenariotemperatur;
                l.Bodenfeuchte = l.Referenzfeuchte;
            }
            w.Zerfall(Slot, d);
            w.Bildung(Slot, d);
        }
        w.Dosis(d);
        w.summieren(d);
        w.Porenwasser(d);
        Integral_und_Maxima(w.s, Tag);
    }
    return w.s;
}

}  // namespace varnok::referenz
