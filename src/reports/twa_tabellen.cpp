#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "exposure/ergebnistabelle.h"
#include "reports/berichtstext.h"
#include "reports/berichtswoerter.h"
#include "reports/textaufbau.h"
#include "run/bezeichnungen.h"

namespace varnok {
namespace {

constexpr double unsicher_unter = 50;  // % of the final plateau

// The results of one compound as a report tells them, for the endpoint and the crop rotation of the view.
class Stoffbericht {
public:
    Stoffbericht(const Darstellung& d, int i_substanz)
        : Wort(Endpunktnamen[d.Sicht.Endpunkt]),
          Einheit("(" + std::string(Konzentrationseinheit(d.Vorgabe().Parameter.Einheit, d.Sicht.Endpunkt)) + ")"),
          Jahre_je_Frucht(Anbaujahre(d.Sicht.Fruchtwechsel)),
          Fenster(d.Werte(d.Sicht.Studie_Index, i_substanz).TWA.size()),
          Studien(d.Namen.Studie),
          d_(d),
          p_(d.Vorgabe().Parameter),
          c_(i_substanz) {}

    int Studienzahl() const { return static_cast<int>(Studien.size()); }
    std::string Z(double Wert) const { return Formatiere_Zahl(Wert, false, true, p_.Einheit); }
    std::string Bodentiefe() const { return allgemeine_Zahl(p_.Bodentiefe); }
    std::string Plateautiefe() const { return allgemeine_Zahl(p_.Plateautiefe); }
    std::string Bodendichte() const { return allgemeine_Zahl(p_.Bodendichte); }

    const Endpunktergebnis& Werte(int st) const { return d_.Werte(st, c_); }
    const Fensterergebnis& TWA(int st, std::size_t w) const { return Werte(st).TWA.at(w); }

    double Maximum(int st) const { return static_cast<double>(Werte(st).Maximum_Bodentiefe); }
    int Maximumtag(int st) const { return Werte(st).Maximumtag_Bodentiefe; }
    std::string Tagangabe(int st) const { return " occurring on day " + std::to_string(Maximumtag(st)); }
    double Hintergrund(int st) const { return static_cast<double>(Werte(st).Plateauwert); }
    // A yearly value with the background of the crop rotation on top.
    double mit_Hintergrund(int st, float Jahreswert) const {
        return Ansichtswert(Werte(st).Plateauwert, Anreicherung, d_.Sicht.Fruchtwechsel, Jahreswert);
    }
    std::string Laengentext(std::size_t w) const {
        return Formatiere_Zahl(static_cast<double>(TWA(d_.Sicht.Studie_Index, w).Tage), true, true, Milligramm);
    }

    // Peak of the first year in the tillage depth, in % of what the first application could have become at most
    // in the soil depth. The formula is that of soil for pore water, too.
    double Anteil_am_theoretischen_Maximum(int st) const {
        const Ergebnis& r = d_.Studie(st);
        const double M = Molmasse(*r.Vorgabe, c_).Zahl();
        const Zahlwert& P = r.Vorgabe->Molmasse_Wirkstoff;
        const auto Rate = static_cast<double>(r.erste_Rate);
        const double T = Einheitenfaktor(p_.Einheit) * ((M / P.Zahl()) * (Rate / 1000)) / (p_.Bodentiefe * p_.Bodendichte / 10);
        if (!std::isfinite(T)) {
            melde_unmoegliche_Rechnung("Molecular mass (g/mol) = " + P.Text(), {{}, 0, "Molmasse", st, 0});
        }
        return T == 0 ? 0 : static_cast<double>(Werte(st).Jahresmaximum[0]) * 100 / T;
    }

    // Whether the estimated plateau lies far above what ten years showed. A plateau under SFO is no estimate.
    bool Plateau_unsicher(int st) const {
        const Ergebnis& r = d_.Studie(st);
        const auto& Kinetik = r.Vorgabe->Parameter.Kinetik[static_cast<std::size_t>(c_)];
        return Werte(st).Plateauprozent < unsicher_unter && Kinetik[static_cast<std::size_t>(r.i_studie)] != SFO;
    }

