// Lists, options, tabs and the table of applications.

#include <cmath>

#include "exposure/ergebnistabelle.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

using Auswahlprobe = Probesitzung;

float Reihe(const Sitzung& s, int Studie, int Stoff, std::size_t Tag) {
    return s.Stand().zeige().Studie(Studie).Werte(Gesamtgehalt, Stoff).Reihe_Bodentiefe[Tag];
}

TEST_F(Auswahlprobe, another_kinetics_stores_its_code_marks_the_record_and_runs) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Listenwahl::waehle_Kinetik>(0, FOMC);
    EXPECT_EQ(s_->Stand().Parameter().Kinetik[0][0], FOMC);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
}

TEST_F(Auswahlprobe, the_same_kinetics_again_does_nothing) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Listenwahl::waehle_Kinetik>(0, SFO);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Auswahlprobe, a_study_shows_its_values_and_is_run_once) {
    Parameter_.k_SFO[0][1] = 0.02;  // ln(2) / 0.02 = 34.6573590279972655 d
    schreibe_Probe();
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(1);
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "34.6573590279973");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_GT(Maximum(1), 0.0F);
}

TEST_F(Auswahlprobe, a_DT50_of_0_shows_as_0_after_a_study_change) {
    Parameter_.k_SFO[0][1] = 0;
    schreibe_Probe();
    gestartet();
    Fragen_.erwarte("No final plateau",
                    "The residues of Parent P grow without limit: there is no final plateau. "
                    "The growth over 10 years is shown instead.");
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(1);
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "0");
}

TEST_F(Auswahlprobe, a_change_of_study_keeps_the_mark_of_the_compound_record) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Listenwahl::waehle_Studie>(1);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Auswahlprobe, a_field_edits_its_own_compound_whatever_was_calculated_last) {
    Felder_.Berechnungsmodus = ein_Metabolit;
    schreibe_Probe();
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    EXPECT_DOUBLE_EQ(s_->Stand().Parameter().k_SFO[0][0], std::log(2.0) / 12);
    EXPECT_DOUBLE_EQ(s_->Stand().Parameter().k_SFO[1][0], 0.01);
}

TEST_F(Auswahlprobe, another_scheme_runs_every_study) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Berechnungsmodus>(ein_Metabolit);
    EXPECT_GT(Maximum(0, 1), 0.0F);
    EXPECT_GT(Maximum(1, 1), 0.0F);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Auswahlprobe, another_scheme_ends_the_summary_view) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Listenwahl::waehle_Berechnungsmodus>(zwei_parallel);
    EXPECT_FALSE(s_->Stand().Zusammenfassung_aktiv());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Auswahlprobe, a_compound_that_the_scheme_does_not_have_leaves_the_view) {
    Felder_.Berechnungsmodus = zwei_parallel;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Substanz>(2);
    s_->fuehre_aus<&Listenwahl::waehle_Berechnungsmodus>(ein_Metabolit);
    EXPECT_EQ(s_->Stand().Sicht.Substanz, 0);
}

TEST_F(Auswahlprobe, a_compound_in_view_marks_nothing) {
    Felder_.Berechnungsmodus = ein_Metabolit;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Substanz>(1);
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Auswahlprobe, a_name_is_run_on_leaving_only_if_it_changed) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Listenwahl::verlasse_Namen>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Parent Q");
    s_->fuehre_aus<&Listenwahl::verlasse_Namen>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_TRUE(s_->Stand().Saetze[Wirkstoff].Geaendert());
}

TEST_F(Auswahlprobe, a_month_shorter_than_the_day_takes_its_last_day) {
    Felder_.App_Monat = 0;
    Felder_.App_Tag = 30;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Monat>(1);
    EXPECT_EQ(s_->Stand().Vorgabe.App_Tag, 27);
    EXPECT_EQ(s_->zeige<Listenwahl>().Tage(), 28);
    EXPECT_TRUE(s_->Stand().Saetze[Applikation].Geaendert());
}

