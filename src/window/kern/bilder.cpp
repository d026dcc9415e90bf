#include "window/kern/bilder.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// The pictures lie in a static library, so they are taken in by name; the macro wants no namespace around it.
static void lade_Bilder() { Q_INIT_RESOURCE(bilder); }

namespace varnok {

using namespace Qt::StringLiterals;

void male_SVG(const QString& Name, QPainter& p, const QRectF& Platz) {
    lade_Bilder();
    QSvgRenderer Zeichner(u":/bilder/"_s + Name + u".svg"_s);
    Zeichner.setAspectRatioMode(Qt::KeepAspectRatio);
    Zeichner.render(&p, Platz);
}

QIcon Bild_aus_SVG(const QString& Name) {
    QIcon Bild;
    for (const int n : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap Flaeche(n, n);
        Flaeche.fill(Qt::transparent);
        QPainter p(&Flaeche);
        male_SVG(Name, p, QRectF(0, 0, n, n));
        p.end();
        Bild.addPixmap(Flaeche);
    }
    return Bild;
}

}  // namespace varnok
