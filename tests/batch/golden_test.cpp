// The bytes of each output for one case whose numbers can be worked out by hand: 1000 g/ha once a year into 5 cm
// (plateau: 20 cm) of soil with 1.5 kg/L, first order with k = 0.01 per day at the reference temperature.
//
//   C0 = 1000 / 1000 / (0.5 dm x 1.5 kg/L) = 1.3333 mg/kg, in the plateau depth 0.3333 mg/kg
//   pore water of day 0: C0 / (1 % x 100 L/kg / 100 + 0.2 / 1.5) = 1.3333 / 1.1333 = 1.1765 mg/L
//   background: 0.3333 x / (1 - x) = 0.0089 mg/kg with x = exp(-3.65) = 0.0260
//   mean of the first 21 days: C0 (1 + q) / 2 x (1 - q^21) / (1 - q) / 21 = 1.2026 mg/kg with q = exp(-0.01)

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/probeprojekt.h"
#include "support/golden.h"

namespace varnok::batch {
namespace {

using probe::Probeprojekt;
using probe::rufe;
using testing::HasSubstr;

const probe::Golden& Erwartet() {
    static const probe::Golden g(VARNOK_TESTORDNER "/golden/batch");
    return g;
}

struct Batch_Golden : testing::Test {
    Probeprojekt Projekt;
    Batch_Golden() { Projekt.schreibe("one application"); }
};

TEST_F(Batch_Golden, table) {
    const std::string Text = rufe({Projekt.Pfad()}).aus;
    for (const char* Zahl : {"1.3333", "1.1765", "0.0089", "1.2026"}) EXPECT_THAT(Text, HasSubstr(Zahl));
    EXPECT_TRUE(Erwartet().gleich("one application.txt", Text));
}

TEST_F(Batch_Golden, json) { EXPECT_TRUE(Erwartet().gleich("one application.json", rufe({"--json", "-", Projekt.Pfad()}).aus)); }

TEST_F(Batch_Golden, csv) { EXPECT_TRUE(Erwartet().gleich("one application.csv", rufe({"--csv", "-", Projekt.Pfad()}).aus)); }

TEST_F(Batch_Golden, series) {
    ASSERT_EQ(rufe({"--series", Projekt.daneben("days"), Projekt.Pfad()}).Status, 0);
    const std::string Text = probe::Inhalt(Projekt.daneben("days/one application - study 1.tab"));
    EXPECT_TRUE(Erwartet().gleich("one application - study 1.tab", Text));
}

TEST_F(Batch_Golden, help) { EXPECT_TRUE(Erwartet().gleich("help.txt", rufe({"--help"}).aus)); }

}  // namespace
}  // namespace varnok::batch
