#include "reports/berichtsbild.h"

#include <QAbstractTextDocumentLayout>
#include <QObject>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextImageFormat>
#include <algorithm>

#include "reports/diagrammlage.h"
#include "reports/twips.h"
#include "reports/zeichner.h"

namespace varnok {
namespace {

constexpr double Zeile = 16;  // units that a line of a label takes
const QRectF Flaeche(0, 0, Bildbreite, Bildhoehe);

double Textbreite(const Beschriftung& b, const Koordinaten& System, bool fett) {
    return setze_Schrift(Flaeche, System, {{0, 0}, b.Text, Schwarz, 10, fett, !fett, true}, Schriftgroesse_Bericht).Platz.width();
}

// The middle of the time axis, in units.
double Achsenmitte(const Koordinaten& System, const Koordinaten& Achsen) {
    return auf_Flaeche(Flaeche, System, {(Achsen.links + Achsen.rechts) / 2, 0}).x();
}

// The formula of the left edge takes letters for a share of the axis; where that is more than they need, the text is
// centred by its true width.
void rueck_zur_Mitte(Beschriftung& b, const Koordinaten& System, const Koordinaten& Achsen, bool fett) {
    const double Mitte = (Achsen.links + Achsen.rechts) / 2;
    const double mittig = Mitte - Textbreite(b, System, fett) / 2 / Bildbreite * System.Breite();
    b.links = std::max(b.links.value_or(mittig), mittig);
}

// Title and comment in two close lines, each over the whole width; under them the name of the y axis at the top of its
// axis, that of the time axis in the middle below its numbers.
void ordne_Namen(Beschriftungsplaetze& p, const Diagramm& d, const Koordinaten& Achsen) {
    const Koordinaten& System = d.Liste.System;
    p.Titel_oben = 1.0 / Bildhoehe;
    p.Kommentar_oben = (1 + Zeile) / Bildhoehe;
    p.Name_y_Achse = {(auf_Flaeche(Flaeche, System, {Achsen.links, 0}).x() + 5) / Bildbreite, 2 * Zeile / Bildhoehe};
    p.Name_x_Achse = {(Achsenmitte(System, Achsen) - Textbreite(d.Name_x_Achse, System, true) / 2) / Bildbreite,
                      (Bildhoehe - Zeile - 6) / Bildhoehe};
}

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
        male(*p, Flaeche, Liste, Schriftgroesse_Bericht);
        p->restore();
    }

    const Zeichenliste Liste;
};

Zeichenliste mit_Beschriftung(Diagramm d, const std::optional<Flaechenort>& Legende) {
    const Koordinaten Achsen = passe_an_Flaeche(d.Liste, Flaeche.size(), {3 * Zeile - 4, Zeile + 6});
    Beschriftungsplaetze p = Heimatplaetze(d.Legendeninhalt);
    ordne_Namen(p, d, Achsen);
    rueck_zur_Mitte(d.Titel, d.Liste.System, Achsen, true);
    rueck_zur_Mitte(d.Kommentar, d.Liste.System, Achsen, false);
    if (Legende) {
        p.Legendenrahmen.links = Legende->links;
        p.Legendenrahmen.oben = Legende->oben;
    } else {
        p.Legendenrahmen.oben = std::max(p.Legendenrahmen.oben, p.Kommentar_oben + (Zeile + 4) / Bildhoehe);
    }
    p.Legendenrahmen.oben = std::max(0.0, std::min(p.Legendenrahmen.oben, 1 - p.Legendenrahmen.Hoehe - 1.0 / Bildhoehe));
    passe_Legende_an(d.Legendeninhalt, p, Bildbreite);
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
    male(p, Flaeche, z, Schriftgroesse_Bericht);
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

std::unique_ptr<QTextDocument> Auswahl_als_Dokument(const QTextCursor& Auswahl) {
    const QTextDocument& ganzes = *Auswahl.document();
    auto Dokument = std::make_unique<QTextDocument>();
    Dokument->setDefaultFont(ganzes.defaultFont());
    QTextCursor(Dokument.get()).insertFragment(Auswahl.selection());
    // The first paragraph comes without its format.
    QTextCursor(Dokument.get()).setBlockFormat(ganzes.findBlock(Auswahl.selectionStart()).blockFormat());
    if (const auto* Objekt = ganzes.findChild<Bildobjekt*>()) merke_Zeichnung(*Dokument, Objekt->Liste);
    return Dokument;
}

}  // namespace varnok

#include "berichtsbild.moc"
