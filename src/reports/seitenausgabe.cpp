#include "reports/seitenausgabe.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageRanges>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "reports/dokumentbild.h"
#include "reports/seitenmass.h"
#include "reports/seitenumbruch.h"
#include "reports/twips.h"

namespace varnok {
namespace {

constexpr int Punkte_Seitenzahl = 8;
constexpr double Seitenfuss = 2.5;  // height of the foot in lines of its font

// A layout for a device scales fonts, tab stops and pictures by itself, but no indents.
void skaliere_Einzuege(QTextDocument& Dokument, double Massstab) {
    for (QTextBlock b = Dokument.begin(); b.isValid(); b = b.next()) {
        QTextBlockFormat f;
        f.setLeftMargin(b.blockFormat().leftMargin() * Massstab);
        f.setRightMargin(b.blockFormat().rightMargin() * Massstab);
        QTextCursor(b).mergeBlockFormat(f);
    }
}

// Draws the lines of a page to the top of the painter's surface. Drawing a clipped document would leave the lines in front of
// the page in the file as well, out of sight but to be found and copied.
void male_Seite(QPainter& p, const Druckseite& Seite) {
    p.save();
    p.translate(0, -Seite.front().oben);
    p.setPen(Qt::black);  // paper is white on a dark desktop, too
    for (const Druckzeile& z : Seite) z.Absatz.layout()->lineAt(z.Nummer).draw(&p, z.Absatz.layout()->position());
    p.restore();
}

// What the report is about at the left, the number of the page at the right, and where its figures come from below.
void male_Fuss(QPainter& p, QRectF Flaeche, const QTextDocument& d, std::size_t Seite, std::size_t Seiten) {
    const QString Zahl = QString::fromStdString("page " + std::to_string(Seite) + " of " + std::to_string(Seiten));
    const QFontMetricsF Masse(p.font(), p.device());
    const double Platz = Flaeche.width() - Masse.horizontalAdvance(Zahl) - Masse.height();
    const QString Titel = d.metaInformation(QTextDocument::DocumentTitle);
    const QString Herkunft = Herkunft_von(d);
    p.setPen(Qt::black);
    p.drawText(Flaeche, Qt::AlignLeft | Qt::AlignBottom, Herkunft);
    if (!Herkunft.isEmpty()) Flaeche.setBottom(Flaeche.bottom() - Masse.height());
    p.drawText(Flaeche, Qt::AlignLeft | Qt::AlignBottom, Masse.elidedText(Titel, Qt::ElideRight, Platz));
    p.drawText(Flaeche, Qt::AlignRight | Qt::AlignBottom, Zahl);
}

// A copy of the document set for a device. Documents keep a pointer to the device that they are laid out for: it ends before
// the device does.
struct Druckform {
    std::unique_ptr<QTextDocument> Kopie;
    double Massstab = 1;
    QRectF Flaeche;
    QFont Fussschrift;
    std::vector<Druckseite> Seiten;
};

Druckform setze(const QTextDocument& Dokument, QPagedPaintDevice& Geraet) {
    Druckform d;
    d.Kopie.reset(kopiere_Dokument(Dokument));
    const double Aufloesung = Geraet.logicalDpiX();
    // Smaller paper shows the same page, smaller. A printer that is out of reach has no width.
    constexpr double kleinster = 0.1;
    d.Massstab = std::clamp(Geraet.width() / (Textbreite * Aufloesung / Twips_pro_Zoll), kleinster, 1.0);
    d.Flaeche = QRectF(0, 0, Geraet.width() / d.Massstab, Geraet.height() / d.Massstab);
    d.Fussschrift = d.Kopie->defaultFont();
    d.Fussschrift.setPointSize(Punkte_Seitenzahl);
    skaliere_Einzuege(*d.Kopie, Aufloesung / Twips_in_Pixel(Twips_pro_Zoll));
    d.Kopie->documentLayout()->setPaintDevice(&Geraet);
    d.Kopie->setDocumentMargin(0);
    d.Kopie->setTextWidth(d.Flaeche.width());
    const double Fusshoehe = Seitenfuss * QFontMetricsF(d.Fussschrift, &Geraet).height();
    d.Seiten = teile_in_Seiten(*d.Kopie, d.Flaeche.height() - Fusshoehe);
    return d;
}

}  // namespace

int Seitenzahl(const QTextDocument& Dokument, QPagedPaintDevice& Geraet) {
    return static_cast<int>(setze(Dokument, Geraet).Seiten.size());
}

bool drucke_Dokument(const QTextDocument& Dokument, QPagedPaintDevice& Geraet) {
    const Druckform d = setze(Dokument, Geraet);
    const QPageRanges gewuenscht = Geraet.pageRanges();
    QPainter p;
    if (!p.begin(&Geraet)) return false;
    p.scale(d.Massstab, d.Massstab);
    bool erste = true;
    for (std::size_t i = 0; i < d.Seiten.size(); ++i) {
        if (!gewuenscht.isEmpty() && !gewuenscht.contains(static_cast<int>(i) + 1)) continue;
        if (!std::exchange(erste, false) && !Geraet.newPage()) return false;
        male_Seite(p, d.Seiten[i]);
        p.setFont(d.Fussschrift);
        male_Fuss(p, d.Flaeche, *d.Kopie, i + 1, d.Seiten.size());
    }
    return p.end();
}

std::string als_PDF(const QTextDocument& Dokument, const std::string& Titel) {
    QByteArray Bytes;
    QBuffer Puffer(&Bytes);
    Puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter Geraet(&Puffer);
        Geraet.setPageSize(QPageSize(QPageSize::A4));
        Geraet.setPageMargins(QMarginsF(Seitenrand_mm, Seitenrand_mm, Seitenrand_mm, Seitenrand_mm), QPageLayout::Millimeter);
        Geraet.setTitle(QString::fromStdString(Titel));
        const QString Herkunft = Herkunft_von(Dokument);
        Geraet.setCreator(Herkunft.isEmpty() ? QStringLiteral("VARNOK") : QStringLiteral("VARNOK, ") + Herkunft);
        drucke_Dokument(Dokument, Geraet);
    }
    return Bytes.toStdString();
}

}  // namespace varnok
