#include <gtest/gtest.h>

#include "diagrams/beschriftung.h"
#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;
using probe::Handergebnis_Studien;
using probe::Linien;
using probe::setze_Boden;
using probe::setze_Maximumtag;
using probe::setze_Plateau;
using probe::setze_TWA;
using probe::Zeitachse;

Diagramm Zusammenfassung(Handergebnis& h, Diagrammbereiche& b, int z = 0) {
    return erstelle_Diagramm_Zusammenfassung(h, b, z, 0);
}

TEST(Zusammenfassung, every_study_has_its_colour_for_curve_and_window) {
    auto h = Handergebnis_Studien(6);
    for (int i = 0; i < 6; ++i) {
        setze_Boden(h, {6.0F - static_cast<float>(i), 0.5F}, 0, i);
        setze_TWA(h, 28, 0.25F, i, 0, i);
    }
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = Zusammenfassung(h, b);
    EXPECT_TRUE(d.Zusammenfassung);
    for (int i = 0; i < 6; ++i) {
        ASSERT_EQ(Linien(d, 9 + i, 2).size(), 364U) << i;
        EXPECT_EQ(Linien(d, 9 + i, 2)[0], (Linie{{0, 6.0 - i}, {1, 0.5}, 9 + i, 2})) << i;
        ASSERT_EQ(Linien(d, 9 + i, 1).size(), 3U) << i;
        EXPECT_EQ(Linien(d, 9 + i, 1)[0], (Linie{{1.0 * i, 0.25}, {28.0 + i, 0.25}, 9 + i, 1})) << i;
    }
}

TEST(Zusammenfassung, the_index_gives_the_compound) {
    auto h = Handergebnis_Studien(1);
    for (int c = 0; c < 3; ++c) setze_Boden(h, {1.0F + static_cast<float>(c)}, c, 0);
    const double erwartet[9] = {1, 1, 2, 1, 2, 3, 1, 2, 3};
    for (int z = 0; z < 9; ++z) {
        Diagrammbereiche b = Startbereiche(jaehrlich);
        const Diagramm d = Zusammenfassung(h, b, z);
        EXPECT_EQ(d.Nummer, z);
        EXPECT_EQ(Linien(d, 9, 2)[0].von.y, erwartet[z]) << z;
    }
}

// Time axis: day of the peak and the longest window (100 days), to the end of that year.

TEST(Zusammenfassung_Zeitachse, ends_at_364_if_all_windows_end_in_the_first_year) {
    auto h = Handergebnis_Studien(3);
    for (int i = 0; i < 3; ++i) setze_Maximumtag(h, 264, 0, i);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 364}));
    setze_Bereiche_nach_Ansicht(b, jaehrlich);  // 365 set by a view click is no end of the user
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 364}));
    EXPECT_EQ(b.X_Ende_Zusammenfassung[0], 364);
}

TEST(Zusammenfassung_Zeitachse, ends_with_the_year_in_which_the_latest_window_ends) {
    auto h = Handergebnis_Studien(3);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    setze_Maximumtag(h, 265, 0, 1);
    Zusammenfassung(h, b);
    EXPECT_EQ(b.X_Ende_Zusammenfassung[0], 729);
    setze_Maximumtag(h, 1000, 0, 2);
    Zusammenfassung(h, b);
    EXPECT_EQ(b.X_Ende_Zusammenfassung[0], 1459);
    setze_Maximumtag(h, 0, 0, 1);
    setze_Maximumtag(h, 0, 0, 2);
    Zusammenfassung(h, b);
    EXPECT_EQ(b.X_Ende_Zusammenfassung[0], 364);  // set afresh each time
}

TEST(Zusammenfassung_Zeitachse, a_late_peak_does_not_lead_behind_the_run) {
    auto h = Handergebnis_Studien(1);
    setze_Maximumtag(h, 3600, 0, 0);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 3649}));
    EXPECT_EQ(Linien(Zusammenfassung(h, b), 9, 2).size(), 3649U);
}

