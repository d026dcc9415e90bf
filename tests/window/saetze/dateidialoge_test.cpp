// The two file dialogs in reserve. No command opens them, so the tests do.

#include "window/saetze/dateidialoge.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/programm/ordnerwahl.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

template <class W>
W* Teil(QDialog& d, const char* Name) {
    W* w = d.findChild<W*>(QString::fromLatin1(Name));
    if (!w) qFatal("no control %s", Name);
    return w;
}

bool frei(QDialog& d, const char* Name) { return Teil<QPushButton>(d, Name)->isEnabled(); }
void klicke(QDialog& d, const char* Name) { QTest::mouseClick(Teil<QPushButton>(d, Name), Qt::LeftButton); }

QStringList Dateien(QDialog& d) {
    const auto* Liste = Teil<QListWidget>(d, "Dateien");
    QStringList Namen;
    for (int i = 0; i < Liste->count(); ++i) Namen << Liste->item(i)->text();
    return Namen;
}

QPoint Ort(QDialog& d, int Zeile) {
    auto* Liste = Teil<QListWidget>(d, "Dateien");
    return Liste->visualItemRect(Liste->item(Zeile)).center();
}
void klicke_Datei(QDialog& d, int Zeile) {
    QTest::mouseClick(Teil<QListWidget>(d, "Dateien")->viewport(), Qt::LeftButton, {}, Ort(d, Zeile));
}

}  // namespace

