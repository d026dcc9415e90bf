#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QTest>
#include <QTreeView>
#include <QtGui/QFileSystemModel>
#include <fstream>

#include "records/einstellungen.h"
#include "window/ergebnis/diagrammprobe.h"
#include "window/kern/mitschrift.h"
#include "window/programm/optionen.h"

namespace varnok {

template <class W>
W* Teil_von(QDialog& d, const char* Name) {
    W* w = d.findChild<W*>(QString::fromLatin1(Name));
    if (!w) qFatal("no control %s", Name);
    return w;
}

inline void klicke_auf(QDialog& d, const char* Name) {
    QTest::mouseClick(Teil_von<QAbstractButton>(d, Name), Qt::LeftButton, {}, QPoint(8, 8));
}

inline void waehle_Ordner(QDialog& d, const QString& Pfad) {
    auto* Baum = Teil_von<QTreeView>(d, "Dir1");
    const QModelIndex Stelle = qobject_cast<QFileSystemModel*>(Baum->model())->index(Pfad);
    if (!Stelle.isValid()) qFatal("no folder %s", qPrintable(Pfad));
    Baum->setCurrentIndex(Stelle);
}

// The window, and what a user does in its options dialog.
class Optionendialog {
protected:
    template <class A>
    void starte(A Aenderung) {
        p_ = std::make_unique<Fensterprobe>(&Fragen_, [&](const QString& Pfad) {
            Einstellungen e;
            Aenderung(e);
            std::ofstream(Pfad.toStdString() + "/VARNOK.ini", std::ios::binary) << Einstellungen_als_Bytes(e, {});
        });
        p_->starte();
    }
    void starte() {
        starte([](Einstellungen&) {});
    }
    // Opens the dialog from its menu; one that `h` leaves open is cancelled. Gives the number of dialogs that came.
    template <class H>
    int mit_Dialog(H h) {
        int gekommen = 0;
        bei_Dialog<Optionen>([&](Optionen& d) {
            ++gekommen;
            h(d);
        });
        p_->Teil<QAction>("M_Optionen")->trigger();
        p_->aktiviere();
        return gekommen;
    }
    // Without one the next dialog of the test must not find the watch still waiting.
    int oeffne_und_zaehle() {
        int gekommen = 0;
        QTimer Waechter;
        QObject::connect(&Waechter, &QTimer::timeout, &Waechter, [&] {
            auto* d = qobject_cast<Optionen*>(QApplication::activeModalWidget());
            if (!d) return;
            ++gekommen;
            d->reject();
        });
        Waechter.start(5);
        p_->Teil<QAction>("M_Optionen")->trigger();
        QTest::qWait(30);
        return gekommen;
    }
    void bestaetige(const char* Option) {
        QCOMPARE(mit_Dialog([&](QDialog& d) {
                     klicke_auf(d, Option);
                     klicke_auf(d, "OK");
                 }),
                 1);
    }
    QColor rahmenfarbe(const char* Name) const { return p_->Teil<QWidget>(Name)->palette().color(QPalette::Window); }
    QColor Schriftfarbe(const char* Name) const { return p_->Teil<QWidget>(Name)->palette().color(QPalette::Text); }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

}  // namespace varnok
