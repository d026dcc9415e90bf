// What is on display belongs to what is entered, and every word about it is true.

#include <gmock/gmock.h>

#include <fstream>

#include "records/dateien.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/sitzungsgang_projekt.h"
#include "session/saetze/befehlsprobe.h"

namespace varnok {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class Luegen : public Befehlsprobe {
protected:
    void schreibe(const std::string& Name, const std::string& Bytes) const {
        schreibe_Datei((Wurzel_ / "input" / Name).string(), Bytes);
    }
    // Irregular patterns: "Probe" with five rows, "Second" with two.
    void mache_unregelmaessig() {
        Felder_.Applikationsmuster = unregelmaessig;
        waehle_Anzahl(Felder_, 5);
        for (std::size_t i = 0; i < 5; ++i) Felder_.Applikationsschema[i] = {"0" + std::to_string(i + 1), "05", "100", "0"};
        schreibe_Saetze("Probe", Felder_);
        Eingabe e = Felder_;
        waehle_Anzahl(e, 2);
        schreibe_Saetze("Second", e);
    }
};

TEST_F(Luegen, rows_of_another_irregular_record_never_come_back) {
    mache_unregelmaessig();
    gestartet().fuehre_aus<&Listenwahl::waehle_Anzahl>(0);
    waehle(Applikation, "Second");
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(3);
    const auto& Tabelle = z().Vorgabe.Applikationsschema;
    ASSERT_EQ(Tabelle.size(), 5U);
    for (std::size_t i = 2; i < 5; ++i) EXPECT_EQ(Tabelle[i], Applikationszeile{}) << i;
    Fragen_.erwarte_Anfang("No valid input!", "");
    s_->fuehre_aus<&Applikationstabelle::bestaetige>();
    EXPECT_TRUE(z().abgedeckt());
}

TEST_F(Luegen, rows_cut_off_come_back_while_the_record_stands) {
    mache_unregelmaessig();
    gestartet().fuehre_aus<&Listenwahl::waehle_Anzahl>(0);
    s_->fuehre_aus<&Listenwahl::waehle_Anzahl>(3);
    EXPECT_EQ(z().Vorgabe.Applikationsschema, Felder_.Applikationsschema);
}

TEST_F(Luegen, a_digit_typed_into_a_cell_leaves_table_and_diagram_of_the_new_view_with_the_hint) {
    mache_unregelmaessig();
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    const auto Tabelle = Ergebnisse_einer_Studie(s_->Stand(), 0);
    const Zeichenliste Bild = s_->zeige<Diagrammsteuerung>().vorderes()->Liste;
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Gesamtgehalt);
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(jaehrlich);
    ASSERT_NE(Ergebnisse_einer_Studie(s_->Stand(), 0), Tabelle);
    s_->fuehre_aus<&Applikationstabelle::haenge_an>(Zelle{0, 2}, '5');
    ASSERT_TRUE(z().Hinweis());
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    EXPECT_TRUE(z().Hinweis());
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0), Tabelle);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().vorderes()->Liste, Bild);
}

TEST_F(Luegen, esc_after_typing_leaves_no_hint_no_run_and_no_question) {
    gestartet();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const Ergebnisse vorher = z().Werte();
    const int f = Feld("S_DT50_0");
    s_->fuehre_aus<&Feldeingabe::betrete>(f);
    s_->fuehre_aus<&Feldeingabe::aendere>(f, "12");
    EXPECT_TRUE(z().Hinweis());
    s_->fuehre_aus<&Feldeingabe::nimm_zurueck>(f);
    EXPECT_FALSE(z().Hinweis());
    EXPECT_TRUE(s_->fuehre_aus<&Feldeingabe::verlasse>(f));
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
    EXPECT_EQ(z().Werte(), vorher);
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_TRUE(gesichert().empty());
}

TEST_F(Luegen, a_change_without_a_mark_goes_to_backup_when_another_record_is_chosen) {
    gestartet().fuehre_aus<&Listenwahl::waehle_Anzahl>(3);
    ASSERT_FALSE(z().Saetze[Applikation].Geaendert());
    waehle(Applikation, "Second");
    EXPECT_EQ(gesichert(), Namen{"unsaved Probe.app"});
}

