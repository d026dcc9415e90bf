#pragma once

#include <string>

#include "session/eingabe/feldeingabe.h"
#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// The studies of the compound record: adding, renaming and deleting one. Adding and renaming share a text box; while it is
// open neither adding nor deleting is possible.
class Studienverwaltung {
public:
    Studienverwaltung(Eingabestand& z, Laufsteuerung& Laeufe, Feldeingabe& Felder) : z_(z), Laeufe_(Laeufe), Felder_(Felder) {}

    bool darf_addieren() const { return z_.Gestartet && z_.Studienzahl() < max_Studien && !Name_offen_; }
    bool darf_loeschen() const { return z_.Gestartet && z_.Studienzahl() > 1 && !Name_offen_; }
    // The text box is open, and what it opened with.
    bool Name_offen() const { return Name_offen_; }
    const std::string& Vorschlag() const { return Vorschlag_; }
    // The box is that of a new study.
    bool neu() const { return neu_; }

    void addiere();
    void beginne_Umbenennen();
    // The text in the box, as far as it is typed.
    void aendere(const std::string& Name) { Entwurf_ = Name; }
    // Enter, or leaving the box: a new study is added and run, a name is replaced. A name that no record can hold is told:
    // with Enter the box stays open, else the name that it opened with stands.
    void bestaetige(bool Enter);
    // Esc: everything is as before the box was opened.
    void nimm_zurueck();
    void loesche();

private:
    void oeffne(const std::string& Vorschlag, bool neu);
    void fuege_an(const std::string& Name);
    void benenne_um(const std::string& Name);

    Eingabestand& z_;
    Laufsteuerung& Laeufe_;
    Feldeingabe& Felder_;
    bool Name_offen_ = false;
    bool neu_ = false;
    std::string Vorschlag_;
    std::string Entwurf_;
};

}  // namespace varnok
