#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/aufruf.h"
#include "batch/datenbank.h"
#include "batch/fortsetzung.h"
#include "batch/schreiber.h"
#include "batch/textziel.h"
#include "records/projektordner.h"

namespace varnok::batch {

// Looks whether the outputs of the call can be written, before any work is done, and makes the folder of the
// series. Throws Aufruffehler: no such folder, a folder in a file's place, a target among the input files.
// Without a project only the files are looked at.
void bereite_Ausgaben_vor(const Aufruf& a, const Projektordner* Ordner);

// Where the results of a call go. An output takes each simulation in the order of the call.
class Ausgabe {
public:
    virtual ~Ausgabe() = default;
    // What it tells of a simulation; several threads call it at once.
    virtual std::string Stueck(const Simulationsausgang&) const { return {}; }
    // Whether it reads the results themselves in its turn.
    virtual bool braucht_Ergebnis() const { return false; }
    // Throws Laufzeitfehler where it cannot be written.
    virtual void nimm(std::string Stueck, const Simulationsausgang& s) = 0;
    // A line that a former call has written.
    virtual void bewahre(const std::string&) {}
    virtual void beende() = 0;
    // The work ends before its time: what has to be whole is left as it was.
    virtual void brich_ab() {}
};

// What the outputs of a call have in common.
struct Ausgabeplan {
    Schreibumfang Umfang;
    Datenbankumfang Datenbank;
    std::size_t Varianten = 1;
    const Fortsetzung* Vorheriges = nullptr;  // what the file of lines holds
    Textziel::Standardausgabe Standardausgabe;
};

// All outputs that are asked for. Files of results grow while the work goes on and take the place of an old file at the end.
class Ausgaben {
public:
    Ausgaben(const Aufruf& a, const Ausgabeplan& p);

    std::vector<std::string> Stuecke(const Simulationsausgang& s) const;
    bool braucht_Ergebnis() const;
    void schreibe(std::vector<std::string> Stuecke, const Simulationsausgang& s);
    void bewahre(const std::string& Zeile);

    // Ends the outputs. Returns what could not be written, one text for each.
    std::vector<std::string> beende();
    void brich_ab();

private:
    // An output that cannot be written does not keep the others from it.
    struct Eintrag {
        std::unique_ptr<Ausgabe> Ziel;
        std::optional<std::string> Fehler;  // from there on nothing is written
    };

    template <class Macher>
    void fuege_hinzu(bool gewollt, Macher mache);
    template <class Handlung>
    static void versuche(Eintrag& e, Handlung h);

    std::vector<Eintrag> Eintraege_;
};

}  // namespace varnok::batch
