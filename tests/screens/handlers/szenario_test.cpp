// The scenario editor without its window.

#include <fstream>

#include "records/satz.h"
#include "screens/handlers/probesitzung.h"

namespace varnok {
namespace {

using E = Szenarioentwurf;

class Szenarioprobe : public Probesitzung {
protected:
    Szenarioeditor& offen() {
        if (!s_) gestartet();
        EXPECT_TRUE(s_->oeffne_Szenarioeditor());
        return s_->Editor();
    }
    const E& Entwurf() { return s_->Editor().Entwurf(); }
    const Laufparameter& p() const { return s_->Stand().Parameter(); }
    bool fertig() { return s_->schliesse_Szenarioeditor(); }

    void klimadatei(const std::string& Name) {
        std::ofstream Strom(Wurzel_ / "input" / (Name + ".cli"), std::ios::binary);
        Strom << "Header\r\n";
        for (int Tag = 1; Tag <= 365; ++Tag) Strom << "1988001       1.0       2.0                20.0\r\n";
    }
    void zweites_Szenario() {
        Laufparameter andere = Parameter_;
        andere.Bodendichte = 1.1;
        Satz_schreiben(Projektordner(Wurzel_.string()), "Another", Szenario, andere, Felder_);
    }
};

TEST_F(Szenarioprobe, five_and_twenty_centimetres_are_presets_with_the_lists_hidden) {
    offen();
    EXPECT_EQ(Entwurf().Boden.Option, 0);
    EXPECT_EQ(Entwurf().Plateau.Option, 1);
    EXPECT_FALSE(Entwurf().Boden.Liste_sichtbar);
    EXPECT_FALSE(Entwurf().Plateau.Liste_sichtbar);
    EXPECT_EQ(Entwurf().Boden.Position, 49);
    EXPECT_EQ(Entwurf().Plateau.Position, 199);
    EXPECT_EQ(Entwurf().Boden.Eintraege.size(), 500U);
    EXPECT_EQ(Entwurf().Boden.Eintraege.front(), "0.1");
    EXPECT_EQ(Entwurf().Boden.Eintraege.back(), "50.0");
}

TEST_F(Szenarioprobe, two_and_a_half_centimetres_are_the_second_preset_at_position_24) {
    Parameter_.Bodentiefe = 2.5;
    schreibe_Probe();
    offen();
    EXPECT_EQ(Entwurf().Boden.Option, 1);
    EXPECT_EQ(Entwurf().Boden.Position, 24);
}

TEST_F(Szenarioprobe, a_preset_option_moves_the_list_and_individual_shows_it) {
    Szenarioeditor& e = offen();
    e.waehle_Bodentiefe_Option(1);
    EXPECT_EQ(Entwurf().Boden.Position, 24);
    e.waehle_Bodentiefe_Option(2);
    EXPECT_TRUE(Entwurf().Boden.Liste_sichtbar);
    EXPECT_EQ(Entwurf().Boden.Position, 24);
    e.waehle_Plateautiefe_Option(0);
    EXPECT_EQ(Entwurf().Plateau.Position, 49);
}

TEST_F(Szenarioprobe, the_list_and_the_options_keep_in_step) {
    Szenarioeditor& e = offen();
    e.waehle_Bodentiefe(30);
    EXPECT_EQ(Entwurf().Boden.Option, 2);
    EXPECT_TRUE(Entwurf().Boden.Liste_sichtbar);
    e.waehle_Bodentiefe(49);
    EXPECT_EQ(Entwurf().Boden.Option, 0);
    EXPECT_FALSE(Entwurf().Boden.Liste_sichtbar);
    e.waehle_Plateautiefe(49);
    EXPECT_EQ(Entwurf().Plateau.Option, 0);
    e.waehle_Plateautiefe(199);
    EXPECT_EQ(Entwurf().Plateau.Option, 1);
}

TEST_F(Szenarioprobe, a_list_left_at_a_preset_hides_and_switches_the_option_on) {
    Szenarioeditor& e = offen();
    e.waehle_Bodentiefe_Option(2);
    e.verlasse_Bodentiefe();
    EXPECT_EQ(Entwurf().Boden.Option, 0);
    EXPECT_FALSE(Entwurf().Boden.Liste_sichtbar);
}

TEST_F(Szenarioprobe, a_depth_and_a_temperature_outside_the_lists_are_entries_of_their_own_and_stay_untouched) {
    Parameter_.Bodentiefe = 2.54;
    Parameter_.Plateautiefe = 60;
    Parameter_.Szenariotemperatur = 45;
    schreibe_Probe();
    offen();
    EXPECT_EQ(Entwurf().Boden.Eintraege[static_cast<std::size_t>(Entwurf().Boden.Position)], "2.54");
    EXPECT_EQ(Entwurf().Plateau.Eintraege[static_cast<std::size_t>(Entwurf().Plateau.Position)], "60");
    EXPECT_EQ(Entwurf().Plateau.Option, 2);
    EXPECT_EQ(Entwurf().Temperaturen[static_cast<std::size_t>(Entwurf().Temperatur)], "45");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Bodentiefe, 2.54);
    EXPECT_EQ(p().Plateautiefe, 60);
    EXPECT_EQ(p().Szenariotemperatur, 45);
    EXPECT_FALSE(s_->Stand().Geaendert[3]);
}

TEST_F(Szenarioprobe, done_without_a_change_stores_nothing_and_runs_nothing) {
    gestartet();
    const int Laeufe = s_->Stand().Zeichnung;
    const Laufparameter vorher = p();
    offen();
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p(), vorher);
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe);
    EXPECT_FALSE(s_->Stand().Geaendert[3]);
    EXPECT_FALSE(s_->Stand().Geaendert[0]);
}

