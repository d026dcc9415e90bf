// A command that is killed between any two operations on files leaves every record whole, under its old or its new name.

#include <algorithm>
#include <cctype>
#include <fstream>
#include <functional>
#include <map>
#include <ostream>
#include <set>
#include <sstream>

#include "records/dateien.h"
#include "session/saetze/befehlsprobe.h"
#include "session/saetze/dateioperationen.h"

namespace varnok {
namespace {

using Dateien = std::map<std::string, std::string>;  // bytes by name

struct Befehl {
    const char* Fall;
    // What the user did before, without touching a file; then the command itself.
    std::function<void(Sitzung&)> davor;
    std::function<void(Sitzung&, Drehbuch&)> Tat;
    bool sichert = false;  // a save: the state of a record before it is replaced by the one after it
};

void erwarte_Ja(Drehbuch& d, const char* Titel) { d.erwarte_Anfang(Titel, "", Knopf::Ja); }

void tippe_Namen(Sitzung& s) { s.fuehre_aus<&Listenwahl::aendere_Namen>(0, "Another parent"); }
void nichts(Sitzung&) {}

void loesche(Sitzung& s, Drehbuch& d, Satzart Art) {
    erwarte_Ja(d, "Delete record");
    s.fuehre_aus<&Satzverwaltung::loesche>(Art);
}

const std::vector<Befehl> Befehle = {
    {"new_record_over_unsaved_values", tippe_Namen,
     [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::lege_an>(Wirkstoff); }},
    {"copy_of_a_record", nichts, [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::kopiere>(Szenario); }},
    {"copy_of_a_simulation", nichts, [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::kopiere>(Simulation); }},
    {"copy_over_a_record", nichts,
     [](Sitzung& s, Drehbuch& d) {
         erwarte_Ja(d, "Replace existing record?");
         s.fuehre_aus<&Satzverwaltung::kopiere>(Applikation);
     }},
    {"deletion_with_unsaved_values", tippe_Namen, [](Sitzung& s, Drehbuch& d) { loesche(s, d, Wirkstoff); }},
    {"deletion_of_a_simulation", nichts, [](Sitzung& s, Drehbuch& d) { loesche(s, d, Simulation); }},
    {"rename", nichts, [](Sitzung& s, Drehbuch&) { benenne_um(s, Szenario, "Other", true); }},
    {"rename_to_another_case", nichts, [](Sitzung& s, Drehbuch&) { benenne_um(s, Szenario, "PROBE", true); }},
    {"rename_over_a_record_in_another_case", nichts,
     [](Sitzung& s, Drehbuch& d) {
         erwarte_Ja(d, "Replace existing record?");
         benenne_um(s, Szenario, "SECOND", true);
     }},
    {"save", tippe_Namen, [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::speichere>(); }, true},
    {"choice_with_yes", tippe_Namen,
     [](Sitzung& s, Drehbuch& d) {
         erwarte_Ja(d, "Save changes?");
         s.fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 1);
     },
     true},
    {"simulation_over_unsaved_values", tippe_Namen,
     [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::waehle_Simulation>(1); }},
    {"program_defaults", tippe_Namen,
     [](Sitzung& s, Drehbuch& d) {
         d.erwarte_Anfang("Default settings", "");
         s.fuehre_aus<&Satzverwaltung::lade_Voreinstellungen>();
     }},
    {"exit_with_yes", tippe_Namen,
     [](Sitzung& s, Drehbuch& d) {
         erwarte_Ja(d, "Save changes?");
         s.fuehre_aus<&Programmablauf::beende>();
     },
     true},
};

void PrintTo(const Befehl& b, std::ostream* Strom) { *Strom << b.Fall; }

class Abbruch : public Befehlsprobe, public ::testing::WithParamInterface<Befehl> {
protected:
    // No two files hold the same: what is lost cannot hide behind another one.
    Abbruch() {
        for (const Satzart Art : Eingabearten) {
            schreibe_eigenen(std::string("Probe") + Endungen[Art], Art, "101");
            schreibe_eigenen(std::string("Second") + Endungen[Art], Art, "102");
            schreibe_eigenen(std::string("Do not delete this file") + Endungen[Art + 3], Art, "103");
        }
    }

    void schreibe_eigenen(const std::string& Name, Satzart Art, const std::string& Merkmal) const {
        Eingabe e = Felder_;
        e.Name_Wirkstoff = e.Bodenszenario = Merkmal;
        e.Applikationsrate = Merkmal;
        schreibe_Datei((Wurzel_ / "input" / Name).string(), Satz_als_Bytes(Art, e, Sicht_));
    }

