#pragma once

// Which diagram belongs to which metabolism scheme and compound, and where its frames stand at first.

#include <array>
#include <cstddef>

namespace varnok {

inline constexpr int Diagrammzahl = 12;         // indices `Diagrammsatz`
inline constexpr int Zusammenfassungszahl = 9;  // indices `Zusammenfassungssatz`
inline constexpr int kein_Satz = -1;

// Compound of a diagram that shows all compounds of a study.
inline constexpr int alle_Stoffe = -1;

struct Satzplatz {
    int Berechnungsmodus;
    int i_substanz;
};

inline constexpr std::array<Satzplatz, Diagrammzahl> Diagrammplaetze = {{
    {0, 0},
    {1, 0},
    {1, 1},
    {1, alle_Stoffe},
    {2, 0},
    {2, 1},
    {2, 2},
    {2, alle_Stoffe},
    {3, 0},
    {3, 1},
    {3, 2},
    {3, alle_Stoffe},
}};

inline constexpr std::array<Satzplatz, Zusammenfassungszahl> Zusammenfassungsplaetze = {{
    {0, 0},
    {1, 0},
    {1, 1},
    {2, 0},
    {2, 1},
    {2, 2},
    {3, 0},
    {3, 1},
    {3, 2},
}};

template <std::size_t Anzahl>
constexpr int suche_Satz(const std::array<Satzplatz, Anzahl>& Plaetze, int Berechnungsmodus, int i_substanz) {
    for (std::size_t i = 0; i < Anzahl; ++i) {
        if (Plaetze[i].Berechnungsmodus == Berechnungsmodus && Plaetze[i].i_substanz == i_substanz) return static_cast<int>(i);
    }
    return kein_Satz;
}

// Index of a compound's diagram, of the multi-compound diagram, of a compound's summary diagram; `kein_Satz` where
// the scheme has none.
constexpr int Diagrammsatz_von(int Berechnungsmodus, int i_substanz) {
    return suche_Satz(Diagrammplaetze, Berechnungsmodus, i_substanz);
}
constexpr int Mehrfachsatz_von(int Berechnungsmodus) { return suche_Satz(Diagrammplaetze, Berechnungsmodus, alle_Stoffe); }
constexpr int Zusammenfassungssatz_von(int Berechnungsmodus, int i_substanz) {
    return suche_Satz(Zusammenfassungsplaetze, Berechnungsmodus, i_substanz);
}

constexpr bool ist_mehrfach(int Diagrammsatz) {
    return Diagrammplaetze[static_cast<std::size_t>(Diagrammsatz)].i_substanz == alle_Stoffe;
}

// The compound of a diagram; it also chooses its name and its kinetics. A multi-compound diagram counts as the parent's.
constexpr int Substanz_von_Diagramm(int Diagrammsatz) {
    return ist_mehrfach(Diagrammsatz) ? 0 : Diagrammplaetze[static_cast<std::size_t>(Diagrammsatz)].i_substanz;
}
constexpr int Substanz_von_Zusammenfassung(int Zusammenfassungssatz) {
    return Zusammenfassungsplaetze[static_cast<std::size_t>(Zusammenfassungssatz)].i_substanz;
}

// Where a left click leads: the next diagram of the scheme and the compound that is in work then.
struct Ringziel {
    int Satz;
    int i_substanz;
    bool bleibt = false;  // the scheme has one diagram only: index and compound stay
};

inline constexpr std::array<Ringziel, Diagrammzahl> Diagrammring = {{
    {0, 0, true},
    {2, 1},
    {3, 0},
    {1, 0},
    {5, 1},
    {6, 2},
    {7, 0},
    {4, 0},
    {9, 1},
    {10, 2},
    {11, 0},
    {8, 0},
}};

inline constexpr std::array<Ringziel, Zusammenfassungszahl> Zusammenfassungsring = {{
    {0, 0, true},
    {2, 1},
    {1, 0},
    {4, 1},
    {5, 2},
    {3, 0},
    {7, 1},
    {8, 2},
    {6, 0},
}};

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
