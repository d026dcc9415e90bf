#pragma once

// What a file of JSON lines holds of a call that was broken off.

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "batch/simulationslauf.h"

namespace varnok::batch {

// Whether a line is that of a simulation that could not be calculated.
bool ist_Fehlerzeile(std::string_view Zeile);

// What lines of the call hold beside what their inputs decide.
struct Zeilenform {
    bool mit_Eingaben = false;
    bool mit_Position = false;
    std::optional<int> Studie;  // the only one, counted from 1
};

// Goes through the lines of the file in step with the work of the call.
class Fortsetzung {
public:
    // A file that is not there holds nothing. Throws Aufruffehler where it cannot be read, or is a link.
    Fortsetzung(const std::string& Datei, const Zeilenform& Form);

    // Looks whether the next line is that of the piece of work. Throws Aufruffehler for a line of another simulation or variant,
    // of other inputs, or of another form. `Summe` is that of the inputs, empty where it is not to be had.
    void gleiche_ab(const Arbeitsstueck& s, const std::string& Summe);
    // After the last piece of work: throws Aufruffehler where lines are left.
    void schliesse_Abgleich_ab();

    // Bytes of the lines kept at the beginning, and how many pieces of work they are.
    std::int64_t Bytes_am_Anfang() const { return Bytes_am_Anfang_; }
    // Whether lines behind the first one to be calculated anew are kept, too: the file has to be written anew then.
    bool mit_Luecken() const { return mit_Luecken_; }
    bool leer() const { return Zeilennummer_ == 0; }

    // A second walk: the line of the next piece of work with its end, nothing where it has to be calculated.
    void beginne_neu();
    std::optional<std::string> naechste_Zeile();

private:
    bool lies_Zeile(std::string& Zeile);
    // What sets the line apart from the one that this call would write, empty where nothing does.
    std::string Unterschied(const std::string& Zeile, const Arbeitsstueck& s) const;

    std::string Datei_;
    Zeilenform Form_;
    std::ifstream Strom_;
    int Zeilennummer_ = 0;
    std::int64_t gelesene_Bytes_ = 0;
    std::int64_t Bytes_am_Anfang_ = 0;
    bool Anfang_zu_Ende_ = false;
    bool mit_Luecken_ = false;
};

}  // namespace varnok::batch
