#include "window/programm/optionen.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QInputDialog>
#include <QRadioButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "painting/qt_text.h"
#include "run/bezeichnungen.h"
#include "window/kern/bausteine.h"
#include "window/programm/ordnerwahl.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array<const char16_t*, 6> Namensteile = {u"Product", u"Soil Study", u"Kinetics", u"Endpoint", u"Date", u"Time"};

// A text of the settings, whose "&" is no mark of a key.
QString woertlich(QString Text) { return Text.replace(u"&"_s, u"&&"_s); }

// A frame with options of which one is on; their object names are `Name` and their number.
struct Optionskasten {
    QGroupBox* Kasten;
    QButtonGroup* Gruppe;
};
enum class Lage { nebeneinander, untereinander };

Optionskasten erstelle_Optionskasten(const QString& Name, const QString& Titel, const QStringList& Texte, int gewaehlt, Lage l,
                                     QWidget* parent) {
    const bool Spalte = l == Lage::untereinander;
    auto* Kasten = new QGroupBox(Titel, parent);
    auto* Gruppe = new QButtonGroup(Kasten);
    auto* Reihe = new QBoxLayout(Spalte ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, Kasten);
    Reihe->setContentsMargins(10, 6, 10, 8);
    Reihe->setSpacing(Spalte ? 6 : 16);
    for (int i = 0; i < Texte.size(); ++i) {
        auto* Option = new QRadioButton(Texte.at(i), Kasten);
        Option->setObjectName(Name + u'_' + in_Qt(i));
        Option->setAccessibleName(Option->text() + u", "_s + ohne_Doppelpunkt(Titel));
        Gruppe->addButton(Option, i);
        Reihe->addWidget(Option);
    }
    Reihe->addStretch(1);
    zeige_Option(*Gruppe, gewaehlt);
    return {Kasten, Gruppe};
}

}  // namespace

Optionen::Optionen(Sitzung& Programm, QWidget* parent) : QDialog(parent), Programm_(Programm) {
    setObjectName(u"Optionen"_s);
    setWindowTitle(u"Options"_s);
    const Optionsentwurf o = Programm.fuehre_aus<&Optionensteuerung::oeffne>();

    auto* Spalten = new QHBoxLayout;
    Spalten->setSpacing(16);
    Spalten->addLayout(erstelle_Satzspalte(o));
    Spalten->addLayout(erstelle_Programmspalte(o), 1);

    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(14);
    Blatt->addLayout(Spalten, 1);
    Blatt->addWidget(erstelle_Tasten());
    zeige_Pfad();
}

QVBoxLayout* Optionen::erstelle_Satzspalte(const Optionsentwurf& o) {
    const Einstellungen& e = Programm_.Stand().Einstellung;
    const QStringList Fensterlisten = {woertlich(in_Qt(e.TWA_Titel_Monat)), woertlich(in_Qt(e.TWA_Titel_EU))};
    const Optionskasten Einheit = erstelle_Optionskasten(u"Einheit"_s, u"Concentration expressed in:"_s,
                                                         {in_Qt(Masseneinheiten[Milligramm]), in_Qt(Masseneinheiten[Mikrogramm])},
                                                         o.Einheit, Lage::untereinander, this);
    const Optionskasten Rueckstaende = erstelle_Optionskasten(
        u"Separate_Rueckstaende"_s, u"Separate consideration of  residues from different applications:"_s,
        {u"No"_s, u"Yes"_s, u"Yes, but only within a year"_s}, o.Separate_Rueckstaende, Lage::untereinander, this);
    const Optionskasten TWA = erstelle_Optionskasten(u"TWA_Zeiten"_s, u"TWA durations according to:"_s, Fensterlisten,
                                                     o.TWA_Zeiten, Lage::untereinander, this);
    Einheit_ = Einheit.Gruppe;
    Separate_Rueckstaende_ = Rueckstaende.Gruppe;
    TWA_Zeiten_ = TWA.Gruppe;

    auto* Spalte = new QVBoxLayout;
    Spalte->setSpacing(12);
    Spalte->addWidget(Ueberschrift(u"Kept in the pesticide record"_s, this));
    for (QGroupBox* Kasten : {Einheit.Kasten, Rueckstaende.Kasten, TWA.Kasten}) Spalte->addWidget(Kasten);
    Spalte->addWidget(erstelle_Namensteile(o));
    Spalte->addStretch(1);
    return Spalte;
}

QGroupBox* Optionen::erstelle_Namensteile(const Optionsentwurf& o) {
    auto* Kasten = new QGroupBox(u"Name of output files contains:"_s, this);
    auto* Feld = new QGridLayout(Kasten);
    Feld->setContentsMargins(10, 6, 10, 8);
    Feld->setHorizontalSpacing(16);
    Feld->setVerticalSpacing(6);
    Feld->setColumnStretch(2, 1);
    for (int i = 0; i < 6; ++i) {
        const auto k = static_cast<std::size_t>(i);
        auto* Haken = new QCheckBox(QString::fromUtf16(Namensteile[k]), Kasten);
        Haken->setObjectName(u"Check1_"_s + in_Qt(i));
        Haken->setAccessibleDescription(Kasten->title());
        Haken->setChecked(o.Ausgabename_Teile[k]);
        Feld->addWidget(Haken, i % 3, i / 3);
        Check1_[k] = Haken;
    }
    return Kasten;
}

