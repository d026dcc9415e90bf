// What stands behind the two file dialogs in reserve.

#include "session/saetze/eingabedateien.h"

#include <chrono>
#include <fstream>

#include "records/satz.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Dateidialogprobe : public Probesitzung {
protected:
    std::string Eingabeordner() const { return (Wurzel_ / "input").string(); }
    void lege_ab(const std::string& Name, const std::string& Inhalt = "text") const {
        std::ofstream(Wurzel_ / Name, std::ios::binary) << Inhalt;
    }
    // The one file of that name below "backup".
    std::string Sicherung(const std::string& Name) const {
        for (const auto& Ordner : std::filesystem::directory_iterator(Wurzel_ / "backup")) {
            const auto Pfad = Ordner.path() / Name;
            if (std::filesystem::exists(Pfad)) return Datei(std::filesystem::relative(Pfad, Wurzel_).string());
        }
        return "none";
    }
};

TEST_F(Dateidialogprobe, the_list_holds_the_files_of_that_extension_alone) {
    for (const char* Name : {"input/b.txt", "input/A.TXT", "input/c.text", "input/d.vnk"}) lege_ab(Name);
    EXPECT_EQ(Eingabedateien::Dateien(Eingabeordner(), ".txt"), (std::vector<std::string>{"A.TXT", "b.txt"}));
    EXPECT_EQ(Eingabedateien::Dateien(Eingabeordner(), ".vnk"), (std::vector<std::string>{"d.vnk", "Probe.vnk"}));
    EXPECT_TRUE(Eingabedateien::Dateien((Wurzel_ / "nowhere").string(), ".txt").empty());
}

TEST_F(Dateidialogprobe, loading_names_the_simulation_reads_the_compound_again_and_covers) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    const std::string auf_dem_Schirm = Satz_als_Bytes(Wirkstoff, s_->Stand().Vorgabe, s_->Stand().Sicht);
    const auto Listen = s_->Stand().Listen;
    EXPECT_TRUE(s_->fuehre_aus<&Eingabedateien::lade>("maize trial.txt"));
    EXPECT_EQ(s_->Stand().gewaehlt(Simulation), "maize trial");
    EXPECT_EQ(s_->Stand().Listen[Wirkstoff], Listen[Wirkstoff]);
    EXPECT_NEAR(s_->Stand().Parameter().k_SFO[0][0], 0.01, 1e-12);
    EXPECT_FALSE(s_->Stand().Saetze[Wirkstoff].Geaendert());
    EXPECT_TRUE(s_->Stand().abgedeckt());
    EXPECT_EQ(Sicherung("Probe.che"), auf_dem_Schirm);  // what was typed and not saved
}

TEST_F(Dateidialogprobe, loading_a_name_of_the_list_selects_its_entry) {
    gestartet();
    EXPECT_TRUE(s_->fuehre_aus<&Eingabedateien::lade>("Probe.txt"));
    EXPECT_EQ(s_->Stand().Listen[Simulation], std::vector<std::string>{"Probe"});
    EXPECT_EQ(s_->Stand().Auswahl(Simulation), 0);
}

TEST_F(Dateidialogprobe, loading_a_file_without_a_name_is_refused) {
    gestartet();
    Fragen_.erwarte("Runtime error", "\"\" cannot be the name of a simulation: it is empty");
    EXPECT_FALSE(s_->fuehre_aus<&Eingabedateien::lade>(".txt"));
    EXPECT_EQ(s_->Stand().gewaehlt(Simulation), "Probe");
}

TEST_F(Dateidialogprobe, loading_asks_where_the_folder_has_no_compound_record_left) {
    gestartet();
    std::filesystem::remove(Wurzel_ / "input/Probe.che");
    Fragen_.erwarte("Data file missing", "File Probe is missing. Should the default settings be loaded ", Knopf::Nein);
    s_->fuehre_aus<&Eingabedateien::lade>("Probe.txt");
    EXPECT_TRUE(s_->Stand().beendet());
}

