// Figures of the simulations that come with the program, reached by different ways. The expected ones were found by
// calculations outside of the program.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Mitgeliefertes : public Probesitzung {
protected:
    Mitgeliefertes() {
        std::filesystem::remove_all(Wurzel_ / "input");
        std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input", Wurzel_ / "input",
                              std::filesystem::copy_options::recursive);
    }
    Sitzung& beginne(const std::string& Simulation) {
        Umgebung Welt{&Fragen_, Wurzel_.string(), "", '.'};
        Welt.Projekt_genannt = true;
        Welt.erste_Simulation = Simulation;
        s_ = std::make_unique<Sitzung>(Welt);
        s_->fuehre_aus<&Programmablauf::oeffne_Projekt>();
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
        return *s_;
    }
    const Zustand& z() const { return s_->Stand(); }
    Tabellentext Tabelle() const { return Ergebnisse_einer_Studie(z(), 0); }
    std::string PECactual(const std::string& Zeile) const {
        for (const auto& z : Tabelle()) {
            if (!z.empty() && z[0].ends_with(" " + Zeile)) return z[1];
        }
        return "no row " + Zeile;
    }
    void zeige(Endpunktart Endpunkt, PEC_Ansicht Art) {
        s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Endpunkt);
        s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Art);
    }
};

// 35 % of the dose and 99.7712 % of it: no power of two lies between them, peaks of equal height fall on other days.
TEST_F(Mitgeliefertes, PECactual_of_a_changed_interception_is_that_of_a_run) {
    beginne("Apples, Compound F");
    ASSERT_TRUE(tippe("S_TRef_0", ""));
    ASSERT_TRUE(tippe("Interzeption", "0.2288"));
    EXPECT_EQ(PECactual("21 d"), "223.61");
}

TEST_F(Mitgeliefertes, pore_water_of_the_shipped_check_is_the_same_after_another_simulation) {
    beginne("Programcheck");
    zeige(Porenwasser, Anreicherung);
    const Tabellentext frisch = Tabelle();
    EXPECT_EQ(PECactual("PECmax"), "0.8163");
    const std::vector<std::string> Simulationen = z().Listen[Simulation];
    const auto Programcheck = std::find(Simulationen.begin(), Simulationen.end(), "Programcheck") - Simulationen.begin();
    for (const std::string& Name : Simulationen) {
        SCOPED_TRACE(Name);
        beginne(Name).fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(Programcheck));
        zeige(Porenwasser, Anreicherung);
        EXPECT_EQ(Tabelle(), frisch);
    }
}

}  // namespace
}  // namespace varnok
