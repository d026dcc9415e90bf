// The project path in the options dialog: the tree of folders, and folders made there.

#include "window/programm/ordnerwahl.h"

#include <QComboBox>
#include <QDir>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>

#include "window/kern/anmeldung.h"
#include "window/programm/optionendialog.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Ordnerwahltest : public QObject, private Optionendialog {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        p_.reset();
        QVERIFY(Fragen_.nimm().isEmpty());
    }

    void the_tree_opens_at_the_project_and_holds_folders_only() {
        starte();
        mit_Dialog([&](QDialog& d) {
            auto* Baum = Teil_von<QTreeView>(d, "Dir1");
            const auto* Ordner = qobject_cast<QFileSystemModel*>(Baum->model());
            QCOMPARE(Ordner->filePath(Baum->currentIndex()), p_->Pfad({}));
            // Until the folders above it have been read, too.
            QTRY_VERIFY(Baum->viewport()->rect().contains(Baum->visualRect(Baum->currentIndex()).center()));
            Baum->expand(Baum->currentIndex());
            QTRY_VERIFY(Ordner->rowCount(Baum->currentIndex()) > 0);
            QStringList Namen;
            for (int i = 0; i < Ordner->rowCount(Baum->currentIndex()); ++i)
                Namen << Ordner->index(i, 0, Baum->currentIndex()).data().toString();
            QCOMPARE(Namen, (QStringList{u"input"_s, u"output"_s}));  // and no VARNOK.ini
            QVERIFY(!d.findChild<QComboBox*>(u"Drive1"_s));
        });
    }

    void a_hidden_project_folder_is_in_the_tree_too() {
        QTemporaryDir Ort;
        const QString Pfad = Ort.filePath(u".local/share/varnok"_s);
        QVERIFY(QDir().mkpath(Pfad));
        Ordnerwahl Wahl(u"Dir1"_s, u"Drive1"_s, Pfad, {}, nullptr);
        const auto* Ordner = qobject_cast<QFileSystemModel*>(Wahl.Baum()->model());
        QCOMPARE(Ordner->filePath(Wahl.Baum()->currentIndex()), Pfad);
        QCOMPARE(Wahl.Pfad(), Pfad);
    }

    void a_folder_chosen_in_the_tree_becomes_the_project() {
        starte();
        const QString Neu = p_->Pfad(u"other"_s);
        QVERIFY(QDir().mkpath(Neu));
        mit_Dialog([&](QDialog& d) {
            waehle_Ordner(d, Neu);
            QCOMPARE(Teil_von<QLabel>(d, "Projektpfad")->text(), Neu);
            klicke_auf(d, "OK");
        });
        QVERIFY(QDir(Neu + u"/input"_s).exists());
        QVERIFY(QDir(Neu + u"/output"_s).exists());
        QVERIFY(p_->Teil<QLabel>("Statuszeile")->text().contains(Neu));
        QVERIFY(p_->Teil<QComboBox>("Simulationsliste")->count() > 1);
    }

    void a_folder_is_made_and_chosen() {
        starte();
        mit_Dialog([&](QDialog& d) {
            bei_Dialog<QInputDialog>([&](QInputDialog& Name) {
                QCOMPARE(Name.windowTitle(), u"Make folder"_s);
                Name.setTextValue(u"2026"_s);
                Name.accept();
            });
            klicke_auf(d, "Ordner_anlegen");
            QVERIFY(QDir(p_->Pfad(u"2026"_s)).exists());
            QCOMPARE(Teil_von<QLabel>(d, "Projektpfad")->text(), p_->Pfad(u"2026"_s));
            klicke_auf(d, "OK");
        });
        QCOMPARE(QString::fromStdString(p_->Programm().Stand().Projektpfad), p_->Pfad(u"2026"_s));
    }

    void a_folder_of_a_name_that_is_taken_is_told_and_the_choice_stays() {
        starte();
        mit_Dialog([&](QDialog& d) {
            bei_Dialog<QInputDialog>([&](QInputDialog& Name) {
                Name.setTextValue(u"input"_s);
                Name.accept();
            });
            klicke_auf(d, "Ordner_anlegen");
            QCOMPARE(Teil_von<QLabel>(d, "Projektpfad")->text(), p_->Pfad({}));
        });
        QCOMPARE(Fragen_.nimm(), QStringList{u"Make folder: The folder \"%1\" already exists."_s.arg(p_->Pfad(u"input"_s))});
    }

    void no_name_makes_no_folder() {
        starte();
        mit_Dialog([](QDialog& d) {
            bei_Dialog<QInputDialog>([](QInputDialog& Name) { Name.reject(); });
            klicke_auf(d, "Ordner_anlegen");
        });
        QCOMPARE(QDir(p_->Pfad({})).entryList(QDir::Dirs | QDir::NoDotAndDotDot), (QStringList{u"input"_s, u"output"_s}));
    }

    void a_folder_that_cannot_be_the_project_is_refused_by_the_view() {
        starte();
        const QString schlecht = p_->Pfad(u"two\nlines"_s);
        QVERIFY(QDir().mkpath(schlecht));
        mit_Dialog([&](QDialog& d) {
            waehle_Ordner(d, schlecht);
            QVERIFY(!Teil_von<QPushButton>(d, "OK")->isEnabled());
            QCOMPARE(Teil_von<QLabel>(d, "Projektpfad")->text(), u"The name of the folder holds a line end."_s);
            waehle_Ordner(d, p_->Pfad({}));
            QVERIFY(Teil_von<QPushButton>(d, "OK")->isEnabled());
        });
    }

    void a_folder_that_went_away_is_told_and_the_dialog_stays() {
        starte();
        const QString fort = p_->Pfad(u"going"_s);
        QVERIFY(QDir().mkpath(fort));
        mit_Dialog([&](QDialog& d) {
            waehle_Ordner(d, fort);
            QVERIFY(QDir().rmdir(fort));
            klicke_auf(d, "OK");
            QVERIFY(d.isVisible());
        });
        QCOMPARE(Fragen_.nimm(), QStringList{u"Project path: There is no folder \"%1\"."_s.arg(fort)});
        QCOMPARE(QString::fromStdString(p_->Programm().Stand().Projektpfad), p_->Pfad({}));
    }

    void where_there_are_drives_a_list_of_them_moves_the_tree() {
        QTemporaryDir erstes, zweites;
        QVERIFY(QDir(zweites.path()).mkpath(u"project"_s));
        Ordnerwahl Wahl(u"Dir1"_s, u"Drive1"_s, erstes.path(), {zweites.path(), erstes.path()}, nullptr);
        auto* Liste = Wahl.findChild<QComboBox*>(u"Drive1"_s);
        QVERIFY(Liste);
        QCOMPARE(Liste->currentText(), erstes.path());
        const auto* Ordner = qobject_cast<QFileSystemModel*>(Wahl.Baum()->model());
        QCOMPARE(Ordner->filePath(Wahl.Baum()->rootIndex()), erstes.path());
        QStringList gewaehlt;
        connect(&Wahl, &Ordnerwahl::gewaehlt, this, [&](const QString& Pfad) { gewaehlt << Pfad; });
        Liste->setCurrentIndex(0);
        Q_EMIT Liste->activated(0);
        QCOMPARE(Ordner->filePath(Wahl.Baum()->rootIndex()), zweites.path());
        Wahl.waehle(zweites.filePath(u"project"_s));
        QCOMPARE(gewaehlt, (QStringList{zweites.path(), zweites.filePath(u"project"_s)}));
        QCOMPARE(Wahl.Pfad(), zweites.filePath(u"project"_s));
    }

    // A picture of the user's own, in the project path.
    void the_hint_is_taken_from_the_new_project() {
        starte();
        const QString Neu = p_->Pfad(u"other"_s);
        QVERIFY(QDir().mkpath(Neu));
        QImage Bild(16, 16, QImage::Format_RGB32);
        Bild.fill(QColor(200, 10, 20));
        QVERIFY(Bild.save(Neu + u"/Rot.bmp"_s, "BMP"));
        mit_Dialog([&](QDialog& d) {
            waehle_Ordner(d, Neu);
            klicke_auf(d, "OK");
        });
        p_->tippe("S_DT50_0", "3");
        const QIcon Hinweis = p_->Teil<QPushButton>("Aktualisieren")->icon();
        QCOMPARE(Hinweis.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(200, 10, 20));
    }
};

namespace {
const Anmeldung<Ordnerwahltest> Anmeldung_der_Ordnerwahl;
}

}  // namespace varnok

#include "ordnerwahl_test.moc"
