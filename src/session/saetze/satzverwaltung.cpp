#include "session/saetze/satzverwaltung.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/laufzeitfehler.h"
#include "exposure/twa.h"
#include "records/dateien.h"
#include "session/kern/texte.h"
#include "session/programm/programmende.h"

namespace varnok {
namespace {

const std::vector<Satzart> alle_Arten = {Simulation, Wirkstoff, Applikation, Szenario};

}  // namespace

void Satzverwaltung::fuelle_Listen() {
    for (const Satzart Art : alle_Arten) Befehle_.lies_Liste(Art);
}

bool Satzverwaltung::lies_Satz(Satzart Art, const std::string& Satzname) {
    const int alte_TWA_Zeiten = z_.Parameter().TWA_Zeiten;
    const Lesebefund Befund = Satz_lesen(*z_.Ordner, Satzname, Art, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen);
    if (Befund.Ausgang == Leseausgang::fehlt) {
        beende_oder_stelle_her(z_, *this, "File " + Satzname + " is missing. Should the default settings be loaded ");
        return false;
    }
    if (Befund.Ausgang == Leseausgang::gelesen) {
        z_.Geaendert[Art] = false;
    } else {
        z_.Statuszeile = Satzname + Endungen[Art] + ", line " + std::to_string(Befund.Zeile) + ": " + Befund.Grund;
    }
    z_.nicht_gelesen[Art] = false;
    Waechter_.merke(Art, Satzname);
    Laeufe_.verwirf_alle();
    if (Art == Wirkstoff) nach_Wirkstoff(alte_TWA_Zeiten);
    if (Art == Applikation) Diagramme_.setze_Bereiche_nach_Ansicht();
    Diagramme_.bringe_nach_vorn(z_.Sicht.Substanz);
    return true;
}

void Satzverwaltung::nach_Wirkstoff(int alte_TWA_Zeiten) {
    if (z_.Parameter().TWA_Zeiten != alte_TWA_Zeiten) z_.Sicht.TWA_Laenge = TWA_Vorauswahl(z_.Parameter().TWA_Zeiten);
    if (z_.Studienzahl() <= 1) z_.Zusammenfassung_aktiv = false;
    // A compound that the scheme does not have cannot stay in view.
    if (z_.Sicht.Substanz >= Anzahl_Stoffe(z_.Felder().Berechnungsmodus)) z_.Sicht.Substanz = 0;
    Felder_.fuelle();
}

bool Satzverwaltung::lade_Start(const std::string& Simulation) {
    const Simulationssatz Satz = lies_Simulation(*z_.Ordner, Simulation);
    z_.Felder().Beschreibung = Satz.Beschreibung;
    z_.Namen = Satz.Dateinamen;
    z_.Namen[0] = Simulation;
    Waechter_.merke(varnok::Simulation, Simulation);
    for (const Satzart Art : {Wirkstoff, Szenario, Applikation}) {
        if (!lies_Satz(Art, Satz.Dateinamen[Art])) return false;
    }
    Diagramme_.setze_Startbereiche();
    z_.Geaendert.fill(false);
    z_.Neu_berechnen = true;
    return true;
}

void Satzverwaltung::waehle_Simulation(int Position) {
    const std::string Simulation = z_.Listen[0].at(static_cast<std::size_t>(Position));
    const std::string Fremdes = Waechter_.Fremdes(alle_Arten);
    decke_ab(z_, Texte::Eingabe_geaendert);
    if (!z_.Ordner->finde(Simulation, Endungen[0])) Befehle_.lies_Liste(varnok::Simulation);
    const Simulationssatz Satz = lies_Simulation(*z_.Ordner, Simulation);
    z_.Statuszeile.clear();
    sichere_Ungesichertes();
    stelle_voran(Fremdes);
    Waechter_.merke(varnok::Simulation, Simulation);
    z_.Felder().Beschreibung = Satz.Beschreibung;
    z_.Neu_berechnen = false;
    z_.Namen = Satz.Dateinamen;
    z_.Namen[0] = Simulation;
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario}) Befehle_.lies_Liste(Art);  // a record that went is not found
    z_.nicht_gelesen = {false, true, true, true};
    if (!z_.Gestartet) z_.nicht_gelesen.fill(false);
    if (!lies_fehlende_Saetze()) return;
    z_.Geaendert[0] = false;
    z_.Simulation_markiert = false;
    schliesse_Laden_ab();
}

// Reads the records that the selectors name and that were not read, up to the first selector without an entry.
bool Satzverwaltung::lies_fehlende_Saetze() {
    for (const Satzart Art : {Wirkstoff, Applikation, Szenario}) {
        if (z_.Auswahl(Art) < 0) {
            decke_ab(z_, Texte::Satz_fehlt);
            z_.Neu_berechnen = false;
            return false;
        }
        if (z_.nicht_gelesen[Art] && !lies_Satz(Art, z_.gewaehlt(Art))) return false;
    }
    return true;
}

