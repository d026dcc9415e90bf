#pragma once

// Results to be shown: input, view and results in one place, calculated or filled by hand.

#include "exposure/darstellung.h"
#include "support/lauf_bauer.h"

namespace varnok::probe {

struct Darstellungsprobe {
    Eingabe Felder;
    Ansicht Sicht;
    Ergebnisse Studien;

    operator Darstellung() const { return {Studien, Sicht, Felder}; }
    Darstellung zeige() const { return *this; }

    // The result of a study to be changed by hand; an empty one of the present input is made where there is none.
    Ergebnis& Studie(int i_studie = 0);
    Endpunktergebnis& Werte(int i_substanz = 0, int i_studie = 0, Endpunktart Endpunkt = Gesamtgehalt);
};

// Every study of the builder's input calculated, by the same way as both programs. Throws std::logic_error if a run ends early.
Darstellungsprobe gerechnet(const Lauf_bauer& b);

// The input and view of a builder, no result yet; `Studie` makes results of zeros.
Darstellungsprobe leere_Probe(const Lauf_bauer& b);

// What a run that was made in a test holds, for its study `i_studie`.
Darstellungsprobe aus_Lauf(const Lauf& l, const Ansicht& Sicht = {});

}  // namespace varnok::probe
