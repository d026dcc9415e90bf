#pragma once

#include "session/kern/zustand.h"

namespace varnok {

// The settings file, beside the program.
std::string Einstellungspfad(const Zustand& z);
void Einstellungen_schreiben(const Zustand& z);

}  // namespace varnok
