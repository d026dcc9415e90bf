#include "screens/widgets/szenario_form.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "screens/widgets/bausteine.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/rahmen.h"
#include "screens/widgets/tiefenfeld.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;
using E = Szenarioentwurf;

struct Textzeile {
    const char16_t* Name;
    const char16_t* Aufschrift;
};
constexpr std::array<Textzeile, E::Anzahl_Felder> Textzeilen = {{{u"Bodenszenario", u"Name:"},
                                                                 {u"S_Bodendichte", u"Soil density (kg/L):"},
                                                                 {u"S_Kohlenstoffgehalt", u"Organic carbon content (%):"},
                                                                 {u"S_Feldkapazitaet", u"Field capactiy (Vol %):"},
                                                                 {u"S_Welkepunkt", u"Wilting point (%):"}}};

QGridLayout* neues_Raster(QWidget* Traeger) {
    auto* r = new QGridLayout(Traeger);
    r->setHorizontalSpacing(8);
    r->setVerticalSpacing(6);
    r->setColumnStretch(1, 1);
    return r;
}

}  // namespace

Szenario_Form::Szenario_Form(Sitzung& Programm, QWidget* parent) : QDialog(parent), Programm_(Programm) {
    setObjectName(u"Szenario_Form"_s);
    setWindowTitle(u"Scenario"_s);
    setze_Rahmenart(*this, Rahmenart::Szenario);
    farbe_einstellen(*this, Programm_.Stand().Einstellung);
    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(12);
    Blatt->addWidget(erstelle_Boden());
    Blatt->addWidget(erstelle_Klima());
    Blatt->addWidget(erstelle_Tasten());
    Blatt->setSizeConstraint(QLayout::SetFixedSize);
    zeige();
    Szenarioliste_->setFocus();
}

template <class Handlung>
void Szenario_Form::tue(Handlung h) {
    h(Programm_.Editor());
    zeige();
}

QWidget* Szenario_Form::erstelle_Boden() {
    auto* Flaeche = new QWidget(this);
    QGridLayout* r = neues_Raster(Flaeche);
    r->setContentsMargins(0, 0, 0, 0);
    Szenarioliste_ = new Auswahlliste(u"Szenarioliste"_s, 34, Flaeche);
    r->addWidget(Schild(u"Scenario:"_s, Szenarioliste_, Flaeche), 0, 0);
    r->addWidget(Szenarioliste_, 0, 1);
    connect(Szenarioliste_, &QComboBox::activated, this, [this](int i) { tue([i](Szenarioeditor& e) { e.waehle_Szenario(i); }); });
    erstelle_Textzeile(*r, 1, E::Bodenszenario);
    erstelle_Textzeile(*r, 2, E::Bodendichte);
    Bodentiefe_ = erstelle_Tiefe(*r, 3, true);
    Plateautiefe_ = erstelle_Tiefe(*r, 4, false);
    erstelle_Textzeile(*r, 5, E::Kohlenstoffgehalt);
    erstelle_Textzeile(*r, 6, E::Feldkapazitaet);
    erstelle_Textzeile(*r, 7, E::Welkepunkt);
    return Flaeche;
}

void Szenario_Form::erstelle_Textzeile(QGridLayout& Raster, int Zeile, Szenarioentwurf::Feld f) {
    auto* Feld = new Textfeld(QString::fromUtf16(Textzeilen[f].Name), this);
    Texte_[f] = Feld;
    Raster.addWidget(Schild(QString::fromUtf16(Textzeilen[f].Aufschrift), Feld, this), Zeile, 0);
    if (f == E::Bodenszenario) {
        Raster.addWidget(Feld, Zeile, 1);
    } else {
        Feld->setFixedWidth(Ziffern(*this, 11));
        Feld->setAlignment(Qt::AlignRight);
        Raster.addWidget(Feld, Zeile, 1, Qt::AlignLeft);
    }
    connect(Feld, &QLineEdit::textEdited, this, [this, f](const QString& Text) { Programm_.Editor().aendere(f, aus_Qt(Text)); });
}

Tiefenfeld* Szenario_Form::erstelle_Tiefe(QGridLayout& Raster, int Zeile, bool Boden) {
    auto* Feld = Boden ? new Tiefenfeld(u"Bodentiefe"_s, {u"Soil depth (cm):"_s, {u" 5"_s, u"2.5"_s, u"Individual"_s}}, this, Raster, Zeile)
                       : new Tiefenfeld(u"Plateautiefe"_s, {u"Tillage depth(cm):"_s, {u"5"_s, u"20"_s, u"Individual"_s}}, this, Raster, Zeile);
    connect(Feld, &Tiefenfeld::Option_gewaehlt, this, [this, Boden](int o) {
        tue([=](Szenarioeditor& e) { Boden ? e.waehle_Bodentiefe_Option(o) : e.waehle_Plateautiefe_Option(o); });
    });
    connect(Feld, &Tiefenfeld::Tiefe_gewaehlt, this, [this, Boden](int i) {
        tue([=](Szenarioeditor& e) { Boden ? e.waehle_Bodentiefe(i) : e.waehle_Plateautiefe(i); });
    });
    connect(Feld, &Tiefenfeld::verlassen, this, [this, Boden] {
        tue([=](Szenarioeditor& e) { Boden ? e.verlasse_Bodentiefe() : e.verlasse_Plateautiefe(); });
    });
    return Feld;
}

