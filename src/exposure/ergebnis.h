#pragma once

// What a run of a study leaves: the one value that tables, diagrams, reports, JSON, CSV and series read. Made from the stores in
// one place; the slots stay behind.

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "run/lauf.h"

namespace varnok {

// One averaging window. Concentrations in the unit of the input, per kg of soil or per litre of pore water.
struct Fensterergebnis {
    float Tage = 0;     // length
    float Maximum = 0;  // largest mean
    int Starttag = 0;   // first day of that window
    float aktuell = 0;  // concentration that many days after the day of the peak
};

struct Endpunktergebnis {
    float Maximum_Bodentiefe = 0;
    int Maximumtag_Bodentiefe = 0;  // -99 for a compound that never rose above 0
    float Maximum_Plateautiefe = 0;
    std::array<float, Jahre> Jahresmaximum{};  // year 1 first
    float Plateauwert = 0;
    double Plateauzuwachs = 0;
    std::string Plateautext;           // empty where no plateau was calculated
    double Plateauprozent = 0;         // the number of that text
    std::vector<Fensterergebnis> TWA;  // in the order of the list in force

    // Days 0 to 3649; empty in a result without series.
    std::vector<float> Reihe_Bodentiefe;
    std::vector<float> Reihe_Plateautiefe;
    std::vector<float> Integral_Bodentiefe;
};

struct Stoffergebnis {
    std::array<Endpunktergebnis, Endpunkte> Endpunktwerte;  // total soil first
};

struct Ergebnis {
    std::shared_ptr<const Eingabe> Vorgabe;  // the input that it comes from
    int i_studie = 0;

    int Anzahl_pro_Jahr = 0;
    double Wirksame_Rate = 0;          // g/ha
    std::vector<float> Tagesrate;      // g/ha, days 0 to 3649; empty in a result without series
    std::vector<int> Applikationstag;  // the events of the first year
    float erste_Rate = 0;              // net dose of the first event, g/ha
    // Amounts of the first and of the second metabolite formed in the tillage depth, in their own mass, days 0 to 3649;
    // empty in a result without series.
    std::array<std::vector<float>, 2> Bildung_Plateautiefe;

    // Of what was read from the climate file over the run; 0 in constant climate.
    double Summe_Temperatur = 0;
    double Summe_Niederschlag = 0;
    double Summe_Verdunstung = 0;

    std::vector<Stoffergebnis> Stoffwerte;  // those of the scheme, parent first
    std::vector<std::string> Warnungen;

    const Endpunktergebnis& Werte(Endpunktart e, int i_substanz) const {
        return Stoffwerte.at(static_cast<std::size_t>(i_substanz)).Endpunktwerte[e];
    }
};

// Results of the studies by place; null where none was made.
using Ergebnisse = std::array<std::shared_ptr<const Ergebnis>, max_Studien>;

enum class Umfang { vollstaendig, ohne_Reihen };

// Takes the result of a study out of the stores of a finished run. Throws Laufzeitfehler for a value that is not finite: no
// such number leaves here.
Ergebnis entnimm_Ergebnis(const Lauf& l, int i_studie, std::shared_ptr<const Eingabe> Vorgabe, Umfang u = Umfang::vollstaendig);

struct Studienlauf {
    Laufergebnis Ausgang;
    std::shared_ptr<const Ergebnis> Werte;  // null where the run ended early
};

// The calculation of one study (0 to 5), the same for the window and for scripts: puts the input into `Arbeitsplatz`, runs it,
// takes the result. What the place held before plays no part. A repaired table of applications (see
// `Tabelle_mit_Applikationen_berechne_PEC`) is that of the result's input. Throws as `berechne_PEC`.
Studienlauf berechne_Studie(Lauf& Arbeitsplatz, const std::shared_ptr<const Eingabe>& Vorgabe, int i_studie,
                            const Klimaquelle& Quelle, Umfang u = Umfang::vollstaendig);

}  // namespace varnok
