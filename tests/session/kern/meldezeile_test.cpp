#include "session/kern/meldezeile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <type_traits>

#include "session/kern/eigen.h"

namespace varnok {
namespace {

class stehende_Uhr : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override { return std::chrono::system_clock::time_point{}; }
};

class Meldezeilenprobe : public ::testing::Test {
protected:
    void ende(bool geaendert) { Zeile_.schliesse_ab(geaendert, Zeit_); }

    stehende_Uhr Zeit_;
    Meldezeile Zeile_;
};

TEST_F(Meldezeilenprobe, SagtMitUhrzeit) {
    Zeile_.sage("Report written");
    EXPECT_EQ(Zeile_.Zeit(), "");
    ende(true);
    EXPECT_EQ(Zeile_.Text(), "Report written");
    EXPECT_EQ(Zeile_.Zeit().size(), 5U);
    EXPECT_EQ(Zeile_.Zeit()[2], ':');
}

TEST_F(Meldezeilenprobe, GehtMitDerNaechstenAenderung) {
    Zeile_.sage("Report written");
    ende(false);
    ende(false);
    EXPECT_EQ(Zeile_.Text(), "Report written");
    ende(true);
    EXPECT_EQ(Zeile_.Text(), "");
}

TEST_F(Meldezeilenprobe, EinesFeldesGehoertZumBefehlDerEsAnnimmt) {
    const std::string gesagt = Zeile_.gesagt();
    Zeile_.sage("1,5 was taken as 1.5");
    ende(true);
    Zeile_.zaehle_zur_naechsten(gesagt);
    ende(true);
    EXPECT_EQ(Zeile_.Text(), "1,5 was taken as 1.5");
}

TEST_F(Meldezeilenprobe, FuegtZusammenWasMehrereSagen) {
    Zeile_.sage_dazu("second.");
    Zeile_.stelle_voran("First.");
    Zeile_.sage_dazu("");
    Zeile_.stelle_voran("");
    Zeile_.sage_dazu("Third.");
    EXPECT_EQ(Zeile_.Text(), "First. second. Third.");
    EXPECT_EQ(Zeile_.nimm(), "First. second. Third.");
    EXPECT_EQ(Zeile_.Text(), "");
}

// Whoever is not the owner of a mark can read it and no more.
static_assert(std::is_convertible_v<const Eigen<Meldezeile>&, bool>);
static_assert(!std::is_assignable_v<Eigen<Meldezeile>&, bool>);

}  // namespace
}  // namespace varnok
