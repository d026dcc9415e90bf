// Texts about the program that come from files: nothing of the program depends on them.

#include <fstream>

#include "extras/tooltipdatei.h"
#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

class Hilfe : public Probesitzung {
protected:
    void schreibe_Tips(std::size_t n, const std::string& Wort = "tip") {
        std::ofstream Datei(Wurzel_ / "input/tooltips.uk", std::ios::binary);
        for (std::size_t i = 0; i < n; ++i) Datei << Wort << "\r\n\r\n";
    }
};

TEST_F(Hilfe, a_whole_file_of_tips_is_read_without_a_word) {
    schreibe_Tips(Anzahl_Tooltips);
    EXPECT_EQ(nur_geladen().fuehre_aus<&Hilfetexte::Tooltips>(), std::vector<std::string>(Anzahl_Tooltips, "tip"));
}

TEST_F(Hilfe, tips_are_read_anew_each_time) {
    schreibe_Tips(Anzahl_Tooltips);
    nur_geladen().fuehre_aus<&Hilfetexte::Tooltips>();
    schreibe_Tips(Anzahl_Tooltips, "other");
    EXPECT_EQ(s_->fuehre_aus<&Hilfetexte::Tooltips>().front(), "other");
}

TEST_F(Hilfe, tips_of_a_project_without_them_are_those_of_the_installed_data) {
    Sitzung s({&Fragen_, Wurzel_.string(), VARNOK_DATENORDNER, '.'});
    EXPECT_TRUE(s.fuehre_aus<&Programmablauf::oeffne_Projekt>());
    EXPECT_EQ(s.fuehre_aus<&Hilfetexte::Tooltips>().size(), Anzahl_Tooltips);
}

TEST_F(Hilfe, a_missing_file_is_told_once_and_the_program_goes_on) {
    gestartet();
    Fragen_.erwarte_Anfang("Runtime error", "File tooltips.uk is missing. It was sought in the folder \"input\" of \"");
    EXPECT_TRUE(s_->fuehre_aus<&Hilfetexte::Tooltips>().empty());
    EXPECT_TRUE(s_->fuehre_aus<&Hilfetexte::Tooltips>().empty());
    EXPECT_FALSE(s_->Stand().abgedeckt());
    EXPECT_FALSE(s_->Stand().beendet());
}

TEST_F(Hilfe, a_short_file_is_told_once_and_gives_the_tips_it_has) {
    schreibe_Tips(12);
    nur_geladen();
    Fragen_.erwarte_Anfang("Runtime error", "File \"" + (Wurzel_ / "input/tooltips.uk").string() + "\" is too short");
    EXPECT_EQ(s_->fuehre_aus<&Hilfetexte::Tooltips>().size(), 12u);
    EXPECT_EQ(s_->fuehre_aus<&Hilfetexte::Tooltips>().size(), 12u);
}

TEST_F(Hilfe, another_fault_of_the_file_is_told_again) {
    nur_geladen();
    Fragen_.erwarte_Anfang("Runtime error", "File tooltips.uk is missing.");
    s_->fuehre_aus<&Hilfetexte::Tooltips>();
    schreibe_Tips(12);
    Fragen_.erwarte_Anfang("Runtime error", "File \"");
    s_->fuehre_aus<&Hilfetexte::Tooltips>();
}

TEST_F(Hilfe, details_of_the_program_come_from_the_installed_data) {
    Sitzung s({&Fragen_, Wurzel_.string(), VARNOK_DATENORDNER, '.'});
    EXPECT_EQ(s.zeige<Hilfetexte>().Programmangaben().substr(0, 14), "Developed by\r\n");
    EXPECT_NE(nur_geladen().zeige<Hilfetexte>().Programmangaben(), "");  // without them a plain line
}

}  // namespace
}  // namespace varnok
