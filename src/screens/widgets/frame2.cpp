#include "screens/widgets/frame2.h"

#include <QHBoxLayout>

#include "screens/widgets/bausteine.h"
#include "screens/widgets/beschreibungsfeld.h"
#include "screens/widgets/qt_text.h"

namespace varnok {

using namespace Qt::StringLiterals;

Frame2::Frame2(Sitzung& Programm, QWidget* parent) : Rahmen(u"Frame2"_s, Rahmenart::schlicht, Programm, parent) {
    Simulationsliste_ = new Auswahlliste(u"Simulationsliste"_s, 30, this);
    Copy_ = new Schaltflaeche(u"Copy_Simulation"_s, u"Copy"_s, this);
    Loeschen_ = new Schaltflaeche(u"Loeschen_Simulation"_s, u"Del"_s, this);
    Beschreibung_ = new Beschreibungsfeld(this);

    QLabel* Schild_Simulation = Schild(u"Current  Simulation:"_s, Simulationsliste_, this);
    Schild_Simulation->setObjectName(u"Label1"_s);
    QLabel* Schild_Beschreibung = Schild(u"Description:"_s, Beschreibung_, this);
    Schild_Beschreibung->setObjectName(u"Label9"_s);

    auto* Zeile = new QHBoxLayout(this);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->setSpacing(6);
    Zeile->addWidget(Schild_Simulation);
    Zeile->addWidget(Simulationsliste_);
    Zeile->addWidget(Copy_);
    Zeile->addWidget(Loeschen_);
    Zeile->addSpacing(18);
    Zeile->addWidget(Schild_Beschreibung);
    Zeile->addWidget(Beschreibung_, 1);

    connect(Simulationsliste_, &QComboBox::activated, this, [this](int i) { handle([&] { Programm_.waehle_Simulation(i); }); });
    connect(Beschreibung_, &Beschreibungsfeld::aufgeschlossen, this,
            [this] { handle([&] { Programm_.oeffne_Beschreibung(); }); });
    connect(Beschreibung_, &QLineEdit::textEdited, this,
            [this](const QString& Text) { tippe([&] { Programm_.aendere_Beschreibung(aus_Qt(Text)); }); });
    connect(Beschreibung_, &Beschreibungsfeld::abgeschlossen, this,
            [this] { handle([&] { Programm_.schliesse_Beschreibung(); }); });
    connect(Beschreibung_, &Beschreibungsfeld::zurueckgenommen, this,
            [this] { handle([&] { Programm_.nimm_Beschreibung_zurueck(); }); });
}

void Frame2::zeige() {
    Simulationsliste_->zeige(Stand().Listen[0], Stand().Auswahl[0]);
    Simulationsliste_->faerbe(Stand().Simulation_markiert ? Farben::Markierung : QColor());
    Copy_->setEnabled(false);
    Loeschen_->setEnabled(false);
    Beschreibung_->zeige(in_Qt(Felder().Beschreibung), Stand().Beschreibung_offen, farbig());
}

}  // namespace varnok
