#pragma once

// The kinds that records and selectors choose from. Their codes are those of the records and of the lists, counted from 0.

#include <algorithm>
#include <cstdint>

namespace varnok {

enum Applikationsart : std::uint8_t { einzeln, regelmaessig, unregelmaessig };

enum Stoffschema : std::uint8_t { nur_Wirkstoff, ein_Metabolit, zwei_parallel, zwei_in_Folge };

enum Kinetikart : std::uint8_t { SFO, DFOP, FOMC, HS };  // FOMC and HS: parent only

enum Endpunktart : std::uint8_t { Gesamtgehalt, Porenwasser };

// The views: the first year in the soil depth, the tillage layer over ten years, the first with the plateau on top.
enum PEC_Ansicht : std::uint8_t { jaehrlich, Hintergrund, Anreicherung };

// How often the crop returns; the background is divided by the years between.
enum Fruchtfolge : std::uint8_t { jedes_Jahr, jedes_zweite_Jahr, jedes_dritte_Jahr };

// Number of compounds of a metabolism scheme.
constexpr int Anzahl_Stoffe(Stoffschema s) { return std::min<int>(s, zwei_parallel) + 1; }

// Years from one crop to the next.
constexpr int Anbaujahre(Fruchtfolge f) { return f + 1; }
constexpr Fruchtfolge Fruchtfolge_von(int Anbaujahre) { return static_cast<Fruchtfolge>(Anbaujahre - 1); }

}  // namespace varnok
