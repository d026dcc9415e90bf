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

namespace varnok {
namespace {

constexpr int Anreicherung = 2;        // the view that adds the background
constexpr double unsicher_unter = 50;  // % of the final plateau

// The results of one compound as a report tells them, for the endpoint and the crop rotation of the entry fields.
class Stoffbericht {
public:
    Stoffbericht(const Lauf& l, int i_substanz)
        : Wort(Berichtswort::Endpunkt.at(static_cast<std::size_t>(l.Felder.Endpunkt))),
          Einheit(std::string(l.Parameter.Einheit == 0 ? "(mg/" : "(µg/") + (l.Felder.Endpunkt == 1 ? "L)" : "kg)")),
          Fruchtfolge(l.Felder.Fruchtwechsel + 1),
          Fenster(Anzahl_TWA(l.Parameter.TWA_Zeiten)),
          l_(l),
          e_(static_cast<std::size_t>(l.Felder.Endpunkt)),
          c_(static_cast<std::size_t>(i_substanz)) {}

    std::string Z(double Wert) const { return Formatiere_Zahl(Wert, false, true, l_.Parameter.Einheit); }
    std::string Bodentiefe() const { return allgemeine_Zahl(l_.Parameter.Bodentiefe); }
    std::string Plateautiefe() const { return allgemeine_Zahl(l_.Parameter.Plateautiefe); }
    std::string Bodendichte() const { return allgemeine_Zahl(l_.Parameter.Bodendichte); }

    template <class T>
    const T& aus(const Ergebnistabelle<T>& Tabelle, std::size_t st) const {
        return Tabelle[e_][st][c_];
    }
    const Ergebnisspeicher& Speicher() const { return l_.Speicher; }

    float Maximum(std::size_t st) const { return aus(Speicher().Maximum_Bodentiefe, st); }
    int Maximumtag(std::size_t st) const { return aus(Speicher().Maximumtag_Bodentiefe, st); }
    std::string Tagangabe(std::size_t st) const { return " occurring on day " + std::to_string(Maximumtag(st)); }
    float PECact(std::size_t st, int w) const {
        return PECactual(l_, static_cast<int>(e_), static_cast<int>(st), static_cast<int>(c_), w);
    }
    float PECtwa(std::size_t st, int w) const { return aus(Speicher().TWA_Maximum, st)[static_cast<std::size_t>(w)]; }
    double Hintergrund(std::size_t st) const { return static_cast<double>(aus(Speicher().Plateauwert, st)); }
    // A yearly value with the background of the crop rotation on top.
    double mit_Hintergrund(std::size_t st, float Jahreswert) const {
        return Ansichtswert(aus(Speicher().Plateauwert, st), Anreicherung, Fruchtfolge - 1, Jahreswert);
    }
    float Laenge(int w) const { return Speicher().TWA_Tage[static_cast<std::size_t>(w)]; }
    std::string Laengentext(int w) const { return Formatiere_Zahl(static_cast<double>(Laenge(w)), true, true, 0); }

    // Peak of the first year in the tillage depth, in % of what the first application could have become at most
    // in the soil depth. The formula is that of soil for pore water, too.
    double Anteil_am_theoretischen_Maximum(std::size_t st) const {
        const Laufparameter& p = l_.Parameter;
        const double M = varnok::Wert(c_ == 1 ? l_.Felder.Molmasse_Met_1 : l_.Felder.Molmasse_Met_2);
        const double P = varnok::Wert(l_.Felder.Molmasse_Wirkstoff);
        const auto Rate = static_cast<double>(Speicher().Tagesrate[static_cast<std::size_t>(Speicher().Applikationstag[1])]);
        const double T = (p.Einheit == 1 ? 1000.0 : 1.0) * ((M / P) * (Rate / 1000)) / (p.Bodentiefe * p.Bodendichte / 10);
        if (!std::isfinite(T)) melde_unmoegliche_Rechnung("Molecular mass (g/mol) = " + l_.Felder.Molmasse_Wirkstoff);
        return T == 0 ? 0 : static_cast<double>(aus(Speicher().Jahresmaximum, st)[1]) * 100 / T;
    }

    // Whether the estimated plateau lies far above what ten years showed. A plateau under SFO is no estimate.
    bool Plateau_unsicher(std::size_t st) const {
        const std::string& Text = aus(Speicher().Plateautext, st);
        const std::size_t Ende = Text.find('%');
        const double Prozent = Ende == std::string::npos ? 0 : varnok::Wert(Text.substr(0, Ende));
        return Prozent < unsicher_unter && l_.Parameter.Kinetik[c_][st] > 0;
    }

