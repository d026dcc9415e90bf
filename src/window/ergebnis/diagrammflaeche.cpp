#include "window/ergebnis/diagrammflaeche.h"

#include <QFontInfo>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "exposure/bezeichnungen.h"
#include "exposure/ergebnistabelle.h"
#include "painting/diagrammlage.h"
#include "painting/farben.h"
#include "painting/qt_text.h"
#include "painting/zeichner.h"
#include "window/ergebnis/ergebnisrahmen.h"
#include "window/ergebnis/legendenrahmen.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr double gewohnte_Schrift = 12;  // pixels of the usual letters of a desktop
constexpr double Schildrand = 2;         // units around a label
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

void Diagrammflaeche::zeige(const Diagramm& d) {
    Inhalt_ = d;
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
}

void Diagrammflaeche::ordne() {
    verbirg_Ablesung();
    Massstab_ = std::clamp(QFontInfo(font()).pixelSize() / gewohnte_Schrift, 1.0, 2.0);
    Bild_ = {};
    const double Zeile = Zeilenhoehe_Schild();
    if (Inhalt_) {
        Liste_ = Inhalt_->Liste;
        Achsen_ = passe_an_Flaeche(Liste_, Groesse(), {3 * Zeile + Schildrand, Zeile + Schildrand});
    }
    const int oben = ordne_Schilder();
    const auto unten = static_cast<int>(std::ceil(Zeile * Massstab_));
    Legende_->ordne(width(), Massstab_);
    Legende_->stelle_auf(oben, unten);
    if (Tafel_) {
        const double Achse = Inhalt_ ? auf_Flaeche(rect(), Liste_.System, {0, 0}).y() : height();
        Tafel_->ordne(size(), static_cast<int>(Achse));
        Tafel_->stelle_auf(oben, unten);
    }
    update();
}

void Diagrammflaeche::setze_Schild(Schildname s, const Beschriftung& b, double links, double oben) {
    QLabel& l = *Schilder_[s];
    QFont Schrift = Diagrammschrift(Schriftgroesse_Fenster, b.fett);
    Schrift.setPixelSize(static_cast<int>(std::lround(Schrift.pixelSize() * Massstab_)));
    const QFontMetrics Masse(Schrift);
    const auto Rand = static_cast<int>(Schildrand * Massstab_);
    const QString Text = in_Qt(b.Text);
    const QString kurz = Masse.elidedText(Text, Qt::ElideMiddle, width() - 2 * Rand);
    const int Breite = Masse.horizontalAdvance(kurz) + 1;
    const int x = std::max(Rand, std::min(static_cast<int>(std::lround(links)), width() - Breite - Rand));
    QPalette p = palette();
    p.setColor(QPalette::WindowText, Palettenfarbe(b.Farbe));
    l.setPalette(p);
    l.setFont(Schrift);
    l.setText(kurz);
    l.setToolTip(kurz == Text ? QString() : Text);
    l.setGeometry(x, static_cast<int>(std::lround(oben)), Breite, static_cast<int>(Zeilenhoehe_Schild() * Massstab_));
}

int Diagrammflaeche::ordne_Schilder() {
    for (QLabel* l : Schilder_) l->setVisible(Inhalt_.has_value());
    if (!Inhalt_) return 0;
    const Koordinaten& k = Liste_.System;
    const double Zeile = Zeilenhoehe_Schild() * Massstab_;
    const double Start = Achsen_.links;
    const auto Stelle = [&](Punkt p) { return auf_Flaeche(rect(), k, p); };
    // The formula of the left edge takes letters for a share of the axis; where that is more than they need, the text is
    // centred by its true width.
    const auto setze_mittig = [&](Schildname s, const Beschriftung& b, double oben) {
        const double links = Stelle({b.links.value_or(Start), 0}).x();
        setze_Schild(s, b, links, oben);
        QLabel& l = *Schilder_[s];
        const double Mitte = Stelle({(Achsen_.links + Achsen_.rechts) / 2, 0}).x();
        const auto Rand = static_cast<int>(Schildrand * Massstab_);
        l.move(std::min(std::max(l.x(), static_cast<int>(Mitte - l.width() / 2.0)), width() - l.width() - Rand), l.y());
    };
    // On a large surface title and comment hang between its edge and the axis, the names stay at their axes.
    const double Achse_oben = Stelle({Start, Achsen_.oben}).y();
    const double Titel_oben = 1 + std::max(0.0, Achse_oben - 3.5 * Zeile - 2) / 3;
    setze_mittig(Titel, Inhalt_->Titel, Titel_oben);
    setze_mittig(Kommentar, Inhalt_->Kommentar, Titel_oben + Zeile);
    setze_Schild(y_Achse, Inhalt_->Name_y_Achse, 0, Achse_oben - 1.5 * Zeile);
    setze_Schild(x_Achse, Inhalt_->Name_x_Achse, 0, 0);
    QLabel& y = *Schilder_[y_Achse];
    y.move(std::max(4, static_cast<int>(Stelle({Start, 0}).x()) - y.width()), y.y());
    // Under the middle of the time axis, further left where the reading needs the room.
    QLabel& x = *Schilder_[x_Achse];
    const QPointF Ursprung = Stelle({Start, 0});
    const double mittig = Stelle({(Achsen_.links + Achsen_.rechts) / 2, 0}).x() - x.width() / 2.0;
    const double vor_Ablesung = width() - std::min(275 * Massstab_, 0.4 * width()) - x.width();
    const double unter_Zahlen = Ursprung.y() + (Ursprung.y() - Achse_oben) / 30 + 1.4 * Zeile;
    x.move(static_cast<int>(std::max(4.0, std::min(mittig, vor_Ablesung))),
           static_cast<int>(std::min(unter_Zahlen, height() - Zeile - 1)));
    ordne_Ablesung();
    return Schilder_[Kommentar]->geometry().bottom() + 1;
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
    if (e->button() == Qt::LeftButton && !mit_Taste) {
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

void Diagrammflaeche::mouseMoveEvent(QMouseEvent* e) { zeige_Ablesung(e->position()); }

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
    Punkt p{k.links + Ort.x() / width() * k.Breite(), k.oben - Ort.y() / height() * k.Hoehe()};
    // The first and the last day can be met from outside too.
    const double nahe = 5 * Massstab_ / width() * k.Breite();
    if (std::abs(p.x - std::clamp(p.x, Achsen_.links, Achsen_.rechts)) < nahe)
        p.x = std::clamp(p.x, Achsen_.links, Achsen_.rechts);
    const std::optional<Ablesung> a = p.y >= 0 ? lies_ab(*Inhalt_, p) : std::nullopt;
    if (!a) {
        verbirg_Ablesung();
        return;
    }
    const QString Einheit = in_Qt(Konzentrationseinheit(Inhalt_->Einheit, Inhalt_->Endpunkt));
    const std::string Wert = Formatiere_Zahl(static_cast<double>(a->Wert), false, true, Inhalt_->Einheit);
    const QString Text = u"day "_s + in_Qt(a->Tag) + u": "_s + in_Qt(Wert) + u' ' + Einheit + u", "_s + in_Qt(a->Name);
    Ablesungsschild_->setText(Ablesungsschild_->fontMetrics().elidedText(Text, Qt::ElideRight, Ablesungsschild_->width()));
    Ablesungsschild_->show();
    Ablesefarbe_ = a->Farbe;
    Ablesepunkt_ = auf_Flaeche(rect(), k, {static_cast<double>(a->Tag), static_cast<double>(a->Wert)});
    update();
}

}  // namespace varnok
