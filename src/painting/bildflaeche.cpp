#include "painting/bildflaeche.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "diagrams/druckfassung.h"
#include "painting/diagrammlage.h"
#include "painting/rahmenfeld.h"
#include "painting/titelform.h"
#include "painting/zeichner.h"

namespace varnok {
namespace {

constexpr double Zeile = 16;       // units that a line of a label takes
constexpr double Titelzeile = 19;  // and one of the title, in letters of their usual size
constexpr double Legendenzeilenhoehe = 18;
constexpr double Rand = 6;  // units free beside title and comment

// Title and comment over each other, broken into lines; gives the units that they take.
double ordne_Titel(Diagramm& d, Beschriftungsplaetze& p, const QSizeF& Groesse) {
    const double Breite = Groesse.width() - 2 * Rand;
    const int Titelzeilen = setze_Titel(d.Titel, Breite, Schriftgroesse_Titel, Schriftgroesse_Bericht + 1, true, false);
    const int Kommentargroesse = std::min(Schriftgroesse_Fenster, d.Titel.Groesse - 1);
    const int Kommentarzeilen = setze_Titel(d.Kommentar, Breite, Kommentargroesse, Schriftgroesse_Bericht, false, true);
    p.Titelzeile = Titelzeile * d.Titel.Groesse / Schriftgroesse_Titel / Groesse.height();
    p.Kommentarzeile = Zeile * d.Kommentar.Groesse / Schriftgroesse_Fenster / Groesse.height();
    const double unter_Titel = 1 + Titelzeilen * p.Titelzeile * Groesse.height();
    p.Titel_oben = 1 / Groesse.height();
    p.Kommentar_oben = unter_Titel / Groesse.height();
    return unter_Titel + Kommentarzeilen * p.Kommentarzeile * Groesse.height();
}

// The name of the y axis at the top of its axis, that of the time axis in the middle below its numbers.
void ordne_Namen(Diagramm& d, Beschriftungsplaetze& p, const Koordinaten& Achsen, const QSizeF& Groesse, double Kopf) {
    const double Mitte = (Achsen.links + Achsen.rechts) / 2;
    for (Beschriftung* b : {&d.Titel, &d.Kommentar, &d.Name_x_Achse}) b->Mitte = Mitte;
    const QRectF Flaeche(QPointF(), Groesse);
    const double Achse = auf_Flaeche(Flaeche, d.Liste.System, {Achsen.links, 0}).x();
    p.Name_y_Achse = {(Achse + 5) / Groesse.width(), (Kopf - 1) / Groesse.height()};
    p.Name_x_Achse = {0, (Groesse.height() - Zeile - 6) / Groesse.height()};
}

// Every text of the list, and the name of the y axis, which stands at the top of where the legend may be.
void stelle_Legende(const Diagramm& d, Beschriftungsplaetze& p, const Koordinaten& Achsen, const Bildform& f, double Kopf) {
    const QRectF Flaeche(QPointF(), f.Groesse);
    Rahmenfeld Feld = bilde_Rahmenfeld(d.Liste, Flaeche, Achsen, Kopf);
    const Schriftzug Name = {logisch(d.Liste.System, p.Name_y_Achse), d.Name_y_Achse.Text, Schwarz, Schriftgroesse_Fenster, true};
    Feld.Texte.push_back(in_Anteilen(setze_Schrift(Flaeche, d.Liste.System, Name).Platz, f.Groesse));
    Flaechenrechteck& r = p.Legendenrahmen;
    r = ordne_Rahmen(Feld, {{r.Breite, r.Hoehe, {r.links, r.oben}, f.Legende}}).front().Ort;
}

}  // namespace

Zeichenliste mit_Beschriftung(Diagramm d, const Bildform& f) {
    if (f.fuer_Druck) richte_fuer_Druck(d);
    Beschriftungsplaetze p = Heimatplaetze(d.Legendeninhalt);
    const double Kopf = ordne_Titel(d, p, f.Groesse);
    const Koordinaten Achsen = passe_an_Flaeche(d.Liste, f.Groesse, {Kopf + Zeile - 5, Zeile + 6});
    ordne_Namen(d, p, Achsen, f.Groesse, Kopf);
    p.mit_Legende = f.mit_Legende;
    if (f.mit_Legende) {
        p.Legendenrahmen.Breite *= Bildbreite / f.Groesse.width();
        p.Legendenrahmen.Hoehe =
            static_cast<double>(Legendenzeilen(d.Legendeninhalt).size()) * Legendenzeilenhoehe / f.Groesse.height();
        passe_Legende_an(d.Legendeninhalt, p, f.Groesse.width());
        stelle_Legende(d, p, Achsen, f, Kopf);
    }
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
