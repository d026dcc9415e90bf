// The picture of a report in its document.

#include "reports/dokumentbild.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QUrl>

#include "berichtsprobe.h"

namespace varnok::probe {
namespace {

int Punkte_der_Farbe(const QImage& Bild, QRgb Farbe) {
    int Anzahl = 0;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) Anzahl += Bild.pixel(x, y) == Farbe;
    }
    return Anzahl;
}

// On a screen the lines themselves are drawn: with an empty picture in the place of the pixels the curve is still there.
TEST(Dokumentbild, document_draws_the_drawing_instead_of_the_pixels) {
    const Bericht b = Bericht_von(mit_Ergebnissen({}));
    const auto Kurvenpunkte = [&] {
        b.Dokument->setTextWidth(700);
        QImage Bild(b.Dokument->size().toSize(), QImage::Format_RGB32);
        Bild.fill(Qt::white);
        QPainter p(&Bild);
        b.Dokument->drawContents(&p);
        return Punkte_der_Farbe(Bild, 0xFF000080);
    };
    EXPECT_GT(Kurvenpunkte(), 100);
    QImage leer(1920, 1500, QImage::Format_RGB32);
    leer.fill(Qt::white);
    b.Dokument->addResource(QTextDocument::ImageResource, QUrl(QString::fromLatin1(Bildname)), leer);
    EXPECT_EQ(Kurvenpunkte(), 0);
    zeichne_statt_Bild(*b.Dokument);
    EXPECT_GT(Kurvenpunkte(), 100);
}

}  // namespace
}  // namespace varnok::probe
