#include "window/saetze/szenario_form.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>

#include "base/zahlen.h"
#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/kern/rahmen.h"
#include "window/kern/ziffernfeld.h"
#include "window/saetze/satzauswahl.h"
#include "window/saetze/tiefenfeld.h"

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

constexpr int laengster_Wert = 255;  // characters that are read back from a line of a record

// The columns of both grids: label, three options, the list of depths. The last one grows.
constexpr int Feldspalte = 1;
constexpr int Feldspalten = 4;
constexpr int Rand_im_Kasten = 12;

QGridLayout* neues_Raster(QWidget* Traeger, int Einzug) {
    auto* r = new QGridLayout(Traeger);
    r->setHorizontalSpacing(10);
    r->setVerticalSpacing(6);
    // A little more than the longest label, so that it is the same in both.
    r->setColumnMinimumWidth(0, Traeger->fontMetrics().horizontalAdvance(u"Organic carbon content (%):"_s) + 4 - Einzug);
    r->setColumnStretch(Feldspalten, 1);
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
    // The first value that is typed.
    Texte_[E::Bodendichte]->setFocus();
    Texte_[E::Bodendichte]->selectAll();
}

template <auto Befehl, class... Angaben>
void Szenario_Form::befiehl(Angaben... a) {
    Programm_.fuehre_aus<Befehl>(a...);
    zeige();
}

QWidget* Szenario_Form::erstelle_Boden() {
    auto* Flaeche = new QWidget(this);
    QGridLayout* r = neues_Raster(Flaeche, 0);
    r->setContentsMargins(0, 0, 0, 0);
    Szenarioliste_ = new Satzauswahl(u"Szenarioliste"_s, 34, Flaeche);
    r->addWidget(Schild(u"Scenario:"_s, Szenarioliste_, Flaeche), 0, 0);
    r->addWidget(Szenarioliste_, 0, Feldspalte, 1, Feldspalten);
    connect(Szenarioliste_, &QComboBox::activated, this, [this](int i) { befiehl<&Szenarioeditor::waehle_Szenario>(i); });
    for (int f = 0; f < E::Anzahl_Felder; ++f) erstelle_Textzeile(*r, 1 + f, static_cast<E::Feld>(f));
    Bodentiefe_ = erstelle_Tiefe(*r, 1 + E::Anzahl_Felder, true);
    Plateautiefe_ = erstelle_Tiefe(*r, 2 + E::Anzahl_Felder, false);
    return Flaeche;
}

void Szenario_Form::erstelle_Textzeile(QGridLayout& Raster, int Zeile, Szenarioentwurf::Feld f) {
    const QString Name = QString::fromUtf16(Textzeilen[f].Name);
    Textfeld* Feld = f == E::Bodenszenario ? new Textfeld(Name, this) : new Ziffernfeld(Name, this);
    Texte_[f] = Feld;
    Raster.addWidget(Schild(QString::fromUtf16(Textzeilen[f].Aufschrift), Feld, this), Zeile, 0);
    if (f == E::Bodenszenario) {
        Feld->setMaxLength(laengster_Wert);
        Raster.addWidget(Feld, Zeile, Feldspalte, 1, Feldspalten);
    } else {
        Feld->setFixedWidth(Ziffern(*this, 11));
        Feld->setAlignment(Qt::AlignRight);
        Raster.addWidget(Feld, Zeile, Feldspalte, 1, Feldspalten, Qt::AlignLeft);
    }
    connect(Feld, &QLineEdit::textEdited, this, [this, f](const QString& Text) { tippe(f, Text); });
    connect(Feld, &QLineEdit::editingFinished, this, [this, f] { befiehl<&Szenarioeditor::verlasse_Zahl>(f); });
}

// What was refused goes, and the cursor stands where it stood before.
void Szenario_Form::tippe(Szenarioentwurf::Feld f, const QString& Text) {
    if (Programm_.fuehre_aus<&Szenarioeditor::aendere>(f, aus_Qt(Text))) return;
    QLineEdit* Feld = Texte_[f];
    const QString angenommen = in_Qt(Programm_.zeige<Szenarioeditor>().Entwurf().Text(f));
    const auto zuviel = Text.size() - angenommen.size();
    const int Stelle = Feld->cursorPosition();
    Feld->setText(angenommen);
    Feld->setCursorPosition(static_cast<int>(std::clamp<qsizetype>(Stelle - zuviel, 0, angenommen.size())));
    Feld->setFocus(Qt::OtherFocusReason);
}

Tiefenfeld* Szenario_Form::erstelle_Tiefe(QGridLayout& Raster, int Zeile, bool Boden) {
    const auto Vorgabe = [](double Tiefe) { return in_Qt(allgemeine_Zahl(Tiefe)); };
    const Tiefenfeld::Beschriftung Bodentext = {u"Soil depth (cm):"_s,
                                                {u' ' + Vorgabe(Bodenvorgaben[0]), Vorgabe(Bodenvorgaben[1]), u"Individual"_s}};
    const Tiefenfeld::Beschriftung Plateautext = {u"Tillage depth(cm):"_s,
                                                  {Vorgabe(Plateauvorgaben[0]), Vorgabe(Plateauvorgaben[1]), u"Individual"_s}};
    const QString Groesse = Boden ? u"Bodentiefe"_s : u"Plateautiefe"_s;
    auto* Feld = new Tiefenfeld(Groesse, Boden ? Bodentext : Plateautext, this, Raster, Zeile);
    const Szenarioeditor::Tiefe t = Boden ? &E::Boden : &E::Plateau;
    connect(Feld, &Tiefenfeld::Option_gewaehlt, this, [this, t](int o) { befiehl<&Szenarioeditor::waehle_Option>(t, o); });
    connect(Feld, &Tiefenfeld::Tiefe_gewaehlt, this, [this, t](int i) { befiehl<&Szenarioeditor::waehle_Tiefe>(t, i); });
    connect(Feld, &Tiefenfeld::geblaettert, this, [this, t](int i) { befiehl<&Szenarioeditor::blaettere>(t, i); });
    connect(Feld, &Tiefenfeld::verlassen, this, [this, t] { befiehl<&Szenarioeditor::verlasse>(t); });
    return Feld;
}

