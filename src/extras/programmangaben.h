#pragma once

#include <string>

namespace varnok {

// Who developed the program and who sponsored it: the file "about.txt" (Windows-1252) of the installed data, which those
// who deploy the program supply. Each line ends in CR LF. Without the file, a line that says so.
std::string lies_Programmangaben(const std::string& installierte_Daten);

// The licence, with the place of its text where the installed data have it, and the libraries with their versions. Each line ends
// in CR LF.
std::string Lizenzangaben(const std::string& installierte_Daten);

}  // namespace varnok
