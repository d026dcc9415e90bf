#pragma once

// Numbers to and from text. This is the only place where it happens: nothing here follows the
// locale of the process, a decimal separator other than the point is an argument.

#include <optional>
#include <string>
#include <string_view>

namespace varnok {

// The leading number of an input text, 0 without one. Commas count as points, blanks are skipped,
// reading stops at the first character that cannot continue a number: "1,5" is 1.5, "20 °C" is 20.
// A number too large for a double gives an infinite value, which no calculation lets through.
double Wert(std::string_view Text);

// The same without the comma repair: a comma ends the number.
double fuehrende_Zahl(std::string_view Text);

// False for a text that is not blank and yet holds no leading number, so that `Wert` gives 0 for
// something that was meant as a value.
bool ist_Zahl_oder_leer(std::string_view Text);

// The shortest text of at most 15 significant digits (7 for a single precision value) that the
// value needs; with an exponent below 0.0001 and from 1E+15 on, as in "1E-05". 0 for -0.
std::string allgemeine_Zahl(double Zahl, char Dezimalzeichen = '.');
std::string allgemeine_Zahl(float Zahl, char Dezimalzeichen = '.');
// The same form with at most `Stellen` significant digits, 1 to 15.
std::string gekuerzte_Zahl(double Zahl, int Stellen, char Dezimalzeichen = '.');

// The number that a record holding `allgemeine_Zahl(Zahl)` gives back.
double wie_im_Satz(double Zahl);

// A fixed number of places behind the point, as the patterns "0", "0.0", "0.0000" write it: the
// decimal text of the value (15 significant digits) is rounded half away from zero.
std::string feste_Zahl(double Zahl, int Nachkommastellen, char Dezimalzeichen = '.');

// The number that this text shows.
double gerundet(double Zahl, int Nachkommastellen);

// The shortest text that reads back as the same single or double precision value.
std::string genaue_Zahl(float Zahl);
std::string genaue_Zahl(double Zahl);
// The same behind a text that grows.
void haenge_genaue_Zahl_an(std::string& Text, float Zahl);
void haenge_genaue_Zahl_an(std::string& Text, double Zahl);
void haenge_genaue_Zahl_an(std::string& Text, int Zahl);

// Nearest whole number, ties to even, if it lies in [von, bis]; nothing otherwise.
std::optional<int> ganze_Zahl(double Zahl, int von, int bis);

}  // namespace varnok