TEST_F(Luegen, a_record_replaced_is_not_called_deleted) {
    gestartet().fuehre_aus<&Satzverwaltung::kopiere>(Szenario);
    ASSERT_EQ(z().gewaehlt(Szenario), "copy of Probe");
    ASSERT_TRUE(s_->fuehre_aus<&Organiser::oeffne>());
    Fragen_.erwarte_Anfang("Replace existing record?", "", Knopf::Ja);
    const auto& l = s_->zeige<Organiser>().Listen().Listen[Szenario];
    s_->fuehre_aus<&Organiser::waehle>(Szenario, static_cast<int>(std::find(l.begin(), l.end(), "Probe") - l.begin()));
    s_->fuehre_aus<&Organiser::kopiere>(Szenario);
    s_->fuehre_aus<&Organiser::verwirf>();
    s_->fuehre_aus<&Organiser::schliesse_ab>();
    EXPECT_EQ(z().Abdeckungswort(), "Record replaced: choose or refresh");
}

TEST_F(Luegen, a_report_closes_over_other_results_other_inputs_and_the_summary) {
    gestartet();
    const auto mit_Bericht = [&](auto&& Tat) {
        s_->fuehre_aus<&Berichtssteuerung::erstelle>();
        ASSERT_NE(s_->zeige<Berichtssteuerung>().offener(), nullptr);
        Tat();
        EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    };
    mit_Bericht([&] { EXPECT_TRUE(tippe("S_DT50_0", "12")); });
    mit_Bericht([&] { s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>(); });
    mit_Bericht([&] { s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1); });
    mit_Bericht([&] { s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser); });
}

TEST_F(Luegen, after_a_failed_write_nothing_tells_of_the_report_before) {
    gestartet().fuehre_aus<&Berichtssteuerung::erstelle>();
    ASSERT_FALSE(s_->zeige<Berichtssteuerung>().Ergebnisdatei().empty());
    s_->fuehre_aus<&Berichtssteuerung::schliesse>();
    std::filesystem::remove_all(Wurzel_ / "output");
    std::ofstream(Wurzel_ / "output") << "no folder";
    Fragen_.erwarte_Anfang("Runtime error", "");
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().Ergebnisdatei(), "");
    EXPECT_EQ(z().Statuszeile.Text(), "The report was not written.");
}

TEST_F(Luegen, half_the_dose_under_weather_that_another_program_changed_is_not_half_the_old_result) {
    Parameter_.Klimamodus = nach_Klimadatei;
    Parameter_.Q10 = fuer_alle(2.58);
    Felder_.Klimaszenario = "Weather";
    schreibe("Weather.cli", gang::Wetterdatei(5));
    schreibe_Saetze("Probe", Felder_);
    gestartet();
    const auto Mittel = [this] { return Werte().Stoffwerte.at(0).Endpunktwerte.at(0).TWA.back().Maximum; };
    const float kalt = Mittel();
    schreibe("Weather.cli", gang::Wetterdatei(25));
    ASSERT_TRUE(tippe("Applikationsrate", "500"));
    EXPECT_FALSE(z().abgedeckt());
    const float halbe_Dosis = Mittel();
    gestartet();
    EXPECT_NE(Mittel(), kalt);
    EXPECT_EQ(halbe_Dosis, Mittel() / 2);
}

TEST_F(Luegen, a_scenario_without_its_last_lines_shows_and_calculates_20_degrees) {
    const std::string ganz = Datei("input/Second.sce");
    schreibe("Second.sce", ganz.substr(0, ganz.find("Climatic condition:")) + "Climatic condition:\t10 \xB0" + "C constant\r\n");
    Felder_.Parameter.Szenariotemperatur = 5;
    schreibe_Saetze("Probe", Felder_);
    gestartet();
    waehle(Szenario, "Second");
    EXPECT_EQ(Klimatext(z().Vorgabe), "20 °C constant");
    EXPECT_EQ(z().Parameter().Szenariotemperatur, 20);
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(Klimatext(*Werte().Vorgabe), "20 °C constant");
}

