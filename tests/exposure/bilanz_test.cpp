// Every run closes its balance, and every run is linear in the dose.

#include <gtest/gtest.h>

#include <cmath>

#include "support/lauf_bauer.h"
#include "support/slotprotokoll.h"

namespace varnok::probe {
namespace {

struct Gitterpunkt {
    int Kinetik, Schema, Rueckstaende, Klimamodus;
};

// The metabolites are not corrected, so that their daily loss is known in either climate; all of the parent
// and of the first metabolite of the sequence goes on.
Lauf_bauer bei(const Gitterpunkt& g) {
    Lauf_bauer b;
    b.nach_SFO(0.02).nach_DFOP(0.05, 0.004, 0.6).nach_FOMC(0.8, 12).nach_HS(0.06, 0.01, 25);
    b.Felder.Parameter.Kinetik[0][0] = static_cast<Kinetikart>(g.Kinetik);
    b.nach_SFO(0.008, 1).nach_DFOP(0.03, 0.002, 0.4, 2).Korrektur(1, 0, 20, 1).Korrektur(1, 0, 20, 2);
    b.Schema(g.Schema).Rueckstaende(g.Rueckstaende).regelmaessige_Gaben(2, 30).Dosis("750", "20").Temperatur(12);
    b.Molmassen(200, 150, 80).Bildungsanteile(60, 40);
    if (g.Klimamodus == nach_Klimadatei) b.Wetter(wechselndes_Wetter(365)).Beginn(4, 15);
    return b;
}

struct Schicht {
    const Lauf& l;
    bool Plateau;

