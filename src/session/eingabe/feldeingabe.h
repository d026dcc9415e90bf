#pragma once

#include <string>
#include <vector>

#include "session/eingabe/feldtabelle.h"
#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// The numeric fields: what happens when one gets the focus, is typed in, is confirmed with Enter and is
// left. A wrong value never reaches a run, and no key starts one.
class Feldeingabe {
public:
    Feldeingabe(Zustand& z, Laufsteuerung& Laeufe) : z_(z), Laeufe_(Laeufe), Studienfelder_(Feldtabelle().size()) {}

    const std::string& Text(int Feld) const { return Feldwert(Feld).Text(); }
    // The field that has the focus, -1 without one.
    int aktives_Feld() const { return aktiv_; }
    // What it shows is not what it accepts, as a record may give it; not while it is typed.
    bool ausserhalb(int Feld) const;
    // Something was typed there that is not accepted yet.
    bool ist_in_Arbeit() const { return aktiv_ >= 0 && geaendert_; }

    void betrete(int Feld);
    void aendere(int Feld, const std::string& Text);
    // False if the value was refused: the message has been shown, the field keeps the focus.
    bool bestaetige(int Feld);
    bool verlasse(int Feld);
    // The same for the field in work, if there is one. `mit_Lauf` false: a command that runs anyway follows.
    bool schliesse_ab(bool mit_Lauf);
    // Esc: the last accepted text comes back.
    void nimm_zurueck(int Feld);

    // The same for a field whose value would be refused.
    void nimm_Ungueltiges_zurueck();

    // Shows the values of the selected study and of the entry fields; nothing is written back, no run.
    void fuelle();

private:
    bool gib_ab(int Feld, bool mit_Lauf);
    bool pruefe(int Feld, bool Enter);
    void setze(int Feld, const Zahlwert& v);
    void uebernimm_Text(int Feld);
    void nimm_an(int Feld, bool mit_Lauf);
    Zahlwert gespeicherter_Wert(const Feldbeschreibung& f) const;
    const Zahlwert& Feldwert(int Feld) const;

    Zustand& z_;
    Laufsteuerung& Laeufe_;
    std::vector<Zahlwert> Studienfelder_;  // what the study fields show; the other texts stand in `Eingabe`
    int aktiv_ = -1;
    Zahlwert Alter_Wert_;      // last accepted text of the active field
    Zahlwert Eintrittswert_;   // its text when it got the focus
    bool geaendert_ = false;   // typed in since the field got the focus
    bool alte_Marke_ = false;  // of its record, before that
};

}  // namespace varnok
