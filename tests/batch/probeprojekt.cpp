#include "batch/probeprojekt.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "batch/berichte/berichte.h"
#include "records/satz.h"
#include "records/simulation.h"

namespace varnok::probe {

namespace fs = std::filesystem;

Ordner_auf_Zeit::Ordner_auf_Zeit() {
    std::string Muster = (fs::temp_directory_path() / "varnok-batch-XXXXXX").string();
    if (mkdtemp(Muster.data()) == nullptr) throw std::runtime_error("no temporary folder");
    Pfad = Muster;
}

Ordner_auf_Zeit::~Ordner_auf_Zeit() {
    std::error_code gleichgueltig;
    fs::remove_all(Pfad, gleichgueltig);
}

Probe::Probe() {
    Felder.Parameter.Bodendichte = 1.5;
    Felder.Parameter.Bodentiefe = 5;
    Felder.Parameter.Plateautiefe = 20;
    Felder.Parameter.Kohlenstoffgehalt = 1;
    Felder.Parameter.Feldkapazitaet = 30;
    Felder.Parameter.Welkepunkt = 10;
    for (auto& Reihe : Felder.Parameter.KOC) Reihe.fill(100);
    Felder.Beschreibung = "One application in spring";
    Felder.Studie = {"Field"};
    Felder.Name_Wirkstoff = "Parent";
    Felder.Name_Met_1 = "Met 1";
    Felder.Name_Met_2 = "Met 2";
    for (auto* Molmasse : {&Felder.Molmasse_Wirkstoff, &Felder.Molmasse_Met_1, &Felder.Molmasse_Met_2}) *Molmasse = "200";
    Felder.Bildungsanteil_Met_1 = "50";
    Felder.Bildungsanteil_Met_2 = "50";
    Felder.Applikationsschema = {{"01", "04", "500", "0"}, {"15", "05", "500", "0"}};
    Felder.Bodenszenario = "Sandy loam";
}

void fuege_Studie_an(Probe& p, const std::string& Name) { p.Felder.Studie.push_back(Name); }

Probeprojekt::Probeprojekt() {
    fs::create_directories(Ordner_.Pfad / "project" / "input");
    fs::create_directories(Ordner_.Pfad / "project" / "output");
}

void Probeprojekt::schreibe(const std::string& Simulation, const Probe& p) {
    const Projektordner Ordner(Pfad());
    for (const Satzart Art : Eingabearten) Satz_schreiben(Ordner, Simulation, Art, p.Felder, p.Sicht);
    schreibe_Simulation(Ordner, Simulation, {p.Felder.Beschreibung, {"", Simulation, Simulation, Simulation}});
    // Time stamps a minute apart, whatever the file system's resolution.
    const auto Zeit = fs::file_time_type::clock::now() + std::chrono::minutes(++Alter_);
    fs::last_write_time(Eingabedatei(Simulation + ".vnk"), Zeit);
}

void Probeprojekt::verweise(const std::string& Simulation, const std::string& Wirkstoffname, const std::string& Applikationsname,
                            const std::string& Szenarioname) {
    schreibe_Simulation(Projektordner(Pfad()), Simulation, {"", {"", Wirkstoffname, Applikationsname, Szenarioname}});
    fs::last_write_time(Eingabedatei(Simulation + ".vnk"), fs::file_time_type::clock::now() + std::chrono::minutes(++Alter_));
}

std::string Probeprojekt::Pfad() const { return (Ordner_.Pfad / "project").string(); }
std::string Probeprojekt::daneben(const std::string& Name) const { return (Ordner_.Pfad / Name).string(); }
std::string Probeprojekt::Eingabedatei(const std::string& Name) const {
    return (Ordner_.Pfad / "project" / "input" / Name).string();
}

void Probeprojekt::ersetze_Zeile(const std::string& Datei, std::size_t Zeile, const std::string& Text) const {
    std::vector<std::string> Alle = Zeilen(Inhalt(Eingabedatei(Datei)), "\r\n");
    Alle.at(Zeile - 1) = Text;
    std::string Bytes;
    for (const std::string& z : Alle) Bytes += z + "\r\n";
    schreibe_Bytes(Datei, Bytes);
}

void Probeprojekt::schreibe_Bytes(const std::string& Datei, const std::string& Bytes) const {
    std::ofstream Strom(Eingabedatei(Datei), std::ios::binary);
    Strom.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    if (!Strom.flush()) throw std::runtime_error("cannot write " + Datei);
}

Antwort rufe(const std::vector<std::string>& Argumente, const batch::Umgebung& Umwelt) {
    std::vector<const char*> argv = {"varnok-batch"};
    for (const std::string& a : Argumente) argv.push_back(a.c_str());
    std::ostringstream aus, fehler;
    Antwort r;
    batch::Umgebung mit_Berichten = Umwelt;
    mit_Berichten.Berichte = batch::bereite_Berichte_vor;
    r.Status = batch::varnok_batch(static_cast<int>(argv.size()), argv.data(), aus, fehler, mit_Berichten);
    r.aus = aus.str();
    r.fehler = fehler.str();
    return r;
}

Antwort rufe(const std::vector<std::string>& Argumente) {
    return rufe(Argumente, {[] { return false; }});
}

std::string Inhalt(const std::string& Pfad) {
    std::ifstream Strom(Pfad, std::ios::binary);
    if (!Strom) throw std::runtime_error("cannot read " + Pfad);
    return {std::istreambuf_iterator<char>(Strom), {}};
}

std::vector<std::string> Zeilen(const std::string& Text, const std::string& Ende) {
    std::vector<std::string> Alle;
    std::size_t von = 0;
    for (std::size_t bis; (bis = Text.find(Ende, von)) != std::string::npos; von = bis + Ende.size())
        Alle.push_back(Text.substr(von, bis - von));
    if (von < Text.size()) Alle.push_back(Text.substr(von));
    return Alle;
}

}  // namespace varnok::probe
