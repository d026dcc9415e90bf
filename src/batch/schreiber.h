#pragma once

// The writers of results: each turns the same structs into a text.

#include <memory>
#include <string>
#include <vector>

#include "batch/simulationsergebnis.h"

namespace varnok::batch {

// A document that is written simulation by simulation, so that the results of thousands need not be held.
class Schreiber {
public:
    virtual ~Schreiber() = default;

    // What the document tells of a simulation. Several threads call it at once, each where it calculated.
    virtual std::string Stueck(const Simulationsausgang& a) const = 0;

    // The document from its beginning to its end: the pieces of all simulations in the order of the call.
    virtual std::string Anfang() { return {}; }
    virtual std::string naechstes(std::string Stueck, bool gescheitert) = 0;
    virtual std::string Ende() { return {}; }
};

// What the call wants to see of each simulation besides its results.
struct Schreibumfang {
    bool mit_Eingaben = false;
    bool mit_Position = false;                     // of a shard's outputs
    std::vector<std::string> Variantennamen = {};  // columns of a table
};

// UTF-8; calculated simulations under "simulations", the others under "errors". A single precision value is
// written as the double that it widens to, so it reads back unchanged.
std::unique_ptr<Schreiber> JSON_Schreiber(const Schreibumfang& u = {});

// The same objects, each on a line of its own in the order of the call; one that failed is a line with its `error`.
std::unique_ptr<Schreiber> Zeilenschreiber(const Schreibumfang& u = {});

// A header line, then a row for each simulation, study, compound and endpoint, after RFC 4180 (CR LF). Columns for
// twelve averaging windows; those of a shorter list are empty.
std::unique_ptr<Schreiber> CSV_Schreiber(const Schreibumfang& u = {});

// For the eye: for each simulation and endpoint a table of peaks, plateaus and averages.
std::unique_ptr<Schreiber> Tabellenschreiber(const Schreibumfang& u = {});

// The whole document at once.
std::string als_Text(Schreiber& s, const std::vector<Simulationsausgang>& Ausgaenge);
std::string als_JSON(const std::vector<Simulationsausgang>& Ausgaenge);

}  // namespace varnok::batch
