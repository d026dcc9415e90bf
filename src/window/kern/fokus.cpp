#include "window/kern/fokus.h"

#include "window/kern/rahmenfarben.h"

namespace varnok {

void faerbe_Eingabe(QLineEdit& Feld, bool in_Arbeit) {
    const bool gelb = Feld.palette().color(QPalette::Base) == Farben::Eingabe;
    if (gelb == in_Arbeit) return;
    if (!in_Arbeit) {
        Feld.setPalette(QPalette());
        return;
    }
    QPalette p = Feld.palette();
    p.setColor(QPalette::Base, Farben::Eingabe);
    p.setColor(QPalette::Text, Farben::Text);
    Feld.setPalette(p);
}

}  // namespace varnok
