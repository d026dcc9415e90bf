#include "window/eingabe/eingabespalte.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "window/kern/bausteine.h"

namespace varnok {

using namespace Qt::StringLiterals;

Eingabespalte::Eingabespalte(QWidget* Inhalt, QWidget* parent) : QScrollArea(parent) {
    setObjectName(u"Eingabespalte"_s);
    setFrameStyle(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(Inhalt);
    viewport()->setAutoFillBackground(false);
    Inhalt->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* neues) { hole_in_Sicht(neues); });
}

// Nothing moves away under the mouse that is pressed on it.
void Eingabespalte::hole_in_Sicht(QWidget* Teil) {
    constexpr int Rand = 8;
    if (!Teil || !widget()->isAncestorOf(Teil) || QApplication::mouseButtons() != Qt::NoButton) return;
    const QPoint Mitte = Teil->mapTo(widget(), Teil->rect().center());
    ensureVisible(Mitte.x(), Mitte.y(), Teil->width() / 2 + Rand, Teil->height() / 2 + Rand);
}

QSize Eingabespalte::sizeHint() const {
    const int Inhalt = std::max(widget()->minimumSizeHint().width(), Ziffern(*this, 47));
    return {Inhalt + verticalScrollBar()->sizeHint().width(), widget()->sizeHint().height()};
}

// What a scroll area holds does not tell the layout around it that its size has changed.
bool Eingabespalte::eventFilter(QObject* Objekt, QEvent* e) {
    if (Objekt == widget() && e->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(Objekt, e);
}

QSize Eingabespalte::minimumSizeHint() const { return {sizeHint().width(), 100}; }

}  // namespace varnok
