// Sessions on a project that a script has prepared, for tests that look at the files from outside: tests/feindlich,
// tools/toete.py. Without a project in the environment there is nothing to do.

#include <cstdlib>

#include "session/kern/probesitzung.h"
#include "session/kern/sitzung.h"
#include "support/drehbuch.h"

namespace varnok {
namespace {

// Goes on wherever it is asked, and notes what it was told.
class Jasager : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        gehoert += f.Titel + ": " + f.Text + "\n";
        const bool ja = std::find(f.Knoepfe.begin(), f.Knoepfe.end(), Knopf::Ja) != f.Knoepfe.end();
        return ja ? Knopf::Ja : f.Knoepfe.front();
    }
    std::string gehoert;
};

class Auftrag : public ::testing::Test {
protected:
    void SetUp() override {
        const char* Ordner = std::getenv("VARNOK_PROBEPROJEKT");
        if (Ordner == nullptr) GTEST_SKIP() << "for the scripts that prepare a project";
        s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Ordner, VARNOK_DATENORDNER, '.'});
        ASSERT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    }
    const Zustand& z() const { return s_->Stand(); }
    // Another rate each time.
    void tippe() {
        const int f = Feld_mit_Namen("Applikationsrate");
        s_->fuehre_aus<&Feldeingabe::betrete>(f);
        s_->fuehre_aus<&Feldeingabe::aendere>(f, std::to_string(100 + ++Zahl_ % 900));
        s_->fuehre_aus<&Feldeingabe::verlasse>(f);
        s_->fuehre_aus<&Zwischensicherung::schreibe>();  // as the window does when it has been drawn
    }
    void stelle_wieder_her() {
        const auto Angebot = s_->zeige<Wiederherstellung>().Angebot();
        if (!Angebot.empty()) s_->fuehre_aus<&Wiederherstellung::stelle_her>(std::vector{Angebot.front()});
    }

    Jasager Fragen_;
    std::unique_ptr<Sitzung> s_;
    int Zahl_ = 0;
};

TEST_F(Auftrag, Ein_Tag) {
    tippe();
    EXPECT_FALSE(z().abgedeckt()) << z().Abdeckungswort() << "\n" << Fragen_.gehoert;
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    for (const Satzart Art : Eingabearten) s_->fuehre_aus<&Satzverwaltung::kopiere>(Art);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    s_->fuehre_aus<&Satzverwaltung::lege_an>(Szenario);
    benenne_um(*s_, Szenario, "../../outside", false);
    benenne_um(*s_, Szenario, "renamed", false);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    stelle_wieder_her();
    if (z().Studienzahl() > 1) s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    for (int i = 0; i < static_cast<int>(z().Listen[Simulation].size()); ++i)
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(i);
    // More backups than are kept.
    for (int i = 0; i < 55; ++i) {
        tippe();
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(z().Auswahl(Simulation));
    }
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet()) << Fragen_.gehoert;
    s_.reset();
}

// To be killed.
TEST_F(Auftrag, Ohne_Ende) {
    for (;;) {
        tippe();
        s_->fuehre_aus<&Satzverwaltung::speichere>();
        s_->fuehre_aus<&Berichtssteuerung::erstelle>();
        s_->fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
        benenne_um(*s_, Szenario, "work " + std::to_string(Zahl_ % 3), true);
        s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
        stelle_wieder_her();
        // No record but those of this simulation is ever saved.
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(z().Auswahl(Simulation));
    }
}

}  // namespace
}  // namespace varnok
