#pragma once

// What the program behind the screen knows, shared by the parts of `Sitzung`.

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "extras/aktualisierung.h"
#include "records/einstellungen.h"
#include "records/klimadatei.h"
#include "records/projektordner.h"
#include "records/projektsperre.h"
#include "run/lauf.h"

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

// Entries and positions of the selectors: simulation, compound, application pattern, scenario.
struct Satzlisten {
    std::array<std::vector<std::string>, 4> Listen;
    std::array<int, 4> Auswahl = {-1, -1, -1, -1};

    // The entry selected, empty without one.
    std::string gewaehlt(std::size_t Art) const {
        return Auswahl[Art] < 0 ? std::string() : Listen[Art][static_cast<std::size_t>(Auswahl[Art])];
    }
    // Selects the entry of that name; none where the list does not have it.
    void waehle(std::size_t Art, const std::string& Name) {
        const auto Treffer = std::find(Listen[Art].begin(), Listen[Art].end(), Name);
        Auswahl[Art] = Treffer == Listen[Art].end() ? -1 : static_cast<int>(Treffer - Listen[Art].begin());
    }
};

// A file as this program last read or wrote it.
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

    Lauf Rechnung;

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

    Eingabe& Felder() { return Rechnung.Felder; }
    const Eingabe& Felder() const { return Rechnung.Felder; }
    Laufparameter& Parameter() { return Rechnung.Parameter; }
    const Laufparameter& Parameter() const { return Rechnung.Parameter; }
    int i_studie() const { return Rechnung.Felder.Studie_Index; }
    int Studienzahl() const { return static_cast<int>(Rechnung.Felder.Studie.size()); }
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
