#pragma once

#include <sodium/crypto_hash_sha256.h>
#include <string>
#include <string_view>

namespace varnok {

// SHA-256 over what a result comes from: files, each preceded by its length as eight bytes, least significant first; then values
// as name=value and a line feed. A copy goes on from where the original stands.
class Eingabensumme {
public:
    Eingabensumme();

    void nimm_Datei(std::string_view Bytes);
    void nimm_Wert(std::string_view Name, std::string_view Wert);

    // 64 hexadecimal digits.
    std::string als_Text() const;

private:
    void nimm(std::string_view Bytes);

    crypto_hash_sha256_state Zustand_;
};

// How a report or a table names such a sum.
inline constexpr std::string_view Eingabensummenname = "inputs_sha256";

}  // namespace varnok
