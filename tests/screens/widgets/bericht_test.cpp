// The report over the results.

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextEdit>

#include "screens/widgets/anmeldung.h"
#include "screens/widgets/fensterprobe.h"
#include "screens/widgets/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Berichtstest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void the_button_shows_it_names_its_file_and_enables_print() {
        QVERIFY(!p_->Teil<QAction>("M_Drucken")->isEnabled());
        p_->klicke("Bericht_erstellen");
        QVERIFY(p_->sichtbar("Bericht"));
        QVERIFY(p_->Teil<QTextEdit>("Bericht")->toPlainText().contains(u"RESULTS OF THE CALCULATION"_s));
        QVERIFY(!p_->Programm().Stand().Ergebnisdatei.empty());
        QVERIFY(p_->Teil<QAction>("M_Drucken")->isEnabled());
    }

    void the_menu_runs_the_same_command() {
        p_->Teil<QAction>("M_Bericht")->trigger();
        QVERIFY(p_->sichtbar("Bericht"));
    }

    void esc_closes_it() {
        p_->klicke("Bericht_erstellen");
        QTest::keyClick(p_->Teil<QTextEdit>("Bericht"), Qt::Key_Escape);
        QTRY_VERIFY(!p_->sichtbar("Bericht"));
        QVERIFY(!p_->Teil<QAction>("M_Drucken")->isEnabled());
    }

    void the_focus_of_another_control_closes_it() {
        p_->klicke("Bericht_erstellen");
        p_->Teil<QWidget>("S_DT50_0")->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(!p_->sichtbar("Bericht"));
    }

    void it_is_copied_as_rich_text() {
        p_->klicke("Bericht_erstellen");
        p_->klicke("Bericht_kopieren");
        QVERIFY(QApplication::clipboard()->mimeData()->data(u"text/rtf"_s).startsWith("{\\rtf1"));
    }

private:
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Berichtstest> angemeldet;
}

}  // namespace varnok

#include "bericht_test.moc"
