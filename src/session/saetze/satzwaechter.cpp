#include "session/saetze/satzwaechter.h"

#include <algorithm>
#include <utility>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/texte.h"

namespace varnok {

std::string Name_des_Ungesicherten(const Eingabestand& z, Satzart Art) {
    return "unsaved " + z.Saetze[Art].Datei().Name + Endungen[Art];
}

void Satzwaechter::merke(Satzart Art, const std::string& Name) {
    const auto Pfad = z_.Ordner->finde(Name, Endungen[Art]);
    z_.Saetze[Art].lies({Name, Pfad ? lies_Datei_falls_moeglich(*Pfad).value_or("") : ""}, z_.Speicherbild(Art));
}

Satzwaechter::Dateizustand Satzwaechter::Zustand_der_Datei(Satzart Art) const {
    const Dateistand& bekannt = z_.Saetze[Art].Datei();
    const auto Pfad = z_.Ordner->finde(bekannt.Name, Endungen[Art]);
    if (!Pfad) return Dateizustand::geloescht;
    return lies_Datei_falls_moeglich(*Pfad) == bekannt.Bytes ? Dateizustand::unveraendert : Dateizustand::geaendert;
}

bool Satzwaechter::haelt_keine_Datei(Satzart Art) const {
    if (z_.verschieden(Art)) return true;
    const bool gelesen = !z_.Saetze[Art].Datei().Name.empty() && z_.Saetze[Art].gelesen();
    return gelesen && Zustand_der_Datei(Art) != Dateizustand::unveraendert;
}

std::string Satzwaechter::Fremdes(const std::vector<Satzart>& Arten) const {
    std::string Text;
    for (const Satzart Art : Arten) {
        const std::string& Name = z_.Saetze[Art].Datei().Name;
        if (!z_.Saetze[Art].gelesen() || Name != z_.gewaehlt(Art)) continue;
        const Dateizustand Befund = Zustand_der_Datei(Art);
        if (Befund == Dateizustand::unveraendert) continue;
        const char* Tat = Befund == Dateizustand::geaendert ? "changed" : "deleted";
        Text += (Text.empty() ? "\"" : " \"") + Name + Endungen[Art] + "\" was " + Tat + " by another program since it was read.";
    }
    return Text;
}

Satzwaechter::Auftrag Satzwaechter::stelle_zusammen(Satzart Art) const {
    // A summary file that is gone from the list is written anew, under the name that it had.
    const std::string& Name = z_.Namen[Art];
    return {Art, Name, z_.Ordner->Zielpfad(Name, Endungen[Art]), z_.Speicherbytes(Art)};
}

Knopf Satzwaechter::frage_wegen_Fenster() const {
    const auto Inhaber = z_.Sperre ? z_.Sperre->anderer() : std::nullopt;
    if (!Inhaber) return Knopf::Ja;
    const std::string Text = Inhaber->Rechner.empty()
                                 ? Texte::zweites_Fenster_sichert
                                 : Texte::andere_Maschine(Inhaber->Rechner, Inhaber->Alter) + Texte::trotzdem_sichern;
    return z_.Welt.Fragen->frage({Texte::Aenderungen_sichern, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}});
}

Knopf Satzwaechter::frage_wegen_Ersatz(const Auftrag& a, const std::string& vorhanden) const {
    const Dateistand& bekannt = z_.Saetze[a.Art].Datei();
    if (a.Name != bekannt.Name || vorhanden == bekannt.Bytes || vorhanden == a.Bytes) return Knopf::Ja;
    const std::string Text = "The record '" + a.Name + Endungen[a.Art] +
                             "' was changed by another program since it was read. Do you want to replace it?";
    return z_.Welt.Fragen->frage({Texte::Satz_ersetzen, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}});
}

Schreibausgang Satzwaechter::schreibe(const std::vector<Satzart>& Arten) {
    const auto Absage = [](Knopf k) { return k == Knopf::Nein ? Schreibausgang::verweigert : Schreibausgang::nicht_jetzt; };
    std::vector<Auftrag> Auftraege;
    Sicherungsgut ersetzt;
    for (const Satzart Art : Arten) {
        if (z_.Saetze[Art].gelesen()) {
            Auftraege.push_back(stelle_zusammen(Art));
        } else if (Art != Simulation) {
            ersetzt.nimm(Ungesichertes({Art}));
        }
    }
    if (!Auftraege.empty()) {
        verlange_Schreibrecht(z_);
        if (const Knopf k = frage_wegen_Fenster(); k != Knopf::Ja) return Absage(k);
    }
    for (const Auftrag& a : Auftraege) {
        if (!z_.Ordner->finde(a.Name, Endungen[a.Art])) continue;
        const std::string vorhanden = lies_Datei(a.Pfad);  // what cannot be read is not replaced
        if (vorhanden == a.Bytes) continue;
        if (const Knopf k = frage_wegen_Ersatz(a, vorhanden); k != Knopf::Ja) return Absage(k);
        // A record's own last state is what the user saves over; anything else is kept.
        const Dateistand& bekannt = z_.Saetze[a.Art].Datei();
        const bool eigener_Stand = a.Name == bekannt.Name && vorhanden == bekannt.Bytes;
        if (!eigener_Stand) ersetzt.Stuecke.push_back({a.Name + Endungen[a.Art], vorhanden});
    }
    sichere(z_, ersetzt);
    for (const Auftrag& a : Auftraege) {
        schreibe_Datei(a.Pfad, a.Bytes, als_Satz);
        z_.Saetze[a.Art].schreibe({a.Name, a.Bytes}, z_.Speicherbild(a.Art));
    }
    return Schreibausgang::geschrieben;
}

Sicherungsgut Satzwaechter::Ungesichertes(const std::vector<Satzart>& Arten) const {
    Sicherungsgut Gut;
    for (const Satzart Art : Arten) {
        if (!haelt_keine_Datei(Art)) continue;
        const std::string Dateiname = Name_des_Ungesicherten(z_, Art);
        try {
            Gut.Stuecke.push_back({Dateiname, z_.Speicherbytes(Art)});
        } catch (const Laufzeitfehler& f) {
            Gut.Gruende.push_back(Dateiname + ": " + f.what());
        }
    }
    return Gut;
}

void Satzwaechter::sichere_Ungesichertes(const std::vector<Satzart>& Arten, Sicherungsgut dazu) {
    dazu.nimm(Ungesichertes(Arten));
    sichere(z_, dazu);
}

}  // namespace varnok
