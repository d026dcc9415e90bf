#include "screens/widgets/zahlenfeld.h"

#include <QKeyEvent>
#include <QtGui/QFocusEvent>

#include "screens/handlers/feldtabelle.h"
#include "screens/widgets/farben.h"
#include "screens/widgets/fokus.h"
#include "screens/widgets/qt_text.h"

namespace varnok {

namespace {

const Feldbeschreibung& Zeile(int Feld) { return Feldtabelle()[static_cast<std::size_t>(Feld)]; }

}  // namespace

Zahlenfeld::Zahlenfeld(int Feld, QWidget* parent) : Textfeld(in_Qt(Zeile(Feld).Objektname()), parent), Feld_(Feld) {
    setAccessibleName(in_Qt(Zeile(Feld).Beschriftung));
    setAlignment(Qt::AlignRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

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
