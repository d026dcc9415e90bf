#include <chrono>
#include <fstream>

#include "records/einstellungen.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

using Start = Probesitzung;

constexpr const char* Einstellungsdatei = "VARNOK.ini";

TEST_F(Start, without_a_settings_file_writes_one_with_the_defaults) {
    nur_geladen();
    const auto e = zerlege_Einstellungen(Datei(Einstellungsdatei));
    ASSERT_TRUE(e);
    EXPECT_EQ(e->TWA.EU, TWA_Listen().EU);
    EXPECT_EQ(e->Werte.Projektpfad, Wurzel_.string());
}

TEST_F(Start, tips_are_on_where_there_is_no_settings_file_yet) {
    EXPECT_EQ(nur_geladen().Stand().Einstellung.Tips_anzeigen, 1);
    EXPECT_EQ(zerlege_Einstellungen(Datei(Einstellungsdatei))->Werte.Tips_anzeigen, 1);
    std::ofstream(Wurzel_ / Einstellungsdatei, std::ios::binary) << Einstellungen_als_Bytes({}, {});
    EXPECT_EQ(nur_geladen().Stand().Einstellung.Tips_anzeigen, 0);
}

TEST_F(Start, with_settings_that_lack_the_project_path_uses_the_program_folder) {
    std::string Bytes = Einstellungen_als_Bytes({}, {});
    Bytes.resize(Bytes.find("360") + 6);  // up to the line end of line 26
    std::ofstream(Wurzel_ / Einstellungsdatei, std::ios::binary) << Bytes;
    EXPECT_EQ(nur_geladen().Stand().Projektpfad, Wurzel_.string());
}

TEST_F(Start, with_garbage_in_the_settings_file_rewrites_it_from_the_defaults) {
    std::ofstream(Wurzel_ / Einstellungsdatei, std::ios::binary) << "garbage\nmore\n";
    nur_geladen();
    EXPECT_TRUE(zerlege_Einstellungen(Datei(Einstellungsdatei)));
}

TEST_F(Start, with_a_project_path_that_is_gone_uses_the_program_folder_and_says_so) {
    Einstellungen e;
    e.Projektpfad = (Wurzel_ / "no such folder").string();
    std::ofstream(Wurzel_ / Einstellungsdatei, std::ios::binary) << Einstellungen_als_Bytes(e, {});
    nur_geladen();
    EXPECT_EQ(s_->Stand().Projektpfad, Wurzel_.string());
    EXPECT_NE(s_->Stand().Statuszeile.Text().find("no such folder"), std::string::npos);
}

TEST_F(Start, without_a_simulation_offers_the_defaults_and_ends_on_no) {
    std::filesystem::remove(Wurzel_ / "input/Probe.vnk");
    Fragen_.erwarte("Data file missing", "Input files are missing. Should the default settings be loaded ", Knopf::Nein);
    Sitzung s({&Fragen_, Wurzel_.string(), "", '.'});
    EXPECT_FALSE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_FALSE(gibt_es("input/Programcheck.vnk"));
}

TEST_F(Start, without_a_simulation_restores_the_defaults_on_yes_and_ends) {
    std::filesystem::remove(Wurzel_ / "input/Probe.vnk");
    Fragen_.erwarte("Data file missing", "Input files are missing. Should the default settings be loaded ", Knopf::Ja)
        .erwarte("Default settings",
                 "The default parameters have been loaded and VARNOK will now quit.\n"
                 "The settings become available after the next program call.");
    Sitzung s({&Fragen_, Wurzel_.string(), VARNOK_DATENORDNER, '.'});
    EXPECT_FALSE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_TRUE(gibt_es("input/Programcheck.che"));
    EXPECT_EQ(Datei("input/Programcheck.vnk"), "Programcheck\r\nProgramcheck\r\nProgramcheck\r\nProgramcheck\r\n");
}

TEST_F(Start, with_a_missing_record_asks_by_the_name_without_extension) {
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    Fragen_.erwarte("Data file missing", "File Probe is missing. Should the default settings be loaded ", Knopf::Nein);
    Sitzung s({&Fragen_, Wurzel_.string(), "", '.'});
    EXPECT_FALSE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
}

