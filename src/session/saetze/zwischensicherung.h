#pragma once

#include "records/zwischenstand.h"
#include "session/eingabe/feldeingabe.h"
#include "session/saetze/satzverwaltung.h"

namespace varnok {

// Keeps in the file `backup/unsaved` what differs from the files of the project, for the start after one that did not come to
// its end. Of two windows on a folder the first one has it.
class Zwischensicherung {
public:
    Zwischensicherung(Eingabestand& z, Satzverwaltung& Saetze, Feldeingabe& Felder) : z_(z), Saetze_(Saetze), Felder_(Felder) {}

    // At the start: offers what the start before left, which did not come to its end. It is in `backup` either way. True if it
    // is on the screen now.
    bool biete_an();
    // After an action, when the screen has been drawn: brings the file in line with the values that are accepted. What cannot
    // be written is told once, in the status line.
    void schreibe();
    // The program comes to its end: what is not saved is in `backup` by now, or was not to be kept.
    void raeume();

private:
    Zwischenstand jetziger() const;
    bool zustaendig() const {
        return z_.Ordner && !z_.nur_lesbar && !unerledigt_ && !(z_.Sperre && z_.Sperre->von_anderem_gehalten());
    }
    bool lade(const Zwischenstand& Stand);

    Eingabestand& z_;
    Satzverwaltung& Saetze_;
    Feldeingabe& Felder_;
    Zwischenstand geschrieben_;
    bool gescheitert_ = false;
    bool unerledigt_ = false;  // what the start before left could not be put into `backup`: it stays, and is offered again
};

}  // namespace varnok
