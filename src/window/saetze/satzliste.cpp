#include "window/saetze/satzliste.h"

#include "painting/qt_text.h"
#include "window/saetze/listenbedienung.h"
#include "window/saetze/satzauswahl.h"
#include "window/saetze/umbenennfeld.h"

namespace varnok {

using namespace Qt::StringLiterals;

Satzliste::Satzliste(Satzart Art, const Namen& n, int Zeichen, Sitzung& Programm, Rahmen& Traeger)
    : QObject(&Traeger), Art_(Art), Programm_(Programm) {
    Liste = new Satzauswahl(n.Liste, Zeichen, &Traeger);
    Neuer_Dateiname_ = new Umbenennfeld(u"Neuer_Dateiname_"_s + in_Qt(Art), *Liste);
    Copy = new Schaltflaeche(n.Copy, u"Copy"_s, &Traeger);
    Loeschen = new Schaltflaeche(n.Loeschen, u"Del"_s, &Traeger);
    for (Schaltflaeche* b : {Copy, Loeschen}) b->setAccessibleName(b->text() + u' ' + Satzgegenstand(Art));
    verbinde_Bedienung();
}

template <auto Befehl, class... Angaben>
bool Satzliste::befiehl(Angaben&&... a) {
    bool getan = false;
    {
        const Wartezeiger warte;
        getan = Programm_.fuehre_aus<Befehl>(std::forward<Angaben>(a)...);
    }
    Q_EMIT gehandelt();
    return getan;
}

void Satzliste::verbinde_Bedienung() {
    const auto kopiere = [this] { befiehl<&Satzverwaltung::kopiere>(Art_); };
    const auto loesche = [this] { befiehl<&Satzverwaltung::loesche>(Art_); };
    connect(Copy, &QPushButton::clicked, this, kopiere);
    connect(Loeschen, &QPushButton::clicked, this, loesche);

    auto* Bedienung = new Listenbedienung(*Liste, [this] {
        const auto& Saetze = Programm_.zeige<Satzverwaltung>();
        const bool da = Saetze.darf_kopieren(Art_);
        return Listenbedienung::Rechte{Art_ != Simulation, da, da, Saetze.darf_loeschen(Art_)};
    });
    connect(Bedienung, &Listenbedienung::anlegen, this, [this] { befiehl<&Satzverwaltung::lege_an>(Art_); });
    connect(Bedienung, &Listenbedienung::kopieren, this, kopiere);
    connect(Bedienung, &Listenbedienung::loeschen, this, loesche);
    connect(Bedienung, &Listenbedienung::umbenennen, this, [this] { befiehl<&Satzumbenennung::beginne>(Art_); });
    connect(Neuer_Dateiname_, &QLineEdit::textEdited, this,
            [this](const QString& Text) { Programm_.fuehre_aus<&Satzumbenennung::aendere>(aus_Qt(Text)); });
    connect(Neuer_Dateiname_, &Umbenennfeld::bestaetigt, this, &Satzliste::benenne_um);
    connect(Neuer_Dateiname_, &Umbenennfeld::zurueckgenommen, this, [this] { befiehl<&Satzumbenennung::nimm_zurueck>(); });
}

// A name that was refused can be corrected while the box has the focus.
void Satzliste::benenne_um(bool Enter) {
    if (!Programm_.zeige<Satzumbenennung>().offen_ueber(Art_)) return;
    if (!befiehl<&Satzumbenennung::bestaetige>(Enter) && Enter) Neuer_Dateiname_->setFocus(Qt::OtherFocusReason);
}

void Satzliste::zeige() {
    const Zustand& z = Programm_.Stand();
    Liste->zeige(z.Listen[Art_], z.Auswahl(Art_));
    if (Art_ != Simulation) sperre_Unwaehlbare(*Liste, z.Listen[Art_]);
    const auto& Saetze = Programm_.zeige<Satzverwaltung>();
    const auto& Name = Programm_.zeige<Satzumbenennung>();
    Neuer_Dateiname_->zeige(Name.offen_ueber(Art_), in_Qt(Name.Vorschlag()));
    Copy->setEnabled(Saetze.darf_kopieren(Art_));
    Loeschen->setEnabled(Saetze.darf_loeschen(Art_));
}

}  // namespace varnok
