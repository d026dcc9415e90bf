// Start and end of the program, saving, and the line of description.

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

void schreibe(const QString& Datei, const QByteArray& Inhalt) {
    QFile f(Datei);
    if (!f.open(QIODevice::WriteOnly) || f.write(Inhalt) != Inhalt.size()) qFatal("cannot write %s", qPrintable(Datei));
}

QString Frage_nach(const char* Satz) {
    return u"Save changes?: You modified "_s + QString::fromLatin1(Satz) +
           u" input data!  Do you want to save the changes in your data base?\n'Programcheck'"_s;
}

const QString Satzdatei = u"input/Programcheck.che"_s;
const QString Zusammenfassung = u"input/Programcheck.vnk"_s;
const QString Einstellungsdatei = u"VARNOK.ini"_s;

}  // namespace

class Endetest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        p_.reset();
        Fragen_.vergiss();
    }

    // start

    void without_settings_a_file_with_the_defaults_is_made() {
        oeffne();
        const QByteArray Datei = p_->Inhalt(Einstellungsdatei);
        QVERIFY(Datei.startsWith("Tooltips:\t1\r\nAppearance:\t0\r\nEU-Regulation\r\n 1 \r\n 2 \r\n"));
        QCOMPARE(Datei.count("\r\n"), 27);
        QVERIFY(Datei.endsWith((QDir(p_->Pfad(QString())).absolutePath().toLocal8Bit() + "\r\n").constData()));
    }

    void settings_without_a_project_path_open_the_program_folder() {
        QByteArray Kurz = "Tooltips:\t0\r\nAppearance:\t0\r\nList A\r\n";
        for (int i = 1; i <= 10; ++i) Kurz += " " + QByteArray::number(i) + " \r\n";
        Kurz += "List B\r\n";
        for (int i = 1; i <= 12; ++i) Kurz += " " + QByteArray::number(30 * i) + " \r\n";
        oeffne([&](const QString& Ordner) { schreibe(Ordner + u"/VARNOK.ini"_s, Kurz); });
        p_->starte();
        QCOMPARE(p_->Teil<QComboBox>("Simulationsliste")->currentText(), u"Programcheck"_s);
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"1.3333"_s);
        QCOMPARE(p_->Inhalt(Einstellungsdatei), Kurz);
    }

    void a_short_summary_is_told_and_the_next_newest_opened() {
        oeffne([](const QString& Ordner) { schreibe(Ordner + u"/input/Newest.vnk"_s, "only a line\r\n"); });
        QCOMPARE(Fragen_.nimm().size(), 1);
        p_->starte();
        QCOMPARE(p_->Teil<QComboBox>("Simulationsliste")->currentText(), u"Programcheck"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void a_project_path_that_is_gone_is_told_in_the_status_line() {
        oeffne([](const QString& Ordner) {
            QByteArray Datei = "Tooltips:\t0\r\nAppearance:\t0\r\nA\r\n";
            for (int i = 1; i <= 10; ++i) Datei += " 1 \r\n";
            Datei += "B\r\n";
            for (int i = 1; i <= 12; ++i) Datei += " 30 \r\n";
            schreibe(Ordner + u"/VARNOK.ini"_s, Datei + "/no/such/folder\r\n");
        });
        p_->starte();
        QVERIFY(p_->Teil<QLabel>("Statuszeile")->text().contains(u"/no/such/folder"_s));
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void menus_wait_for_ok() {
        oeffne();
        for (const char* Name : {"M_editieren", "M_Ansicht"}) QVERIFY(!p_->Teil<QMenu>(Name)->menuAction()->isEnabled());
        QVERIFY(!p_->Teil<QAction>("M_Bericht")->isEnabled());
        for (const char* Name : {"M_Datei", "M_Hilfe"}) QVERIFY(p_->Teil<QMenu>(Name)->menuAction()->isEnabled());
        QVERIFY(!p_->Teil<QAction>("M_Drucken")->isEnabled());
        for (const char* Name : {"Frame2", "Kinetikschema", "Applikationsrahmen", "Szenariorahmen", "Schalterrahmen",
                                 "untere_Zeile", "Berechnungsmodus", "Label1", "Label9", "Simulationsliste", "Beschreibung"})
            QVERIFY2(!p_->sichtbar(Name), Name);
        p_->starte();
        for (const char* Name : {"M_editieren", "M_Ansicht"}) QVERIFY(p_->Teil<QMenu>(Name)->menuAction()->isEnabled());
        for (const char* Name : {"Frame2", "Kinetikschema", "Applikationsrahmen", "Szenariorahmen", "Schalterrahmen",
                                 "untere_Zeile", "Berechnungsmodus", "Label1", "Label9", "Simulationsliste", "Beschreibung"})
            QVERIFY2(p_->sichtbar(Name), Name);
        for (const bool g : p_->Programm().Stand().Marken()) QVERIFY(!g);
    }

    // end

    // The button and the menu entry of a command do the same, in each of its cases.
    void exit_is_one_routine_data() {
        QTest::addColumn<QByteArray>("Weg");
        QTest::addColumn<bool>("sichern");
        for (const char* Weg : {"Ende", "M_Ende"}) {
            QTest::addRow("%s, Yes", Weg) << QByteArray(Weg) << true;
            QTest::addRow("%s, No", Weg) << QByteArray(Weg) << false;
        }
    }
    void exit_is_one_routine() {
        QFETCH(QByteArray, Weg);
        QFETCH(bool, sichern);
        aendere_Stoff_und_Applikation();
        const QByteArray alt = p_->Inhalt(Satzdatei);
        Fragen_.antworte(sichern ? Knopf::Ja : Knopf::Nein).antworte(Knopf::Nein);
        loese_aus(Weg);
        // All is asked before anything is done; Yes saves the record asked about.
        QCOMPARE(Fragen_.nimm(), (QStringList{Frage_nach("pesticide"), Frage_nach("application")}));
        QVERIFY(!p_->Fenster().isVisible());
        QCOMPARE(p_->Inhalt(Satzdatei) == alt, !sichern);
        QVERIFY(!p_->Inhalt(u"input/Programcheck.app"_s).contains("Application rate (g/ha):\t750"));
        QCOMPARE(p_->Inhalt(Zusammenfassung).count("\r\n"), 4);
        QVERIFY(!p_->Inhalt(Einstellungsdatei).isEmpty());
    }

    void save_is_one_routine_data() {
        QTest::addColumn<QByteArray>("Weg");
        for (const char* Weg : {"speichern", "M_Speichern"}) QTest::newRow(Weg) << QByteArray(Weg);
    }
    void save_is_one_routine() {
        QFETCH(QByteArray, Weg);
        aendere_Stoff_und_Applikation();
        loese_aus(Weg);
        QCOMPARE(Fragen_.nimm(), QStringList());
        QVERIFY(p_->Inhalt(Satzdatei).contains("SFO k (1/d):\t0.0407733635623497\t"));
        QVERIFY(p_->Inhalt(u"input/Programcheck.app"_s).contains("Application rate (g/ha):\t750"));
        QCOMPARE(p_->Inhalt(Zusammenfassung).count("\r\n"), 4);
        QVERIFY(p_->Inhalt(Einstellungsdatei).isEmpty());
        for (const Satzart t : Eingabearten) QVERIFY(!p_->Programm().Stand().Saetze[t].Geaendert());
        QVERIFY(p_->Fenster().isVisible());
        loese_aus("Ende");
        QCOMPARE(Fragen_.nimm(), QStringList());
    }

    // It asks, and writes nothing of its own.
    void the_close_box_asks_and_writes_no_settings_data() {
        QTest::addColumn<bool>("sichern");
        QTest::newRow("Yes") << true;
        QTest::newRow("No") << false;
    }
    void the_close_box_asks_and_writes_no_settings() {
        QFETCH(bool, sichern);
        aendere_Stoff_und_Applikation();
        QFile::remove(p_->Pfad(Zusammenfassung));
        Fragen_.antworte(sichern ? Knopf::Ja : Knopf::Nein).antworte(Knopf::Nein);
        p_->Fenster().close();
        QCOMPARE(Fragen_.nimm().size(), 2);
        QVERIFY(!p_->Fenster().isVisible());
        QCOMPARE(p_->Inhalt(Satzdatei).contains("0.0407733635623497"), sichern);
        QCOMPARE(QFile::exists(p_->Pfad(Zusammenfassung)), sichern);
        QVERIFY(!QFile::exists(p_->Pfad(Einstellungsdatei)));
    }

    void the_close_box_puts_an_invalid_text_back() {
        oeffne_Arbeit();
        p_->tippe("S_Q10_0", "0");
        p_->Fenster().close();
        QCOMPARE(Fragen_.nimm(), QStringList());  // nothing is left to save
        QVERIFY(!p_->Fenster().isVisible());
        QVERIFY(p_->Inhalt(Satzdatei).contains("Q10-factor:\t2.58\t2.58\t2.58\r\n"));
    }

    void exit_out_of_an_invalid_field_stays() {
        oeffne_Arbeit();
        p_->tippe("S_Q10_0", "0");
        p_->klicke("Ende");
        QCOMPARE(Fragen_.nimm(), QStringList(u"No valid input!: The Q10 constant is invalid. Please correct!"_s));
        QVERIFY(p_->Fenster().isVisible());
        QVERIFY(!QFile::exists(p_->Pfad(Einstellungsdatei)));
    }

    void with_an_empty_selector_exit_is_refused_and_the_close_box_is_not_data() {
        QTest::addColumn<int>("Satz");
        QTest::addColumn<QByteArray>("Name");
        QTest::newRow("compound") << 2 << QByteArray("Pesticide");
        QTest::newRow("application") << 3 << QByteArray("Application");
        QTest::newRow("scenario") << 4 << QByteArray("Scenario");
    }
    void with_an_empty_selector_exit_is_refused_and_the_close_box_is_not() {
        QFETCH(int, Satz);
        QFETCH(QByteArray, Name);
        QList<QByteArray> Zeilen = {"Text", "Programcheck", "Programcheck", "Programcheck", ""};
        Zeilen[Satz - 1] = "gone";
        oeffne([&](const QString& Ordner) {
            const QString Datei = Ordner + u"/input/Broken.vnk"_s;
            schreibe(Datei, Zeilen.join("\r\n"));
            QFile f(Datei);
            if (f.open(QIODevice::ReadWrite))
                f.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime);
        });
        p_->starte();
        QFile::remove(p_->Pfad(Einstellungsdatei));
        p_->waehle_Simulation("Broken");
        QCOMPARE(Fragen_.nimm(), QStringList());
        QCOMPARE(p_->Teil<QComboBox>(("Liste_" + QByteArray::number(Satz - 1)).constData())->currentIndex(), -1);
        QVERIFY(p_->sichtbar("Abdeckung"));
        const QString Text = u"Record not set: "_s + QString::fromLatin1(Name) + u" record not set. Please select!"_s;
        for (const char* Befehl : {"Ende", "speichern", "Aktualisieren"}) {
            p_->klicke(Befehl);
            QCOMPARE(Fragen_.nimm(), QStringList(Text));
            QVERIFY(p_->Fenster().isVisible());
            QVERIFY(p_->sichtbar("Abdeckung"));
        }
        QCOMPARE(p_->Inhalt(u"input/Broken.vnk"_s), Zeilen.join("\r\n"));
        QVERIFY(!QFile::exists(p_->Pfad(u"input/.che"_s)));
        p_->Fenster().close();
        QVERIFY(!p_->Fenster().isVisible());
    }

    void picking_the_missing_record_uncovers_the_results() {
        oeffne([](const QString& Ordner) {
            const QString Datei = Ordner + u"/input/Broken.vnk"_s;
            schreibe(Datei, "Text\r\nProgramcheck\r\ngone\r\nProgramcheck\r\n");
            QFile f(Datei);
            if (f.open(QIODevice::ReadWrite))
                f.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime);
        });
        p_->starte();
        p_->waehle_Simulation("Broken");
        auto* Liste = p_->Teil<QComboBox>("Liste_2");
        p_->waehle_Eintrag("Liste_2", Liste->findText(u"Programcheck"_s));
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"1.3333"_s);
        QCOMPARE(Fragen_.nimm(), QStringList());
    }

    // A folder where the file should be: it cannot be written whoever the user is.
    void a_save_that_fails_names_the_file_and_loses_nothing_data() {
        QTest::addColumn<QByteArray>("Weg");
        for (const char* Weg : {"speichern", "Ende", "close box"}) QTest::newRow(Weg) << QByteArray(Weg);
    }
    void a_save_that_fails_names_the_file_and_loses_nothing() {
        QFETCH(QByteArray, Weg);
        p_ = std::make_unique<Fensterprobe>();
        p_->starte();
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QFile::remove(p_->Pfad(Satzdatei));
        QVERIFY(QDir().mkpath(p_->Pfad(Satzdatei)));
        const QStringList Kaesten = p_->Kaesten_bei(
            [&] {
                if (Weg == "close box")
                    p_->Fenster().close();
                else
                    p_->klicke(Weg);
            },
            QMessageBox::Yes);
        QVERIFY(!Kaesten.isEmpty());
        QVERIFY2(Kaesten.back().startsWith(u"Runtime error: "_s), qPrintable(Kaesten.back()));
        QVERIFY2(Kaesten.back().contains(u"Programcheck.che"_s), qPrintable(Kaesten.back()));
        QCOMPARE(Kaesten.size(), Weg == "speichern" ? 1 : 2);
        // More than the name: a reason behind it.
        QVERIFY2(Kaesten.back().section(u"Programcheck.che"_s, 1).size() > 5, qPrintable(Kaesten.back()));
        QVERIFY(p_->Fenster().isVisible());
        QCOMPARE(p_->Teil<QLineEdit>("S_DT50_0")->text(), u"17"_s);
        QVERIFY(p_->Programm().Stand().Saetze[Wirkstoff].Geaendert());
        // Once the way is free the same command goes through.
        QVERIFY(QDir(p_->Pfad(Satzdatei)).removeRecursively());
        p_->klicke("speichern");
        QVERIFY(p_->Inhalt(Satzdatei).contains("0.0407733635623497"));
    }

    void settings_that_cannot_be_written_are_told_once_and_the_program_ends() {
        p_ = std::make_unique<Fensterprobe>();
        p_->starte();
        QFile::remove(p_->Pfad(Einstellungsdatei));
        QVERIFY(QDir().mkpath(p_->Pfad(Einstellungsdatei)));
        const QStringList Kaesten = p_->Kaesten_bei([&] { p_->klicke("Ende"); }, QMessageBox::Ok);
        QCOMPARE(Kaesten.size(), 1);
        QVERIFY2(Kaesten.front().contains(u"VARNOK.ini"_s), qPrintable(Kaesten.front()));
        QVERIFY(!p_->Fenster().isVisible());
    }

    void esc_at_the_question_keeps_the_program_and_the_values_data() {
        QTest::addColumn<bool>("Schliessfeld");
        QTest::newRow("exit") << false;
        QTest::newRow("close box") << true;
    }
    void esc_at_the_question_keeps_the_program_and_the_values() {
        QFETCH(bool, Schliessfeld);
        p_ = std::make_unique<Fensterprobe>();
        p_->starte();
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        const QByteArray alt = p_->Inhalt(Satzdatei);
        int Kaesten = 0;
        QTimer Waechter;
        QObject::connect(&Waechter, &QTimer::timeout, &Waechter, [&] {
            QWidget* Kasten = QApplication::activeModalWidget();
            if (!Kasten) return;
            ++Kaesten;
            QTest::keyClick(Kasten, Qt::Key_Escape);
        });
        Waechter.start(5);
        if (Schliessfeld)
            p_->Fenster().close();
        else
            p_->klicke("Ende");
        QTest::qWait(50);
        QCOMPARE(Kaesten, 1);
        QVERIFY(p_->Fenster().isVisible());
        QVERIFY(!p_->Programm().Stand().beendet());
        QCOMPARE(p_->Teil<QLineEdit>("S_DT50_0")->text(), u"17"_s);
        QVERIFY(p_->Programm().Stand().Saetze[Wirkstoff].Geaendert());
        QCOMPARE(p_->Inhalt(Satzdatei), alt);
    }

    // description

    void the_description_is_locked_until_a_right_press() {
        oeffne_Arbeit();
        auto* Feld = Beschreibung();
        const QString alt = Feld->text();
        QCOMPARE(alt, u"One application, one compound, first order"_s);
        const QColor Ruhefarbe = Farbe();
        QTest::mouseClick(Feld, Qt::LeftButton);
        QTest::keyClicks(Feld, u"x"_s);
        QCOMPARE(Feld->text(), alt);
        QVERIFY(!p_->Programm().Stand().Saetze[Simulation].Geaendert());
        schliesse_auf();
        QCOMPARE(Farbe(), QColor(255, 255, 0));
        QVERIFY(!QApplication::activePopupWidget());
        p_->druecke("Beschreibung", Qt::Key_End);
        QTest::keyClicks(Feld, u" x"_s);
        QVERIFY(p_->Programm().Stand().Saetze[Simulation].Geaendert());
        p_->druecke("Beschreibung", Qt::Key_Return);
        QVERIFY(Feld->isReadOnly());
        QCOMPARE(Farbe(), Ruhefarbe);
        QCOMPARE(Feld->text(), alt + u" x"_s);
        p_->klicke("Ende");
        QVERIFY(p_->Inhalt(Zusammenfassung).startsWith("One application, one compound, first order x\r\n"));
    }

    void leaving_locks_the_description_and_keeps_its_text() {
        oeffne_Arbeit();
        schliesse_auf();
        Beschreibung()->selectAll();
        QTest::keyClicks(Beschreibung(), u"New text"_s);
        p_->druecke("Beschreibung", Qt::Key_Tab);
        QVERIFY(Beschreibung()->isReadOnly());
        QCOMPARE(Beschreibung()->text(), u"New text"_s);
        QCOMPARE(p_->Programm().Stand().Vorgabe.Beschreibung, std::string("New text"));
    }

    void esc_locks_the_description_and_brings_its_text_back() {
        oeffne_Arbeit();
        const QString alt = Beschreibung()->text();
        schliesse_auf();
        QTest::keyClicks(Beschreibung(), u"abc"_s);
        p_->druecke("Beschreibung", Qt::Key_Escape);
        QVERIFY(Beschreibung()->isReadOnly());
        QCOMPARE(Beschreibung()->text(), alt);
        QVERIFY(p_->Fenster().isVisible());
    }

    void a_pasted_line_break_becomes_a_blank() {
        oeffne_Arbeit();
        QApplication::clipboard()->setText(u"two\nlines"_s);
        schliesse_auf();
        Beschreibung()->selectAll();
        p_->druecke("Beschreibung", Qt::Key_V, Qt::ControlModifier);
        p_->druecke("Beschreibung", Qt::Key_Return);
        QCOMPARE(Beschreibung()->text(), u"two lines"_s);
        p_->klicke("speichern");
        QVERIFY(p_->Inhalt(Zusammenfassung).startsWith("two lines\r\nProgramcheck\r\n"));
    }