    Dateien lies(const char* Ordner) const {
        Dateien Gefundene;
        std::error_code Fehler;
        for (const auto& f : std::filesystem::recursive_directory_iterator(Wurzel_ / Ordner, Fehler)) {
            if (!f.is_regular_file()) continue;
            std::ostringstream Inhalt;
            Inhalt << std::ifstream(f.path(), std::ios::binary).rdbuf();
            Gefundene[std::filesystem::relative(f.path(), Wurzel_ / Ordner).string()] = Inhalt.str();
        }
        return Gefundene;
    }

    void stelle_wieder_her() const {
        // All but the lock of this session: what a killed process left beside a file would be in the way of the next one, whose
        // random names are the same.
        for (const auto& f : std::filesystem::directory_iterator(Wurzel_)) {
            if (f.path().filename() != ".varnok.lock") std::filesystem::remove_all(f.path());
        }
        std::filesystem::create_directory(Wurzel_ / "input");
        for (const auto& [Name, Bytes] : Gegenstand_) std::ofstream(Wurzel_ / "input" / Name, std::ios::binary) << Bytes;
    }

    int fuehre_aus(int Nummer) {
        stelle_wieder_her();
        return fuehre_aus_bis_Operation(Nummer, [&] { GetParam().Tat(*s_, Fragen_); });
    }

    // Each record holds the bytes of before or those of after the command; nothing half written carries the name of one.
    void erwarte_ganze_Saetze(const Dateien& danach) const {
        const Dateien jetzt = lies("input");
        for (const Satzart Art : alle_Arten) {
            for (const std::string& Name : auf_Platte(Art)) {
                const std::string& Bytes = jetzt.at(Name + Endungen[Art]);
                const bool ganz = haelt(Gegenstand_, Name + Endungen[Art], Bytes) || haelt(danach, Name + Endungen[Art], Bytes);
                EXPECT_TRUE(ganz) << Name + Endungen[Art] << " is of neither state";
            }
        }
    }

    // The new name may still stand in the case of the file that was replaced.
    static bool haelt(const Dateien& Stand, const std::string& Name, const std::string& Bytes) {
        const auto klein = [](std::string Text) {
            for (char& c : Text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            return Text;
        };
        return std::any_of(Stand.begin(), Stand.end(),
                           [&](const auto& d) { return klein(d.first) == klein(Name) && d.second == Bytes; });
    }

    // Whatever a record held before is still there, if need be in `backup`.
    void erwarte_alte_Inhalte(const Dateien& danach) const {
        std::set<std::string> vorhanden;
        const Dateien jetzt = lies("input");
        for (const auto& [Name, Bytes] : jetzt) vorhanden.insert(Bytes);
        for (const auto& [Name, Bytes] : lies("backup")) vorhanden.insert(Bytes);
        for (const auto& [Name, Bytes] : Gegenstand_) {
            const bool gesichert = GetParam().sichert && jetzt.contains(Name) && jetzt.at(Name) == danach.at(Name);
            EXPECT_TRUE(vorhanden.contains(Bytes) || gesichert) << "what " << Name << " held is gone";
        }
    }

    void lege_Weiteres_an() {
        schreibe_Datei((Wurzel_ / "input/copy of Probe.app").string(), "an older copy");
        for (const Satzart Art : alle_Arten) {
            const std::string Name = std::string("Programcheck") + Endungen[Art];
            schreibe_Datei((Wurzel_ / "input" / Name).string(), "the user's own " + Name);
        }
        Gegenstand_ = lies("input");
    }

    Dateien Gegenstand_;  // the files before the command
};

TEST_P(Abbruch, anywhere_leaves_every_record_whole) {
    gestartet();
    lege_Weiteres_an();
    GetParam().davor(*s_);
    constexpr int nie = 1000000;
    ASSERT_EQ(fuehre_aus(nie), 0);
    const Dateien danach = lies("input");
    int Nummer = 1;
    for (;; ++Nummer) {
        const int Status = fuehre_aus(Nummer);
        SCOPED_TRACE("before operation " + std::to_string(Nummer));
        erwarte_ganze_Saetze(danach);
        erwarte_alte_Inhalte(danach);
        if (Status == 0) break;
        ASSERT_EQ(Status, Abbruchstatus);
    }
    EXPECT_EQ(lies("input"), danach);
    RecordProperty("operations", Nummer - 1);
    EXPECT_GE(Nummer, 2) << "the command changes files";
}

INSTANTIATE_TEST_SUITE_P(Commands, Abbruch, ::testing::ValuesIn(Befehle),
                         [](const auto& i) { return std::string(i.param.Fall); });

}  // namespace
}  // namespace varnok
