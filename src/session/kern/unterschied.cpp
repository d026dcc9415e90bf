#include "session/kern/unterschied.h"

#include <algorithm>
#include <functional>
#include <variant>

#include "records/projektordner.h"
#include "session/eingabe/feldtabelle.h"

namespace varnok {
namespace {

using Werte = std::function<bool(const Eingabe&, const Eingabe&)>;

// What is no field, in the order in which it names a step that changes several things.
struct Merkmal {
    const char* Name;
    Satzart Art;
    Werte gleich;
    int i_substanz = -1;
    bool je_Studie = false;  // the first study that differs is the one concerned
};

template <auto Eingabe::*Platz>
bool gleich(const Eingabe& a, const Eingabe& b) {
    return a.*Platz == b.*Platz;
}

template <auto Laufparameter::*Platz>
bool gleicher_Parameter(const Eingabe& a, const Eingabe& b) {
    return a.Parameter.*Platz == b.Parameter.*Platz;
}

const std::array Merkmale = {
    Merkmal{"number of studies", Wirkstoff, [](const Eingabe& a, const Eingabe& b) { return a.Studienzahl() == b.Studienzahl(); },
            -1, true},
    Merkmal{"description", Simulation, gleich<&Eingabe::Beschreibung>},
    Merkmal{"metabolism scheme", Wirkstoff, gleich<&Eingabe::Berechnungsmodus>},
    Merkmal{"name of a study", Wirkstoff, gleich<&Eingabe::Studie>, -1, true},
    Merkmal{"name of the parent", Wirkstoff, gleich<&Eingabe::Name_Wirkstoff>, 0},
    Merkmal{"name of metabolite 1", Wirkstoff, gleich<&Eingabe::Name_Met_1>, 1},
    Merkmal{"name of metabolite 2", Wirkstoff, gleich<&Eingabe::Name_Met_2>, 2},
    Merkmal{"application pattern", Applikation, gleich<&Eingabe::Applikationsmuster>},
    Merkmal{"application date", Applikation, gleich<&Eingabe::App_Monat>},
    Merkmal{"application date", Applikation, gleich<&Eingabe::App_Tag>},
    Merkmal{"number of applications", Applikation, gleich<&Eingabe::Anzahl_Index>},
    Merkmal{"interval", Applikation, gleich<&Eingabe::Intervall_Index>},
    Merkmal{"table of applications", Applikation, gleich<&Eingabe::Applikationsschema>},
    Merkmal{"soil name", Szenario, gleich<&Eingabe::Bodenszenario>},
    Merkmal{"climate", Szenario, gleich<&Eingabe::Klimaszenario>},
    Merkmal{"climate", Szenario, gleicher_Parameter<&Laufparameter::Klimamodus>},
    Merkmal{"temperature", Szenario, gleicher_Parameter<&Laufparameter::Szenariotemperatur>},
    Merkmal{"soil density", Szenario, gleicher_Parameter<&Laufparameter::Bodendichte>},
    Merkmal{"soil depth", Szenario, gleicher_Parameter<&Laufparameter::Bodentiefe>},
    Merkmal{"plateau depth", Szenario, gleicher_Parameter<&Laufparameter::Plateautiefe>},
    Merkmal{"organic carbon", Szenario, gleicher_Parameter<&Laufparameter::Kohlenstoffgehalt>},
    Merkmal{"field capacity", Szenario, gleicher_Parameter<&Laufparameter::Feldkapazitaet>},
    Merkmal{"wilting point", Szenario, gleicher_Parameter<&Laufparameter::Welkepunkt>},
    Merkmal{"unit", Wirkstoff, gleicher_Parameter<&Laufparameter::Einheit>},
    Merkmal{"residues", Wirkstoff, gleicher_Parameter<&Laufparameter::Separate_Rueckstaende>},
    Merkmal{"averaging windows", Wirkstoff, gleicher_Parameter<&Laufparameter::TWA_Zeiten>},
    Merkmal{"name of the output", Wirkstoff, gleicher_Parameter<&Laufparameter::Ausgabename_Teile>},
};

Satzart Satz_von(const Feldbeschreibung& f) { return f.Gruppe == Feldgruppe::Dosis ? Applikation : Wirkstoff; }

// Whether a field of a study holds the same; where a record keeps a text, to the letter.
bool gleiches_Feld(const Feldbeschreibung& f, const Eingabe& a, const Eingabe& b, std::size_t st) {
    const auto c = static_cast<std::size_t>(f.i_substanz);
    if (const auto* t = std::get_if<Stofftabelle<double> Laufparameter::*>(&f.Ziel))
        return (a.Parameter.**t)[c][st] == (b.Parameter.**t)[c][st];
    if (const auto* t = std::get_if<Studientabelle<double> Laufparameter::*>(&f.Ziel))
        return (a.Parameter.**t)[st] == (b.Parameter.**t)[st];
    const Zahlwert Eingabe::*Platz = std::get<Zahlwert Eingabe::*>(f.Ziel);
    return a.*Platz == b.*Platz;
}

// The place of the first study that one of them does not have, or has under another name.
int andere_Studie(const Eingabe& a, const Eingabe& b) {
    return static_cast<int>(std::mismatch(a.Studie.begin(), a.Studie.end(), b.Studie.begin(), b.Studie.end()).first -
                            a.Studie.begin());
}

bool je_Studie(const Feldbeschreibung& f) { return !std::holds_alternative<Zahlwert Eingabe::*>(f.Ziel); }

void ergaenze(Unterschied& u, const std::string& Name, Satzart Art, int i_studie, int i_substanz) {
    u.Arten[Art] = true;
    if (!u.Name.empty()) return;
    u.Name = Name;
    u.i_studie = i_studie;
    u.i_substanz = i_substanz;
}

void vergleiche_Feld(Unterschied& u, const Feldbeschreibung& f, const Eingabe& a, const Eingabe& b) {
    const std::size_t Studien = je_Studie(f) ? max_Studien : 1;
    for (std::size_t st = 0; st < Studien; ++st) {
        if (gleiches_Feld(f, a, b, st)) continue;
        ergaenze(u, f.Beschriftung, Satz_von(f), je_Studie(f) ? static_cast<int>(st) : -1, f.i_substanz);
    }
}

void vergleiche_Kinetik(Unterschied& u, const Eingabe& a, const Eingabe& b) {
    for (int c = 0; c < Stoffe; ++c) {
        for (int st = 0; st < max_Studien; ++st) {
            const auto von = [&](const Eingabe& e) {
                return e.Parameter.Kinetik[static_cast<std::size_t>(c)][static_cast<std::size_t>(st)];
            };
            if (von(a) != von(b)) ergaenze(u, "kinetics", Wirkstoff, st, c);
        }
    }
}

}  // namespace

Unterschied vergleiche(const Eingabe& a, const Eingabe& b) {
    Unterschied u;
    for (const Merkmal& m : Merkmale) {
        if (!m.gleich(a, b)) ergaenze(u, m.Name, m.Art, m.je_Studie ? andere_Studie(a, b) : -1, m.i_substanz);
    }
    vergleiche_Kinetik(u, a, b);
    for (const Feldbeschreibung& f : Feldtabelle()) vergleiche_Feld(u, f, a, b);
    if (u.Name.empty() && !(a == b)) ergaenze(u, "text of a number", Applikation, -1, -1);
    return u;
}

}  // namespace varnok