TEST_F(Luegen, a_record_that_cannot_be_read_is_covered_with_file_line_and_reason_and_never_written) {
    schreibe("Second.che", "rubbish");
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const Eingabe vorher = z().Vorgabe;
    Fragen_.erwarte_Anfang("Save changes?", "", Knopf::Nein);
    waehle(Wirkstoff, "Second");
    EXPECT_EQ(z().Abdeckungswort(), "Second.che, line 2: the file ends before \"Unit:\"");
    EXPECT_THAT(z().Statuszeile.Text(), HasSubstr("Second.che, line 2"));
    EXPECT_EQ(z().Vorgabe, vorher);
    EXPECT_FALSE(z().Saetze[Wirkstoff].Geaendert());
    ASSERT_TRUE(tippe("S_DT50_0", "13"));
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_THAT(z().Statuszeile.Text(), AllOf(HasSubstr("\"Second.che\" was not read"), Not(HasSubstr("All input data"))));
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_TRUE(z().beendet());
    EXPECT_EQ(Datei("input/Second.che"), "rubbish");
    EXPECT_EQ(z().Werte()[0]->Vorgabe->Parameter.k_SFO[0][0], vorher.Parameter.k_SFO[0][0]);  // no run since
}

TEST_F(Luegen, a_pattern_read_in_part_never_stands_beside_the_rest_of_another) {
    mache_unregelmaessig();
    const std::string ganz = Datei("input/Second.app");
    schreibe("Second.app", ganz.substr(0, ganz.find("02\t05")));
    gestartet();
    const Eingabe vorher = z().Vorgabe;
    waehle(Applikation, "Second");
    EXPECT_THAT(z().Abdeckungswort(), HasSubstr("Second.app, line 11: "));
    EXPECT_EQ(z().Vorgabe, vorher);
    waehle(Applikation, "Probe");
    EXPECT_FALSE(z().abgedeckt());
}

TEST_F(Luegen, a_start_with_an_empty_compound_record_is_covered_and_shows_no_curve) {
    schreibe("Probe.che", "");
    gestartet();
    EXPECT_EQ(z().Abdeckungswort(), "Probe.che, line 1: the file ends before \"Pesticide data\"");
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), 0);
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_EQ(s_->zeige<Berichtssteuerung>().offener(), nullptr);
    EXPECT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), 0);
    waehle(Wirkstoff, "Second");
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_EQ(z().Studienzahl(), 2);
    EXPECT_EQ(Datei("input/Probe.che"), "");
}

TEST_F(Luegen, no_line_names_what_has_no_name) {
    gestartet();
    ASSERT_TRUE(s_->fuehre_aus<&Organiser::oeffne>());
    bejahe_Loeschen();
    s_->fuehre_aus<&Organiser::loesche>(Simulation);
    s_->fuehre_aus<&Organiser::verwirf>();
    s_->fuehre_aus<&Organiser::schliesse_ab>();
    ASSERT_EQ(z().Auswahl(Simulation), -1);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_THAT(z().Statuszeile.Text(), Not(HasSubstr("\"\"")));
    EXPECT_THAT(z().Statuszeile.Text(), HasSubstr("\"Probe.che\""));
}

TEST_F(Luegen, undo_of_a_deleted_study_brings_back_all_of_it) {
    for (std::size_t c = 0; c < 3; ++c) Parameter_.KOC[c][1] = 7;
    Parameter_.Kinetik[0][0] = HS;
    Parameter_.k1_HS[0] = 0.5;
    Parameter_.k2_HS[0] = 0.25;
    Parameter_.Tb_HS[0] = 3;
    schreibe_Saetze("Probe", Felder_);
    gestartet();
    const Eingabe vorher = z().Vorgabe;
    const auto Tabelle = Ergebnisse_einer_Studie(s_->Stand(), 0);
    Fragen_.erwarte_Anfang("Delete study", "", Knopf::Ja);
    s_->fuehre_aus<&Studienverwaltung::loesche>();
    ASSERT_EQ(z().Studienzahl(), 1);
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe, vorher);
    EXPECT_EQ(Ergebnisse_einer_Studie(s_->Stand(), 0), Tabelle);
    EXPECT_FALSE(z().Hinweis());
    EXPECT_FALSE(z().abgedeckt());
}