private:
    void oeffne(const std::function<void(const QString&)>& Projekt = {}) {
        p_ = std::make_unique<Fensterprobe>(&Fragen_, Projekt);
    }
    void oeffne_Arbeit() {
        oeffne();
        p_->starte();
        QFile::remove(p_->Pfad(Einstellungsdatei));
    }
    void aendere_Stoff_und_Applikation() {
        oeffne_Arbeit();
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        p_->tippe("Applikationsrate", "750");
        p_->druecke("Applikationsrate", Qt::Key_Tab);
    }
    void loese_aus(const QByteArray& Name) {
        if (auto* Aktion = p_->Fenster().findChild<QAction*>(QString::fromLatin1(Name))) {
            Aktion->trigger();
            QTest::qWait(1);
        } else {
            p_->klicke(Name);
        }
    }

    QLineEdit* Beschreibung() { return p_->Teil<QLineEdit>("Beschreibung"); }
    QColor Farbe() { return Beschreibung()->palette().color(QPalette::Active, QPalette::Base); }
    // As the desktop tells it: a context menu would come with it.
    void schliesse_auf() {
        QTest::mouseClick(p_->Fenster().windowHandle(), Qt::RightButton, {},
                          Beschreibung()->mapTo(&p_->Fenster(), Beschreibung()->rect().center()));
        QTest::qWait(1);
        QVERIFY(!Beschreibung()->isReadOnly());
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Endetest> angemeldet;
}

}  // namespace varnok

#include "ende_test.moc"
