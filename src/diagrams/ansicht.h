#pragma once

// What the selectors make of the stores: the values that a diagram shows.

#include <string>
#include <string_view>
#include <vector>

#include "run/lauf.h"

namespace varnok {

// Endpoint, view and averaging window of the entry fields, over the stores of a run. The sums of the accumulation
// view are formed in single precision like the values themselves.
class Ansicht {
public:
    // views of `PEC_Typ`; 0 is the annual one
    static constexpr int Hintergrund = 1;
    static constexpr int Anreicherung = 2;

    explicit Ansicht(const Lauf& l);

    int Endpunkt() const { return static_cast<int>(e_); }
    int PEC_Art() const { return Art_; }

    // Largest value of the run, and the series on the days from `von` to `bis`.
    float Maximum(int i_studie, int i_substanz) const;
    std::vector<float> Werte(int i_studie, int i_substanz, int von, int bis) const;

    // Day of the peak in the soil depth and a number of days behind it.
    float Maximumtag_plus(int i_studie, int i_substanz, float Tage) const;

    // The averaging window selected, and the longest one of the list in force.
    float TWA_Fenster() const { return l_->Speicher.TWA_Tage[Fenster_]; }
    float laengstes_Fenster() const;
    float TWA_Hoehe(int i_studie, int i_substanz) const;
    float TWA_Start(int i_studie, int i_substanz) const;

    // Texts that depend on unit and endpoint: "mg/kg" in the axis name, the head of the day series, the table's title.
    std::string Name_y_Achse() const;
    std::string Dateikopf() const;
    std::string Ergebnistitel() const;

    // "TWA  (28 d)" for the legend, with the two blanks that come of the entry's text.
    std::string TWA_Text() const;
    // First words of a title.
    std::string_view Titelanfang() const;

private:
    std::string Einheit() const;

    const Lauf* l_;
    std::size_t e_;
    int Art_;
    std::size_t Fenster_;
};

// Number of studies, and the name of one; empty for a study without a name.
int Studienzahl(const Lauf& l);
std::string Studienname(const Lauf& l, int i_studie);

// "SFO", "DFOP", "FOMC" or "HS", of the study's code.
std::string_view Kinetiktext(const Lauf& l, int i_substanz, int i_studie);

// Caption of the page of a metabolism scheme.
std::string_view Schematext(int Berechnungsmodus);

// The comment of a diagram of one compound; the kinetics is that of the study.
std::string Stoffkommentar(const Lauf& l, int i_substanz, int i_studie);

}  // namespace varnok
