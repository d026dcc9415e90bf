#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "session/saetze/satzbefehle.h"
#include "session/saetze/satzverwaltung.h"
#include "session/saetze/satzwaechter.h"

namespace varnok {

// The simulation organiser: picks a simulation and its three records on lists of its own and hands them to the main screen
// when it is left with "Done". Files are copied, deleted and renamed at once. An entry of the main screen whose file is gone or
// has another name follows at once, too, so that nothing there stands under a name that means another file.
class Organiser {
public:
    Organiser(Eingabestand& z, Satzverwaltung& Saetze) : z_(z), Saetze_(Saetze), Befehle_(z, Listen_) {}

    // Fills the lists from the project folder and shows what the main screen shows: simulation, records, description. Without a
    // simulation there, the last one of the list with the records of its file; one that cannot be read throws.
    void oeffne();

    const Satzlisten& Listen() const { return Listen_; }
    const std::string& Projektname() const { return Projektname_; }
    // What the main screen shows meanwhile: of a simulation chosen here that one's, which is no input yet.
    const std::string& gezeigte_Beschreibung() const {
        return fremde_Beschreibung_ ? *fremde_Beschreibung_ : z_.Vorgabe.Beschreibung;
    }
    bool darf_kopieren(Satzart Art) const { return Listen_.Auswahl(Art) >= 0; }
    bool darf_loeschen(Satzart Art) const { return darf_kopieren(Art) && Listen_.Listen[Art].size() > 1; }
    // Empty where the scenario editor can be opened, else why not: it shows the scenario that is loaded and no other.
    std::string Einwand_gegen_Bearbeiten() const;

    // The user chose an entry. A simulation is read; of a record the name alone is taken.
    void waehle(Satzart Art, int Position);
    void aendere_Projektname(const std::string& Text);

    // See `Satzbefehle`. What copying and deleting selects counts as chosen by the user.
    void kopiere(Satzart Art);
    void loesche(Satzart Art);
    // False if the user did not want to replace a file.
    bool benenne_um(Satzart Art, const std::string& Text, bool mit_Frage);

    // Around the scenario editor, which works on the main screen.
    void beginne_Bearbeiten();
    void beende_Bearbeiten();

    // "Done". False if the dialog stays: the message has been shown, and neither files nor lists have changed.
    bool uebernimm();
    // Close box and Esc: nothing is handed over or written.
    void verwirf();
    // Once the dialog has closed: reads the records picked and runs, if that is due.
    void schliesse_ab();

private:
    std::string Szenariowerte() const;
    void lies_Simulation_in_Maske(int Position);
    void waehle_Simulation(int Position);
    void waehle_mit_Inhalt(Satzart Art);
    bool ist_zu_lesen(Satzart Art) const;
    std::vector<Satzart> zu_lesende() const;
    bool ist_vollstaendig() const;
    void pruefe_Dateien();
    bool uebergib();
    void gib_Listen_weiter();
    void ziehe_Hauptformular_nach(Satzart Art, const std::string& alt = {}, const std::string& neu = {});
    void entwerte_im_Hauptformular(Satzart Art, const char* Grund);

    Eingabestand& z_;
    Satzverwaltung& Saetze_;
    Satzlisten Listen_;
    Satzbefehle Befehle_;
    Satzwaechter Waechter_{z_};
    std::string Projektname_;
    std::string alter_Projektname_;                   // as the dialog showed it first
    std::optional<std::string> fremde_Beschreibung_;  // of a simulation chosen here, for the main screen to show
    std::string gelesen_;                             // the summary file as the dialog read it
    std::array<bool, 4> gewaehlt_{};                  // what the user chose is read, also under the same name
    bool umbenannt_ = false;                          // the summary file may name a record that is called otherwise now
    bool Szenario_bearbeitet_ = false;
    std::string Szenario_vorher_;  // the values on the screen as a record, before the editor
    bool Lauf_ = false;            // `schliesse_ab` reads and runs
};

}  // namespace varnok
