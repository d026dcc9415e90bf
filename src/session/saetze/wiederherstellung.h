#pragma once

#include <string>
#include <vector>

#include "session/kern/eingabestand.h"
#include "session/saetze/satzverwaltung.h"
#include "session/saetze/satzwaechter.h"

namespace varnok {

// A record in a backup.
struct Gesichertes {
    // How it stands to the file that has its name now.
    enum class Abgleich { gleich, anders, fehlt };

    std::string Sicherung;  // date and time
    std::string Dateiname;  // in the backup
    Satzart Art = Simulation;
    std::string Name;          // of the record that it comes back as
    bool ungesichert = false;  // values that no file held
    Abgleich Stand = Abgleich::gleich;

    // "differs from now"
    const char* Standtext() const;
};

// "File, Restore...": what the backups hold, what of it differs from now, and some of it brought back.
class Wiederherstellung {
public:
    Wiederherstellung(Eingabestand& z, Satzverwaltung& Saetze) : z_(z), Saetze_(Saetze) {}

    // The newest backup first. What could not come back as a record is left out.
    std::vector<Gesichertes> Angebot() const;
    // The lines in which it differs from the file of now, for the eye; a text that says so where there is nothing to compare.
    std::string Unterschiede(const Gesichertes& g) const;
    // Brings records back. What they replace, and what was entered for them, is in `backup` before; what the screen shows of them
    // is read anew. Throws Laufzeitfehler before any file is touched where one cannot be brought back.
    void stelle_her(const std::vector<Gesichertes>& Gewaehlte);

private:
    struct Auftrag {
        Satzart Art;
        std::string Name;
        std::string Pfad;
        std::string Bytes;
    };
    std::vector<Auftrag> stelle_zusammen(const std::vector<Gesichertes>& Gewaehlte) const;
    Sicherungsgut ersetztes(const std::vector<Auftrag>& Auftraege) const;
    bool steht_auf_dem_Schirm(const Auftrag& a) const;

    Eingabestand& z_;
    Satzverwaltung& Saetze_;
    Satzwaechter Waechter_{z_};
};

}  // namespace varnok
