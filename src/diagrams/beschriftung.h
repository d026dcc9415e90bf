#pragma once

// Labels and legend of a diagram: their layout, and their way into the picture.

#include <string>
#include <vector>

#include "diagrams/diagramm.h"
#include "diagrams/diagrammsaetze.h"

namespace varnok {

// A frame on the surface, in fractions of its width and height, measured from the upper left corner.
struct Flaechenrechteck {
    double links = 0;
    double oben = 0;
    double Breite = 0;
    double Hoehe = 0;
};

// Where labels and legend stand when they are drawn into the picture. Title and comment take their left edge from
// the diagram, the others from here.
struct Beschriftungsplaetze {
    double Titel_oben = 0.010;
    double Kommentar_oben = 0.048;
    double Titelzeile = 0.036;  // from one line of a label to its next
    double Kommentarzeile = 0.036;
    Flaechenort Name_x_Achse = {0.390, 0.955};
    Flaechenort Name_y_Achse = {0.005, 0.010};
    Flaechenrechteck Legendenrahmen;
    double Musterlinie_links = 0.66;  // where sample lines begin, in fractions of the legend's frame
    bool mit_Legende = true;
};

// A row of a legend, its places in fractions of the legend's frame from the upper left corner.
struct Legendenzeile {
    std::string Text;
    bool Ueberschrift = false;  // name of a compound, without a sample line
    Musterlinie Linie;
    Flaechenort Textort;
    double Linie_links = 0;
    double Linie_rechts = 0;
    double Linie_oben = 0;
};

// The rows of a legend from top to bottom, evenly over its frame.
std::vector<Legendenzeile> Legendenzeilen(const Legende& l, double Musterlinie_links = Beschriftungsplaetze().Musterlinie_links);

// Rows of the frame at its full height: six in a summary, whose frame shrinks to the number of studies.
int volle_Zeilenzahl(const Legende& l);

// Height of the frame as share of its full height: n/6 in a summary of n studies, else 1.
double Hoehenanteil(const Legende& l);

// The places at home, for a surface of 640 x 500 pixels.
Beschriftungsplaetze Heimatplaetze(const Legende& l);

// A place of the surface in the logical coordinates of a drawing.
Punkt logisch(const Koordinaten& k, Flaechenort Ort);

// Draws title, axis names, comment, and the legend in its box, which hides the curves behind it, into the list. What is drawn
// stays until the diagram is built anew; a table of results never goes into the picture.
void erstelle_Diagramm_kopiere_Beschriftung(Diagramm& d, const Beschriftungsplaetze& p);
void erstelle_Diagramm_zusammenfassung_kopiere_Beschriftung(Diagramm& d, const Beschriftungsplaetze& p);

}  // namespace varnok
