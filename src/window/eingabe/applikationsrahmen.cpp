#include "window/eingabe/applikationsrahmen.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "painting/qt_text.h"
#include "run/bezeichnungen.h"
#include "window/eingabe/applikationsschema.h"
#include "window/eingabe/feldzeile.h"
#include "window/saetze/satzzeile.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// Which patterns show a control.
constexpr unsigned bei_einzeln = 1U << einzeln;
constexpr unsigned bei_regelmaessig = 1U << regelmaessig;
constexpr unsigned bei_unregelmaessig = 1U << unregelmaessig;
constexpr unsigned mit_fester_Dosis = bei_einzeln | bei_regelmaessig;
constexpr unsigned mit_Anzahl = bei_regelmaessig | bei_unregelmaessig;

QStringList Zahlen(int von, int bis) {
    QStringList Liste;
    for (int i = von; i <= bis; ++i) Liste << in_Qt(i);
    return Liste;
}

}  // namespace

Applikationsrahmen::Applikationsrahmen(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent)
    : Rahmen(u"Applikationsrahmen"_s, Rahmenart::Applikation, Programm, parent) {
    const QString Titel = u"Application pattern"_s;
    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(10, 8, 10, 10);
    Spalte->setSpacing(6);
    Spalte->addWidget(Ueberschrift(Titel, this));
    Satz_ = new Satzzeile(Applikation, Titel, Programm, this);
    Spalte->addWidget(Satz_);
    Spalte->addWidget(erstelle_Muster());

    auto* Werte = new QWidget(this);
    Gitter_ = new Raster(Werte);
    erstelle_Dosis(Werte, Steuerung);
    erstelle_Termine(Werte);
    Spalte->addWidget(Werte);
    verbinde();
}

QWidget* Applikationsrahmen::erstelle_Muster() {
    auto* Optionen = new QWidget(this);
    auto* Zeile = new QHBoxLayout(Optionen);
    Zeile->setContentsMargins(0, 2, 0, 2);
    Zeile->setSpacing(14);
    Applikationsmuster_ = new QButtonGroup(this);
    for (int m = 0; m < 3; ++m) {
        auto* Option = new QRadioButton(in_Qt(Musternamen[static_cast<std::size_t>(m)]), Optionen);
        Option->setObjectName(u"Applikationsmuster_"_s + in_Qt(m));
        Applikationsmuster_->addButton(Option, m);
        Zeile->addWidget(Option);
    }
    Zeile->addStretch(1);
    return Optionen;
}

void Applikationsrahmen::erstelle_Dosis(QWidget* Werte, Feldsteuerung& Steuerung) {
    const Feldzeile Rate = erstelle_Feldzeile(Steuerung, *Gitter_, 0, false, u"Applikationsrate"_s, Einheitsort::dahinter, Werte);
    Anzahl_ = new Auswahlliste(u"Anzahl"_s, 3, Werte);
    L_Anzahl_ = Schild(u"Number"_s, Anzahl_, Werte);

    const Feldzeile Anteil = erstelle_Feldzeile(Steuerung, *Gitter_, 1, false, u"Interzeption"_s, Einheitsort::dahinter, Werte);
    Intervall_ = new Auswahlliste(u"Intervall"_s, 3, Werte);
    QLabel* L_Intervall = Schild(u"Interval"_s, Intervall_, Werte);
    QLabel* Tage = Einheitsschild(u"d"_s, Werte);
    Gitter_->addWidget(L_Intervall, 1, Raster::Schild_2);
    Gitter_->addWidget(Intervall_, 1, Raster::Feld_2);
    Gitter_->addWidget(Tage, 1, Raster::Einheit_2);

    for (const Feldzeile& z : {Rate, Anteil}) zeige_bei(mit_fester_Dosis, {z.Schild, z.Feld, z.Einheit});
    zeige_bei(mit_Anzahl, {L_Anzahl_, Anzahl_});
    zeige_bei(bei_regelmaessig, {L_Intervall, Intervall_, Tage});
}

