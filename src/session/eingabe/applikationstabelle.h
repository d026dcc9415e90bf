#pragma once

#include <optional>
#include <string>

#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// The table of irregular applications. It has no editor of its own: keys work on the current cell.
class Applikationstabelle {
public:
    Applikationstabelle(Zustand& z, Laufsteuerung& Laeufe) : z_(z), Laeufe_(Laeufe) {}

    // The cell that was typed into is left: its text is accepted as a number. False if it was refused: the message has been
    // shown, the cell is to be selected.
    bool schliesse_ab();
    // A text that would be refused goes: the cell holds again what it held before.
    void nimm_Ungueltiges_zurueck();
    bool ist_in_Arbeit() const { return in_Arbeit_.has_value(); }
    // Whether a cell shows a number that it would not accept. A day or month that was not filled yet is none.
    bool ausserhalb(Zelle z) const;

    void haenge_an(Zelle z, char Zeichen);  // a digit or the decimal point
    void nimm_letztes(Zelle z);             // backspace
    void leere(Zelle z);                    // delete
    // Lines of tab separated values from the clipboard, from the cell on to the right and down. What is no number of its column
    // is left out, with one message.
    void fuege_ein(Zelle z, const std::string& Text);
    // Enter: the table is checked once and one run is made.
    void bestaetige();

private:
    const Zahlwert& Wert(Zelle z) const;
    const std::string& Text(Zelle z) const { return Wert(z).Text(); }
    void setze(Zelle z, Zahlwert v);
    void tippe(Zelle z, std::string Text);
    Zahlwert als_Zellwert(Zelle z, const Zahlwert& v, std::string& Meldung) const;
    bool enthaelt(Zelle z) const;

    Zustand& z_;
    Laufsteuerung& Laeufe_;
    std::optional<Zelle> in_Arbeit_;  // typed into and not accepted yet
    std::string getippt_;             // what was typed there
    std::string vor_dem_Tippen_;      // what stood there
};

}  // namespace varnok
