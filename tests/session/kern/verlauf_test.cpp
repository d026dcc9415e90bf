#include "session/kern/verlauf.h"

#include <gtest/gtest.h>

#include "session/kern/probesitzung.h"

namespace varnok {
namespace {

Eingabe mit_Tag(int Tag) {
    Eingabe e;
    e.App_Tag = Tag;
    return e;
}

TEST(Verlauf, GehtVorUndZurueck) {
    Verlauf v;
    for (int i = 0; i < 3; ++i) v.merke(mit_Tag(i));
    EXPECT_EQ(v.zurueck(), mit_Tag(1));
    v.merke(mit_Tag(1));
    EXPECT_EQ(v.zurueck(), mit_Tag(0));
    v.merke(mit_Tag(0));
    EXPECT_FALSE(v.kann_zurueck());
    EXPECT_EQ(v.vor(), mit_Tag(1));
}

// A run repairs the table that undo has brought back: without that taking its place there would be no way past it.
TEST(Verlauf, WasEinLaufAusDemGeholtenMachtIstKeinSchritt) {
    Verlauf v;
    for (int i = 0; i < 3; ++i) v.merke(mit_Tag(i));
    v.zurueck();
    v.merke(mit_Tag(10));
    ASSERT_TRUE(v.kann_vor());
    EXPECT_EQ(v.vor(), mit_Tag(2));
    v.merke(mit_Tag(2));
    EXPECT_EQ(v.zurueck(), mit_Tag(10));
    v.merke(mit_Tag(10));
    EXPECT_EQ(v.zurueck(), mit_Tag(0));
}

TEST(Verlauf, EinSchrittNachDemHolenNimmtWasDavorLag) {
    Verlauf v;
    for (int i = 0; i < 3; ++i) v.merke(mit_Tag(i));
    v.zurueck();
    v.merke(mit_Tag(1));
    v.merke(mit_Tag(7));
    EXPECT_FALSE(v.kann_vor());
    EXPECT_EQ(v.zurueck(), mit_Tag(1));
}

using Gangfund = Probesitzung;

// Enter runs a rate of 0, which cannot be left: Esc leads out of the field.
TEST_F(Gangfund, EscNachEnterMitRateNullBringtDenWertDavorZurueck) {
    Sitzung& s = gestartet();
    const int f = Feld("Applikationsrate");
    const std::string vorher = s.zeige<Feldeingabe>().Text(f);
    s.fuehre_aus<&Feldeingabe::betrete>(f);
    s.fuehre_aus<&Feldeingabe::aendere>(f, "0");
    EXPECT_TRUE(s.fuehre_aus<&Feldeingabe::bestaetige>(f));
    s.fuehre_aus<&Feldeingabe::nimm_zurueck>(f);
    EXPECT_EQ(s.zeige<Feldeingabe>().Text(f), vorher);
    EXPECT_TRUE(s.fuehre_aus<&Feldeingabe::verlasse>(f));
}

}  // namespace
}  // namespace varnok
