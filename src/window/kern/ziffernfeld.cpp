#include "window/kern/ziffernfeld.h"

#include <QMouseEvent>

namespace varnok {

void Ziffernfeld::mouseDoubleClickEvent(QMouseEvent* e) {
    QLineEdit::mouseDoubleClickEvent(e);
    if (e->button() != Qt::LeftButton) return;
    doppelt_geklickt_ = true;
    selectAll();
}

// A hand that shakes between press and release takes no digit out of the selection.
void Ziffernfeld::mouseMoveEvent(QMouseEvent* e) {
    if (!doppelt_geklickt_) QLineEdit::mouseMoveEvent(e);
}

void Ziffernfeld::mouseReleaseEvent(QMouseEvent* e) {
    doppelt_geklickt_ = false;
    QLineEdit::mouseReleaseEvent(e);
}

}  // namespace varnok
