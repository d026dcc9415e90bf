#include "extras/signatur.h"

#include <sodium.h>

#include <array>
#include <optional>

namespace varnok {
namespace {

using Schluesselbytes = std::array<unsigned char, crypto_sign_PUBLICKEYBYTES>;

std::optional<Schluesselbytes> lies_Schluessel(std::string_view Hex) {
    Schluesselbytes Bytes{};
    std::size_t Anzahl = 0;
    if (Hex.size() != 2 * Bytes.size()) return std::nullopt;
    if (sodium_hex2bin(Bytes.data(), Bytes.size(), Hex.data(), Hex.size(), nullptr, &Anzahl, nullptr) != 0) return std::nullopt;
    return Anzahl == Bytes.size() ? std::optional(Bytes) : std::nullopt;
}

const unsigned char* als_Bytes(std::string_view Text) { return reinterpret_cast<const unsigned char*>(Text.data()); }

}  // namespace

std::string signierter_Text(std::string_view Version, std::string_view Datei, std::string_view Programm) {
    std::string Text;
    Text.reserve(Version.size() + Datei.size() + Programm.size());
    return Text.append(Version).append(Datei).append(Programm);
}

bool Signatur_passt(std::string_view Signatur, std::string_view Text, std::string_view Schluessel) {
    if (sodium_init() < 0 || Signatur.size() != crypto_sign_BYTES) return false;
    const auto Bytes = lies_Schluessel(Schluessel);
    return Bytes && crypto_sign_verify_detached(als_Bytes(Signatur), als_Bytes(Text), Text.size(), Bytes->data()) == 0;
}

}  // namespace varnok
