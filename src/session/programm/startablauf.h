#pragma once

#include "session/saetze/satzverwaltung.h"

namespace varnok {

// The start of the program up to the intro page: settings, project folder, selectors, the simulation used
// last and its records. False if the program ends there.
bool starte_Programm(Zustand& z, Satzverwaltung& Saetze);

}  // namespace varnok
