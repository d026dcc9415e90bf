#include "records/satzstelle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "records/satz.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using probe::zerlegt;
using ::testing::StartsWith;

// Two studies, so that a study and what stands behind the last one have lines of their own.
Eingabe zwei_Studien() {
    Eingabe e;
    e.Studie = {"First", "Second"};
    e.Berechnungsmodus = zwei_parallel;
    e.Name_Wirkstoff = "Parent";
    e.Name_Met_1 = "Met 1";
    e.Name_Met_2 = "Met 2";
    for (auto* Zahl :
         {&e.Molmasse_Wirkstoff, &e.Molmasse_Met_1, &e.Molmasse_Met_2, &e.Bildungsanteil_Met_1, &e.Bildungsanteil_Met_2})
        *Zahl = "50";
    e.Bodenszenario = "Loam";
    return e;
}

// The line of the record as it is written that `finde_Satzstelle` names.
std::string Zeile_von(const Fehlerort& Ort, const Eingabe& e) {
    const auto Stelle = finde_Satzstelle(Ort, e);
    if (!Stelle) return "none";
    const auto Zeilen = zerlegt(Satz_als_Bytes(Stelle->Art, e, {}));
    return Zeilen.at(static_cast<std::size_t>(Stelle->Zeile - 1));
}

Fehlerort Ort(const std::string& Feld, int i_studie = -1, int i_substanz = -1, int Reihe = 0) {
    return {.Feld = Feld, .i_studie = i_studie, .i_substanz = i_substanz, .Reihe = Reihe};
}

struct Feldfall {
    const char* Feld;
    Satzart Art;
    const char* Beschriftung;
};

constexpr Feldfall einmal_im_Satz[] = {
    {"Bodendichte", Szenario, "Soil density (kg/L):"},
    {"Bodentiefe", Szenario, "Soil depth (cm):"},
    {"Plateautiefe", Szenario, "Plateaudepth:"},
    {"Kohlenstoffgehalt", Szenario, "Organic carbon content:"},
    {"Feldkapazitaet", Szenario, "Field capacity (Vol%):"},
    {"Welkepunkt", Szenario, "Wilting point (Vol%):"},
    {"Applikationsrate", Applikation, "Application rate (g/ha):"},
    {"Interzeption", Applikation, "Crop interception (%):"},
};

constexpr Feldfall je_Studie[] = {
    {"KOC", Wirkstoff, "KOC (L/kg):"},         {"Q10", Wirkstoff, "Q10-factor:"},
    {"Walker", Wirkstoff, "Walker-exponent:"}, {"TRef", Wirkstoff, "Reference Temperature ("},
    {"Kinetik", Wirkstoff, "Kinetics:"},       {"k_SFO", Wirkstoff, "SFO k (1/d):"},
    {"alpha_FOMC", Wirkstoff, "FOMC alpha:"},  {"beta_FOMC", Wirkstoff, "FOMC beta:"},
    {"k1_DFOP", Wirkstoff, "DFOP k1 (1/d):"},  {"k2_DFOP", Wirkstoff, "DFOP k2 (1/d):"},
    {"g_DFOP", Wirkstoff, "DFOP  g:"},         {"k1_HS", Wirkstoff, "HS   k1 (1/d):"},
    {"k2_HS", Wirkstoff, "HS   k2 (1/d):"},    {"Tb_HS", Wirkstoff, "HS   Tb (d)"},
};

TEST(Satzstelle, value_of_the_scenario_or_the_application_is_the_line_with_its_label) {
    for (const Feldfall& f : einmal_im_Satz) {
        const Eingabe e = zwei_Studien();
        ASSERT_TRUE(finde_Satzstelle(Ort(f.Feld), e)) << f.Feld;
        EXPECT_EQ(finde_Satzstelle(Ort(f.Feld), e)->Art, f.Art) << f.Feld;
        EXPECT_THAT(Zeile_von(Ort(f.Feld), e), StartsWith(f.Beschriftung)) << f.Feld;
    }
}

