#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::HasSubstr;

const std::string Satz = Bytes(Wirkstoff, volle_Probe(2));

// Lines of a record: 9 of the head, 15 for each study, then 8.
constexpr std::size_t Flaggen = 3;
constexpr std::size_t erste_Studie = 10;
constexpr std::size_t zweite_Studie = 25;
constexpr std::size_t gezeigter_Stoff = 40;
constexpr std::size_t Rechnungsart = 43;
constexpr std::size_t Wirkstoffzeile = 44;

TEST(Wirkstoff_lesen, each_line_goes_to_its_place) {
    Satzprobe p;
    EXPECT_EQ(lies(Satz, Wirkstoff, p).Ausgang, Leseausgang::gelesen);
    const Satzprobe voll = volle_Probe(2);
    EXPECT_EQ(p.Felder.Parameter.Einheit, Mikrogramm);
    EXPECT_EQ(p.Felder.Parameter.Separate_Rueckstaende, im_Jahr_getrennt);
    EXPECT_EQ(p.Felder.Parameter.TWA_Zeiten, Monatsliste);
    EXPECT_EQ(p.Felder.Parameter.Rechenmodus, 3);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, voll.Felder.Parameter.Ausgabename_Teile);
    EXPECT_EQ(p.Felder.Studienzahl(), 2);
    EXPECT_EQ(p.Felder.Studie, (std::vector<std::string>{"Löss, Feld 1", "Study no 1"}));
    EXPECT_EQ(p.Felder.Parameter.KOC[0][0], 110);
    EXPECT_EQ(p.Felder.Parameter.KOC[2][1], 122);
    EXPECT_EQ(p.Felder.Parameter.Q10[1][0], 2.011);
    EXPECT_EQ(p.Felder.Parameter.Walker[2][1], 0.22);
    EXPECT_EQ(p.Felder.Parameter.TRef[1][1], 17.1);
    EXPECT_EQ(p.Felder.Parameter.Kinetik[0], (Studientabelle<Kinetikart>{FOMC, HS}));
    EXPECT_EQ(p.Felder.Parameter.Kinetik[1], (Studientabelle<Kinetikart>{SFO, SFO}));
    EXPECT_EQ(p.Felder.Parameter.Kinetik[2], (Studientabelle<Kinetikart>{DFOP, DFOP}));
    EXPECT_EQ(p.Felder.Parameter.k_SFO[0][1], 0.05);
    EXPECT_EQ(p.Felder.Parameter.alpha_FOMC[1], 2.7);
    EXPECT_EQ(p.Felder.Parameter.beta_FOMC[0], 1e-5);
    EXPECT_EQ(p.Felder.Parameter.k1_DFOP[0][0], 0.2);
    EXPECT_EQ(p.Felder.Parameter.k2_DFOP[0][0], 0.0003);
    EXPECT_EQ(p.Felder.Parameter.g_DFOP[1][0], 11. / 128);
    EXPECT_EQ(p.Felder.Parameter.k1_HS[1], 0.035);
    EXPECT_EQ(p.Felder.Parameter.k2_HS[1], 0.0035);
    EXPECT_EQ(p.Felder.Parameter.Tb_HS[1], 25);
    EXPECT_EQ(p.Sicht.Substanz, 1);
    EXPECT_EQ(p.Felder.Berechnungsmodus, 2);
    EXPECT_EQ(p.Felder.Name_Wirkstoff, "Wirkstoff 1 µ");
    EXPECT_EQ(p.Felder.Molmasse_Wirkstoff.Text(), "300.25");
    EXPECT_EQ(p.Felder.Name_Met_1, "M 01");
    EXPECT_EQ(p.Felder.Molmasse_Met_1.Text(), "200");
    EXPECT_EQ(p.Felder.Bildungsanteil_Met_1.Text(), "0.5");
    EXPECT_EQ(p.Felder.Name_Met_2, "M 02");
    EXPECT_EQ(p.Felder.Molmasse_Met_2.Text(), "150.125");
    EXPECT_EQ(p.Felder.Bildungsanteil_Met_2.Text(), "0.25");
    EXPECT_EQ(p.Felder.Molmasse_Wirkstoff.Zahl(), 300.25);
    EXPECT_EQ(p.Felder.Molmasse_Met_2.Zahl(), 150.125);
    EXPECT_EQ(p.Felder.Bildungsanteil_Met_1.Zahl(), 0.5);
}

