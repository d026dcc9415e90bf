#include "diagrams/rahmenlage.h"

#include <algorithm>
#include <utility>

namespace varnok {
namespace {

double rechts(const Flaechenrechteck& r) { return r.links + r.Breite; }
double unten(const Flaechenrechteck& r) { return r.oben + r.Hoehe; }

bool schneiden_sich(const Flaechenrechteck& a, const Flaechenrechteck& b) {
    return a.links < rechts(b) && b.links < rechts(a) && a.oben < unten(b) && b.oben < unten(a);
}

// Whether a part of the line from `a` to `b` lies within the rectangle: its share is cut down edge by edge. Most lines lie on one
// side of it.
bool laeuft_durch(const Flaechenrechteck& r, Punkt a, Punkt b) {
    if (std::max(a.x, b.x) <= r.links || std::min(a.x, b.x) >= rechts(r)) return false;
    if (std::max(a.y, b.y) <= r.oben || std::min(a.y, b.y) >= unten(r)) return false;
    double von = 0, bis = 1;
    const auto schneide = [&](double Anfang, double Weg, double kleinster, double groesster) {
        if (Weg == 0) return Anfang > kleinster && Anfang < groesster;
        const double t0 = (kleinster - Anfang) / Weg;
        const double t1 = (groesster - Anfang) / Weg;
        von = std::max(von, std::min(t0, t1));
        bis = std::min(bis, std::max(t0, t1));
        return von < bis;
    };
    return schneide(a.x, b.x - a.x, r.links, rechts(r)) && schneide(a.y, b.y - a.y, r.oben, unten(r));
}

Flaechenrechteck im_Raum(Flaechenrechteck r, const Flaechenrechteck& Raum) {
    r.links = std::max(Raum.links, std::min(r.links, rechts(Raum) - r.Breite));
    r.oben = std::max(Raum.oben, std::min(r.oben, unten(Raum) - r.Hoehe));
    return r;
}

// In shares of the room that a frame leaves: 0 at the left or upper edge, 1 at the other.
constexpr std::array<Flaechenort, Rahmenplatzzahl> Anteile = {
    {{}, {1, 0}, {0, 0}, {1, 1}, {0, 1}, {0.5, 0}, {1, 0.5}, {0.5, 1}, {0, 0.5}}};

Flaechenrechteck am_Platz(const Rahmenwunsch& w, Rahmenplatz Platz, const Flaechenrechteck& Raum) {
    const Flaechenort Anteil = Anteile[static_cast<std::size_t>(Platz)];
    const Flaechenort Ecke = Platz == Rahmenplatz::Heimat ? w.Heimat
                                                          : Flaechenort{Raum.links + Anteil.links * (Raum.Breite - w.Breite),
                                                                        Raum.oben + Anteil.oben * (Raum.Hoehe - w.Hoehe)};
    return im_Raum({Ecke.links, Ecke.oben, w.Breite, w.Hoehe}, Raum);
}

struct Moeglichkeit {
    Rahmenstand Stand;
    Verdecktes Preis;
};

// The places that come into question, from the one that is tried first.
std::vector<Moeglichkeit> Moeglichkeiten(const Rahmenfeld& f, const Rahmenwunsch& w) {
    if (w.gezogen) {
        const Flaechenrechteck Flaeche = {0, 0, 1, 1};
        return {{{Rahmenplatz::Heimat, im_Raum({w.gezogen->links, w.gezogen->oben, w.Breite, w.Hoehe}, Flaeche)}, {}}};
    }
    std::vector<Moeglichkeit> Liste;
    for (int i = 0; i < Rahmenplatzzahl; ++i) {
        const auto Platz = static_cast<Rahmenplatz>(i);
        const Flaechenrechteck r = am_Platz(w, Platz, f.Raum);
        const Moeglichkeit m = {{Platz, r}, zaehle_Verdecktes(f, r)};
        if (w.bisheriger == Platz && w.bleibt) return {m};
        Liste.insert(w.bisheriger == Platz && m.Preis.nichts() ? Liste.begin() : Liste.end(), m);
    }
    return Liste;
}

// What a choice costs: frames upon each other, then what they cover together.
auto Kosten(const std::vector<const Moeglichkeit*>& Wahl) {
    int Ueberlappung = 0;
    Verdecktes Summe;
    for (std::size_t i = 0; i < Wahl.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) Ueberlappung += schneiden_sich(Wahl[i]->Stand.Ort, Wahl[j]->Stand.Ort);
        Summe.Texte += Wahl[i]->Preis.Texte;
        Summe.Kurvenpunkte += Wahl[i]->Preis.Kurvenpunkte;
        Summe.Kastenstriche += Wahl[i]->Preis.Kastenstriche;
    }
    return std::pair(Ueberlappung, Summe);
}

}  // namespace

