#include "reports/dokumentbild.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QObject>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextImageFormat>
#include <QVariant>

#include "painting/zeichner.h"
#include "reports/tabulatoren.h"
#include "reports/twips.h"

namespace varnok {
namespace {

constexpr const char* Herkunftsname = "Herkunft";  // as a property of the document

}  // namespace

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
        male(*p, Bildflaeche, Liste, Schriftgroesse_Bericht);
        p->restore();
    }

    const Zeichenliste Liste;
};

QByteArray als_PNG(const QImage& Bild) {
    constexpr int uebliche_Kompression = -1;
    QByteArray Bytes;
    QBuffer Puffer(&Bytes);
    Puffer.open(QIODevice::WriteOnly);
    Bild.save(&Puffer, "PNG", uebliche_Kompression);
    return Bytes;
}

void merke_Zeichnung(QTextDocument& Dokument, const Zeichenliste& z) { new Bildobjekt(&Dokument, z); }

void zeichne_statt_Bild(QTextDocument& Dokument) {
    if (auto* Objekt = Dokument.findChild<Bildobjekt*>()) {
        Dokument.documentLayout()->registerHandler(QTextFormat::ImageObject, Objekt);
    }
}

void merke_Herkunft(QTextDocument& Dokument, const QString& Herkunft) { Dokument.setProperty(Herkunftsname, Herkunft); }

QString Herkunft_von(const QTextDocument& Dokument) { return Dokument.property(Herkunftsname).toString(); }

QTextDocument* kopiere_Dokument(const QTextDocument& Dokument) {
    QTextDocument* Kopie = Dokument.clone();
    if (const auto* Objekt = Dokument.findChild<Bildobjekt*>()) merke_Zeichnung(*Kopie, Objekt->Liste);
    merke_Herkunft(*Kopie, Herkunft_von(Dokument));
    zeichne_statt_Bild(*Kopie);
    Kopie->setUseDesignMetrics(true);
    ergaenze_Tabulatoren(*Kopie);
    return Kopie;
}

std::unique_ptr<QTextDocument> Textstelle_als_Dokument(const QTextCursor& Stelle) {
    const QTextDocument& ganzes = *Stelle.document();
    auto Dokument = std::make_unique<QTextDocument>();
    Dokument->setDefaultFont(ganzes.defaultFont());
    Dokument->setMetaInformation(QTextDocument::DocumentTitle, ganzes.metaInformation(QTextDocument::DocumentTitle));
    QTextCursor(Dokument.get()).insertFragment(Stelle.selection());
    // The first paragraph comes without its format.
    QTextCursor(Dokument.get()).setBlockFormat(ganzes.findBlock(Stelle.selectionStart()).blockFormat());
    if (const auto* Objekt = ganzes.findChild<Bildobjekt*>()) merke_Zeichnung(*Dokument, Objekt->Liste);
    return Dokument;
}

}  // namespace varnok

#include "dokumentbild.moc"