TEST_F(Szenarioprobe, changed_values_are_stored_mark_the_scenario_and_lead_to_one_run) {
    gestartet();
    const int Laeufe = s_->Stand().Zeichnung;
    Szenarioeditor& e = offen();
    e.aendere(E::Bodendichte, "1,25");
    e.aendere(E::Kohlenstoffgehalt, "2");
    e.aendere(E::Feldkapazitaet, "31");
    e.aendere(E::Welkepunkt, "11");
    e.waehle_Bodentiefe_Option(1);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Bodendichte, 1.25);
    EXPECT_EQ(p().Kohlenstoffgehalt, 2);
    EXPECT_EQ(p().Feldkapazitaet, 31);
    EXPECT_EQ(p().Welkepunkt, 11);
    EXPECT_EQ(p().Bodentiefe, 2.5);
    EXPECT_TRUE(s_->Stand().Geaendert[3]);
    EXPECT_FALSE(s_->Stand().Geaendert[0]);
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe + 1);
    EXPECT_FALSE(s_->Stand().abgedeckt);
}

TEST_F(Szenarioprobe, a_tillage_depth_below_the_soil_depth_is_told_and_corrected) {
    offen().waehle_Plateautiefe(24);
    Fragen_.erwarte("Problem!",
                    "A plateau depth was defined smaller than the current soil depth.\nThe problem was corrected.");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Plateautiefe, 5);
    EXPECT_TRUE(s_->Stand().Geaendert[3]);
}

TEST_F(Szenarioprobe, a_soil_depth_above_the_tillage_depth_takes_it_along_without_a_word) {
    offen().waehle_Bodentiefe(299);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Bodentiefe, 30);
    EXPECT_EQ(p().Plateautiefe, 30);
}

TEST_F(Szenarioprobe, a_text_without_a_number_counts_as_0_and_the_run_tells_of_it) {
    offen().aendere(E::Bodendichte, "heavy");
    Fragen_.erwarte_Anfang("Runtime error", "The calculation is not possible with these input data. Please correct!");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Bodendichte, 0);
    EXPECT_TRUE(s_->Stand().abgedeckt);
}

TEST_F(Szenarioprobe, another_name_leaves_every_value_and_marks_the_simulation_only) {
    zweites_Szenario();
    gestartet();
    const int Laeufe = s_->Stand().Zeichnung;
    Szenarioeditor& e = offen();
    EXPECT_EQ(Entwurf().Szenarien, (std::vector<std::string>{"Another", "Probe"}));
    e.aendere(E::Bodendichte, "9");
    e.waehle_Szenario(0);
    EXPECT_EQ(Entwurf().Texte[E::Bodendichte], "1.5");  // what was typed goes
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Bodendichte, 1.5);
    EXPECT_EQ(s_->Stand().gewaehlt(3), "Another");
    EXPECT_EQ(s_->Stand().Felder().Aktuelle_Dateinamen[3], "Another");
    EXPECT_TRUE(s_->Stand().Geaendert[0]);
    EXPECT_TRUE(s_->Stand().Simulation_markiert);
    EXPECT_FALSE(s_->Stand().Geaendert[3]);
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe);
}

TEST_F(Szenarioprobe, saved_under_another_name_the_scenario_that_was_there_is_kept_in_backup) {
    zweites_Szenario();
    const std::string alt = Datei("input/Another.sce");
    offen().waehle_Szenario(0);
    EXPECT_TRUE(fertig());
    s_->Speichern();
    EXPECT_NE(Datei("input/Another.sce").find("Soil density (kg/L):\t1.5\r\n"), std::string::npos);
    std::vector<std::string> Gesicherte;
    for (const auto& f : std::filesystem::recursive_directory_iterator(Wurzel_ / "backup")) {
        if (f.is_regular_file()) Gesicherte.push_back(Datei(std::filesystem::relative(f.path(), Wurzel_).string()));
    }
    EXPECT_EQ(Gesicherte, std::vector<std::string>{alt});
}