TEST_F(Auswahlprobe, more_applications_shorten_the_list_of_intervals_and_keep_the_mark) {
    Felder_.Applikationsmuster = regelmaessig;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Intervall>(181);
    const bool Marke = s_->Stand().Saetze[Applikation].Geaendert();
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(18);  // 20 a year
    EXPECT_EQ(s_->zeige<Listenwahl>().Intervalle(), 18);
    EXPECT_EQ(s_->Stand().Vorgabe.Intervall(), 18);
    EXPECT_EQ(s_->Stand().Saetze[Applikation].Geaendert(), Marke);
    EXPECT_EQ(Werte().Anzahl_pro_Jahr, 20);
}

TEST_F(Auswahlprobe, an_interval_ends_the_summary_view) {
    Felder_.Applikationsmuster = regelmaessig;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Listenwahl::waehle_Intervall>(6);
    EXPECT_FALSE(s_->Stand().Zusammenfassung_aktiv());
    EXPECT_EQ(Werte().Applikationstag[1], 7);
}

TEST_F(Auswahlprobe, the_summary_view_runs_every_study_and_keeps_the_selection) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    EXPECT_TRUE(s_->Stand().Zusammenfassung_aktiv());
    EXPECT_GT(Maximum(1), 0.0F);
    EXPECT_EQ(s_->Stand().i_studie(), 0);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Auswahlprobe, in_the_summary_view_a_date_concerns_all_studies) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    s_->fuehre_aus<&Listenwahl::waehle_Tag>(4);
    for (int st = 0; st < 2; ++st) EXPECT_TRUE(s_->Stand().gueltig(st));
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Auswahlprobe, in_the_summary_view_a_rate_scales_all_studies) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    const std::array<float, 2> vorher{Maximum(0), Maximum(1)};
    ASSERT_TRUE(tippe("Applikationsrate", "2000"));
    EXPECT_EQ(Maximum(0), 2 * vorher[0]);
    EXPECT_EQ(Maximum(1), 2 * vorher[1]);
}

TEST_F(Auswahlprobe, in_the_summary_view_a_formation_fraction_runs_all_studies) {
    Felder_.Berechnungsmodus = ein_Metabolit;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    const float vorher = Maximum(1, 1);
    ASSERT_TRUE(tippe("Bildungsanteil_Met_1", "80"));
    EXPECT_NEAR(Maximum(1, 1) / vorher, 2, 1e-5);
}

TEST_F(Auswahlprobe, view_selectors_calculate_nothing) {
    gestartet();
    const float Wert = Reihe(*s_, 0, 0, 100);
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    s_->fuehre_aus<&Listenwahl::waehle_Fruchtwechsel>(jedes_dritte_Jahr);
    s_->fuehre_aus<&Listenwahl::waehle_TWA_Laenge>(0);
    EXPECT_EQ(Reihe(*s_, 0, 0, 100), Wert);
    for (const bool g : s_->Stand().Marken()) EXPECT_FALSE(g);
}

TEST_F(Auswahlprobe, a_view_selector_does_not_uncover_results_that_are_not_valid) {
    gestartet();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "-1");
    Fragen_.erwarte("No valid input!", "The DT50 is invalid. Please correct!");
    EXPECT_FALSE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_TRUE(s_->Stand().abgedeckt());
    Fragen_.erwarte("No valid input!", "The DT50 is invalid. Please correct!");
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Auswahlprobe, the_accumulated_view_with_every_third_year_adds_a_third_of_the_plateau) {
    Parameter_.k_SFO[0][0] = std::log(2.0) / 300;
    schreibe_Probe();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    s_->fuehre_aus<&Listenwahl::waehle_Fruchtwechsel>(jedes_dritte_Jahr);
    const double erwartet = Maximum() + static_cast<double>(Werte().Werte(Gesamtgehalt, 0).Plateauwert) / 3;
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0)[1][1], Formatiere_Zahl(erwartet, false, true, Milligramm));
}

// Results of a scheme without the compound: nothing of it is known.
TEST_F(Auswahlprobe, a_table_of_a_compound_that_was_not_calculated_shows_zeros) {
    gestartet();
    EXPECT_NE(Ergebnisse_einer_Studie(s_->Stand(), 0)[1][1], "<0.0001");
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 1)[1][1], "<0.0001");
    const auto Zusammenfassung = Ergebnisse_aller_Studien(s_->Stand(), 0);  // the second study was not run
    EXPECT_EQ(Zusammenfassung[1][1], "    " + Ergebnisse_einer_Studie(s_->Stand(), 0)[1][1]);
    EXPECT_EQ(Zusammenfassung[1][2], "    <0.0001");
}

