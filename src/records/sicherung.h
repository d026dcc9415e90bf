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
// ("backup/2026-03-01 10-15-00"); the oldest folders beyond `Hoechstzahl_Sicherungen` go. Without a piece nothing is made and
// the path is empty. Throws Laufzeitfehler that names the folder or file that cannot be written.
std::string sichere(const Projektordner& Ordner, const Uhr& Zeit, const std::vector<Sicherungsstueck>& Stuecke);

}  // namespace varnok
