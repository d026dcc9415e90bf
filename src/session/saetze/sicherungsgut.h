#pragma once

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "records/sicherung.h"
#include "session/kern/schauplatz.h"

namespace varnok {

// What goes into `backup` before a command replaces or drops it, and what cannot be kept.
struct Sicherungsgut {
    std::vector<Sicherungsstueck> Stuecke;
    std::vector<std::string> Gruende;  // why something cannot be kept, one text for each

    // A file as it is on the disk.
    void nimm_Datei(const std::string& Pfad, const std::string& Dateiname);
    void nimm(Sicherungsgut anderes);
};

// The user does not want a command done that drops what cannot be kept. Ends the command without a further message.
class Befehl_aufgegeben : public std::exception {
public:
    const char* what() const noexcept override { return "The command was given up."; }
};

// Puts it into `backup`; the status line names the place. What cannot be kept is told, and the user asked whether to go on: where
// not, throws `Befehl_aufgegeben`.
void sichere(Schauplatz& z, const Sicherungsgut& Gut);

// Before a command on the files of the project: throws Laufzeitfehler where that is open for reading only.
void verlange_Schreibrecht(const Schauplatz& z);

}  // namespace varnok
