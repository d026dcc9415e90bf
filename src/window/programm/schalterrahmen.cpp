#include "window/programm/schalterrahmen.h"

#include <QDir>
#include <QHBoxLayout>
#include <QIcon>
#include <QShortcut>

#include "painting/qt_text.h"
#include "session/kern/bemerkungen.h"
#include "window/kern/bausteine.h"
#include "window/kern/bilder.h"
#include "window/programm/bemerkungsfenster.h"

namespace varnok {

using namespace Qt::StringLiterals;

Schalterrahmen::Schalterrahmen(Sitzung& Programm, QWidget* parent)
    : Rahmen(u"Schalterrahmen"_s, Rahmenart::schlicht, Programm, parent) {
    Aktualisieren_ = new Schaltflaeche(u"Aktualisieren"_s, u"Refresh"_s, this);
    speichern_ = new Schaltflaeche(u"speichern"_s, u"Save input"_s, this);
    Bericht_erstellen_ = new Schaltflaeche(u"Bericht_erstellen"_s, u"Report"_s, this);
    Ende_ = new Schaltflaeche(u"Ende"_s, u"Exit"_s, this);
    Status_ = new Kurztext(u"Statuszeile"_s, this);
    Status_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Aktualisieren_->setShortcut(QKeySequence(Qt::Key_F5));

    auto* Zeile = new QHBoxLayout(this);
    Zeile->setContentsMargins(0, 0, 0, 0);
    Zeile->setSpacing(6);
    for (Schaltflaeche* b : {Aktualisieren_, speichern_, Bericht_erstellen_, Ende_}) {
        b->setMinimumWidth(Ziffern(*this, 13));
        Zeile->addWidget(b);
    }
    Zeile->addSpacing(18);
    Zeile->addWidget(Status_, 1);
    Bemerkungen_ = new Schaltflaeche(u"Bemerkungszahl"_s, QString(), this);
    Bemerkungen_->setFlat(true);
    Zeile->addWidget(Bemerkungen_);
    connect(Bemerkungen_, &QPushButton::clicked, this, &Schalterrahmen::oeffne_Bemerkungen);
    // Not a shortcut of the button, which goes with each change of its text.
    connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, &Schalterrahmen::oeffne_Bemerkungen);

    connect(Aktualisieren_, &QPushButton::clicked, this, [this] { befiehl<&Satzverwaltung::aktualisiere>(); });
    connect(speichern_, &QPushButton::clicked, this, [this] { befiehl<&Satzverwaltung::speichere>(); });
    connect(Bericht_erstellen_, &QPushButton::clicked, this, [this] { befiehl<&Berichtssteuerung::erstelle>(); });
    connect(Ende_, &QPushButton::clicked, this, [this] { befiehl<&Programmablauf::beende>(); });
}

QIcon Schalterrahmen::Hinweisbild() const {
    const QDir Projekt(in_Qt(Stand().Projektpfad));
    const QStringList Dateien = Projekt.entryList({u"rot.bmp"_s}, QDir::Files);
    if (!Dateien.isEmpty()) {
        const QPixmap Bild(Projekt.filePath(Dateien.front()));
        if (!Bild.isNull()) return Bild;
    }
    return Bild_aus_SVG(u"hinweis"_s);
}

void Schalterrahmen::zeige_Hinweis() {
    const bool Hinweis = Stand().Hinweis();
    if (Hinweis == Aktualisieren_->icon().isNull()) Aktualisieren_->setIcon(Hinweis ? Hinweisbild() : QIcon());
}

void Schalterrahmen::zeige_Bemerkungen() {
    const std::size_t Anzahl = Bemerkungen(Stand()).size();
    const QString Aufschrift = Bemerkungszahl(Anzahl);
    if (Bemerkungen_->text() != Aufschrift) {
        Bemerkungen_->setText(Aufschrift);
        Bemerkungen_->setAccessibleName(Aufschrift);
    }
    Bemerkungen_->setVisible(Anzahl > 0);
}

void Schalterrahmen::oeffne_Bemerkungen() {
    const std::vector<Bemerkung> Alle = Bemerkungen(Stand());
    if (Alle.empty()) return;
    Bemerkungsfenster Fenster(Alle, Stand().Welt.Dezimalzeichen, this);
    Fenster.exec();
}

void Schalterrahmen::zeige() {
    zeige_Bemerkungen();
    zeige_Hinweis();
    Bericht_erstellen_->setEnabled(Stand().Gestartet);
    const std::string& Zeile = Stand().Statuszeile.Text();
    const QString Text = Zeile.empty() ? QString() : in_Qt(Stand().Statuszeile.Zeit() + ' ' + Zeile);
    // What has happened goes before what could be done.
    if (Text != Statustext_) Handhabung_.clear();
    Statustext_ = Text;
    zeige_Status();
}

void Schalterrahmen::zeige_Handhabung(const QString& Text) {
    Handhabung_ = Text;
    zeige_Status();
}

void Schalterrahmen::zeige_Fokushandhabung(const QString& Text) {
    Fokushandhabung_ = Text;
    zeige_Status();
}

// The mouse passes over the line, the focus is always somewhere.
void Schalterrahmen::zeige_Status() {
    const QString& in_Ruhe = Statustext_.isEmpty() ? Fokushandhabung_ : Statustext_;
    Status_->setText(Handhabung_.isEmpty() ? in_Ruhe : Handhabung_);
}

void Schalterrahmen::gib_Ende_den_Fokus() { Ende_->setFocus(Qt::OtherFocusReason); }

}  // namespace varnok
