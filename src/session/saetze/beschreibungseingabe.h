#pragma once

#include "session/kern/eingabestand.h"

namespace varnok {

// The description of the simulation, typed on the main screen.
class Beschreibungseingabe {
public:
    explicit Beschreibungseingabe(Eingabestand& z) : z_(z) {}

    // The text is being typed.
    bool offen() const { return offen_; }

    void oeffne();
    // A line end is not kept: a summary file holds the text in one line.
    void aendere(const std::string& Text);
    void schliesse();
    // Esc: text and mark are as on opening.
    void nimm_zurueck();

private:
    Eingabestand& z_;
    std::string alter_Text_;
    bool alte_Marke_ = false;  // of the simulation
    bool offen_ = false;
};

}  // namespace varnok
