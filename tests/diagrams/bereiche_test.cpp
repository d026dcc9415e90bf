#include "diagrams/diagrammbereiche.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "diagrams/palette.h"

namespace varnok {
namespace {

// Whether all ranges run from 0 to the end.
bool alle_bis(const Diagrammbereiche& b, double Ende) {
    const auto gleich = [](const auto& Feld, double Wert) {
        return std::all_of(Feld.begin(), Feld.end(), [Wert](double v) { return v == Wert; });
    };
    return gleich(b.X_Start, 0) && gleich(b.X_Ende, Ende) && gleich(b.X_Start_Zusammenfassung, 0) &&
           gleich(b.X_Ende_Zusammenfassung, Ende) && gleich(b.manuelles_Ende, 0);
}

TEST(Bereiche, at_program_start_one_year_and_ten_for_the_background) {
    EXPECT_TRUE(alle_bis(Startbereiche(jaehrlich), 364));
    EXPECT_TRUE(alle_bis(Startbereiche(Hintergrund), 3649));
    EXPECT_TRUE(alle_bis(Startbereiche(Anreicherung), 364));
}

TEST(Bereiche, a_view_click_takes_back_every_range) {
    for (const auto& [Art, Ende] : {std::pair{jaehrlich, 365.0}, {Hintergrund, 3649.0}, {Anreicherung, 365.0}}) {
        Diagrammbereiche b = Startbereiche(jaehrlich);
        b.X_Start[4] = 20;
        b.X_Ende[4] = 50;
        ASSERT_TRUE(uebernimm_Skalierung(b, true, 3, "5", "2000"));
        setze_Bereiche_nach_Ansicht(b, Art);
        EXPECT_TRUE(alle_bis(b, Ende)) << Art;
    }
}

TEST(Manuelle_Skalierung, stores_start_and_end_of_one_diagram) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_TRUE(uebernimm_Skalierung(b, false, 9, "12,5", "100"));
    EXPECT_EQ(b.X_Start[9], 12.5);
    EXPECT_EQ(b.X_Ende[9], 100);
    b.X_Start[9] = 0;
    b.X_Ende[9] = 364;
    EXPECT_EQ(b, Startbereiche(jaehrlich));
}

TEST(Manuelle_Skalierung, stores_them_of_a_summary_diagram) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_TRUE(uebernimm_Skalierung(b, true, 8, "10", "730"));
    EXPECT_EQ(b.X_Start_Zusammenfassung[8], 10);
    EXPECT_EQ(b.X_Ende_Zusammenfassung[8], 730);
    EXPECT_EQ(b.manuelles_Ende[8], 730);
    EXPECT_EQ(b.X_Ende[8], 364);
}

TEST(Manuelle_Skalierung, the_end_lies_within_2_and_3650_days) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    for (const char* Ende : {"1.99", "0", "-5", "3650.5", "1E9", ""}) {
        EXPECT_FALSE(uebernimm_Skalierung(b, false, 0, "3", Ende)) << Ende;
    }
    EXPECT_EQ(b, Startbereiche(jaehrlich));
    EXPECT_TRUE(uebernimm_Skalierung(b, false, 0, "0", "2"));
    EXPECT_TRUE(uebernimm_Skalierung(b, false, 0, "0", "3650"));
}

TEST(Manuelle_Skalierung, text_without_a_number_is_0_and_refused) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_FALSE(uebernimm_Skalierung(b, false, 0, "0", "all days"));
    EXPECT_FALSE(uebernimm_Skalierung(b, true, 0, "0", "all days"));
    EXPECT_EQ(b, Startbereiche(jaehrlich));
}

TEST(Manuelle_Skalierung, the_start_is_not_checked) {
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_TRUE(uebernimm_Skalierung(b, false, 0, "500", "100"));
    EXPECT_EQ(b.X_Start[0], 500);
    EXPECT_TRUE(uebernimm_Skalierung(b, false, 0, "-1E9", "100"));
    EXPECT_EQ(b.X_Start[0], -1E9);
}

TEST(Manuelle_Skalierung, its_lists_and_its_message) {
    EXPECT_EQ(Skalierungsliste, (std::array<int, 9>{10, 20, 50, 100, 200, 365, 1000, 2000, 3650}));
    EXPECT_EQ(letzter_Startzeitpunkt, 400);
    EXPECT_STREQ(Skalierungsfehler, "The maximum Time shown on the x-axis must be between 2 d and 3650 d! ");
    EXPECT_STREQ(Skalierungsfehler_Titel, "No valid input!");
}

TEST(Bereiche, a_start_is_drawn_within_the_days_of_a_run) {
    EXPECT_EQ(gehaltener_Start(-1E9), 0);
    EXPECT_EQ(gehaltener_Start(17.5), 17.5);
    EXPECT_EQ(gehaltener_Start(1E9), 3649);
}

TEST(Diagrammsaetze, scheme_and_compound_give_the_index) {
    const int erwartet[4][4] = {{0, -1, -1, -1}, {1, 2, -1, 3}, {4, 5, 6, 7}, {8, 9, 10, 11}};
    for (const Stoffschema Schema : {nur_Wirkstoff, ein_Metabolit, zwei_parallel, zwei_in_Folge}) {
        for (int c = 0; c < 3; ++c) EXPECT_EQ(Diagrammsatz_von(Schema, c), erwartet[Schema][c]) << Schema << ' ' << c;
        EXPECT_EQ(Mehrfachsatz_von(Schema), erwartet[Schema][3]) << Schema;
    }
}

