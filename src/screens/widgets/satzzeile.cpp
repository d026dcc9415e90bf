#include "screens/widgets/satzzeile.h"

#include <QHBoxLayout>

#include "screens/widgets/qt_text.h"

namespace varnok {

using namespace Qt::StringLiterals;

Satzzeile::Satzzeile(Satzart Art, const QString& Bedeutung, Sitzung& Programm, QWidget* parent)
    : Rahmen(u"Satzzeile_"_s + in_Qt(Art), Rahmenart::schlicht, Programm, parent), Satz_(Art) {
    const QString Index = u'_' + in_Qt(Art);
    Liste_ = new Auswahlliste(u"Liste"_s + Index, 12, this);
    Liste_->setAccessibleName(Bedeutung);
    Copy_ = new Schaltflaeche(u"Copy"_s + Index, u"Copy"_s, this);
    Loeschen_ = new Schaltflaeche(u"Loeschen"_s + Index, u"Del"_s, this);
    auto* Zeile = new QHBoxLayout(this);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->setSpacing(5);
    Zeile->addWidget(Liste_, 1);
    Zeile->addWidget(Copy_);
    Zeile->addWidget(Loeschen_);
    connect(Liste_, &QComboBox::activated, this, [this](int i) { handle([&] { Programm_.waehle_Satz(Satz_, i); }); });
}

void Satzzeile::haenge_an(QWidget* Taste) { layout()->addWidget(Taste); }

void Satzzeile::zeige() {
    const auto Art = static_cast<std::size_t>(Satz_);
    Liste_->zeige(Stand().Listen[Art], Stand().Auswahl[Art]);
    Copy_->setEnabled(false);
    Loeschen_->setEnabled(false);
}

}  // namespace varnok
