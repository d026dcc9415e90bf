#pragma once

#include "window/kern/rahmen.h"

namespace varnok {

class Beschreibungsfeld;
class Satzliste;

// The simulation and its line of description, at the top of the window.
class Frame2 : public Rahmen {
    Q_OBJECT
public:
    Frame2(Sitzung& Programm, QWidget* parent);
    void zeige() override;

Q_SIGNALS:
    void Organiser_verlangt();

private:
    void schliesse_auf();

    Satzliste* Simulation_;
    Beschreibungsfeld* Beschreibung_;
};

}  // namespace varnok
