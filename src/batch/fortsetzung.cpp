#include "batch/fortsetzung.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string_view>
#include <system_error>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "batch/aufruf.h"

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

// Whether the results of a line are those of the one study asked for, or of all.
bool hat_Studien(std::string_view Zeile, const std::optional<int>& einzige, int alle) {
    constexpr std::string_view Studienanfang = "{\"study\":";
    int Anzahl = 0;
    for (auto i = Zeile.find(Studienanfang); i != std::string_view::npos; i = Zeile.find(Studienanfang, i + 1)) ++Anzahl;
    if (!einzige) return Anzahl == alle;
    return Anzahl == 1 && Zeile.find(std::string(Studienanfang) + std::to_string(*einzige) + ",") != std::string_view::npos;
}

}  // namespace

bool ist_Fehlerzeile(std::string_view Zeile) { return Zeile.find(",\"error\":") != std::string_view::npos; }

Fortsetzung::Fortsetzung(const std::string& Datei, const Zeilenform& Form) : Datei_(Datei), Form_(Form) {
    std::error_code Fehler;
    if (std::filesystem::is_symlink(als_Pfad(Datei), Fehler))
        throw Aufruffehler("--resume " + Datei + ": this is a link, and a link is replaced");
    if (!std::filesystem::exists(als_Pfad(Datei), Fehler)) return;
    if (!std::filesystem::is_regular_file(als_Pfad(Datei), Fehler)) throw Aufruffehler("--resume " + Datei + ": this is no file");
    Strom_.open(als_Pfad(Datei), std::ios::binary);
    if (!Strom_) throw Aufruffehler("--resume " + Datei + ": the file cannot be read");
}

// Only a line with its end is whole.
bool Fortsetzung::lies_Zeile(std::string& Zeile) {
    if (!Strom_.is_open() || !std::getline(Strom_, Zeile) || Strom_.eof()) return false;
    ++Zeilennummer_;
    gelesene_Bytes_ += static_cast<std::int64_t>(Zeile.size()) + 1;
    return true;
}

std::string Fortsetzung::Unterschied(const std::string& Zeile, const Arbeitsstueck& s) const {
    const std::string Position = ",\"position\":";
    const bool hat_Position = Zeile.find(Position) != std::string::npos;
    if (hat_Position != Form_.mit_Position) return hat_Position ? "has a position, as --shard gives it" : "has no position";
    if (hat_Position && !Zeile.ends_with(Position + std::to_string(s.Position) + "}")) return "has another position";
    if (ist_Fehlerzeile(Zeile)) return {};
    const bool hat_Eingaben = Zeile.find(",\"inputs\":{") != std::string::npos;
    if (hat_Eingaben != Form_.mit_Eingaben) return hat_Eingaben ? "holds the inputs" : "does not hold the inputs";
    return hat_Studien(Zeile, Form_.Studie, s.Gelesenes->Vorgabe->Studienzahl()) ? "" : "is about another choice of studies";
}

void Fortsetzung::gleiche_ab(const Arbeitsstueck& s, const std::string& Summe) {
    std::string Zeile;
    if (!lies_Zeile(Zeile)) {
        Anfang_zu_Ende_ = true;
        return;
    }
    const std::string davor = "--resume " + Zeilenangabe(Datei_, Zeilennummer_) + ": ";
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
    if (const std::string was = Unterschied(Zeile, s); !was.empty())
        throw Aufruffehler(davor + "the line " + was + ", unlike that of this call");
    if (Anfang_zu_Ende_) mit_Luecken_ = true;
    if (!Anfang_zu_Ende_) Bytes_am_Anfang_ = gelesene_Bytes_;
}

void Fortsetzung::schliesse_Abgleich_ab() {
    std::string Zeile;
    if (lies_Zeile(Zeile))
        throw Aufruffehler("--resume " + Zeilenangabe(Datei_, Zeilennummer_) +
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
