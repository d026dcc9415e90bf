#include "window/saetze/satzzeile.h"

#include <QHBoxLayout>

#include "painting/qt_text.h"
#include "window/saetze/satzauswahl.h"
#include "window/saetze/satzliste.h"

namespace varnok {

using namespace Qt::StringLiterals;

Satzzeile::Satzzeile(Satzart Art, const QString& Bedeutung, Sitzung& Programm, QWidget* parent)
    : Rahmen(u"Satzzeile_"_s + in_Qt(Art), Rahmenart::schlicht, Programm, parent) {
    const QString Index = u'_' + in_Qt(Art);
    Satz_ = new Satzliste(Art, {u"Liste"_s + Index, u"Copy"_s + Index, u"Loeschen"_s + Index}, 12, Programm, *this);
    Satz_->Liste->setAccessibleName(Bedeutung);
    auto* Zeile = new QHBoxLayout(this);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->setSpacing(5);
    Zeile->addWidget(Satz_->Liste, 1);
    Zeile->addWidget(Satz_->Copy);
    Zeile->addWidget(Satz_->Loeschen);
    connect(Satz_->Liste, &QComboBox::activated, this, [this, Art](int i) { befiehl<&Satzverwaltung::waehle_Satz>(Art, i); });
    connect(Satz_, &Satzliste::gehandelt, this, &Rahmen::gehandelt);
}

void Satzzeile::haenge_an(QWidget* Taste) { layout()->addWidget(Taste); }

void Satzzeile::zeige() { Satz_->zeige(); }

}  // namespace varnok
