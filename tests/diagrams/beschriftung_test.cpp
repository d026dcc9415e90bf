#include "diagrams/beschriftung.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "diagrams/diagrammbau.h"
#include "diagrams/handergebnis.h"

namespace varnok {
namespace {

using probe::Handergebnis;

// Titles and comments, letter by letter

TEST(Beschriftung, title_of_each_view) {
    Handergebnis h;
    const char* erwartet[3] = {"Annual concentration of Wheat Study: field", "Background concentration of Wheat Study: field",
                               "PEC acumumlation for Wheat Study: field"};
    for (int Art = 0; Art < 3; ++Art) {
        h.Sicht.PEC_Typ = static_cast<PEC_Ansicht>(Art);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        EXPECT_EQ(erstelle_Diagramm(h, b, 0, 0).Titel.Text, erwartet[Art]);
        h.Felder.Berechnungsmodus = ein_Metabolit;
        EXPECT_EQ(erstelle_Diagramm_mehrfach(h, b, 3, 0, 0).Titel.Text, erwartet[Art]);
    }
}

TEST(Beschriftung, summary_title_of_each_view) {
    Handergebnis h;
    const char* erwartet[3] = {"Annual concentration of Wheat - All soil studies",
                               "Background concentration of Wheat - All soil studies",
                               "PEC acumumlation for Wheat - All soil studies"};
    for (int Art = 0; Art < 3; ++Art) {
        h.Sicht.PEC_Typ = static_cast<PEC_Ansicht>(Art);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        EXPECT_EQ(erstelle_Diagramm_Zusammenfassung(h, b, 0, 0).Titel.Text, erwartet[Art]);
    }
}

TEST(Beschriftung, comment_of_each_diagram) {
    Handergebnis h;
    h.Felder.Parameter.Kinetik[0][0] = HS;
    h.Felder.Parameter.Kinetik[2][0] = DFOP;
    const struct {
        int d, Schema;
        const char* Text;
    } Faelle[] = {
        {0, 0, "Mode: Parent only  - presented substance: parent (kinetics: HS )"},
        {1, 1, "Mode: Parent with 1 metabolite  - presented substance: parent (kinetics: HS )"},
        {2, 1, "Mode: Parent with 1 metabolite  - presented substance: first metabolite (kinetics: SFO )"},
        {4, 2, "Mode: Parent and 2 metabolites (parallel)  - presented substance: parent (kinetics: HS )"},
        {5, 2, "Mode: Parent and 2 metabolites (parallel)  - presented substance: first metabolite (kinetics: SFO )"},
        {6, 2, "Mode: Parent and 2 metabolites (parallel)  - presented substance: second metabolite (kinetics: DFOP )"},
        {8, 3, "Mode: Parent and 2 metabolites (sequence)  - presented substance: parent (kinetics: HS )"},
        {9, 3, "Mode: Parent and 2 metabolites (sequence)  - presented substance: first metabolite (kinetics: SFO )"},
        {10, 3, "Mode: Parent and 2 metabolites (sequence)  - presented substance: second metabolite (kinetics: DFOP )"}};
    for (const auto& f : Faelle) {
        h.Felder.Berechnungsmodus = static_cast<Stoffschema>(f.Schema);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        EXPECT_EQ(erstelle_Diagramm(h, b, f.d, 0).Kommentar.Text, f.Text) << f.d;
    }
    h.Felder.Parameter.Kinetik[0][0] = FOMC;
    h.Felder.Berechnungsmodus = nur_Wirkstoff;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(erstelle_Diagramm(h, b, 0, 0).Kommentar.Text, "Mode: Parent only  - presented substance: parent (kinetics: FOMC )");
}

TEST(Beschriftung, multi_compound_comment_is_black_bold_and_short) {
    Handergebnis h;
    const struct {
        int d, Schema;
        const char* Text;
    } Faelle[] = {{3, 1, "Mode: Parent with 1 metabolite"},
                  {7, 2, "Mode: Parent and 2 metabolites (parallel)"},
                  {11, 3, "Mode: Parent and 2 metabolites (sequence)"}};
    for (const auto& f : Faelle) {
        h.Felder.Berechnungsmodus = static_cast<Stoffschema>(f.Schema);
        Diagrammbereiche b = Startbereiche(jaehrlich);
        const Beschriftung k = erstelle_Diagramm_mehrfach(h, b, f.d, 0, 0).Kommentar;
        EXPECT_EQ(k.Text, f.Text);
        EXPECT_EQ(k.Farbe, 0);
        EXPECT_TRUE(k.fett);
        const auto n = static_cast<double>(k.Text.size());
        EXPECT_NEAR(*k.links, 182 - n * (364 / 100.0) / 2, 1E-9) << f.d;
    }
}

// 42 characters, one, and the 5 of the study once more; the comment has 65.
TEST(Beschriftung, rough_centring_over_a_year) {
    Handergebnis h;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    setze_Bereiche_nach_Ansicht(b, jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_NEAR(*d.Titel.links, 182.5 - 48 * 3.65 / 2, 1E-9);
    EXPECT_NEAR(*d.Kommentar.links, 182.5 - 65 * (365 / 90.0) / 2, 1E-9);
    EXPECT_TRUE(d.Kommentar.fett);
}

TEST(Beschriftung, centring_follows_the_range_shown) {
    Handergebnis h;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Start[0] = 100;
    b.X_Ende[0] = 300;
    EXPECT_NEAR(*erstelle_Diagramm(h, b, 0, 0).Titel.links, 200 - 48 * 2.0 / 2, 1E-9);
}

TEST(Beschriftung, blanks_at_the_ends_do_not_count_and_letters_are_characters) {
    Handergebnis h;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    b.X_Ende[0] = 100;
    h.Felder.Studie[0] = "";
    // "Annual concentration of Wheat Study:" without the blank at its end
    EXPECT_NEAR(*erstelle_Diagramm(h, b, 0, 0).Titel.links, 50 - (36 + 1) / 2.0, 1E-9);
    h.Felder.Studie[0] = "größer";
    EXPECT_NEAR(*erstelle_Diagramm(h, b, 0, 0).Titel.links, 50 - (37 + 6 + 1 + 6) / 2.0, 1E-9);
}

// Nothing is cut here: whoever paints it keeps it inside the surface.
TEST(Beschriftung, a_long_title_starts_left_of_the_surface) {
    Handergebnis h;
    h.Felder.Beschreibung = std::string(100, 'x');
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const Diagramm d = erstelle_Diagramm(h, b, 0, 0);
    EXPECT_LT(*d.Titel.links, d.Liste.System.links);
    EXPECT_EQ(d.Titel.Text, "Annual concentration of " + std::string(100, 'x') + " Study: field");
}

TEST(Beschriftung, axis_names_and_table_titles_by_unit_and_endpoint) {
    const struct {
        int Einheit, Endpunkt;
        const char *Achse, *Tabelle;
    } Faelle[] = {{0, 0, "c(mg/kg)", "Total soil concentrations (mg/kg) incl. crop rotation"},
                  {0, 1, "c(mg/L)", "Pore water concentrations (mg/L) incl. crop rotation"},
                  {1, 0, "c(µg/kg)", "Total soil concentrations (µg/kg) incl. crop rotation"},
                  {1, 1, "c(µg/L)", "Pore water concentrations (µg/L) incl. crop rotation"}};
    for (const auto& f : Faelle) {
        Handergebnis h;
        h.Felder.Parameter.Einheit = static_cast<Einheitsart>(f.Einheit);
        h.Sicht.Endpunkt = static_cast<Endpunktart>(f.Endpunkt);
        h.Felder.Berechnungsmodus = ein_Metabolit;
        Diagrammbereiche b = Startbereiche(jaehrlich);
        const Diagramm einzeln = erstelle_Diagramm(h, b, 1, 0);
        EXPECT_EQ(einzeln.Name_y_Achse.Text, f.Achse);
        EXPECT_EQ(einzeln.Ergebnistitel, f.Tabelle);
        EXPECT_EQ(einzeln.Name_x_Achse.Text, "Time after first application (d)");
        EXPECT_FALSE(einzeln.Name_x_Achse.links || einzeln.Name_y_Achse.links);
        EXPECT_EQ(erstelle_Diagramm_mehrfach(h, b, 3, 0, 0).Name_y_Achse.Text, f.Achse);
        const Diagramm zusammen = erstelle_Diagramm_Zusammenfassung(h, b, 1, 0);
        EXPECT_EQ(zusammen.Name_y_Achse.Text, f.Achse);
        EXPECT_EQ(zusammen.Ergebnistitel, f.Tabelle);
        EXPECT_EQ(zusammen.Name_x_Achse.Text, "Time after first application (d)");
    }
}

TEST(Beschriftung, the_window_in_the_legend_has_two_blanks) {
    Handergebnis h;
    h.Sicht.TWA_Laenge = 6;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    EXPECT_EQ(erstelle_Diagramm(h, b, 0, 0).Legendeninhalt.Gruppen.at(0).Eintraege.at(1).Text, "TWA  (28 d)");
}

// An input that was changed after the run: what was calculated keeps its unit, scheme, kinetics and windows, what is only
// called otherwise shows its new name.
TEST(Beschriftung, names_are_those_of_now_and_all_else_is_that_of_the_result) {
    probe::Darstellungsprobe p = probe::leere_Probe({});
    p.Felder.Parameter.Kinetik[0][0] = HS;
    p.Studie(0);
    p.Felder.Beschreibung = "Barley";
    p.Felder.Studie[0] = "lab";
    p.Felder.Name_Wirkstoff = "new name";
    p.Felder.Parameter.Einheit = Mikrogramm;
    p.Felder.Berechnungsmodus = zwei_parallel;
    p.Felder.Parameter.Kinetik[0][0] = FOMC;
    p.Felder.Parameter.TWA_Zeiten = Monatsliste;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    const std::vector<Diagramm> Diagramme = erstelle_Diagramme(p, b, 0);
    ASSERT_EQ(Diagramme.size(), 1U);
    const Diagramm& d = Diagramme[0];
    EXPECT_EQ(d.Titel.Text, "Annual concentration of Barley Study: lab");
    EXPECT_EQ(d.Kommentar.Text, "Mode: Parent only  - presented substance: new name (kinetics: HS )");
    EXPECT_EQ(d.Name_y_Achse.Text, "c(mg/kg)");
    EXPECT_EQ(d.Einheit, Milligramm);
    EXPECT_EQ(d.Datei.Dateiname, "Detailed Results - new name.tab");
    EXPECT_EQ(d.Legendeninhalt.Gruppen.at(0).Eintraege.at(1).Text, "TWA  (1 d)");
}

// Layout

TEST(Legendenzeilen, headings_stand_over_the_entries_of_a_compound) {
    const Legende L = {Legendenart::mehrfach,
                       {{"a", {{"PEC", {1, 2}}, {"TWA", {9, 1}}}}, {"", {{"PEC", {2, 2}}, {"TWA", {10, 1}}}}}};  // without a name
    std::vector<std::string> Texte;
    for (const Legendenzeile& z : Legendenzeilen(L)) Texte.push_back((z.Ueberschrift ? "# " : "") + z.Text);
    EXPECT_EQ(Texte, (std::vector<std::string>{"# a", "PEC", "TWA", "# ", "PEC", "TWA"}));
}

TEST(Legendenzeilen, lie_evenly_within_the_frame) {
    const Legende L = {Legendenart::einzeln, {{"", {{"PEC", {1, 2}}, {"TWA", {9, 1}}}}}};
    const std::vector<Legendenzeile> Zeilen = Legendenzeilen(L);
    ASSERT_EQ(Zeilen.size(), 2U);
    EXPECT_DOUBLE_EQ(Zeilen[0].Linie_oben, 0.25);
    EXPECT_DOUBLE_EQ(Zeilen[1].Linie_oben, 0.75);
    for (const Legendenzeile& z : Zeilen) {
        EXPECT_FALSE(z.Ueberschrift);
        EXPECT_GT(z.Textort.links, 0);
        EXPECT_LT(z.Textort.links, z.Linie_links);
        EXPECT_LT(z.Linie_links, z.Linie_rechts);
        EXPECT_LT(z.Linie_rechts, 1);
    }
    EXPECT_EQ(Zeilen[1].Linie, (Musterlinie{9, 1}));
}

TEST(Beschriftungsplaetze, home_frames_lie_on_the_surface) {
    auto h = probe::Handergebnis_Studien(6);
    h.Felder.Berechnungsmodus = zwei_in_Folge;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    std::vector<Diagramm> Diagramme = erstelle_Diagramme(h, b, 0);
    for (Diagramm& d : erstelle_Diagramme_Zusammenfassung(h, b, 0)) Diagramme.push_back(d);
    for (const Diagramm& d : Diagramme) {
        const Flaechenrechteck r = Heimatplaetze(d.Legendeninhalt).Legendenrahmen;
        EXPECT_DOUBLE_EQ(r.links, 7000 / 9600.0);
        EXPECT_DOUBLE_EQ(r.oben, (d.Legendeninhalt.Art == Legendenart::mehrfach ? 1000 : 500) / 7500.0);
        EXPECT_LE(r.links + r.Breite, 1 - 6 / 640.0);
        EXPECT_LE(r.oben + r.Hoehe, 1 - 6 / 500.0);
    }
}

TEST(Beschriftungsplaetze, a_place_of_the_surface_in_logical_coordinates) {
    const Koordinaten k = {-10, 110, 90, -90};
    EXPECT_EQ(logisch(k, {0, 0}), (Punkt{-10, 110}));
    EXPECT_EQ(logisch(k, {1, 1}), (Punkt{90, -90}));
    EXPECT_EQ(logisch(k, {0.25, 0.5}), (Punkt{15, 10}));
}

// Copy into the picture

const Schriftzug& suche(const Diagramm& d, const std::string& Inhalt) {
    const std::vector<Schriftzug>& Texte = d.Liste.Texte;
    const auto Fund = std::find_if(Texte.begin(), Texte.end(), [&](const Schriftzug& t) { return t.Inhalt == Inhalt; });
    if (Fund == Texte.end()) throw std::logic_error("no text " + Inhalt);
    return *Fund;
}

void hat_Schrift(const Schriftzug& t, int Farbe, bool fett, bool kursiv) {
    EXPECT_EQ(t.Farbe, Farbe) << t.Inhalt;
    EXPECT_EQ(t.fett, fett) << t.Inhalt;
    EXPECT_EQ(t.kursiv, kursiv) << t.Inhalt;
    EXPECT_EQ(t.Groesse, 10) << t.Inhalt;
    EXPECT_TRUE(t.einpassen) << t.Inhalt;
}

// The surface is 113 by 1.225; the legend takes a quarter of it from its middle on.
struct Kopie {
    explicit Kopie(int Nummer) {
        h.Felder.Berechnungsmodus = Nummer == 3 ? ein_Metabolit : nur_Wirkstoff;
        b.X_Ende.fill(100);
        d = Nummer == 3 ? erstelle_Diagramm_mehrfach(h, b, 3, 0, 0) : erstelle_Diagramm(h, b, 0, 0);
        Linien_vorher = d.Liste.Linien.size();
        Texte_vorher = d.Liste.Texte.size();
        Plaetze.Legendenrahmen = {0.5, 0.5, 0.25, 0.25};
        erstelle_Diagramm_kopiere_Beschriftung(d, Plaetze);
    }
    Handergebnis h;
    Diagrammbereiche b = Startbereiche(jaehrlich);
    Diagramm d;
    Beschriftungsplaetze Plaetze;
    std::size_t Linien_vorher = 0;
    std::size_t Texte_vorher = 0;
};

TEST(Kopierte_Beschriftung, fonts_and_colours_of_the_labels) {
    const Kopie k(0);
    hat_Schrift(suche(k.d, k.d.Titel.Text), 0, true, false);
    hat_Schrift(suche(k.d, "Time after first application (d)"), 0, true, false);
    hat_Schrift(suche(k.d, "c(mg/kg)"), 0, true, false);
    hat_Schrift(suche(k.d, k.d.Kommentar.Text), 1, false, true);  // italic here, bold on the screen
    hat_Schrift(suche(k.d, "PEC"), 0, false, false);
    hat_Schrift(suche(k.d, "TWA  (1 d)"), 0, false, false);
}

TEST(Kopierte_Beschriftung, title_and_comment_take_their_left_edge_along) {
    const Kopie k(0);
    const Koordinaten& s = k.d.Liste.System;
    EXPECT_EQ(suche(k.d, k.d.Titel.Text).Ort, (Punkt{*k.d.Titel.links, s.oben - k.Plaetze.Titel_oben * s.Hoehe()}));
    EXPECT_EQ(suche(k.d, k.d.Kommentar.Text).Ort, (Punkt{*k.d.Kommentar.links, s.oben - k.Plaetze.Kommentar_oben * s.Hoehe()}));
    EXPECT_EQ(suche(k.d, "c(mg/kg)").Ort, logisch(s, k.Plaetze.Name_y_Achse));
    EXPECT_EQ(suche(k.d, "Time after first application (d)").Ort, logisch(s, k.Plaetze.Name_x_Achse));
}

TEST(Kopierte_Beschriftung, single_legend_with_box_and_sample_lines) {
    const Kopie k(0);
    const Koordinaten& s = k.d.Liste.System;
    ASSERT_EQ(k.d.Liste.Kaesten.size(), 1U);
    EXPECT_EQ(k.d.Liste.Kaesten[0], (Kasten{logisch(s, {0.5, 0.5}), logisch(s, {0.75, 0.75}), 0, 1, k.Linien_vorher}));
    EXPECT_EQ(k.d.Liste.Texte.size(), k.Texte_vorher + 6);
    ASSERT_EQ(k.d.Liste.Linien.size(), k.Linien_vorher + 2);
    const Linie& PEC = k.d.Liste.Linien[k.Linien_vorher];
    const Linie& TWA = k.d.Liste.Linien[k.Linien_vorher + 1];
    EXPECT_EQ(PEC.Farbe, 1);
    EXPECT_EQ(PEC.Breite, 2);
    EXPECT_EQ(TWA.Farbe, 9);
    EXPECT_EQ(TWA.Breite, 1);
    EXPECT_EQ(PEC.von.y, PEC.bis.y);
    EXPECT_GT(PEC.von.y, TWA.von.y);
    for (const Linie& m : {PEC, TWA}) {
        EXPECT_GT(m.von.x, logisch(s, {0.5, 0}).x);
        EXPECT_LT(m.bis.x, logisch(s, {0.75, 0}).x);
        EXPECT_LT(m.von.y, logisch(s, {0, 0.5}).y);
        EXPECT_GT(m.von.y, logisch(s, {0, 0.75}).y);
    }
}

TEST(Kopierte_Beschriftung, multi_compound_legend_with_the_names) {
    const Kopie k(3);
    EXPECT_EQ(k.d.Liste.Kaesten.size(), 1U);
    hat_Schrift(suche(k.d, "parent"), 0, false, false);
    hat_Schrift(suche(k.d, "first metabolite"), 0, false, false);
    EXPECT_EQ(k.d.Liste.Texte.size(), k.Texte_vorher + 4 + 6);
    ASSERT_EQ(k.d.Liste.Linien.size(), k.Linien_vorher + 4);
    const int Farben[4] = {1, 9, 2, 10};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(k.d.Liste.Linien[k.Linien_vorher + i].Farbe, Farben[i]);
}

TEST(Kopierte_Beschriftung, summary_legend_with_the_studies) {
    auto h = probe::Handergebnis_Studien(2);
    Diagrammbereiche b = Startbereiche(jaehrlich);
    Diagramm d = erstelle_Diagramm_Zusammenfassung(h, b, 0, 0);
    const std::size_t vorher = d.Liste.Linien.size();
    erstelle_Diagramm_zusammenfassung_kopiere_Beschriftung(d, Heimatplaetze(d.Legendeninhalt));
    hat_Schrift(suche(d, d.Titel.Text), 0, true, false);
    hat_Schrift(suche(d, d.Kommentar.Text), 0, false, true);
    hat_Schrift(suche(d, "study 0"), 0, false, false);
    hat_Schrift(suche(d, "study 1"), 0, false, false);
    ASSERT_EQ(d.Liste.Linien.size(), vorher + 2);
    EXPECT_EQ(d.Liste.Linien[vorher].Farbe, 9);
    EXPECT_EQ(d.Liste.Linien[vorher + 1].Farbe, 10);
    EXPECT_EQ(d.Liste.Linien[vorher + 1].Breite, 2);
}

// Building the diagram anew is what takes the copied labels away.
TEST(Kopierte_Beschriftung, is_gone_with_the_next_drawing) {
    Kopie k(0);
    const Diagramm neu = erstelle_Diagramm(k.h, k.b, 0, 0);
    EXPECT_EQ(neu.Liste.Texte.size(), k.Texte_vorher);
    EXPECT_EQ(neu.Liste.Linien.size(), k.Linien_vorher);
    EXPECT_TRUE(neu.Liste.Kaesten.empty());
}

}  // namespace
}  // namespace varnok
