#include "reports/seitenausgabe.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <memory>

#include "reports/dokumentbild.h"
#include "reports/textauswahl.h"
#include "reports/twips.h"

namespace varnok {
namespace {

constexpr int Punkte_Seitenzahl = 8;
constexpr double Seitenfuss = 2.5;  // height of the foot in lines of its font

// The empty lines in front of the headline are left out, lest they make a page of their own.
void beginne_Seite_mit_Bildkopf(QTextDocument& Dokument) {
    QTextBlock Kopf = Dokument.begin();
    while (Kopf.isValid() && !Kopf.blockFormat().boolProperty(bleibt_beim_naechsten)) Kopf = Kopf.next();
    if (!Kopf.isValid() || Kopf == Dokument.begin()) return;
    QTextBlockFormat f = Kopf.blockFormat();
    f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextBlock leer = Kopf.previous();
    while (leer.isValid() && leer.text().isEmpty()) leer = leer.previous();
    QTextCursor c(Kopf);
    if (leer.isValid()) c.setPosition(leer.next().position(), QTextCursor::KeepAnchor);
    c.removeSelectedText();
    c.setBlockFormat(f);
}

// A layout for a device scales fonts, tab stops and pictures by itself, but no indents.
void skaliere_Einzuege(QTextDocument& Dokument, double Massstab) {
    for (QTextBlock b = Dokument.begin(); b.isValid(); b = b.next()) {
        QTextBlockFormat f;
        f.setLeftMargin(b.blockFormat().leftMargin() * Massstab);
        f.setRightMargin(b.blockFormat().rightMargin() * Massstab);
        QTextCursor(b).mergeBlockFormat(f);
    }
}

// Draws the lines that stand on a page, counted from 0, to the top of the painter's surface. Drawing a clipped document
// would leave the line in front of the page in the file as well, out of sight but to be found and copied.
void male_Seite(QPainter& p, const QTextDocument& Dokument, int Seite) {
    const double Hoehe = Dokument.pageSize().height();
    p.save();
    p.translate(0, -Seite * Hoehe);
    p.setPen(Qt::black);  // paper is white on a dark desktop, too
    for (QTextBlock b = Dokument.begin(); b.isValid(); b = b.next()) {
        const QTextLayout* Absatz = b.layout();
        for (int i = 0; i < Absatz->lineCount(); ++i) {
            const QTextLine Zeile = Absatz->lineAt(i);
            const double Mitte = Absatz->position().y() + Zeile.y() + Zeile.height() / 2;
            if (static_cast<int>(Mitte / Hoehe) == Seite) Zeile.draw(&p, Absatz->position());
        }
    }
    p.restore();
}

}  // namespace

bool drucke_Dokument(const QTextDocument& Dokument, QPagedPaintDevice& Geraet) {
    // Documents keep a pointer to the device that they are laid out for: the copy ends before the device does.
    const std::unique_ptr<QTextDocument> Kopie(kopiere_Dokument(Dokument));
    QPainter p;
    if (!p.begin(&Geraet)) return false;
    QFont Fussschrift = Kopie->defaultFont();
    Fussschrift.setPointSize(Punkte_Seitenzahl);
    const double Fusshoehe = Seitenfuss * QFontMetricsF(Fussschrift, &Geraet).height();
    const QRectF Flaeche(0, 0, Geraet.width(), Geraet.height());

    beginne_Seite_mit_Bildkopf(*Kopie);
    skaliere_Einzuege(*Kopie, Geraet.logicalDpiX() / Twips_in_Pixel(Twips_pro_Zoll));
    Kopie->documentLayout()->setPaintDevice(&Geraet);
    Kopie->setDocumentMargin(0);
    Kopie->setPageSize(QSizeF(Flaeche.width(), Flaeche.height() - Fusshoehe));
    const int Seiten = Kopie->pageCount();
    for (int Seite = 0; Seite < Seiten; ++Seite) {
        if (Seite > 0 && !Geraet.newPage()) return false;
        male_Seite(p, *Kopie, Seite);
        p.setFont(Fussschrift);
        p.setPen(Qt::black);
        p.drawText(Flaeche, Qt::AlignHCenter | Qt::AlignBottom,
                   QStringLiteral("page %1 of %2")
                       .arg(QString::fromStdString(std::to_string(Seite + 1)), QString::fromStdString(std::to_string(Seiten))));
    }
    return p.end();
}

std::string als_PDF(const QTextDocument& Dokument, const std::string& Titel) {
    constexpr double Rand = 20;  // mm
    QByteArray Bytes;
    QBuffer Puffer(&Bytes);
    Puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter Geraet(&Puffer);
        Geraet.setPageSize(QPageSize(QPageSize::A4));
        Geraet.setPageMargins(QMarginsF(Rand, Rand, Rand, Rand), QPageLayout::Millimeter);
        Geraet.setTitle(QString::fromStdString(Titel));
        Geraet.setCreator(QStringLiteral("VARNOK"));
        drucke_Dokument(Dokument, Geraet);
    }
    return Bytes.toStdString();
}

}  // namespace varnok
