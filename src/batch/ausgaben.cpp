#include "batch/ausgaben.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "batch/perzentile.h"
#include "batch/zeilendatei.h"
#include "records/schreibort.h"

namespace varnok::batch {
namespace {

namespace fs = std::filesystem;

// The path with links and dots resolved as far as it exists.
fs::path eindeutig(const std::string& Name) {
    std::error_code Fehler;
    const fs::path ganz = fs::weakly_canonical(fs::absolute(als_Pfad(Name), Fehler), Fehler);
    return Fehler ? als_Pfad(Name) : ganz;
}

bool liegt_in(const fs::path& Datei, const fs::path& Ordner) {
    return std::mismatch(Ordner.begin(), Ordner.end(), Datei.begin(), Datei.end()).first == Ordner.end();
}

// Where an output takes its place: a link is replaced itself, so only the folder is looked up.
fs::path Platz(const std::string& Name) {
    std::error_code Fehler;
    const fs::path ganz = fs::absolute(als_Pfad(Name), Fehler);
    const fs::path Ordner = fs::weakly_canonical(ganz.parent_path(), Fehler);
    return Fehler ? ganz : Ordner / ganz.filename();
}

// What lies in the project is replaced by no output but what outputs left in its folder for them.
void verbiete_Ersatz(const std::string& Option, const std::string& Name, const Projektordner& Ordner) {
    const fs::path Ziel = Platz(Name);
    std::error_code Fehler;
    if (!fs::exists(fs::symlink_status(Ziel, Fehler)) || ist_Geraet(Name)) return;
    const bool im_Projekt =
        Ziel.parent_path() == eindeutig(Ordner.Pfad()) || liegt_in(Ziel, eindeutig(Ordner.Unterordner("backup")));
    if (!im_Projekt) return;
    throw Aufruffehler(Option + " " + Name +
                       ": this is a file of the project and not replaced; outputs belong to its folder \"output\"");
}

// The folder itself holds more than outputs.
void verbiete_Projektordner(const std::string& Option, const std::string& Name, const Projektordner& Ordner) {
    const fs::path Ziel = eindeutig(Name);
    if (Ziel != eindeutig(Ordner.Pfad()) && !liegt_in(Ziel, eindeutig(Ordner.Unterordner("backup")))) return;
    throw Aufruffehler(Option + " " + Name + ": this is a folder of the project itself; choose one of its own, as \"output\"");
}

// Input is only ever read: no output may land among the records or on a file that the call reads.
void verbiete_Eingaben(const std::string& Option, const std::string& Name, const Aufruf& a, const Projektordner* Ordner) {
    const fs::path Ziel = Platz(Name);
    const fs::path Datei = eindeutig(Name);
    std::vector<std::string> Gelesene = a.Teildateien;
    for (const std::string* Eingabe : {&a.Einstellungsdatei, &a.Variantendatei, &a.Stichprobendatei}) {
        if (!Eingabe->empty()) Gelesene.push_back(*Eingabe);
    }
    const auto trifft = [&](const std::string& g) { return Ziel == Platz(g) || Datei == eindeutig(g); };
    const auto liegt_in_Eingaben = [&](const fs::path& p) { return Ordner && liegt_in(p, eindeutig(Ordner->Eingabeordner())); };
    if (liegt_in_Eingaben(Ziel) || liegt_in_Eingaben(Datei) || std::any_of(Gelesene.begin(), Gelesene.end(), trifft))
        throw Aufruffehler(Option + " " + Name + ": this is a place of input files, which are only ever read");
}

void pruefe_Zieldatei(const std::string& Option, const std::string& Name, const Aufruf& a, const Projektordner* Ordner) {
    if (Name.empty() || Name == Standardausgabe) return;
    verbiete_Eingaben(Option, Name, a, Ordner);
    if (Ordner) verbiete_Ersatz(Option, Name, *Ordner);
    std::error_code Fehler;
    if (fs::is_directory(als_Pfad(Name), Fehler)) throw Aufruffehler(Option + " " + Name + ": this is a folder");
    const fs::path darueber = fs::absolute(als_Pfad(Name), Fehler).parent_path();
    if (!fs::is_directory(darueber, Fehler)) {
        throw Aufruffehler(Option + " " + Name + ": there is no folder " + darueber.string());
    }
}

void bereite_Ordner(const std::string& Option, const std::string& Name, const Aufruf& a, const Projektordner* Ordner) {
    if (Name.empty()) return;
    verbiete_Eingaben(Option, Name, a, Ordner);
    if (Ordner) verbiete_Projektordner(Option, Name, *Ordner);
    std::error_code Fehler;
    fs::create_directories(als_Pfad(Name), Fehler);
    std::error_code unwichtig;
    if (fs::is_directory(als_Pfad(Name), unwichtig)) return;
    const std::string Grund = Fehler ? Fehler.message() : "there is a file of that name";
    throw Aufruffehler(Option + " " + Name + ": the folder cannot be made: " + Grund);
}

class Textausgabe : public Ausgabe {
public:
    Textausgabe(std::unique_ptr<Schreiber> Dokument, const std::string& Ziel, const Textziel::Standardausgabe& aus)
        : Dokument_(std::move(Dokument)), Ziel_(std::in_place, Ziel, aus) {
        Ziel_->schreibe(Dokument_->Anfang());
    }

