// Threads, shards and the progress bar.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "batch/fortschrittsbalken.h"
#include "batch/probeprojekt.h"
#include "batch/schreiber.h"
#include "batch/simulationslauf.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::HasSubstr;
using testing::Not;

// Ten simulations of all schemes and kinetics, one of them at fault.
struct Viele : testing::Test {
    static std::string Name(int i) { return std::string("s").append(std::to_string(i)); }

    Probeprojekt Projekt;
    Viele() {
        for (int i = 0; i < 9; ++i) {
            Probe p;
            p.Felder.Berechnungsmodus = static_cast<Stoffschema>(i % 4);
            p.Felder.Parameter.Kinetik[0][0] = static_cast<Kinetikart>(i % 4);
            p.Felder.Parameter.Separate_Rueckstaende = static_cast<Rueckstandsart>(i % 3);
            p.Felder.Parameter.k_SFO[0][0] = 0.001 * (i + 1);
            p.Felder.Applikationsmuster = regelmaessig;
            waehle_Anzahl(p.Felder, 2 + i);
            if (i % 2 == 0) fuege_Studie_an(p, "Second");
            Projekt.schreibe(Name(i), p);
        }
        Projekt.schreibe_Bytes("bad.vnk", "");
    }

    // JSON, CSV, table and one file of series under a number of threads.
    std::vector<std::string> alles(const std::string& Arbeiter) {
        const std::string Tage = Projekt.daneben("days" + Arbeiter);
        std::vector<std::string> Texte;
        for (const std::vector<std::string>& Ausgabe :
             {std::vector<std::string>{"--json", "-"}, {"--csv", "-"}, {}, {"--series", Tage}}) {
            std::vector<std::string> Argumente = {"--all", "--jobs", Arbeiter};
            Argumente.insert(Argumente.end(), Ausgabe.begin(), Ausgabe.end());
            Argumente.push_back(Projekt.Pfad());
            const auto r = rufe(Argumente);
            EXPECT_EQ(r.Status, 1);
            Texte.push_back(r.aus);
            Texte.push_back(r.fehler);
        }
        for (int i = 0; i < 9; ++i) Texte.push_back(Inhalt(Tage + "/" + Name(i) + " - study 1.tab"));
        return Texte;
    }
};

TEST_F(Viele, any_number_of_threads_gives_equal_bytes) {
    const auto einer = alles("1");
    EXPECT_EQ(alles("2"), einer);
    EXPECT_EQ(alles("8"), einer);
    EXPECT_EQ(alles("0"), einer);
}

TEST_F(Viele, shards_hold_each_simulation_once_with_its_position) {
    const JSON ganz = rufe({"--all", "--json", "-", Projekt.Pfad()}).JSON();
    std::vector<JSON> nach_Position(10);
    for (int i = 0; i < 4; ++i) {
        const JSON Teil = rufe({"--all", "--shard", std::to_string(i) + "/4", "--json", "-", Projekt.Pfad()}).JSON();
        for (const char* Liste : {"simulations", "errors"}) {
            for (JSON s : Teil[Liste]) {
                const std::size_t p = s["position"];
                EXPECT_EQ(p % 4, static_cast<std::size_t>(i));
                s.erase("position");
                nach_Position.at(p) = s;
            }
        }
    }
    // "bad" is the first by name.
    EXPECT_EQ(nach_Position[0].dump(), ganz["errors"][0].dump());
    for (std::size_t p = 1; p < nach_Position.size(); ++p)
        EXPECT_EQ(nach_Position[p].dump(), ganz["simulations"][p - 1].dump()) << p;
}

TEST_F(Viele, simulation_does_not_depend_on_what_ran_before) {
    const JSON alle = rufe({"--all", "--jobs", "1", "--json", "-", Projekt.Pfad()}).JSON();
    for (const JSON& s : alle["simulations"]) {
        const JSON allein = rufe({"--simulation", s["simulation"], "--json", "-", Projekt.Pfad()}).JSON();
        EXPECT_EQ(allein["simulations"][0].dump(), s.dump());
    }
}

// With threads of the standard library alone, whose order a thread sanitizer sees.
TEST_F(Viele, runs_at_the_same_time_do_not_know_of_each_other) {
    const Projektordner Ordner(Projekt.Pfad());
    const Auftrag Arbeit(Ordner);
    const std::vector<std::string> Namen = Ordner.Namen(Endungen[Simulation]);
    const auto alle = [&] {
        Arbeitsplatz Platz;
        std::vector<Simulationsausgang> Ausgaenge;
        for (const std::string& n : Namen) Ausgaenge.push_back(rechne_Simulation(Arbeit, n, Platz));
        return als_JSON(Ausgaenge);
    };
    const std::string einzeln = alle();
    std::vector<std::string> gleichzeitig(4);
    {
        std::vector<std::jthread> Faeden;
        for (std::string& Text : gleichzeitig) Faeden.emplace_back([&] { Text = alle(); });
    }
    for (const std::string& Text : gleichzeitig) EXPECT_EQ(Text, einzeln);
}

