#include "session/saetze/organiser.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/simulation.h"
#include "session/kern/texte.h"

namespace varnok {
namespace {

bool enthaelt(const std::vector<std::string>& Liste, const std::string& Name) {
    return std::find(Liste.begin(), Liste.end(), Name) != Liste.end();
}

// Empty where the file cannot be read.
std::string Dateibytes(const Eingabestand& z, const std::string& Name) {
    const auto Pfad = z.Ordner->finde(Name, Endungen[Simulation]);
    return Pfad ? lies_Datei_falls_moeglich(*Pfad).value_or("") : "";
}

// What a save of just these bytes would write; themselves where they are no summary file.
std::string Speicherbild_der_Datei(const std::string& Bytes) {
    try {
        return Simulation_als_Bytes(zerlege_Simulation(Bytes, {}));
    } catch (const Laufzeitfehler&) {
        return Bytes;
    }
}

// What "Done" changes on the main screen until the summary file is written.
class Merkstand {
public:
    explicit Merkstand(const Eingabestand& z) : Listen_(z), Saetze_(z.Saetze), Beschreibung_(z.Vorgabe.Beschreibung) {}

    void stelle_her(Eingabestand& z) const {
        static_cast<Satzlisten&>(z) = Listen_;
        z.Saetze = Saetze_;
        z.Vorgabe.Beschreibung = Beschreibung_;
    }

private:
    Satzlisten Listen_;
    std::array<Satzplatz, 4> Saetze_;
    std::string Beschreibung_;
};

}  // namespace

void Organiser::oeffne() {
    gewaehlt_.fill(false);
    umbenannt_ = Szenario_bearbeitet_ = Lauf_ = false;
    Projektname_ = alter_Projektname_ = z_.Vorgabe.Beschreibung;
    fremde_Beschreibung_.reset();
    Listen_.Namen = z_.Namen;
    for (const Satzart Art : alle_Arten) Befehle_.lies_Liste(Art);
    // The description on the screen may not be saved yet, but it belongs to the simulation on the screen alone.
    const bool dieselbe = Listen_.Auswahl(Simulation) >= 0 && z_.Saetze[Simulation].gelesen();
    if (Listen_.Auswahl(Simulation) < 0)
        Listen_.waehle_Platz(Simulation, static_cast<int>(Listen_.Listen[Simulation].size()) - 1);
    gelesen_ = Dateibytes(z_, Listen_.gewaehlt(Simulation));
    // What the screen shows counts, not what the summary file of its simulation says.
    if (Listen_.Auswahl(Simulation) < 0 || dieselbe) return;
    lies_Simulation_in_Maske(Listen_.Auswahl(Simulation));
    alter_Projektname_ = Projektname_;
}

// Selects a simulation with the records that its file names. A file that cannot be read throws and changes nothing.
void Organiser::lies_Simulation_in_Maske(int Position) {
    const std::string Name = Listen_.Listen[Simulation].at(static_cast<std::size_t>(Position));
    const Simulationssatz Satz = lies_Simulation(*z_.Ordner, Name);
    gelesen_ = Dateibytes(z_, Name);
    Listen_.Namen = Satz.Dateinamen;
    Listen_.Namen[Simulation] = Name;
    Projektname_ = Satz.Beschreibung;
}

void Organiser::waehle_Simulation(int Position) {
    lies_Simulation_in_Maske(Position);
    gewaehlt_.fill(true);
    fremde_Beschreibung_ = Projektname_;
}

void Organiser::waehle(Satzart Art, int Position) {
    if (Art == Simulation) return waehle_Simulation(Position);
    Listen_.waehle_Platz(Art, Position);
    gewaehlt_[Art] = true;
}

void Organiser::aendere_Projektname(const std::string& Text) {
    Projektname_ = Text;
    std::replace_if(
        Projektname_.begin(), Projektname_.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
}

// What a command has selected acts as if the user had chosen it.
void Organiser::waehle_mit_Inhalt(Satzart Art) {
    gewaehlt_[Art] = true;
    if (Art != Simulation || Listen_.Auswahl(Simulation) < 0) return;
    // Nothing of the simulation selected before may be written over this one if it cannot be read.
    Projektname_.clear();
    gelesen_ = Dateibytes(z_, Listen_.gewaehlt(Simulation));
    for (const Satzart t : Eingabearten) Listen_.Namen[t].clear();
    waehle_Simulation(Listen_.Auswahl(Simulation));
}

void Organiser::kopiere(Satzart Art) {
    const std::vector<std::string> vorher = Listen_.Listen[Art];
    if (!Befehle_.kopiere(Art)) return;
    z_.Statuszeile.vergiss_Frueheres();
    // The copy may have replaced the file of what the main screen shows.
    const std::string neu = Listen_.gewaehlt(Art);
    if (enthaelt(vorher, neu) && z_.gewaehlt(Art) == neu) entwerte_im_Hauptformular(Art, Texte::Satz_ersetzt);
    ziehe_Hauptformular_nach(Art);
    waehle_mit_Inhalt(Art);
}

void Organiser::loesche(Satzart Art) {
    if (!Befehle_.loesche(Art)) return;
    z_.Statuszeile.vergiss_Frueheres();
    ziehe_Hauptformular_nach(Art);
    waehle_mit_Inhalt(Art);
}

bool Organiser::benenne_um(Satzart Art, const std::string& Text, bool mit_Frage) {
    const std::string alt = Listen_.gewaehlt(Art);
    const Umbenennung Ausgang = Befehle_.benenne_um(Art, Text, mit_Frage);
    if (Ausgang != Umbenennung::erfolgt) return Ausgang == Umbenennung::unveraendert;
    z_.Statuszeile.vergiss_Frueheres();
    umbenannt_ = true;
    const std::string neu = Listen_.gewaehlt(Art);
    // A file of that name was replaced if the main screen shows what stood in it.
    if (z_.gewaehlt(Art) == neu) entwerte_im_Hauptformular(Art, Texte::Satz_ersetzt);
    ziehe_Hauptformular_nach(Art, alt, neu);
    Saetze_.nenne_Simulationen_mit(Art, alt, Listen_);
    return true;
}

// The entries of the main screen whose files are still there, under the names that they have now; what was added here stays
// out until "Done".
void Organiser::ziehe_Hauptformular_nach(Satzart Art, const std::string& alt, const std::string& neu) {
    const std::string gezeigt = z_.gewaehlt(Art);
    const bool umbenannt = !neu.empty() && gezeigt == alt;
    if (umbenannt) z_.Namen[Art] = neu;
    const std::vector<std::string> vorher = std::exchange(z_.Listen[Art], {});
    for (const std::string& Name : Listen_.Listen[Art]) {
        if (enthaelt(vorher, Name) || (Name == neu && enthaelt(vorher, alt))) z_.Listen[Art].push_back(Name);
    }
    // Gone, or another file under the name of one that was missing.
    if (gezeigt.empty() != (z_.Auswahl(Art) < 0))
        entwerte_im_Hauptformular(Art, gezeigt.empty() ? Texte::Satz_ersetzt : Texte::Satz_geloescht);
    if (!umbenannt) return;
    z_.Saetze[Art].benenne(neu);
    if (z_.Gestartet) z_.Saetze[Simulation].merke_Aenderung();
}

// The file of what the main screen shows is gone: a save from there must not bring it back under a name that is taken by now.
void Organiser::entwerte_im_Hauptformular(Satzart Art, const char* Grund) {
    Waechter_.sichere_Ungesichertes({Art});
    z_.Saetze[Art].verwirf(Grund);
}

std::string Organiser::Einwand_gegen_Bearbeiten() const {
    const std::string Name = Listen_.gewaehlt(Szenario);
    if (Name.empty()) return "No scenario is selected.";
    if (Name == z_.gewaehlt(Szenario) && z_.Saetze[Szenario].gelesen()) return {};
    return "The scenario \"" + Name + "\" is not loaded: leave with \"Done\", then it can be edited on the main screen.";
}

std::string Organiser::Szenariowerte() const { return Satz_als_Bytes(Szenario, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen); }

void Organiser::beginne_Bearbeiten() { Szenario_vorher_ = Szenariowerte(); }

// The editor's "Done" may have changed values, the name that they stand under, or nothing.
void Organiser::beende_Bearbeiten() {
    const std::string Name = z_.gewaehlt(Szenario);
    const bool anderer_Name = Name != Listen_.gewaehlt(Szenario);
    Szenario_bearbeitet_ = Szenario_bearbeitet_ || anderer_Name || Szenariowerte() != Szenario_vorher_;
    umbenannt_ = umbenannt_ || anderer_Name;
    Listen_.Namen[Szenario] = Name;
    Befehle_.lies_Liste(Szenario);
}

// Other names than those on the screen, over the values there, would be wrong in all that follows; what was chosen here is read
// as it is when chosen there.
bool Organiser::ist_zu_lesen(Satzart Art) const {
    return gewaehlt_[Art] || Listen_.gewaehlt(Art) != z_.gewaehlt(Art) || !z_.Saetze[Art].gelesen();
}

std::vector<Satzart> Organiser::zu_lesende() const {
    std::vector<Satzart> Arten;
    for (const Satzart Art : alle_Arten) {
        // The editor's values belong to the scenario that stays.
        const bool steht = Art == Szenario && Szenario_bearbeitet_ && z_.Saetze[Szenario].gelesen() &&
                           Listen_.gewaehlt(Szenario) == z_.gewaehlt(Szenario);
        if (ist_zu_lesen(Art) && !steht) Arten.push_back(Art);
    }
    return Arten;
}

bool Organiser::ist_vollstaendig() const {
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario, Simulation}) {
        // A folder without any simulation must not hold the user here.
        if (Listen_.Auswahl(Art) >= 0 || (Art == Simulation && Listen_.Listen[Art].empty())) continue;
        const std::string Text = Art == Simulation ? Texte::Simulation_waehlen : Texte::Satz_waehlen[Art];
        z_.Welt.Fragen->frage({Texte::Satz_nicht_gewaehlt, Text, Symbol::Ausrufezeichen, {Knopf::OK, Knopf::Abbrechen}});
        return false;
    }
    return true;
}

