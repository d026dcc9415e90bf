// The commands of the simulation organiser: by its buttons, the rename box, the mouse and the keys.

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTextEdit>
#include <string>

#include "window/kern/anmeldung.h"
#include "window/kern/rahmenfarben.h"
#include "window/saetze/organiserprobe.h"

using namespace Qt::StringLiterals;

namespace varnok {
class Organiserbefehle : public QObject, private Organiserbuehne {
    Q_OBJECT

private Q_SLOTS:
    void init() { beginne(); }
    void cleanup() { beende(); }

    // The description

    void the_description_is_yellow_while_it_has_the_focus_and_enter_leaves_it() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            auto* Feld = d.Teil<QLineEdit>("Projektname");
            const QColor sonst = Feld->palette().color(QPalette::Base);
            d.tippe("Projektname", "In other words");
            QCOMPARE(Feld->palette().color(QPalette::Base), QColor(Farben::Eingabe));
            d.druecke("Projektname", Qt::Key_Return);
            QVERIFY(d.offen());
            QCOMPARE(QApplication::focusWidget(), d.Teil("Simulationsliste"));
            QCOMPARE(Feld->palette().color(QPalette::Base), sonst);
            QCOMPARE(Feld->text(), u"In other words"_s);
            d.klicke("Ende");
        });
        QCOMPARE(p_->Teil<QLineEdit>("Beschreibung")->text(), u"In other words"_s);
        QVERIFY(p_->Inhalt(u"input/Programcheck.vnk"_s).startsWith("In other words\r\n"));
    }

    void esc_in_the_description_restores_its_text_and_leaves_the_dialog_open() {
        p_->starte();
        const QByteArray vorher = p_->Inhalt(u"input/Programcheck.vnk"_s);
        im_Dialog([](Dialogprobe d) {
            const QString alt = d.Teil<QLineEdit>("Projektname")->text();
            d.tippe("Projektname", "by mistake");
            d.druecke("Projektname", Qt::Key_Escape);
            QVERIFY(d.offen());
            QCOMPARE(d.Teil<QLineEdit>("Projektname")->text(), alt);
            QCOMPARE(QApplication::focusWidget(), d.Teil("Simulationsliste"));
            d.klicke("Ende");
        });
        QCOMPARE(p_->Inhalt(u"input/Programcheck.vnk"_s), vorher);
    }

    // Copy, delete, rename

    void the_buttons_copy_and_delete_on_the_dialogs_own_lists() {
        p_->starte();
        const int Anzahl = p_->Teil<QComboBox>("Liste_3")->count();
        im_Dialog([&](Dialogprobe d) {
            d.klicke("Copy_3");
            QCOMPARE(d.gewaehlt("Liste_3"), u"copy of Programcheck"_s);
            QCOMPARE(d.Teil<QComboBox>("Liste_3")->count(), Anzahl + 1);
            QCOMPARE(p_->Teil<QComboBox>("Liste_3")->count(), Anzahl);
            d.klicke("Loeschen_3");
            QCOMPARE(Fragen_.nimm(), QStringList{Loeschfrage("copy of Programcheck")});
            QCOMPARE(d.Teil<QComboBox>("Liste_3")->count(), Anzahl);
            QVERIFY(d.Teil<QLabel>("Statuszeile_Simulationen")->text().contains(u"backup/"_s));
        });
        QVERIFY(!gibt_es("input/copy of Programcheck.sce"));
    }

    void deleting_the_simulation_on_the_screen_is_on_the_main_form_after_done() {
        p_->starte();
        const int Anzahl = p_->Teil<QComboBox>("Simulationsliste")->count();
        im_Dialog([](Dialogprobe d) {
            d.klicke("Loeschen_Simulation");
            QCOMPARE(d.gewaehlt("Simulationsliste"), u"Sugar beet, Compound E"_s);
            d.klicke("Ende");
        });
        auto* Liste = p_->Teil<QComboBox>("Simulationsliste");
        QCOMPARE(Liste->count(), Anzahl - 1);
        QCOMPARE(Liste->findText(u"Programcheck"_s), -1);
        QCOMPARE(Liste->currentText(), u"Sugar beet, Compound E"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void after_a_deletion_and_the_close_box_the_main_form_shows_no_selection_and_is_covered() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.klicke("Loeschen_1");
            QVERIFY(p_->sichtbar("Abdeckung"));
        });
        QCOMPARE(p_->Teil<QComboBox>("Liste_1")->currentIndex(), -1);
        QCOMPARE(p_->Teil<QComboBox>("Liste_1")->findText(u"Programcheck"_s), -1);
        QVERIFY(p_->sichtbar("Abdeckung"));
    }

    void the_button_and_the_right_mouse_button_open_the_box_with_the_name() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            for (const bool mit_Knopf : {true, false}) {
                auto* Feld = d.Teil<QLineEdit>("Neuer_Dateiname_2");
                mit_Knopf ? d.klicke("Umbenennen_2") : QTest::mouseClick(d.Teil("Liste_2"), Qt::RightButton);
                QVERIFY(Feld->isVisible());
                QVERIFY(Feld->hasFocus());
                QCOMPARE(Feld->text(), u"Programcheck"_s);
                d.druecke("Neuer_Dateiname_2", Qt::Key_Escape);
                QVERIFY(!Feld->isVisible());
                QVERIFY(d.offen());
                QCOMPARE(QApplication::focusWidget(), d.Teil("Liste_2"));
            }
        });
    }

    void enter_renames_and_the_dialog_stays() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.klicke("Umbenennen_1");
            d.tippe("Neuer_Dateiname_1", "Better name.che");
            d.druecke("Neuer_Dateiname_1", Qt::Key_Return);
            QVERIFY(d.offen());
            QCOMPARE(d.gewaehlt("Liste_1"), u"Better name"_s);
            QCOMPARE(p_->Teil<QComboBox>("Liste_1")->currentText(), u"Better name"_s);
            d.klicke("Ende");
        });
        QVERIFY(gibt_es("input/Better name.che"));
        QVERIFY(p_->Inhalt(u"input/Programcheck.vnk"_s).contains("\r\nBetter name\r\nProgramcheck\r\n"));
    }

    void a_name_that_is_taken_is_asked_about_with_enter_and_may_be_corrected() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.klicke("Umbenennen_3");
            d.tippe("Neuer_Dateiname_3", "Loam, 10 degrees");
            Fragen_.antworte(Knopf::Nein);
            d.druecke("Neuer_Dateiname_3", Qt::Key_Return);
            QCOMPARE(Fragen_.nimm(), QStringList{u"Replace existing record?: The record ' Loam, 10 degrees ' already exists. "
                                                 "Do you want to replace it?"_s});
            QVERIFY(d.Teil("Neuer_Dateiname_3")->isVisible());
            QVERIFY(d.Teil("Neuer_Dateiname_3")->hasFocus());
        });
    }

    void leaving_the_box_renames_without_a_question_or_tells_the_fault() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.klicke("Umbenennen_3");
            d.tippe("Neuer_Dateiname_3", "Left");
            d.Teil("Liste_1")->setFocus(Qt::TabFocusReason);
            QTest::qWait(20);
            QCOMPARE(d.gewaehlt("Liste_3"), u"Left"_s);
            QCOMPARE(QApplication::focusWidget(), d.Teil("Liste_1"));
            d.klicke("Umbenennen_3");
            d.tippe("Neuer_Dateiname_3", "Loam, 10 degrees");
            d.Teil("Liste_1")->setFocus(Qt::TabFocusReason);
            QTest::qWait(20);
            QCOMPARE(Fragen_.nimm(),
                     QStringList{u"Runtime error: The record \"Loam, 10 degrees\" already exists. \"Left\" keeps its name."_s});
            QVERIFY(!d.Teil("Neuer_Dateiname_3")->isVisible());
            QCOMPARE(d.gewaehlt("Liste_3"), u"Left"_s);
        });
    }

    void done_takes_a_name_that_stands_in_the_box_and_stays_if_it_is_refused() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.klicke("Umbenennen_3");
            d.tippe("Neuer_Dateiname_3", "a/b");
            d.klicke("Ende");
            QCOMPARE(Fragen_.nimm(), QStringList{u"Runtime error: \"a/b\" cannot be the name of a record: it holds a slash"_s});
            QVERIFY(d.offen());
            d.klicke("Umbenennen_3");
            d.tippe("Neuer_Dateiname_3", "Typed");
            d.klicke("Ende");
            QVERIFY(!d.offen());
        });
        QCOMPARE(p_->Teil<QComboBox>("Liste_3")->currentText(), u"Typed"_s);
        QVERIFY(p_->Inhalt(u"input/Programcheck.vnk"_s).endsWith("\r\nTyped\r\n"));
    }

    void the_close_box_gives_up_a_name_that_stands_in_the_box() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            d.klicke("Umbenennen_3");
            d.tippe("Neuer_Dateiname_3", "Never");
            d.Dialog().close();
        });
        QTest::qWait(20);
        QVERIFY(!gibt_es("input/Never.sce"));
    }

    void a_selector_with_the_focus_knows_the_keys() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.Teil("Liste_2")->setFocus();
            d.druecke("Liste_2", Qt::Key_D, Qt::ControlModifier);
            QCOMPARE(d.gewaehlt("Liste_2"), u"copy of Programcheck"_s);
            d.druecke("Liste_2", Qt::Key_Delete, Qt::ControlModifier);
            QCOMPARE(Fragen_.nimm(), QStringList{Loeschfrage("copy of Programcheck")});
            QVERIFY(!gibt_es("input/copy of Programcheck.app"));
            d.druecke("Liste_2", Qt::Key_F2);
            QVERIFY(d.Teil("Neuer_Dateiname_2")->isVisible());
            d.druecke("Neuer_Dateiname_2", Qt::Key_Escape);
            d.druecke("Liste_2", Qt::Key_F10, Qt::ShiftModifier);
            auto* Menue = d.Teil("Liste_2")->findChild<QMenu*>(u"Satzmenue"_s);
            QVERIFY(Menue && Menue->isVisible());
            QVERIFY(!Menue->findChild<QAction*>(u"Neu"_s)->isEnabled());
            Menue->close();
        });
    }

    void a_report_after_done_carries_the_new_description() {
        p_->starte();
        p_->klicke("Bericht_erstellen");
        im_Dialog([](Dialogprobe d) {
            d.tippe("Projektname", "Quite new");
            d.klicke("Ende");
        });
        QCOMPARE(p_->Teil<QLineEdit>("Beschreibung")->text(), u"Quite new"_s);
        QVERIFY(!p_->sichtbar("Bericht"));  // it told of the old one
        p_->klicke("Bericht_erstellen");
        QVERIFY(p_->Teil<QTextEdit>("Bericht")->toPlainText().contains(u"Quite new"_s));
        const Diagramm* Bild = p_->Programm().zeige<Diagrammsteuerung>().vorderes();
        QVERIFY(Bild != nullptr);
        QVERIFY((Bild->Titel.Text + Bild->Kommentar.Text).find("Quite new") != std::string::npos);
    }

    void without_the_scenario_on_the_screen_the_editor_is_off_and_the_tip_says_why() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            QVERIFY(d.Teil("Lade_Szenariodaten")->isEnabled());
            QCOMPARE(d.Teil("Lade_Szenariodaten")->toolTip(), QString());
            d.waehle("Liste_3", "Loam, 10 degrees");
            QVERIFY(!d.Teil("Lade_Szenariodaten")->isEnabled());
            QVERIFY(d.Teil("Lade_Szenariodaten")->toolTip().startsWith(u"The scenario \"Loam, 10 degrees\" is not loaded"_s));
        });
    }

    void the_editor_opens_over_the_dialog_and_its_values_stay() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            QTimer::singleShot(50, &d.Dialog(), [&] {
                QWidget* Form = QApplication::activeModalWidget();
                QCOMPARE(Form->objectName(), u"Szenario_Form"_s);
                QCOMPARE(Form->parentWidget(), &d.Dialog());
                auto* Dichte = Form->findChild<QLineEdit*>(u"S_Bodendichte"_s);
                Dichte->selectAll();
                QTest::keyClicks(Dichte, u"3"_s);
                QTest::mouseClick(Form->findChild<QPushButton*>(u"Ende"_s), Qt::LeftButton);
            });
            d.klicke("Lade_Szenariodaten");
            QVERIFY(d.offen());
            QCOMPARE(p_->Programm().Stand().Parameter().Bodendichte, 3.0);
            d.waehle("Liste_1", "Compound F, hockey stick");
            d.klicke("Ende");
        });
        QCOMPARE(p_->Programm().Stand().Parameter().Bodendichte, 3.0);
        QCOMPARE(p_->Teil<QComboBox>("Liste_1")->currentText(), u"Compound F, hockey stick"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }
};

namespace {
const Anmeldung<Organiserbefehle> angemeldet;
}

}  // namespace varnok

#include "organiserbefehle_test.moc"
