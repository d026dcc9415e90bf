// One calculation in two programs: what varnok-batch writes of a simulation is what the window shows and writes of it, byte for
// byte: results, day series, both reports with their pictures. So it is where the region writes numbers with a comma.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "batch/berichte/berichte.h"
#include "batch/berichtsnamen.h"
#include "batch/schreiber.h"
#include "batch/serien.h"
#include "batch/varnok_batch.h"
#include "records/simulation.h"
#include "session/kern/sitzung.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;
using JSON = nlohmann::ordered_json;

std::string Inhalt(const fs::path& Datei) {
    std::ifstream Strom(Datei, std::ios::binary);
    EXPECT_TRUE(Strom.good()) << Datei;
    std::ostringstream Text;
    Text << Strom.rdbuf();
    return Text.str();
}

class stehende_Uhr final : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override {
        return std::chrono::system_clock::time_point(std::chrono::hours(24 * 365 * 50));
    }
};

// Says OK, or the first answer offered, to whatever is told, and keeps the text.
class Jasager final : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        Texte.push_back(f.Text);
        return f.Knoepfe.front();
    }
    std::vector<std::string> Texte;
};

// A line of a record replaced.
struct Zeilentausch {
    const char* Endung = nullptr;
    int Zeile = 0;
    const char* Text = nullptr;
};

struct Fall {
    fs::path Projekt;
    std::string Simulation;
    std::vector<Zeilentausch> Tausch = {};
};

void PrintTo(const Fall& f, std::ostream* aus) {
    *aus << f.Projekt.filename().string() << ", " << f.Simulation;
    for (const Zeilentausch& t : f.Tausch) *aus << ", " << t.Text;
}

// So that no program can calculate it.
constexpr Zeilentausch Schaeden[] = {
    {".sce", 3, "Soil density (kg/L):\t0"},      {".sce", 9, "Climatic condition:\tnowhere\r\nClimate mode:\t1"},
    {".app", 5, "Application rate (g/ha):\t-1"}, {".che", 9, "Number of studies:\tnone"},
    {".che", 15, "Kinetics:\t9\t0\t0"},
};

// Another compound in view than the parent, in a scheme that has it and in one that has not.
const Fall andere_Substanz[] = {
    {VARNOK_TESTORDNER "/cases/two_parallel_metabolites", "case", {{".che", 25, "Compound shown:\t2"}}},
    {VARNOK_TESTORDNER "/cases/single_application_sfo", "case", {{".che", 25, "Compound shown:\t1"}}},
    {VARNOK_TESTORDNER "/cases/two_studies",
     "case",
     {{".che", 40, "Compound shown:\t1"}, {".che", 43, "Type of calculation:\t2"}}},
};

// Every case of tests/cases, everything that is shipped, one case with each damage, and the views of a compound.
std::vector<Fall> alle_Faelle() {
    std::vector<fs::path> Projekte = {VARNOK_DATENORDNER};
    for (const auto& Eintrag : fs::directory_iterator(VARNOK_TESTORDNER "/cases")) Projekte.push_back(Eintrag.path());
    std::sort(Projekte.begin(), Projekte.end());
    std::vector<Fall> Faelle;
    for (const fs::path& Projekt : Projekte) {
        for (const std::string& Name : Projektordner(Projekt.string()).Namen(Endungen[Simulation]))
            Faelle.push_back({Projekt, Name});
    }
    for (const Zeilentausch& s : Schaeden) Faelle.push_back({VARNOK_TESTORDNER "/cases/single_application_sfo", "case", {s}});
    Faelle.insert(Faelle.end(), std::begin(andere_Substanz), std::end(andere_Substanz));
    return Faelle;
}

// Rich text without the document information.
std::string ohne_Information(std::string RTF) {
    const auto von = RTF.find("{\\info");
    if (von != std::string::npos) RTF.erase(von, RTF.find("}}", von) + 2 - von);
    return RTF;
}

