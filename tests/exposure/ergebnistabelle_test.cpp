// Tables of results.

#include "exposure/ergebnistabelle.h"

#include <gtest/gtest.h>

#include "support/darstellungsprobe.h"

namespace varnok::probe {
namespace {

// A study whose result a test fills by hand: peak on a day, and the concentration of some days.
Darstellungsprobe mit_Peak(float Wert, int Tag) {
    Darstellungsprobe p = leere_Probe(Lauf_bauer());
    p.Werte().Maximum_Bodentiefe = Wert;
    p.Werte().Maximumtag_Bodentiefe = Tag;
    return p;
}

Tabellentext Kopf(const Lauf_bauer& b = {}) { return Tabellenkopf(b.Felder.Parameter); }

Tabellentext Tabelle(const Darstellungsprobe& p, int i_substanz = 0) {
    Tabellentext t = Tabellenkopf(p.Felder.Parameter);
    erstelle_Ergebnistabelle(p, 0, i_substanz, t);
    return t;
}

TEST(Tabellenkopf, heads_and_labels_of_the_regulation) {
    const Tabellentext t = Kopf();
    ASSERT_EQ(t.size(), 13U);
    EXPECT_EQ(t[0], (std::vector<std::string>{"          Time(d)", "     PECactual", "       PECtwa"}));
    EXPECT_EQ(t[1], (std::vector<std::string>{"         PECmax", "", "       --------"}));
    EXPECT_EQ(t[12], (std::vector<std::string>{"", "", "       --------"}));
}

TEST(Tabellenkopf, the_monthly_list_has_15_rows) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA_Zeiten = Monatsliste;
    const Tabellentext t = Kopf(b);
    ASSERT_EQ(t.size(), 15U);
    EXPECT_EQ(t[13][0], std::string(25 - 2 * 5, ' ') + "360 d");
    EXPECT_EQ(t[14][2], "       --------");
}

TEST(Tabellenkopf, a_digit_is_as_wide_as_two_blanks) {
    const Tabellentext t = Kopf();
    EXPECT_EQ(t[2][0], std::string(19, ' ') + "1 d");
    EXPECT_EQ(t[6][0], std::string(17, ' ') + "14 d");
    EXPECT_EQ(t[11][0], std::string(15, ' ') + "100 d");
}

TEST(Tabellenkopf, a_length_too_long_for_the_cell_gets_no_blanks) {
    Lauf_bauer b;
    b.Felder.Parameter.TWA.EU[0] = 1234.56789012;
    b.Felder.Parameter.TWA.EU[1] = 12345.678901;
    EXPECT_EQ(Kopf(b)[2][0], std::string(25 - 2 * 10, ' ') + "1234.568 d");
}

TEST(Ergebnistabelle, annual_shows_the_stored_values) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte().TWA[0].Maximum = 1.25F;
    l.Werte().TWA[0].aktuell = 1.125F;
    l.Werte().Plateauwert = 8;
    const Tabellentext t = Tabelle(l);
    EXPECT_EQ(t[1][1], "1.5000");
    EXPECT_EQ(t[2][1], "1.1250");
    EXPECT_EQ(t[2][2], "1.2500      ");
}

TEST(Ergebnistabelle, accumulation_adds_the_background_to_every_row) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte().TWA[0].Maximum = 1.25F;
    l.Werte().Plateauwert = 8;
    l.Sicht.PEC_Typ = Anreicherung;
    const Tabellentext t = Tabelle(l);
    EXPECT_EQ(t[1][1], "9.5000");
    EXPECT_EQ(t[2][1], "8.0000");
    EXPECT_EQ(t[2][2], "9.2500      ");
}

TEST(Ergebnistabelle, a_crop_every_third_year_adds_a_third) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte().Plateauwert = 6;
    l.Sicht.PEC_Typ = Anreicherung;
    l.Sicht.Fruchtwechsel = jedes_dritte_Jahr;
    EXPECT_EQ(Tabelle(l)[1][1], "3.5000");
}

TEST(Ergebnistabelle, background_leaves_the_last_texts) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    Tabellentext t = Tabelle(l);
    const Tabellentext davor = t;
    l.Sicht.PEC_Typ = Hintergrund;
    l.Werte().Maximum_Bodentiefe = 99;
    erstelle_Ergebnistabelle(l, 0, 0, t);
    EXPECT_EQ(t, davor);
}

TEST(Ergebnistabelle, pore_water_shows_its_own_stores) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte(0, 0, Porenwasser).Maximum_Bodentiefe = 0.5F;
    l.Sicht.Endpunkt = Porenwasser;
    EXPECT_EQ(Tabelle(l)[1][1], "0.5000");
}

TEST(Ergebnistabelle, a_value_below_the_last_place_reads_as_a_bound_and_six_blanks) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte().TWA[0].Maximum = 0.00004F;
    EXPECT_EQ(Tabelle(l)[2][2], "<0.0001      ");
}

TEST(Ergebnistabelle, the_unit_decides_the_places) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte().TWA[0].Maximum = 0.004F;
    l.Felder.Parameter.Einheit = Mikrogramm;
    l.Studie();  // the unit is that of the result
    EXPECT_EQ(Tabelle(l)[1][1], "1.50");
    EXPECT_EQ(Tabelle(l)[2][2], "<0.01      ");
}

