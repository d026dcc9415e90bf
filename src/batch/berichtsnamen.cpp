#include "batch/berichtsnamen.h"

#include <QString>
#include <algorithm>
#include <set>
#include <vector>

#include "base/dateiname.h"
#include "base/laufzeitfehler.h"
#include "records/simulation.h"

namespace varnok::batch {
namespace {

// Longer texts are not told apart by what stands behind it: other parts of the name may need the room.
constexpr std::size_t sicher_im_Namen = 100;

// As a file system without case sees the beginning of a name.
std::string gefaltet(const std::string& Text) {
    return QString::fromStdString(als_Dateiname(Text, {}, sicher_im_Namen)).toCaseFolded().toStdString();
}

// Descriptions by simulation. One that cannot be read has no reports.
std::map<std::string, std::string> lies_Beschreibungen(const Projektordner& Ordner) {
    std::map<std::string, std::string> Beschreibungen;
    for (const std::string& Name : Ordner.Namen(Endungen[Simulation])) {
        try {
            Beschreibungen[Name] = lies_Simulation(Ordner, Name).Beschreibung;
        } catch (const Laufzeitfehler&) {
            continue;
        }
    }
    return Beschreibungen;
}

}  // namespace

Berichtsnamen::Berichtsnamen(const Projektordner& Ordner) {
    const auto Beschreibungen = lies_Beschreibungen(Ordner);
    std::map<std::string, int> Zahl;
    for (const auto& [Name, Beschreibung] : Beschreibungen) ++Zahl[gefaltet(Beschreibung)];
    std::set<std::string> vergeben;
    for (const auto& [Name, Beschreibung] : Beschreibungen) {
        if (Zahl[gefaltet(Beschreibung)] == 1) continue;
        const std::string kurz = als_Dateiname(Name, {}, sicher_im_Namen);
        std::string Zusatz = " - " + kurz;
        // Names of simulations that differ in case, or in a character that no report can have.
        for (int n = 2; !vergeben.insert(gefaltet(Zusatz)).second; ++n) {
            const std::string Nummer = " (" + std::to_string(n) + ")";
            Zusatz = " - " + als_Dateiname(Name, Nummer, sicher_im_Namen - 3);
        }
        Zusaetze_[Name] = Zusatz;
    }
}

std::string Berichtsnamen::Simulationszusatz(const std::string& Simulation) const {
    const auto Stelle = Zusaetze_.find(Simulation);
    return Stelle == Zusaetze_.end() ? std::string() : Stelle->second;
}

std::string Studienzusatz(const Eingabe& e, int i_studie) {
    constexpr std::size_t Teil_Studie = 1;
    const auto Anzahl = static_cast<std::size_t>(e.Studienzahl());
    std::vector<std::string> Namen;
    for (std::size_t st = 0; st < Anzahl; ++st) Namen.push_back(gefaltet(e.Studie[st]));
    const std::string& eigener = Namen[static_cast<std::size_t>(i_studie)];
    const bool lang = eigener.size() >= sicher_im_Namen || e.Beschreibung.size() >= sicher_im_Namen;
    const bool allein = std::count(Namen.begin(), Namen.end(), eigener) == 1;
    // A study of this name would be taken for the report of all studies.
    const bool mit_Namen = e.Parameter.Ausgabename_Teile[Teil_Studie] == 1;
    if (Anzahl == 1 && !(mit_Namen && eigener == "extended")) return {};
    if (mit_Namen && allein && !lang && eigener != "extended") return {};
    return " - study " + std::to_string(i_studie + 1);
}

}  // namespace varnok::batch
