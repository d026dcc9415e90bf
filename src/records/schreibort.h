#pragma once

// What may be written where: the one place that knows links. Whoever makes, replaces or removes a file or a folder asks here.
// Paths and messages are UTF-8.

#include <string>

namespace varnok {

enum class Schreibweise {
    Ausgabe,   // the user said where: a link is replaced, never its target; a device or a pipe is written to as it stands
    Satz,      // an input record: a link to a file of its kind is written through, one to nothing is replaced
    Datei,     // as `Ausgabe`, but plain files alone, and nothing in a folder outside of `Grenze`
    ungefragt  // as `Datei`, and a link to outside of it is not even replaced: somebody put it there
};

struct Schreibort {
    Schreibweise Weise = Schreibweise::Ausgabe;
    std::string Grenze = {};  // the folder that must not be left with `Datei` and `ungefragt`; empty: anywhere
};

inline const Schreibort als_Satz{Schreibweise::Satz};
inline const Schreibort als_Datei{Schreibweise::Datei};

// The path whose place the new file takes, no link any more. Throws Laufzeitfehler that names the file and why it is not written.
std::string Schreibziel(const std::string& Pfad, const Schreibort& Ort);

// Whether a file or folder, or the place where one would be made, lies elsewhere than in `Ordner` once links are followed.
bool liegt_ausserhalb(const std::string& Pfad, const std::string& Ordner);

// Whether there is something of that name that is neither a plain file nor a folder nor a link to one.
bool ist_Geraet(const std::string& Pfad);

// Whether files can be made in a folder. A disk that is full counts as writable, and so does a folder that is yet to be made.
bool ist_beschreibbar(const std::string& Ordner);

// Makes a folder and those above it. Throws Laufzeitfehler that names it and the reason; with `Grenze` also where it would lie
// outside of that folder.
void lege_Ordner_an(const std::string& Pfad, const std::string& Grenze = {});

// Removes a folder with all that is in it. Links in it go, what they lead to stays; a link in its own place is left alone, and so
// is what lies outside of `Grenze`. What cannot be removed stays without a word.
void entferne_Ordner(const std::string& Pfad, const std::string& Grenze);

}  // namespace varnok