// What other programs get: no blanks around a text, and nothing to take apart.
TEST(Ergebniswerte, are_numbers_by_window_with_a_text_for_each) {
    Darstellungsprobe l = mit_Peak(1.5F, 0);
    l.Werte().TWA[3].aktuell = 1.125F;
    l.Werte().Plateauwert = 8;
    l.Sicht.PEC_Typ = Anreicherung;
    l.Felder.Parameter.TWA.EU[3] = 7.5;
    l.Studie();
    const Ergebniswerte w = Werte_einer_Studie(l, 0, 0);
    ASSERT_EQ(w.Zeilen.size(), 11U);
    EXPECT_EQ(w.Zeilen[0].Fenster, std::nullopt);
    EXPECT_EQ(w.Zeilen[0].Spalten[0], 9.5);
    EXPECT_EQ(w.Zeilen[0].Spalten[1], std::nullopt);
    EXPECT_EQ(w.Zeilen[4].Fenster, 7.5F);
    EXPECT_EQ(w.Zeilen[4].Spalten[0], 9.125);
    EXPECT_EQ(Ergebniswerte::Bezeichnung(w.Zeilen[0]), "PECmax");
    EXPECT_EQ(Ergebniswerte::Bezeichnung(w.Zeilen[4], ','), "7,5 d");
    EXPECT_EQ(w.Text(w.Zeilen[4], 0, ','), "9,1250");
    EXPECT_EQ(w.Text(w.Zeilen[0], 1), "--------");
}

TEST(PECactual, stands_a_window_behind_the_peak) { EXPECT_EQ(PECactual_Tag(40, 14), 54); }

TEST(PECactual, of_a_peak_on_day_3640_is_taken_at_day_3649_for_30_days) { EXPECT_EQ(PECactual_Tag(3640, 30), 3649); }

TEST(PECactual, ties_of_the_day_go_to_the_even_one) {
    EXPECT_EQ(PECactual_Tag(40, 2.5F), 42);
    EXPECT_EQ(PECactual_Tag(40, 3.5F), 44);
}

TEST(PECactual, of_a_compound_that_never_rose_above_0_is_0_in_every_row) {
    const Darstellungsprobe p = gerechnet(Lauf_bauer().Schema(1).Bildungsanteile(0));
    for (const Fensterergebnis& f : p.zeige().Werte(0, 1).TWA) EXPECT_EQ(f.aktuell, 0.0F) << f.Tage;
    for (std::size_t Zeile = 1; Zeile <= 11; ++Zeile) EXPECT_EQ(Tabelle(p, 1)[Zeile][1], "<0.0001") << Zeile;
}

TEST(PECactual, of_a_run_is_the_concentration_after_the_window) {
    const Lauf_bauer b = Lauf_bauer().nach_SFO(0.01).regelmaessige_Gaben(2, 30);
    EXPECT_EQ(gerechnet(b).zeige().Werte(0, 0).TWA[5].aktuell, Boden(b.rechne(), 30 + 21));
}

// ---- the summary over all studies ----

Darstellungsprobe mit_Studien(int n) {
    Darstellungsprobe p = leere_Probe(Lauf_bauer());
    p.Felder.Studie.clear();
    for (int st = 0; st < n; ++st) p.Felder.Studie.push_back("study " + std::to_string(st + 1));
    for (int st = 0; st < n; ++st) {
        Endpunktergebnis& e = p.Werte(0, st);
        e.Maximum_Bodentiefe = static_cast<float>(st + 1);
        e.TWA[0].Maximum = static_cast<float>(st + 1) / 2;
        e.TWA[9].Maximum = static_cast<float>(st + 1) / 4;
    }
    return p;
}

Tabellentext Zusammenfassung(const Darstellungsprobe& p) {
    Tabellentext t = Tabellenkopf(p.Felder.Parameter);
    erstelle_Ergebnistabelle_Zusammenfassung(p, 0, t);
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

TEST(Ergebniswerte, of_all_studies_have_the_unit_of_each) {
    Darstellungsprobe p = mit_Studien(2);
    p.Werte(0, 0).TWA[9].Maximum = 0.00001F;
    const Ergebniswerte w = Werte_aller_Studien(p, 0);
    ASSERT_EQ(w.Spalten.size(), 2U);
    EXPECT_EQ(w.Spalten[1].Kopf, "study 2");
    EXPECT_EQ(w.Spalten[1].Einheit, Milligramm);
    ASSERT_EQ(w.Zeilen.size(), 11U);
    EXPECT_EQ(w.Zeilen[0].Spalten[1], 2.0);
    EXPECT_EQ(w.Zeilen[10].Fenster, 100.0F);
    EXPECT_EQ(w.Zeilen[10].Spalten[1], 0.5);
    EXPECT_EQ(w.Text(w.Zeilen[10], 0, ','), "<0,0001");
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
    for (int n = 1; n <= 6; ++n) {
        const Tabellentext t = Zusammenfassung(mit_Studien(n));
        for (int Spalte = 1; Spalte <= n; ++Spalte)
            EXPECT_EQ(t.back()[static_cast<std::size_t>(Spalte)], "") << n << " " << Spalte;
    }
}

TEST(Zusammenfassung, adds_the_background_of_each_study) {
    Darstellungsprobe l = mit_Studien(2);
    l.Sicht.PEC_Typ = Anreicherung;
    l.Werte(0, 1).Plateauwert = 10;
    EXPECT_EQ(Zusammenfassung(l)[1][1], "    1.0000");
    EXPECT_EQ(Zusammenfassung(l)[1][2], "    12.0000");
}

TEST(Zusammenfassung, background_fills_nothing) {
    Darstellungsprobe l = mit_Studien(2);
    l.Sicht.PEC_Typ = Hintergrund;
    EXPECT_EQ(Zusammenfassung(l), Tabellenkopf(l.Felder.Parameter));
}

}  // namespace
}  // namespace varnok::probe
