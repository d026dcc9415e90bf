// A fault is told once, and valid results stay in sight.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Meldungstest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    // One message, whatever gets the focus: here the name of a compound.
    void an_invalid_number_left_for_a_name_is_told_once_data() {
        QTest::addColumn<int>("Seite");
        QTest::addColumn<QByteArray>("Feld");
        QTest::addColumn<QByteArray>("Ziel");
        QTest::newRow("Koc, Tab") << 1 << QByteArray("S_KOC_0") << QByteArray();
        QTest::newRow("Koc, click") << 1 << QByteArray("S_KOC_0") << QByteArray("Name_Wirkstoff_1");
        QTest::newRow("mass, Tab") << 2 << QByteArray("Molmasse_Wirkstoff") << QByteArray();
        QTest::newRow("mass, click") << 2 << QByteArray("Molmasse_Wirkstoff") << QByteArray("Name_Wirkstoff_0");
    }
    void an_invalid_number_left_for_a_name_is_told_once() {
        QFETCH(int, Seite);
        QFETCH(QByteArray, Feld);
        QFETCH(QByteArray, Ziel);
        p_->waehle_Simulation("Vines, Compound D");
        p_->blaettere("Wirkstoffdaten_Leiste", Seite);
        Fragen_.nimm();
        p_->tippe(Feld, "-1");
        if (Ziel.isEmpty())
            p_->druecke(Feld, Qt::Key_Tab);
        else
            QTest::mouseClick(p_->Teil<QLineEdit>(Ziel), Qt::LeftButton);
        QTest::qWait(20);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(Feld));
    }

    void ctrl_tab_does_not_turn_a_page_over_an_invalid_field() {
        p_->tippe("S_Q10_0", "0");
        p_->druecke("S_Q10_0", Qt::Key_Tab, Qt::ControlModifier);
        QTest::qWait(20);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QCOMPARE(p_->Teil<QTabWidget>("Wirkstoffdaten")->currentIndex(), 0);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"S_Q10_0"_s);
    }

    // The same with the boxes themselves.
    void an_invalid_number_left_for_a_name_is_one_box() {
        p_ = std::make_unique<Fensterprobe>();
        p_->starte();
        p_->blaettere("Wirkstoffdaten_Leiste", 1);
        p_->tippe("S_KOC_0", "-1");
        const QStringList Kaesten = p_->Kaesten_bei([&] { p_->druecke("S_KOC_0", Qt::Key_Backtab); }, QMessageBox::Ok);
        QCOMPARE(Kaesten.size(), 1);
    }

    // The results are those of the input, whether or not the file could be written.
    void a_failed_save_does_not_cover_valid_results() {
        QFile::remove(p_->Pfad(u"input/Programcheck.che"_s));
        QVERIFY(QDir().mkpath(p_->Pfad(u"input/Programcheck.che"_s)));
        p_->klicke("speichern");
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Meldungstest> angemeldet;
}

}  // namespace varnok

#include "meldung_test.moc"
