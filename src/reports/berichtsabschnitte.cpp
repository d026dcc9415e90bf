#include "reports/berichtsabschnitte.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "exposure/ergebnistabelle.h"
#include "reports/berichtswoerter.h"
#include "run/bezeichnungen.h"

namespace varnok {
namespace {

constexpr std::array<std::string_view, 3> Rueckstandsarten = {
    "Residues from different applications are not considered separately",
    "Residues from different applications are considered separately",
    "Residues from different applications are considered separately over one year"};
constexpr std::array Berichtsschemata = {"Parent compound without metabolites", "Active compound and a single metabolite",
                                         "Active compound and two parallel metabolites",
                                         "Active compound and a sequence of two metabolites"};

constexpr const char* Stofftabelle_ohne_KOC = "Compound\tMolecular mass(g/mol)\tFormation (%)";
constexpr const char* Stofftabelle_mit_KOC = "Compound\tMolecular mass(g/mol)\tKOC(L/kg)\tFormation (%)";
constexpr std::string_view Luecke_vor_KOC = "                       ";
constexpr std::string_view Luecke_hinter_KOC = "          ";

template <std::size_t n>
std::string Eintrag(const std::array<std::string_view, n>& Liste, int i) {
    return std::string(i >= 0 && static_cast<std::size_t>(i) < n ? Liste[static_cast<std::size_t>(i)] : "");
}

// A whole number without decimals, of which 0 leaves nothing.
std::string ganz_oder_leer(double Zahl) {
    const std::string Text = feste_Zahl(Zahl, 0);
    return Text == "0" ? "" : Text;
}

std::string ganz(int Zahl) { return std::to_string(Zahl); }

std::string Datum(const Eingabe& e) { return ganz(e.App_Tag + 1) + " " + Eintrag(Monatsnamen, e.App_Monat); }

void haenge_einzelne_an(Textaufbau& t, const Eingabe& e) {
    t.Zeile("Application date:             ", Datum(e));
    t.Zeile("Application rate (g/ha):      ", Punkttext(e.Applikationsrate));
    t.Zeile("Crop interception (%):        ", Punkttext(e.Interzeption));
}

void haenge_regelmaessige_an(Textaufbau& t, const Eingabe& e) {
    t.Zeile("Number of Applications :            ", ganz(e.Anzahl()));
    t.Zeile("1st Application date:               ", Datum(e));
    t.Zeile("Application rate (g/ha):            ", Punkttext(e.Applikationsrate));
    t.Zeile("Time between two applications (d):  ", ganz(e.Intervall()));
    t.Zeile("Crop interception (%):              ", Punkttext(e.Interzeption), 2);
}

// The grid with its head; a tab stands behind each cell, also behind the last.
void haenge_Tabelle_an(Textaufbau& t, const Eingabe& e) {
    t.Zeile("Number of Applications :            ", ganz(e.Anzahl()));
    for (const std::string_view Kopf : Tabellenkoepfe) t.Text({Kopf, "\t"}, 0);
    t.Enden(1);
    const std::size_t Zeilen = std::min(e.Applikationsschema.size(), static_cast<std::size_t>(e.Anzahl()));
    for (std::size_t z = 0; z < Zeilen; ++z) {
        for (const Zahlwert& Zelle : e.Applikationsschema[z]) t.Text({Punkttext(Zelle), "\t"}, 0);
        t.Enden(1);
    }
}

using Applikationsabschnitt = void (*)(Textaufbau&, const Eingabe&);
constexpr std::array<Applikationsabschnitt, 3> Applikationsabschnitte = {haenge_einzelne_an, haenge_regelmaessige_an,
                                                                         haenge_Tabelle_an};

// A metabolite's row holds its KOC in every scheme, though only the head of the parallel scheme names it.
void haenge_Metabolit_an(Textaufbau& t, const Darstellung& d, int i_substanz) {
    const Eingabe& e = d.Vorgabe();
    const double KOC = e.Parameter.KOC[static_cast<std::size_t>(i_substanz)][static_cast<std::size_t>(d.Studie().i_studie)];
    const std::string_view Luecke = e.Berechnungsmodus == ein_Metabolit ? std::string_view() : Luecke_hinter_KOC;
    t.Text({Stoffname(d.Namen, i_substanz), "\t", Punkttext(Molmasse(e, i_substanz)), Luecke_vor_KOC, "\t",
            Parametertext("KOC (L/kg)", KOC), Luecke, "\t", Punkttext(Bildungsanteil(e, i_substanz))},
           1);
}

}  // namespace

const std::string& Berichtsname(const Darstellung& d, int i_substanz) {
    return d.Vorgabe().Berechnungsmodus == nur_Wirkstoff ? d.Namen.Beschreibung : Stoffname(d.Namen, i_substanz);
}

const char* Schemaname(Stoffschema s) { return Berichtsschemata.at(s); }

std::string Punkttext(const Zahlwert& z) {
    std::string Text = z.Text();
    if (z.ganz()) std::replace(Text.begin(), Text.end(), ',', '.');
    return Text;
}

std::string Parametertext(const char* Beschriftung, double Wert) {
    if (Wert < 0) {
        throw Laufzeitfehler("The report cannot show a negative value: " + std::string(Beschriftung) + " " +
                             allgemeine_Zahl(Wert));
    }
    return Formatiere_Zahl(Wert, true, true, Milligramm);
}

void haenge_Kopf_an(Textaufbau& t, const Darstellung& d, const Berichtsangaben& a, Berichtsart Art) {
    t.Text({Berichtswort::Titel}, 1);
    t.Text({Berichtswort::Untertitel}, 2);
    t.Text({Berichtswort::Verfasser, "          "}, 3);
    t.Zeile("Program version:                    ", a.Programmversion);
    t.Zeile("Date of this simulation:      ", a.Datum + ", " + a.Zeit);
    t.Zeile("Calculation problem: ", d.Namen.Beschreibung, Art == Berichtsart::Standard ? 4 : 2);
    if (Art == Berichtsart::Standard) return;
    t.Text({"SUMMARY REPORT CONSIDERING ALL SOIL STUDIES"}, 2);
    t.Enden(3);
}

void haenge_Programmeinstellungen_an(Textaufbau& t, const Darstellung& d) {
    t.Text({"PROGRAM SETTINGS"}, 2);
    t.Zeile("Calculation mode:                   ", Eintrag(Rueckstandsarten, d.Vorgabe().Parameter.Separate_Rueckstaende));
    t.Zeile("Application mode:                   ",
            d.Sicht.PEC_Typ == Hintergrund ? "Iteration of annual application pattern over 10 years"
                                           : "Single annual application pattern (calculation period 1 year)",
            4);
}

void haenge_Szenario_an(Textaufbau& t, const Darstellung& d, const Berichtsangaben& a, Berichtsart Art) {
    const Ergebnis& r = d.Studie();
    const Laufparameter& p = r.Vorgabe->Parameter;
    t.Text({"SCENARIO DATA USED IN THE CALCULATION", Art == Berichtsart::Standard ? "   " : ""}, 2);
    // The label speaks of the scenario, the value is the name of the application pattern record.
    t.Zeile("Name of the scenario:                        ", a.Applikationssatz);
    t.Zeile("Name of the soil:                                     ", d.Namen.Bodenszenario);
    t.Zeile("Soil density (kg/L):                                    ", allgemeine_Zahl(p.Bodendichte));
    t.Zeile("Soil depth (cm):                                    ", allgemeine_Zahl(p.Bodentiefe));
    t.Zeile("Tillage depth (cm)*:                            ", allgemeine_Zahl(p.Plateautiefe));
    t.Zeile("Organic carbon content (%):            ", allgemeine_Zahl(p.Kohlenstoffgehalt));
    t.Zeile("Field capacity (Vol%):                          ", allgemeine_Zahl(p.Feldkapazitaet));
    t.Zeile("Wilting point (Vol%):                             ", allgemeine_Zahl(p.Welkepunkt), 2);
    t.Zeile("Climatic conditions:                        ", Klimatext(*r.Vorgabe));
    if (p.Klimamodus == nach_Klimadatei) {
        // The mean counts the spare days of the time axis as well.
        t.Zeile("Mean temperature (°C):                            ", feste_Zahl(r.Summe_Temperatur / (Tagesplaetze - 1), 1));
        t.Zeile("Annual Rainfall (mm):                                ", ganz_oder_leer(r.Summe_Niederschlag));
        t.Zeile("Annual pot. Evapotranspiration (mm):", ganz_oder_leer(r.Summe_Verdunstung));
    }
    t.Text({"(* for calculation of background concentrations)"}, 3);
}

void haenge_Applikationen_an(Textaufbau& t, const Darstellung& d) {
    const Eingabe& e = d.Vorgabe();
    t.Text({"APPLICATION PATTERN USED IN THE CALCULATION"}, 2);
    t.Zeile("Crop rotation:               ", Eintrag(Fruchtwechselnamen, d.Sicht.Fruchtwechsel), 2);
    Applikationsabschnitte.at(static_cast<std::size_t>(e.Applikationsmuster))(t, e);
    t.Enden(3);
}

void haenge_Stoffe_an(Textaufbau& t, const Darstellung& d) {
    const Eingabe& e = d.Vorgabe();
    t.Text({"COMPOUNDS CONSIDERED IN THE CALCULATION"}, 2);
    t.Zeile("Metabolism scheme:", Schemaname(e.Berechnungsmodus));
    if (e.Berechnungsmodus != nur_Wirkstoff) {
        t.Enden(1);
        t.Text({e.Berechnungsmodus == zwei_parallel ? Stofftabelle_mit_KOC : Stofftabelle_ohne_KOC}, 1);
        t.Zeile(Stoffname(d.Namen, 0), Punkttext(e.Molmasse_Wirkstoff));
        for (int c = 1; c < Anzahl_Stoffe(e.Berechnungsmodus); ++c) haenge_Metabolit_an(t, d, c);
    }
    t.Enden(3);
}

}  // namespace varnok
