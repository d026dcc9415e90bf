#include "diagrams/beschriftung.h"

#include "base/text.h"
#include "run/zeitachse.h"

namespace varnok {
namespace {

constexpr double Rahmenbreite = 0.25;
constexpr double Zeilenhoehe = 0.04;  // of the surface: 20 of 500 pixels
constexpr int Schriftgroesse = 10;

bool hat_Titel(const Legende& l) { return l.Art == Legendenart::mehrfach; }

int Zeilenzahl(const Legende& l) {
    int Anzahl = 0;
    for (const Legendengruppe& g : l.Gruppen) Anzahl += (hat_Titel(l) ? 1 : 0) + static_cast<int>(g.Eintraege.size());
    return Anzahl;
}

// Place inside a frame -> place on the surface.
Flaechenort im_Rahmen(const Flaechenrechteck& r, Flaechenort Ort) {
    return {r.links + Ort.links * r.Breite, r.oben + Ort.oben * r.Hoehe};
}

enum class Schnitt { normal, fett, kursiv };

void schreibe(Zeichenliste& z, Punkt Ort, std::string_view Inhalt, int Farbe, Schnitt s, int Groesse = Schriftgroesse,
              Anker Halt = Anker::links) {
    z.Texte.push_back({Ort, std::string(Inhalt), Farbe, Groesse, s == Schnitt::fett, s == Schnitt::kursiv, true, Halt});
}

void schreibe_Beschriftung(Zeichenliste& z, const Beschriftung& b, Flaechenort Ort, int Farbe, Schnitt s, double Zeile = 0) {
    Punkt p = logisch(z.System, Ort);
    if (b.links) p.x = *b.links;
    if (b.Mitte) p.x = *b.Mitte;
    for (const std::string_view Inhalt : zerlege_an(b.Text, '\n')) {
        schreibe(z, p, Inhalt, Farbe, s, b.Groesse, b.Mitte ? Anker::mittig : Anker::links);
        p.y -= Zeile * z.System.Hoehe();
    }
}

void zeichne_Legende(Zeichenliste& z, const Legende& l, const Beschriftungsplaetze& p) {
    const Flaechenrechteck& r = p.Legendenrahmen;
    z.Kaesten.push_back({logisch(z.System, {r.links, r.oben}), logisch(z.System, {r.links + r.Breite, r.oben + r.Hoehe}), Schwarz,
                         1, z.Linien.size()});
    for (const Legendenzeile& Zeile : Legendenzeilen(l, p.Musterlinie_links)) {
        schreibe(z, logisch(z.System, im_Rahmen(r, Zeile.Textort)), Zeile.Text, Schwarz, Schnitt::normal);
        if (Zeile.Ueberschrift) continue;
        z.Linien.push_back({logisch(z.System, im_Rahmen(r, {Zeile.Linie_links, Zeile.Linie_oben})),
                            logisch(z.System, im_Rahmen(r, {Zeile.Linie_rechts, Zeile.Linie_oben})), Zeile.Linie.Farbe,
                            Zeile.Linie.Breite, Zeile.Linie.Muster});
    }
}

}  // namespace

std::vector<Legendenzeile> Legendenzeilen(const Legende& l, double Musterlinie_links) {
    std::vector<Legendenzeile> Zeilen;
    const double Anteil = 1.0 / Zeilenzahl(l);
    const auto fuege_an = [&](const std::string& Text, bool Ueberschrift, const Musterlinie& Linie) {
        const double oben = static_cast<double>(Zeilen.size()) * Anteil;
        const double Einzug = hat_Titel(l) && !Ueberschrift ? 0.12 : 0.04;
        const Flaechenort Textort = {Einzug, oben + 0.1 * Anteil};
        Zeilen.push_back({Text, Ueberschrift, Linie, Textort, Musterlinie_links, 0.95, oben + 0.5 * Anteil});
    };
    for (const Legendengruppe& g : l.Gruppen) {
        if (hat_Titel(l)) fuege_an(g.Titel, true, {});
        for (const Legendeneintrag& e : g.Eintraege) fuege_an(e.Text, false, e.Linie);
    }
    return Zeilen;
}

int volle_Zeilenzahl(const Legende& l) { return l.Art == Legendenart::Zusammenfassung ? max_Studien : Zeilenzahl(l); }

double Hoehenanteil(const Legende& l) { return static_cast<double>(Zeilenzahl(l)) / volle_Zeilenzahl(l); }

Beschriftungsplaetze Heimatplaetze(const Legende& l) {
    Beschriftungsplaetze p;
    const Flaechenort Ort = l.Art == Legendenart::mehrfach ? Heimat_Legende_mehrfach : Heimat_Legende;
    p.Legendenrahmen = {Ort.links, Ort.oben, Rahmenbreite, Zeilenhoehe * volle_Zeilenzahl(l) * Hoehenanteil(l)};
    return p;
}

Punkt logisch(const Koordinaten& k, Flaechenort Ort) { return {k.links + Ort.links * k.Breite(), k.oben - Ort.oben * k.Hoehe()}; }

void erstelle_Diagramm_kopiere_Beschriftung(Diagramm& d, const Beschriftungsplaetze& p) {
    Zeichenliste& z = d.Liste;
    schreibe_Beschriftung(z, d.Titel, {0, p.Titel_oben}, d.Titel.Farbe, Schnitt::fett, p.Titelzeile);
    schreibe_Beschriftung(z, d.Name_x_Achse, p.Name_x_Achse, d.Titel.Farbe, Schnitt::fett);  // in the title's colour
    schreibe_Beschriftung(z, d.Name_y_Achse, p.Name_y_Achse, d.Titel.Farbe, Schnitt::fett);
    schreibe_Beschriftung(z, d.Kommentar, {0, p.Kommentar_oben}, d.Kommentar.Farbe, Schnitt::kursiv, p.Kommentarzeile);
    if (p.mit_Legende) zeichne_Legende(z, d.Legendeninhalt, p);
}

void erstelle_Diagramm_zusammenfassung_kopiere_Beschriftung(Diagramm& d, const Beschriftungsplaetze& p) {
    erstelle_Diagramm_kopiere_Beschriftung(d, p);
}

}  // namespace varnok