TEST(Wirkstoff_lesen, first_study_is_shown) {
    Satzprobe p;
    p.Sicht.Studie_Index = 4;
    lies(Satz, Wirkstoff, p);
    EXPECT_EQ(p.Sicht.Studie_Index, 0);
}

TEST(Wirkstoff_lesen, places_behind_the_last_study_get_start_values) {
    Satzprobe p = volle_Probe(6);
    lies(Satz, Wirkstoff, p);
    const Laufparameter& l = p.Felder.Parameter;
    EXPECT_EQ(p.Felder.Studie.size(), 2u);
    for (std::size_t Studie = 2; Studie < Studienplaetze; ++Studie) {
        for (std::size_t c = 0; c < Stoffe; ++c) {
            EXPECT_EQ(l.k_SFO[c][Studie], 0.01);
            EXPECT_EQ(l.k1_DFOP[c][Studie], 0.01);
            EXPECT_EQ(l.k2_DFOP[c][Studie], 0.01);
            EXPECT_EQ(l.g_DFOP[c][Studie], 0.5);
            EXPECT_EQ(l.Kinetik[c][Studie], SFO);
            EXPECT_EQ(l.Q10[c][Studie], 1);
            EXPECT_EQ(l.Walker[c][Studie], 0);
            EXPECT_EQ(l.KOC[c][Studie], 0);
            EXPECT_EQ(l.TRef[c][Studie], 20);
        }
        EXPECT_EQ(l.alpha_FOMC[Studie], 0.1);
        EXPECT_EQ(l.beta_FOMC[Studie], 1);
        EXPECT_EQ(l.k1_HS[Studie], 0.01);
        EXPECT_EQ(l.k2_HS[Studie], 0.01);
        EXPECT_EQ(l.Tb_HS[Studie], 10);
    }
    EXPECT_EQ(l.KOC[0][1], 120);
}

TEST(Wirkstoff_lesen, what_a_record_gives_does_not_depend_on_the_one_before) {
    Satzprobe nach_anderem = volle_Probe(6);
    Satzprobe frisch;
    lies(Satz, Wirkstoff, nach_anderem);
    lies(Satz, Wirkstoff, frisch);
    // The scenario and the pattern are no part of this record.
    nach_anderem.Felder.Parameter.Bodendichte = nach_anderem.Felder.Parameter.Bodentiefe =
        nach_anderem.Felder.Parameter.Plateautiefe = 0;
    nach_anderem.Felder.Parameter.Kohlenstoffgehalt = nach_anderem.Felder.Parameter.Feldkapazitaet =
        nach_anderem.Felder.Parameter.Welkepunkt = 0;
    nach_anderem.Felder.Parameter.Klimamodus = konstante_Temperatur;
    nach_anderem.Felder.Parameter.Szenariotemperatur = 20;
    EXPECT_EQ(nach_anderem.Felder.Parameter, frisch.Felder.Parameter);
    EXPECT_EQ(Bytes(Wirkstoff, nach_anderem), Bytes(Wirkstoff, frisch));
}

TEST(Wirkstoff_lesen, masses_and_fractions_come_back_in_general_form) {
    for (const char z : {'.', ','}) {
        Satzprobe p;
        lies(mit_Zeile(Satz, Wirkstoffzeile + 1, "Metabolite 1:\t M 01 \t0200,50 g/mol\t1E-5"), Wirkstoff, p, z);
        EXPECT_EQ(p.Felder.Name_Met_1, "M 01");
        EXPECT_EQ(p.Felder.Molmasse_Met_1.Text(), std::string("200") + z + "5");
        EXPECT_EQ(p.Felder.Bildungsanteil_Met_1.Text(), "1E-05");
    }
}

TEST(Wirkstoff_lesen, decimal_comma_is_taken_in_every_number_of_a_study) {
    std::string Komma = Bytes(Wirkstoff, volle_Probe(2), ',');
    EXPECT_THAT(Komma, HasSubstr("Q10-factor:\t2,01\t2,011\t2,012\r\n"));
    Satzprobe p, q;
    lies(Komma, Wirkstoff, p);
    lies(Satz, Wirkstoff, q);
    EXPECT_EQ(p.Felder.Parameter, q.Felder.Parameter);
}

