// Shards, threads and joining: the same bytes whichever way they were made. Lines that a broken call left.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <atomic>
#include <fstream>

#include "batch/probeprojekt.h"
#include "batch/sqlite_verbindung.h"
#include "records/dateien.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;
using probe::Inhalt;
using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::HasSubstr;

// Three simulations, one of them at fault, with eleven variants each.
struct Teile : testing::Test {
    Probeprojekt Projekt;

    Teile() {
        Probe p;
        p.Felder.Berechnungsmodus = ein_Metabolit;
        fuege_Studie_an(p, "Second");
        Projekt.schreibe("a, \"quoted\"", p);
        Projekt.schreibe("b");
        Projekt.schreibe_Bytes("bad.vnk", "");
        std::string Plan = "rotation,Koc\n";
        for (int i = 0; i < 11; ++i) Plan += std::to_string(i % 3 + 1) + "," + std::to_string(50 + i) + "\n";
        Projekt.schreibe_Bytes("../../plan.csv", Plan);
    }

    std::string Ort(const std::string& Name) const { return Projekt.daneben(Name); }

    // All outputs of a call under a name.
    void rechne(const std::string& Name, const std::vector<std::string>& dazu) const {
        std::vector<std::string> Argumente = {"--all", "--vary", Ort("plan.csv"), "--inputs", Projekt.Pfad()};
        for (const auto& [Option, Endung] : Ausgaben) {
            Argumente.emplace_back(Option);
            Argumente.push_back(Ort(Name + Endung));
        }
        Argumente.insert(Argumente.end(), dazu.begin(), dazu.end());
        EXPECT_EQ(rufe(Argumente).Status, 1);
    }
    // Rows of all tables in a fixed order.
    std::string Abzug(const std::string& Datei) const {
        const Verbindung v(Ort(Datei), Verbindung::Art::lesend);
        std::string Text;
        for (const char* Tabelle :
             {"simulation", "variant", "variant_value", "result", "year_maximum", "twa", "day", "message"}) {
            Anweisung Spalten = v.bereite((std::string("SELECT count(*) FROM pragma_table_info('") + Tabelle + "')").c_str());
            Spalten.zeile();
            const int Anzahl = static_cast<int>(Spalten.Zahl(0));
            std::string Ordnung;
            for (int i = 1; i <= Anzahl; ++i) Ordnung += (i > 1 ? "," : "") + std::to_string(i);
            Anweisung Zeilen = v.bereite((std::string("SELECT * FROM ") + Tabelle + " ORDER BY " + Ordnung).c_str());
            while (Zeilen.zeile()) {
                Text += Tabelle;
                for (int i = 0; i < Anzahl; ++i) Text += "|" + (Zeilen.leer(i) ? std::string("NULL") : Zeilen.Text(i));
                Text += "\n";
            }
        }
        return Text;
    }

    static constexpr std::pair<const char*, const char*> Ausgaben[] = {
        {"--json", ".json"}, {"--json-lines", ".jsonl"}, {"--csv", ".csv"}, {"--sqlite", ".db"}, {"--summary", ".sum"}};
    static constexpr const char* Texte[] = {".json", ".jsonl", ".csv", ".sum"};
};

TEST_F(Teile, any_number_of_threads_gives_equal_bytes_and_rows) {
    rechne("eins", {"--jobs", "1"});
    rechne("zwei", {"--jobs", "2"});
    for (const char* Endung : Texte)
        EXPECT_EQ(Inhalt(Ort(std::string("zwei") + Endung)), Inhalt(Ort(std::string("eins") + Endung)));
    EXPECT_EQ(Abzug("zwei.db"), Abzug("eins.db"));
    EXPECT_THAT(Abzug("eins.db"), HasSubstr("result|"));
}

