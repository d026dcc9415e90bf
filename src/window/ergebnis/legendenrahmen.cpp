#include "window/ergebnis/legendenrahmen.h"
#include "window/kern/bausteine.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "painting/qt_text.h"
#include "painting/zeichner.h"
#include "run/zeitachse.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {

using namespace Qt::StringLiterals;

// A piece of the curve's line.
class Musterstrich : public QWidget {
public:
    Musterstrich(const QString& Name, const Musterlinie& Linie, QWidget* parent) : QWidget(parent), Linie_(Linie) {
        setObjectName(Name);
    }
    double Massstab = 1;

protected:
    void paintEvent(QPaintEvent*) override {
        // By the painter of the curves, so that it is as wide as they are at every scale.
        const QRectF Flaeche(QPointF(), QSizeF(size()) / Massstab);
        Zeichenliste z;
        z.Linien.push_back({{0, 0.5}, {1, 0.5}, Linie_.Farbe, Linie_.Breite, Linie_.Muster});
        QPainter p(this);
        p.scale(Massstab, Massstab);
        male(p, Flaeche, z);
    }

private:
    Musterlinie Linie_;
};

Legendenrahmen::Legendenrahmen(const QString& Endung, Flaechenort Heimat, QWidget* Flaeche)
    : Flaechenrahmen(u"Legendenrahmen"_s + Endung, Heimat, Flaeche) {
    setAccessibleName(u"Legend"_s);
}

void Legendenrahmen::fuege_an(const QString& Name, const std::string& Text, const QString& Strichname, const Musterlinie* Linie,
                              bool Einzug) {
    auto* Schild = new QLabel(this);
    Schild->setObjectName(Name);
    Schild->setTextFormat(Qt::PlainText);
    Musterstrich* Strich = Linie ? new Musterstrich(Strichname, *Linie, this) : nullptr;
    reiche_weiter(Schild);
    Schild->show();
    if (Strich) {
        reiche_weiter(Strich);
        Strich->show();
    }
    Zeilen_.push_back({Schild, Strich, in_Qt(Text), Einzug});
}

void Legendenrahmen::zeige(const Legende& l, int Nummer) {
    if (l == Inhalt_) return;
    Inhalt_ = l;
    for (const Zeile& z : Zeilen_) {
        delete z.Text;
        delete z.Strich;
    }
    Zeilen_.clear();
    static const std::array<QString, 3> Namen = {u"L_Wirkstoff_"_s, u"L_Metab_1_"_s, u"L_Metab_2_"_s};
    const bool mehrfach = l.Art == Legendenart::mehrfach;
    for (std::size_t k = 0; k < l.Gruppen.size(); ++k) {
        const Legendengruppe& g = l.Gruppen[k];
        if (mehrfach) fuege_an(Namen.at(k) + in_Qt(Nummer), g.Titel, {}, nullptr, false);
        for (std::size_t i = 0; i < g.Eintraege.size(); ++i) {
            const Legendeneintrag& e = g.Eintraege[i];
            if (l.Art == Legendenart::Zusammenfassung) {
                const QString Endung = u"_Zusammenfassung_"_s + in_Qt(max_Studien * Nummer + static_cast<int>(i));
                fuege_an(u"L_Studie"_s + Endung, e.Text, u"PEC_Linie"_s + Endung, &e.Linie, false);
                continue;
            }
            const QString Art = i == 0 ? u"PEC"_s : u"TWA"_s;
            const QString Endung = (mehrfach ? u"_mehrfach_"_s : u"_"_s) + in_Qt(Nummer + static_cast<int>(k));
            fuege_an(u"L_"_s + Art + Endung, e.Text, Art + u"_Linie"_s + Endung, &e.Linie, mehrfach);
        }
    }
}

void Legendenrahmen::ordne(int Flaechenbreite, double Massstab) {
    const auto px = [&](double Einheiten) { return static_cast<int>(std::lround(Einheiten * Massstab)); };
    QFont Schrift = Diagrammschrift(Schriftgroesse_Fenster);
    Schrift.setPixelSize(px(Schrift.pixelSize()));
    const QFontMetrics Masse(Schrift);
    const int hoechstens = Flaechenbreite / 3;
    int Rand = px(8), Einzug = px(10), Strichbreite = px(28), Luecke = px(10);
    const auto noetig = [&] {
        int Breite = 0;
        for (const Zeile& z : Zeilen_) {
            const int dahinter = z.Strich ? Luecke + Strichbreite : 0;
            Breite = std::max(Breite, (z.eingerueckt ? Einzug : 0) + Masse.horizontalAdvance(z.Inhalt) + 2 + dahinter);
        }
        return Breite + 2 * Rand;
    };
    // Texts are worth more than room around them.
    if (noetig() > hoechstens) Rand = px(5), Einzug = px(5), Strichbreite = px(16), Luecke = px(5);
    const int Breite = std::min(noetig(), std::max(hoechstens, Strichbreite + Luecke + 2 * Rand));
    const int Hoehe = Masse.height() + px(2);
    int y = px(5);
    for (const Zeile& z : Zeilen_) {
        const int x = Rand + (z.eingerueckt ? Einzug : 0);
        const int Platz = Breite - Rand - x - (z.Strich ? Luecke + Strichbreite : 0);
        const QString kurz = Masse.elidedText(z.Inhalt, Qt::ElideRight, Platz);
        z.Text->setFont(Schrift);
        z.Text->setText(kurz);
        z.Text->setToolTip(kurz == z.Inhalt ? QString() : als_Tip(z.Inhalt));
        z.Text->setGeometry(x, y, Platz, Hoehe);
        if (z.Strich) {
            z.Strich->Massstab = Massstab;
            z.Strich->setGeometry(Breite - Rand - Strichbreite, y, Strichbreite, Hoehe);
        }
        y += Hoehe;
    }
    resize(Breite, y + px(5));
}

void Legendenrahmen::zeige_Griff(bool gehalten) {
    QPalette p = helle_Palette(gehalten ? QColor(0, 0, 255) : QColor(250, 250, 247));
    if (gehalten) p.setColor(QPalette::WindowText, Qt::white);
    setPalette(p);
}

}  // namespace varnok
