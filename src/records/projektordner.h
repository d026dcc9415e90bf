#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varnok {

// Kinds of record; the number indexes `Endungen`.
enum Satzart {
    Simulation = 0,
    Wirkstoff = 1,
    Applikation = 2,
    Szenario = 3,
    Vorlage_Wirkstoff = 4,
    Vorlage_Applikation = 5,
    Vorlage_Szenario = 6
};

// What the selectors choose from, in their order; of these, what holds inputs.
inline constexpr std::array alle_Arten = {Simulation, Wirkstoff, Applikation, Szenario};
inline constexpr std::array Eingabearten = {Wirkstoff, Applikation, Szenario};

inline constexpr std::array<const char*, 7> Endungen = {".vnk", ".che", ".app", ".sce", ".chn", ".apn", ".scn"};
inline constexpr const char* Klima_Endung = ".cli";
inline constexpr std::array<const char*, 4> Satzart_Namen = {"", "pesticide", "application", "scenario"};

// The folder that holds `input` and `output`. Folders and files are found without regard to case; an
// exact match wins. All texts are UTF-8.
class Projektordner {
public:
    // Throws Laufzeitfehler if there is no such folder.
    explicit Projektordner(const std::string& Pfad);

    // The same folder with the content of `input` as it is now: for who looks up thousands of records and neither makes nor
    // drops one. Copies share what was read.
    Projektordner mit_Verzeichnis() const;

    const std::string& Pfad() const { return Pfad_; }
    // Path of the folder `input`, also where it does not exist yet.
    std::string Eingabeordner() const;
    // How messages name a file of `input`: "input/X.che".
    std::string Eingabedatei(const std::string& Dateiname) const;
    // Path of another folder of the project, such as `output`.
    std::string Unterordner(const std::string& Name) const;

    // Path of an existing file of `input`, nothing without one or for a name that no file there can
    // have. A folder of that name is found too, so that opening it tells what stands in the way.
    std::optional<std::string> finde(const std::string& Name, const std::string& Endung) const;

    // Path under which a file of `input` is written: the existing one, else the new one. Throws
    // Laufzeitfehler for a name that cannot be a file of that folder.
    std::string Zielpfad(const std::string& Name, const std::string& Endung) const;

    // Names of the files of `input` with that extension, without it, in the order of a
    // case-insensitive sort: what a selector shows.
    std::vector<std::string> Namen(const std::string& Endung) const;

    // Whether `Namen(Endung)` holds that name, letter for letter.
    bool enthaelt(const std::string& Name, const std::string& Endung) const;

private:
    class Verzeichnis;

    std::shared_ptr<const Verzeichnis> Eingabeverzeichnis() const;

    std::string Pfad_;
    std::shared_ptr<const Verzeichnis> gelesenes_;  // null: read anew each time
};

// Empty for a name that can be that of a record, else what is wrong with it: empty, "." or "..", a
// slash or backslash, a control character, too long for a file name.
std::string Einwand_gegen_Namen(const std::string& Name);

}  // namespace varnok
