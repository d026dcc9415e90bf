#include "exposure/plateau.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/tageswerte.h"

namespace varnok {
namespace {

constexpr double Toleranz = 1E-7;       // of the ratio of two yearly peaks
constexpr double Einzelrundung = 1E-5;  // how far rounding of the peaks may move that ratio under linear growth

constexpr const char* vom_Endplateau = "% of the final plateau";

// The plateau of one compound, study and endpoint.
struct Plateauplatz {
    Plateauplatz(Ergebnisspeicher& s, std::size_t e, std::size_t st, std::size_t c)
        : Jahresmaximum(s.Jahresmaximum[e][st][c]),
          Wert(s.Plateauwert[e][st][c]),
          Zuwachs(s.Plateauzuwachs[e][st][c]),
          Text(s.Plateautext[e][st][c]),
          Prozent(s.Plateauprozent[e][st][c]),
          Jahr(s.Plateaujahr[e][st][c]) {}

    double Peak(std::size_t j) const { return static_cast<double>(Jahresmaximum[j]); }

    const std::array<float, Jahre + 1>& Jahresmaximum;
    float& Wert;
    double& Zuwachs;
    std::string& Text;
    double& Prozent;
    float& Jahr;
};

void setze_Wert(Plateauplatz& p, double Plateau, const Lauf& l) {
    const auto Wert = static_cast<float>(Plateau);
    if (!std::isfinite(Wert)) {
        melde_unmoegliche_Rechnung("final plateau of " + Stoffname(l.Felder, l.i_substanz) + " = " + allgemeine_Zahl(Plateau),
                                   {{}, 0, {}, l.i_studie, l.i_substanz});
    }
    p.Wert = Wert;
}

void setze_Prozent(Plateauplatz& p, double Prozent) {
    p.Prozent = gerundet(Prozent, 0);
    p.Text = feste_Zahl(Prozent, 0) + vom_Endplateau;
}

double erreichter_Anteil(const Plateauplatz& p) { return 100 * p.Zuwachs / static_cast<double>(p.Wert); }

void setze_grenzenlos(Plateauplatz& p, Lauf& l) {
    setze_Wert(p, p.Zuwachs, l);
    setze_Prozent(p, 0);
    const std::string Warnung = "The residues of " + Stoffname(l.Felder, l.i_substanz) +
                                " grow without limit: there is no final plateau. The growth over 10 years is shown instead.";
    if (std::find(l.Warnungen.begin(), l.Warnungen.end(), Warnung) == l.Warnungen.end()) l.Warnungen.push_back(Warnung);
}

// Estimate from the yearly peaks: those of years 9 and 10 lie on a curve that approaches the plateau.
void schaetze(Plateauplatz& p, Lauf& l) {
    if (!(p.Zuwachs > 0)) {
        p.Jahr = 10;
        p.Wert = 0;
        setze_Prozent(p, 100);
        return;
    }
    const double r = p.Peak(9) > 0 ? p.Peak(10) / p.Peak(9) : HUGE_VAL;
    if (r >= 10.0 / 9.0 - Einzelrundung) {
        setze_grenzenlos(p, l);
        return;
    }
    const bool ueberschritten = r <= 1 - Toleranz;  // the plateau has been reached and passed
    const double P = ueberschritten ? p.Peak(9) : finde_maximales_Plateau(p.Jahresmaximum[9], p.Jahresmaximum[10], 9, 10);
    setze_Wert(p, P - p.Peak(1), l);  // the annual series brings the peak of year 1 in
    setze_Prozent(p, p.Wert == 0 ? 100 : erreichter_Anteil(p));
}

// Year in which a parabola through the peaks of years 8, 9 and 10 has its vertex, not before 10.
void bestimme_Plateaujahr(Plateauplatz& p) {
    const double y8 = p.Peak(8);
    const double y9 = p.Peak(9);
    const double y10 = p.Peak(10);
    const double c = (12960 * y9 - 7290 * y8 - 5832 * y10) / -162;
    const double b = (81 * y8 - 64 * y9 - 17 * c) / 72;
    const double a = (y9 - 9 * b - c) / 81;
    if (a < 0) {
        p.Jahr = static_cast<float>(Maximum(10, -b / (a + a)));
    } else if (a == 0 && b == 0) {
        p.Jahr = 10;
    }
}

// Sum of what is left of every earlier year's dose: a geometric series with the yearly factor x.
void summiere_Reihe(Plateauplatz& p, Lauf& l) {
    const Laufparameter& q = l.Felder.Parameter;
    const auto st = static_cast<std::size_t>(l.i_studie);
    const double F = (l.Speicher.Wirksame_Rate / 1000) / (q.Bodendichte * q.Plateautiefe / 10) * Einheitenfaktor(q.Einheit);
    const double k = q.k_SFO[0][st] * std::pow(q.Q10[0][st], (q.Szenariotemperatur - q.TRef[0][st]) / 10);
    const double x = Maximum(std::exp(-Tage_pro_Jahr * k), 1E-30);  // keeps the plateau above 0 for fast decay
    bestimme_Plateaujahr(p);
    if (x >= 1 && F > 0) {
        setze_grenzenlos(p, l);
        return;
    }
    const double Plateau = F > 0 ? F * x / (1 - x) : 0;
    setze_Wert(p, Plateau, l);
    if (p.Zuwachs == 0) p.Zuwachs = Plateau;
    setze_Prozent(p, p.Wert == 0 ? 100 : Minimum(100, erreichter_Anteil(p)));
}

// Whether the yearly loss factor of the compound is constant and known.
bool geschlossen(const Laufparameter& p, std::size_t st, std::size_t c) {
    const bool konstant = p.Klimamodus == konstante_Temperatur || (p.Q10[0][st] == 1 && p.Walker[0][st] == 0);
    return c == 0 && p.Kinetik[0][st] == SFO && konstant;
}

double Modellverhaeltnis(double k, double t_a, double t_b) { return std::expm1(-k * t_b) / std::expm1(-k * t_a); }

// Where the model's ratio, which falls from t_b/t_a to 1 with growing k, takes the value m.
double loese_Verhaeltnis(double m, double t_a, double t_b) {
    double unten = std::log(1E-12);
    double oben = std::log(1E3);
    for (int i = 0; i < 100; ++i) {
        const double Mitte = (unten + oben) / 2;
        if (Mitte == unten || Mitte == oben) break;  // nothing lies between
        (Modellverhaeltnis(std::exp(Mitte), t_a, t_b) > m ? unten : oben) = Mitte;
    }
    return std::exp((unten + oben) / 2);
}

}  // namespace

double finde_maximales_Plateau(float y_a, float y_b, double t_a, double t_b) {
    const double r = static_cast<double>(y_b) / static_cast<double>(y_a);
    double k = 0.001;
    const double m_Anfang = Modellverhaeltnis(k, t_a, t_b);
    double m = m_Anfang;
    if (std::abs(r - m_Anfang) >= Toleranz) {
        // The iteration moves k in one direction and stops on the side of r that it comes from.
        m = r + std::copysign(Toleranz, m_Anfang - r);
        k = loese_Verhaeltnis(m, t_a, t_b);
    }
    k = m / r * k;  // the iteration's last round has updated k before it stops
    return static_cast<double>(y_a) / -std::expm1(-k * t_a);
}

void berechne_Plateau(Lauf& l) {
    const auto st = static_cast<std::size_t>(l.i_studie);
    const auto c = static_cast<std::size_t>(l.i_substanz);
    for (const Endpunktart e : alle_Endpunkte) {
        Plateauplatz p(l.Speicher, e, st, c);
        p.Zuwachs = Maximum(0, p.Peak(10) - p.Peak(1));
        if (geschlossen(l.Felder.Parameter, st, c)) {
            // The closed series ends the routine: pore water keeps a background of 0.
            summiere_Reihe(p, l);
            return;
        }
        schaetze(p, l);
    }
}

}  // namespace varnok
