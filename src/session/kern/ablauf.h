#pragma once

namespace varnok {

// What stands around a command. Everywhere a fault becomes a message, what was entered stays, and the program goes on.
enum class Weg {
    Zwischenschritt,  // of a dialog, a cell, a text in work: nothing follows
    Handlung,         // what follows from the values: drawing, step in the history, status line
    Befehl,           // the same, after the field in work was accepted and run; where it refuses its value nothing is done
    Rechenbefehl,     // the same, but the field's run is left out: the command makes one
};

struct Ablauf {
    varnok::Weg Weg;
    bool nach_Fehler = false;  // the answer of a command that ended with a fault
    // Where a run has told of a missing climate file, the field that it came from is not accepted a second time.
    bool nach_Klimameldung = false;
};

// A command with what stands around it: a line of ablaeufe.h.
template <auto Befehl>
struct Zeile {
    Ablauf Wie;
};

// All lines. The line of a command is the base class of its type, so none and two of them do not compile.
template <class... Zeilen>
struct Befehlsliste : Zeilen... {};
template <class... Zeilen>
Befehlsliste(Zeilen...) -> Befehlsliste<Zeilen...>;

template <auto Befehl>
constexpr Ablauf Ablauf_von(const Zeile<Befehl>& z) {
    return z.Wie;
}

// The part that a command belongs to.
template <class Funktion>
struct Traeger;
template <class T, class Funktion>
struct Traeger<Funktion T::*> {
    using Teil = T;
};
template <auto Befehl>
using Teil_mit = typename Traeger<decltype(Befehl)>::Teil;

}  // namespace varnok
