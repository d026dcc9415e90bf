// The window in letters of all usual sizes: how small it gets, and that nothing is cut then.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"
#include "window/kern/platzpruefung.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Groessentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        alte_Schrift_ = QApplication::font();
        QVERIFY2(QGuiApplication::primaryScreen()->availableSize().width() >= 1900, "the screen of this test is a large one");
    }
    void cleanup() {
        p_.reset();
        QApplication::setFont(alte_Schrift_);
    }

    void the_smallest_window_grows_with_its_letters() {
        QList<QSize> kleinste;
        for (const int Punkt : {9, 11, 14, 16}) {
            starte(Punkt);
            kleinste << p_->Fenster().minimumSize();
            QVERIFY(kleinste.back().width() <= 1920 && kleinste.back().height() <= 1080);
        }
        QVERIFY(kleinste.front().width() <= 900);  // small screens are no smaller than that
        QVERIFY(kleinste.front().height() <= 560);
        for (int i = 1; i < kleinste.size(); ++i) {
            QVERIFY(kleinste[i].width() > kleinste[i - 1].width());
            QVERIFY(kleinste[i].height() > kleinste[i - 1].height());
        }
    }

    void letters_that_change_while_it_runs_count() {
        starte(9);
        const QSize vorher = p_->Fenster().minimumSize();
        QApplication::setFont(QFont(u"DejaVu Sans"_s, 14));
        QTest::qWait(50);
        QVERIFY(p_->Fenster().minimumSize().width() > vorher.width());
        QVERIFY(p_->Fenster().width() >= p_->Fenster().minimumWidth());
        QCOMPARE(Maengel(*p_->Teil<QWidget>("Eingabespalte")), QString());
    }

    void nothing_of_the_input_is_cut_data() { Groessen(); }
    void nothing_of_the_input_is_cut() {
        QFETCH(int, Punkt);
        starte(Punkt);
        const int Breite = p_->Teil<QWidget>("Eingabespalte")->width();
        const auto pruefe = [&](const QString& wo) {
            QTest::qWait(1);
            const auto* Spalte = p_->Teil<QScrollArea>("Eingabespalte");
            QVERIFY2(!Spalte->horizontalScrollBar()->isVisible(), qPrintable(wo + u": there is a bar below"_s));
            QCOMPARE(Spalte->width(), Breite);  // nothing jumps
            const QString Liste = Maengel(*Spalte);
            QVERIFY2(Liste.isEmpty(), qPrintable(wo + u":\n"_s + Liste));
        };
        pruefe(u"as it starts"_s);
        p_->waehle_Simulation("Sugar beet, Compound E");
        for (int Muster = 0; Muster < 3; ++Muster) {
            p_->waehle(("Applikationsmuster_" + QByteArray::number(Muster)).constData());
            pruefe(u"pattern %1"_s.arg(Muster));
        }
        for (int c = 0; c < 3; ++c) {
            p_->waehle(("Substanz_" + QByteArray::number(c)).constData());
            for (int k = 0; k < (c == 0 ? 4 : 2); ++k) {
                p_->waehle_Eintrag(("S_Kinetik_" + QByteArray::number(c)).constData(), k);
                pruefe(u"compound %1, kinetics %2"_s.arg(c).arg(k));
            }
        }
        for (int Seite = 1; Seite < 3; ++Seite) {
            p_->blaettere("Wirkstoffdaten_Leiste", Seite);
            pruefe(u"page %1"_s.arg(Seite));
        }
        p_->waehle_Simulation("Ornamentals, Compound D");
        pruefe(u"twenty applications"_s);
        Fragen_.nimm();
    }

    // Wherever the focus comes from: by Tab, or because the program points at a value.
    void what_gets_the_focus_comes_into_sight() {
        starte(11);
        const auto* Spalte = p_->Teil<QScrollArea>("Eingabespalte");
        QVERIFY(Spalte->verticalScrollBar()->isVisible());
        const auto gesehen = [&](const char* Name) {
            const auto* w = p_->Teil<QWidget>(Name);
            return Spalte->viewport()->rect().contains(QRect(w->mapTo(Spalte->viewport(), QPoint(0, 0)), w->size()));
        };
        for (const char* Name : {"Edit", "Liste_1", "Klimaszenario", "S_TRef_0", "Fruchtwechsel"}) {
            p_->Teil<QWidget>(Name)->setFocus(Qt::OtherFocusReason);
            QVERIFY2(gesehen(Name), Name);
        }
        p_->Teil<QWidget>("Liste_1")->setFocus();
        p_->Teil<QWidget>("Berechnungsmodus_Leiste")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"Edit"_s);
        QVERIFY(gesehen("Edit"));
    }

    void every_page_of_the_input_is_reached_without_scrolling_its_strip_data() { Groessen(); }
    void every_page_of_the_input_is_reached_without_scrolling_its_strip() {
        QFETCH(int, Punkt);
        starte(Punkt);
        const auto* Leiste = p_->Teil<QTabBar>("Wirkstoffdaten_Leiste");
        for (int i = 0; i < Leiste->count(); ++i) {
            QVERIFY(Leiste->rect().contains(Leiste->tabRect(i)));
            QVERIFY(Leiste->tabRect(i).width() > Leiste->fontMetrics().horizontalAdvance(Leiste->tabText(i)));
        }
    }

    void what_stands_around_the_diagram_is_whole_data() { Groessen(); }
    void what_stands_around_the_diagram_is_whole() {
        QFETCH(int, Punkt);
        starte(Punkt);
        for (const char* Simulation : {"Programcheck", "Sugar beet, Compound E", "Maize, Compound G"}) {
            p_->waehle_Simulation(Simulation);
            for (const char* Teil : {"untere_Zeile", "Schalterrahmen", "Frame2"}) {
                const QString Liste = Maengel(*p_->Teil<QWidget>(Teil));
                QVERIFY2(Liste.isEmpty(), qPrintable(QString::fromLatin1(Simulation) + u":\n"_s + Liste));
            }
        }
        // Its frames stand on the diagram, not beside it.
        for (const char* Teil : {"untere_Zeile", "Schalterrahmen", "Frame2", "Eingabespalte", "Ergebnisbereich"}) {
            const auto* w = p_->Teil<QWidget>(Teil);
            QVERIFY2(p_->Fenster().rect().contains(QRect(w->mapTo(&p_->Fenster(), QPoint(0, 0)), w->size())), Teil);
        }
        Fragen_.nimm();
    }

    void the_start_page_is_whole_data() { Groessen(); }
    void the_start_page_is_whole() {
        QFETCH(int, Punkt);
        oeffne(Punkt);
        QCOMPARE(Maengel(*p_->Teil<QWidget>("Intro")), QString());
    }