QVBoxLayout* Optionen::erstelle_Programmspalte(const Optionsentwurf& o) {
    const Optionskasten Tips = erstelle_Optionskasten(u"Tips_anzeigen"_s, u"Show tooltips"_s, {u"No"_s, u"Yes"_s},
                                                      o.Tips_anzeigen, Lage::nebeneinander, this);
    const Optionskasten Farben =
        erstelle_Optionskasten(u"Farbeinstellung"_s, u"Appearance:"_s, {u"Coloured forms"_s, u"Standard windows forms"_s},
                               o.Farbeinstellung, Lage::nebeneinander, this);
    Tips_anzeigen_ = Tips.Gruppe;
    Farbeinstellung_ = Farben.Gruppe;
    auto* Sprache = new Auswahlliste(u"Sprache"_s, 12, this);
    Sprache->zeige(QStringList{u"English"_s}, 0);

    auto* Spalte = new QVBoxLayout;
    Spalte->setSpacing(12);
    Spalte->addWidget(Ueberschrift(u"Kept in the settings"_s, this));
    Spalte->addWidget(Tips.Kasten);
    Spalte->addWidget(Farben.Kasten);
    auto* Zeile = new QHBoxLayout;
    Zeile->addWidget(Schild(u"Language:"_s, Sprache, this));
    Zeile->addWidget(Sprache);
    Zeile->addStretch(1);
    Spalte->addLayout(Zeile);
    fuege_Ordnerwahl_an(*Spalte, o.Projektpfad);
    return Spalte;
}

void Optionen::fuege_Ordnerwahl_an(QVBoxLayout& Spalte, const std::string& Pfad) {
    Dir1_ = new Ordnerwahl(u"Dir1"_s, u"Drive1"_s, in_Qt(Pfad), Ordnerwahl::Laufwerke(), this);
    Pfad_ = new Kurztext(u"Projektpfad"_s, this);
    auto* Neu = new Schaltflaeche(u"Ordner_anlegen"_s, u"Make folder"_s, this);
    QLabel* Titel = Schild(u"Project path:"_s, Dir1_->Baum(), this);
    Titel->setAlignment(Qt::AlignLeft);
    Spalte.addWidget(Titel);
    Spalte.addWidget(Dir1_, 1);
    auto* Zeile = new QHBoxLayout;
    Zeile->addWidget(Pfad_, 1);
    Zeile->addWidget(Neu);
    Spalte.addLayout(Zeile);
    connect(Dir1_, &Ordnerwahl::gewaehlt, this, &Optionen::zeige_Pfad);
    connect(Neu, &QPushButton::clicked, this, &Optionen::lege_Ordner_an);
}

QWidget* Optionen::erstelle_Tasten() {
    auto* Tasten = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    OK_ = Tasten->button(QDialogButtonBox::Ok);
    OK_->setObjectName(u"OK"_s);
    OK_->setText(u"OK"_s);
    OK_->setDefault(true);
    QPushButton* Abbrechen = Tasten->button(QDialogButtonBox::Cancel);
    Abbrechen->setObjectName(u"Abbrechen"_s);
    Abbrechen->setText(u"Cancel"_s);
    connect(Tasten, &QDialogButtonBox::accepted, this, &Optionen::accept);
    connect(Tasten, &QDialogButtonBox::rejected, this, &Optionen::reject);
    return Tasten;
}

// The folder chosen, or why it cannot be taken.
void Optionen::zeige_Pfad() {
    const std::string Einwand = Einwand_gegen_Projektpfad(aus_Qt(Dir1_->Pfad()));
    Pfad_->setText(Einwand.empty() ? Dir1_->Pfad() : in_Qt(Einwand));
    OK_->setEnabled(Einwand.empty());
}

void Optionen::lege_Ordner_an() {
    bool gegeben = false;
    const QString Name = QInputDialog::getText(this, u"Make folder"_s, u"Name of the new folder in \"%1\":"_s.arg(Dir1_->Pfad()),
                                               QLineEdit::Normal, {}, &gegeben);
    if (!gegeben) return;
    const auto Neuer = Programm_.fuehre_aus<&Optionensteuerung::lege_Ordner_an>(aus_Qt(Dir1_->Pfad()), aus_Qt(Name));
    if (Neuer) Dir1_->waehle(in_Qt(*Neuer));
}

Optionsentwurf Optionen::Entwurf() const {
    Optionsentwurf o;
    o.Einheit = static_cast<Einheitsart>(Einheit_->checkedId());
    o.Separate_Rueckstaende = static_cast<Rueckstandsart>(Separate_Rueckstaende_->checkedId());
    o.TWA_Zeiten = static_cast<TWA_Listenart>(TWA_Zeiten_->checkedId());
    for (std::size_t i = 0; i < Check1_.size(); ++i) o.Ausgabename_Teile[i] = Check1_[i]->isChecked();
    o.Tips_anzeigen = Tips_anzeigen_->checkedId();
    o.Farbeinstellung = Farbeinstellung_->checkedId();
    o.Projektpfad = aus_Qt(Dir1_->Pfad());
    return o;
}

void Optionen::accept() {
    if (Programm_.fuehre_aus<&Optionensteuerung::uebernimm>(Entwurf())) QDialog::accept();
}

}  // namespace varnok
