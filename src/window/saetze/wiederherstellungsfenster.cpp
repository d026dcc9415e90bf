#include "window/saetze/wiederherstellungsfenster.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "painting/qt_text.h"
#include "window/kern/bausteine.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Platzrolle = Qt::UserRole;  // place in the offer

QString Aufschrift(const Gesichertes& g) {
    const QString Name = in_Qt(g.Name + Endungen[g.Art]);
    return g.ungesichert ? Name + u" (was not saved)"_s : Name;
}

}  // namespace

Wiederherstellungsfenster::Wiederherstellungsfenster(const Sitzung& Programm, QWidget* parent)
    : QDialog(parent),
      Programm_(Programm),
      Angebot_(Programm.zeige<Wiederherstellung>().Angebot()),
      Liste_(new QTreeWidget(this)),
      Unterschiede_(new QPlainTextEdit(this)),
      Herstellen_(new QPushButton(u"Restore"_s, this)) {
    setObjectName(u"Wiederherstellung"_s);
    setWindowTitle(u"Restore"_s);
    Liste_->setObjectName(u"Sicherungen"_s);
    Liste_->setAccessibleName(u"Backups"_s);
    Liste_->setHeaderLabels({u"Backup"_s, u"Compared with now"_s});
    Liste_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    Liste_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    Liste_->header()->setStretchLastSection(false);
    Unterschiede_->setObjectName(u"Unterschiede"_s);
    Unterschiede_->setAccessibleName(u"Differences from now"_s);
    Unterschiede_->setReadOnly(true);
    Herstellen_->setObjectName(u"Herstellen"_s);
    auto* Abbrechen = new QPushButton(u"Cancel"_s, this);
    Abbrechen->setObjectName(u"Abbrechen"_s);

    auto* Erklaerung = new QLabel(u"Tick what is to come back. What it replaces goes to backup first."_s, this);
    auto* Tasten = new QHBoxLayout;
    Tasten->addStretch(1);
    Tasten->addWidget(Herstellen_);
    Tasten->addWidget(Abbrechen);
    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(8);
    Blatt->addWidget(Erklaerung);
    Blatt->addWidget(Liste_, 3);
    Blatt->addWidget(Unterschiede_, 2);
    Blatt->addLayout(Tasten);
    resize(Ziffern(*this, 90), 24 * Zeilenhoehe(*this));

    connect(Liste_, &QTreeWidget::currentItemChanged, this, &Wiederherstellungsfenster::zeige_Unterschiede);
    connect(Liste_, &QTreeWidget::itemChanged, this, &Wiederherstellungsfenster::zeige_Wahl);
    connect(Herstellen_, &QPushButton::clicked, this, &QDialog::accept);
    connect(Abbrechen, &QPushButton::clicked, this, &QDialog::reject);
    fuelle();
    zeige_Unterschiede();
    zeige_Wahl();
}

void Wiederherstellungsfenster::fuelle() {
    QTreeWidgetItem* Datum = nullptr;
    for (std::size_t i = 0; i < Angebot_.size(); ++i) {
        const Gesichertes& g = Angebot_[i];
        if (!Datum || Datum->text(0) != in_Qt(g.Sicherung)) {
            Datum = new QTreeWidgetItem(Liste_, {in_Qt(g.Sicherung)});
            Datum->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        }
        auto* Zeile = new QTreeWidgetItem(Datum, {Aufschrift(g), QString::fromLatin1(g.Standtext())});
        Zeile->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        Zeile->setCheckState(0, Qt::Unchecked);
        Zeile->setData(0, Platzrolle, static_cast<int>(i));
    }
    Liste_->expandAll();
}

const Gesichertes* Wiederherstellungsfenster::von(const QTreeWidgetItem* Zeile) const {
    if (!Zeile || !Zeile->parent()) return nullptr;
    return &Angebot_.at(static_cast<std::size_t>(Zeile->data(0, Platzrolle).toInt()));
}

std::vector<Gesichertes> Wiederherstellungsfenster::Gewaehlte() const {
    std::vector<Gesichertes> Gewaehlte;
    for (int d = 0; d < Liste_->topLevelItemCount(); ++d) {
        const QTreeWidgetItem* Datum = Liste_->topLevelItem(d);
        for (int i = 0; i < Datum->childCount(); ++i) {
            if (Datum->child(i)->checkState(0) == Qt::Checked) Gewaehlte.push_back(*von(Datum->child(i)));
        }
    }
    return Gewaehlte;
}

void Wiederherstellungsfenster::zeige_Unterschiede() {
    const Gesichertes* g = von(Liste_->currentItem());
    QString Text = u"Choose a file to see how it differs from now."_s;
    if (Angebot_.empty()) Text = u"There is no backup in this project yet."_s;
    Unterschiede_->setPlainText(g ? in_Qt(Programm_.zeige<Wiederherstellung>().Unterschiede(*g)) : Text);
}

void Wiederherstellungsfenster::zeige_Wahl() { Herstellen_->setEnabled(!Gewaehlte().empty()); }

}  // namespace varnok
