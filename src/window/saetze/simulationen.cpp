#include "window/saetze/simulationen.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/saetze/organiserzeile.h"
#include "window/saetze/projektnamenfeld.h"

namespace varnok {

using namespace Qt::StringLiterals;

Simulationen::Simulationen(Sitzung& Programm, Szenarioaufruf oeffne_Szenarioeditor, QWidget* parent)
    : QDialog(parent),
      Programm_(Programm),
      oeffne_Szenarioeditor_(std::move(oeffne_Szenarioeditor)),
      alter_Status_(Programm.Stand().Statuszeile.Text()) {
    setObjectName(u"Simulationen"_s);
    setWindowTitle(u"Simulation organiser"_s);
    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 12, 14, 12);
    Blatt->setSpacing(8);
    erstelle_Zeilen();
    for (Organiserzeile* z : Zeilen_) Blatt->addWidget(z);
    verbinde_Projektname();

    Status_ = new Kurztext(u"Statuszeile_Simulationen"_s, this);
    auto* Ende = Dialogtaste(u"Ende"_s, u"Done"_s, this);
    Ende->setDefault(true);
    connect(Ende, &QPushButton::clicked, this, &Simulationen::accept);
    auto* Fuss = new QHBoxLayout;
    Fuss->setContentsMargins(12, 4, 12, 0);
    Fuss->setSpacing(12);
    Fuss->addWidget(Status_, 1);
    Fuss->addWidget(Ende);
    Blatt->addLayout(Fuss);
    Blatt->addStretch(1);

    zeige();
    resize(sizeHint().expandedTo({Ziffern(*this, 88), 0}));
    Zeilen_.front()->Liste()->setFocus();
}

void Simulationen::erstelle_Zeilen() {
    for (const Satzart Art : alle_Arten) {
        auto* Zeile = new Organiserzeile(Art, Programm_, this);
        connect(Zeile, &Rahmen::gehandelt, this, &Simulationen::zeige);
        if (Art == Simulation) {
            Projektname_ = new Projektnamenfeld(Zeile);
            Zeile->haenge_an(u"Description:"_s, Projektname_);
        }
        if (Art == Szenario) {
            Edit_ = Dialogtaste(u"Lade_Szenariodaten"_s, u"Edit"_s, Zeile);
            Edit_->setAccessibleName(u"Edit scenario"_s);
            Zeile->schiebe_ein(Edit_);
            connect(Edit_, &QPushButton::clicked, this, &Simulationen::bearbeite_Szenario);
        }
        Zeilen_.push_back(Zeile);
    }
}

void Simulationen::verbinde_Projektname() {
    const auto uebergib = [this](const QString& Text) { Programm_.fuehre_aus<&Organiser::aendere_Projektname>(aus_Qt(Text)); };
    connect(Projektname_, &QLineEdit::textEdited, this, uebergib);
    connect(Projektname_, &Projektnamenfeld::zurueckgenommen, this, [this, uebergib](const QString& alter_Text) {
        uebergib(alter_Text);
        zeige();
    });
    connect(Projektname_, &Projektnamenfeld::verlassen, this,
            [this] { Zeilen_.front()->Liste()->setFocus(Qt::OtherFocusReason); });
}

void Simulationen::zeige() {
    const Organiser& o = Programm_.zeige<Organiser>();
    for (Organiserzeile* z : Zeilen_) z->zeige();
    Projektname_->zeige(in_Qt(o.Projektname()));
    const QString Einwand = in_Qt(o.Einwand_gegen_Bearbeiten());
    Edit_->setEnabled(Einwand.isEmpty());
    Edit_->setToolTip(als_Tip(Einwand));
    Edit_->setAccessibleDescription(Einwand);
    const std::string& Status = Programm_.Stand().Statuszeile.Text();
    Status_->setText(Status == alter_Status_ ? QString() : in_Qt(Status));
    Q_EMIT gehandelt();
}

void Simulationen::bearbeite_Szenario() {
    Programm_.fuehre_aus<&Organiser::beginne_Bearbeiten>();
    oeffne_Szenarioeditor_(this);
    Programm_.fuehre_aus<&Organiser::beende_Bearbeiten>();
    activateWindow();
    zeige();
}

void Simulationen::accept() {
    for (Organiserzeile* z : Zeilen_) {
        if (!z->schliesse_Umbenennen()) return;
    }
    bool fertig = false;
    {
        const Wartezeiger warte;
        fertig = Programm_.fuehre_aus<&Organiser::uebernimm>();
    }
    if (fertig) {
        QDialog::accept();
        return;
    }
    activateWindow();
    zeige();
}

void Simulationen::reject() {
    Programm_.fuehre_aus<&Organiser::verwirf>();
    QDialog::reject();
}

}  // namespace varnok
