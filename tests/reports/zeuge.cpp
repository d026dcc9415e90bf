#include "zeuge.h"

#include <cmath>
#include <map>
#include <stdexcept>

#include "base/zahlen.h"
#include "support/referenzlauf.h"

namespace varnok::zeuge {
namespace {

using Fuellung = std::map<std::string, std::string>;

// Replaces "{key}" by its value and line ends by CR LF.
std::string fuelle(const std::string& Muster, const Fuellung& f) {
    std::string Text;
    for (std::size_t i = 0; i < Muster.size(); ++i) {
        if (Muster[i] == '\n') {
            Text += "\r\n";
        } else if (Muster[i] == '{') {
            const std::size_t Ende = Muster.find('}', i);
            Text += f.at(Muster.substr(i + 1, Ende - i - 1));
            i = Ende;
        } else {
            Text += Muster[i];
        }
    }
    return Text;
}

// A parameter: about five figures without zeros at the end.
std::string Zs(double x) {
    if (x == 0) return "0.0";
    std::string t = feste_Zahl(x, x < 10 ? 4 : x < 100 ? 3 : x < 1000 ? 2 : x < 10000 ? 1 : 0);
    if (t.find('.') == std::string::npos || t.find_first_not_of("0.") == std::string::npos) return t;
    while (t.back() == '0') t.pop_back();
    if (t.back() == '.') t.pop_back();
    return t;
}

struct Zeuge {
    const Aufgabe& a;
    std::vector<referenz::Studienergebnis> Studien;  // all of them

    explicit Zeuge(const Aufgabe& Arbeit) : a(Arbeit) {
        for (std::size_t st = 0; st < a.Felder.Studie.size(); ++st) {
            Studien.push_back(referenz::rechne(a.Felder.Parameter, a.Felder, static_cast<int>(st), a.Klima));
        }
    }

    std::size_t e() const { return static_cast<std::size_t>(a.Sicht.Endpunkt); }
    std::size_t st() const { return static_cast<std::size_t>(a.Sicht.Studie_Index); }
    int Schema() const { return a.Felder.Berechnungsmodus; }
    std::size_t Stoffzahl() const { return Schema() == 0 ? 1 : Schema() == 1 ? 2 : 3; }
    std::string Name(std::size_t c) const {
        if (Schema() == 0) return a.Felder.Beschreibung;
        return c == 0 ? a.Felder.Name_Wirkstoff : c == 1 ? a.Felder.Name_Met_1 : a.Felder.Name_Met_2;
    }
    // A concentration in the fixed pattern of its unit.
    std::string Z(double x) const {
        const bool in_Mikrogramm = a.Felder.Parameter.Einheit == Mikrogramm;
        const std::string t = feste_Zahl(x, in_Mikrogramm ? 2 : 4);
        return t.find_first_not_of("0.") == std::string::npos ? (in_Mikrogramm ? "<0.01" : "<0.0001") : t;
    }
    int Fenster() const { return a.Felder.Parameter.TWA_Zeiten == EU_Liste ? 10 : 12; }
    double Laenge(int w) const {
        const auto i = static_cast<std::size_t>(w - 1);
        return a.Felder.Parameter.TWA_Zeiten == EU_Liste ? a.Felder.Parameter.TWA.EU[i] : a.Felder.Parameter.TWA.Monat[i];
    }
    const referenz::Stoffergebnis& r(std::size_t s, std::size_t c) const { return Studien[s].Stoffe[c]; }
    // Concentration a window's length after the peak, which the ten years limit.
    double PECact(std::size_t s, std::size_t c, int w) const {
        const int Tag = static_cast<int>(std::min(3649.0, r(s, c).Maximumtag_Bodentiefe[e()] + Laenge(w)));
        return static_cast<double>(r(s, c).Boden[e()][static_cast<std::size_t>(Tag)]);
    }
    double PECtwa(std::size_t s, std::size_t c, int w) const {
        return static_cast<double>(r(s, c).TWA_Maximum[e()][static_cast<std::size_t>(w)]);
    }
    double Peak(std::size_t s, std::size_t c) const { return static_cast<double>(r(s, c).Maximum_Bodentiefe[e()]); }
    double Hintergrund(std::size_t s, std::size_t c) const { return static_cast<double>(r(s, c).Plateauwert[e()]); }
    double R() const { return a.Sicht.Fruchtwechsel + 1; }

