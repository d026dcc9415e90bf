#pragma once

// The files that the program leaves in the folder `output`: reports, and the by-products of drawing and calculating.

#include <set>
#include <string>

#include "diagrams/diagramm.h"
#include "exposure/ergebnis.h"
#include "records/projektordner.h"
#include "records/schreibort.h"

namespace varnok {

inline constexpr const char* Berichtsendung = ".rtf";
inline constexpr const char* Laufprotokoll_Name = "test.txt";

// The project's folder for output, also where it does not exist yet.
std::string Ausgabeordner(const Projektordner& Ordner);

// Writes a file into a folder, over one of that name in whatever case. The folder is made when it is missing. Neither leaves
// the limits of `Ort`.
// Returns the path. Throws Laufzeitfehler that names what could not be made and the reason.
std::string schreibe_Ausgabedatei(const std::string& Ordner, const std::string& Dateiname, const std::string& Bytes,
                                  const Schreibort& Ort = als_Datei);

// What the run of a study leaves for diagnosis: a line for each day 0 to 3649 of the last compound of the scheme,
// tab separated: day, series in tillage depth and in soil depth (total soil), then the amounts formed of the first and
// the second metabolite in the tillage depth. Needs a result with series.
std::string Laufprotokoll(const Ergebnis& e);

// By-products never stop a drawing or a run: what goes wrong with a file is told once as long as the object lives.
class Nebenausgaben {
public:
    // The texts return what to tell the user, empty if there is nothing to tell.
    // The text file of a drawing: the day series goes to `output`, the numbers of a summary diagram beside it.
    std::string schreibe_Zeichnung(const Projektordner& Ordner, const Diagramm& d);
    std::string schreibe_Laufprotokoll(const Projektordner& Ordner, const Ergebnis& e);

private:
    std::string schreibe(const Projektordner& Projekt, const std::string& Ordner, const std::string& Dateiname,
                         const std::string& Bytes);

    std::set<std::string> gemeldet_;
};

}  // namespace varnok
