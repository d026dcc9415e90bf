#pragma once

#include "session/kern/zustand.h"

namespace varnok {

// The settings file, beside the program.
std::string Einstellungspfad(const Zustand& z);
void Einstellungen_schreiben(const Zustand& z);

// Where all output goes from now on.
void setze_Ausgabeprojekt(Zustand& z, const std::string& Pfad);

}  // namespace varnok
