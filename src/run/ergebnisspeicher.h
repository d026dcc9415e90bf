#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

#include "run/laufparameter.h"
#include "run/zeitachse.h"

namespace varnok {

inline constexpr int TWA_Plaetze = meiste_TWA + 1;  // place 0 is never used

// Index order [endpoint][study][compound].
template <class T>
using Ergebnistabelle = std::array<std::array<std::array<T, Stoffe>, Studienplaetze>, Endpunkte>;

using Bildungsreihen = std::array<std::array<float, Tagesplaetze>, 2>;
using Tagesreihe = std::span<float, Tagesplaetze>;
using Tagesreihe_lesend = std::span<const float, Tagesplaetze>;

// The results of all studies. Allocated once; a study that was never run holds zeros, and a run
// touches the section of its own study only. All concentrations are in the unit of `Einheit` per kg
// of soil (`Gesamtgehalt`) or per litre of pore water (`Porenwasser`).
class Ergebnisspeicher {
public:
    Ergebnisspeicher();

    // Daily concentration with the doses of all ten years mixed into the tillage depth.
    // The sum of all slots; the residues of the single applications are no result.
    Tagesreihe Reihe_Plateautiefe(Endpunktart e, int i_studie, int i_substanz);
    Tagesreihe_lesend Reihe_Plateautiefe(Endpunktart e, int i_studie, int i_substanz) const;

    // Daily concentration with the doses of the first year only, mixed into the soil depth.
    Tagesreihe Reihe_Bodentiefe(Endpunktart e, int i_studie, int i_substanz);
    Tagesreihe_lesend Reihe_Bodentiefe(Endpunktart e, int i_studie, int i_substanz) const;

    // Running trapezoid integral of `Reihe_Bodentiefe`, concentration times days.
    Tagesreihe Integral_Bodentiefe(Endpunktart e, int i_studie, int i_substanz);
    Tagesreihe_lesend Integral_Bodentiefe(Endpunktart e, int i_studie, int i_substanz) const;

    // Clears what a run of the study writes: its series, integral, maxima and background, the doses and the formation.
    void leere_Studie(int i_studie);
    // The same, and what is derived from the series: nothing of the study stands as a result.
    void verwirf_Studie(int i_studie);

    std::array<float, Tagesplaetze> Tagesrate{};                  // net dose on the soil, g/ha
    std::array<std::int16_t, Ereignisplaetze> Applikationstag{};  // day of event k; place 0 unused
    std::int16_t Anzahl_pro_Jahr = 0;
    double Wirksame_Rate = 0;  // the year's doses, each decayed to the last one, g/ha

    // Amount of a metabolite (0 first, 1 second) formed on each day, in its own mass.
    Bildungsreihen Bildung_Plateautiefe{};
    Bildungsreihen Bildung_Bodentiefe{};

    Ergebnistabelle<float> Maximum_Plateautiefe{};
    Ergebnistabelle<std::int16_t> Maximumtag_Plateautiefe{};  // day of the last new yearly maximum
    Ergebnistabelle<float> Maximum_Bodentiefe{};
    Ergebnistabelle<std::int16_t> Maximumtag_Bodentiefe{};
    Ergebnistabelle<std::array<float, Jahre + 1>> Jahresmaximum{};  // place 0 unused

    Ergebnistabelle<float> Plateauwert{};
    Ergebnistabelle<double> Plateauzuwachs{};
    Ergebnistabelle<std::string> Plateautext{};
    Ergebnistabelle<double> Plateauprozent{};  // the number of that text
    Ergebnistabelle<float> Plateaujahr{};

    Ergebnistabelle<std::array<float, TWA_Plaetze>> TWA_Maximum{};
    Ergebnistabelle<std::array<std::int16_t, TWA_Plaetze>> TWA_Starttag{};

private:
    // The daily series of one compound.
    struct Stoffreihen {
        std::array<std::array<float, Tagesplaetze>, Endpunkte> Plateau, Boden, Integral;
    };
    using Block = std::array<std::array<Stoffreihen, Stoffe>, max_Studien>;
    struct Freigabe {
        void operator()(Block* p) const { std::free(p); }
    };

    Stoffreihen& beschreibe(int i_studie, int i_substanz);
    const Stoffreihen& lies(int i_studie, int i_substanz) const;

    // Zeroed by the system on first touch: studies and compounds that are never run cost no memory.
    std::unique_ptr<Block, Freigabe> Reihen_;
    // Whether the series of a compound may hold anything else than zeros.
    std::array<std::array<bool, Stoffe>, max_Studien> beschrieben_{};
};

}  // namespace varnok
