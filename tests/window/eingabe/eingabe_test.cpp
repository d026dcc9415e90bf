// What typing leads to, from the key to the files.

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <cmath>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Eingabetest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void typing_12_starts_no_run_at_1() {
        const int vorher = Zeichnung();
        p_->tippe("S_DT50_0", "1");
        QTest::qWait(5);
        QCOMPARE(Zeichnung(), vorher);
        QTest::keyClicks(Feld("S_DT50_0"), u"2"_s);
        QTest::qWait(5);
        QCOMPARE(Zeichnung(), vorher);
        p_->druecke("S_DT50_0", Qt::Key_Return);
        QCOMPARE(Zeichnung(), vorher + 1);
        QCOMPARE(k_SFO(), std::log(2.0) / 12);
    }

    // Enter once more, and leaving after it, find nothing new.
    void enter_without_change_does_nothing() {
        const int vorher = Zeichnung();
        QTest::mouseClick(Feld("S_DT50_0"), Qt::LeftButton);
        QTest::qWait(1);
        p_->druecke("S_DT50_0", Qt::Key_Return);
        QCOMPARE(Zeichnung(), vorher);
        QVERIFY(!Hinweis());
        QVERIFY(!Stand().Saetze[Wirkstoff].Geaendert());
        p_->tippe("S_DT50_0", "12");
        p_->druecke("S_DT50_0", Qt::Key_Return);
        p_->druecke("S_DT50_0", Qt::Key_Return);
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(Zeichnung(), vorher + 1);
    }

    // After Enter the field keeps the focus; the next key is a new change and no run.
    void typing_goes_on_after_enter_without_a_run() {
        const int vorher = Zeichnung();
        p_->tippe("S_DT50_0", "12");
        p_->druecke("S_DT50_0", Qt::Key_Enter);
        QTest::keyClicks(Feld("S_DT50_0"), u"34"_s);
        QTest::qWait(5);
        QCOMPARE(Feld("S_DT50_0")->text(), u"34"_s);
        QCOMPARE(Zeichnung(), vorher + 1);
        QVERIFY(Hinweis());
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(Zeichnung(), vorher + 2);
        QCOMPARE(k_SFO(), std::log(2.0) / 34);
    }

    void numbers_are_read_freely_data() {
        QTest::addColumn<QByteArray>("Text");
        QTest::addColumn<double>("Wert");
        QTest::addColumn<QByteArray>("danach");
        QTest::newRow("point") << QByteArray("1.5") << 1.5 << QByteArray("1.5");
        QTest::newRow("comma") << QByteArray("1,5") << 1.5 << QByteArray("1,5");
        QTest::newRow("letters behind") << QByteArray("12abc") << 12.0 << QByteArray("12");
        QTest::newRow("letters") << QByteArray("abc") << 0.0 << QByteArray("0");
        QTest::newRow("empty") << QByteArray("") << 0.0 << QByteArray("0");
    }
    void numbers_are_read_freely() {
        QFETCH(QByteArray, Text);
        QFETCH(double, Wert);
        QFETCH(QByteArray, danach);
        p_->tippe("S_Walker_0", "5");
        Feld("S_Walker_0")->selectAll();
        QTest::keyClick(Feld("S_Walker_0"), Qt::Key_Delete);
        QTest::keyClicks(Feld("S_Walker_0"), QString::fromLatin1(Text));
        p_->druecke("S_Walker_0", Qt::Key_Tab);
        QCOMPARE(Fragen_.nimm(), QStringList());
        QCOMPARE(Stand().Parameter().Walker[0][0], Wert);
        QCOMPARE(Feld("S_Walker_0")->text(), QString::fromLatin1(danach));
    }

    void a_pasted_number_is_a_change_like_a_typed_one() {
        QApplication::clipboard()->setText(u"25"_s);
        QTest::mouseClick(Feld("S_DT50_0"), Qt::LeftButton);
        QTest::qWait(1);
        Feld("S_DT50_0")->selectAll();
        p_->druecke("S_DT50_0", Qt::Key_V, Qt::ControlModifier);
        QVERIFY(Hinweis());
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(k_SFO(), std::log(2.0) / 25);
        QVERIFY(!Hinweis());
    }

    // The road of one value: field, constant, mark, run, grid, question, file.
    void a_new_dt50_goes_from_the_field_to_the_files() {
        const int vorher = Zeichnung();
        const QString alter_Mittelwert = p_->Zelle("Ergebnisse_0", 8, 1);
        const QByteArray alter_Satz = p_->Inhalt(u"input/Programcheck.che"_s);
        p_->tippe("S_DT50_0", "17");
        QVERIFY(Hinweis());
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(k_SFO(), std::log(2.0) / 17);
        QVERIFY(Stand().Saetze[Wirkstoff].Geaendert());
        QVERIFY(!Stand().Saetze[Applikation].Geaendert() && !Stand().Saetze[Szenario].Geaendert());
        QCOMPARE(Zeichnung(), vorher + 1);
        QVERIFY(!Hinweis());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        // 1000 g/ha in 5 cm of 1.5 kg/L at the first day; later a shorter half-life leaves less.
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"1.3333"_s);
        QVERIFY(p_->Zelle("Ergebnisse_0", 8, 1).toDouble() < alter_Mittelwert.toDouble());
        QCOMPARE(p_->Inhalt(u"input/Programcheck.che"_s), alter_Satz);

        QFile::remove(p_->Pfad(u"VARNOK.ini"_s));
        QFile::remove(p_->Pfad(u"input/Programcheck.vnk"_s));
        Fragen_.antworte(Knopf::Ja);
        p_->klicke("Ende");
        QCOMPARE(Fragen_.nimm(), QStringList(u"Save changes?: You modified pesticide input data!  Do you want to save the "
                                             "changes in your data base?\n'Programcheck'"_s));
        QVERIFY(!p_->Fenster().isVisible());
        // ln(2)/17 in 15 digits.
        QVERIFY(p_->Inhalt(u"input/Programcheck.che"_s).contains("SFO k (1/d):\t0.0407733635623497\t"));
        QCOMPARE(p_->Inhalt(u"input/Programcheck.vnk"_s),
                 QByteArray("One application, one compound, first order\r\nProgramcheck\r\nProgramcheck\r\nProgramcheck\r\n"));
        QVERIFY(!p_->Inhalt(u"VARNOK.ini"_s).isEmpty());
    }

    // The hint stays while the results are not those of what is entered.
    void leaving_a_field_runs_what_was_stale_before() {
        p_->waehle_Simulation("Vines, Compound D");
        auto* Tafel = p_->Teil<QTableWidget>("Applikationsschema");
        Tafel->setFocus();
        Tafel->setCurrentCell(0, 2);
        QTest::keyClicks(Tafel, u"0"_s);
        QVERIFY(Hinweis());
        const int vorher = Zeichnung();
        QTest::mouseClick(Feld("S_Q10_0"), Qt::LeftButton);
        QTest::qWait(1);
        QVERIFY(Hinweis());
        QCOMPARE(Zeichnung(), vorher);
        p_->druecke("S_Q10_0", Qt::Key_Tab);
        QVERIFY(!Hinweis());
        QCOMPARE(Zeichnung(), vorher + 1);
    }

    // 1000, then nothing, a message, 1000 again: nothing has changed, so nothing is scaled or calculated.
    void a_rate_typed_back_after_a_message_uncovers_the_results() {
        const QString vorher = p_->Zelle("Ergebnisse_0", 1, 1);
        p_->tippe("Applikationsrate", "0");
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(p_->sichtbar("Abdeckung"));
        QTest::keyClicks(Feld("Applikationsrate"), u"1000"_s);
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        QCOMPARE(Fragen_.nimm(), QStringList());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QVERIFY(!Hinweis());
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), vorher);
    }

    void twice_the_rate_doubles_the_grid() {
        p_->tippe("Applikationsrate", "2000");
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"2.6667"_s);
        QVERIFY(Stand().Saetze[Applikation].Geaendert());
        QVERIFY(!Stand().Saetze[Wirkstoff].Geaendert());
        // Half of it is kept from the soil by the crop.
        p_->tippe("Interzeption", "50");
        p_->druecke("Interzeption", Qt::Key_Return);
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"1.3333"_s);
    }

    void an_interception_of_zero_reads_0() {
        p_->tippe("Interzeption", "0,00");
        p_->druecke("Interzeption", Qt::Key_Tab);
        QCOMPARE(Feld("Interzeption")->text(), u"0"_s);
        QVERIFY(!Hinweis());
    }

    void the_two_fields_of_a_name_follow_each_other_data() {
        QTest::addColumn<int>("Stoff");
        QTest::addColumn<int>("Exemplar");
        for (int c = 0; c < Stoffe; ++c) {
            for (int e = 0; e < 2; ++e) QTest::addRow("compound %d, field %d", c, e) << c << e;
        }
    }
    void the_two_fields_of_a_name_follow_each_other() {
        QFETCH(int, Stoff);
        QFETCH(int, Exemplar);
        static constexpr std::array<const char*, Stoffe> Namen = {"Name_Wirkstoff_", "Name_Met_1_", "Name_Met_2_"};
        p_->waehle_Simulation("Vines, Compound D");
        p_->blaettere("Wirkstoffdaten_Leiste", Exemplar == 0 ? 2 : 1);
        const QByteArray dieses = Namen[static_cast<std::size_t>(Stoff)] + QByteArray::number(Exemplar);
        const QByteArray anderes = Namen[static_cast<std::size_t>(Stoff)] + QByteArray::number(1 - Exemplar);
        const int vorher = Zeichnung();
        p_->tippe(dieses, "New name");
        QCOMPARE(Feld(anderes)->text(), u"New name"_s);
        QVERIFY(Stand().Saetze[Wirkstoff].Geaendert());
        QCOMPARE(Zeichnung(), vorher);
        p_->druecke(dieses, Qt::Key_Tab);
        QCOMPARE(Zeichnung(), vorher + 1);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void a_name_looked_at_starts_no_run() {
        p_->blaettere("Wirkstoffdaten_Leiste", 2);
        const int vorher = Zeichnung();
        QTest::mouseClick(Feld("Name_Wirkstoff_0"), Qt::LeftButton);
        p_->druecke("Name_Wirkstoff_0", Qt::Key_Tab);
        QCOMPARE(Zeichnung(), vorher);
        QVERIFY(!Stand().Saetze[Wirkstoff].Geaendert());
    }

    // Esc brings everything back: nothing is left to run.
    void esc_in_a_field_takes_the_hint_back() {
        const int vorher = Zeichnung();
        p_->tippe("S_DT50_0", "20");
        p_->druecke("S_DT50_0", Qt::Key_Escape);
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QVERIFY(!Stand().Hinweis());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QVERIFY(Zeichnung() <= vorher + 1);
    }

    // A refused value, Esc, on: the results are seen again.
    void esc_after_a_message_uncovers_on_leaving() {
        p_->tippe("S_Q10_0", "0");
        p_->druecke("S_Q10_0", Qt::Key_Tab);
        QCOMPARE(Fragen_.nimm().size(), 1);
        p_->druecke("S_Q10_0", Qt::Key_Escape);
        QCOMPARE(p_->Teil<QLineEdit>("S_Q10_0")->text(), u"2.58"_s);
        p_->druecke("S_Q10_0", Qt::Key_Tab);
        QCOMPARE(Fragen_.nimm(), QStringList());
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QVERIFY(!Stand().Hinweis());
    }

    // A name typed, then another simulation: the name goes with the record left, and no run follows later.
    void a_name_typed_before_another_simulation_starts_no_later_run() {
        p_->blaettere("Wirkstoffdaten_Leiste", 2);
        p_->tippe("Name_Wirkstoff_0", "X");
        p_->waehle_Simulation("Vines, Compound D");
        QTest::qWait(20);
        const int vorher = Zeichnung();
        QTest::mouseClick(p_->Teil<QLineEdit>("Name_Wirkstoff_0"), Qt::LeftButton);
        p_->druecke("Name_Wirkstoff_0", Qt::Key_Tab);
        QCOMPARE(Zeichnung(), vorher);
    }

    // A rate of 0 by Enter is calculated; leaving it then is refused.
    void a_rate_of_0_by_enter_is_refused_on_leaving() {
        p_->tippe("Applikationsrate", "0");
        p_->druecke("Applikationsrate", Qt::Key_Return);
        Fragen_.nimm();
        QVERIFY(!p_->sichtbar("Abdeckung"));
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        QCOMPARE(Fragen_.nimm(), QStringList(u"No valid input!: The applikations rate is invalid. Please correct!"_s));
        QTest::keyClicks(p_->Teil<QLineEdit>("Applikationsrate"), u"1000"_s);
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"1.3333"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

private:
    const Zustand& Stand() { return p_->Programm().Stand(); }
    int Zeichnung() { return p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(); }
    double k_SFO() { return Stand().Parameter().k_SFO[0][0]; }
    QLineEdit* Feld(const char* Name) { return p_->Teil<QLineEdit>(Name); }
    bool Hinweis() { return !p_->Teil<QPushButton>("Aktualisieren")->icon().isNull(); }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Eingabetest> angemeldet;
}

}  // namespace varnok

#include "eingabe_test.moc"
