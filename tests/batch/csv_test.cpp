#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/zahlen.h"
#include "batch/probeprojekt.h"
#include "batch/schreiber.h"

namespace varnok::batch {
namespace {

using probe::Probe;
using probe::Probeprojekt;
using probe::rufe;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

using Tabelle = std::vector<std::vector<std::string>>;

// A reader after RFC 4180: fields in quotes may hold commas, line ends and doubled quotes.
Tabelle lies_CSV(const std::string& Text) {
    Tabelle Zeilen(1, {""});
    bool gequotet = false;
    for (std::size_t i = 0; i < Text.size(); ++i) {
        std::string& Feld = Zeilen.back().back();
        if (gequotet) {
            if (Text[i] != '"')
                Feld += Text[i];
            else if (i + 1 < Text.size() && Text[i + 1] == '"')
                Feld += Text[++i];
            else
                gequotet = false;
        } else if (Text[i] == '"') {
            EXPECT_EQ(Feld, "") << "a quote inside a field without quotes";
            gequotet = true;
        } else if (Text[i] == ',') {
            Zeilen.back().emplace_back();
        } else if (Text.compare(i, 2, "\r\n") == 0) {
            ++i;
            Zeilen.push_back({""});
        } else {
            Feld += Text[i];
        }
    }
    EXPECT_FALSE(gequotet);
    EXPECT_THAT(Zeilen.back(), ElementsAre("")) << "the last line has an end";
    Zeilen.pop_back();
    return Zeilen;
}

std::size_t Spalte(const Tabelle& t, const std::string& Name) {
    const auto Stelle = std::find(t[0].begin(), t[0].end(), Name);
    EXPECT_NE(Stelle, t[0].end()) << Name;
    return static_cast<std::size_t>(Stelle - t[0].begin());
}

TEST(Batch_CSV, header_names_every_column_once) {
    const Tabelle t = lies_CSV(als_Text(*CSV_Schreiber(), {}));
    ASSERT_EQ(t.size(), 1U);
    std::vector<std::string> Namen = {
        "simulation", "study",           "study_name",    "compound",           "compound_name",         "endpoint",
        "unit",       "Anzahl_pro_Jahr", "Wirksame_Rate", "Maximum_Bodentiefe", "Maximumtag_Bodentiefe", "Maximum_Plateautiefe"};
    for (int j = 1; j <= 10; ++j) Namen.push_back("Jahresmaximum_" + std::to_string(j));
    for (const char* Name : {"Plateauwert", "Plateauzuwachs", "Plateautext"}) Namen.emplace_back(Name);
    for (int j = 1; j <= 12; ++j) {
        for (const char* Teil : {"days", "maximum", "start", "actual"}) Namen.push_back("TWA_" + std::to_string(j) + "_" + Teil);
    }
    EXPECT_EQ(t[0], Namen);
}

TEST(Batch_CSV, row_for_each_simulation_study_compound_and_endpoint) {
    Probeprojekt Projekt;
    Probe p;
    fuege_Studie_an(p, "Second");
    p.Felder.Berechnungsmodus = ein_Metabolit;
    Projekt.schreibe("b", p);
    Projekt.schreibe("a");
    const auto r = rufe({"--all", "--csv", "-", Projekt.Pfad()});
    ASSERT_EQ(r.Status, 0) << r.fehler;
    const Tabelle t = lies_CSV(r.aus);
    EXPECT_THAT(t, Each(SizeIs(t[0].size())));
    std::vector<std::string> Zeilen;
    for (std::size_t i = 1; i < t.size(); ++i) {
        const auto& z = t[i];
        Zeilen.push_back(z[Spalte(t, "simulation")] + z[Spalte(t, "study")] + z[Spalte(t, "compound")] +
                         z[Spalte(t, "endpoint")]);
    }
    EXPECT_THAT(Zeilen, ElementsAre("a10total soil", "a10pore water", "b10total soil", "b10pore water", "b11total soil",
                                    "b11pore water", "b20total soil", "b20pore water", "b21total soil", "b21pore water"));
}

TEST(Batch_CSV, numbers_are_those_of_the_JSON) {
    Probeprojekt Projekt;
    Probe p;
    p.Felder.Parameter.TWA_Zeiten = Monatsliste;
    Projekt.schreibe("a", p);
    const Tabelle t = lies_CSV(rufe({"--csv", "-", Projekt.Pfad()}).aus);
    const auto JSON = rufe({"--json", "-", Projekt.Pfad()}).JSON();
    const auto& e = JSON["simulations"][0]["studies"][0]["compounds"][0]["endpoints"][1];
    const auto Zahl = [&](const std::string& Name) { return static_cast<float>(Wert(t[2][Spalte(t, Name)])); };
    EXPECT_EQ(Zahl("Maximum_Bodentiefe"), e["Maximum_Bodentiefe"].get<float>());
    EXPECT_EQ(Zahl("Maximum_Plateautiefe"), e["Maximum_Plateautiefe"].get<float>());
    for (std::size_t j = 0; j < 10; ++j)
        EXPECT_EQ(Zahl("Jahresmaximum_" + std::to_string(j + 1)), e["Jahresmaximum"][j].get<float>());
    for (std::size_t j = 0; j < 12; ++j) {
        const std::string Fenster = "TWA_" + std::to_string(j + 1);
        EXPECT_EQ(Zahl(Fenster + "_days"), e["TWA"][j]["days"].get<float>());
        EXPECT_EQ(Zahl(Fenster + "_maximum"), e["TWA"][j]["maximum"].get<float>());
        EXPECT_EQ(Zahl(Fenster + "_start"), e["TWA"][j]["start"].get<float>());
        EXPECT_EQ(Zahl(Fenster + "_actual"), e["TWA"][j]["actual"].get<float>());
    }
}

TEST(Batch_CSV, windows_behind_the_list_are_empty) {
    Probeprojekt Projekt;
    Projekt.schreibe("a");
    const Tabelle t = lies_CSV(rufe({"--csv", "-", Projekt.Pfad()}).aus);
    EXPECT_EQ(t[1][Spalte(t, "TWA_10_days")], "100");
    EXPECT_EQ(t[1][Spalte(t, "TWA_11_days")], "");
    EXPECT_EQ(t[1][Spalte(t, "TWA_12_actual")], "");
}

TEST(Batch_CSV, text_with_commas_quotes_and_line_ends_is_quoted) {
    Simulationsausgang a;
    a.Ergebnis.Name = "one, two";
    Eingabe e;
    e.Studie = {"the \"field\" study"};
    e.Name_Wirkstoff = "line\r\nend";
    Ergebnis s;
    s.Vorgabe = a.Ergebnis.Vorgabe = std::make_shared<const Eingabe>(e);
    s.Stoffwerte.resize(1);
    a.Ergebnis.Studien.push_back(std::make_shared<const Ergebnis>(s));
    const std::string Text = als_Text(*CSV_Schreiber(), {a});
    EXPECT_THAT(Text, testing::HasSubstr("\r\n\"one, two\",1,\"the \"\"field\"\" study\",0,\"line\r\nend\","));
    const Tabelle t = lies_CSV(Text);
    ASSERT_EQ(t.size(), 3U);
    EXPECT_EQ(t[1][0], "one, two");
    EXPECT_EQ(t[1][2], "the \"field\" study");
    EXPECT_EQ(t[1][4], "line\r\nend");
}

TEST(Batch_CSV, simulation_at_fault_has_no_row) {
    Simulationsausgang a;
    a.Ergebnis.Name = "bad";
    a.Fehler.emplace("reason");
    EXPECT_EQ(als_Text(*CSV_Schreiber(), {a}), als_Text(*CSV_Schreiber(), {}));
}

}  // namespace
}  // namespace varnok::batch