TEST_F(Teile, four_shards_joined_are_the_call_without_shards) {
    rechne("ganz", {});
    const std::vector<std::string> Namen = {"t3", "t0", "t2", "t1"};  // in any order
    for (const std::string& Name : Namen) rechne(Name, {"--shard", Name.substr(1) + "/4"});
    for (const auto& [Option, Endung] : Ausgaben) {
        if (std::string(Endung) == ".sum") continue;
        SCOPED_TRACE(Endung);
        std::vector<std::string> Argumente = {Option, Ort(std::string("alle") + Endung), "--summary",
                                              Ort(std::string("alle.sum") + Endung), "--merge"};
        for (const std::string& Name : Namen) Argumente.push_back(Ort(Name + Endung));
        const auto r = rufe(Argumente);
        EXPECT_EQ(r.fehler, "");
        EXPECT_EQ(r.Status, std::string(Endung) == ".csv" ? 0 : 1);  // a table does not tell of errors
        EXPECT_EQ(Inhalt(Ort(std::string("alle.sum") + Endung)), Inhalt(Ort("ganz.sum")));
        if (std::string(Endung) == ".db") continue;
        EXPECT_EQ(Inhalt(Ort(std::string("alle") + Endung)), Inhalt(Ort(std::string("ganz") + Endung)));
    }
    EXPECT_EQ(Abzug("alle.db"), Abzug("ganz.db"));
}

TEST_F(Teile, part_without_any_work_is_a_part_too) {
    std::vector<std::string> Argumente = {"--json-lines", Ort("alle"), "--merge"};
    for (const char* Teil : {"0/3", "1/3", "2/3"}) {
        Argumente.push_back(Ort(std::string("t") + Teil[0]));
        EXPECT_EQ(rufe({"--simulation", "b", "--shard", Teil, "--json-lines", Argumente.back(), Projekt.Pfad()}).Status, 0);
    }
    EXPECT_EQ(rufe(Argumente).Status, 0);
    EXPECT_EQ(rufe({"--simulation", "b", "--json-lines", Ort("ganz"), Projekt.Pfad()}).Status, 0);
    EXPECT_EQ(Inhalt(Ort("alle")), Inhalt(Ort("ganz")));
}

TEST_F(Teile, parts_that_do_not_make_a_whole_are_refused) {
    for (const char* Name : {"t0", "t1"}) rechne(Name, {"--shard", std::string(Name).substr(1) + "/3"});
    rechne("ganz", {});
    const auto Meldung = [&](const std::vector<std::string>& Teile_da, const char* Option = "--json",
                             const char* Endung = ".json") {
        std::vector<std::string> Argumente = {Option, Ort("alle"), "--merge"};
        for (const std::string& t : Teile_da) Argumente.push_back(Ort(t + Endung));
        const auto r = rufe(Argumente);
        EXPECT_EQ(r.Status, 2);
        EXPECT_FALSE(std::filesystem::exists(Ort("alle")) && std::string(Endung) != ".db");
        return r.fehler;
    };
    EXPECT_THAT(Meldung({"t0", "t1"}), HasSubstr("a part is missing"));
    EXPECT_THAT(Meldung({"t0", "t0"}), HasSubstr("stands in another part as well"));
    EXPECT_THAT(Meldung({"ganz"}), HasSubstr("no position"));
    EXPECT_THAT(Meldung({"ganz"}, "--csv", ".csv"), HasSubstr("no last column"));
    EXPECT_THAT(Meldung({"ganz"}, "--json-lines", ".jsonl"), HasSubstr("no position"));
    EXPECT_THAT(Meldung({"t0"}, "--csv", ".json"), HasSubstr("--merge"));
    EXPECT_THAT(Meldung({"t0", "nowhere"}), HasSubstr("nowhere.json"));
    EXPECT_THAT(Meldung({"ganz"}, "--sqlite", ".db"), HasSubstr("--shard"));
}

// --- going on with lines ---

struct Fortsetzen : Teile {
    std::vector<std::string> Aufruf = {"--all", "--vary", Ort("plan.csv"), "--json-lines", Ort("l"), Projekt.Pfad()};
    std::string ganz;

    Fortsetzen() {
        EXPECT_EQ(rufe(Aufruf).Status, 1);
        ganz = Inhalt(Ort("l"));
        Aufruf.insert(Aufruf.begin(), "--resume");
    }
    void lasse(const std::string& Bytes) const { schreibe_Datei(Ort("l"), Bytes); }
    std::vector<std::string> Zeilen() const { return probe::Zeilen(ganz); }
};