TEST(Satzstelle, value_of_a_study_is_the_line_with_its_label_in_that_study) {
    const Eingabe e = zwei_Studien();
    for (int st = 0; st < 2; ++st) {
        const auto Zeilen = zerlegt(Satz_als_Bytes(Wirkstoff, e, {}));
        const auto Name = "Study " + std::to_string(st + 1) + ":\t" + e.Studie[static_cast<std::size_t>(st)];
        const auto Anfang = std::find(Zeilen.begin(), Zeilen.end(), Name) - Zeilen.begin();
        for (const Feldfall& f : je_Studie) {
            EXPECT_THAT(Zeile_von(Ort(f.Feld, st), e), StartsWith(f.Beschriftung)) << f.Feld;
            const int Zeile = finde_Satzstelle(Ort(f.Feld, st), e)->Zeile;
            EXPECT_GT(Zeile, Anfang + 1) << f.Feld;
            EXPECT_LE(Zeile, Anfang + 15) << f.Feld;
        }
    }
}

TEST(Satzstelle, value_of_a_compound_is_its_line_behind_any_number_of_studies) {
    const char* const Beschriftungen[] = {"Parent:\t", "Metabolite 1:\t", "Metabolite 2:\t"};
    Eingabe e = zwei_Studien();
    for (std::size_t Studien = 1; Studien <= 6; ++Studien) {
        e.Studie.assign(Studien, "Field");
        for (int c = 0; c < 3; ++c) EXPECT_THAT(Zeile_von(Ort("Molmasse", -1, c), e), StartsWith(Beschriftungen[c]));
        for (int c = 1; c < 3; ++c) EXPECT_THAT(Zeile_von(Ort("Bildungsanteil", -1, c), e), StartsWith(Beschriftungen[c]));
    }
}

TEST(Satzstelle, dose_of_the_irregular_pattern_is_the_row_of_its_table) {
    Eingabe e = zwei_Studien();
    e.Applikationsmuster = unregelmaessig;
    waehle_Anzahl(e, 3);
    e.Applikationsschema = {{"01", "04", "100", "0"}, {"02", "05", "200", "10"}, {"03", "06", "300", "20"}};
    EXPECT_EQ(Zeile_von(Ort("Applikationsrate", -1, -1, 1), e), "01\t04\t100\t0");
    EXPECT_EQ(Zeile_von(Ort("Interzeption", -1, -1, 3), e), "03\t06\t300\t20");
}

TEST(Satzstelle, dose_of_the_irregular_pattern_without_its_row_is_the_record_alone) {
    Eingabe e = zwei_Studien();
    e.Applikationsmuster = unregelmaessig;
    EXPECT_EQ(finde_Satzstelle(Ort("Applikationsrate"), e), (Satzstelle{Applikation, 0, ""}));
}

TEST(Satzstelle, tells_what_the_line_is_called) {
    Eingabe e = zwei_Studien();
    EXPECT_EQ(finde_Satzstelle(Ort("Bodendichte"), e), (Satzstelle{Szenario, 3, "Soil density (kg/L)"}));
    EXPECT_EQ(finde_Satzstelle(Ort("Kinetik", 1, 2), e)->Name, "Kinetics");
    EXPECT_EQ(finde_Satzstelle(Ort("Klimatext"), e), (Satzstelle{Szenario, 9, "Climatic condition"}));
    e.Applikationsmuster = unregelmaessig;
    EXPECT_EQ(Stelle_der_Reihe(2, e), (Satzstelle{Applikation, 11, "row 2 of the application table"}));
}

TEST(Satzstelle, what_stands_in_no_record_has_none) {
    const Eingabe e = zwei_Studien();
    for (const char* Feld : {"", "TWA", "Klimaszenario", "Plateauwert"}) EXPECT_EQ(finde_Satzstelle(Ort(Feld), e), std::nullopt);
}

TEST(Satzstelle, value_of_a_study_or_compound_that_is_not_named_has_none) {
    const Eingabe e = zwei_Studien();
    EXPECT_EQ(finde_Satzstelle(Ort("KOC"), e), std::nullopt);
    EXPECT_EQ(finde_Satzstelle(Ort("Molmasse"), e), std::nullopt);
}

}  // namespace
}  // namespace varnok
