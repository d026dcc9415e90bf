#include "painting/bildflaeche.h"

#include <QPainter>
#include <algorithm>

#include "painting/diagrammlage.h"
#include "painting/zeichner.h"

namespace varnok {
namespace {

constexpr double Zeile = 16;  // units that a line of a label takes

double Textbreite(const Beschriftung& b, const Koordinaten& System, bool fett) {
    return setze_Schrift(Bildflaeche, System, {{0, 0}, b.Text, Schwarz, 10, fett, !fett, true}, Schriftgroesse_Bericht)
        .Platz.width();
}

// The middle of the time axis, in units.
double Achsenmitte(const Koordinaten& System, const Koordinaten& Achsen) {
    return auf_Flaeche(Bildflaeche, System, {(Achsen.links + Achsen.rechts) / 2, 0}).x();
}

// The formula of the left edge takes letters for a share of the axis; where that is more than they need, the text is
// centred by its true width.
void rueck_zur_Mitte(Beschriftung& b, const Koordinaten& System, const Koordinaten& Achsen, bool fett) {
    const double Mitte = (Achsen.links + Achsen.rechts) / 2;
    const double mittig = Mitte - Textbreite(b, System, fett) / 2 / Bildbreite * System.Breite();
    b.links = std::max(b.links.value_or(mittig), mittig);
}

// Title and comment in two close lines, each over the whole width; under them the name of the y axis at the top of its
// axis, that of the time axis in the middle below its numbers.
void ordne_Namen(Beschriftungsplaetze& p, const Diagramm& d, const Koordinaten& Achsen) {
    const Koordinaten& System = d.Liste.System;
    p.Titel_oben = 1.0 / Bildhoehe;
    p.Kommentar_oben = (1 + Zeile) / Bildhoehe;
    p.Name_y_Achse = {(auf_Flaeche(Bildflaeche, System, {Achsen.links, 0}).x() + 5) / Bildbreite, 2 * Zeile / Bildhoehe};
    p.Name_x_Achse = {(Achsenmitte(System, Achsen) - Textbreite(d.Name_x_Achse, System, true) / 2) / Bildbreite,
                      (Bildhoehe - Zeile - 6) / Bildhoehe};
}

}  // namespace

Zeichenliste mit_Beschriftung(Diagramm d, const std::optional<Flaechenort>& Legende) {
    const Koordinaten Achsen = passe_an_Flaeche(d.Liste, Bildflaeche.size(), {3 * Zeile - 4, Zeile + 6});
    Beschriftungsplaetze p = Heimatplaetze(d.Legendeninhalt);
    ordne_Namen(p, d, Achsen);
    rueck_zur_Mitte(d.Titel, d.Liste.System, Achsen, true);
    rueck_zur_Mitte(d.Kommentar, d.Liste.System, Achsen, false);
    if (Legende) {
        p.Legendenrahmen.links = Legende->links;
        p.Legendenrahmen.oben = Legende->oben;
    } else {
        p.Legendenrahmen.oben = std::max(p.Legendenrahmen.oben, p.Kommentar_oben + (Zeile + 4) / Bildhoehe);
    }
    p.Legendenrahmen.oben = std::max(0.0, std::min(p.Legendenrahmen.oben, 1 - p.Legendenrahmen.Hoehe - 1.0 / Bildhoehe));
    passe_Legende_an(d.Legendeninhalt, p, Bildbreite);
    if (d.Zusammenfassung) {
        erstelle_Diagramm_zusammenfassung_kopiere_Beschriftung(d, p);
    } else {
        erstelle_Diagramm_kopiere_Beschriftung(d, p);
    }
    return d.Liste;
}

QImage erstelle_Berichtsbild(const Zeichenliste& z) {
    QImage Bild(Bildbreite * Bildpunkte_pro_Einheit, Bildhoehe * Bildpunkte_pro_Einheit, QImage::Format_RGB32);
    Bild.fill(Qt::white);
    QPainter p(&Bild);
    p.scale(Bildpunkte_pro_Einheit, Bildpunkte_pro_Einheit);
    male(p, Bildflaeche, z, Schriftgroesse_Bericht);
    return Bild;
}

}  // namespace varnok
