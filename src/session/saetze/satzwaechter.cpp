#include "session/saetze/satzwaechter.h"

#include <algorithm>
#include <utility>

#include "records/dateien.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/texte.h"

namespace varnok {

void sichere(Zustand& z, const std::vector<Sicherungsstueck>& Stuecke) {
    if (Stuecke.empty()) return;
    const Systemuhr Maschine;
    const std::string Ort = sichere(*z.Ordner, z.Welt.Zeit ? *z.Welt.Zeit : Maschine, Stuecke);
    std::string Namen;
    for (const Sicherungsstueck& s : Stuecke) Namen += (Namen.empty() ? "\"" : ", \"") + s.Dateiname + "\"";
    z.Statuszeile = "What was there before is kept in " + Ort + ": " + Namen;
}

void Satzwaechter::merke(Satzart Art, const std::string& Name) {
    const auto Pfad = z_.Ordner->finde(Name, Endungen[Art]);
    z_.Dateistaende[Art] = {Name, Pfad ? lies_Datei_falls_moeglich(*Pfad).value_or("") : ""};
}

Satzwaechter::Dateizustand Satzwaechter::Zustand_der_Datei(Satzart Art) const {
    const Dateistand& bekannt = z_.Dateistaende[Art];
    const auto Pfad = z_.Ordner->finde(bekannt.Name, Endungen[Art]);
    if (!Pfad) return Dateizustand::geloescht;
    return lies_Datei_falls_moeglich(*Pfad) == bekannt.Bytes ? Dateizustand::unveraendert : Dateizustand::geaendert;
}

bool Satzwaechter::haelt_keine_Datei(Satzart Art) const {
    if (z_.Geaendert[Art]) return true;
    const bool gelesen = !z_.Dateistaende[Art].Name.empty() && !z_.nicht_gelesen[Art];
    return gelesen && Zustand_der_Datei(Art) != Dateizustand::unveraendert;
}

std::string Satzwaechter::Fremdes(const std::vector<Satzart>& Arten) const {
    std::string Text;
    for (const Satzart Art : Arten) {
        const std::string& Name = z_.Dateistaende[Art].Name;
        if (z_.nicht_gelesen[Art] || Name != z_.gewaehlt(Art)) continue;
        const Dateizustand Befund = Zustand_der_Datei(Art);
        if (Befund == Dateizustand::unveraendert) continue;
        const char* Tat = Befund == Dateizustand::geaendert ? "changed" : "deleted";
        Text += (Text.empty() ? "\"" : " \"") + Name + Endungen[Art] + "\" was " + Tat + " by another program since it was read.";
    }
    return Text;
}

std::string Satzwaechter::Dateibytes(Satzart Art) const {
    if (Art != Simulation) return Satz_als_Bytes(Art, z_.Vorgabe, z_.Sicht, z_.Welt.Dezimalzeichen);
    Simulationssatz Satz{z_.Felder().Beschreibung, {}};
    for (std::size_t t = 1; t <= 3; ++t) Satz.Dateinamen[t] = z_.gewaehlt(t);
    return Simulation_als_Bytes(Satz);
}

Satzwaechter::Auftrag Satzwaechter::stelle_zusammen(Satzart Art) const {
    // A summary file that is gone from the list is written anew, under the name that it had.
    const std::string& Name = z_.Namen[Art];
    return {Art, Name, z_.Ordner->Zielpfad(Name, Endungen[Art]), Dateibytes(Art)};
}

bool Satzwaechter::darf_speichern() const {
    if (!z_.Sperre || !z_.Sperre->von_anderem_gehalten()) return true;
    return z_.Welt.Fragen->frage(
               {Texte::Aenderungen_sichern, Texte::zweites_Fenster_sichert, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}}) ==
           Knopf::Ja;
}

bool Satzwaechter::darf_ersetzen(const Auftrag& a, const std::string& vorhanden) const {
    const Dateistand& bekannt = z_.Dateistaende[a.Art];
    if (a.Name != bekannt.Name || vorhanden == bekannt.Bytes || vorhanden == a.Bytes) return true;
    const std::string Text = "The record '" + a.Name + Endungen[a.Art] +
                             "' was changed by another program since it was read. Do you want to replace it?";
    return z_.Welt.Fragen->frage({Texte::Satz_ersetzen, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}}) == Knopf::Ja;
}

bool Satzwaechter::schreibe(const std::vector<Satzart>& Arten) {
    std::vector<Auftrag> Auftraege;
    std::vector<Sicherungsstueck> ersetzt;
    for (const Satzart Art : Arten) {
        if (!z_.nicht_gelesen[Art]) {
            Auftraege.push_back(stelle_zusammen(Art));
        } else if (Art != Simulation) {
            for (auto& Stueck : Ungesichertes({Art})) ersetzt.push_back(std::move(Stueck));
        }
    }
    if (!Auftraege.empty() && !darf_speichern()) return false;
    for (const Auftrag& a : Auftraege) {
        if (!z_.Ordner->finde(a.Name, Endungen[a.Art])) continue;
        const std::string vorhanden = lies_Datei(a.Pfad);  // what cannot be read is not replaced
        if (vorhanden == a.Bytes) continue;
        if (!darf_ersetzen(a, vorhanden)) return false;
        // A record's own last state is what the user saves over; anything else is kept.
        const Dateistand& bekannt = z_.Dateistaende[a.Art];
        const bool eigener_Stand = a.Name == bekannt.Name && vorhanden == bekannt.Bytes;
        if (!eigener_Stand) ersetzt.push_back({a.Name + Endungen[a.Art], vorhanden});
    }
    sichere(z_, ersetzt);
    for (const Auftrag& a : Auftraege) {
        schreibe_Datei(a.Pfad, a.Bytes);
        z_.Dateistaende[a.Art] = {a.Name, a.Bytes};
    }
    return true;
}

std::vector<Sicherungsstueck> Satzwaechter::Ungesichertes(const std::vector<Satzart>& Arten) const {
    std::vector<Sicherungsstueck> Stuecke;
    for (const Satzart Art : Arten) {
        if (haelt_keine_Datei(Art)) Stuecke.push_back({"unsaved " + z_.Dateistaende[Art].Name + Endungen[Art], Dateibytes(Art)});
    }
    return Stuecke;
}

void Satzwaechter::sichere_Ungesichertes(const std::vector<Satzart>& Arten, std::vector<Sicherungsstueck> dazu) {
    for (auto& Stueck : Ungesichertes(Arten)) dazu.push_back(std::move(Stueck));
    sichere(z_, dazu);
}

}  // namespace varnok