    const std::string Wort;
    const std::string Einheit;
    const int Jahre_je_Frucht;  // 1 every year, 2 every 2nd, 3 every 3rd
    const std::size_t Fenster;  // number of averaging windows
    const std::vector<std::string>& Studien;

private:
    const Darstellung& d_;
    const Laufparameter& p_;
    int c_;
};

// Footnote to the actual concentrations, with its mark and the end of the wording for a later peak.
std::string Fussnote(const char* Marke, int Maximumtag, const char* Schluss) {
    const std::string davor = std::string("(") + Marke + " PECact values ";
    if (Maximumtag > 0) return davor + " are related to the time after the maximum concentration)" + Schluss;
    return davor + "are related to the time after the first application)";
}

enum class Blockart { Jahr, Anreicherung };

void haenge_Fensterzeilen_an(Textaufbau& t, const Stoffbericht& b, int st, Blockart a, const char* Kopf) {
    t.Text({"Time(d)\t", Kopf, "\tPECtwa\tBegin TWAframe(d)\tEnd TWAframe(d)"}, 1);
    const auto Zelle = [&](float Wert) {
        return b.Z(a == Blockart::Jahr ? static_cast<double>(Wert) : b.mit_Hintergrund(st, Wert));
    };
    for (std::size_t w = 0; w < b.Fenster; ++w) {
        const Fensterergebnis& f = b.TWA(st, w);
        t.Text({b.Laengentext(w), "\t", Zelle(f.aktuell), "\t", Zelle(f.Maximum), "\t", std::to_string(f.Starttag), "\t",
                allgemeine_Zahl(static_cast<float>(f.Starttag) + f.Tage)},
               1);
    }
}

void haenge_Jahr_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name, int st, bool Metabolit) {
    t.Text({Berichtswort::Jahr}, 2);
    t.Text({"Maximum annual ", b.Wort, " concentration for ", Name, " over ", b.Bodentiefe(), " cm", b.Einheit, ": \t",
            b.Z(b.Maximum(st)), b.Tagangabe(st), Metabolit ? "^" : ""},
           1);
    if (Metabolit) {
        t.Text({"(^ This is ", feste_Zahl(b.Anteil_am_theoretischen_Maximum(st), 2),
                " % of the theoretical maximum concentration of the metabolite)"},
               2);
    }
    t.Enden(1);
    t.Text({"Calculated time dependent ", b.Wort, " concentrations over ", b.Bodentiefe(), " cm for ", Name, " after one year ",
            b.Einheit},
           2);
    haenge_Fensterzeilen_an(t, b, st, Blockart::Jahr, "PECact*");
    t.Text({Fussnote("*", b.Maximumtag(st), "")}, 3);
}

void haenge_Hintergrund_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name, int st) {
    constexpr const char* Luecke = ":            \t";
    t.Text({Berichtswort::Hintergrund}, 2);
    t.Text({"Final Background concentration in ", b.Wort, " for ", Name, " over ", b.Plateautiefe(), " cm", b.Einheit, Luecke,
            b.Z(b.Hintergrund(st)), "**"},
           2);
    t.Text({"(**  according to the estimation ", b.Werte(st).Plateautext, " was reached after 10 years without crop rotation)"},
           3);
    t.Zeile("Reduction factor to account for crop rotation: ", std::to_string(b.Jahre_je_Frucht), 2);
    t.Text({"Final Background concentration in ", b.Wort, " including crop rotation", b.Einheit, Luecke,
            b.Z(b.Hintergrund(st) / b.Jahre_je_Frucht)},
           4);
}

void haenge_Anreicherung_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name, int st) {
    const std::string Hinweis =
        "a tillage depth of " + b.Plateautiefe() + " cm was considered for calculating the background concentration)";
    t.Text({Berichtswort::Anreicherung}, 2);
    t.Text({"Maximum ", b.Wort, " concentration for ", Name, " over ", b.Bodentiefe(), " cm considering accumulation* ",
            b.Einheit, "\t", b.Z(b.mit_Hintergrund(st, b.Werte(st).Maximum_Bodentiefe))},
           2);
    t.Text({"(* ", Hinweis}, 2);
    t.Text({"Calculated time dependent ", b.Wort, " concentrations  over ", b.Bodentiefe(), " cm for ", Name, b.Einheit,
            " considering accumulation*"},
           2);
    haenge_Fensterzeilen_an(t, b, st, Blockart::Anreicherung, "PECact**");
    t.Text({"(*  ", Hinweis}, 1);
    t.Text({Fussnote("**", b.Maximumtag(st), "'")}, 0);
}

void haenge_Plateauwarnung_an(Textaufbau& t) {
    t.Enden(2);
    t.Text({Berichtswort::Warnungsanfang, " plateau was estimated significantly higher than the residues after 10 years."}, 1);
    t.Text(
        {"These results may not be reliable. Please check whether the separation of residues is reasonable for the simulation."},
        1);
    t.Text({"If possible select a more suitable degradation kinetics for the simulation!"}, 1);
}

// A table with one column for each study. `Wert` gives the cell of a study and its window.
template <class Zelle>
void haenge_Studientabelle_an(Textaufbau& t, const Stoffbericht& b, Zelle Wert) {
    t.Text({"Time (d)"}, 0);
    for (const std::string& Studie : b.Studien) t.Text({"\t", Studie}, 0);
    t.Enden(1);
    for (std::size_t w = 0; w < b.Fenster; ++w) {
        t.Text({b.Laengentext(w)}, 0);
        for (int st = 0; st < b.Studienzahl(); ++st) t.Text({"\t", b.Z(Wert(st, b.TWA(st, w)))}, 0);
        t.Enden(1);
    }
}

