#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exposure/darstellung.h"

namespace varnok {

// What a table, diagram or report shows for a stored value in a view and a crop rotation: the value and the background that
// the view adds to it.
double Ansichtswert(float Plateauwert, PEC_Ansicht PEC_Art, Fruchtfolge Fruchtwechsel, float gespeichert);

// Text of a concentration in the unit `Einheit`. `kuerzen` cuts zeros at the end, `Grenztext` writes "<0.0001"
// or "<0.01" for what rounds to zero. Throws Laufzeitfehler for a negative value unless the pattern is fixed.
std::string Formatiere_Zahl(double Wert, bool kuerzen, bool Grenztext, Einheitsart Einheit, char Dezimalzeichen = '.');

// Day that lies a window's length after the day of the peak in the soil depth, at most the last day of the run.
// Negative for a compound that never rose above 0 and a short window: there the concentration is 0.
int PECactual_Tag(int Maximumtag, float Fenstertage);

// The values of a result table: a row for the peak, then one for each window; a column for each kind of value or each study.
struct Ergebniswerte {
    struct Spalte {
        std::string Kopf;
        Einheitsart Einheit = Milligramm;  // of its concentrations
    };
    struct Zeile {
        std::optional<float> Fenster;                // days; none for the peak
        std::vector<std::optional<double>> Spalten;  // as the view shows it; a peak has no average
    };
    std::vector<Spalte> Spalten;
    std::vector<Zeile> Zeilen;

    // The texts of label and value, without any blanks around them.
    static std::string Bezeichnung(const Zeile& z, char Dezimalzeichen = '.');
    std::string Text(const Zeile& z, std::size_t i_spalte, char Dezimalzeichen = '.') const;
};
inline constexpr const char* Fensterkopf = "Time(d)";  // over the labels

// Of a compound and study for endpoint, view and crop rotation chosen, and of a compound over all studies.
Ergebniswerte Werte_einer_Studie(const Darstellung& d, int i_studie, int i_substanz);
Ergebniswerte Werte_aller_Studien(const Darstellung& d, int i_substanz);

using Tabellentext = std::vector<std::vector<std::string>>;  // [row][column]

// Row labels and heads of a result grid as the screen sets them: 3 rows more than averaging windows, 3 columns.
Tabellentext Tabellenkopf(const Laufparameter& p, char Dezimalzeichen = '.');

// The result grid of a compound and study for endpoint, view and crop rotation chosen.
// The view "Background" fills nothing: `Tabelle` stays.
void erstelle_Ergebnistabelle(const Darstellung& d, int i_studie, int i_substanz, Tabellentext& Tabelle);

// The summary grid of a compound: row labels, then one column for each study.
void erstelle_Ergebnistabelle_Zusammenfassung(const Darstellung& d, int i_substanz, Tabellentext& Tabelle);

}  // namespace varnok
