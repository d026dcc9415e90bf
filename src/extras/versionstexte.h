#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnok {

// A release: its date as its heading writes it, and its notes of one or more lines each.
struct Version {
    const char* Datum;
    std::vector<std::vector<const char*>> Notizen;
};

// The newest first.
std::span<const Version> Versionen();

// The release notes, each line ended by CR LF: a heading for each release, a separator behind each note. The heading of the
// oldest ends the text.
std::string Versionstext();

// What is new in this edition of the program.
std::vector<std::string> Ausgabenotizen();

// Whether a line of that text is a heading, or a separator.
bool ist_Versionskopf(std::string_view Zeile);
bool ist_Trennzeile(std::string_view Zeile);

}  // namespace varnok