void Satzverwaltung::schliesse_Laden_ab() {
    z_.Neu_berechnen = true;
    Laeufe_.berechne();
}

void Satzverwaltung::merke_Kombination() {
    if (!z_.Gestartet) return;
    z_.Geaendert[0] = true;
    z_.Simulation_markiert = true;
}

// False if a save was refused; the values on the screen then keep their record.
bool Satzverwaltung::verlasse_Satz(Satzart Art) {
    if (z_.Geaendert[Art] && frage_Sicherung(Art) == Sicherung::verweigert) return false;
    sichere_vor_dem_Lesen(Art);
    return true;
}

void Satzverwaltung::waehle_Satz(Satzart Art, int Position) {
    const std::string Fremdes = Waechter_.Fremdes({Art});
    const std::string vorher = z_.Namen[Art];
    const bool geaendert = z_.Geaendert[Simulation];
    const bool markiert = z_.Simulation_markiert;
    const auto kehre_zurueck = [&] {
        z_.Namen[Art] = vorher;
        z_.Geaendert[Simulation] = geaendert;
        z_.Simulation_markiert = markiert;
    };
    z_.Statuszeile.clear();
    // The selector shows the record chosen already, so Yes stores the values of the record left under the name of the one chosen.
    z_.waehle_Platz(Art, Position);
    merke_Kombination();
    try {
        if (!verlasse_Satz(Art)) return kehre_zurueck();
    } catch (...) {
        kehre_zurueck();
        throw;
    }
    stelle_voran(Fremdes);
    z_.Geaendert[Art] = false;
    z_.nicht_gelesen[Art] = true;
    if (!lies_fehlende_Saetze()) return;
    schliesse_Laden_ab();
}

void Satzverwaltung::lege_an(Satzart Art) {
    const std::string Fremdes = Waechter_.Fremdes({Art});
    Befehle_.Vorlage(Art);
    z_.Statuszeile.clear();
    sichere_vor_dem_Lesen(Art);
    Befehle_.lege_an(Art);
    stelle_voran(Fremdes);
    z_.Geaendert[Art] = false;
    merke_Kombination();
    z_.nicht_gelesen[Art] = true;
    if (!lies_fehlende_Saetze()) return;
    schliesse_Laden_ab();
}

void Satzverwaltung::kopiere(Satzart Art) {
    const std::string Fremdes = Waechter_.Fremdes({Art});
    z_.Statuszeile.clear();
    if (!Befehle_.kopiere(Art)) return;
    stelle_voran(Fremdes);
    // What the user knows of the copy is what was read of the original.
    Waechter_.merke_Namen(Art, z_.gewaehlt(Art));
    if (Art != Simulation) merke_Kombination();
}

void Satzverwaltung::loesche(Satzart Art) {
    const std::string Fremdes = Waechter_.Fremdes({Art});
    z_.Statuszeile.clear();
    if (!Befehle_.loesche(Art, Waechter_.Ungesichertes({Art}))) return;
    stelle_voran(Fremdes);
    z_.nicht_gelesen[Art] = true;
    z_.Geaendert[Art] = false;
    z_.Neu_berechnen = true;
    decke_ab(z_, Texte::Satz_geloescht);
}

bool Satzverwaltung::benenne_um(Satzart Art, const std::string& Text, bool mit_Frage) {
    const std::string alt = z_.gewaehlt(Art);
    const std::string Fremdes = Waechter_.Fremdes({Art});
    z_.Statuszeile.clear();
    const Umbenennung Ausgang = Befehle_.benenne_um(Art, Text, mit_Frage);
    if (Ausgang != Umbenennung::erfolgt) return Ausgang == Umbenennung::unveraendert;
    Waechter_.merke_Namen(Art, z_.gewaehlt(Art));
    merke_Kombination();
    nenne_Simulationen_mit(Art, alt, z_);
    stelle_voran(Fremdes);
    return true;
}

// Renaming a record leaves the summary files as they are.
void Satzverwaltung::nenne_Simulationen_mit(Satzart Art, const std::string& Name, const Satzlisten& Listen) {
    std::string Namen;
    for (const std::string& s : Listen.Listen[Simulation]) {
        if (Art == Simulation || s == Listen.gewaehlt(Simulation)) continue;  // the one on the screen is saved with the new name
        try {
            if (lies_Simulation(*z_.Ordner, s).Dateinamen[Art] == Name) Namen += (Namen.empty() ? "\"" : ", \"") + s + "\"";
        } catch (const Laufzeitfehler&) {
            continue;  // a summary file that cannot be read names nothing
        }
    }
    if (!Namen.empty()) stelle_voran("Simulations that still name \"" + Name + "\": " + Namen);
}