class Dateidialogtest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_, [](const QString& Pfad) {
            for (const QString& Name : {u"rinsate.txt"_s, u"maize trial.txt"_s}) {
                QFile f(Pfad + u"/input/"_s + Name);
                if (!f.open(QIODevice::WriteOnly)) qFatal("no file");
            }
        });
        p_->starte();
    }
    void cleanup() {
        p_.reset();
        QVERIFY(Fragen_.nimm().isEmpty());
    }

    void captions_are_as_told() {
        Eingabedaten_Laden Laden(p_->Programm(), &p_->Fenster());
        Eingabedaten_Speichern_unter Speichern(p_->Programm(), &p_->Fenster());
        QCOMPARE(Laden.windowTitle(), u"Load input data"_s);
        QCOMPARE(Speichern.windowTitle(), u"Save simulation"_s);
        QCOMPARE(Teil<QPushButton>(Laden, "Laden")->text(), u"Load"_s);
        QCOMPARE(Teil<QPushButton>(Speichern, "Speichern")->text(), u"Save"_s);
        for (QDialog* d : {static_cast<QDialog*>(&Laden), static_cast<QDialog*>(&Speichern)}) {
            QCOMPARE(Teil<QPushButton>(*d, "Abbrechen")->text(), u"Cancel"_s);
            QCOMPARE(Teil<QPushButton>(*d, "Loeschen")->text(), u"Delete"_s);
            QVERIFY(!d->findChild<QWidget*>(u"laufwerk"_s));
            QVERIFY(d->findChild<QTreeView*>(u"Verzeichnis"_s));
        }
    }

    void loading_begins_in_the_input_folder_with_nothing_selected() {
        Eingabedaten_Laden d(p_->Programm(), &p_->Fenster());
        QCOMPARE(d.findChild<Ordnerwahl*>()->Pfad(), p_->Pfad(u"input"_s));
        QCOMPARE(Dateien(d), (QStringList{u"maize trial.txt"_s, u"rinsate.txt"_s}));
        QVERIFY(!frei(d, "Laden"));
        QVERIFY(!frei(d, "Loeschen"));
    }

    void a_file_is_selected_by_click_or_key_and_loaded_by_the_button() {
        Eingabedaten_Laden d(p_->Programm(), &p_->Fenster());
        d.show();
        klicke_Datei(d, 1);
        QVERIFY(frei(d, "Laden"));
        QVERIFY(frei(d, "Loeschen"));
        QTest::keyClick(Teil<QListWidget>(d, "Dateien"), Qt::Key_Up);
        klicke(d, "Laden");
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(p_->Programm().Stand().gewaehlt(Simulation), std::string("maize trial"));
        // The compound record was read again, and the results are those of its values.
        QVERIFY(!p_->Programm().Stand().abgedeckt());
    }

    void a_double_click_loads_at_once() {
        Eingabedaten_Laden d(p_->Programm(), &p_->Fenster());
        d.show();
        klicke_Datei(d, 1);
        QTest::mouseDClick(Teil<QListWidget>(d, "Dateien")->viewport(), Qt::LeftButton, {}, Ort(d, 1));
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(p_->Programm().Stand().gewaehlt(Simulation), std::string("rinsate"));
    }

    void delete_removes_the_file_and_reads_the_list_anew() {
        Eingabedaten_Laden d(p_->Programm(), &p_->Fenster());
        d.show();
        klicke_Datei(d, 0);
        klicke(d, "Loeschen");
        QCOMPARE(Dateien(d), QStringList{u"rinsate.txt"_s});
        QVERIFY(!QFile::exists(p_->Pfad(u"input/maize trial.txt"_s)));
        QVERIFY(!frei(d, "Loeschen"));
        QVERIFY(d.isVisible());
    }

    void in_another_folder_files_are_shown_but_not_deleted() {
        QVERIFY(QDir().mkpath(p_->Pfad(u"elsewhere"_s)));
        QVERIFY(QFile::copy(p_->Pfad(u"input/rinsate.txt"_s), p_->Pfad(u"elsewhere/rinsate.txt"_s)));
        Eingabedaten_Laden d(p_->Programm(), &p_->Fenster());
        d.show();
        d.findChild<Ordnerwahl*>()->waehle(p_->Pfad(u"elsewhere"_s));
        QCOMPARE(Dateien(d), QStringList{u"rinsate.txt"_s});
        klicke_Datei(d, 0);
        QVERIFY(frei(d, "Laden"));
        QVERIFY(!frei(d, "Loeschen"));
    }

    void cancel_changes_nothing() {
        const std::string vorher = p_->Programm().Stand().gewaehlt(Simulation);
        Eingabedaten_Laden d(p_->Programm(), &p_->Fenster());
        d.show();
        klicke_Datei(d, 0);
        klicke(d, "Abbrechen");
        QVERIFY(!d.isVisible());
        QCOMPARE(p_->Programm().Stand().gewaehlt(Simulation), vorher);
        QVERIFY(!p_->Programm().Stand().abgedeckt());
    }

    void saving_begins_with_the_first_file_selected_in_full() {
        Eingabedaten_Speichern_unter d(p_->Programm(), &p_->Fenster());
        d.show();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        auto* Name = Teil<QLineEdit>(d, "Dateiname");
        QCOMPARE(Name->text(), Dateien(d).front());
        QCOMPARE(Name->selectedText(), Name->text());
        QCOMPARE(d.focusWidget(), Name);
        QVERIFY(frei(d, "Loeschen"));
    }

    void saving_writes_under_the_typed_name() {
        Eingabedaten_Speichern_unter d(p_->Programm(), &p_->Fenster());
        d.show();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QTest::keyClicks(Teil<QLineEdit>(d, "Dateiname"), u"spring.vnk"_s);
        QTest::keyClick(Teil<QLineEdit>(d, "Dateiname"), Qt::Key_Return);
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(p_->Inhalt(u"input/spring.vnk"_s), QByteArray("Programcheck\r\nProgramcheck\r\nProgramcheck\r\n"));
        QCOMPARE(p_->Programm().Stand().gewaehlt(Simulation), std::string("spring"));
    }

    void a_name_that_is_none_is_told_and_the_dialog_stays() {
        Eingabedaten_Speichern_unter d(p_->Programm(), &p_->Fenster());
        d.show();
        Teil<QLineEdit>(d, "Dateiname")->setText(u"../out"_s);
        klicke(d, "Speichern");
        QVERIFY(d.isVisible());
        QCOMPARE(Fragen_.nimm(),
                 QStringList{u"Runtime error: \"../out\" cannot be the name of a simulation: it holds a slash"_s});
        QVERIFY(!QFile::exists(p_->Pfad(u"out.vnk"_s)));
    }

    void the_save_dialog_deletes_the_selected_file() {
        Eingabedaten_Speichern_unter d(p_->Programm(), &p_->Fenster());
        d.show();
        const QStringList vorher = Dateien(d);
        klicke_Datei(d, 1);
        QCOMPARE(Teil<QLineEdit>(d, "Dateiname")->text(), vorher[1]);
        klicke(d, "Loeschen");
        QStringList ohne = vorher;
        ohne.removeAt(1);
        QCOMPARE(Dateien(d), ohne);
        QVERIFY(!QFile::exists(p_->Pfad(u"input/"_s + vorher[1])));
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Dateidialogtest> Anmeldung_der_Dateidialoge;
}

}  // namespace varnok

#include "dateidialoge_test.moc"
