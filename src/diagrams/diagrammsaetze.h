#pragma once

// Which diagram belongs to which metabolism scheme and compound, and where its frames stand at first.

#include <array>
#include <cstddef>

#include "run/arten.h"

namespace varnok {

inline constexpr int Diagrammzahl = 12;         // indices `Diagrammsatz`
inline constexpr int Zusammenfassungszahl = 9;  // indices `Zusammenfassungssatz`
inline constexpr int kein_Diagramm = -1;

// Compound of a diagram that shows all compounds of a study.
inline constexpr int alle_Stoffe = -1;

struct Diagrammplatz {
    Stoffschema Schema;
    int i_substanz;
};

inline constexpr std::array<Diagrammplatz, Diagrammzahl> Diagrammplaetze = {{
    {nur_Wirkstoff, 0},
    {ein_Metabolit, 0},
    {ein_Metabolit, 1},
    {ein_Metabolit, alle_Stoffe},
    {zwei_parallel, 0},
    {zwei_parallel, 1},
    {zwei_parallel, 2},
    {zwei_parallel, alle_Stoffe},
    {zwei_in_Folge, 0},
    {zwei_in_Folge, 1},
    {zwei_in_Folge, 2},
    {zwei_in_Folge, alle_Stoffe},
}};

inline constexpr std::array<Diagrammplatz, Zusammenfassungszahl> Zusammenfassungsplaetze = {{
    {nur_Wirkstoff, 0},
    {ein_Metabolit, 0},
    {ein_Metabolit, 1},
    {zwei_parallel, 0},
    {zwei_parallel, 1},
    {zwei_parallel, 2},
    {zwei_in_Folge, 0},
    {zwei_in_Folge, 1},
    {zwei_in_Folge, 2},
}};

template <std::size_t Anzahl>
constexpr int suche_Nummer(const std::array<Diagrammplatz, Anzahl>& Plaetze, Stoffschema Schema, int i_substanz) {
    for (std::size_t i = 0; i < Anzahl; ++i) {
        if (Plaetze[i].Schema == Schema && Plaetze[i].i_substanz == i_substanz) return static_cast<int>(i);
    }
    return kein_Diagramm;
}

// Index of a compound's diagram, of the multi-compound diagram, of a compound's summary diagram; `kein_Diagramm` where
// the scheme has none.
constexpr int Diagrammsatz_von(Stoffschema Schema, int i_substanz) { return suche_Nummer(Diagrammplaetze, Schema, i_substanz); }
constexpr int Mehrfachsatz_von(Stoffschema Schema) { return suche_Nummer(Diagrammplaetze, Schema, alle_Stoffe); }
constexpr int Zusammenfassungssatz_von(Stoffschema Schema, int i_substanz) {
    return suche_Nummer(Zusammenfassungsplaetze, Schema, i_substanz);
}

constexpr Stoffschema Schema_von_Diagramm(int Diagrammsatz) {
    return Diagrammplaetze[static_cast<std::size_t>(Diagrammsatz)].Schema;
}

constexpr bool ist_mehrfach(int Diagrammsatz) {
    return Diagrammplaetze[static_cast<std::size_t>(Diagrammsatz)].i_substanz == alle_Stoffe;
}

// The compound in work at a place; it also chooses its name and its kinetics. A multi-compound diagram counts as the parent's.
constexpr int Substanz_in_Arbeit(const Diagrammplatz& p) { return p.i_substanz == alle_Stoffe ? 0 : p.i_substanz; }
constexpr int Substanz_von_Diagramm(int Diagrammsatz) {
    return Substanz_in_Arbeit(Diagrammplaetze[static_cast<std::size_t>(Diagrammsatz)]);
}
constexpr int Substanz_von_Zusammenfassung(int Zusammenfassungssatz) {
    return Substanz_in_Arbeit(Zusammenfassungsplaetze[static_cast<std::size_t>(Zusammenfassungssatz)]);
}

// Where a left click leads: the next diagram of the scheme and the compound that is in work then.
struct Ringziel {
    int Nummer = 0;
    int i_substanz = 0;
    bool bleibt = false;  // the scheme has one diagram only: index and compound stay
};

// From each place to the next one of its scheme, from the last one back to the parent's.
template <std::size_t Anzahl>
constexpr std::array<Ringziel, Anzahl> bilde_Ring(const std::array<Diagrammplatz, Anzahl>& Plaetze) {
    std::array<Ringziel, Anzahl> Ring{};
    for (std::size_t i = 0; i < Anzahl; ++i) {
        const bool letzter = i + 1 == Anzahl || Plaetze[i + 1].Schema != Plaetze[i].Schema;
        const auto Ziel = letzter ? static_cast<std::size_t>(suche_Nummer(Plaetze, Plaetze[i].Schema, 0)) : i + 1;
        Ring[i] = {static_cast<int>(Ziel), Substanz_in_Arbeit(Plaetze[Ziel]), Ziel == i};
    }
    return Ring;
}

inline constexpr std::array<Ringziel, Diagrammzahl> Diagrammring = bilde_Ring(Diagrammplaetze);
inline constexpr std::array<Ringziel, Zusammenfassungszahl> Zusammenfassungsring = bilde_Ring(Zusammenfassungsplaetze);

// A place on the surface in fractions of its width and height, measured from the upper left corner.
struct Flaechenort {
    double links = 0;
    double oben = 0;
};

// Home of a frame's upper left corner: lengths on a surface of 9600 x 7500 units, 640 x 500 pixels.
constexpr Flaechenort Heimat(double links, double oben) { return {links / 9600, oben / 7500}; }

inline constexpr Flaechenort Heimat_Ergebnis = Heimat(6000, 4000);
inline constexpr Flaechenort Heimat_Legende = Heimat(7000, 500);
inline constexpr Flaechenort Heimat_Legende_mehrfach = Heimat(7000, 1000);

}  // namespace varnok
