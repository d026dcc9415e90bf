// A double click selects a number as a whole, wherever one is typed.

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "window/ergebnis/manuelle_skalierung.h"
#include "window/kern/anmeldung.h"
#include "window/saetze/szenariofenster.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Doppelklicktest : public Szenariofenster {
    Q_OBJECT

private:
    static void Zahlen() {
        QTest::addColumn<QByteArray>("Zahl");
        for (const char* z : {"12.5", "-5", "1E-05", "2 5"}) QTest::newRow(z) << QByteArray(z);
    }
    // What a double click on the end of a text selects.
    static QString gewaehlt(QLineEdit* f) {
        f->deselect();
        const QPoint Ort = f->mapTo(f->window(), QPoint(f->width() - 8, f->height() / 2));
        QTest::mouseDClick(f->window()->windowHandle(), Qt::LeftButton, {}, Ort);
        return f->selectedText();
    }

private Q_SLOTS:
    void init() { starte(); }
    void cleanup() { p_.reset(); }

    void on_the_main_screen_data() { Zahlen(); }
    void on_the_main_screen() {
        QFETCH(QByteArray, Zahl);
        p_->tippe("S_TRef_0", Zahl);
        QCOMPARE(gewaehlt(p_->Teil<QLineEdit>("S_TRef_0")), QString::fromLatin1(Zahl));
        p_->druecke("S_TRef_0", Qt::Key_Escape);
    }

    void in_the_scenario_editor_data() { Zahlen(); }
    void in_the_scenario_editor() {
        QFETCH(QByteArray, Zahl);
        bei([&] { p_->klicke("Edit"); },
            [&](Szenario_Form& f) {
                tippe(f, "S_Welkepunkt", QString::fromLatin1(Zahl));
                QCOMPARE(gewaehlt(Teil<QLineEdit>(f, "S_Welkepunkt")), QString::fromLatin1(Zahl));
            });
    }

    void in_the_scaling_dialog_data() { Zahlen(); }
    void in_the_scaling_dialog() {
        QFETCH(QByteArray, Zahl);
        Manuelle_Skalierung d(
            0, 364, '.', [](const std::string&, const std::string&) { return true; }, &p_->Fenster());
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        for (QComboBox* l : d.findChildren<QComboBox*>()) {
            l->setEditText(QString::fromLatin1(Zahl));
            l->lineEdit()->setAlignment(Qt::AlignRight);  // the text is under the mouse
            QCOMPARE(gewaehlt(l->lineEdit()), QString::fromLatin1(Zahl));
        }
    }

    // Words are selected one by one, as everywhere.
    void the_name_of_a_scenario_is_no_number() {
        bei([&] { p_->klicke("Edit"); },
            [&](Szenario_Form& f) {
                auto* Name = Teil<QLineEdit>(f, "Bodenszenario");
                Name->setAlignment(Qt::AlignRight);
                QCOMPARE(Name->text(), u"Standard soil"_s);
                QCOMPARE(gewaehlt(Name), u"soil"_s);
            });
    }
};

namespace {
const Anmeldung<Doppelklicktest> angemeldet;
}

}  // namespace varnok

#include "doppelklick_test.moc"
