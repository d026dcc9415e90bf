#pragma once

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/saetze/simulationen.h"

namespace varnok {

inline QString Loeschfrage(const char* Name) {
    using namespace Qt::StringLiterals;
    return u"Delete record: Do you really want to delete this record?\n'"_s + QString::fromLatin1(Name) + u'\'';
}

// A dialog that is open, and what a user does in it.
class Dialogprobe {
public:
    explicit Dialogprobe(Simulationen& Dialog) : Dialog_(Dialog) {}

    template <class W = QWidget>
    W* Teil(const char* Name) const {
        W* w = Dialog_.findChild<W*>(QString::fromLatin1(Name));
        if (!w) qFatal("no control %s in the dialog", Name);
        return w;
    }
    QColor Zeilenfarbe(const char* Liste) const { return Teil(Liste)->parentWidget()->palette().color(QPalette::Window); }
    QString gewaehlt(const char* Liste) const { return Teil<QComboBox>(Liste)->currentText(); }
    void klicke(const char* Knopf) const {
        QTest::mouseClick(Teil(Knopf), Qt::LeftButton);
        QTest::qWait(1);
    }
    void waehle(const char* Liste, const char* Eintrag) const {
        auto* l = Teil<QComboBox>(Liste);
        const int i = l->findText(QString::fromLatin1(Eintrag));
        if (i < 0) qFatal("no entry %s", Eintrag);
        l->setFocus(Qt::MouseFocusReason);
        l->setCurrentIndex(i);
        Q_EMIT l->activated(i);
        QTest::qWait(1);
    }
    void druecke(const char* Name, Qt::Key Taste, Qt::KeyboardModifiers Zusatz = {}) const {
        QTest::keyClick(Teil(Name), Taste, Zusatz);
        QTest::qWait(1);
    }
    void tippe(const char* Feld, const char* Text) const {
        auto* f = Teil<QLineEdit>(Feld);
        if (!f->hasFocus()) QTest::mouseClick(f, Qt::LeftButton);
        f->selectAll();
        QTest::keyClicks(f, QString::fromLatin1(Text));
    }
    bool offen() const { return Dialog_.isVisible(); }
    Simulationen& Dialog() const { return Dialog_; }

private:
    Simulationen& Dialog_;
};

// A window with the questions written down, from which the simulation organiser is opened.
class Organiserbuehne {
protected:
    void beginne(const std::function<void(const QString&)>& Projekt = {}) {
        p_ = std::make_unique<Fensterprobe>(&Fragen_, Projekt);
    }
    void beende() {
        p_.reset();
        Fragen_.vergiss();
    }

    void schreibe(const char* Datei, const QByteArray& Inhalt) const {
        QFile f(p_->Pfad(QString::fromLatin1(Datei)));
        if (!f.open(QIODevice::WriteOnly) || f.write(Inhalt) != Inhalt.size()) qFatal("cannot write %s", Datei);
    }
    bool gibt_es(const char* Datei) const { return QFile::exists(p_->Pfad(QString::fromLatin1(Datei))); }

    // Opens the dialog, lets the user act in it, and closes it if it is still open.
    void im_Dialog(const std::function<void(Dialogprobe)>& Handlung, const std::function<void()>& oeffne = {}) {
        bool gelaufen = false;
        QTimer Waechter;
        QObject::connect(&Waechter, &QTimer::timeout, &Waechter, [&] {
            auto* Dialog = qobject_cast<Simulationen*>(QApplication::activeModalWidget());
            if (!Dialog) return;
            gelaufen = true;
            Waechter.stop();
            Dialog->activateWindow();
            // A dialog counts as active while its window is, so the window that has the focus is asked for.
            const bool aktiv = QTest::qWaitFor([&] { return QApplication::activeWindow() == Dialog; });
            if (!aktiv) qFatal("the dialog does not become active");
            Handlung(Dialogprobe(*Dialog));
            if (Dialog->isVisible()) Dialog->reject();
        });
        Waechter.start(5);
        if (oeffne) {
            oeffne();
        } else {
            p_->Teil<QAction>("M_Laden")->trigger();
        }
        QVERIFY2(gelaufen, "the dialog did not open");
        p_->aktiviere();
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

}  // namespace varnok