TEST(Wirkstoff_lesen, compound_shown_knows_no_decimal_comma) {
    Satzprobe p;
    lies(mit_Zeile(Satz, gezeigter_Stoff, "Compound shown:\t1,9"), Wirkstoff, p);
    EXPECT_EQ(p.Sicht.Substanz, 1);
}

TEST(Wirkstoff_lesen, last_divider_is_not_asked_for) {
    Satzprobe p;
    EXPECT_EQ(lies(vor_Zeile(Satz, 47), Wirkstoff, p).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(Bytes(Wirkstoff, p), Satz);
}

TEST(Wirkstoff_lesen, template_reads_as_its_kind) {
    const Probeordner o;
    o.lege_an("Do not delete this file.chn", Satz);
    Satzprobe p;
    EXPECT_EQ(Satz_lesen(o.Ordner(), "do not delete this file", Vorlage_Wirkstoff, p.Felder, p.Sicht).Ausgang,
              Leseausgang::gelesen);
    EXPECT_EQ(Bytes(Wirkstoff, p), Satz);
}

// Line 3 of older records is shorter. k values leave the first k - 1: the last one has no tab behind it.
struct Flaggenzeile {
    const char* Text;
    std::array<std::uint8_t, 7> erwartet;
};

class Wirkstoff_Flaggen : public ::testing::TestWithParam<Flaggenzeile> {};

TEST_P(Wirkstoff_Flaggen, missing_tab_clears_the_flag_in_progress_and_all_later_ones) {
    Satzprobe p;
    p.Felder.Parameter.Ausgabename_Teile.fill(9);
    const Lesebefund b = lies(mit_Zeile(Satz, Flaggen, GetParam().Text), Wirkstoff, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, GetParam().erwartet);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Zeile, 3);
    EXPECT_EQ(p.Felder.Parameter.Separate_Rueckstaende, im_Jahr_getrennt);
    EXPECT_EQ(p.Felder.Bildungsanteil_Met_2.Text(), "0.25");
}

using F = std::array<std::uint8_t, 7>;
INSTANTIATE_TEST_SUITE_P(alle, Wirkstoff_Flaggen,
                         ::testing::Values(Flaggenzeile{"Output file name :\t1\t2\t3\t4\t5\t6", F{1, 2, 3, 4, 5, 0, 0}},
                                           Flaggenzeile{"Output file name :\t1\t2\t3\t4", F{1, 2, 3, 0, 0, 0, 0}},
                                           Flaggenzeile{"Output file name :\t1\t2", F{1, 0, 0, 0, 0, 0, 0}},
                                           Flaggenzeile{"Output file name :\t1", F{}}, Flaggenzeile{"Output file name :\t", F{}},
                                           Flaggenzeile{"Output file name :", F{}}, Flaggenzeile{"", F{}}));

TEST(Wirkstoff_Flaggen, six_values_with_a_tab_behind_the_last_are_seven) {
    Satzprobe p;
    const Lesebefund b = lies(mit_Zeile(Satz, Flaggen, "Output file name :\t1\t2\t3\t4\t5\t6\t"), Wirkstoff, p);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, (F{1, 2, 3, 4, 5, 6, 0}));
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(als_Zeile(b.Bemerkungen[0]), "probe.che:3: remark: Output file name, value 7: there is no value ( -> 0)");
}

TEST(Wirkstoff_Flaggen, error_after_the_repair_rejects_the_record) {
    const std::string kurz = mit_Zeile(Satz, Flaggen, "Output file name :\t1\t1\t1\t1");
    for (const auto& [Bytes_, Stelle] :
         {std::pair{vor_Zeile(kurz, 20), "line 20: the file ends before \"DFOP k2 (1/d):\""},
          std::pair{mit_Zeile(kurz, 11, "KOC (L/kg):\t1\t2"), "line 11: \"KOC (L/kg):\" has too few values"}}) {
        Satzprobe p = volle_Probe(4);
        const Satzprobe vorher = p;
        const auto Fehler = Fehler_beim_Lesen(Bytes_, Wirkstoff, p);
        ASSERT_TRUE(Fehler);
        EXPECT_THAT(*Fehler, HasSubstr(std::string("File probe.che, ") + Stelle));
        EXPECT_EQ(p, vorher);
    }
}

