// Choosing and saving records and simulations on the main screen.

#include <algorithm>
#include <chrono>
#include <fstream>

#include "records/satz.h"
#include "records/simulation.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Satzprobe : public Probesitzung {
protected:
    // A second simulation "Second" with records of its own; older than "Probe".
    Satzprobe() {
        Eingabe e = Felder_;
        e.Parameter.Bodendichte = 3;
        e.Applikationsrate = "500";
        e.Name_Wirkstoff = "Other parent";
        schreibe_Saetze("Second", e);
        simulation("Second", "Second", "Second", "Second");
    }

    void simulation(const std::string& Name, const std::string& Stoff, const std::string& Muster, const std::string& Boden) {
        schreibe_Simulation(Projektordner(Wurzel_.string()), Name, {Name, {"", Stoff, Muster, Boden}});
        const auto Pfad = Wurzel_ / "input" / (Name + ".vnk");
        std::filesystem::last_write_time(Pfad,
                                         std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(1));
    }

    int Platz(std::size_t Art, const std::string& Name) const {
        const auto& Liste = s_->Stand().Listen[Art];
        return static_cast<int>(std::find(Liste.begin(), Liste.end(), Name) - Liste.begin());
    }
};

TEST_F(Satzprobe, a_simulation_brings_its_description_its_records_and_one_run) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(0, "Second"));
    EXPECT_EQ(s_->Stand().Vorgabe.Beschreibung, "Second");
    EXPECT_EQ(s_->Stand().Vorgabe.Name_Wirkstoff, "Other parent");
    EXPECT_EQ(s_->Stand().Parameter().Bodendichte, 3);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(s_->Stand().Saetze[Simulation].Geaendert());
    EXPECT_FALSE(s_->Stand().Simulation_markiert());
}

TEST_F(Satzprobe, a_simulation_with_a_missing_record_stays_covered_until_one_is_picked) {
    simulation("Torn", "Second", "no such record", "Second");
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(0, "Torn"));
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_EQ(s_->Stand().Auswahl(Applikation), -1);
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Applikation, Platz(2, "Second"));
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_EQ(s_->Stand().Parameter().Bodendichte, 3);  // the scenario behind the missing record was read, too
}

TEST_F(Satzprobe, a_record_name_that_differs_only_in_case_is_not_found) {
    simulation("Torn", "SECOND", "Second", "Second");
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(0, "Torn"));
    EXPECT_EQ(s_->Stand().Auswahl(Wirkstoff), -1);
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Satzprobe, refresh_with_an_empty_selector_says_which_record_is_missing) {
    simulation("Torn", "Second", "Second", "no such record");
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(0, "Torn"));
    Fragen_.erwarte("Record not set", "Scenario record not set. Please select!");
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Satzprobe, a_short_summary_is_told_and_the_inputs_stay) {
    std::ofstream(Wurzel_ / "input/Torn.vnk", std::ios::binary) << "text\r\nProbe\r\n";
    std::filesystem::last_write_time(Wurzel_ / "input/Torn.vnk",
                                     std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(2));
    gestartet();
    Fragen_.erwarte("Runtime error", "File Torn.vnk, line 3: the file ends before the name of the application pattern record");
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(0, "Torn"));
    EXPECT_EQ(s_->Stand().Namen[Simulation], "Probe");
    EXPECT_EQ(s_->Stand().Vorgabe.Name_Wirkstoff, "Parent P");
}

TEST_F(Satzprobe, a_compound_record_that_cannot_be_used_leaves_the_inputs_as_they_were) {
    std::string Bytes = Datei("input/Second.che");
    Bytes.replace(Bytes.find("Unit:\t0"), 7, "Unit:\t7");
    std::ofstream(Wurzel_ / "input/Second.che", std::ios::binary) << Bytes;
    gestartet();
    Fragen_.erwarte_Anfang("Runtime error", "File Second.che, line 2");
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, Platz(1, "Second"));
    EXPECT_EQ(s_->Stand().Vorgabe.Name_Wirkstoff, "Parent P");
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Satzprobe, another_record_marks_the_simulation_and_runs) {
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, Platz(3, "Second"));
    EXPECT_TRUE(s_->Stand().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(s_->Stand().Simulation_markiert());
    EXPECT_FLOAT_EQ(Maximum(), 0.6666667F);  // twice the density
}

