#pragma once

// Findings and records as texts.

#include <string>
#include <vector>

#include "records/pruefung.h"

namespace varnok::batch {

// input/X.che:11: remark: KOC (L/kg), parent: only its beginning is a number (7x5 -> 7)
std::string als_Zeile(const Befund& b);

// The list for machines: keys or columns file, line, kind, field, message, text, value.
std::string Befunde_als_JSON(const std::vector<Befund>& Befunde);
std::string Befunde_als_CSV(const std::vector<Befund>& Befunde);

// A row for each record with all its values; UTF-8, the columns the same for every kind.
std::string Satztabelle(const Projektordner& Ordner);

}  // namespace varnok::batch
