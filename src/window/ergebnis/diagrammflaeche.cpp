#include "window/ergebnis/diagrammflaeche.h"
#include "window/kern/bausteine.h"

#include <QFontInfo>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "painting/diagrammlage.h"
#include "painting/farben.h"
#include "painting/qt_text.h"
#include "painting/rahmenfeld.h"
#include "painting/zeichner.h"
#include "window/ergebnis/ergebnisrahmen.h"
#include "window/ergebnis/legendenrahmen.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr double gewohnte_Schrift = 12;  // pixels of the usual letters of a desktop
constexpr double Schildrand = 2;         // units below the title and around a name
constexpr double Seitenrand = 6;         // units beside a title

// Units that a line of a label takes.
double Zeilenhoehe_Schild() { return std::ceil(QFontMetricsF(Diagrammschrift(Schriftgroesse_Fenster, true)).height()); }

Flaechenort Legendenheimat(bool mehrfach) { return mehrfach ? Heimat_Legende_mehrfach : Heimat_Legende; }

}  // namespace

Diagrammflaeche::Diagrammflaeche(bool Zusammenfassung, int Nummer, const QString& Ergebnistitel, QWidget* parent)
    : QWidget(parent), Nummer_(Nummer) {
    const bool mehrfach = !Zusammenfassung && ist_mehrfach(Nummer);
    const QString Endung = (Zusammenfassung ? u"_Zusammenfassung_"_s : u"_"_s) + in_Qt(Nummer);
    setObjectName(u"Diagramm"_s + Endung);
    setAccessibleName(u"Diagram"_s);
    setPalette(helle_Palette(Qt::white));
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);  // a click shows the next diagram
    const std::array<QString, 4> Namen = {u"Diagrammtitel"_s, u"Diagrammkommentar"_s, u"Name_x_Achse"_s, u"Name_y_Achse"_s};
    for (std::size_t i = 0; i < Namen.size(); ++i) Schilder_[i] = erstelle_Schild(Namen[i], Endung);
    Ablesungsschild_ = erstelle_Schild(u"Ablesung"_s, Endung);
    Ablesungsschild_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Ablesungsschild_->hide();
    Legende_ = new Legendenrahmen(mehrfach ? u"_mehrfach"_s + Endung : Endung, Legendenheimat(mehrfach), this);
    connect(Legende_, &Flaechenrahmen::betreten, this, &Diagrammflaeche::verbirg_Ablesung);
    Legende_->erlaube(false);  // before the first drawing there is nothing to explain
    if (mehrfach) return;
    Tafel_ = new Ergebnisrahmen(Endung, Ergebnistitel, this);
    connect(Tafel_, &Flaechenrahmen::betreten, this, &Diagrammflaeche::verbirg_Ablesung);
    connect(Tafel_, &Ergebnisrahmen::umgeklappt, this, [this] {
        ordne_Tafel(Tafelform_);
        ordne_Rahmen();
    });
}

QLabel* Diagrammflaeche::erstelle_Schild(const QString& Name, const QString& Endung) {
    auto* l = new QLabel(this);
    l->setObjectName(Name + Endung);
    l->setTextFormat(Qt::PlainText);
    l->setMouseTracking(true);  // the mouse works through it
    return l;
}

void Diagrammflaeche::zeige(const Diagramm& d, int Anblick) {
    Inhalt_ = d;
    Anblick_ = Anblick;
    Legende_->zeige(d.Legendeninhalt, d.Nummer);
    Legende_->erlaube(true);
    if (Tafel_) Tafel_->setze_Titel(in_Qt(d.Ergebnistitel));
    ordne();
}

void Diagrammflaeche::leere() {
    Inhalt_.reset();
    Legende_->erlaube(false);
    ordne();
}

void Diagrammflaeche::hole_Rahmen_heim() {
    for (Flaechenrahmen* r : {static_cast<Flaechenrahmen*>(Legende_), static_cast<Flaechenrahmen*>(Tafel_)}) {
        if (!r) continue;
        r->verbirg(false);
        r->kehre_heim();
    }
    Plaetze_ = {};
    ordne_Rahmen();
}

void Diagrammflaeche::ordne() {
    zeige_Ablesung(std::nullopt);
    Massstab_ = std::clamp(QFontInfo(font()).pixelSize() / gewohnte_Schrift, 1.0, 2.0);
    Bild_ = {};
    const double Zeile = Zeilenhoehe_Schild();
    if (!Inhalt_) Kopf_aus_ = {};
    if (Inhalt_) {
        // Setting the lines tries many fonts, and most numbers change neither text.
        if (std::tuple Neues(Inhalt_->Titel.Text, Inhalt_->Kommentar.Text, Groesse().width()); Kopf_aus_ != Neues) {
            Kopf_aus_ = std::move(Neues);
            Kopf_ = bestimme_Kopf();
        }
        Liste_ = Inhalt_->Liste;
        Achsen_ = passe_an_Flaeche(Liste_, Groesse(), {Kopf_ + Zeile + Schildrand, Zeile + Schildrand});
    }
    ordne_Schilder();
    Legende_->ordne(width(), Massstab_);
    if (Tafel_) {
        waehle_Tafelform();
        ordne_Tafel(Tafelform_);
    }
    ordne_Rahmen();
    zeige_Lesestelle();
    update();
}