// The record of this kind, and those that were not read yet, are about to be read over what the screen shows. A simulation is
// read by loading it.
void Satzverwaltung::sichere_vor_dem_Lesen(Satzart Art) {
    std::vector<Satzart> Arten;
    for (const Satzart a : {Wirkstoff, Applikation, Szenario}) {
        if (a == Art || z_.nicht_gelesen[a]) Arten.push_back(a);
    }
    Waechter_.sichere_Ungesichertes(Arten);
}

void Satzverwaltung::stelle_voran(const std::string& Hinweis) {
    if (Hinweis.empty()) return;
    z_.Statuszeile = z_.Statuszeile.empty() ? Hinweis : Hinweis + " " + z_.Statuszeile;
}

bool Satzverwaltung::lies_nach() {
    if (z_.nicht_gelesen[Simulation] && z_.Auswahl(Simulation) >= 0) {
        waehle_Simulation(z_.Auswahl(Simulation));
        return true;
    }
    if (Laeufe_.Saetze_vollstaendig() || !lies_fehlende_Saetze()) return false;
    schliesse_Laden_ab();
    return true;
}

bool Satzverwaltung::aktualisiere() {
    if (z_.nicht_gelesen[Simulation] && z_.Auswahl(Simulation) >= 0) return lies_nach();
    const std::string Fremdes = Waechter_.Fremdes(alle_Arten);
    z_.Statuszeile.clear();
    if (!Laeufe_.Saetze_vollstaendig()) sichere_vor_dem_Lesen(Simulation);
    stelle_voran(Fremdes);
    if (!lies_nach()) return false;
    merke_Kombination();
    return true;
}

void Satzverwaltung::lies_Szenario_nach() {
    if (!z_.nicht_gelesen[Szenario] || z_.Auswahl(Szenario) < 0 || !lies_Satz(Szenario, z_.gewaehlt(Szenario))) return;
    if (Laeufe_.Saetze_vollstaendig()) schliesse_Laden_ab();
}

bool Satzverwaltung::pruefe_Auswahl(const std::vector<Knopf>& Knoepfe) {
    for (std::size_t Art = 1; Art <= 3; ++Art) {
        if (z_.Auswahl(Art) >= 0) continue;
        z_.Welt.Fragen->frage({Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Art], Symbol::Ausrufezeichen, Knoepfe});
        return false;
    }
    return true;
}

void Satzverwaltung::schreibe_Zusammenfassungsdatei() {
    if (!z_.nicht_gelesen[Simulation]) {
        if (!Waechter_.schreibe({Simulation})) Waechter_.sichere_Ungesichertes({Simulation});
        return;
    }
    Waechter_.sichere_Ungesichertes({Simulation});
    if (const auto Pfad = z_.Ordner->finde(z_.gewaehlt(Simulation), Endungen[Simulation])) {
        kopiere_Datei(*Pfad, *Pfad);
    }
}

void Satzverwaltung::sichere_Ungesichertes(std::vector<Sicherungsstueck> dazu) {
    Waechter_.sichere_Ungesichertes(alle_Arten, std::move(dazu));
}

bool Satzverwaltung::speichere() {
    if (!pruefe_Auswahl({Knopf::OK, Knopf::Abbrechen})) return false;
    const std::string Fremdes = Waechter_.Fremdes(alle_Arten);
    z_.Statuszeile.clear();
    if (!Waechter_.schreibe(alle_Arten)) return false;
    if (z_.Auswahl(Simulation) < 0) Befehle_.lies_Liste(Simulation);
    for (std::size_t Art = 1; Art <= 3; ++Art) z_.Geaendert[Art] = false;
    z_.Simulation_markiert = false;
    for (const Satzart Art : alle_Arten) {
        if (z_.nicht_gelesen[Art]) stelle_voran("\"" + z_.gewaehlt(Art) + Endungen[Art] + "\" was not read and stays.");
    }
    stelle_voran(Fremdes);
    stelle_voran("All input data of \"" + z_.gewaehlt(0) + "\" saved.");
    return true;
}

// The question for one changed record.
Satzverwaltung::Sicherung Satzverwaltung::frage_Sicherung(std::size_t Art) {
    const std::string Text = std::string("You modified ") + Satzart_Namen[Art] + " input data! " +
                             " Do you want to save the changes in your data base?";
    const Knopf Antwort =
        z_.Welt.Fragen->frage({Texte::Aenderungen_sichern, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}});
    if (Antwort != Knopf::Ja) return Sicherung::keine;
    return speichere() ? Sicherung::erfolgt : Sicherung::verweigert;
}

Satzverwaltung::Sicherung Satzverwaltung::frage_nach_Sicherung() {
    for (std::size_t Art = 1; Art <= 3; ++Art) {
        const Sicherung Ausgang = z_.Geaendert[Art] ? frage_Sicherung(Art) : Sicherung::keine;
        if (Ausgang != Sicherung::keine) return Ausgang;  // a Yes has saved all of them
    }
    return Sicherung::keine;
}

}  // namespace varnok
