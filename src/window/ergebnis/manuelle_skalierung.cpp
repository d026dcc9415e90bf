#include "window/ergebnis/manuelle_skalierung.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "base/zahlen.h"
#include "diagrams/diagrammbereiche.h"
#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/kern/ziffernfeld.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// A list that takes free input too.
QComboBox* erstelle_Liste(const QString& Name, const QStringList& Eintraege, const std::string& Text, QWidget* parent) {
    auto* l = new Auswahlliste(Name, 8, parent);
    l->setEditable(true);
    l->setLineEdit(new Ziffernfeld(QString(), l));
    l->setInsertPolicy(QComboBox::NoInsert);
    l->setCompleter(nullptr);  // "36" stays 36 and becomes no 365
    l->addItems(Eintraege);
    l->setCurrentText(in_Qt(Text));
    return l;
}

}  // namespace

Manuelle_Skalierung::Manuelle_Skalierung(double X_Start, double X_Ende, char Dezimalzeichen, Annahme nimm_an, QWidget* parent)
    : QDialog(parent), nimm_an_(std::move(nimm_an)) {
    setObjectName(u"Manuelle_Skalierung"_s);
    setWindowTitle(u"Manual scaling"_s);
    QStringList Enden;
    for (const int d : Skalierungsliste) Enden << in_Qt(d);
    QStringList Starts;
    for (int d = 0; d <= letzter_Startzeitpunkt; ++d) Starts << in_Qt(d);
    Startzeitpunkt_ = erstelle_Liste(u"Startzeitpunkt"_s, Starts, allgemeine_Zahl(X_Start, Dezimalzeichen), this);
    Skalierung_X_Achse_ = erstelle_Liste(u"Skalierung_X_Achse"_s, Enden, allgemeine_Zahl(X_Ende, Dezimalzeichen), this);

    auto* Zeilen = new QFormLayout;
    Zeilen->setHorizontalSpacing(10);
    Zeilen->setVerticalSpacing(6);
    Zeilen->addRow(u"&Start (d):"_s, Startzeitpunkt_);
    Zeilen->addRow(u"&End (d):"_s, Skalierung_X_Achse_);
    Startzeitpunkt_->setAccessibleName(u"Start (d)"_s);
    Skalierung_X_Achse_->setAccessibleName(u"End (d)"_s);

    auto* Tasten = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    Tasten->button(QDialogButtonBox::Ok)->setObjectName(u"OK"_s);
    Tasten->button(QDialogButtonBox::Ok)->setText(u"OK"_s);
    Tasten->button(QDialogButtonBox::Ok)->setDefault(true);
    Tasten->button(QDialogButtonBox::Cancel)->setObjectName(u"Abbrechen"_s);
    Tasten->button(QDialogButtonBox::Cancel)->setText(u"Cancel"_s);
    connect(Tasten, &QDialogButtonBox::accepted, this, &Manuelle_Skalierung::accept);
    connect(Tasten, &QDialogButtonBox::rejected, this, &Manuelle_Skalierung::reject);

    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(14);
    Blatt->addLayout(Zeilen);
    Blatt->addWidget(Tasten);
    Blatt->setSizeConstraint(QLayout::SetFixedSize);
    Skalierung_X_Achse_->setFocus();
    Skalierung_X_Achse_->lineEdit()->selectAll();
}

void Manuelle_Skalierung::accept() {
    if (nimm_an_(aus_Qt(Startzeitpunkt_->currentText()), aus_Qt(Skalierung_X_Achse_->currentText()))) {
        QDialog::accept();
        return;
    }
    activateWindow();
    Skalierung_X_Achse_->setFocus();
    Skalierung_X_Achse_->lineEdit()->selectAll();
}

}  // namespace varnok
