// A closer look at a diagram, and frames that leave the curves free.

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QWheelEvent>

#include "painting/qt_text.h"
#include "window/ergebnis/diagrammprobe.h"
#include "window/ergebnis/flaechenrahmen.h"
#include "window/kern/anmeldung.h"

using namespace Qt::StringLiterals;
using namespace varnok;

class Blicktest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { p_ = std::make_unique<Diagrammprobe>(); }
    void cleanup() { p_.reset(); }

    void a_drag_with_a_key_shows_the_days_marked() {
        ziehe(Qt::ShiftModifier);
        const Kurve& k = p_->vorn()->Inhalt()->Kurven.front();
        QVERIFY2(k.erster_Tag > 30 && k.erster_Tag < 200, qPrintable(in_Qt(k.erster_Tag)));
        QVERIFY(k.Werte.size() < 200);
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(p_->vorn()->objectName(), u"Diagramm_0"_s);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().X_Ende(),
                 364.0);  // what the dialog shows and a report's numbers come from
    }

    void the_wheel_comes_nearer_and_goes_back() {
        for (int i = 0; i < 3; ++i) drehe(120);
        const auto nah = Tage();
        QVERIFY2(nah > 170 && nah < 200, qPrintable(in_Qt(nah)));  // 0.8 times as many each time
        for (int i = 0; i < 6; ++i) drehe(-120);
        QCOMPARE(Tage(), 364);
        QVERIFY(!p_->Programm().zeige<Diagrammsteuerung>().hat_Ausschnitt());
    }

    void every_look_has_a_key() {
        const auto druecke = [this](const char* Befehl) { p_->Teil<QAction>(Befehl)->trigger(); };
        druecke("M_naeher");
        QCOMPARE(Tage(), 182);
        const int vorher = p_->vorn()->Inhalt()->Kurven.front().erster_Tag;
        druecke("M_spaeter");
        QVERIFY(p_->vorn()->Inhalt()->Kurven.front().erster_Tag > vorher);
        druecke("M_frueher");
        QCOMPARE(p_->vorn()->Inhalt()->Kurven.front().erster_Tag, vorher);
        druecke("M_ferner");
        QCOMPARE(Tage(), 364);
        druecke("M_naeher");
        druecke("M_ganzer_Zeitraum");
        QCOMPARE(Tage(), 365);  // the range that a view starts with
        p_->waehle_Simulation("Sugar beet, Compound E");
        QTest::keyClick(&p_->Fenster(), Qt::Key_F6);
        QCOMPARE(p_->vorn()->objectName(), u"Diagramm_9"_s);
        bool offen = false;
        bei_Dialog<QDialog>([&](QDialog& d) {
            offen = d.objectName() == u"Manuelle_Skalierung"_s;
            d.reject();
        });
        QTest::keyClick(&p_->Fenster(), Qt::Key_F7);
        QVERIFY(offen);
    }

    // A field keeps the key for itself.
    void home_shows_the_whole_range_where_no_field_wants_it() {
        p_->Teil<QAction>("M_naeher")->trigger();
        auto* Feld = p_->Teil<QLineEdit>("S_Q10_0");
        Feld->setFocus();
        QTest::keyClick(Feld, Qt::Key_Home);
        QCOMPARE(Tage(), 182);
        QTest::keyClick(p_->Teil<QWidget>("Ende"), Qt::Key_Home);
        QCOMPARE(Tage(), 365);
    }

    void another_view_shows_its_whole_range() {
        p_->Teil<QAction>("M_naeher")->trigger();
        p_->waehle("PEC_Typ_1");
        QCOMPARE(Tage(), 3649);
    }

    void a_closer_look_leaves_the_file_of_the_day_series() {
        const QString Datei = u"output/Detailed Results - Compound A.tab"_s;
        const QByteArray vorher = p_->Inhalt(Datei);
        QVERIFY(vorher.count('\n') > 300);
        QVERIFY(QFile::remove(p_->Pfad(Datei)));
        p_->Teil<QAction>("M_naeher")->trigger();
        QVERIFY(!QFile::exists(p_->Pfad(Datei)));  // not even written
    }

    void the_status_line_hints_at_what_the_mouse_can_do() {
        auto* Status = p_->Teil<QLabel>("Statuszeile");
        QEnterEvent herein(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(p_->vorn(), &herein);
        QVERIFY(Status->text().contains(u"Home: whole range"_s));
        QEvent hinaus(QEvent::Leave);
        QApplication::sendEvent(p_->vorn(), &hinaus);
        QVERIFY(!Status->text().contains(u"Home"_s));
    }

    void near_a_peak_the_reading_is_that_of_the_peak() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_0");
        auto* d = p_->vorn();
        for (auto* r : d->findChildren<Flaechenrahmen*>()) r->hide();
        const Kurve k = d->Inhalt()->Kurven.front();
        const auto hoechster = std::max_element(k.Werte.begin(), k.Werte.end());
        const auto Tag = static_cast<int>(hoechster - k.Werte.begin());
        const Koordinaten s = d->Feld().Liste.System;
        const QPointF Ort((Tag - s.links) / s.Breite() * d->width(),
                          (s.oben - static_cast<double>(*hoechster)) / s.Hoehe() * d->height());
        const auto* l = d->findChild<QLabel*>(u"Ablesung_"_s + in_Qt(d->Nummer()));
        for (const QPointF& Abstand : {QPointF(3, 0), QPointF(-2, 2), QPointF(0, -3)}) {
            QTest::mouseMove(d, QPoint(2, 2));
            QTest::mouseMove(d, (Ort + Abstand).toPoint());
            QTest::qWait(5);
            QVERIFY2(l->text().startsWith(u"day "_s + in_Qt(Tag) + u": "_s), qPrintable(l->text()));
        }
    }

    // A drag takes neither the focus nor a selection; a click within a cell takes both.
    void the_grid_takes_no_focus_by_a_drag() {
        auto* Feld = p_->Teil<QLineEdit>("S_Q10_0");
        auto* Tafel = p_->Teil<QTableWidget>("Ergebnisse_0");
        Feld->setFocus();
        QTest::mousePress(Tafel->viewport(), Qt::LeftButton, {}, QPoint(20, 30));
        QTest::mouseMove(Tafel->viewport(), QPoint(5, 20));
        QTest::mouseMove(Tafel->viewport(), QPoint(0, 10));
        QTest::mouseRelease(Tafel->viewport(), Qt::LeftButton, {}, QPoint(0, 10));
        QCOMPARE(p_->Fenster().focusWidget(), Feld);
        QVERIFY(Tafel->selectedItems().isEmpty());
        QTest::mouseClick(Tafel->viewport(), Qt::LeftButton, {}, QPoint(20, 30));
        QCOMPARE(p_->Fenster().focusWidget(), Tafel);
        QCOMPARE(Tafel->selectedItems().size(), 1);
    }

    void the_spare_row_looks_empty() {
        const auto* Tafel = p_->Teil<QTableWidget>("Ergebnisse_0");
        const int letzte = Tafel->rowCount() - 1;
        QCOMPARE(p_->Zelle("Ergebnisse_0", letzte - 1, 0).trimmed(), u"100 d"_s);
        for (int j = 0; j < Tafel->columnCount(); ++j) QCOMPARE(p_->Zelle("Ergebnisse_0", letzte, j).trimmed(), QString());
        QVERIFY(!QString::fromStdString(p_->Programm().zeige<Bildsteuerung>().Daten({})).contains(u"\r\n,"_s));
    }

    void frames_cover_no_curve_where_a_place_is_free_data() {
        QTest::addColumn<QSize>("Groesse");
        for (const QSize& g : {QSize(900, 560), QSize(1180, 760), QSize(1440, 900)})
            QTest::newRow(qPrintable(in_Qt(g.width()))) << g;
    }
    // All shipped simulations in all views, the twelve monthly averages among them.
    void frames_cover_no_curve_where_a_place_is_free() {
        QFETCH(QSize, Groesse);
        p_->Fenster().resize(Groesse);
        QTest::qWait(20);
        int belegt = 0;
        const auto Liste = p_->Programm().Stand().Listen[Simulation];
        for (const std::string& Name : Liste) {
            p_->waehle_Simulation(Name.c_str());
            for (const char* Ansicht : {"PEC_Typ_0", "PEC_Typ_1", "PEC_Typ_2"}) {
                p_->waehle(Ansicht);
                belegt += pruefe_Ring(Name);
                if (p_->Teil<QAction>("M_Zusammenfassung")->isEnabled()) {
                    p_->Teil<QAction>("M_Zusammenfassung")->trigger();
                    belegt += pruefe_Ring(Name + ", all studies");
                    p_->Teil<QAction>("M_Studien")->trigger();
                }
                if (QTest::currentTestFailed()) return;
            }
        }
        qInfo("%d frames have no free place", belegt);
    }

