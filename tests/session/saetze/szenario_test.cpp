// The scenario editor without its window: values, depths, "Done" and "Cancel".

#include <utility>

#include "session/saetze/szenarioprobe.h"

namespace varnok {
namespace {

using E = Szenarioentwurf;

TEST_F(Szenarioprobe, fields_know_a_value_outside_their_range) {
    Parameter_.Bodendichte = 0.045;
    Parameter_.Feldkapazitaet = 250;
    schreibe_Probe();
    offen();
    const auto& Editor = s_->zeige<Szenarioeditor>();
    EXPECT_TRUE(Editor.ausserhalb(Szenarioentwurf::Bodendichte));
    EXPECT_TRUE(Editor.ausserhalb(Szenarioentwurf::Feldkapazitaet));
    EXPECT_FALSE(Editor.ausserhalb(Szenarioentwurf::Kohlenstoffgehalt));
    EXPECT_FALSE(Editor.ausserhalb(Szenarioentwurf::Bodenszenario));
    s_->fuehre_aus<&Szenarioeditor::aendere>(Szenarioentwurf::Bodendichte, "1.5");
    EXPECT_FALSE(Editor.ausserhalb(Szenarioentwurf::Bodendichte));
}

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
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Boden, 1);
    EXPECT_EQ(Entwurf().Boden.Position, 24);
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Boden, 2);
    EXPECT_TRUE(Entwurf().Boden.Liste_sichtbar);
    EXPECT_EQ(Entwurf().Boden.Position, 24);
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Plateau, 0);
    EXPECT_EQ(Entwurf().Plateau.Position, 49);
}

TEST_F(Szenarioprobe, the_list_and_the_options_keep_in_step) {
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 30);
    EXPECT_EQ(Entwurf().Boden.Option, 2);
    EXPECT_TRUE(Entwurf().Boden.Liste_sichtbar);
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 49);
    EXPECT_EQ(Entwurf().Boden.Option, 0);
    EXPECT_FALSE(Entwurf().Boden.Liste_sichtbar);
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 49);
    EXPECT_EQ(Entwurf().Plateau.Option, 0);
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 199);
    EXPECT_EQ(Entwurf().Plateau.Option, 1);
}

TEST_F(Szenarioprobe, a_list_left_at_a_preset_hides_and_switches_the_option_on) {
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Boden, 2);
    s.fuehre_aus<&Szenarioeditor::verlasse>(&Szenarioentwurf::Boden);
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
    fertig();
    EXPECT_EQ(p().Bodentiefe, 2.54);
    EXPECT_EQ(p().Plateautiefe, 60);
    EXPECT_EQ(p().Szenariotemperatur, 45);
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
}

TEST_F(Szenarioprobe, done_without_a_change_stores_nothing_and_runs_nothing) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const Laufparameter vorher = p();
    offen();
    fertig();
    EXPECT_EQ(p(), vorher);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(s_->Stand().Saetze[Simulation].Geaendert());
}

TEST_F(Szenarioprobe, changed_values_are_stored_mark_the_scenario_and_lead_to_one_run) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "1,25");
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Kohlenstoffgehalt, "2");
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Feldkapazitaet, "31");
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Welkepunkt, "11");
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Boden, 1);
    fertig();
    EXPECT_EQ(p().Bodendichte, 1.25);
    EXPECT_EQ(p().Kohlenstoffgehalt, 2);
    EXPECT_EQ(p().Feldkapazitaet, 31);
    EXPECT_EQ(p().Welkepunkt, 11);
    EXPECT_EQ(p().Bodentiefe, 2.5);
    EXPECT_TRUE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(s_->Stand().Saetze[Simulation].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, a_tillage_depth_below_the_soil_depth_is_told_and_corrected) {
    offen().fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 24);
    Fragen_.erwarte("Problem!", "A plateau depth was defined smaller than the current soil depth.\nThe problem was corrected.");
    fertig();
    EXPECT_EQ(p().Plateautiefe, 5);
    EXPECT_TRUE(s_->Stand().Saetze[Szenario].Geaendert());
}

TEST_F(Szenarioprobe, a_soil_depth_above_the_tillage_depth_takes_it_along_without_a_word) {
    offen().fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 299);
    fertig();
    EXPECT_EQ(p().Bodentiefe, 30);
    EXPECT_EQ(p().Plateautiefe, 30);
}

