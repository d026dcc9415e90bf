// The records that come with the program are themselves examples of the formats.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "records/klimadatei.h"
#include "records/simulation.h"
#include "satzprobe.h"

namespace varnok {
namespace {

using namespace probe;
using ::testing::Contains;

const Projektordner Daten(VARNOK_DATENORDNER);

// `Endung` and the kind that its layout is.
void pruefe_Saetze(const std::string& Endung, Satzart Art) {
    const auto Namen = Daten.Namen(Endung);
    EXPECT_FALSE(Namen.empty());
    for (const auto& Name : Namen) {
        SCOPED_TRACE(Name + Endung);
        const std::string Satz = Inhalt(*Daten.finde(Name, Endung));
        Satzprobe p;
        const Lesebefund b = lies(Satz, Art, p);
        EXPECT_EQ(b.Ausgang, Leseausgang::gelesen) << b.Grund;
        EXPECT_TRUE(b.Bemerkungen.empty()) << als_Zeile(b.Bemerkungen.front());
        EXPECT_EQ(Bytes(Art, p), Satz);
    }
}

TEST(Auslieferung, every_record_reads_without_a_note_and_writes_the_same_bytes) {
    for (const auto Art : Eingabearten) {
        pruefe_Saetze(Endungen[Art], Art);
        pruefe_Saetze(Endungen[Art + Szenario], Art);
    }
}

TEST(Auslieferung, every_simulation_names_records_that_exist_letter_for_letter) {
    const auto Namen = Daten.Namen(".vnk");
    EXPECT_THAT(Namen, Contains("Programcheck"));
    for (const auto& Name : Namen) {
        SCOPED_TRACE(Name);
        const Simulationssatz s = lies_Simulation(Daten, Name);
        for (const auto Art : Eingabearten) {
            EXPECT_THAT(Daten.Namen(Endungen[Art]), Contains(s.Dateinamen[Art]));
        }
    }
}

TEST(Auslieferung, every_climate_file_holds_the_365_days_of_a_year) {
    const Projektklima Klima(Daten);
    EXPECT_FALSE(Daten.Namen(Klima_Endung).empty());
    for (const auto& Name : Daten.Namen(Klima_Endung)) EXPECT_EQ(Klima.lade(Name).value().size(), 365u) << Name;
}

}  // namespace
}  // namespace varnok
