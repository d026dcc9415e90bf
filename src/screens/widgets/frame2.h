#pragma once

#include "screens/widgets/rahmen.h"

namespace varnok {

class Auswahlliste;
class Beschreibungsfeld;
class Schaltflaeche;

// The simulation and its line of description, at the top of the window.
class Frame2 : public Rahmen {
    Q_OBJECT
public:
    Frame2(Sitzung& Programm, QWidget* parent);
    void zeige() override;

private:
    Auswahlliste* Simulationsliste_;
    Schaltflaeche* Copy_;
    Schaltflaeche* Loeschen_;
    Beschreibungsfeld* Beschreibung_;
};

}  // namespace varnok
