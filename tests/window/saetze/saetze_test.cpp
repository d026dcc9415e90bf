// Records, simulations and studies at their lists on the window: by buttons, by the right mouse button, by keys, by the menu.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Satztest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void copy_and_delete_by_their_buttons_data() {
        QTest::addColumn<QByteArray>("Liste");
        QTest::addColumn<QByteArray>("Copy");
        QTest::addColumn<QByteArray>("Loeschen");
        QTest::addColumn<QString>("Endung");
        QTest::newRow("simulation") << QByteArray("Simulationsliste") << QByteArray("Copy_Simulation")
                                    << QByteArray("Loeschen_Simulation") << u".vnk"_s;
        QTest::newRow("compound") << QByteArray("Liste_1") << QByteArray("Copy_1") << QByteArray("Loeschen_1") << u".che"_s;
        QTest::newRow("pattern") << QByteArray("Liste_2") << QByteArray("Copy_2") << QByteArray("Loeschen_2") << u".app"_s;
        QTest::newRow("scenario") << QByteArray("Liste_3") << QByteArray("Copy_3") << QByteArray("Loeschen_3") << u".sce"_s;
    }
    void copy_and_delete_by_their_buttons() {
        QFETCH(QByteArray, Liste);
        QFETCH(QByteArray, Copy);
        QFETCH(QByteArray, Loeschen);
        QFETCH(QString, Endung);
        const int Zahl = liste(Liste)->count();
        p_->klicke(Copy);
        QCOMPARE(liste(Liste)->currentText(), u"copy of Programcheck"_s);
        QCOMPARE(liste(Liste)->count(), Zahl + 1);
        QCOMPARE(p_->Inhalt(u"input/copy of Programcheck"_s + Endung), p_->Inhalt(u"input/Programcheck"_s + Endung));
        p_->klicke(Loeschen);
        QCOMPARE(Fragen_.nimm().size(), 1);  // answered with yes
        QVERIFY(!QFile::exists(p_->Pfad(u"input/copy of Programcheck"_s + Endung)));
        QCOMPARE(liste(Liste)->count(), Zahl);
        QVERIFY(p_->sichtbar("Abdeckung"));
        p_->klicke("Aktualisieren");
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void the_right_mouse_button_opens_the_rename_box_over_the_list_and_enter_renames() {
        QLineEdit* Feld = oeffne("Liste_1", 1);
        QVERIFY(Feld->isVisible());
        QVERIFY(Feld->hasFocus());
        QCOMPARE(Feld->text(), u"Programcheck"_s);
        QCOMPARE(Feld->geometry(), liste("Liste_1")->geometry());
        QTest::keyClicks(Feld, u"Renamed"_s);
        QTest::keyClick(Feld, Qt::Key_Return);
        QVERIFY(!Feld->isVisible());
        QVERIFY(liste("Liste_1")->hasFocus());
        QCOMPARE(liste("Liste_1")->currentText(), u"Renamed"_s);
        QVERIFY(QFile::exists(p_->Pfad(u"input/Renamed.che"_s)));
        QVERIFY(!QFile::exists(p_->Pfad(u"input/Programcheck.che"_s)));
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void esc_hides_the_box_and_the_file_stays() {
        QLineEdit* Feld = oeffne("Simulationsliste", 0);
        QTest::keyClicks(Feld, u"Never"_s);
        QTest::keyClick(Feld, Qt::Key_Escape);
        QVERIFY(!Feld->isVisible());
        QVERIFY(liste("Simulationsliste")->hasFocus());
        QVERIFY(QFile::exists(p_->Pfad(u"input/Programcheck.vnk"_s)));
        QVERIFY(!p_->Programm().Stand().Saetze[Simulation].Geaendert());
    }

    void leaving_the_box_renames_and_a_taken_name_is_told_and_given_up() {
        QLineEdit* Feld = oeffne("Liste_3", 3);
        QTest::keyClicks(Feld, u"Loam, 10 degrees"_s);
        p_->Teil<QComboBox>("Liste_2")->setFocus(Qt::MouseFocusReason);
        QTest::qWait(20);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(!Feld->isVisible());
        QCOMPARE(liste("Liste_3")->currentText(), u"Programcheck"_s);
        Feld = oeffne("Liste_3", 3);
        QTest::keyClicks(Feld, u"Left"_s);
        p_->Teil<QComboBox>("Liste_2")->setFocus(Qt::MouseFocusReason);
        QTest::qWait(20);
        QCOMPARE(liste("Liste_3")->currentText(), u"Left"_s);
        QVERIFY(liste("Liste_2")->hasFocus());
    }

    void a_bad_name_is_told_once_and_can_be_corrected() {
        QLineEdit* Feld = oeffne("Liste_2", 2);
        QTest::keyClicks(Feld, u"a/b"_s);
        QTest::keyClick(Feld, Qt::Key_Return);
        QTest::qWait(20);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(Feld->isVisible());
        QVERIFY(Feld->hasFocus());
        Feld->selectAll();
        QTest::keyClicks(Feld, u"a b"_s);
        QTest::keyClick(Feld, Qt::Key_Return);
        QCOMPARE(liste("Liste_2")->currentText(), u"a b"_s);
    }

    void keys_of_a_list_do_what_the_buttons_do() {
        QComboBox* l = liste("Liste_1");
        l->setFocus();
        QTest::keyClick(l, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(l->currentText(), u"copy of Programcheck"_s);
        QTest::keyClick(l, Qt::Key_F2);
        QLineEdit* Feld = p_->Teil<QLineEdit>("Neuer_Dateiname_1");
        QVERIFY(Feld->isVisible());
        QTest::keyClick(Feld, Qt::Key_Escape);
        QTest::keyClick(l, Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(!QFile::exists(p_->Pfad(u"input/copy of Programcheck.che"_s)));
    }

    void the_menu_key_offers_new_copy_rename_and_delete_data() {
        QTest::addColumn<int>("Taste");
        QTest::addColumn<int>("Zusatz");
        QTest::newRow("menu key") << static_cast<int>(Qt::Key_Menu) << 0;
        QTest::newRow("shift F10") << static_cast<int>(Qt::Key_F10) << static_cast<int>(Qt::ShiftModifier);
    }
    void the_menu_key_offers_new_copy_rename_and_delete() {
        QFETCH(int, Taste);
        QFETCH(int, Zusatz);
        QComboBox* l = liste("Liste_3");
        l->setFocus();
        QTest::keyClick(l, static_cast<Qt::Key>(Taste),
                        Qt::KeyboardModifiers::fromInt(static_cast<Qt::KeyboardModifiers::Int>(Zusatz)));
        auto* Menue = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(Menue);
        QStringList Zeilen;
        for (const QAction* a : Menue->actions()) Zeilen << a->text();
        QCOMPARE(Zeilen, (QStringList{u"&New"_s, u"&Copy"_s, u"&Rename"_s, u"&Delete"_s}));
        QTest::keyClick(Menue, Qt::Key_N);
        QTest::qWait(20);
        QCOMPARE(l->currentText(), u"new scenario1"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void new_records_come_from_the_file_menu() {
        p_->Teil<QAction>("M_Neuer_Wirkstoff")->trigger();
        p_->Teil<QAction>("M_Neue_Applikationsdatei")->trigger();
        p_->Teil<QAction>("M_Neues_Szenario")->trigger();
        QCOMPARE(liste("Liste_1")->currentText(), u"new compound1"_s);
        QCOMPARE(liste("Liste_2")->currentText(), u"new application pattern1"_s);
        QCOMPARE(liste("Liste_3")->currentText(), u"new scenario1"_s);
        QVERIFY(QFile::exists(p_->Pfad(u"input/new scenario1.sce"_s)));
    }

    void a_study_is_added_with_the_box_over_its_list() {
        p_->klicke("Addiere_Studie");
        auto* Feld = p_->Teil<QLineEdit>("Studienname");
        QVERIFY(Feld->isVisible());
        QVERIFY(Feld->hasFocus());
        QCOMPARE(Feld->geometry(), liste("Studie")->geometry());
        QVERIFY(!p_->Teil<QWidget>("Addiere_Studie")->isEnabled());
        QVERIFY(!p_->Teil<QAction>("M_Addiere")->isEnabled());
        QVERIFY(!p_->Teil<QAction>("M_Loesche")->isEnabled());
        QVERIFY(!p_->Teil<QWidget>("Kinetikparameter_0")->isEnabled());
        QTest::keyClicks(Feld, u"Field 9"_s);
        QTest::keyClick(Feld, Qt::Key_Return);
        QVERIFY(!Feld->isVisible());
        QCOMPARE(liste("Studie")->currentText(), u"Field 9"_s);
        QVERIFY(p_->Teil<QWidget>("Addiere_Studie")->isEnabled());
        QVERIFY(p_->Teil<QAction>("M_Loesche")->isEnabled());
        QVERIFY(p_->Teil<QAction>("M_Zusammenfassung")->isEnabled());
        QVERIFY(p_->Teil<QWidget>("Kinetikparameter_0")->isEnabled());
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void esc_in_the_box_of_a_new_study_takes_everything_back() {
        const int Zahl = liste("Studie")->count();
        p_->Teil<QAction>("M_Addiere")->trigger();
        QTest::keyClick(p_->Teil<QLineEdit>("Studienname"), Qt::Key_Escape);
        QTest::qWait(20);
        QCOMPARE(liste("Studie")->count(), Zahl);
        QVERIFY(p_->Teil<QAction>("M_Addiere")->isEnabled());
        QVERIFY(!p_->Programm().Stand().Saetze[Wirkstoff].Geaendert());
    }

    void leaving_the_box_adds_the_study() {
        const int Zahl = liste("Studie")->count();
        p_->klicke("Addiere_Studie");
        p_->Teil<QComboBox>("Liste_2")->setFocus(Qt::MouseFocusReason);
        QTest::qWait(20);
        QCOMPARE(liste("Studie")->count(), Zahl + 1);
        QVERIFY(liste("Liste_2")->hasFocus());
    }

    void the_right_mouse_button_renames_a_study_and_the_menu_deletes_it() {
        p_->klicke("Addiere_Studie");
        QTest::keyClick(p_->Teil<QLineEdit>("Studienname"), Qt::Key_Return);
        QTest::mouseClick(liste("Studie"), Qt::RightButton);
        auto* Feld = p_->Teil<QLineEdit>("Studienname");
        QVERIFY(Feld->isVisible());
        QTest::keyClicks(Feld, u"Other"_s);
        QTest::keyClick(Feld, Qt::Key_Return);
        QCOMPARE(liste("Studie")->currentText(), u"Other"_s);
        const int Zahl = liste("Studie")->count();
        p_->Teil<QAction>("M_Loesche")->trigger();
        QCOMPARE(Fragen_.nimm().size(), 1);
        QCOMPARE(liste("Studie")->count(), Zahl - 1);
        QVERIFY(!p_->Teil<QAction>("M_Loesche")->isEnabled());
    }

private:
    QComboBox* liste(const char* Name) { return p_->Teil<QComboBox>(Name); }
    QLineEdit* oeffne(const char* Liste, int Art) {
        QTest::mouseClick(liste(Liste), Qt::RightButton);
        return p_->Teil<QLineEdit>(QByteArray("Neuer_Dateiname_") + static_cast<char>('0' + Art));
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Satztest> angemeldet;
}

}  // namespace varnok

#include "saetze_test.moc"
