#pragma once

#include "session/kern/zustand.h"
#include "session/saetze/satzverwaltung.h"

namespace varnok {

// The settings file, beside the program.
std::string Einstellungspfad(const Zustand& z);
void Einstellungen_schreiben(const Zustand& z);

// Makes the start simulation anew, says so, and ends the program. What it replaces and what no file holds is in `backup` before.
void Voreinstellungen_laden(Zustand& z, Satzverwaltung& Saetze);

// "Data file missing": Yes restores the defaults, both answers end the program. Esc is No at the start, later the program goes
// on.
void beende_oder_stelle_her(Zustand& z, Satzverwaltung& Saetze, const std::string& Text, bool beim_Start);

// The button `Ende`: offers to save, writes summary file and settings; what is not saved is in `backup`. Files that cannot be
// written are told. False if the program goes on.
bool Ende(Zustand& z, Satzverwaltung& Saetze);

// The close box: offers to save and writes nothing else but `backup`. False if the program goes on.
bool schliesse(const Zustand& z, Satzverwaltung& Saetze);

}  // namespace varnok