// No line of description, as the dialog has always written it.
TEST_F(Dateidialogprobe, saving_writes_three_names_and_the_records) {
    gestartet();
    ASSERT_TRUE(tippe("S_DT50_0", "12"));
    EXPECT_TRUE(s_->fuehre_aus<&Eingabedateien::speichere>("Other.vnk"));
    EXPECT_EQ(Datei("input/Other.vnk"), "Probe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(Datei("input/Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
    EXPECT_EQ(s_->Stand().gewaehlt(Simulation), "Other");
    EXPECT_FALSE(s_->Stand().Simulation_markiert());
    for (const Satzart t : Eingabearten) EXPECT_FALSE(s_->Stand().Saetze[t].Geaendert());
    Eingabe e;
    Ansicht a;
    Satz_lesen(Projektordner(Wurzel_.string()), "Probe", Wirkstoff, e, a);
    EXPECT_NEAR(Halbwertszeit(e.Parameter.k_SFO[0][0]), 12, 1e-12);
}

TEST_F(Dateidialogprobe, the_extension_is_taken_off_a_longer_name_only) {
    gestartet();
    for (const auto& [getippt, Name] : {std::pair("plain", "plain"), {".vnk", ".vnk"}, {"x.vnk", "x"}, {"x.VNK", "x.VNK"}}) {
        EXPECT_TRUE(s_->fuehre_aus<&Eingabedateien::speichere>(getippt));
        EXPECT_EQ(s_->Stand().gewaehlt(Simulation), Name);
        EXPECT_TRUE(gibt_es("input/" + std::string(Name) + ".vnk"));
    }
}

TEST_F(Dateidialogprobe, a_summary_that_is_replaced_is_kept_first) {
    gestartet();
    EXPECT_TRUE(s_->fuehre_aus<&Eingabedateien::speichere>("Probe.vnk"));
    EXPECT_EQ(Sicherung("Probe.vnk"), "A trial\r\nProbe\r\nProbe\r\nProbe\r\n");
}

TEST_F(Dateidialogprobe, names_that_are_none_are_refused_before_any_file_is_touched) {
    gestartet();
    const std::string lang(241, 'x');
    for (const std::string& Name : {std::string(), std::string(".."), std::string("../out"), std::string("a\tb"), lang}) {
        Fragen_.erwarte_Anfang("Runtime error", "\"" + Name + "\" cannot be the name of a simulation: ");
        EXPECT_FALSE(s_->fuehre_aus<&Eingabedateien::speichere>(Name));
    }
    EXPECT_FALSE(gibt_es("out.vnk"));
    EXPECT_FALSE(gibt_es("backup"));
    EXPECT_EQ(s_->Stand().gewaehlt(Simulation), "Probe");
}

TEST_F(Dateidialogprobe, saving_with_an_empty_selector_writes_nothing) {
    lege_ab("input/Torn.vnk", "text\r\nProbe\r\nno such record\r\nProbe\r\n");
    std::filesystem::last_write_time(Wurzel_ / "input/Torn.vnk",
                                     std::filesystem::last_write_time(Wurzel_ / "input/Probe.vnk") - std::chrono::hours(1));
    gestartet();
    s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(1);
    Fragen_.erwarte("Record not set", "Application record not set. Please select!");
    EXPECT_FALSE(s_->fuehre_aus<&Eingabedateien::speichere>("Other"));
    EXPECT_FALSE(gibt_es("input/Other.vnk"));
}

TEST_F(Dateidialogprobe, a_file_of_the_input_folder_is_deleted_and_kept_in_backup) {
    lege_ab("input/old.txt", "its text");
    gestartet();
    s_->fuehre_aus<&Eingabedateien::loesche>(Eingabeordner(), "old.txt");
    EXPECT_FALSE(gibt_es("input/old.txt"));
    EXPECT_EQ(Sicherung("old.txt"), "its text");
}

TEST_F(Dateidialogprobe, nothing_is_deleted_outside_the_input_folder) {
    lege_ab("out.txt");
    lege_ab("input/out.txt");
    std::filesystem::create_directory(Wurzel_ / "input/below");
    lege_ab("input/below/out.txt");
    gestartet();
    const std::string Einwand = "files are only deleted in the folder \"" + Eingabeordner() + "\"";
    for (const char* Ordner : {"", "input/below", "nowhere"}) {
        Fragen_.erwarte("Runtime error", "\"out.txt\" is not deleted: " + Einwand);
        s_->fuehre_aus<&Eingabedateien::loesche>((Wurzel_ / Ordner).string(), "out.txt");
    }
    Fragen_.erwarte_Anfang("Runtime error", "\"../out.txt\" cannot be the name");
    s_->fuehre_aus<&Eingabedateien::loesche>(Eingabeordner(), "../out.txt");
    for (const char* Name : {"out.txt", "input/out.txt", "input/below/out.txt"}) EXPECT_TRUE(gibt_es(Name)) << Name;
    EXPECT_TRUE(s_->zeige<Eingabedateien>().darf_loeschen(Eingabeordner() + "/../input"));
    EXPECT_FALSE(s_->zeige<Eingabedateien>().darf_loeschen(Wurzel_.string()));
}

}  // namespace
}  // namespace varnok
