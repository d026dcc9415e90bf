#include "window/saetze/projektnamenfeld.h"

#include <QEvent>
#include <QKeyEvent>
#include <QtGui/QFocusEvent>

#include "window/kern/fokus.h"

namespace varnok {

using namespace Qt::StringLiterals;

namespace {

bool ist_Enter(const QKeyEvent& e) { return e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter; }

}  // namespace

Projektnamenfeld::Projektnamenfeld(QWidget* parent) : Textfeld(u"Projektname"_s, parent) {
    setContextMenuPolicy(Qt::NoContextMenu);
}

// Enter and Esc belong to the field, not to the dialog's buttons.
bool Projektnamenfeld::event(QEvent* e) {
    if (e->type() == QEvent::ShortcutOverride) {
        const auto* Taste = static_cast<QKeyEvent*>(e);
        if (ist_Enter(*Taste) || Taste->key() == Qt::Key_Escape) {
            e->accept();
            return true;
        }
    }
    return Textfeld::event(e);
}

void Projektnamenfeld::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) Q_EMIT zurueckgenommen(alter_Text_);
    if (e->key() == Qt::Key_Escape || ist_Enter(*e)) {
        Q_EMIT verlassen();
        return;
    }
    Textfeld::keyPressEvent(e);
}

void Projektnamenfeld::focusInEvent(QFocusEvent* e) {
    Textfeld::focusInEvent(e);
    if (betrifft_nur_Fenster(e->reason())) return;
    alter_Text_ = text();
    faerbe_Eingabe(*this, true);
}

void Projektnamenfeld::focusOutEvent(QFocusEvent* e) {
    Textfeld::focusOutEvent(e);
    if (!betrifft_nur_Fenster(e->reason())) faerbe_Eingabe(*this, false);
}

}  // namespace varnok