// A complete line 3 leaves the repair armed: the first fault clears the flags from the study's index on
// and the line behind it is taken for line 4.
std::string mit_Fortsetzung(std::size_t schadhaft, const std::string& Zeile) {
    auto Zeilen = zerlegt(mit_Zeile(vor_Zeile(Satz, schadhaft + 1), schadhaft, Zeile));
    const auto ganz = zerlegt(Bytes(Wirkstoff, volle_Probe(3)));
    Zeilen.insert(Zeilen.end(), ganz.begin() + 3, ganz.end());
    return verbunden(Zeilen);
}

TEST(Wirkstoff_Flaggen, fault_in_the_first_study_clears_all_flags_and_goes_on_with_line_4) {
    Satzprobe p;
    const Lesebefund b = lies(mit_Fortsetzung(erste_Studie + 1, "KOC (L/kg):\t1\t2"), Wirkstoff, p);
    EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, F{});
    EXPECT_EQ(p.Felder.Studie, volle_Probe(3).Felder.Studie);
    EXPECT_EQ(p.Felder.Parameter.KOC[0][0], 110);
    EXPECT_EQ(p.Felder.Parameter.Einheit, Mikrogramm);
    ASSERT_EQ(b.Bemerkungen.size(), 1u);
    EXPECT_EQ(b.Bemerkungen[0].Zeile, 11);
}

