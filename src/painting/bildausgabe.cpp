#include "painting/bildausgabe.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cmath>

#include "painting/bildflaeche.h"
#include "painting/qt_text.h"
#include "painting/zeichner.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Einheiten_pro_Zoll = 96;

}  // namespace

QSize Bildgroesse(int dpi) { return {Bildbreite * dpi / Einheiten_pro_Zoll, Bildhoehe * dpi / Einheiten_pro_Zoll}; }

QImage Bild_als_Pixel(const Zeichenliste& z, int dpi) {
    QImage Bild(Bildgroesse(dpi), QImage::Format_RGB32);
    Bild.fill(Qt::white);
    {
        QPainter p(&Bild);
        p.scale(Bild.width() / Bildflaeche.width(), Bild.height() / Bildflaeche.height());
        male(p, Bildflaeche, z, Schriftgroesse_Bericht);
    }
    // Only now: letters are drawn in pixels.
    const auto je_Meter = static_cast<int>(std::lround(dpi / 0.0254));
    Bild.setDotsPerMeterX(je_Meter);
    Bild.setDotsPerMeterY(je_Meter);
    return Bild;
}

QByteArray Bild_als_PNG(const Zeichenliste& z, int dpi) {
    QByteArray Inhalt;
    QBuffer Puffer(&Inhalt);
    Puffer.open(QIODevice::WriteOnly);
    Bild_als_Pixel(z, dpi).save(&Puffer, "PNG", -1);
    return Inhalt;
}

QByteArray Bild_als_SVG(const Zeichenliste& z, const QString& Titel) {
    QByteArray Inhalt;
    QBuffer Puffer(&Inhalt);
    Puffer.open(QIODevice::WriteOnly);
    QSvgGenerator Geraet;
    Geraet.setOutputDevice(&Puffer);
    Geraet.setSize(Bildflaeche.size().toSize());
    Geraet.setViewBox(Bildflaeche);
    Geraet.setResolution(Einheiten_pro_Zoll);
    Geraet.setTitle(Titel);
    Geraet.setDescription(u"VARNOK"_s);
    QPainter p(&Geraet);
    p.fillRect(Bildflaeche, Qt::white);
    male(p, Bildflaeche, z, Schriftgroesse_Bericht);
    p.end();
    return Inhalt;
}

QByteArray Bild_als_PDF(const Zeichenliste& z, const QString& Titel) {
    constexpr int Aufloesung = 1200;
    constexpr double Punkte_pro_Einheit = 72.0 / Einheiten_pro_Zoll;
    QByteArray Inhalt;
    QBuffer Puffer(&Inhalt);
    Puffer.open(QIODevice::WriteOnly);
    QPdfWriter Geraet(&Puffer);
    Geraet.setResolution(Aufloesung);
    Geraet.setPageSize(QPageSize(Bildflaeche.size() * Punkte_pro_Einheit, QPageSize::Point, {}, QPageSize::ExactMatch));
    Geraet.setPageMargins(QMarginsF());
    Geraet.setTitle(Titel);
    Geraet.setCreator(u"VARNOK"_s);
    QPainter p(&Geraet);
    p.scale(static_cast<double>(Aufloesung) / Einheiten_pro_Zoll, static_cast<double>(Aufloesung) / Einheiten_pro_Zoll);
    male(p, Bildflaeche, z, Schriftgroesse_Bericht);
    p.end();
    return Inhalt;
}

QString Bilddateiname(const Diagramm& d) {
    QString Name = in_Qt(d.Titel.Text).simplified();
    for (QChar& c : Name) {
        if (u"\\/:*?\"<>|"_s.contains(c) || c.unicode() < u' ') c = u'_';
    }
    return Name.left(80).trimmed();
}

}  // namespace varnok