    Fuellung Grundfuellung() const;
    std::string Kopf(bool alle) const;
    std::string Applikationen() const;
    std::string Stoffe() const;
    std::string Kinetikblock(std::size_t c, std::size_t s, bool alle) const;
    std::string Tabelle(std::size_t c, double dazu, const char* Kopf) const;
    std::string Ergebnisse(std::size_t c) const;
    template <class Wert>
    std::string Studientabelle(Wert w) const;
    std::string Ergebnisse_aller(std::size_t c) const;
};

Fuellung Zeuge::Grundfuellung() const {
    static const char* const Schemata[] = {"Parent compound without metabolites", "Active compound and a single metabolite",
                                           "Active compound and two parallel metabolites",
                                           "Active compound and a sequence of two metabolites"};
    const Laufparameter& p = a.Felder.Parameter;
    Fuellung f;
    f["version"] = a.Programmversion;
    f["now"] = a.Datum + ", " + a.Zeit;
    f["problem"] = a.Felder.Beschreibung;
    f["record"] = a.Applikationssatz;
    f["soil"] = a.Felder.Bodenszenario;
    f["density"] = allgemeine_Zahl(p.Bodendichte);
    f["depth"] = allgemeine_Zahl(p.Bodentiefe);
    f["tillage"] = allgemeine_Zahl(p.Plateautiefe);
    f["carbon"] = allgemeine_Zahl(p.Kohlenstoffgehalt);
    f["capacity"] = allgemeine_Zahl(p.Feldkapazitaet);
    f["wilting"] = allgemeine_Zahl(p.Welkepunkt);
    f["climate"] =
        p.Klimamodus == nach_Klimadatei ? a.Felder.Klimaszenario : std::to_string(p.Szenariotemperatur) + " °C constant";
    f["scheme"] = Schemata[Schema()];
    f["word"] = e() == 1 ? "pore water" : "total soil";
    f["unit"] = std::string(p.Einheit == Mikrogramm ? "(µg/" : "(mg/") + (e() == 1 ? "L)" : "kg)");
    f["R"] = std::to_string(a.Sicht.Fruchtwechsel + 1);
    return f;
}

std::string Zeuge::Kopf(bool alle) const {
    Fuellung f = Grundfuellung();
    const int Modus = a.Felder.Parameter.Separate_Rueckstaende;
    f["separate"] = Modus == 0   ? "Residues from different applications are not considered separately"
                    : Modus == 1 ? "Residues from different applications are considered separately"
                                 : "Residues from different applications are considered separately over one year";
    f["iteration"] = a.Sicht.PEC_Typ == 1 ? "Iteration of annual application pattern over 10 years"
                                          : "Single annual application pattern (calculation period 1 year)";
    f["rotation"] = a.Sicht.Fruchtwechsel == 0 ? "every year" : a.Sicht.Fruchtwechsel == 1 ? "every 2nd year" : "every 3rd year";
    f["summary"] = alle ? "\r\n\r\nSUMMARY REPORT CONSIDERING ALL SOIL STUDIES\r\n\r\n\r\n\r\n\r\n" : "\r\n\r\n\r\n\r\n";
    f["trailer"] = alle ? "" : "   ";
    f["weather"] = "";
    if (a.Felder.Parameter.Klimamodus == nach_Klimadatei) {
        const auto& s = Studien.back().Klimasummen;
        const auto ganz = [](double x) { return feste_Zahl(x, 0) == "0" ? std::string() : feste_Zahl(x, 0); };
        f["weather"] = "Mean temperature (°C):                            \t" + feste_Zahl(s[0] / 3751, 1) +
                       "\r\nAnnual Rainfall (mm):                                \t" + ganz(s[1]) +
                       "\r\nAnnual pot. Evapotranspiration (mm):\t" + ganz(s[2]) + "\r\n";
    }
    return fuelle(
        "V A R N O K\n"
        "Soil Residue Forecast Tool\n\n"
        "developed by Emil Tarrasch          \n\n\n"
        "Program version:                    \t{version}\n"
        "Date of this simulation:      \t{now}\n"
        "Calculation problem: \t{problem}{summary}"
        "PROGRAM SETTINGS\n\n"
        "Calculation mode:                   \t{separate}\n"
        "Application mode:                   \t{iteration}\n\n\n\n"
        "SCENARIO DATA USED IN THE CALCULATION{trailer}\n\n"
        "Name of the scenario:                        \t{record}\n"
        "Name of the soil:                                     \t{soil}\n"
        "Soil density (kg/L):                                    \t{density}\n"
        "Soil depth (cm):                                    \t{depth}\n"
        "Tillage depth (cm)*:                            \t{tillage}\n"
        "Organic carbon content (%):            \t{carbon}\n"
        "Field capacity (Vol%):                          \t{capacity}\n"
        "Wilting point (Vol%):                             \t{wilting}\n\n"
        "Climatic conditions:                        \t{climate}\n"
        "{weather}"
        "(* for calculation of background concentrations)\n\n\n"
        "APPLICATION PATTERN USED IN THE CALCULATION\n\n"
        "Crop rotation:               \t{rotation}\n\n",
        f);
}

std::string Zeuge::Applikationen() const {
    static const char* const Monate[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const Eingabe& f = a.Felder;
    Fuellung w;
    w["n"] = std::to_string(f.Anzahl());
    w["date"] = std::to_string(f.App_Tag + 1) + " " + Monate[f.App_Monat];
    w["rate"] = f.Applikationsrate.Text();
    w["interval"] = std::to_string(f.Intervall());
    w["interception"] = f.Interzeption.Text();
    w["rows"] = "";
    if (f.Applikationsmuster == einzeln) {
        return fuelle(
            "Application date:             \t{date}\n"
            "Application rate (g/ha):      \t{rate}\n"
            "Crop interception (%):        \t{interception}\n\n\n\n",
            w);
    }
    if (f.Applikationsmuster == regelmaessig) {
        return fuelle(
            "Number of Applications :            \t{n}\n"
            "1st Application date:               \t{date}\n"
            "Application rate (g/ha):            \t{rate}\n"
            "Time between two applications (d):  \t{interval}\n"
            "Crop interception (%):              \t{interception}\n\n\n\n\n",
            w);
    }
    for (const Applikationszeile& z : f.Applikationsschema)
        w["rows"] += z[0].Text() + "\t" + z[1].Text() + "\t" + z[2].Text() + "\t" + z[3].Text() + "\t\r\n";
    return fuelle(
        "Number of Applications :            \t{n}\n"
        "Day\tMonth\tRate (g/ha)\tInterception(%)\t\n"
        "{rows}\n\n\n",
        w);
}

std::string Zeuge::Stoffe() const {
    const Eingabe& f = a.Felder;
    Fuellung w = Grundfuellung();
    w["P"] = f.Name_Wirkstoff;
    w["mP"] = f.Molmasse_Wirkstoff.Text();
    w["M1"] = f.Name_Met_1;
    w["m1"] = f.Molmasse_Met_1.Text();
    w["f1"] = f.Bildungsanteil_Met_1.Text();
    w["k1"] = Zs(a.Felder.Parameter.KOC[1][st()]);
    w["M2"] = f.Name_Met_2;
    w["m2"] = f.Molmasse_Met_2.Text();
    w["f2"] = f.Bildungsanteil_Met_2.Text();
    w["k2"] = Zs(a.Felder.Parameter.KOC[2][st()]);
    static const char* const Tabellen[] = {
        "", "\nCompound\tMolecular mass(g/mol)\tFormation (%)\n{P}\t{mP}\n{M1}\t{m1}                       \t{k1}\t{f1}\n",
        "\nCompound\tMolecular mass(g/mol)\tKOC(L/kg)\tFormation (%)\n{P}\t{mP}\n"
        "{M1}\t{m1}                       \t{k1}          \t{f1}\n{M2}\t{m2}                       \t{k2}          \t{f2}\n",
        "\nCompound\tMolecular mass(g/mol)\tFormation (%)\n{P}\t{mP}\n"
        "{M1}\t{m1}                       \t{k1}          \t{f1}\n{M2}\t{m2}                       \t{k2}          \t{f2}\n"};
    return fuelle(std::string("COMPOUNDS CONSIDERED IN THE CALCULATION\n\nMetabolism scheme:\t{scheme}\n") + Tabellen[Schema()] +
                      "\n\n\nDEGRADATION KINETICS PARAMETERS CONSIDERED FOR THE CALCULATION\n\n",
                  w);
}

std::string Zeuge::Kinetikblock(std::size_t c, std::size_t s, bool alle) const {
    const Laufparameter& p = a.Felder.Parameter;
    const auto DT50 = [](double k) { return k > 0 ? Zs(std::log(2) / k) : std::string("0"); };
    const bool gilt = p.k_SFO[c][s] > 0;  // what the report of one study asks, whatever the kinetics
    Fuellung f;
    const auto DT50_Zeile = [&](const char* einzeln, double k) {
        if (alle) return k > 0 ? "DT50 (d):\t" + DT50(k) + "\r\n" : std::string();
        return gilt ? einzeln + ("\t" + DT50(k)) + "\r\n" : std::string();
    };
    const auto Block = [&](const std::string& Name, const std::string& Zeilen) { return Name + "\r\n" + Zeilen; };
    std::string Text;
    const int Code = static_cast<int>(p.Kinetik[c][s]);
    if (Code == SFO) {
        Text = Block("Single First order (SFO)",
                     DT50_Zeile("DT50 (d):", p.k_SFO[c][s]) + "Rate constant (1/d):\t" + Zs(p.k_SFO[c][s]) + "\r\n");
    } else if (Code == DFOP) {
        Text = Block("Double First Order in Parallel (DFOP)",
                     DT50_Zeile("DT50 1(d):", p.k1_DFOP[c][s]) + DT50_Zeile("DT50 2(d):", p.k2_DFOP[c][s]) +
                         "Rate constant 1 (1/d):\t" + Zs(p.k1_DFOP[c][s]) + "\r\nRate constant 2 (1/d):\t" + Zs(p.k2_DFOP[c][s]) +
                         "\r\nParameter g:\t" + Zs(p.g_DFOP[c][s]) + "\r\n");
    } else if (Code == FOMC) {
        Text =
            Block("First Order Multi Compartment (FOMC)", std::string(alle ? "alpha(i_studie):\t" : "Alpha:\t") +
                                                              Zs(p.alpha_FOMC[s]) + "\r\nBeta:\t" + Zs(p.beta_FOMC[s]) + "\r\n");
    } else {
        Text = Block("Hockey Stick (HS)", DT50_Zeile("DT50 1(d):", p.k1_HS[s]) + DT50_Zeile("DT50 2(d):", p.k2_HS[s]) +
                                              "Rate constant 1 (1/d):\t" + Zs(p.k1_HS[s]) + "\r\nRate constant 2 (1/d):\t" +
                                              Zs(p.k2_HS[s]) + (alle ? "\r\nParameter Tb (d):\t" : "\r\nParameter Tb:\t") +
                                              Zs(p.Tb_HS[s]) + "\r\n");
    }
    return Text + "Q10-factor:\t" + Zs(p.Q10[c][s]) + "\r\nWalker-exponent:\t" + Zs(p.Walker[c][s]) +
           (alle && Schema() == 0 ? "\r\nTReference (°C):\t" : "\r\nRef. temperature (°C):\t") + Zs(p.TRef[c][s]) + "\r\n\r\n";
}

std::string Zeuge::Tabelle(std::size_t c, double dazu, const char* Kopf) const {
    std::string Text = std::string("Time(d)\t") + Kopf + "\tPECtwa\tBegin TWAframe(d)\tEnd TWAframe(d)\r\n";
    for (int w = 1; w <= Fenster(); ++w) {
        const int Start = r(st(), c).TWA_Starttag[e()][static_cast<std::size_t>(w)];
        Text += Zs(Laenge(w)) + "\t" + Z(dazu + PECact(st(), c, w)) + "\t" + Z(dazu + PECtwa(st(), c, w)) + "\t" +
                std::to_string(Start) + "\t" + allgemeine_Zahl(Start + Laenge(w)) + "\r\n";
    }
    return Text;
}

std::string Zeuge::Ergebnisse(std::size_t c) const {
    const double B = Hintergrund(st(), c);
    const int Tag = r(st(), c).Maximumtag_Bodentiefe[e()];
    Fuellung f = Grundfuellung();
    f["name"] = Name(c);
    f["max"] = Z(Peak(st(), c)) + " occurring on day " + std::to_string(Tag);
    f["share"] = "";
    if (c > 0) {
        // The first dose as metabolite, all of it, in the soil depth.
        const double M =
            Wert((c == 1 ? a.Felder.Molmasse_Met_1 : a.Felder.Molmasse_Met_2).Text()) / Wert(a.Felder.Molmasse_Wirkstoff.Text());
        const auto Dosis =
            static_cast<double>(Studien[st()].Tagesrate[static_cast<std::size_t>(Studien[st()].Applikationstag[1])]);
        const double T = (a.Felder.Parameter.Einheit == Mikrogramm ? 1000 : 1) * (M * (Dosis / 1000)) /
                         (a.Felder.Parameter.Bodentiefe * a.Felder.Parameter.Bodendichte / 10);
        const auto Jahr1 = static_cast<double>(r(st(), c).Jahresmaximum[e()][1]);
        f["share"] = "^\r\n(^ This is " + feste_Zahl(Jahr1 * 100 / T, 2) +
                     " % of the theoretical maximum concentration of the metabolite)\r\n";
    }
    f["rows"] = Tabelle(c, 0, "PECact*");
    f["rows2"] = Tabelle(c, B / R(), "PECact**");
    f["note"] = Tag > 0 ? "(* PECact values  are related to the time after the maximum concentration)"
                        : "(* PECact values are related to the time after the first application)";
    f["note2"] = Tag > 0 ? "(** PECact values  are related to the time after the maximum concentration)'"
                         : "(** PECact values are related to the time after the first application)";
    f["plateau"] = Z(B);
    f["rotated"] = Z(B / R());
    f["accumulated"] = Z(B / R() + Peak(st(), c));
    f["text"] = r(st(), c).Plateautext[e()];
    const bool unsicher = a.Felder.Parameter.Kinetik[c][st()] > 0 && Wert(f["text"]) < 50;
    f["warning"] = !unsicher ? ""
                             : "\r\n\r\nIn the simulation a final plateau was estimated significantly higher than the residues "
                               "after 10 years.\r\nThese results may not be reliable. Please check whether the separation of "
                               "residues is reasonable for the simulation.\r\nIf possible select a more suitable degradation "
                               "kinetics for the simulation!\r\n";
    return fuelle(
        "RESULTS FOR: {name}\n\n"
        "Calculations over one year\n\n"
        "Maximum annual {word} concentration for {name} over {depth} cm{unit}: \t{max}{share}\n\n"
        "Calculated time dependent {word} concentrations over {depth} cm for {name} after one year {unit}\n\n"
        "{rows}{note}\n\n\n"
        "Calculation of background concentrations after many years\n\n"
        "Final Background concentration in {word} for {name} over {tillage} cm{unit}:            \t{plateau}**\n\n"
        "(**  according to the estimation {text} was reached after 10 years without crop rotation)\n\n\n"
        "Reduction factor to account for crop rotation: \t{R}\n\n"
        "Final Background concentration in {word} including crop rotation{unit}:            \t{rotated}\n\n\n\n"
        "Calculations of concentrations considering accumulation after many years of application\n\n"
        "Maximum {word} concentration for {name} over {depth} cm considering accumulation* {unit}\t{accumulated}\n\n"
        "(* a tillage depth of {tillage} cm was considered for calculating the background concentration)\n\n"
        "Calculated time dependent {word} concentrations  over {depth} cm for {name}{unit} considering accumulation*\n\n"
        "{rows2}(*  a tillage depth of {tillage} cm was considered for calculating the background concentration)\n"
        "{note2}{warning}\n\n\n",
        f);
}

template <class Wert>
std::string Zeuge::Studientabelle(Wert Zelle) const {
    std::string Text = "Time (d)";
    for (const std::string& s : a.Felder.Studie) Text += "\t" + s;
    Text += "\r\n";
    for (int w = 1; w <= Fenster(); ++w) {
        Text += Zs(Laenge(w));
        for (std::size_t s = 0; s < Studien.size(); ++s) Text += "\t" + Z(Zelle(s, w));
        Text += "\r\n";
    }
    return Text;
}

std::string Zeuge::Ergebnisse_aller(std::size_t c) const {
    Fuellung f = Grundfuellung();
    f["name"] = Name(c);
    for (std::size_t s = 0; s < Studien.size(); ++s) {
        const std::string davor = a.Felder.Studie[s] + f["unit"];
        const std::string Tag = " occurring on day " + std::to_string(r(s, c).Maximumtag_Bodentiefe[e()]) + "\r\n";
        f["peaks"] += davor + ": \t" + Z(Peak(s, c)) + Tag;
        f["plateaus"] += davor + ":           \t" + Z(Hintergrund(s, c)) + "\r\n";
        f["rotated"] += davor + ":           \t" + Z(Hintergrund(s, c) / R()) + "\r\n";
        f["accumulated"] += davor + ": \t" + Z(Hintergrund(s, c) / R() + Peak(s, c)) + Tag;
    }
    f["act"] = Studientabelle([&](std::size_t s, int w) { return PECact(s, c, w); });
    f["twa"] = Studientabelle([&](std::size_t s, int w) { return PECtwa(s, c, w); });
    f["act2"] = Studientabelle([&](std::size_t s, int w) { return Hintergrund(s, c) / R() + PECact(s, c, w); });
    return fuelle(
        "RESULTS FOR: {name}\n\n"
        "Calculations over one year\n\n"
        "Maximum annual {word} concentration for {name} over {density} cm\n"
        "{peaks}\n"
        " Calculated PECact* in soil over {density} cm for {name}{unit}\n\n"
        "{act}(* PECact values are related to the time after the maximum concentration)\n\n"
        " Calculated time weighted average (TWA) concentrations in soil over {density} cm for {name}{unit}\n\n"
        "{twa}\n\n\n\n\n\n"
        "Calculation of background concentrations after many years\n\n\n"
        "Final background concentration in {word} for {name} over {tillage} cm\n"
        "{plateaus}\n\n"
        "Reduction factor to account for crop rotation: \t{R}\n\n\n"
        "Final background concentration in {word} for {name} over {tillage} cm including crop rotation\n"
        "{rotated}\n\n\n"
        "Calculations of concentrations considering accumulation after many years of application\n\n"
        "Maximum annual concentration in {word} for {name} over {depth} cm considering accumulation*\n"
        "{accumulated}(* a tillage depth of {tillage} cm was considered for calculating the background concentration)\n\n"
        " Calculated PECact** in soil over {depth} cm for {name}{unit} considering accumulation*\n\n"
        "{act2}(*   a tillage depth of {tillage} cm was considered for calculating the background concentration)\n"
        "(** PECact values are related to the time after the maximum concentration)\n\n",
        f);
}

constexpr const char* Ergebniskopf = "\n\n\nRESULTS OF THE CALCULATION\n\nMetabolism scheme:\t{scheme}\n\n";
constexpr const char* Schluss = "\n\n\nGRAPHIC REPRESENTATION OF THE CALCULATION\n\nA diagram should appear here!\n\n";

}  // namespace

std::string Standardbericht(const Aufgabe& a) {
    const Zeuge z(a);
    std::string Text = z.Kopf(false) + z.Applikationen() + z.Stoffe() + "Soil study:              \t" + a.Felder.Studie[z.st()] +
                       fuelle("\n\nMetabolism scheme:\t{scheme}\n\n", z.Grundfuellung());
    for (std::size_t c = 0; c < z.Stoffzahl(); ++c)
        Text += "Kinetics for " + z.Name(c) + ":\t" + z.Kinetikblock(c, z.st(), false);
    Text += fuelle(Ergebniskopf, z.Grundfuellung());
    for (std::size_t c = 0; c < z.Stoffzahl(); ++c) Text += z.Ergebnisse(c);
    return Text + fuelle(Schluss, {});
}

std::string erweiterter_Bericht(const Aufgabe& a) {
    const Zeuge z(a);
    std::string Text =
        z.Kopf(true) + z.Applikationen() + z.Stoffe() + fuelle("Metabolism scheme:\t{scheme}\n\n", z.Grundfuellung());
    for (std::size_t c = 0; c < z.Stoffzahl(); ++c) {
        Text += "Kinetics for " + z.Name(c) + ":\t\r\n\r\n";
        for (std::size_t s = 0; s < a.Felder.Studie.size(); ++s) {
            Text += "Soil study:              \t" + a.Felder.Studie[s] + "\r\n\r\n" + z.Kinetikblock(c, s, true);
        }
    }
    Text += fuelle(Ergebniskopf, z.Grundfuellung());
    for (std::size_t c = 0; c < z.Stoffzahl(); ++c) Text += z.Ergebnisse_aller(c);
    return Text + fuelle(Schluss, {});
}

}  // namespace varnok::zeuge
