// The order of a run and what it leaves in the stores.

#include "run/lauf.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "base/laufzeitfehler.h"
#include "exposure/schritte.h"
#include "support/lauf_bauer.h"
#include "support/slotprotokoll.h"

namespace varnok::probe {
namespace {

// ---- which calculation runs when ----

std::vector<std::string>& Protokoll() {
    thread_local std::vector<std::string> Zeilen;
    return Zeilen;
}

void notiere(const char* Schritt, const Lauf& l) {
    Protokoll().push_back(std::string(Schritt) + " " + std::to_string(l.i_substanz));
}

const Rechenschritte protokollierende_Schritte = {[](Lauf& l) { notiere("Metabolit_1", l); },
                                                  [](Lauf& l) { notiere("Metabolit_2", l); },
                                                  [](Lauf& l) { notiere("Plateau", l); }, [](Lauf& l) { notiere("TWA", l); }};

std::vector<std::string> Ablauf(int Schema) {
    Protokoll().clear();
    Lauf l = Lauf_bauer().Schema(Schema).baue();
    berechne_PEC(l, 0, Klimaliste(), protokollierende_Schritte);
    return Protokoll();
}

using Zeilen = std::vector<std::string>;

TEST(Ablauf, parent_only) { EXPECT_EQ(Ablauf(0), (Zeilen{"Plateau 0", "TWA 0"})); }

TEST(Ablauf, parent_and_one_metabolite) {
    EXPECT_EQ(Ablauf(1), (Zeilen{"Plateau 0", "TWA 0", "Metabolit_1 1", "Plateau 1", "TWA 1"}));
}

TEST(Ablauf, two_parallel_metabolites_run_the_same_routine_twice) {
    EXPECT_EQ(Ablauf(2),
              (Zeilen{"Plateau 0", "TWA 0", "Metabolit_1 1", "Plateau 1", "TWA 1", "Metabolit_1 2", "Plateau 2", "TWA 2"}));
}

TEST(Ablauf, the_second_metabolite_of_a_sequence_has_its_own_routine) {
    EXPECT_EQ(Ablauf(3),
              (Zeilen{"Plateau 0", "TWA 0", "Metabolit_1 1", "Plateau 1", "TWA 1", "Metabolit_2 2", "Plateau 2", "TWA 2"}));
}

TEST(Ablauf, any_other_scheme_runs_nothing) {
    Zeilen Schritte;
    EXPECT_NO_THROW(Schritte = Ablauf(4));
    EXPECT_EQ(Schritte, Zeilen());
}

// ---- what a run leaves ----

Lauf_bauer mit_allem() {
    Lauf_bauer b;
    b.Schema(3).nach_DFOP(0.03, 0.001, 0.7).nach_SFO(0.005, 1).nach_DFOP(0.02, 0.002, 0.4, 2);
    b.regelmaessige_Gaben(2, 30).Rueckstaende(1).Temperatur(13);
    return b;
}

TEST(Lauf, day_3649_is_the_last_one_computed) {
    const Lauf l = mit_allem().rechne();
    for (int c = 0; c < Stoffe; ++c) {
        EXPECT_GT(Boden(l, 3649, c), 0.0F) << c;
        EXPECT_GT(Plateau(l, 3649, c), 0.0F) << c;
        EXPECT_GT(Plateau(l, 3649, c, Porenwasser), 0.0F) << c;
        EXPECT_GT(l.Speicher.Integral_Bodentiefe(Porenwasser, 0, c)[3649], 0.0F) << c;
    }
}

TEST(Lauf, from_day_3650_on_every_series_stays_0) {
    const Lauf l = mit_allem().rechne();
    for (int d = 3650; d < Tagesplaetze; ++d) {
        for (const Endpunktart e : alle_Endpunkte) {
            for (int c = 0; c < Stoffe; ++c) {
                ASSERT_EQ(Boden(l, d, c, e), 0.0F) << d;
                ASSERT_EQ(Plateau(l, d, c, e), 0.0F) << d;
                ASSERT_EQ(l.Speicher.Integral_Bodentiefe(e, 0, c)[static_cast<std::size_t>(d)], 0.0F) << d;
            }
        }
    }
}

TEST(Lauf, no_slot_has_a_tail_behind_day_3649) {
    const Lauf l = mit_allem().rechne();
    for (int Slot = 0; Slot < Slots_Plateau; ++Slot) ASSERT_EQ(Plateauslot(l, Slot, 3650), 0.0F) << Slot;
    for (int Slot = 0; Slot < Slots_Boden; ++Slot) ASSERT_EQ(Bodenslot(l, Slot, 3650), 0.0F) << Slot;
}

TEST(Lauf, first_of_January_of_year_2_is_day_365) {
    const Lauf l = Lauf_bauer().Beginn(1, 1).rechne();
    EXPECT_GT(Plateau(l, 365), Plateau(l, 364));
    EXPECT_LT(Plateau(l, 366), Plateau(l, 365));
}

TEST(Lauf, a_study_never_run_holds_zeros) {
    const Lauf l = mit_allem().rechne();
    EXPECT_TRUE(geleert(l, 1));
}

TEST(Lauf, a_run_of_the_third_study_leaves_all_others_byte_for_byte) {
    Lauf l = mit_allem().baue();
    for (const int st : {0, 1, 3, 5}) ASSERT_TRUE(mit_allem().Studie(st).Dosis(std::to_string(100 + st)).rechne_in(l).gelungen());
    std::vector<std::string> davor;
    for (const int st : {0, 1, 3, 4, 5}) davor.push_back(Abbild(l, st));
    ASSERT_TRUE(mit_allem().Studie(2).nach_FOMC(1, 5).rechne_in(l).gelungen());
    std::size_t i = 0;
    for (const int st : {0, 1, 3, 4, 5}) EXPECT_TRUE(Abbild(l, st) == davor[i++]) << "study " << st;
}

TEST(Lauf, a_study_gives_the_same_at_every_place) {
    const Lauf erste = mit_allem().rechne();
    const Lauf letzte = mit_allem().Studie(5).rechne();
    EXPECT_TRUE(Abbild(erste, 0) == Abbild(letzte, 5));
}

TEST(Lauf, a_second_run_of_the_study_leaves_nothing_of_the_first) {
    Lauf l = mit_allem().regelmaessige_Gaben(20, 18).rechne();
    ASSERT_TRUE(mit_allem().rechne_in(l).gelungen());
    const Lauf frisch = mit_allem().rechne();
    for (int c = 0; c < Stoffe; ++c) {
        for (int Slot = 0; Slot < Slots_Plateau; ++Slot) {
            const auto a = Slotreihe(l, 0, c, Tiefe::Plateau, Slot);
            const auto b = Slotreihe(frisch, 0, c, Tiefe::Plateau, Slot);
            ASSERT_TRUE(std::equal(a.begin(), a.end(), b.begin())) << c << " " << Slot;
        }
    }
    EXPECT_EQ(l.Speicher.Tagesrate, frisch.Speicher.Tagesrate);
    EXPECT_EQ(l.Speicher.Bildung_Plateautiefe, frisch.Speicher.Bildung_Plateautiefe);
}

TEST(Lauf, two_threads_give_equal_bytes) {
    std::string Bytes[2];
    std::vector<std::thread> Faeden;
    for (std::string& Ziel : Bytes) {
        Faeden.emplace_back([&Ziel] {
            const Lauf l = mit_allem().Wetter(wechselndes_Wetter(365)).rechne();
            Ziel = Abbild(l, 0) + Abbild_gemeinsam(l);
        });
    }
    for (auto& f : Faeden) f.join();
    EXPECT_TRUE(Bytes[0] == Bytes[1]);
    EXPECT_FALSE(Bytes[0].empty());
}

// ---- runs that end early ----

TEST(Lauf, an_invalid_table_leaves_the_stores_as_they_were) {
    Lauf l = mit_allem().rechne();
    const std::string davor = Abbild(l, 0) + Abbild_gemeinsam(l);
    const auto r = mit_allem().Termine({{"1", "3", "5", "0"}, {"1", "0", "7", "0"}}).rechne_in(l);
    EXPECT_EQ(r.Ausgang, Laufausgang::Tabelle_ungueltig);
    EXPECT_EQ(r.Zeile, 1);
    EXPECT_EQ(r.Spalte, 1);
    EXPECT_TRUE(Abbild(l, 0) + Abbild_gemeinsam(l) == davor);
}

TEST(Lauf, dates_out_of_order_leave_the_study_cleared) {
    Lauf l = mit_allem().rechne();
    const auto r = mit_allem().Termine({{"2", "3", "5", "0"}, {"1", "3", "7", "0"}}).rechne_in(l);
    EXPECT_EQ(r.Ausgang, Laufausgang::Datumsfolge_ungueltig);
    EXPECT_TRUE(geleert(l, 0));
}

TEST(Lauf, a_missing_climate_leaves_the_study_cleared) {
    Lauf l = mit_allem().rechne();
    Lauf_bauer b = mit_allem();
    b.Felder.Parameter.Klimamodus = nach_Klimadatei;
    EXPECT_EQ(b.rechne_in(l).Ausgang, Laufausgang::Klimadatei_fehlt);
    EXPECT_TRUE(geleert(l, 0));
}

// The averages are worked out from the empty series all the same.
TEST(Lauf, a_missing_climate_leaves_averages_of_0) {
    Lauf l = Lauf_bauer().rechne();
    Lauf_bauer b;
    b.Felder.Parameter.Klimamodus = nach_Klimadatei;
    ASSERT_EQ(b.rechne_in(l).Ausgang, Laufausgang::Klimadatei_fehlt);
    EXPECT_EQ(l.Speicher.TWA_Maximum[0][0][0], (std::array<float, TWA_Plaetze>{}));
}

TEST(Lauf, constant_climate_asks_for_no_climate_file) {
    Lauf l = mit_allem().baue();
    EXPECT_TRUE(berechne_PEC(l, 0, Klimaliste(), alle_Rechenschritte).gelungen());
}

TEST(Lauf, a_climate_without_a_day_is_a_fault) { EXPECT_THROW(mit_allem().Wetter({}).rechne(), Laufzeitfehler); }

TEST(Lauf, early_ends_have_their_texts) {
    EXPECT_EQ(Meldung(Laufausgang::berechnet), "");
    EXPECT_EQ(Meldung(Laufausgang::Tabelle_ungueltig), "You entered application dates that are not valid. Please correct!");
    EXPECT_EQ(Meldung(Laufausgang::Datumsfolge_ungueltig),
              "The sequence of application dates that is not valid. Please correct!");
    EXPECT_EQ(Meldung(Laufausgang::Klimadatei_fehlt), "Cannot load climate data file. Please correct!");
}

TEST(Lauf, the_table_is_not_checked_under_another_pattern) {
    Lauf_bauer b;
    b.Termine({{"", "", "", ""}, {"", "", "", ""}}).Felder.Applikationsmuster = einzeln;
    EXPECT_NO_THROW(b.rechne());
}

}  // namespace
}  // namespace varnok::probe
