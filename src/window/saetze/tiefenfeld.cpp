#include "window/saetze/tiefenfeld.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QRadioButton>
#include <QTimer>
#include <QtGui/QFocusEvent>
#include <chrono>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/kern/fokus.h"

namespace varnok {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Knows whether a choice comes from keys on the closed list.
class Tiefenliste : public Auswahlliste {
public:
    using Auswahlliste::Auswahlliste;
    bool blaettert() const { return blaettert_; }

protected:
    void keyPressEvent(QKeyEvent* e) override {
        blaettert_ = true;
        Auswahlliste::keyPressEvent(e);
        blaettert_ = false;
    }

private:
    bool blaettert_ = false;
};

Tiefenfeld::Tiefenfeld(const QString& Groesse, const Beschriftung& b, QWidget* parent, QGridLayout& Raster, int Zeile)
    : QObject(parent), Optionen_(new QButtonGroup(this)) {
    for (int o = 0; o < 3; ++o) {
        auto* Option = new QRadioButton(b.Optionen[static_cast<std::size_t>(o)], parent);
        Option->setObjectName(u"Einstellung_"_s + Groesse + u'_' + in_Qt(o));
        Option->setAccessibleName(Option->text().trimmed() + u", "_s + ohne_Doppelpunkt(b.Titel));
        Optionen_->addButton(Option, o);
        Raster.addWidget(Option, Zeile, 1 + o);
    }
    Liste_ = new Tiefenliste(u"S_"_s + Groesse, 5, parent);
    Liste_->installEventFilter(this);
    behalte_Platz(*Liste_);
    Raster.addWidget(Schild(b.Titel, Liste_, parent), Zeile, 0);
    Raster.addWidget(Liste_, Zeile, 4, Qt::AlignLeft);
    connect(Optionen_, &QButtonGroup::idClicked, this, &Tiefenfeld::Option_gewaehlt);
    connect(Liste_, &QComboBox::activated, this, [this](int i) {
        if (Liste_->blaettert())
            Q_EMIT geblaettert(i);
        else
            Q_EMIT Tiefe_gewaehlt(i);
    });
}

void Tiefenfeld::zeige(const Tiefenwahl& t) {
    zeige_Option(*Optionen_, t.Option);
    Liste_->zeige(t.Eintraege, t.Position);
    // The focus of a list that goes stays in its row.
    if (!t.Liste_sichtbar && Liste_->hasFocus()) Optionen_->button(t.Option)->setFocus(Qt::OtherFocusReason);
    Liste_->setVisible(t.Liste_sichtbar);
}

void behalte_Platz(QWidget& w) {
    QSizePolicy Platz = w.sizePolicy();
    Platz.setRetainSizeWhenHidden(true);
    w.setSizePolicy(Platz);
}

bool Tiefenfeld::eventFilter(QObject* Quelle, QEvent* e) {
    // Hiding a control within the event that takes its focus would send the focus elsewhere. The open list belongs to it.
    if (e->type() == QEvent::FocusOut && !betrifft_nur_Fenster(static_cast<QFocusEvent*>(e)->reason())) {
        QTimer::singleShot(0ms, this, [this] {
            if (!Liste_->hasFocus() && !Liste_->view()->isVisible()) Q_EMIT verlassen();
        });
    }
    return QObject::eventFilter(Quelle, e);
}

}  // namespace varnok