class Eine_Rechnung : public testing::TestWithParam<Fall> {
protected:
    Eine_Rechnung() : Wurzel_(fs::temp_directory_path() / ("varnok-beide-" + std::to_string(::getpid()))) {
        fs::remove_all(Wurzel_);
        fs::create_directories(Projekt() / "output");
        fs::copy(GetParam().Projekt / "input", Projekt() / "input", fs::copy_options::recursive);
        fs::permissions(Projekt() / "input", fs::perms::owner_all, fs::perm_options::add);
        for (const Zeilentausch& t : GetParam().Tausch) tausche(t);
    }
    ~Eine_Rechnung() override {
        s_.reset();
        fs::remove_all(Wurzel_);
    }

    fs::path Projekt() const { return Wurzel_ / "projekt"; }
    fs::path Ausgabe(const std::string& Name) const { return Wurzel_ / "batch" / Name; }

    void tausche(const Zeilentausch& t) const {
        const fs::path Datei = Projekt() / "input" / (GetParam().Simulation + t.Endung);
        std::string Bytes = Inhalt(Datei);
        std::size_t von = 0;
        for (int i = 1; i < t.Zeile; ++i) von = Bytes.find("\r\n", von) + 2;
        Bytes.replace(von, Bytes.find("\r\n", von) - von, t.Text);
        fs::permissions(Datei, fs::perms::owner_write, fs::perm_options::add);
        std::ofstream(Datei, std::ios::binary) << Bytes;
    }

    // What varnok-batch says of the fault ends with what the window tells: where it lies, the window shows otherwise.
    void vergleiche_Fehler() const {
        const JSON Liste = JSON::parse(Inhalt(Ausgabe("ergebnis.json"))).at("errors");
        ASSERT_EQ(Liste.size(), 1U);
        const std::string Meldung = Liste[0].at("message");
        EXPECT_TRUE(std::any_of(Fragen_.Texte.begin(), Fragen_.Texte.end(),
                                [&](const std::string& t) { return !t.empty() && Meldung.ends_with(t); }))
            << Meldung << "\nin the window: " << testing::PrintToString(Fragen_.Texte);
    }

    // varnok-batch on this simulation with these outputs.
    bool rufe_Batch(const std::vector<std::string>& Ausgaben) {
        fs::create_directories(Wurzel_ / "batch");
        std::vector<std::string> Worte = {"varnok-batch", "--quiet", "--simulation", GetParam().Simulation};
        Worte.insert(Worte.end(), Ausgaben.begin(), Ausgaben.end());
        Worte.push_back(Projekt().string());
        std::vector<const char*> Argumente;
        for (const std::string& w : Worte) Argumente.push_back(w.c_str());
        std::ostringstream aus, fehler;
        batch::Umgebung Umwelt;
        Umwelt.Fehlerausgabe_ist_Terminal = [] { return false; };
        Umwelt.Zeit = &Uhr_;
        Umwelt.Berichte = batch::bereite_Berichte_vor;
        return batch::varnok_batch(static_cast<int>(Argumente.size()), Argumente.data(), aus, fehler, Umwelt) ==
               batch::alles_berechnet;
    }

    // The simulation as a user opens it: the program starts with any, then this one is chosen.
    Sitzung& oeffne(char Dezimalzeichen = '.') {
        s_.reset();
        s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Projekt().string(), VARNOK_DATENORDNER, Dezimalzeichen, &Uhr_});
        EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
        const auto& Liste = s_->Stand().Listen[Simulation];
        const auto Platz = std::find(Liste.begin(), Liste.end(), GetParam().Simulation) - Liste.begin();
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(Platz));
        return *s_;
    }

    // The report of what the window shows is the file that varnok-batch wrote under that name and what tells the reports of a
    // project apart. Where the description makes no file name, neither program has a report.
    void vergleiche_Bericht(const std::string& Studienzusatz) {
        s_->fuehre_aus<&Berichtssteuerung::erstelle>();
        const bool geschrieben = s_->zeige<Berichtssteuerung>().offener() != nullptr;
        s_->fuehre_aus<&Berichtssteuerung::schliesse>();
        ASSERT_EQ(geschrieben, Berichte_moeglich_);
        if (!geschrieben) return;
        const std::string Name = s_->zeige<Berichtssteuerung>().Ergebnisdatei();
        const std::string Zusatz =
            batch::Berichtsnamen(*s_->Stand().Ordner).Simulationszusatz(GetParam().Simulation) + Studienzusatz;
        const fs::path Gegenstueck = Ausgabe("berichte") / (Name + Zusatz + ".rtf");
        ASSERT_TRUE(fs::exists(Gegenstueck)) << Gegenstueck;
        // What a run repaired in the table is not saved, and the window's report says so in place of the sum.
        const bool repariert = s_->Stand().verschieden(Applikation);
        const auto RTF = [&](const fs::path& Pfad) { return repariert ? ohne_Information(Inhalt(Pfad)) : Inhalt(Pfad); };
        EXPECT_TRUE(RTF(Projekt() / "output" / (Name + ".rtf")) == RTF(Gegenstueck)) << Gegenstueck;
    }

    bool Berichte_moeglich_ = true;
    stehende_Uhr Uhr_;
    Jasager Fragen_;
    std::unique_ptr<Sitzung> s_;
    fs::path Wurzel_;
};

