#include "window/saetze/organiserzeile.h"

#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <array>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/saetze/listenbedienung.h"
#include "window/saetze/satzauswahl.h"
#include "window/saetze/umbenennfeld.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

struct Zeilenart {
    const char16_t* Aufschrift;
    const char16_t* Liste;
    const char16_t* Endung;  // of the buttons' names
    Rahmenart Art;
};
constexpr std::array<Zeilenart, 4> Zeilenarten = {{
    {u"Simulation:", u"Simulationsliste", u"Simulation", Rahmenart::schlicht},
    {u"Pesticide:", u"Liste_1", u"1", Rahmenart::Wirkstoff},
    {u"Application pattern:", u"Liste_2", u"2", Rahmenart::Applikation},
    {u"Scenario:", u"Liste_3", u"3", Rahmenart::Szenario},
}};

enum Spalte { Schild_Spalte, Listenspalte, Zusatzspalte, Copy_Spalte, Loesch_Spalte, Umbenennspalte, Spaltenzahl };

int Tastenbreite(const QWidget& w) { return w.fontMetrics().horizontalAdvance(u"Rename"_s) + 28; }

}  // namespace

QPushButton* Dialogtaste(const QString& Name, const QString& Aufschrift, QWidget* parent) {
    auto* t = new QPushButton(Aufschrift, parent);
    t->setObjectName(Name);
    t->setFixedSize(Tastenbreite(*parent), Zeilenhoehe(*parent));
    return t;
}

Organiserzeile::Organiserzeile(Satzart Art, Sitzung& Programm, QWidget* parent)
    : Rahmen(u"Organiserzeile_"_s + in_Qt(Art), Zeilenarten[Art].Art, Programm, parent), Satzart_(Art) {
    const Zeilenart& z = Zeilenarten[Art];
    Liste_ = new Satzauswahl(QString::fromUtf16(z.Liste), 28, this);
    Neuer_Dateiname_ = new Umbenennfeld(u"Neuer_Dateiname_"_s + in_Qt(Art), *Liste_);
    Copy_ = erstelle_Taste(u"Copy_", u"Copy"_s);
    Loeschen_ = erstelle_Taste(u"Loeschen_", u"Delete"_s);
    Umbenennen_ = erstelle_Taste(u"Umbenennen_", u"Rename"_s);

    Raster_ = new QGridLayout(this);
    Raster_->setContentsMargins(12, 9, 12, 9);
    Raster_->setHorizontalSpacing(6);
    Raster_->setVerticalSpacing(6);
    Raster_->addWidget(Schild(QString::fromUtf16(z.Aufschrift), Liste_, this), 0, Schild_Spalte);
    Raster_->addWidget(Liste_, 0, Listenspalte, 1, 2);
    Raster_->addWidget(Copy_, 0, Copy_Spalte);
    Raster_->addWidget(Loeschen_, 0, Loesch_Spalte);
    Raster_->addWidget(Umbenennen_, 0, Umbenennspalte);
    Raster_->setColumnStretch(Listenspalte, 1);
    richte_aus();
    verbinde_Tasten();
    verbinde_Bedienung();
}

// Four buttons of one caption: what they act on is in the name that is read out.
QPushButton* Organiserzeile::erstelle_Taste(const char16_t* Name, const QString& Aufschrift) {
    const Zeilenart& z = Zeilenarten[Satzart_];
    QPushButton* t = Dialogtaste(QString::fromUtf16(Name) + QString::fromUtf16(z.Endung), Aufschrift, this);
    t->setAccessibleName(Aufschrift + u' ' + Satzgegenstand(Satzart_));
    return t;
}

// The columns of all rows stand below each other.
void Organiserzeile::richte_aus() {
    const QString breitestes = QString::fromUtf16(Zeilenarten[Applikation].Aufschrift);
    Raster_->setColumnMinimumWidth(Schild_Spalte, fontMetrics().horizontalAdvance(breitestes) + 4);
    Raster_->setColumnMinimumWidth(Zusatzspalte, Tastenbreite(*this));
    for (auto* t : findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly))
        t->setFixedSize(Tastenbreite(*this), Zeilenhoehe(*this));
}