// A run with an interception above 100 % puts the table right.
TEST_F(Luegen, undo_and_redo_pass_a_table_that_a_run_repairs) {
    mache_unregelmaessig();
    gestartet();
    const Eingabe geladen = z().Vorgabe;
    s_->fuehre_aus<&Applikationstabelle::fuege_ein>(Zelle{0, 3}, "150");
    const Eingabe getippt = z().Vorgabe;
    Fragen_.erwarte_Anfang("Delete study", "", Knopf::Ja);
    s_->fuehre_aus<&Studienverwaltung::loesche>();
    const Eingabe geloescht = z().Vorgabe;
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe, getippt);
    s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
    EXPECT_EQ(z().Vorgabe, geladen);
    s_->fuehre_aus<&Ruecknahme::wiederhole>();
    s_->fuehre_aus<&Ruecknahme::wiederhole>();
    EXPECT_EQ(z().Vorgabe, geloescht);
}

// "Not now"

TEST_F(Luegen, esc_on_choosing_a_record_leaves_everything_as_it_was) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const Eingabe vorher = z().Vorgabe;
    const auto Marken = z().Marken();
    const std::string Datei_davor = Datei("input/Second.che");
    Fragen_.erwarte_Anfang("Save changes?", "", Knopf::nicht_jetzt);
    waehle(Wirkstoff, "Second");
    EXPECT_EQ(z().gewaehlt(Wirkstoff), "Probe");
    EXPECT_EQ(z().Vorgabe, vorher);
    EXPECT_EQ(z().Marken(), Marken);
    EXPECT_FALSE(z().Simulation_markiert());
    EXPECT_FALSE(z().abgedeckt());
    EXPECT_FALSE(z().Hinweis());
    EXPECT_EQ(Datei("input/Second.che"), Datei_davor);
    EXPECT_TRUE(gesichert().empty());
}

TEST_F(Luegen, yes_on_choosing_saves_that_record_and_the_summary_and_nothing_else) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    ASSERT_TRUE(tippe("Applikationsrate", "500"));
    const std::string Muster = Datei("input/Probe.app");
    Fragen_.erwarte_Anfang("Save changes?", "You modified pesticide", Knopf::Ja);
    waehle(Wirkstoff, "Second");
    EXPECT_EQ(Datei("input/Probe.app"), Muster);
    EXPECT_TRUE(z().Saetze[Applikation].Geaendert());
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nSecond\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(gesichert(), Namen{"Second.che"});
    EXPECT_THAT(z().Statuszeile.Text(), AllOf(HasSubstr("\"Second.che\""), Not(HasSubstr("All input data"))));
}

// Answers No to all and keeps the questions.
class Merker : public Rueckfrage {
public:
    Knopf frage(const Frage& f) override {
        Fragen.push_back(f);
        return f.Knoepfe.back();
    }
    std::vector<Frage> Fragen;
};

TEST_F(Luegen, only_the_question_that_writes_into_the_record_chosen_has_no_default_button) {
    Merker m;
    Sitzung s(Umgebung{&m, Wurzel_.string(), "", '.'});
    ASSERT_TRUE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    s.fuehre_aus<&Programmablauf::verlasse_Startseite>();
    s.fuehre_aus<&Listenwahl::aendere_Namen>(0, "Another");
    s.fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 1);
    s.fuehre_aus<&Listenwahl::aendere_Namen>(0, "Another again");
    s.fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 1);
    s.fuehre_aus<&Satzverwaltung::loesche>(Wirkstoff);
    ASSERT_EQ(m.Fragen.size(), 3U);
    EXPECT_TRUE(m.Fragen[0].ohne_Vorgabe);
    EXPECT_THAT(m.Fragen[0].Text, HasSubstr("\nYes writes these values to 'Second'; what 'Second' holds now goes to backup."));
    EXPECT_FALSE(m.Fragen[1].ohne_Vorgabe);
    EXPECT_THAT(m.Fragen[1].Text, HasSubstr("\n'Second'"));
    EXPECT_FALSE(m.Fragen[2].ohne_Vorgabe);
    EXPECT_EQ(m.Fragen[2].Text, "Do you really want to delete this record?\n'Second'");
}

}  // namespace
}  // namespace varnok
