#include "painting/zeichner.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "painting/farben.h"
#include "painting/linienmaler.h"

namespace varnok {
namespace {

constexpr double Einheiten_pro_Punkt = 96.0 / 72.0;

void male_Texte(QPainter& p, const QRectF& Flaeche, const Zeichenliste& z, int kleinste_Groesse) {
    p.setRenderHint(QPainter::TextAntialiasing);
    for (const Schriftzug& s : z.Texte) {
        const Schriftbild Bild = setze_Schrift(Flaeche, z.System, s, kleinste_Groesse);
        p.setFont(Bild.Schrift);
        p.setPen(Palettenfarbe(s.Farbe));
        p.drawText(Bild.Platz.topLeft() + QPointF(0, QFontMetricsF(Bild.Schrift).ascent()), Bild.Text);
    }
}

double Breite(const Schriftbild& s) { return QFontMetricsF(s.Schrift).horizontalAdvance(s.Text); }

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

Schriftbild setze_Schrift(const QRectF& Flaeche, const Koordinaten& System, const Schriftzug& s, int kleinste_Groesse) {
    Schriftbild Bild{QString::fromStdString(s.Inhalt), Diagrammschrift(s.Groesse, s.fett, s.kursiv), {}, false};
    if (s.einpassen) {
        for (int g = s.Groesse - 1; g >= kleinste_Groesse && Breite(Bild) > Flaeche.width(); --g) {
            Bild.Schrift = Diagrammschrift(g, s.fett, s.kursiv);
        }
        if (Breite(Bild) > Flaeche.width()) {
            Bild.gekuerzt = true;
            Bild.Text = QFontMetricsF(Bild.Schrift).elidedText(Bild.Text, Qt::ElideMiddle, Flaeche.width());
        }
    }
    Bild.Platz = QRectF(auf_Flaeche(Flaeche, System, s.Ort), QSizeF(Breite(Bild), QFontMetricsF(Bild.Schrift).height()));
    Bild.Platz.translate(-Bild.Platz.width() * (s.Halt == Anker::links ? 0 : s.Halt == Anker::mittig ? 0.5 : 1), 0);
    if (!s.einpassen) return Bild;
    Bild.Platz.moveLeft(std::max(Flaeche.left(), std::min(Bild.Platz.left(), Flaeche.right() - Bild.Platz.width())));
    Bild.Platz.moveTop(std::max(Flaeche.top(), std::min(Bild.Platz.top(), Flaeche.bottom() - Bild.Platz.height())));
    return Bild;
}

void passe_Legende_an(Legende& l, Beschriftungsplaetze& p, double Flaechenbreite) {
    const bool gestrichelt = std::any_of(l.Gruppen.begin(), l.Gruppen.end(), [](const Legendengruppe& g) {
        return std::any_of(g.Eintraege.begin(), g.Eintraege.end(), [](const Legendeneintrag& e) { return e.Linie.Muster != 0; });
    });
    // The longest pattern of dashes needs that much to be seen, which texts do not pay for.
    const double Strichmuster = gestrichelt ? 38 : 0;
    const double Hoechstbreite = 1.0 / 3 + Strichmuster / Flaechenbreite;
    constexpr double Luecke = 4;  // units between text and sample line
    constexpr double Rand = 6;    // units
    const QFontMetricsF Masse(Diagrammschrift(Schriftgroesse_Fenster));
    const auto noetig = [&](const Legendenzeile& z) { return Masse.horizontalAdvance(QString::fromStdString(z.Text)) + Luecke; };
    // Share of the frame from the start of a row's text to what stands behind it.
    const auto Anteil = [](const Legendenzeile& z) { return (z.Ueberschrift ? 1.0 : z.Linie_links) - z.Textort.links; };
    double& Breite = p.Legendenrahmen.Breite;
    for (const Legendenzeile& z : Legendenzeilen(l, p.Musterlinie_links)) {
        Breite = std::max(Breite, std::min(noetig(z) / Anteil(z) / Flaechenbreite, Hoechstbreite));
    }
    // The left end of the shortest sample line.
    const double kuerzeste_Musterlinie = gestrichelt ? 0.95 - Strichmuster / (Breite * Flaechenbreite) : 0.87;
    if (gestrichelt) p.Musterlinie_links = std::min(p.Musterlinie_links, kuerzeste_Musterlinie);
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
    Linienmaler Maler(p, Flaeche, z.System);
    const std::span<const Linie> Linien(z.Linien);
    std::size_t gemalt = 0;
    for (const Kasten& k : z.Kaesten) {
        const std::size_t darunter = k.verdeckt == 0 ? Linien.size() : std::min(k.verdeckt, Linien.size());
        if (darunter > gemalt) Maler.male(Linien.subspan(gemalt, darunter - gemalt));
        gemalt = std::max(gemalt, darunter);
        Maler.male(k);
    }
    Maler.male(Linien.subspan(gemalt));
    male_Texte(p, Flaeche, z, kleinste_Groesse);
    p.restore();
}

}  // namespace varnok
