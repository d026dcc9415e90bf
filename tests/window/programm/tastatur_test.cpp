// The window without a mouse: where Enter and Tab lead, that the focus is seen, and what is read out.

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <cmath>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/programm/optionendialog.h"
#include "window/saetze/simulationen.h"
#include "window/saetze/szenario_form.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

double linear(double Anteil) { return Anteil <= 0.04045 ? Anteil / 12.92 : std::pow((Anteil + 0.055) / 1.055, 2.4); }
double Leuchtdichte(QRgb f) {
    return 0.2126 * linear(qRed(f) / 255.0) + 0.7152 * linear(qGreen(f) / 255.0) + 0.0722 * linear(qBlue(f) / 255.0);
}
double Kontrast(QRgb a, QRgb b) {
    const double hell = Leuchtdichte(a) + 0.05, dunkel = Leuchtdichte(b) + 0.05;
    return std::max(hell / dunkel, dunkel / hell);
}

// The surroundings of a control as they stand on its window.
QImage Bild_um(QWidget& w) {
    constexpr int Rand = 4;
    QWidget& Fenster = *w.window();
    const QRect Ort = QRect(w.mapTo(&Fenster, QPoint(0, 0)), w.size()).adjusted(-Rand, -Rand, Rand, Rand);
    return Fenster.grab(Ort).toImage().convertToFormat(QImage::Format_RGB32);
}

// Dots that the focus changes so that the change is seen.
int deutlich_andere(const QImage& mit, const QImage& ohne) {
    int n = 0;
    for (int y = 0; y < std::min(mit.height(), ohne.height()); ++y) {
        for (int x = 0; x < std::min(mit.width(), ohne.width()); ++x)
            n += Kontrast(mit.pixel(x, y), ohne.pixel(x, y)) >= 3 ? 1 : 0;
    }
    return n;
}

QPalette dunkle_Palette() {
    QPalette p(QColor(56, 58, 62), QColor(45, 47, 50));
    p.setColor(QPalette::Base, QColor(34, 35, 38));
    return p;
}

bool hat_Fokus(QDialog& d) {
    d.activateWindow();
    return QTest::qWaitFor([&d] { return d.isAncestorOf(QApplication::focusWidget()); });
}

bool bedienbar(const QWidget& w) { return w.isVisible() && w.isEnabled() && w.focusPolicy() != Qt::NoFocus && !w.focusProxy(); }

// Controls of a page that one name is read out for.
QString Gleichnamige(const QWidget& Fenster) {
    QHash<QString, QStringList> Namen;
    for (QWidget* w : Fenster.findChildren<QWidget*>()) {
        if (!bedienbar(*w) || w->window() != &Fenster || w->objectName().startsWith(u"qt_"_s)) continue;
        const QAccessibleInterface* Vorleser = QAccessible::queryAccessibleInterface(w);
        Namen[Vorleser ? Vorleser->text(QAccessible::Name) : QString()] << w->objectName();
        Namen[u"(own) "_s + (w->accessibleName().isEmpty() ? w->objectName() : w->accessibleName())] << w->objectName();
    }
    QString Liste;
    for (auto i = Namen.cbegin(); i != Namen.cend(); ++i) {
        if (i->size() > 1 || i.key().isEmpty()) Liste += u'"' + i.key() + u"\": "_s + i->join(u", "_s) + u'\n';
    }
    return Liste;
}

// The chosen options among those that Tab, or with Shift the way back, comes upon; the others with a question mark.
QStringList Optionen_am_Weg(QWidget& Fenster, Qt::KeyboardModifiers Zusatz = {}) {
    QStringList Weg;
    QSet<const QWidget*> besucht;
    for (int i = 0; i < 100 && !besucht.contains(QApplication::focusWidget()); ++i) {
        QWidget* w = QApplication::focusWidget();
        if (!w || w->window() != &Fenster) break;
        besucht << w;
        const auto* Option = qobject_cast<const QRadioButton*>(w);
        if (Option) Weg << Option->objectName() + (Option->isChecked() ? QString() : u"?"_s);
        QTest::keyClick(w, Zusatz ? Qt::Key_Backtab : Qt::Key_Tab, Zusatz);
        QTest::qWait(1);
    }
    Weg.sort();
    return Weg;
}

}  // namespace

class Tastaturtest : public QObject, private Optionendialog {
    Q_OBJECT

private Q_SLOTS:
    void init() { Palette_ = QApplication::palette(); }
    void cleanup() {
        p_.reset();
        QApplication::setPalette(Palette_);
    }

