#include "window/ergebnis/bildeinstellungen.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace varnok {

using namespace Qt::StringLiterals;

QSpinBox* Bildeinstellungen::erstelle_Feld(const QString& Name, const QString& Bedeutung, int von, int bis, int Wert) {
    auto* f = new QSpinBox(this);
    f->setObjectName(Name);
    f->setAccessibleName(Bedeutung);
    f->setRange(von, bis);
    f->setValue(Wert);
    f->setAlignment(Qt::AlignRight);
    return f;
}

Bildeinstellungen::Bildeinstellungen(const Bildeinstellung& jetzige, QWidget* parent)
    : QDialog(parent),
      Breite_(erstelle_Feld(u"Bildbreite"_s, u"Width (mm)"_s, kleinstes_Bild, groesstes_Bild, jetzige.Breite)),
      Hoehe_(erstelle_Feld(u"Bildhoehe"_s, u"Height (mm)"_s, kleinstes_Bild, groesstes_Bild, jetzige.Hoehe)),
      Aufloesung_(erstelle_Feld(u"Bildaufloesung"_s, u"Resolution (dpi)"_s, kleinste_Aufloesung, groesste_Aufloesung,
                                jetzige.Aufloesung)),
      Druck_(new QCheckBox(u"For &print: dashes and dark colours, also in reports"_s, this)) {
    setObjectName(u"Bildeinstellungen"_s);
    setWindowTitle(u"Picture options"_s);
    Druck_->setObjectName(u"Bild_fuer_Druck"_s);
    Druck_->setChecked(jetzige.fuer_Druck);

    auto* Zeilen = new QFormLayout;
    Zeilen->setHorizontalSpacing(10);
    Zeilen->setVerticalSpacing(6);
    Zeilen->addRow(u"&Width (mm):"_s, Breite_);
    Zeilen->addRow(u"&Height (mm):"_s, Hoehe_);
    Zeilen->addRow(u"&Resolution (dpi):"_s, Aufloesung_);
    auto* Tasten = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    Tasten->button(QDialogButtonBox::Ok)->setObjectName(u"OK"_s);
    Tasten->button(QDialogButtonBox::Ok)->setText(u"OK"_s);
    Tasten->button(QDialogButtonBox::Cancel)->setObjectName(u"Abbrechen"_s);
    Tasten->button(QDialogButtonBox::Cancel)->setText(u"Cancel"_s);
    connect(Tasten, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(Tasten, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(14);
    Blatt->addLayout(Zeilen);
    Blatt->addWidget(Druck_);
    Blatt->addWidget(Tasten);
    Blatt->setSizeConstraint(QLayout::SetFixedSize);
}

Bildeinstellung Bildeinstellungen::gewaehlte() const {
    return {Breite_->value(), Hoehe_->value(), Aufloesung_->value(), Druck_->isChecked()};
}

}  // namespace varnok
