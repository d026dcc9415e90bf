#include "screens/handlers/satzwaechter.h"

#include <algorithm>
#include <utility>

#include "records/dateien.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "screens/handlers/texte.h"

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

std::string Satzwaechter::Dateibytes(Satzart Art) const {
    if (Art != Simulation) return Satz_als_Bytes(Art, z_.Parameter(), z_.Felder(), z_.Welt.Dezimalzeichen);
    Simulationssatz Satz{z_.Felder().Beschreibung, {}};
    for (std::size_t t = 1; t <= 3; ++t) Satz.Dateinamen[t] = z_.gewaehlt(t);
    return Simulation_als_Bytes(Satz);
}

Satzwaechter::Auftrag Satzwaechter::stelle_zusammen(Satzart Art) const {
    const std::string Name = z_.gewaehlt(Art);
    return {Art, Name, z_.Ordner->Zielpfad(Name, Endungen[Art]), Dateibytes(Art)};
}

bool Satzwaechter::darf_speichern() const {
    if (!z_.Sperre || !z_.Sperre->von_anderem_gehalten()) return true;
    return z_.Welt.Fragen->frage({Texte::Aenderungen_sichern, Texte::zweites_Fenster_sichert, Symbol::Ausrufezeichen,
                                  {Knopf::Ja, Knopf::Nein}}) == Knopf::Ja;
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
        if (!z_.nicht_gelesen[Art]) Auftraege.push_back(stelle_zusammen(Art));
    }
    if (!Auftraege.empty() && !darf_speichern()) return false;
    for (const Auftrag& a : Auftraege) {
        const auto vorhanden = lies_Datei_falls_moeglich(a.Pfad);
        if (!vorhanden || *vorhanden == a.Bytes) continue;
        if (!darf_ersetzen(a, *vorhanden)) return false;
        // A record's own last state is what the user saves over; anything else is kept.
        const Dateistand& bekannt = z_.Dateistaende[a.Art];
        const bool eigener_Stand = a.Name == bekannt.Name && *vorhanden == bekannt.Bytes;
        if (!eigener_Stand) ersetzt.push_back({a.Name + Endungen[a.Art], *vorhanden});
    }
    sichere(z_, ersetzt);
    for (const Auftrag& a : Auftraege) {
        schreibe_Datei(a.Pfad, a.Bytes);
        z_.Dateistaende[a.Art] = {a.Name, a.Bytes};
    }
    return true;
}

void Satzwaechter::sichere_Ungesichertes(const std::vector<Satzart>& Arten, std::vector<Sicherungsstueck> dazu) {
    for (const Satzart Art : Arten) {
        if (!z_.Geaendert[Art] || z_.nicht_gelesen[Art]) continue;
        const std::string& Name = z_.Dateistaende[Art].Name;
        dazu.push_back({"unsaved " + Name + Endungen[Art], Dateibytes(Art)});
    }
    sichere(z_, dazu);
}

}  // namespace varnok