TEST_F(Viele, workplace_may_be_the_same_for_all_or_a_new_one_for_each) {
    const Projektordner Ordner(Projekt.Pfad());
    const Auftrag Arbeit(Ordner);
    Arbeitsplatz gemeinsamer;
    for (const std::string& n : Ordner.Namen(Endungen[Simulation])) {
        Arbeitsplatz eigener;
        const std::string Text = als_JSON({rechne_Simulation(Arbeit, n, eigener)});
        EXPECT_EQ(als_JSON({rechne_Simulation(Arbeit, n, gemeinsamer)}), Text) << n;
    }
}

// More simulations than are under way at a time, the first the longest of all.
TEST_F(Viele, outputs_and_messages_come_in_the_order_of_the_call) {
    Probe Lange;
    for (int i = 0; i < 5; ++i) fuege_Studie_an(Lange, "Further");
    Projekt.schreibe("a first", Lange);
    std::string erwartete_Meldungen, erwartete_Namen;
    for (int i = 100; i < 200; ++i) {
        const std::string Nummer = std::to_string(i);
        Projekt.verweise("t" + Nummer, i % 2 == 0 ? "s0" : "none", "s0", "s0");
        if (i % 2 == 0) erwartete_Namen += "t" + Nummer + "\n";
        if (i % 2 != 0)
            erwartete_Meldungen +=
                "varnok-batch: t" + Nummer + ": file t" + Nummer + ".vnk, line 2: there is no compound record \"none\"\n";
    }
    const auto r = rufe({"--all", "--jobs", "4", "--csv", "-", Projekt.Pfad()});
    EXPECT_EQ(r.Status, 1);
    EXPECT_EQ(r.fehler.substr(r.fehler.find("varnok-batch: t")), erwartete_Meldungen);
    std::string Namen, vorige;
    for (const std::string& z : probe::Zeilen(r.aus, "\r\n")) {
        const std::string Name = z.substr(0, z.find(','));
        if (Name.starts_with('t') && Name != vorige) Namen += Name + "\n";
        vorige = Name;
    }
    EXPECT_EQ(Namen, erwartete_Namen);
    EXPECT_TRUE(probe::Zeilen(r.aus, "\r\n").at(1).starts_with("a first,"));
}

Umgebung Terminal(bool ist_eines) {
    return {[ist_eines] { return ist_eines; }, std::chrono::milliseconds(0)};
}

TEST_F(Viele, progress_bar_shows_on_a_terminal_and_is_wiped) {
    const auto r = rufe({"--simulation", "s0", "--json", "-", Projekt.Pfad()}, Terminal(true));
    EXPECT_EQ(r.Status, 0);
    EXPECT_THAT(r.fehler, HasSubstr(" of 1 simulation"));
    EXPECT_THAT(r.fehler, testing::EndsWith(" \r"));
    EXPECT_EQ(r.JSON()["simulations"].size(), 1U);
}

TEST_F(Viele, progress_bar_makes_room_for_messages_and_results) {
    std::ostringstream Terminalausgabe;  // one place for both, as on a terminal
    const std::string Pfad = Projekt.Pfad();
    const char* argv[] = {"varnok-batch", "--all", "--jobs", "2", "--csv", "-", Pfad.c_str()};
    EXPECT_EQ(varnok_batch(7, argv, Terminalausgabe, Terminalausgabe, Terminal(true)), 1);
    const std::string Text = Terminalausgabe.str();
    for (const char* Anfang : {"varnok-batch: bad", "simulation,study"}) {
        const auto Stelle = Text.find(Anfang);
        ASSERT_NE(Stelle, std::string::npos);
        EXPECT_TRUE(Stelle == 0 || Text[Stelle - 1] == '\r' || Text[Stelle - 1] == '\n') << Anfang;
    }
}

TEST_F(Viele, progress_bar_does_not_show_without_a_terminal_or_with_quiet) {
    EXPECT_EQ(rufe({"--simulation", "s0", Projekt.Pfad()}, Terminal(false)).fehler, "");
    EXPECT_EQ(rufe({"--simulation", "s0", "--quiet", Projekt.Pfad()}, Terminal(true)).fehler, "");
}

TEST_F(Viele, progress_bar_does_not_show_for_short_work) {
    const Umgebung Umwelt{[] { return true; }, std::chrono::hours(1)};
    EXPECT_EQ(rufe({"--simulation", "s0", Projekt.Pfad()}, Umwelt).fehler, "");
}

TEST(Fortschritt, bar_fills_with_the_work_done) {
    EXPECT_EQ(Balkentext(0, 4), "[                              ] 0 of 4 simulations");
    EXPECT_EQ(Balkentext(2, 4), "[###############               ] 2 of 4 simulations");
    EXPECT_EQ(Balkentext(4, 4), "[##############################] 4 of 4 simulations");
    EXPECT_EQ(Balkentext(0, 0), "[##############################] 0 of 0 simulations");
}

}  // namespace
}  // namespace varnok::batch
