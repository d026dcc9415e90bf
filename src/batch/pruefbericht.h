#pragma once

// What is wrong or doubtful in the files of a project, found without a calculation.

#include <string>
#include <vector>

#include "base/bemerkung.h"
#include "records/projektordner.h"

namespace varnok::batch {

// A finding: a remark about a value, or a fault that keeps simulations from being calculated.
struct Befund {
    Bemerkung Stelle;  // its file under its path in the project
    bool Mangel = false;
};

// Every record, template, simulation and climate file, also what no simulation names; file by file.
std::vector<Befund> pruefe_Projekt(const Projektordner& Ordner);
// The findings about one record.
std::vector<Befund> pruefe_Satz(const Projektordner& Ordner, const std::string& Name, Satzart Art);

// input/X.che:11: remark: KOC (L/kg), parent: only its beginning is a number (7x5 -> 7)
std::string als_Zeile(const Befund& b);

// The list for machines: keys or columns file, line, kind, field, message, text, value.
std::string Befunde_als_JSON(const std::vector<Befund>& Befunde);
std::string Befunde_als_CSV(const std::vector<Befund>& Befunde);

// A row for each record with all its values; UTF-8, the columns the same for every kind.
std::string Satztabelle(const Projektordner& Ordner);

}  // namespace varnok::batch
