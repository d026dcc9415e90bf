#include "window/ergebnis/diagrammflaeche.h"
#include "window/kern/bausteine.h"

#include <QFontInfo>
#include <QLabel>
#include <QMouseEvent>
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
constexpr double Schildrand = 2;         // units around a label
constexpr double Fangweite = 4;          // units within which a peak is met
constexpr double kuerzester_Zug = 6;     // pixels, to tell it from a click
constexpr Qt::KeyboardModifiers Tasten = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

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
    setStatusTip(u"Click: next diagram (F6). Right click: time range (F7). Shift + drag or wheel: zoom. Home: whole range"_s);
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
    setAccessibleDescription(in_Qt(d.Titel.Text) + u'\n' + in_Qt(d.Kommentar.Text));
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
    verbirg_Ablesung();
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
        const double Achse = Inhalt_ ? auf_Flaeche(rect(), Liste_.System, {0, 0}).y() : height();
        Tafel_->ordne(size(), static_cast<int>(Achse));
    }
    ordne_Rahmen();
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

void Diagrammflaeche::ordne_Rahmen() {
    const QSizeF g = size();
    const std::pair jetzt(Anblick_, size());
    const std::array<Flaechenrahmen*, 2> alle = {Legende_, Tafel_};
    std::vector<Rahmenwunsch> Wuensche;
    std::vector<std::size_t> welche;
    for (std::size_t i = 0; i < alle.size(); ++i) {
        if (!alle[i] || alle[i]->isHidden()) continue;
        const auto Anteil = in_Anteilen(alle[i]->rect(), g);
        Wuensche.push_back(
            {Anteil.Breite, Anteil.Hoehe, alle[i]->Heimat(), alle[i]->gezogen(), Plaetze_[i], gestellt_fuer_ == jetzt});
        welche.push_back(i);
    }
    const std::vector<Rahmenstand> Staende = varnok::ordne_Rahmen(Feld(), Wuensche);
    for (std::size_t k = 0; k < welche.size(); ++k) {
        const Rahmenstand& s = Staende[k];
        alle[welche[k]]->stelle(QPointF(s.Ort.links * g.width(), s.Ort.oben * g.height()).toPoint());
        if (gesehen_) Plaetze_[welche[k]] = s.Platz;
    }
    gestellt_fuer_ = jetzt;
}

double Diagrammflaeche::bestimme_Kopf() {
    constexpr int kleinster_Titel = 9;
    const double Breite = Groesse().width() - 2 * Schildrand - 1;
    Titelsatz_ = setze_in_zwei_Zeilen(in_Qt(Inhalt_->Titel.Text), Breite, Schriftgroesse_Titel, kleinster_Titel, true, false);
    const int Kommentargroesse = std::min(Schriftgroesse_Fenster, Titelsatz_.Groesse - 1);
    Kommentarsatz_ =
        setze_in_zwei_Zeilen(in_Qt(Inhalt_->Kommentar.Text), Breite, Kommentargroesse, kleinster_Titel - 1, true, false);
    double Hoehe = 0;
    for (const Titelsatz* s : {&Titelsatz_, &Kommentarsatz_})
        Hoehe += std::ceil(QFontMetricsF(Diagrammschrift(s->Groesse, true)).height()) * static_cast<double>(s->Zeilen.size());
    return Hoehe;
}

// `Ort` is the upper left corner, or the middle of the upper edge.
void Diagrammflaeche::setze_Schild(Schildname s, const Beschriftung& b, const Titelsatz& Satz, const QPointF& Ort, bool mittig) {
    QLabel& l = *Schilder_[s];
    QFont Schrift = Diagrammschrift(Satz.Groesse, b.fett);
    Schrift.setPixelSize(static_cast<int>(std::lround(Schrift.pixelSize() * Massstab_)));
    const QFontMetrics Masse(Schrift);
    const auto Rand = static_cast<int>(Schildrand * Massstab_);
    QStringList Zeilen;
    int Breite = 0;
    for (const QString& z : Satz.Zeilen) {
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
    l.setToolTip(Zeilen == Satz.Zeilen ? QString() : als_Tip(in_Qt(b.Text)));
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
    setze_Schild(Titel, Inhalt_->Titel, Titelsatz_, {Mitte, Titel_oben}, true);
    setze_Schild(Kommentar, Inhalt_->Kommentar, Kommentarsatz_, {Mitte, Schilder_[Titel]->geometry().bottom() + 1.0}, true);
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
    if (Auswahl_) {
        const double oben = auf_Flaeche(rect(), Liste_.System, {0, Achsen_.oben}).y();
        const double unten = auf_Flaeche(rect(), Liste_.System, {0, 0}).y();
        p.fillRect(QRectF(QPointF(Auswahl_->first, oben), QPointF(Auswahl_->second, unten)), QColor(0, 0, 255, 40));
    }
    if (!Ablesepunkt_) return;
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Farben::Text, 1));
    p.setBrush(Palettenfarbe(Ablesefarbe_));
    p.drawEllipse(*Ablesepunkt_, 3.5 * Massstab_, 3.5 * Massstab_);
}

