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
#include "reports/textstelle.h"
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

// A size of the first so many characters of a paragraph.
struct Schriftgrad {
    double Punkte;
    int Laenge;
};

QList<QTextLayout::FormatRange> Formate_in(const QTextBlock& b, Schriftgrad g) {
    QList<QTextLayout::FormatRange> Formate;
    for (QTextLayout::FormatRange r : b.textFormats()) {
        const double eigene = r.format.fontPointSize();
        const int vorn = std::clamp(g.Laenge - r.start, 0, r.length);
        r.format.setFontPointSize(g.Punkte * Spielraum);
        Formate.append({r.start, vorn, r.format});
        r.format.setFontPointSize(eigene * Spielraum);
        Formate.append({r.start + vorn, r.length - vorn, r.format});
    }
    return Formate;
}

int volle_Laenge(const QTextBlock& b) { return b.length() - 1; }

Schriftgrad eigener(const QTextBlock& b) { return {Groesse(b), volle_Laenge(b)}; }

// Where the cells behind the tabs begin if the paragraph is set in that size; nothing where it takes more than one line.
std::optional<Spalten> Zellanfaenge(const QTextBlock& b, Schriftgrad g) {
    const QTextBlockFormat f = b.blockFormat();
    QTextOption o;
    o.setTabs(alle_Tabulatoren(f));
    o.setUseDesignMetrics(true);
    QTextLayout Zeilenlage(b.text(), b.document()->defaultFont());
    Zeilenlage.setTextOption(o);
    Zeilenlage.setFormats(Formate_in(b, g));
    Zeilenlage.beginLayout();
    QTextLine Zeile = Zeilenlage.createLine();
    Zeile.setLineWidth(Twips_in_Pixel(Textbreite) - f.leftMargin() - f.rightMargin());
    const bool bricht = Zeilenlage.createLine().isValid();
    Zeilenlage.endLayout();
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

bool passt(const Zeile& z, Schriftgrad g) {
    const std::optional<Spalten> Ist = Zellanfaenge(z.Absatz, g);
    const auto n = static_cast<std::ptrdiff_t>(Ist ? std::min(Ist->size(), z.Soll.size()) : 0);
    return Ist &&
           std::equal(Ist->begin(), Ist->begin() + n, z.Soll.begin(), [](double a, double b) { return std::abs(a - b) < 1; });
}

// A column of a table begins where the row begins it that needs the least room.
void richte_aus(std::vector<Zeile>& Zeilen, std::size_t von) {
    Spalten Soll;
    for (std::size_t i = von; i < Zeilen.size(); ++i) {
        const Spalten Ist = Zellanfaenge(Zeilen[i].Absatz, eigener(Zeilen[i].Absatz)).value_or(Spalten());
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

void setze_Groesse(const QTextBlock& b, Schriftgrad g) {
    QTextCharFormat f;
    f.setFontPointSize(g.Punkte);
    QTextCursor c(b);
    c.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, g.Laenge);
    c.mergeCharFormat(f);
    if (g.Laenge == 0) c.mergeBlockCharFormat(f);  // an empty line is as high as its font
}

// The largest size of the first so many characters in which the row fits; 0 where it fits in none.
double passende_Groesse(const Zeile& z, int Laenge, double kleinste) {
    double Punkte = Groesse(z.Absatz);
    while (Punkte >= kleinste && !passt(z, {Punkte, Laenge})) Punkte -= Schritt;
    return Punkte >= kleinste ? Punkte : 0;
}

// A row that fits in no size keeps the one it has. `kleinste_Worte` is the smallest for a row that belongs to no table.
void verkleinere_einzeln(const std::vector<Zeile>& Zeilen, double kleinste_Worte) {
    for (const Zeile& z : Zeilen) {
        const bool Tabelle = !z.Soll.empty();
        const auto erste_Zelle = static_cast<int>(z.Absatz.text().indexOf(u'\t'));
        // The name in front of the numbers, or else all.
        for (const int Laenge : {Tabelle ? erste_Zelle : 0, volle_Laenge(z.Absatz)}) {
            const double Punkte = passende_Groesse(z, Laenge, Tabelle ? kleinste_Groesse : kleinste_Worte);
            if (Punkte == 0) continue;
            if (Punkte < Groesse(z.Absatz)) setze_Groesse(z.Absatz, {Punkte, Laenge});
            break;
        }
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
    const auto zu_breite_Tabelle = [](const Zeile& z) { return !z.Soll.empty() && !passt(z, eigener(z.Absatz)); };
    if (std::none_of(Ergebnisse.begin(), Ergebnisse.end(), zu_breite_Tabelle)) {
        verkleinere_einzeln(Ergebnisse, kleinste_Groesse);
        return;
    }
    const double Textgroesse = Groesse(Ergebnisse.front().Absatz);
    for (QTextBlock b = Anfang.next(); b.isValid() && b != Ende; b = b.next()) {
        const bool leer = b.text().isEmpty();
        if (leer || Groesse(b) == Textgroesse) setze_Groesse(b, {Ergebnisse_verkleinert, volle_Laenge(b)});
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
