#include "window/eingabe/kinetikschema.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "painting/qt_text.h"
#include "window/eingabe/kinetikparameter.h"
#include "window/eingabe/stoffseite.h"
#include "window/saetze/listenbedienung.h"
#include "window/saetze/satzzeile.h"
#include "window/saetze/umbenennfeld.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Seitenrand = 4;

}  // namespace

Kinetikschema::Kinetikschema(Sitzung& Programm, Feldsteuerung& Steuerung, QWidget* parent)
    : Rahmen(u"Kinetikschema"_s, Rahmenart::Wirkstoff, Programm, parent) {
    const QString Titel = u"Compound data"_s;
    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(10, 8, 10, 10);
    Spalte->setSpacing(6);
    Spalte->addWidget(Ueberschrift(Titel, this));
    Satz_ = new Satzzeile(Wirkstoff, Titel, Programm, this);
    Spalte->addWidget(Satz_);

    Studie_ = new Auswahlliste(u"Studie"_s, 12, this);
    Studienname_ = new Umbenennfeld(u"Studienname"_s, *Studie_);
    Addiere_Studie_ = new Schaltflaeche(u"Addiere_Studie"_s, u"Add study"_s, this);
    auto* Zeile = new QHBoxLayout;
    Zeile->setSpacing(5);
    Zeile->addWidget(Schild(u"Soil:"_s, Studie_, this));
    Studie_->setAccessibleName(u"Soil, study"_s);
    Zeile->addWidget(Studie_, 1);
    Zeile->addWidget(Addiere_Studie_);
    Spalte->addLayout(Zeile);

    Wirkstoffdaten_ = new Reiter(u"Wirkstoffdaten"_s, u"Compound data, pages"_s, this);
    Wirkstoffdaten_->addTab(erstelle_Abbaudaten(Steuerung), u"Degradation"_s);
    auto* Sorption = new Sorptionsdaten(Programm, Steuerung, this);
    auto* Metabolismus = new Metabolismusschema(Programm, Steuerung, this);
    Wirkstoffdaten_->addTab(erstelle_Seite(Sorption), u"Sorption"_s);
    Wirkstoffdaten_->addTab(erstelle_Seite(Metabolismus), u"Metabolism"_s);
    // Each name stands on both pages.
    connect(Sorption, &Rahmen::getippt, Metabolismus, &Stoffseite::zeige_Namen);
    connect(Metabolismus, &Rahmen::getippt, Sorption, &Stoffseite::zeige_Namen);
    Spalte->addSpacing(2);
    Spalte->addWidget(Wirkstoffdaten_);

    verbinde_Studien();
    Wirkstoffdaten_->Leiste()->darf_wechseln = [this] { return schliesse_Feld_ab(); };
    connect(Wirkstoffdaten_, &QTabWidget::currentChanged, this, &Kinetikschema::wechsle_Seite);
    horche_auf(Satz_);
    for (Rahmen* r : Seiten_) horche_auf(r);
}

void Kinetikschema::verbinde_Studien() {
    connect(Studie_, &QComboBox::activated, this, [this](int i) { befiehl<&Listenwahl::waehle_Studie>(i); });
    connect(Addiere_Studie_, &QPushButton::clicked, this, [this] { befiehl<&Studienverwaltung::addiere>(); });
    auto* Bedienung = new Listenbedienung(*Studie_, [this] {
        const auto& Studien = Programm_.zeige<Studienverwaltung>();
        return Listenbedienung::Rechte{Studien.darf_addieren(), false, true, Studien.darf_loeschen()};
    });
    connect(Bedienung, &Listenbedienung::anlegen, this, [this] { befiehl<&Studienverwaltung::addiere>(); });
    connect(Bedienung, &Listenbedienung::umbenennen, this, [this] { befiehl<&Studienverwaltung::beginne_Umbenennen>(); });
    connect(Bedienung, &Listenbedienung::loeschen, this, [this] { befiehl<&Studienverwaltung::loesche>(); });
    connect(Studienname_, &QLineEdit::textEdited, this,
            [this](const QString& Text) { Programm_.fuehre_aus<&Studienverwaltung::aendere>(aus_Qt(Text)); });
    connect(Studienname_, &Umbenennfeld::bestaetigt, this,
            [this](bool Enter) { befiehl<&Studienverwaltung::bestaetige>(Enter); });
    connect(Studienname_, &Umbenennfeld::zurueckgenommen, this, [this] { befiehl<&Studienverwaltung::nimm_zurueck>(); });
}

