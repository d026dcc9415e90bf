#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "base/laufzeitfehler.h"
#include "satzprobe.h"
#include "support/golden.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::AllOf;
using ::testing::HasSubstr;

const Golden Muster(std::string(VARNOK_TESTORDNER) + "/golden/records");

std::string Einwand(Satzart Art, const Satzprobe& p) {
    try {
        Bytes(Art, p);
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
    return {};
}

// The probe holds a value of its own in every place, so these files show where each one goes.
TEST(Satz_schreiben, compound_record_with_two_studies_byte_for_byte) {
    EXPECT_TRUE(Muster.gleich("two studies.che", Bytes(Wirkstoff, volle_Probe(2))));
}
TEST(Satz_schreiben, compound_record_with_six_studies_and_decimal_comma_byte_for_byte) {
    EXPECT_TRUE(Muster.gleich("six studies, comma.che", Bytes(Wirkstoff, volle_Probe(6, ','), ',')));
}
TEST(Satz_schreiben, application_record_byte_for_byte) {
    EXPECT_TRUE(Muster.gleich("irregular.app", Bytes(Applikation, volle_Probe())));
}
TEST(Satz_schreiben, scenario_record_with_variable_climate_byte_for_byte) {
    EXPECT_TRUE(Muster.gleich("variable climate.sce", Bytes(Szenario, volle_Probe())));
}

TEST(Satz_schreiben, small_scenario_line_by_line) {
    Satzprobe p;
    p.Felder.Parameter.Bodendichte = 1.5;
    p.Felder.Parameter.Bodentiefe = 5;
    p.Felder.Parameter.Plateautiefe = 20;
    p.Felder.Parameter.Kohlenstoffgehalt = 1;
    p.Felder.Parameter.Feldkapazitaet = 30;
    p.Felder.Parameter.Welkepunkt = 10;
    p.Felder.Bodenszenario = "Sandy loam";
    const std::vector<std::string> erwartet = {"Soil Parameters",
                                               "Soil scenario:     \tSandy loam",
                                               "Soil density (kg/L):\t1.5",
                                               "Soil depth (cm):\t5",
                                               "Plateaudepth:\t20",
                                               "Organic carbon content:\t1",
                                               "Field capacity (Vol%):\t30",
                                               "Wilting point (Vol%):\t10",
                                               "Climatic condition:\t20 \260C constant",
                                               "Climate mode:\t0",
                                               "Scenario Temperature:\t20",
                                               Trennlinie};
    EXPECT_EQ(zerlegt(Bytes(Szenario, p)), erwartet);
}

TEST(Satz_schreiben, climate_line_is_the_temperature_or_the_climate_file) {
    Satzprobe p = volle_Probe();
    EXPECT_EQ(zerlegt(Bytes(Szenario, p))[8], "Climatic condition:\tTemperate site");
    p.Felder.Parameter.Klimamodus = konstante_Temperatur;
    p.Felder.Parameter.Szenariotemperatur = 7;
    const Satzprobe vorher = p;
    EXPECT_EQ(zerlegt(Bytes(Szenario, p))[8],
              "Climatic condition:\t7 \xB0"
              "C constant");
    EXPECT_EQ(p, vorher);
}

TEST(Satz_schreiben, first_lines_of_a_compound_record) {
    Satzprobe p;
    p.Felder.Studie = {"Field study"};
    p.Felder.Parameter.Ausgabename_Teile = {1, 1, 1, 1, 0, 0, 0};
    p.Felder.Parameter.KOC[0][0] = 100;
    p.Felder.Parameter.KOC[1][0] = 50;
    for (auto& Q10 : p.Felder.Parameter.Q10) Q10[0] = 2.58;
    auto Zeilen = zerlegt(Bytes(Wirkstoff, p));
    Zeilen.resize(12);
    const std::vector<std::string> erwartet = {"Pesticide data",
                                               "Unit:\t0",
                                               "Output file name :\t1\t1\t1\t1\t0\t0\t0",
                                               "Separate residues:\t0",
                                               "TWA according to EU:\t1",
                                               "Calculation mode:\t0",
                                               Trennlinie,
                                               "Degradation kinetics Parameters",
                                               "Number of studies:\t1",
                                               "Study 1:\tField study",
                                               "KOC (L/kg):\t100\t50\t0",
                                               "Q10-factor:\t2.58\t2.58\t2.58"};
    EXPECT_EQ(Zeilen, erwartet);
}

TEST(Satz_schreiben, degree_sign_is_one_byte) {
    EXPECT_THAT(Bytes(Wirkstoff, volle_Probe(1)), HasSubstr("\r\nReference Temperature (\xB0"
                                                            "C):\t16\t16.1\t16.2\r\n"));
}

TEST(Satz_schreiben, number_of_studies_is_that_of_the_selector) {
    const Satzprobe p = volle_Probe(2);
    const auto Zeilen = zerlegt(Bytes(Wirkstoff, p));
    EXPECT_EQ(Zeilen[8], "Number of studies:\t2");
    EXPECT_EQ(Zeilen.size(), 9 + 2 * 15 + 8u);
}

TEST(Satz_schreiben, every_line_of_a_study_stands_whatever_its_kinetics) {
    Satzprobe p = volle_Probe(1);
    p.Felder.Parameter.Kinetik[0][0] = SFO;
    EXPECT_EQ(zerlegt(Bytes(Wirkstoff, p)).size(), 9 + 15 + 8u);
}

TEST(Satz_schreiben, table_is_written_for_a_single_application_too) {
    Satzprobe p = volle_Probe();
    p.Felder.Applikationsmuster = einzeln;
    const auto Zeilen = zerlegt(Bytes(Applikation, p));
    ASSERT_EQ(Zeilen.size(), 9 + 3 + 1u);
    EXPECT_EQ(Zeilen[1], "Application type:\t0");
    EXPECT_EQ(Zeilen[9], "01\t04\t100\t0");
}

TEST(Satz_schreiben, table_has_exactly_as_many_rows_as_applications) {
    Satzprobe p = volle_Probe();
    p.Felder.Applikationsschema.resize(5);
    EXPECT_EQ(zerlegt(Bytes(Applikation, p)).size(), 9 + 3 + 1u);
    p.Felder.Applikationsschema.resize(1);
    const auto Zeilen = zerlegt(Bytes(Applikation, p));
    ASSERT_EQ(Zeilen.size(), 9 + 3 + 1u);
    EXPECT_EQ(Zeilen[11], "\t\t\t");
}

TEST(Satz_schreiben, text_fields_stand_as_they_were_typed_until_the_record_is_read) {
    Satzprobe p = volle_Probe();
    p.Felder.Applikationsrate = "750,50";
    const Satzprobe vorher = p;
    const std::string Satz = Bytes(Applikation, p);
    EXPECT_EQ(p, vorher);
    EXPECT_EQ(zerlegt(Satz)[4], "Application rate (g/ha):\t750,50");
    lies(Satz, Applikation, p);
    EXPECT_EQ(p.Felder.Applikationsrate.Text(), "750.5");
}

TEST(Satz_schreiben, template_kinds_write_nothing) {
    const Probeordner o;
    const Satzprobe p = volle_Probe();
    for (const auto Art : {Simulation, Vorlage_Wirkstoff, Vorlage_Applikation, Vorlage_Szenario}) {
        Satz_schreiben(o.Ordner(), "x", Art, p.Felder, p.Sicht);
        EXPECT_EQ(Satz_als_Bytes(Art, p.Felder, p.Sicht), "");
    }
    EXPECT_TRUE(o.Dateien().empty());
}

TEST(Satz_schreiben, replaces_a_file_whose_name_differs_in_case) {
    const Probeordner o;
    o.lege_an("LOAM.SCE", "old");
    const Satzprobe p = volle_Probe();
    Satz_schreiben(o.Ordner(), "Loam", Szenario, p.Felder, p.Sicht);
    EXPECT_EQ(o.Dateien(), std::vector<std::string>{"LOAM.SCE"});
    EXPECT_EQ(o.Inhalt("LOAM.SCE"), Bytes(Szenario, p));
}

struct Verweigerung {
    const char* Text;
    const char* Grund;
};

TEST(Satz_schreiben, refuses_what_the_file_cannot_hold_and_keeps_the_old_one) {
    const Probeordner o;
    o.lege_an("x.che", "old");
    for (const auto& [Text, Grund] :
         {Verweigerung{"a\tb", "holds a tab"}, Verweigerung{"\xC0\x89", "holds "}, Verweigerung{"a\rb", "holds a line end"},
          Verweigerung{"a\nb", "holds a line end"}, Verweigerung{"a → b", "the character \"→\""},
          Verweigerung{"ab\xFF", "the character \"\xFF\""}}) {
        Satzprobe p = volle_Probe();
        p.Felder.Name_Met_1 = Text;
        try {
            Satz_schreiben(o.Ordner(), "x", Wirkstoff, p.Felder, p.Sicht);
            ADD_FAILURE() << Text;
        } catch (const Laufzeitfehler& f) {
            EXPECT_THAT(f.what(), AllOf(HasSubstr("\"Metabolite 1:\""), HasSubstr(Grund)));
        }
        EXPECT_EQ(o.Inhalt("x.che"), "old");
    }
}

TEST(Satz_schreiben, fault_in_the_table_names_its_row) {
    Satzprobe p = volle_Probe();
    p.Felder.Applikationsschema[1][2] = "1\t2";
    EXPECT_THAT(Einwand(Applikation, p), HasSubstr("row 2 of the application table holds a tab"));
}

TEST(Satz_schreiben, refuses_a_line_that_could_not_be_read_back) {
    Satzprobe p = volle_Probe();
    p.Felder.Bodenszenario = std::string(255, 'x');
    EXPECT_EQ(Einwand(Szenario, p), "");
    p.Felder.Bodenszenario += 'x';
    EXPECT_THAT(Einwand(Szenario, p), HasSubstr("\"Soil scenario:\" is too long"));
}

TEST(Satz_schreiben, length_is_counted_in_bytes_of_the_file) {
    Satzprobe p = volle_Probe();
    p.Felder.Bodenszenario.clear();
    for (int i = 0; i < 255; ++i) p.Felder.Bodenszenario += "ä";
    const std::string Satz = Bytes(Szenario, p);
    Satzprobe q;
    EXPECT_EQ(lies(Satz, Szenario, q).Ausgang, Leseausgang::gelesen);
    EXPECT_EQ(q.Felder.Bodenszenario, p.Felder.Bodenszenario);
}

TEST(Satz_schreiben, refuses_a_number_of_studies_that_no_record_has) {
    Satzprobe p = volle_Probe(6);
    p.Felder.Studie.emplace_back("seventh");
    EXPECT_THAT(Einwand(Wirkstoff, p), HasSubstr("\"7\" is not valid for \"Number of studies:\" (1 to 6)"));
    p.Felder.Studie.clear();
    EXPECT_THAT(Einwand(Wirkstoff, p), HasSubstr("\"0\" is not valid for \"Number of studies:\""));
}

TEST(Satz_schreiben, refuses_a_value_outside_its_list) {
    Satzprobe p = volle_Probe();
    p.Felder.Anzahl_Index = -2;
    EXPECT_THAT(Einwand(Applikation, p), HasSubstr("\"0\" is not valid for \"Number of applications per year:\" (1 to 20)"));
    p = volle_Probe();
    p.Felder.Parameter.Kinetik[1][0] = FOMC;
    EXPECT_THAT(Einwand(Wirkstoff, p), HasSubstr("\"2\" is not valid for \"Kinetics:\" (0 to 1)"));
}

TEST(Satz_schreiben, refuses_a_number_that_is_not_finite) {
    Satzprobe p = volle_Probe();
    for (const double Zahl : {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::max()}) {
        p.Felder.Parameter.Bodendichte = Zahl;
        EXPECT_THAT(Einwand(Szenario, p), HasSubstr("\"Soil density (kg/L):\" is not finite"));
    }
}

class Satz_Rundgang : public ::testing::TestWithParam<std::tuple<Satzart, char>> {};

TEST_P(Satz_Rundgang, written_record_reads_back_and_writes_the_same_bytes) {
    const auto [Art, Dezimalzeichen] = GetParam();
    for (int Studien = 1; Studien <= 6; ++Studien) {
        const std::string Satz = Bytes(Art, volle_Probe(Studien, Dezimalzeichen), Dezimalzeichen);
        Satzprobe p;
        const Lesebefund b = lies(Satz, Art, p, Dezimalzeichen);
        EXPECT_EQ(b.Ausgang, Leseausgang::gelesen);
        EXPECT_TRUE(b.Bemerkungen.empty()) << als_Zeile(b.Bemerkungen.front());
        EXPECT_EQ(Bytes(Art, p, Dezimalzeichen), Satz);
    }
}

INSTANTIATE_TEST_SUITE_P(alle, Satz_Rundgang,
                         ::testing::Combine(::testing::Values(Wirkstoff, Applikation, Szenario), ::testing::Values('.', ',')));

TEST(Satz_Rundgang_in_Dateien, each_kind_goes_through_the_folder_unchanged) {
    const Probeordner o;
    const Satzprobe p = volle_Probe(3);
    for (const auto Art : Eingabearten) {
        Satz_schreiben(o.Ordner(), "Größe", Art, p.Felder, p.Sicht);
        Satzprobe q;
        EXPECT_EQ(Satz_lesen(o.Ordner(), "Größe", Art, q.Felder, q.Sicht).Ausgang, Leseausgang::gelesen);
        EXPECT_EQ(Bytes(Art, q), o.Inhalt(std::string("Größe") + Endungen[Art]));
    }
}

}  // namespace
}  // namespace varnok