TEST(Diagrammsaetze, scheme_and_compound_give_the_summary_index) {
    const int erwartet[4][3] = {{0, -1, -1}, {1, 2, -1}, {3, 4, 5}, {6, 7, 8}};
    for (const Stoffschema Schema : {nur_Wirkstoff, ein_Metabolit, zwei_parallel, zwei_in_Folge}) {
        for (int c = 0; c < 3; ++c) EXPECT_EQ(Zusammenfassungssatz_von(Schema, c), erwartet[Schema][c]) << Schema << ' ' << c;
    }
}

TEST(Diagrammsaetze, the_index_gives_the_compound_of_name_and_kinetics) {
    const int Einzel[12] = {0, 0, 1, 0, 0, 1, 2, 0, 0, 1, 2, 0};
    for (int d = 0; d < 12; ++d) {
        EXPECT_EQ(Substanz_von_Diagramm(d), Einzel[d]) << d;
        EXPECT_EQ(ist_mehrfach(d), d == 3 || d == 7 || d == 11) << d;
    }
    const int Zusammen[9] = {0, 0, 1, 0, 1, 2, 0, 1, 2};
    for (int z = 0; z < 9; ++z) EXPECT_EQ(Substanz_von_Zusammenfassung(z), Zusammen[z]) << z;
}

TEST(Diagrammring, a_left_click_leads_to_the_next_diagram_of_the_scheme) {
    const struct {
        int i, naechstes, Stoff;
    } Schritte[] = {{1, 2, 1}, {2, 3, 0}, {3, 1, 0},  {4, 5, 1},   {5, 6, 2}, {6, 7, 0},
                    {7, 4, 0}, {8, 9, 1}, {9, 10, 2}, {10, 11, 0}, {11, 8, 0}};
    for (const auto& s : Schritte) {
        const Ringziel z = Diagrammring[static_cast<std::size_t>(s.i)];
        EXPECT_EQ(z.Nummer, s.naechstes) << s.i;
        EXPECT_EQ(z.i_substanz, s.Stoff) << s.i;
        EXPECT_FALSE(z.bleibt) << s.i;
    }
}

TEST(Diagrammring, the_parent_only_scheme_stays_where_it_is) {
    EXPECT_EQ(Diagrammring[0].Nummer, 0);
    EXPECT_TRUE(Diagrammring[0].bleibt);
    EXPECT_EQ(Zusammenfassungsring[0].Nummer, 0);
    EXPECT_TRUE(Zusammenfassungsring[0].bleibt);
}

TEST(Diagrammring, the_summary_has_its_own_ring) {
    const struct {
        int z, naechstes, Stoff;
    } Schritte[] = {{1, 2, 1}, {2, 1, 0}, {3, 4, 1}, {4, 5, 2}, {5, 3, 0}, {6, 7, 1}, {7, 8, 2}, {8, 6, 0}};
    for (const auto& s : Schritte) {
        const Ringziel z = Zusammenfassungsring[static_cast<std::size_t>(s.z)];
        EXPECT_EQ(z.Nummer, s.naechstes) << s.z;
        EXPECT_EQ(z.i_substanz, s.Stoff) << s.z;
        EXPECT_FALSE(z.bleibt) << s.z;
    }
}

TEST(Heimat, is_a_share_of_a_surface_of_640_by_500_pixels) {
    EXPECT_DOUBLE_EQ(Heimat_Ergebnis.links * 640 * 15, 6000);
    EXPECT_DOUBLE_EQ(Heimat_Ergebnis.oben * 500 * 15, 4000);
    EXPECT_DOUBLE_EQ(Heimat_Legende.links * 640 * 15, 7000);
    EXPECT_DOUBLE_EQ(Heimat_Legende.oben * 500 * 15, 500);
    EXPECT_DOUBLE_EQ(Heimat_Legende_mehrfach.links * 640 * 15, 7000);
    EXPECT_DOUBLE_EQ(Heimat_Legende_mehrfach.oben * 500 * 15, 1000);
}

TEST(Farben, the_colours_in_use) {
    const struct {
        std::size_t i;
        Farbwert Farbe;
    } Faelle[] = {{0, {0, 0, 0}},   {1, {0, 0, 128}},  {2, {0, 128, 0}},  {4, {128, 0, 0}},
                  {9, {0, 0, 255}}, {10, {0, 255, 0}}, {12, {255, 0, 0}}, {15, {255, 255, 255}}};
    for (const auto& f : Faelle) EXPECT_EQ(Palette[f.i], f.Farbe) << f.i;
    EXPECT_EQ(Palette[11], (Farbwert{0, 255, 255}));
    EXPECT_EQ(Palette[13], (Farbwert{255, 0, 255}));
    EXPECT_EQ(Palette[14], (Farbwert{255, 255, 0}));
}

TEST(Farben, of_compounds_and_studies) {
    EXPECT_EQ(Kurvenfarbe(0), 1);
    EXPECT_EQ(Kurvenfarbe(1), 2);
    EXPECT_EQ(Kurvenfarbe(2), 4);
    EXPECT_EQ(TWA_Farbe(0), 9);
    EXPECT_EQ(TWA_Farbe(1), 10);
    EXPECT_EQ(TWA_Farbe(2), 12);
    EXPECT_EQ(Studienfarbe(0), 9);
    EXPECT_EQ(Studienfarbe(5), 14);
}

}  // namespace
}  // namespace varnok