QWidget* Szenario_Form::erstelle_Klima() {
    auto* Kasten = new QGroupBox(u"Climatic conditions"_s, this);
    QGridLayout* r = neues_Raster(Kasten);
    Klimabedingungen_ = new QButtonGroup(this);
    auto* Reihe = new QHBoxLayout;
    Reihe->setSpacing(16);
    for (int m = 0; m < 2; ++m) {
        auto* Option = new QRadioButton(m == 0 ? u"Constant"_s : u"Variable"_s, Kasten);
        Option->setObjectName(u"Klimabedingungen_"_s + in_Qt(m));
        Klimabedingungen_->addButton(Option, m);
        Reihe->addWidget(Option);
    }
    Reihe->addStretch(1);
    r->addLayout(Reihe, 0, 0, 1, 2);
    Temperatur_ = new Auswahlliste(u"S_Szenariotemperatur"_s, 5, Kasten);
    Klimaszenario_ = new Auswahlliste(u"Klimaszenario"_s, 34, Kasten);
    Klimaszenario_->setAccessibleName(u"Climate file"_s);
    Temperaturschild_ = Schild(u"Temperature (\u00B0C):"_s, Temperatur_, Kasten);
    // Both ways to tell the climate have the same place.
    auto* Platz = new QWidget(Kasten);
    auto* Zeile = new QHBoxLayout(Platz);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->addWidget(Temperaturschild_);
    Zeile->addWidget(Temperatur_);
    Zeile->addWidget(Klimaszenario_, 1);
    Zeile->addStretch(0);
    Platz->setMinimumHeight(Zeilenhoehe(*this));
    r->addWidget(Platz, 1, 0, 1, 2, Qt::AlignLeft);
    connect(Klimabedingungen_, &QButtonGroup::idClicked, this,
            [this](int m) { tue([m](Szenarioeditor& e) { e.waehle_Klimabedingungen(m); }); });
    connect(Temperatur_, &QComboBox::activated, this, [this](int i) { tue([i](Szenarioeditor& e) { e.waehle_Temperatur(i); }); });
    connect(Klimaszenario_, &QComboBox::activated, this,
            [this](int i) { tue([i](Szenarioeditor& e) { e.waehle_Klimaszenario(i); }); });
    return Kasten;
}

QWidget* Szenario_Form::erstelle_Tasten() {
    auto* Tasten = new QDialogButtonBox(this);
    QPushButton* Ende = Tasten->addButton(u"Done"_s, QDialogButtonBox::AcceptRole);
    Ende->setObjectName(u"Ende"_s);
    Ende->setDefault(true);
    Tasten->addButton(u"Cancel"_s, QDialogButtonBox::RejectRole)->setObjectName(u"Abbrechen"_s);
    connect(Tasten, &QDialogButtonBox::accepted, this, &Szenario_Form::accept);
    connect(Tasten, &QDialogButtonBox::rejected, this, &Szenario_Form::reject);
    return Tasten;
}

void Szenario_Form::zeige() {
    const Szenarioeditor& Editor = Programm_.Editor();
    const E& e = Editor.Entwurf();
    Szenarioliste_->zeige(e.Szenarien, e.Szenario);
    for (std::size_t f = 0; f < Texte_.size(); ++f) {
        if (aus_Qt(Texte_[f]->text()) != e.Texte[f]) Texte_[f]->setText(in_Qt(e.Texte[f]));
    }
    Bodentiefe_->zeige(e.Boden);
    Plateautiefe_->zeige(e.Plateau);
    Klimabedingungen_->button(e.Klimamodus)->setChecked(true);
    Klimabedingungen_->button(1)->setEnabled(Editor.darf_variabel());
    Temperatur_->zeige(e.Temperaturen, e.Temperatur);
    Klimaszenario_->zeige(e.Klimadateien, e.Klima);
    for (QWidget* w : {static_cast<QWidget*>(Temperaturschild_), static_cast<QWidget*>(Temperatur_)}) w->setVisible(e.Klimamodus == 0);
    Klimaszenario_->setVisible(e.Klimamodus == 1);
}

void Szenario_Form::accept() {
    bool fertig = false;
    {
        const Wartezeiger warte;
        fertig = Programm_.schliesse_Szenarioeditor();
    }
    if (fertig) QDialog::accept();
}

// Cancel, Esc and the close box.
void Szenario_Form::reject() {
    Programm_.Editor().verwirf();
    QDialog::reject();
}

bool zeige_Szenarioeditor(Sitzung& Programm, QWidget* Fenster) {
    if (!Programm.oeffne_Szenarioeditor()) return false;
    Szenario_Form(Programm, Fenster).exec();
    return true;
}

}  // namespace varnok