    void enter_presses_the_only_button_of_the_start_page_data() {
        QTest::addColumn<int>("Taste");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void enter_presses_the_only_button_of_the_start_page() {
        QFETCH(int, Taste);
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"Starten"_s);
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(Taste));
        QTest::qWait(1);
        QVERIFY(p_->Programm().Stand().Gestartet);
        // A second Enter ends nothing.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::qWait(1);
        QVERIFY(p_->Fenster().isVisible());
        QVERIFY(!p_->Programm().Stand().beendet());
    }

    void tab_enters_a_group_at_the_chosen_option() {
        starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        Fragen_.nimm();
        for (const char* Option : {"Substanz_2", "Applikationsmuster_0", "Endpunkt_0", "PEC_Typ_2"}) p_->waehle(Option);
        pruefe_Gruppen({u"Applikationsmuster_0"_s, u"Endpunkt_0"_s, u"PEC_Typ_2"_s, u"Substanz_2"_s});
        // What the program chooses counts as well.
        p_->blaettere("Berechnungsmodus_Leiste", 1);
        pruefe_Gruppen({u"Applikationsmuster_0"_s, u"Endpunkt_0"_s, u"PEC_Typ_2"_s, u"Substanz_0"_s});
        p_->waehle_Simulation("Vines, Compound D");
        pruefe_Gruppen({u"Applikationsmuster_2"_s, u"Endpunkt_0"_s, u"PEC_Typ_0"_s, u"Substanz_0"_s});
        Fragen_.nimm();
    }

    void tab_enters_the_groups_of_dialogs_at_the_chosen_option() {
        starte();
        QCOMPARE(mit_Dialog([&](QDialog& d) {
                     QVERIFY(hat_Fokus(d));
                     klicke_auf(d, "TWA_Zeiten_1");
                     const QStringList Weg = Optionen_am_Weg(d);
                     QCOMPARE(Weg.filter(u"?"_s), QStringList());
                     QCOMPARE(Weg.size(), 5);
                 }),
                 1);
        bei_Dialog<Szenario_Form>([&](Szenario_Form& f) {
            QVERIFY(hat_Fokus(f));
            const QStringList Weg = Optionen_am_Weg(f);
            QCOMPARE(Weg.filter(u"?"_s), QStringList());
            QCOMPARE(Weg.size(), 3);
        });
        p_->klicke("Edit");
        p_->aktiviere();
    }

    void arrows_go_on_within_a_group() {
        starte();
        p_->Teil<QRadioButton>("PEC_Typ_0")->setFocus();
        p_->druecke("PEC_Typ_0", Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"PEC_Typ_1"_s);
        QVERIFY(p_->Teil<QRadioButton>("PEC_Typ_1")->isChecked());
        QCOMPARE(p_->Programm().Stand().Sicht.PEC_Typ, Hintergrund);
    }

    void the_focus_is_seen_on_every_control_data() {
        QTest::addColumn<bool>("dunkel");
        QTest::addColumn<bool>("farbig");
        QTest::newRow("light") << false << true;
        QTest::newRow("dark") << true << true;
        QTest::newRow("light, without colours") << false << false;
        QTest::newRow("dark, without colours") << true << false;
    }
    void the_focus_is_seen_on_every_control() {
        QFETCH(bool, dunkel);
        QFETCH(bool, farbig);
        if (dunkel) QApplication::setPalette(dunkle_Palette());
        Optionendialog::starte([&](Einstellungen& e) { e.Farbeinstellung = farbig ? 0 : 1; });
        p_->Fenster().resize(1280, 900);
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_0");  // the view with tables of results
        QStringList gesehen;
        for (int Seite = 2; Seite >= 0; --Seite) {
            p_->blaettere("Wirkstoffdaten_Leiste", Seite);
            pruefe_Sichtbarkeit(gesehen);
        }
        p_->waehle("Applikationsmuster_2");
        pruefe_Sichtbarkeit(gesehen);
        for (const char* Name : {"Applikationsschema", "Ergebnisse_8", "PEC_Typ_0", "Ende", "App_Monat", "S_Q10_0",
                                 "Beschreibung", "Wirkstoffdaten_Leiste", "Berechnungsmodus_Leiste", "S_KOC_1"})
            QVERIFY2(gesehen.contains(QString::fromLatin1(Name)), Name);
        Fragen_.nimm();
    }

    void the_focus_is_seen_in_dialogs() {
        starte();
        QCOMPARE(mit_Dialog([&](QDialog& d) {
                     QVERIFY(hat_Fokus(d));
                     QStringList gesehen;
                     pruefe_Sichtbarkeit(d, *Teil_von<QWidget>(d, "OK"), *Teil_von<QWidget>(d, "Abbrechen"), gesehen);
                     for (const char* Name : {"Dir1", "Check1_0", "Einheit_0", "Sprache", "OK"})
                         QVERIFY2(gesehen.contains(QString::fromLatin1(Name)), Name);
                 }),
                 1);
    }

    void the_cell_in_work_is_seen_in_the_table_of_applications() {
        starte();
        p_->waehle_Simulation("Vines, Compound D");
        auto* t = p_->Teil<QTableWidget>("Applikationsschema");
        t->setFocus();
        t->setCurrentCell(0, 0);
        const QImage erste = t->grab().toImage();
        p_->druecke("Applikationsschema", Qt::Key_Down);
        QCOMPARE(t->currentRow(), 1);
        QVERIFY(deutlich_andere(erste, t->grab().toImage()) > 100);
        // Typed into, it stays so.
        QTest::keyClicks(t, u"1"_s);
        QVERIFY(t->item(1, 0)->isSelected());
        Fragen_.nimm();
    }

    void no_two_controls_of_a_page_have_the_same_name() {
        starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        for (int Muster = 0; Muster < 3; ++Muster) {
            p_->waehle(("Applikationsmuster_" + QByteArray::number(Muster)).constData());
            for (int Seite = 0; Seite < 3; ++Seite) {
                p_->blaettere("Wirkstoffdaten_Leiste", Seite);
                QCOMPARE(Gleichnamige(p_->Fenster()), QString());
            }
        }
        p_->blaettere("Wirkstoffdaten_Leiste", 0);
        for (int Kinetik = 0; Kinetik < 4; ++Kinetik) {
            p_->waehle_Eintrag("S_Kinetik_0", Kinetik);
            QCOMPARE(Gleichnamige(p_->Fenster()), QString());
        }
        Fragen_.nimm();
    }

    void no_two_controls_of_a_dialog_have_the_same_name() {
        starte();
        QCOMPARE(mit_Dialog([&](QDialog& d) { QCOMPARE(Gleichnamige(d), QString()); }), 1);
        bei_Dialog<Szenario_Form>([&](Szenario_Form& f) { QCOMPARE(Gleichnamige(f), QString()); });
        p_->klicke("Edit");
        p_->aktiviere();
        bei_Dialog<Simulationen>([&](Simulationen& s) { QCOMPARE(Gleichnamige(s), QString()); });
        p_->Teil<QAction>("M_Laden")->trigger();
        p_->aktiviere();
    }

    // What a screen reader says of a list: what it is for, and what is chosen.
    void a_list_is_read_with_its_meaning_and_its_entry() {
        starte();
        const auto gelesen = [&](const char* Liste, QAccessible::Text Art) {
            return QAccessible::queryAccessibleInterface(p_->Teil<QComboBox>(Liste))->text(Art);
        };
        QCOMPARE(gelesen("App_Tag", QAccessible::Name), u"Date, day: 1"_s);
        QCOMPARE(gelesen("App_Monat", QAccessible::Name), u"Date, month: Apr"_s);
        QCOMPARE(gelesen("App_Monat", QAccessible::Value), u"Apr"_s);
        p_->waehle_Eintrag("App_Monat", 6);
        QCOMPARE(gelesen("App_Monat", QAccessible::Name), u"Date, month: Jul"_s);
        auto* Vorleser = QAccessible::queryAccessibleInterface(p_->Teil<QComboBox>("App_Monat"));
        QCOMPARE(Vorleser->role(), QAccessible::ComboBox);
        QCOMPARE(Vorleser->childCount(), 1);
        QCOMPARE(Vorleser->child(0)->role(), QAccessible::List);
        Vorleser->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(p_->Teil<QComboBox>("App_Monat")->view()->isVisible());
        p_->Teil<QComboBox>("App_Monat")->hidePopup();
    }

