#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace varnok::batch {

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
    int Arbeiter = 0;  // 0: one per core
    int Teil = 0;      // of the chosen simulations those whose position modulo `Teile` is `Teil`
    int Teile = 1;
    bool leise = false;

    bool Tabelle() const {
        return !leise && JSON_Datei.empty() && CSV_Datei.empty() && Serienordner.empty() && Berichtsordner.empty();
    }
};

// A text that was asked for instead of a calculation: help or version.
struct Auskunft {
    std::string Text;
};

// Throws Aufruffehler for options that are unknown, incomplete, out of range or contradict each other.
std::variant<Aufruf, Auskunft> lies_Aufruf(int argc, const char* const* argv);

}  // namespace varnok::batch
