#include "batch/ausgaben.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/laufzeitfehler.h"
#include "batch/dateipfad.h"

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

Ausgaben::Ausgaben(const Aufruf& a, Standardausgabe aus) : aus_(std::move(aus)) {
    if (a.Tabelle()) fuege_hinzu(Tabellenschreiber(), batch::Standardausgabe);
    if (!a.JSON_Datei.empty()) fuege_hinzu(JSON_Schreiber(), a.JSON_Datei);
    if (!a.CSV_Datei.empty()) fuege_hinzu(CSV_Schreiber(), a.CSV_Datei);
}

void Ausgaben::fuege_hinzu(std::unique_ptr<Schreiber> Dokument, const std::string& Ziel) {
    Ausgabe& a = Ausgaben_.emplace_back();
    a.Dokument = std::move(Dokument);
    a.Ziel = Ziel;
    a.wartend = a.Dokument->Anfang();
    versuche(a, [&] {
        if (Ziel != batch::Standardausgabe) a.Datei = std::make_unique<Dateischreiber>(Ziel);
    });
}

// An output that cannot be written does not keep the others from it. What there is of its new file goes.
template <class Handlung>
void Ausgaben::versuche(Ausgabe& a, Handlung h) const {
    if (a.Fehler) return;
    try {
        h();
    } catch (const Laufzeitfehler& f) {
        a.Fehler = f.what();
        a.Datei.reset();
    }
}

void Ausgaben::leere(Ausgabe& a) const {
    versuche(a, [&] { a.Datei ? a.Datei->schreibe(a.wartend) : aus_(a.wartend); });
    a.wartend.clear();
}

std::vector<std::string> Ausgaben::Stuecke(const Simulationsausgang& s) const {
    std::vector<std::string> Texte;
    for (const Ausgabe& a : Ausgaben_) Texte.push_back(a.Dokument->Stueck(s));
    return Texte;
}

void Ausgaben::schreibe(std::vector<std::string> Stuecke, bool gescheitert) {
    constexpr std::size_t genug = std::size_t{1} << 18;  // bytes that are worth a call of the system
    for (std::size_t i = 0; i < Ausgaben_.size(); ++i) {
        Ausgabe& a = Ausgaben_[i];
        a.wartend += a.Dokument->naechstes(std::move(Stuecke[i]), gescheitert);
        if (a.wartend.size() >= genug) leere(a);
    }
}

std::vector<std::string> Ausgaben::beende() {
    std::vector<std::string> Fehler;
    for (Ausgabe& a : Ausgaben_) {
        a.wartend += a.Dokument->Ende();
        leere(a);
        versuche(a, [&] {
            if (a.Datei) a.Datei->beende();
        });
        if (a.Fehler) Fehler.push_back(*a.Fehler);
    }
    return Fehler;
}

}  // namespace varnok::batch