TEST(Wirkstoff_Flaggen, fault_in_the_second_study_keeps_the_first_flag) {
    Satzprobe p;
    lies(mit_Fortsetzung(zweite_Studie + 5, "Kinetics:\t0"), Wirkstoff, p);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, (F{1, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(p.Felder.Studienzahl(), 3);
}

TEST(Wirkstoff_Flaggen, fault_behind_the_studies_keeps_as_many_flags_as_there_are_studies) {
    Satzprobe p;
    lies(mit_Fortsetzung(Wirkstoffzeile, "Parent: no tab"), Wirkstoff, p);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, (F{1, 0, 0, 0, 0, 0, 0}));
    p = {};
    auto Zeilen = zerlegt(mit_Fortsetzung(Wirkstoffzeile, "Parent: no tab"));
    Zeilen[2] = "Output file name :\t1\t2\t3\t4\t5\t6\t7";
    lies(verbunden(Zeilen), Wirkstoff, p);
    EXPECT_EQ(p.Felder.Parameter.Ausgabename_Teile, (F{1, 2, 0, 0, 0, 0, 0}));
}

TEST(Wirkstoff_Flaggen, second_fault_rejects_the_record_and_names_the_first) {
    Satzprobe p = volle_Probe(4);
    const Satzprobe vorher = p;
    const auto Fehler = Fehler_beim_Lesen(mit_Zeile(Satz, 26, "KOC (L/kg):\t1\t2"), Wirkstoff, p);
    ASSERT_TRUE(Fehler);
    EXPECT_EQ(*Fehler, "File probe.che, line 26: \"KOC (L/kg):\" has too few values (no tab behind value 2)");
    EXPECT_EQ(p, vorher);
}

TEST(Wirkstoff_lesen, file_that_ends_before_line_3_changes_nothing) {
    for (std::size_t Zeile = 1; Zeile <= 2; ++Zeile) {
        Satzprobe p = volle_Probe(4);
        const Satzprobe vorher = p;
        const Lesebefund b = lies(vor_Zeile(Satz, Zeile), Wirkstoff, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::abgebrochen);
        EXPECT_EQ(b.Ort.Zeile, static_cast<int>(Zeile));
        EXPECT_EQ(p, vorher);
    }
}

TEST(Wirkstoff_lesen, file_that_ends_before_the_flags_is_not_one_with_few_flags) {
    Satzprobe p;
    EXPECT_EQ(Fehler_beim_Lesen(vor_Zeile(Satz, 3), Wirkstoff, p),
              "File probe.che, line 3: the file ends before \"Output file name :\"");
}

TEST(Wirkstoff_lesen, file_that_ends_at_any_later_line_is_rejected_with_that_line) {
    for (std::size_t Zeile = 3; Zeile <= 46; ++Zeile) {
        Satzprobe p = volle_Probe(4);
        const Satzprobe vorher = p;
        const auto Fehler = Fehler_beim_Lesen(vor_Zeile(Satz, Zeile), Wirkstoff, p);
        ASSERT_TRUE(Fehler) << Zeile;
        EXPECT_THAT(*Fehler, HasSubstr("File probe.che, line " + std::to_string(Zeile) + ": the file ends before "));
        EXPECT_EQ(p, vorher);
    }
}

struct Unwert {
    std::size_t Zeile;
    const char* Text;
    const char* Grund;
};

class Wirkstoff_Unwert : public ::testing::TestWithParam<Unwert> {};

TEST_P(Wirkstoff_Unwert, value_that_its_place_cannot_hold_rejects_the_record_at_once) {
    const auto& [Zeile, Text, Grund] = GetParam();
    // What stands behind would let the reading go on at line 4, were this a fault for the repair.
    const auto ganz = zerlegt(Satz);
    const std::string Rest = verbunden({ganz.begin() + 3, ganz.end()});
    Satzprobe p = volle_Probe(4);
    const Satzprobe vorher = p;
    const auto Fehler = Fehler_beim_Lesen(vor_Zeile(mit_Zeile(Satz, Zeile, Text), Zeile + 1) + Rest, Wirkstoff, p);
    ASSERT_TRUE(Fehler);
    EXPECT_EQ(*Fehler, "File probe.che, line " + std::to_string(Zeile) + ": " + Grund);
    EXPECT_EQ(p, vorher);
}

INSTANTIATE_TEST_SUITE_P(
    alle, Wirkstoff_Unwert,
    ::testing::Values(Unwert{2, "Unit:\t7", "\"7\" is not valid for \"Unit:\" (0 to 1)"},
                      Unwert{2, "Unit:\t1E400", "\"1E400\" is too large a number for \"Unit:\""},
                      Unwert{3, "Output file name :\t1\t256\t1\t1\t0\t0\t0",
                             "\"256\" is not valid for \"Output file name :\" (0 to 255)"},
                      Unwert{3, "Output file name :\t-1\t1", "\"-1\" is not valid for \"Output file name :\" (0 to 255)"},
                      Unwert{4, "Separate residues:\t3", "\"3\" is not valid for \"Separate residues:\" (0 to 2)"},
                      Unwert{5, "TWA according to EU:\t2", "\"2\" is not valid for \"TWA according to EU:\" (0 to 1)"},
                      Unwert{6, "Calculation mode:\t256", "\"256\" is not valid for \"Calculation mode:\" (0 to 255)"},
                      Unwert{9, "Number of studies:\t0", "\"0\" is not valid for \"Number of studies:\" (1 to 6)"},
                      Unwert{9, "Number of studies:\t7", "\"7\" is not valid for \"Number of studies:\" (1 to 6)"},
                      Unwert{9, "Number of studies:\tmany", "\"many\" is not valid for \"Number of studies:\" (1 to 6)"},
                      Unwert{11, "KOC (L/kg):\t1\t1E400\t1", "\"1E400\" is too large a number for \"KOC (L/kg):\""},
                      Unwert{15, "Kinetics:\t4\t0\t0", "\"4\" is not valid for \"Kinetics:\" (0 to 3)"},
                      Unwert{15, "Kinetics:\t0.5\t0\t0", "\"0.5\" is not valid for \"Kinetics:\" (0 to 3)"},
                      Unwert{15, "Kinetics:\t0\t2\t0", "\"2\" is not valid for \"Kinetics:\" (0 to 1)"},
                      Unwert{15, "Kinetics:\t0\t0\t-1", "\"-1\" is not valid for \"Kinetics:\" (0 to 1)"},
                      Unwert{gezeigter_Stoff, "Compound shown:\t3", "\"3\" is not valid for \"Compound shown:\" (0 to 2)"},
                      Unwert{Rechnungsart, "Type of calculation:\t4", "\"4\" is not valid for \"Type of calculation:\" (0 to 3)"},
                      Unwert{Wirkstoffzeile, "Parent:\tA\t1E999", "\"1E999\" is too large a number for \"Parent:\""}));

TEST(Wirkstoff_lesen, crop_rotation_and_pattern_are_left_alone) {
    Satzprobe p;
    p.Sicht.Fruchtwechsel = jedes_zweite_Jahr;
    p.Felder.Applikationsrate = "5";
    lies(Satz, Wirkstoff, p);
    EXPECT_EQ(p.Sicht.Fruchtwechsel, 1);
    EXPECT_EQ(p.Felder.Applikationsrate.Text(), "5");
}

TEST(Wirkstoff_lesen, value_outside_its_range_is_noted_where_the_scheme_and_the_kinetics_read_it) {
    struct Fall {
        int Zeile;
        const char* Text;
        const char* Bemerkung;  // empty: nothing reads it
    };
    // The parent of the first study is FOMC, the first metabolite SFO, the second DFOP.
    for (const auto& [Zeile, Text, Bemerkung] :
         {Fall{1, "KOC (L/kg):\t-3400\t1\t1", "KOC (L/kg), parent, study 1: outside the range 0 or above (-3400 -> -3400)"},
          Fall{1, "KOC (L/kg):\t1\t1\t-1", "KOC (L/kg), metabolite 2, study 1: outside the range 0 or above (-1 -> -1)"},
          Fall{2, "Q10-factor:\t2\t-2.58\t2", "Q10-factor, metabolite 1, study 1: outside the range above 0 (-2.58 -> -2.58)"},
          Fall{4, "Reference Temperature (°C):\t-5\t20\t20",
               "Reference Temperature (°C), parent, study 1: outside the range 0 or above (-5 -> -5)"},
          Fall{6, "SFO k (1/d):\t-0.1\t1\t1", "SFO k (1/d), parent, study 1: outside the range 0 or above (-0.1 -> -0.1)"},
          Fall{6, "SFO k (1/d):\t1\t1\t-1", ""},  // of a compound under DFOP
          Fall{7, "FOMC alpha:\t-1", "FOMC alpha, study 1: outside the range 0 or above (-1 -> -1)"},
          Fall{8, "FOMC beta:\t0", "FOMC beta, study 1: outside the range above 0 (0 -> 0)"},
          Fall{11, "DFOP  g:\t9\t9\t1.5", "DFOP  g, metabolite 2, study 1: outside the range 0 to 1 (1.5 -> 1.5)"},
          Fall{12, "HS   k1 (1/d):\t-1", ""},
          Fall{12, "HS   k1 (1/d):\t-1x",
               "HS   k1 (1/d), study 1: only its beginning was taken as "
               "a number; outside the range 0 or above (-1x -> -1)"}}) {
        Satzprobe p;
        const Lesebefund b = lies(mit_Zeile(Satz, erste_Studie + static_cast<std::size_t>(Zeile), Text), Wirkstoff, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
        ASSERT_EQ(b.Bemerkungen.size(), *Bemerkung ? 1u : 0u) << Text;
        if (!*Bemerkung) continue;
        EXPECT_EQ(als_Zeile(b.Bemerkungen[0]),
                  "probe.che:" + std::to_string(static_cast<int>(erste_Studie) + Zeile) + ": remark: " + Bemerkung);
    }
}

TEST(Wirkstoff_lesen, masses_and_fractions_are_noted_where_there_are_metabolites) {
    const std::size_t Metabolit = zerlegt(Satz).size() - 2;
    const std::string leer = mit_Zeile(Satz, Metabolit, "Metabolite 1:\tM\t0\t150");
    Satzprobe p;
    const Lesebefund b = lies(leer, Wirkstoff, p);
    ASSERT_EQ(b.Bemerkungen.size(), 2u);
    EXPECT_EQ(b.Bemerkungen[0].Feld, "Metabolite 1, molar mass");
    EXPECT_EQ(b.Bemerkungen[0].Meldung, "outside the range above 0");
    EXPECT_EQ(b.Bemerkungen[1].Feld, "Metabolite 1, formation fraction");
    EXPECT_EQ(b.Bemerkungen[1].Meldung, "outside the range 0 to 100");
    const std::string allein = mit_Zeile(leer, Metabolit - 2, "Type of calculation:\t0");
    EXPECT_TRUE(lies(allein, Wirkstoff, p).Bemerkungen.empty());
}

}  // namespace
}  // namespace varnok
