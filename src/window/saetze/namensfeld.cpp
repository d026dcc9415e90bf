#include "window/saetze/namensfeld.h"

#include <QKeyEvent>
#include <QTimer>
#include <QtGui/QFocusEvent>
#include <chrono>

#include "window/kern/fokus.h"

namespace varnok {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Namensfeld::Namensfeld(const QString& Name, QWidget* parent) : Textfeld(Name, parent) {
    setMinimumWidth(fontMetrics().horizontalAdvance(u"Metabolite M1"_s));
}

void Namensfeld::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        vergiss_Getipptes();
        Q_EMIT fertig();
        return;
    }
    QLineEdit::keyPressEvent(e);
}

void Namensfeld::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (betrifft_nur_Fenster(e->reason())) return;
    vergiss_Getipptes();
    // A run does not start within the event that takes the focus.
    QTimer::singleShot(0ms, this, [this] { Q_EMIT fertig(); });
}

}  // namespace varnok
