#include "window/saetze/umbenennfeld.h"

#include <QEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QtGui/QFocusEvent>
#include <chrono>

#include "window/kern/fokus.h"

namespace varnok {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool ist_Enter(const QKeyEvent& e) { return e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter; }

}  // namespace

Umbenennfeld::Umbenennfeld(const QString& Name, QWidget& Liste) : Textfeld(Name, Liste.parentWidget()), Liste_(Liste) {
    setAccessibleName(u"New name"_s);
    setFocusPolicy(Qt::ClickFocus);  // Tab does not find it: it is opened
    faerbe_Eingabe(*this, true);
    hide();
    Liste.installEventFilter(this);
}

void Umbenennfeld::oeffne(const QString& Text) {
    setText(Text);
    selectAll();
    faerbe_Eingabe(*this, true);
    setGeometry(Liste_.geometry());
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
}

void Umbenennfeld::schliesse() {
    const bool Fokus = hasFocus();
    hide();
    if (Fokus) Liste_.setFocus(Qt::OtherFocusReason);
}

void Umbenennfeld::zeige(bool offen, const QString& Vorschlag) {
    if (offen && !isVisible()) oeffne(Vorschlag);
    if (!offen && isVisible()) schliesse();
}

// In a dialog Enter and Esc belong to the box, not to the dialog's buttons.
bool Umbenennfeld::event(QEvent* e) {
    if (e->type() == QEvent::ShortcutOverride) {
        const auto* Taste = static_cast<QKeyEvent*>(e);
        if (ist_Enter(*Taste) || Taste->key() == Qt::Key_Escape) {
            e->accept();
            return true;
        }
    }
    return Textfeld::event(e);
}

void Umbenennfeld::keyPressEvent(QKeyEvent* e) {
    if (ist_Enter(*e)) {
        Q_EMIT bestaetigt(true);
        return;
    }
    if (e->key() == Qt::Key_Escape) {
        schliesse();
        Q_EMIT zurueckgenommen();
        return;
    }
    Textfeld::keyPressEvent(e);
}

void Umbenennfeld::focusOutEvent(QFocusEvent* e) {
    Textfeld::focusOutEvent(e);
    if (betrifft_nur_Fenster(e->reason())) return;
    faerbe_Eingabe(*this, false);
    // Nothing is asked or written within the event that takes the focus.
    QTimer::singleShot(0ms, this, [this] {
        if (isVisible() && !hasFocus()) Q_EMIT bestaetigt(false);
    });
}

bool Umbenennfeld::eventFilter(QObject* Quelle, QEvent* e) {
    if (Quelle == &Liste_ && (e->type() == QEvent::Resize || e->type() == QEvent::Move)) setGeometry(Liste_.geometry());
    return Textfeld::eventFilter(Quelle, e);
}

}  // namespace varnok