    std::string Stueck(const Simulationsausgang& s) const override { return Dokument_->Stueck(s); }
    void nimm(std::string Stueck, const Simulationsausgang& s) override {
        Ziel_->schreibe(Dokument_->naechstes(std::move(Stueck), s.Fehler.has_value()));
    }
    void beende() override {
        Ziel_->schreibe(Dokument_->Ende());
        Ziel_->beende();
    }

private:
    std::unique_ptr<Schreiber> Dokument_;
    std::optional<Textziel> Ziel_;
};

// Lines that are on the disk as soon as they are there.
class Zeilenausgabe : public Ausgabe {
public:
    Zeilenausgabe(const std::string& Ziel, const Ausgabeplan& p) : Zeilen_(Zeilenschreiber(p.Umfang)) {
        const Fortsetzung* altes = p.Vorheriges;
        if (Ziel == Standardausgabe) {
            aus_ = p.Standardausgabe;
        } else if (altes && altes->mit_Luecken()) {
            neue_.emplace(Ziel, p.Standardausgabe);
        } else {
            wachsende_ = altes && !altes->leer() ? std::make_unique<Zeilendatei>(Ziel, altes->Bytes_am_Anfang())
                                                 : std::make_unique<Zeilendatei>(Ziel);
        }
    }

    std::string Stueck(const Simulationsausgang& s) const override { return Zeilen_->Stueck(s); }
    void nimm(std::string Stueck, const Simulationsausgang&) override {
        if (aus_) return aus_(Stueck);
        neue_ ? neue_->schreibe(Stueck) : wachsende_->schreibe(Stueck);
    }
    // In a file that grows they stand already.
    void bewahre(const std::string& Zeile) override {
        if (neue_) neue_->schreibe(Zeile);
    }
    void beende() override {
        if (neue_) neue_->beende();
        if (wachsende_) wachsende_->beende();
    }

private:
    std::unique_ptr<Schreiber> Zeilen_;
    Textziel::Standardausgabe aus_;
    std::unique_ptr<Zeilendatei> wachsende_;
    std::optional<Textziel> neue_;  // where lines in the middle were missing
};

class Perzentilausgabe : public Ausgabe {
public:
    Perzentilausgabe(const std::string& Ziel, const Ausgabeplan& p) : Ziel_(Ziel, p.Standardausgabe), Zahlen_(p.Varianten) {
        Ziel_.schreibe(Zusammenfassung::Kopfzeile());
    }

    bool braucht_Ergebnis() const override { return true; }
    void nimm(std::string, const Simulationsausgang& s) override {
        Ziel_.schreibe(Zahlen_.nimm(s.Ergebnis.Name, entnimm_Kennwerte(s.Ergebnis)));
    }
    void beende() override {
        Ziel_.schreibe(Zahlen_.beende());
        Ziel_.beende();
    }

private:
    Textziel Ziel_;
    Zusammenfassung Zahlen_;
};

class Datenbankausgabe : public Ausgabe {
public:
    Datenbankausgabe(const std::string& Ziel, const Datenbankumfang& u) : Datenbank_(Ziel, u) {}

