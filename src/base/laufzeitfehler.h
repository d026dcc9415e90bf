#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace varnok {

// Where a fault lies, as far as it is known where it was found. The reader of a record knows file, line and store, a calculation
// the store at fault with its study and compound.
struct Fehlerort {
    std::string Datei = {};  // with its ending, empty without one
    int Zeile = 0;           // of the file, counted from 1, 0 without one
    std::string Feld = {};   // name of the store, e.g. "Bodendichte", as `Wertebereiche` name it; empty where none is at fault
    int i_studie = -1;       // counted from 0, -1 where the fault concerns no study
    int i_substanz = -1;     // 0 parent, -1 where it concerns no compound
    std::string Text = {};   // what stands in the file
    int Reihe = 0;           // of the table of applications, counted from 1, 0 where the fault concerns none
    std::string Bezeichnung = {};  // as the file or the call names the value, e.g. "KOC (L/kg), parent, study 1"

    // What a message calls the value.
    const std::string& Name() const { return Bezeichnung.empty() ? Feld : Bezeichnung; }
};

// "X.che, line 12", or "X.che" for line 0.
std::string Zeilenangabe(const std::string& Datei, int Zeile);

// The one exception of the program: input or a file that makes going on impossible. `what` names the file, the line or the
// input, and what is wrong with it; it is shown to the user as it stands.
class Laufzeitfehler : public std::runtime_error {
public:
    // `what` is the reason with the line in front of it, where the place has one: "File X.che, line 12: the reason".
    // `davor` stands there instead where more is to be said.
    explicit Laufzeitfehler(std::string Grund, Fehlerort Ort = {}, const std::string& davor = {});

    const Fehlerort& Ort() const { return Ort_; }
    // What is wrong, without the place in front.
    const std::string& Grund() const { return Grund_; }

private:
    Fehlerort Ort_;
    std::string Grund_;
};

// Input that makes the arithmetic impossible, such as a soil density of 0. `Eingabewert` names the
// value at fault, e.g. "Soil density (kg/L) = 0".
[[noreturn]] void melde_unmoegliche_Rechnung(const std::string& Eingabewert, Fehlerort Ort = {});

}  // namespace varnok
