#pragma once

#include "records/satz.h"
#include "records/simulation.h"
#include "screens/handlers/feldeingabe.h"
#include "screens/handlers/laufsteuerung.h"
#include "screens/handlers/satzbefehle.h"

namespace varnok {

// The records behind the selectors: loading, choosing and saving.
class Satzverwaltung {
public:
    Satzverwaltung(Zustand& z, Laufsteuerung& Laeufe, Feldeingabe& Felder, Diagrammsteuerung& Diagramme)
        : z_(z), Laeufe_(Laeufe), Felder_(Felder), Diagramme_(Diagramme), Befehle_(z, z) {}

    // Reads the entries of all four selectors from the project folder; the selections follow the names.
    void fuelle_Listen();

    // Reads the records of the summary file for the start of the program. False if the program ends.
    bool lade_Start(const std::string& Simulation);

    // The user chose an entry.
    void waehle_Simulation(int Position);
    void waehle_Satz(Satzart Art, int Position);

    // Files behind a selector; see `Satzbefehle`.
    void lege_an(Satzart Art);
    void kopiere(Satzart Art);
    void loesche(Satzart Art);
    void benenne_um(Satzart Art, const std::string& Text, bool mit_Frage);

    // Summary file and all three records. False if it was refused; the message has been shown.
    bool speichere();
    // Writes the summary file of the simulation shown.
    void schreibe_Zusammenfassungsdatei();
    // Asks for each changed record whether to save; Yes saves all. False if a save was refused.
    bool frage_nach_Sicherung();
    bool pruefe_Auswahl(const std::vector<Knopf>& Knoepfe);

    // Reads a record into parameters and fields; no run. False if it is missing and the user's answer ends the program.
    bool lies_Satz(Satzart Art, const std::string& Name);

private:
    void nach_Wirkstoff(int alte_TWA_Zeiten);
    bool frage_Sicherung(std::size_t Art);
    void waehle_Namen(const Simulationssatz& Satz);
    bool lies_fehlende_Saetze();
    void schliesse_Laden_ab();
    void merke_Kombination();

    Zustand& z_;
    Laufsteuerung& Laeufe_;
    Feldeingabe& Felder_;
    Diagrammsteuerung& Diagramme_;
    Satzbefehle Befehle_;
};

}  // namespace varnok