    double in(int Slot, int d, int c) const {
        return static_cast<double>(Plateau ? Plateauslot(l, Slot, d, c) : Bodenslot(l, Slot, d, c));
    }
    double gebildet(std::size_t Metabolit, int d) const {
        const auto t = static_cast<std::size_t>(d);
        return static_cast<double>(Plateau ? l.Speicher.Bildung_Plateautiefe[Metabolit][t]
                                           : l.Speicher.Bildung_Bodentiefe[Metabolit][t]);
    }
    double Summe_gebildet(std::size_t Metabolit) const {
        double Summe = 0;
        for (int d = 0; d <= letzter_Tag; ++d) Summe += gebildet(Metabolit, d);
        return Summe;
    }
    double appliziert() const {
        const double cm = Plateau ? l.Felder.Parameter.Plateautiefe : l.Felder.Parameter.Bodentiefe;
        double Summe = 0;
        for (int d = 0; d < (Plateau ? 3650 : 365); ++d)
            Summe += static_cast<double>(l.Speicher.Tagesrate[static_cast<std::size_t>(d)]);
        return Summe / 1000 / (cm / 10 * l.Felder.Parameter.Bodendichte);
    }
    // What the decay of a metabolite took, from its own rate constants.
    double verloren(int c) const {
        const auto i = static_cast<std::size_t>(c);
        const Laufparameter& p = l.Felder.Parameter;
        const bool DFOP_ = p.Kinetik[i][0] == DFOP;
        double Summe = 0;
        for (int d = 0; d < letzter_Tag; ++d) {
            Summe += DFOP_ ? in(1, d, c) * (1 - std::exp(-p.k1_DFOP[i][0])) + in(2, d, c) * (1 - std::exp(-p.k2_DFOP[i][0]))
                           : in(0, d, c) * (1 - std::exp(-p.k_SFO[i][0]));
        }
        return Summe;
    }
};

// A day rounds by 2^-24 of what is there; over ten years that stays far below a thousandth of the turnover, and
// the least dose is a twentieth of it.
constexpr double Rundung = 2E-4;

class Bilanz : public ::testing::TestWithParam<int> {
protected:
    template <class Funktion>
    void fuer_alle_Laeufe(int Schema, Funktion pruefe) const {
        for (int Kinetik = SFO; Kinetik <= HS; ++Kinetik) {
            for (int Klimamodus = 0; Klimamodus <= 1; ++Klimamodus) {
                const Lauf l = bei({Kinetik, Schema, GetParam(), Klimamodus}).rechne();
                for (const bool Plateau : {false, true}) {
                    SCOPED_TRACE("kinetics " + std::to_string(Kinetik) + " climate " + std::to_string(Klimamodus) +
                                 (Plateau ? " tillage depth" : " soil depth"));
                    pruefe(Schicht{l, Plateau});
                }
            }
        }
    }
};

TEST_P(Bilanz, of_the_parent_closes_over_what_it_passes_on) {
    fuer_alle_Laeufe(1, [](const Schicht& t) {
        const double verloren = t.Summe_gebildet(0) / (0.6 * 150 / 200);
        EXPECT_NEAR(t.in(0, letzter_Tag, 0) + verloren, t.appliziert(), Rundung * t.appliziert());
    });
}

TEST_P(Bilanz, of_parallel_metabolites_closes) {
    fuer_alle_Laeufe(2, [](const Schicht& t) {
        for (const int c : {1, 2}) {
            const double gebildet = t.Summe_gebildet(static_cast<std::size_t>(c - 1));
            EXPECT_NEAR(t.in(0, letzter_Tag, c) + t.verloren(c), gebildet, Rundung * gebildet) << c;
        }
        EXPECT_NEAR(t.Summe_gebildet(1) / (0.4 * 80), t.Summe_gebildet(0) / (0.6 * 150), Rundung);
    });
}

TEST_P(Bilanz, of_a_sequence_closes_and_hands_over_the_loss_of_the_first) {
    fuer_alle_Laeufe(3, [](const Schicht& t) {
        for (const int c : {1, 2}) {
            const double gebildet = t.Summe_gebildet(static_cast<std::size_t>(c - 1));
            EXPECT_NEAR(t.in(0, letzter_Tag, c) + t.verloren(c), gebildet, Rundung * gebildet) << c;
        }
        EXPECT_NEAR(t.Summe_gebildet(1), t.verloren(1) * 0.4 * 80 / 150, Rundung * t.Summe_gebildet(1));
    });
}

INSTANTIATE_TEST_SUITE_P(Rueckstaende, Bilanz, ::testing::Values(0, 1, 2));

// ---- the parent does not know its metabolites ----

TEST(Stamm, is_the_same_in_every_scheme) {
    const Lauf allein = bei({DFOP, 0, 2, 1}).rechne();
    for (int Schema = 1; Schema <= 3; ++Schema) {
        const Lauf l = bei({DFOP, Schema, 2, 1}).rechne();
        for (int d = 0; d < 3650; ++d) ASSERT_EQ(Plateau(l, d), Plateau(allein, d)) << Schema << " " << d;
    }
}

// ---- linearity ----

class Linear : public ::testing::TestWithParam<int> {};

void erwarte_doppelt(Tagesreihe_lesend doppelt, Tagesreihe_lesend einfach, const char* Name) {
    for (std::size_t d = 0; d < einfach.size(); ++d) ASSERT_EQ(doppelt[d], 2 * einfach[d]) << Name << " " << d;
}

// A factor of two moves the exponent of every value and no digit.
TEST_P(Linear, twice_the_rate_doubles_every_store_exactly) {
    const Gitterpunkt g{GetParam(), 3, 1, 1};
    const Lauf l = bei(g).Dosis("250").rechne();
    const Lauf doppelt = bei(g).Dosis("500").rechne();
    for (const Endpunktart e : alle_Endpunkte) {
        for (int c = 0; c < Stoffe; ++c) {
            erwarte_doppelt(doppelt.Speicher.Integral_Bodentiefe(e, 0, c), l.Speicher.Integral_Bodentiefe(e, 0, c), "integral");
            erwarte_doppelt(doppelt.Speicher.Reihe_Plateautiefe(e, 0, c), l.Speicher.Reihe_Plateautiefe(e, 0, c), "tillage");
            erwarte_doppelt(doppelt.Speicher.Reihe_Bodentiefe(e, 0, c), l.Speicher.Reihe_Bodentiefe(e, 0, c), "soil");
        }
    }
    for (int c = 0; c < Stoffe; ++c) {
        for (int Slot = 1; Slot < Slots_Plateau; ++Slot) {
            erwarte_doppelt(Slotreihe(doppelt, 0, c, Tiefe::Plateau, Slot), Slotreihe(l, 0, c, Tiefe::Plateau, Slot), "tillage");
        }
        for (int Slot = 1; Slot < Slots_Boden; ++Slot) {
            erwarte_doppelt(Slotreihe(doppelt, 0, c, Tiefe::Boden, Slot), Slotreihe(l, 0, c, Tiefe::Boden, Slot), "soil");
        }
    }
}

TEST_P(Linear, twice_the_rate_doubles_what_is_derived) {
    const Gitterpunkt g{GetParam(), 3, 1, 1};
    const Lauf l = bei(g).Dosis("250").rechne();
    const Lauf doppelt = bei(g).Dosis("500").rechne();
    for (std::size_t e = 0; e < 2; ++e) {
        for (std::size_t c = 0; c < 3; ++c) {
            EXPECT_EQ(doppelt.Speicher.Plateauwert[e][0][c], 2 * l.Speicher.Plateauwert[e][0][c]);
            EXPECT_EQ(doppelt.Speicher.Plateautext[e][0][c], l.Speicher.Plateautext[e][0][c]);
            EXPECT_EQ(doppelt.Speicher.Maximum_Bodentiefe[e][0][c], 2 * l.Speicher.Maximum_Bodentiefe[e][0][c]);
            EXPECT_EQ(doppelt.Speicher.Maximumtag_Bodentiefe[e][0][c], l.Speicher.Maximumtag_Bodentiefe[e][0][c]);
            for (std::size_t j = 1; j <= 10; ++j)
                EXPECT_EQ(doppelt.Speicher.TWA_Maximum[e][0][c][j], 2 * l.Speicher.TWA_Maximum[e][0][c][j]);
            EXPECT_EQ(doppelt.Speicher.TWA_Starttag[e][0][c], l.Speicher.TWA_Starttag[e][0][c]);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Kinetik, Linear, ::testing::Values(SFO, DFOP, FOMC, HS));

TEST(Linear, three_times_the_rate_is_three_times_as_much_within_rounding) {
    const Lauf l = bei({HS, 1, 2, 0}).Dosis("250").rechne();
    const Lauf dreifach = bei({HS, 1, 2, 0}).Dosis("750").rechne();
    // A day's formation is a difference of the parent's values and carries their rounding.
    const double Stamm = 3 * static_cast<double>(l.Speicher.Maximum_Plateautiefe[0][0][0]);
    for (int d = 0; d < 3650; ++d) {
        ASSERT_NEAR(Plateau(dreifach, d, 1), 3 * static_cast<double>(Plateau(l, d, 1)), Stamm * (2 * d + 4) * 0x1p-24) << d;
    }
}

}  // namespace
}  // namespace varnok::probe
