#pragma once

#include <string>

namespace varnok {

// DT50 of a rate constant and the other way round: ln(2)/v, 0 for what is not above 0.
double Halbwertszeit(double v);

// The DT50 of a rate constant that its field shows: with as few digits as the constant needs.
double gezeigte_Halbwertszeit(double k);

// Text of the DT50 of a rate constant, with as few digits as the constant needs: 33 for the constant that a record keeps
// of 33, although its 15 digits give back 33.0000000000001.
std::string Text_der_Halbwertszeit(double k, char Dezimalzeichen);

}  // namespace varnok
