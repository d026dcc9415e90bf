// The scenario editor on the window: what its controls show and do, how it closes.

#include <QAbstractItemView>
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

class Szenariotest : public Szenariofenster {
    Q_OBJECT

private Q_SLOTS:
    void init() { starte(); }
    void cleanup() { p_.reset(); }

    void it_shows_the_scenario_on_the_screen() {
        bei([&] { p_->klicke("Edit"); },
            [&](Szenario_Form& f) {
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
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                QStringList Schilder;
                for (QLabel* l : f.findChildren<QLabel*>()) Schilder << l->text();
                for (const QString& s :
                     {u"Name:"_s, u"Soil density (kg/L):"_s, u"Organic carbon content (%):"_s, u"Field capactiy (Vol %):"_s,
                      u"Wilting point (%):"_s, u"Soil depth (cm):"_s, u"Tillage depth(cm):"_s, u"Temperature (\u00B0C):"_s}) {
                    QVERIFY2(Schilder.contains(s), qPrintable(s));
                }
                QCOMPARE(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_0")->text(), u" 5"_s);
                QCOMPARE(Teil<QRadioButton>(f, "Einstellung_Plateautiefe_0")->text(), u"5"_s);
                f.reject();
            });
    }

    void done_by_enter_stores_and_runs() {
        const int Laeufe = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                auto* Dichte = Teil<QLineEdit>(f, "S_Bodendichte");
                Dichte->selectAll();
                QTest::keyClicks(Dichte, u"1.2"_s);
                QTest::keyClick(Dichte, Qt::Key_Return);
                QVERIFY(!f.isVisible());
            });
        QCOMPARE(p_->Programm().Stand().Parameter().Bodendichte, 1.2);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
        QVERIFY(!p_->gibt_es_sichtbar(u"Abdeckung"_s));
    }

    void esc_the_close_box_and_cancel_store_nothing() {
        for (int Weg = 0; Weg < 3; ++Weg) {
            bei([&] { p_->klicke("Edit"); },
                [&](Szenario_Form& f) {
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
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
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
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                QTest::mouseClick(Teil<QRadioButton>(f, "Klimabedingungen_1"), Qt::LeftButton, {}, {5, 8});
                QVERIFY(Teil<QComboBox>(f, "Klimaszenario")->isVisible());
                QVERIFY(!Teil<QComboBox>(f, "S_Szenariotemperatur")->isVisible());
                QCOMPARE(Teil<QComboBox>(f, "Klimaszenario")->currentText(), u"Temperate site"_s);
                QTest::mouseClick(Teil<QPushButton>(f, "Ende"), Qt::LeftButton);
            });
        QCOMPARE(p_->Teil<QWidget>("Szenariorahmen")->findChild<QLineEdit*>(u"Klimaszenario"_s)->text(), u"Temperate site"_s);
        QVERIFY(p_->Programm().Stand().Hinweis());
    }

    void tab_walks_it_from_top_to_bottom() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                QCOMPARE(QApplication::focusWidget()->objectName(), u"S_Bodendichte"_s);
                QStringList Weg;
                for (int i = 0; i < 14; ++i) {
                    Weg << QApplication::focusWidget()->objectName();
                    QTest::keyClick(&f, Qt::Key_Tab);
                }
                QCOMPARE(Weg,
                         QStringList({u"S_Bodendichte"_s, u"S_Kohlenstoffgehalt"_s, u"S_Feldkapazitaet"_s, u"S_Welkepunkt"_s,
                                      u"Einstellung_Bodentiefe_0"_s, u"Einstellung_Plateautiefe_1"_s, u"Klimabedingungen_0"_s,
                                      u"S_Szenariotemperatur"_s, u"Ende"_s, u"Abbrechen"_s, u"Szenarioliste"_s,
                                      u"Bodenszenario"_s, u"S_Bodendichte"_s, u"S_Kohlenstoffgehalt"_s}));
            });
    }

    void every_control_has_a_name_for_readers_of_the_screen() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                for (const char* Name :
                     {"Szenarioliste", "Bodenszenario", "S_Bodendichte", "S_Kohlenstoffgehalt", "S_Feldkapazitaet",
                      "S_Welkepunkt", "S_Bodentiefe", "S_Plateautiefe", "S_Szenariotemperatur", "Klimaszenario"}) {
                    QVERIFY2(!Teil<QWidget>(f, Name)->accessibleName().isEmpty(), Name);
                }
                // Options of one caption tell what they are options of.
                QCOMPARE(Teil<QWidget>(f, "Einstellung_Bodentiefe_2")->accessibleName(), u"Individual, Soil depth (cm)"_s);
                QCOMPARE(Teil<QWidget>(f, "Einstellung_Plateautiefe_2")->accessibleName(), u"Individual, Tillage depth(cm)"_s);
                QVERIFY(!Teil<QWidget>(f, "Klimabedingungen_1")->accessibleDescription().isEmpty());
            });
    }

    void each_text_goes_to_its_value() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                tippe(f, "Bodenszenario", u"Silt loam"_s);
                tippe(f, "S_Bodendichte", u"1,25"_s);
                tippe(f, "S_Kohlenstoffgehalt", u"2.5"_s);
                tippe(f, "S_Feldkapazitaet", u"31"_s);
                tippe(f, "S_Welkepunkt", u"11"_s);
                QTest::mouseClick(Teil<QPushButton>(f, "Ende"), Qt::LeftButton);
            });
        const Laufparameter& p = p_->Programm().Stand().Parameter();
        QCOMPARE(p.Bodendichte, 1.25);
        QCOMPARE(p.Kohlenstoffgehalt, 2.5);
        QCOMPARE(p.Feldkapazitaet, 31.0);
        QCOMPARE(p.Welkepunkt, 11.0);
        QCOMPARE(p_->Teil<QLineEdit>("Bodenszenario")->text(), u"Silt loam"_s);
        QVERIFY(p_->Programm().Stand().Saetze[Szenario].Geaendert());
    }

    // A list of depths under the keyboard: "4.9", "5.0", "5.1" without losing the list; left at 5.0 it goes.
    void the_keyboard_walks_past_a_preset() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                auto* Liste = Teil<QComboBox>(f, "S_Bodentiefe");
                QTest::mouseClick(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_2"), Qt::LeftButton, {}, {5, 8});
                Liste->setFocus();
                QTest::keyClick(Liste, Qt::Key_Up);
                QCOMPARE(Liste->currentText(), u"4.9"_s);
                QTest::keyClick(Liste, Qt::Key_Down);
                QCOMPARE(Liste->currentText(), u"5.0"_s);
                QVERIFY(Liste->isVisible());
                QVERIFY(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_0")->isChecked());
                QTest::keyClick(Liste, Qt::Key_Down);
                QVERIFY(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_2")->isChecked());
                QTest::keyClick(Liste, Qt::Key_Up);
                QTest::keyClick(&f, Qt::Key_Tab);
                QTest::qWait(5);
                QVERIFY(!Liste->isVisible());
                QVERIFY(Teil<QRadioButton>(f, "Einstellung_Bodentiefe_0")->isChecked());
            });
    }

    void a_preset_chosen_from_the_open_list_hides_it() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                auto* Liste = Teil<QComboBox>(f, "S_Plateautiefe");
                QTest::mouseClick(Teil<QRadioButton>(f, "Einstellung_Plateautiefe_2"), Qt::LeftButton, {}, {5, 8});
                Liste->setFocus();
                Liste->showPopup();
                QTest::qWait(5);
                QVERIFY(Liste->isVisible());  // opening it is no leaving
                Liste->view()->setCurrentIndex(Liste->model()->index(49, 0));
                QTest::keyClick(Liste->view(), Qt::Key_Return);
                QTest::qWait(5);
                QVERIFY(!Liste->isVisible());
                QVERIFY(Teil<QRadioButton>(f, "Einstellung_Plateautiefe_0")->isChecked());
                QCOMPARE(QApplication::focusWidget()->objectName(), u"Einstellung_Plateautiefe_0"_s);
            });
    }

    void the_temperature_of_the_list_becomes_the_climate() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                auto* Liste = Teil<QComboBox>(f, "S_Szenariotemperatur");
                Liste->setFocus();
                QTest::keyClick(Liste, Qt::Key_Up);
                QTest::keyClick(Liste, Qt::Key_Return);
                QVERIFY(!f.isVisible());
            });
        QCOMPARE(p_->Teil<QLineEdit>("Klimaszenario")->text(), u"19 \u00B0C constant"_s);
        QVERIFY(p_->Programm().Stand().Hinweis());
    }

    void another_scenario_of_the_list_is_the_one_of_the_window() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                auto* Liste = Teil<QComboBox>(f, "Szenarioliste");
                const int i = Liste->findText(u"Loam, 10 degrees"_s);
                Liste->setCurrentIndex(i);
                Q_EMIT Liste->activated(i);
                QCOMPARE(Teil<QLineEdit>(f, "Bodenszenario")->text(), u"Standard soil"_s);
                QTest::mouseClick(Teil<QPushButton>(f, "Ende"), Qt::LeftButton);
            });
        QCOMPARE(p_->Teil<QComboBox>("Liste_3")->currentText(), u"Loam, 10 degrees"_s);
        QVERIFY(p_->Programm().Stand().Simulation_markiert());
    }

    // The line stands in the main window; no box comes in between.
    void a_character_without_a_place_does_not_enter_and_is_told_in_the_status_line() {
        starte_mit_Kaesten();
        bei([&] { p_->klicke("Edit"); },
            [this](Szenario_Form& f) {
                auto* Name = Teil<QLineEdit>(f, "Bodenszenario");
                Name->setFocus();
                Name->setText(u"Loam"_s);
                Q_EMIT Name->textEdited(u"Loam"_s);
                Name->setCursorPosition(2);
                tippe_Zeichen(Name, u"\u2265"_s);
                QCOMPARE(Name->text(), u"Loam"_s);
                QCOMPARE(Name->cursorPosition(), 2);
                QVERIFY(f.isVisible());
                QTRY_VERIFY(p_->Teil<QLabel>("Statuszeile")->text().contains(u"\"\u2265\" was left out"_s));
                tippe_Zeichen(Name, u"\u00E4"_s);
                QCOMPARE(Name->text(), u"Lo\u00E4am"_s);
            });
    }

    void the_message_about_the_tillage_depth_shows_the_information_symbol() {
        starte_mit_Kaesten();
        QMessageBox::Icon Bild = QMessageBox::NoIcon;
        QString Titel;
        bei([&] { p_->klicke("Edit"); },
            [&](Szenario_Form& f) {
                QTest::mouseClick(Teil<QRadioButton>(f, "Einstellung_Plateautiefe_2"), Qt::LeftButton, {}, {5, 8});
                auto* Liste = Teil<QComboBox>(f, "S_Plateautiefe");
                Liste->setCurrentIndex(24);
                Q_EMIT Liste->activated(24);
                QTimer::singleShot(30ms, &f, [&] {
                    auto* Kasten = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                    if (!Kasten) return;
                    Bild = Kasten->icon();
                    Titel = Kasten->windowTitle();
                    Kasten->accept();
                });
                QTest::mouseClick(Teil<QPushButton>(f, "Ende"), Qt::LeftButton);
            });
        QCOMPARE(Bild, QMessageBox::Information);
        QCOMPARE(Titel, u"Problem!"_s);
        QCOMPARE(p_->Programm().Stand().Parameter().Plateautiefe, 5.0);
    }

    void nothing_moves_when_the_climate_changes_and_the_fields_stand_in_one_column() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                const auto links = [&](const char* Name) { return Teil<QWidget>(f, Name)->mapTo(&f, QPoint()).x(); };
                QCOMPARE(links("S_Szenariotemperatur"), links("S_Bodendichte"));
                const QSize vorher = f.size();
                const QPoint Ende = Teil<QWidget>(f, "Ende")->mapTo(&f, QPoint());
                QTest::mouseClick(Teil<QRadioButton>(f, "Klimabedingungen_1"), Qt::LeftButton, {}, {5, 8});
                QTest::qWait(20);
                QCOMPARE(f.size(), vorher);
                QCOMPARE(Teil<QWidget>(f, "Ende")->mapTo(&f, QPoint()), Ende);
                QCOMPARE(links("Klimaszenario"), links("S_Bodendichte"));
            });
    }

    void it_is_orange_or_has_the_colour_of_the_desktop() {
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) { QCOMPARE(f.palette().color(QPalette::Window), QColor(255, 192, 128)); });
        p_.reset();
        p_ = std::make_unique<Fensterprobe>(&Fragen_, &Szenariotest::schreibe_Einstellungen);
        p_->starte();
        bei([&] { p_->klicke("Edit"); },
            [](Szenario_Form& f) {
                QCOMPARE(f.palette().color(QPalette::Window), QApplication::palette().color(QPalette::Window));
            });
    }
};

namespace {
const Anmeldung<Szenariotest> angemeldet;
}

}  // namespace varnok

#include "szenario_test.moc"
