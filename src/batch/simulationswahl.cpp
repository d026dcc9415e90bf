#include "batch/simulationswahl.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_set>

#include "base/dateipfad.h"
#include "batch/satzname.h"
#include "records/simulation.h"

namespace varnok::batch {
namespace {

using Namensliste = std::vector<std::string>;

bool enthaelt(const Namensliste& Namen, const std::string& Name) {
    return std::find(Namen.begin(), Namen.end(), Name) != Namen.end();
}

std::string vorhandener_Name(const Namensliste& Namen, const std::string& Name, const Projektordner& Ordner) {
    if (enthaelt(Namen, Name)) return Name;
    if (const auto Pfad = Ordner.finde(Name, Endungen[Simulation])) {
        const std::string anders_geschrieben = Satzname(*Pfad);
        if (enthaelt(Namen, anders_geschrieben)) return anders_geschrieben;
    }
    throw Aufruffehler("there is no simulation \"" + Name + "\" in " + Ordner.Eingabeordner());
}

Namensliste gewaehlte_Simulationen(const Projektordner& Ordner, const Aufruf& a, const Namensliste& Namen) {
    if (a.alle) return Namen;
    Namensliste Gewaehlte;
    for (const std::string& Name : a.Simulationen) Gewaehlte.push_back(vorhandener_Name(Namen, Name, Ordner));
    if (!a.Simulationen.empty()) return Gewaehlte;
    return {neueste_Simulation(Ordner).value_or(Namen.front())};
}

Namensliste jeden_einmal(const Namensliste& Namen) {
    std::unordered_set<std::string> gesehen;
    Namensliste einmal;
    std::copy_if(Namen.begin(), Namen.end(), std::back_inserter(einmal),
                 [&](const std::string& Name) { return gesehen.insert(Name).second; });
    return einmal;
}

}  // namespace

Namensliste waehle_Simulationen(const Projektordner& Ordner, const Aufruf& a) {
    std::error_code Fehler;
    if (!std::filesystem::is_directory(als_Pfad(Ordner.Eingabeordner()), Fehler)) {
        throw Aufruffehler(Ordner.Pfad() + ": there is no folder \"input\" in this project");
    }
    const Namensliste Namen = Ordner.Namen(Endungen[Simulation]);
    if (Namen.empty()) throw Aufruffehler(Ordner.Eingabeordner() + ": there is no simulation (*.vnk) in this project");

    return jeden_einmal(gewaehlte_Simulationen(Ordner, a, Namen));
}

}  // namespace varnok::batch