Rahmenfeld Diagrammflaeche::Feld() const {
    const double Kopf = Inhalt_ ? (Schilder_[Kommentar]->geometry().bottom() + 1) / Massstab_ : 0;
    Rahmenfeld f = bilde_Rahmenfeld(Liste_, QRectF(QPointF(), Groesse()), Achsen_, Kopf);
    for (const QLabel* l : Schilder_) {
        if (Inhalt_) f.Texte.push_back(in_Anteilen(l->geometry(), size()));
    }
    return f;
}

std::vector<Flaechenrahmen*> Diagrammflaeche::sichtbare_Rahmen() const {
    std::vector<Flaechenrahmen*> sichtbare;
    for (Flaechenrahmen* r : {static_cast<Flaechenrahmen*>(Legende_), static_cast<Flaechenrahmen*>(Tafel_)}) {
        if (r && !r->isHidden()) sichtbare.push_back(r);
    }
    return sichtbare;
}

std::vector<Rahmenwunsch> Diagrammflaeche::Wuensche() const {
    std::vector<Rahmenwunsch> Liste;
    for (const Flaechenrahmen* r : sichtbare_Rahmen()) {
        const auto Anteil = in_Anteilen(r->rect(), size());
        Liste.push_back({Anteil.Breite, Anteil.Hoehe, r->Heimat(), r->gezogen(), Plaetze_.at(r == Tafel_), steht_fest()});
    }
    return Liste;
}

void Diagrammflaeche::ordne_Rahmen() {
    const QSizeF g = size();
    const std::vector<Rahmenstand> Staende = varnok::ordne_Rahmen(Feld(), Wuensche());
    auto Stand = Staende.begin();
    for (Flaechenrahmen* r : sichtbare_Rahmen()) {
        r->stelle(QPointF(Stand->Ort.links * g.width(), Stand->Ort.oben * g.height()).toPoint());
        if (gesehen_) Plaetze_.at(r == Tafel_) = Stand->Platz;
        ++Stand;
    }
    gestellt_fuer_ = {Anblick_, size()};
}

void Diagrammflaeche::ordne_Tafel(Tafelform s) {
    const double Achse = Inhalt_ ? auf_Flaeche(rect(), Liste_.System, {0, 0}).y() : height();
    Tafel_->ordne(size(), static_cast<int>(Achse), s);
}

void Diagrammflaeche::waehle_Tafelform() {
    if (!Inhalt_ || Tafel_->isHidden() || (steht_fest() && gesehen_)) return;
    std::vector<Rahmengroesse> Groessen;
    for (const Tafelform s : {Tafelform::gewohnt, Tafelform::klein, Tafelform::gefaltet}) {
        ordne_Tafel(s);
        const auto Anteil = in_Anteilen(Tafel_->rect(), size());
        Groessen.push_back({Anteil.Breite, Anteil.Hoehe});
    }
    Tafelform_ = static_cast<Tafelform>(waehle_Groesse(Feld(), Wuensche(), Groessen));
}

double Diagrammflaeche::bestimme_Kopf() {
    constexpr int kleinster_Titel = 9;
    const double Breite = Groesse().width() - 2 * Seitenrand - 1;
    Titelform_ = setze_in_zwei_Zeilen(in_Qt(Inhalt_->Titel.Text), Breite, Schriftgroesse_Titel, kleinster_Titel, true, false);
    const int Kommentargroesse = std::min(Schriftgroesse_Fenster, Titelform_.Groesse - 1);
    Kommentarform_ =
        setze_in_zwei_Zeilen(in_Qt(Inhalt_->Kommentar.Text), Breite, Kommentargroesse, kleinster_Titel - 1, true, false);
    double Hoehe = 0;
    for (const Titelform* s : {&Titelform_, &Kommentarform_})
        Hoehe += std::ceil(QFontMetricsF(Diagrammschrift(s->Groesse, true)).height()) * static_cast<double>(s->Zeilen.size());
    return Hoehe;
}

// `Ort` is the upper left corner, or the middle of the upper edge.
void Diagrammflaeche::setze_Schild(Schildname s, const Beschriftung& b, const Titelform& Form, const QPointF& Ort, bool mittig) {
    QLabel& l = *Schilder_[s];
    QFont Schrift = Diagrammschrift(Form.Groesse, b.fett);
    Schrift.setPixelSize(static_cast<int>(std::lround(Schrift.pixelSize() * Massstab_)));
    const QFontMetrics Masse(Schrift);
    const auto Rand = static_cast<int>((mittig ? Seitenrand : Schildrand) * Massstab_);
    QStringList Zeilen;
    int Breite = 0;
    for (const QString& z : Form.Zeilen) {
        Zeilen << Masse.elidedText(z, Qt::ElideMiddle, width() - 2 * Rand);
        Breite = std::max(Breite, Masse.horizontalAdvance(Zeilen.back()) + 1);
    }
    const auto links = static_cast<int>(std::lround(mittig ? Ort.x() - Breite / 2.0 : Ort.x()));
    QPalette p = palette();
    p.setColor(QPalette::WindowText, Palettenfarbe(b.Farbe));
    l.setPalette(p);
    l.setFont(Schrift);
    l.setAlignment(mittig ? Qt::AlignHCenter : Qt::AlignLeft);
    l.setText(Zeilen.join(u'\n'));
    l.setToolTip(Zeilen == Form.Zeilen ? QString() : als_Tip(in_Qt(b.Text)));
    l.setGeometry(std::max(Rand, std::min(links, width() - Breite - Rand)), static_cast<int>(std::lround(Ort.y())), Breite,
                  Masse.height() * static_cast<int>(Zeilen.size()));
}

