#include "batch/ausgaben.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "base/laufzeitfehler.h"
#include "batch/dateipfad.h"
#include "batch/schreiber.h"
#include "records/dateien.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;

// The path with links and dots resolved as far as it exists.
fs::path eindeutig(const std::string& Name) {
    std::error_code Fehler;
    const fs::path ganz = fs::weakly_canonical(fs::absolute(Dateipfad(Name), Fehler), Fehler);
    return Fehler ? Dateipfad(Name) : ganz;
}

bool liegt_in(const fs::path& Datei, const fs::path& Ordner) {
    return std::mismatch(Ordner.begin(), Ordner.end(), Datei.begin(), Datei.end()).first == Ordner.end();
}

// Input is only ever read: no output may land among the records or on the settings.
void verbiete_Eingaben(const std::string& Option, const std::string& Name, const Aufruf& a, const Projektordner& Ordner) {
    const fs::path Ziel = eindeutig(Name);
    const bool auf_Einstellungen = !a.Einstellungsdatei.empty() && Ziel == eindeutig(a.Einstellungsdatei);
    if (auf_Einstellungen || liegt_in(Ziel, eindeutig(Ordner.Eingabeordner()))) {
        throw Aufruffehler(Option + " " + Name + ": this is a place of input files, which are only ever read");
    }
}

void pruefe_Zieldatei(const std::string& Option, const std::string& Name, const Aufruf& a, const Projektordner& Ordner) {
    if (Name.empty() || Name == Standardausgabe) return;
    verbiete_Eingaben(Option, Name, a, Ordner);
    std::error_code Fehler;
    if (fs::is_directory(Dateipfad(Name), Fehler)) throw Aufruffehler(Option + " " + Name + ": this is a folder");
    const fs::path darueber = fs::absolute(Dateipfad(Name), Fehler).parent_path();
    if (!fs::is_directory(darueber, Fehler)) {
        throw Aufruffehler(Option + " " + Name + ": there is no folder " + darueber.string());
    }
}

void bereite_Ordner(const std::string& Option, const std::string& Name, const Aufruf& a, const Projektordner& Ordner) {
    if (Name.empty()) return;
    verbiete_Eingaben(Option, Name, a, Ordner);
    std::error_code Fehler;
    fs::create_directories(Dateipfad(Name), Fehler);
    std::error_code unwichtig;
    if (fs::is_directory(Dateipfad(Name), unwichtig)) return;
    const std::string Grund = Fehler ? Fehler.message() : "there is a file of that name";
    throw Aufruffehler(Option + " " + Name + ": the folder cannot be made: " + Grund);
}

void schreibe(const std::string& Ziel, const std::string& Text, std::ostream& aus, std::vector<std::string>& Fehler) {
    try {
        if (Ziel != Standardausgabe) return schreibe_Datei(Ziel, Text);
        aus.write(Text.data(), static_cast<std::streamsize>(Text.size()));
        aus.flush();
        if (!aus) throw Laufzeitfehler("The results cannot be written to standard output.");
    } catch (const Laufzeitfehler& f) {
        Fehler.emplace_back(f.what());
    }
}

}  // namespace

void bereite_Ausgaben_vor(const Aufruf& a, const Projektordner& Ordner) {
    pruefe_Zieldatei("--json", a.JSON_Datei, a, Ordner);
    pruefe_Zieldatei("--csv", a.CSV_Datei, a, Ordner);
    if (!a.JSON_Datei.empty() && !a.CSV_Datei.empty() && eindeutig(a.JSON_Datei) == eindeutig(a.CSV_Datei)) {
        throw Aufruffehler("--json and --csv name the same file " + a.JSON_Datei);
    }
    bereite_Ordner("--series", a.Serienordner, a, Ordner);
    bereite_Ordner("--report", a.Berichtsordner, a, Ordner);
}

std::vector<std::string> schreibe_Ausgaben(const Aufruf& a, const std::vector<Simulationsausgang>& Ausgaenge, std::ostream& aus) {
    std::vector<std::string> Fehler;
    for (const Simulationsausgang& s : Ausgaenge) Fehler.insert(Fehler.end(), s.Schreibfehler.begin(), s.Schreibfehler.end());
    if (a.Tabelle()) schreibe(Standardausgabe, als_Tabelle(Ausgaenge), aus, Fehler);
    if (!a.JSON_Datei.empty()) schreibe(a.JSON_Datei, als_JSON(Ausgaenge), aus, Fehler);
    if (!a.CSV_Datei.empty()) schreibe(a.CSV_Datei, als_CSV(Ausgaenge), aus, Fehler);
    return Fehler;
}

}  // namespace varnok::batch
