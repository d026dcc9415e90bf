#pragma once

#include <string>

namespace varnok {

// Folders that a project is looked for in. All texts are UTF-8.
struct Projektorte {
    std::string aktueller_Ordner;
    std::string Benutzerdaten;       // of this program alone; a project there is used, none is made
    std::string Dokumente;           // of the user
    std::string installierte_Daten;  // what a new project is filled from
};

// What the program opens.
struct Projektwahl {
    std::string Ordner;      // of the settings file and, until the user chooses another, of the project
    std::string Simulation;  // in place of the newest; empty without one
    std::string Einwand;     // why the argument cannot be opened; empty if it can
};

// With an argument its project: a folder that holds a settings file or a folder `input` in any spelling, or a summary file
// (*.vnk) of a folder `input`. Without one the current folder if it is a project, else the folder VARNOK of the user's documents,
// which is made, and filled from the installed data while it holds no simulation.
Projektwahl waehle_Projekt(const std::string& Argument, const Projektorte& Orte);

// The data that were installed with a program: beside the folder of its file, wherever that was installed or unpacked.
std::string installierte_Daten(const std::string& Programmdatei);

}  // namespace varnok
