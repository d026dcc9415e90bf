// One session on a good disk, in a project that can only be read and on a disk that is full: the same to look at from start to
// end, with one message for each thing that could not be done.

#include <fstream>

#include "records/simulation.h"
#include "session/kern/probesitzung.h"
#include "support/kleine_platte.h"
#include "support/ohne_rechte.h"
#include "support/versager.h"

namespace varnok {
namespace {

namespace fs = std::filesystem;
using Texte_ = std::vector<std::string>;

// Goes on and does not save; keeps what it is told.
class Zuhoerer : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        if (f.Titel == "Save changes?") return Knopf::Nein;
        if (f.Titel == "Runtime error") Meldungen.push_back(f.Text);
        return f.Knoepfe.front();
    }
    Texte_ Meldungen;
};

class Ein_Tag : public Probesitzung {
public:
    struct Schritt {
        const char* Name;
        std::function<void(Ein_Tag&)> tue;
        Texte_ nur_lesbar = {};  // beginnings of the messages
        Texte_ voll = {};
    };
    struct Bild {
        float Maximum;
        std::string Simulation, Studie;
        bool abgedeckt;
        friend bool operator==(const Bild&, const Bild&) = default;
    };

    template <auto Befehl, class... Angaben>
    void befiehl(Angaben&&... a) {
        s_->fuehre_aus<Befehl>(std::forward<Angaben>(a)...);
    }
    void waehle(Satzart Art, const std::string& Name) {
        const auto& Liste = s_->Stand().Listen[Art];
        const int Platz = static_cast<int>(std::find(Liste.begin(), Liste.end(), Name) - Liste.begin());
        if (Art == Simulation) return befiehl<&Satzverwaltung::waehle_Simulation>(Platz);
        befiehl<&Satzverwaltung::waehle_Satz>(Art, Platz);
    }
    void gib_ein(const char* Wert) { EXPECT_TRUE(tippe("Applikationsrate", Wert)); }
    void stelle_her() { befiehl<&Wiederherstellung::stelle_her>(s_->zeige<Wiederherstellung>().Angebot()); }
    void berichte() {
        befiehl<&Berichtssteuerung::erstelle>();
        EXPECT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
        EXPECT_NE(s_->Stand().Statuszeile.Text().find("eport"), std::string::npos)
            << "what became of it is told: " << s_->Stand().Statuszeile.Text();
    }
    void beginne() {
        s_ = std::make_unique<Sitzung>(Umgebung{&Zuhoerer_, Wurzel_.string(), "", '.'});
        EXPECT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
        befiehl<&Programmablauf::verlasse_Startseite>();
    }

protected:
    // The project as every session finds it.
    void lege_an() {
        fs::create_directories(Wurzel_ / "input");
        Eingabe andere = Felder_;
        andere.Applikationsrate = "500";
        schreibe_Saetze("Other", andere);
        schreibe_Saetze("Spare", Felder_);
        schreibe_Simulation(Projektordner(Wurzel_.string()), "Second", {"Another", {"", "Other", "Other", "Other"}});
        fs::copy_file(Wurzel_ / "input/Spare.sce", Wurzel_ / "input/do not delete this file.scn");
        schreibe_Probe();
        fs::last_write_time(Wurzel_ / "input/Second.vnk", fs::file_time_type::clock::now() - std::chrono::hours(1));
        fs::create_directories(Wurzel_ / "backup/2026-01-01 10-00-00");
        std::ofstream(Wurzel_ / "backup/2026-01-01 10-00-00/Spare.che") << "of another time\n";
    }
    static const std::vector<Schritt>& Schritte();
    // What was seen after each step; the messages are compared with those expected.
    std::vector<Bild> erlebe(Texte_ Schritt::*erwartet) {
        std::vector<Bild> Gesehen;
        for (const Schritt& s : Schritte()) {
            SCOPED_TRACE(s.Name);
            Zuhoerer_.Meldungen.clear();
            if (vor_jedem_Schritt_) vor_jedem_Schritt_();
            s.tue(*this);
            const Texte_ Anfaenge = erwartet ? s.*erwartet : Texte_();
            EXPECT_EQ(Zuhoerer_.Meldungen.size(), Anfaenge.size()) << ::testing::PrintToString(Zuhoerer_.Meldungen);
            for (std::size_t i = 0; i < std::min(Zuhoerer_.Meldungen.size(), Anfaenge.size()); ++i) {
                EXPECT_EQ(Zuhoerer_.Meldungen[i].substr(0, Anfaenge[i].size()), Anfaenge[i]) << Zuhoerer_.Meldungen[i];
            }
            const Zustand& z = s_->Stand();
            Gesehen.push_back({Maximum(), z.gewaehlt(Simulation), z.Vorgabe.Studie.front(), z.abgedeckt()});
        }
        EXPECT_TRUE(s_->Stand().beendet());
        s_.reset();
        return Gesehen;
    }
    std::vector<Bild> auf_guter_Platte() {
        lege_an();
        const auto Gesehen = erlebe(nullptr);
        fs::remove_all(Wurzel_);
        fs::create_directories(Wurzel_);
        return Gesehen;
    }
    static void vergleiche(const std::vector<Bild>& hier, const std::vector<Bild>& gut) {
        ASSERT_EQ(hier.size(), gut.size());
        for (std::size_t i = 0; i < gut.size(); ++i) {
            // A deleted record covers the results; one that stays does not.
            if (Schritte()[i].Name == std::string_view("delete")) continue;
            EXPECT_TRUE(hier[i] == gut[i]) << Schritte()[i].Name << ": " << hier[i].Maximum << " for " << gut[i].Maximum << ", "
                                           << hier[i].Simulation << " for " << gut[i].Simulation;
        }
    }

