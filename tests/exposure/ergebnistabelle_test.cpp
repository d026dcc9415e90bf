// Tables of results.

#include "exposure/ergebnistabelle.h"

#include <gtest/gtest.h>

#include "support/lauf_bauer.h"

namespace varnok::probe {
namespace {

// A study whose stores a test fills by hand: peak on a day, and the concentration of some days.
Lauf mit_Peak(float Wert, int Tag) {
    Lauf l = Lauf_bauer().baue();
    l.Speicher.Maximum_Bodentiefe[0][0][0] = Wert;
    l.Speicher.Maximumtag_Bodentiefe[0][0][0] = static_cast<std::int16_t>(Tag);
    return l;
}

Tabellentext Tabelle(const Lauf& l, int i_substanz = 0) {
    Tabellentext t = Tabellenkopf(l);
    erstelle_Ergebnistabelle(l, 0, i_substanz, t);
    return t;
}

TEST(Tabellenkopf, heads_and_labels_of_the_regulation) {
    const Tabellentext t = Tabellenkopf(Lauf_bauer().baue());
    ASSERT_EQ(t.size(), 13U);
    EXPECT_EQ(t[0], (std::vector<std::string>{"          Time(d)", "     PECactual", "       PECtwa"}));
    EXPECT_EQ(t[1], (std::vector<std::string>{"         PECmax", "", "       --------"}));
    EXPECT_EQ(t[12], (std::vector<std::string>{"", "", "       --------"}));
}

TEST(Tabellenkopf, the_monthly_list_has_15_rows) {
    Lauf_bauer b;
    b.Parameter.TWA_Zeiten = 0;
    const Tabellentext t = Tabellenkopf(b.baue());
    ASSERT_EQ(t.size(), 15U);
    EXPECT_EQ(t[13][0], std::string(25 - 2 * 5, ' ') + "360 d");
    EXPECT_EQ(t[14][2], "       --------");
}

TEST(Tabellenkopf, a_digit_is_as_wide_as_two_blanks) {
    const Tabellentext t = Tabellenkopf(Lauf_bauer().baue());
    EXPECT_EQ(t[2][0], std::string(19, ' ') + "1 d");
    EXPECT_EQ(t[6][0], std::string(17, ' ') + "14 d");
    EXPECT_EQ(t[11][0], std::string(15, ' ') + "100 d");
}

TEST(Tabellenkopf, a_length_too_long_for_the_cell_gets_no_blanks) {
    Lauf_bauer b;
    b.Parameter.TWA_Liste_EU[0] = 1234.56789012;
    b.Parameter.TWA_Liste_EU[1] = 12345.678901;
    EXPECT_EQ(Tabellenkopf(b.baue())[2][0], std::string(25 - 2 * 10, ' ') + "1234.568 d");
}

TEST(Ergebnistabelle, annual_shows_the_stored_values) {
    Lauf l = mit_Peak(1.5F, 0);
    l.Speicher.TWA_Maximum[0][0][0][1] = 1.25F;
    l.Speicher.Reihe_Bodentiefe(0, 0, 0, 0)[1] = 1.125F;
    l.Speicher.Plateauwert[0][0][0] = 8;
    const Tabellentext t = Tabelle(l);
    EXPECT_EQ(t[1][1], "1.5000");
    EXPECT_EQ(t[2][1], "1.1250");
    EXPECT_EQ(t[2][2], "1.2500      ");
}

TEST(Ergebnistabelle, accumulation_adds_the_background_to_every_row) {
    Lauf l = mit_Peak(1.5F, 0);
    l.Speicher.TWA_Maximum[0][0][0][1] = 1.25F;
    l.Speicher.Plateauwert[0][0][0] = 8;
    l.Felder.PEC_Typ = 2;
    const Tabellentext t = Tabelle(l);
    EXPECT_EQ(t[1][1], "9.5000");
    EXPECT_EQ(t[2][1], "8.0000");
    EXPECT_EQ(t[2][2], "9.2500      ");
}

TEST(Ergebnistabelle, a_crop_every_third_year_adds_a_third) {
    Lauf l = mit_Peak(1.5F, 0);
    l.Speicher.Plateauwert[0][0][0] = 6;
    l.Felder.PEC_Typ = 2;
    l.Felder.Fruchtwechsel = 2;
    EXPECT_EQ(Tabelle(l)[1][1], "3.5000");
}

TEST(Ergebnistabelle, background_leaves_the_last_texts) {
    Lauf l = mit_Peak(1.5F, 0);
    Tabellentext t = Tabelle(l);
    const Tabellentext davor = t;
    l.Felder.PEC_Typ = 1;
    l.Speicher.Maximum_Bodentiefe[0][0][0] = 99;
    erstelle_Ergebnistabelle(l, 0, 0, t);
    EXPECT_EQ(t, davor);
}

TEST(Ergebnistabelle, pore_water_shows_its_own_stores) {
    Lauf l = mit_Peak(1.5F, 0);
    l.Speicher.Maximum_Bodentiefe[1][0][0] = 0.5F;
    l.Felder.Endpunkt = 1;
    EXPECT_EQ(Tabelle(l)[1][1], "0.5000");
}

TEST(Ergebnistabelle, a_value_below_the_last_place_reads_as_a_bound_and_six_blanks) {
    Lauf l = mit_Peak(1.5F, 0);
    l.Speicher.TWA_Maximum[0][0][0][1] = 0.00004F;
    EXPECT_EQ(Tabelle(l)[2][2], "<0.0001      ");
}

TEST(Ergebnistabelle, the_unit_decides_the_places) {
    Lauf l = mit_Peak(1.5F, 0);
    l.Speicher.TWA_Maximum[0][0][0][1] = 0.004F;
    l.Parameter.Einheit = 1;
    EXPECT_EQ(Tabelle(l)[1][1], "1.50");
    EXPECT_EQ(Tabelle(l)[2][2], "<0.01      ");
}

TEST(PECactual, stands_a_window_behind_the_peak) {
    Lauf l = mit_Peak(1.5F, 40);
    l.Speicher.Reihe_Bodentiefe(0, 0, 0, 0)[54] = 0.75F;
    EXPECT_EQ(PECactual_Tag(l, 0, 0, 0, 5), 54);
    EXPECT_EQ(PECactual(l, 0, 0, 0, 5), 0.75F);
}

TEST(PECactual, of_a_peak_on_day_3640_is_taken_at_day_3649_for_30_days) {
    Lauf l = mit_Peak(1.5F, 3640);
    l.Speicher.TWA_Tage[1] = 30;
    EXPECT_EQ(PECactual_Tag(l, 0, 0, 0, 1), 3649);
}

TEST(PECactual, ties_of_the_day_go_to_the_even_one) {
    Lauf l = mit_Peak(1.5F, 40);
    l.Speicher.TWA_Tage[1] = 2.5F;
    l.Speicher.TWA_Tage[2] = 3.5F;
    EXPECT_EQ(PECactual_Tag(l, 0, 0, 0, 1), 42);
    EXPECT_EQ(PECactual_Tag(l, 0, 0, 0, 2), 44);
}

TEST(PECactual, of_a_compound_that_never_rose_above_0_is_0_in_every_row) {
    const Lauf l = Lauf_bauer().Schema(1).Bildungsanteile(0).rechne();
    for (int j = 1; j <= 10; ++j) EXPECT_EQ(PECactual(l, 0, 0, 1, j), 0.0F) << j;
    for (std::size_t Zeile = 1; Zeile <= 11; ++Zeile) EXPECT_EQ(Tabelle(l, 1)[Zeile][1], "<0.0001") << Zeile;
}

TEST(PECactual, of_a_run_is_the_concentration_after_the_window) {
    const Lauf l = Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 30).rechne();
    EXPECT_EQ(PECactual(l, 0, 0, 0, 6), Boden(l, 30 + 21));
}

// ---- the summary over all studies ----

Lauf mit_Studien(std::size_t n) {
    Lauf l = Lauf_bauer().baue();
    l.Felder.Studie.clear();
    for (std::size_t st = 0; st < n; ++st) {
        l.Felder.Studie.push_back("study " + std::to_string(st + 1));
        l.Speicher.Maximum_Bodentiefe[0][st][0] = static_cast<float>(st + 1);
        l.Speicher.TWA_Maximum[0][st][0][1] = static_cast<float>(st + 1) / 2;
        l.Speicher.TWA_Maximum[0][st][0][10] = static_cast<float>(st + 1) / 4;
    }
    return l;
}

Tabellentext Zusammenfassung(const Lauf& l) {
    Tabellentext t = Tabellenkopf(l);
    erstelle_Ergebnistabelle_Zusammenfassung(l, 0, t);
    return t;
}

TEST(Zusammenfassung, a_column_for_each_study_under_its_name) {
    const Tabellentext t = Zusammenfassung(mit_Studien(3));
    ASSERT_EQ(t[0].size(), 4U);
    EXPECT_EQ(t[0][1], "study 1");
    EXPECT_EQ(t[0][3], "study 3");
}

TEST(Zusammenfassung, the_more_studies_the_fewer_blanks) {
    EXPECT_EQ(Zusammenfassung(mit_Studien(1))[1][1], "     1.0000");
    EXPECT_EQ(Zusammenfassung(mit_Studien(3))[1][3], "   3.0000");
    EXPECT_EQ(Zusammenfassung(mit_Studien(6))[1][6], "6.0000");
}

TEST(Zusammenfassung, holds_peaks_and_averages_only) {
    const Tabellentext t = Zusammenfassung(mit_Studien(2));
    EXPECT_EQ(t[1][2], "    2.0000");
    EXPECT_EQ(t[2][2], "    1.0000");
    EXPECT_EQ(t[11][2], "    0.5000");
}

TEST(Zusammenfassung, keeps_the_labels_of_its_rows) {
    const Tabellentext t = Zusammenfassung(mit_Studien(2));
    EXPECT_EQ(t[1][0], "         PECmax");
    EXPECT_EQ(t[2][0], std::string(19, ' ') + "1 d");
}

// The dashes of the last row belong to the table of a compound.
TEST(Zusammenfassung, the_last_row_is_empty) {
    for (std::size_t n = 1; n <= 6; ++n) {
        const Tabellentext t = Zusammenfassung(mit_Studien(n));
        for (std::size_t Spalte = 1; Spalte <= n; ++Spalte) EXPECT_EQ(t.back()[Spalte], "") << n << " " << Spalte;
    }
}

TEST(Zusammenfassung, adds_the_background_of_each_study) {
    Lauf l = mit_Studien(2);
    l.Felder.PEC_Typ = 2;
    l.Speicher.Plateauwert[0][1][0] = 10;
    EXPECT_EQ(Zusammenfassung(l)[1][1], "    1.0000");
    EXPECT_EQ(Zusammenfassung(l)[1][2], "    12.0000");
}

TEST(Zusammenfassung, background_fills_nothing) {
    Lauf l = mit_Studien(2);
    l.Felder.PEC_Typ = 1;
    EXPECT_EQ(Zusammenfassung(l), Tabellenkopf(l));
}

}  // namespace
}  // namespace varnok::probe
