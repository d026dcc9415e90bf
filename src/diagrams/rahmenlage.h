#pragma once

// Where the legend and the table of results stand on a diagram, so that they cover no curve. Worked out from the drawing and the
// sizes of the frames, in fractions of the surface.

#include <array>
#include <optional>
#include <vector>

#include "diagrams/beschriftung.h"
#include "diagrams/zeichenliste.h"

namespace varnok {

// In the order in which they are tried.
enum class Rahmenplatz { Heimat, rechts_oben, links_oben, rechts_unten, links_unten, oben, rechts, unten, links };
inline constexpr int Rahmenplatzzahl = 9;

struct Rahmenwunsch {
    double Breite = 0;
    double Hoehe = 0;
    Flaechenort Heimat = {};
    std::optional<Flaechenort> gezogen = std::nullopt;     // by the user: it stands there, whatever it covers
    std::optional<Rahmenplatz> bisheriger = std::nullopt;  // where it stands now
    bool bleibt = false;                                   // there it stays, even if it covers something
};

struct Rahmenstand {
    Rahmenplatz Platz = Rahmenplatz::Heimat;
    Flaechenrechteck Ort;
};

// What stands on a diagram and where frames may be: `Raum` lies between the labels and the time axis.
struct Rahmenfeld {
    const Zeichenliste& Liste;
    Flaechenrechteck Raum;
    std::vector<Flaechenrechteck> Texte;  // numbers of the axes, labels
    double Luft_x = 0;                    // between a frame and a curve
    double Luft_y = 0;
};

// How much a rectangle of the surface covers.
struct Verdecktes {
    int Texte = 0;
    int Kurvenpunkte = 0;
    int Kastenstriche = 0;  // of the averages

    bool nichts() const { return Texte == 0 && Kurvenpunkte == 0 && Kastenstriche == 0; }
    friend auto operator<=>(const Verdecktes&, const Verdecktes&) = default;  // NOLINT(modernize-use-nullptr): a slip of the tool
};
Verdecktes zaehle_Verdecktes(const Rahmenfeld& f, const Flaechenrechteck& r);

// A place for each frame: its home or else the first place where it covers nothing; where there is none, that with the fewest
// points of curves. Frames stay clear of each other; of two that want the same place the first has it. What stands at another
// place already and covers nothing, stays.
std::vector<Rahmenstand> ordne_Rahmen(const Rahmenfeld& f, const std::vector<Rahmenwunsch>& Rahmen);

struct Rahmengroesse {
    double Breite = 0;
    double Hoehe = 0;
};

// Which of its sizes the last frame takes, that which reads best being the first and one for need alone the last: the first in
// which no frame covers anything. Where there is none, the first unless it hides too much of the room; then that for need if all
// is free with it, else the first that hides less.
std::size_t waehle_Groesse(const Rahmenfeld& f, std::vector<Rahmenwunsch> Rahmen, const std::vector<Rahmengroesse>& Groessen);

}  // namespace varnok
