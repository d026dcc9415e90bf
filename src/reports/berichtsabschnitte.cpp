#include "reports/berichtsabschnitte.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "exposure/ergebnistabelle.h"
#include "reports/berichtswoerter.h"

namespace varnok {
namespace {

constexpr int Hintergrund = 1;  // position of "Background" in `PEC_Typ`

constexpr std::array Rueckstandsarten = {"Residues from different applications are not considered separately",
                                         "Residues from different applications are considered separately",
                                         "Residues from different applications are considered separately over one year"};
constexpr std::array Fruchtwechselarten = {"every year", "every 2nd year", "every 3rd year"};
constexpr std::array Monate = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::array Tabellenkoepfe = {"Day", "Month", "Rate (g/ha)", "Interception(%)"};
constexpr std::array Schemanamen = {"Parent compound without metabolites", "Active compound and a single metabolite",
                                    "Active compound and two parallel metabolites",
                                    "Active compound and a sequence of two metabolites"};

constexpr const char* Stofftabelle_ohne_KOC = "Compound\tMolecular mass(g/mol)\tFormation (%)";
constexpr const char* Stofftabelle_mit_KOC = "Compound\tMolecular mass(g/mol)\tKOC(L/kg)\tFormation (%)";
constexpr std::string_view Luecke_vor_KOC = "                       ";
constexpr std::string_view Luecke_hinter_KOC = "          ";

template <std::size_t n>
std::string Eintrag(const std::array<const char*, n>& Liste, int i) {
    return i >= 0 && static_cast<std::size_t>(i) < n ? Liste[static_cast<std::size_t>(i)] : "";
}

// A whole number without decimals, of which 0 leaves nothing.
std::string ganz_oder_leer(double Zahl) {
    const std::string Text = feste_Zahl(Zahl, 0);
    return Text == "0" ? "" : Text;
}

std::string ganz(int Zahl) { return std::to_string(Zahl); }

std::string Datum(const Eingabe& e) { return ganz(e.App_Tag + 1) + " " + Eintrag(Monate, e.App_Monat); }

void haenge_einzelne_an(Textaufbau& t, const Eingabe& e) {
    t.Zeile("Application date:             ", Datum(e));
    t.Zeile("Application rate (g/ha):      ", e.Applikationsrate);
    t.Zeile("Crop interception (%):        ", e.Interzeption);
}

void haenge_regelmaessige_an(Textaufbau& t, const Eingabe& e) {
    t.Zeile("Number of Applications :            ", ganz(e.Anzahl()));
    t.Zeile("1st Application date:               ", Datum(e));
    t.Zeile("Application rate (g/ha):            ", e.Applikationsrate);
    t.Zeile("Time between two applications (d):  ", ganz(e.Intervall()));
    t.Zeile("Crop interception (%):              ", e.Interzeption, 2);
}

// The grid with its head; a tab stands behind each cell, also behind the last.
void haenge_Tabelle_an(Textaufbau& t, const Eingabe& e) {
    t.Zeile("Number of Applications :            ", ganz(e.Anzahl()));
    for (const char* Kopf : Tabellenkoepfe) t.Text({Kopf, "\t"}, 0);
    t.Enden(1);
    const std::size_t Zeilen = std::min(e.Applikationsschema.size(), static_cast<std::size_t>(e.Anzahl()));
    for (std::size_t z = 0; z < Zeilen; ++z) {
        for (const std::string& Zelle : e.Applikationsschema[z]) t.Text({Zelle, "\t"}, 0);
        t.Enden(1);
    }
}

using Applikationsabschnitt = void (*)(Textaufbau&, const Eingabe&);
constexpr std::array<Applikationsabschnitt, 3> Applikationsabschnitte = {haenge_einzelne_an, haenge_regelmaessige_an,
                                                                         haenge_Tabelle_an};

// A metabolite's row holds its KOC in every scheme, though only the head of the parallel scheme names it.
void haenge_Metabolit_an(Textaufbau& t, const Lauf& l, int i_substanz) {
    const Eingabe& e = l.Felder;
    const auto c = static_cast<std::size_t>(i_substanz);
    const double KOC = l.Parameter.KOC[c][static_cast<std::size_t>(e.Studie_Index)];
    const std::string_view Luecke = e.Berechnungsmodus == 1 ? std::string_view() : Luecke_hinter_KOC;
    t.Text({Stoffname(e, i_substanz), "\t", i_substanz == 1 ? e.Molmasse_Met_1 : e.Molmasse_Met_2, Luecke_vor_KOC, "\t",
            Parametertext("KOC (L/kg)", KOC), Luecke, "\t", i_substanz == 1 ? e.Bildungsanteil_Met_1 : e.Bildungsanteil_Met_2},
           1);
}

}  // namespace

const std::string& Berichtsname(const Eingabe& e, int i_substanz) {
    return e.Berechnungsmodus == 0 ? e.Beschreibung : Stoffname(e, i_substanz);
}

const char* Schemaname(int Berechnungsmodus) { return Schemanamen.at(static_cast<std::size_t>(Berechnungsmodus)); }

std::string Parametertext(const char* Beschriftung, double Wert) {
    if (Wert < 0) {
        throw Laufzeitfehler("The report cannot show a negative value: " + std::string(Beschriftung) + " " +
                             allgemeine_Zahl(Wert));
    }
    return Formatiere_Zahl(Wert, true, true, 0);
}

void haenge_Kopf_an(Textaufbau& t, const Lauf& l, const Berichtsangaben& a, Berichtsart Art) {
    t.Text({Berichtswort::Titel}, 1);
    t.Text({Berichtswort::Untertitel}, 2);
    t.Text({Berichtswort::Verfasser, "          "}, 3);
    t.Zeile("Program version:                    ", a.Programmversion);
    t.Zeile("Date of this simulation:      ", a.Datum + ", " + a.Zeit);
    t.Zeile("Calculation problem: ", l.Felder.Beschreibung, Art == Berichtsart::Standard ? 4 : 2);
    if (Art == Berichtsart::Standard) return;
    t.Text({"SUMMARY REPORT CONSIDERING ALL SOIL STUDIES"}, 2);
    t.Enden(3);
}

void haenge_Programmeinstellungen_an(Textaufbau& t, const Lauf& l) {
    t.Text({"PROGRAM SETTINGS"}, 2);
    t.Zeile("Calculation mode:                   ", Eintrag(Rueckstandsarten, l.Parameter.Separate_Rueckstaende));
    t.Zeile("Application mode:                   ",
            l.Felder.PEC_Typ == Hintergrund ? "Iteration of annual application pattern over 10 years"
                                            : "Single annual application pattern (calculation period 1 year)",
            4);
}

void haenge_Szenario_an(Textaufbau& t, const Lauf& l, Berichtsart Art) {
    const Laufparameter& p = l.Parameter;
    t.Text({"SCENARIO DATA USED IN THE CALCULATION", Art == Berichtsart::Standard ? "   " : ""}, 2);
    // The label speaks of the scenario, the value is the name of the application pattern record.
    t.Zeile("Name of the scenario:                        ", l.Felder.Aktuelle_Dateinamen[2]);
    t.Zeile("Name of the soil:                                     ", l.Felder.Bodenszenario);
    t.Zeile("Soil density (kg/L):                                    ", allgemeine_Zahl(p.Bodendichte));
    t.Zeile("Soil depth (cm):                                    ", allgemeine_Zahl(p.Bodentiefe));
    t.Zeile("Tillage depth (cm)*:                            ", allgemeine_Zahl(p.Plateautiefe));
    t.Zeile("Organic carbon content (%):            ", allgemeine_Zahl(p.Kohlenstoffgehalt));
    t.Zeile("Field capacity (Vol%):                          ", allgemeine_Zahl(p.Feldkapazitaet));
    t.Zeile("Wilting point (Vol%):                             ", allgemeine_Zahl(p.Welkepunkt), 2);
    t.Zeile("Climatic conditions:                        ", l.Felder.Klimaszenario);
    if (p.Klimamodus == 1) {
        // The mean counts the spare days of the time axis as well.
        t.Zeile("Mean temperature (°C):                            ", feste_Zahl(l.Tag.Summe_Temperatur / (Tagesplaetze - 1), 1));
        t.Zeile("Annual Rainfall (mm):                                ", ganz_oder_leer(l.Tag.Summe_Niederschlag));
        t.Zeile("Annual pot. Evapotranspiration (mm):", ganz_oder_leer(l.Tag.Summe_Verdunstung));
    }
    t.Text({"(* for calculation of background concentrations)"}, 3);
}

void haenge_Applikationen_an(Textaufbau& t, const Eingabe& e) {
    t.Text({"APPLICATION PATTERN USED IN THE CALCULATION"}, 2);
    t.Zeile("Crop rotation:               ", Eintrag(Fruchtwechselarten, e.Fruchtwechsel), 2);
    Applikationsabschnitte.at(static_cast<std::size_t>(e.Applikationsmuster))(t, e);
    t.Enden(3);
}

void haenge_Stoffe_an(Textaufbau& t, const Lauf& l) {
    const Eingabe& e = l.Felder;
    t.Text({"COMPOUNDS CONSIDERED IN THE CALCULATION"}, 2);
    t.Zeile("Metabolism scheme:", Schemaname(e.Berechnungsmodus));
    if (e.Berechnungsmodus > 0) {
        t.Enden(1);
        t.Text({e.Berechnungsmodus == 2 ? Stofftabelle_mit_KOC : Stofftabelle_ohne_KOC}, 1);
        t.Zeile(e.Name_Wirkstoff, e.Molmasse_Wirkstoff);
        for (int c = 1; c < Anzahl_Stoffe(e.Berechnungsmodus); ++c) haenge_Metabolit_an(t, l, c);
    }
    t.Enden(3);
}

}  // namespace varnok
