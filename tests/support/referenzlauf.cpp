// Applications, climate, averages and the order of a run.

#include "support/referenzlauf.h"

#include <cmath>
#include <stdexcept>

#include "base/zahlen.h"
#include "support/referenzlauf_intern.h"

namespace varnok::referenz {

void unmoeglich(const std::string& Ursache) { throw std::runtime_error("reference calculation: " + Ursache); }

float einfach(double Zahl) {
    const float Wert_einfach = static_cast<float>(Zahl);
    if (!std::isfinite(Wert_einfach)) unmoeglich("a value to be stored is not finite");
    return Wert_einfach;
}

double endlich(double Zahl, const char* Ursache) {
    if (!std::isfinite(Zahl)) unmoeglich(Ursache);
    return Zahl;
}

double Maximum(double a, double b) { return a > b ? a : b; }
double Minimum(double a, double b) { return a < b ? a : b; }
long gerundet(double Zahl) { return std::lrint(Zahl); }

double Lage::von(const Stofftabelle<double>& Tabelle, int i_substanz) const {
    return Tabelle.at(static_cast<std::size_t>(i_substanz)).at(static_cast<std::size_t>(i_studie));
}

double Lage::von(const Studientabelle<double>& Tabelle) const { return Tabelle.at(static_cast<std::size_t>(i_studie)); }

double Lage::Temperaturpotenz(int i_substanz) const {
    return endlich(std::pow(von(p.Q10, i_substanz), (Tagestemperatur - von(p.TRef, i_substanz)) / 10), "temperature term");
}

double Lage::Feuchtepotenz(int i_substanz) const {
    return endlich(std::pow(Bodenfeuchte / Referenzfeuchte, von(p.Walker, i_substanz)), "moisture term");
}

double Lage::korrigiert(double k, int i_substanz) const {
    const double mit_Temperatur = Temperaturpotenz(i_substanz) * k;
    return endlich(Feuchtepotenz(i_substanz) * mit_Temperatur, "corrected rate constant");
}

double Lage::PW_faktor(int i_substanz) const {
    const double f = (p.Kohlenstoffgehalt * von(p.KOC, i_substanz)) / 100 + (Bodenfeuchte / 100) / p.Bodendichte;
    if (f == 0) unmoeglich("pore water factor of 0");
    return f;
}

namespace {

// Days before the first of a month in a year without 29 February.
int Tage_vor_Monat(long Monat) {
    static const std::array<int, 13> Tage = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return Monat >= 1 && Monat <= 12 ? Tage[static_cast<std::size_t>(Monat)] : 0;
}

float Nettodosis(double Rate, double Interzeption) { return einfach(Rate * (100 - Interzeption) / 100); }

std::size_t Tagesplatz(long Tag) {
    if (Tag < 0 || Tag >= 3752) unmoeglich("application outside the time axis");
    return static_cast<std::size_t>(Tag);
}

void einzelne_Applikation(Lage& l) {
    Studienergebnis& r = l.Ergebnis;
    r.Applikationstag[1] = 0;
    r.Tagesrate[0] = Nettodosis(Wert(l.e.Applikationsrate.Text()), Wert(l.e.Interzeption.Text()));
    r.Wirksame_Rate = static_cast<double>(r.Tagesrate[0]);
    r.Anzahl_pro_Jahr = 1;
}

void regelmaessige_Applikationen(Lage& l, double k) {
    Studienergebnis& r = l.Ergebnis;
    const int n = l.e.Anzahl();
    const int Abstand = l.e.Intervall();
    for (int i = 1; i <= n; ++i) {
        const int Tag = (i - 1) * Abstand;
        r.Applikationstag[static_cast<std::size_t>(i)] = Tag;
        float& Dosis = r.Tagesrate[Tagesplatz(Tag)];
        Dosis = Nettodosis(Wert(l.e.Applikationsrate.Text()), Wert(l.e.Interzeption.Text()));
        r.Wirksame_Rate = r.Wirksame_Rate + static_cast<double>(Dosis) * std::exp(-k * (n - i) * Abstand);
    }
    r.Anzahl_pro_Jahr = n;
}

// Interception texts as the check of the table leaves them: 100 % and more become 99 %.
std::vector<std::string> gepruefte_Interzeption(const Eingabe& e) {
    std::vector<std::string> Texte;
    for (std::size_t k = 0; k < static_cast<std::size_t>(e.Anzahl()); ++k) {
        const Applikationszeile& Zeile = e.Applikationsschema.at(k);
        if (Wert(Zeile[0].Text()) == 0 || Wert(Zeile[1].Text()) == 0) unmoeglich("application date not valid");
        Texte.push_back(Wert(Zeile[3].Text()) >= 100 ? std::string("99") : Zeile[3].Text());
    }
    return Texte;
}

void unregelmaessige_Applikationen(Lage& l, double k) {
    Studienergebnis& r = l.Ergebnis;
    const std::vector<std::string> Interzeption = gepruefte_Interzeption(l.e);
    const int n = l.e.Anzahl();
    for (int i = 1; i <= n; ++i) {
        const std::size_t Platz = static_cast<std::size_t>(i);
        const Applikationszeile& Zeile = l.e.Applikationsschema.at(Platz - 1);
        const long Tag = gerundet(Tage_vor_Monat(gerundet(Wert(Zeile[1].Text()))) + Wert(Zeile[0].Text()) - 1);
        r.Tagesrate[Tagesplatz(Tag)] = Nettodosis(Wert(Zeile[2].Text()), Wert(Interzeption[Platz - 1]));
        r.Applikationstag[Platz] = static_cast<int>(Tag);
        if (i > 1 && Tag <= r.Applikationstag[Platz - 1]) unmoeglich("application dates not in sequence");
    }
    r.Anzahl_pro_Jahr = n;
    const int erster = r.Applikationstag[1];
    const int Spanne = r.Applikationstag[static_cast<std::size_t>(n)] - erster;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(n); ++i) {
        const int Tag = r.Applikationstag[i];
        const float Dosis = r.Tagesrate[Tagesplatz(Tag)];
        r.Tagesrate[Tagesplatz(Tag)] = 0;
        r.Tagesrate[Tagesplatz(Tag - erster)] = Dosis;
        r.Applikationstag[i] = Tag - erster;
        r.Wirksame_Rate = r.Wirksame_Rate + static_cast<double>(Dosis) * std::exp(-k * (Spanne - r.Applikationstag[i]));
    }
}

}  // namespace