// What was remarked while reading, and the sum over the files, are no results.
std::string ohne_Herkunft(const std::string& Text) {
    JSON Dokument = JSON::parse(Text);
    for (JSON& s : Dokument.at("simulations")) {
        s.erase("remarks");
        s.erase("inputs_sha256");
    }
    return Dokument.dump(1);
}

// Results of the window as varnok-batch hands them to its writers.
batch::Simulationsausgang als_Ausgang(const Zustand& z, const std::string& Simulation) {
    const Simulationssatz Satz = lies_Simulation(*z.Ordner, Simulation);
    batch::Simulationsausgang a;
    a.Ergebnis.Name = Simulation;
    a.Ergebnis.Beschreibung = Satz.Beschreibung;
    a.Ergebnis.Dateinamen = Satz.Dateinamen;
    a.Ergebnis.Vorgabe = std::make_shared<const Eingabe>(z.Vorgabe);
    for (int st = 0; st < z.Studienzahl(); ++st) a.Ergebnis.Studien.push_back(z.Werte().at(static_cast<std::size_t>(st)));
    return a;
}

TEST_P(Eine_Rechnung, gives_the_same_bytes_in_both_programs) {
    const bool gelungen = rufe_Batch({"--json", Ausgabe("ergebnis.json").string(), "--csv", Ausgabe("ergebnis.csv").string(),
                                      "--series", Ausgabe("serien").string()});
    const Zustand& z = oeffne().Stand();
    ASSERT_EQ(gelungen, !z.abgedeckt()) << "one program shows a result and the other does not";
    if (!gelungen) {
        vergleiche_Fehler();
        return;
    }
    Berichte_moeglich_ = rufe_Batch({"--report", Ausgabe("berichte").string(), "--extended"});

    const int Studien = z.Studienzahl();
    for (int st = 0; st < Studien; ++st) {
        oeffne().fuehre_aus<&Listenwahl::waehle_Studie>(st);
        const Zustand& jetzt = s_->Stand();
        ASSERT_FALSE(jetzt.abgedeckt()) << st;
        EXPECT_TRUE(batch::Serientext(jetzt.zeige().Studie()) ==
                    Inhalt(Ausgabe("serien") / batch::Serienname(GetParam().Simulation, st + 1)))
            << st;
        vergleiche_Bericht(batch::Studienzusatz(jetzt.Vorgabe, st));
    }

    oeffne(',');
    for (int st = 1; st < Studien; ++st) s_->fuehre_aus<&Listenwahl::waehle_Studie>(st);
    const std::vector<batch::Simulationsausgang> vom_Fenster = {als_Ausgang(s_->Stand(), GetParam().Simulation)};
    EXPECT_EQ(ohne_Herkunft(batch::als_JSON(vom_Fenster)), ohne_Herkunft(Inhalt(Ausgabe("ergebnis.json"))));
    EXPECT_EQ(batch::als_Text(*batch::CSV_Schreiber(), vom_Fenster), Inhalt(Ausgabe("ergebnis.csv")));
    vergleiche_Bericht(batch::Studienzusatz(s_->Stand().Vorgabe, Studien - 1));

    if (Studien < 2) return;
    oeffne().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    vergleiche_Bericht(" - extended");
}

INSTANTIATE_TEST_SUITE_P(Alle, Eine_Rechnung, testing::ValuesIn(alle_Faelle()));

}  // namespace
}  // namespace varnok
