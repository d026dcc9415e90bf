// What is typed: where it lands, what it refreshes, how it is taken back, and what tells of it.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <algorithm>
#include <string>

#include "diagrams/diagramm.h"
#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

constexpr QColor Gelb(255, 255, 0);

// The widgets that are painted anew or change their looks; what lies below a painted widget is painted with it and does not
// count.
class Auffrischungen : public QObject {
public:
    Auffrischungen() { qApp->installEventFilter(this); }
    QStringList Namen() const {
        QStringList Liste;
        for (const QWidget* w : Teile_) {
            const bool traegt =
                std::any_of(Teile_.begin(), Teile_.end(), [w](const QWidget* x) { return x != w && w->isAncestorOf(x); });
            if (!traegt) Liste << QString::fromLatin1(w->metaObject()->className()) + u' ' + w->objectName();
        }
        return Liste;
    }

protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        auto* w = qobject_cast<QWidget*>(o);
        if (w && e->type() == QEvent::Paint) Teile_.insert(w);
        if (w && (e->type() == QEvent::EnabledChange || e->type() == QEvent::PaletteChange)) Teile_.insert(w);
        return false;
    }

private:
    QSet<QWidget*> Teile_;
};

// Writes something else into all other fields and lists, behind the program's back: what shows the session again afterwards was
// refreshed.
class Verstellte {
public:
    Verstellte(const QWidget& Fenster, const QWidget* ausser) {
        for (QLineEdit* f : Fenster.findChildren<QLineEdit*>()) {
            if (f == ausser || qobject_cast<QComboBox*>(f->parentWidget())) continue;
            f->setText(u"?"_s);
            Felder_ << f;
        }
        for (QComboBox* l : Fenster.findChildren<QComboBox*>()) {
            if (l->currentIndex() < 0) continue;
            const QSignalBlocker still(l);
            l->setCurrentIndex(-1);
            Listen_ << l;
        }
    }
    QStringList erneuerte() const {
        QStringList Namen;
        for (const QLineEdit* f : Felder_) {
            if (f->text() != u"?"_s) Namen << f->objectName();
        }
        for (const QComboBox* l : Listen_) {
            if (l->currentIndex() >= 0) Namen << l->objectName();
        }
        return Namen;
    }
    qsizetype Anzahl() const { return Felder_.size() + Listen_.size(); }

private:
    QList<QLineEdit*> Felder_;
    QList<QComboBox*> Listen_;
};

// Counts the yellow fields whenever something is asked.
class Farbzaehler : public Mitschrift {
public:
    Knopf frage(const Frage& f) override {
        if (Fenster) hoechstens = std::max(hoechstens, zaehle(*Fenster));
        return Mitschrift::frage(f);
    }
    static int zaehle(const QWidget& Fenster) {
        int n = 0;
        for (const QLineEdit* f : Fenster.findChildren<QLineEdit*>())
            n += f->isVisible() && f->palette().color(QPalette::Active, QPalette::Base) == Gelb ? 1 : 0;
        return n;
    }
    const QWidget* Fenster = nullptr;
    int hoechstens = 0;
};

}  // namespace

