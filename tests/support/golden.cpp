#include "support/golden.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

namespace varnok::probe {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> lies(const fs::path& Pfad) {
    std::ifstream Datei(Pfad, std::ios::binary);
    if (!Datei) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(Datei), {});
}

bool schreibe(const fs::path& Pfad, const std::string& Bytes) {
    std::error_code Fehler;
    fs::create_directories(Pfad.parent_path(), Fehler);
    std::ofstream Datei(Pfad, std::ios::binary);
    Datei << Bytes << std::flush;
    return Datei.good();
}

// The line that holds a byte, line ends made visible.
std::string Zeile_um(const std::string& Bytes, std::size_t Stelle) {
    const auto davor = Stelle == 0 ? std::string::npos : Bytes.rfind('\n', Stelle - 1);
    const std::size_t Anfang = davor == std::string::npos ? 0 : davor + 1;
    const std::string Zeile = Bytes.substr(Anfang, Bytes.find('\n', Stelle) - Anfang);
    return ::testing::PrintToString(Zeile);
}

}  // namespace

Goldenmodus Goldenmodus_aus_Umgebung() {
    const char* Wahl = std::getenv("VARNOK_GOLDEN");
    const std::string Modus = Wahl ? Wahl : "check";
    if (Modus == "check") return Goldenmodus::pruefen;
    if (Modus == "create") return Goldenmodus::anlegen;
    if (Modus == "update") return Goldenmodus::erneuern;
    throw std::invalid_argument("VARNOK_GOLDEN is \"" + Modus + "\", not check, create or update");
}

::testing::AssertionResult Golden::gleich(const std::string& Datei, const std::string& Bytes) const {
    const fs::path Pfad = fs::path(Ordner_) / Datei;
    const auto Soll = lies(Pfad);
    if (Modus_ == Goldenmodus::erneuern || (Modus_ == Goldenmodus::anlegen && !Soll)) {
        if (!schreibe(Pfad, Bytes)) return ::testing::AssertionFailure() << "cannot write " << Pfad;
        return ::testing::AssertionSuccess();
    }
    if (!Soll) return ::testing::AssertionFailure() << "there is no " << Pfad;
    if (*Soll == Bytes) return ::testing::AssertionSuccess();
    const auto [Stelle, _] = std::mismatch(Soll->begin(), Soll->end(), Bytes.begin(), Bytes.end());
    const auto Byte = static_cast<std::size_t>(Stelle - Soll->begin());
    return ::testing::AssertionFailure() << Pfad << ", line " << std::count(Soll->begin(), Stelle, '\n') + 1 << ": expected "
                                         << Zeile_um(*Soll, Byte) << ", got " << Zeile_um(Bytes, Byte);
}

}  // namespace varnok::probe
