#pragma once

#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// The table of irregular applications. It has no editor of its own: keys work on the current cell.
class Applikationstabelle {
public:
    Applikationstabelle(Zustand& z, Laufsteuerung& Laeufe) : z_(z), Laeufe_(Laeufe) {}

    void haenge_an(Zelle z, char Zeichen);  // a digit or the decimal point
    void nimm_letztes(Zelle z);             // backspace
    void leere(Zelle z);                    // delete
    // Lines of tab separated values from the clipboard, from the cell on to the right and down.
    void fuege_ein(Zelle z, const std::string& Text);
    // Enter: the table is checked once and one run is made.
    void bestaetige();

private:
    const std::string& Text(Zelle z) const;
    void setze(Zelle z, std::string Text);

    Zustand& z_;
    Laufsteuerung& Laeufe_;
};

}  // namespace varnok