TEST_F(Fortsetzen, end_is_the_same_bytes_wherever_the_first_call_ended) {
    for (const std::size_t Bytes :
         {std::size_t{0}, std::size_t{100}, ganz.size() / 3, ganz.size() / 2, ganz.size() - 1, ganz.size()}) {
        lasse(ganz.substr(0, Bytes));
        EXPECT_EQ(rufe(Aufruf).Status, 1);
        EXPECT_EQ(Inhalt(Ort("l")), ganz) << Bytes;
    }
    std::filesystem::remove(Ort("l"));
    rufe(Aufruf);
    EXPECT_EQ(Inhalt(Ort("l")), ganz);
}

TEST_F(Fortsetzen, what_is_kept_is_not_calculated_again) {
    std::string gefaelscht = ganz;
    const auto Stelle = gefaelscht.find("\"Maximum_Bodentiefe\":");
    gefaelscht.replace(Stelle, 20, "\"maximum_bodentiefe\"");  // of the first simulation
    lasse(gefaelscht);
    rufe(Aufruf);
    EXPECT_EQ(Inhalt(Ort("l")), gefaelscht);
}

TEST_F(Fortsetzen, kept_line_of_a_variant_that_failed_still_makes_the_status) {
    Probe p;
    p.Felder.Applikationsmuster = unregelmaessig;
    Projekt.schreibe("turned", p);
    Projekt.schreibe_Bytes("../../turned.csv", "month[1]\n4\n8\n3\n");
    Aufruf = {"--simulation", "turned", "--vary", Ort("turned.csv"), "--json-lines", Ort("l"), Projekt.Pfad()};
    EXPECT_EQ(rufe(Aufruf).Status, 1);
    const std::string alles = Inhalt(Ort("l"));
    Aufruf.insert(Aufruf.begin(), "--resume");
    EXPECT_EQ(rufe(Aufruf).Status, 1);
    EXPECT_EQ(Inhalt(Ort("l")), alles);
}

TEST_F(Fortsetzen, line_of_other_inputs_is_an_error_of_the_call) {
    Projekt.ersetze_Zeile("b.sce", 3, "Soil density (kg/L):\t1.4");
    const auto r = rufe(Aufruf);
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("line 12: simulation \"b\", variant 1 comes from other inputs"));
    EXPECT_EQ(Inhalt(Ort("l")), ganz);
}

TEST_F(Fortsetzen, file_of_another_call_is_refused_and_stays) {
    lasse(ganz + Zeilen().front() + "\n");
    EXPECT_THAT(rufe(Aufruf).fehler, HasSubstr("holds more than this call"));
    lasse("what is this?\n");
    const auto r = rufe(Aufruf);
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("line 1: here belongs simulation"));
    EXPECT_EQ(Inhalt(Ort("l")), "what is this?\n");
    lasse(ganz);
    auto mit_Eingaben = Aufruf;
    mit_Eingaben.insert(mit_Eingaben.begin(), "--inputs");
    EXPECT_THAT(rufe(mit_Eingaben).fehler, HasSubstr("does not hold the inputs"));
}

TEST_F(Fortsetzen, broken_off_call_leaves_whole_lines) {
    std::filesystem::remove(Ort("l"));
    const std::atomic<bool> Abbruch = true;
    Umgebung Umwelt{[] { return false; }};
    Umwelt.Abbruch = &Abbruch;
    EXPECT_EQ(rufe(Aufruf, Umwelt).Status, 130);
    EXPECT_EQ(Inhalt(Ort("l")), "");
    rufe(Aufruf);
    EXPECT_EQ(Inhalt(Ort("l")), ganz);
}

// --- what a result comes from ---

