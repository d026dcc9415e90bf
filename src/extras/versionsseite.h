#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnok {

// The date code of this program, against which the server's is compared.
inline constexpr std::string_view Eigene_Version = "20180921";

struct Serverversion {
    std::string Zeichen;  // the eight characters in front of ".zip", as they stand
    double Zahl = 0;      // the number at their start, 0 without one
};

// What stands behind the last line end but one, if the page ends with a line end; else behind the last one.
std::string_view letzte_Zeile(std::string_view Seite);

// The version that the last line of the page offers. Nothing if the line holds no ".zip", or too early for a
// file name in front of it: such a page is no answer.
std::optional<Serverversion> Version_der_Seite(std::string_view Seite);

// Against `Eigene_Version`: above 0 if the server has a newer one, below 0 if it has an older one.
int vergleiche_mit_eigener(const Serverversion& Version);

}  // namespace varnok
