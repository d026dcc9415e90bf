// Takes the pictures that show the window in letters of a size, without a display, on a copy of the shipped data:
//
//     groessenbilder <folder> <points> light|dark <name of the scale>          the smallest window
//     groessenbilder <folder> <points> light|dark <name of the scale> focus    every kind of control with the focus
//
// The scale itself is told by the environment.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLocale>
#include <QPainter>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "painting/qt_text.h"
#include "probefenster.h"
#include "window/ergebnis/diagrammflaeche.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace varnok;

namespace {

constexpr int wenige_Farben = 128;
constexpr int Umgebungsrand = 12;

// What the window shows, another part of it in letters of each size.
struct Ansicht {
    int Punkt;
    const char16_t* Simulation;
    int Seite;
    bool alle_Studien;
    const char16_t* Fokus;
};
constexpr Ansicht Ansichten[] = {
    {9, u"Programcheck", 0, false, u"S_DT50_0"},
    {11, u"Sugar beet, Compound E", 0, true, u"App_Monat"},
    {14, u"Vines, Compound D", 1, false, u"Applikationsschema"},
    {16, u"Sugar beet, Compound E", 2, true, u"Molmasse_Met_1"},
};

class Groessenbilder : public Probefenster {
public:
    Groessenbilder(const QString& Ordner, int Punkt, QString Endung)
        : Probefenster(Ordner), Punkt_(Punkt), Endung_(std::move(Endung)) {
        Fenster_->resize(Fenster_->minimumSize());
        QTest::qWait(50);
    }

    void zeige_kleinstes_Fenster() {
        Taste(u"Starten"_s);
        const auto* a =
            std::find_if(std::begin(Ansichten), std::end(Ansichten), [&](const Ansicht& x) { return x.Punkt == Punkt_; });
        if (a == std::end(Ansichten)) qFatal("no view for letters of that size");
        waehle_Simulation(QString::fromUtf16(a->Simulation));
        Seite(a->Seite);
        Option(u"PEC_Typ_0"_s);
        if (a->alle_Studien) befehle(u"M_Zusammenfassung"_s);
        Teil<QWidget>(QString::fromUtf16(a->Fokus))->setFocus(Qt::TabFocusReason);
        QTest::qWait(100);
        sichere(Fenster_->grab().toImage(), u"window_"_s + Endung_ + u".png"_s, wenige_Farben);
    }

    void zeige_Fokus() {
        nimm_auf(u"the button of the start page"_s, u"Starten"_s);
        Taste(u"Starten"_s);
        waehle_Simulation(u"Vines, Compound D"_s);
        Option(u"PEC_Typ_0"_s);
        nimm_auf(u"list of records"_s, u"Liste_1"_s);
        nimm_auf(u"button"_s, u"Copy_1"_s);
        nimm_auf(u"description"_s, u"Beschreibung"_s);
        nimm_auf(u"pages of the input"_s, u"Wirkstoffdaten_Leiste"_s);
        nimm_auf(u"option on a frame"_s, u"Applikationsmuster_2"_s);
        nimm_auf(u"list"_s, u"Fruchtwechsel"_s);
        nimm_auf(u"number"_s, u"S_Q10_0"_s);
        nimm_auf(u"table of applications"_s, u"Applikationsschema"_s);
        Seite(1);
        nimm_auf(u"name"_s, u"Name_Wirkstoff_1"_s);
        nimm_auf(u"text to be read"_s, u"Bodenszenario"_s);
        nimm_auf(u"pages of the results"_s, u"Berechnungsmodus_Leiste"_s);
        nimm_auf(u"table of results"_s, u"Ergebnisse_"_s + in_Qt(vorn()->Nummer()));
        nimm_auf(u"option below the diagram"_s, u"PEC_Typ_0"_s);
        nimm_auf(u"list below the diagram"_s, u"TWA_Laenge"_s);
        nimm_auf(u"button at the foot"_s, u"Ende"_s);
        Taste(u"Bericht_erstellen"_s);
        nimm_auf(u"report"_s, u"Bericht"_s);
        nimm_auf(u"button of the report"_s, u"Bericht_schliessen"_s);
        Taste(u"Bericht_schliessen"_s);
        zeige_Dialog();
        setze_zusammen();
    }

private:
    void nimm_auf(const QString& Titel, const QString& Name) { nimm_auf(Titel, *Teil<QWidget>(Name)); }

