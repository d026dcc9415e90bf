// The project path of the options: what goes there at once, what only after the next start.

#include <fstream>
#include <utility>

#include "records/einstellungen.h"
#include "records/satz.h"
#include "session/programm/optionsprobe.h"

namespace varnok {
namespace {

constexpr const char* Vorgaben_fehlen = "Input files are missing. Should the default settings be loaded ";
constexpr const char* Vorgaben_geladen =
    "The default parameters have been loaded and VARNOK will now quit.\n"
    "The settings become available after the next program call.";

using Projektpfad = Optionsprobe;

TEST_F(Projektpfad, a_new_project_path_gets_both_folders_and_the_selectors_stay) {
    gestartet();
    const auto Listen = s_->Stand().Listen;
    waehle_Projekt("new");
    EXPECT_TRUE(std::filesystem::is_directory(Wurzel_ / "new/output"));
    EXPECT_TRUE(std::filesystem::is_directory(Wurzel_ / "new/input"));
    EXPECT_EQ(Dateizahl("new/input"), 0U);
    EXPECT_EQ(s_->Stand().Projektpfad, (Wurzel_ / "new").string());
    EXPECT_EQ(s_->Stand().Listen, Listen);
    EXPECT_FALSE(irgendetwas_geaendert());
    EXPECT_NE(s_->Stand().Statuszeile.Text().find((Wurzel_ / "new").string()), std::string::npos);
}

TEST_F(Projektpfad, folders_that_are_there_are_kept_in_whatever_case) {
    gestartet();
    std::filesystem::create_directories(Wurzel_ / "new/INPUT");
    std::ofstream(Wurzel_ / "new/INPUT/kept.che") << "kept";
    waehle_Projekt("new");
    EXPECT_TRUE(gibt_es("new/INPUT/kept.che"));
    EXPECT_FALSE(gibt_es("new/input"));
    EXPECT_TRUE(gibt_es("new/output"));
}

TEST_F(Projektpfad, a_folder_that_cannot_be_made_is_not_reported) {
    gestartet();
    std::filesystem::create_directory(Wurzel_ / "new");
    std::ofstream(Wurzel_ / "new/input") << "a file in the folder's place";
    waehle_Projekt("new");
    EXPECT_EQ(s_->Stand().Projektpfad, (Wurzel_ / "new").string());
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Projektpfad, where_no_output_can_be_written_the_run_says_so_once_and_the_results_stand) {
    gestartet();
    std::filesystem::create_directory(Wurzel_ / "new");
    std::ofstream(Wurzel_ / "new/output") << "a file in the folder's place";
    Fragen_.erwarte("Runtime error", "Cannot make the folder \"" + (Wurzel_ / "new/output").string() + "\": Not a directory");
    waehle_Projekt("new");
    EXPECT_FALSE(s_->Stand().abgedeckt());
    bestaetige_unveraendert();
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Projektpfad, output_goes_to_the_new_project_at_once) {
    gestartet();
    const std::string Reihe = "output/Detailed Results - Parent P.tab";
    ASSERT_TRUE(gibt_es(Reihe));
    std::filesystem::remove_all(Wurzel_ / "output");
    waehle_Projekt("new");
    EXPECT_TRUE(gibt_es("new/" + Reihe));
    s_->fuehre_aus<&Berichtssteuerung::erstelle>();
    EXPECT_TRUE(gibt_es("new/output/A trial.rtf"));
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    EXPECT_TRUE(gibt_es("new/Diagram.txt"));
    EXPECT_FALSE(gibt_es("output"));
    EXPECT_FALSE(gibt_es("Diagram.txt"));
}

TEST_F(Projektpfad, records_climate_and_backup_stay_with_the_old_project) {
    gestartet();
    Eingabe e = Felder_;
    e.Parameter.Klimamodus = nach_Klimadatei;
    e.Klimaszenario = "Temperate site";
    std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input/Temperate site.cli", Wurzel_ / "input");
    Satz_schreiben(Projektordner(Wurzel_.string()), "Weather", Szenario, e, Sicht_);
    nur_geladen().fuehre_aus<&Programmablauf::verlasse_Startseite>();
    waehle_Projekt("new");
    s_->fuehre_aus<&Satzverwaltung::waehle_Satz>(Szenario, 1);
    EXPECT_EQ(s_->Stand().gewaehlt(Szenario), "Weather");
    EXPECT_FALSE(s_->Stand().abgedeckt());
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nWeather\r\n");
    Fragen_.erwarte_Anfang("Delete record", "Do you really want to delete this record?", Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::loesche>(Szenario);
    EXPECT_FALSE(gibt_es("input/Weather.sce"));
    EXPECT_TRUE(gibt_es("backup"));
    EXPECT_FALSE(gibt_es("new/backup"));
    EXPECT_EQ(Dateizahl("new/input"), 0U);
}

TEST_F(Projektpfad, the_settings_file_stays_beside_the_program_and_names_the_new_path) {
    gestartet();
    waehle_Projekt("new");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_FALSE(gibt_es("new/VARNOK.ini"));
    EXPECT_EQ(zerlege_Einstellungen(Datei("VARNOK.ini"))->Werte.Projektpfad, (Wurzel_ / "new").string());
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(Dateizahl("new/input"), 0U);
}

// A name that no code page has, as a folder may carry it.
TEST_F(Projektpfad, any_name_of_a_folder_comes_back_from_the_settings_file) {
    gestartet();
    waehle_Projekt("Δ 土 µ");
    s_->fuehre_aus<&Programmablauf::beende>();
    EXPECT_EQ(zerlege_Einstellungen(Datei("VARNOK.ini"))->Werte.Projektpfad, (Wurzel_ / "Δ 土 µ").string());
}

TEST_F(Projektpfad, what_is_no_folder_is_refused_and_nothing_is_changed) {
    gestartet();
    const int Zeichnung = s_->zeige<Diagrammsteuerung>().Zeichnung();
    const std::string hier = Wurzel_.string() + "/";
    for (const std::string& Pfad : {hier + "no such folder", hier + "input/Probe.che", std::string()}) {
        Optionsentwurf o = s_->fuehre_aus<&Optionensteuerung::oeffne>();
        o.Einheit = Mikrogramm;
        o.Projektpfad = Pfad;
        Fragen_.erwarte("Project path", "There is no folder \"" + Pfad + "\".");
        EXPECT_FALSE(s_->fuehre_aus<&Optionensteuerung::uebernimm>(o));
        s_->fuehre_aus<&Optionensteuerung::schliesse>();
    }
    EXPECT_EQ(s_->Stand().Parameter().Einheit, Milligramm);
    EXPECT_EQ(s_->Stand().Projektpfad, Wurzel_.string());
    EXPECT_EQ(s_->zeige<Diagrammsteuerung>().Zeichnung(), Zeichnung);
}

TEST_F(Projektpfad, a_folder_with_a_line_end_in_its_name_is_refused) {
    std::filesystem::create_directory(Wurzel_ / "two\nlines");
    EXPECT_EQ(Einwand_gegen_Projektpfad((Wurzel_ / "two\nlines").string()), "The name of the folder holds a line end.");
    EXPECT_EQ(Einwand_gegen_Projektpfad(Wurzel_.string()), "");
}

TEST_F(Projektpfad, a_folder_is_made_where_it_is_asked_for) {
    gestartet();
    EXPECT_EQ(s_->fuehre_aus<&Optionensteuerung::lege_Ordner_an>(Wurzel_.string(), "2026"), (Wurzel_ / "2026").string());
    EXPECT_TRUE(std::filesystem::is_directory(Wurzel_ / "2026"));
    EXPECT_EQ(s_->Stand().Projektpfad, Wurzel_.string());
}

TEST_F(Projektpfad, a_folder_that_cannot_be_made_by_its_button_is_told) {
    gestartet();
    const std::string hier = Wurzel_.string();
    Fragen_.erwarte("Make folder", "\"a/b\" cannot be the name of a folder: it holds a slash")
        .erwarte("Make folder", "\"\" cannot be the name of a folder: it is empty")
        .erwarte("Make folder", "The folder \"" + hier + "/input\" already exists.")
        .erwarte_Anfang("Make folder", "Cannot make the folder \"" + hier + "/VARNOK.ini/x\": ");
    for (const auto& [darin, Name] : {std::pair(hier, "a/b"), {hier, ""}, {hier, "input"}, {hier + "/VARNOK.ini", "x"}}) {
        EXPECT_FALSE(s_->fuehre_aus<&Optionensteuerung::lege_Ordner_an>(darin, Name));
    }
    EXPECT_FALSE(gibt_es("a"));
}

// The whole way: another path, the end, the question of the empty project, its defaults, and the program on it.
TEST_F(Projektpfad, the_next_start_is_in_the_new_project) {
    gestartet();
    waehle_Projekt("new");
    s_->fuehre_aus<&Programmablauf::beende>();
    ASSERT_TRUE(s_->Stand().beendet());

    const Umgebung Welt{&Fragen_, Wurzel_.string(), VARNOK_DATENORDNER, '.'};
    Fragen_.erwarte("Data file missing", Vorgaben_fehlen, Knopf::Ja).erwarte("Default settings", Vorgaben_geladen);
    EXPECT_FALSE(Sitzung(Welt).fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_FALSE(gibt_es("input/Programcheck.vnk"));
    EXPECT_EQ(Datei("new/input/Programcheck.vnk"), "Programcheck\r\nProgramcheck\r\nProgramcheck\r\nProgramcheck\r\n");

    Sitzung drittes(Welt);
    EXPECT_TRUE(drittes.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_EQ(drittes.Stand().Projektpfad, (Wurzel_ / "new").string());
    EXPECT_EQ(drittes.Stand().Listen[Wirkstoff], std::vector<std::string>{"Programcheck"});
}

// A call that names a project means this one, wherever its settings lead.
TEST_F(Projektpfad, a_project_named_in_the_call_is_opened_all_the_same) {
    gestartet();
    waehle_Projekt("new");
    s_->fuehre_aus<&Programmablauf::beende>();
    ASSERT_TRUE(s_->Stand().beendet());
    s_.reset();

    Umgebung Welt{&Fragen_, Wurzel_.string(), VARNOK_DATENORDNER, '.'};
    Welt.Projekt_genannt = true;
    Sitzung zweites(Welt);
    EXPECT_TRUE(zweites.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_EQ(zweites.Stand().Projektpfad, Wurzel_.string());
}

TEST_F(Projektpfad, a_simulation_named_in_the_call_is_opened_in_place_of_the_newest) {
    std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input", Wurzel_ / "input",
                          std::filesystem::copy_options::overwrite_existing | std::filesystem::copy_options::recursive);
    Umgebung Welt{&Fragen_, Wurzel_.string(), "", '.'};
    Welt.Projekt_genannt = true;
    for (const char* Name : {"Apples, Compound F", "Vines, Compound D"}) {
        Welt.erste_Simulation = Name;
        Sitzung s(Welt);
        EXPECT_TRUE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
        EXPECT_EQ(s.Stand().gewaehlt(Simulation), Name);
    }
}

TEST_F(Projektpfad, the_defaults_of_a_new_project_come_from_the_program_folder_too) {
    for (const char* Name : {"Do not delete this file.chn", "Do not delete this file.apn", "Do not delete this file.scn"}) {
        std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input" / Name, Wurzel_ / "input");
    }
    gestartet();
    waehle_Projekt("new");
    s_->fuehre_aus<&Programmablauf::beende>();
    Fragen_.erwarte("Data file missing", Vorgaben_fehlen, Knopf::Ja).erwarte("Default settings", Vorgaben_geladen);
    EXPECT_FALSE(Sitzung({&Fragen_, Wurzel_.string(), "", '.'}).fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_EQ(Datei("new/input/Programcheck.sce"), Datei("input/Do not delete this file.scn"));
}

TEST_F(Projektpfad, program_defaults_before_the_restart_go_to_the_project_of_the_selectors) {
    gestartet();
    waehle_Projekt("new");
    std::filesystem::copy(std::filesystem::path(VARNOK_DATENORDNER) / "input", Wurzel_ / "input",
                          std::filesystem::copy_options::overwrite_existing | std::filesystem::copy_options::recursive);
    std::filesystem::remove(Wurzel_ / "input/Programcheck.vnk");
    Fragen_.erwarte("Default settings", Vorgaben_geladen);
    s_->fuehre_aus<&Satzverwaltung::lade_Voreinstellungen>();
    EXPECT_TRUE(gibt_es("input/Programcheck.vnk"));
    EXPECT_EQ(Dateizahl("new/input"), 0U);
}

}  // namespace
}  // namespace varnok