void Lade_Applikationen(Lage& l) {
    Studienergebnis& r = l.Ergebnis;
    r.Tagesrate.assign(3752, 0.0F);
    r.Applikationstag.assign(221, 0);
    r.Wirksame_Rate = 0;
    const double k = l.von(l.p.k_SFO, 0);
    if (l.e.Applikationsmuster != einzeln && (l.e.Anzahl() < 2 || l.e.Anzahl() > 20)) unmoeglich("number of applications");
    switch (l.e.Applikationsmuster) {
        case einzeln:
            einzelne_Applikation(l);
            break;
        case regelmaessig:
            regelmaessige_Applikationen(l, k);
            break;
        case unregelmaessig:
            unregelmaessige_Applikationen(l, k);
            break;
        default:
            unmoeglich("unknown application pattern");
    }
    endlich(r.Wirksame_Rate, "effective rate");
    const std::size_t n = static_cast<std::size_t>(r.Anzahl_pro_Jahr);
    for (std::size_t y = 1; y <= 10; ++y) {
        for (std::size_t j = 1; j <= n; ++j) r.Applikationstag[y * n + j] = r.Applikationstag[j] + 365 * static_cast<int>(y);
        for (std::size_t j = 0; j <= 364; ++j) r.Tagesrate[365 * (y - 1) + j] = r.Tagesrate[j];
    }
}

void Lage::Klima_oeffnen() {
    if (Klima.empty()) unmoeglich("no climate data");
    // The header is no part of the list: as many days are skipped as lie before the first application.
    naechste_Klimazeile = 0;
    for (int Zeile = Tage_vor_Monat(e.App_Monat + 1) + e.App_Tag; Zeile > 0; --Zeile) {
        ++naechste_Klimazeile;
        if (naechste_Klimazeile == Klima.size()) naechste_Klimazeile = 0;
    }
}

void Lage::Klimazeile_lesen() {
    const Klimatag& Tag = Klima[naechste_Klimazeile];
    Tagesverdunstung = Tag.Tagesverdunstung;
    Tagesniederschlag = Tag.Tagesniederschlag;
    Tagestemperatur = Tag.Tagestemperatur;
    ++naechste_Klimazeile;
    if (naechste_Klimazeile == Klima.size()) naechste_Klimazeile = 0;
}

Stoffergebnis leere_Speicher() {
    Stoffergebnis s;
    for (std::size_t e = 0; e <= 1; ++e) {
        s.Boden[e].assign(3752, 0.0F);
        s.Plateau[e].assign(3752, 0.0F);
        s.Integral[e].assign(3752, 0.0F);
    }
    s.Slots_Boden.assign(23, std::vector<float>(3752, 0.0F));
    s.Slots_Plateau.assign(221, std::vector<float>(3752, 0.0F));
    return s;
}

