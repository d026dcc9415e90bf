#include "window/eingabe/eingabespalte.h"

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
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(Inhalt);
    viewport()->setAutoFillBackground(false);
    Inhalt->setAutoFillBackground(false);
}

QSize Eingabespalte::sizeHint() const {
    const int Inhalt = std::max(widget()->minimumSizeHint().width(), Ziffern(*this, 47));
    return {Inhalt + verticalScrollBar()->sizeHint().width(), widget()->sizeHint().height()};
}

QSize Eingabespalte::minimumSizeHint() const { return {sizeHint().width(), 100}; }

}  // namespace varnok
