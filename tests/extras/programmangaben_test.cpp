#include "extras/programmangaben.h"

#include <gtest/gtest.h>

#include "extras/probeordner.h"

namespace varnok {
namespace {

TEST(Programmangaben, are_the_lines_of_the_file_each_ended_by_CR_LF) {
    const Probeordner Daten;
    Daten.schreibe("about.txt", "M\xFCller\n\nPhone 1");
    EXPECT_EQ(lies_Programmangaben(Daten.Pfad()), "Müller\r\n\r\nPhone 1\r\n");
}

TEST(Programmangaben, without_the_file_say_so) {
    const Probeordner Daten;
    EXPECT_EQ(lies_Programmangaben(Daten.Pfad()), "Details of developer and sponsor are not part of this installation.\r\n");
}

TEST(Programmangaben, of_the_shipped_data_name_developer_and_sponsor) {
    const std::string Text = lies_Programmangaben(VARNOK_DATENORDNER);
    for (const char* Zeile : {"Developed by\r\n", "Address and telephone\r\n", "Sponsored by\r\n"})
        EXPECT_NE(Text.find(Zeile), std::string::npos) << Zeile;
}

}  // namespace
}  // namespace varnok