// A line for each study. `Wert` gives its text.
template <class Zeile>
void haenge_Studienzeilen_an(Textaufbau& t, const Stoffbericht& b, const char* Luecke, Zeile Wert) {
    int st = 0;
    for (const std::string& Studie : b.Studien) t.Text({Studie, b.Einheit, Luecke, Wert(st++)}, 1);
}

constexpr const char* kurze_Luecke = ": \t";
constexpr const char* lange_Luecke = ":           \t";

void haenge_Jahr_aller_Studien_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name) {
    // The number behind "over" is the soil density in this block, whatever the text says.
    const std::string ueber = " over " + b.Bodendichte() + " cm";
    t.Text({Berichtswort::Jahr}, 2);
    t.Text({"Maximum annual ", b.Wort, " concentration for ", Name, ueber}, 1);
    haenge_Studienzeilen_an(t, b, kurze_Luecke, [&](int st) { return b.Z(b.Maximum(st)) + b.Tagangabe(st); });
    t.Enden(1);
    t.Text({" Calculated PECact* in soil", ueber, " for ", ohne_Randblanks(Name), b.Einheit}, 2);
    haenge_Studientabelle_an(t, b, [](int, const Fensterergebnis& f) { return static_cast<double>(f.aktuell); });
    t.Text({"(* PECact values are related to the time after the maximum concentration)"}, 2);
    t.Text({" Calculated time weighted average (TWA) concentrations in soil", ueber, " for ", Name, b.Einheit}, 2);
    haenge_Studientabelle_an(t, b, [](int, const Fensterergebnis& f) { return static_cast<double>(f.Maximum); });
    t.Enden(6);
}

void haenge_Hintergrund_aller_Studien_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name) {
    const std::string Kopf = "Final background concentration in " + b.Wort + " for " + Name + " over " + b.Plateautiefe() + " cm";
    t.Text({Berichtswort::Hintergrund}, 3);
    t.Text({Kopf}, 1);
    haenge_Studienzeilen_an(t, b, lange_Luecke, [&](int st) { return b.Z(b.Hintergrund(st)); });
    t.Enden(2);
    t.Zeile("Reduction factor to account for crop rotation: ", std::to_string(b.Jahre_je_Frucht), 3);
    t.Text({Kopf, " including crop rotation"}, 1);
    haenge_Studienzeilen_an(t, b, lange_Luecke, [&](int st) { return b.Z(b.Hintergrund(st) / b.Jahre_je_Frucht); });
    t.Enden(3);
}

void haenge_Anreicherung_aller_Studien_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name) {
    const std::string Hinweis =
        "a tillage depth of " + b.Plateautiefe() + " cm was considered for calculating the background concentration)";
    t.Text({Berichtswort::Anreicherung}, 2);
    t.Text({"Maximum annual concentration in ", b.Wort, " for ", Name, " over ", b.Bodentiefe(), " cm considering accumulation*"},
           1);
    haenge_Studienzeilen_an(t, b, kurze_Luecke,
                            [&](int st) { return b.Z(b.mit_Hintergrund(st, b.Werte(st).Maximum_Bodentiefe)) + b.Tagangabe(st); });
    t.Text({"(* ", Hinweis}, 2);
    t.Text({" Calculated PECact** in soil over ", b.Bodentiefe(), " cm for ", ohne_Randblanks(Name), b.Einheit,
            " considering accumulation*"},
           2);
    haenge_Studientabelle_an(t, b, [&](int st, const Fensterergebnis& f) { return b.mit_Hintergrund(st, f.aktuell); });
    t.Text({"(*   ", Hinweis}, 1);
    t.Text({"(** PECact values are related to the time after the maximum concentration)"}, 2);
}

}  // namespace

void erstelle_Standardbericht_TWA_Tabelle(std::string& Berichtstext, const std::string& Name, const Darstellung& d,
                                          int i_substanz) {
    const Stoffbericht b(d, i_substanz);
    const int st = d.Sicht.Studie_Index;
    Textaufbau t(Berichtstext);
    t.Text({Berichtswort::Stoffkopf, Name}, 2);
    haenge_Jahr_an(t, b, Name, st, i_substanz > 0);
    haenge_Hintergrund_an(t, b, Name, st);
    haenge_Anreicherung_an(t, b, Name, st);
    if (b.Plateau_unsicher(st)) haenge_Plateauwarnung_an(t);
    t.Enden(3);
}

void erstelle_erweiterten_Bericht_TWA_Tabelle(std::string& Berichtstext, const std::string& Name, const Darstellung& d,
                                              int i_substanz) {
    const Stoffbericht b(d, i_substanz);
    Textaufbau t(Berichtstext);
    t.Text({Berichtswort::Stoffkopf, Name}, 2);
    haenge_Jahr_aller_Studien_an(t, b, Name);
    haenge_Hintergrund_aller_Studien_an(t, b, Name);
    haenge_Anreicherung_aller_Studien_an(t, b, Name);
}

}  // namespace varnok
