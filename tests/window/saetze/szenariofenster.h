#pragma once

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/saetze/szenario_form.h"

namespace varnok {

// The window with its scenario editor, and what a user does there.
class Szenariofenster : public QObject {
protected:
    void starte() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    // The same with the program's own message boxes.
    void starte_mit_Kaesten() {
        p_ = std::make_unique<Fensterprobe>();
        p_->starte();
    }

    // How often the editor opens while `Handlung` runs; each time `drinnen` is done in it, without one it is cancelled.
    int bei(const std::function<void()>& Handlung, const std::function<void(Szenario_Form&)>& drinnen = {}) {
        int Zahl = 0;
        QTimer Wache;
        connect(&Wache, &QTimer::timeout, this, [&] {
            auto* f = qobject_cast<Szenario_Form*>(QApplication::activeModalWidget());
            if (!f) return;
            Wache.stop();
            ++Zahl;
            f->activateWindow();
            if (!QTest::qWaitFor([f] { return f->isAncestorOf(QApplication::focusWidget()); })) qFatal("the dialog has no focus");
            drinnen ? drinnen(*f) : f->reject();
            if (f->isVisible()) f->reject();
            Wache.start(std::chrono::milliseconds(5));
        });
        Wache.start(std::chrono::milliseconds(5));
        Handlung();
        QTest::qWait(20);
        p_->aktiviere();
        if (drinnen && Zahl == 0) QTest::qFail("the editor did not open", __FILE__, __LINE__);
        return Zahl;
    }

    template <class W>
    static W* Teil(Szenario_Form& f, const char* Name) {
        W* w = f.findChild<W*>(QString::fromLatin1(Name));
        if (!w) qFatal("no control %s", Name);
        return w;
    }

    static void tippe(Szenario_Form& f, const char* Feld, const QString& Text) {
        auto* Zeile = Teil<QLineEdit>(f, Feld);
        Zeile->setFocus();
        Zeile->selectAll();
        QTest::keyClicks(Zeile, Text);
    }

    // A character that has no key of its own in the test library.
    static void tippe_Zeichen(QLineEdit* Feld, const QString& Zeichen) {
        QTest::sendKeyEvent(QTest::Click, Feld, Qt::Key_unknown, Zeichen, Qt::NoModifier);
    }

    // The settings of a user who wants the desktop's colours.
    static void schreibe_Einstellungen(const QString& Ordner) {
        Einstellungen e;
        e.Farbeinstellung = 1;
        QFile Datei(Ordner + QStringLiteral("/VARNOK.ini"));
        if (!Datei.open(QIODevice::WriteOnly)) qFatal("no settings");
        Datei.write(QByteArray::fromStdString(Einstellungen_als_Bytes(e, {})));
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

}  // namespace varnok