TEST(Zusammenfassung_Zeitachse, a_compound_that_never_appeared_shows_a_year) {
    auto h = Handergebnis_Studien(1);
    setze_Maximumtag(h, -99, 0, 0);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 364}));
}

TEST(Zusammenfassung_Zeitachse, the_users_end_counts_if_it_is_later) {
    auto h = Handergebnis_Studien(1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "0", "1000"));
    for (int Zeichnung = 0; Zeichnung < 2; ++Zeichnung) EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 1000}));
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "0", "3650"));
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 3649}));
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "0", "50"));
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 364}));
}

TEST(Zusammenfassung_Zeitachse, a_view_click_forgets_the_users_end) {
    auto h = Handergebnis_Studien(1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "0", "1000"));
    Zusammenfassung(h, b);
    setze_Bereiche_nach_Ansicht(b, Anreicherung);
    EXPECT_EQ(Zeitachse(Zusammenfassung(h, b)), (Punkt{0, 364}));
}

TEST(Zusammenfassung_Zeitachse, the_background_shows_ten_years) {
    auto h = Handergebnis_Studien(1);
    h.Sicht.PEC_Typ = Hintergrund;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = Zusammenfassung(h, b);
    EXPECT_EQ(Zeitachse(d), (Punkt{0, 3649}));
    EXPECT_TRUE(Linien(d, 9, 1).empty());
}

TEST(Zusammenfassung_Zeitachse, an_empty_range_shows_axes_and_a_line_of_text_only) {
    auto h = Handergebnis_Studien(2);
    setze_Boden(h, {4});
    Diagrammbereiche b = Startbereiche(jaehrlich);
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "364", "50"));
    const Diagramm d = Zusammenfassung(h, b);
    EXPECT_EQ(d.Liste.Linien.size(), 2U);
    ASSERT_EQ(d.Liste.Texte.size(), 1U);
    EXPECT_EQ(d.Liste.Texte[0].Inhalt, "Start is not before the end of the axis");
    EXPECT_TRUE(d.Datei.Zeilen.empty());
    EXPECT_EQ(d.Legendeninhalt.Gruppen.at(0).Eintraege.size(), 2U);
}

// Height

TEST(Zusammenfassung_Hoehe, is_the_largest_value_of_the_days_shown) {
    auto h = Handergebnis_Studien(2);
    setze_Boden(h, {4, 2, 1});
    setze_Boden(h, {0, 3, 0}, 0, 1);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(Zusammenfassung(h, b).Liste.Linien[1].bis, (Punkt{0, 4}));
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "1", "100"));
    EXPECT_EQ(Zusammenfassung(h, b).Liste.Linien[1].bis, (Punkt{1, 3}));
    ASSERT_TRUE(uebernimm_Skalierung(b, true, 0, "2", "100"));
    EXPECT_EQ(Zusammenfassung(h, b).Liste.Linien[1].bis, (Punkt{2, 1}));
}

TEST(Zusammenfassung_Hoehe, is_that_of_the_view) {
    auto h = Handergebnis_Studien(2);
    setze_Boden(h, {2}, 0, 0);
    setze_Boden(h, {1}, 0, 1);
    setze_Plateau(h, {0, 7}, 0, 1);
    probe::setze_Plateauwert(h, 3.5F, 0, 1);
    const double erwartet[3] = {2, 7, 4.5};
    for (int Art = 0; Art < 3; ++Art) {
        h.Sicht.PEC_Typ = static_cast<PEC_Ansicht>(Art);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        EXPECT_EQ(Zusammenfassung(h, b).Liste.Linien[1].bis.y, erwartet[Art]) << Art;
    }
}

