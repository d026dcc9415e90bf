// Whole report texts. Each is held twice: against its file, and against the second writing of the reports with the
// values of the reference calculation.

#include <gtest/gtest.h>

#include <functional>

#include "berichtsprobe.h"
#include "support/golden.h"

namespace varnok::probe {
namespace {

struct Fall {
    const char* Name;
    std::function<Lauf_bauer()> Bauer;
    bool erweitert = false;
};

Lauf_bauer alle_Kinetiken_in_drei_Studien() {
    Lauf_bauer b = Lauf_bauer().Schema(1).nach_DFOP(0.1, 0.01, 0.7).nach_SFO(0.02, 1);
    b.Studie(1).nach_FOMC(1.2, 15).nach_DFOP(0.05, 0.005, 0.4, 1);
    b.Studie(2).nach_HS(0.08, 0.012, 14).KOC(333, 1);
    b.Felder.Studie = {"field", "meadow", "garden"};
    b.i_studie = 0;
    b.Sicht.Studie_Index = 1;
    return b;
}

const std::vector<Fall>& Faelle() {
    static const std::vector<Fall> Liste = {
        {"parent, single application", [] { return Lauf_bauer(); }},
        {"one metabolite", [] { return Lauf_bauer().Schema(1).nach_SFO(0.03, 1); }},
        {"two parallel metabolites",
         [] { return Lauf_bauer().Schema(2).nach_SFO(0.03, 1).nach_SFO(0.002, 2).KOC(42.5, 1).KOC(0, 2); }},
        {"two metabolites in sequence", [] { return Lauf_bauer().Schema(3).nach_SFO(0.03, 1).nach_DFOP(0.05, 0.004, 0.6, 2); }},
        {"biphasic", [] { return Lauf_bauer().nach_DFOP(0.1, 0.01, 0.7); }},
        {"multi-compartment, unsure plateau", [] { return Lauf_bauer().nach_FOMC(0.1, 5).Rueckstaende(1).Beginn(12, 31); }},
        {"hockey stick", [] { return Lauf_bauer().nach_HS(0.08, 0.012, 14); }},
        {"regular applications",
         [] {
             Lauf_bauer b = Lauf_bauer().regelmaessige_Gaben(3, 14).Dosis("120", "25").Rueckstaende(2);
             b.Sicht.Fruchtwechsel = jedes_dritte_Jahr;
             return b;
         }},
        {"irregular applications",
         [] {
             return Lauf_bauer().Termine({{"01", "03", "100", "0"}, {"20", "04", "150", "10"}, {"05", "05", "", "50"}});
         }},
        {"micrograms, pore water",
         [] {
             Lauf_bauer b = Lauf_bauer().Schema(1).nach_SFO(0.03, 1).Einheit(1);
             b.Sicht.Endpunkt = Porenwasser;
             return b;
         }},
        {"pore water, monthly windows, background",
         [] {
             Lauf_bauer b = Lauf_bauer().nach_DFOP(0.1, 0.01, 0.7);
             b.Sicht.Endpunkt = Porenwasser;
             b.Sicht.PEC_Typ = Hintergrund;
             b.Felder.Parameter.TWA_Zeiten = Monatsliste;
             return b;
         }},
        {"variable climate", [] { return Lauf_bauer().Wetter(wechselndes_Wetter(365)).Beginn(4, 15); }},
        {"extended, one study", [] { return Lauf_bauer(); }, true},
        {"extended, three studies", alle_Kinetiken_in_drei_Studien, true},
        {"extended, six studies, micrograms",
         [] {
             Lauf_bauer b = mit_Studien(Lauf_bauer().Schema(3).nach_SFO(0.03, 1).nach_SFO(0.01, 2).Einheit(1), 6);
             b.Sicht.Fruchtwechsel = jedes_zweite_Jahr;
             return b;
         },
         true},
        {"second of three studies", alle_Kinetiken_in_drei_Studien},
    };
    return Liste;
}

class Berichtstext : public ::testing::TestWithParam<Fall> {};

TEST_P(Berichtstext, is_that_of_the_witness_and_of_the_file) {
    const Fall& f = GetParam();
    const Lauf_bauer b = f.Bauer();
    const auto l = mit_Ergebnissen(b);
    const zeuge::Aufgabe a = als_Aufgabe(l, b);
    const std::string Text = f.erweitert ? erstelle_erweiterten_Bericht(l, Angaben) : erstelle_Standardbericht(l, Angaben);
    EXPECT_EQ(Text, f.erweitert ? zeuge::erweiterter_Bericht(a) : zeuge::Standardbericht(a));
    EXPECT_TRUE(Golden(VARNOK_TESTORDNER "/golden/reports").gleich(std::string(f.Name) + ".txt", Text));
}

INSTANTIATE_TEST_SUITE_P(Golden, Berichtstext, ::testing::ValuesIn(Faelle()), [](const auto& i) {
    std::string Name = i.param.Name;
    for (char& z : Name) z = std::isalnum(static_cast<unsigned char>(z)) ? z : '_';
    return Name;
});

}  // namespace
}  // namespace varnok::probe
