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

// What `Wert` takes of a text and what it leaves: whoever lets a person or a file give a number tells of the rest.
struct Zahllesung {
    double Zahl = 0;                    // as `Wert` gives it
    std::string_view Rest = {};         // left behind the number, without outer blanks; all of the text where it holds none
    bool ohne_Zahl = false;             // no digit was taken
    bool leer = false;                  // nothing but blanks
    bool mit_Luecke = false;            // blanks stand inside the number
    bool zu_klein = false;              // digits that mean more than 0 gave 0
    bool mehrere_Trennzeichen = false;  // as in "1.250,5" or "1'250": the number may be a thousandth of what was meant

    // One number from end to end: blanks around it, a sign, digits, one comma or point, an exponent.
    bool ganz() const { return !ohne_Zahl && Rest.empty() && !mit_Luecke && !zu_klein && !mehrere_Trennzeichen; }
};
Zahllesung lies_Zahl(std::string_view Text);
// The same without the comma repair.
Zahllesung lies_fuehrende_Zahl(std::string_view Text);

// The shortest text of at most 15 significant digits (7 for a single precision value) that the
// value needs; with an exponent below 0.0001 and from 1E+15 on, as in "1E-05". 0 for -0.
std::string allgemeine_Zahl(double Zahl, char Dezimalzeichen = '.');
std::string allgemeine_Zahl(float Zahl, char Dezimalzeichen = '.');
// The same form with at most `Stellen` significant digits, 1 to 15.
std::string gekuerzte_Zahl(double Zahl, int Stellen, char Dezimalzeichen = '.');

// The number that this text shows.
double gekuerzt(double Zahl, int Stellen);

// The number that a record holding `allgemeine_Zahl(Zahl)` gives back.
double wie_im_Satz(double Zahl);

// A fixed number of places behind the point, as the patterns "0", "0.0", "0.0000" write it: the
// decimal text of the value (15 significant digits) is rounded half away from zero.
std::string feste_Zahl(double Zahl, int Nachkommastellen, char Dezimalzeichen = '.');

// The number that this text shows.
double gerundet(double Zahl, int Nachkommastellen);

// A day, month or hour with two digits. What is far from being one stays short with an exponent.
std::string zweistellig(double Zahl);

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
