// The simulation organiser on the screen: how it opens and closes, its controls and colours.

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <cstdlib>

#include "records/einstellungen.h"
#include "window/kern/anmeldung.h"
#include "window/kern/rahmenfarben.h"
#include "window/saetze/organiserprobe.h"

using namespace Qt::StringLiterals;

namespace varnok {
class Organiserfenster : public QObject, private Organiserbuehne {
    Q_OBJECT

private Q_SLOTS:
    void init() { beginne(); }
    void cleanup() { beende(); }

    void the_menu_opens_it_over_the_centre_of_the_window() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            QCOMPARE(d.Dialog().windowTitle(), u"Simulation organiser"_s);
            QVERIFY(d.Dialog().isModal());
            QCOMPARE(d.Dialog().parentWidget(), &p_->Fenster());
            // The screen of the tests is narrower than the window: only the height has room.
            QVERIFY(std::abs(d.Dialog().geometry().center().y() - p_->Fenster().geometry().center().y()) < 30);
        });
    }

    void a_double_click_on_the_description_opens_it_while_it_is_locked() {
        p_->starte();
        auto* Feld = p_->Teil<QLineEdit>("Beschreibung");
        im_Dialog([](Dialogprobe d) { QVERIFY(d.offen()); },
                  [&] {
                      QTest::mouseDClick(Feld, Qt::LeftButton);
                      QTest::qWait(20);
                  });
        QTest::mouseClick(Feld, Qt::RightButton);
        QTest::mouseDClick(Feld, Qt::LeftButton);
        QTest::qWait(20);
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(!Feld->isReadOnly());
    }

    void it_opens_from_the_start_page_too() {
        im_Dialog([](Dialogprobe d) { QCOMPARE(d.gewaehlt("Liste_1"), u"Programcheck"_s); });
    }

    void a_field_that_refuses_its_value_is_told_and_it_does_not_open() {
        p_->starte();
        p_->tippe("S_DT50_0", "-1");
        p_->Teil<QAction>("M_Laden")->trigger();
        QCOMPARE(Fragen_.nimm(), QStringList{u"No valid input!: The DT50 is invalid. Please correct!"_s});
        QVERIFY(!QApplication::activeModalWidget());
    }

    void the_captions_stand_as_they_are_told() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            for (const char* Art : {"1", "2", "3", "Simulation"}) {
                const QByteArray Endung = QByteArray("_") + Art;
                QCOMPARE(d.Teil<QPushButton>(("Copy" + Endung).constData())->text(), u"Copy"_s);
                QCOMPARE(d.Teil<QPushButton>(("Loeschen" + Endung).constData())->text(), u"Delete"_s);
                QCOMPARE(d.Teil<QPushButton>(("Umbenennen" + Endung).constData())->text(), u"Rename"_s);
            }
            QCOMPARE(d.Teil<QPushButton>("Lade_Szenariodaten")->text(), u"Edit"_s);
            QCOMPARE(d.Teil<QPushButton>("Ende")->text(), u"Done"_s);
            QVERIFY(d.Teil<QPushButton>("Ende")->isDefault());
            QCOMPARE(d.Teil<QLabel>("L_Simulationsliste")->text(), u"Simulation:"_s);
            QCOMPARE(d.Teil<QLabel>("L_Liste_1")->text(), u"Pesticide:"_s);
            QCOMPARE(d.Teil<QLabel>("L_Liste_2")->text(), u"Application pattern:"_s);
            QCOMPARE(d.Teil<QLabel>("L_Liste_3")->text(), u"Scenario:"_s);
            for (const char* Feld : {"Neuer_Dateiname_0", "Neuer_Dateiname_1", "Neuer_Dateiname_2", "Neuer_Dateiname_3"})
                QVERIFY(!d.Teil(Feld)->isVisible());
        });
    }

    void the_columns_of_the_rows_stand_below_each_other() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            const auto links = [&](const char* Name) { return d.Teil(Name)->mapTo(&d.Dialog(), QPoint()).x(); };
            for (const char* Art : {"1", "2", "3"}) {
                const QByteArray Endung = QByteArray("_") + Art;
                QCOMPARE(links(("Liste" + Endung).constData()), links("Simulationsliste"));
                QCOMPARE(links(("Copy" + Endung).constData()), links("Copy_Simulation"));
                QCOMPARE(links(("Umbenennen" + Endung).constData()), links("Umbenennen_Simulation"));
            }
            QCOMPARE(links("Projektname"), links("Simulationsliste"));
            QCOMPARE(links("Ende"), links("Umbenennen_3"));
        });
    }

    void the_rows_have_the_colours_of_their_frames_or_the_desktops() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            QCOMPARE(d.Zeilenfarbe("Liste_1"), QColor(192, 255, 192));
            QCOMPARE(d.Zeilenfarbe("Liste_2"), QColor(255, 255, 192));
            QCOMPARE(d.Zeilenfarbe("Liste_3"), QColor(255, 192, 128));
            QCOMPARE(d.Zeilenfarbe("Simulationsliste"), QApplication::palette().color(QPalette::Window));
        });
        beginne([](const QString& Projekt) {
            QFile f(Projekt + u"/VARNOK.ini"_s);
            if (!f.open(QIODevice::WriteOnly)) qFatal("cannot write the settings");
            Einstellungen e;
            e.Farbeinstellung = 1;
            f.write(QByteArray::fromStdString(Einstellungen_als_Bytes(e, {})));
        });
        im_Dialog([](Dialogprobe d) {
            for (const char* Liste : {"Liste_1", "Liste_2", "Liste_3"})
                QCOMPARE(d.Zeilenfarbe(Liste), QApplication::palette().color(QPalette::Window));
        });
    }

    void tab_walks_from_row_to_row_and_ends_at_done() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            QCOMPARE(QApplication::focusWidget(), d.Teil("Simulationsliste"));
            const QStringList Weg = {u"Copy_Simulation"_s,
                                     u"Loeschen_Simulation"_s,
                                     u"Umbenennen_Simulation"_s,
                                     u"Projektname"_s,
                                     u"Liste_1"_s,
                                     u"Copy_1"_s,
                                     u"Loeschen_1"_s,
                                     u"Umbenennen_1"_s,
                                     u"Liste_2"_s,
                                     u"Copy_2"_s,
                                     u"Loeschen_2"_s,
                                     u"Umbenennen_2"_s,
                                     u"Liste_3"_s,
                                     u"Lade_Szenariodaten"_s,
                                     u"Copy_3"_s,
                                     u"Loeschen_3"_s,
                                     u"Umbenennen_3"_s,
                                     u"Ende"_s};
            for (const QString& Name : Weg) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget()->objectName(), Name);
            }
        });
    }

    void every_control_has_a_name_that_is_read_out_and_no_two_share_one() {
        p_->starte();
        im_Dialog([](Dialogprobe d) {
            QStringList Namen;
            for (QWidget* w : d.Dialog().findChildren<QWidget*>()) {
                if (!w->isVisible() || w->focusPolicy() == Qt::NoFocus) continue;
                // A list tells what is selected; what it is a list of stands in the name that was given to it.
                QString Name = w->accessibleName();
                if (Name.isEmpty()) Name = QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
                QVERIFY2(!Name.isEmpty(), qPrintable(w->objectName()));
                QVERIFY2(!Namen.contains(Name), qPrintable(Name));
                Namen << Name;
            }
            QVERIFY(Namen.size() >= 18);
        });
    }

    // What "Done" and the close box do on the screen

    void done_at_once_writes_nothing_and_leaves_the_results() {
        p_->starte();
        const QByteArray vorher = p_->Inhalt(u"input/Programcheck.vnk"_s);
        const int Zeichnung = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        im_Dialog([](Dialogprobe d) {
            d.klicke("Ende");
            QVERIFY(!d.offen());
        });
        QCOMPARE(p_->Inhalt(u"input/Programcheck.vnk"_s), vorher);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    }

    void another_simulation_is_loaded_after_done_with_one_run() {
        p_->starte();
        const int Zeichnung = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        im_Dialog([&](Dialogprobe d) {
            d.waehle("Simulationsliste", "Potatoes, Compound C");
            QCOMPARE(d.Teil<QLineEdit>("Projektname")->text(), u"Seven treatments, biphasic parent with one metabolite"_s);
            QCOMPARE(p_->Teil<QLineEdit>("Beschreibung")->text(), u"Seven treatments, biphasic parent with one metabolite"_s);
            QCOMPARE(d.gewaehlt("Liste_2"), u"Potatoes, seven treatments"_s);
            QCOMPARE(p_->Teil<QComboBox>("Simulationsliste")->currentText(), u"Programcheck"_s);
            d.klicke("Ende");
        });
        QCOMPARE(p_->Teil<QComboBox>("Simulationsliste")->currentText(), u"Potatoes, Compound C"_s);
        QCOMPARE(p_->Teil<QComboBox>("Liste_1")->currentText(), u"Compound C with one metabolite"_s);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung + 1);
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void enter_on_a_selector_means_done_and_enter_on_a_button_the_button() {
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            Fragen_.antworte(Knopf::Nein);
            d.Teil("Loeschen_1")->setFocus();
            d.druecke("Loeschen_1", Qt::Key_Return);
            QCOMPARE(Fragen_.nimm(), QStringList{Loeschfrage("Programcheck")});
            QVERIFY(d.offen());
            d.Teil("Liste_1")->setFocus();
            d.druecke("Liste_1", Qt::Key_Return);
            QVERIFY(!d.offen());
        });
    }

    void esc_and_the_close_box_bring_the_description_back() {
        p_->starte();
        const QString vorher = p_->Teil<QLineEdit>("Beschreibung")->text();
        for (const bool mit_Esc : {true, false}) {
            im_Dialog([&](Dialogprobe d) {
                d.waehle("Simulationsliste", "Potatoes, Compound C");
                mit_Esc ? d.druecke("Liste_1", Qt::Key_Escape) : static_cast<void>(d.Dialog().close());
                QVERIFY(!d.offen());
            });
            QCOMPARE(p_->Teil<QLineEdit>("Beschreibung")->text(), vorher);
            QCOMPARE(p_->Teil<QComboBox>("Simulationsliste")->currentText(), u"Programcheck"_s);
        }
    }

    void a_missing_record_holds_the_dialog_over_either_answer() {
        schreibe("input/Torn.vnk", "torn\r\nProgramcheck\r\nnone\r\nProgramcheck\r\n");
        p_->starte();
        im_Dialog([&](Dialogprobe d) {
            d.waehle("Simulationsliste", "Torn");
            QCOMPARE(d.Teil<QComboBox>("Liste_2")->currentIndex(), -1);
            QVERIFY(!d.Teil("Copy_2")->isEnabled());
            QVERIFY(!d.Teil("Umbenennen_2")->isEnabled());
            for (const Knopf Antwort : {Knopf::OK, Knopf::Abbrechen}) {
                Fragen_.antworte(Antwort);
                d.klicke("Ende");
                QCOMPARE(Fragen_.nimm(), QStringList{u"Record not set: Application record not set. Please select!"_s});
                QVERIFY(d.offen());
            }
            d.waehle("Liste_2", "Programcheck");
            d.klicke("Ende");
            QVERIFY(!d.offen());
        });
        QCOMPARE(p_->Inhalt(u"input/Torn.vnk"_s), QByteArray("torn\r\nProgramcheck\r\nProgramcheck\r\nProgramcheck\r\n"));
    }
};

namespace {
const Anmeldung<Organiserfenster> angemeldet;
}

}  // namespace varnok

#include "organiser_test.moc"
