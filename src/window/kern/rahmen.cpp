#include "window/kern/rahmen.h"

#include <QEvent>
#include <QPainter>

#include "window/kern/bausteine.h"

namespace varnok {

Rahmen::Rahmen(const QString& Name, Rahmenart Art, Sitzung& Programm, QWidget* parent)
    : QFrame(parent), Programm_(Programm), Art_(Art) {
    setObjectName(Name);
    setze_Rahmenart(*this, Art);
    faerbe();
}

void Rahmen::faerbe() { farbe_einstellen(*this, Stand().Einstellung); }

void Rahmen::horche_auf(Rahmen* Teil) {
    connect(Teil, &Rahmen::gehandelt, this, &Rahmen::gehandelt);
    connect(Teil, &Rahmen::getippt, this, &Rahmen::getippt);
}

void Rahmen::paintEvent(QPaintEvent*) {
    if (Art_ == Rahmenart::schlicht) return;
    const QColor Flaeche = palette().color(QPalette::Window);
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(Flaeche);
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

bool Rahmen::schliesse_Feld_ab(bool mit_Lauf) {
    if (Programm_.zeige<Feldeingabe>().aktives_Feld() < 0) return true;
    return befiehl<&Feldeingabe::schliesse_ab>(mit_Lauf);
}

void Rahmen::changeEvent(QEvent* e) {
    QFrame::changeEvent(e);
    if (e->type() != QEvent::FontChange) return;
    for (Raster* r : findChildren<Raster*>()) r->richte_aus();
}

}  // namespace varnok