void Integral_und_Maxima(Stoffergebnis& s, int Tag) {
    const std::size_t d = static_cast<std::size_t>(Tag);
    const std::size_t Jahr = d / 365 + 1;
    for (std::size_t e = 0; e <= 1; ++e) {
        const double heute = static_cast<double>(s.Boden[e][d]);
        const double gestern = static_cast<double>(s.Boden[e][d - 1]);
        s.Integral[e][d] = einfach((heute + gestern) / 2 + static_cast<double>(s.Integral[e][d - 1]));
        if (s.Plateau[e][d] > s.Maximum_Plateautiefe[e]) {
            s.Maximum_Plateautiefe[e] = s.Plateau[e][d];
            s.Maximumtag_Plateautiefe[e] = Tag;
        }
        if (s.Plateau[e][d] > s.Jahresmaximum[e][Jahr]) {
            s.Jahresmaximum[e][Jahr] = s.Plateau[e][d];
            s.Maximumtag_Plateautiefe[e] = Tag;
        }
        if (s.Boden[e][d] > s.Maximum_Bodentiefe[e]) {
            s.Maximum_Bodentiefe[e] = s.Boden[e][d];
            s.Maximumtag_Bodentiefe[e] = Tag;
        }
    }
}

void berechne_TWA(const Lage& l, Stoffergebnis& s) {
    if (l.p.TWA_Zeiten > 1) unmoeglich("unknown list of averaging windows");
    const std::size_t Anzahl = l.p.TWA_Zeiten == 1 ? 10 : 12;
    for (std::size_t e = 0; e <= 1; ++e) {
        for (std::size_t j = 1; j <= Anzahl; ++j) {
            s.TWA_Starttag[e][j] = 0;
            s.TWA_Maximum[e][j] = 0;
            const float TWA_Tage = einfach(l.p.TWA_Zeiten == 1 ? l.p.TWA.EU[j - 1] : l.p.TWA.Monat[j - 1]);
            const double L = static_cast<double>(TWA_Tage);
            if (L <= 0) unmoeglich("averaging window of 0 days");
            const long n = gerundet(3649 - L);
            for (long d = 0; d <= n; ++d) {
                const std::size_t Ende = static_cast<std::size_t>(gerundet(static_cast<double>(d) + L));
                const double bis = static_cast<double>(s.Integral[e][Ende]);
                const double von = static_cast<double>(s.Integral[e][static_cast<std::size_t>(d)]);
                const float v = einfach((bis - von) / L);
                if (v > s.TWA_Maximum[e][j]) {
                    s.TWA_Maximum[e][j] = v;
                    s.TWA_Starttag[e][j] = static_cast<int>(d);
                }
            }
        }
    }
}

Studienergebnis rechne(const Laufparameter& p, const Eingabe& e, int i_studie, const std::vector<Klimatag>& Klima) {
    if (i_studie < 0 || i_studie > 5) unmoeglich("no such study");
    if (p.Bodendichte == 0 || p.Bodentiefe == 0 || p.Plateautiefe == 0 || p.Feldkapazitaet == 0)
        unmoeglich("soil density, depth, tillage depth or field capacity of 0");
    if (p.Separate_Rueckstaende > 2 || p.Klimamodus > 1 || p.Einheit > 1) unmoeglich("unknown option");

    Studienergebnis Ergebnis;
    for (std::size_t m = 0; m <= 1; ++m) {
        Ergebnis.Bildung_Boden[m].assign(3752, 0.0F);
        Ergebnis.Bildung_Plateau[m].assign(3752, 0.0F);
    }
    Lage l{p, e, i_studie, Klima, Ergebnis};
    Lade_Applikationen(l);
    if (e.Berechnungsmodus > 3) return Ergebnis;

    const int letzte_Substanz = e.Berechnungsmodus == 0 ? 0 : (e.Berechnungsmodus == 1 ? 1 : 2);
    for (int i_substanz = 0; i_substanz <= letzte_Substanz; ++i_substanz) {
        const bool zweiter_der_Folge = i_substanz == 2 && e.Berechnungsmodus == 3;
        Stoffergebnis s = i_substanz == 0 ? Berechnung_Wirkstoff(l) : Berechnung_Metabolit(l, i_substanz, zweiter_der_Folge);
        berechne_Plateau(l, s, i_substanz);
        berechne_TWA(l, s);
        Ergebnis.Stoffe.push_back(std::move(s));
    }
    return Ergebnis;
}

}  // namespace varnok::referenz
