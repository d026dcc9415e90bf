#pragma once

// What the screen shows and no file holds, in one file `backup/unsaved` of the project, for the case that the program does not
// come to its end.

#include <optional>
#include <string>
#include <vector>

#include "records/projektordner.h"
#include "records/sicherung.h"

namespace varnok {

struct Zwischenstand {
    std::string Simulation;                 // on the screen
    std::string Zusammenfassung;            // the bytes of its summary file, were it saved now
    std::vector<Sicherungsstueck> Stuecke;  // the records, named as they would be kept in `backup`

    friend bool operator==(const Zwischenstand&, const Zwischenstand&) = default;
};

// One text, and back: nothing for bytes that are none of these texts.
std::string als_Bytes(const Zwischenstand& z);
std::optional<Zwischenstand> zerlege_Zwischenstand(const std::string& Bytes);

// The bytes of the file, nothing without one. Throws Laufzeitfehler where there is one that cannot be read.
std::optional<std::string> lies_Zwischenstand(const Projektordner& Ordner);
// In one step: the state before or this one. Throws Laufzeitfehler; also where a link would lead out of the project.
void schreibe_Zwischenstand(const Projektordner& Ordner, const Zwischenstand& z);
void loesche_Zwischenstand(const Projektordner& Ordner);

}  // namespace varnok
