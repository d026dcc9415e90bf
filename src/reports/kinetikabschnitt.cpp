#include <array>
#include <cmath>
#include <span>

#include "reports/berichtsabschnitte.h"

namespace varnok {
namespace {

// Places of a value in the tables: compound and study.
struct Platz {
    std::size_t c;
    std::size_t st;
};

Platz Platz_von(const Ergebnis& r, int i_substanz) {
    return {static_cast<std::size_t>(i_substanz), static_cast<std::size_t>(r.i_studie)};
}

using Groesse = double (*)(const Laufparameter&, Platz);

// A line of a kinetics block; the two reports spell some labels in their own way.
struct Kinetikzeile {
    const char* Standard;
    const char* erweitert;
    Groesse Wert;
    bool DT50 = false;  // the value is a rate constant, shown as half-life
};

constexpr Groesse k_SFO = [](const Laufparameter& p, Platz i) { return p.k_SFO[i.c][i.st]; };
constexpr Groesse k1_DFOP = [](const Laufparameter& p, Platz i) { return p.k1_DFOP[i.c][i.st]; };
constexpr Groesse k2_DFOP = [](const Laufparameter& p, Platz i) { return p.k2_DFOP[i.c][i.st]; };
constexpr Groesse g_DFOP = [](const Laufparameter& p, Platz i) { return p.g_DFOP[i.c][i.st]; };
constexpr Groesse alpha_FOMC = [](const Laufparameter& p, Platz i) { return p.alpha_FOMC[i.st]; };
constexpr Groesse beta_FOMC = [](const Laufparameter& p, Platz i) { return p.beta_FOMC[i.st]; };
constexpr Groesse k1_HS = [](const Laufparameter& p, Platz i) { return p.k1_HS[i.st]; };
constexpr Groesse k2_HS = [](const Laufparameter& p, Platz i) { return p.k2_HS[i.st]; };
constexpr Groesse Tb_HS = [](const Laufparameter& p, Platz i) { return p.Tb_HS[i.st]; };

constexpr Kinetikzeile SFO_Zeilen[] = {{"DT50 (d):", "DT50 (d):", k_SFO, true},
                                       {"Rate constant (1/d):", "Rate constant (1/d):", k_SFO}};
constexpr Kinetikzeile DFOP_Zeilen[] = {{"DT50 1(d):", "DT50 (d):", k1_DFOP, true},
                                        {"DT50 2(d):", "DT50 (d):", k2_DFOP, true},
                                        {"Rate constant 1 (1/d):", "Rate constant 1 (1/d):", k1_DFOP},
                                        {"Rate constant 2 (1/d):", "Rate constant 2 (1/d):", k2_DFOP},
                                        {"Parameter g:", "Parameter g:", g_DFOP}};
constexpr Kinetikzeile FOMC_Zeilen[] = {{"Alpha:", "alpha(i_studie):", alpha_FOMC}, {"Beta:", "Beta:", beta_FOMC}};
constexpr Kinetikzeile HS_Zeilen[] = {{"DT50 1(d):", "DT50 (d):", k1_HS, true},
                                      {"DT50 2(d):", "DT50 (d):", k2_HS, true},
                                      {"Rate constant 1 (1/d):", "Rate constant 1 (1/d):", k1_HS},
                                      {"Rate constant 2 (1/d):", "Rate constant 2 (1/d):", k2_HS},
                                      {"Parameter Tb:", "Parameter Tb (d):", Tb_HS}};

struct Kinetikblock {
    const char* Name;
    std::span<const Kinetikzeile> Zeilen;
};
constexpr std::array<Kinetikblock, 4> Kinetikbloecke = {{{"Single First order (SFO)", SFO_Zeilen},
                                                         {"Double First Order in Parallel (DFOP)", DFOP_Zeilen},
                                                         {"First Order Multi Compartment (FOMC)", FOMC_Zeilen},
                                                         {"Hockey Stick (HS)", HS_Zeilen}}};

const Kinetikblock& Block_von(const Laufparameter& p, Platz i) { return Kinetikbloecke.at(p.Kinetik[i.c][i.st]); }

// The standard report asks `k_SFO` whatever the kinetics, the extended one the rate constant of the line.
bool zeigt_DT50(const Laufparameter& p, Platz i, const Kinetikzeile& z, Berichtsart Art) {
    return (Art == Berichtsart::Standard ? k_SFO : z.Wert)(p, i) > 0;
}

// Without degradation there is no half-life, and 0 stands for it as on the screen.
std::string DT50_Text(const char* Beschriftung, double k) { return k > 0 ? Parametertext(Beschriftung, std::log(2.0) / k) : "0"; }

void haenge_Kinetikzeilen_an(Textaufbau& t, const Laufparameter& p, Platz i, Berichtsart Art) {
    for (const Kinetikzeile& z : Block_von(p, i).Zeilen) {
        if (z.DT50 && !zeigt_DT50(p, i, z, Art)) continue;
        const char* Beschriftung = Art == Berichtsart::Standard ? z.Standard : z.erweitert;
        const double Wert = z.Wert(p, i);
        t.Zeile(Beschriftung, z.DT50 ? DT50_Text(Beschriftung, Wert) : Parametertext(Beschriftung, Wert));
    }
}

// What every kinetics is corrected by.
void haenge_Korrektur_an(Textaufbau& t, const Laufparameter& p, Platz i, const char* Temperatur) {
    t.Zeile("Q10-factor:", Parametertext("Q10-factor:", p.Q10[i.c][i.st]));
    t.Zeile("Walker-exponent:", Parametertext("Walker-exponent:", p.Walker[i.c][i.st]));
    t.Zeile(Temperatur, Parametertext(Temperatur, p.TRef[i.c][i.st]));
    t.Enden(1);
}

constexpr const char* Bezugstemperatur = "Ref. temperature (°C):";

void haenge_Stoff_an(Textaufbau& t, const Darstellung& d, int c) {
    const Laufparameter& p = d.Vorgabe().Parameter;
    const Platz i = Platz_von(d.Studie(), c);
    t.Text({"Kinetics for ", Berichtsname(d, c), ":\t", Block_von(p, i).Name}, 1);
    haenge_Kinetikzeilen_an(t, p, i, Berichtsart::Standard);
    haenge_Korrektur_an(t, p, i, Bezugstemperatur);
}

void haenge_Stoff_aller_Studien_an(Textaufbau& t, const Darstellung& d, int c) {
    const char* Temperatur = d.Vorgabe().Berechnungsmodus == nur_Wirkstoff ? "TReference (°C):" : Bezugstemperatur;
    t.Text({"Kinetics for ", Berichtsname(d, c), ":\t"}, 2);
    for (int st = 0; st < d.Namen.Studienzahl(); ++st) {
        const Ergebnis& r = d.Studie(st);
        const Laufparameter& p = r.Vorgabe->Parameter;
        const Platz i = Platz_von(r, c);
        t.Zeile("Soil study:              ", d.Namen.Studie[static_cast<std::size_t>(st)], 2);
        t.Text({Block_von(p, i).Name}, 1);
        haenge_Kinetikzeilen_an(t, p, i, Berichtsart::erweitert);
        haenge_Korrektur_an(t, p, i, Temperatur);
    }
}

}  // namespace

void haenge_Kinetik_an(Textaufbau& t, const Darstellung& d, Berichtsart Art) {
    const Stoffschema Schema = d.Vorgabe().Berechnungsmodus;
    t.Text({"DEGRADATION KINETICS PARAMETERS CONSIDERED FOR THE CALCULATION"}, 2);
    if (Art == Berichtsart::Standard) {
        t.Zeile("Soil study:              ", d.Namen.Studie.at(static_cast<std::size_t>(d.Sicht.Studie_Index)), 2);
    }
    t.Zeile("Metabolism scheme:", Schemaname(Schema), 2);
    const auto haenge_an = Art == Berichtsart::Standard ? haenge_Stoff_an : haenge_Stoff_aller_Studien_an;
    for (int c = 0; c < Anzahl_Stoffe(Schema); ++c) haenge_an(t, d, c);
}

}  // namespace varnok
