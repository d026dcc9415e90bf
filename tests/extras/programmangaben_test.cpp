#include "extras/programmangaben.h"

#include <gtest/gtest.h>

#include <QtGlobal>
#include <string_view>

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

TEST(Programmangaben, of_the_shipped_data_speak_to_users_alone) {
    EXPECT_EQ(lies_Programmangaben(VARNOK_DATENORDNER).find("deploy"), std::string::npos);
}

TEST(Lizenzangaben, name_the_licence_where_it_is_and_the_libraries_with_their_versions) {
    const Probeordner Daten;
    EXPECT_NE(Lizenzangaben(Daten.Pfad()).find("\r\nLicence\r\n    MIT\r\n"), std::string::npos);
    Daten.schreibe("LICENSE", "the text");
    const std::string Text = Lizenzangaben(Daten.Pfad());
    EXPECT_NE(Text.find("    MIT; the text is in " + Daten.Pfad("LICENSE") + "\r\n"), std::string::npos);
    EXPECT_NE(Text.find(std::string("    Qt ") + qVersion() + " ("), std::string::npos) << Text;
    for (const char* Name : {"libsodium ", "CLI11 ", "nlohmann-json ", "oneTBB ", "Boost.Math ", "SQLite "}) {
        const std::size_t Ort = Text.find(std::string("    ") + Name);
        ASSERT_NE(Ort, std::string::npos) << Name;
        EXPECT_TRUE(Text[Ort + 4 + std::string_view(Name).size()] >= '0' && Text[Ort + 4 + std::string_view(Name).size()] <= '9')
            << Name << "has no version";
    }
}

TEST(Programmangaben, of_the_shipped_data_name_developer_and_sponsor) {
    const std::string Text = lies_Programmangaben(VARNOK_DATENORDNER);
    for (const char* Zeile : {"Developed by\r\n", "Address and telephone\r\n", "Sponsored by\r\n"})
        EXPECT_NE(Text.find(Zeile), std::string::npos) << Zeile;
}

}  // namespace
}  // namespace varnok
