#include "window/saetze/frame2.h"

#include <QHBoxLayout>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/saetze/beschreibungsfeld.h"
#include "window/saetze/satzauswahl.h"
#include "window/saetze/satzliste.h"

namespace varnok {

using namespace Qt::StringLiterals;

Frame2::Frame2(Sitzung& Programm, QWidget* parent) : Rahmen(u"Frame2"_s, Rahmenart::schlicht, Programm, parent) {
    Simulation_ =
        new Satzliste(Simulation, {u"Simulationsliste"_s, u"Copy_Simulation"_s, u"Loeschen_Simulation"_s}, 30, Programm, *this);
    Beschreibung_ = new Beschreibungsfeld(this);

    QLabel* Schild_Simulation = Schild(u"Current  Simulation:"_s, Simulation_->Liste, this);
    Schild_Simulation->setObjectName(u"Label1"_s);
    QLabel* Schild_Beschreibung = Schild(u"Description:"_s, Beschreibung_, this);
    Schild_Beschreibung->setObjectName(u"Label9"_s);

    auto* Zeile = new QHBoxLayout(this);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->setSpacing(6);
    Zeile->addWidget(Schild_Simulation);
    Zeile->addWidget(Simulation_->Liste);
    Zeile->addWidget(Simulation_->Copy);
    Zeile->addWidget(Simulation_->Loeschen);
    Zeile->addSpacing(18);
    Zeile->addWidget(Schild_Beschreibung);
    Zeile->addWidget(Beschreibung_, 1);

    connect(Simulation_->Liste, &QComboBox::activated, this, [this](int i) { befiehl<&Satzverwaltung::waehle_Simulation>(i); });
    connect(Simulation_, &Satzliste::gehandelt, this, &Rahmen::gehandelt);
    // The dialog opens when the press is over.
    connect(Beschreibung_, &Beschreibungsfeld::doppelt_geklickt, this, &Frame2::Organiser_verlangt, Qt::QueuedConnection);
    connect(Beschreibung_, &Beschreibungsfeld::aufgeschlossen, this, [this] { handle([&] { schliesse_auf(); }); });
    connect(Beschreibung_, &QLineEdit::textEdited, this,
            [this](const QString& Text) { tippe([&] { Programm_.fuehre_aus<&Beschreibungseingabe::aendere>(aus_Qt(Text)); }); });
    connect(Beschreibung_, &Beschreibungsfeld::abgeschlossen, this, [this] { befiehl<&Beschreibungseingabe::schliesse>(); });
    connect(Beschreibung_, &Beschreibungsfeld::zurueckgenommen, this, [this] { befiehl<&Beschreibungseingabe::nimm_zurueck>(); });
}

// A number that is refused keeps the focus, and the description stays locked.
void Frame2::schliesse_auf() { Programm_.fuehre_aus<&Beschreibungseingabe::oeffne>(); }

void Frame2::zeige() {
    Simulation_->zeige();
    Simulation_->Liste->faerbe(Stand().Simulation_markiert() ? Farben::Markierung : QColor());
    Beschreibung_->zeige(in_Qt(Programm_.zeige<Organiser>().gezeigte_Beschreibung()),
                         Programm_.zeige<Beschreibungseingabe>().offen(), farbig());
}

}  // namespace varnok
