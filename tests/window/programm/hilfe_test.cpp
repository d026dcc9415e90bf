// F1, and what the status line says of the control under the mouse or in focus.

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "painting/qt_text.h"
#include "session/programm/handhabung.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/programm/hilfefenster.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Hilfetest : public QObject {
    Q_OBJECT

private:
    QString Status() { return p_->Teil<QLabel>("Statuszeile")->text(); }
    static QString Hinweis(const char* Name) { return in_Qt(Handhabung(Name)); }
    static void bewege(QWidget* w, QEvent::Type Art) {
        if (Art == QEvent::Enter) {
            const QPointF Ort = w->rect().center();
            QEnterEvent e(Ort, Ort, w->mapToGlobal(Ort));
            QApplication::sendEvent(w, &e);
        } else {
            QEvent e(Art);
            QApplication::sendEvent(w, &e);
        }
    }
    // The help window that is open, null without one.
    static Hilfefenster* Hilfe() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* h = qobject_cast<Hilfefenster*>(w); h && h->isVisible()) return h;
        }
        return nullptr;
    }
    static QString Text(const Hilfefenster& h) { return h.findChild<QTextBrowser*>()->toPlainText(); }

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void the_status_line_tells_the_hidden_ways_under_the_mouse_and_in_focus() {
        p_->Teil<QWidget>("Copy_1")->setFocus();
        const QString ohne = Status();
        for (const char* Name : {"Simulationsliste", "Liste_1", "Studie", "Beschreibung", "Ergebnisse_0", "S_Q10_0"}) {
            auto* w = p_->Teil<QWidget>(Name);
            bewege(w, QEvent::Enter);
            QCOMPARE(Status(), Hinweis(Name));
            bewege(w, QEvent::Leave);
            QCOMPARE(Status(), ohne);
            w->setFocus();
            QCOMPARE(Status(), Hinweis(Name));
            p_->Teil<QWidget>("Copy_1")->setFocus();
            QTest::qWait(1);
            QCOMPARE(Status(), ohne);
        }
    }

    // The mouse alone passes over it.
    void what_has_been_told_stands_until_the_next_change() {
        QTest::keyClick(&p_->Fenster(), Qt::Key_S, Qt::ControlModifier);
        QTest::qWait(5);
        const QString gesagt = Status();
        QVERIFY2(gesagt.contains(u"saved"_s), qPrintable(gesagt));
        for (const char* Name : {"Liste_1", "Liste_2", "Studie", "S_Q10_0", "S_DT50_0"}) {
            auto* w = p_->Teil<QWidget>(Name);
            w->setFocus();
            QTest::qWait(5);
            QCOMPARE(Status(), gesagt);
            bewege(w, QEvent::Enter);
            QCOMPARE(Status(), Hinweis(Name));
            bewege(w, QEvent::Leave);
            QCOMPARE(Status(), gesagt);
        }
        p_->tippe("S_DT50_0", "17");
        p_->Teil<QWidget>("Liste_1")->setFocus();
        QTest::qWait(30);
        QCOMPARE(Status(), Hinweis("Liste_1"));
        Fragen_.nimm();
    }

    void what_is_told_takes_the_place_of_the_hint_of_the_mouse() {
        auto* w = p_->Teil<QWidget>("Liste_1");
        bewege(w, QEvent::Enter);
        QCOMPARE(Status(), Hinweis("Liste_1"));
        p_->tippe("S_DT50_0", "12abc");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QTest::qWait(30);
        QVERIFY2(Status().contains(u"12abc"_s), qPrintable(Status()));
        Fragen_.nimm();
    }

    void f1_opens_the_help_of_the_field_in_focus_beside_the_window() {
        p_->Teil<QWidget>("S_DT50_0")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        QTRY_VERIFY(Hilfe());
        QVERIFY(!Hilfe()->isModal());
        QVERIFY2(Text(*Hilfe()).startsWith(u"DT50 (d)\nDT50 (SFO): time until half has degraded"_s), qPrintable(Text(*Hilfe())));
        QVERIFY(Text(*Hilfe()).contains(u"Accepted: 0 or above, unit: d"_s));
        // The same window for the next field.
        p_->aktiviere();
        p_->Teil<QWidget>("Applikationsrate")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        QTRY_VERIFY(Text(*Hilfe()).contains(u"unit: g/ha"_s));
        QTest::keyClick(Hilfe(), Qt::Key_Escape);
        QTRY_VERIFY(!Hilfe());
        Fragen_.nimm();
    }

    void f1_helps_in_a_dialog_too() {
        bool gesehen = false;
        QTimer::singleShot(100, this, [&] {
            auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!Dialog) return;
            auto* Feld = Dialog->findChild<QWidget*>(u"S_Bodendichte"_s);
            if (Feld) {
                Feld->setFocus();
                QTest::keyClick(Feld, Qt::Key_F1);
                QTest::qWait(50);
                gesehen = Hilfe() && Text(*Hilfe()).contains(u"usual: 0.2 to 3"_s);
                if (Hilfe()) Hilfe()->close();
            }
            Dialog->reject();
        });
        p_->klicke("Edit");
        p_->aktiviere();
        QVERIFY(gesehen);
        Fragen_.nimm();
    }

    void a_link_leads_to_a_page_and_back_again_to_the_field() {
        const QString Seite = p_->Pfad(u"page.md"_s);
        QFile f(Seite);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("# The page\n");
        f.close();
        Hilfefenster h(&p_->Fenster());
        h.setAttribute(Qt::WA_DeleteOnClose, false);
        h.zeige(u"# A field\n\n[page](%1)\n"_s.arg(QUrl::fromLocalFile(Seite).toString()));
        auto* Zurueck = h.findChild<QPushButton*>(u"Zurueck"_s);
        QVERIFY(!Zurueck->isEnabled());
        auto* Text = h.findChild<QTextBrowser*>();
        Text->setSource(QUrl::fromLocalFile(Seite));
        QCOMPARE(Text->toPlainText().trimmed(), u"The page"_s);
        QVERIFY(Zurueck->isEnabled());
        Zurueck->click();
        QVERIFY(Text->toPlainText().startsWith(u"A field"_s));
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Hilfetest> angemeldet;
}

}  // namespace varnok

#include "hilfe_test.moc"
