#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/aufruf.h"
#include "batch/schreiber.h"
#include "records/dateien.h"
#include "records/projektordner.h"

namespace varnok::batch {

// Looks whether the outputs of the call can be written, before any work is done, and makes the folder of the
// series. Throws Aufruffehler: no such folder, a folder in a file's place, a target among the input files.
void bereite_Ausgaben_vor(const Aufruf& a, const Projektordner& Ordner);

// Table, JSON and CSV as far as asked for. They grow while the work goes on and take the place of an old file at the end.
class Ausgaben {
public:
    // How a text goes to standard output.
    using Standardausgabe = std::function<void(std::string_view)>;

    Ausgaben(const Aufruf& a, Standardausgabe aus);

    // What each output tells of a simulation. Several threads call it at once.
    std::vector<std::string> Stuecke(const Simulationsausgang& a) const;
    // Puts it where it belongs; in the order of the call.
    void schreibe(std::vector<std::string> Stuecke, bool gescheitert);

    // Ends the outputs. Returns what could not be written, one text for each.
    std::vector<std::string> beende();

private:
    struct Ausgabe {
        std::unique_ptr<Schreiber> Dokument;
        std::string Ziel;
        std::unique_ptr<Dateischreiber> Datei;  // null: standard output
        std::string wartend;                    // not written yet
        std::optional<std::string> Fehler;      // from there on nothing is written
    };

    void fuege_hinzu(std::unique_ptr<Schreiber> Dokument, const std::string& Ziel);
    void leere(Ausgabe& a) const;
    template <class Handlung>
    void versuche(Ausgabe& a, Handlung h) const;

    Standardausgabe aus_;
    std::vector<Ausgabe> Ausgaben_;
};

}  // namespace varnok::batch
