// The numbers behind a diagram.

#include "diagrams/diagrammdaten.h"

#include <gtest/gtest.h>

#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;

Diagramm kurzes(Handergebnis& h, int Satz) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Ende.fill(2);
    probe::setze_TWA(h, 1, 3.25F, 0, 0);
    probe::setze_TWA(h, 1, 0.75F, 1, 1);
    return ist_mehrfach(Satz) ? erstelle_Diagramm_mehrfach(h, b, Satz, 0, 0) : erstelle_Diagramm(h, b, Satz, 0);
}

// A table with a column for each value of a row.
Ergebniswerte Werte(const std::vector<std::string>& Koepfe, std::vector<Ergebniswerte::Zeile> Zeilen) {
    Ergebniswerte w;
    for (const std::string& Kopf : Koepfe) w.Spalten.push_back({Kopf, Milligramm});
    w.Zeilen = std::move(Zeilen);
    return w;
}

TEST(Diagrammdaten, of_one_compound_line_by_line) {
    Handergebnis h;
    probe::setze_Boden(h, {4, 2.5F, 0.000263F});
    const Ergebniswerte w = Werte({"PECactual", "PECtwa"}, {{{}, {4.0, std::nullopt}}, {1.0F, {2.5, 3.25}}});
    const std::string Text = Diagrammdaten(kurzes(h, 0), {{"Results", w}}, {});
    EXPECT_EQ(Text,
              "Annual concentration of Wheat Study: field\r\n"
              "Mode: Parent only  - presented substance: parent (kinetics: SFO )\r\n"
              "\r\n"
              "day,parent (mg/kg)\r\n"
              "0,4\r\n"
              "1,2.5\r\n"
              "2,0.000263\r\n"
              "\r\n"
              "TWA of,first day,days,TWA (mg/kg)\r\n"
              "parent,0,1,3.25\r\n"
              "\r\n"
              "Results\r\n"
              "Time(d),PECactual,PECtwa\r\n"
              "PECmax,4.0000,--------\r\n"
              "1 d,2.5000,3.2500\r\n");
}

TEST(Diagrammdaten, with_the_comma_of_the_region_semicolons_part_the_fields) {
    Handergebnis h;
    probe::setze_Boden(h, {4, 2.5F, 1});
    const Ergebniswerte w = Werte({"PECactual"}, {{0.5F, {0.00001}}});
    const std::string Text = Diagrammdaten(kurzes(h, 0), {{"", w}}, CSV_mit(','));
    EXPECT_NE(Text.find("\r\n1;2,5\r\n"), std::string::npos);
    EXPECT_NE(Text.find("\r\n0,5 d;<0,0001\r\n"), std::string::npos);
    EXPECT_NE(Text.find("\r\nparent;0;1;3,25\r\n"), std::string::npos);
}

TEST(Diagrammdaten, a_column_and_a_box_for_each_compound) {
    Handergebnis h;
    h.Felder.Berechnungsmodus = ein_Metabolit;
    h.Felder.Name_Met_1 = "M 1, \"first\"";
    probe::setze_Boden(h, {4, 2, 1}, 0);
    probe::setze_Boden(h, {0, 1, 0.5F}, 1);
    const std::string Text = Diagrammdaten(kurzes(h, 3), {}, {});
    EXPECT_NE(Text.find("\r\nday,parent (mg/kg),\"M 1, \"\"first\"\" (mg/kg)\"\r\n0,4,0\r\n1,2,1\r\n2,1,0.5\r\n"),
              std::string::npos)
        << Text;
    EXPECT_NE(Text.find("\r\n\"M 1, \"\"first\"\"\",1,1,0.75\r\n"), std::string::npos) << Text;
}

TEST(Diagrammdaten, a_column_for_each_study_of_a_summary) {
    auto h = probe::Handergebnis_Studien(2);
    probe::setze_Boden(h, {4, 2}, 0, 0);
    probe::setze_Boden(h, {6, 5}, 0, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const std::string Text = Diagrammdaten(erstelle_Diagramm_Zusammenfassung(h, b, 0, 0), {}, {});
    EXPECT_NE(Text.find("\r\nday,study 0 (mg/kg),study 1 (mg/kg)\r\n0,4,6\r\n1,2,5\r\n"), std::string::npos);
    EXPECT_NE(Text.find("\r\n364,0,0\r\n"), std::string::npos);
}

}  // namespace
}  // namespace varnok
