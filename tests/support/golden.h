#pragma once

// Bytes that a test holds its result to, kept in a file of tests/golden. The environment variable
// VARNOK_GOLDEN says what happens to them: "check" (or nothing) compares, "create" writes those that
// are missing, "update" writes all anew. An update belongs into a change of its own.

#include <gtest/gtest.h>

#include <string>

namespace varnok::probe {

enum class Goldenmodus { pruefen, anlegen, erneuern };

// Throws std::invalid_argument for a value that is none of the three.
Goldenmodus Goldenmodus_aus_Umgebung();

class Golden {
public:
    // `Ordner` is that of the files; it is made where a file is written.
    explicit Golden(std::string Ordner, Goldenmodus Modus = Goldenmodus_aus_Umgebung())
        : Ordner_(std::move(Ordner)), Modus_(Modus) {}

    // Whether `Bytes` are those of the file; tells the first line that differs. A missing file fails
    // unless the mode writes it.
    ::testing::AssertionResult gleich(const std::string& Datei, const std::string& Bytes) const;

private:
    std::string Ordner_;
    Goldenmodus Modus_;
};

}  // namespace varnok::probe
