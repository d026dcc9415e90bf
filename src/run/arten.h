#pragma once

// The kinds that records and selectors choose from. Their codes are those of the records and of the lists, counted from 0.

#include <algorithm>
#include <array>
#include <cstdint>

namespace varnok {

enum Applikationsart : std::uint8_t { einzeln, regelmaessig, unregelmaessig };

enum Stoffschema : std::uint8_t { nur_Wirkstoff, ein_Metabolit, zwei_parallel, zwei_in_Folge };

enum Kinetikart : std::uint8_t { SFO, DFOP, FOMC, HS };  // FOMC and HS: parent only

enum Endpunktart : std::uint8_t { Gesamtgehalt, Porenwasser };
inline constexpr std::array alle_Endpunkte = {Gesamtgehalt, Porenwasser};

// The views: the first year in the soil depth, the tillage layer over ten years, the first with the plateau on top.
enum PEC_Ansicht : std::uint8_t { jaehrlich, Hintergrund, Anreicherung };

// How often the crop returns; the background is divided by the years between.
enum Fruchtfolge : std::uint8_t { jedes_Jahr, jedes_zweite_Jahr, jedes_dritte_Jahr };

// Where the temperature of a day comes from.
enum Klimaart : std::uint8_t { konstante_Temperatur, nach_Klimadatei };

// What concentrations count: mg or micrograms.
enum Einheitsart : std::uint8_t { Milligramm, Mikrogramm };

// Whether the residues of each application decline by themselves, and if so, beyond the end of their year.
enum Rueckstandsart : std::uint8_t { gemeinsam, getrennt, im_Jahr_getrennt };

// Which of the two lists of averaging windows is in force.
enum TWA_Listenart : std::uint8_t { Monatsliste, EU_Liste };

// How many of the unit are a milligram.
constexpr double Einheitenfaktor(Einheitsart e) { return e == Milligramm ? 1 : 1000; }

// Number of compounds of a metabolism scheme.
constexpr int Anzahl_Stoffe(Stoffschema s) { return std::min<int>(s, zwei_parallel) + 1; }

// Years from one crop to the next.
constexpr int Anbaujahre(Fruchtfolge f) { return f + 1; }
constexpr Fruchtfolge Fruchtfolge_von(int Anbaujahre) { return static_cast<Fruchtfolge>(Anbaujahre - 1); }

}  // namespace varnok
