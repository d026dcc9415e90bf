#include "screens/widgets/tiefenfeld.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QTimer>
#include <QtGui/QFocusEvent>
#include <chrono>

#include "screens/widgets/bausteine.h"
#include "screens/widgets/fokus.h"
#include "screens/widgets/qt_text.h"

namespace varnok {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Tiefenfeld::Tiefenfeld(const QString& Groesse, const Beschriftung& b, QWidget* parent, QGridLayout& Raster, int Zeile)
    : QObject(parent), Optionen_(new QButtonGroup(this)) {
    auto* Reihe = new QHBoxLayout;
    Reihe->setSpacing(12);
    for (int o = 0; o < 3; ++o) {
        auto* Option = new QRadioButton(b.Optionen[static_cast<std::size_t>(o)], parent);
        Option->setObjectName(u"Einstellung_"_s + Groesse + u'_' + in_Qt(o));
        Option->setAccessibleDescription(b.Titel);
        Optionen_->addButton(Option, o);
        Reihe->addWidget(Option);
    }
    Liste_ = new Auswahlliste(u"S_"_s + Groesse, 5, parent);
    Liste_->installEventFilter(this);
    // The row keeps its height and its width when the list comes and goes.
    QSizePolicy Platz = Liste_->sizePolicy();
    Platz.setRetainSizeWhenHidden(true);
    Liste_->setSizePolicy(Platz);
    Reihe->addWidget(Liste_);
    Reihe->addStretch(1);
    Raster.addWidget(Schild(b.Titel, Liste_, parent), Zeile, 0);
    Raster.addLayout(Reihe, Zeile, 1);
    connect(Optionen_, &QButtonGroup::idClicked, this, &Tiefenfeld::Option_gewaehlt);
    connect(Liste_, &QComboBox::activated, this, &Tiefenfeld::Tiefe_gewaehlt);
}

void Tiefenfeld::zeige(const Tiefenwahl& t) {
    Optionen_->button(t.Option)->setChecked(true);
    Liste_->zeige(t.Eintraege, t.Position);
    Liste_->setVisible(t.Liste_sichtbar);
}

bool Tiefenfeld::eventFilter(QObject* Quelle, QEvent* e) {
    // Hiding a control within the event that takes its focus would send the focus elsewhere.
    if (e->type() == QEvent::FocusOut && !betrifft_nur_Fenster(static_cast<QFocusEvent*>(e)->reason())) {
        QTimer::singleShot(0ms, this, [this] {
            if (!Liste_->hasFocus()) Q_EMIT verlassen();
        });
    }
    return QObject::eventFilter(Quelle, e);
}

}  // namespace varnok
