#include "records/simulation.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/einwaende.h"
#include "records/satztext.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

constexpr std::array<const char*, 4> Zeilennamen = {"the description", "the name of the compound record",
                                                    "the name of the application pattern record",
                                                    "the name of the scenario record"};

void bemerke_Beschreibung(std::string_view Bytes, const std::string& Datei, const std::string& Beschreibung,
                          std::vector<Bemerkung>& Bemerkungen) {
    const std::string Einwand = Bytes.starts_with(UTF8_Marke)
                                    ? "the file begins with the mark of UTF-8 and was read as Windows-1252"
                                    : Einwand_gegen_Text(Beschreibung);
    if (Einwand.empty()) return;
    Bemerkungen.push_back({Datei, 1, "description", Einwand, Auszug(nach_Windows_1252(Beschreibung).value_or("")), {}});
}

void bemerke_Rest(Zeilenfolge& Zeilen, const std::string& Datei, std::vector<Bemerkung>& Bemerkungen) {
    while (const auto Zeile = Zeilen.naechste()) {
        if (ohne_Randblanks(*Zeile).empty()) continue;
        Bemerkungen.push_back({Datei, Zeilen.Nummer(), {}, "nothing reads the lines from here on", Auszug(*Zeile), {}});
        return;
    }
}

}  // namespace

Simulationssatz lies_Simulation(const Projektordner& Ordner, const std::string& Name, std::vector<Bemerkung>* Bemerkungen) {
    const std::string Datei = Name + Endungen[Simulation];
    const auto Pfad = Ordner.finde(Name, Endungen[Simulation]);
    if (!Pfad) throw Laufzeitfehler("File " + Datei + " is missing in the folder \"" + Ordner.Eingabeordner() + "\"", {Datei});
    return zerlege_Simulation(lies_Datei(*Pfad), Datei, Bemerkungen);
}

Simulationssatz zerlege_Simulation(const std::string& Bytes, const std::string& Datei, std::vector<Bemerkung>* Bemerkungen) {
    Zeilenfolge Zeilen(Bytes);
    Simulationssatz Satz;
    for (std::size_t i = 0; i < Zeilennamen.size(); ++i) {
        const auto Zeile = Zeilen.naechste();
        if (!Zeile) {
            throw Laufzeitfehler(std::string("the file ends before ") + Zeilennamen[i], {Datei, Zeilen.Nummer() + 1});
        }
        (i == 0 ? Satz.Beschreibung : Satz.Dateinamen[i]) = aus_Windows_1252(*Zeile);
    }
    if (!Bemerkungen) return Satz;
    bemerke_Beschreibung(Bytes, Datei, Satz.Beschreibung, *Bemerkungen);
    bemerke_Rest(Zeilen, Datei, *Bemerkungen);
    return Satz;
}

std::string Simulation_als_Bytes(const Simulationssatz& Satz) {
    std::string Bytes;
    for (std::size_t i = 0; i < Zeilennamen.size(); ++i) {
        Bytes += als_Satztext(i == 0 ? Satz.Beschreibung : Satz.Dateinamen[i], Zeilennamen[i]) + "\r\n";
    }
    return Bytes;
}

void schreibe_Simulation(const Projektordner& Ordner, const std::string& Name, const Simulationssatz& Satz) {
    schreibe_Datei(Ordner.Zielpfad(Name, Endungen[Simulation]), Simulation_als_Bytes(Satz), als_Satz);
}

std::vector<std::string> Simulationen_nach_Alter(const Projektordner& Ordner) {
    std::vector<std::pair<std::filesystem::file_time_type, std::string>> Gefundene;
    for (const auto& Name : Ordner.Namen(Endungen[Simulation])) {
        const auto Pfad = Ordner.finde(Name, Endungen[Simulation]);
        if (!Pfad) continue;
        std::error_code Fehler;
        const auto Stempel = std::filesystem::last_write_time(std::u8string(Pfad->begin(), Pfad->end()), Fehler);
        if (!Fehler) Gefundene.emplace_back(Stempel, Name);
    }
    // Of equal stamps the first in the order of the selector stays in front.
    std::stable_sort(Gefundene.begin(), Gefundene.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<std::string> Namen;
    for (auto& [Stempel, Name] : Gefundene) Namen.push_back(std::move(Name));
    return Namen;
}

std::optional<std::string> neueste_Simulation(const Projektordner& Ordner) {
    const auto Namen = Simulationen_nach_Alter(Ordner);
    return Namen.empty() ? std::nullopt : std::optional(Namen.front());
}

}  // namespace varnok
