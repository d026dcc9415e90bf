#include "window/ergebnis/flaechenrahmen.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "window/kern/rahmenfarben.h"

namespace varnok {
namespace {

constexpr Qt::KeyboardModifiers Tasten = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

}  // namespace

Flaechenrahmen::Flaechenrahmen(const QString& Name, Flaechenort Heimat, QWidget* Flaeche) : QFrame(Flaeche), Heimat_(Heimat) {
    setObjectName(Name);
    setPalette(helle_Palette(QColor(250, 250, 247)));
}

void Flaechenrahmen::stelle(const QPoint& Ecke) {
    const QSize Flaeche = parentWidget()->size();
    move(std::max(0, std::min(Ecke.x(), Flaeche.width() - width())),
         std::max(0, std::min(Ecke.y(), Flaeche.height() - height())));
}

void Flaechenrahmen::kehre_heim() {
    gezogen_.reset();
    Q_EMIT umgestellt();
}

void Flaechenrahmen::verbirg(bool verborgen) {
    verborgen_ = verborgen;
    setVisible(erlaubt_ && !verborgen_);
}

void Flaechenrahmen::erlaube(bool erlaubt) {
    erlaubt_ = erlaubt;
    setVisible(erlaubt_ && !verborgen_);
}

void Flaechenrahmen::reiche_weiter(QWidget* Kind) { Kind->installEventFilter(this); }

void Flaechenrahmen::druecke(QMouseEvent* e) {
    if ((e->modifiers() & Tasten) == Qt::ControlModifier) {
        verbirg(true);
        return;
    }
    Druckstelle_ = e->globalPosition().toPoint();
    Griff_ = mapFromGlobal(Druckstelle_);
    bewegt_ = false;
    raise();
    zeige_Griff(true);
}

void Flaechenrahmen::ziehe(const QMouseEvent* e) {
    if (!Griff_ || !(e->buttons() & Qt::LeftButton)) return;
    const QPoint hier = e->globalPosition().toPoint();
    if (hier == Druckstelle_ && !bewegt_) return;
    bewegt_ = true;
    stelle(parentWidget()->mapFromGlobal(hier) - *Griff_);
    const QSize Flaeche = parentWidget()->size();
    gezogen_ = Flaechenort{static_cast<double>(x()) / std::max(1, Flaeche.width()),
                           static_cast<double>(y()) / std::max(1, Flaeche.height())};
    Q_EMIT umgestellt();
}

void Flaechenrahmen::lasse_los(const QWidget* Quelle, const QMouseEvent* e) {
    if (!Griff_) return;
    Griff_.reset();
    zeige_Griff(false);
    if (!bewegt_ && e->button() == Qt::LeftButton && Quelle != this) klicke(*e);
}

bool Flaechenrahmen::behandle(QWidget* Quelle, QEvent* e) {
    switch (e->type()) {
        case QEvent::MouseButtonPress:
            druecke(static_cast<QMouseEvent*>(e));
            break;
        case QEvent::MouseMove:
            ziehe(static_cast<QMouseEvent*>(e));
            break;
        case QEvent::MouseButtonRelease:
            lasse_los(Quelle, static_cast<QMouseEvent*>(e));
            break;
        case QEvent::MouseButtonDblClick:
            Griff_.reset();
            zeige_Griff(false);
            verbirg(true);
            break;
        default:
            return false;
    }
    e->accept();
    return true;
}

bool Flaechenrahmen::eventFilter(QObject* Kind, QEvent* e) {
    return behandle(static_cast<QWidget*>(Kind), e) || QFrame::eventFilter(Kind, e);
}

bool Flaechenrahmen::event(QEvent* e) {
    if (e->type() == QEvent::Enter) Q_EMIT betreten();
    return (isEnabled() && behandle(this, e)) || QFrame::event(e);
}

void Flaechenrahmen::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(176, 180, 180), 1));
    p.setBrush(palette().color(QPalette::Window));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

}  // namespace varnok