TEST_F(Start, with_a_missing_record_and_others_to_choose_is_covered_and_says_which) {
    schreibe_Saetze("Second", Felder_);
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    gestartet();
    EXPECT_EQ(s_->Stand().Abdeckungswort(), "Record \"Probe.sce\" missing: choose one");
    EXPECT_NE(s_->Stand().Statuszeile.Text().find("\"Probe.sce\""), std::string::npos);
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), 0);
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, 0);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Start, after_a_rename_and_the_close_box_works_and_says_what_it_misses) {
    gestartet();
    ASSERT_TRUE(benenne_um(*s_, Wirkstoff, "Renamed", true));
    ASSERT_TRUE(s_->fuehre_aus<&Programmablauf::schliesse_Fenster>());
    EXPECT_TRUE(gibt_es("backup"));  // the combination that no file holds
    gestartet();
    EXPECT_EQ(s_->Stand().Abdeckungswort(), "Record \"Probe.che\" missing: choose one");
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Wirkstoff, 0);
    EXPECT_EQ(s_->Stand().gewaehlt(Wirkstoff), "Renamed");
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Start, esc_at_the_question_without_any_record_of_a_kind_is_no) {
    std::filesystem::remove(Wurzel_ / "input/Probe.sce");
    Fragen_.erwarte_Anfang("Data file missing", "", Knopf::nicht_jetzt);
    Sitzung s({&Fragen_, Wurzel_.string(), "", '.'});
    EXPECT_FALSE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
}

TEST_F(Start, with_a_short_summary_tells_and_takes_the_next_newest) {
    std::ofstream(Wurzel_ / "input/Torn.vnk", std::ios::binary) << "only one line\r\n";
    const auto spaeter = std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk") + std::chrono::seconds(5);
    std::filesystem::last_write_time(Wurzel_ / "input/Torn.vnk", spaeter);
    Fragen_.erwarte("Runtime error", "File Torn.vnk, line 2: the file ends before the name of the compound record");
    EXPECT_EQ(nur_geladen().Stand().Namen[Simulation], "Probe");
}

TEST_F(Start, before_ok_nothing_is_computed) {
    nur_geladen();
    EXPECT_FALSE(s_->Stand().Gestartet);
    EXPECT_EQ(s_->Stand().Werte(), Ergebnisse());
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_EQ(s_->Stand().Werte(), Ergebnisse());
}

TEST_F(Start, before_ok_the_tables_have_their_heads_and_zeros) {
    nur_geladen();
    for (const auto& Tabelle : {Ergebnisse_einer_Studie(s_->Stand(), 0), Ergebnisse_einer_Studie(s_->Stand(), 2)}) {
        ASSERT_EQ(Tabelle.size(), 13U);
        EXPECT_EQ(Tabelle[0][1], "     PECactual");
        EXPECT_EQ(Tabelle[1][1], "<0.0001");
        EXPECT_EQ(Tabelle[8][1], "<0.0001");
        EXPECT_EQ(Tabelle[8][2], "<0.0001      ");
    }
    const auto Zusammenfassung = Ergebnisse_aller_Studien(s_->Stand(), 1);
    ASSERT_EQ(Zusammenfassung.size(), 13U);
    EXPECT_EQ(Zusammenfassung[0][2], "Second soil");
    EXPECT_EQ(Zusammenfassung[8][2], "    <0.0001");
}

TEST_F(Start, ok_makes_the_first_run_and_leaves_no_mark) {
    gestartet();
    EXPECT_FLOAT_EQ(Maximum(), 1.3333334F);  // 1000 g/ha in 5 cm of 1.5 kg/L
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->Stand().Hinweis());
    for (const bool g : s_->Stand().Marken()) EXPECT_FALSE(g);
}

TEST_F(Start, shows_the_scheme_of_the_record) {
    Felder_.Berechnungsmodus = zwei_parallel;
    schreibe_Probe();
    EXPECT_EQ(nur_geladen().Stand().Vorgabe.Berechnungsmodus, 2);
}

}  // namespace
}  // namespace varnok