void Diagrammflaeche::resizeEvent(QResizeEvent*) { ordne(); }

void Diagrammflaeche::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() == QEvent::FontChange) ordne();
    if (e->type() == QEvent::EnabledChange) verbirg_Ablesung();
}

void Diagrammflaeche::mousePressEvent(QMouseEvent* e) {
    const bool mit_Taste = e->modifiers() & Tasten;
    if (e->button() == Qt::LeftButton && mit_Taste) {
        if (Inhalt_) Auswahl_ = {e->position().x(), e->position().x()};
    } else if (e->button() == Qt::LeftButton) {
        Q_EMIT weiterzuschalten();
    } else if (e->button() == Qt::RightButton) {
        if (mit_Taste) {
            hole_Rahmen_heim();
        } else {
            Q_EMIT zu_skalieren();
        }
    }
    e->accept();
}

// Each press counts.
void Diagrammflaeche::mouseDoubleClickEvent(QMouseEvent* e) { mousePressEvent(e); }

void Diagrammflaeche::mouseMoveEvent(QMouseEvent* e) {
    if (!Auswahl_) return zeige_Ablesung(e->position());
    Auswahl_->second = e->position().x();
    update();
}

void Diagrammflaeche::mouseReleaseEvent(QMouseEvent* e) {
    if (!Auswahl_ || e->button() != Qt::LeftButton) return;
    const auto [von, bis] = std::minmax(Auswahl_->first, Auswahl_->second);
    Auswahl_.reset();
    update();
    if (bis - von >= kuerzester_Zug) Q_EMIT Zeitraum_gezogen(Tag_bei(von), Tag_bei(bis));
}

void Diagrammflaeche::wheelEvent(QWheelEvent* e) {
    constexpr double Raste = 120;
    if (Inhalt_ && e->angleDelta().y() != 0)
        Q_EMIT gedreht(std::pow(0.8, e->angleDelta().y() / Raste), Tag_bei(e->position().x()));
    e->accept();
}

Punkt Diagrammflaeche::logisch_bei(const QPointF& Ort) const {
    const Koordinaten& k = Liste_.System;
    return {k.links + Ort.x() / width() * k.Breite(), k.oben - Ort.y() / height() * k.Hoehe()};
}

void Diagrammflaeche::leaveEvent(QEvent*) { verbirg_Ablesung(); }

void Diagrammflaeche::verbirg_Ablesung() {
    Ablesungsschild_->hide();
    if (!Ablesepunkt_) return;
    Ablesepunkt_.reset();
    update();
}

void Diagrammflaeche::zeige_Ablesung(const QPointF& Ort) {
    if (!Inhalt_) return;
    const Koordinaten& k = Liste_.System;
    Punkt p = logisch_bei(Ort);
    // The first and the last day can be met from outside too.
    const Punkt Einheit = {Massstab_ / width() * k.Breite(), Massstab_ / height() * k.Hoehe()};
    if (std::abs(p.x - std::clamp(p.x, Achsen_.links, Achsen_.rechts)) < 5 * Einheit.x)
        p.x = std::clamp(p.x, Achsen_.links, Achsen_.rechts);
    const std::optional<Ablesung> a =
        p.y >= 0 ? lies_ab(*Inhalt_, p, {Fangweite * Einheit.x, Fangweite * Einheit.y}) : std::nullopt;
    if (!a) {
        verbirg_Ablesung();
        return;
    }
    const QString Text = in_Qt(Ablesungstext(*Inhalt_, *a));
    Ablesungsschild_->setText(Ablesungsschild_->fontMetrics().elidedText(Text, Qt::ElideRight, Ablesungsschild_->width()));
    Ablesungsschild_->show();
    Ablesefarbe_ = a->Farbe;
    Ablesepunkt_ = auf_Flaeche(rect(), k, {static_cast<double>(a->Tag), static_cast<double>(a->Wert)});
    update();
}

}  // namespace varnok
