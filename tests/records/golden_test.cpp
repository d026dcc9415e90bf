#include "support/golden.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "satzprobe.h"

namespace varnok::probe {
namespace {

TEST(Golden, missing_file_fails_when_checking) {
    const Zeitordner o;
    EXPECT_FALSE(Golden(o.Pfad(), Goldenmodus::pruefen).gleich("x.txt", "a"));
    EXPECT_FALSE(std::filesystem::exists(o.Pfad("x.txt")));
}

TEST(Golden, difference_fails_and_shows_its_line) {
    const Zeitordner o;
    schreibe(o.Pfad("x.txt"), "a\r\nb\r\nc\r\n");
    const Golden g(o.Pfad(), Goldenmodus::pruefen);
    EXPECT_TRUE(g.gleich("x.txt", "a\r\nb\r\nc\r\n"));
    const auto Ergebnis = g.gleich("x.txt", "a\r\nB\r\nc\r\n");
    EXPECT_FALSE(Ergebnis);
    EXPECT_NE(std::string(Ergebnis.message()).find("line 2: expected \"b\\r\", got \"B\\r\""), std::string::npos)
        << Ergebnis.message();
    EXPECT_FALSE(g.gleich("x.txt", "a\r\nb\r\n"));
    EXPECT_FALSE(g.gleich("x.txt", ""));
    EXPECT_FALSE(g.gleich("x.txt", "a\r\nb\r\nc\r\nd"));
}

TEST(Golden, create_writes_what_is_missing_and_checks_the_rest) {
    const Zeitordner o;
    const Golden g(o.Pfad("new/folder"), Goldenmodus::anlegen);
    EXPECT_TRUE(g.gleich("x.txt", "a"));
    EXPECT_TRUE(g.gleich("x.txt", "a"));
    EXPECT_FALSE(g.gleich("x.txt", "b"));
    EXPECT_EQ(Inhalt(o.Pfad("new/folder/x.txt")), "a");
}

TEST(Golden, update_writes_all_anew) {
    const Zeitordner o;
    schreibe(o.Pfad("x.txt"), "a");
    EXPECT_TRUE(Golden(o.Pfad(), Goldenmodus::erneuern).gleich("x.txt", "b"));
    EXPECT_EQ(Inhalt(o.Pfad("x.txt")), "b");
}

}  // namespace
}  // namespace varnok::probe