    bool braucht_Ergebnis() const override { return true; }
    void nimm(std::string, const Simulationsausgang& s) override { Datenbank_.nimm(s); }
    void beende() override { Datenbank_.beende(); }
    void brich_ab() override { Datenbank_.beende(); }

private:
    Datenbank Datenbank_;
};

}  // namespace

void bereite_Ausgaben_vor(const Aufruf& a, const Projektordner* Ordner) {
    const std::pair<const char*, const std::string*> Dateien[] = {
        {"--json", &a.JSON_Datei},  {"--json-lines", &a.Zeilendatei},        {"--csv", &a.CSV_Datei},
        {"--sqlite", &a.Datenbank}, {"--summary", &a.Zusammenfassungsdatei}, {"--records", &a.Satztabelle},
    };
    std::map<fs::path, std::string> Ziele;
    for (const auto& [Option, Name] : Dateien) {
        pruefe_Zieldatei(Option, *Name, a, Ordner);
        if (Name->empty() || *Name == Standardausgabe) continue;
        const auto [anderes, neu] = Ziele.emplace(eindeutig(*Name), Option);
        if (!neu) throw Aufruffehler(anderes->second + " and " + Option + " name the same file " + *Name);
    }
    bereite_Ordner("--series", a.Serienordner, a, Ordner);
    bereite_Ordner("--series-full", a.volle_Serien, a, Ordner);
    bereite_Ordner("--report", a.Berichtsordner, a, Ordner);
}

template <class Handlung>
void Ausgaben::versuche(Eintrag& e, Handlung h) {
    if (e.Fehler) return;
    try {
        h();
    } catch (const Laufzeitfehler& f) {
        e.Fehler = f.what();
    }
}

template <class Macher>
void Ausgaben::fuege_hinzu(bool gewollt, Macher mache) {
    if (!gewollt) return;
    Eintrag& e = Eintraege_.emplace_back();
    versuche(e, [&] { e.Ziel = mache(); });
}

Ausgaben::Ausgaben(const Aufruf& a, const Ausgabeplan& p) {
    const auto Text = [&](std::unique_ptr<Schreiber> Dokument, const std::string& Ziel) {
        return std::make_unique<Textausgabe>(std::move(Dokument), Ziel, p.Standardausgabe);
    };
    fuege_hinzu(a.Tabelle(), [&] { return Text(Tabellenschreiber(p.Umfang), batch::Standardausgabe); });
    fuege_hinzu(!a.JSON_Datei.empty(), [&] { return Text(JSON_Schreiber(p.Umfang), a.JSON_Datei); });
    fuege_hinzu(!a.CSV_Datei.empty(), [&] { return Text(CSV_Schreiber(p.Umfang), a.CSV_Datei); });
    fuege_hinzu(!a.Zeilendatei.empty(), [&] { return std::make_unique<Zeilenausgabe>(a.Zeilendatei, p); });
    fuege_hinzu(!a.Zusammenfassungsdatei.empty(), [&] { return std::make_unique<Perzentilausgabe>(a.Zusammenfassungsdatei, p); });
    // One that cannot be used is told before any work.
    if (!a.Datenbank.empty()) Eintraege_.push_back({std::make_unique<Datenbankausgabe>(a.Datenbank, p.Datenbank), std::nullopt});
}

std::vector<std::string> Ausgaben::Stuecke(const Simulationsausgang& s) const {
    std::vector<std::string> Texte;
    for (const Eintrag& e : Eintraege_) Texte.push_back(e.Ziel ? e.Ziel->Stueck(s) : std::string());
    return Texte;
}

bool Ausgaben::braucht_Ergebnis() const {
    return std::any_of(Eintraege_.begin(), Eintraege_.end(),
                       [](const Eintrag& e) { return e.Ziel && e.Ziel->braucht_Ergebnis(); });
}

void Ausgaben::schreibe(std::vector<std::string> Stuecke, const Simulationsausgang& s) {
    for (std::size_t i = 0; i < Eintraege_.size(); ++i) {
        Eintrag& e = Eintraege_[i];
        versuche(e, [&] { e.Ziel->nimm(std::move(Stuecke[i]), s); });
    }
}

void Ausgaben::bewahre(const std::string& Zeile) {
    for (Eintrag& e : Eintraege_) versuche(e, [&] { e.Ziel->bewahre(Zeile); });
}

std::vector<std::string> Ausgaben::beende() {
    std::vector<std::string> Fehler;
    for (Eintrag& e : Eintraege_) {
        versuche(e, [&] { e.Ziel->beende(); });
        if (e.Fehler) Fehler.push_back(*e.Fehler);
    }
    return Fehler;
}

void Ausgaben::brich_ab() {
    for (Eintrag& e : Eintraege_) versuche(e, [&] { e.Ziel->brich_ab(); });
    Eintraege_.clear();
}

}  // namespace varnok::batch
