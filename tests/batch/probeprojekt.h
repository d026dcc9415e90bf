#pragma once

// A small project in a temporary folder, and calls of the program in the test's own process.

#include <filesystem>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "batch/varnok_batch.h"
#include "records/projektordner.h"
#include "run/ansicht.h"
#include "run/eingabe.h"

namespace varnok::probe {

// A folder that goes with the object.
class Ordner_auf_Zeit {
public:
    Ordner_auf_Zeit();
    ~Ordner_auf_Zeit();
    Ordner_auf_Zeit(const Ordner_auf_Zeit&) = delete;
    Ordner_auf_Zeit& operator=(const Ordner_auf_Zeit&) = delete;

    std::filesystem::path Pfad;
};

// What the three records of a simulation say: 1000 g/ha once, 5 cm of 1.5 kg/L, 20 cm for the plateau,
// 1 % organic carbon, 30 and 10 Vol% of water, 20 degrees, and an SFO rate of 0.01 per day.
struct Probe {
    Eingabe Felder;
    Ansicht Sicht;
    Probe();
};

// A second study behind the first, with the same values.
void fuege_Studie_an(Probe& p, const std::string& Name);

class Probeprojekt {
public:
    Probeprojekt();

    // Writes the records of the name and a simulation that names them; a later one is newer.
    void schreibe(const std::string& Simulation, const Probe& p = {});
    // Names of the records by kind for a simulation without records of its own.
    void verweise(const std::string& Simulation, const std::string& Wirkstoffname, const std::string& Applikationsname,
                  const std::string& Szenarioname);

    std::string Pfad() const;
    // Path of a file or folder beside `input`.
    std::string daneben(const std::string& Name) const;
    std::string Eingabedatei(const std::string& Name) const;

    // Replaces line `Zeile`, counted from 1, of a file of `input`.
    void ersetze_Zeile(const std::string& Datei, std::size_t Zeile, const std::string& Text) const;
    void schreibe_Bytes(const std::string& Datei, const std::string& Bytes) const;

private:
    Ordner_auf_Zeit Ordner_;
    int Alter_ = 0;
};

struct Antwort {
    int Status = -1;
    std::string aus;
    std::string fehler;

    nlohmann::ordered_json JSON() const { return nlohmann::ordered_json::parse(aus); }
};

// varnok-batch with these arguments; standard error is no terminal.
Antwort rufe(const std::vector<std::string>& Argumente);
Antwort rufe(const std::vector<std::string>& Argumente, const batch::Umgebung& Umwelt);

std::string Inhalt(const std::string& Pfad);
std::vector<std::string> Zeilen(const std::string& Text, const std::string& Ende = "\n");

}  // namespace varnok::probe
