#include "window/eingabe/zahlenfeld.h"

#include <QKeyEvent>
#include <QtGui/QFocusEvent>

#include "painting/qt_text.h"
#include "session/eingabe/feldtabelle.h"
#include "window/kern/fokus.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {

using namespace Qt::StringLiterals;

namespace {

const Feldbeschreibung& Zeile(int Feld) { return Feldtabelle()[static_cast<std::size_t>(Feld)]; }

}  // namespace

Zahlenfeld::Zahlenfeld(int Feld, QWidget* parent) : Ziffernfeld(in_Qt(Zeile(Feld).Objektname()), parent), Feld_(Feld) {
    setAccessibleName(Beschriftung());
    setAlignment(Qt::AlignRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QString Zahlenfeld::Beschriftung() const { return in_Qt(Zeile(Feld_).Beschriftung); }

QSize Zahlenfeld::sizeHint() const { return {Breite(*this), Zeilenhoehe(*this)}; }

void Zahlenfeld::zeige(const QString& Text, bool in_Arbeit) {
    Textfeld::zeige(Text);
    faerbe_Eingabe(*this, in_Arbeit);
}

void Zahlenfeld::focusInEvent(QFocusEvent* e) {
    QLineEdit::focusInEvent(e);
    if (!betrifft_nur_Fenster(e->reason())) Q_EMIT betreten();
}

void Zahlenfeld::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (!betrifft_nur_Fenster(e->reason())) Q_EMIT verlassen();
}

void Zahlenfeld::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Q_EMIT bestaetigt();
            return;
        case Qt::Key_Escape:
            Q_EMIT zurueckgenommen();
            return;
        default:
            QLineEdit::keyPressEvent(e);
    }
}

}  // namespace varnok
