// The diagrams in the window: which is in front, scaling, the frames that stand on it.

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTextDocument>
#include <QUrl>

#include "painting/qt_text.h"
#include "reports/dokumentbild.h"
#include "window/ergebnis/diagrammprobe.h"
#include "window/ergebnis/manuelle_skalierung.h"
#include "window/kern/anmeldung.h"

using namespace Qt::StringLiterals;
using namespace varnok;

class Diagrammtest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { p_ = std::make_unique<Diagrammprobe>(); }
    void cleanup() { p_.reset(); }

    // Compound by compound, then all of them, then the parent again.
    void a_left_click_walks_through_the_diagrams_of_the_scheme() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        for (const auto& [Name, Metabolit] :
             {std::pair("Diagramm_8", 0), {"Diagramm_9", 0}, {"Diagramm_10", 0}, {"Diagramm_11", 0}, {"Diagramm_8", 0}}) {
            QCOMPARE(p_->vorn()->objectName(), QString::fromLatin1(Name));
            QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().vorne(), p_->vorn()->Nummer());
            p_->klicke_Diagramm();
        }
    }

    void the_summary_diagrams_have_a_ring_of_their_own() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        for (const char* Name : {"Diagramm_Zusammenfassung_6", "Diagramm_Zusammenfassung_7", "Diagramm_Zusammenfassung_8",
                                 "Diagramm_Zusammenfassung_6"}) {
            QCOMPARE(p_->vorn()->objectName(), QString::fromLatin1(Name));
            p_->klicke_Diagramm();
        }
        p_->Teil<QAction>("M_Studien")->trigger();
        QCOMPARE(p_->vorn()->objectName(), u"Diagramm_8"_s);
    }

    void each_press_of_a_double_click_counts() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        QTest::mouseClick(p_->vorn(), Qt::LeftButton, {}, p_->leer());
        QTest::mouseDClick(p_->vorn(), Qt::LeftButton, {}, p_->leer());  // the second press alone
        QCOMPARE(p_->vorn()->objectName(), u"Diagramm_10"_s);
    }

    void the_only_diagram_of_a_scheme_stays_and_there_is_nothing_to_print() {
        p_->klicke("Bericht_erstellen");
        p_->klicke("Bericht_schliessen");
        p_->klicke_Diagramm();
        QCOMPARE(p_->vorn()->objectName(), u"Diagramm_0"_s);
        QVERIFY(!p_->Teil<QAction>("M_Drucken")->isEnabled());
    }

    void a_left_click_with_a_key_does_nothing() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        for (const auto Taste : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
            QTest::mouseClick(p_->vorn(), Qt::LeftButton, Taste, p_->leer());
            QCOMPARE(p_->vorn()->objectName(), u"Diagramm_8"_s);
        }
    }

    // The click accepts the field in work; what is invalid stays in sight.
    void a_click_out_of_an_invalid_field_tells_it() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->tippe("S_Q10_0", "0");
        QCOMPARE(p_->Meldung_bei([&] { p_->klicke_Diagramm(); }), u"The Q10 constant is invalid. Please correct!"_s);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().vorne(), 8);
        QVERIFY(p_->sichtbar("Abdeckung"));
    }

    void the_scaling_dialog_shows_the_range_in_force() {
        skaliere([](QDialog& d) {
            QCOMPARE(d.windowTitle(), u"Manual scaling"_s);
            QCOMPARE(Liste(d, "Startzeitpunkt")->currentText(), u"0"_s);
            QCOMPARE(Liste(d, "Skalierung_X_Achse")->currentText(), u"364"_s);
            QCOMPARE(Liste(d, "Startzeitpunkt")->count(), 401);
            QCOMPARE(Liste(d, "Skalierung_X_Achse")->count(), 9);
            QCOMPARE(Liste(d, "Skalierung_X_Achse")->itemText(8), u"3650"_s);
            QCOMPARE(d.focusWidget(), Liste(d, "Skalierung_X_Achse"));
            d.reject();
        });
    }

    void the_scaling_dialog_shows_the_separator_of_the_region() {
        QStringList angenommen;
        Manuelle_Skalierung d(
            0.5, 1000, ',',
            [&](const std::string& Start, const std::string& Ende) {
                angenommen << in_Qt(Start) << in_Qt(Ende);
                return true;
            },
            &p_->Fenster());
        QCOMPARE(Liste(d, "Startzeitpunkt")->currentText(), u"0,5"_s);
        QCOMPARE(Liste(d, "Skalierung_X_Achse")->currentText(), u"1000"_s);
        d.accept();
        QCOMPARE(angenommen, (QStringList{u"0,5"_s, u"1000"_s}));
    }

    void an_accepted_end_is_the_end_of_the_axis() {
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        skaliere([](QDialog& d) {
            Liste(d, "Startzeitpunkt")->setEditText(u"20"_s);
            Liste(d, "Skalierung_X_Achse")->setEditText(u"1000"_s);
            QTest::keyClick(Liste(d, "Skalierung_X_Achse"), Qt::Key_Return);
        });
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().X_Start(), 20.0);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().X_Ende(), 1000.0);
        QCOMPARE(p_->vorn()->Inhalt()->Kurven.front().erster_Tag, 20);
        QCOMPARE(p_->vorn()->Inhalt()->Kurven.front().Werte.size(), std::size_t(981));
        QVERIFY(!p_->sichtbar("Abdeckung"));
    }

    void a_refused_end_is_told_and_the_dialog_stays() {
        QString Text;
        bool offen = false;
        skaliere([&](QDialog& d) {
            Liste(d, "Skalierung_X_Achse")->setEditText(u"1"_s);
            bei_Dialog<QMessageBox>([&](QMessageBox& m) {
                Text = m.text();
                m.button(QMessageBox::Ok)->click();
            });
            QTest::keyClick(Liste(d, "Skalierung_X_Achse"), Qt::Key_Return);
            offen = d.isVisible();
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QCOMPARE(Text.trimmed(), u"The maximum Time shown on the x-axis must be between 2 d and 3650 d!"_s);
        QVERIFY(offen);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().X_Ende(), 364.0);
    }

    void cancel_stores_nothing_and_runs_all_the_same() {
        const int vorher = p_->Programm().zeige<Diagrammsteuerung>().Zeichnung();
        skaliere([](QDialog& d) {
            Liste(d, "Skalierung_X_Achse")->setEditText(u"1000"_s);
            d.findChild<QPushButton*>(u"Abbrechen"_s)->click();
        });
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().X_Ende(), 364.0);
        QCOMPARE(p_->Programm().zeige<Diagrammsteuerung>().Zeichnung(), vorher + 1);
    }

    void a_start_behind_the_end_says_so() {
        skaliere([](QDialog& d) {
            Liste(d, "Startzeitpunkt")->setEditText(u"400"_s);
            Liste(d, "Skalierung_X_Achse")->setEditText(u"365"_s);
            d.findChild<QPushButton*>(u"OK"_s)->click();
        });
        QCOMPARE(p_->vorn()->Inhalt()->Liste.Texte.front().Inhalt, std::string("Start is not before the end of the axis"));
        QCOMPARE(zaehle(p_->Bild(), Marineblau), 0);
    }

    // The grabbed point stays under the pointer, from wherever it was grabbed.
    void a_frame_follows_the_grabbed_point() {
        for (const char* Griff : {"Legendenrahmen_0", "L_TWA_0", "PEC_Linie_0"}) pruefe_Zug(p_->Teil<QWidget>(Griff), 25);
        for (const char* Griff : {"Ergebnisrahmen_0", "Ergebnistitel_0"}) pruefe_Zug(p_->Teil<QWidget>(Griff), -25);
        pruefe_Zug(p_->Teil<QTableWidget>("Ergebnisse_0")->viewport(), -25);
        QVERIFY(p_->Teil<QTableWidget>("Ergebnisse_0")->selectedItems().isEmpty());
    }

    void in_the_background_view_the_legend_can_be_moved_and_there_is_no_grid() {
        p_->waehle("PEC_Typ_1");
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
        pruefe_Zug(p_->Teil<QWidget>("Legendenrahmen_0"), 25);
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
    }

    void a_frame_cannot_leave_the_surface() {
        auto* Legende = p_->Teil<QWidget>("Legendenrahmen_0");
        ziehe(Legende, QPoint(5, 5), QPoint(3000, -3000));
        QCOMPARE(Legende->geometry().right(), p_->vorn()->rect().right());
        QCOMPARE(Legende->y(), 0);
        ziehe(Legende, QPoint(5, 5), QPoint(-3000, 3000));
        QCOMPARE(Legende->geometry().bottomLeft(), p_->vorn()->rect().bottomLeft());
    }

    void a_frame_keeps_its_place_on_the_picture() {
        auto* Legende = p_->Teil<QWidget>("Legendenrahmen_0");
        ziehe(Legende, QPoint(5, 5), QPoint(-200, 100));
        const double links = static_cast<double>(Legende->x()) / p_->vorn()->width();
        p_->klicke("Aktualisieren");
        QCOMPARE(static_cast<double>(Legende->x()) / p_->vorn()->width(), links);
        p_->Fenster().resize(1600, 900);
        QTest::qWait(30);
        QVERIFY(std::abs(static_cast<double>(Legende->x()) / p_->vorn()->width() - links) < 0.002);
    }

    void a_pressed_frame_is_blue() {
        auto* Legende = p_->Teil<QWidget>("Legendenrahmen_0");
        auto* Titel = p_->Teil<QWidget>("Ergebnistitel_0");
        QTest::mousePress(Legende, Qt::LeftButton, {}, QPoint(3, 3));
        QCOMPARE(Legende->palette().color(QPalette::Window), QColor(0, 0, 255));
        QTest::mouseRelease(Legende, Qt::LeftButton, {}, QPoint(3, 3));
        QVERIFY(Legende->palette().color(QPalette::Window).lightness() > 240);
        QTest::mousePress(Titel, Qt::LeftButton, {}, QPoint(3, 3));
        QCOMPARE(Titel->palette().color(QPalette::Window), QColor(0, 0, 255));
        QVERIFY(p_->Teil<QWidget>("Ergebnisrahmen_0")->palette().color(QPalette::Window).lightness() > 240);
        QTest::mouseRelease(Titel, Qt::LeftButton, {}, QPoint(3, 3));
        QVERIFY(Titel->palette().color(QPalette::Window).lightness() > 240);
        QVERIFY(Titel->palette().color(QPalette::WindowText).lightness() < 60);
    }

    void ctrl_or_a_double_click_hides_a_frame() {
        QTest::mouseClick(p_->Teil<QWidget>("L_PEC_0"), Qt::LeftButton, Qt::ControlModifier);
        QVERIFY(!p_->sichtbar("Legendenrahmen_0"));
        QTest::mouseDClick(p_->Teil<QTableWidget>("Ergebnisse_0")->viewport(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
        // Neither a redraw nor another size brings them back.
        p_->klicke("Aktualisieren");
        p_->Fenster().resize(1200, 800);
        QVERIFY(!p_->sichtbar("Legendenrahmen_0"));
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
    }

    void other_keys_do_not_hide() {
        QTest::mouseClick(p_->Teil<QWidget>("L_PEC_0"), Qt::LeftButton, Qt::ShiftModifier);
        QTest::mouseClick(p_->Teil<QWidget>("L_PEC_0"), Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(p_->sichtbar("Legendenrahmen_0"));
    }

    void a_right_click_with_a_key_brings_all_frames_home() {
        auto* Legende = p_->Teil<QWidget>("Legendenrahmen_0");
        auto* Tafel = p_->Teil<QWidget>("Ergebnisrahmen_0");
        const QPoint Legendenheimat = Legende->pos();
        const QPoint Tafelheimat = Tafel->pos();
        ziehe(Tafel, QPoint(3, 3), QPoint(-150, -60));
        ziehe(Legende, QPoint(3, 3), QPoint(-150, 60));
        QTest::mouseDClick(Legende, Qt::LeftButton, {}, QPoint(3, 3));
        QTest::mouseClick(p_->vorn(), Qt::RightButton, Qt::AltModifier, p_->leer());
        QTest::qWait(20);
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(Legende->isVisible());
        QCOMPARE(Legende->pos(), Legendenheimat);
        QCOMPARE(Tafel->pos(), Tafelheimat);
    }

    void the_menu_brings_the_frames_of_a_diagram_of_all_compounds_back() {
        p_->waehle_Simulation("Potatoes, Compound C");
        p_->klicke_Diagramm(2);
        QCOMPARE(p_->vorn()->objectName(), u"Diagramm_3"_s);
        QTest::mouseClick(p_->Teil<QWidget>("L_TWA_mehrfach_4"), Qt::LeftButton, Qt::ControlModifier);
        QVERIFY(!p_->sichtbar("Legendenrahmen_mehrfach_3"));
        p_->Teil<QAction>("M_Rahmen_zeigen")->trigger();
        QVERIFY(p_->sichtbar("Legendenrahmen_mehrfach_3"));
    }

    void a_view_brings_the_results_back_but_no_legend() {
        QTest::mouseClick(p_->Teil<QWidget>("Ergebnistitel_0"), Qt::LeftButton, Qt::ControlModifier);
        QTest::mouseClick(p_->Teil<QWidget>("Legendenrahmen_0"), Qt::LeftButton, Qt::ControlModifier);
        p_->waehle("PEC_Typ_1");
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
        QTest::mouseClick(p_->vorn(), Qt::RightButton, Qt::ShiftModifier, p_->leer());
        QVERIFY(p_->sichtbar("Legendenrahmen_0"));
        QVERIFY(!p_->sichtbar("Ergebnisrahmen_0"));
        QTest::mouseClick(p_->Teil<QWidget>("Legendenrahmen_0"), Qt::LeftButton, Qt::ControlModifier);
        p_->waehle("PEC_Typ_2");
        QVERIFY(p_->sichtbar("Ergebnisrahmen_0"));
        QVERIFY(!p_->sichtbar("Legendenrahmen_0"));
    }

    // Home is a fraction of the surface: 7000 and 500 of 9600 x 7500 units.
    void frames_start_at_home() {
        QCOMPARE(p_->Teil<QWidget>("Legendenrahmen_0")->x(), static_cast<int>(std::lround(7000.0 / 9600 * p_->vorn()->width())));
        const QRect Tafel = p_->Teil<QWidget>("Ergebnisrahmen_0")->geometry();
        QVERIFY(p_->vorn()->rect().adjusted(6, 6, -6, -6).contains(Tafel));  // its own home lies on the curve
        QVERIFY(!Tafel.intersects(p_->Teil<QWidget>("Legendenrahmen_0")->geometry()));
    }

    // The numbers of the time axis stay in sight, also under the grid of six studies.
    void a_grid_ends_above_the_time_axis() {
        const auto pruefe = [&](const char* Name) {
            const QRect Tafel = p_->Teil<QWidget>(Name)->geometry();
            QVERIFY2(Tafel.bottom() < Zeitachse(), Name);
        };
        pruefe("Ergebnisrahmen_0");
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_0");
        pruefe("Ergebnisrahmen_8");
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        pruefe("Ergebnisrahmen_Zusammenfassung_6");
        auto* Grid = p_->Teil<QTableWidget>("Ergebnisse_Zusammenfassung_6");
        QCOMPARE(Grid->rowCount(), 13);
        for (int i = 0; i < 12; ++i) QVERIFY(Grid->rowHeight(i) >= Grid->fontMetrics().ascent() + 1);
    }

    void the_report_takes_the_legend_from_where_it_was_dragged_to() {
        const auto Ort = [&] { return p_->Programm().zeige<Diagrammsteuerung>().Legende(); };
        QVERIFY(!Ort());
        auto* Legende = p_->Teil<QWidget>("Legendenrahmen_0");
        ziehe(Legende, QPoint(5, 5), QPoint(-200, 150));
        QVERIFY(Ort());
        QVERIFY(std::abs(Ort()->links * p_->vorn()->width() - Legende->x()) < 1);
        QVERIFY(std::abs(Ort()->oben * p_->vorn()->height() - Legende->y()) < 1);
        const QImage dort = erstelle_Berichtsbild(mit_Beschriftung(*p_->vorn()->Inhalt(), {.Legende = Ort()}));
        const QImage daheim = erstelle_Berichtsbild(mit_Beschriftung(*p_->vorn()->Inhalt()));
        QVERIFY(dort != daheim);
        QVERIFY(Berichtsbild_bei([&] { p_->klicke("Bericht_erstellen"); }) == dort);
        QVERIFY(Berichtsbild_bei([&] { p_->Teil<QAction>("M_Bericht")->trigger(); }) == dort);
        QVERIFY(Berichtsbild_bei([&] { QTest::keyClick(&p_->Fenster(), Qt::Key_R, Qt::ControlModifier); }) == dort);
        p_->Teil<QAction>("M_Rahmen_zeigen")->trigger();
        QVERIFY(!Ort());
        QVERIFY(Berichtsbild_bei([&] { p_->klicke("Bericht_erstellen"); }) == daheim);
    }

    void a_hidden_legend_is_in_the_report_all_the_same() {
        const QImage Bild = erstelle_Berichtsbild(mit_Beschriftung(*p_->vorn()->Inhalt()));
        QTest::mouseClick(p_->Teil<QWidget>("Legendenrahmen_0"), Qt::LeftButton, Qt::ControlModifier);
        QVERIFY(!p_->sichtbar("Legendenrahmen_0"));
        QVERIFY(Berichtsbild_bei([&] { p_->klicke("Bericht_erstellen"); }) == Bild);
        QVERIFY(!p_->sichtbar("Legendenrahmen_0"));
    }

    void the_legend_of_a_summary_has_a_row_for_each_study() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        for (int st = 0; st < 6; ++st) {
            auto* l = p_->Fenster().findChild<QLabel*>(u"L_Studie_Zusammenfassung_"_s + in_Qt(36 + st));
            QVERIFY(l && l->isVisible());
            QCOMPARE(l->text(), in_Qt(p_->Programm().Stand().Vorgabe.Studie[static_cast<std::size_t>(st)]));
        }
        QCOMPARE(p_->Teil<QWidget>("Legendenrahmen_Zusammenfassung_6")->findChildren<QLabel*>().size(), 6);
    }

private:
    // The picture of the report that comes of it; none without one.
    QImage Berichtsbild_bei(const std::function<void()>& Handlung) {
        Handlung();
        const Bericht* b = p_->Programm().zeige<Berichtssteuerung>().offener();
        if (!b) return {};
        const QVariant Bild = b->Dokument->resource(QTextDocument::ImageResource, QUrl(QString::fromLatin1(Bildname)));
        p_->klicke("Bericht_schliessen");
        return Bild.value<QImage>();
    }

    // Height of the time axis on the surface in front: the lowest row with many pixels drawn; curves may lie on it.
    int Zeitachse() {
        const QImage b = p_->Bild();
        for (int y = b.height() - 1; y > 0; --y) {
            int Anzahl = 0;
            for (int x = 0; x < b.width(); ++x) Anzahl += (b.pixel(x, y) | 0xff000000) != 0xffffffff;
            if (Anzahl > b.width() / 2) return y;
        }
        qFatal("no time axis");
    }

    static QComboBox* Liste(QDialog& d, const char* Name) { return d.findChild<QComboBox*>(QString::fromLatin1(Name)); }

    template <class H>
    void skaliere(H Handlung) {
        bei_Dialog<QDialog>(Handlung);
        QTest::mouseClick(p_->vorn(), Qt::RightButton, {}, p_->leer());
        QTest::qWait(60);
        p_->aktiviere();
    }

    static void ziehe(QWidget* w, const QPoint& Griff, const QPoint& Weg) {
        QTest::mousePress(w, Qt::LeftButton, {}, Griff);
        // The widget moves along, so each step starts at where it is.
        const QPoint Ziel = w->mapToGlobal(Griff) + Weg;
        for (int i = 1; i <= 4; ++i) {
            const QPoint hier = w->mapToGlobal(Griff);
            QTest::mouseMove(w, w->mapFromGlobal(hier + (Ziel - hier) * i / 4));
            QTest::qWait(1);
        }
        QTest::mouseRelease(w, Qt::LeftButton, {}, w->mapFromGlobal(Ziel));
        QTest::qWait(1);
    }

    static void pruefe_Zug(QWidget* w, int nach_unten) {
        const QPoint Griff = w->rect().center();
        const QPoint vorher = w->mapToGlobal(Griff);
        const QPoint Weg(-60, nach_unten);
        ziehe(w, Griff, Weg);
        QVERIFY2(w->mapToGlobal(Griff) == vorher + Weg, qPrintable(w->objectName()));
    }

    std::unique_ptr<Diagrammprobe> p_;
};

namespace {
const Anmeldung<Diagrammtest> angemeldet;
}

#include "diagramm_test.moc"
