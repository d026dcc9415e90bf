#include "probefenster.h"

#include <QAction>
#include <QHash>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <utility>

#include "painting/qt_text.h"
#include "window/ergebnis/diagrammflaeche.h"

namespace varnok {

using namespace Qt::StringLiterals;

QPalette dunkle_Palette() {
    QPalette p(QColor(56, 58, 62), QColor(45, 47, 50));
    p.setColor(QPalette::Base, QColor(34, 35, 38));
    return p;
}

Probefenster::Probefenster(const QString& Zielordner) : Ziel_(Zielordner) {
    Ziel_.mkpath(u"."_s);
    kopiere_Projekt();
    Programm_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, aus_Qt(Projekt_.path()), VARNOK_DATENORDNER, '.'});
    if (!Programm_->fuehre_aus<&Programmablauf::oeffne_Projekt>()) qFatal("the shipped data cannot be loaded");
    Fenster_ = std::make_unique<Hauptformular>(*Programm_, &Fragen_);
    Fenster_->resize(1180, 760);
    Fenster_->show();
    aktiviere();
}

void Probefenster::kopiere_Projekt() {
    const QDir von(QStringLiteral(VARNOK_DATENORDNER "/input"));
    QDir(Projekt_.path()).mkpath(u"input"_s);
    for (const QFileInfo& Datei : von.entryInfoList(QDir::Files)) {
        if (Datei.fileName() != u"Programcheck.vnk"_s)
            QFile::copy(Datei.filePath(), Projekt_.filePath(u"input/"_s + Datei.fileName()));
    }
    // The newest simulation is the one that the program opens.
    QTest::qWait(20);
    QFile::copy(von.filePath(u"Programcheck.vnk"_s), Projekt_.filePath(u"input/Programcheck.vnk"_s));
}

void Probefenster::sichere(const QImage& Bild, const QString& Datei, int Farbzahl) const {
    const QImage bunt = Bild.convertToFormat(QImage::Format_RGB32);
    // A thin curve counts more than the many greys around letters.
    const auto Gewicht = [](QRgb f) {
        const auto [kleinster, groesster] = std::minmax({qRed(f), qGreen(f), qBlue(f)});
        return groesster - kleinster > 160 ? 16 : 1;
    };
    QHash<QRgb, int> Anzahl;
    for (int y = 0; y < bunt.height(); ++y) {
        for (int x = 0; x < bunt.width(); ++x) Anzahl[bunt.pixel(x, y)] += Gewicht(bunt.pixel(x, y));
    }
    QList<QRgb> Farben = Anzahl.keys();
    std::sort(Farben.begin(), Farben.end(), [&](QRgb a, QRgb b) { return std::pair(Anzahl[b], a) < std::pair(Anzahl[a], b); });
    Farben.resize(std::min<qsizetype>(Farbzahl, Farben.size()));
    bunt.convertToFormat(QImage::Format_Indexed8, Farben, Qt::ThresholdDither | Qt::AvoidDither)
        .save(Ziel_.filePath(Datei), "PNG", 0);
}

void Probefenster::aktiviere() {
    Fenster_->activateWindow();
    if (!QTest::qWaitForWindowActive(Fenster_.get())) qFatal("the window does not become active");
}

void Probefenster::Taste(const QString& Name) { QTest::mouseClick(Teil<QPushButton>(Name), Qt::LeftButton); }

void Probefenster::Option(const QString& Name) { QTest::mouseClick(Teil<QRadioButton>(Name), Qt::LeftButton, {}, QPoint(8, 8)); }

void Probefenster::Seite(int i) { Teil<QTabWidget>(u"Wirkstoffdaten"_s)->setCurrentIndex(i); }

void Probefenster::befehle(const QString& Name) { Teil<QAction>(Name)->trigger(); }

void Probefenster::waehle_Simulation(const QString& Name) {
    auto* Liste = Teil<QComboBox>(u"Simulationsliste"_s);
    const int i = Liste->findText(Name);
    if (i < 0) qFatal("no simulation %s", qPrintable(Name));
    Liste->setCurrentIndex(i);
    Q_EMIT Liste->activated(i);
}

void Probefenster::klicke_weiter(int Anzahl) {
    for (int i = 0; i < Anzahl; ++i) QTest::mouseClick(vorn(), Qt::LeftButton, {}, QPoint(5, vorn()->height() / 2));
}

Diagrammflaeche* Probefenster::vorn() {
    for (auto* d : Fenster_->findChildren<Diagrammflaeche*>()) {
        if (d->isVisible()) return d;
    }
    qFatal("no diagram is seen");
}

}  // namespace varnok
