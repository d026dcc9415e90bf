#pragma once

#include <string>
#include <vector>

#include "session/saetze/satzverwaltung.h"

namespace varnok {

inline constexpr const char* Endung_Laden = ".txt";

// What stands behind the dialogs `Eingabedaten_Laden` and `Eingabedaten_Speichern_unter`: a reserve that no command opens.
class Eingabedateien {
public:
    Eingabedateien(Zustand& z, Satzverwaltung& Saetze) : z_(z), Saetze_(Saetze) {}

    // The files of a folder with that extension, and whether they may be deleted there.
    static std::vector<std::string> Dateien(const std::string& Ordner, const std::string& Endung);
    bool darf_loeschen(const std::string& Ordner) const;

    // The name goes to the selector of simulations, the compound record in use is read again, the results are covered.
    void lade(const std::string& Dateiname);
    // Summary file and records; false if it was refused, the message has been shown.
    bool speichere(const std::string& Dateiname);
    // Deletes a file of the input folder, and of no other; it is in `backup` before.
    void loesche(const std::string& Ordner, const std::string& Dateiname);

private:
    void zeige_als_Simulation(const std::string& Name);

    Zustand& z_;
    Satzverwaltung& Saetze_;
};

}  // namespace varnok
