#pragma once

// A finished diagram: the drawing, and beside it what stands on it as objects of their own.

#include <optional>
#include <string>
#include <vector>

#include "diagrams/zeichenliste.h"
#include "run/arten.h"

namespace varnok {

// A label. `links` is the left edge in logical units where a formula gives one; else the layout places it. A layout that
// centres it says where, and may break it into lines.
struct Beschriftung {
    std::string Text;
    int Farbe = Schwarz;
    bool fett = false;
    std::optional<double> links;
    std::optional<double> Mitte = std::nullopt;
    int Groesse = 10;  // points

    friend bool operator==(const Beschriftung&, const Beschriftung&) = default;
};

struct Musterlinie {
    int Farbe = Schwarz;
    int Breite = 1;
    int Muster = 0;

    friend bool operator==(const Musterlinie&, const Musterlinie&) = default;
};

struct Legendeneintrag {
    std::string Text;
    Musterlinie Linie;

    friend bool operator==(const Legendeneintrag&, const Legendeneintrag&) = default;
};

// The entries of a compound; only a multi-compound legend has the title.
struct Legendengruppe {
    std::string Titel;
    std::vector<Legendeneintrag> Eintraege;

    friend bool operator==(const Legendengruppe&, const Legendengruppe&) = default;
};

enum class Legendenart { einzeln, mehrfach, Zusammenfassung };

// Single: one group, PEC and TWA. Multi-compound: a group for each compound. Summary: one group, a line for each study.
struct Legende {
    Legendenart Art = Legendenart::einzeln;
    std::vector<Legendengruppe> Gruppen;

    friend bool operator==(const Legende&, const Legende&) = default;
};

// A curve as numbers, for reading values off the picture.
struct Kurve {
    std::string Name;  // compound, or study in a summary diagram
    int Farbe = Schwarz;
    int erster_Tag = 0;
    std::vector<float> Werte;  // one for each day from there on
};

// The box of an average as numbers.
struct Mittelwert {
    std::string Name;  // compound, or study in a summary diagram
    double Start = 0;  // first day
    double Tage = 0;
    double Hoehe = 0;
    int Farbe = Schwarz;
};

// The text file that a drawing leaves behind. Lines without their line ends, UTF-8.
struct Nebenprodukt {
    std::string Dateiname;  // without folder; empty where the drawing writes none
    std::vector<std::string> Zeilen;
};

struct Diagramm {
    int Nummer = 0;  // `Diagrammsatz`, or `Zusammenfassungssatz` in a summary
    bool Zusammenfassung = false;
    Zeichenliste Liste;
    Beschriftung Titel;
    Beschriftung Kommentar;
    Beschriftung Name_x_Achse;
    Beschriftung Name_y_Achse;
    std::string Ergebnistitel;            // over the table of results; empty for a multi-compound diagram, which has none
    Einheitsart Einheit = Milligramm;     // of the curves,
    Endpunktart Endpunkt = Gesamtgehalt;  // per kg of soil or per litre of pore water
    Legende Legendeninhalt;
    std::vector<Kurve> Kurven;
    std::vector<Mittelwert> Mittelwerte;  // none in the view "Background"
    Nebenprodukt Datei;
};

// A value read off a diagram.
struct Ablesung {
    std::string Name;
    int Tag = 0;
    float Wert = 0;
    int Farbe = Schwarz;
};

// The curve nearest to a point of the picture (logical coordinates) and its value on the day under the point; the
// first one of several at the same distance. Nothing outside the days that are drawn. A peak within `Fang` of the point, a
// distance in both directions, goes before.
std::optional<Ablesung> lies_ab(const Diagramm& d, Punkt p, Punkt Fang = {});

// "day 50: 0.6667 mg/kg, Compound A", with four significant digits.
std::string Ablesungstext(const Diagramm& d, const Ablesung& a);

}  // namespace varnok
