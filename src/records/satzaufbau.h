#pragma once

// How the lines of a record stand one below the other: one description for each kind, which a reader
// and a writer walk through alike. What is read by one rule can so not be written by another.

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

#include "base/wertebereiche.h"
#include "run/ansicht.h"
#include "run/eingabe.h"

namespace varnok {

enum class Feldart {
    ganze_Zahl,  // rounded to the nearest whole number, ties to even, within [von, bis]
    Kennzahl,    // must be whole, within [von, bis]
    Zahl,
    Text,
    Zahltext,   // a text that comes back as a number in general form
    Tageszahl,  // a day or month of the table, shown with two digits; blank stays blank
    Rohzahl,    // a text that means a number and stays as it was typed, without outer blanks
};

// One value of a line and the place that it goes to.
struct Feld {
    Feldart Art;
    std::variant<std::uint8_t*, int*, double*, std::string*, Zahlwert*> Platz;
    int von = 0;
    int bis = 0;
    int Versatz = 0;                        // what the number in the record is above the one in the place
    bool mit_Komma = true;                  // a decimal comma counts as a point
    std::string_view Teil = {};             // which value of its line this is, e.g. "parent"; empty for the only one
    const Wertebereich* Grenzen = nullptr;  // what its field on the screen accepts; null without such a field
    std::string_view Speicher = {};         // the store, as a `Fehlerort` names it; empty where none does
    int i_studie = -1;                      // that it belongs to, counted from 0
    int i_substanz = -1;
};

// The walk through a record. Throws what its kind of walk throws.
class Satzgang {
public:
    virtual ~Satzgang() = default;

    // A line without values for the program.
    virtual void Ueberschrift(std::string_view Text) = 0;
    // Begins a line with a label, or a row of the table (counted from 1) without one.
    virtual void beginne(std::string_view Beschriftung) = 0;
    virtual void beginne_Tabellenzeile(int Nummer) = 0;
    // A value with others behind it, and the last value of a line.
    virtual void Zwischenwert(const Feld& f) = 0;
    virtual void Endwert(const Feld& f) = 0;
    // Whether the record ends here, as those without climate lines do.
    virtual bool folgt_Trennlinie() = 0;
    // The divider at the end, which no reader asks for.
    virtual void Schlusszeile() = 0;

    // A whole line.
    void Zeile(std::string_view Beschriftung, std::initializer_list<Feld> Felder);
    void Trennlinie() { Ueberschrift(Trennlinientext); }

    static constexpr std::string_view Trennlinientext = "-----------------------------------------------";
};

// The description of each kind. A reader's walk changes input and view value by value; a writer's needs a copy of them, for
// what depends on a value just passed is adjusted on the way.
void gehe_durch_Szenario(Satzgang& g, Eingabe& e);
void gehe_durch_Applikation(Satzgang& g, Eingabe& e, Ansicht& a);

// The compound record in the three pieces that tell apart what an error means: lines 1 and 2, the
// flags of line 3, and the rest. `Zaehler` follows the loop over the studies.
void gehe_durch_Wirkstoffkopf(Satzgang& g, Eingabe& e);
void gehe_durch_Ausgabename(Satzgang& g, Eingabe& e);
void gehe_durch_Wirkstoffdaten(Satzgang& g, Eingabe& e, Ansicht& a, int& Zaehler);

// How messages call a line: its label without the colon, or the row of the table, counted from 1.
std::string Zeilenname(std::string_view Beschriftung);
std::string Reihenname(int Reihe);

// "7" is not valid for "Unit:" (0 to 1)
std::string ausserhalb(std::string_view Wertetext, std::string_view Feldname, const Feld& f);

}  // namespace varnok
