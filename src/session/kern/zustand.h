#pragma once

// What the program behind the screen knows, shared by the parts of `Sitzung`.

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "exposure/darstellung.h"
#include "extras/aktualisierung.h"
#include "records/einstellungen.h"
#include "records/klimadatei.h"
#include "records/projektordner.h"
#include "records/projektsperre.h"

namespace varnok {

// Where a session stands in the world: given once, at the start.
struct Umgebung {
    Rueckfrage* Fragen = nullptr;
    std::string Programmpfad;        // the folder that was current when the program started
    std::string installierte_Daten;  // second source of the templates, may be empty
    char Dezimalzeichen = '.';       // of the region, for records and fields
    const Uhr* Zeit = nullptr;       // the machine's without one
    Aktualisierungswelt Update = {};
};

// A cell of the table of applications, row and column counted from 0.
struct Zelle {
    int Zeile = 0;
    int Spalte = 0;
};

// The selectors: simulation, compound, application pattern, scenario. What is selected is a name, and this is the one place
// where it is kept; a record whose file is missing keeps it.
struct Satzlisten {
    std::array<std::vector<std::string>, 4> Listen;
    std::array<std::string, 4> Namen;  // empty without a selection

    // Place of the selected name in the list, -1 where the list does not have it.
    int Auswahl(std::size_t Art) const {
        const auto Treffer = std::find(Listen[Art].begin(), Listen[Art].end(), Namen[Art]);
        return Treffer == Listen[Art].end() ? -1 : static_cast<int>(Treffer - Listen[Art].begin());
    }
    // The entry selected, empty without one.
    std::string gewaehlt(std::size_t Art) const { return Auswahl(Art) < 0 ? std::string() : Namen[Art]; }
    // Selects the entry at a place of the list; none for -1.
    void waehle_Platz(std::size_t Art, int Position) {
        Namen[Art] = Position < 0 ? std::string() : Listen[Art].at(static_cast<std::size_t>(Position));
    }
};

// The file that the values on the screen come from, as this program last read or wrote it. Not what is selected: after a
// deletion or a choice the selector names the next record while the values are still those of this one.
struct Dateistand {
    std::string Name;
    std::string Bytes;
};

struct Zustand : Satzlisten {
    Umgebung Welt;
    Einstellungen Einstellung;
    std::string Projektpfad;
    std::optional<Projektordner> Ordner;          // of everything behind the selectors, until the program ends
    std::shared_ptr<Projektsperre> Sperre;        // on that folder, for the time of the session
    std::optional<Projektordner> Ausgabeprojekt;  // the present project path, for all output

    Eingabe Vorgabe;   // all inputs on the screen
    Ansicht Sicht;     // what the user has chosen to look at
    Ergebnisse Werte;  // of the studies, each with the input that it comes from

    // A record that the selector names but that could not be read or was not read yet.
    std::array<bool, 4> nicht_gelesen{};
    std::array<Dateistand, 4> Dateistaende;

    bool Gestartet = false;
    bool Neu_berechnen = false;  // the input is valid and runs are allowed
    bool Zusammenfassung_aktiv = false;
    std::array<bool, 4> Geaendert{};
    std::array<bool, max_Studien> gueltig{};  // the study's results are of the present input

    bool veraltet = false;  // something entered is not in the results
    bool Hinweis = false;   // the hint picture on `Aktualisieren`
    bool abgedeckt = true;  // the results must not be seen
    std::string Abdeckungswort;
    bool Simulation_markiert = false;  // the combination on the screen differs from the saved one
    bool Beschreibung_offen = false;
    bool Szenarioeditor_faellig = false;  // the scenario names a climate file that cannot be opened
    std::string Ergebnisdatei;            // name of the report file written last
    std::optional<Zelle> Tabellenfehler;  // the cell that a message spoke of, to be selected
    std::string Statuszeile;
    int Zeichnung = 0;                   // counts the redraws of the results
    bool Aktualisierungsfehler = false;  // the last check for a newer version received no usable answer
    bool Aktualisierung_laeuft = false;
    bool beendet = false;  // the program ends as soon as the action in work is over

    Eingabe& Felder() { return Vorgabe; }
    const Eingabe& Felder() const { return Vorgabe; }
    Laufparameter& Parameter() { return Vorgabe.Parameter; }
    const Laufparameter& Parameter() const { return Vorgabe.Parameter; }
    int i_studie() const { return Sicht.Studie_Index; }
    int Studienzahl() const { return Vorgabe.Studienzahl(); }
    // What tables, diagrams and reports show.
    Darstellung zeige() const { return {Werte, Sicht, Vorgabe}; }
};

// A message of the program with one button.
inline void melde(Zustand& z, const std::string& Titel, const std::string& Text) {
    z.Welt.Fragen->frage({Titel, Text, Symbol::Ausrufezeichen, {Knopf::OK}});
}

inline void decke_ab(Zustand& z, const std::string& Wort) {
    z.abgedeckt = true;
    z.Abdeckungswort = Wort;
}

}  // namespace varnok
