#include "base/zeichensatz.h"

#include <gtest/gtest.h>

#include <set>

namespace varnok {
namespace {

std::string alle_Bytes() {
    std::string Bytes;
    for (int i = 0; i < 256; ++i) Bytes.push_back(static_cast<char>(i));
    return Bytes;
}

TEST(Windows_1252, every_byte_survives_the_way_to_text_and_back) {
    for (const char Byte : alle_Bytes()) {
        const std::string eins(1, Byte);
        EXPECT_EQ(nach_Windows_1252(aus_Windows_1252(eins)), eins) << static_cast<int>(Byte);
    }
    EXPECT_EQ(nach_Windows_1252(aus_Windows_1252(alle_Bytes())), alle_Bytes());
}

TEST(Windows_1252, no_two_bytes_share_a_character) {
    std::set<std::string> Zeichen;
    for (const char Byte : alle_Bytes()) Zeichen.insert(aus_Windows_1252(std::string(1, Byte)));
    EXPECT_EQ(Zeichen.size(), 256U);
}

TEST(Windows_1252, bytes_below_128_are_ASCII) {
    for (int i = 0; i < 128; ++i) {
        const std::string eins(1, static_cast<char>(i));
        EXPECT_EQ(aus_Windows_1252(eins), eins);
    }
}

// The one block in which the code page differs from Latin-1, spelt out.
TEST(Windows_1252, the_block_from_128_has_its_own_characters) {
    EXPECT_EQ(aus_Windows_1252("\x80\x82\x83\x84\x85\x86\x87\x88"), "€‚ƒ„…†‡ˆ");
    EXPECT_EQ(aus_Windows_1252("\x89\x8A\x8B\x8C\x8E"), "‰Š‹ŒŽ");
    EXPECT_EQ(aus_Windows_1252("\x91\x92\x93\x94\x95\x96\x97\x98"), "‘’“”•–—˜");
    EXPECT_EQ(aus_Windows_1252("\x99\x9A\x9B\x9C\x9E\x9F"), "™š›œžŸ");
}

TEST(Windows_1252, bytes_from_160_are_the_character_of_their_number) {
    EXPECT_EQ(aus_Windows_1252("\xB5\xB0\xE4\xFF"), "µ°äÿ");
    EXPECT_EQ(nach_Windows_1252("µg/kg 20 °C"),
              "\xB5g/kg 20 \xB0"
              "C");
}

TEST(Windows_1252, a_byte_without_character_becomes_the_control_character_of_its_number) {
    EXPECT_EQ(aus_Windows_1252("\x81"), "\xC2\x81");
    EXPECT_EQ(aus_Windows_1252("\x9D"), "\xC2\x9D");
}

TEST(Windows_1252, a_character_without_place_is_refused_not_replaced) {
    EXPECT_EQ(nach_Windows_1252("a\u03B1"), std::nullopt);           // alpha
    EXPECT_EQ(nach_Windows_1252("\xF0\x9F\x8C\xB1"), std::nullopt);  // a plant, four bytes
    EXPECT_EQ(nach_Windows_1252("\xC2\x80"), std::nullopt);          // its byte is the euro sign
}

TEST(Windows_1252, the_refused_character_is_named) {
    EXPECT_EQ(Zeichen_ohne_Platz("1 \u00B5g \u2264 2"), "\u2264");
    EXPECT_EQ(Zeichen_ohne_Platz("\xF0\x9F\x8C\xB1x"), "\xF0\x9F\x8C\xB1");
}

TEST(Windows_1252, nothing_is_named_where_all_characters_have_a_place) {
    EXPECT_EQ(Zeichen_ohne_Platz(aus_Windows_1252(alle_Bytes())), "");
    EXPECT_EQ(Zeichen_ohne_Platz(""), "");
}

TEST(Windows_1252, broken_UTF_8_is_refused) {
    EXPECT_EQ(nach_Windows_1252("a\xC3"), std::nullopt);  // cut off
    EXPECT_EQ(nach_Windows_1252("\xA4"), std::nullopt);   // continuation alone
    EXPECT_EQ(nach_Windows_1252("\xC3"
                                "A"),
              std::nullopt);  // no continuation
    EXPECT_EQ(nach_Windows_1252("\xFF"), std::nullopt);
}

TEST(Windows_1252, overlong_UTF_8_is_refused) {
    EXPECT_EQ(nach_Windows_1252("\xC1\x81"), std::nullopt);      // "A" in two bytes
    EXPECT_EQ(nach_Windows_1252("\xE0\x81\x81"), std::nullopt);  // "A" in three
}

TEST(Windows_1252, empty_text_stays_empty) {
    EXPECT_EQ(aus_Windows_1252(""), "");
    EXPECT_EQ(nach_Windows_1252(""), "");
}

TEST(Zeichenzahl, counts_characters_not_bytes) {
    EXPECT_EQ(Zeichenzahl(""), 0U);
    EXPECT_EQ(Zeichenzahl("21 d"), 4U);
    EXPECT_EQ(Zeichenzahl("µ€\xF0\x9F\x8C\xB1"), 3U);
}

}  // namespace
}  // namespace varnok
