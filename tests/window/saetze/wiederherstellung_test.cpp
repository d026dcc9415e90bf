// "File, Restore..." on the screen.

#include <QDir>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "window/ergebnis/diagrammprobe.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Wiederherstellungstest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
        QDir(p_->Pfad({})).mkpath(u"backup/2026-01-02 10-00-00"_s);
        QFile::copy(p_->Pfad(u"input/Programcheck.sce"_s), p_->Pfad(u"backup/2026-01-02 10-00-00/Programcheck.sce"_s));
        QFile f(p_->Pfad(u"backup/2026-01-02 10-00-00/<img src=x>.app"_s));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
    void cleanup() { p_.reset(); }

    void the_menu_shows_the_backups_by_date_with_what_is_in_them() {
        im_Dialog([](QDialog& d) {
            auto* Liste = d.findChild<QTreeWidget*>(u"Sicherungen"_s);
            QCOMPARE(Liste->topLevelItemCount(), 1);
            QCOMPARE(Liste->topLevelItem(0)->text(0), u"2026-01-02 10-00-00"_s);
            QCOMPARE(Liste->topLevelItem(0)->childCount(), 2);
            QCOMPARE(Liste->topLevelItem(0)->child(0)->text(0), u"<img src=x>.app"_s);
            QCOMPARE(Liste->topLevelItem(0)->child(0)->text(1), u"not there now"_s);
            QCOMPARE(Liste->topLevelItem(0)->child(1)->text(1), u"as now"_s);
            QVERIFY(!d.findChild<QPushButton*>(u"Herstellen"_s)->isEnabled());
            Liste->setCurrentItem(Liste->topLevelItem(0)->child(1));
            QCOMPARE(d.findChild<QPlainTextEdit*>(u"Unterschiede"_s)->toPlainText(), u"\"Programcheck.sce\" is the same now."_s);
            d.reject();
        });
        QVERIFY(!QFile::exists(p_->Pfad(u"input/<img src=x>.app"_s)));
    }

    void a_project_without_backups_says_so() {
        QDir(p_->Pfad(u"backup"_s)).removeRecursively();
        im_Dialog([](QDialog& d) {
            QCOMPARE(d.findChild<QTreeWidget*>(u"Sicherungen"_s)->topLevelItemCount(), 0);
            QCOMPARE(d.findChild<QPlainTextEdit*>(u"Unterschiede"_s)->toPlainText(),
                     u"There is no backup in this project yet."_s);
            QVERIFY(!d.findChild<QPushButton*>(u"Herstellen"_s)->isEnabled());
            d.reject();
        });
    }

    void a_small_window_holds_it() {
        im_Dialog([](QDialog& d) {
            QVERIFY2(d.width() <= 900 && d.height() <= 560, qPrintable(QString::number(d.height())));
            d.reject();
        });
    }

    void what_is_ticked_comes_back() {
        im_Dialog([](QDialog& d) {
            auto* Liste = d.findChild<QTreeWidget*>(u"Sicherungen"_s);
            Liste->topLevelItem(0)->child(0)->setCheckState(0, Qt::Checked);
            d.findChild<QPushButton*>(u"Herstellen"_s)->click();
        });
        QVERIFY(QFile::exists(p_->Pfad(u"input/<img src=x>.app"_s)));
        QVERIFY(p_->Programm().Stand().Statuszeile.Text().starts_with("Restored: "));
    }

private:
    void im_Dialog(const std::function<void(QDialog&)>& Handlung) {
        bei_Dialog<QDialog>(Handlung);
        p_->Teil<QAction>("M_Wiederherstellen")->trigger();
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Wiederherstellungstest> angemeldet;
}

}  // namespace varnok

#include "wiederherstellung_test.moc"
