#include "painting/linienmaler.h"

#include <QPaintEngine>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "painting/farben.h"
#include "painting/zeichner.h"

namespace varnok {
namespace {

QPen Stift(int Farbe, double Breite, int Muster) {
    QPen s(Palettenfarbe(Farbe), Breite, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (Muster != 0) s.setDashPattern(Strichmuster(Muster));
    return s;
}

// A curve whose x rises, without the points that stand no further than `Abstand` above or below the line between those left.
QPolygonF vereinfacht(const QPolygonF& Kurve, double Abstand) {
    constexpr double unbegrenzt = std::numeric_limits<double>::infinity();
    QPolygonF Rest = {Kurve.front()};
    // The slopes from the last point left that keep near all points behind it.
    double flachste = -unbegrenzt;
    double steilste = unbegrenzt;
    const auto Steigung = [&](const QPointF& p, double Versatz) {
        return (p.y() + Versatz - Rest.back().y()) / (p.x() - Rest.back().x());
    };
    for (qsizetype i = 1; i < Kurve.size(); ++i) {
        const double s = Steigung(Kurve[i], 0);
        if (s < flachste || s > steilste) {
            Rest << Kurve[i - 1];
            flachste = -unbegrenzt;
            steilste = unbegrenzt;
        }
        flachste = std::max(flachste, Steigung(Kurve[i], -Abstand));
        steilste = std::min(steilste, Steigung(Kurve[i], Abstand));
    }
    Rest << Kurve.back();
    return Rest;
}

}  // namespace

QList<double> Strichmuster(int Muster) {
    static const std::array<QList<double>, Strichmusterzahl> Liste = {
        {{}, {6, 3}, {1.5, 2}, {8, 2.5, 1.5, 2.5}, {8, 2.5, 1.5, 2, 1.5, 2.5}, {14, 4}}};
    return Liste.at(static_cast<std::size_t>(Muster));
}

bool achsparallel(std::span<const Punkt> Punkte) {
    const auto gleich = [&](auto Koordinate) {
        return std::all_of(Punkte.begin(), Punkte.end(),
                           [&](const Punkt& p) { return std::equal_to<>()(Koordinate(p), Koordinate(Punkte.front())); });
    };
    return gleich([](const Punkt& p) { return p.x; }) || gleich([](const Punkt& p) { return p.y; });
}

Linienmaler::Linienmaler(QPainter& p, const QRectF& Flaeche, const Koordinaten& System)
    : p_(p),
      Flaeche_(Flaeche),
      System_(System),
      Geraet_(p.deviceTransform()),
      Pixel_(p.paintEngine()->type() == QPaintEngine::Raster && Geraet_.type() <= QTransform::TxScale) {}

void Linienmaler::male(std::span<const Linie> Linien) {
    for (const Linienzug& Zug : verbinde_Linien(Linien)) {
        QPolygonF Vieleck;
        for (const Punkt& Ort : Zug.Punkte) Vieleck << auf_Flaeche(Flaeche_, System_, Ort);
        if (Pixel_ && Zug.Muster == 0 && achsparallel(Zug.Punkte)) {
            male_achsparallel(QLineF(Vieleck.front(), Vieleck.back()), Zug.Farbe, Zug.Breite);
        } else {
            male_Kurve(Zug, Vieleck);
        }
    }
}

void Linienmaler::male(const Kasten& k) {
    const QRectF r(auf_Flaeche(Flaeche_, System_, k.links_oben), auf_Flaeche(Flaeche_, System_, k.rechts_unten));
    if (k.verdeckt > 0) p_.fillRect(r, Qt::white);
    for (const QLineF& Seite : {QLineF(r.topLeft(), r.topRight()), QLineF(r.bottomLeft(), r.bottomRight()),
                                QLineF(r.topLeft(), r.bottomLeft()), QLineF(r.topRight(), r.bottomRight())}) {
        if (Pixel_) {
            male_achsparallel(Seite, k.Farbe, k.Breite);
        } else {
            p_.setPen(Stift(k.Farbe, k.Breite, 0));
            p_.drawLine(Seite);
        }
    }
}

// The smoothing of one path of thousands of days takes many times longer than that of its parts. So it is painted strip by strip
// of whole pixels: none is painted twice, and each has all of the path that reaches into it.
void Linienmaler::male_Kurve(const Linienzug& Zug, const QPolygonF& Ganzes) {
    constexpr int Streifen = 32;        // pixels
    constexpr double unsichtbar = 0.2;  // pixels
    QPen s = Stift(Zug.Farbe, Zug.Breite, Zug.Muster);
    p_.setRenderHint(QPainter::Antialiasing);
    p_.setPen(s);
    const bool steigt = std::adjacent_find(Ganzes.begin(), Ganzes.end(),
                                           [](const auto& a, const auto& b) { return a.x() >= b.x(); }) == Ganzes.end();
    if (!Pixel_ || !steigt || Ganzes.size() <= Streifen) {
        p_.drawPolyline(Ganzes);
        return;
    }
    const QPolygonF Vieleck = vereinfacht(Ganzes, unsichtbar / Geraet_.m22());
    std::vector<double> Laenge = {0};  // up to each point, for the dashes
    for (qsizetype i = 1; i < Vieleck.size(); ++i) Laenge.push_back(Laenge.back() + QLineF(Vieleck[i - 1], Vieleck[i]).length());
    const QTransform zurueck = Geraet_.inverted();
    const double Breite = Streifen / Geraet_.m11();
    const QRectF Rahmen = Geraet_.mapRect(Flaeche_);
    const auto vor = [](const QPointF& a, double x) { return a.x() < x; };
    for (int x = static_cast<int>(std::floor(Rahmen.left())); x < Rahmen.right(); x += Streifen) {
        const QRectF Ausschnitt = zurueck.mapRect(QRectF(x, Rahmen.top(), Streifen, Rahmen.height()));
        const double Rand = 2 * Zug.Breite + 2 / Geraet_.m11();
        auto von = std::lower_bound(Vieleck.begin(), Vieleck.end(), Ausschnitt.left() - Rand, vor);
        auto bis = std::lower_bound(von, Vieleck.end(), Ausschnitt.left() + Breite + Rand, vor);
        if (von != Vieleck.begin()) --von;
        if (bis != Vieleck.end()) ++bis;
        if (bis - von < 2) continue;
        if (Zug.Muster != 0) s.setDashOffset(Laenge[static_cast<std::size_t>(von - Vieleck.begin())] / Zug.Breite);
        p_.save();
        p_.setClipRect(Ausschnitt, Qt::IntersectClip);
        p_.setPen(s);
        p_.drawPolyline(&*von, static_cast<int>(bis - von));
        p_.restore();
    }
}

Linienmaler::Pixel Linienmaler::Strecke(double von, double bis, int Breite) const {
    const auto Anfang = [Breite](double Ort) { return static_cast<int>(std::lround(Ort - Breite / 2.0)); };
    return {Anfang(std::min(von, bis)), Anfang(std::max(von, bis)) + Breite};
}

void Linienmaler::fuelle(Pixel x, Pixel y, int Farbe) {
    p_.setRenderHint(QPainter::Antialiasing, false);
    const QRectF r(QPointF(x.von, y.von), QPointF(x.bis, y.bis));
    p_.fillRect(Geraet_.inverted().mapRect(r), Palettenfarbe(Farbe));
}

// Both ends reach over a line of the same width across them, so that corners are closed.
void Linienmaler::male_achsparallel(const QLineF& Linie, int Farbe, int Breite) {
    const QLineF l = Geraet_.map(Linie);
    const int Pixelbreite = std::max(1, static_cast<int>(std::lround(Breite * Geraet_.m11())));
    fuelle(Strecke(l.x1(), l.x2(), Pixelbreite), Strecke(l.y1(), l.y2(), Pixelbreite), Farbe);
}

}  // namespace varnok
