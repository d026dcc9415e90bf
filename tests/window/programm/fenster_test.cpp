// The window as a whole: start page, fields, lists, tables.

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>

#include "painting/qt_text.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"

using namespace Qt::StringLiterals;
using namespace varnok;

class Fenstertest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { p_ = std::make_unique<Fensterprobe>(); }
    void cleanup() { p_.reset(); }

    void before_starten_only_the_start_page_is_there() {
        QVERIFY(p_->sichtbar("Intro"));
        QVERIFY(!p_->sichtbar("Kinetikschema"));
        QVERIFY(!p_->Teil<QMenu>("M_editieren")->menuAction()->isEnabled());
        QVERIFY(p_->Teil<QAction>("M_Speichern")->isEnabled());
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), 0);
    }

    void starten_shows_the_results_of_the_start_simulation() {
        p_->starte();
        QVERIFY(!p_->sichtbar("Intro"));
        QVERIFY(p_->sichtbar("Kinetikschema"));
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QVERIFY(p_->Teil<QPushButton>("Ende")->hasFocus());
        // 1000 g/ha in 5 cm of soil of 1.5 kg/L.
        QCOMPARE(p_->Zelle("Ergebnisse_0", 1, 1), u"1.3333"_s);
    }

    void a_typed_dt50_counts_when_tab_leaves_the_field() {
        p_->starte();
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        p_->tippe("S_DT50_0", "10");
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher);
        QVERIFY(!p_->Teil<QPushButton>("Aktualisieren")->icon().isNull());
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
        QVERIFY(p_->Teil<QPushButton>("Aktualisieren")->icon().isNull());
        // Ten days are one half-life at the reference temperature; the row of 7 days lies before it, that of 14 behind.
        QVERIFY(p_->Zelle("Ergebnisse_0", 5, 1).toDouble() > 1.3333 / 2);
        QVERIFY(p_->Zelle("Ergebnisse_0", 6, 1).toDouble() < 1.3333 / 2);
    }

    void a_refused_value_keeps_the_focus_and_covers_the_results() {
        p_->starte();
        p_->tippe("S_Q10_0", "0");
        const QString Text = p_->Meldung_bei([&] { p_->druecke("S_Q10_0", Qt::Key_Tab); });
        QCOMPARE(Text, u"The Q10 constant is invalid. Please correct!"_s);
        QVERIFY(p_->sichtbar("Abdeckung"));
        QCOMPARE(QApplication::focusWidget()->objectName(), u"S_Q10_0"_s);
        QCOMPARE(p_->Teil<QLineEdit>("S_Q10_0")->selectedText(), u"0"_s);
    }

    void a_command_out_of_an_invalid_field_is_not_done() {
        p_->starte();
        p_->tippe("S_Q10_0", "0");
        const QString Text = p_->Meldung_bei([&] { p_->waehle("Applikationsmuster_1"); });
        QCOMPARE(Text, u"The Q10 constant is invalid. Please correct!"_s);
        QVERIFY(p_->Teil<QRadioButton>("Applikationsmuster_0")->isChecked());
        QCOMPARE(QApplication::focusWidget()->objectName(), u"S_Q10_0"_s);
    }

    void a_page_does_not_turn_over_an_invalid_field() {
        p_->starte();
        p_->tippe("S_Q10_0", "0");
        auto* Leiste = p_->Teil<QTabBar>("Wirkstoffdaten_Leiste");
        const QString Text = p_->Meldung_bei([&] { QTest::mouseClick(Leiste, Qt::LeftButton, {}, Leiste->tabRect(1).center()); });
        QCOMPARE(Text, u"The Q10 constant is invalid. Please correct!"_s);
        QCOMPARE(p_->Teil<QTabWidget>("Wirkstoffdaten")->currentIndex(), 0);
        QVERIFY(p_->sichtbar("S_Q10_0"));
    }

    void refresh_out_of_a_changed_field_is_one_run() {
        p_->starte();
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        p_->tippe("S_DT50_0", "20");
        p_->klicke("Aktualisieren");
        QTest::qWait(30);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
    }

    // The mouse as the desktop tells it: pressed, held for a while, released.
    void a_button_held_down_out_of_a_changed_field_is_one_run() {
        p_->starte();
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        p_->tippe("S_DT50_0", "20");
        p_->druecke_langsam("Aktualisieren");
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
        QCOMPARE(p_->Programm().zeige<Feldeingabe>().aktives_Feld(), -1);
    }

    void a_button_held_down_out_of_an_invalid_field_tells_it_once() {
        p_->starte();
        p_->tippe("S_Q10_0", "0");
        const QString Text = p_->Meldung_bei([&] { p_->druecke_langsam("Aktualisieren"); });
        QCOMPARE(Text, u"The Q10 constant is invalid. Please correct!"_s);
        QCOMPARE(p_->Fenster().focusWidget()->objectName(), u"S_Q10_0"_s);
        QVERIFY(!p_->Teil<QPushButton>("Aktualisieren")->isDown());
    }

    void a_list_opened_out_of_an_invalid_field_closes_again() {
        p_->starte();
        p_->tippe("S_Q10_0", "0");
        const QString Text = p_->Meldung_bei([&] { p_->druecke_langsam("App_Monat"); });
        QCOMPARE(Text, u"The Q10 constant is invalid. Please correct!"_s);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(p_->Fenster().focusWidget()->objectName(), u"S_Q10_0"_s);
    }

    void only_the_field_that_was_left_is_checked() {
        p_->starte();
        p_->tippe("S_DT50_0", "-1");
        const QString Text = p_->Meldung_bei([&] { QTest::mouseClick(p_->Teil<QLineEdit>("S_Q10_0"), Qt::LeftButton); });
        QCOMPARE(Text, u"The DT50 is invalid. Please correct!"_s);
        QCOMPARE(p_->Fenster().focusWidget()->objectName(), u"S_DT50_0"_s);
        p_->tippe("S_DT50_0", "12");
        QTest::mouseClick(p_->Teil<QLineEdit>("S_Q10_0"), Qt::LeftButton);
        QTest::qWait(20);
        QCOMPARE(p_->Programm().zeige<Feldeingabe>().aktives_Feld(), Feld_mit_Namen("S_Q10_0"));
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    // A menu, another window: the field is not left.
    void a_menu_does_not_check_the_field() {
        p_->starte();
        p_->tippe("S_Q10_0", "0");
        QCOMPARE(p_->Meldung_bei([&] {
            auto* Menue = p_->Teil<QMenu>("M_Ansicht");
            Menue->popup(p_->Fenster().mapToGlobal(QPoint(20, 20)));
            QTest::qWait(20);
            Menue->close();
        }),
                 QString());
        QCOMPARE(p_->Fenster().focusWidget()->objectName(), u"S_Q10_0"_s);
    }

    // After Ctrl+S the field keeps the focus; the next key is a new change.
    void typing_goes_on_after_a_shortcut() {
        p_->starte();
        p_->tippe("S_DT50_0", "20");
        p_->druecke("S_DT50_0", Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!p_->Programm().Stand().Saetze[Wirkstoff].Geaendert());
        QCOMPARE(QApplication::focusWidget()->objectName(), u"S_DT50_0"_s);
        QTest::keyClick(p_->Teil<QLineEdit>("S_DT50_0"), Qt::Key_End);
        QTest::keyClicks(p_->Teil<QLineEdit>("S_DT50_0"), u"5"_s);
        QCOMPARE(p_->Teil<QLineEdit>("S_DT50_0")->text(), u"205"_s);
        QVERIFY(p_->Programm().Stand().Saetze[Wirkstoff].Geaendert());
    }

    void another_cell_can_be_typed_in_after_a_message() {
        p_->starte();
        p_->waehle_Simulation("Vines, Compound D");
        auto* Tafel = p_->Teil<QTableWidget>("Applikationsschema");
        Tafel->setFocus();
        Tafel->setCurrentCell(0, 1);
        p_->druecke("Applikationsschema", Qt::Key_Delete);
        Tafel->setCurrentCell(3, 3);
        QVERIFY(!p_->Meldung_bei([&] { p_->druecke("Applikationsschema", Qt::Key_Return); }).isEmpty());
        QCOMPARE(Tafel->currentRow(), 0);
        QCOMPARE(Tafel->currentColumn(), 1);
        Tafel->setFocus();
        Tafel->setCurrentCell(1, 1);
        const QString vorher = Tafel->item(1, 1)->text();
        QTest::keyClicks(Tafel, u"1"_s);
        QCOMPARE(Tafel->currentRow(), 1);
        QCOMPARE(Tafel->item(1, 1)->text(), vorher + u'1');
    }

    void esc_brings_the_accepted_value_back() {
        p_->starte();
        p_->tippe("S_Q10_0", "abc");
        p_->druecke("S_Q10_0", Qt::Key_Escape);
        QCOMPARE(p_->Teil<QLineEdit>("S_Q10_0")->text(), u"2.58"_s);
    }

    void each_kinetics_shows_its_own_fields() {
        p_->starte();
        const std::array<std::vector<const char*>, 4> Felder = {{{"S_DT50_0"},
                                                                 {"S_DT50_1_DFOP_0", "S_DT50_2_DFOP_0", "S_g_0"},
                                                                 {"S_alpha", "S_beta"},
                                                                 {"S_DT50_1_HS", "S_DT50_2_HS", "S_Tb"}}};
        for (int Kinetik : {HS, FOMC, DFOP, SFO}) {
            p_->waehle_Eintrag("S_Kinetik_0", Kinetik);
            for (int k = 0; k < 4; ++k) {
                for (const char* Feld : Felder[static_cast<std::size_t>(k)]) QCOMPARE(p_->sichtbar(Feld), k == Kinetik);
            }
        }
    }

    void each_pattern_shows_its_own_controls() {
        p_->starte();
        const auto gezeigt = [&] {
            QString Muster;
            for (const char* Name : {"Applikationsrate", "App_Tag", "Anzahl", "Intervall", "Applikationsschema"})
                Muster += p_->sichtbar(Name) ? u'x' : u'-';
            return Muster;
        };
        QCOMPARE(gezeigt(), u"xx---"_s);
        p_->waehle("Applikationsmuster_1");
        QCOMPARE(gezeigt(), u"xxxx-"_s);
        p_->waehle("Applikationsmuster_2");
        QCOMPARE(gezeigt(), u"--x-x"_s);
    }

    void keys_edit_the_table_of_applications() {
        p_->starte();
        p_->waehle_Simulation("Vines, Compound D");
        auto* Tafel = p_->Teil<QTableWidget>("Applikationsschema");
        Tafel->setFocus();
        Tafel->setCurrentCell(0, 2);
        p_->druecke("Applikationsschema", Qt::Key_Delete);
        QTest::keyClicks(Tafel, u"7,55"_s);
        p_->druecke("Applikationsschema", Qt::Key_Backspace);
        QCOMPARE(Tafel->item(0, 2)->text(), u"7.5"_s);
        QVERIFY(p_->Programm().Stand().Hinweis());
        p_->druecke("Applikationsschema", Qt::Key_Return);
        QVERIFY(!p_->Programm().Stand().Hinweis());
    }

    void the_selection_of_a_grid_is_copied_for_spreadsheets() {
        p_->starte();
        auto* Tafel = p_->Teil<QTableWidget>("Ergebnisse_0");
        Tafel->setRangeSelected(QTableWidgetSelectionRange(0, 0, 1, 1), true);
        p_->druecke("Ergebnisse_0", Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"Time(d)\tPECactual\nPECmax\t1.3333\n"_s);
        QVERIFY(QApplication::clipboard()->mimeData()->html().contains(u"<td>1.3333</td>"_s));
    }

    void the_wheel_turns_no_list_that_has_not_the_focus() {
        p_->starte();
        auto* Liste = p_->Teil<QComboBox>("App_Monat");
        const int vorher = Liste->currentIndex();
        QWheelEvent Rad(QPointF(5, 5), Liste->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, {},
                        Qt::NoScrollPhase, false);
        QApplication::sendEvent(Liste, &Rad);
        QCOMPARE(Liste->currentIndex(), vorher);
        QCOMPARE(p_->Programm().Stand().Vorgabe.App_Monat, vorher);
    }

    void space_presses_a_button_and_enter_does_not() {
        p_->starte();
        p_->Teil<QPushButton>("Ende")->setFocus();
        p_->druecke("Ende", Qt::Key_Return);
        QVERIFY(p_->Fenster().isVisible());
        p_->druecke("Ende", Qt::Key_Space);
        QVERIFY(!p_->Fenster().isVisible());
        QVERIFY(p_->Programm().Stand().beendet());
    }

    void a_right_press_unlocks_the_description() {
        p_->starte();
        auto* Feld = p_->Teil<QLineEdit>("Beschreibung");
        const QString alt = Feld->text();
        QVERIFY(Feld->isReadOnly());
        QTest::mouseClick(Feld, Qt::RightButton);
        QVERIFY(!Feld->isReadOnly());
        QTest::keyClicks(Feld, u"x"_s);
        QCOMPARE(in_Qt(p_->Programm().Stand().Vorgabe.Beschreibung), Feld->text());
        QVERIFY(Feld->text() != alt);
        QTest::keyClick(Feld, Qt::Key_Escape);
        QVERIFY(Feld->isReadOnly());
        QCOMPARE(Feld->text(), alt);
    }

    void every_field_of_the_table_stands_on_the_window() {
        for (const Feldbeschreibung& f : Feldtabelle()) {
            const auto Felder = p_->Fenster().findChildren<QLineEdit*>(in_Qt(f.Objektname()));
            QVERIFY2(Felder.size() == 1, f.Name);
        }
    }

    void every_control_has_a_name_for_screen_readers() {
        p_->starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        for (int Seite = 0; Seite < 3; ++Seite) {
            p_->Teil<QTabWidget>("Wirkstoffdaten")->setCurrentIndex(Seite);
            for (QWidget* w : p_->Fenster().findChildren<QWidget*>()) {
                if (!w->isVisible() || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus)) continue;
                QAccessibleInterface* Name = QAccessible::queryAccessibleInterface(w);
                QVERIFY2(Name && !Name->text(QAccessible::Name).isEmpty(),
                         qPrintable(w->objectName() + u' ' + QLatin1String(w->metaObject()->className())));
                QVERIFY2(!w->objectName().isEmpty(), w->metaObject()->className());
            }
        }
    }

    void tab_walks_each_frame_from_top_to_bottom() {
        p_->starte();
        p_->waehle("Applikationsmuster_1");
        p_->Teil<QComboBox>("Simulationsliste")->setFocus();
        QStringList Weg;
        do {
            Weg << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QTest::qWait(1);
        } while (!Weg.contains(QApplication::focusWidget()->objectName()) && Weg.size() < 60);
        const QStringList erwartet = {u"Simulationsliste Copy_Simulation Loeschen_Simulation Beschreibung"_s,
                                      u"Liste_1 Copy_1 Loeschen_1 Studie Addiere_Studie Wirkstoffdaten_Leiste"_s,
                                      u"S_Kinetik_0 S_DT50_0 S_Q10_0 S_Walker_0 S_TRef_0"_s,
                                      u"Liste_2 Copy_2 Loeschen_2 Applikationsmuster_1"_s,
                                      u"Applikationsrate Anzahl Interzeption Intervall App_Tag App_Monat Fruchtwechsel"_s,
                                      u"Liste_3 Copy_3 Loeschen_3 Edit"_s,
                                      u"Berechnungsmodus_Leiste Diagramm_0 Ergebnisse_0"_s,
                                      u"Endpunkt_1 PEC_Typ_0 TWA_Laenge"_s,
                                      u"Aktualisieren speichern Bericht_erstellen Ende"_s};
        QCOMPARE(Weg, erwartet.join(u' ').split(u' '));
    }

    void a_scheme_shows_its_compounds() {
        p_->starte();
        p_->waehle_Simulation("Potatoes, Compound C");
        QCOMPARE(p_->Teil<QTabWidget>("Berechnungsmodus")->currentIndex(), 1);
        QVERIFY(p_->sichtbar("Substanz_1"));
        QVERIFY(!p_->sichtbar("Substanz_2"));
        p_->waehle("Substanz_1");
        QVERIFY(p_->sichtbar("Kinetikparameter_1"));
        QVERIFY(p_->sichtbar("Ergebnisse_2"));
        QVERIFY(!p_->sichtbar("Ergebnisse_1"));
    }

    void the_background_has_no_grids() {
        p_->starte();
        QVERIFY(p_->sichtbar("Ergebnisrahmen_0"));
        p_->waehle("PEC_Typ_1");
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
        p_->waehle("PEC_Typ_2");
        QVERIFY(p_->sichtbar("Ergebnisrahmen_0"));
    }

private:
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Fenstertest> angemeldet;
}  // namespace

#include "fenster_test.moc"