TEST_F(Szenarioprobe, cancel_changes_nothing) {
    zweites_Szenario();
    Szenarioeditor& e = offen();
    const Laufparameter vorher = p();
    e.aendere(E::Bodendichte, "9");
    e.waehle_Szenario(0);
    e.waehle_Klimabedingungen(1);
    e.verwirf();
    EXPECT_EQ(p(), vorher);
    EXPECT_EQ(s_->Stand().Felder().Aktuelle_Dateinamen[3], "Probe");
    EXPECT_EQ(s_->Stand().gewaehlt(3), "Probe");
    EXPECT_FALSE(s_->Stand().veraltet);
}

TEST_F(Szenarioprobe, another_temperature_alone_starts_no_run_and_shows_the_hint) {
    gestartet();
    const int Laeufe = s_->Stand().Zeichnung;
    offen().waehle_Temperatur(10);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Szenariotemperatur, 10);
    EXPECT_EQ(s_->Stand().Felder().Klimaszenario, "10 \xC2\xB0""C constant");
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe);
    EXPECT_TRUE(s_->Stand().Hinweis);
    EXPECT_FALSE(s_->Stand().Geaendert[3]);
}

TEST_F(Szenarioprobe, a_chosen_climate_file_marks_the_scenario_and_runs) {
    klimadatei("Site A");
    klimadatei("Site B");
    gestartet();
    const int Laeufe = s_->Stand().Zeichnung;
    Szenarioeditor& e = offen();
    EXPECT_EQ(Entwurf().Klima, 1);  // none is equal: the search ends at the last entry
    e.waehle_Klimabedingungen(1);
    e.waehle_Klimaszenario(0);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(p().Klimamodus, 1);
    EXPECT_EQ(s_->Stand().Felder().Klimaszenario, "Site A");
    EXPECT_TRUE(s_->Stand().Geaendert[3]);
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe + 1);
}

TEST_F(Szenarioprobe, a_preselected_climate_file_is_stored_with_the_variable_mode_only_and_marks_nothing) {
    klimadatei("Site A");
    gestartet();
    offen();
    EXPECT_TRUE(fertig());
    EXPECT_EQ(s_->Stand().Felder().Klimaszenario, "20 \xC2\xB0""C constant");
    offen().waehle_Klimabedingungen(1);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(s_->Stand().Felder().Klimaszenario, "Site A");
    EXPECT_FALSE(s_->Stand().Geaendert[3]);
    EXPECT_TRUE(s_->Stand().Hinweis);
}

TEST_F(Szenarioprobe, without_a_climate_file_the_variable_mode_cannot_be_chosen) {
    offen();
    EXPECT_FALSE(s_->Editor().darf_variabel());
    klimadatei("Site A");
    offen();
    EXPECT_TRUE(s_->Editor().darf_variabel());
}

TEST_F(Szenarioprobe, a_missing_climate_file_asks_for_the_editor_once_and_done_runs_anew) {
    Parameter_.Klimamodus = 1;
    Felder_.Klimaszenario = "gone";
    schreibe_Probe();
    klimadatei("Site A");
    Fragen_.erwarte_Anfang("Data file missing", "");
    gestartet();
    EXPECT_TRUE(s_->Stand().Szenarioeditor_faellig);
    EXPECT_TRUE(s_->Stand().abgedeckt);
    const int Laeufe = s_->Stand().Zeichnung;
    offen();
    EXPECT_FALSE(s_->Stand().Szenarioeditor_faellig);
    s_->Editor().verwirf();
    EXPECT_TRUE(s_->Stand().abgedeckt);
    offen().waehle_Klimabedingungen(0);
    EXPECT_TRUE(fertig());
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe + 1);
    EXPECT_FALSE(s_->Stand().abgedeckt);
}

TEST_F(Szenarioprobe, a_soil_name_is_copied_and_marks_the_scenario_without_a_run) {
    gestartet();
    const int Laeufe = s_->Stand().Zeichnung;
    offen().aendere(E::Bodenszenario, "Silt loam");
    EXPECT_TRUE(fertig());
    EXPECT_EQ(s_->Stand().Felder().Bodenszenario, "Silt loam");
    EXPECT_TRUE(s_->Stand().Geaendert[3]);
    EXPECT_EQ(s_->Stand().Zeichnung, Laeufe);
}

TEST_F(Szenarioprobe, a_soil_name_that_no_record_can_hold_keeps_the_editor_open_and_stores_nothing) {
    Szenarioeditor& e = offen();
    e.aendere(E::Bodenszenario, "a\tb");
    e.aendere(E::Bodendichte, "9");
    Fragen_.erwarte("Runtime error", "\"a\tb\" cannot be the name of a soil: it holds a control character");
    EXPECT_FALSE(fertig());
    EXPECT_EQ(p().Bodendichte, 1.5);
    EXPECT_EQ(s_->Stand().Felder().Bodenszenario, "Sandy loam");
}

}  // namespace
}  // namespace varnok
