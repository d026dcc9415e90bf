#include "session/kern/ruecknahme.h"

#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

// A field was changed, then a command done to the records: whether there is a way back behind it.
struct Fall {
    const char* Name;
    void (*tue)(Sitzung&, Drehbuch&);
    bool Weg_zurueck;
};

class Verlaufsanfang : public Probesitzung, public ::testing::WithParamInterface<Fall> {};

TEST_P(Verlaufsanfang, LiegtHinterJedemAnderenSatz) {
    schreibe_Saetze("Second", Felder_);
    schreibe_Simulation(Projektordner(Wurzel_.string()), "Second", {"Another", {"", "Second", "Second", "Second"}});
    std::filesystem::last_write_time(Wurzel_ / "input/Second.vnk", std::filesystem::file_time_type::min());
    Sitzung& s = gestartet();
    ASSERT_EQ(s.Stand().gewaehlt(Simulation), "Probe");
    ASSERT_TRUE(tippe("Applikationsrate", "250"));
    ASSERT_NE(s.zeige<Ruecknahme>().Name_zurueck(), "");
    GetParam().tue(s, Fragen_);
    EXPECT_EQ(!s.zeige<Ruecknahme>().Name_zurueck().empty(), GetParam().Weg_zurueck);
}

const std::vector<Fall> Faelle = {
    {"other_simulation", [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::waehle_Simulation>(1); }, false},
    {"other_record", [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, 1); }, false},
    {"rename", [](Sitzung& s, Drehbuch&) { benenne_um(s, Szenario, "Third", true); }, false},
    {"delete",
     [](Sitzung& s, Drehbuch& d) {
         d.erwarte_Anfang("Delete record", "", Knopf::Ja);
         s.fuehre_aus<&Satzverwaltung::loesche>(Szenario);
     },
     false},
    {"copy", [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::kopiere>(Szenario); }, true},
    {"save", [](Sitzung& s, Drehbuch&) { s.fuehre_aus<&Satzverwaltung::speichere>(); }, true},
    {"description_by_the_organiser",
     [](Sitzung& s, Drehbuch&) {
         s.fuehre_aus<&Organiser::oeffne>();
         s.fuehre_aus<&Organiser::aendere_Projektname>("Other words");
         EXPECT_TRUE(s.fuehre_aus<&Organiser::uebernimm>());
         s.fuehre_aus<&Organiser::schliesse_ab>();
     },
     true},
};

INSTANTIATE_TEST_SUITE_P(Befehle, Verlaufsanfang, ::testing::ValuesIn(Faelle),
                         [](const auto& f) { return std::string(f.param.Name); });

}  // namespace
}  // namespace varnok
