// The scenario editor on the window: how it opens, what its controls do, how it closes.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <chrono>

#include "screens/widgets/anmeldung.h"
#include "screens/widgets/fensterprobe.h"
#include "screens/widgets/mitschrift.h"
#include "screens/widgets/szenario_form.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace varnok {

class Szenariotest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void it_opens_from_the_button_the_fields_the_labels_and_the_frame() {
        auto* Rahmen = p_->Teil<QWidget>("Szenariorahmen");
        const auto klicke_Schild = [&](const QString& Text) {
            for (QLabel* l : Rahmen->findChildren<QLabel*>()) {
                if (l->text() == Text) QTest::mouseClick(l, Qt::LeftButton);
            }
        };
        QCOMPARE(bei([&] { p_->klicke("Edit"); }), 1);
        QCOMPARE(bei([&] { QTest::mouseDClick(Rahmen->findChild<QLineEdit*>(u"Bodenszenario"_s), Qt::LeftButton); }), 1);
        QCOMPARE(bei([&] { QTest::mouseDClick(Rahmen->findChild<QLineEdit*>(u"Klimaszenario"_s), Qt::LeftButton); }), 1);
        QCOMPARE(bei([&] { klicke_Schild(u"Soil:"_s); }), 1);
        QCOMPARE(bei([&] { klicke_Schild(u"Climate:"_s); }), 1);
        QCOMPARE(bei([&] { QTest::mouseClick(Rahmen, Qt::LeftButton, {}, {3, 3}); }), 1);
        QCOMPARE(bei([&] { QTest::mouseClick(Rahmen, Qt::RightButton, {}, {3, 3}); }), 0);
    }

    void it_shows_the_scenario_on_the_screen() {
        bei([&] { p_->klicke("Edit"); }, [&](Szenario_Form& f) {
            QCOMPARE(f.windowTitle(), u"Scenario"_s);
            QCOMPARE(Teil<QComboBox>(f, "Szenarioliste")->currentText(), p_->Teil<QComboBox>("Liste_3")->currentText());
            QCOMPARE(Teil<QLineEdit>(f, "Bodenszenario")->text(), u"Standard soil"_s);
            QCOMPARE(Teil<QLineEdit>(f, "S_Bodendichte")->text(), u"1.5"_s);
            QVERIFY(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_0")->isChecked());
            QVERIFY(Teil<QRadioButton>(f, "Einstellung_Plateautiefe_1")->isChecked());
            QVERIFY(!Teil<QComboBox>(f, "S_Bodentiefe")->isVisible());
            QCOMPARE(Teil<QComboBox>(f, "S_Szenariotemperatur")->count(), 41);
            QVERIFY(Teil<QComboBox>(f, "S_Szenariotemperatur")->isVisible());
            QVERIFY(!Teil<QComboBox>(f, "Klimaszenario")->isVisible());
            f.reject();
        });
    }

    void captions_stand_letter_by_letter() {
        bei([&] { p_->klicke("Edit"); }, [](Szenario_Form& f) {
            QStringList Schilder;
            for (QLabel* l : f.findChildren<QLabel*>()) Schilder << l->text();
            for (const QString& s : {u"Name:"_s, u"Soil density (kg/L):"_s, u"Organic carbon content (%):"_s, u"Field capactiy (Vol %):"_s,
                                     u"Wilting point (%):"_s, u"Soil depth (cm):"_s, u"Tillage depth(cm):"_s, u"Temperature (\u00B0C):"_s}) {
                QVERIFY2(Schilder.contains(s), qPrintable(s));
            }
            QCOMPARE(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_0")->text(), u" 5"_s);
            QCOMPARE(Teil<QRadioButton>(f, "Einstellung_Plateautiefe_0")->text(), u"5"_s);
            f.reject();
        });
    }

    void done_by_enter_stores_and_runs() {
        const int Laeufe = p_->Programm().Stand().Zeichnung;
        bei([&] { p_->klicke("Edit"); }, [](Szenario_Form& f) {
            auto* Dichte = Teil<QLineEdit>(f, "S_Bodendichte");
            Dichte->selectAll();
            QTest::keyClicks(Dichte, u"1.2"_s);
            QTest::keyClick(Dichte, Qt::Key_Return);
            QVERIFY(!f.isVisible());
        });
        QCOMPARE(p_->Programm().Stand().Parameter().Bodendichte, 1.2);
        QCOMPARE(p_->Programm().Stand().Zeichnung, Laeufe + 1);
        QVERIFY(!p_->gibt_es_sichtbar(u"Abdeckung"_s));
    }

    void esc_the_close_box_and_cancel_store_nothing() {
        for (int Weg = 0; Weg < 3; ++Weg) {
            bei([&] { p_->klicke("Edit"); }, [&](Szenario_Form& f) {
                auto* Dichte = Teil<QLineEdit>(f, "S_Bodendichte");
                Dichte->selectAll();
                QTest::keyClicks(Dichte, u"9"_s);
                if (Weg == 0) QTest::keyClick(Dichte, Qt::Key_Escape);
                if (Weg == 1) f.close();
                if (Weg == 2) QTest::mouseClick(Teil<QPushButton>(f, "Abbrechen"), Qt::LeftButton);
                QVERIFY(!f.isVisible());
            });
            QCOMPARE(p_->Programm().Stand().Parameter().Bodendichte, 1.5);
        }
    }

    void individual_shows_the_list_without_moving_anything() {
        bei([&] { p_->klicke("Edit"); }, [](Szenario_Form& f) {
            auto* Liste = Teil<QComboBox>(f, "S_Bodentiefe");
            const QSize vorher = f.size();
            const QPoint Platz = Teil<QLineEdit>(f, "S_Welkepunkt")->pos();
            QTest::mouseClick(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_2"), Qt::LeftButton, {}, {5, 8});
            QVERIFY(Liste->isVisible());
            QCOMPARE(Liste->currentText(), u"5.0"_s);
            QTest::qWait(20);
            QCOMPARE(f.size(), vorher);
            QCOMPARE(Teil<QLineEdit>(f, "S_Welkepunkt")->pos(), Platz);
            Liste->setFocus();
            QTest::keyClick(Liste, Qt::Key_Down);
            QCOMPARE(Liste->currentText(), u"5.1"_s);
            QTest::mouseClick(Teil<QPushButton>(f, "Ende"), Qt::LeftButton);
        });
        QCOMPARE(p_->Programm().Stand().Parameter().Bodentiefe, 5.1);
    }

    void the_climate_is_a_temperature_or_a_file() {
        bei([&] { p_->klicke("Edit"); }, [](Szenario_Form& f) {
            QTest::mouseClick(Teil<QRadioButton>(f, "Klimabedingungen_1"), Qt::LeftButton, {}, {5, 8});
            QVERIFY(Teil<QComboBox>(f, "Klimaszenario")->isVisible());
            QVERIFY(!Teil<QComboBox>(f, "S_Szenariotemperatur")->isVisible());
            QCOMPARE(Teil<QComboBox>(f, "Klimaszenario")->currentText(), u"Temperate site"_s);
            QTest::mouseClick(Teil<QPushButton>(f, "Ende"), Qt::LeftButton);
        });
        QCOMPARE(p_->Teil<QWidget>("Szenariorahmen")->findChild<QLineEdit*>(u"Klimaszenario"_s)->text(), u"Temperate site"_s);
        QVERIFY(p_->Programm().Stand().Hinweis);
    }

    void a_missing_climate_file_opens_it_once_after_the_message() {
        QVERIFY(QFile::remove(p_->Pfad(u"input/Temperate site.cli"_s)));
        int Zahl = 0;
        Zahl = bei([&] {
            auto* Liste = p_->Teil<QComboBox>("Liste_3");
            p_->waehle_Eintrag("Liste_3", Liste->findText(u"Sandy loam, variable climate"_s));
        });
        QCOMPARE(Zahl, 1);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(p_->Programm().Stand().abgedeckt);
    }

private:
    // How often the editor opens while `Handlung` runs; each time `drinnen` is done in it, without one it is cancelled.
    int bei(const std::function<void()>& Handlung, const std::function<void(Szenario_Form&)>& drinnen = {}) {
        int Zahl = 0;
        QTimer Wache;
        connect(&Wache, &QTimer::timeout, this, [&] {
            auto* f = qobject_cast<Szenario_Form*>(QApplication::activeModalWidget());
            if (!f) return;
            Wache.stop();
            ++Zahl;
            drinnen ? drinnen(*f) : f->reject();
            if (f->isVisible()) f->reject();
            Wache.start(5ms);
        });
        Wache.start(5ms);
        Handlung();
        QTest::qWait(20);
        return Zahl;
    }

    template <class W>
    static W* Teil(Szenario_Form& f, const char* Name) {
        W* w = f.findChild<W*>(QString::fromLatin1(Name));
        if (!w) qFatal("no control %s", Name);
        return w;
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Szenariotest> angemeldet;
}

}  // namespace varnok

#include "szenario_test.moc"