    Zuhoerer Zuhoerer_;
    std::function<void()> vor_jedem_Schritt_;
};

const std::vector<Ein_Tag::Schritt>& Ein_Tag::Schritte() {
    static const Texte_ nur_lesbar = {"The project folder \""};
    static const Texte_ voll = {"Cannot write the file \""};
    static const std::vector<Schritt> Alle = {
        {"start", [](Ein_Tag& t) { t.beginne(); }, {}, voll},  // the by-products of the first run
        {"type", [](Ein_Tag& t) { t.gib_ein("300"); }},
        {"another simulation drops it", [](Ein_Tag& t) { t.waehle(Simulation, "Second"); }, {"Cannot make the folder"}, voll},
        {"all studies", [](Ein_Tag& t) { t.befiehl<&Listenwahl::zeige_Zusammenfassung>(); }, {}, voll},  // a by-product
        {"back", [](Ein_Tag& t) { t.waehle(Simulation, "Probe"); }},
        {"report", [](Ein_Tag& t) { t.berichte(); }, {}, voll},
        {"another record", [](Ein_Tag& t) { t.waehle(Applikation, "Other"); }},
        {"type again", [](Ein_Tag& t) { t.gib_ein("310"); }},
        {"save", [](Ein_Tag& t) { t.befiehl<&Satzverwaltung::speichere>(); }, nur_lesbar, voll},
        {"copy", [](Ein_Tag& t) { t.befiehl<&Satzverwaltung::kopiere>(Szenario); }, nur_lesbar, voll},
        {"rename", [](Ein_Tag& t) { benenne_um(*t.s_, Szenario, "renamed", true); }, nur_lesbar},
        {"delete", [](Ein_Tag& t) { t.befiehl<&Satzverwaltung::loesche>(Szenario); }, nur_lesbar, voll},
        {"choose", [](Ein_Tag& t) { t.waehle(Szenario, "Spare"); }},
        {"new", [](Ein_Tag& t) { t.befiehl<&Satzverwaltung::lege_an>(Szenario); }, nur_lesbar, voll},
        {"restore", [](Ein_Tag& t) { t.stelle_her(); }, nur_lesbar, {voll[0], voll[0]}},  // nor what it replaces kept
        {"type at the end", [](Ein_Tag& t) { t.gib_ein("320"); }},
        {"end", [](Ein_Tag& t) { t.befiehl<&Programmablauf::beende>(); }, {}, {voll[0], voll[0]}},
    };
    return Alle;
}

TEST_F(Ein_Tag, where_nothing_can_be_written) {
    const auto gut = auf_guter_Platte();
    lege_an();
    const Ohne_Schreibrecht Rechte({Wurzel_ / "backup", Wurzel_ / "input", Wurzel_});
    vergleiche(erlebe(&Schritt::nur_lesbar), gut);
}

TEST_F(Ein_Tag, on_a_full_disk) {
    const auto gut = auf_guter_Platte();
    const Kleine_Platte Platte(Wurzel_, 200);
    if (!Platte.steht()) GTEST_SKIP() << "needs the right to mount; the disk that fails does the same";
    lege_an();
    vor_jedem_Schritt_ = [&] { Platte.fuelle(); };  // what was deleted made room
    vergleiche(erlebe(&Schritt::voll), gut);
}

class Versagende_Platte_am_Tag : public Ein_Tag {
protected:
    void SetUp() override {
        if (!Versager::geladen()) GTEST_SKIP() << "needs the library of tests/versager, see the test of that name";
    }
};

TEST_F(Versagende_Platte_am_Tag, that_takes_nothing) {
    const auto gut = auf_guter_Platte();
    lege_an();
    const Versager Platte(0, 1);
    vergleiche(erlebe(&Schritt::voll), gut);
}

}  // namespace
}  // namespace varnok
