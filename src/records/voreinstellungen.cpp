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

// The template that comes last wins: that of the program's own folder over that of the project.
std::optional<std::string> finde_Vorlage(const Projektordner& Ordner, const std::vector<std::string>& Quellen, const char* Endung) {
    std::optional<std::string> Pfad = Ordner.finde(Vorlagenname, Endung);
    for (const std::string& Quelle : Quellen) {
        try {
            if (auto Treffer = Projektordner(Quelle).finde(Vorlagenname, Endung)) Pfad = std::move(Treffer);
        } catch (const Laufzeitfehler&) {
            continue;  // a source that does not exist has no templates
        }
    }
    return Pfad;
}

}  // namespace

void stelle_Voreinstellungen_her(const Projektordner& Ordner, const std::vector<std::string>& Quellen) {
    std::array<std::string, 3> Inhalte;
    for (std::size_t i = 0; i < Inhalte.size(); ++i) {
        const char* Endung = Endungen[Vorlage_Wirkstoff + i];
        const auto Pfad = finde_Vorlage(Ordner, Quellen, Endung);
        if (!Pfad) throw Laufzeitfehler("The template \"" + std::string(Vorlagenname) + Endung + "\" is missing in " + Ordner.Eingabeordner());
        Inhalte[i] = lies_Datei(*Pfad);
    }
    for (std::size_t i = 0; i < Inhalte.size(); ++i) schreibe_Datei(Ordner.Zielpfad(Startsimulation, Endungen[Wirkstoff + i]), Inhalte[i]);
    schreibe_Simulation(Ordner, Startsimulation, {Startsimulation, {"", Startsimulation, Startsimulation, Startsimulation}});
}

}  // namespace varnok
