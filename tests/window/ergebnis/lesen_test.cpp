// Values read off a diagram by keys, and the table that folds where it would hide the curves.

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QTableWidget>

#include "painting/qt_text.h"
#include "window/ergebnis/diagrammprobe.h"
#include "window/ergebnis/flaechenrahmen.h"
#include "window/kern/anmeldung.h"

using namespace Qt::StringLiterals;
using namespace varnok;

class Lesetest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { p_ = std::make_unique<Diagrammprobe>(); }
    void cleanup() { p_.reset(); }

    void tab_leads_to_the_diagram() {
        p_->Teil<QWidget>("Berechnungsmodus_Leiste")->setFocus();
        QTest::keyClick(p_->Fenster().focusWidget(), Qt::Key_Tab);
        QCOMPARE(p_->Fenster().focusWidget(), p_->vorn());
        QVERIFY2(p_->Teil<QLabel>("Statuszeile")->text().contains(u"Arrows: read off"_s),
                 qPrintable(p_->Teil<QLabel>("Statuszeile")->text()));
    }

    // 1.3333 mg/kg on the first day, half of it after the half-life of 50 days.
    void arrows_read_along_the_curve() {
        p_->vorn()->setFocus(Qt::TabFocusReason);
        QVERIFY(!schild()->isVisible());
        druecke(Qt::Key_Right);
        QVERIFY(schild()->isVisible());
        QCOMPARE(gelesen(), u"day 0: 1.333 mg/kg, Compound A"_s);
        for (int i = 0; i < 50; ++i) druecke(Qt::Key_Right);
        QCOMPARE(gelesen(), u"day 50: 0.6667 mg/kg, Compound A"_s);
        druecke(Qt::Key_Left);
        QVERIFY(gelesen().startsWith(u"day 49: "_s));
        druecke(Qt::Key_Right, Qt::ShiftModifier);
        QVERIFY(gelesen().startsWith(u"day 59: "_s));
        druecke(Qt::Key_Left, Qt::ControlModifier);
        QVERIFY(gelesen().startsWith(u"day 0: "_s));
    }

    void a_pixel_of_ten_years_is_a_step() {
        p_->waehle("PEC_Typ_1");
        p_->vorn()->setFocus(Qt::TabFocusReason);
        druecke(Qt::Key_Right);
        const int Spitze = Tag();
        druecke(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(Spitze - Tag(), 365);
        druecke(Qt::Key_Right);
        const int Schritt = Tag() - (Spitze - 365);
        const double Tage_im_Pixel = p_->vorn()->Feld().Liste.System.Breite() / p_->vorn()->width();
        QVERIFY2(Schritt >= Tage_im_Pixel && Schritt < Tage_im_Pixel + 1, qPrintable(in_Qt(Schritt)));
        // No step passes the next peak.
        for (int i = 0; i < 400 && Tag() < Spitze; ++i) druecke(Qt::Key_Right);
        QCOMPARE(Tag(), Spitze);
    }

    void up_and_down_lead_to_another_curve() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_0");
        p_->klicke_Diagramm(3);
        p_->vorn()->setFocus(Qt::TabFocusReason);
        druecke(Qt::Key_Right);
        const int vorher = Tag();
        QVERIFY(gelesen().endsWith(u"Compound E"_s));
        druecke(Qt::Key_Down);
        QVERIFY(gelesen().endsWith(u"Metabolite E1"_s));
        druecke(Qt::Key_Down);
        QVERIFY(gelesen().endsWith(u"Metabolite E2"_s));
        druecke(Qt::Key_Up);
        QVERIFY(gelesen().endsWith(u"Metabolite E1"_s));
        QCOMPARE(Tag(), vorher);
    }

    void esc_or_leaving_takes_the_reading_away() {
        auto* d = p_->vorn();
        d->setFocus(Qt::TabFocusReason);
        druecke(Qt::Key_Right);
        druecke(Qt::Key_Escape);
        QVERIFY(!schild()->isVisible());
        druecke(Qt::Key_Right);
        QVERIFY(schild()->isVisible());
        p_->Teil<QWidget>("Ende")->setFocus(Qt::TabFocusReason);
        QVERIFY(!schild()->isVisible());
        QVERIFY(d->accessibleDescription().startsWith(u"Annual concentration of "_s));
    }

    // The mouse passes by; what keys have read off stands there again.
    void the_mouse_leaves_the_reading_by_keys_alone() {
        auto* d = p_->vorn();
        for (auto* r : d->findChildren<Flaechenrahmen*>()) r->hide();
        d->setFocus(Qt::TabFocusReason);
        druecke(Qt::Key_Right);
        const QString vorher = gelesen();
        for (const int y : {d->height() / 3, d->height() / 2}) QTest::mouseMove(d, QPoint(d->width() / 2, y));
        QTest::qWait(5);
        QVERIFY(schild()->text() != vorher);
        QEvent hinaus(QEvent::Leave);
        QApplication::sendEvent(d, &hinaus);
        QCOMPARE(schild()->text(), vorher);
    }

    void zoom_and_new_numbers_keep_the_day() {
        p_->vorn()->setFocus(Qt::TabFocusReason);
        for (int i = 0; i < 6; ++i) druecke(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(Tag(), 50);
        p_->Teil<QAction>("M_naeher")->trigger();
        p_->Teil<QAction>("M_frueher")->trigger();
        p_->Teil<QAction>("M_frueher")->trigger();
        QVERIFY(schild()->isVisible());
        QCOMPARE(gelesen(), u"day 50: 0.6667 mg/kg, Compound A"_s);
        druecke(Qt::Key_Home);
        QCOMPARE(p_->vorn()->Inhalt()->Kurven.front().Werte.size(), std::size_t(365 + 1));
        QCOMPARE(Tag(), 50);
    }

    void the_next_diagram_takes_the_focus_along() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->vorn()->setFocus(Qt::TabFocusReason);
        const auto* erstes = p_->vorn();
        QTest::keyClick(p_->vorn(), Qt::Key_F6);
        QVERIFY(p_->vorn() != erstes);
        QCOMPARE(p_->Fenster().focusWidget(), p_->vorn());
    }

    // The desktop hears of each change of the description.
    void a_screen_reader_finds_the_reading() {
        p_->vorn()->setFocus(Qt::TabFocusReason);
        const auto* Vorleser = QAccessible::queryAccessibleInterface(p_->vorn());
        QCOMPARE(Vorleser->text(QAccessible::Name), u"Diagram"_s);
        druecke(Qt::Key_Right);
        QCOMPARE(Vorleser->text(QAccessible::Description), u"day 0: 1.333 mg/kg, Compound A"_s);
        druecke(Qt::Key_Escape);
        QVERIFY(Vorleser->text(QAccessible::Description).startsWith(u"Annual concentration of "_s));
    }

    void six_studies_in_the_smallest_window_leave_the_curves_in_sight() {
        zeige_sechs_Studien();
        const QRect Rahmen = p_->Teil<QWidget>("Ergebnisrahmen_Zusammenfassung_6")->geometry();
        QVERIFY2(Rahmen.height() < p_->vorn()->height() / 3, qPrintable(in_Qt(Rahmen.height())));
        QVERIFY(!Rahmen.intersects(p_->Teil<QWidget>("Legendenrahmen_Zusammenfassung_6")->geometry()));
        // The head, the maximum, and the average that the curves have boxes of.
        QCOMPARE(gesehene_Zeilen(), (QStringList{u"Time(d)"_s, u"PECmax"_s, u"28 d"_s}));
        QVERIFY(p_->sichtbar("Tafelrest_Zusammenfassung_6"));
        QCOMPARE(p_->Teil<QLabel>("Tafelrest_Zusammenfassung_6")->text(), u"10 more rows: click"_s);
        p_->waehle_Eintrag("TWA_Laenge", 3);
        QCOMPARE(gesehene_Zeilen().back(), u"7 d"_s);
    }

    void a_folded_table_shows_all_rows_while_it_has_the_focus() {
        zeige_sechs_Studien();
        p_->vorn()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(p_->vorn(), Qt::Key_Tab);
        QCOMPARE(p_->Fenster().focusWidget(), tafel());
        QCOMPARE(gesehene_Zeilen().size(), 13);
        QVERIFY(!p_->sichtbar("Tafelrest_Zusammenfassung_6"));
        QVERIFY(p_->vorn()->rect().contains(p_->Teil<QWidget>("Ergebnisrahmen_Zusammenfassung_6")->geometry()));
        p_->vorn()->setFocus(Qt::TabFocusReason);
        QCOMPARE(gesehene_Zeilen().size(), 3);
        QTest::mouseClick(p_->Teil<QLabel>("Tafelrest_Zusammenfassung_6"), Qt::LeftButton);
        QCOMPARE(gesehene_Zeilen().size(), 13);
    }

    void where_there_is_room_no_row_is_folded() {
        zeige_sechs_Studien();
        p_->Fenster().resize(1440, 900);
        QTest::qWait(20);
        QCOMPARE(gesehene_Zeilen().size(), 13);
        QCOMPARE(tafel()->font().pixelSize(), p_->Teil<QTableWidget>("Applikationsschema")->font().pixelSize());
    }

private:
    void druecke(Qt::Key Taste, Qt::KeyboardModifier dazu = Qt::NoModifier) { QTest::keyClick(p_->vorn(), Taste, dazu); }
    QLabel* schild() { return p_->vorn()->findChild<QLabel*>(u"Ablesung_"_s + p_->vorn()->objectName().section(u'_', 1)); }
    QString gelesen() { return p_->vorn()->accessibleDescription(); }
    int Tag() { return gelesen().section(u' ', 1, 1).chopped(1).toInt(); }

    void zeige_sechs_Studien() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_0");
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        p_->Fenster().resize(900, 560);
        QTest::qWait(20);
    }
    QTableWidget* tafel() { return p_->Teil<QTableWidget>("Ergebnisse_Zusammenfassung_6"); }
    QStringList gesehene_Zeilen() {
        QStringList Zeilen;
        for (int i = 0; i < tafel()->rowCount(); ++i) {
            if (!tafel()->isRowHidden(i)) Zeilen << tafel()->item(i, 0)->text().trimmed();
        }
        return Zeilen;
    }

    std::unique_ptr<Diagrammprobe> p_;
};

namespace {
const Anmeldung<Lesetest> angemeldet;
}

#include "lesen_test.moc"
