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
    Meldezeilenprobe() { Zeile_.stelle_Uhr(&Zeit_); }

    stehende_Uhr Zeit_;
    Meldezeile Zeile_;
};

TEST_F(Meldezeilenprobe, SagtMitUhrzeitAuchMittenInEinerHandlung) {
    EXPECT_EQ(Zeile_.Zeit(), "");
    Zeile_.sage("Report written");
    EXPECT_EQ(Zeile_.Zeit().size(), 5U);
    EXPECT_EQ(Zeile_.Zeit()[2], ':');
    Zeile_.schliesse_ab(true);
    EXPECT_EQ(Zeile_.Text(), "Report written");
}

TEST_F(Meldezeilenprobe, GehtMitDerNaechstenAenderung) {
    Zeile_.sage("Report written");
    Zeile_.schliesse_ab(false);
    Zeile_.schliesse_ab(false);
    EXPECT_EQ(Zeile_.Text(), "Report written");
    Zeile_.schliesse_ab(true);
    EXPECT_EQ(Zeile_.Text(), "");
}

TEST_F(Meldezeilenprobe, EinesFeldesGehoertZumBefehlDerEsAnnimmt) {
    Zeile_.sage("Report written");
    Zeile_.schliesse_ab(false);
    const int begonnen = Zeile_.Handlung();
    Zeile_.sage_Zahl("1,5x was read as 1.5.");
    Zeile_.schliesse_ab(true);
    EXPECT_EQ(Zeile_.Text(), "1,5x was read as 1.5.");
    Zeile_.zaehle_zur_naechsten(begonnen);
    Zeile_.sage("Saved.");
    Zeile_.schliesse_ab(true);
    EXPECT_EQ(Zeile_.Text(), "1,5x was read as 1.5. Saved.");
    Zeile_.sage("Copied.");
    EXPECT_EQ(Zeile_.Text(), "Copied.");
}

TEST_F(Meldezeilenprobe, FuegtZusammenWasMehrereSagenUndNurVonEinerHandlung) {
    Zeile_.sage("Of the action before.");
    Zeile_.schliesse_ab(false);
    Zeile_.sage_dazu("second.");
    Zeile_.stelle_voran("First.");
    Zeile_.sage_dazu("");
    Zeile_.stelle_voran("");
    Zeile_.sage_dazu("Third.");
    EXPECT_EQ(Zeile_.Text(), "First. second. Third.");
    Zeile_.vergiss_Frueheres();
    EXPECT_EQ(Zeile_.nimm(), "First. second. Third.");
    EXPECT_EQ(Zeile_.Text(), "");
}

TEST_F(Meldezeilenprobe, VergisstWasFruehereHandlungenSagten) {
    Zeile_.sage("Copied.");
    Zeile_.schliesse_ab(false);
    EXPECT_EQ(Zeile_.nimm(), "");
    Zeile_.vergiss_Frueheres();
    EXPECT_EQ(Zeile_.Text(), "");
}

// Whoever is not the owner of a mark can read it and no more.
static_assert(std::is_convertible_v<const Eigen<Meldezeile>&, bool>);
static_assert(!std::is_assignable_v<Eigen<Meldezeile>&, bool>);

}  // namespace
}  // namespace varnok
