#include "window/ergebnis/abdeckung.h"

#include <QPainter>

#include "window/kern/bausteine.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {

using namespace Qt::StringLiterals;

Abdeckung::Abdeckung(QWidget* parent) : QWidget(parent) {
    setObjectName(u"Abdeckung"_s);
    hide();
}

void Abdeckung::zeige(bool sichtbar, const QString& Wort) {
    if (sichtbar != isHidden() && Wort == Wort_) return;
    Wort_ = Wort;
    setAccessibleName(Wort);
    setVisible(sichtbar);
    if (sichtbar) {
        raise();
        update();
    }
}

void Abdeckung::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), QColor(246, 246, 243, 249));
    if (Wort_.isEmpty()) return;
    QFont Schrift = font();
    Schrift.setPointSizeF(Schrift.pointSizeF() * 1.3);
    p.setFont(Schrift);
    const QFontMetrics Masse(Schrift);
    QRect Feld = Masse.boundingRect(Wort_).adjusted(-Ziffern(*this, 3), -8, Ziffern(*this, 3), 8);
    // Above the middle, where a message box leaves it in sight.
    Feld.moveCenter(QPoint(rect().center().x(), height() / 4));
    p.setPen(QPen(QColor(200, 200, 195), 1));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(Feld), Feld.height() / 2.0, Feld.height() / 2.0);
    p.setPen(Farben::Text);
    p.drawText(Feld, Qt::AlignCenter, Wort_);
}

}  // namespace varnok