TEST_F(Teile, sum_is_that_over_files_and_values) {
    const auto Bytes = [&](const std::string& Datei) { return Inhalt(Projekt.Eingabedatei(Datei)); };
    const auto mit_Laenge = [](const std::string& b) {
        std::string Text;
        for (std::size_t i = 0; i < 8; ++i) Text += static_cast<char>(b.size() >> (8 * i) & 0xFF);
        return Text + b;
    };
    const auto Summe = [](const std::string& b) {
        return QCryptographicHash::hash(QByteArray::fromStdString(b), QCryptographicHash::Sha256).toHex().toStdString();
    };
    const std::string Saetze = mit_Laenge(Bytes("b.che")) + mit_Laenge(Bytes("b.app")) + mit_Laenge(Bytes("b.sce"));
    const auto s = rufe({"--simulation", "b", "--json", "-", Projekt.Pfad()}).JSON()["simulations"][0];
    EXPECT_EQ(s["inputs_sha256"], Summe(Saetze));

    // The climate in force is one of the files, and values stand behind them.
    std::string Klima = "head\r\n";
    for (int i = 0; i < 365; ++i) Klima += std::string(37, ' ') + "      12.0\r\n";
    Projekt.schreibe_Bytes("Wet.cli", Klima);
    const auto v = rufe({"--simulation", "b", "--set", "climate=wet", "--vary", Ort("plan.csv"), "--json", "-", Projekt.Pfad()})
                       .JSON()["simulations"][1];
    EXPECT_EQ(v["inputs_sha256"], Summe(Saetze + mit_Laenge(Klima) + "climate=Wet\nrotation=2\nKoc=51\n"));
}

TEST_F(Teile, inputs_of_the_table_are_those_of_its_row) {
    const auto r = rufe({"--simulation", "a, \"quoted\"", "--set", "DT50[2,1]=77", "--inputs", "--csv", "-", Projekt.Pfad()});
    const auto Zeilen = probe::Zeilen(r.aus, "\r\n");
    const auto Spalte = [&](const std::string& Name) {
        const auto Kopf = probe::Zeilen(Zeilen[0], ",");
        return static_cast<std::size_t>(std::find(Kopf.begin(), Kopf.end(), Name) - Kopf.begin());
    };
    ASSERT_EQ(Zeilen.size(), 9U);
    // The simulation's name holds a comma: one column more.
    EXPECT_EQ(probe::Zeilen(Zeilen[8], ",").at(Spalte("DT50") + 1), "77");
    EXPECT_NE(probe::Zeilen(Zeilen[6], ",").at(Spalte("DT50") + 1), "77");
    EXPECT_EQ(probe::Zeilen(Zeilen[8], ",").at(Spalte("alpha") + 1), "");  // the parent's alone
    EXPECT_EQ(probe::Zeilen(Zeilen[8], ",").at(Spalte("inputs_sha256") + 1).size(), 64U);
}

// --- the database ---

TEST_F(Teile, database_replaces_the_same_and_keeps_the_rest) {
    const auto Anzahl = [&](const char* SQL) {
        const Verbindung v(Ort("d"), Verbindung::Art::lesend);
        Anweisung a = v.bereite(SQL);
        a.zeile();
        return a.Zahl(0);
    };
    const auto schreibe = [&](std::vector<std::string> Argumente) {
        Argumente.insert(Argumente.end(), {"--sqlite", Ort("d"), Projekt.Pfad()});
        return rufe(Argumente).Status;
    };
    EXPECT_EQ(schreibe({"--all"}), 1);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM simulation"), 3);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM message WHERE kind='error'"), 1);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM result"), 2 * 2 * 2 + 2);
    EXPECT_EQ(schreibe({"--simulation", "b", "--vary", Ort("plan.csv")}), 0);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM result WHERE variant_id IS NOT NULL"), 11 * 2);
    const std::string vorher = Abzug("d");
    EXPECT_EQ(schreibe({"--simulation", "b", "--vary", Ort("plan.csv")}), 0);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM result"), 2 * 2 * 2 + 2 + 11 * 2);

    // A shorter table: the other rows of that simulation go, those of a shard stay.
    Projekt.schreibe_Bytes("../../plan.csv", "Koc\n1\n2\n3\n");
    EXPECT_EQ(schreibe({"--simulation", "b", "--vary", Ort("plan.csv"), "--shard", "0/2"}), 0);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM variant"), 11);
    EXPECT_EQ(schreibe({"--simulation", "b", "--vary", Ort("plan.csv")}), 0);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM variant"), 3);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM variant_value"), 3);
    EXPECT_EQ(Anzahl("SELECT count(*) FROM year_maximum"), 10 * (2 * 2 * 2 + 2 + 3 * 2));
    EXPECT_EQ(Anzahl("SELECT count(*) FROM result WHERE result.id NOT IN (SELECT result_id FROM twa)"), 0);
}

