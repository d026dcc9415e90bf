#include "painting/zeichner.h"

#include <QFontMetricsF>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "painting/farben.h"

namespace varnok {
namespace {

constexpr double Einheiten_pro_Punkt = 96.0 / 72.0;

QPen Stift(int Farbe, int Breite) {
    return {Palettenfarbe(Farbe), static_cast<double>(Breite), Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin};
}

// Lines along the axes are sharp without smoothing and blurred with it.
bool achsparallel(const std::vector<Punkt>& Punkte) {
    const auto gleich = [&](auto Koordinate) {
        return std::all_of(Punkte.begin(), Punkte.end(),
                           [&](const Punkt& p) { return std::equal_to<>()(Koordinate(p), Koordinate(Punkte.front())); });
    };
    return gleich([](const Punkt& p) { return p.x; }) || gleich([](const Punkt& p) { return p.y; });
}

// A curve of thousands of days in pieces: the smoothing of one long path takes many times longer. The pieces share a
// segment, so that no corner is left open.
void male_Zug(QPainter& p, const QPolygonF& Vieleck) {
    constexpr qsizetype Stueck = 48;
    for (qsizetype i = 0; i == 0 || i + 2 < Vieleck.size(); i += Stueck) {
        const qsizetype Anzahl = std::min(Stueck + 2, Vieleck.size() - i);
        p.drawPolyline(Vieleck.constData() + i, static_cast<int>(Anzahl));
    }
}

void male_Linien(QPainter& p, const QRectF& Flaeche, const Zeichenliste& z) {
    for (const Linienzug& Zug : verbinde_Linien(z.Linien)) {
        QPolygonF Vieleck;
        for (const Punkt& Ort : Zug.Punkte) Vieleck << auf_Flaeche(Flaeche, z.System, Ort);
        p.setRenderHint(QPainter::Antialiasing, !achsparallel(Zug.Punkte));
        p.setPen(Stift(Zug.Farbe, Zug.Breite));
        male_Zug(p, Vieleck);
    }
}

void male_Kaesten(QPainter& p, const QRectF& Flaeche, const Zeichenliste& z) {
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setBrush(Qt::NoBrush);
    for (const Kasten& k : z.Kaesten) {
        p.setPen(Stift(k.Farbe, k.Breite));
        p.drawRect(QRectF(auf_Flaeche(Flaeche, z.System, k.links_oben), auf_Flaeche(Flaeche, z.System, k.rechts_unten)));
    }
}

void male_Texte(QPainter& p, const QRectF& Flaeche, const Zeichenliste& z, int kleinste_Groesse) {
    p.setRenderHint(QPainter::TextAntialiasing);
    for (const Schriftzug& s : z.Texte) {
        const Schriftsatz Satz = setze_Schrift(Flaeche, z.System, s, kleinste_Groesse);
        p.setFont(Satz.Schrift);
        p.setPen(Palettenfarbe(s.Farbe));
        p.drawText(Satz.Platz.topLeft() + QPointF(0, QFontMetricsF(Satz.Schrift).ascent()), Satz.Text);
    }
}

double Breite(const Schriftsatz& s) { return QFontMetricsF(s.Schrift).horizontalAdvance(s.Text); }

}  // namespace

QFont Diagrammschrift(int Punkte, bool fett, bool kursiv) {
    QFont f;
    f.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Sans Serif")});
    f.setStyleHint(QFont::SansSerif);
    f.setHintingPreference(QFont::PreferNoHinting);  // a text is as wide as measured at every scale, on every desktop
    f.setPixelSize(static_cast<int>(std::lround(Punkte * Einheiten_pro_Punkt)));
    f.setBold(fett);
    f.setItalic(kursiv);
    return f;
}

QPointF auf_Flaeche(const QRectF& Flaeche, const Koordinaten& System, Punkt p) {
    return {Flaeche.left() + (p.x - System.links) / System.Breite() * Flaeche.width(),
            Flaeche.top() + (System.oben - p.y) / System.Hoehe() * Flaeche.height()};
}

Schriftsatz setze_Schrift(const QRectF& Flaeche, const Koordinaten& System, const Schriftzug& s, int kleinste_Groesse) {
    Schriftsatz Satz{QString::fromStdString(s.Inhalt), Diagrammschrift(s.Groesse, s.fett, s.kursiv), {}, false};
    if (s.einpassen) {
        for (int g = s.Groesse - 1; g >= kleinste_Groesse && Breite(Satz) > Flaeche.width(); --g) {
            Satz.Schrift = Diagrammschrift(g, s.fett, s.kursiv);
        }
        if (Breite(Satz) > Flaeche.width()) {
            Satz.gekuerzt = true;
            Satz.Text = QFontMetricsF(Satz.Schrift).elidedText(Satz.Text, Qt::ElideMiddle, Flaeche.width());
        }
    }
    Satz.Platz = QRectF(auf_Flaeche(Flaeche, System, s.Ort), QSizeF(Breite(Satz), QFontMetricsF(Satz.Schrift).height()));
    if (!s.einpassen) return Satz;
    Satz.Platz.moveLeft(std::max(Flaeche.left(), std::min(Satz.Platz.left(), Flaeche.right() - Satz.Platz.width())));
    Satz.Platz.moveTop(std::max(Flaeche.top(), std::min(Satz.Platz.top(), Flaeche.bottom() - Satz.Platz.height())));
    return Satz;
}

void passe_Legende_an(Legende& l, Beschriftungsplaetze& p, double Flaechenbreite) {
    constexpr double Hoechstbreite = 1.0 / 3;
    constexpr double kuerzeste_Musterlinie = 0.87;  // its left end
    constexpr double Luecke = 4;                    // units between text and sample line
    constexpr double Rand = 6;                      // units
    const QFontMetricsF Masse(Diagrammschrift(Schriftgroesse_Fenster));
    const auto noetig = [&](const Legendenzeile& z) { return Masse.horizontalAdvance(QString::fromStdString(z.Text)) + Luecke; };
    // Share of the frame from the start of a row's text to what stands behind it.
    const auto Anteil = [](const Legendenzeile& z) { return (z.Ueberschrift ? 1.0 : z.Linie_links) - z.Textort.links; };
    double& Breite = p.Legendenrahmen.Breite;
    for (const Legendenzeile& z : Legendenzeilen(l, p.Musterlinie_links)) {
        Breite = std::max(Breite, std::min(noetig(z) / Anteil(z) / Flaechenbreite, Hoechstbreite));
    }
    for (const Legendenzeile& z : Legendenzeilen(l, p.Musterlinie_links)) {
        const double Textende = z.Textort.links + noetig(z) / (Breite * Flaechenbreite);
        if (!z.Ueberschrift) p.Musterlinie_links = std::max(p.Musterlinie_links, std::min(Textende, kuerzeste_Musterlinie));
    }
    const std::vector<Legendenzeile> Zeilen = Legendenzeilen(l, p.Musterlinie_links);
    auto Zeile = Zeilen.begin();
    const auto kuerze = [&](std::string& Text) {
        const double Platz = Anteil(*Zeile++) * Breite * Flaechenbreite - Luecke;
        Text = Masse.elidedText(QString::fromStdString(Text), Qt::ElideRight, std::ceil(Platz)).toStdString();
    };
    for (Legendengruppe& g : l.Gruppen) {
        if (l.Art == Legendenart::mehrfach) kuerze(g.Titel);
        for (Legendeneintrag& e : g.Eintraege) kuerze(e.Text);
    }
    p.Legendenrahmen.links = std::max(0.0, std::min(p.Legendenrahmen.links, 1 - Breite - Rand / Flaechenbreite));
}

void male(QPainter& p, const QRectF& Flaeche, const Zeichenliste& z, int kleinste_Groesse) {
    p.save();
    p.setClipRect(Flaeche, Qt::IntersectClip);
    male_Linien(p, Flaeche, z);
    male_Kaesten(p, Flaeche, z);
    male_Texte(p, Flaeche, z, kleinste_Groesse);
    p.restore();
}

}  // namespace varnok
