// Lists, options, tabs and commands under mouse and keys, and what becomes of the field that they are chosen from.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>
#include <cmath>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Befehlstest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    // The keyboard works a list without opening it.
    void arrow_keys_choose_in_a_list() {
        auto* Monat = p_->Teil<QComboBox>("App_Monat");
        Monat->setFocus();
        const int vorher = Zeichnung();
        const int alt = Monat->currentIndex();
        p_->druecke("App_Monat", Qt::Key_Down);
        QCOMPARE(Stand().Vorgabe.App_Monat, alt + 1);
        QCOMPARE(Zeichnung(), vorher);  // in a constant climate no run reads the date
        QVERIFY(!Hinweis());
        QVERIFY(Stand().Saetze[Applikation].Geaendert());
        p_->Teil<QComboBox>("S_Kinetik_0")->setFocus();
        p_->druecke("S_Kinetik_0", Qt::Key_Down);
        QCOMPARE(Stand().Parameter().Kinetik[0][0], DFOP);
        QCOMPARE(Zeichnung(), vorher + 1);
        QVERIFY(Stand().Saetze[Wirkstoff].Geaendert());
    }

    void arrow_keys_choose_an_option() {
        p_->Teil<QRadioButton>("Applikationsmuster_0")->setFocus();
        QTest::keyClick(p_->Teil<QRadioButton>("Applikationsmuster_0"), Qt::Key_Right);
        QTest::qWait(5);
        QCOMPARE(Stand().Vorgabe.Applikationsmuster, regelmaessig);
        QVERIFY(p_->Teil<QRadioButton>("Applikationsmuster_1")->isChecked());
    }

    void a_shorter_month_shows_its_last_day() {
        auto* Tag = p_->Teil<QComboBox>("App_Tag");
        p_->waehle_Eintrag("App_Monat", 0);
        QCOMPARE(Tag->count(), 31);
        p_->waehle_Eintrag("App_Tag", 30);
        p_->waehle_Eintrag("App_Monat", 1);
        QCOMPARE(Tag->count(), 28);
        QCOMPARE(Tag->currentText(), u"28"_s);
        p_->waehle_Eintrag("App_Monat", 3);
        QCOMPARE(Tag->count(), 30);
        QCOMPARE(Tag->currentText(), u"28"_s);
    }

    // 365/7 is 52.14; the place in the list stays, or becomes the last one.
    void the_number_of_applications_limits_the_interval() {
        p_->waehle("Applikationsmuster_1");
        auto* Intervall = p_->Teil<QComboBox>("Intervall");
        p_->waehle_Eintrag("Anzahl", 5);
        QCOMPARE(p_->Teil<QComboBox>("Anzahl")->currentText(), u"7"_s);
        QCOMPARE(Intervall->count(), 52);
        p_->waehle_Eintrag("Intervall", 51);
        p_->waehle_Eintrag("Anzahl", 18);
        QCOMPARE(p_->Teil<QComboBox>("Anzahl")->currentText(), u"20"_s);
        QCOMPARE(Intervall->count(), 18);
        QCOMPARE(Intervall->currentText(), u"18"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void the_option_chosen_already_does_nothing() {
        const int vorher = Zeichnung();
        p_->waehle("Applikationsmuster_0");
        p_->waehle("PEC_Typ_0");
        p_->waehle("Endpunkt_1");
        QCOMPARE(Zeichnung(), vorher);
        QVERIFY(!Stand().Saetze[Applikation].Geaendert());
    }

    // Looking at another compound, study or view is no modification.
    void looking_marks_nothing() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        for (const char* Option : {"Substanz_1", "Substanz_2", "PEC_Typ_1", "PEC_Typ_2", "Endpunkt_0"}) p_->waehle(Option);
        p_->waehle_Eintrag("Studie", 3);
        p_->waehle_Eintrag("TWA_Laenge", 2);
        p_->waehle_Eintrag("Fruchtwechsel", 2);
        for (const Satzart t : alle_Arten) QVERIFY(!Stand().Saetze[t].Geaendert());
        QVERIFY(!Hinweis());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        Fragen_.nimm();
    }

    // A new rate scales the study on display; the others are calculated when they are chosen.
    void another_study_after_a_scaled_rate_is_of_the_new_rate() {
        p_->waehle_Simulation("Cereals, Compound B");
        Fragen_.nimm();
        p_->waehle_Eintrag("Studie", 1);
        const QString alt = p_->Zelle("Ergebnisse_0", 1, 1);
        p_->waehle_Eintrag("Studie", 0);
        const QByteArray Rate = p_->Teil<QLineEdit>("Applikationsrate")->text().toLatin1();
        p_->tippe("Applikationsrate", QByteArray::number(2 * Rate.toInt()).constData());
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        p_->waehle_Eintrag("Studie", 1);
        QVERIFY(std::abs(p_->Zelle("Ergebnisse_0", 1, 1).toDouble() - 2 * alt.toDouble()) < 2e-4);
    }

    // Another record: the combination is no longer the saved one, and its list says so until it is saved.
    void another_record_colours_the_simulation_until_it_is_saved() {
        auto* Liste = p_->Teil<QComboBox>("Simulationsliste");
        const QColor vorher = Liste->palette().color(QPalette::Button);
        auto* Saetze = p_->Teil<QComboBox>("Liste_3");
        p_->waehle_Eintrag("Liste_3", Saetze->findText(u"Orchard, no tillage"_s));
        QCOMPARE(Liste->palette().color(QPalette::Button), QColor(192, 255, 255));
        QVERIFY(Stand().Saetze[Simulation].Geaendert());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        p_->klicke("speichern");
        QCOMPARE(Liste->palette().color(QPalette::Button), vorher);
        QVERIFY(p_->Inhalt(u"input/Programcheck.vnk"_s).endsWith("\r\nOrchard, no tillage\r\n"));
        Fragen_.nimm();
    }

    void ctrl_tab_out_of_a_valid_field_turns_the_page() {
        p_->tippe("S_Q10_0", "2");
        p_->druecke("S_Q10_0", Qt::Key_Tab, Qt::ControlModifier);
        QTest::qWait(20);
        QCOMPARE(p_->Teil<QTabWidget>("Wirkstoffdaten")->currentIndex(), 1);
        QCOMPARE(Stand().Parameter().Q10[0][0], 2.0);
        QVERIFY(!Stand().Hinweis());
    }

    void refresh_by_f5_out_of_a_field_is_one_run() {
        const int vorher = Zeichnung();
        p_->tippe("S_DT50_0", "20");
        p_->druecke("S_DT50_0", Qt::Key_F5);
        QTest::qWait(250);  // the button is seen to go down
        QCOMPARE(Zeichnung(), vorher + 1);
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(Zeichnung(), vorher + 1);
    }

    void the_wheel_over_a_control_without_focus_changes_nothing() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("Applikationsmuster_1");
        p_->Teil<QPushButton>("Ende")->setFocus();
        Fragen_.nimm();
        const int vorher = Zeichnung();
        int gedreht = 0;
        for (QWidget* w : p_->Fenster().findChildren<QWidget*>()) {
            if (!w->isVisible() || !(qobject_cast<QComboBox*>(w) || qobject_cast<QLineEdit*>(w) || qobject_cast<QTabBar*>(w)))
                continue;
            const QString alt = Anzeige(*w);
            for (const int Drehung : {120, -120}) {
                QWheelEvent Rad(QPointF(5, 5), w->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, Drehung), Qt::NoButton, {},
                                Qt::NoScrollPhase, false);
                QApplication::sendEvent(w, &Rad);
            }
            QCOMPARE(Anzeige(*w), alt);
            ++gedreht;
        }
        QVERIFY(gedreht > 20);
        QTest::qWait(5);
        QCOMPARE(Zeichnung(), vorher);
        QVERIFY(!Hinweis());
    }

    // One message, and what was meant to be done is not.
    void every_command_out_of_an_invalid_field_is_refused_data() {
        nenne_Befehle();
        for (const char* b : {"M_Defaults", "Simulationsliste"}) QTest::newRow(b) << QByteArray(b);
    }
    void every_command_out_of_an_invalid_field_is_refused() {
        QFETCH(QByteArray, Befehl);
        p_->tippe("S_Q10_0", "0");
        const QByteArray alter_Satz = p_->Inhalt(u"input/Programcheck.che"_s);
        const auto* w = p_->Fenster().findChild<QWidget*>(QString::fromLatin1(Befehl));
        const QString alt = w ? Anzeige(*w) : QString();
        fuehre_aus(Befehl);
        QTest::qWait(40);
        QCOMPARE(Fragen_.nimm(), QStringList(u"No valid input!: The Q10 constant is invalid. Please correct!"_s));
        QCOMPARE(QApplication::focusWidget()->objectName(), u"S_Q10_0"_s);
        if (w) QCOMPARE(Anzeige(*w), alt);
        QVERIFY(p_->Fenster().isVisible());
        QCOMPARE(p_->Inhalt(u"input/Programcheck.che"_s), alter_Satz);
    }

    void a_valid_value_goes_with_the_command_that_leaves_its_field_data() { nenne_Befehle(); }
    void a_valid_value_goes_with_the_command_that_leaves_its_field() {
        QFETCH(QByteArray, Befehl);
        p_->tippe("S_Q10_0", "3");
        fuehre_aus(Befehl);
        QTest::qWait(40);
        const QStringList Fragen = Fragen_.nimm();
        QVERIFY2(Fragen.filter(u"No valid input!"_s).isEmpty(), qPrintable(Fragen.join(u'\n')));
        QCOMPARE(Stand().Parameter().Q10[0][0], 3.0);
        if (Befehl == "Ende" || Befehl == "M_Ende") {
            QVERIFY(!p_->Fenster().isVisible());
            return;
        }
        QCOMPARE(p_->Programm().zeige<Feldeingabe>().aktives_Feld(), -1);
        QVERIFY(!Stand().Hinweis());
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

private:
    // Commands after which the values of the record are still there.
    static void nenne_Befehle() {
        QTest::addColumn<QByteArray>("Befehl");
        for (const char* b : {"Aktualisieren", "speichern", "Ende", "M_Speichern", "M_Ende", "M_Studien", "Applikationsmuster_1",
                              "PEC_Typ_1", "Endpunkt_0", "App_Monat", "Liste_2", "TWA_Laenge", "S_Kinetik_0",
                              "Wirkstoffdaten_Leiste", "Berechnungsmodus_Leiste"})
            QTest::newRow(b) << QByteArray(b);
    }

    const Zustand& Stand() { return p_->Programm().Stand(); }
    int Zeichnung() { return p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(); }
    bool Hinweis() { return !p_->Teil<QPushButton>("Aktualisieren")->icon().isNull(); }

    static QString Anzeige(const QWidget& w) {
        if (const auto* Liste = qobject_cast<const QComboBox*>(&w)) return Liste->currentText();
        if (const auto* Zeile = qobject_cast<const QLineEdit*>(&w)) return Zeile->text();
        if (const auto* Leiste = qobject_cast<const QTabBar*>(&w)) return in_Qt(Leiste->currentIndex());
        if (const auto* Option = qobject_cast<const QRadioButton*>(&w)) return in_Qt(Option->isChecked());
        return {};
    }

    // Does with a control what it is there for: press it, choose another entry, turn to another page.
    void fuehre_aus(const QByteArray& Name) {
        if (auto* Aktion = p_->Fenster().findChild<QAction*>(QString::fromLatin1(Name))) {
            Aktion->trigger();
        } else if (auto* Liste = p_->Fenster().findChild<QComboBox*>(QString::fromLatin1(Name))) {
            p_->waehle_Eintrag(Name, (Liste->currentIndex() + 1) % Liste->count());
        } else if (Name.endsWith("_Leiste")) {
            p_->blaettere(Name, 1);
        } else if (p_->Fenster().findChild<QRadioButton*>(QString::fromLatin1(Name))) {
            p_->waehle(Name);
        } else {
            p_->klicke(Name);
        }
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Befehlstest> angemeldet;
}

}  // namespace varnok

#include "befehl_test.moc"
