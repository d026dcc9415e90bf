#pragma once

#include <map>
#include <string>

#include "records/projektordner.h"
#include "run/eingabe.h"

namespace varnok::batch {

// What is added to the names of reports so that none replaces that of another simulation or study of the project. Decided over
// the whole project: the same for every call and every shard. Case does not tell names apart.
class Berichtsnamen {
public:
    Berichtsnamen() = default;
    explicit Berichtsnamen(const Projektordner& Ordner);

    // Behind the names of a simulation's reports; empty where its description names it alone.
    std::string Simulationszusatz(const std::string& Simulation) const;

private:
    std::map<std::string, std::string> Zusaetze_;
};

// What tells the reports of the studies of a record apart; empty where the name of the report names the study alone.
std::string Studienzusatz(const Eingabe& e, int i_studie);

}  // namespace varnok::batch
