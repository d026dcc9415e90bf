// A metabolite, day by day: decay first, then what was formed on the day.

#include <cmath>

#include "base/zahlen.h"
#include "support/referenzlauf_intern.h"

namespace varnok::referenz {

namespace {

double weit(float Zahl) { return static_cast<double>(Zahl); }

using Slots = std::vector<std::vector<float>>;

struct Metabolitlauf {
    Lage& l;
    int i_substanz;
    bool als_zweiter_der_Folge;

    Stoffergebnis s = leere_Speicher();
    int Kinetik = -1;
    double k = 0, k1 = 0, k2 = 0, g = 0;
    bool speist_zweiten = l.e.Berechnungsmodus == 3 && !als_zweiter_der_Folge;
    double Bildungsanteil_2 = 0, M1 = 0, M2 = 0;

    void vorbereiten();
    void Wetter_des_Tages();
    void begrenzen();
    void ueberschreiben();
    void Zerfall(std::size_t d);
    void Weiterbildung(std::size_t d);
    void Weiterbildung(const Slots& Reihe, std::vector<float>& Bildung, std::size_t d) const;
    void Eintrag(Slots& Reihe, const std::vector<float>& Bildung, std::size_t d) const;
    void Porenwasser(std::size_t d);
};

void Metabolitlauf::vorbereiten() {
    l.Bodenfeuchte = (l.p.Feldkapazitaet + l.p.Welkepunkt) / 2;
    l.Referenzfeuchte = l.p.Feldkapazitaet;
    if (l.p.Klimamodus == 1) l.Klima_oeffnen();
    for (std::size_t e = 0; e <= 1; ++e) {
        s.Maximum_Plateautiefe[e] = -1;
        for (std::size_t Jahr = 1; Jahr <= 10; ++Jahr) s.Jahresmaximum[e][Jahr] = -1;
        s.Maximumtag_Plateautiefe[e] = -99;
        s.Maximumtag_Bodentiefe[e] = -99;
        s.Plateau[e][0] = 0;
        s.Integral[e][0] = als_zweiter_der_Folge ? s.Plateau[e][0] : s.Boden[e][0];
    }
    const int Code = l.p.Kinetik[static_cast<std::size_t>(i_substanz)][static_cast<std::size_t>(l.i_studie)];
    if (Code != 0 && Code != 1) unmoeglich("unknown kinetics of a metabolite");
    Kinetik = Code;
    if (Kinetik == SFO) k = l.von(l.p.k_SFO, i_substanz);
    if (Kinetik == DFOP) {
        k1 = l.von(l.p.k1_DFOP, i_substanz);
        k2 = l.von(l.p.k2_DFOP, i_substanz);
        g = l.von(l.p.g_DFOP, i_substanz);
    }
    if (!speist_zweiten) return;
    Bildungsanteil_2 = Wert(l.e.Bildungsanteil_Met_2.Text());
    M1 = Wert(l.e.Molmasse_Met_1.Text());
    M2 = Wert(l.e.Molmasse_Met_2.Text());
    if (M1 == 0) unmoeglich("molar mass of the first metabolite of 0");
}

void Metabolitlauf::begrenzen() {
    if (l.Bodenfeuchte > l.p.Feldkapazitaet) l.Bodenfeuchte = l.p.Feldkapazitaet;
    if (l.Bodenfeuchte < l.p.Welkepunkt) l.Bodenfeuchte = l.p.Welkepunkt;
}

void Metabolitlauf::ueberschreiben() {
    if (l.p.Klimamodus != 0) return;
    l.Tagestemperatur = l.p.Szenariotemperatur;
    l.Bodenfeuchte = l.Referenzfeuchte;
}

void Metabolitlauf::Wetter_des_Tages() {
    if (l.p.Klimamodus == 1) {
        l.Klimazeile_lesen();
    } else {
        l.Tagesverdunstung = 0;
        l.Tagesniederschlag = 0;
        l.Tagestemperatur = 0;
    }
    l.Bodenfeuchte = l.Bodenfeuchte + (l.Tagesniederschlag - l.Tagesverdunstung) / l.p.Bodentiefe * 100;
    if (als_zweiter_der_Folge) {
        begrenzen();
        ueberschreiben();
    } else {
        ueberschreiben();
        begrenzen();
    }
}

void Metabolitlauf::Zerfall(std::size_t d) {
    if (Kinetik == SFO) {
        const double k_d = l.korrigiert(k, i_substanz);
        s.Slots_Plateau[0][d] = einfach(weit(s.Slots_Plateau[0][d - 1]) * std::exp(-k_d));
        s.Slots_Boden[0][d] = einfach(weit(s.Slots_Boden[0][d - 1]) * std::exp(-k_d));
        return;
    }
    const double k1_d = l.korrigiert(k1, i_substanz);
    const double k2_d = l.korrigiert(k2, i_substanz);
    s.Slots_Plateau[1][d] = einfach(weit(s.Slots_Plateau[1][d - 1]) * std::exp(-k1_d));
    s.Slots_Plateau[2][d] = einfach(weit(s.Slots_Plateau[2][d - 1]) * std::exp(-k2_d));
    s.Slots_Boden[1][d] = einfach(weit(s.Slots_Boden[1][d - 1]) * std::exp(-k1_d));
    s.Slots_Boden[2][d] = einfach(weit(s.Slots_Boden[2][d - 1]) * std::exp(-k2_d));
}

void Metabolitlauf::Weiterbildung(const Slots& Reihe, std::vector<float>& Bildung, std::size_t d) const {
    const double f = Bildungsanteil_2 / 100;
    const double m = M2 / M1;
    Bildung[d] = 0;
    if (Kinetik == SFO) {
        Bildung[d] = einfach((weit(Reihe[0][d - 1]) - weit(Reihe[0][d])) * f * m);
        return;
    }
    for (std::size_t Slot = 1; Slot <= 2; ++Slot)
        Bildung[d] = einfach(weit(Bildung[d]) + (weit(Reihe[Slot][d - 1]) - weit(Reihe[Slot][d])) * f * m);
}

void Metabolitlauf::Weiterbildung(std::size_t d) {
    if (!speist_zweiten) return;
    Weiterbildung(s.Slots_Plateau, l.Ergebnis.Bildung_Plateau[1], d);
    Weiterbildung(s.Slots_Boden, l.Ergebnis.Bildung_Boden[1], d);
}

// Slots 1 and 2 take their parts under SFO as well, where nothing reads them.
void Metabolitlauf::Eintrag(Slots& Reihe, const std::vector<float>& Bildung, std::size_t d) const {
    const double gebildet = weit(Bildung[d]);
    Reihe[1][d] = einfach(weit(Reihe[1][d]) + gebildet * g);
    Reihe[2][d] = einfach(weit(Reihe[2][d]) + gebildet * (1 - g));
    if (Kinetik == SFO)
        Reihe[0][d] = einfach(weit(Reihe[0][d]) + gebildet);
    else
        Reihe[0][d] = einfach(weit(Reihe[1][d]) + weit(Reihe[2][d]));
}

void Metabolitlauf::Porenwasser(std::size_t d) {
    s.Plateau[0][d] = s.Slots_Plateau[0][d];
    s.Boden[0][d] = s.Slots_Boden[0][d];
    s.Plateau[1][d] = einfach(weit(s.Plateau[0][d]) / l.PW_faktor(i_substanz));
    s.Boden[1][d] = einfach(weit(s.Boden[0][d]) / l.PW_faktor(i_substanz));
}

}  // namespace

Stoffergebnis Berechnung_Metabolit(Lage& l, int i_substanz, bool als_zweiter_der_Folge) {
    Metabolitlauf w{l, i_substanz, als_zweiter_der_Folge};
    w.vorbereiten();
    const std::size_t Quelle = static_cast<std::size_t>(i_substanz - 1);
    for (int Tag = 1; Tag <= 3649; ++Tag) {
        const std::size_t d = static_cast<std::size_t>(Tag);
        w.Wetter_des_Tages();
        w.Zerfall(d);
        w.Weiterbildung(d);
        w.Eintrag(w.s.Slots_Plateau, l.Ergebnis.Bildung_Plateau[Quelle], d);
        w.Eintrag(w.s.Slots_Boden, l.Ergebnis.Bildung_Boden[Quelle], d);
        w.Porenwasser(d);
        Integral_und_Maxima(w.s, Tag);
    }
    return w.s;
}

}  // namespace varnok::referenz