TEST_F(Szenarioprobe, a_text_without_a_number_counts_as_0_and_the_run_tells_of_it) {
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "heavy");
    Fragen_.erwarte_Anfang("Runtime error", "The calculation is not possible with these input data. Please correct!");
    fertig();
    EXPECT_EQ(p().Bodendichte, 0);
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, cancel_changes_nothing) {
    zweites_Szenario();
    Sitzung& s = offen();
    const Laufparameter vorher = p();
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "9");
    s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(0);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    abgebrochen();
    EXPECT_EQ(p(), vorher);
    EXPECT_EQ(s_->Stand().Namen[Szenario], "Probe");
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "Probe");
    EXPECT_FALSE(s_->Stand().Hinweis());
}

// Every depth of the list is found at its place, whatever its binary form.
TEST_F(Szenarioprobe, each_depth_of_the_list_is_found_at_its_position) {
    gestartet();
    for (int Platz = 0; Platz < 500; Platz += Platz % 50 == 49 ? 1 : 7) {
        offen().fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, Platz);
        s_->fuehre_aus<&Szenarioeditor::uebernimm>();
        offen();
        ASSERT_EQ(Entwurf().Boden.Position, Platz);
        ASSERT_EQ(Entwurf().Boden.Eintraege.size(), 500U);
    }
}

// A depth between two entries is neither of them, on whichever side half a step rounds.
TEST_F(Szenarioprobe, a_depth_half_way_between_two_entries_is_an_entry_of_its_own) {
    const std::pair<double, const char*> Tiefen[] = {{2.55, "2.55"}, {2.65, "2.65"}, {0.05, "0.05"}, {50.05, "50.05"}};
    for (const auto& [Tiefe, Text] : Tiefen) {
        Parameter_.Bodentiefe = Tiefe;
        Parameter_.Plateautiefe = 60;
        schreibe_Probe();
        gestartet();
        offen();
        EXPECT_EQ(Entwurf().Boden.Position, 500);
        EXPECT_EQ(Entwurf().Boden.Eintraege.back(), Text);
        EXPECT_EQ(Entwurf().Boden.Option, 2);
        abgebrochen();
    }
}

TEST_F(Szenarioprobe, an_entry_of_its_own_can_be_left_and_taken_again) {
    Parameter_.Bodentiefe = 2.54;
    Parameter_.Szenariotemperatur = 45;
    schreibe_Probe();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Boden, 0);
    s.fuehre_aus<&Szenarioeditor::waehle_Temperatur>(7);
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 500);
    s.fuehre_aus<&Szenarioeditor::waehle_Temperatur>(41);
    fertig();
    EXPECT_EQ(p().Bodentiefe, 2.54);
    EXPECT_EQ(p().Szenariotemperatur, 45);
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(s_->Stand().Hinweis());
}

// Keys that walk through the closed list pass the presets without losing it.
TEST_F(Szenarioprobe, keys_walk_past_a_preset_and_the_list_stays_until_it_is_left) {
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 48);
    s.fuehre_aus<&Szenarioeditor::blaettere>(&Szenarioentwurf::Boden, 49);
    EXPECT_EQ(Entwurf().Boden.Option, 0);
    EXPECT_TRUE(Entwurf().Boden.Liste_sichtbar);
    s.fuehre_aus<&Szenarioeditor::blaettere>(&Szenarioentwurf::Boden, 50);
    EXPECT_EQ(Entwurf().Boden.Option, 2);
    s.fuehre_aus<&Szenarioeditor::blaettere>(&Szenarioentwurf::Boden, 49);
    s.fuehre_aus<&Szenarioeditor::verlasse>(&Szenarioentwurf::Boden);
    EXPECT_FALSE(Entwurf().Boden.Liste_sichtbar);
    s.fuehre_aus<&Szenarioeditor::blaettere>(&Szenarioentwurf::Plateau, 199);
    EXPECT_EQ(Entwurf().Plateau.Option, 1);
    EXPECT_TRUE(Entwurf().Plateau.Liste_sichtbar);
    s.fuehre_aus<&Szenarioeditor::verlasse>(&Szenarioentwurf::Plateau);
    EXPECT_FALSE(Entwurf().Plateau.Liste_sichtbar);
}

TEST_F(Szenarioprobe, a_list_left_at_another_depth_stays) {
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 30);
    s.fuehre_aus<&Szenarioeditor::verlasse>(&Szenarioentwurf::Boden);
    EXPECT_EQ(Entwurf().Boden.Option, 2);
    EXPECT_TRUE(Entwurf().Boden.Liste_sichtbar);
}