    // The control with what is around it, of a large one its beginning.
    void nimm_auf(const QString& Titel, QWidget& w) {
        w.setFocus(Qt::TabFocusReason);
        QTest::qWait(40);
        if (w.window()->focusWidget() != &w) qFatal("no focus for %s", qPrintable(w.objectName()));
        const QSize Ausschnitt = w.size().boundedTo(Groesse_des_Ausschnitts(w));
        const QRect Ort = QRect(w.mapTo(w.window(), QPoint(0, 0)), Ausschnitt);
        const QRect Umgebung = Ort.adjusted(-Umgebungsrand, -Umgebungsrand, Umgebungsrand, Umgebungsrand) & w.window()->rect();
        Bilder_.emplace_back(Titel, w.window()->grab(Umgebung));
    }
    static QSize Groesse_des_Ausschnitts(const QWidget& w) {
        return {w.fontMetrics().averageCharWidth() * 46, w.fontMetrics().height() * 8};
    }

    void zeige_Dialog() {
        QTimer::singleShot(200ms, Fenster_.get(), [this] {
            auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!Dialog) qFatal("no dialog");
            Dialog->activateWindow();
            QTest::qWait(50);
            const auto zeige = [&](const QString& Titel, const QString& Name) {
                nimm_auf(Titel, *Dialog->findChild<QWidget*>(Name));
            };
            zeige(u"option of a dialog"_s, u"Einheit_0"_s);
            zeige(u"check box"_s, u"Check1_1"_s);
            zeige(u"button of a dialog"_s, u"Abbrechen"_s);
            Dialog->reject();
        });
        befehle(u"M_Optionen"_s);
        aktiviere();
    }

    // One below the other in three columns, each under its title.
    void setze_zusammen() {
        constexpr std::size_t Spalten = 3;
        const QFontMetrics Masse(QApplication::font());
        const int Zeile = Masse.height() + 6;
        int Breite = 0;
        std::vector<int> Hoehen(Spalten, 8);
        std::vector<QPoint> Orte;
        for (const auto& [Titel, Bild] : Bilder_) {
            Breite = std::max({Breite, static_cast<int>(Bild.deviceIndependentSize().width()), Masse.horizontalAdvance(Titel)});
        }
        for (const auto& [Titel, Bild] : Bilder_) {
            const auto s = static_cast<std::size_t>(std::min_element(Hoehen.begin(), Hoehen.end()) - Hoehen.begin());
            Orte.emplace_back(8 + static_cast<int>(s) * (Breite + 16), Hoehen[s]);
            Hoehen[s] += Zeile + static_cast<int>(Bild.deviceIndependentSize().height()) + 10;
        }
        const double Massstab = Fenster_->devicePixelRatioF();
        const QSize Groesse(static_cast<int>(Spalten) * (Breite + 16), *std::max_element(Hoehen.begin(), Hoehen.end()));
        QPixmap Blatt(Groesse * Massstab);
        Blatt.setDevicePixelRatio(Massstab);
        Blatt.fill(QApplication::palette().color(QPalette::Window));
        QPainter p(&Blatt);
        p.setPen(QApplication::palette().color(QPalette::WindowText));
        for (std::size_t i = 0; i < Bilder_.size(); ++i) {
            p.drawText(Orte[i] + QPoint(0, Masse.ascent()), Bilder_[i].first);
            p.drawPixmap(Orte[i] + QPoint(0, Zeile), Bilder_[i].second);
        }
        p.end();
        sichere(Blatt.toImage(), u"focus_"_s + Endung_ + u".png"_s, wenige_Farben);
    }

    int Punkt_;
    QString Endung_;
    std::vector<std::pair<QString, QPixmap>> Bilder_;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication Anwendung(argc, argv);
    const QStringList a = QApplication::arguments();
    if (a.size() < 5) qFatal("usage: groessenbilder <folder> <points> light|dark <name of the scale> [focus]");
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setFont(QFont(u"DejaVu Sans"_s, a[2].toInt()));
    if (a[3] == u"dark"_s) QApplication::setPalette(dunkle_Palette());
    QLocale::setDefault(QLocale::c());
    Groessenbilder Bilder(a[1], a[2].toInt(), a[2] + u"pt_"_s + a[4] + u'_' + a[3]);
    a.size() > 5 ? Bilder.zeige_Fokus() : Bilder.zeige_kleinstes_Fenster();
    return 0;
}