void Organiserzeile::changeEvent(QEvent* e) {
    Rahmen::changeEvent(e);
    if (e->type() == QEvent::FontChange) richte_aus();
}

void Organiserzeile::schiebe_ein(QPushButton* Taste) {
    Raster_->removeWidget(Liste_);
    Raster_->addWidget(Liste_, 0, Listenspalte);
    Raster_->addWidget(Taste, 0, Zusatzspalte);
    setTabOrder(Liste_, Taste);
    setTabOrder(Taste, Copy_);
}

void Organiserzeile::haenge_an(const QString& Aufschrift, QWidget* Feld) {
    Raster_->addWidget(Schild(Aufschrift, Feld, this), 1, Schild_Spalte);
    Raster_->addWidget(Feld, 1, Listenspalte, 1, Spaltenzahl - Listenspalte);
}

void Organiserzeile::verbinde_Tasten() {
    connect(Liste_, &QComboBox::activated, this, [this](int i) { befiehl<&Organiser::waehle>(Satzart_, i); });
    connect(Copy_, &QPushButton::clicked, this, &Organiserzeile::kopiere);
    connect(Loeschen_, &QPushButton::clicked, this, &Organiserzeile::loesche);
    connect(Umbenennen_, &QPushButton::clicked, this, &Organiserzeile::beginne_Umbenennen);
}

void Organiserzeile::verbinde_Bedienung() {
    auto* Bedienung = new Listenbedienung(*Liste_, [this] {
        const auto& o = Programm_.zeige<Organiser>();
        const bool da = o.darf_kopieren(Satzart_);
        return Listenbedienung::Rechte{false, da, da, o.darf_loeschen(Satzart_)};
    });
    connect(Bedienung, &Listenbedienung::kopieren, this, &Organiserzeile::kopiere);
    connect(Bedienung, &Listenbedienung::loeschen, this, &Organiserzeile::loesche);
    connect(Bedienung, &Listenbedienung::umbenennen, this, &Organiserzeile::beginne_Umbenennen);
    connect(Neuer_Dateiname_, &Umbenennfeld::bestaetigt, this, &Organiserzeile::benenne_um);
}

void Organiserzeile::kopiere() { befiehl<&Organiser::kopiere>(Satzart_); }

void Organiserzeile::loesche() { befiehl<&Organiser::loesche>(Satzart_); }

void Organiserzeile::beginne_Umbenennen() {
    Neuer_Dateiname_->oeffne(in_Qt(Programm_.zeige<Organiser>().Listen().gewaehlt(Satzart_)));
}

// A name that was refused can be corrected while the box has the focus; left, it is given up.
bool Organiserzeile::benenne_um(bool Enter) {
    const std::string Text = aus_Qt(Neuer_Dateiname_->text());
    if (!Enter) Neuer_Dateiname_->schliesse();
    const bool fertig = befiehl<&Organiser::benenne_um>(Satzart_, Text, Enter);
    if (fertig) {
        Neuer_Dateiname_->schliesse();
    } else if (Enter) {
        window()->activateWindow();
        Neuer_Dateiname_->setFocus(Qt::OtherFocusReason);
    }
    return fertig;
}

bool Organiserzeile::schliesse_Umbenennen() { return !Neuer_Dateiname_->isVisible() || benenne_um(false); }

void Organiserzeile::zeige() {
    const Organiser& o = Programm_.zeige<Organiser>();
    faerbe();
    Liste_->zeige(o.Listen().Listen[Satzart_], o.Listen().Auswahl(Satzart_));
    if (Satzart_ != Simulation) sperre_Unwaehlbare(*Liste_, o.Listen().Listen[Satzart_]);
    Copy_->setEnabled(o.darf_kopieren(Satzart_));
    Umbenennen_->setEnabled(o.darf_kopieren(Satzart_));
    Loeschen_->setEnabled(o.darf_loeschen(Satzart_));
}

}  // namespace varnok
