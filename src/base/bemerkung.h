#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnok {

// Something in a file that was read in a way its author may not have meant, or that is hardly what was meant. It changes no
// figure and stops nothing.
struct Bemerkung {
    std::string Datei;           // with its ending
    int Zeile = 1;               // counted from 1; 1 where the file as a whole is meant
    std::string Feld;            // as the file names it, e.g. "KOC (L/kg), parent"; empty where it is about no value
    std::string Meldung;         // what is doubtful
    std::string Text;            // as it stands in the file, shortened where it is long
    std::optional<double> Wert;  // the number taken for it

    friend bool operator==(const Bemerkung&, const Bemerkung&) = default;
};

// X.che:11: remark: KOC (L/kg), parent: only its beginning is a number (7x5 -> 7). `Art` is the word behind the line.
std::string als_Zeile(const Bemerkung& b, std::string_view Art = "remark");

}  // namespace varnok
