// The scenario editor on the window: which ways lead to it, and when it comes by itself.

#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include "window/kern/anmeldung.h"
#include "window/saetze/szenariofenster.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace varnok {

class Szenariooeffnungstest : public Szenariofenster {
    Q_OBJECT

private Q_SLOTS:
    void init() { starte(); }
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

    void a_missing_climate_file_opens_it_once_after_the_message() {
        QVERIFY(QFile::remove(p_->Pfad(u"input/Temperate site.cli"_s)));
        int Zahl = 0;
        Zahl = bei([&] {
            auto* Liste = p_->Teil<QComboBox>("Liste_3");
            p_->waehle_Eintrag("Liste_3", Liste->findText(u"Sandy loam, variable climate"_s));
        });
        QCOMPARE(Zahl, 1);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(p_->Programm().Stand().abgedeckt());
    }

    void a_missing_climate_file_found_on_leaving_a_field_opens_it_too() {
        QVERIFY(QFile::remove(p_->Pfad(u"input/Temperate site.cli"_s)));
        auto* Liste = p_->Teil<QComboBox>("Liste_3");
        bei([&] { p_->waehle_Eintrag("Liste_3", Liste->findText(u"Sandy loam, variable climate"_s)); });
        Fragen_.nimm();
        QCOMPARE(bei([&] {
                     p_->tippe("S_DT50_0", "12");
                     p_->druecke("S_DT50_0", Qt::Key_Tab);
                 }),
                 1);
        QCOMPARE(Fragen_.nimm(), QStringList(u"Data file missing: Cannot load climate data file. Please correct!"_s));
        // With the Enter key of a dose, which is still in work while the editor is open. The field before it tells on its own.
        QCOMPARE(bei([&] { p_->tippe("Applikationsrate", "700"); }), 1);
        Fragen_.nimm();
        QCOMPARE(bei([&] { p_->druecke("Applikationsrate", Qt::Key_Return); }), 1);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(p_->Programm().Stand().abgedeckt());
    }

    // The same with the message boxes themselves: the message, then the editor, and "Done" brings the results back.
    void after_the_message_done_with_a_constant_climate_shows_results() {
        starte_mit_Kaesten();
        QVERIFY(QFile::remove(p_->Pfad(u"input/Temperate site.cli"_s)));
        auto* Liste = p_->Teil<QComboBox>("Liste_3");
        QStringList Ablauf;
        QTimer Wache;
        connect(&Wache, &QTimer::timeout, this, [&] {
            QWidget* vorn = QApplication::activeModalWidget();
            if (auto* Kasten = qobject_cast<QMessageBox*>(vorn)) {
                Ablauf << Kasten->text();
                Kasten->accept();
            } else if (auto* f = qobject_cast<Szenario_Form*>(vorn)) {
                Ablauf << u"editor"_s;
                QTest::mouseClick(Teil<QRadioButton>(*f, "Klimabedingungen_0"), Qt::LeftButton, {}, {5, 8});
                QTest::mouseClick(Teil<QPushButton>(*f, "Ende"), Qt::LeftButton);
            }
        });
        Wache.start(5ms);
        p_->waehle_Eintrag("Liste_3", Liste->findText(u"Sandy loam, variable climate"_s));
        QTest::qWait(60);
        Wache.stop();
        QCOMPARE(Ablauf, QStringList({u"Cannot load climate data file. Please correct!"_s, u"editor"_s}));
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QCOMPARE(p_->Teil<QLineEdit>("Klimaszenario")->text(), u"20 \u00B0C constant"_s);
    }

    // A click is a press and a release: dragged off the frame it is none. Disabled buttons are no part of the surface.
    void what_is_no_click_on_the_surface_does_not_open_it() {
        auto* Rahmen = p_->Teil<QWidget>("Szenariorahmen");
        QCOMPARE(bei([&] {
                     QTest::mousePress(Rahmen, Qt::LeftButton, {}, {3, 3});
                     QTest::mouseRelease(Rahmen, Qt::LeftButton, {}, {3, -20});
                 }),
                 0);
        auto* Del = p_->Teil<QPushButton>("Loeschen_3");
        Del->setEnabled(false);
        QCOMPARE(bei([&] { QTest::mouseClick(Del, Qt::LeftButton); }), 0);
        QCOMPARE(bei([&] { QTest::mouseClick(Rahmen->findChild<QLineEdit*>(u"Bodenszenario"_s), Qt::LeftButton); }), 0);
        QCOMPARE(bei([&] { QTest::mouseDClick(Rahmen->findChild<QLineEdit*>(u"Bodenszenario"_s), Qt::RightButton); }), 0);
    }

    void the_space_key_on_edit_opens_it() {
        auto* Edit = p_->Teil<QPushButton>("Edit");
        Edit->setFocus();
        QCOMPARE(bei([&] { QTest::keyClick(Edit, Qt::Key_Space); }), 1);
    }

    void a_valid_field_is_accepted_before_it_opens_and_an_invalid_one_keeps_it_closed() {
        const int Laeufe = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        p_->tippe("S_DT50_0", "12");
        QCOMPARE(bei([&] { p_->klicke("Edit"); }), 1);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
        p_->aktiviere();
        p_->tippe("S_Q10_0", "0");
        QCOMPARE(bei([&] { QTest::mouseClick(p_->Teil<QWidget>("Szenariorahmen"), Qt::LeftButton, {}, {3, 3}); }), 0);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"S_Q10_0"_s);
    }

    void it_stands_over_the_middle_of_the_window() {
        p_->Fenster().resize(900, 700);  // the whole of it on the screen
        bei([&] { p_->klicke("Edit"); },
            [&](Szenario_Form& f) {
                const QPoint Abstand = f.frameGeometry().center() - p_->Fenster().frameGeometry().center();
                QVERIFY2(Abstand.manhattanLength() <= 4, qPrintable(u"%1 px"_s.arg(Abstand.manhattanLength())));
            });
    }
};

namespace {
const Anmeldung<Szenariooeffnungstest> angemeldet;
}

}  // namespace varnok

#include "szenariooeffnung_test.moc"
