#include "window/saetze/beschreibungsfeld.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QtGui/QFocusEvent>

#include "window/kern/fokus.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {

using namespace Qt::StringLiterals;

Beschreibungsfeld::Beschreibungsfeld(QWidget* parent) : Textfeld(u"Beschreibung"_s, parent) {
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAccessibleDescription(u"Press F2 or the right mouse button to edit the description"_s);
    setPlaceholderText(u"F2 or right click: describe this simulation"_s);
}

void Beschreibungsfeld::zeige(const QString& Text, bool offen, bool farbig) {
    // While it is typed in, the text on the screen is the newer one.
    if (!offen || isReadOnly()) {
        Textfeld::zeige(Text);
        vergiss_Getipptes();
    }
    setReadOnly(!offen);
    QPalette p = QApplication::palette(this);
    if (farbig || offen) {
        p.setColor(QPalette::Base, offen ? Farben::Eingabe : QColor(Qt::white));
        p.setColor(QPalette::Text, farbig ? Farben::Beschreibung : Farben::Text);
    } else {
        p.setColor(QPalette::Text, p.color(QPalette::ButtonText));
    }
    setPalette(p);
}

void Beschreibungsfeld::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::RightButton) {
        setFocus(Qt::MouseFocusReason);
        if (isReadOnly()) Q_EMIT aufgeschlossen();
        e->accept();
        return;
    }
    QLineEdit::mousePressEvent(e);
}

void Beschreibungsfeld::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton && isReadOnly()) {
        Q_EMIT doppelt_geklickt();
        return;
    }
    QLineEdit::mouseDoubleClickEvent(e);  // marks a word of what is typed in
}

void Beschreibungsfeld::keyPressEvent(QKeyEvent* e) {
    const bool Enter = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    if (isReadOnly()) {
        if (e->key() == Qt::Key_F2) {
            Q_EMIT aufgeschlossen();
            return;
        }
    } else if (Enter) {
        Q_EMIT abgeschlossen();
        return;
    } else if (e->key() == Qt::Key_Escape) {
        Q_EMIT zurueckgenommen();
        return;
    }
    QLineEdit::keyPressEvent(e);
}

void Beschreibungsfeld::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (!isReadOnly() && !betrifft_nur_Fenster(e->reason())) Q_EMIT abgeschlossen();
}

}  // namespace varnok
