#pragma once

#include <memory>
#include <string>

#include "batch/teilleser.h"

namespace varnok::batch {

// The entries of a database of a shard, only to be looked through. Throws Aufruffehler for one without positions.
std::unique_ptr<Teilleser> Datenbankpositionen(const std::string& Datei);

// The database that others are joined into.
class Datenbankverbund {
public:
    explicit Datenbankverbund(const std::string& Ziel);
    ~Datenbankverbund();

    // The entries of a database of a shard. Throws Aufruffehler for one without positions.
    std::unique_ptr<Teilleser> Teil(const std::string& Datei, const Teilwunsch& w);
    void beende();

private:
    class Kopierwerk;

    std::unique_ptr<Kopierwerk> Werk_;
};

}  // namespace varnok::batch
