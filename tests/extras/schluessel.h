#pragma once

#include <sodium.h>

#include <array>
#include <string>

namespace varnok {

// A maker of programs for the tests: the same keys each time.
class Testschluessel {
public:
    explicit Testschluessel(unsigned char Samen = 1) {
        std::array<unsigned char, crypto_sign_SEEDBYTES> Bytes{};
        Bytes.fill(Samen);
        crypto_sign_seed_keypair(oeffentlich_.data(), geheim_.data(), Bytes.data());
    }

    std::string Hex() const {
        constexpr const char* Ziffern = "0123456789abcdef";
        std::string Text;
        for (const unsigned char b : oeffentlich_) Text.append(1, Ziffern[b >> 4]).append(1, Ziffern[b & 15]);
        return Text;
    }

    std::string signiere(const std::string& Text) const {
        std::string Signatur(crypto_sign_BYTES, '\0');
        crypto_sign_detached(reinterpret_cast<unsigned char*>(Signatur.data()), nullptr,
                             reinterpret_cast<const unsigned char*>(Text.data()), Text.size(), geheim_.data());
        return Signatur;
    }

private:
    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> oeffentlich_{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> geheim_{};
};

}  // namespace varnok
