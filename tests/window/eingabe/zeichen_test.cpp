// Characters that no record holds, the line that tells of them, remarks and the mark of a doubtful value.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace varnok {

class Zeichentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { starte({}); }
    void cleanup() { p_.reset(); }

    void pasted_greek_is_taken_without_it_and_told() {
        auto* Feld = p_->Teil<QLineEdit>("Name_Wirkstoff_0");
        Feld->setFocus();
        Feld->selectAll();
        QApplication::clipboard()->setText(u"\u03B1-Compound \u03A9 1\r\n"_s);
        QTest::keySequence(Feld, QKeySequence::Paste);
        QCOMPARE(Feld->text(), u"-Compound  1 "_s);
        QCOMPARE(in_Qt(Stand().Vorgabe.Name_Wirkstoff), u"-Compound  1 "_s);
        QTRY_VERIFY(Statuszeile().endsWith(u"\"\u03B1\" was left out: the records have no such character."_s));
    }

    void a_typed_character_without_a_place_does_not_enter() {
        auto* Feld = p_->Teil<QLineEdit>("Name_Wirkstoff_0");
        Feld->setFocus();
        Feld->selectAll();
        QTest::keyClicks(Feld, u"a"_s);
        QTest::sendKeyEvent(QTest::Click, Feld, Qt::Key_unknown, u"\u03B2"_s, Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Click, Feld, Qt::Key_unknown, u"\u00FC"_s, Qt::NoModifier);
        QCOMPARE(Feld->text(), u"a\u00FC"_s);
        QTRY_VERIFY(Statuszeile().contains(u"\u03B2"_s));
        // What is saved is what is shown.
        p_->klicke("speichern");
        QVERIFY(Fragen_.nimm().filter(u"cannot be saved"_s).isEmpty());
    }

    void a_number_takes_no_other_digits() {
        p_->tippe("S_KOC_0", "12");
        auto* Feld = p_->Teil<QLineEdit>("S_KOC_0");
        QTest::sendKeyEvent(QTest::Click, Feld, Qt::Key_unknown, u"\u0663"_s, Qt::NoModifier);
        QCOMPARE(Feld->text(), u"12"_s);
    }

    void a_replaced_number_is_shown_in_its_field() {
        p_->tippe("S_KOC_0", "7x5");
        p_->druecke("S_KOC_0", Qt::Key_Return);
        QCOMPARE(p_->Teil<QLineEdit>("S_KOC_0")->text(), u"7"_s);
        QVERIFY(Statuszeile().endsWith(u"Koc (L/kgl): \"7x5\" was read as 7."_s));
    }

    void sound_files_have_no_remarks() { QVERIFY(!p_->sichtbar("Bemerkungszahl")); }

    void remarks_are_counted_at_the_foot_and_listed_on_demand() {
        starte([](const QString& Pfad) { ersetze(Pfad, "KOC (L/kg):\t", "KOC (L/kg):\t-"); });
        QVERIFY(p_->sichtbar("Bemerkungszahl"));
        auto* Knopf = p_->Teil<QPushButton>("Bemerkungszahl");
        QCOMPARE(Knopf->text(), u"1 remark"_s);
        QVERIFY(p_->Teil<QWidget>("Schalterrahmen")->findChild<QShortcut*>()->key() == QKeySequence(Qt::Key_F8));
        int Zeilen = 0;
        QString Datei, Feld;
        QTimer::singleShot(0ms, this, [&] {
            auto* Fenster = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(Fenster);
            const auto* Tafel = Fenster->findChild<QTableWidget*>(u"Bemerkungen"_s);
            Zeilen = Tafel->rowCount();
            Datei = Tafel->item(0, 0)->text();
            Feld = Tafel->item(0, 2)->text();
            Fenster->reject();
        });
        p_->klicke("Bemerkungszahl");
        QCOMPARE(Zeilen, 1);
        QVERIFY2(Datei.startsWith(u"input/"_s) && Datei.endsWith(u".che"_s), qPrintable(Datei));
        QCOMPARE(Feld, u"KOC (L/kg), parent, study 1"_s);
        // The value itself has a quiet mark until it is another one.
        QVERIFY(!p_->Teil<QLineEdit>("S_KOC_0")->accessibleDescription().isEmpty());
        p_->tippe("S_KOC_0", "100");
        p_->druecke("S_KOC_0", Qt::Key_Return);
        QVERIFY(p_->Teil<QLineEdit>("S_KOC_0")->accessibleDescription().isEmpty());
    }

    void a_record_whose_name_no_simulation_can_hold_is_listed_and_cannot_be_chosen() {
        starte([](const QString& Pfad) { QFile::copy(einen(Pfad), Pfad + u"/input/\u03A9.che"_s); });
        auto* Liste = p_->Teil<QComboBox>("Liste_1");
        const int i = Liste->findText(u"\u03A9"_s);
        QVERIFY(i >= 0);
        QVERIFY(!qobject_cast<QStandardItemModel*>(Liste->model())->item(i)->isEnabled());
        QVERIFY2(Statuszeile().contains(u"\"\u03A9.che\" cannot be chosen"_s), qPrintable(Statuszeile()));
    }

private:
    // All compound records of a project get another text in the first line that has the old one.
    static void ersetze(const QString& Pfad, const QByteArray& alt, const QByteArray& neu) {
        const QDir Ordner(Pfad + u"/input"_s);
        for (const QString& Name : Ordner.entryList({u"*.che"_s})) {
            QFile Datei(Ordner.filePath(Name));
            QVERIFY(Datei.open(QIODevice::ReadOnly));
            QByteArray Inhalt = Datei.readAll();
            Datei.close();
            Inhalt.replace(Inhalt.indexOf(alt), alt.size(), neu);
            QVERIFY(Datei.open(QIODevice::WriteOnly));
            Datei.write(Inhalt);
        }
    }
    static QString einen(const QString& Pfad) {
        const QDir Ordner(Pfad + u"/input"_s);
        return Ordner.filePath(Ordner.entryList({u"*.che"_s}).front());
    }

    void starte(const std::function<void(const QString&)>& Projekt) {
        p_.reset();
        p_ = std::make_unique<Fensterprobe>(&Fragen_, Projekt);
        p_->starte();
        Fragen_.nimm();
    }
    const Zustand& Stand() { return p_->Programm().Stand(); }
    QString Statuszeile() { return p_->Teil<QLabel>("Statuszeile")->text(); }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Zeichentest> angemeldet;
}

}  // namespace varnok

#include "zeichen_test.moc"
