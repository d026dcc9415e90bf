// The scenario editor without its window: the name of the soil, and which record the values belong to.

#include "session/saetze/szenarioprobe.h"

namespace varnok {
namespace {

using E = Szenarioentwurf;

TEST_F(Szenarioprobe, another_name_leaves_every_value_and_marks_the_simulation_only) {
    zweites_Szenario();
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    Sitzung& s = offen();
    EXPECT_EQ(Entwurf().Szenarien, (std::vector<std::string>{"Another", "Probe"}));
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "9");
    s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(0);
    EXPECT_EQ(Entwurf().Text(E::Bodendichte), "1.5");  // what was typed goes
    fertig();
    EXPECT_EQ(p().Bodendichte, 1.5);
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "Another");
    EXPECT_EQ(s_->Stand().Namen[Szenario], "Another");
    EXPECT_TRUE(s_->Stand().Saetze[Simulation].Geaendert());
    EXPECT_TRUE(s_->Stand().Simulation_markiert());
    EXPECT_FALSE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
}

TEST_F(Szenarioprobe, saved_under_another_name_the_scenario_that_was_there_is_kept_in_backup) {
    zweites_Szenario();
    const std::string alt = Datei("input/Another.sce");
    offen().fuehre_aus<&Szenarioeditor::waehle_Szenario>(0);
    fertig();
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Another.sce").find("Soil density (kg/L):\t1.5\r\n"), std::string::npos);
    std::vector<std::string> Gesicherte;
    for (const auto& f : std::filesystem::recursive_directory_iterator(Wurzel_ / "backup")) {
        if (f.is_regular_file()) Gesicherte.push_back(Datei(std::filesystem::relative(f.path(), Wurzel_).string()));
    }
    EXPECT_EQ(Gesicherte, std::vector<std::string>{alt});
}

TEST_F(Szenarioprobe, a_soil_name_is_copied_and_marks_the_scenario_without_a_run) {
    gestartet();
    const int Laeufe = s_->zeige<Diagrammsteuerung>().Zeichnung();
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, "Silt loam");
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Bodenszenario, "Silt loam");
    EXPECT_TRUE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Laeufe);
}

TEST_F(Szenarioprobe, a_soil_name_that_no_record_can_hold_is_refused_where_it_is_typed) {
    Sitzung& s = offen();
    EXPECT_TRUE(s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, "Loam \xC3\xA4"));  // a character of the code page
    Fragen_.erwarte("No valid input!",
                    "\"Loam \xE2\x89\xA5\" cannot be the name of a soil: "
                    "the records have no character \"\xE2\x89\xA5\"");
    EXPECT_FALSE(s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, "Loam \xE2\x89\xA5"));
    Fragen_.erwarte("No valid input!", "\"a\tb\" cannot be the name of a soil: it holds a control character");
    EXPECT_FALSE(s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, "a\tb"));
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Bodenszenario, "Loam \xC3\xA4");
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Probe.sce").find("Loam \xE4\r\n"), std::string::npos);
}

// A name read from a file can hold a tab; it can be corrected key by key.
TEST_F(Szenarioprobe, a_soil_name_with_a_tab_can_be_corrected) {
    std::string Bytes = Datei("input/Probe.sce");
    Bytes.replace(Bytes.find("Sandy loam"), 10, "a\tb");
    std::ofstream(Wurzel_ / "input/Probe.sce", std::ios::binary) << Bytes;
    Sitzung& s = offen();
    ASSERT_EQ(Entwurf().Text(E::Bodenszenario), "a\tb");
    EXPECT_TRUE(s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, "a\tbc"));
    EXPECT_TRUE(s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodenszenario, "abc"));
    fertig();
    EXPECT_EQ(s_->Stand().Vorgabe.Bodenszenario, "abc");
}

TEST_F(Szenarioprobe, the_same_name_chosen_again_keeps_what_was_typed) {
    zweites_Szenario();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "2");
    s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(1);
    EXPECT_EQ(Entwurf().Text(E::Bodendichte), "2");
}

// Temperature and mode are not among the fields that another name puts back.
TEST_F(Szenarioprobe, another_name_keeps_temperature_and_mode) {
    zweites_Szenario();
    klimadatei("Site A");
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Temperatur>(7);
    s.fuehre_aus<&Szenarioeditor::waehle_Klimabedingungen>(nach_Klimadatei);
    s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(0);
    EXPECT_EQ(Entwurf().Temperatur, 7);
    EXPECT_EQ(Entwurf().Klimamodus, nach_Klimadatei);
}

// Another program has deleted the file: the values on the screen are still those of that record.
TEST_F(Szenarioprobe, a_scenario_whose_file_is_gone_stays_selected) {
    zweites_Szenario();
    gestartet();
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    offen().fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "2");
    EXPECT_EQ(Entwurf().Szenarien[static_cast<std::size_t>(Entwurf().Szenario)], "Probe");
    fertig();
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "Probe");
    EXPECT_FALSE(s_->Stand().Saetze[Simulation].Geaendert());
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_NE(Datei("input/Probe.sce").find("Soil density (kg/L):\t2\r\n"), std::string::npos);
    EXPECT_NE(Datei("input/Another.sce").find("Soil density (kg/L):\t1.1\r\n"), std::string::npos);
}

// After a deletion the selector names a record that was not read; the editor shows that record, not the deleted one.
TEST_F(Szenarioprobe, a_scenario_not_read_yet_is_read_before_it_is_edited) {
    zweites_Szenario();
    gestartet();
    Fragen_.erwarte_Anfang("Delete record", "Do you really want to delete this record?", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    ASSERT_EQ(p().Bodendichte, 1.5);
    offen();
    EXPECT_EQ(Entwurf().Text(E::Bodendichte), "1.1");
    EXPECT_FALSE(s_->Stand().abgedeckt());
    fertig();
    EXPECT_EQ(p().Bodendichte, 1.1);
}

TEST_F(Szenarioprobe, without_a_scenario_the_last_one_is_preselected_and_done_reads_it) {
    zweites_Szenario();
    ohne_Szenario_geladen();
    offen();
    EXPECT_EQ(Entwurf().Szenarien[static_cast<std::size_t>(Entwurf().Szenario)], "Probe");
    s_->fuehre_aus<&Szenarioeditor::waehle_Szenario>(0);
    fertig();
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "Another");
    EXPECT_EQ(p().Bodendichte, 1.1);  // the file's, as nothing was typed
    EXPECT_TRUE(s_->Stand().Saetze[Simulation].Geaendert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, without_a_scenario_what_was_typed_stands_under_the_name_chosen) {
    zweites_Szenario();
    ohne_Szenario_geladen();
    Sitzung& s = offen();
    s.fuehre_aus<&Szenarioeditor::waehle_Szenario>(0);
    s.fuehre_aus<&Szenarioeditor::aendere>(E::Bodendichte, "2.2");
    fertig();
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "Another");
    EXPECT_EQ(p().Bodendichte, 2.2);
    EXPECT_TRUE(s_->Stand().Saetze[Szenario].Geaendert());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Szenarioprobe, cancel_without_a_scenario_selects_none) {
    ohne_Szenario_geladen();
    offen();
    abgebrochen();
    EXPECT_EQ(s_->Stand().Auswahl(Szenario), -1);
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "");
    EXPECT_EQ(s_->Stand().Namen[Szenario], "gone");  // as its simulation says
    EXPECT_TRUE(s_->Stand().abgedeckt());
}

}  // namespace
}  // namespace varnok
