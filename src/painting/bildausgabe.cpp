#include "painting/bildausgabe.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>

#include "painting/zeichner.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Einheiten_pro_Zoll = 96;

}  // namespace

QSize Pixelzahl(const QSizeF& Groesse, int dpi) { return (Groesse * dpi / Einheiten_pro_Zoll).toSize(); }

QImage Bild_als_Pixel(const Zeichenliste& z, const QSizeF& Groesse, int dpi) {
    QImage Bild(Pixelzahl(Groesse, dpi), QImage::Format_RGB32);
    Bild.fill(Qt::white);
    {
        QPainter p(&Bild);
        p.scale(Bild.width() / Groesse.width(), Bild.height() / Groesse.height());
        male(p, QRectF(QPointF(), Groesse), z, Schriftgroesse_Bericht);
    }
    // Only now: letters are drawn in pixels.
    const auto je_Meter = static_cast<int>(std::lround(dpi / 0.0254));
    Bild.setDotsPerMeterX(je_Meter);
    Bild.setDotsPerMeterY(je_Meter);
    return Bild;
}

QByteArray Bild_als_PNG(const Zeichenliste& z, const QSizeF& Groesse, int dpi) {
    QByteArray Inhalt;
    QBuffer Puffer(&Inhalt);
    Puffer.open(QIODevice::WriteOnly);
    Bild_als_Pixel(z, Groesse, dpi).save(&Puffer, "PNG", -1);
    return Inhalt;
}

QByteArray Bild_als_PDF(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse) {
    constexpr int Aufloesung = 1200;
    constexpr double Punkte_pro_Einheit = 72.0 / Einheiten_pro_Zoll;
    QByteArray Inhalt;
    QBuffer Puffer(&Inhalt);
    Puffer.open(QIODevice::WriteOnly);
    QPdfWriter Geraet(&Puffer);
    Geraet.setResolution(Aufloesung);
    Geraet.setPageSize(QPageSize(Groesse * Punkte_pro_Einheit, QPageSize::Point, {}, QPageSize::ExactMatch));
    Geraet.setPageMargins(QMarginsF());
    Geraet.setTitle(Titel);
    Geraet.setCreator(u"VARNOK"_s);
    QPainter p(&Geraet);
    p.scale(static_cast<double>(Aufloesung) / Einheiten_pro_Zoll, static_cast<double>(Aufloesung) / Einheiten_pro_Zoll);
    male(p, QRectF(QPointF(), Groesse), z, Schriftgroesse_Bericht);
    p.end();
    return Inhalt;
}

}  // namespace varnok
