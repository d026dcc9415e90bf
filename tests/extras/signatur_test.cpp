#include "extras/signatur.h"

#include <gtest/gtest.h>

#include "extras/schluessel.h"

namespace varnok {
namespace {

// First and third test of RFC 8032, section 7.1: empty message, and the bytes AF 82.
std::string aus_Hex(const std::string& Hex) {
    std::string Bytes;
    for (std::size_t i = 0; i < Hex.size(); i += 2) Bytes += static_cast<char>(std::stoi(Hex.substr(i, 2), nullptr, 16));
    return Bytes;
}

TEST(Signatur, fits_the_published_examples) {
    EXPECT_TRUE(Signatur_passt(aus_Hex("e5564300c360ac729086e2cc806e828a84877f1eb8e5d974d873e06522490155"
                                       "5fb8821590a33bacc61e39701cf9b46b"
                                       "d25bf5f0595bbe24655141438e7a100b"),
                               "", "d75a980182b10ab7d54bfed3c964073a0ee172f3daa62325af021a68f707511a"));
    EXPECT_TRUE(Signatur_passt(aus_Hex("6291d657deec24024827e69c3abe01a30ce548a284743a445e3680d7db5ac3ac"
                                       "18ff9b538d16f290ae67f760984dc659"
                                       "4a7c15e9716ed28dc027beceea1ec40a"),
                               aus_Hex("af82"), "fc51cd8e6218a1a38da47ed00230f0580816ed13ba3303ac5deb911548908025"));
}

TEST(Signatur, of_another_text_or_another_key_does_not_fit) {
    const Testschluessel Hersteller, Fremder(2);
    const std::string Signatur = Hersteller.signiere("20180922program");
    EXPECT_TRUE(Signatur_passt(Signatur, "20180922program", Hersteller.Hex()));
    EXPECT_FALSE(Signatur_passt(Signatur, "20180922Program", Hersteller.Hex()));
    EXPECT_FALSE(Signatur_passt(Signatur, "20180922program", Fremder.Hex()));
}

TEST(Signatur, one_changed_bit_does_not_fit) {
    const Testschluessel Hersteller;
    for (std::size_t i = 0; i < crypto_sign_BYTES; ++i) {
        std::string Signatur = Hersteller.signiere("text");
        Signatur[i] = static_cast<char>(Signatur[i] ^ 1);
        EXPECT_FALSE(Signatur_passt(Signatur, "text", Hersteller.Hex())) << i;
    }
}

TEST(Signatur, of_the_wrong_length_does_not_fit) {
    const Testschluessel Hersteller;
    const std::string Signatur = Hersteller.signiere("text");
    EXPECT_FALSE(Signatur_passt("", "text", Hersteller.Hex()));
    EXPECT_FALSE(Signatur_passt(Signatur.substr(0, 63), "text", Hersteller.Hex()));
    EXPECT_FALSE(Signatur_passt(Signatur + "x", "text", Hersteller.Hex()));
}

TEST(Signatur, without_a_whole_key_nothing_fits) {
    const Testschluessel Hersteller;
    const std::string Signatur = Hersteller.signiere("text"), Hex = Hersteller.Hex();
    EXPECT_FALSE(Signatur_passt(Signatur, "text", ""));
    EXPECT_FALSE(Signatur_passt(Signatur, "text", Hex.substr(2)));
    EXPECT_FALSE(Signatur_passt(Signatur, "text", Hex + "00"));
    EXPECT_FALSE(Signatur_passt(Signatur, "text", "zz" + Hex.substr(2)));
}

// A program signed for one version is none of another.
TEST(Signatur, covers_the_version) {
    const Testschluessel Hersteller;
    const std::string Signatur = Hersteller.signiere(signierter_Text("20180101", "Varnok.exe", "old program"));
    EXPECT_TRUE(Signatur_passt(Signatur, signierter_Text("20180101", "Varnok.exe", "old program"), Hersteller.Hex()));
    EXPECT_FALSE(Signatur_passt(Signatur, signierter_Text("20990101", "Varnok.exe", "old program"), Hersteller.Hex()));
    EXPECT_FALSE(Signatur_passt(Signatur, signierter_Text("20180101", "varnok-linux-x86_64", "old program"), Hersteller.Hex()));
}

}  // namespace
}  // namespace varnok
