#pragma once

// A drawing as data: what a painter puts on a surface of any size, in logical coordinates with y up.

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "diagrams/palette.h"

namespace varnok {

// Logical values at the four edges of the surface.
struct Koordinaten {
    double links = 0;
    double oben = 1;
    double rechts = 1;
    double unten = 0;

    double Breite() const { return rechts - links; }
    double Hoehe() const { return oben - unten; }

    friend bool operator==(const Koordinaten&, const Koordinaten&) = default;
};

struct Punkt {
    double x = 0;
    double y = 0;

    friend bool operator==(const Punkt&, const Punkt&) = default;
};

// A straight line; `Breite` in pixels of a screen of 96 per inch.
struct Linie {
    Punkt von;
    Punkt bis;
    int Farbe = Schwarz;
    int Breite = 1;
    int Muster = 0;  // of its dashes, 0 without any; see `Strichmuster`

    friend bool operator==(const Linie&, const Linie&) = default;
};

// Which point of a text's upper edge stands at its place.
enum class Anker { links, mittig, rechts };

// A text whose upper left corner stands at `Ort`, or the point of its upper edge that `Halt` says.
struct Schriftzug {
    Punkt Ort;
    std::string Inhalt;
    int Farbe = Schwarz;
    int Groesse = 10;  // points
    bool fett = false;
    bool kursiv = false;
    bool einpassen = false;  // a label: a painter moves it inside the surface where it would leave it
    Anker Halt = Anker::links;

    friend bool operator==(const Schriftzug&, const Schriftzug&) = default;
};

// A rectangle: its outline, and if it is filled, white over the first lines of the list, as many as `verdeckt` says.
struct Kasten {
    Punkt links_oben;
    Punkt rechts_unten;
    int Farbe = Schwarz;
    int Breite = 1;
    std::size_t verdeckt = 0;

    friend bool operator==(const Kasten&, const Kasten&) = default;
};

// Lines lie under boxes, but for those behind the lines that a filled box hides; texts lie over all. Among themselves they
// are painted in order.
struct Zeichenliste {
    Koordinaten System;
    std::vector<Linie> Linien;
    std::vector<Kasten> Kaesten;
    std::vector<Schriftzug> Texte;

    friend bool operator==(const Zeichenliste&, const Zeichenliste&) = default;
};

// Lines of one colour and width that go on where the one before ended.
struct Linienzug {
    std::vector<Punkt> Punkte;
    int Farbe = Schwarz;
    int Breite = 1;
    int Muster = 0;
};

// The lines of a list joined to as few pulls as their order allows: a curve of thousands of days is one
// drawing call, with clean corners.
std::vector<Linienzug> verbinde_Linien(std::span<const Linie> Linien);

}  // namespace varnok