private:
    void pruefe_Gruppen(const QStringList& erwartet) {
        auto* Anfang = p_->Teil<QWidget>("Simulationsliste");
        Anfang->setFocus();
        QCOMPARE(Optionen_am_Weg(p_->Fenster()), erwartet);
        Anfang->setFocus();
        QCOMPARE(Optionen_am_Weg(p_->Fenster(), Qt::ShiftModifier), erwartet);
    }

    void pruefe_Sichtbarkeit(QStringList& gesehen) {
        pruefe_Sichtbarkeit(p_->Fenster(), *p_->Teil<QWidget>("Aktualisieren"), *p_->Teil<QWidget>("Ende"), gesehen);
    }
    // The focus comes from one control, to that one from the other.
    void pruefe_Sichtbarkeit(QWidget& Fenster, QWidget& eines, QWidget& anderes, QStringList& gesehen) {
        for (QWidget* w : Fenster.findChildren<QWidget*>()) {
            if (!bedienbar(*w) || w->window() != &Fenster || w->objectName().startsWith(u"qt_"_s)) continue;
            (w == &eines ? anderes : eines).setFocus(Qt::TabFocusReason);
            QTest::qWait(1);
            const QImage ohne = Bild_um(*w);
            w->setFocus(Qt::TabFocusReason);
            QTest::qWait(1);
            const QImage mit = Bild_um(*w);
            const int Punkte = deutlich_andere(mit, ohne), noetig = w->width() + w->height();
            QVERIFY2(Punkte >= noetig, qPrintable(u"%1: %2 of %3"_s.arg(w->objectName()).arg(Punkte).arg(noetig)));
            gesehen << w->objectName();
        }
        Fragen_.nimm();
    }

    QPalette Palette_;
};

namespace {
const Anmeldung<Tastaturtest> angemeldet;
}

}  // namespace varnok

#include "tastatur_test.moc"