// The record may hold such a pair; nothing was typed, so nothing is told.
TEST_F(Szenarioprobe, a_tillage_depth_too_small_in_the_record_is_corrected_by_done_without_a_word) {
    Parameter_.Plateautiefe = 2.5;
    schreibe_Probe();
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen();
    fertig();
    EXPECT_EQ(p().Plateautiefe, 5);
    EXPECT_TRUE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
}

TEST_F(Szenarioprobe, both_depths_made_smaller_are_no_problem) {
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Option>(&Szenarioentwurf::Boden, 1);
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 29);
    fertig();
    EXPECT_EQ(p().Bodentiefe, 2.5);
    EXPECT_EQ(p().Plateautiefe, 3);
}

TEST_F(Szenarioprobe, the_message_about_the_tillage_depth_carries_the_information_symbol) {
    class Merker : public Rueckfrage {
    public:
        Knopf frage(const Frage& f) override {
            letzte = f;
            return Knopf::OK;
        }
        Frage letzte;
    };
    Merker Zuhoerer;
    s_ = std::make_unique<Sitzung>(Umgebung{&Zuhoerer, Wurzel_.string(), "", '.'});
    ASSERT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    offen().fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Plateau, 24);
    fertig();
    EXPECT_EQ(Zuhoerer.letzte.Titel, "Problem!");
    EXPECT_EQ(Zuhoerer.letzte.Zeichen, Symbol::Hinweis);
    EXPECT_EQ(Zuhoerer.letzte.Knoepfe, std::vector<Knopf>{Knopf::OK});
}

// "1.50" is the same number, "1.5" with a unit behind it too.
TEST_F(Szenarioprobe, another_text_for_the_same_number_changes_nothing) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "1,50");
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Feldkapazitaet, "30 Vol%");
    fertig();
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
}

// 15 digits do not tell the whole of this density.
TEST_F(Szenarioprobe, a_value_that_was_not_touched_keeps_its_last_bit) {
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "1");
    fertig();
    Parameter_.Bodendichte = 4.0 / 3;
    schreibe_Probe();
    gestartet();
    const double genau = p().Bodendichte;
    offen();
    fertig();
    EXPECT_EQ(p().Bodendichte, genau);
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
}

TEST_F(Szenarioprobe, an_impossible_value_is_stored_told_and_can_be_corrected) {
    gestartet();
    for (const char* Text : {"0", "-1", "", "1E999"}) {
        offen().fuehre_aus<&Szenarioeditor::aendere>(E::Feldkapazitaet, Text);
        Fragen_.erwarte_Anfang("Runtime error", "The calculation is not possible with these input data. Please correct!");
        fertig();
        EXPECT_TRUE(s_->Stand().abgedeckt()) << Text;
        offen().fuehre_aus<&Szenarioeditor::aendere>(E::Feldkapazitaet, "30");
        fertig();
        EXPECT_FALSE(s_->Stand().abgedeckt()) << Text;
    }
}

TEST_F(Szenarioprobe, a_comma_region_reads_and_writes_commas) {
    s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Wurzel_.string(), "", ','});
    ASSERT_TRUE(s_->fuehre_aus<&Programmablauf::oeffne_Projekt>());
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    Sitzung& s = offen();
    EXPECT_EQ(Entwurf().Text(E::Bodendichte), "1,5");
    EXPECT_EQ(Entwurf().Boden.Eintraege[24], "2,5");
    s.fuehre_aus<&Szenarioeditor::waehle_Tiefe>(&Szenarioentwurf::Boden, 26);
    fertig();
    EXPECT_EQ(p().Bodentiefe, 2.7);
    EXPECT_EQ(p().Bodendichte, 1.5);
}

TEST_F(Szenarioprobe, a_changed_value_runs_every_study_of_the_summary) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    const float vorher = Maximum(1);
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "3");
    fertig();
    EXPECT_FLOAT_EQ(Maximum(0), Maximum(1));
    EXPECT_FLOAT_EQ(Maximum(1), vorher / 2);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

// "Done" stores, but what is calculated waits until the dialog has gone.
TEST_F(Szenarioprobe, the_run_comes_after_the_dialog_has_closed) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "2");
    s_->fuehre_aus<&Szenarioeditor::uebernimm>();
    EXPECT_EQ(p().Bodendichte, 2);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
    s_->fuehre_aus<&Szenarioeditor::schliesse>();
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe + 1);
}

TEST_F(Szenarioprobe, the_dialog_writes_no_file) {
    const std::string vorher = Datei("input/Probe.sce");
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "2");
    fertig();
    EXPECT_EQ(Datei("input/Probe.sce"), vorher);
}

}  // namespace
}  // namespace varnok