void Applikationsrahmen::erstelle_Termine(QWidget* Werte) {
    App_Tag_ = new Auswahlliste(u"App_Tag"_s, 3, Werte);
    App_Monat_ = new Auswahlliste(u"App_Monat"_s, 3, Werte);
    QLabel* L_Datum = Schild(u"Date"_s, App_Tag_, Werte);
    L_Datum->setObjectName(u"L_Datum"_s);
    App_Tag_->setAccessibleName(u"Date, day"_s);
    App_Monat_->setAccessibleName(u"Date, month"_s);
    Gitter_->addWidget(L_Datum, 2, Raster::Schild);
    Gitter_->addWidget(App_Tag_, 2, Raster::Feld);
    Gitter_->addWidget(App_Monat_, 2, Raster::Einheit, 1, 2, Qt::AlignLeft);

    Schema_ = new Applikationsschema(Programm_, Werte);
    Gitter_->addWidget(Schema_, 3, 0, 1, 7);

    Fruchtwechsel_ = new Auswahlliste(u"Fruchtwechsel"_s, 14, Werte);
    Gitter_->addWidget(Schild(u"Crop rotation: "_s, Fruchtwechsel_, Werte), 4, Raster::Schild);
    Gitter_->addWidget(Fruchtwechsel_, 4, Raster::Feld, 1, 3);

    zeige_bei(mit_fester_Dosis, {L_Datum, App_Tag_, App_Monat_});
    zeige_bei(bei_unregelmaessig, {Schema_});
}

// The number of applications stands beside the dose, or at its place where each application has its own.
void Applikationsrahmen::stelle_Anzahl() {
    const bool links = Vorgabe().Applikationsmuster == unregelmaessig;
    const QLayoutItem* bisher = Gitter_->itemAtPosition(0, links ? Raster::Feld : Raster::Feld_2);
    if (bisher && bisher->widget() == Anzahl_) return;
    Gitter_->removeWidget(L_Anzahl_);
    Gitter_->removeWidget(Anzahl_);
    Gitter_->addWidget(L_Anzahl_, 0, links ? Raster::Schild : Raster::Schild_2);
    Gitter_->addWidget(Anzahl_, 0, links ? Raster::Feld : Raster::Feld_2);
}

void Applikationsrahmen::zeige_bei(unsigned Muster, std::initializer_list<QWidget*> Teile) {
    for (QWidget* Teil : Teile) {
        if (Teil) Sichtbarkeiten_.push_back({Teil, Muster});
    }
}

void Applikationsrahmen::verbinde() {
    horche_auf(Satz_);
    connect(Applikationsmuster_, &QButtonGroup::idClicked, this,
            [this](int m) { befiehl<&Listenwahl::waehle_Muster>(static_cast<Applikationsart>(m)); });
    connect(Anzahl_, &QComboBox::activated, this, [this](int i) { befiehl<&Listenwahl::waehle_Anzahl>(i); });
    connect(Intervall_, &QComboBox::activated, this, [this](int i) { befiehl<&Listenwahl::waehle_Intervall>(i); });
    connect(App_Tag_, &QComboBox::activated, this, [this](int i) { befiehl<&Listenwahl::waehle_Tag>(i); });
    connect(App_Monat_, &QComboBox::activated, this, [this](int i) { befiehl<&Listenwahl::waehle_Monat>(i); });
    connect(Fruchtwechsel_, &QComboBox::activated, this,
            [this](int r) { befiehl<&Listenwahl::waehle_Fruchtwechsel>(static_cast<Fruchtfolge>(r)); });
    connect(Schema_, &Applikationsschema::getippt, this, &Rahmen::getippt);
    connect(Schema_, &Applikationsschema::eingefuegt, this, &Rahmen::gehandelt);
    connect(Schema_, &Applikationsschema::verlassen, this, [this] { befiehl<&Applikationstabelle::schliesse_ab>(); });
    connect(Schema_, &Applikationsschema::bestaetigt, this, [this] { befiehl<&Applikationstabelle::bestaetige>(); });
}

void Applikationsrahmen::zeige() {
    Satz_->zeige();
    const Eingabe& e = Vorgabe();
    zeige_Option(*Applikationsmuster_, e.Applikationsmuster);
    Anzahl_->zeige(Zahlen(kleinste_Anzahl(e), max_Applikationen), e.Anzahl() - kleinste_Anzahl(e));
    Intervall_->zeige(Zahlen(1, Programm_.zeige<Listenwahl>().Intervalle()), e.Intervall_Index);
    App_Tag_->zeige(Zahlen(1, Programm_.zeige<Listenwahl>().Tage()), e.App_Tag);
    App_Monat_->zeige(Monatsnamen, e.App_Monat);
    Fruchtwechsel_->zeige(Fruchtwechselnamen, Sicht().Fruchtwechsel);
    Schema_->zeige();
    stelle_Anzahl();
    for (const Sichtbarkeit& s : Sichtbarkeiten_) s.Teil->setVisible((s.Muster >> e.Applikationsmuster & 1U) != 0);
}

void Applikationsrahmen::waehle_Zelle(Zelle z) {
    if (Vorgabe().Applikationsmuster == unregelmaessig) Schema_->waehle_Zelle(z);
}

}  // namespace varnok