TEST_F(Auswahlprobe, result_rows_are_13_with_the_EU_list_and_15_with_the_monthly_list) {
    gestartet();
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0).size(), 13U);
    Parameter_.TWA_Zeiten = Monatsliste;
    schreibe_Probe();
    gestartet();
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0).size(), 15U);
}

constexpr const char* Daten_ungueltig = "You entered application dates that are not valid. Please correct!";

class Tabellenprobe : public Probesitzung {
protected:
    void oeffne() {
        Felder_.Applikationsmuster = unregelmaessig;
        Felder_.Applikationsschema = {{"01", "05", "100", "0"}, {"01", "06", "100", "0"}};
        schreibe_Probe();
        gestartet();
    }
    std::string Text(int Zeile, int Spalte) const {
        return s_->Stand().Vorgabe.Applikationsschema[static_cast<std::size_t>(Zeile)][static_cast<std::size_t>(Spalte)].Text();
    }
};

TEST_F(Tabellenprobe, keys_edit_the_cell_and_mark_record_and_hint) {
    oeffne();
    s_->fuehre_aus<&Applikationstabelle::leere>(Zelle{0, 2});
    for (const char z : std::string("12.5")) s_->fuehre_aus<&Applikationstabelle::haenge_an>(Zelle{0, 2}, z);
    s_->fuehre_aus<&Applikationstabelle::nimm_letztes>(Zelle{0, 2});
    EXPECT_EQ(Text(0, 2), "12.");
    EXPECT_TRUE(s_->Stand().Saetze[Applikation].Geaendert());
    EXPECT_TRUE(s_->Stand().Hinweis());
}

TEST_F(Tabellenprobe, enter_checks_once_and_makes_one_run) {
    oeffne();
    s_->fuehre_aus<&Applikationstabelle::haenge_an>(Zelle{1, 2}, '0');
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_EQ(Werte().Tagesrate[31], 1000.0F);
}

TEST_F(Tabellenprobe, an_empty_month_is_told_once_and_its_cell_selected) {
    oeffne();
    s_->fuehre_aus<&Applikationstabelle::leere>(Zelle{1, 1});
    Fragen_.erwarte("No valid input!", Daten_ungueltig);
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    ASSERT_TRUE(s_->zeige<Laufsteuerung>().Tabellenfehler());
    EXPECT_EQ(s_->zeige<Laufsteuerung>().Tabellenfehler()->Zeile, 1);
    EXPECT_EQ(s_->zeige<Laufsteuerung>().Tabellenfehler()->Spalte, 1);
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_TRUE(s_->Stand().Hinweis());
}

TEST_F(Tabellenprobe, dates_that_do_not_ascend_are_told) {
    oeffne();
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{0, 0}, "15\t5\n15\t5\n");
    Fragen_.erwarte("No valid input!", "The sequence of application dates that is not valid. Please correct!");
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Tabellenprobe, a_column_of_numbers_is_pasted_downwards_and_no_row_is_made) {
    oeffne();
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{0, 2}, "10\r\n20\r\n30\r\n");
    EXPECT_EQ(Text(0, 2), "10");
    EXPECT_EQ(Text(1, 2), "20");
    EXPECT_EQ(s_->Stand().Vorgabe.Applikationsschema.size(), 2U);
}

TEST_F(Tabellenprobe, rows_cut_off_by_a_smaller_number_come_back_with_a_larger_one) {
    oeffne();
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(1);  // 3 rows
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{2, 0}, "01\t07\t80\t5");
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(0);
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(1);
    EXPECT_EQ(Text(2, 2), "80");
    EXPECT_TRUE(s_->Stand().Hinweis());  // the table takes effect with Enter
}

TEST_F(Tabellenprobe, switching_to_irregular_with_an_empty_table_tells_at_once) {
    for (auto& Zeile : Felder_.Applikationsschema) Zeile = {"00", "00", "", "0"};
    schreibe_Probe();
    gestartet();
    Fragen_.erwarte("No valid input!", Daten_ungueltig);
    s_->fuehre_aus<&Listenwahl::waehle_Muster>(unregelmaessig);
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_TRUE(s_->Stand().Hinweis());
}

}  // namespace
}  // namespace varnok
