#include "window/saetze/szenariorahmen.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <utility>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/saetze/satzzeile.h"
#include "window/saetze/szenario_form.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// A text to be read and copied; Tab passes it by.
Textfeld* Anzeigefeld(const QString& Name, QWidget* parent) {
    auto* f = new Textfeld(Name, parent);
    f->setReadOnly(true);
    f->setFocusPolicy(Qt::ClickFocus);
    return f;
}

}  // namespace

Szenariorahmen::Szenariorahmen(Sitzung& Programm, QWidget* parent)
    : Rahmen(u"Szenariorahmen"_s, Rahmenart::Szenario, Programm, parent) {
    const QString Titel = u"Scenario:"_s;
    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(10, 8, 10, 10);
    Spalte->setSpacing(6);
    Spalte->addWidget(Ueberschrift(Titel, this));
    Satz_ = new Satzzeile(Szenario, Titel, Programm, this);
    Edit_ = new Schaltflaeche(u"Edit"_s, u"Edit"_s, Satz_);
    Satz_->haenge_an(Edit_);
    Spalte->addWidget(Satz_);

    Bodenszenario_ = Anzeigefeld(u"Bodenszenario"_s, this);
    Klimaszenario_ = Anzeigefeld(u"Klimaszenario"_s, this);
    auto* Zeile = new QHBoxLayout;
    Zeile->setSpacing(5);
    Zeile->addWidget(Schild(u"Soil:"_s, Bodenszenario_, this));
    Zeile->addWidget(Bodenszenario_, 1);
    Zeile->addSpacing(7);
    Zeile->addWidget(Schild(u"Climate:"_s, Klimaszenario_, this));
    Zeile->addWidget(Klimaszenario_, 1);
    Bodenszenario_->setAccessibleName(u"Soil of the scenario"_s);
    Klimaszenario_->setAccessibleName(u"Climate of the scenario"_s);
    Spalte->addLayout(Zeile);
    horche_auf(Satz_);
    connect(Edit_, &QPushButton::clicked, this, &Szenariorahmen::oeffne_Editor);
    for (Textfeld* f : {Bodenszenario_, Klimaszenario_}) f->installEventFilter(this);
}

void Szenariorahmen::oeffne_Editor() {
    if (!schliesse_Feld_ab() || QApplication::activeModalWidget()) return;
    zeige_Szenarioeditor(Programm_, window());
    Q_EMIT gehandelt();
}

// The surface and the labels on it. A press on a button that can do nothing now falls through to the frame, too.
bool Szenariorahmen::ist_Flaeche(const QMouseEvent* e) const {
    const QPoint Ort = e->position().toPoint();
    const QWidget* Ziel = childAt(Ort);
    return e->button() == Qt::LeftButton && rect().contains(Ort) && (!Ziel || qobject_cast<const QLabel*>(Ziel));
}

void Szenariorahmen::mousePressEvent(QMouseEvent* e) { gedrueckt_ = ist_Flaeche(e); }

void Szenariorahmen::mouseReleaseEvent(QMouseEvent* e) {
    if (std::exchange(gedrueckt_, false) && ist_Flaeche(e)) oeffne_Editor();
}

bool Szenariorahmen::eventFilter(QObject* Quelle, QEvent* e) {
    const bool doppelt = e->type() == QEvent::MouseButtonDblClick;
    // Once the field is done with the event.
    if (doppelt && static_cast<QMouseEvent*>(e)->button() == Qt::LeftButton) {
        QTimer::singleShot(0ms, this, &Szenariorahmen::oeffne_Editor);
    }
    return Rahmen::eventFilter(Quelle, e);
}

void Szenariorahmen::zeige() {
    Satz_->zeige();
    Bodenszenario_->zeige(in_Qt(Vorgabe().Bodenszenario));
    Klimaszenario_->zeige(in_Qt(Klimatext(Vorgabe())));
}

}  // namespace varnok
