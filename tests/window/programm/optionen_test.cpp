// The options dialog over the window: its captions, its ways out, and what the window shows afterwards.

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "window/kern/anmeldung.h"
#include "window/kern/rahmenfarben.h"
#include "window/programm/optionendialog.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Optionentest : public QObject, private Optionendialog {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        p_.reset();
        QVERIFY(Fragen_.nimm().isEmpty());
    }

    // Letter for letter, double blanks included.
    void captions_are_as_users_know_them() {
        starte();
        mit_Dialog([](QDialog& d) {
            QCOMPARE(d.windowTitle(), u"Options"_s);
            QStringList Titel;
            for (const auto* k : d.findChildren<QGroupBox*>()) Titel << k->title();
            QCOMPARE(Titel, (QStringList{u"Concentration expressed in:"_s,
                                         u"Separate consideration of  residues from different applications:"_s,
                                         u"TWA durations according to:"_s, u"Name of output files contains:"_s,
                                         u"Show tooltips"_s, u"Appearance:"_s}));
            for (const auto& [Name, Text] : {std::pair("Einheit_0", u"mg"_s),
                                             {"Einheit_1", u"\u00B5g"_s},
                                             {"Separate_Rueckstaende_0", u"No"_s},
                                             {"Separate_Rueckstaende_1", u"Yes"_s},
                                             {"Separate_Rueckstaende_2", u"Yes, but only within a year"_s},
                                             {"TWA_Zeiten_0", u"TWA according to JKI"_s},
                                             {"TWA_Zeiten_1", u"EU-Regulation"_s},
                                             {"Check1_0", u"Product"_s},
                                             {"Check1_1", u"Soil Study"_s},
                                             {"Check1_2", u"Kinetics"_s},
                                             {"Check1_3", u"Endpoint"_s},
                                             {"Check1_4", u"Date"_s},
                                             {"Check1_5", u"Time"_s},
                                             {"Tips_anzeigen_0", u"No"_s},
                                             {"Tips_anzeigen_1", u"Yes"_s},
                                             {"Farbeinstellung_0", u"Coloured forms"_s},
                                             {"Farbeinstellung_1", u"Standard windows forms"_s},
                                             {"OK", u"OK"_s},
                                             {"Abbrechen", u"Cancel"_s},
                                             {"Ordner_anlegen", u"Make folder"_s}})
                QCOMPARE(Teil_von<QAbstractButton>(d, Name)->text(), Text);
            QCOMPARE(Teil_von<QLabel>(d, "L_Sprache")->text(), u"Language:"_s);
            QCOMPARE(Teil_von<QLabel>(d, "L_Dir1")->text(), u"Project path:"_s);
            QCOMPARE(Teil_von<QComboBox>(d, "Sprache")->count(), 1);
            QCOMPARE(Teil_von<QComboBox>(d, "Sprache")->currentText(), u"English"_s);
        });
    }

    void the_lists_of_windows_are_called_as_the_settings_say() {
        starte([](Einstellungen& e) {
            e.TWA_Titel_EU = "Ten windows";
            e.TWA_Titel_Monat = "Twelve windows & more";
        });
        mit_Dialog([](QDialog& d) {
            QCOMPARE(Teil_von<QRadioButton>(d, "TWA_Zeiten_0")->text(), u"Twelve windows && more"_s);  // one is seen
            QCOMPARE(Teil_von<QRadioButton>(d, "TWA_Zeiten_1")->text(), u"Ten windows"_s);
        });
    }

    void it_shows_what_is_in_force() {
        starte([](Einstellungen& e) { e.Tips_anzeigen = e.Farbeinstellung = 1; });
        p_->waehle_Simulation("Vines, Compound D");
        const Laufparameter Satz = p_->Programm().Stand().Parameter();
        QCOMPARE(int(Satz.Einheit), 1);
        mit_Dialog([&](QDialog& d) {
            QVERIFY(Teil_von<QRadioButton>(d, "Einheit_1")->isChecked());
            QVERIFY(Teil_von<QRadioButton>(d, "Tips_anzeigen_1")->isChecked());
            QVERIFY(Teil_von<QRadioButton>(d, "Farbeinstellung_1")->isChecked());
            const std::string Rueckstaende = "Separate_Rueckstaende_" + std::to_string(Satz.Separate_Rueckstaende);
            QVERIFY(Teil_von<QRadioButton>(d, Rueckstaende.c_str())->isChecked());
            for (int i = 0; i < 6; ++i) {
                const auto* Haken = Teil_von<QCheckBox>(d, ("Check1_" + std::to_string(i)).c_str());
                QCOMPARE(Haken->isChecked(), Satz.Ausgabename_Teile[static_cast<std::size_t>(i)] == 1);
            }
            QCOMPARE(Teil_von<QLabel>(d, "Projektpfad")->text(), p_->Pfad({}));
        });
    }

    void it_stands_over_the_middle_of_the_window_and_each_control_has_a_name() {
        starte();
        mit_Dialog([&](QDialog& d) {
            // The screen of the tests is narrower than the window: across, the dialog is pushed onto it.
            const QRect Fenster = p_->Fenster().frameGeometry();
            QVERIFY(std::abs(d.frameGeometry().center().y() - Fenster.center().y()) < 40);
            QVERIFY(Fenster.contains(d.geometry()));
            for (QWidget* w : d.findChildren<QWidget*>()) {
                if (!w->isVisible() || w->focusPolicy() == Qt::NoFocus) continue;
                QAccessibleInterface* Leser = QAccessible::queryAccessibleInterface(w);
                QVERIFY2(Leser && !Leser->text(QAccessible::Name).isEmpty(), qPrintable(w->objectName()));
            }
        });
    }

    void enter_is_OK_and_esc_is_cancel() {
        starte();
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        mit_Dialog([](QDialog& d) {
            klicke_auf(d, "Einheit_1");
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QCOMPARE(int(p_->Programm().Stand().Parameter().Einheit), 0);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher);
        mit_Dialog([](QDialog& d) {
            klicke_auf(d, "Einheit_1");
            QTest::keyClick(&d, Qt::Key_Return);
        });
        QCOMPARE(int(p_->Programm().Stand().Parameter().Einheit), 1);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
    }

    void enter_in_the_tree_is_OK() {
        starte();
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        mit_Dialog([](QDialog& d) { QTest::keyClick(Teil_von<QTreeView>(d, "Dir1"), Qt::Key_Return); });
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
    }

    void cancel_changes_nothing_whatever_was_clicked() {
        starte();
        const Laufparameter vorher = p_->Programm().Stand().Parameter();
        const int Zeichnung = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        mit_Dialog([](QDialog& d) {
            for (const char* Name :
                 {"Einheit_1", "Separate_Rueckstaende_2", "TWA_Zeiten_0", "Check1_4", "Tips_anzeigen_1", "Farbeinstellung_1"})
                klicke_auf(d, Name);
            waehle_Ordner(d, u"/"_s);
            klicke_auf(d, "Abbrechen");
        });
        QVERIFY(p_->Programm().Stand().Parameter() == vorher);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
        QCOMPARE(QString::fromStdString(p_->Programm().Stand().Projektpfad), p_->Pfad({}));
        QVERIFY(rahmenfarbe("Kinetikschema") == Farben::Wirkstoff);
    }

    void OK_hands_over_every_option() {
        starte();
        mit_Dialog([](QDialog& d) {
            for (const char* Name :
                 {"Einheit_1", "Separate_Rueckstaende_2", "TWA_Zeiten_0", "Check1_0", "Check1_4", "Tips_anzeigen_1"})
                klicke_auf(d, Name);
            klicke_auf(d, "OK");
        });
        const Zustand& z = p_->Programm().Stand();
        QCOMPARE(int(z.Parameter().Einheit), 1);
        QCOMPARE(int(z.Parameter().Separate_Rueckstaende), 2);
        QCOMPARE(int(z.Parameter().TWA_Zeiten), 0);
        QCOMPARE(int(z.Parameter().Ausgabename_Teile[0]), 0);
        QCOMPARE(int(z.Parameter().Ausgabename_Teile[4]), 1);
        QCOMPARE(int(z.Einstellung.Tips_anzeigen), 1);
        QVERIFY(z.Saetze[Wirkstoff].Geaendert());
    }

    void an_invalid_field_is_told_and_the_dialog_does_not_open() {
        starte();
        p_->tippe("S_Q10_0", "0");
        QCOMPARE(oeffne_und_zaehle(), 0);
        QCOMPARE(Fragen_.nimm(), QStringList{u"No valid input!: The Q10 constant is invalid. Please correct!"_s});
        QVERIFY(p_->sichtbar("Abdeckung"));
    }

    void a_valid_field_is_accepted_before_the_dialog_opens() {
        starte();
        p_->tippe("S_DT50_0", "3");
        mit_Dialog([&](QDialog& d) {
            QCOMPARE(p_->Programm().zeige<Feldeingabe>().aktives_Feld(), -1);
            QVERIFY(!p_->sichtbar("Abdeckung"));
            d.reject();
        });
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QCOMPARE(p_->Teil<QLineEdit>("S_DT50_0")->text(), u"3"_s);
    }

    // Fifteen rows of the monthly list, thirteen of the other, and the frames as high as their rows.
    void the_grids_follow_the_list_of_windows() {
        starte();
        p_->waehle_Simulation("Potatoes, Compound C");
        bestaetige("TWA_Zeiten_0");
        for (const char* Name : {"Ergebnisse_1", "Ergebnisse_2"}) QCOMPARE(p_->Teil<QTableWidget>(Name)->rowCount(), 15);
        QCOMPARE(p_->Zelle("Ergebnisse_1", 2, 0), u"30 d"_s);
        QCOMPARE(p_->Teil<QComboBox>("TWA_Laenge")->count(), 12);
        QCOMPARE(p_->Teil<QComboBox>("TWA_Laenge")->currentText(), u"TWA (30 d)"_s);
        const int hoch = p_->Teil<QWidget>("Ergebnisrahmen_1")->height();
        bestaetige("TWA_Zeiten_1");
        for (const char* Name : {"Ergebnisse_1", "Ergebnisse_2"}) QCOMPARE(p_->Teil<QTableWidget>(Name)->rowCount(), 13);
        QCOMPARE(p_->Zelle("Ergebnisse_1", 2, 0), u"1 d"_s);
        QVERIFY(p_->Teil<QWidget>("Ergebnisrahmen_1")->height() < hoch);
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        bestaetige("TWA_Zeiten_0");
        QCOMPARE(p_->Teil<QTableWidget>("Ergebnisse_Zusammenfassung_1")->rowCount(), 15);
        QVERIFY(p_->sichtbar("Diagramm_Zusammenfassung_1"));
        QVERIFY(!p_->gibt_es_sichtbar(u"Diagramm_1"_s));
    }

    void the_unit_is_seen_in_the_grid_and_in_its_title() {
        starte();
        const double mg = p_->Zelle("Ergebnisse_0", 1, 1).toDouble();
        bestaetige("Einheit_1");
        QVERIFY(std::abs(p_->Zelle("Ergebnisse_0", 1, 1).toDouble() / mg / 1000 - 1) < 1e-3);
        QVERIFY(p_->Teil<QLabel>("Ergebnistitel_0")->text().contains(u"\u00B5g/kg"_s));
    }

    void the_appearance_colours_the_frames_and_the_description_at_once() {
        starte();
        const QColor grau = p_->Fenster().palette().color(QPalette::Button);
        for (int Runde = 0; Runde < 2; ++Runde) {
            QCOMPARE(rahmenfarbe("Kinetikschema"), QColor(192, 255, 192));
            QCOMPARE(rahmenfarbe("Applikationsrahmen"), QColor(255, 255, 192));
            QCOMPARE(rahmenfarbe("Szenariorahmen"), QColor(255, 192, 128));
            QCOMPARE(rahmenfarbe("Substanz_0"), QColor(192, 255, 192));
            QCOMPARE(Schriftfarbe("Beschreibung"), QColor(0, 0, 255));
            bestaetige("Farbeinstellung_1");
            for (const char* Name : {"Kinetikschema", "Applikationsrahmen", "Szenariorahmen", "Substanz_0", "Abbaudaten"})
                QCOMPARE(rahmenfarbe(Name), p_->Fenster().palette().color(QPalette::Window));
            QCOMPARE(p_->Teil<QWidget>("Kinetikschema")->palette().color(QPalette::Button), grau);
            QCOMPARE(Schriftfarbe("Beschreibung"), p_->Fenster().palette().color(QPalette::ButtonText));
            bestaetige("Farbeinstellung_0");
        }
    }

    void the_appearance_of_the_settings_is_there_from_the_start() {
        starte([](Einstellungen& e) { e.Farbeinstellung = 1; });
        QCOMPARE(rahmenfarbe("Kinetikschema"), p_->Fenster().palette().color(QPalette::Window));
        QCOMPARE(Schriftfarbe("Beschreibung"), p_->Fenster().palette().color(QPalette::ButtonText));
    }

    // What another dialog does: mark its parts, then have them coloured.
    void any_form_can_be_coloured() {
        QDialog Formular;
        QWidget Zeile(&Formular), Teil_der_Zeile(&Zeile), andere(&Formular);
        setze_Rahmenart(Zeile, Rahmenart::Applikation);
        Einstellungen e;
        farbe_einstellen(Formular, e);
        QCOMPARE(Teil_der_Zeile.palette().color(QPalette::Window), Farben::Applikation);
        QCOMPARE(andere.palette().color(QPalette::Window), QApplication::palette().color(QPalette::Window));
        setze_Rahmenart(Formular, Rahmenart::Szenario);
        farbe_einstellen(Formular, e);
        QCOMPARE(andere.palette().color(QPalette::Window), Farben::Szenario);
        QCOMPARE(Zeile.palette().color(QPalette::Window), Farben::Applikation);
        e.Farbeinstellung = 1;
        farbe_einstellen(Formular, e);
        for (const QWidget* w : {static_cast<QWidget*>(&Formular), &Zeile, &Teil_der_Zeile, &andere})
            QCOMPARE(w->palette().color(QPalette::Window), QApplication::palette().color(QPalette::Window));
    }

    void tooltips_switched_off_say_when_they_go() {
        starte([](Einstellungen& e) { e.Tips_anzeigen = 1; });
        bestaetige("Tips_anzeigen_0");
        QCOMPARE(Fragen_.nimm(),
                 QStringList{u"Tooltips: The tooltips will be switched off when you exit VARNOK and call it again!"_s});
        QVERIFY(p_->Inhalt(u"VARNOK.ini"_s).startsWith("Tooltips:\t0\r\n"));
    }
};

namespace {
const Anmeldung<Optionentest> Anmeldung_der_Optionen;
}

}  // namespace varnok

#include "optionen_test.moc"
