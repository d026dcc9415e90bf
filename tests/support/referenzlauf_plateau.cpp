// The final plateau: a geometric series where the yearly loss is constant, else an estimate from the
// peaks of years 9 and 10.

#include <cmath>
#include <limits>

#include "base/zahlen.h"
#include "support/referenzlauf_intern.h"

namespace varnok::referenz {

namespace {

double weit(float Zahl) { return static_cast<double>(Zahl); }

const char* const Textende = "% of the final plateau";

// Rounds that the search may take one by one; beyond that its end is computed directly.
constexpr long long kurze_Suche = 2'000'000;

// Ratio of the model's peaks.
double Modellverhaeltnis(double k, double t_a, double t_b) { return std::expm1(-k * t_b) / std::expm1(-k * t_a); }

// Where the search ends: k runs in one direction from 0.001, so it ends where the ratio first comes
// within 1E-7 of r. That k is found by bisection and updated once more, as the search would.
double Plateau_direkt(float y_a, float y_b, double t_a, double t_b) {
    const double r = weit(y_b) / weit(y_a);
    const double Anfang = 0.001;
    const bool steigend = Modellverhaeltnis(Anfang, t_a, t_b) > r;
    const double Ziel = steigend ? r + 1e-7 : r - 1e-7;
    double unten = steigend ? Anfang : 1e-12;
    double oben = steigend ? 100.0 : Anfang;
    for (int i = 0; i < 200; ++i) {
        const double Mitte = (unten + oben) / 2;
        (Modellverhaeltnis(Mitte, t_a, t_b) > Ziel ? unten : oben) = Mitte;
    }
    const double k = Modellverhaeltnis(unten, t_a, t_b) / r * unten;
    return weit(y_a) / -std::expm1(-k * t_a);
}

std::string Name(const Eingabe& e, int i_substanz) {
    return i_substanz == 0 ? e.Name_Wirkstoff : (i_substanz == 1 ? e.Name_Met_1 : e.Name_Met_2);
}

void kein_Plateau(Stoffergebnis& s, std::size_t e) {
    s.Plateauwert[e] = einfach(s.Plateauzuwachs[e]);
    s.Plateautext[e] = std::string("0") + Textende;
}

void warnen(Lage& l, int i_substanz) {
    l.Ergebnis.Warnungen.push_back("The residues of " + Name(l.e, i_substanz) +
                                   " grow without limit: there is no final plateau. The growth over 10 years is shown instead.");
}

// Returns false if there is no final plateau.
bool schaetzen(Stoffergebnis& s, std::size_t e) {
    if (!(s.Plateauzuwachs[e] > 0)) {
        s.Plateaujahr[e] = 10;
        s.Plateautext[e] = std::string("100") + Textende;
        s.Plateauwert[e] = einfach(s.Plateauzuwachs[e]);
        return true;
    }
    const float y9 = s.Jahresmaximum[e][9];
    const float y10 = s.Jahresmaximum[e][10];
    const double r = weit(y10) / weit(y9);  // a ninth peak of 0 makes it infinite
    if (r >= 10.0 / 9.0 - 1e-5) {
        kein_Plateau(s, e);
        return false;
    }
    double P = weit(y9);
    if (r > 1 - 1e-7) {
        P = plateau_schleife(y9, y10, 9, 10, kurze_Suche);
        if (std::isnan(P)) P = Plateau_direkt(y9, y10, 9, 10);
    }
    s.Plateauwert[e] = einfach(P - weit(s.Jahresmaximum[e][1]));
    if (s.Plateauwert[e] == 0) unmoeglich("plateau of 0 behind a growing peak");
    s.Plateautext[e] = feste_Zahl(100 * s.Plateauzuwachs[e] / weit(s.Plateauwert[e]), 0) + Textende;
    return true;
}

void Plateaujahr(Stoffergebnis& s, std::size_t e) {
    const double y8 = weit(s.Jahresmaximum[e][8]);
    const double y9 = weit(s.Jahresmaximum[e][9]);
    const double y10 = weit(s.Jahresmaximum[e][10]);
    const double c = (12960 * y9 - 7290 * y8 - 5832 * y10) / -162;
    const double b = (81 * y8 - 64 * y9 - 17 * c) / 72;
    const double a = (y9 - 9 * b - c) / 81;
    if (a < 0)
        s.Plateaujahr[e] = einfach(Maximum(10, -b / (a + a)));
    else if (a == 0 && b == 0)
        s.Plateaujahr[e] = 10;
}

// Total soil only: pore water keeps the zeros that the stores started with.
bool geschlossen(const Lage& l, Stoffergebnis& s) {
    const double F = (l.Ergebnis.Wirksame_Rate / 1000) / (l.p.Bodendichte * l.p.Plateautiefe / 10) *
                     std::pow(10.0, 3.0 * static_cast<int>(l.p.Einheit));
    const double k = l.von(l.p.k_SFO, 0) * std::pow(l.von(l.p.Q10, 0), (l.p.Szenariotemperatur - l.von(l.p.TRef, 0)) / 10);
    const double x = Maximum(std::exp(-365 * k), 1e-30);
    bool begrenzt = true;
    if (x >= 1 && l.Ergebnis.Wirksame_Rate > 0) {
        kein_Plateau(s, 0);
        begrenzt = false;
    } else {
        const double Plateau = endlich(F == 0 ? 0.0 : F * x / (1 - x), "final plateau");
        if (s.Plateauzuwachs[0] == 0) s.Plateauzuwachs[0] = Plateau;
        s.Plateauwert[0] = einfach(Plateau);
        const double Anteil = s.Plateauwert[0] == 0 ? 100.0 : Minimum(100, 100 * s.Plateauzuwachs[0] / weit(s.Plateauwert[0]));
        s.Plateautext[0] = feste_Zahl(Anteil, 0) + Textende;
    }
    Plateaujahr(s, 0);
    return begrenzt;
}

}  // namespace

double plateau_schleife(float y_a, float y_b, double t_a, double t_b, long long max_rounds) {
    const double r = weit(y_b) / weit(y_a);
    double k = 0.001;
    long long Runde = 0;
    double m = 0;
    do {
        if (max_rounds > 0 && Runde == max_rounds) return std::numeric_limits<double>::quiet_NaN();
        ++Runde;
        m = (1 - std::exp(-k * t_b)) / (1 - std::exp(-k * t_a));
        k = (m / r) * k;
    } while (!(std::fabs(r - m) < 1e-7));
    return weit(y_a) / (1 - std::exp(-k * t_a));
}

void berechne_Plateau(Lage& l, Stoffergebnis& s, int i_substanz) {
    const bool konstanter_Verlust =
        l.p.Klimamodus == 0 || (l.von(l.p.Q10, i_substanz) == 1 && l.von(l.p.Walker, i_substanz) == 0);
    const bool geschlossene_Reihe =
        i_substanz == 0 && l.p.Kinetik[0][static_cast<std::size_t>(l.i_studie)] == SFO && konstanter_Verlust;
    bool begrenzt = true;
    for (std::size_t e = 0; e <= 1; ++e) {
        s.Plateauzuwachs[e] = Maximum(0, weit(s.Jahresmaximum[e][10]) - weit(s.Jahresmaximum[e][1]));
        if (geschlossene_Reihe) {
            begrenzt = geschlossen(l, s);
            break;
        }
        if (!schaetzen(s, e)) begrenzt = false;
    }
    if (!begrenzt) warnen(l, i_substanz);
}

}  // namespace varnok::referenz
