#include "records/eingabensumme.h"

#include <array>
#include <cstdint>

namespace varnok {

Eingabensumme::Eingabensumme() { crypto_hash_sha256_init(&Zustand_); }

void Eingabensumme::nimm(std::string_view Bytes) {
    crypto_hash_sha256_update(&Zustand_, reinterpret_cast<const unsigned char*>(Bytes.data()), Bytes.size());
}

void Eingabensumme::nimm_Datei(std::string_view Bytes) {
    std::array<char, 8> Laenge;
    for (std::size_t i = 0; i < Laenge.size(); ++i)
        Laenge[i] = static_cast<char>(static_cast<std::uint64_t>(Bytes.size()) >> (8 * i) & 0xFF);
    nimm({Laenge.data(), Laenge.size()});
    nimm(Bytes);
}

void Eingabensumme::nimm_Wert(std::string_view Name, std::string_view Wert) {
    nimm(Name);
    nimm("=");
    nimm(Wert);
    nimm("\n");
}

std::string Eingabensumme::als_Text() const {
    crypto_hash_sha256_state Kopie = Zustand_;
    std::array<unsigned char, crypto_hash_sha256_BYTES> Summe;
    crypto_hash_sha256_final(&Kopie, Summe.data());
    constexpr std::string_view Ziffern = "0123456789abcdef";
    std::string Text;
    for (const unsigned char Byte : Summe) {
        Text += Ziffern[Byte >> 4];
        Text += Ziffern[Byte & 0xF];
    }
    return Text;
}

}  // namespace varnok
