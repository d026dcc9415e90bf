// The table of irregular applications under the keys of the user.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Tabellentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Five treatments, the first on 15 May: 400 g/ha, 50 % kept by the crop.
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        p_->waehle_Simulation("Vines, Compound D");
        t_ = p_->Teil<QTableWidget>("Applikationsschema");
        t_->setFocus();
        t_->setCurrentCell(0, 2);
        Fragen_.nimm();
    }
    void cleanup() { p_.reset(); }

    void the_columns_are_named() {
        QStringList Koepfe;
        for (int j = 0; j < t_->columnCount(); ++j) Koepfe << t_->horizontalHeaderItem(j)->text();
        QCOMPARE(Koepfe, (QStringList{u"Day"_s, u"Month"_s, u"Rate (g/ha)"_s, u"Interception(%)"_s}));
        QCOMPARE(t_->rowCount(), 5);
        QCOMPARE(t_->item(0, 2)->text(), u"400"_s);
    }

    void a_key_edits_the_cell_data() {
        QTest::addColumn<int>("Taste");
        QTest::addColumn<QString>("Zeichen");
        QTest::addColumn<bool>("Ziffernblock");
        QTest::addColumn<QString>("danach");
        for (int i = 0; i <= 9; ++i) {
            const QString Ziffer = in_Qt(i);
            QTest::addRow("digit %d", i) << int(Qt::Key_0) + i << Ziffer << false << u"400"_s + Ziffer;
            QTest::addRow("keypad digit %d", i) << int(Qt::Key_0) + i << Ziffer << true << u"400"_s + Ziffer;
        }
        QTest::newRow("point") << int(Qt::Key_Period) << u"."_s << false << u"400."_s;
        QTest::newRow("comma") << int(Qt::Key_Comma) << u","_s << false << u"400."_s;
        QTest::newRow("keypad point") << int(Qt::Key_Period) << u"."_s << true << u"400."_s;
        QTest::newRow("keypad comma") << int(Qt::Key_Comma) << u","_s << true << u"400."_s;
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << QString() << false << u"40"_s;
        QTest::newRow("delete") << int(Qt::Key_Delete) << QString() << false << QString();
        QTest::newRow("letter") << int(Qt::Key_A) << u"a"_s << false << u"400"_s;
        QTest::newRow("minus") << int(Qt::Key_Minus) << u"-"_s << false << u"400"_s;
        QTest::newRow("blank") << int(Qt::Key_Space) << u" "_s << false << u"400"_s;
    }
    void a_key_edits_the_cell() {
        QFETCH(int, Taste);
        QFETCH(QString, Zeichen);
        QFETCH(bool, Ziffernblock);
        QFETCH(QString, danach);
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        QTest::sendKeyEvent(QTest::Click, t_, static_cast<Qt::Key>(Taste), Zeichen,
                            Ziffernblock ? Qt::KeypadModifier : Qt::NoModifier);
        QCOMPARE(t_->item(0, 2)->text(), danach);
        QCOMPARE(Stand().Saetze[Applikation].Geaendert(), danach != u"400"_s);
        QCOMPARE(Hinweis(), danach.toDouble() != 400);  // "400." is the same number
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher);
        QCOMPARE(t_->currentRow(), 0);
        QCOMPARE(t_->currentColumn(), 2);
    }

    void backspace_in_an_empty_cell_is_no_change() {
        p_->druecke("Applikationsschema", Qt::Key_Delete);
        p_->druecke("Applikationsschema", Qt::Key_Return);
        Fragen_.nimm();
        p_->druecke("Applikationsschema", Qt::Key_Backspace);
        QCOMPARE(t_->item(0, 2)->text(), QString());
    }

    void the_keypad_enter_makes_one_run() {
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        QTest::keyClicks(t_, u"0"_s);
        p_->druecke("Applikationsschema", Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
        QVERIFY(!Hinweis());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QCOMPARE(Fragen_.nimm().filter(u"No valid input!"_s), QStringList());
    }

    void a_missing_month_is_told_once_and_its_cell_selected() {
        t_->setCurrentCell(2, 1);
        p_->druecke("Applikationsschema", Qt::Key_Delete);
        t_->setCurrentCell(0, 0);
        p_->druecke("Applikationsschema", Qt::Key_Return);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(p_->sichtbar("Abdeckung"));
        QVERIFY(Hinweis());
        QCOMPARE(t_->currentRow(), 2);
        QCOMPARE(t_->currentColumn(), 1);
    }

    void lines_from_a_spreadsheet_fill_the_cells_from_the_current_one_on() {
        QApplication::clipboard()->setText(u"100\t10\r\n200\t20\r\n"_s);
        t_->setCurrentCell(1, 2);
        p_->druecke("Applikationsschema", Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(t_->item(1, 2)->text(), u"100"_s);
        QCOMPARE(t_->item(1, 3)->text(), u"10"_s);
        QCOMPARE(t_->item(2, 2)->text(), u"200"_s);
        QCOMPARE(t_->item(2, 3)->text(), u"20"_s);
        QCOMPARE(t_->item(0, 2)->text(), u"400"_s);
        QVERIFY(Hinweis());
        QVERIFY(Stand().Saetze[Applikation].Geaendert());
    }

    void what_is_pasted_beyond_the_table_is_dropped() {
        QApplication::clipboard()->setText(u"1\t2\t3\n4\t5\t6"_s);
        t_->setCurrentCell(4, 3);
        p_->druecke("Applikationsschema", Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(t_->rowCount(), 5);
        QCOMPARE(t_->item(4, 3)->text(), u"1"_s);
    }

    void selected_cells_are_copied_and_come_back_by_paste() {
        t_->setRangeSelected(QTableWidgetSelectionRange(0, 2, 1, 3), true);
        p_->druecke("Applikationsschema", Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"400\t50\n400\t60\n"_s);
        QVERIFY(!Hinweis());
        t_->clearSelection();
        t_->setCurrentCell(3, 2);
        p_->druecke("Applikationsschema", Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(t_->item(3, 2)->text(), u"400"_s);
        QCOMPARE(t_->item(4, 3)->text(), u"60"_s);
    }

    // Rows appear at once, the results wait for Enter; rows cut off are not forgotten while the record stands.
    void the_number_of_rows_follows_its_list_without_a_run() {
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        const QString fuenfte = t_->item(4, 2)->text();
        const int hoch = t_->height();
        p_->waehle_Eintrag("Anzahl", 1);
        QCOMPARE(t_->rowCount(), 3);
        QVERIFY(t_->height() < hoch);
        QVERIFY(Hinweis());
        p_->waehle_Eintrag("Anzahl", 3);
        QCOMPARE(t_->rowCount(), 5);
        QCOMPARE(t_->item(4, 2)->text(), fuenfte);
        QVERIFY(!Hinweis());  // the results are those of this table
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher);
        QVERIFY(!Stand().Saetze[Applikation].Geaendert());
    }

    void enter_ends_the_summary_view() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->Programm().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
        QVERIFY(Stand().Zusammenfassung_aktiv());
        p_->waehle("Applikationsmuster_2");
        QVERIFY(Stand().Zusammenfassung_aktiv());
        t_->setFocus();
        p_->druecke("Applikationsschema", Qt::Key_Return);
        QVERIFY(!Stand().Zusammenfassung_aktiv());
        Fragen_.nimm();
    }

    void tab_leaves_the_table() {
        p_->druecke("Applikationsschema", Qt::Key_Tab);
        QVERIFY(!t_->hasFocus());
    }

private:
    const Zustand& Stand() { return p_->Programm().Stand(); }
    bool Hinweis() { return !p_->Teil<QPushButton>("Aktualisieren")->icon().isNull(); }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
    QTableWidget* t_ = nullptr;
};

namespace {
const Anmeldung<Tabellentest> angemeldet;
}

}  // namespace varnok

#include "tabelle_test.moc"