    const std::string Wort;
    const std::string Einheit;
    const int Fruchtfolge;  // 1 every year, 2 every 2nd, 3 every 3rd
    const int Fenster;

private:
    const Lauf& l_;
    std::size_t e_;
    std::size_t c_;
};

// Footnote to the actual concentrations, with its mark and the end of the wording for a later peak.
std::string Fussnote(const char* Marke, int Maximumtag, const char* Schluss) {
    const std::string davor = std::string("(") + Marke + " PECact values ";
    if (Maximumtag > 0) return davor + " are related to the time after the maximum concentration)" + Schluss;
    return davor + "are related to the time after the first application)";
}

enum class Blockart { jaehrlich, angereichert };

void haenge_Fensterzeilen_an(Textaufbau& t, const Stoffbericht& b, std::size_t st, Blockart a, const char* Kopf) {
    t.Text({"Time(d)\t", Kopf, "\tPECtwa\tBegin TWAframe(d)\tEnd TWAframe(d)"}, 1);
    const auto Zelle = [&](float Wert) {
        return b.Z(a == Blockart::jaehrlich ? static_cast<double>(Wert) : b.mit_Hintergrund(st, Wert));
    };
    for (int w = 1; w <= b.Fenster; ++w) {
        const int Start = b.aus(b.Speicher().TWA_Starttag, st)[static_cast<std::size_t>(w)];
        t.Text({b.Laengentext(w), "\t", Zelle(b.PECact(st, w)), "\t", Zelle(b.PECtwa(st, w)), "\t", std::to_string(Start), "\t",
                allgemeine_Zahl(static_cast<float>(Start) + b.Laenge(w))},
               1);
    }
}

void haenge_Jahr_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name, std::size_t st, bool Metabolit) {
    t.Text({Berichtswort::Jahr}, 2);
    t.Text({"Maximum annual ", b.Wort, " concentration for ", Name, " over ", b.Bodentiefe(), " cm", b.Einheit, ": \t",
            b.Z(static_cast<double>(b.Maximum(st))), b.Tagangabe(st), Metabolit ? "^" : ""},
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
    haenge_Fensterzeilen_an(t, b, st, Blockart::jaehrlich, "PECact*");
    t.Text({Fussnote("*", b.Maximumtag(st), "")}, 3);
}

void haenge_Hintergrund_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name, std::size_t st) {
    constexpr const char* Luecke = ":            \t";
    t.Text({Berichtswort::Hintergrund}, 2);
    t.Text({"Final Background concentration in ", b.Wort, " for ", Name, " over ", b.Plateautiefe(), " cm", b.Einheit, Luecke,
            b.Z(b.Hintergrund(st)), "**"},
           2);
    t.Text({"(**  according to the estimation ", b.aus(b.Speicher().Plateautext, st),
            " was reached after 10 years without crop rotation)"},
           3);
    t.Zeile("Reduction factor to account for crop rotation: ", std::to_string(b.Fruchtfolge), 2);
    t.Text({"Final Background concentration in ", b.Wort, " including crop rotation", b.Einheit, Luecke,
            b.Z(b.Hintergrund(st) / b.Fruchtfolge)},
           4);
}

void haenge_Anreicherung_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name, std::size_t st) {
    const std::string Hinweis =
        "a tillage depth of " + b.Plateautiefe() + " cm was considered for calculating the background concentration)";
    t.Text({Berichtswort::Anreicherung}, 2);
    t.Text({"Maximum ", b.Wort, " concentration for ", Name, " over ", b.Bodentiefe(), " cm considering accumulation* ",
            b.Einheit, "\t", b.Z(b.mit_Hintergrund(st, b.Maximum(st)))},
           2);
    t.Text({"(* ", Hinweis}, 2);
    t.Text({"Calculated time dependent ", b.Wort, " concentrations  over ", b.Bodentiefe(), " cm for ", Name, b.Einheit,
            " considering accumulation*"},
           2);
    haenge_Fensterzeilen_an(t, b, st, Blockart::angereichert, "PECact**");
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

// A table with one column for each study. `Wert` gives the cell of a study and a window.
template <class Zelle>
void haenge_Studientabelle_an(Textaufbau& t, const Stoffbericht& b, const std::vector<std::string>& Studien, Zelle Wert) {
    t.Text({"Time (d)"}, 0);
    for (const std::string& Studie : Studien) t.Text({"\t", Studie}, 0);
    t.Enden(1);
    for (int w = 1; w <= b.Fenster; ++w) {
        t.Text({b.Laengentext(w)}, 0);
        for (std::size_t st = 0; st < Studien.size(); ++st) t.Text({"\t", b.Z(Wert(st, w))}, 0);
        t.Enden(1);
    }
}

// A line for each study. `Wert` gives its text.
template <class Zeile>
void haenge_Studienzeilen_an(Textaufbau& t, const Stoffbericht& b, const std::vector<std::string>& Studien, const char* Luecke,
                             Zeile Wert) {
    for (std::size_t st = 0; st < Studien.size(); ++st) t.Text({Studien[st], b.Einheit, Luecke, Wert(st)}, 1);
}

constexpr const char* kurze_Luecke = ": \t";
constexpr const char* lange_Luecke = ":           \t";

void haenge_Jahr_aller_Studien_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name,
                                  const std::vector<std::string>& Studien) {
    // The number behind "over" is the soil density in this block, whatever the text says.
    const std::string ueber = " over " + b.Bodendichte() + " cm";
    t.Text({Berichtswort::Jahr}, 2);
    t.Text({"Maximum annual ", b.Wort, " concentration for ", Name, ueber}, 1);
    haenge_Studienzeilen_an(t, b, Studien, kurze_Luecke,
                            [&](std::size_t st) { return b.Z(static_cast<double>(b.Maximum(st))) + b.Tagangabe(st); });
    t.Enden(1);
    t.Text({" Calculated PECact* in soil", ueber, " for ", ohne_Randblanks(Name), b.Einheit}, 2);
    haenge_Studientabelle_an(t, b, Studien, [&](std::size_t st, int w) { return static_cast<double>(b.PECact(st, w)); });
    t.Text({"(* PECact values are related to the time after the maximum concentration)"}, 2);
    t.Text({" Calculated time weighted average (TWA) concentrations in soil", ueber, " for ", Name, b.Einheit}, 2);
    haenge_Studientabelle_an(t, b, Studien, [&](std::size_t st, int w) { return static_cast<double>(b.PECtwa(st, w)); });
    t.Enden(6);
}

