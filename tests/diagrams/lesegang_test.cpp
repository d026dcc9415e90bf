#include <gtest/gtest.h>

#include "diagrams/lesegang.h"

namespace varnok {
namespace {

// From day 10 on; peaks on the days 12 and 15.
Diagramm zwei_Kurven() {
    Diagramm d;
    d.Kurven = {{"parent", 1, 10, {1, 2, 5, 3, 2, 4, 1, 0.5F}}, {"first metabolite", 2, 10, {0, 1, 2, 3, 3, 2, 1, 0}}};
    return d;
}

int Tag_nach(const Diagramm& d, int von, Leserichtung r, int Tage = 1) { return gehe(d, Lesestelle{0, von}, r, Tage)->Tag; }
std::size_t Kurve_nach(const Diagramm& d, Lesestelle von, Leserichtung r) { return gehe(d, von, r, 1)->Kurve; }

TEST(Lesegang, begins_at_the_highest_value_of_the_first_curve) {
    EXPECT_EQ(gehe(zwei_Kurven(), {}, Leserichtung::frueher, 1), (Lesestelle{0, 12}));
    // What is shown no more is as good as nothing.
    EXPECT_EQ(gehe(zwei_Kurven(), Lesestelle{0, 9}, Leserichtung::spaeter, 1), (Lesestelle{0, 12}));
    EXPECT_EQ(gehe(zwei_Kurven(), Lesestelle{2, 12}, Leserichtung::spaeter, 1), (Lesestelle{0, 12}));
    EXPECT_FALSE(gehe(Diagramm(), {}, Leserichtung::spaeter, 1));
}

TEST(Lesegang, goes_day_by_day_and_stays_at_the_ends) {
    const Diagramm d = zwei_Kurven();
    EXPECT_EQ(Tag_nach(d, 12, Leserichtung::spaeter), 13);
    EXPECT_EQ(Tag_nach(d, 12, Leserichtung::frueher), 11);
    EXPECT_EQ(Tag_nach(d, 17, Leserichtung::spaeter), 17);
    EXPECT_EQ(Tag_nach(d, 10, Leserichtung::frueher), 10);
    EXPECT_EQ(Tag_nach(d, 16, Leserichtung::spaeter, 50), 17);
}

TEST(Lesegang, a_long_step_passes_no_peak) {
    const Diagramm d = zwei_Kurven();
    EXPECT_EQ(Tag_nach(d, 10, Leserichtung::spaeter, 4), 12);
    EXPECT_EQ(Tag_nach(d, 12, Leserichtung::spaeter, 2), 14);
    EXPECT_EQ(Tag_nach(d, 17, Leserichtung::frueher, 4), 15);
}

TEST(Lesegang, goes_from_peak_to_peak) {
    const Diagramm d = zwei_Kurven();
    EXPECT_EQ(Tag_nach(d, 10, Leserichtung::naechste_Spitze), 12);
    EXPECT_EQ(Tag_nach(d, 12, Leserichtung::naechste_Spitze), 15);
    EXPECT_EQ(Tag_nach(d, 15, Leserichtung::naechste_Spitze), 15);
    EXPECT_EQ(Tag_nach(d, 15, Leserichtung::vorige_Spitze), 12);
    // A level top is none.
    EXPECT_EQ(gehe(d, Lesestelle{1, 10}, Leserichtung::naechste_Spitze, 1), (Lesestelle{1, 10}));
}

TEST(Lesegang, up_and_down_lead_to_the_curves_of_that_day) {
    const Diagramm d = zwei_Kurven();
    EXPECT_EQ(Kurve_nach(d, {0, 12}, Leserichtung::tiefere_Kurve), 1U);
    EXPECT_EQ(Kurve_nach(d, {0, 12}, Leserichtung::hoehere_Kurve), 0U);
    EXPECT_EQ(Kurve_nach(d, {0, 14}, Leserichtung::hoehere_Kurve), 1U);
    EXPECT_EQ(gehe(d, Lesestelle{0, 14}, Leserichtung::hoehere_Kurve, 1)->Tag, 14);
    // Equal ones are all reached.
    EXPECT_EQ(Kurve_nach(d, {0, 13}, Leserichtung::hoehere_Kurve), 1U);
    EXPECT_EQ(Kurve_nach(d, {1, 13}, Leserichtung::tiefere_Kurve), 0U);
}

TEST(Lesegang, walks_over_every_one_of_many_curves) {
    Diagramm d;
    for (const float Wert : {3.F, 1.F, 3.F, 2.F, 0.F, 1.F}) d.Kurven.push_back({"study", 9, 0, {Wert}});
    std::vector<std::size_t> Weg = {4};
    for (int i = 0; i < 6; ++i) Weg.push_back(Kurve_nach(d, {Weg.back(), 0}, Leserichtung::hoehere_Kurve));
    EXPECT_EQ(Weg, (std::vector<std::size_t>{4, 1, 5, 3, 0, 2, 2}));
}

TEST(Lesegang, tells_name_day_value_and_colour) {
    const Ablesung a = Ablesung_an(zwei_Kurven(), {1, 12});
    EXPECT_EQ(a.Name, "first metabolite");
    EXPECT_EQ(a.Tag, 12);
    EXPECT_EQ(a.Wert, 2);
    EXPECT_EQ(a.Farbe, 2);
}

}  // namespace
}  // namespace varnok
