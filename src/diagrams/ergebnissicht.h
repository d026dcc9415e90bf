#pragma once

// What the selectors make of the results: the values and words that a diagram shows.

#include <string>
#include <vector>

#include "exposure/darstellung.h"

namespace varnok {

// Endpoint, view and averaging window chosen, over the results. Unit, name of the window, scheme and kinetics in texts are
// those of one study. The sums of the accumulation view are formed in single precision like the values themselves.
class Ergebnissicht {
public:
    Ergebnissicht(const Darstellung& d, int i_studie);

    PEC_Ansicht PEC_Art() const { return d_.Sicht.PEC_Typ; }
    Endpunktart Endpunkt() const { return d_.Sicht.Endpunkt; }
    Einheitsart Masseneinheit() const { return Vorgabe_.Parameter.Einheit; }

    // Largest value of the run, and the series on the days from `von` to `bis`.
    float Maximum(int i_studie, int i_substanz) const;
    std::vector<float> Werte(int i_studie, int i_substanz, int von, int bis) const;
    // The series in the tillage depth, whatever the view.
    const std::vector<float>& Reihe_Plateautiefe(int i_studie, int i_substanz) const;

    // Day of the peak in the soil depth and a number of days behind it.
    float Maximumtag_plus(int i_studie, int i_substanz, float Tage) const;

    // Length, height and first day of the averaging window selected, and the length of the longest one of the list.
    float TWA_Fenster(int i_studie, int i_substanz) const { return Fenster(i_studie, i_substanz).Tage; }
    float TWA_Hoehe(int i_studie, int i_substanz) const;
    float TWA_Start(int i_studie, int i_substanz) const;
    float laengstes_Fenster(int i_studie, int i_substanz) const;

    // Texts that depend on unit and endpoint: "mg/kg" in the axis name, the head of the day series, the table's title.
    std::string Name_y_Achse() const;
    std::string Dateikopf() const;
    std::string Ergebnistitel() const;

    // "TWA  (28 d)" for the legend, with the two blanks that come of the entry's text.
    std::string TWA_Text() const;
    // First words of a title: the view and the description.
    std::string Titelanfang() const;
    // The comment of a diagram of all compounds, and of a diagram of one.
    std::string Schemakommentar() const;
    std::string Stoffkommentar(int i_substanz) const;

    int Studienzahl() const { return d_.Namen.Studienzahl(); }
    const std::string& Studienname(int i_studie) const { return d_.Namen.Studie.at(static_cast<std::size_t>(i_studie)); }
    const std::string& Stoffname(int i_substanz) const { return varnok::Stoffname(d_.Namen, i_substanz); }

private:
    const Fensterergebnis& Fenster(int i_studie, int i_substanz) const;
    std::string Einheit() const;

    Darstellung d_;
    int i_studie_;  // whose words they are
    const Eingabe& Vorgabe_;
};

}  // namespace varnok