private:
    int Tage() const { return static_cast<int>(p_->vorn()->Inhalt()->Kurven.front().Werte.size()) - 1; }

    void ziehe(Qt::KeyboardModifier Taste) {
        auto* d = p_->vorn();
        const int y = d->height() / 2;
        QTest::mousePress(d, Qt::LeftButton, Taste, QPoint(d->width() / 3, y));
        QTest::mouseMove(d, QPoint(d->width() / 2, y));
        QTest::mouseMove(d, QPoint(d->width() * 2 / 3, y));
        QTest::mouseRelease(d, Qt::LeftButton, Taste, QPoint(d->width() * 2 / 3, y));
        QTest::qWait(5);
    }

    void drehe(int Winkel) {
        const QPointF Ort = p_->vorn()->rect().center();
        QWheelEvent e(Ort, p_->vorn()->mapToGlobal(Ort), {}, QPoint(0, Winkel), Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(p_->vorn(), &e);
    }

    // What a frame covers, worked out by the test: the lines of curves of which one of some points lies in it.
    static int Striche_unter(const Rahmenfeld& f, const QRectF& r, const QSizeF& g) {
        const Koordinaten& k = f.Liste.System;
        const auto liegt_darin = [&](const Linie& l, double t) {
            const double x = l.von.x + t * (l.bis.x - l.von.x);
            const double y = l.von.y + t * (l.bis.y - l.von.y);
            return r.contains(QPointF((x - k.links) / k.Breite() * g.width(), (k.oben - y) / k.Hoehe() * g.height()));
        };
        int Anzahl = 0;
        for (const Linie& l : f.Liste.Linien) {
            bool darin = false;
            for (int i = 0; i <= 20; ++i) darin = darin || liegt_darin(l, i / 20.0);
            Anzahl += darin && l.Farbe != Schwarz && l.Breite > 1;
        }
        return Anzahl;
    }

    // The eight places of a frame in the room, by the test's own reckoning.
    static QList<QRectF> Plaetze(const Rahmenfeld& f, const QSize& Rahmen, const QSizeF& g) {
        const QRectF Raum(f.Raum.links * g.width(), f.Raum.oben * g.height(), f.Raum.Breite * g.width(),
                          f.Raum.Hoehe * g.height());
        QList<QRectF> Liste;
        for (const double x : {0.0, 0.5, 1.0}) {
            for (const double y : {0.0, 0.5, 1.0}) {
                const QPointF Ecke(Raum.left() + x * (Raum.width() - Rahmen.width()),
                                   Raum.top() + y * (Raum.height() - Rahmen.height()));
                if (x != 0.5 || y != 0.5) Liste << QRectF(Ecke, Rahmen);
            }
        }
        return Liste;
    }

    // On every diagram that a click leads to.
    int pruefe_Ring(const std::string& Name) {
        int belegt = 0;
        for (int i = 0; i < 4; ++i) {
            belegt += pruefe_Rahmen(Name);
            p_->klicke_Diagramm();
        }
        return belegt;
    }

    // How many frames cover a curve; fails for one that need not.
    int pruefe_Rahmen(const std::string& Name) {
        auto* d = p_->vorn();
        const Rahmenfeld f = d->Feld();
        const QSizeF g = d->size();
        QList<Flaechenrahmen*> sichtbare;
        for (auto* r : d->findChildren<Flaechenrahmen*>()) {
            if (r->isVisible()) sichtbare << r;
        }
        int ohne_Platz = 0;
        for (const Flaechenrahmen* r : sichtbare) {
            if (Striche_unter(f, r->geometry(), g) == 0) continue;
            ++ohne_Platz;
            for (const QRectF& dort : Plaetze(f, r->size(), g)) {
                const bool vergeben = std::any_of(sichtbare.begin(), sichtbare.end(), [&](const Flaechenrahmen* anderer) {
                    return anderer != r && dort.intersects(anderer->geometry());
                });
                const bool Text = std::any_of(f.Texte.begin(), f.Texte.end(), [&](const Flaechenrechteck& t) {
                    return dort.intersects(
                        QRectF(t.links * g.width(), t.oben * g.height(), t.Breite * g.width(), t.Hoehe * g.height()));
                });
                if (vergeben || Text || Striche_unter(f, dort.adjusted(-3, -3, 3, 3), g) > 0) continue;
                QTest::qFail((Name + ", " + aus_Qt(r->objectName()) + " has a free place").c_str(), __FILE__, __LINE__);
            }
        }
        return ohne_Platz;
    }

    std::unique_ptr<Diagrammprobe> p_;
};

namespace {
const Anmeldung<Blicktest> angemeldet;
}

#include "blick_test.moc"
