#pragma once

// A document that is worked on through a selection: search, select, set a format.

#include <QImage>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextDocument>
#include <initializer_list>

namespace varnok {

// Property of the format of a paragraph: it stands on the page of the one behind it.
inline constexpr int bleibt_beim_naechsten = QTextFormat::UserProperty + 1;

// Positions count the characters of the plain text, a line end (CR LF) as two, whatever the document makes of it.
class Textstelle {
public:
    // Pours the text into the document, over what stood there. The document must outlive the object.
    Textstelle(QTextDocument& Dokument, const QString& Text);

    qsizetype Anfang() const { return Anfang_; }
    qsizetype Laenge() const { return Laenge_; }
    void setze(qsizetype Anfang, qsizetype Laenge);
    void setze_Anfang(qsizetype Anfang) { setze(Anfang, Laenge_); }
    void alles() { setze(0, Text_.size()); }
    // From the start of the selection on.
    void bis_Ende() { setze(Anfang_, Text_.size()); }

    // Selects the first hit at or behind the start of the selection. Without a hit the selection stays.
    bool suche(const QString& Wort);

    // Formats of the characters selected; an empty selection changes none.
    void groesse(double Punkte);
    void fett(bool an = true);
    void kursiv(bool an = true);
    void Farbe(int Palettenplatz);

    // Formats of all paragraphs that the selection touches. Lengths in twips; tab stops count from the page margin.
    void zentriert();
    void Einzug(int links, int rechts);
    void Tabulatoren(std::initializer_list<int> Stellen);

    // The last paragraph with text in front of the selection, the selection and the empty lines behind it stay on one
    // page, so that none of them is alone on another.
    void halte_beisammen();

    // Puts a picture of that width and height (twips) in the place of the selection; it is to be the last step,
    // since the positions behind it no longer hold. The document keeps the image under `Name`.
    void ersetze_durch_Bild(const QString& Name, const QImage& Bild, int Breite, int Hoehe);

private:
    int Stelle_im_Dokument(qsizetype Stelle) const;
    QTextCursor Zeiger() const;
    void setze_Zeichenformat(const QTextCharFormat& f);
    template <class Aenderung>
    void aendere_Absaetze(Aenderung a);

    QTextDocument* Dokument_;
    QString Text_;
    QList<qsizetype> Zeilenenden_;  // places of the CR of each line end
    qsizetype Anfang_ = 0;
    qsizetype Laenge_ = 0;
};

}  // namespace varnok
