#include "window/ergebnis/untere_zeile.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/kern/zwei_gruppen.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

using Optionen = std::vector<std::pair<int, QString>>;  // index of the control, caption

QButtonGroup* erstelle_Optionen(const QString& Name, const Optionen& Liste, QLayout& Blatt, QWidget* parent) {
    auto* Gruppe = new QButtonGroup(parent);
    auto* Zeile = new QHBoxLayout;
    Zeile->setSpacing(14);
    for (const auto& [Index, Aufschrift] : Liste) {
        auto* Option = new QRadioButton(Aufschrift, parent);
        Option->setObjectName(Name + u'_' + in_Qt(Index));
        Gruppe->addButton(Option, Index);
        Zeile->addWidget(Option);
    }
    Blatt.addItem(Zeile);
    return Gruppe;
}

// The option "Total content" has the index 1, the store of total contents the index 0.
constexpr int Option_zu_Endpunkt(int e) { return 1 - e; }

}  // namespace

Untere_Zeile::Untere_Zeile(Sitzung& Programm, QWidget* parent)
    : Rahmen(u"untere_Zeile"_s, Rahmenart::schlicht, Programm, parent) {
    auto* oben = new Zwei_Gruppen;
    Endpunkt_ = erstelle_Optionen(u"Endpunkt"_s, {{1, u"Total content"_s}, {0, u"Porewater concentration"_s}}, *oben, this);
    auto* Strich = new QFrame(this);
    Strich->setFrameStyle(QFrame::VLine | QFrame::Sunken);
    oben->addWidget(Strich);
    PEC_Typ_ = erstelle_Optionen(u"PEC_Typ"_s, {{0, u"Annual"_s}, {1, u"Background"_s}, {2, u"Accum."_s}}, *oben, this);

    TWA_Laenge_ = new Auswahlliste(u"TWA_Laenge"_s, 12, this);
    Ergebnisdatei_ = new Kurztext(u"Ergebnisdatei"_s, this);
    auto* unten = new QHBoxLayout;
    unten->setSpacing(6);
    unten->addWidget(Schild(u"TWA in graph:"_s, TWA_Laenge_, this));
    unten->addWidget(TWA_Laenge_);
    unten->addSpacing(18);
    unten->addWidget(Schild(u"Current Outputfile:"_s, nullptr, this));
    unten->addWidget(Ergebnisdatei_, 1);

    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(2, 0, 2, 0);
    Spalte->setSpacing(6);
    Spalte->addLayout(oben);
    Spalte->addLayout(unten);

    connect(Endpunkt_, &QButtonGroup::idClicked, this,
            [this](int i) { befiehl<&Listenwahl::waehle_Endpunkt>(static_cast<Endpunktart>(Option_zu_Endpunkt(i))); });
    connect(PEC_Typ_, &QButtonGroup::idClicked, this, [this](int a) {
        Q_EMIT Ansicht_gewaehlt();
        befiehl<&Listenwahl::waehle_PEC_Typ>(static_cast<PEC_Ansicht>(a));
    });
    connect(TWA_Laenge_, &QComboBox::activated, this, [this](int j) { befiehl<&Listenwahl::waehle_TWA_Laenge>(j); });
}

void Untere_Zeile::zeige() {
    zeige_Option(*Endpunkt_, Option_zu_Endpunkt(Sicht().Endpunkt));
    zeige_Option(*PEC_Typ_, Sicht().PEC_Typ);
    TWA_Laenge_->zeige(Programm_.zeige<Listenwahl>().TWA_Laengen(), Sicht().TWA_Laenge);
    Ergebnisdatei_->setText(in_Qt(Programm_.zeige<Berichtssteuerung>().Ergebnisdatei()));
}

}  // namespace varnok