void Diagrammflaeche::ordne_Schilder() {
    for (QLabel* l : Schilder_) l->setVisible(Inhalt_.has_value());
    if (!Inhalt_) return;
    const double Zeile = Zeilenhoehe_Schild() * Massstab_;
    const auto Stelle = [&](Punkt p) { return auf_Flaeche(rect(), Liste_.System, p); };
    const QPointF Ursprung = Stelle({Achsen_.links, 0});
    const double Mitte = Stelle({(Achsen_.links + Achsen_.rechts) / 2, 0}).x();
    // On a large surface title and comment hang between its edge and the axis, the names stay at their axes.
    const double Achse_oben = Stelle({Achsen_.links, Achsen_.oben}).y();
    const double Titel_oben = 1 + std::max(0.0, Achse_oben - Kopf_ * Massstab_ - 1.5 * Zeile - 2) / 3;
    setze_Schild(Titel, Inhalt_->Titel, Titelform_, {Mitte, Titel_oben}, true);
    setze_Schild(Kommentar, Inhalt_->Kommentar, Kommentarform_, {Mitte, Schilder_[Titel]->geometry().bottom() + 1.0}, true);
    const auto setze_Namen = [&](Schildname s, const Beschriftung& b) {
        setze_Schild(s, b, {{in_Qt(b.Text)}, Schriftgroesse_Fenster, true}, {0, 0}, false);
    };
    setze_Namen(y_Achse, Inhalt_->Name_y_Achse);
    QLabel& y = *Schilder_[y_Achse];
    y.move(std::max(4, static_cast<int>(Ursprung.x()) - y.width()), static_cast<int>(std::lround(Achse_oben - 1.5 * Zeile)));
    // Under the middle of the time axis, further left where the reading needs the room.
    setze_Namen(x_Achse, Inhalt_->Name_x_Achse);
    QLabel& x = *Schilder_[x_Achse];
    const double vor_Ablesung = width() - std::min(275 * Massstab_, 0.4 * width()) - x.width();
    const double unter_Zahlen = Ursprung.y() + (Ursprung.y() - Achse_oben) / 30 + 1.4 * Zeile;
    x.move(static_cast<int>(std::max(4.0, std::min(Mitte - x.width() / 2.0, vor_Ablesung))),
           static_cast<int>(std::min(unter_Zahlen, height() - Zeile - 1)));
    ordne_Ablesung();
}

void Diagrammflaeche::ordne_Ablesung() {
    QFont Schrift = Diagrammschrift(Schriftgroesse_Fenster - 1);
    Schrift.setPixelSize(static_cast<int>(std::lround(Schrift.pixelSize() * Massstab_)));
    Ablesungsschild_->setFont(Schrift);
    const QRect Name = Schilder_[x_Achse]->geometry();
    const int Anfang = Name.right() + 10;
    Ablesungsschild_->setGeometry(Anfang, Name.y(), std::max(0, width() - 6 - Anfang), Name.height());
}

void Diagrammflaeche::male_Bild() {
    Bild_ = QPixmap(size() * devicePixelRatio());
    Bild_.setDevicePixelRatio(devicePixelRatio());
    Bild_.fill(Qt::white);
    if (!Inhalt_) return;
    QPainter p(&Bild_);
    p.scale(Massstab_, Massstab_);
    male(p, QRectF(QPointF(), Groesse()), Liste_);
}

void Diagrammflaeche::paintEvent(QPaintEvent*) {
    if (Bild_.isNull() || Bild_.devicePixelRatio() != devicePixelRatio()) male_Bild();
    QPainter p(this);
    p.drawPixmap(0, 0, Bild_);
    gesehen_ = gesehen_ || Inhalt_;
    if (Markierung_) {
        const double oben = auf_Flaeche(rect(), Liste_.System, {0, Achsen_.oben}).y();
        const double unten = auf_Flaeche(rect(), Liste_.System, {0, 0}).y();
        p.fillRect(QRectF(QPointF(Markierung_->first, oben), QPointF(Markierung_->second, unten)), QColor(0, 0, 255, 40));
    }
    if (!Ablesepunkt_) return;
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Farben::Text, 1));
    p.setBrush(Palettenfarbe(Ablesefarbe_));
    p.drawEllipse(*Ablesepunkt_, 3.5 * Massstab_, 3.5 * Massstab_);
}

void Diagrammflaeche::resizeEvent(QResizeEvent*) { ordne(); }

}  // namespace varnok
