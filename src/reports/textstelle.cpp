#include "reports/textstelle.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextImageFormat>
#include <QTextOption>
#include <QUrl>
#include <QVariant>
#include <algorithm>

#include "painting/farben.h"
#include "reports/twips.h"

namespace varnok {
namespace {

constexpr QStringView Zeilenende = u"\r\n";

}  // namespace

Textstelle::Textstelle(QTextDocument& Dokument, const QString& Text) : Dokument_(&Dokument), Text_(Text) {
    for (qsizetype i = Text.indexOf(Zeilenende); i >= 0; i = Text.indexOf(Zeilenende, i + 2)) Zeilenenden_.append(i);
    Dokument.setUndoRedoEnabled(false);
    Dokument.setPlainText(Text);
}

void Textstelle::setze(qsizetype Anfang, qsizetype Laenge) {
    Anfang_ = std::clamp<qsizetype>(Anfang, 0, Text_.size());
    Laenge_ = std::clamp<qsizetype>(Laenge, 0, Text_.size() - Anfang_);
}

bool Textstelle::suche(const QString& Wort) {
    const qsizetype Treffer = Text_.indexOf(Wort, Anfang_);
    if (Treffer < 0) return false;
    setze(Treffer, Wort.size());
    return true;
}

// A line end is one position of the document: the two of the text lie before and behind it.
int Textstelle::Stelle_im_Dokument(qsizetype Stelle) const {
    const auto davor = std::lower_bound(Zeilenenden_.begin(), Zeilenenden_.end(), Stelle) - Zeilenenden_.begin();
    return static_cast<int>(Stelle - davor);
}

QTextCursor Textstelle::Zeiger() const {
    QTextCursor Zeiger(Dokument_);
    Zeiger.setPosition(Stelle_im_Dokument(Anfang_));
    Zeiger.setPosition(Stelle_im_Dokument(Anfang_ + Laenge_), QTextCursor::KeepAnchor);
    return Zeiger;
}

void Textstelle::setze_Zeichenformat(const QTextCharFormat& f) { Zeiger().mergeCharFormat(f); }

void Textstelle::groesse(double Punkte) {
    QTextCharFormat f;
    f.setFontPointSize(Punkte);
    setze_Zeichenformat(f);
}

void Textstelle::fett(bool an) {
    QTextCharFormat f;
    f.setFontWeight(an ? QFont::Bold : QFont::Normal);
    setze_Zeichenformat(f);
}

void Textstelle::kursiv(bool an) {
    QTextCharFormat f;
    f.setFontItalic(an);
    setze_Zeichenformat(f);
}

void Textstelle::Farbe(int Palettenplatz) {
    QTextCharFormat f;
    f.setForeground(Palettenfarbe(Palettenplatz));
    setze_Zeichenformat(f);
}

template <class Aenderung>
void Textstelle::aendere_Absaetze(Aenderung a) {
    QTextCursor Absatz = Zeiger();
    const int Ende = Absatz.selectionEnd();
    // An empty last paragraph counts to what is selected in front of it.
    const bool bis_Schluss = Ende > Absatz.selectionStart() && Ende == Dokument_->characterCount() - 1;
    Absatz.setPosition(Absatz.selectionStart());
    do {
        QTextBlockFormat f = Absatz.blockFormat();
        a(f);
        Absatz.setBlockFormat(f);
    } while (Absatz.movePosition(QTextCursor::NextBlock) && (Absatz.position() < Ende || bis_Schluss));
}

void Textstelle::zentriert() {
    aendere_Absaetze([](QTextBlockFormat& f) { f.setAlignment(Qt::AlignHCenter); });
}

void Textstelle::Einzug(int links, int rechts) {
    aendere_Absaetze([=](QTextBlockFormat& f) {
        f.setLeftMargin(Twips_in_Pixel(links));
        f.setRightMargin(Twips_in_Pixel(rechts));
    });
}

// The document counts tab stops from the indent of the paragraph.
void Textstelle::Tabulatoren(std::initializer_list<int> Stellen) {
    aendere_Absaetze([&](QTextBlockFormat& f) {
        QList<QTextOption::Tab> Liste;
        for (const int Stelle : Stellen) {
            const double Pixel = Twips_in_Pixel(Stelle) - f.leftMargin();
            if (Pixel > 0) Liste.append(QTextOption::Tab(Pixel, QTextOption::LeftTab));
        }
        f.setTabPositions(Liste);
    });
}

void Textstelle::halte_beisammen() {
    QTextBlockFormat f;
    f.setProperty(bleibt_beim_naechsten, true);
    const QTextBlock Mitte = Zeiger().block();
    bool Text = false;
    for (QTextBlock b = Mitte.previous(); b.isValid() && !Text; b = b.previous()) {
        QTextCursor(b).mergeBlockFormat(f);
        Text = !b.text().isEmpty();
    }
    for (QTextBlock b = Mitte; b.next().isValid() && b.next().text().isEmpty(); b = b.next()) QTextCursor(b).mergeBlockFormat(f);
}

void Textstelle::ersetze_durch_Bild(const QString& Name, const QImage& Bild, int Breite, int Hoehe) {
    Dokument_->addResource(QTextDocument::ImageResource, QUrl(Name), QVariant::fromValue(Bild));
    QTextImageFormat f;
    f.merge(Zeiger().charFormat());
    f.setName(Name);
    f.setWidth(Twips_in_Pixel(Breite));
    f.setHeight(Twips_in_Pixel(Hoehe));
    Zeiger().insertImage(f);
}

}  // namespace varnok