class Tipptest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
        Fragen_.Fenster = &p_->Fenster();
        Fragen_.hoechstens = 0;
    }
    void cleanup() {
        Fragen_.Fenster = nullptr;
        p_.reset();
    }

    void a_text_typed_after_the_right_press_lands_in_the_description_data() {
        QTest::addColumn<QByteArray>("Zahl");
        QTest::newRow("nothing typed in DT50") << QByteArray();
        QTest::newRow("a number typed in DT50") << QByteArray("17");
    }
    void a_text_typed_after_the_right_press_lands_in_the_description() {
        QFETCH(QByteArray, Zahl);
        const QString alt = feld("S_DT50_0")->text();
        druecke_auf("S_DT50_0", Qt::LeftButton);
        feld("S_DT50_0")->selectAll();
        QTest::keyClicks(feld("S_DT50_0"), QString::fromLatin1(Zahl));
        druecke_auf("Beschreibung", Qt::RightButton);
        QCOMPARE(Farbzaehler::zaehle(p_->Fenster()), 1);
        QVERIFY(QApplication::focusWidget() == feld("Beschreibung"));
        feld("Beschreibung")->selectAll();
        tippe_weiter(u"42 days"_s);
        QTest::keyClick(p_->Fenster().windowHandle(), Qt::Key_Return);
        QTest::qWait(5);
        QCOMPARE(Stand().Vorgabe.Beschreibung, std::string("42 days"));
        QCOMPARE(feld("S_DT50_0")->text(), Zahl.isEmpty() ? alt : QString::fromLatin1(Zahl));
        QVERIFY(feld("Beschreibung")->isReadOnly());
        QCOMPARE(Fragen_.nimm(), QStringList());
    }

    void an_invalid_number_keeps_the_description_locked() {
        p_->tippe("S_Q10_0", "0");
        druecke_auf("Beschreibung", Qt::RightButton);
        QTest::qWait(20);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QVERIFY(feld("Beschreibung")->isReadOnly());
        QVERIFY(QApplication::focusWidget() == feld("S_Q10_0"));
        QCOMPARE(Farbzaehler::zaehle(p_->Fenster()), 1);
    }

    void one_field_is_yellow_at_a_time() {
        p_->tippe("S_Q10_0", "0");
        QTest::mouseClick(feld("S_DT50_0"), Qt::LeftButton);
        QTest::qWait(20);
        QCOMPARE(Fragen_.nimm().size(), 1);
        QCOMPARE(Fragen_.hoechstens, 1);
        QCOMPARE(Farbzaehler::zaehle(p_->Fenster()), 1);
        p_->tippe("S_Q10_0", "2");
        QTest::mouseClick(feld("S_DT50_0"), Qt::LeftButton);
        QCOMPARE(Farbzaehler::zaehle(p_->Fenster()), 1);
        QTest::qWait(20);
        QCOMPARE(Farbzaehler::zaehle(p_->Fenster()), 1);
        QCOMPARE(feld("S_DT50_0")->palette().color(QPalette::Active, QPalette::Base), Gelb);
    }

    void a_double_click_selects_the_whole_number_data() {
        QTest::addColumn<QByteArray>("Zahl");
        for (const char* z : {"12.5", "-5", "1E-05", "2 5"}) QTest::newRow(z) << QByteArray(z);
    }
    void a_double_click_selects_the_whole_number() {
        QFETCH(QByteArray, Zahl);
        p_->tippe("S_TRef_0", Zahl);
        QLineEdit* f = feld("S_TRef_0");
        f->deselect();
        const QPoint Ort = f->mapTo(&p_->Fenster(), QPoint(f->width() - 8, f->height() / 2));
        QTest::mouseDClick(p_->Fenster().windowHandle(), Qt::LeftButton, {}, Ort);
        QCOMPARE(f->selectedText(), QString::fromLatin1(Zahl));
        p_->druecke("S_TRef_0", Qt::Key_Escape);
    }

    void a_key_refreshes_at_most_five_widgets_data() {
        QTest::addColumn<QByteArray>("Feld");
        for (const char* f : {"S_DT50_0", "Applikationsrate", "Beschreibung"}) QTest::newRow(f) << QByteArray(f);
    }
    void a_key_refreshes_at_most_five_widgets() {
        QFETCH(QByteArray, Feld);
        druecke_auf(Feld, Feld == "Beschreibung" ? Qt::RightButton : Qt::LeftButton);
        feld(Feld)->end(false);
        QTest::qWait(50);
        for (int i = 0; i < 2; ++i) {  // the first one lights the hint
            const Auffrischungen Zaehler;
            QTest::keyClick(p_->Fenster().windowHandle(), Qt::Key_1);
            QTest::qWait(50);
            const QStringList Namen = Zaehler.Namen();
            QVERIFY(!Namen.isEmpty());
            QVERIFY2(Namen.size() <= 5, qPrintable(Namen.join(u", "_s)));
        }
        const Verstellte andere(p_->Fenster(), feld(Feld));
        QVERIFY(andere.Anzahl() > 30);
        QTest::keyClick(p_->Fenster().windowHandle(), Qt::Key_1);
        QVERIFY2(andere.erneuerte().size() <= 5, qPrintable(andere.erneuerte().join(u", "_s)));
        QVERIFY(p_->Fenster().windowTitle().endsWith(u'*'));
        if (Feld != "Beschreibung") QVERIFY(!p_->Teil<QPushButton>("Aktualisieren")->icon().isNull());
    }

    void a_key_in_a_cell_shows_in_the_cell_and_refreshes_little() {
        p_->waehle("Applikationsmuster_2");
        Fragen_.vergiss();
        auto* Tafel = p_->Teil<QTableWidget>("Applikationsschema");
        Tafel->setFocus();
        Tafel->setCurrentCell(0, 2);
        QTest::qWait(50);
        const QString alt = p_->Zelle("Applikationsschema", 0, 2);
        const Auffrischungen Zaehler;
        QTest::keyClick(Tafel, Qt::Key_7);
        QTest::qWait(50);
        const QStringList Namen = Zaehler.Namen();
        QCOMPARE(p_->Zelle("Applikationsschema", 0, 2), alt + u'7');
        QVERIFY2(Namen.size() <= 5, qPrintable(Namen.join(u", "_s)));
        const Verstellte andere(p_->Fenster(), nullptr);
        QTest::keyClick(Tafel, Qt::Key_7);
        QVERIFY2(andere.erneuerte().size() <= 5, qPrintable(andere.erneuerte().join(u", "_s)));
    }

    void the_title_has_a_star_while_something_is_in_no_file() {
        QVERIFY(!p_->Fenster().windowTitle().contains(u'*'));
        p_->tippe("S_DT50_0", "17");
        QVERIFY(p_->Fenster().windowTitle().endsWith(u'*'));
        p_->druecke("S_DT50_0", Qt::Key_Escape);
        QVERIFY(!p_->Fenster().windowTitle().contains(u'*'));
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QVERIFY(p_->Fenster().windowTitle().endsWith(u'*'));
        p_->klicke("speichern");
        QVERIFY(!p_->Fenster().windowTitle().contains(u'*'));
    }

    void undo_and_redo_stand_first_in_their_menu_and_name_what_they_do() {
        const auto* Menue = p_->Teil<QMenu>("M_editieren");
        auto* zurueck = p_->Teil<QAction>("M_Rueckgaengig");
        auto* vor = p_->Teil<QAction>("M_Wiederholen");
        QVERIFY(Menue->actions()[0] == zurueck);
        QVERIFY(Menue->actions()[1] == vor);
        QCOMPARE(zurueck->shortcut(), QKeySequence(u"Ctrl+Z"_s));
        QCOMPARE(vor->shortcut(), QKeySequence(u"Ctrl+Shift+Z"_s));
        QVERIFY(!zurueck->isEnabled());
        QVERIFY(!vor->isEnabled());
        QCOMPARE(zurueck->text().remove(u'&'), u"Undo"_s);
        const QString alt = feld("S_DT50_0")->text();
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QVERIFY(zurueck->isEnabled());
        QCOMPARE(zurueck->text().remove(u'&'), u"Undo DT50 (d)"_s);
        zurueck->trigger();
        QCOMPARE(feld("S_DT50_0")->text(), alt);
        QVERIFY(!zurueck->isEnabled());
        QVERIFY(vor->isEnabled());
        QCOMPARE(vor->text().remove(u'&'), u"Redo DT50 (d)"_s);
        vor->trigger();
        QCOMPARE(feld("S_DT50_0")->text(), u"17"_s);
        QVERIFY(!p_->sichtbar("Abdeckung"));
        QVERIFY(!vor->isEnabled());
    }

    void in_a_field_ctrl_z_takes_back_what_is_typed_and_then_the_step_before() {
        const QString alte_Rate = feld("Applikationsrate")->text(), altes_DT50 = feld("S_DT50_0")->text();
        p_->tippe("Applikationsrate", "750");
        p_->druecke("Applikationsrate", Qt::Key_Tab);
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(feld("S_DT50_0")->text(), altes_DT50);
        QCOMPARE(feld("Applikationsrate")->text(), u"750"_s);
        p_->druecke("S_DT50_0", Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(feld("S_DT50_0")->text(), u"17"_s);
        p_->druecke("S_DT50_0", Qt::Key_Z, Qt::ControlModifier);
        p_->druecke("S_DT50_0", Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(feld("S_DT50_0")->text(), altes_DT50);
        QCOMPARE(feld("Applikationsrate")->text(), alte_Rate);
    }

    void an_accepted_number_is_taken_back_as_a_step() {
        const QString alt = feld("S_DT50_0")->text();
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Return);
        p_->druecke("S_DT50_0", Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(feld("S_DT50_0")->text(), alt);
        QVERIFY(p_->Teil<QAction>("M_Wiederholen")->isEnabled());
        QVERIFY(!Stand().Hinweis());
    }

    void the_status_line_begins_with_the_time() {
        p_->klicke("speichern");
        const QString Text = p_->Teil<QLabel>("Statuszeile")->text();
        QVERIFY2(Text.contains(QRegularExpression(u"^\\d\\d:\\d\\d \\S"_s)), qPrintable(Text));
        QCOMPARE(aus_Qt(Text), Stand().Statuszeile.Zeit() + " " + Stand().Statuszeile.Text());
        p_->tippe("S_DT50_0", "17");
        p_->druecke("S_DT50_0", Qt::Key_Tab);
        QCOMPARE(p_->Teil<QLabel>("Statuszeile")->text(), QString());
    }

    void a_report_carries_the_names_of_the_moment_data() {
        QTest::addColumn<bool>("Taste");
        QTest::addColumn<QByteArray>("Feld");
        for (const char* f : {"Beschreibung", "Name_Wirkstoff_1"}) {
            QTest::addRow("%s, button", f) << false << QByteArray(f);
            QTest::addRow("%s, key", f) << true << QByteArray(f);
        }
    }
    void a_report_carries_the_names_of_the_moment() {
        QFETCH(bool, Taste);
        QFETCH(QByteArray, Feld);
        p_->waehle_Simulation("Vines, Compound D");  // with metabolites, so that compounds are named
        p_->blaettere("Wirkstoffdaten_Leiste", 1);
        druecke_auf(Feld, Feld == "Beschreibung" ? Qt::RightButton : Qt::LeftButton);
        feld(Feld)->selectAll();
        tippe_weiter(u"Quite new"_s);
        if (Taste)
            QTest::keyClick(p_->Fenster().windowHandle(), Qt::Key_R, Qt::ControlModifier);
        else
            p_->klicke("Bericht_erstellen");
        QTest::qWait(20);
        QVERIFY(p_->sichtbar("Bericht"));
        QVERIFY(p_->Teil<QTextEdit>("Bericht")->toPlainText().contains(u"Quite new"_s));
        const Diagramm* Bild = p_->Programm().zeige<Diagrammsteuerung>().vorderes();
        QVERIFY(Bild != nullptr);
        const std::string Beschriftung = Bild->Titel.Text + Bild->Kommentar.Text;
        QVERIFY2(Beschriftung.find("Quite new") != std::string::npos, Beschriftung.c_str());
    }

    // The press takes the focus, the command would come with the release; given up outside the button it does not come.
    void a_field_left_for_a_button_waits_for_its_release() {
        p_->tippe("S_DT50_0", "17");
        auto* Knopf = p_->Teil<QPushButton>("Aktualisieren");
        const int Feld = p_->Programm().zeige<Feldeingabe>().aktives_Feld();
        QVERIFY(Feld >= 0);
        Knopf->setFocus(Qt::MouseFocusReason);
        QTest::mousePress(Knopf, Qt::LeftButton);
        QTest::qWait(40);
        QCOMPARE(p_->Programm().zeige<Feldeingabe>().aktives_Feld(), Feld);
        QMouseEvent weg(QEvent::MouseMove, QPointF(-30, -30), Knopf->mapToGlobal(QPointF(-30, -30)), Qt::NoButton, Qt::LeftButton,
                        {});
        QApplication::sendEvent(Knopf, &weg);
        QTRY_COMPARE(p_->Programm().zeige<Feldeingabe>().aktives_Feld(), -1);
        QTest::mouseRelease(Knopf, Qt::LeftButton, {}, QPoint(-30, -30));
        QVERIFY(!Stand().Hinweis());
        QCOMPARE(feld("S_DT50_0")->text(), u"17"_s);
    }

private:
    const Zustand& Stand() { return p_->Programm().Stand(); }
    QLineEdit* feld(const char* Name) { return p_->Teil<QLineEdit>(Name); }
    // As the desktop tells it: the press gives the focus.
    void druecke_auf(const char* Name, Qt::MouseButton Taste) {
        QTest::mouseClick(p_->Fenster().windowHandle(), Taste, {},
                          feld(Name)->mapTo(&p_->Fenster(), feld(Name)->rect().center()));
        QTest::qWait(5);
    }
    // Keys to whatever has the focus.
    void tippe_weiter(const QString& Text) {
        for (const QChar z : Text) QTest::keyClick(p_->Fenster().windowHandle(), z.toLatin1());
        QTest::qWait(1);
    }

    Farbzaehler Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Tipptest> angemeldet;
}

}  // namespace varnok

#include "getippt_test.moc"
