#pragma once

// What is doubtful about a value of a file, worded the same for every kind of file.

#include <string>
#include <string_view>

#include "base/wertebereiche.h"
#include "base/zahlen.h"

namespace varnok {

// Empty for a text that is one number as a whole and was taken as such; else why not. `genommen` is what became of the number.
std::string Einwand_gegen_Zahl(const Zahllesung& l, double genommen);

// Empty for a value that its field accepts and that is usual.
std::string Einwand_gegen_Wert(const Wertebereich& w, double Wert);

// A text of a file for a message, shortened where it is long.
std::string Auszug(std::string_view Bytes);

}  // namespace varnok
