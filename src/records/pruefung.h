#pragma once

// What is wrong or doubtful in the files of a project, found without a calculation.

#include <memory>
#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "records/projektordner.h"
#include "run/eingabe.h"
#include "run/ergebnisspeicher.h"

namespace varnok {

// A finding: a remark about a value, or a fault that keeps simulations from being calculated.
struct Befund {
    Bemerkung Stelle;  // its file under its path in the project
    bool Mangel = false;
};

class Projektpruefer {
public:
    explicit Projektpruefer(const Projektordner& Ordner);
    ~Projektpruefer();

    // Every record, template, simulation and climate file, also what no simulation names; file by file.
    std::vector<Befund> pruefe();
    // The findings about one record, as a file or as bytes.
    std::vector<Befund> pruefe_Satz(const std::string& Name, Satzart Art);
    std::vector<Befund> pruefe_Satz(const std::string& Bytes, const std::string& Name, Satzart Art);

private:
    std::vector<Befund> pruefe_Simulation(const std::string& Name) const;
    std::vector<Befund> pruefe_Klimadatei(const std::string& Name) const;

    Projektordner Ordner_;
    std::unique_ptr<Ergebnisspeicher> Speicher_;  // where an application pattern is tried
};

}  // namespace varnok
