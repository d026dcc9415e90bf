#pragma once

#include "session/kern/eingabestand.h"

namespace varnok {

// The settings file, beside the program.
std::string Einstellungspfad(const Eingabestand& z);
void Einstellungen_schreiben(const Eingabestand& z);

// Where all output goes from now on.
void setze_Ausgabeprojekt(Eingabestand& z, const std::string& Pfad);

}  // namespace varnok
