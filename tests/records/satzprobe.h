#pragma once

// Records, folders and files for the tests of this folder.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "records/projektordner.h"
#include "records/satz.h"
#include "run/ansicht.h"
#include "run/eingabe.h"

namespace varnok::probe {

// A folder that goes with the object.
class Zeitordner {
public:
    Zeitordner();
    ~Zeitordner();
    Zeitordner(const Zeitordner&) = delete;
    Zeitordner& operator=(const Zeitordner&) = delete;

    std::string Pfad(const std::string& Name = {}) const;

private:
    std::filesystem::path Pfad_;
};

// A project with an empty folder `input`.
class Probeordner {
public:
    explicit Probeordner(const std::string& Eingabe = "input");

    Projektordner Ordner() const { return Projektordner(Zeit_.Pfad()); }
    std::string Pfad() const { return Zeit_.Pfad(); }
    std::string Eingabedatei(const std::string& Datei) const { return Zeit_.Pfad(Eingabe_ + "/" + Datei); }
    void lege_an(const std::string& Datei, const std::string& Bytes = {}) const;
    std::string Inhalt(const std::string& Datei) const;
    // Every file of `input`, also a temporary one.
    std::vector<std::string> Dateien() const;

private:
    Zeitordner Zeit_;
    std::string Eingabe_;
};

std::string Inhalt(const std::string& Pfad);
void schreibe(const std::string& Pfad, const std::string& Bytes);

// What a record is read into or written from.
struct Satzprobe {
    Eingabe Felder;
    Ansicht Sicht;

    friend bool operator==(const Satzprobe&, const Satzprobe&) = default;
};

// A value of its own in every place of every record: a line that is read into the place of another
// or left out shows. Texts that are numbers are those of a field after reading, with `Dezimalzeichen`.
Satzprobe volle_Probe(int Studien = 2, char Dezimalzeichen = '.');

// Reads bytes as "probe" with the extension of the kind into `p`.
Lesebefund lies(const std::string& Bytes, Satzart Art, Satzprobe& p, char Dezimalzeichen = '.');
std::string Bytes(Satzart Art, const Satzprobe& p, char Dezimalzeichen = '.');

// The text of the Laufzeitfehler of reading these bytes, nothing without one.
std::optional<std::string> Fehler_beim_Lesen(const std::string& Bytes, Satzart Art, Satzprobe& p);

// Lines without their CR LF, and back.
std::vector<std::string> zerlegt(const std::string& Bytes);
std::string verbunden(const std::vector<std::string>& Zeilen);
// The bytes with line `Nummer`, counted from 1, replaced; or with all lines from there on cut off.
std::string mit_Zeile(const std::string& Bytes, std::size_t Nummer, const std::string& Zeile);
std::string vor_Zeile(const std::string& Bytes, std::size_t Nummer);

inline const std::string Trennlinie(47, '-');

}  // namespace varnok::probe
