#include "painting/titelform.h"

#include <QFontMetricsF>
#include <algorithm>

#include "painting/qt_text.h"
#include "painting/zeichner.h"

namespace varnok {
namespace {

double breiteste(const QStringList& Zeilen, const QFontMetricsF& Masse) {
    double Breite = 0;
    for (const QString& z : Zeilen) Breite = std::max(Breite, Masse.horizontalAdvance(z));
    return Breite;
}

// As much as finds room on each line, a word that is wider than a line in pieces.
QStringList fuelle_Zeilen(const QString& Text, const QFontMetricsF& Masse, double Breite) {
    QStringList Zeilen = {QString()};
    for (QString Wort : Text.split(u' ', Qt::SkipEmptyParts)) {
        const QString laenger = Zeilen.back().isEmpty() ? Wort : Zeilen.back() + u' ' + Wort;
        if (Masse.horizontalAdvance(laenger) <= Breite) {
            Zeilen.back() = laenger;
            continue;
        }
        if (!Zeilen.back().isEmpty()) Zeilen << QString();
        while (Masse.horizontalAdvance(Wort) > Breite) {
            qsizetype n = 1;
            while (n < Wort.size() && Masse.horizontalAdvance(Wort.left(n + 1)) <= Breite) ++n;
            Zeilen.back() = Wort.left(n);
            Zeilen << QString();
            Wort.remove(0, n);
        }
        Zeilen.back() = Wort;
    }
    return Zeilen;
}

// Behind the last dash, or before the name of the study: there a new statement begins.
qsizetype Fuge(const QString& Text) {
    using namespace Qt::StringLiterals;
    const qsizetype Studie = Text.lastIndexOf(u" Study: "_s);
    return Studie > 0 ? Studie : Text.lastIndexOf(u" - "_s) + 2;
}

QStringList brich_um(const QString& ganz, const QFontMetricsF& Masse, double Breite) {
    QStringList beste = {ganz};
    if (Masse.horizontalAdvance(ganz) <= Breite) return beste;
    const auto geteilt = [&](qsizetype i) { return QStringList{ganz.left(i).trimmed(), ganz.mid(i).trimmed()}; };
    if (const qsizetype i = Fuge(ganz); i > 2 && breiteste(geteilt(i), Masse) <= Breite) return geteilt(i);
    for (qsizetype i = ganz.indexOf(u' '); i > 0; i = ganz.indexOf(u' ', i + 1)) {
        const QStringList zwei = geteilt(i);
        if (breiteste(zwei, Masse) < breiteste(beste, Masse)) beste = zwei;
    }
    return beste;
}

}  // namespace

Titelform setze_in_zwei_Zeilen(const QString& Text, double Breite, int Groesse, int kleinste, bool fett, bool kursiv) {
    Titelform s;
    for (s.Groesse = Groesse;; --s.Groesse) {
        const QFontMetricsF Masse(Diagrammschrift(s.Groesse, fett, kursiv));
        s.Zeilen = brich_um(Text.trimmed(), Masse, Breite);
        s.passt = breiteste(s.Zeilen, Masse) <= Breite;
        if (s.passt || s.Groesse <= kleinste) return s;
    }
}

int setze_Titel(Beschriftung& b, double Breite, int Groesse, int kleinste, bool fett, bool kursiv) {
    Titelform s = setze_in_zwei_Zeilen(in_Qt(b.Text), Breite, Groesse, kleinste, fett, kursiv);
    if (!s.passt) s.Zeilen = fuelle_Zeilen(in_Qt(b.Text), QFontMetricsF(Diagrammschrift(s.Groesse, fett, kursiv)), Breite);
    b.Groesse = s.Groesse;
    b.Text = aus_Qt(s.Zeilen.join(u'\n'));
    return static_cast<int>(s.Zeilen.size());
}

}  // namespace varnok
