// The lists of records and simulations: nothing is read by a stray key or a turn of the wheel.

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "window/kern/anmeldung.h"
#include "window/saetze/organiserprobe.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Satzauswahltest : public QObject, private Organiserbuehne {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        beginne();
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { beende(); }

    void the_wheel_turns_no_closed_list_not_even_the_one_in_focus_data() {
        QTest::addColumn<QByteArray>("Name");
        for (const char* n : {"Simulationsliste", "Liste_1", "Liste_2", "Liste_3", "App_Monat", "S_Kinetik_0", "TWA_Laenge"})
            QTest::newRow(n) << QByteArray(n);
    }
    void the_wheel_turns_no_closed_list_not_even_the_one_in_focus() {
        QFETCH(QByteArray, Name);
        QComboBox* l = liste(Name);
        const QString vorher = l->currentText();
        l->setFocus();
        for (const int Drehung : {120, -120, -120}) {
            QWheelEvent Rad(QPointF(5, 5), l->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, Drehung), Qt::NoButton, {},
                            Qt::NoScrollPhase, false);
            QApplication::sendEvent(l, &Rad);
        }
        QTest::qWait(1);
        QCOMPARE(l->currentText(), vorher);
        QVERIFY(!p_->Programm().Stand().Saetze[Simulation].Geaendert());
    }

    void a_letter_opens_the_list_and_searches_in_it_data() { nenne_Listen(); }
    void a_letter_opens_the_list_and_searches_in_it() {
        QFETCH(QByteArray, Name);
        QFETCH(QString, Eintrag);
        QComboBox* l = liste(Name);
        const QString vorher = l->currentText();
        l->setFocus();
        QTest::keyClicks(l, Eintrag.left(1));
        QVERIFY(l->view()->isVisible());
        QCOMPARE(l->currentText(), vorher);
        // More letters find the entry.
        QTest::keyClicks(l->view(), Eintrag.mid(1, 12));
        QCOMPARE(l->view()->currentIndex().data().toString(), Eintrag);
        QCOMPARE(p_->Programm().Stand().gewaehlt(Art_von(Name)), aus_Qt(vorher));
        QTest::keyClick(l->view(), Qt::Key_Return);
        QTest::qWait(1);
        QVERIFY(!l->view()->isVisible());
        QCOMPARE(l->currentText(), Eintrag);
        QCOMPARE(p_->Programm().Stand().gewaehlt(Art_von(Name)), aus_Qt(Eintrag));
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void an_arrow_opens_the_list_and_esc_leaves_it_as_it_was_data() { nenne_Listen(); }
    void an_arrow_opens_the_list_and_esc_leaves_it_as_it_was() {
        QFETCH(QByteArray, Name);
        QComboBox* l = liste(Name);
        const QString vorher = l->currentText();
        for (const Qt::Key t : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home, Qt::Key_Right}) {
            l->setFocus();
            QTest::keyClick(l, t);
            QVERIFY(l->view()->isVisible());
            QTest::keyClick(l->view(), Qt::Key_Down);
            QCOMPARE(l->currentText(), vorher);
            QTest::keyClick(l->view(), Qt::Key_Escape);
            QVERIFY(!l->view()->isVisible());
        }
        QTest::qWait(1);
        QCOMPARE(l->currentText(), vorher);
        QVERIFY(!p_->Programm().Stand().Saetze[Simulation].Geaendert());
        QCOMPARE(Fragen_.nimm(), QStringList());
    }

    void the_lists_of_the_organiser_do_the_same() {
        im_Dialog([](Dialogprobe d) {
            for (const char* Name : {"Simulationsliste", "Liste_1", "Liste_2", "Liste_3"}) {
                auto* l = d.Teil<QComboBox>(Name);
                const QString vorher = l->currentText();
                l->setFocus();
                QTest::keyClick(l, Qt::Key_Down);
                QVERIFY(l->view()->isVisible());
                QTest::keyClick(l->view(), Qt::Key_Down);
                QTest::keyClick(l->view(), Qt::Key_Escape);
                QTest::keyClick(l, Qt::Key_V);
                QVERIFY(l->view()->isVisible());
                QTest::keyClick(l->view(), Qt::Key_Escape);
                QCOMPARE(l->currentText(), vorher);
            }
            QVERIFY(d.offen());
        });
    }

    // What is typed on after a choice does not answer its question.
    void the_question_of_a_choice_waits_and_esc_brings_the_screen_back() {
        p_ = std::make_unique<Fensterprobe>();
        p_->starte();
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        const QByteArray alt = p_->Inhalt(u"input/Programcheck.che"_s);
        const QByteArray gewaehlt = p_->Inhalt(u"input/Compound F, hockey stick.che"_s);
        int Kaesten = 0;
        QTimer Waechter;
        QObject::connect(&Waechter, &QTimer::timeout, &Waechter, [&] {
            QWidget* Kasten = QApplication::activeModalWidget();
            if (!Kasten) return;
            Waechter.stop();
            ++Kaesten;
            Kasten->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(Kasten));
            for (const Qt::Key t : {Qt::Key_Y, Qt::Key_N, Qt::Key_Return, Qt::Key_Space})
                QTest::keyClick(Kasten->windowHandle(), t);
            QTest::qWait(150);
            QVERIFY(Kasten->isVisible());
            QTest::keyClick(Kasten->windowHandle(), Qt::Key_Escape);
        });
        Waechter.start(5);
        QComboBox* l = liste("Liste_1");
        l->setFocus();
        QTest::keyClick(l, Qt::Key_C);
        QTest::keyClicks(l->view(), u"ompound F"_s);
        QTest::keyClick(l->view(), Qt::Key_Return);
        QTest::qWait(50);
        QCOMPARE(Kaesten, 1);
        QCOMPARE(l->currentText(), u"Programcheck"_s);
        QCOMPARE(p_->Programm().Stand().gewaehlt(Wirkstoff), std::string("Programcheck"));
        QCOMPARE(p_->Teil<QLineEdit>("S_DT50_0")->text(), u"17"_s);
        QVERIFY(p_->Programm().Stand().Saetze[Wirkstoff].Geaendert());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QCOMPARE(p_->Inhalt(u"input/Programcheck.che"_s), alt);
        QCOMPARE(p_->Inhalt(u"input/Compound F, hockey stick.che"_s), gewaehlt);
    }

private:
    static void nenne_Listen() {
        QTest::addColumn<QByteArray>("Name");
        QTest::addColumn<QString>("Eintrag");
        QTest::newRow("simulation") << QByteArray("Simulationsliste") << u"Vines, Compound D"_s;
        QTest::newRow("compound") << QByteArray("Liste_1") << u"Compound F, hockey stick"_s;
        QTest::newRow("scenario") << QByteArray("Liste_3") << u"Loam, 10 degrees"_s;
    }
    static Satzart Art_von(const QByteArray& Name) {
        return Name == "Simulationsliste" ? Simulation : static_cast<Satzart>(Name.back() - '0');
    }
    QComboBox* liste(const char* Name) { return p_->Teil<QComboBox>(Name); }
};

namespace {
const Anmeldung<Satzauswahltest> angemeldet;
}

}  // namespace varnok

#include "satzauswahl_test.moc"
