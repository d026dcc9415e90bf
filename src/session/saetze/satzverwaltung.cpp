#include "session/saetze/satzverwaltung.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/laufzeitfehler.h"
#include "exposure/twa.h"
#include "records/dateien.h"
#include "records/satztext.h"
#include "session/kern/texte.h"

namespace varnok {

void Satzverwaltung::fuelle_Listen() {
    for (const Satzart Art : alle_Arten) Befehle_.lies_Liste(Art);
    nenne_Unwaehlbare();
}

// A simulation names its records in the character set of the records.
void Satzverwaltung::nenne_Unwaehlbare() {
    for (const Satzart Art : Eingabearten) {
        for (const std::string& Name : z_.Listen[Art]) {
            const std::string Einwand = Einwand_gegen_Text(Name);
            if (!Einwand.empty())
                z_.Statuszeile.stelle_voran("\"" + Name + Endungen[Art] + "\" cannot be chosen: " + Einwand + ".");
        }
    }
}

// What the screen shows stays there under the cover; it is not the record that the selector names, so it is never saved or asked
// for.
void Satzverwaltung::erklaere_ungelesen(Satzart Art, const std::string& Grund) {
    z_.Saetze[Art].verwirf(Grund);
    z_.Statuszeile.stelle_voran(Grund + ".");
}

// Only where its kind has no record at all is there nothing to choose.
void Satzverwaltung::erklaere_fehlend(Satzart Art) {
    const std::string Name = z_.Namen[Art];
    const std::string Grund = Name.empty() ? Texte::Satz_fehlt : Texte::fehlender_Satz(Name + Endungen[Art]);
    Befehle_.lies_Liste(Art);
    if (z_.Saetze[Art].gelesen()) {
        z_.Statuszeile.stelle_voran(Grund + ".");  // the values are still those of the file that is gone, and kept as such
    } else {
        erklaere_ungelesen(Art, Grund);
    }
    if (z_.Listen[Art].empty())
        beende_oder_stelle_her("File " + Name + " is missing. Should the default settings be loaded ", beim_Start_);
}

bool Satzverwaltung::lies_Satz(Satzart Art, const std::string& Satzname) {
    const TWA_Listenart alte_TWA_Zeiten = z_.Parameter().TWA_Zeiten;
    Lesebefund Befund;
    const std::string Fehler =
        Fehler_bei([&] { Befund = Satz_lesen(*z_.Ordner, Satzname, Art, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen); });
    if (!Fehler.empty()) {
        erklaere_ungelesen(Art, Fehler);
        melde_Fehler(z_, Fehler);
        return false;
    }
    if (Befund.Ausgang == Leseausgang::fehlt) {
        erklaere_fehlend(Art);
        return false;
    }
    if (Befund.Ausgang == Leseausgang::abgebrochen) {
        erklaere_ungelesen(Art, Zeilenangabe(Satzname + Endungen[Art], Befund.Ort.Zeile) + ": " + Befund.Grund);
        return false;
    }
    folge_dem_Satz(Art, alte_TWA_Zeiten);
    Waechter_.merke(Art, Satzname);
    return true;
}

// What is tied to a record whose values have just come.
void Satzverwaltung::folge_dem_Satz(Satzart Art, TWA_Listenart alte_TWA_Zeiten) {
    if (Art == Wirkstoff) nach_Wirkstoff(alte_TWA_Zeiten);
    if (Art == Applikation) Diagramme_.setze_Bereiche_nach_Ansicht();
    Diagramme_.bringe_nach_vorn(z_.Sicht.Substanz);
}

void Satzverwaltung::nach_Wirkstoff(TWA_Listenart alte_TWA_Zeiten) {
    if (z_.Parameter().TWA_Zeiten != alte_TWA_Zeiten) z_.Sicht.TWA_Laenge = TWA_Vorauswahl(z_.Parameter().TWA_Zeiten);
    // A compound that the scheme does not have cannot stay in view.
    if (z_.Sicht.Substanz >= Anzahl_Stoffe(z_.Vorgabe.Berechnungsmodus)) z_.Sicht.Substanz = 0;
    Felder_.fuelle();
}

void Satzverwaltung::uebernimm(const std::string& Simulation, const Simulationssatz& Satz) {
    z_.Vorgabe.Beschreibung = Satz.Beschreibung;
    z_.Namen = Satz.Dateinamen;
    z_.Namen[varnok::Simulation] = Simulation;
    for (Satzplatz& p : z_.Saetze) p.verlange();
    Waechter_.merke(varnok::Simulation, Simulation);
}

void Satzverwaltung::lade_Start(const std::string& Simulation) {
    uebernimm(Simulation, lies_Simulation(*z_.Ordner, Simulation));
    beim_Start_ = true;
    lies_fehlende_Saetze();
    beim_Start_ = false;
    Diagramme_.setze_Startbereiche();
}

void Satzverwaltung::waehle_Simulation(int Position) {
    const std::string Simulation = z_.Listen[varnok::Simulation].at(static_cast<std::size_t>(Position));
    const std::string Fremdes = Waechter_.Fremdes({alle_Arten.begin(), alle_Arten.end()});
    if (!z_.Ordner->finde(Simulation, Endungen[varnok::Simulation])) Befehle_.lies_Liste(varnok::Simulation);
    const Simulationssatz Satz = lies_Simulation(*z_.Ordner, Simulation);
    z_.Statuszeile.vergiss_Frueheres();
    sichere_Ungesichertes();
    z_.Statuszeile.stelle_voran(Fremdes);
    uebernimm(Simulation, Satz);
    for (const Satzart Art : Eingabearten) Befehle_.lies_Liste(Art);  // a record that went is not found
    if (lies_fehlende_Saetze()) schliesse_Laden_ab();
}

// Reads the records that the selectors name and that were not read, up to the first that is missing or cannot be read.
bool Satzverwaltung::lies_fehlende_Saetze() {
    for (const Satzart Art : Eingabearten) {
        if (z_.Auswahl(Art) < 0) Befehle_.lies_Liste(Art);  // it may have come meanwhile
        if (z_.Auswahl(Art) < 0) {
            erklaere_fehlend(Art);
            return false;
        }
        if (!z_.Saetze[Art].gelesen() && !lies_Satz(Art, z_.gewaehlt(Art))) return false;
    }
    return true;
}

void Satzverwaltung::schliesse_Laden_ab() { Laeufe_.berechne(); }

void Satzverwaltung::merke_Kombination() {
    if (z_.Gestartet) z_.Saetze[Simulation].merke_Aenderung();
}

void Satzverwaltung::waehle_Satz(Satzart Art, int Position) {
    const std::string neu = z_.Listen[Art].at(static_cast<std::size_t>(Position));
    const std::string Fremdes = Waechter_.Fremdes({Art});
    const std::string vorher = z_.Namen[Art];
    const auto Marken = z_.Marken();
    const auto kehre_zurueck = [&] {
        z_.Namen[Art] = vorher;
        z_.stelle_Marken(Marken);
    };
    const Knopf Antwort = wird_gefragt(Art) ? frage_Sicherung(Art, neu) : Knopf::Nein;
    if (Antwort == Knopf::nicht_jetzt) return;
    // The selector shows the record chosen already, so Yes stores the values of the record left under the name of the one chosen.
    z_.Namen[Art] = neu;
    merke_Kombination();
    try {
        if (Antwort == Knopf::Ja && !speichere_Arten({Art})) return kehre_zurueck();
        sichere_vor_dem_Lesen(Art);
    } catch (...) {
        kehre_zurueck();
        throw;
    }
    z_.Statuszeile.vergiss_Frueheres();
    z_.Statuszeile.stelle_voran(Fremdes);
    z_.Saetze[Art].verlange();
    if (lies_fehlende_Saetze()) schliesse_Laden_ab();
}

void Satzverwaltung::lege_an(Satzart Art) {
    verlange_Schreibrecht(z_);
    const std::string Fremdes = Waechter_.Fremdes({Art});
    Befehle_.Vorlage(Art);
    sichere_vor_dem_Lesen(Art);
    Befehle_.lege_an(Art);
    z_.Statuszeile.vergiss_Frueheres();
    z_.Statuszeile.stelle_voran(Fremdes);
    merke_Kombination();
    z_.Saetze[Art].verlange();
    if (lies_fehlende_Saetze()) schliesse_Laden_ab();
}

void Satzverwaltung::kopiere(Satzart Art) {
    const std::string Fremdes = Waechter_.Fremdes({Art});
    if (!Befehle_.kopiere(Art)) return;
    z_.Statuszeile.vergiss_Frueheres();
    z_.Statuszeile.stelle_voran(Fremdes);
    z_.Saetze[Art].folge_der_Kopie(z_.gewaehlt(Art));
    if (Art != Simulation) merke_Kombination();
}

void Satzverwaltung::loesche(Satzart Art) {
    const std::string Fremdes = Waechter_.Fremdes({Art});
    if (!Befehle_.loesche(Art, Waechter_.Ungesichertes({Art}))) return;
    z_.Statuszeile.vergiss_Frueheres();
    z_.Statuszeile.stelle_voran(Fremdes);
    z_.Saetze[Art].verwirf(Texte::Satz_geloescht);
}

bool Satzverwaltung::benenne_um(Satzart Art, const std::string& Text, bool mit_Frage) {
    const std::string alt = z_.gewaehlt(Art);
    const std::string Fremdes = Waechter_.Fremdes({Art});
    const Umbenennung Ausgang = Befehle_.benenne_um(Art, Text, mit_Frage);
    if (Ausgang != Umbenennung::erfolgt) return Ausgang == Umbenennung::unveraendert;
    z_.Statuszeile.vergiss_Frueheres();
    z_.Saetze[Art].benenne(z_.gewaehlt(Art));
    merke_Kombination();
    nenne_Simulationen_mit(Art, alt, z_);
    z_.Statuszeile.stelle_voran(Fremdes);
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
    if (!Namen.empty()) z_.Statuszeile.stelle_voran("Simulations that still name \"" + Name + "\": " + Namen);
}

// The record of this kind, and those that were not read yet, are about to be read over what the screen shows. A simulation is
// read by loading it.
void Satzverwaltung::sichere_vor_dem_Lesen(Satzart Art) {
    std::vector<Satzart> Arten;
    for (const Satzart a : Eingabearten) {
        if (a == Art || !z_.Saetze[a].gelesen()) Arten.push_back(a);
    }
    Waechter_.sichere_Ungesichertes(Arten);
}

bool Satzverwaltung::lies_nach() {
    if (!z_.Saetze[Simulation].gelesen() && z_.Auswahl(Simulation) >= 0) {
        waehle_Simulation(z_.Auswahl(Simulation));
        return true;
    }
    if (z_.Saetze_vollstaendig() || !lies_fehlende_Saetze()) return false;
    schliesse_Laden_ab();
    return true;
}

void Satzverwaltung::lies_neu(const std::vector<Satzart>& Arten) {
    fuelle_Listen();
    for (const Satzart Art : Arten) z_.Saetze[Art].verlange();
    lies_nach();
}

// What is read over is in `backup` before, and what another program did is told. True if something was read.
bool Satzverwaltung::lies_auf_Wunsch_nach() {
    if (!z_.Saetze[Simulation].gelesen() && z_.Auswahl(Simulation) >= 0) return lies_nach();
    const std::string Fremdes = Waechter_.Fremdes({alle_Arten.begin(), alle_Arten.end()});
    if (!z_.Saetze_vollstaendig()) sichere_vor_dem_Lesen(Simulation);
    z_.Statuszeile.stelle_voran(Fremdes);
    if (!lies_nach()) return false;
    merke_Kombination();
    return true;
}

void Satzverwaltung::aktualisiere() {
    if (!lies_auf_Wunsch_nach()) Laeufe_.berechne_auf_Wunsch(true);
}

void Satzverwaltung::lies_Szenario_nach() {
    if (z_.Saetze[Szenario].gelesen() || z_.Auswahl(Szenario) < 0 || !lies_Satz(Szenario, z_.gewaehlt(Szenario))) return;
    if (z_.Saetze_vollstaendig()) schliesse_Laden_ab();
}

bool Satzverwaltung::pruefe_Auswahl(const std::vector<Knopf>& Knoepfe) {
    for (const Satzart Art : Eingabearten) {
        if (z_.Auswahl(Art) >= 0) continue;
        z_.Welt.Fragen->frage({Texte::Satz_nicht_gewaehlt, Texte::Satz_waehlen[Art], Symbol::Ausrufezeichen, Knoepfe});
        return false;
    }
    return true;
}

bool Satzverwaltung::schreibe_Zusammenfassungsdatei() {
    const auto Pfad = z_.Ordner->finde(z_.Namen[Simulation], Endungen[Simulation]);
    if (Pfad && liegt_ausserhalb(*Pfad, z_.Ordner->Eingabeordner())) {
        if (z_.verschieden(Simulation)) throw Laufzeitfehler("\"" + *Pfad + "\"" + Texte::Link_nur_auf_Wunsch);
        return true;
    }
    if (z_.Saetze[Simulation].gelesen()) return Waechter_.schreibe({Simulation}) != Schreibausgang::nicht_jetzt;
    if (Pfad) schreibe_Datei(*Pfad, lies_Datei(*Pfad), als_Satz);
    return true;
}

void Satzverwaltung::sichere_Ungesichertes(Sicherungsgut dazu) {
    Waechter_.sichere_Ungesichertes({alle_Arten.begin(), alle_Arten.end()}, std::move(dazu));
}

bool Satzverwaltung::speichere() { return speichere_Arten({Eingabearten.begin(), Eingabearten.end()}); }

bool Satzverwaltung::speichere_Arten(std::vector<Satzart> Arten) {
    if (!pruefe_Auswahl({Knopf::OK, Knopf::Abbrechen})) return false;
    Arten.insert(Arten.begin(), Simulation);
    const std::string Fremdes = Waechter_.Fremdes(Arten);
    if (Waechter_.schreibe(Arten) != Schreibausgang::geschrieben) return false;
    if (z_.Auswahl(Simulation) < 0) Befehle_.lies_Liste(Simulation);
    for (const Satzart Art : Arten) {
        if (Art != Simulation) z_.Saetze[Art].vergiss_Aenderung();
    }
    z_.Statuszeile.stelle_voran(Fremdes);
    z_.Statuszeile.stelle_voran(Sicherungszeile(Arten));
    return true;
}

// Nothing is called saved that is not.
std::string Satzverwaltung::Sicherungszeile(const std::vector<Satzart>& Arten) const {
    std::string gesichert, ungelesen;
    for (const Satzart Art : Arten) {
        if (z_.Namen[Art].empty()) continue;
        const std::string Datei = "\"" + z_.Namen[Art] + Endungen[Art] + "\"";
        if (z_.Saetze[Art].gelesen()) {
            gesichert += (gesichert.empty() ? "" : ", ") + Datei;
        } else {
            ungelesen += (ungelesen.empty() ? "" : " ") + Datei + " was not read and stays.";
        }
    }
    const bool alles = ungelesen.empty() && Arten.size() == alle_Arten.size() && !z_.gewaehlt(Simulation).empty();
    if (alles) return "All input data of \"" + z_.gewaehlt(Simulation) + "\" saved.";
    if (!gesichert.empty()) gesichert = "Saved: " + gesichert + ".";
    return gesichert + (gesichert.empty() || ungelesen.empty() ? "" : " ") + ungelesen;
}

// A place that was not read holds nothing that could be saved.
bool Satzverwaltung::wird_gefragt(Satzart Art) const { return z_.Saetze[Art].Geaendert() && z_.Saetze[Art].gelesen(); }

// The question for one changed record, which a Yes writes under the name `Ziel`.
Knopf Satzverwaltung::frage_Sicherung(Satzart Art, const std::string& Ziel) const {
    const std::string Text = std::string("You modified ") + Satzart_Namen[Art] + " input data! " +
                             " Do you want to save the changes in your data base?";
    Frage f{Texte::Aenderungen_sichern, Texte::mit_Satzname(Text, Ziel), Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}};
    if (Ziel != z_.Namen[Art]) {
        f.Text = Text + "\nYes writes these values to '" + Ziel + "'; what '" + Ziel + "' holds now goes to backup.";
        f.ohne_Vorgabe = true;
    }
    return z_.Welt.Fragen->frage(f);
}

std::optional<std::vector<Satzart>> Satzverwaltung::frage_nach_Sicherung() const {
    std::vector<Satzart> zu_sichern;
    for (const Satzart Art : Eingabearten) {
        if (!wird_gefragt(Art)) continue;
        const Knopf Antwort = frage_Sicherung(Art, z_.Namen[Art]);
        if (Antwort == Knopf::nicht_jetzt) return std::nullopt;
        if (Antwort == Knopf::Ja) zu_sichern.push_back(Art);
    }
    return zu_sichern;
}

}  // namespace varnok