// Another program may have taken a file away since the lists were filled.
void Organiser::pruefe_Dateien() {
    for (const Satzart Art : alle_Arten) {
        const std::string Name = Listen_.gewaehlt(Art);
        if (Name.empty() || z_.Ordner->finde(Name, Endungen[Art])) continue;
        Befehle_.lies_Liste(Art);
        ziehe_Hauptformular_nach(Art);
        throw Laufzeitfehler("File " + Name + Endungen[Art] + " is missing in the folder \"" + z_.Ordner->Eingabeordner() + "\"");
    }
}

bool Organiser::uebernimm() {
    if (!ist_vollstaendig()) return false;
    const bool Lauf = std::any_of(alle_Arten.begin(), alle_Arten.end(), [this](Satzart Art) { return ist_zu_lesen(Art); });
    const bool schreiben = Lauf || umbenannt_ || Projektname_ != alter_Projektname_;
    if (!schreiben) {
        gib_Listen_weiter();
        return true;
    }
    pruefe_Dateien();
    const std::vector<Satzart> Arten = zu_lesende();
    z_.Statuszeile.vergiss_Frueheres();
    Waechter_.sichere_Ungesichertes(Arten);
    if (!uebergib()) return false;
    z_.Saetze[Simulation].vergiss_Aenderung();
    Lauf_ = Lauf;
    if (!Lauf) return true;
    for (const Satzart Art : Arten) {
        if (Art != Simulation) z_.Saetze[Art].verlange();
    }
    return true;
}

