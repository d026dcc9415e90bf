#include "window/programm/projektmenue.h"

#include <QAction>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>

#include "painting/qt_text.h"
#include "window/kern/dateiablage.h"
#include "window/kern/rahmen.h"

namespace varnok {

using namespace Qt::StringLiterals;

Projektmenue::Projektmenue(Sitzung& Programm, QMainWindow& Fenster) : QObject(&Fenster), Programm_(Programm), Fenster_(Fenster) {
    auto* Datei = Fenster.findChild<QMenu*>(u"M_Datei"_s);
    auto* Projekt = Fenster.findChild<QAction*>(u"M_Projekt"_s);
    connect(Projekt, &QAction::triggered, this, &Projektmenue::waehle_Ordner);
    const QList<QAction*> Aktionen = Datei->actions();
    QAction* danach = Aktionen.value(Aktionen.indexOf(Projekt) + 1);
    Datei->insertMenu(danach, erstelle_Liste(u"M_letzte_Projekte"_s, u"Recent pro&jects"_s, &Projektoeffnung::Projekte));
    Datei->insertMenu(danach,
                      erstelle_Liste(u"M_letzte_Simulationen"_s, u"Recent si&mulations"_s, &Projektoeffnung::Simulationen));
    // What lies under a dialog stays what the dialog is about.
    const auto frei = [this] {
        return !QApplication::activeModalWidget() && !Programm_.zeige<Aktualisierungssteuerung>().laeuft();
    };
    connect(new Dateiablage(Fenster, frei), &Dateiablage::abgelegt, this, &Projektmenue::oeffne);
}

// What was open last is read when the list opens: other windows write it, too.
QMenu* Projektmenue::erstelle_Liste(const QString& Name, const QString& Aufschrift,
                                    std::vector<Zuletztes> (Projektoeffnung::*Eintraege)() const) {
    auto* Liste = new QMenu(Aufschrift, &Fenster_);
    Liste->setObjectName(Name);
    connect(Liste, &QMenu::aboutToShow, this,
            [this, Liste, Eintraege] { fuelle(*Liste, (Programm_.zeige<Projektoeffnung>().*Eintraege)()); });
    return Liste;
}

void Projektmenue::fuelle(QMenu& Liste, const std::vector<Zuletztes>& Eintraege) {
    Liste.clear();
    for (const Zuletztes& z : Eintraege) {
        const QString Pfad = in_Qt(z.Pfad);
        QAction* a = Liste.addAction(in_Qt(z.Aufschrift).replace(u'&', u"&&"_s));
        a->setEnabled(z.vorhanden);
        a->setStatusTip(Pfad);
        connect(a, &QAction::triggered, this, [this, Pfad] { oeffne(Pfad); });
    }
    if (Eintraege.empty()) Liste.addAction(u"None yet"_s)->setEnabled(false);
}

void Projektmenue::waehle_Ordner() {
    const QString Ordner = QFileDialog::getExistingDirectory(&Fenster_, u"Open project"_s, in_Qt(Programm_.Stand().Projektpfad));
    if (!Ordner.isEmpty()) oeffne(Ordner);
}

void Projektmenue::oeffne(const QString& Pfad) {
    {
        const Wartezeiger warte;
        Programm_.fuehre_aus<&Projektoeffnung::oeffne>(aus_Qt(Pfad));
    }
    Q_EMIT gehandelt();
}

}  // namespace varnok