void haenge_Hintergrund_aller_Studien_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name,
                                         const std::vector<std::string>& Studien) {
    const std::string Kopf = "Final background concentration in " + b.Wort + " for " + Name + " over " + b.Plateautiefe() + " cm";
    t.Text({Berichtswort::Hintergrund}, 3);
    t.Text({Kopf}, 1);
    haenge_Studienzeilen_an(t, b, Studien, lange_Luecke, [&](std::size_t st) { return b.Z(b.Hintergrund(st)); });
    t.Enden(2);
    t.Zeile("Reduction factor to account for crop rotation: ", std::to_string(b.Fruchtfolge), 3);
    t.Text({Kopf, " including crop rotation"}, 1);
    haenge_Studienzeilen_an(t, b, Studien, lange_Luecke, [&](std::size_t st) { return b.Z(b.Hintergrund(st) / b.Fruchtfolge); });
    t.Enden(3);
}

void haenge_Anreicherung_aller_Studien_an(Textaufbau& t, const Stoffbericht& b, const std::string& Name,
                                          const std::vector<std::string>& Studien) {
    const std::string Hinweis =
        "a tillage depth of " + b.Plateautiefe() + " cm was considered for calculating the background concentration)";
    t.Text({Berichtswort::Anreicherung}, 2);
    t.Text({"Maximum annual concentration in ", b.Wort, " for ", Name, " over ", b.Bodentiefe(), " cm considering accumulation*"},
           1);
    haenge_Studienzeilen_an(t, b, Studien, kurze_Luecke,
                            [&](std::size_t st) { return b.Z(b.mit_Hintergrund(st, b.Maximum(st))) + b.Tagangabe(st); });
    t.Text({"(* ", Hinweis}, 2);
    t.Text({" Calculated PECact** in soil over ", b.Bodentiefe(), " cm for ", ohne_Randblanks(Name), b.Einheit,
            " considering accumulation*"},
           2);
    haenge_Studientabelle_an(t, b, Studien, [&](std::size_t st, int w) { return b.mit_Hintergrund(st, b.PECact(st, w)); });
    t.Text({"(*   ", Hinweis}, 1);
    t.Text({"(** PECact values are related to the time after the maximum concentration)"}, 2);
}

}  // namespace

void erstelle_Standardbericht_TWA_Tabelle(std::string& Berichtstext, const std::string& Name, const Lauf& l, int i_substanz) {
    const Stoffbericht b(l, i_substanz);
    const auto st = static_cast<std::size_t>(l.Felder.Studie_Index);
    Textaufbau t(Berichtstext);
    t.Text({Berichtswort::Stoffkopf, Name}, 2);
    haenge_Jahr_an(t, b, Name, st, i_substanz > 0);
    haenge_Hintergrund_an(t, b, Name, st);
    haenge_Anreicherung_an(t, b, Name, st);
    if (b.Plateau_unsicher(st)) haenge_Plateauwarnung_an(t);
    t.Enden(3);
}

void erstelle_erweiterten_Bericht_TWA_Tabelle(std::string& Berichtstext, const std::string& Name, const Lauf& l, int i_substanz) {
    const Stoffbericht b(l, i_substanz);
    Textaufbau t(Berichtstext);
    t.Text({Berichtswort::Stoffkopf, Name}, 2);
    haenge_Jahr_aller_Studien_an(t, b, Name, l.Felder.Studie);
    haenge_Hintergrund_aller_Studien_an(t, b, Name, l.Felder.Studie);
    haenge_Anreicherung_aller_Studien_an(t, b, Name, l.Felder.Studie);
}

}  // namespace varnok
