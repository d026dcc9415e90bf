#include "records/voreinstellungen.h"

#include <array>
#include <optional>
#include <utility>

#include "base/laufzeitfehler.h"
#include "records/dateien.h"
#include "records/simulation.h"

namespace varnok {
namespace {

constexpr const char* Vorlagenname = "Do not delete this file";

// The templates of one kind in the folders of `Quellen`.
std::vector<std::string> Vorlagen_der(const std::vector<std::string>& Quellen, Satzart Vorlage) {
    std::vector<std::string> Pfade;
    for (const std::string& Quelle : Quellen) {
        try {
            if (auto Treffer = Projektordner(Quelle).finde(Vorlagenname, Endungen[Vorlage])) Pfade.push_back(std::move(*Treffer));
        } catch (const Laufzeitfehler&) {
            continue;  // a source that does not exist has no templates
        }
    }
    return Pfade;
}

}  // namespace

std::optional<std::string> finde_Vorlage(const Projektordner& Ordner, const std::vector<std::string>& Quellen, Satzart Vorlage) {
    if (auto eigene = Ordner.finde(Vorlagenname, Endungen[Vorlage])) return eigene;
    const auto andere = Vorlagen_der(Quellen, Vorlage);
    return andere.empty() ? std::nullopt : std::optional(andere.front());
}

void stelle_Voreinstellungen_her(const Projektordner& Ordner, const std::vector<std::string>& Quellen) {
    std::array<std::string, 3> Inhalte;
    for (std::size_t i = 0; i < Inhalte.size(); ++i) {
        const auto Vorlage = static_cast<Satzart>(Vorlage_Wirkstoff + i);
        const char* Endung = Endungen[Vorlage];
        // The last source wins: the program's own template over that of the project.
        const auto andere = Vorlagen_der(Quellen, Vorlage);
        const auto Pfad = andere.empty() ? Ordner.finde(Vorlagenname, Endung) : std::optional(andere.back());
        if (!Pfad)
            throw Laufzeitfehler(
                "The template \"" + std::string(Vorlagenname) + Endung + "\" is missing in " + Ordner.Eingabeordner(),
                {std::string(Vorlagenname) + Endung});
        Inhalte[i] = lies_Datei(*Pfad);
    }
    for (std::size_t i = 0; i < Inhalte.size(); ++i)
        schreibe_Datei(Ordner.Zielpfad(Startsimulation, Endungen[Wirkstoff + i]), Inhalte[i], als_Datei);
    const Simulationssatz Satz{Startsimulation, {"", Startsimulation, Startsimulation, Startsimulation}};
    schreibe_Datei(Ordner.Zielpfad(Startsimulation, Endungen[Simulation]), Simulation_als_Bytes(Satz), als_Datei);
}

}  // namespace varnok
