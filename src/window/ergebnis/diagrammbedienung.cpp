// What mouse and keys do on a diagram.

#include "window/ergebnis/diagrammflaeche.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>

#include "painting/qt_text.h"
#include "painting/zeichner.h"
#include "window/kern/fokus.h"

namespace varnok {
namespace {

constexpr double Fangweite = 4;       // units within which a peak is met
constexpr double kuerzester_Zug = 6;  // pixels, to tell it from a click
constexpr Qt::KeyboardModifiers Tasten = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

// What the keys that read off do. With Shift a step is ten times as long.
struct Lesetaste {
    int Taste;
    Qt::KeyboardModifier dazu;
    Leserichtung Richtung;
    int Schritte = 1;
};
constexpr Lesetaste Lesetasten[] = {
    {Qt::Key_Left, Qt::NoModifier, Leserichtung::frueher},
    {Qt::Key_Right, Qt::NoModifier, Leserichtung::spaeter},
    {Qt::Key_Left, Qt::ShiftModifier, Leserichtung::frueher, 10},
    {Qt::Key_Right, Qt::ShiftModifier, Leserichtung::spaeter, 10},
    {Qt::Key_Left, Qt::ControlModifier, Leserichtung::vorige_Spitze},
    {Qt::Key_Right, Qt::ControlModifier, Leserichtung::naechste_Spitze},
    {Qt::Key_Up, Qt::NoModifier, Leserichtung::hoehere_Kurve},
    {Qt::Key_Down, Qt::NoModifier, Leserichtung::tiefere_Kurve},
};

}  // namespace

void Diagrammflaeche::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() == QEvent::FontChange) ordne();
    if (e->type() == QEvent::EnabledChange) verbirg_Ablesung();
}

void Diagrammflaeche::mousePressEvent(QMouseEvent* e) {
    const bool mit_Taste = e->modifiers() & Tasten;
    if (e->button() == Qt::LeftButton && mit_Taste) {
        if (Inhalt_) Markierung_ = {e->position().x(), e->position().x()};
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
    if (!Markierung_) return lies_ab_bei(e->position());
    Markierung_->second = e->position().x();
    update();
}

void Diagrammflaeche::mouseReleaseEvent(QMouseEvent* e) {
    if (!Markierung_ || e->button() != Qt::LeftButton) return;
    const auto [von, bis] = std::minmax(Markierung_->first, Markierung_->second);
    Markierung_.reset();
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

void Diagrammflaeche::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape && Lesestelle_) {
        Lesestelle_.reset();
        return zeige_Lesestelle();
    }
    const auto* t = std::find_if(std::begin(Lesetasten), std::end(Lesetasten), [&](const Lesetaste& x) {
        return x.Taste == e->key() && (e->modifiers() & Tasten) == Qt::KeyboardModifiers(x.dazu);
    });
    if (t == std::end(Lesetasten) || !Inhalt_) return QWidget::keyPressEvent(e);
    const int Tage_im_Pixel = std::max(1, static_cast<int>(std::ceil(Liste_.System.Breite() / width())));
    Lesestelle_ = gehe(*Inhalt_, Lesestelle_, t->Richtung, t->Schritte * Tage_im_Pixel);
    zeige_Lesestelle();
}

void Diagrammflaeche::focusOutEvent(QFocusEvent* e) {
    QWidget::focusOutEvent(e);
    if (betrifft_nur_Fenster(e->reason())) return;
    Lesestelle_.reset();
    zeige_Lesestelle();
}

void Diagrammflaeche::zeige_Lesestelle() {
    const std::optional<Lesestelle> hier = Inhalt_ ? halte(*Inhalt_, Lesestelle_) : std::nullopt;
    const std::optional<Ablesung> a = hier ? std::optional(Ablesung_an(*Inhalt_, *hier)) : std::nullopt;
    zeige_Ablesung(a);
    if (!Inhalt_) return setAccessibleDescription({});
    setAccessibleDescription(in_Qt(a ? Ablesungstext(*Inhalt_, *a) : Inhalt_->Titel.Text + '\n' + Inhalt_->Kommentar.Text));
}

void Diagrammflaeche::verbirg_Ablesung() { zeige_Lesestelle(); }

void Diagrammflaeche::lies_ab_bei(const QPointF& Ort) {
    if (!Inhalt_) return;
    const Koordinaten& k = Liste_.System;
    Punkt p = logisch_bei(Ort);
    // The first and the last day can be met from outside too.
    const Punkt Einheit = {Massstab_ / width() * k.Breite(), Massstab_ / height() * k.Hoehe()};
    if (std::abs(p.x - std::clamp(p.x, Achsen_.links, Achsen_.rechts)) < 5 * Einheit.x)
        p.x = std::clamp(p.x, Achsen_.links, Achsen_.rechts);
    const std::optional<Ablesung> a =
        p.y >= 0 ? lies_ab(*Inhalt_, p, {Fangweite * Einheit.x, Fangweite * Einheit.y}) : std::nullopt;
    a ? zeige_Ablesung(a) : verbirg_Ablesung();
}

void Diagrammflaeche::zeige_Ablesung(const std::optional<Ablesung>& a) {
    Ablesungsschild_->setVisible(a.has_value());
    if (!a && !Ablesepunkt_) return;
    Ablesepunkt_.reset();
    update();
    if (!a) return;
    const QString Text = in_Qt(Ablesungstext(*Inhalt_, *a));
    Ablesungsschild_->setText(Ablesungsschild_->fontMetrics().elidedText(Text, Qt::ElideRight, Ablesungsschild_->width()));
    Ablesefarbe_ = a->Farbe;
    Ablesepunkt_ = auf_Flaeche(rect(), Liste_.System, {static_cast<double>(a->Tag), static_cast<double>(a->Wert)});
}

}  // namespace varnok