TEST_F(Satzprobe, yes_on_choosing_stores_the_values_left_in_the_record_chosen) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const std::string links = Datei("input/Probe.che");
    Fragen_.erwarte("Save changes?",
                    "You modified pesticide input data!  Do you want to save the changes in your data base?\n"
                    "Yes writes these values to 'Second'; what 'Second' holds now goes to backup.",
                    Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, Platz(1, "Second"));
    EXPECT_EQ(Datei("input/Probe.che"), links);
    EXPECT_EQ(s_->Stand().Vorgabe.Name_Wirkstoff, "Parent P");
    EXPECT_EQ(s_->zeige<Feldeingabe>().Text(Feld("S_DT50_0")), "12");
}

TEST_F(Satzprobe, saving_writes_all_four_files_and_clears_the_marks_of_the_records) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Listenwahl::waehle_Tag>(9);
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("Another description");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.vnk"), "Another description\r\nProbe\r\nProbe\r\nProbe\r\n");
    for (const Satzart t : Eingabearten) EXPECT_FALSE(s_->Stand().Saetze[t].Geaendert());
    Eingabe e;
    Ansicht a;
    Satz_lesen(Projektordner(Wurzel_.string()), "Probe", Applikation, e, a);
    EXPECT_EQ(e.App_Tag, 9);
}

TEST_F(Satzprobe, saving_with_an_empty_selector_writes_nothing) {
    simulation("Torn", "Second", "Second", "no such record");
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(Platz(0, "Torn"));
    const std::string vorher = Datei("input/Torn.vnk");
    Fragen_.erwarte("Record not set", "Scenario record not set. Please select!");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Torn.vnk"), vorher);
    EXPECT_FALSE(gibt_es("input/.sce"));
}

TEST_F(Satzprobe, a_line_break_in_the_description_becomes_a_blank) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::oeffne>();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("two\nlines");
    EXPECT_EQ(s_->Stand().Vorgabe.Beschreibung, "two lines");
    EXPECT_TRUE(s_->Stand().Saetze[Simulation].Geaendert());
}

TEST_F(Satzprobe, esc_brings_the_old_description_back_and_locks_it) {
    gestartet();
    s_->fuehre_aus<&Beschreibungseingabe::oeffne>();
    s_->fuehre_aus<&Beschreibungseingabe::aendere>("typed by mistake");
    s_->fuehre_aus<&Beschreibungseingabe::nimm_zurueck>();
    EXPECT_EQ(s_->Stand().Vorgabe.Beschreibung, "A trial");
    EXPECT_FALSE(s_->zeige<Beschreibungseingabe>().offen());
}

TEST_F(Satzprobe, a_character_without_a_place_in_the_file_is_told_on_saving_and_the_old_file_stays) {
    gestartet();
    const std::string vorher = Datei("input/Probe.che");
    s_->fuehre_aus<&Listenwahl::aendere_Namen>(0, "Δ-compound");
    Fragen_.erwarte_Anfang("Runtime error", "");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.che"), vorher);
}

TEST_F(Satzprobe, a_climate_file_that_is_missing_is_told_and_the_results_stay_covered) {
    gestartet();
    Eingabe e = Felder_;
    e.Parameter.Klimamodus = nach_Klimadatei;
    e.Klimaszenario = "no such climate";
    Satz_schreiben(Projektordner(Wurzel_.string()), "Second", Szenario, e, Sicht_);
    Fragen_.erwarte("Data file missing", "Cannot load climate data file. Please correct!");
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, Platz(3, "Second"));
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_TRUE(s_->Stand().Hinweis());
}

TEST_F(Satzprobe, a_fault_of_the_arithmetic_is_one_box_and_what_was_entered_stays) {
    Eingabe e = Felder_;
    e.Parameter.Bodendichte = 0;
    Satz_schreiben(Projektordner(Wurzel_.string()), "Second", Szenario, e, Sicht_);
    gestartet();
    Fragen_.erwarte("Runtime error",
                    "The calculation is not possible with these input data. Please correct! (Soil density (kg/L) = 0)");
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, Platz(3, "Second"));
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_EQ(s_->Stand().Auswahl(Szenario), Platz(3, "Second"));
}

}  // namespace
}  // namespace varnok
