#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/satz.h"
#include "records/simulation.h"
#include "records/zwischenstand.h"
#include "session/eingabe/feldeingabe.h"
#include "session/ergebnis/laufsteuerung.h"
#include "session/saetze/satzbefehle.h"
#include "session/saetze/satzwaechter.h"

namespace varnok {

// The records behind the selectors: loading, choosing and saving.
class Satzverwaltung {
public:
    Satzverwaltung(Eingabestand& z, Laufsteuerung& Laeufe, Feldeingabe& Felder, Diagrammsteuerung& Diagramme)
        : z_(z), Laeufe_(Laeufe), Felder_(Felder), Diagramme_(Diagramme) {}

    // Reads the entries of all four selectors from the project folder.
    void fuelle_Listen();

    // Reads summary file and records for the start of the program. Throws Laufzeitfehler where the summary file cannot be used.
    void lade_Start(const std::string& Simulation);

    // The user chose an entry.
    void waehle_Simulation(int Position);
    void waehle_Satz(Satzart Art, int Position);

    // Files behind a selector; see `Satzbefehle`.
    void lege_an(Satzart Art);
    void kopiere(Satzart Art);
    void loesche(Satzart Art);
    // False if the user did not want to replace a file.
    bool benenne_um(Satzart Art, const std::string& Text, bool mit_Frage);

    // Tells in the status line which simulations of the list still name a record that was renamed.
    void nenne_Simulationen_mit(Satzart Art, const std::string& Name, const Satzlisten& Listen);

    // Reads what the selectors name and was not read, after a deletion: a simulation is loaded. True if there was something.
    bool lies_nach();
    // The files of these records are others now: reads them, and the lists, anew.
    void lies_neu(const std::vector<Satzart>& Arten);
    // The button "Refresh": the same on the user's wish, else a run.
    void aktualisiere();
    // Reads the scenario alone, if the selector names one that was not read. A run follows once all three are there.
    void lies_Szenario_nach();

    // Summary file and all three records. False if it was refused or put off; the message has been shown.
    bool speichere();
    // The same for the summary file and these records.
    bool speichere_Arten(std::vector<Satzart> Arten);
    // At the end of the program: the summary file of the simulation shown. One that was not read only gets the present time; one
    // that the user does not want replaced stays. False if he puts the end off.
    bool schreibe_Zusammenfassungsdatei();
    // Makes the start simulation anew, says so, and ends the program. What it replaces and what no file holds is in `backup`
    // before.
    void lade_Voreinstellungen();
    // "Data file missing": Yes restores the defaults, both answers end the program. Esc is No at the start, later the program
    // goes on.
    void beende_oder_stelle_her(const std::string& Text, bool beim_Start);
    // The same as `lade_Start`, and over it what a start before had left unsaved. True if all of that could be used.
    bool lade_Zwischenstand(const Zwischenstand& Stand);
    // Values of a record that no file holds, and why they cannot be written where that is so.
    Sicherungsgut Ungesichertes(Satzart Art) const { return Waechter_.Ungesichertes({Art}); }
    // Values that no file holds go into `backup`.
    void sichere_Ungesichertes(Sicherungsgut dazu = {});
    // Asks for each changed record whether to save; gives those with a Yes, nothing for "not now". Nothing is done yet.
    std::optional<std::vector<Satzart>> frage_nach_Sicherung() const;
    bool pruefe_Auswahl(const std::vector<Knopf>& Knoepfe);

    // Reads a record into parameters and fields; no run. Of one that is missing or cannot be used nothing enters: its place is
    // not read, with the reason for the cover, and the result is false.
    bool lies_Satz(Satzart Art, const std::string& Name);

    bool darf_loeschen(Satzart Art) const { return z_.Listen[Art].size() > 1 && darf_kopieren(Art); }
    bool darf_kopieren(Satzart Art) const { return z_.Auswahl(Art) >= 0; }

private:
    void nenne_Unwaehlbare();
    bool lies_auf_Wunsch_nach();
    bool lies_Stueck(const Sicherungsstueck& Stueck);
    void folge_dem_Satz(Satzart Art, TWA_Listenart alte_TWA_Zeiten);
    void nach_Wirkstoff(TWA_Listenart alte_TWA_Zeiten);
    void uebernimm(const std::string& Simulation, const Simulationssatz& Satz);
    void erklaere_ungelesen(Satzart Art, const std::string& Grund);
    void erklaere_fehlend(Satzart Art);
    bool wird_gefragt(Satzart Art) const;
    Knopf frage_Sicherung(Satzart Art, const std::string& Ziel) const;
    std::string Sicherungszeile(const std::vector<Satzart>& Arten) const;
    void sichere_vor_dem_Lesen(Satzart Art);
    bool lies_fehlende_Saetze();
    void schliesse_Laden_ab();
    void merke_Kombination();

    Eingabestand& z_;
    Laufsteuerung& Laeufe_;
    Feldeingabe& Felder_;
    Diagrammsteuerung& Diagramme_;
    Satzbefehle Befehle_{z_, z_};
    Satzwaechter Waechter_{z_};
    bool beim_Start_ = false;
};

}  // namespace varnok
