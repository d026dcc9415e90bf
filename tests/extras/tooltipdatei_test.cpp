#include "extras/tooltipdatei.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "base/text.h"
#include "base/zeichensatz.h"
#include "extras/probeordner.h"
#include "records/dateien.h"

namespace varnok {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// So many tips "tip 1", "tip 2", ...
std::string Datei_mit(std::size_t n) {
    std::string Bytes;
    for (std::size_t i = 1; i <= n; ++i) Bytes += "tip " + std::to_string(i) + "\r\n\r\n";
    return Bytes;
}

TEST(Tooltipdatei, joins_the_lines_of_a_block_and_ends_it_at_an_empty_line) {
    EXPECT_THAT(zerlege_Tooltips("one\r\ntwo\r\n\r\nthree\r\n\r\n"), ElementsAre("one\ntwo", "three"));
}

TEST(Tooltipdatei, a_block_that_starts_with_an_empty_line_is_an_empty_tip) {
    EXPECT_THAT(zerlege_Tooltips("\r\none\r\n\r\n\r\nthree\r\n\r\n"), ElementsAre("", "one", "", "three"));
}

TEST(Tooltipdatei, a_line_of_blanks_is_not_empty) {
    EXPECT_THAT(zerlege_Tooltips("one\r\n \r\ntwo\r\n"), ElementsAre("one\n \ntwo"));
}

TEST(Tooltipdatei, the_last_block_may_end_with_the_file) {
    EXPECT_THAT(zerlege_Tooltips("one\r\n\r\ntwo\r\n"), ElementsAre("one", "two"));
    EXPECT_THAT(zerlege_Tooltips("one\r\n\r\ntwo"), ElementsAre("one", "two"));
    EXPECT_THAT(zerlege_Tooltips(""), IsEmpty());
}

TEST(Tooltipdatei, line_ends_of_other_systems_do_too) {
    EXPECT_THAT(zerlege_Tooltips("one\ntwo\n\nthree\n"), ElementsAre("one\ntwo", "three"));
}

TEST(Tooltipdatei, is_read_as_Windows_1252) {
    EXPECT_THAT(zerlege_Tooltips("10 \xB0\x43, \xB5g, \x80\r\n"), ElementsAre("10 °C, µg, €"));
}

TEST(Tooltipdatei, what_follows_the_last_tip_is_not_read) {
    const auto Texte = zerlege_Tooltips(Datei_mit(60));
    ASSERT_EQ(Texte.size(), 53u);
    EXPECT_EQ(Texte.back(), "tip 53");
}

TEST(Tooltipsuche, takes_the_first_folder_that_has_the_file) {
    const Probeordner Projekt, Programm, Daten;
    Programm.schreibe("Input/TOOLTIPS.UK", "of the program\r\n\r\n" + Datei_mit(52));
    Daten.schreibe("input/tooltips.uk", "of the data\r\n\r\n" + Datei_mit(52));
    const std::vector<std::string> Ordner = {Projekt.Pfad(), Programm.Pfad(), Daten.Pfad()};
    EXPECT_EQ(lies_Tooltips(Ordner).Texte.front(), "of the program");
    Projekt.schreibe("input/tooltips.uk", "of the project\r\n\r\n" + Datei_mit(52));
    EXPECT_EQ(lies_Tooltips(Ordner).Texte.front(), "of the project");
    EXPECT_EQ(lies_Tooltips(Ordner).Fehler, "");
    EXPECT_EQ(lies_Tooltips({"", Projekt.Pfad("no folder"), Daten.Pfad()}).Texte.front(), "of the data");
}

TEST(Tooltipsuche, a_short_file_gives_its_tips_and_names_itself) {
    const Probeordner Projekt;
    Projekt.schreibe("input/tooltips.uk", Datei_mit(52));
    const Tooltips t = lies_Tooltips({Projekt.Pfad()});
    EXPECT_EQ(t.Texte.size(), 52u);
    EXPECT_EQ(t.Fehler, "File \"" + Projekt.Pfad("input/tooltips.uk") +
                            "\" is too short: it ends after tip 52 of 53. The program goes on without the others.");
}

TEST(Tooltipsuche, a_missing_file_names_each_place_once) {
    const Probeordner Projekt, Daten;
    const Tooltips t = lies_Tooltips({Projekt.Pfad(), Projekt.Pfad(), Daten.Pfad(), ""});
    EXPECT_THAT(t.Texte, IsEmpty());
    EXPECT_EQ(t.Fehler, "File tooltips.uk is missing. It was sought in the folder \"input\" of \"" + Projekt.Pfad() + "\", \"" +
                            Daten.Pfad() + "\". The program goes on without tips.");
}

TEST(Tooltipsuche, a_file_that_cannot_be_read_is_told_with_its_path) {
    const Probeordner Projekt;
    Projekt.schreibe("input/tooltips.uk/lies in a folder of that name", "");
    const Tooltips t = lies_Tooltips({Projekt.Pfad()});
    EXPECT_THAT(t.Texte, IsEmpty());
    EXPECT_THAT(t.Fehler, HasSubstr(Projekt.Pfad("input/tooltips.uk")));
    EXPECT_THAT(t.Fehler, HasSubstr("goes on without tips"));
}

// Where a line is broken is a matter of the tip alone: no sentence goes on in the next line.
TEST(Tooltipauslieferung, has_53_tips_none_of_them_empty_in_whole_sentences) {
    const std::string Bytes = lies_Datei(VARNOK_DATENORDNER "/input/tooltips.uk");
    const auto Texte = zerlege_Tooltips(Bytes);
    ASSERT_EQ(Texte.size(), 53u);
    std::size_t Laenge = 0;
    for (const std::string& Text : Texte) {
        SCOPED_TRACE(Text);
        EXPECT_NE(Text, "");
        for (const auto Zeile : zerlege_an(Text, '\n')) {
            const bool Aufzaehlung = Text.starts_with("single:");
            EXPECT_TRUE(Aufzaehlung || Zeile.ends_with('.')) << Zeile;
            EXPECT_EQ(Zeile, ohne_Randblanks(Zeile));
        }
        // CR LF behind each line, and an empty line between two blocks.
        const auto Umbrueche = static_cast<std::size_t>(std::count(Text.begin(), Text.end(), '\n'));
        Laenge += nach_Windows_1252(Text)->size() + Umbrueche + 2 + 2;
    }
    EXPECT_EQ(Bytes.size(), Laenge - 2) << "something stands between or behind the tips";
}

// A number to type is explained with its unit or that it has none, and with the values that are accepted.
TEST(Tooltipauslieferung, the_numbers_to_type_have_unit_and_range) {
    const auto Texte = zerlege_Tooltips(lies_Datei(VARNOK_DATENORDNER "/input/tooltips.uk"));
    struct Feld {
        std::size_t Tip;
        const char* Einheit;
        const char* Bereich;
    };
    const Feld Felder[] = {
        {18, "g/ha", "Above 0"},       {19, "%", "0 (bare soil) to below 100"},
        {23, "no unit", "Above 0"},    {24, "no unit", "0 or above"},
        {25, "L/kg", "0 or above"},    {36, "in days", "0 or above"},
        {37, "in days", "0 or above"}, {38, "in days", "0 or above"},
        {39, "no unit", "0 to 1"},     {40, "no unit", "0 or above"},
        {41, "in days", "Above 0"},    {42, "in days", "0 or above"},
        {43, "in days", "0 or above"}, {44, "day", "0 or above"},
        {49, "g/mol", "above 0"},      {50, "g/mol", "above 0"},
        {51, "g/mol", "above 0"},      {52, "%", "0 to 100"},
        {53, "%", "0 to 100"},
    };
    for (const Feld& f : Felder) {
        EXPECT_THAT(Texte[f.Tip - 1], HasSubstr(f.Einheit)) << f.Tip;
        EXPECT_THAT(Texte[f.Tip - 1], HasSubstr(f.Bereich)) << f.Tip;
    }
}

}  // namespace
}  // namespace varnok
