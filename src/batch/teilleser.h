#pragma once

// The outputs of shards, read entry by entry.

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/perzentile.h"

namespace varnok::batch {

// What a part holds of one simulation or variant.
struct Teileintrag {
    std::size_t Position = 0;
    std::string Text;          // as the joined output has it, without the position
    bool gescheitert = false;  // an error without results
    // For the summary.
    std::string Simulation;
    std::vector<Kennwerte> Werte;
    // Of a database: takes the rows over and finds the values, once its turn has come.
    std::function<void(Teileintrag&)> uebernimm;
};

// How far the summary's share of the plateau goes where the part does not tell.
struct Teilwunsch {
    bool mit_Kennwerten = false;
    Fruchtfolge Fruchtwechsel = jedes_Jahr;
};

// One part, or one of its lists, in rising order of the positions. Throws Aufruffehler that names file and line for what no shard
// has written.
class Teilleser {
public:
    virtual ~Teilleser() = default;
    // Nothing at the end.
    virtual std::optional<Teileintrag> naechster() = 0;
};

enum class JSON_Liste { Simulationen, Fehler };

std::unique_ptr<Teilleser> JSON_Teil(const std::string& Datei, JSON_Liste Liste, const Teilwunsch& w);
std::unique_ptr<Teilleser> Zeilenteil(const std::string& Datei, const Teilwunsch& w);
// `Kopf` is the head line of the joined table: empty before the first part, and the same in each.
std::unique_ptr<Teilleser> CSV_Teil(const std::string& Datei, std::string& Kopf, const Teilwunsch& w);

}  // namespace varnok::batch
