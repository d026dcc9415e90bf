#pragma once

#include <string>

namespace varnok {

// Who developed the program and who sponsored it: the file "about.txt" (Windows-1252) of the installed data, which those
// who deploy the program supply. Each line ends in CR LF. Without the file, a line that says so.
std::string lies_Programmangaben(const std::string& installierte_Daten);

}  // namespace varnok
