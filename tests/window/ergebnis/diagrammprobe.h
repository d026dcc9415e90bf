#pragma once

#include <QApplication>
#include <QImage>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <memory>

#include "window/ergebnis/diagrammflaeche.h"
#include "window/kern/fensterprobe.h"

namespace varnok {

inline constexpr QRgb Marineblau = 0xff000080;  // the parent's curve
inline constexpr QRgb Gruen = 0xff008000;       // the first metabolite's

// Pixels of that colour.
inline int zaehle(const QImage& Bild, QRgb Farbe) {
    int Anzahl = 0;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) Anzahl += (Bild.pixel(x, y) | 0xff000000) == Farbe;
    }
    return Anzahl;
}

// Waits for a dialog of that class and gives it to `Handlung`; one that is open afterwards is closed.
template <class D, class H>
void bei_Dialog(H Handlung) {
    auto* Waechter = new QTimer(qApp);
    QObject::connect(Waechter, &QTimer::timeout, Waechter, [Waechter, Handlung] {
        auto* Dialog = qobject_cast<D*>(QApplication::activeModalWidget());
        if (!Dialog) return;
        Waechter->stop();
        Waechter->deleteLater();
        const QPointer<D> da(Dialog);
        Handlung(*Dialog);
        if (da && da->isVisible()) da->reject();
    });
    Waechter->start(5);
}

// The window with results, and what a user does to its diagrams.
class Diagrammprobe : public Fensterprobe {
public:
    Diagrammprobe() { starte(); }

    Diagrammflaeche* vorn() {
        for (auto* d : Fenster().findChildren<Diagrammflaeche*>()) {
            if (d->isVisible()) return d;
        }
        qFatal("no diagram is seen");
    }

    // A place where only the surface is.
    QPoint leer() { return {4, vorn()->height() / 2}; }

    void klicke_Diagramm(int Anzahl = 1) {
        for (int i = 0; i < Anzahl; ++i) {
            QTest::mouseClick(vorn(), Qt::LeftButton, {}, leer());
            QTest::qWait(1);
        }
    }

    // The surface without what stands on it but its labels.
    QImage Bild() {
        for (auto* r : vorn()->findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly)) r->hide();
        return vorn()->grab().toImage();
    }
};

}  // namespace varnok
