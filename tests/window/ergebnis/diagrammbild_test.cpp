// The picture of a diagram: labels, curves, values read off it, and its way to other programs.

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QSpinBox>
#include <QSvgRenderer>

#include "painting/qt_text.h"
#include "window/ergebnis/diagrammprobe.h"
#include "window/ergebnis/flaechenrahmen.h"
#include "window/kern/anmeldung.h"

using namespace Qt::StringLiterals;
using namespace varnok;

class Diagrammbildtest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { p_ = std::make_unique<Diagrammprobe>(); }
    void cleanup() { p_.reset(); }

    void labels_stand_apart_on_the_surface_at_the_smallest_size_data() {
        QTest::addColumn<QString>("Simulation");
        QTest::addColumn<int>("Klicks");
        for (const char* s : {"Programcheck", "Potatoes, Compound C", "Vines, Compound D", "Sugar beet, Compound E"}) {
            for (const int n : {0, 3}) QTest::newRow((QByteArray(s) + char('0' + n)).constData()) << QString::fromLatin1(s) << n;
        }
    }
    void labels_stand_apart_on_the_surface_at_the_smallest_size() {
        QFETCH(QString, Simulation);
        QFETCH(int, Klicks);
        if (Simulation != u"Programcheck"_s) p_->waehle_Simulation(Simulation.toLatin1().constData());
        p_->klicke_Diagramm(Klicks);
        p_->Fenster().resize(p_->Fenster().minimumSize());
        QTest::qWait(30);
        QList<QRect> belegt;
        for (const char* Name : {"Diagrammtitel_", "Diagrammkommentar_", "Name_x_Achse_", "Name_y_Achse_"}) {
            const QString ganz = QString::fromLatin1(Name) + in_Qt(p_->vorn()->Nummer());
            auto* l = p_->Fenster().findChild<QLabel*>(ganz);
            QVERIFY(l->isVisible());
            QVERIFY(!l->text().isEmpty());
            QVERIFY2(p_->vorn()->rect().contains(l->geometry()), qPrintable(ganz));
            for (const QString& Zeile : l->text().split(u'\n')) QVERIFY(l->fontMetrics().horizontalAdvance(Zeile) <= l->width());
            for (const QRect& r : belegt) QVERIFY2(!r.intersects(l->geometry()), qPrintable(ganz));
            belegt << l->geometry();
        }
    }

    void a_title_that_does_not_fit_has_two_lines() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->Fenster().resize(900, 560);
        QTest::qWait(30);
        const auto* l = p_->Teil<QLabel>("Diagrammtitel_8");
        QCOMPARE(l->text().split(u'\n').size(), 2);
        QCOMPARE(l->text().replace(u'\n', u' '), in_Qt(p_->vorn()->Inhalt()->Titel.Text));
        QVERIFY(l->toolTip().isEmpty());
        QVERIFY(p_->Teil<QLabel>("Diagrammkommentar_8")->font().pixelSize() < l->font().pixelSize());
    }

    void a_title_that_is_too_long_for_two_lines_has_its_text_as_tip() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->Programm().fuehre_aus<&Beschreibungseingabe::oeffne>();
        p_->Programm().fuehre_aus<&Beschreibungseingabe::aendere>(std::string(60, 'w') + " and " + std::string(60, 'm'));
        p_->Programm().fuehre_aus<&Beschreibungseingabe::schliesse>();
        p_->Fenster().zeige();
        p_->Fenster().resize(p_->Fenster().minimumSize());
        QTest::qWait(30);
        auto* l = p_->Teil<QLabel>("Diagrammtitel_8");
        QVERIFY(l->text().contains(u'…'));
        QVERIFY(l->toolTip().startsWith(u"Background concentration of "_s));
        QVERIFY(l->toolTip().size() > l->text().size());
    }

    void the_picture_has_the_curves_of_its_compounds() {
        QVERIFY(zaehle(p_->Bild(), Marineblau) > 200);
        QCOMPARE(zaehle(p_->Bild(), Gruen), 0);
        p_->waehle_Simulation("Potatoes, Compound C");
        p_->klicke_Diagramm(2);
        QVERIFY(zaehle(p_->Bild(), Marineblau) > 100);
        QVERIFY(zaehle(p_->Bild(), Gruen) > 100);
    }

    // A study's peak lies where the table says it: 1.3333 mg/kg on the first day.
    void the_mouse_reads_values_off_the_curve() {
        auto* l = p_->Teil<QLabel>("Ablesung_0");
        QVERIFY(!l->isVisible());
        p_->Teil<QWidget>("Ergebnisrahmen_0")->hide();
        QTest::mouseMove(p_->vorn(), Ort_des_Tages(0));
        QTest::qWait(5);
        QVERIFY(l->isVisible());
        QVERIFY2(l->text().startsWith(u"day 0: 1.333 mg/kg"_s), qPrintable(l->text()));
        // At the peak's half-life half of it is left.
        QTest::mouseMove(p_->vorn(), Ort_des_Tages(50));
        QTest::qWait(5);
        QVERIFY2(l->text().startsWith(u"day 50: 0.6667 mg/kg"_s), qPrintable(l->text()));
        QVERIFY(p_->vorn()->rect().contains(l->geometry()));
        QTest::mouseMove(p_->vorn(), QPoint(2, 2));
        QTest::qWait(5);
        QVERIFY(!l->isVisible());
    }

    void a_value_read_off_has_the_unit_of_the_results_data() {
        QTest::addColumn<QByteArray>("Simulation");
        QTest::addColumn<QByteArray>("Endpunkt");
        QTest::addColumn<QString>("Einheit");
        QTest::newRow("soil, mg") << QByteArray("Programcheck") << QByteArray("Endpunkt_1") << u" mg/kg, "_s;
        QTest::newRow("water, mg") << QByteArray("Programcheck") << QByteArray("Endpunkt_0") << u" mg/L, "_s;
        QTest::newRow("soil, microgram") << QByteArray("Vines, Compound D") << QByteArray("Endpunkt_1") << u" µg/kg, "_s;
        QTest::newRow("water, microgram") << QByteArray("Vines, Compound D") << QByteArray("Endpunkt_0") << u" µg/L, "_s;
    }
    void a_value_read_off_has_the_unit_of_the_results() {
        QFETCH(QByteArray, Simulation);
        QFETCH(QByteArray, Endpunkt);
        QFETCH(QString, Einheit);
        if (Simulation != "Programcheck") p_->waehle_Simulation(Simulation);
        p_->waehle("PEC_Typ_0");
        p_->waehle(Endpunkt);
        auto* d = p_->vorn();
        for (auto* r : d->findChildren<Flaechenrahmen*>()) r->hide();
        // The pointer may stand there since the case before.
        for (const int y : {d->height() / 3, d->height() / 2}) QTest::mouseMove(d, QPoint(d->width() / 2, y));
        QTest::qWait(5);
        const auto* l = d->findChild<QLabel*>(u"Ablesung_"_s + in_Qt(d->Nummer()));
        QVERIFY(l->isVisible());
        QVERIFY2(l->text().contains(Einheit), qPrintable(l->text()));
    }

    void nothing_is_read_off_covered_results() {
        p_->Teil<QWidget>("Ergebnisrahmen_0")->hide();
        const QPoint Tag_60 = Ort_des_Tages(60);
        QTest::mouseMove(p_->vorn(), Ort_des_Tages(50));
        QTest::qWait(5);
        QVERIFY(p_->sichtbar("Ablesung_0"));
        p_->tippe("S_Q10_0", "0");
        p_->Meldung_bei([&] { p_->druecke("S_Q10_0", Qt::Key_Tab); });
        QVERIFY(p_->sichtbar("Abdeckung"));
        QVERIFY(!p_->sichtbar("Ablesung_0"));
        QTest::mouseMove(p_->vorn(), Tag_60);
        QTest::qWait(5);
        QVERIFY(!p_->sichtbar("Ablesung_0"));
        for (const char* Name : {"M_Bild_kopieren", "M_Bild_PNG", "M_Bild_SVG", "M_Bild_PDF", "M_Rahmen_zeigen"})
            QVERIFY(!p_->Teil<QAction>(Name)->isEnabled());
    }

    void the_copied_picture_is_pixels_and_drawing() {
        p_->Teil<QAction>("M_Bild_kopieren")->trigger();
        const QMimeData* Inhalt = QApplication::clipboard()->mimeData();
        QVERIFY(Inhalt->hasImage());
        QVERIFY(zaehle(qvariant_cast<QImage>(Inhalt->imageData()), Marineblau) > 500);
        QVERIFY(QSvgRenderer(Inhalt->data(u"image/svg+xml"_s)).isValid());
    }

    // 160 x 125 mm, 300 dots per inch at first.
    void a_saved_png_has_the_size_and_the_resolution_of_the_options() {
        QImage Bild(speichere("M_Bild_PNG", u"curve.png"_s));
        QCOMPARE(Bild.size(), QSize(1890, 1476));
        QCOMPARE(std::lround(Bild.dotsPerMeterX() * 0.0254), 300);
        QVERIFY(zaehle(Bild, Marineblau) > 2000);
        waehle_Optionen(100, 80, 150, false);
        Bild = QImage(speichere("M_Bild_PNG", u"curve.png"_s));
        QCOMPARE(Bild.size(), QSize(591, 472));
        QCOMPARE(std::lround(Bild.dotsPerMeterX() * 0.0254), 150);
    }

    void for_print_the_light_colours_are_gone() {
        constexpr QRgb Hellgruen = 0xff00ff00;
        p_->waehle_Simulation("Potatoes, Compound C");
        p_->waehle("PEC_Typ_0");
        p_->klicke_Diagramm(2);
        QVERIFY(zaehle(QImage(speichere("M_Bild_PNG", u"curve.png"_s)), Hellgruen) > 100);
        waehle_Optionen(160, 125, 300, true);
        QCOMPARE(zaehle(QImage(speichere("M_Bild_PNG", u"curve.png"_s)), Hellgruen), 0);
        QVERIFY(zaehle(p_->vorn()->grab().toImage(), Hellgruen) > 20);  // on the screen they stay
    }

    void a_saved_svg_holds_labels_and_legend() {
        const QString Pfad = speichere("M_Bild_SVG", u"curve"_s);
        QVERIFY(Pfad.endsWith(u"curve.svg"_s));
        QSvgRenderer Leser(Pfad);
        QVERIFY(Leser.isValid());
        const QString Text = QString::fromUtf8(lies(Pfad));
        for (const QString& s : {u"Annual concentration of"_s, u"Time after first application (d)"_s, u"c(mg/kg)"_s, u"PEC"_s})
            QVERIFY2(Text.contains(s), qPrintable(s));
        QVERIFY(Text.contains(u"#000080"_s));
    }

    void a_legend_that_was_hidden_is_in_no_saved_picture() {
        QTest::mouseClick(p_->Teil<QWidget>("Legendenrahmen_0"), Qt::LeftButton, Qt::ControlModifier);
        QVERIFY(!QString::fromUtf8(lies(speichere("M_Bild_SVG", u"curve"_s))).contains(u">PEC<"_s));
        p_->Teil<QAction>("M_Rahmen_zeigen")->trigger();
        QVERIFY(QString::fromUtf8(lies(speichere("M_Bild_SVG", u"curve"_s))).contains(u">PEC<"_s));
    }

    void the_proposed_name_tells_what_is_shown_and_goes_to_the_output_folder() {
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_2");
        p_->waehle("Endpunkt_0");
        QCOMPARE(vorgeschlagen("M_Bild_SVG"),
                 p_->Pfad(u"output/Compound E - Soil 1, first order - accumulated - pore water.svg"_s));
        p_->klicke_Diagramm(3);
        QCOMPARE(
            vorgeschlagen("M_Bild_PNG"),
            p_->Pfad(u"output/Compound E, Metabolite E1, Metabolite E2 - Soil 1, first order - accumulated - pore water.png"_s));
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        QCOMPARE(vorgeschlagen("M_Daten_speichern"),
                 p_->Pfad(u"output/Compound E - all studies - accumulated - pore water.csv"_s));
    }

    void the_status_line_says_what_was_written_or_copied() {
        const auto Status = [this] { return in_Qt(p_->Programm().Stand().Statuszeile.Text()); };
        const QString Pfad = speichere("M_Bild_PDF", u"curve.pdf"_s);
        QCOMPARE(Status(), u"Picture written: "_s + Pfad);
        p_->Teil<QAction>("M_Bild_kopieren")->trigger();
        QVERIFY2(Status().startsWith(u"Picture copied: Annual concentration of "_s), qPrintable(Status()));
        p_->Teil<QAction>("M_Daten_kopieren")->trigger();
        QVERIFY2(Status().startsWith(u"Data copied: Annual concentration of "_s), qPrintable(Status()));
        const QString Daten = speichere("M_Daten_speichern", u"curve"_s);
        QVERIFY(Daten.endsWith(u"curve.csv"_s));
        QCOMPARE(Status(), u"Data written: "_s + Daten);
    }

    void saved_data_hold_curve_average_and_table() {
        const QString Text = QString::fromUtf8(lies(speichere("M_Daten_speichern", u"curve"_s)));
        const QStringList Zeilen = Text.split(u"\r\n"_s);
        QVERIFY(Zeilen.contains(u"day,Compound A (mg/kg)"_s));
        QVERIFY(Zeilen.contains(u"0,1.333333"_s));
        QVERIFY(Text.contains(u"TWA of,first day,days,TWA (mg/kg)\r\nCompound A,0,"_s));
        QVERIFY(Text.contains(u"Total soil concentrations (mg/kg) incl. crop rotation"_s));
        QVERIFY(Text.contains(u"1.3333"_s));
    }

    void copied_data_are_cells_of_a_spreadsheet() {
        p_->Teil<QAction>("M_Daten_kopieren")->trigger();
        const QMimeData* Inhalt = QApplication::clipboard()->mimeData();
        QVERIFY(Inhalt->text().contains(u"\r\nday\tCompound A (mg/kg)\r\n0\t1.333333\r\n"_s));
        QVERIFY(Inhalt->data(u"text/csv"_s).contains("\r\n0,1.333333\r\n"));
    }

    void a_saved_pdf_is_one() {
        const QByteArray Inhalt = lies(speichere("M_Bild_PDF", u"curve.pdf"_s));
        QVERIFY(Inhalt.startsWith("%PDF-"));
        QVERIFY(Inhalt.trimmed().endsWith("%%EOF"));
        QVERIFY(Inhalt.contains("/MediaBox [0 0 45"));  // 160 mm are 453.5 points
    }

    void a_picture_that_cannot_be_written_is_told() {
        QTemporaryDir Ordner;
        const QString Text = p_->Meldung_bei([&] {
            bei_Dialog<QFileDialog>([&](QFileDialog& d) {
                d.findChild<QLineEdit*>()->setText(Ordner.filePath(u"curve.svg"_s));
                Ordner.remove();
                static_cast<QDialog&>(d).done(QDialog::Accepted);
            });
            p_->Teil<QAction>("M_Bild_SVG")->trigger();
        });
        QVERIFY2(Text.contains(u"curve.svg"_s), qPrintable(Text));
    }

