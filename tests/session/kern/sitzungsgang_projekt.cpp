#include "session/kern/sitzungsgang_projekt.h"

#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>
#include <vector>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probeeingabe.h"

namespace varnok::gang {
namespace {

namespace fs = std::filesystem;

// Memory rather than a disk: a walk writes as many files as a month of work.
fs::path neuer_Ordner() {
    static int Nummer = 0;
    std::error_code still;
    const fs::path Speicher = "/dev/shm";
    const fs::path Platz = fs::is_directory(Speicher, still) ? Speicher : fs::temp_directory_path();
    auto Pfad = Platz / ("varnok-gang-" + std::to_string(::getpid()) + "-" + std::to_string(Nummer++));
    fs::create_directories(Pfad / "input");
    return Pfad;
}

std::string Bytes_von(const fs::path& p) {
    std::ifstream Strom(p, std::ios::binary);
    std::ostringstream Inhalt;
    Inhalt << Strom.rdbuf();
    return Inhalt.str();
}

void schreibe(const fs::path& p, const std::string& Bytes) { std::ofstream(p, std::ios::binary) << Bytes; }

// Three studies of other kinetics, a table of five applications, variable weather.
Eingabe zweite_Eingabe() {
    Eingabe e = Probeeingabe();
    Laufparameter& p = e.Parameter;
    e.Studie = {"Field A", "Field B", "Field C"};
    e.Berechnungsmodus = zwei_in_Folge;
    p.Kinetik[0][1] = FOMC;
    p.Kinetik[0][2] = DFOP;
    p.k_SFO[0][0] = 0.02;
    p.k2_DFOP[0][2] = 0.001;
    p.Klimamodus = nach_Klimadatei;
    p.Bodendichte = 1.2;
    p.Einheit = Mikrogramm;
    e.Klimaszenario = "Weather A";
    e.Applikationsmuster = unregelmaessig;
    waehle_Anzahl(e, 5);
    for (std::size_t i = 0; i < 5; ++i) e.Applikationsschema[i] = {"01", "0" + std::to_string(i + 3), "250", "25"};
    return e;
}

}  // namespace

std::string Wetterdatei(double Temperatur) {
    std::string Text = "Header\r\n";
    for (int Tag = 1; Tag <= 365; ++Tag) {
        std::array<char, 80> Zeile{};
        const double Grad = Temperatur - 8 * std::cos(Tag * 2 * 3.14159265 / 365);
        std::snprintf(Zeile.data(), Zeile.size(), "1988001%10.1f%10.1f          %10.1f\r\n", 1.0, 2.0, Grad);
        Text += Zeile.data();
    }
    return Text;
}

std::uint64_t Zufall::Zahl() {
    std::uint64_t x = Stand_ += 0x9E3779B97F4A7C15ULL;
    x = (x ^ (x >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    x = (x ^ (x >> 27U)) * 0x94D049BB133111EBULL;
    return x ^ (x >> 31U);
}

Gangprojekt::Gangprojekt() : Wurzel_(neuer_Ordner()) { schreibe_Anfang(); }

Gangprojekt::~Gangprojekt() {
    std::error_code still;
    fs::remove_all(Wurzel_, still);
}

void Gangprojekt::schreibe_Anfang() {
    const Projektordner Ordner(Wurzel_.string());
    const auto Saetze = [&](const std::string& Name, const Eingabe& e) {
        for (const Satzart Art : Eingabearten) Satz_schreiben(Ordner, Name, Art, e, {});
    };
    Saetze("Alpha", Probeeingabe());
    Saetze("Beta", zweite_Eingabe());
    const fs::path Eingang = Wurzel_ / "input";
    for (const Satzart Art : Eingabearten) {
        fs::copy_file(Eingang / (std::string("Alpha") + Endungen[Art]),
                      Eingang / (std::string("Do not delete this file") + Endungen[Art + 3]));
    }
    schreibe(Eingang / "Weather A.cli", Wetterdatei(10));
    schreibe(Eingang / "Weather B.cli", Wetterdatei(16));
    schreibe(Eingang / "Broken.che", "rubbish\r\n");
    schreibe(Eingang / "Broken.app", Bytes_von(Eingang / "Beta.app").substr(0, 120));
    schreibe_Simulation(Ordner, "Alpha", {"The first one", {"", "Alpha", "Alpha", "Alpha"}});
    schreibe_Simulation(Ordner, "Beta", {"The second one", {"", "Beta", "Beta", "Beta"}});
    schreibe_Simulation(Ordner, "Torn", {"Names what is not there", {"", "Beta", "Alpha", "gone"}});
    schreibe_Simulation(Ordner, "Nameless", {"Names no compound", {"", "", "Alpha", "Alpha"}});
    schreibe_Simulation(Ordner, "Torn pattern", {"Names what is not there", {"", "Beta", "gone", "Alpha"}});
    schreibe_Simulation(Ordner, "Torn compound", {"Names what is not there", {"", "gone", "Alpha", "Alpha"}});
    Anfang_ = lies();
    for (const char* Name : {"Torn.vnk", "Nameless.vnk", "Torn pattern.vnk", "Torn compound.vnk"}) ordne_Zeiten({}, {{Name, ""}});
    ordne_Zeiten({}, {{"Beta.vnk", ""}});
    ordne_Zeiten({}, {{"Alpha.vnk", ""}});
}

Dateien Gangprojekt::lies() const {
    Dateien Alle;
    for (const auto& f : fs::directory_iterator(Wurzel_ / "input")) {
        if (f.is_regular_file()) Alle[f.path().filename().string()] = Bytes_von(f.path());
    }
    return Alle;
}

bool Gangprojekt::gesichert(const std::string& Bytes) {
    const fs::path Ort = Wurzel_ / "backup";
    if (fs::exists(Ort)) {
        for (const auto& Ordner : fs::directory_iterator(Ort)) {
            const std::string Name = Ordner.path().filename().string();
            if (!Ordner.is_directory() || Name == "unsaved" || !gesehene_Ordner_.insert(Name).second) continue;
            for (const auto& f : fs::recursive_directory_iterator(Ordner.path())) {
                if (f.is_regular_file()) gesichert_.insert(std::hash<std::string>{}(Bytes_von(f.path())));
            }
        }
    }
    return gesichert_.contains(std::hash<std::string>{}(Bytes));
}

void Gangprojekt::ordne_Zeiten(const Dateien& vorher, const Dateien& nachher) {
    for (const auto& [Name, Bytes] : nachher) {
        if (!Name.ends_with(Endungen[Simulation])) continue;
        const fs::path p = Wurzel_ / "input" / Name;
        const auto alt = vorher.find(Name);
        const auto bekannt = Zeiten_.find(Name);
        const bool gleich =
            alt != vorher.end() && alt->second == Bytes && bekannt != Zeiten_.end() && fs::last_write_time(p) == bekannt->second;
        if (gleich) continue;
        fs::last_write_time(p, fs::file_time_type::clock::now() - std::chrono::hours(24 * 365) + std::chrono::seconds(++Takt_));
        Zeiten_[Name] = fs::last_write_time(p);
    }
}

fs::path Gangprojekt::waehle(const char* Endung, Zufall& r) const {
    std::vector<fs::path> Passende;
    for (const auto& [Name, Bytes] : lies()) {
        if (Name.ends_with(Endung)) Passende.push_back(Wurzel_ / "input" / Name);
    }
    return Passende.empty() ? fs::path() : r.eins_von(Passende);
}

// Other values than before in a file of that kind.
void Gangprojekt::schreibe_neu(const fs::path& p, Zufall& r) {
    Eingabe e = r.einmal_von(2) ? Probeeingabe() : zweite_Eingabe();
    e.Parameter.Bodendichte = 1 + r.unter(9) / 10.0;
    e.Applikationsrate = std::to_string(100 + r.unter(900));
    e.Parameter.k_SFO[0][0] = 0.01 + r.unter(50) / 1000.0;
    for (const Satzart Art : Eingabearten) {
        if (p.extension() == Endungen[Art]) schreibe(p, Satz_als_Bytes(Art, e, {}));
    }
    if (p.extension() == Klima_Endung) schreibe(p, Wetterdatei(r.unter(20)));
    if (p.extension() == Endungen[Simulation]) {
        schreibe(p, Simulation_als_Bytes({"Changed outside " + std::to_string(r.unter(100)), {"", "Alpha", "Beta", "Alpha"}}));
    }
}

std::string Gangprojekt::aendere(const char* Endung, Zufall& r) {
    const fs::path p = waehle(Endung, r);
    if (p.empty()) return "nothing there";
    schreibe_neu(p, r);
    return p.filename().string();
}

std::string Gangprojekt::aendere_Datei(const std::string& Name, Zufall& r) {
    schreibe_neu(Wurzel_ / "input" / Name, r);
    return Name;
}

std::string Gangprojekt::bringe_neue(const char* Endung, Zufall& r) {
    for (const char* Name : {"Delivered", "Delivered later", "Delivered last"}) {
        const fs::path p = Wurzel_ / "input" / (std::string(Name) + Endung);
        if (fs::exists(p)) continue;
        schreibe_neu(p, r);
        return p.filename().string();
    }
    return "nothing new";
}

// To another name and back.
std::string Gangprojekt::benenne_um(const char* Endung, Zufall& r) {
    const fs::path p = waehle(Endung, r);
    if (p.empty()) return "nothing there";
    const std::string Vorsatz = "Moved ";
    const std::string alt = p.filename().string();
    const fs::path neu = p.parent_path() / (alt.starts_with(Vorsatz) ? alt.substr(Vorsatz.size()) : Vorsatz + alt);
    if (fs::exists(neu)) return "name taken";
    fs::rename(p, neu);
    return neu.filename().string();
}

std::string Gangprojekt::loesche(const char* Endung, Zufall& r) {
    const fs::path p = waehle(Endung, r);
    if (!p.empty()) fs::remove(p);
    return p.filename().string();
}

std::string Gangprojekt::loesche_Datei(const std::string& Name) {
    fs::remove(Wurzel_ / "input" / Name);
    return Name;
}

std::string Gangprojekt::loesche_alle(const char* Endung) {
    for (const auto& [Name, Bytes] : lies()) {
        if (Name.ends_with(Endung)) loesche_Datei(Name);
    }
    return std::string("all ") + Endung;
}

std::string Gangprojekt::zerstoere(const char* Endung, Zufall& r) {
    const fs::path p = waehle(Endung, r);
    if (p.empty()) return "nothing there";
    const std::string Bytes = Bytes_von(p);
    switch (r.unter(3)) {
        case 0:
            schreibe(p, "");
            break;
        case 1:
            schreibe(p, "rubbish\r\n");
            break;
        default:
            schreibe(p, Bytes.substr(0, Bytes.size() * static_cast<std::size_t>(r.unter(10)) / 10));
            break;
    }
    return p.filename().string();
}

// As at the beginning; what came since then goes, so that no list grows for ever.
std::string Gangprojekt::stelle_her() {
    for (const auto& [Name, Bytes] : lies()) {
        if (!Anfang_.contains(Name) && (Name.starts_with("Delivered") || Name.starts_with("Moved"))) loesche_Datei(Name);
    }
    for (const auto& [Name, Bytes] : Anfang_) schreibe(Wurzel_ / "input" / Name, Bytes);
    ordne_Zeiten({}, Anfang_);  // files of one moment have no order of their own
    return "as at the beginning";
}

}  // namespace varnok::gang
