// Other projects from the menu, and what is dropped on the window.

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>

#include "painting/qt_text.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Projektmenuetest : public QObject {
    Q_OBJECT

private:
    QAction* Aktion(const char* Name) { return p_->Fenster().findChild<QAction*>(QLatin1String(Name)); }
    // The entries of a list as it opens.
    QStringList Eintraege(const char* Name) {
        auto* Liste = p_->Teil<QMenu>(Name);
        Q_EMIT Liste->aboutToShow();
        QStringList Texte;
        for (const QAction* a : Liste->actions()) Texte << a->text() + (a->isEnabled() ? u""_s : u" (grey)"_s);
        return Texte;
    }
    QString anderes_Projekt() {
        QDir(p_->Pfad(u"other"_s)).mkpath(u"input"_s);
        return p_->Pfad(u"other"_s);
    }
    // Moves a file over the control and lets it go; true if both were taken.
    bool lege_ab(QWidget* w, const QString& Pfad) {
        QMimeData Daten;
        Daten.setUrls({QUrl::fromLocalFile(Pfad)});
        Daten.setText(Pfad);
        const QPoint Ort = w->rect().center();
        QDragEnterEvent herein(Ort, Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        herein.ignore();
        QApplication::sendEvent(w, &herein);
        QDropEvent ab(Ort, Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        ab.ignore();
        QApplication::sendEvent(w, &ab);
        QTest::qWait(20);
        return herein.isAccepted() && ab.isAccepted();
    }
    const Zustand& Stand() { return p_->Programm().Stand(); }

private Q_SLOTS:
    void init() {
        geoeffnet_.clear();
        p_ = std::make_unique<Fensterprobe>(
            &Fragen_, [](const QString&) {}, Aktualisierungswelt{},
            [this](const std::string& Pfad) {
                geoeffnet_ << in_Qt(Pfad);
                return true;
            });
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void open_project_asks_for_a_folder_and_opens_it_beside() {
        const QString Ordner = anderes_Projekt();
        QVERIFY(Aktion("M_Projekt")->isEnabled());
        bool gesehen = false;
        QTimer::singleShot(50, this, [&] {
            auto* Dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!Dialog) return;
            gesehen = true;
            QCOMPARE(Dialog->windowTitle(), u"Open project"_s);
            auto* Name = Dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            Name->setText(Ordner);
            QTest::keyClick(Name, Qt::Key_Return);
            if (Dialog->isVisible()) Dialog->reject();
        });
        Aktion("M_Projekt")->trigger();
        QVERIFY(gesehen);
        p_->aktiviere();
        QCOMPARE(geoeffnet_, QStringList(Ordner));
        QVERIFY(p_->Teil<QLabel>("Statuszeile")->text().contains(u"opens in a window of its own"_s));
    }

    void what_was_open_is_in_the_menu() {
        QTest::qWait(150);  // behind the action
        QCOMPARE(Eintraege("M_letzte_Projekte"), QStringList(u"None yet (grey)"_s));
        p_->waehle_Simulation("Vines, Compound D");
        QTest::qWait(150);
        QCOMPARE(Eintraege("M_letzte_Simulationen"), QStringList(u"Programcheck"_s));
        p_->Teil<QMenu>("M_letzte_Simulationen")->actions().front()->trigger();
        QCOMPARE(in_Qt(Stand().gewaehlt(Simulation)), u"Programcheck"_s);
        QTest::qWait(150);
        QCOMPARE(Eintraege("M_letzte_Simulationen"), QStringList(u"Vines, Compound D"_s));
        QFile::remove(p_->Pfad(u"input/Vines, Compound D.vnk"_s));
        QCOMPARE(Eintraege("M_letzte_Simulationen"), QStringList(u"Vines, Compound D (grey)"_s));
        Fragen_.nimm();
    }

    void a_folder_dropped_anywhere_opens_beside_and_a_simulation_here() {
        const QString Ordner = anderes_Projekt();
        for (const char* Name : {"Diagramm_0", "S_DT50_0", "Beschreibung", "Schalterrahmen"}) {
            geoeffnet_.clear();
            QVERIFY2(lege_ab(p_->Teil<QWidget>(Name), Ordner), Name);
            QCOMPARE(geoeffnet_, QStringList(Ordner));
        }
        QVERIFY(lege_ab(p_->Teil<QWidget>("Ergebnisbereich"), p_->Pfad(u"input/Vines, Compound D.vnk"_s)));
        QCOMPARE(in_Qt(Stand().gewaehlt(Simulation)), u"Vines, Compound D"_s);
        QCOMPARE(Fragen_.nimm().filter(u"Runtime"_s), QStringList());
    }

    void nothing_is_dropped_under_an_open_dialog() {
        const QString alt = p_->Teil<QLineEdit>("S_DT50_0")->text();
        int abgelehnt = 0;
        QTimer::singleShot(100, this, [&] {
            auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!Dialog) return;
            for (const char* Name : {"Diagramm_0", "S_DT50_0", "Beschreibung"})
                abgelehnt += lege_ab(p_->Teil<QWidget>(Name), p_->Pfad(u"input/Vines, Compound D.vnk"_s)) ? 0 : 1;
            Dialog->reject();
        });
        Aktion("M_Laden")->trigger();
        p_->aktiviere();
        QTest::qWait(20);
        QCOMPARE(in_Qt(Stand().gewaehlt(Simulation)), u"Programcheck"_s);
        QCOMPARE(abgelehnt, 3);
        QCOMPARE(p_->Teil<QLineEdit>("S_DT50_0")->text(), alt);
        Fragen_.nimm();
    }

    void what_is_no_project_is_told() {
        QVERIFY(lege_ab(p_->Teil<QWidget>("Diagramm_0"), p_->Pfad(u"input/Programcheck.che"_s)));
        const QStringList Meldungen = Fragen_.nimm();
        QCOMPARE(Meldungen.size(), 1);
        QVERIFY2(Meldungen[0].contains(u"neither a project folder nor a simulation"_s), qPrintable(Meldungen[0]));
        QVERIFY(geoeffnet_.isEmpty());
    }

    void text_is_no_project() {
        QMimeData Daten;
        Daten.setText(u"12"_s);
        auto* w = p_->Teil<QWidget>("Schalterrahmen");
        QDragEnterEvent herein(w->rect().center(), Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        herein.ignore();
        QApplication::sendEvent(w, &herein);
        QVERIFY(!herein.isAccepted());
    }

private:
    Mitschrift Fragen_;
    QStringList geoeffnet_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Projektmenuetest> angemeldet;
}

}  // namespace varnok

#include "projektmenue_test.moc"
