#include "window/saetze/dateidialoge.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/programm/ordnerwahl.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

QPushButton* Taste(const QString& Name, const QString& Aufschrift, QWidget* parent) {
    auto* t = new QPushButton(Aufschrift, parent);
    t->setObjectName(Name);
    t->setAutoDefault(false);
    return t;
}

}  // namespace

Dateidialog::Dateidialog(Sitzung& Programm, const QString& Endung, const QString& Name, const QString& Aufschrift,
                         QWidget* parent)
    : QDialog(parent),
      Programm_(Programm),
      Verzeichnis_(new Ordnerwahl(u"Verzeichnis"_s, u"laufwerk"_s, in_Qt(Programm.Stand().Ordner->Eingabeordner()),
                                  Ordnerwahl::Laufwerke(), this)),
      Dateien_(new QListWidget(this)),
      Handlung_(Taste(Name, Aufschrift, this)),
      Loeschen_(Taste(u"Loeschen"_s, u"Delete"_s, this)),
      Endung_(Endung) {
    Dateien_->setObjectName(u"Dateien"_s);
    Dateien_->setAccessibleName(u"Files"_s);
    Verzeichnis_->Baum()->setAccessibleName(u"Folder"_s);
    QPushButton* Abbrechen = Taste(u"Abbrechen"_s, u"Cancel"_s, this);
    Handlung_->setDefault(true);

    auto* Listen = new QHBoxLayout;
    Listen->setSpacing(12);
    Listen->addWidget(Verzeichnis_, 1);
    Listen->addWidget(Dateien_, 1);
    auto* Tasten = new QHBoxLayout;
    Tasten->setSpacing(6);
    Tasten->addWidget(Loeschen_);
    Tasten->addStretch(1);
    Tasten->addWidget(Handlung_);
    Tasten->addWidget(Abbrechen);
    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(12);
    Blatt->addLayout(Listen, 1);
    Blatt->addLayout(Tasten);
    resize(Ziffern(*this, 85), 18 * Zeilenhoehe(*this));

    connect(Verzeichnis_, &Ordnerwahl::gewaehlt, this, &Dateidialog::lies_Dateien);
    connect(Dateien_, &QListWidget::itemSelectionChanged, this, [this] { zeige_Wahl(); });
    connect(Dateien_, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
    connect(Handlung_, &QPushButton::clicked, this, [this] { accept(); });
    connect(Loeschen_, &QPushButton::clicked, this, &Dateidialog::loesche);
    connect(Abbrechen, &QPushButton::clicked, this, &QDialog::reject);
    fuelle_Dateien();
}

QString Dateidialog::gewaehlte_Datei() const {
    const auto Zeilen = Dateien_->selectedItems();
    return Zeilen.isEmpty() ? QString() : Zeilen.front()->text();
}

bool Dateidialog::darf_loeschen() const {
    return !gewaehlte_Datei().isEmpty() && Programm_.zeige<Eingabedateien>().darf_loeschen(aus_Qt(Verzeichnis_->Pfad()));
}

void Dateidialog::fuelle_Dateien() {
    const auto Namen = Eingabedateien::Dateien(aus_Qt(Verzeichnis_->Pfad()), aus_Qt(Endung_));
    Dateien_->clear();
    for (const std::string& Name : Namen) Dateien_->addItem(in_Qt(Name));
}

void Dateidialog::lies_Dateien() {
    fuelle_Dateien();
    zeige_Wahl();
}

void Dateidialog::loesche() {
    Programm_.fuehre_aus<&Eingabedateien::loesche>(aus_Qt(Verzeichnis_->Pfad()), aus_Qt(gewaehlte_Datei()));
    lies_Dateien();
}

Eingabedaten_Laden::Eingabedaten_Laden(Sitzung& Programm, QWidget* parent)
    : Dateidialog(Programm, in_Qt(Endung_Laden), u"Laden"_s, u"Load"_s, parent) {
    setObjectName(u"Eingabedaten_Laden"_s);
    setWindowTitle(u"Load input data"_s);
    zeige_Wahl();
}

void Eingabedaten_Laden::zeige_Wahl() {
    Handlung_->setEnabled(!gewaehlte_Datei().isEmpty());
    Loeschen_->setEnabled(darf_loeschen());
}

void Eingabedaten_Laden::accept() {
    if (gewaehlte_Datei().isEmpty()) return;
    if (Programm_.fuehre_aus<&Eingabedateien::lade>(aus_Qt(gewaehlte_Datei()))) QDialog::accept();
}

Eingabedaten_Speichern_unter::Eingabedaten_Speichern_unter(Sitzung& Programm, QWidget* parent)
    : Dateidialog(Programm, in_Qt(Endungen[Simulation]), u"Speichern"_s, u"Save"_s, parent),
      Dateiname_(new Textfeld(u"Dateiname"_s, this)) {
    setObjectName(u"Eingabedaten_Speichern_unter"_s);
    setWindowTitle(u"Save simulation"_s);
    Dateiname_->setAccessibleName(u"File name"_s);
    static_cast<QVBoxLayout*>(layout())->insertWidget(1, Dateiname_);
    if (Dateien_->count() > 0) Dateien_->setCurrentRow(0);
    zeige_Wahl();
    Dateiname_->selectAll();
    Dateiname_->setFocus();
}

void Eingabedaten_Speichern_unter::zeige_Wahl() {
    if (!gewaehlte_Datei().isEmpty()) Dateiname_->setText(gewaehlte_Datei());
    Loeschen_->setEnabled(darf_loeschen());
}

void Eingabedaten_Speichern_unter::accept() {
    if (Programm_.fuehre_aus<&Eingabedateien::speichere>(aus_Qt(Dateiname_->text()))) QDialog::accept();
}

}  // namespace varnok
