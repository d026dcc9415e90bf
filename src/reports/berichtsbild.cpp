#include "reports/berichtsbild.h"

#include <QAbstractTextDocumentLayout>
#include <QObject>
#include <QPainter>
#include <QTextImageFormat>

#include "reports/twips.h"
#include "reports/zeichner.h"

namespace varnok {

// Draws the pictures of a document from a display list; lives as a child of the document.
class Bildobjekt : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    Bildobjekt(QTextDocument* Dokument, const Zeichenliste& z) : QObject(Dokument), Liste(z) {}

    QSizeF intrinsicSize(QTextDocument* Dokument, int, const QTextFormat& f) override {
        const QTextImageFormat Bild = f.toImageFormat();
        const QPaintDevice* Geraet = Dokument->documentLayout()->paintDevice();
        const double Pixel_pro_Zoll = Twips_in_Pixel(Twips_pro_Zoll);
        const double Massstab = Geraet == nullptr ? 1 : Geraet->logicalDpiY() / Pixel_pro_Zoll;
        return QSizeF(Bild.width(), Bild.height()) * Massstab;
    }

    void drawObject(QPainter* p, const QRectF& Rechteck, QTextDocument*, int, const QTextFormat&) override {
        p->save();
        p->fillRect(Rechteck, Qt::white);
        p->translate(Rechteck.topLeft());
        p->scale(Rechteck.width() / Bildbreite, Rechteck.height() / Bildhoehe);
        male(*p, QRectF(0, 0, Bildbreite, Bildhoehe), Liste, Schriftgroesse_Bericht);
        p->restore();
    }

    const Zeichenliste Liste;
};

Zeichenliste mit_Beschriftung(Diagramm d, const std::optional<Flaechenrechteck>& Legendenrahmen) {
    Beschriftungsplaetze p = Heimatplaetze(d.Legendeninhalt);
    // Title and comment in two close lines above the legend, each over the whole width; the axis name stands under
    // them at the top of its axis.
    p.Titel_oben = 0.002;
    p.Kommentar_oben = 0.034;
    p.Name_y_Achse = {0.097, 0.064};
    if (Legendenrahmen) p.Legendenrahmen = *Legendenrahmen;
    passe_Legende_an(d.Legendeninhalt, p.Legendenrahmen, Bildbreite);
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
    male(p, QRectF(0, 0, Bildbreite, Bildhoehe), z, Schriftgroesse_Bericht);
    return Bild;
}

void merke_Zeichnung(QTextDocument& Dokument, const Zeichenliste& z) { new Bildobjekt(&Dokument, z); }

void zeichne_statt_Bild(QTextDocument& Dokument) {
    if (auto* Objekt = Dokument.findChild<Bildobjekt*>()) {
        Dokument.documentLayout()->registerHandler(QTextFormat::ImageObject, Objekt);
    }
}

QTextDocument* kopiere_Dokument(const QTextDocument& Dokument) {
    QTextDocument* Kopie = Dokument.clone();
    if (const auto* Objekt = Dokument.findChild<Bildobjekt*>()) merke_Zeichnung(*Kopie, Objekt->Liste);
    zeichne_statt_Bild(*Kopie);
    return Kopie;
}

}  // namespace varnok

#include "berichtsbild.moc"
