#pragma once

// The three kinds of input record: compound, application pattern, scenario. Windows-1252 text with CR
// LF, read by line position; labels are written and never compared.

#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "base/laufzeitfehler.h"
#include "records/projektordner.h"
#include "run/ansicht.h"
#include "run/eingabe.h"

namespace varnok {

enum class Leseausgang {
    gelesen,      // also where the file ends early, but behind all that a run needs; a remark says where
    abgebrochen,  // reading ended before all that a run needs was read; nothing was changed
    fehlt,        // there is no such file; nothing was changed
};

struct Lesebefund {
    Leseausgang Ausgang = Leseausgang::gelesen;
    Fehlerort Ort;      // where reading was broken off
    std::string Grund;  // why
    std::vector<Bemerkung> Bemerkungen;
};

// Reads a record of the types 1 to 6 (a template reads as its kind) into the input; two lines of a record are choices of the
// view. Values that pass through a number come back in general form with `Dezimalzeichen`. A remark tells of each text that is
// not one number as a whole, and of each value outside the range of its field where a run of the record reads it. Throws
// Laufzeitfehler that names file, line and fault where the record cannot be used; input and view are then as they were.
Lesebefund Satz_lesen(const Projektordner& Ordner, const std::string& Name, Satzart Art, Eingabe& e, Ansicht& a,
                      char Dezimalzeichen = '.');

// The same from bytes; `Datei` names the source in messages.
Lesebefund Satz_lesen_aus(const std::string& Bytes, const std::string& Datei, Satzart Art, Eingabe& e, Ansicht& a,
                          char Dezimalzeichen = '.');

// Writes a record of the types 1 to 3 over any file of that name; other
// types write nothing. Throws Laufzeitfehler: the name is none, a text has a character without a place
// in Windows-1252 (or a tab or line end), the file cannot be written. The old file is then untouched.
void Satz_schreiben(const Projektordner& Ordner, const std::string& Name, Satzart Art, const Eingabe& e, const Ansicht& a,
                    char Dezimalzeichen = '.');

// The bytes that `Satz_schreiben` writes.
std::string Satz_als_Bytes(Satzart Art, const Eingabe& e, const Ansicht& a, char Dezimalzeichen = '.');

}  // namespace varnok