void Organiser::gib_Listen_weiter() { static_cast<Satzlisten&>(z_) = Listen_; }

// Hands lists and description over and writes the summary file. Where that is refused or fails, the main screen has again what
// it had.
bool Organiser::uebergib() {
    const Merkstand vorher(z_);
    gib_Listen_weiter();
    z_.Vorgabe.Beschreibung = Projektname_;
    z_.Saetze[Simulation].kenne({z_.gewaehlt(Simulation), gelesen_}, Speicherbild_der_Datei(gelesen_));
    if (z_.Auswahl(Simulation) < 0) return true;  // the folder has no simulation
    if (z_.nur_lesbar) return true;               // what was put together here is looked at, and written nowhere
    bool geschrieben = false;
    try {
        geschrieben = Waechter_.schreibe({Simulation}) == Schreibausgang::geschrieben;
    } catch (...) {
        vorher.stelle_her(z_);
        throw;
    }
    if (!geschrieben) vorher.stelle_her(z_);
    return geschrieben;
}

void Organiser::verwirf() { fremde_Beschreibung_.reset(); }

void Organiser::schliesse_ab() {
    fremde_Beschreibung_.reset();
    if (!std::exchange(Lauf_, false)) return;
    Saetze_.lies_nach();
}

}  // namespace varnok
