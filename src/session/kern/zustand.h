#pragma once

// What the program behind the screen knows, shared by the parts of `Sitzung`.

#include <algorithm>
#include <array>
#include <functional>
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
#include "session/ergebnis/ergebnisstand.h"
#include "session/kern/satzplatz.h"

namespace varnok {

// Where a session stands in the world: given once, at the start.
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

// A cell of the table of applications, row and column counted from 0.
struct Zelle {
    int Zeile = 0;
    int Spalte = 0;

    friend bool operator==(const Zelle&, const Zelle&) = default;
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

struct Zustand : Satzlisten {
    Umgebung Welt;
    Einstellungen Einstellung;
    std::vector<Bemerkung> zu_den_Einstellungen;  // as their file was read at the start
    std::string Projektpfad;
    std::optional<Projektordner> Ordner;          // of everything behind the selectors, until the program ends
    std::shared_ptr<Projektsperre> Sperre;        // on that folder, for the time of the session
    std::optional<Projektordner> Ausgabeprojekt;  // the present project path, for all output
    bool nur_lesbar = false;                      // nothing can be written to the folder behind the selectors
    bool ohne_Nebenausgaben = false;              // the same for the present project path: nothing goes there unasked

    Eingabe Vorgabe;                              // all inputs on the screen
    Ansicht Sicht;                                // what the user has chosen to look at
    std::vector<Applikationszeile> Zeilenvorrat;  // of the table, cut off by a smaller number, while the record stands
    std::array<Satzplatz, 4> Saetze;
    Ergebnisstand Gerechnetes;
    Klimabytes Klima;  // looked at before each command

    bool Verlauf_beginnt = false;  // a record was read or is no more the same file: there is no way back behind it

    bool Gestartet = false;
    bool Zusammenfassung_aktiv = false;
    bool Feld_abgelehnt = false;  // the text of the field in work was refused and is neither accepted nor taken back yet
    bool Meldung_steht = false;   // a fault is being told: nothing is shown meanwhile

    bool Simulation_markiert = false;  // the combination on the screen differs from the saved one
    bool Beschreibung_offen = false;
    bool Szenarioeditor_faellig = false;  // the scenario names a climate file that cannot be opened
    std::string Ergebnisdatei;            // name of the report file written last
    std::optional<Zelle> Tabellenfehler;  // the cell that a message spoke of, to be selected
    std::string Statuszeile;
    std::string Statuszeit;              // hh:mm of the line
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
    const Ergebnisse& Werte() const { return Gerechnetes.Werte(); }
    // What tables, diagrams and reports show.
    Darstellung zeige() const { return {Werte(), Sicht, Vorgabe}; }

    // ---- what follows from all that; nobody keeps it ----

    // The studies that the view on display shows: the selected one, in the summary view all.
    std::vector<int> gezeigte_Studien() const;
    bool gueltig(int i_studie) const { return Gerechnetes.gueltig(i_studie, Vorgabe, Klima); }
    bool alles_Gezeigte_gueltig() const;
    // Whether each selector names a record whose values are on the screen.
    bool Saetze_vollstaendig() const;
    // The hint picture: what is on display is not of the present input, or nothing valid is.
    bool Hinweis() const { return Gestartet && !alles_Gezeigte_gueltig(); }
    // The word on the cover, empty while the results may be seen.
    std::string Abdeckungswort() const;
    bool abgedeckt() const { return !Abdeckungswort().empty(); }
    // Whether runs are allowed and can do something.
    bool Neu_berechnen() const;
    // The told marks, by kind.
    std::array<bool, 4> Marken() const {
        return {Saetze[0].Geaendert(), Saetze[1].Geaendert(), Saetze[2].Geaendert(), Saetze[3].Geaendert()};
    }
    // The selectors name another combination of records than the summary file does.
    void merke_Kombination() {
        Saetze[Simulation].merke_Aenderung();
        Simulation_markiert = true;
    }
    // What a save of this kind writes. Throws Laufzeitfehler for a text or a value that no record can hold.
    std::string Speicherbytes(Satzart Art) const;
    // The same for comparing: where nothing can be written, the reason.
    std::string Speicherbild(Satzart Art) const;
    // Whether a save would now write something else than right after reading or saving. A place that was not read is different
    // only by what the user entered there.
    bool verschieden(Satzart Art) const;
};

// A message of the program with one button.
inline void melde(Zustand& z, const std::string& Titel, const std::string& Text) {
    z.Welt.Fragen->frage({Titel, Text, Symbol::Ausrufezeichen, {Knopf::OK}});
}

}  // namespace varnok