QWidget* Szenario_Form::erstelle_Klima() {
    auto* Kasten = new QGroupBox(u"Climatic conditions"_s, this);
    // Its fields stand under those above it.
    QGridLayout* r = neues_Raster(Kasten, Kasten->contentsMargins().left() + Rand_im_Kasten);
    r->setContentsMargins(Rand_im_Kasten, 8, Rand_im_Kasten, 10);
    Klimabedingungen_ = new QButtonGroup(this);
    auto* Reihe = new QHBoxLayout;
    Reihe->setSpacing(16);
    for (const Klimaart m : {konstante_Temperatur, nach_Klimadatei}) {
        auto* Option = new QRadioButton(m == konstante_Temperatur ? u"Constant"_s : u"Variable"_s, Kasten);
        Option->setObjectName(u"Klimabedingungen_"_s + in_Qt(m));
        Option->setAccessibleDescription(Kasten->title());
        Klimabedingungen_->addButton(Option, m);
        Reihe->addWidget(Option);
    }
    Reihe->addStretch(1);
    r->addLayout(Reihe, 0, Feldspalte, 1, Feldspalten);
    // Both ways to tell the climate have the same place.
    Temperatur_ = new Auswahlliste(u"S_Szenariotemperatur"_s, 5, Kasten);
    Temperaturschild_ = Schild(u"Temperature (°C):"_s, Temperatur_, Kasten);
    Klimaszenario_ = new Auswahlliste(u"Klimaszenario"_s, 30, Kasten);
    Klimaszenario_->setAccessibleName(u"Climate file"_s);
    for (QWidget* w : std::initializer_list<QWidget*>{Temperatur_, Temperaturschild_, Klimaszenario_}) behalte_Platz(*w);
    r->addWidget(Temperaturschild_, 1, 0);
    r->addWidget(Temperatur_, 1, Feldspalte, 1, Feldspalten, Qt::AlignLeft);
    r->addWidget(Klimaszenario_, 1, Feldspalte, 1, Feldspalten);
    connect(Klimabedingungen_, &QButtonGroup::idClicked, this,
            [this](int m) { befiehl<&Szenarioeditor::waehle_Klimabedingungen>(static_cast<Klimaart>(m)); });
    connect(Temperatur_, &QComboBox::activated, this, [this](int i) { befiehl<&Szenarioeditor::waehle_Temperatur>(i); });
    connect(Klimaszenario_, &QComboBox::activated, this, [this](int i) { befiehl<&Szenarioeditor::waehle_Klimaszenario>(i); });
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
    const auto& Editor = Programm_.zeige<Szenarioeditor>();
    const E& e = Editor.Entwurf();
    Szenarioliste_->zeige(e.Szenarien, e.Szenario);
    sperre_Unwaehlbare(*Szenarioliste_, e.Szenarien);
    for (std::size_t f = 0; f < Texte_.size(); ++f) {
        const auto Feld = static_cast<E::Feld>(f);
        if (aus_Qt(Texte_[f]->text()) != e.Text(Feld)) Texte_[f]->zeige(in_Qt(e.Text(Feld)));
        Texte_[f]->markiere(Editor.ausserhalb(Feld));
    }
    Bodentiefe_->zeige(e.Boden);
    Plateautiefe_->zeige(e.Plateau);
    zeige_Option(*Klimabedingungen_, e.Klimamodus);
    Klimabedingungen_->button(nach_Klimadatei)->setEnabled(Editor.darf_variabel());
    Temperatur_->zeige(e.Temperaturen, e.Temperatur);
    Klimaszenario_->zeige(e.Klimadateien, e.Klima);
    for (QWidget* w : std::initializer_list<QWidget*>{Temperaturschild_, Temperatur_})
        w->setVisible(e.Klimamodus == konstante_Temperatur);
    Klimaszenario_->setVisible(e.Klimamodus == nach_Klimadatei);
}

void Szenario_Form::accept() {
    if (Programm_.fuehre_aus<&Szenarioeditor::uebernimm>()) QDialog::accept();
}

// Cancel, Esc and the close box.
void Szenario_Form::reject() {
    Programm_.fuehre_aus<&Szenarioeditor::verwirf>();
    QDialog::reject();
}

bool zeige_Szenarioeditor(Sitzung& Programm, QWidget* Fenster) {
    {
        const Wartezeiger warte;
        if (!Programm.fuehre_aus<&Szenarioeditor::oeffne>()) return false;
    }
    const bool fertig = Szenario_Form(Programm, Fenster).exec() == QDialog::Accepted;
    const Wartezeiger warte;
    Programm.fuehre_aus<&Szenarioeditor::schliesse>();
    return fertig;
}

}  // namespace varnok