void Kinetikschema::zeige_Studien() {
    const Studienverwaltung& Studien = Programm_.zeige<Studienverwaltung>();
    Studie_->zeige(Vorgabe().Studie, Stand().i_studie());
    Addiere_Studie_->setEnabled(Studien.darf_addieren());
    Studienname_->zeige(Studien.Name_offen(), in_Qt(Studien.Vorschlag()));
    // The fields still hold the values of the study before.
    Kinetikfelder_->setEnabled(!(Studien.Name_offen() && Studien.neu()));
}

// A page of the tab strip with the room around its content that all pages have.
QWidget* Kinetikschema::erstelle_Seite(Rahmen* Inhalt) {
    auto* Seite = new QWidget(this);
    Seite->setAutoFillBackground(true);
    auto* Spalte = new QVBoxLayout(Seite);
    Spalte->setContentsMargins(Seitenrand, 8, Seitenrand, Seitenrand);
    Spalte->addWidget(Inhalt);
    Seiten_.push_back(Inhalt);
    return Seite;
}

QWidget* Kinetikschema::erstelle_Abbaudaten(Feldsteuerung& Steuerung) {
    auto* Seite = new QWidget(this);
    Seite->setAutoFillBackground(true);
    Seite->setObjectName(u"Abbaudaten"_s);
    auto* Spalte = new QVBoxLayout(Seite);
    Spalte->setContentsMargins(Seitenrand, 8, Seitenrand, Seitenrand);
    Spalte->setSpacing(6);

    Substanz_ = new QButtonGroup(this);
    auto* Zeile = new QHBoxLayout;
    Zeile->setSpacing(14);
    for (int c = 0; c < Stoffe; ++c) {
        auto* Option = new QRadioButton(QStringView(Substanznamen[static_cast<std::size_t>(c)]).toString(), Seite);
        Option->setObjectName(u"Substanz_"_s + in_Qt(c));
        Substanz_->addButton(Option, c);
        Zeile->addWidget(Option);
    }
    Zeile->addStretch(1);
    Spalte->addLayout(Zeile);
    connect(Substanz_, &QButtonGroup::idClicked, this, [this](int c) { befiehl<&Listenwahl::waehle_Substanz>(c); });

    Kinetikfelder_ = new QStackedWidget(Seite);
    for (int c = 0; c < Stoffe; ++c) {
        auto* Felder = new Kinetikparameter(c, Seitenrand + 1, Programm_, Steuerung, Kinetikfelder_);
        Seiten_.push_back(Felder);
        Kinetikfelder_->addWidget(Felder);
    }
    Spalte->addWidget(Kinetikfelder_);
    // Where the options are not shown their height stays below the fields, and the frames below do not move.
    Ersatz_ = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
    Spalte->addSpacerItem(Ersatz_);
    Spalte->addStretch(1);
    return Seite;
}

void Kinetikschema::wechsle_Seite(int i) {
    if (schliesse_Feld_ab()) Seite_ = i;
    Wirkstoffdaten_->zeige_Seite(Seite_);
}

void Kinetikschema::zeige() {
    Satz_->zeige();
    zeige_Studien();
    for (Rahmen* r : Seiten_) r->zeige();

    const Stoffschema m = Vorgabe().Berechnungsmodus;
    for (int c = 0; c < Stoffe; ++c) Substanz_->button(c)->setVisible(m != nur_Wirkstoff && c < Anzahl_Stoffe(m));
    QLayout* Spalte = Kinetikfelder_->parentWidget()->layout();
    const int Optionszeile = Substanz_->button(0)->sizeHint().height() + Spalte->spacing();
    Ersatz_->changeSize(0, m == nur_Wirkstoff ? Optionszeile : 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
    Spalte->invalidate();
    zeige_Option(*Substanz_, Sicht().Substanz);
    Kinetikfelder_->setCurrentIndex(Sicht().Substanz);
    Wirkstoffdaten_->zeige_Seite(Seite_);
    faerbe_Reiter();
}

// Strip and pages have the colour of the frame, whatever the style makes of a tab strip.
void Kinetikschema::faerbe_Reiter() {
    const QColor Flaeche = palette().color(QPalette::Window);
    if (Wirkstoffdaten_->Leiste()->palette().color(QPalette::Button) == Flaeche) return;
    QPalette p = palette();
    p.setColor(QPalette::Button, Flaeche);
    Wirkstoffdaten_->Leiste()->setPalette(p);
}

}  // namespace varnok
