#pragma once

// Where the session stands: the world around it, the project, the line at the foot of the window. The first of three layers, each
// of which knows the one before: `Schauplatz`, `Eingabestand`, `Zustand`. A part takes the layer that it needs.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "base/schnittstellen.h"
#include "extras/aktualisierung.h"
#include "records/einstellungen.h"
#include "records/projektordner.h"
#include "records/projektsperre.h"
#include "session/kern/eigen.h"
#include "session/kern/meldezeile.h"

namespace varnok {

class Programmablauf;

// Given once, at the start.
struct Umgebung {
    Rueckfrage* Fragen = nullptr;
    std::string Programmpfad;        // the folder that was current when the program started
    std::string installierte_Daten;  // second source of the templates, may be empty
    char Dezimalzeichen = '.';       // of the region, for records and fields
    const Uhr* Zeit = nullptr;       // the machine's without one
    Aktualisierungswelt Update = {};
    // A call that named its project: a project path among the settings does not lead away from it.
    bool Projekt_genannt = false;
    std::string erste_Simulation = {};  // to begin with in place of the newest
    // Starts the program once more, on a project folder or a summary file.
    std::function<bool(const std::string&)> weiteres_Fenster = {};
    std::string zuletzt_Datei = {};  // keeps what the user opened last; without a name nothing is kept
};

struct Schauplatz {
    Umgebung Welt;
    Einstellungen Einstellung;
    std::vector<Bemerkung> zu_den_Einstellungen;  // as their file was read at the start
    std::string Projektpfad;
    std::optional<Projektordner> Ordner;          // of everything behind the selectors, until the program ends
    std::shared_ptr<Projektsperre> Sperre;        // on that folder, for the time of the session
    std::optional<Projektordner> Ausgabeprojekt;  // the present project path, for all output
    bool nur_lesbar = false;                      // nothing can be written to the folder behind the selectors
    bool ohne_Nebenausgaben = false;              // the same for the present project path: nothing goes there unasked

    Meldezeile Statuszeile;
    Eigen<Programmablauf> Gestartet;  // the start page was left: the main screen is in use

    const Uhr& Zeit() const {
        static const Systemuhr Maschine;
        return Welt.Zeit ? *Welt.Zeit : Maschine;
    }

    // The program ends as soon as the action in work is over.
    bool beendet() const { return beendet_; }
    void beende() { beendet_ = true; }

private:
    bool beendet_ = false;
};

// A message of the program with one button.
inline void melde(Schauplatz& s, const std::string& Titel, const std::string& Text) {
    s.Welt.Fragen->frage({Titel, Text, Symbol::Ausrufezeichen, {Knopf::OK}});
}

// The message of a fault.
void melde_Fehler(Schauplatz& s, const std::string& Text);

}  // namespace varnok
