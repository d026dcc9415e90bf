#include "batch/fortsetzung.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string_view>
#include <system_error>

#include "batch/aufruf.h"
#include "batch/dateipfad.h"

namespace varnok::batch {
namespace {

constexpr std::string_view Summenanfang = "\"inputs_sha256\":\"";

// How the writer begins the line of a piece of work. A quotation mark inside a text is escaped, so nothing else begins so.
std::string Zeilenanfang(const Arbeitsstueck& s) {
    using JSON = nlohmann::ordered_json;
    const std::string Name = JSON(s.Simulation).dump(-1, ' ', false, JSON::error_handler_t::replace);
    const std::string Anfang = "{\"simulation\":" + Name + ",";
    return s.Herkunft ? Anfang + "\"variant\":{\"row\":" + std::to_string(s.Herkunft->Reihe) + "," : Anfang;
}

// Empty in the line of a simulation whose inputs could not be read.
std::string_view Summe_der_Zeile(std::string_view Zeile) {
    const auto Stelle = Zeile.rfind(Summenanfang);
    if (Stelle == std::string_view::npos) return {};
    const auto von = Stelle + Summenanfang.size();
    return Zeile.substr(von, Zeile.find('"', von) - von);
}

}  // namespace

bool ist_Fehlerzeile(std::string_view Zeile) { return Zeile.find(",\"error\":") != std::string_view::npos; }

Fortsetzung::Fortsetzung(const std::string& Datei, bool mit_Eingaben) : Datei_(Datei), mit_Eingaben_(mit_Eingaben) {
    std::error_code Fehler;
    if (std::filesystem::is_symlink(Dateipfad(Datei), Fehler))
        throw Aufruffehler("--resume " + Datei + ": this is a link, and a link is replaced");
    if (!std::filesystem::exists(Dateipfad(Datei), Fehler)) return;
    if (!std::filesystem::is_regular_file(Dateipfad(Datei), Fehler))
        throw Aufruffehler("--resume " + Datei + ": this is no file");
    Strom_.open(Dateipfad(Datei), std::ios::binary);
    if (!Strom_) throw Aufruffehler("--resume " + Datei + ": the file cannot be read");
}

// Only a line with its end is whole.
bool Fortsetzung::lies_Zeile(std::string& Zeile) {
    if (!Strom_.is_open() || !std::getline(Strom_, Zeile) || Strom_.eof()) return false;
    ++Zeilennummer_;
    gelesene_Bytes_ += static_cast<std::int64_t>(Zeile.size()) + 1;
    return true;
}

void Fortsetzung::gleiche_ab(const Arbeitsstueck& s, const std::string& Summe) {
    std::string Zeile;
    if (!lies_Zeile(Zeile)) {
        Anfang_zu_Ende_ = true;
        return;
    }
    const std::string davor = "--resume " + Datei_ + ", line " + std::to_string(Zeilennummer_) + ": ";
    const std::string wessen =
        "simulation \"" + s.Simulation + "\"" + (s.Herkunft ? ", variant " + std::to_string(s.Herkunft->Reihe) : std::string());
    if (!Zeile.starts_with(Zeilenanfang(s)))
        throw Aufruffehler(davor + "here belongs " + wessen + "; the file is of another call");
    const std::string_view alte = Summe_der_Zeile(Zeile);
    if (alte.empty()) {
        Anfang_zu_Ende_ = true;
        return;
    }
    if (alte != Summe) throw Aufruffehler(davor + wessen + " comes from other inputs (inputs_sha256 " + std::string(alte) + ")");
    const bool hat_Eingaben = Zeile.find(",\"inputs\":{") != std::string::npos;
    const bool gescheitert = ist_Fehlerzeile(Zeile);
    if (!gescheitert && hat_Eingaben != mit_Eingaben_)
        throw Aufruffehler(davor + (hat_Eingaben ? "the line holds the inputs" : "the line does not hold the inputs") +
                           ", unlike those of this call");
    if (Anfang_zu_Ende_) mit_Luecken_ = true;
    if (!Anfang_zu_Ende_) Bytes_am_Anfang_ = gelesene_Bytes_;
}

void Fortsetzung::schliesse_Abgleich_ab() {
    std::string Zeile;
    if (lies_Zeile(Zeile))
        throw Aufruffehler("--resume " + Datei_ + ", line " + std::to_string(Zeilennummer_) +
                           ": the file holds more than this call; it is of another one");
}

void Fortsetzung::beginne_neu() {
    if (!Strom_.is_open()) return;
    Strom_.clear();
    Strom_.seekg(0);
}

std::optional<std::string> Fortsetzung::naechste_Zeile() {
    std::string Zeile;
    if (!lies_Zeile(Zeile) || Summe_der_Zeile(Zeile).empty()) return std::nullopt;
    return Zeile + "\n";
}

}  // namespace varnok::batch
