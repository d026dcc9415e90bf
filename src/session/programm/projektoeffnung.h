#pragma once

#include <string>
#include <vector>

#include "session/saetze/satzverwaltung.h"

namespace varnok {

// A project or a simulation that was open before.
struct Zuletztes {
    std::string Pfad;        // of the folder or of the summary file
    std::string Aufschrift;  // a simulation of this project by its name alone
    bool vorhanden = true;

    friend bool operator==(const Zuletztes&, const Zuletztes&) = default;
};

// Other projects beside the one in this window, and what the user opened last, in whatever window.
class Projektoeffnung {
public:
    Projektoeffnung(Eingabestand& z, Satzverwaltung& Saetze) : z_(z), Saetze_(Saetze) {}

    // A project folder or a summary file: a simulation of the project in this window is loaded here, anything else gets a window
    // of its own. What cannot be opened is told.
    void oeffne(const std::string& Pfad);

    // Behind an action: what this window shows comes first in the file of what was open last. For a convenience no message is
    // shown: a file that cannot be written stays as it is.
    void merke();
    // What was open last, the last first, without what this window shows.
    std::vector<Zuletztes> Projekte() const;
    std::vector<Zuletztes> Simulationen() const;

private:
    void oeffne_hier(const std::string& Simulation);
    bool ist_hier(const std::string& Ordner) const;

    Eingabestand& z_;
    Satzverwaltung& Saetze_;
    std::string gemerkt_;
};

}  // namespace varnok