TEST(Zusammenfassung_Hoehe, the_y_axis_function_takes_both_ends_of_the_range) {
    auto h = Handergebnis_Studien(1);
    setze_Boden(h, {9, 1, 3, 5});
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(h, 0, 0, 3), 9);
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(h, 0, 1, 3), 5);
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(h, 0, 1, 2.5), 3);  // 2.5 rounds to 2
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(h, 0, 4, 10), 1);
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(h, 0, -5, 1E9), 9);
    EXPECT_EQ(erstelle_Diagramm_skaliere_y_Achse(h, 1, 0, 364), 1);
}

// Legend and texts

TEST(Zusammenfassung_Legende, has_a_line_for_each_study_and_no_more) {
    auto h = Handergebnis_Studien(3);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Legende erwartet = {Legendenart::Zusammenfassung,
                              {{"", {{"study 0", {9, 2}}, {"study 1", {10, 2}}, {"study 2", {11, 2}}}}}};
    EXPECT_EQ(Zusammenfassung(h, b).Legendeninhalt, erwartet);
}

TEST(Zusammenfassung_Legende, one_study_makes_a_sixth_of_the_height) {
    for (int n = 1; n <= 6; ++n) {
        auto h = Handergebnis_Studien(n);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        const Legende L = Zusammenfassung(h, b).Legendeninhalt;
        EXPECT_DOUBLE_EQ(Hoehenanteil(L), n / 6.0);
        EXPECT_EQ(volle_Zeilenzahl(L), 6);
        EXPECT_EQ(Legendenzeilen(L).size(), static_cast<std::size_t>(n));
    }
}

TEST(Zusammenfassung, title_and_comment) {
    auto h = Handergebnis_Studien(2);
    h.Felder.Berechnungsmodus = zwei_in_Folge;
    h.Felder.Parameter.Kinetik[1][1] = DFOP;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm_Zusammenfassung(h, b, 7, 1);
    EXPECT_EQ(d.Titel.Text, "Annual concentration of Wheat - All soil studies");
    EXPECT_NEAR(*d.Titel.links, 182 - (48 + 1) * 3.64 / 2, 1E-9);
    EXPECT_EQ(d.Kommentar.Text,
              "Mode: Parent and 2 metabolites (sequence)  - presented substance: first metabolite (kinetics: DFOP )");
    EXPECT_NEAR(*d.Kommentar.links, 182 - 100 * (364 / 90.0) / 2, 1E-9);
    EXPECT_TRUE(d.Kommentar.fett);
    EXPECT_EQ(d.Kommentar.Farbe, 0);
}

TEST(Zusammenfassung, the_table_titles_of_a_scheme_are_the_same) {
    auto h = Handergebnis_Studien(2);
    h.Felder.Berechnungsmodus = zwei_parallel;
    h.Sicht.Endpunkt = Porenwasser;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const std::vector<Diagramm> Diagramme = erstelle_Diagramme_Zusammenfassung(h, b, 0);
    ASSERT_EQ(Diagramme.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(Diagramme[i].Nummer, static_cast<int>(3 + i));
        EXPECT_EQ(Diagramme[i].Ergebnistitel, "Pore water concentrations (mg/L) incl. crop rotation");
    }
}

// All drawings of a scheme write the same file: the last one stands.
TEST(Zusammenfassung, the_file_is_that_of_the_last_diagram) {
    auto h = Handergebnis_Studien(2);
    h.Felder.Berechnungsmodus = zwei_parallel;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const std::vector<Diagramm> Diagramme = erstelle_Diagramme_Zusammenfassung(h, b, 0);
    EXPECT_TRUE(Diagramme[0].Datei.Dateiname.empty());
    EXPECT_TRUE(Diagramme[1].Datei.Dateiname.empty());
    EXPECT_EQ(Diagramme[2].Datei.Dateiname, "Diagram.txt");
    EXPECT_EQ(Diagramme[2].Datei.Zeilen.at(0), "0 2 1 0");
}

}  // namespace
}  // namespace varnok
