// The place of a fault as data, beside its wording.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/probeprojekt.h"
#include "batch/simulationslauf.h"
#include "records/eingabenamen.h"

namespace varnok::batch {
namespace {

using probe::Probe;
using probe::Probeprojekt;
using testing::HasSubstr;
using testing::Not;

struct Ort_des_Fehlers : testing::Test {
    Probe Vorlage;
    Probeprojekt Projekt;
};

TEST_F(Ort_des_Fehlers, keeps_file_line_and_field_as_data) {
    struct Fall {
        const char* Endung;
        int Zeile;  // of the file, that is replaced
        const char* Text;
        Fehlerort Ort;
        const char* Grund;
    };
    const Fall Faelle[] = {
        {".sce", 3, "Soil density (kg/L):\t0", {"bad.sce", 3, "Bodendichte", 0, -1}, "Soil density (kg/L) = 0"},
        {".che",
         15,
         "Kinetics:\t9\t0\t0",
         {"bad.che", 15, "Kinetik", 0, 0, "9", 0, "Kinetics, parent, study 1"},
         "\"9\" is not valid"},
        {".app",
         4,
         "Regular application date:\t5",
         {"bad.app", 4, "App_Monat", -1, -1, "5", 0, "Regular application date, month"},
         "too few"},
        {".vnk",
         2,
         "nothing",
         {"bad.vnk", 2, "", -1, -1, "nothing", 0, "compound record"},
         "there is no compound record \"nothing\""},
    };
    for (const Fall& f : Faelle) {
        Projekt.schreibe("bad", Vorlage);
        Projekt.ersetze_Zeile(std::string("bad") + f.Endung, static_cast<std::size_t>(f.Zeile), f.Text);
        Arbeitsplatz Platz;
        const auto Ausgang = rechne_Simulation(Auftrag(Projektordner(Projekt.Pfad())), "bad", Platz);
        ASSERT_TRUE(Ausgang.Fehler) << f.Text;
        const Fehlerort& Ort = Ausgang.Fehler->Ort();
        EXPECT_EQ(Ort.Datei, f.Ort.Datei);
        EXPECT_EQ(Ort.Zeile, f.Ort.Zeile);
        EXPECT_EQ(Ort.Feld, f.Ort.Feld);
        EXPECT_EQ(Ort.i_studie, f.Ort.i_studie);
        EXPECT_EQ(Ort.i_substanz, f.Ort.i_substanz);
        EXPECT_EQ(Ort.Bezeichnung, f.Ort.Bezeichnung);
        EXPECT_EQ(Ort.Text, f.Ort.Text);
        EXPECT_THAT(Ausgang.Fehler->Grund(), HasSubstr(f.Grund));
        EXPECT_THAT(Ausgang.Fehler->what(), testing::EndsWith(Ausgang.Fehler->Grund()));
        EXPECT_THAT(Ausgang.Fehler->Grund(), Not(HasSubstr(f.Ort.Datei)));
    }
}

TEST_F(Ort_des_Fehlers, of_a_table_row_keeps_the_row_beside_the_line) {
    Vorlage.Felder.Applikationsmuster = unregelmaessig;
    Vorlage.Felder.Applikationsschema = {{"01", "04", "100", "0"}, {"15", "05", "1E+300", "0"}};
    Vorlage.Felder.Anzahl_Index = 0;
    Projekt.schreibe("bad", Vorlage);
    Arbeitsplatz Platz;
    const auto Ausgang = rechne_Simulation(Auftrag(Projektordner(Projekt.Pfad())), "bad", Platz);
    ASSERT_TRUE(Ausgang.Fehler);
    EXPECT_EQ(Ausgang.Fehler->Ort().Datei, "bad.app");
    EXPECT_EQ(Ausgang.Fehler->Ort().Zeile, 11);
    EXPECT_EQ(Ausgang.Fehler->Ort().Reihe, 2);
}

TEST_F(Ort_des_Fehlers, of_a_cell_of_the_table_is_its_store_beside_its_word) {
    Vorlage.Felder.Applikationsmuster = unregelmaessig;
    Vorlage.Felder.Applikationsschema = {{"01", "04", "100", "0"}, {"00", "04", "100", "0"}};
    Vorlage.Felder.Anzahl_Index = 0;
    Projekt.schreibe("bad", Vorlage);
    Arbeitsplatz Platz;
    const auto Ausgang = rechne_Simulation(Auftrag(Projektordner(Projekt.Pfad())), "bad", Platz);
    ASSERT_TRUE(Ausgang.Fehler);
    EXPECT_EQ(Ausgang.Fehler->Ort().Feld, "Tabellentag");
    EXPECT_EQ(Ausgang.Fehler->Ort().Name(), "day");
    EXPECT_EQ(Ausgang.Fehler->Ort().Reihe, 2);
    EXPECT_THAT(Ausgang.Fehler->what(), HasSubstr("row 2 of the table, day"));
}

TEST_F(Ort_des_Fehlers, of_a_value_of_the_call_is_the_store_with_study_and_compound) {
    try {
        lies_Eingabewert(lies_Namensbezug("Koc[2,1]"), "-3", Projektordner(Projekt.Pfad()));
        FAIL();
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.Ort().Feld, "KOC");
        EXPECT_EQ(f.Ort().i_studie, 1);
        EXPECT_EQ(f.Ort().i_substanz, 1);
        EXPECT_EQ(f.Ort().Text, "-3");
        EXPECT_EQ(f.Ort().Name(), "Koc[2,1]");
        EXPECT_THAT(f.what(), testing::StartsWith("Koc[2,1]: \"-3\" lies outside its range"));
    }
}

}  // namespace
}  // namespace varnok::batch