TEST_F(Teile, database_holds_the_numbers_of_the_results) {
    const auto r = rufe({"--simulation", "b", "--series", Ort("days"), "--sqlite", Ort("d"), "--json", "-", Projekt.Pfad()});
    ASSERT_EQ(r.Status, 0) << r.fehler;
    const auto s = r.JSON()["simulations"][0];
    const auto e = s["studies"][0]["compounds"][0]["endpoints"][1];
    const Verbindung v(Ort("d"), Verbindung::Art::lesend);
    Anweisung a = v.bereite(
        "SELECT r.maximum, r.plateau, t.maximum, t.actual, y.value, d.soil_depth, s.inputs_sha256, s.project, r.unit, "
        "r.plateau_text "
        "FROM result r JOIN simulation s ON s.id=r.simulation_id JOIN twa t ON t.result_id=r.id AND t.days=7 "
        "JOIN year_maximum y ON y.result_id=r.id AND y.year=10 JOIN day d ON d.result_id=r.id AND d.day=0 "
        "WHERE r.endpoint='pore water'");
    ASSERT_TRUE(a.zeile());
    EXPECT_EQ(a.Kommazahl(0), e["Maximum_Bodentiefe"]);
    EXPECT_EQ(a.Kommazahl(1), e["Plateauwert"]);
    EXPECT_EQ(a.Kommazahl(2), e["TWA"][3]["maximum"]);
    EXPECT_EQ(a.Kommazahl(3), e["TWA"][3]["actual"]);
    EXPECT_EQ(a.Kommazahl(4), e["Jahresmaximum"][9]);
    EXPECT_EQ(a.Kommazahl(5), e["Maximum_Bodentiefe"]);
    EXPECT_EQ(a.Text(6), s["inputs_sha256"]);
    EXPECT_EQ(a.Text(7), "project");
    EXPECT_EQ(a.Text(8), "mg/L");
    EXPECT_EQ(a.Text(9), e["Plateautext"]);
}

TEST_F(Teile, what_is_no_database_is_told_before_any_work) {
    schreibe_Datei(Ort("d"), "this is a text and no database, and it is longer than a head");
    const auto r = rufe({"--all", "--sqlite", Ort("d"), "--json", Ort("j"), Projekt.Pfad()});
    EXPECT_EQ(r.Status, 2);
    EXPECT_THAT(r.fehler, HasSubstr("Cannot use the database"));
    EXPECT_FALSE(std::filesystem::exists(Ort("j")));
    EXPECT_EQ(Inhalt(Ort("d")), "this is a text and no database, and it is longer than a head");
}

// --- outputs and the project ---

TEST_F(Teile, what_lies_in_the_project_folder_is_never_replaced) {
    const std::string im_Projekt = Projekt.Pfad() + "/notes.txt";
    schreibe_Datei(im_Projekt, "mine");
    for (const char* Option : {"--json", "--csv", "--json-lines", "--sqlite", "--summary"}) {
        const auto r = rufe({Option, im_Projekt, Projekt.Pfad()});
        EXPECT_EQ(r.Status, 2) << Option;
        EXPECT_THAT(r.fehler, HasSubstr("not replaced"));
        EXPECT_EQ(rufe({Option, Projekt.Eingabedatei("b.che"), Projekt.Pfad()}).Status, 2);
    }
    EXPECT_EQ(Inhalt(im_Projekt), "mine");
    EXPECT_EQ(rufe({"--simulation", "b", "--json", Projekt.Pfad() + "/output/r.json", Projekt.Pfad()}).Status, 0);
    EXPECT_EQ(rufe({"--vary", Ort("plan.csv"), "--csv", Ort("plan.csv"), Projekt.Pfad()}).Status, 2);
}

TEST_F(Teile, link_in_the_place_of_lines_or_a_database_is_replaced_and_its_target_stays) {
    schreibe_Datei(Ort("target"), "mine");
    for (const char* Option : {"--json-lines", "--sqlite"}) {
        std::filesystem::remove(Ort("link"));
        std::filesystem::create_symlink(Ort("target"), Ort("link"));
        EXPECT_EQ(rufe({"--simulation", "b", Option, Ort("link"), Projekt.Pfad()}).Status, 0);
        EXPECT_FALSE(std::filesystem::is_symlink(Ort("link")));
        EXPECT_EQ(Inhalt(Ort("target")), "mine");
    }
}

}  // namespace
}  // namespace varnok::batch
