#pragma once

// What a command overwrites or drops goes into the folder `backup` of the project first.

#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "records/projektordner.h"

namespace varnok {

struct Sicherungsstueck {
    std::string Dateiname;  // with its extension
    std::string Bytes;

    friend bool operator==(const Sicherungsstueck&, const Sicherungsstueck&) = default;
};

inline constexpr std::size_t Hoechstzahl_Sicherungen = 50;

// Writes the pieces into a new folder named after date and time and gives its path below the project
// ("backup/2026-03-01 10-15-00"); the oldest folders beyond `Hoechstzahl_Sicherungen` go. What the newest folder holds already is
// not kept again: where that is all, its path is given. Without a piece nothing is made and the path is empty. Throws
// Laufzeitfehler that names the folder or file that cannot be written; then there is no new folder, and none went.
std::string sichere(const Projektordner& Ordner, const Uhr& Zeit, const std::vector<Sicherungsstueck>& Stuecke);

// A backup and the files in it, by name.
struct Sicherungsordner {
    std::string Name;  // date and time
    std::vector<std::string> Dateien;
};

// The backups of a project, the newest first. What is no folder or no file of the program's making is left out.
std::vector<Sicherungsordner> Sicherungen(const Projektordner& Ordner);

// The bytes of a file in a backup. Throws Laufzeitfehler.
std::string lies_Sicherung(const Projektordner& Ordner, const std::string& Sicherung, const std::string& Dateiname);

}  // namespace varnok