Verdecktes zaehle_Verdecktes(const Rahmenfeld& f, const Flaechenrechteck& r) {
    const Koordinaten& k = f.Liste.System;
    const Flaechenrechteck mit_Luft = {r.links - f.Luft_x, r.oben - f.Luft_y, r.Breite + 2 * f.Luft_x, r.Hoehe + 2 * f.Luft_y};
    // In the coordinates of the drawing, y upwards.
    const Flaechenrechteck gezeichnet = {k.links + mit_Luft.links * k.Breite(), k.oben - unten(mit_Luft) * k.Hoehe(),
                                         mit_Luft.Breite * k.Breite(), mit_Luft.Hoehe * k.Hoehe()};
    Verdecktes v;
    for (const Flaechenrechteck& t : f.Texte) v.Texte += schneiden_sich(r, t);
    for (const Linie& l : f.Liste.Linien) {
        if (l.Farbe == Schwarz || !laeuft_durch(gezeichnet, l.von, l.bis)) continue;
        ++(l.Breite > 1 ? v.Kurvenpunkte : v.Kastenstriche);
    }
    return v;
}

namespace {

struct Rahmenwahl {
    std::vector<Rahmenstand> Staende;
    bool frei = false;  // nothing is covered
};

Rahmenwahl waehle_Plaetze(const Rahmenfeld& f, const std::vector<Rahmenwunsch>& Rahmen) {
    std::vector<std::vector<Moeglichkeit>> Listen;
    for (const Rahmenwunsch& w : Rahmen) Listen.push_back(Moeglichkeiten(f, w));
    // Every choice, like the counting of a number with a digit for each frame: of equal ones the first, which leaves the first
    // frame the better place.
    std::vector<std::size_t> Ziffern(Rahmen.size(), 0);
    std::vector<const Moeglichkeit*> beste;
    while (true) {
        std::vector<const Moeglichkeit*> Wahl;
        for (std::size_t i = 0; i < Rahmen.size(); ++i) Wahl.push_back(&Listen[i][Ziffern[i]]);
        if (beste.empty() || Kosten(Wahl) < Kosten(beste)) beste = Wahl;
        std::size_t i = Rahmen.size();
        while (i > 0 && ++Ziffern[i - 1] == Listen[i - 1].size()) Ziffern[--i] = 0;
        if (i == 0) break;
    }
    Rahmenwahl w = {{}, Kosten(beste) == std::pair(0, Verdecktes())};
    for (const Moeglichkeit* m : beste) w.Staende.push_back(m->Stand);
    return w;
}

}  // namespace

std::vector<Rahmenstand> ordne_Rahmen(const Rahmenfeld& f, const std::vector<Rahmenwunsch>& Rahmen) {
    return waehle_Plaetze(f, Rahmen).Staende;
}

std::size_t waehle_Groesse(const Rahmenfeld& f, std::vector<Rahmenwunsch> Rahmen, const std::vector<Rahmengroesse>& Groessen) {
    constexpr double zu_viel = 0.4;
    const std::size_t letzte = Groessen.size() - 1;
    const auto ist_frei = [&](const Rahmengroesse& g) {
        Rahmen.back().Breite = g.Breite;
        Rahmen.back().Hoehe = g.Hoehe;
        return !Rahmen.back().gezogen && waehle_Plaetze(f, Rahmen).frei;
    };
    const auto ertraeglich = [&](const Rahmengroesse& g) { return g.Breite * g.Hoehe <= zu_viel * f.Raum.Breite * f.Raum.Hoehe; };
    const auto Ende = Groessen.begin() + static_cast<std::ptrdiff_t>(letzte);
    if (const auto freie = std::find_if(Groessen.begin(), Ende, ist_frei); freie != Ende)
        return static_cast<std::size_t>(freie - Groessen.begin());
    if (ertraeglich(Groessen.front())) return 0;
    if (ist_frei(Groessen.back())) return letzte;
    return static_cast<std::size_t>(std::find_if(Groessen.begin(), Ende, ertraeglich) - Groessen.begin());
}

}  // namespace varnok