private:
    static QByteArray lies(const QString& Pfad) {
        QFile f(Pfad);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    // A place over the day of a diagram that ends on day 364. The time axis is found in the picture as the lowest long
    // black line; the tick of the zero on the other axis makes it a fiftieth longer.
    QPoint Ort_des_Tages(int Tag) {
        const QImage b = p_->vorn()->grab().toImage();
        const double Dichte = b.devicePixelRatio();
        for (int y = b.height() - 1; y > b.height() / 2; --y) {
            // Curves and windows touch the line here and there; the number beside the tick stands further off.
            int links = -1, rechts = -1, Anzahl = 0;
            for (int x = 0; x < b.width(); ++x) {
                if (b.pixel(x, y) != 0xff000000) continue;
                if (links < 0 || (Anzahl < 12 * Dichte && x - rechts > 3 * Dichte)) {
                    links = x;
                    Anzahl = 0;
                }
                rechts = x;
                ++Anzahl;
            }
            if (Anzahl < b.width() / 2) continue;
            const double Tageslaenge = (rechts - links) / 364.0 / 1.02;
            return {static_cast<int>(std::lround((rechts - (364 - Tag) * Tageslaenge) / Dichte)),
                    static_cast<int>(y / Dichte) - 40};
        }
        qFatal("no time axis");
    }

    // Through the file dialog.
    QString speichere(const char* Befehl, const QString& Name) {
        Ordner_ = std::make_unique<QTemporaryDir>();
        bei_Dialog<QFileDialog>([&](QFileDialog& d) {
            d.findChild<QLineEdit*>()->setText(Ordner_->filePath(Name));
            QMetaObject::invokeMethod(&d, "accept");
        });
        p_->Teil<QAction>(Befehl)->trigger();
        const QStringList da = QDir(Ordner_->path()).entryList(QDir::Files);
        return da.isEmpty() ? QString() : Ordner_->filePath(da.front());
    }

    // The file that the dialog opens with.
    QString vorgeschlagen(const char* Befehl) {
        QString Pfad;
        bei_Dialog<QFileDialog>([&](QFileDialog& d) {
            Pfad = d.directory().filePath(d.findChild<QLineEdit*>()->text());
            d.reject();
        });
        p_->Teil<QAction>(Befehl)->trigger();
        return Pfad;
    }

    void waehle_Optionen(int Breite, int Hoehe, int Aufloesung, bool Druck) {
        bei_Dialog<QDialog>([&](QDialog& d) {
            for (const auto& [Name, Wert] :
                 {std::pair("Bildbreite", Breite), {"Bildhoehe", Hoehe}, {"Bildaufloesung", Aufloesung}})
                d.findChild<QSpinBox*>(QString::fromLatin1(Name))->setValue(Wert);
            d.findChild<QCheckBox*>(u"Bild_fuer_Druck"_s)->setChecked(Druck);
            d.accept();
        });
        p_->Teil<QAction>("M_Bild_Optionen")->trigger();
    }

    std::unique_ptr<QTemporaryDir> Ordner_;
    std::unique_ptr<Diagrammprobe> p_;
};

namespace {
const Anmeldung<Diagrammbildtest> angemeldet;
}

#include "diagrammbild_test.moc"
