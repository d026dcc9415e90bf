#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace varnok::batch {

// Stands at the end of what is wrong with the options.
inline constexpr const char* Hilfehinweis = "\nRun varnok-batch --help for the options.";

// The call itself is wrong, or an output cannot be written: exit status 2. The text is shown as it stands.
class Aufruffehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

inline constexpr const char* Standardausgabe = "-";

// What the command line asks for. An empty file or folder name: not asked for.
struct Aufruf {
    std::string Projekt;
    std::vector<std::string> Simulationen;  // as typed
    bool alle = false;
    std::optional<int> Studie;  // counted from 1
    std::string JSON_Datei;
    std::string CSV_Datei;
    std::string Serienordner;
    std::string Berichtsordner;
    bool erweitert = false;  // the report of all studies, too
    std::string Einstellungsdatei;
    int Arbeiter = 0;      // 0: one per core
    bool geteilt = false;  // the outputs are parts of a whole and tell the position of what they hold
    int Teil = 0;          // of the chosen simulations and their variants those whose position modulo `Teile` is `Teil`
    int Teile = 1;
    bool leise = false;

    std::vector<std::string> Vorgaben;  // NAME=VALUE as typed
    std::string Variantendatei;
    std::string Stichprobendatei;
    std::size_t Ziehungen = 0;
    std::uint32_t Saat = 1;
    std::string Zusammenfassungsdatei;
    std::string Zeilendatei;  // JSON lines
    bool fortsetzen = false;  // what this file holds is kept
    std::string Datenbank;
    std::string volle_Serien;  // folder
    bool mit_Eingaben = false;
    bool pruefen = false;                  // the records are read and nothing is calculated
    std::string Satztabelle;               // a row for each record
    std::vector<std::string> Teildateien;  // of shards to be joined; no project then

    bool Varianten() const { return !Variantendatei.empty() || !Stichprobendatei.empty(); }
    bool Ausgabe_verlangt() const {
        for (const std::string* Ziel : {&JSON_Datei, &CSV_Datei, &Serienordner, &Berichtsordner, &Zusammenfassungsdatei,
                                        &Zeilendatei, &Datenbank, &volle_Serien, &Satztabelle}) {
            if (!Ziel->empty()) return true;
        }
        return false;
    }
    bool Tabelle() const { return !leise && !Ausgabe_verlangt(); }
    bool mit_Reihen() const { return !Serienordner.empty() || !volle_Serien.empty(); }
};

// A text that was asked for instead of a calculation: help or version.
struct Auskunft {
    std::string Text;
};

// Throws Aufruffehler for options that are unknown, incomplete, out of range or contradict each other.
std::variant<Aufruf, Auskunft> lies_Aufruf(int argc, const char* const* argv);

}  // namespace varnok::batch
