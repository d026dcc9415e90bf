#include "reports/zeilenpassung.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "reports/berichtswoerter.h"
#include "reports/seitenmass.h"
#include "reports/tabulatoren.h"
#include "reports/textauswahl.h"
#include "reports/twips.h"

namespace varnok {
namespace {

constexpr double Ergebnisse_verkleinert = 8;
constexpr double kleinste_Groesse = 4;
constexpr double kleinste_Eingabe = 8;  // a long description may as well break
constexpr double Schritt = 0.5;
// Other programs set the same words a little wider: without pairs of letters moved together, in a font like this one.
constexpr double Spielraum = 1.02;

double Groesse(const QTextBlock& b) { return b.begin().fragment().charFormat().fontPointSize(); }

bool ist_Zeile(const QTextBlock& b) { return b.text().contains(u'\t'); }

// A cell of a table, not the value behind a label.
bool ist_Tabellenzeile(const QTextBlock& b) { return b.text().count(u'\t') > 1; }

using Spalten = std::vector<double>;

// Where the cells behind the tabs begin if the paragraph is set in that size; nothing where it takes more than one line.
std::optional<Spalten> Zellanfaenge(const QTextBlock& b, double Punkte) {
    const QTextBlockFormat f = b.blockFormat();
    QList<QTextLayout::FormatRange> Formate = b.textFormats();
    for (QTextLayout::FormatRange& r : Formate) r.format.setFontPointSize(Punkte * Spielraum);
    QTextOption o;
    o.setTabs(alle_Tabulatoren(f));
    o.setUseDesignMetrics(true);
    QTextLayout Satz(b.text(), b.document()->defaultFont());
    Satz.setTextOption(o);
    Satz.setFormats(Formate);
    Satz.beginLayout();
    QTextLine Zeile = Satz.createLine();
    Zeile.setLineWidth(Twips_in_Pixel(Textbreite) - f.leftMargin() - f.rightMargin());
    const bool bricht = Satz.createLine().isValid();
    Satz.endLayout();
    if (bricht) return std::nullopt;
    Spalten Anfaenge;
    const QString Text = b.text();
    // Nothing stands behind a tab at the end.
    for (qsizetype i = Text.indexOf(u'\t'); i >= 0 && i + 1 < Text.size(); i = Text.indexOf(u'\t', i + 1)) {
        Anfaenge.push_back(Zeile.cursorToX(static_cast<int>(i) + 1));
    }
    return Anfaenge;
}

// A row and where its cells are to begin; elsewhere, and in a row of words, anywhere.
struct Zeile {
    QTextBlock Absatz;
    Spalten Soll;
};

bool passt(const Zeile& z, double Punkte) {
    const std::optional<Spalten> Ist = Zellanfaenge(z.Absatz, Punkte);
    const auto n = static_cast<std::ptrdiff_t>(Ist ? std::min(Ist->size(), z.Soll.size()) : 0);
    return Ist &&
           std::equal(Ist->begin(), Ist->begin() + n, z.Soll.begin(), [](double a, double b) { return std::abs(a - b) < 1; });
}

// A column of a table begins where the row begins it that needs the least room.
void richte_aus(std::vector<Zeile>& Zeilen, std::size_t von) {
    Spalten Soll;
    for (std::size_t i = von; i < Zeilen.size(); ++i) {
        const Spalten Ist = Zellanfaenge(Zeilen[i].Absatz, Groesse(Zeilen[i].Absatz)).value_or(Spalten());
        for (std::size_t k = 0; k < Ist.size(); ++k) {
            if (k == Soll.size()) Soll.push_back(Ist[k]);
            Soll[k] = std::min(Soll[k], Ist[k]);
        }
    }
    for (std::size_t i = von; i < Zeilen.size(); ++i) Zeilen[i].Soll = Soll;
}

std::vector<Zeile> Zeilen_von(const QTextBlock& Anfang, const QTextBlock& Ende) {
    std::vector<Zeile> Zeilen;
    QTextBlock b = Anfang;
    while (b.isValid() && b != Ende) {
        const std::size_t von = Zeilen.size();
        const bool Tabelle = ist_Tabellenzeile(b);
        if (ist_Zeile(b)) Zeilen.push_back({b, {}});
        b = b.next();
        while (Tabelle && b.isValid() && b != Ende && ist_Zeile(b)) {
            Zeilen.push_back({b, {}});
            b = b.next();
        }
        if (Tabelle) richte_aus(Zeilen, von);
    }
    return Zeilen;
}

void setze_Groesse(const QTextBlock& b, double Punkte) {
    QTextCharFormat f;
    f.setFontPointSize(Punkte);
    QTextCursor c(b);
    c.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    c.mergeCharFormat(f);
    c.mergeBlockCharFormat(f);
}

// A row that fits in no size keeps the one it has. `kleinste_Worte` is the smallest for a row that belongs to no table.
void verkleinere_einzeln(const std::vector<Zeile>& Zeilen, double kleinste_Worte) {
    for (const Zeile& z : Zeilen) {
        const double kleinste = z.Soll.empty() ? kleinste_Worte : kleinste_Groesse;
        double Punkte = Groesse(z.Absatz);
        while (Punkte >= kleinste && !passt(z, Punkte)) Punkte -= Schritt;
        if (Punkte >= kleinste && Punkte < Groesse(z.Absatz)) setze_Groesse(z.Absatz, Punkte);
    }
}

// The last paragraph of these words: a description may be called like a headline.
QTextBlock Absatz_mit(const QTextDocument& Dokument, const char* Wort) {
    QTextBlock b = Dokument.lastBlock();
    while (b.isValid() && b.text() != QString::fromUtf8(Wort)) b = b.previous();
    return b;
}

}  // namespace

void passe_Zeilen_ein(QTextDocument& Dokument) {
    const QTextBlock Anfang = Absatz_mit(Dokument, Berichtswort::Ergebnisse);
    const QTextBlock Ende = Absatz_mit(Dokument, Berichtswort::Bildkopf);
    verkleinere_einzeln(Zeilen_von(Dokument.begin(), Anfang), kleinste_Eingabe);
    if (!Anfang.isValid()) return;
    const std::vector<Zeile> Ergebnisse = Zeilen_von(Anfang, Ende);
    const auto zu_breite_Tabelle = [](const Zeile& z) { return !z.Soll.empty() && !passt(z, Groesse(z.Absatz)); };
    if (std::none_of(Ergebnisse.begin(), Ergebnisse.end(), zu_breite_Tabelle)) {
        verkleinere_einzeln(Ergebnisse, kleinste_Groesse);
        return;
    }
    const double Textgroesse = Groesse(Ergebnisse.front().Absatz);
    for (QTextBlock b = Anfang.next(); b.isValid() && b != Ende; b = b.next()) {
        const bool leer = b.text().isEmpty();
        if (leer || Groesse(b) == Textgroesse) setze_Groesse(b, Ergebnisse_verkleinert);
    }
    verkleinere_einzeln(Zeilen_von(Anfang, Ende), kleinste_Groesse);
}

void halte_Gruppen_beisammen(QTextDocument& Dokument) {
    constexpr int weiteste_Luecke = 2;  // empty lines between a caption and what it stands above
    QTextBlockFormat f;
    f.setProperty(bleibt_beim_naechsten, true);
    QTextBlock b = Dokument.begin();
    while (b.isValid()) {
        int Zeilen = 0;
        QTextBlock letzte = b;
        for (; b.isValid() && !b.text().isEmpty(); b = b.next(), ++Zeilen) {
            if (Zeilen > 0) QTextCursor(letzte).mergeBlockFormat(f);
            letzte = b;
        }
        int Luecke = 0;
        const QTextBlock dahinter = b;
        for (; b.isValid() && b.text().isEmpty(); b = b.next()) ++Luecke;
        if (Zeilen != 1 || Luecke > weiteste_Luecke || !b.isValid()) continue;
        QTextCursor(letzte).mergeBlockFormat(f);
        for (QTextBlock leer = dahinter; leer != b; leer = leer.next()) QTextCursor(leer).mergeBlockFormat(f);
    }
}

}  // namespace varnok
