#include "records/zeilen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varnok {
namespace {

std::vector<std::string> alle(std::string_view Bytes) {
    std::vector<std::string> Zeilen;
    Zeilenfolge Folge(Bytes);
    while (const auto Zeile = Folge.naechste()) Zeilen.emplace_back(*Zeile);
    return Zeilen;
}

using Texte = std::vector<std::string>;

TEST(Zeilenfolge, each_kind_of_line_end_counts_once) {
    EXPECT_EQ(alle("a\r\nb\nc\rd"), (Texte{"a", "b", "c", "d"}));
    EXPECT_EQ(alle("a\n\rb"), (Texte{"a", "", "b"}));
}

TEST(Zeilenfolge, last_line_counts_with_and_without_its_end) {
    EXPECT_EQ(alle("a\r\nb"), (Texte{"a", "b"}));
    EXPECT_EQ(alle("a\r\nb\r\n"), (Texte{"a", "b"}));
    EXPECT_EQ(alle("a\r\nb\r\n\r\n"), (Texte{"a", "b", ""}));
}

TEST(Zeilenfolge, empty_file_has_no_line) { EXPECT_EQ(alle(""), Texte{}); }

TEST(Zeilenfolge, zero_bytes_are_part_of_a_line) {
    EXPECT_EQ(alle(std::string_view("a\0b\nc", 5)), (Texte{std::string("a\0b", 3), "c"}));
}

TEST(Zeilenfolge, looking_ahead_takes_nothing) {
    Zeilenfolge Folge("a\nb");
    EXPECT_EQ(Folge.voraus(), "a");
    EXPECT_EQ(Folge.Nummer(), 0);
    EXPECT_EQ(Folge.naechste(), "a");
    EXPECT_EQ(Folge.Nummer(), 1);
    EXPECT_EQ(Folge.voraus(), "b");
    EXPECT_EQ(Folge.naechste(), "b");
    EXPECT_FALSE(Folge.voraus());
    EXPECT_FALSE(Folge.naechste());
    EXPECT_EQ(Folge.Nummer(), 2);
}

TEST(Zeilenschnitt, values_stand_behind_the_first_tab) {
    EXPECT_EQ(hinter_Tabulator("Unit:\t1"), "1");
    EXPECT_EQ(hinter_Tabulator("a\tb\tc"), "b\tc");
    EXPECT_EQ(hinter_Tabulator("a\t"), "");
}

TEST(Zeilenschnitt, line_without_a_tab_is_its_own_value) { EXPECT_EQ(hinter_Tabulator("Unit: 1"), "Unit: 1"); }

TEST(Zeilenschnitt, value_ends_after_255_bytes) {
    const std::string lang(300, 'x');
    EXPECT_EQ(hinter_Tabulator("Name:\t" + lang).size(), 255u);
    EXPECT_EQ(hinter_Tabulator(lang).size(), 255u);
    EXPECT_EQ(hinter_Tabulator("Name:\t" + lang.substr(0, 255)), lang.substr(0, 255));
}

}  // namespace
}  // namespace varnok
