#include "window/eingabe/eingabespalte.h"

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
