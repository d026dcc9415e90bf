#include "session/saetze/satzbefehle.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/satztext.h"
#include "records/voreinstellungen.h"
#include "session/kern/texte.h"
#include "session/saetze/sicherungsgut.h"

namespace varnok {
namespace {

constexpr std::array<const char*, 4> Grundnamen = {"", "new compound", "new application pattern", "new scenario"};
constexpr const char* Vorlagenname = "do not delete this file";

// Summary files name records in the code page, so a name must have a place in it.
void pruefe_Namen(const std::string& Name) {
    std::string Einwand = Einwand_gegen_Namen(Name);
    if (Einwand.empty()) Einwand = Einwand_gegen_Text(Name);
    if (!Einwand.empty()) throw Laufzeitfehler("\"" + Name + "\" cannot be the name of a record: " + Einwand);
}

// The typed name may carry the extension of its kind.
std::string ohne_getippte_Endung(const std::string& Text, const std::string& Endung) {
    if (Zeichenzahl(Text) > 3 && Text.ends_with(Endung)) return Text.substr(0, Text.size() - Endung.size());
    return Text;
}

}  // namespace

void Satzbefehle::lies_Liste(Satzart Art) { Listen_.Listen[Art] = z_.Ordner->Namen(Endungen[Art]); }

std::string Satzbefehle::Pfad_des_gewaehlten(Satzart Art) {
    const std::string Name = Listen_.gewaehlt(Art);
    if (Listen_.Auswahl(Art) < 0) throw Laufzeitfehler(Texte::kein_Eintrag);
    const auto Pfad = z_.Ordner->finde(Name, Endungen[Art]);
    if (Pfad) return *Pfad;
    lies_Liste(Art);
    throw Laufzeitfehler("File " + Name + Endungen[Art] + " is missing in the folder \"" + z_.Ordner->Eingabeordner() + "\"");
}

bool Satzbefehle::darf_ersetzen(const std::string& Text) const {
    const Frage f{Texte::Satz_ersetzen, Text, Symbol::Ausrufezeichen, {Knopf::Ja, Knopf::Nein}};
    return z_.Welt.Fragen->frage(f) == Knopf::Ja;
}

void Satzbefehle::sichere_Datei(const std::string& Pfad, const std::string& Dateiname) {
    Sicherungsgut Gut;
    Gut.nimm_Datei(Pfad, Dateiname);
    sichere(z_, Gut);
}

std::string Satzbefehle::Vorlage(Satzart Art) const {
    const auto Vorlagenart = static_cast<Satzart>(Art + Vorlage_Wirkstoff - Wirkstoff);
    const auto Pfad = finde_Vorlage(*z_.Ordner, {z_.Welt.Programmpfad, z_.Welt.installierte_Daten}, Vorlagenart);
    if (!Pfad) {
        const std::string Datei = std::string(Vorlagenname) + Endungen[Vorlagenart];
        throw Laufzeitfehler("The template \"" + Datei + "\" is missing in the folder \"" + z_.Ordner->Eingabeordner() + "\"");
    }
    return *Pfad;
}

std::string Satzbefehle::lege_an(Satzart Art) {
    verlange_Schreibrecht(z_);
    const std::string Muster = Vorlage(Art);
    int n = 1;
    while (z_.Ordner->finde(Grundnamen[Art] + std::to_string(n), Endungen[Art])) ++n;
    const std::string Name = Grundnamen[Art] + std::to_string(n);
    kopiere_Datei(Muster, z_.Ordner->Zielpfad(Name, Endungen[Art]));
    Listen_.Namen[Art] = Name;
    lies_Liste(Art);
    return Name;
}

bool Satzbefehle::kopiere(Satzart Art) {
    verlange_Schreibrecht(z_);
    const std::string alt = Listen_.gewaehlt(Art);
    const std::string Quelle = Pfad_des_gewaehlten(Art);
    const std::string neu = "copy of " + alt;
    pruefe_Namen(neu);
    const auto vorhanden = z_.Ordner->finde(neu, Endungen[Art]);
    if (vorhanden) {
        if (!darf_ersetzen("The record '" + neu + Endungen[Art] + "' already exists. Do you want to replace it?")) return false;
        sichere_Datei(*vorhanden, neu + Endungen[Art]);
    }
    const std::string Ziel = z_.Ordner->Zielpfad(neu, Endungen[Art]);
    kopiere_Datei(Quelle, Ziel);
    Listen_.Namen[Art] = ohne_Endung(letzter_Teil(Ziel));  // a file replaced may differ in case, and keeps its entry
    lies_Liste(Art);
    return true;
}

bool Satzbefehle::loesche(Satzart Art, Sicherungsgut dazu) {
    verlange_Schreibrecht(z_);
    const std::string Pfad = Pfad_des_gewaehlten(Art);
    const std::string Name = Listen_.gewaehlt(Art);
    const Frage f{"Delete record",
                  Texte::mit_Satzname("Do you really want to delete this record?", Name),
                  Symbol::Frage,
                  {Knopf::Ja, Knopf::Nein}};
    lies_Liste(Art);  // the last one counts in the folder, whatever the list has shown
    const bool letzte = Listen_.Listen[Art].size() < 2;
    if (letzte) throw Laufzeitfehler("\"" + Name + Endungen[Art] + "\" is the last of its kind and stays.");
    if (z_.Welt.Fragen->frage(f) != Knopf::Ja) return false;
    const int Platz = Listen_.Auswahl(Art);
    Sicherungsgut Gut;
    Gut.nimm_Datei(Pfad, Name + Endungen[Art]);
    Gut.nimm(std::move(dazu));
    sichere(z_, Gut);
    loesche_Datei(Pfad);
    lies_Liste(Art);
    Listen_.waehle_Platz(Art, std::min(Platz, static_cast<int>(Listen_.Listen[Art].size()) - 1));
    return true;
}

Umbenennung Satzbefehle::benenne_um(Satzart Art, const std::string& Text, bool mit_Frage) {
    const std::string alt = Listen_.gewaehlt(Art);
    const std::string neu = ohne_getippte_Endung(Text, Endungen[Art]);
    if (Text == alt || neu == alt) return Umbenennung::unveraendert;
    verlange_Schreibrecht(z_);
    pruefe_Namen(neu);
    const std::string Quelle = Pfad_des_gewaehlten(Art);
    const auto vorhanden = z_.Ordner->finde(neu, Endungen[Art]);
    if (vorhanden && *vorhanden != Quelle) {
        if (!mit_Frage) throw Laufzeitfehler("The record \"" + neu + "\" already exists. \"" + alt + "\" keeps its name.");
        if (!darf_ersetzen("The record ' " + neu + " ' already exists. Do you want to replace it?"))
            return Umbenennung::abgelehnt;
        sichere_Datei(*vorhanden, neu + Endungen[Art]);
        benenne_Datei_um(Quelle, *vorhanden);
    }
    // Over the file replaced first, so that nothing is gone if a step fails; then to the case that was typed.
    const std::string jetzt = vorhanden && *vorhanden != Quelle ? *vorhanden : Quelle;
    const std::string Ziel = z_.Ordner->Eingabeordner() + "/" + neu + Endungen[Art];
    if (jetzt != Ziel) benenne_Datei_um(jetzt, Ziel);
    Listen_.Namen[Art] = neu;
    lies_Liste(Art);
    return Umbenennung::erfolgt;
}

}  // namespace varnok
