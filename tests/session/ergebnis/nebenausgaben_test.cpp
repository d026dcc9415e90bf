// Files that a run and a drawing leave behind.

#include <algorithm>
#include <fstream>

#include "reports/ausgabedateien.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Nebenausgabenprobe : public Probesitzung {
protected:
    std::string Protokoll() const { return Datei("output/test.txt"); }
    std::string erwartetes_Protokoll(int i_studie = 0) const { return Laufprotokoll(Werte(i_studie)); }
    void versperre(const std::string& Name) const { std::filesystem::create_directories(Wurzel_ / "output" / Name); }
};

TEST_F(Nebenausgabenprobe, run_dump_is_there_after_the_first_run) {
    nur_geladen();
    EXPECT_FALSE(gibt_es("output/test.txt"));
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    const std::string Text = Protokoll();
    EXPECT_EQ(Text, erwartetes_Protokoll());
    EXPECT_EQ(std::count(Text.begin(), Text.end(), '\n'), 3650);
}

TEST_F(Nebenausgabenprobe, run_dump_is_that_of_the_last_run) {
    gestartet();
    const std::string erstes = Protokoll();
    EXPECT_TRUE(tippe("S_DT50_0", "12"));
    EXPECT_NE(Protokoll(), erstes);
    EXPECT_EQ(Protokoll(), erwartetes_Protokoll());
}

TEST_F(Nebenausgabenprobe, run_dump_of_a_scheme_holds_the_compound_calculated_last) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::waehle_Berechnungsmodus>(zwei_in_Folge);
    EXPECT_EQ(Werte().Stoffwerte.size(), 3U);
    EXPECT_EQ(Protokoll(), erwartetes_Protokoll(1));
}

TEST_F(Nebenausgabenprobe, run_dump_of_all_studies_is_that_of_the_last_one) {
    gestartet();
    s_->fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
    EXPECT_EQ(Protokoll(), erwartetes_Protokoll(1));
}

TEST_F(Nebenausgabenprobe, a_redraw_without_a_run_leaves_the_run_dump_alone) {
    gestartet();
    std::filesystem::remove(Wurzel_ / "output" / "test.txt");
    s_->fuehre_aus<&Listenwahl::waehle_Endpunkt>(Porenwasser);
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Anreicherung);
    EXPECT_FALSE(gibt_es("output/test.txt"));
    EXPECT_TRUE(gibt_es("output/Detailed Results - Parent P.tab"));
}

TEST_F(Nebenausgabenprobe, a_run_that_fails_writes_nothing) {
    gestartet();
    std::filesystem::remove(Wurzel_ / "output" / "test.txt");
    Fragen_.erwarte("No valid input!", "The DT50 is invalid. Please correct!");
    EXPECT_FALSE(tippe("S_DT50_0", "-1"));
    EXPECT_FALSE(gibt_es("output/test.txt"));
}

TEST_F(Nebenausgabenprobe, a_run_dump_that_cannot_be_written_is_told_once_and_the_results_stand) {
    versperre("test.txt");
    nur_geladen();
    Fragen_.erwarte("Runtime error",
                    "Cannot write the file \"" + (Wurzel_ / "output" / "test.txt").string() + "\": it is a folder");
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->Stand().Hinweis());
    EXPECT_NE(s_->zeige<Diagrammsteuerung>().vorderes(), nullptr);
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

TEST_F(Nebenausgabenprobe, a_day_series_that_cannot_be_written_is_told_once_and_the_drawing_stands) {
    versperre("Detailed Results - Parent P.tab");
    nur_geladen();
    Fragen_.erwarte_Anfang("Runtime error", "Cannot write the file ");
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_EQ(Protokoll(), erwartetes_Protokoll());
    s_->fuehre_aus<&Satzverwaltung::aktualisiere>();
    s_->fuehre_aus<&Listenwahl::waehle_PEC_Typ>(Hintergrund);
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

// No folder at all: one message for all files of the action.
TEST_F(Nebenausgabenprobe, a_file_in_place_of_the_folder_is_told_in_one_line) {
    std::filesystem::remove_all(Wurzel_ / "output");
    std::ofstream(Wurzel_ / "output") << "in the way";
    nur_geladen();
    Fragen_.erwarte("Runtime error", "Cannot make the folder \"" + (Wurzel_ / "output").string() + "\": Not a directory");
    s_->fuehre_aus<&Programmablauf::verlasse_Startseite>();
    EXPECT_FALSE(s_->Stand().abgedeckt());
}

}  // namespace
}  // namespace varnok
