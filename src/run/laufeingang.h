#pragma once

#include <string_view>
#include <vector>

#include "run/eingabe.h"

namespace varnok {

// The numbers of an input that a run of the study (0 to 5) reads, in a fixed order: two inputs with the same numbers and, in
// variable climate, the same climate file give the same result to the bit. Names and descriptions play no part, a constant of a
// kinetics that is not in force neither.
std::vector<double> Laufeingang(const Eingabe& e, int i_studie);

// Whether a run of the study reads the store of that name, as a `Fehlerort` or a `Wertebereich` names it: a constant of the
// kinetics in force, a mass where there are metabolites. `i_substanz` -1 asks for any compound.
bool liest_ein_Lauf(const Eingabe& e, std::string_view Speicher, int i_studie, int i_substanz);

// Whether a run of the study reads the same of both.
bool gleicher_Laufeingang(const Eingabe& a, const Eingabe& b, int i_studie);

}  // namespace varnok