private:
    static void Groessen() {
        QTest::addColumn<int>("Punkt");
        for (const int Punkt : {9, 10, 11, 12, 14, 16}) QTest::addRow("%d pt", Punkt) << Punkt;
    }
    void oeffne(int Punkt) {
        p_.reset();
        QApplication::setFont(QFont(u"DejaVu Sans"_s, Punkt));
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->Fenster().resize(p_->Fenster().minimumSize());
        QTest::qWait(20);
    }
    void starte(int Punkt) {
        oeffne(Punkt);
        p_->starte();
        QCOMPARE(p_->Fenster().size(), p_->Fenster().minimumSize());
    }

    Mitschrift Fragen_;
    QFont alte_Schrift_;
    std::unique_ptr<Fensterprobe> p_;
};

// On a screen that is smaller than the smallest window would like to be.
class Engentest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        p_.reset();
        QApplication::setFont(alte_Schrift_);
    }

    void what_finds_no_room_is_scrolled_to() {
        QApplication::setFont(QFont(u"DejaVu Sans"_s, 16));
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        const QSize Platz = p_->Fenster().screen()->availableSize();
        if (Platz.width() >= 1000) QSKIP("the screen is a large one");
        const QSize kleinste = p_->Fenster().minimumSize();
        QVERIFY(kleinste.width() <= Platz.width() && kleinste.height() <= Platz.height());
        p_->Fenster().resize(kleinste);
        p_->starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        QTest::qWait(20);
        const auto* Spalte = p_->Teil<QScrollArea>("Eingabespalte");
        QVERIFY(Spalte->verticalScrollBar()->isVisible());
        const QString Liste = Maengel(*Spalte);
        QVERIFY2(Liste.isEmpty(), qPrintable(Liste));
        QVERIFY(p_->Fenster().rect().contains(
            QRect(p_->Teil<QWidget>("Ende")->mapTo(&p_->Fenster(), QPoint(0, 0)), p_->Teil<QWidget>("Ende")->size())));
        Fragen_.nimm();
    }

private:
    Mitschrift Fragen_;
    QFont alte_Schrift_ = QApplication::font();
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Groessentest> angemeldet;
const Anmeldung<Engentest> angemeldet_eng;
}  // namespace

}  // namespace varnok

#include "groesse_test.moc"
