#include "diagrams/striche.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "diagrams/achsen.h"
#include "diagrams/diagrammbereiche.h"

namespace varnok {
namespace {

constexpr int Kurvenbreite = 2;
constexpr const char* leerer_Bereich = "Start is not before the end of the axis";

int gerundeter_Tag(double Tag) { return static_cast<int>(std::nearbyint(Tag)); }

void zeichne_x_Teilstriche(Zeichenliste& z, const Achsenbereich& a) {
    const Teilstriche t = bestimme_Teilstriche(a.runde_Tage ? a.Breite() : a.Ende);
    const auto Lagen = [&](double Abstand) {
        return Teilstrichlagen(a.runde_Tage ? std::ceil(a.Start / Abstand) * Abstand : a.Start, a.Ende, Abstand);
    };
    const auto striche = [&](double Abstand, double Teil) {
        for (const double x : Lagen(Abstand)) z.Linien.push_back({{x, 0}, {x, -a.Y_Maximum / Teil}});
    };
    striche(t.Haupt, 30);
    for (const double x : Lagen(t.Haupt)) {
        z.Texte.push_back({{x - a.Breite() / 50, -a.Y_Maximum / 30}, allgemeine_Zahl(x)});
    }
    striche(t.Mitte, 60);
    striche(t.Fein, 90);
}

void zeichne_y_Teilstriche(Zeichenliste& z, const Achsenbereich& a) {
    const Teilstriche t = bestimme_Teilstriche(a.Y_Maximum);
    const auto striche = [&](double Abstand, double Teil) {
        for (const double y : Teilstrichlagen(0, a.Y_Maximum, Abstand)) {
            z.Linien.push_back({{a.Start, y}, {a.Start - a.Breite() / Teil, y}});
        }
    };
    striche(t.Haupt, 50);
    for (const double y : Teilstrichlagen(0, a.Y_Maximum, t.Haupt)) {
        z.Texte.push_back({{a.Start - a.Breite() / 12, a.Y_Maximum / 50 + y}, allgemeine_Zahl(y)});
    }
    striche(t.Mitte, 50);  // as long as the numbered ones on this axis
    striche(t.Fein, 100);
}

}  // namespace

int Achsenbereich::erster_Tag() const { return gerundeter_Tag(Start + 1); }

int Achsenbereich::letzter_Tag() const { return leer ? erster_Tag() - 1 : gerundeter_Tag(Ende); }

Achsenbereich bilde_Achsenbereich(double X_Start, double X_Ende, double Y_Maximum) {
    const double Start = gehaltener_Start(X_Start);
    const bool leer = !(Start < X_Ende);
    return {Start, leer ? Start + 1 : X_Ende, Y_Maximum, leer, false};
}

void zeichne_Achsen(Zeichenliste& z, const Achsenbereich& a) {
    const double r = a.Breite();
    z.System = {a.Start - r / 10, 1.1 * a.Y_Maximum, a.Start + 1.03 * r, -a.Y_Maximum / 8};
    z.Linien.push_back({{a.Start, 0}, {a.Ende, 0}});
    z.Linien.push_back({{a.Start, 0}, {a.Start, a.Y_Maximum}});
    if (a.leer) {
        const Beschriftung b = mittige_Beschriftung(leerer_Bereich, a, 0, 100);
        z.Texte.push_back({{*b.links, a.Y_Maximum / 2}, b.Text});
        return;
    }
    zeichne_x_Teilstriche(z, a);
    zeichne_y_Teilstriche(z, a);
}

void zeichne_Verlauf(Zeichenliste& z, const Kurve& k) {
    if (k.Werte.empty()) return;
    Punkt von = {static_cast<double>(k.erster_Tag), static_cast<double>(k.Werte[0])};
    z.Linien.reserve(z.Linien.size() + k.Werte.size());
    for (std::size_t i = 1; i < k.Werte.size(); ++i) {
        const Punkt bis = {von.x + 1, static_cast<double>(k.Werte[i])};
        z.Linien.push_back({von, bis, k.Farbe, Kurvenbreite});
        von = bis;
    }
}

void zeichne_Kurve(Diagramm& d, const Achsenbereich& a, const Ergebnissicht& Sicht, int i_studie, int i_substanz, int Farbe,
                   const std::string& Name) {
    const int erster = a.erster_Tag();
    const int letzter = a.letzter_Tag();
    if (letzter < erster) return;
    d.Kurven.push_back({Name, Farbe, erster - 1, Sicht.Werte(i_studie, i_substanz, erster - 1, letzter)});
    zeichne_Verlauf(d.Liste, d.Kurven.back());
}

void zeichne_TWA(Diagramm& d, const Achsenbereich& a, const Ergebnissicht& Sicht, int i_studie, int i_substanz, int Farbe,
                 const std::string& Name) {
    if (Sicht.PEC_Art() == Hintergrund || a.leer) return;
    const float Start = Sicht.TWA_Start(i_studie, i_substanz);
    const float Laenge = Sicht.TWA_Fenster(i_studie, i_substanz);
    d.Mittelwerte.push_back({Name, static_cast<double>(Start), static_cast<double>(Laenge),
                             static_cast<double>(Sicht.TWA_Hoehe(i_studie, i_substanz)), Farbe});
    const double h = d.Mittelwerte.back().Hoehe;
    const auto b0 = static_cast<double>(Start);
    const auto b1 = static_cast<double>(Start + Laenge);
    std::vector<Linie>& Linien = d.Liste.Linien;
    if (static_cast<float>(a.Ende) >= Laenge) {
        Linien.push_back({{std::max(a.Start, b0), h}, {std::max(a.Start, std::min(a.Ende, b1)), h}, Farbe});
    }
    if (a.Start <= b1) Linien.push_back({{b1, 0}, {b1, h}, Farbe});
    if (b0 >= a.Start) Linien.push_back({{b0, 0}, {b0, h}, Farbe});
}

Beschriftung mittige_Beschriftung(std::string Text, const Achsenbereich& a, int Zusatz, int Teile) {
    const double r = a.Breite();
    const auto n = static_cast<double>(Zeichenzahl(ohne_Randblanks(Text))) + Zusatz;
    return {std::move(Text), Schwarz, true, a.Start + r / 2 - n * (r / Teile) / 2};
}

void beschrifte_Achsen(Diagramm& d, const Ergebnissicht& Sicht) {
    d.Name_x_Achse = {"Time after first application (d)", Schwarz, true, std::nullopt};
    d.Name_y_Achse = {Sicht.Name_y_Achse(), Schwarz, true, std::nullopt};
    d.Einheit = Sicht.Masseneinheit();
    d.Endpunkt = Sicht.Endpunkt();
}

}  // namespace varnok
