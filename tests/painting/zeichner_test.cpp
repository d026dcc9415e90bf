// A display list on a surface.

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <stdexcept>

#include "painting/bildflaeche.h"
#include "painting/bildprobe.h"
#include "painting/zeichner.h"

namespace varnok::probe {
namespace {

constexpr QRgb Weiss = 0xFFFFFFFF;

QImage gemalt(const Zeichenliste& z, double Dichte = 1, QSize Groesse = {100, 100}) {
    QImage Bild(Groesse * Dichte, QImage::Format_RGB32);
    Bild.fill(Qt::white);
    QPainter p(&Bild);
    p.scale(Dichte, Dichte);
    male(p, QRectF(QPointF(), QSizeF(Groesse)), z);
    return Bild;
}

// A surface of 100 x 100 units, y up, one logical unit each.
Zeichenliste Liste() {
    Zeichenliste z;
    z.System = {0, 100, 100, 0};
    return z;
}

int Punkte_der_Farbe(const QImage& Bild, QRgb Farbe) {
    int Anzahl = 0;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) Anzahl += Bild.pixel(x, y) == Farbe;
    }
    return Anzahl;
}

TEST(Zeichner, y_points_up) {
    const Koordinaten k = {-10, 1.1, 100, -0.1};
    EXPECT_EQ(auf_Flaeche({0, 0, 640, 500}, k, {-10, 1.1}), QPointF(0, 0));
    EXPECT_EQ(auf_Flaeche({0, 0, 640, 500}, k, {100, -0.1}), QPointF(640, 500));
    EXPECT_EQ(auf_Flaeche({20, 30, 640, 500}, k, {45, 0.5}), QPointF(20 + 320, 30 + 250));
}

// Width and length of a line in pixels grow with the density, whatever the logical units are.
TEST(Zeichner, line_is_as_wide_as_the_density_wants) {
    Zeichenliste z = Liste();
    z.System = {0, 1e-6, 3650, 0};
    z.Linien.push_back({{0, 0.5e-6}, {3650, 0.5e-6}, 12, 2});
    for (const int Dichte : {1, 2, 3}) {
        EXPECT_EQ(Punkte_der_Farbe(gemalt(z, Dichte), 0xFFFF0000), 100 * Dichte * 2 * Dichte) << Dichte;
    }
}

TEST(Zeichner, axes_are_sharp_and_slopes_are_smooth) {
    Zeichenliste z = Liste();
    z.Linien.push_back({{10, 20.3}, {90, 20.3}, 0, 1});
    z.Linien.push_back({{20.7, 5}, {20.7, 95}, 0, 1});
    QImage Bild = gemalt(z);
    EXPECT_EQ(Punkte_der_Farbe(Bild, 0xFF000000) + Punkte_der_Farbe(Bild, Weiss), 100 * 100);
    z = Liste();
    z.Linien.push_back({{10, 20}, {90, 57}, 0, 2});
    Bild = gemalt(z);
    EXPECT_LT(Punkte_der_Farbe(Bild, 0xFF000000) + Punkte_der_Farbe(Bild, Weiss), 100 * 100);
}

TEST(Zeichner, colours_are_those_of_the_list_on_a_dark_desktop_too) {
    const QPalette vorher = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette(Qt::white, Qt::black));
    Zeichenliste z = Liste();
    z.Linien.push_back({{0, 50}, {100, 50}, 2, 2});
    z.Texte.push_back({{10, 40}, "text"});
    const QImage Bild = gemalt(z, 2);
    QGuiApplication::setPalette(vorher);
    EXPECT_EQ(Punkte_der_Farbe(Bild, 0xFF008000), 200 * 4);
    EXPECT_GT(Punkte_der_Farbe(Bild, 0xFF000000), 20);
    EXPECT_EQ(Bild.pixel(0, 0), Weiss);
}

TEST(Zeichner, nothing_leaves_the_surface) {
    Zeichenliste z = Liste();
    z.Linien.push_back({{-50, 50}, {500, 50}, 0, 2});
    QImage Bild(200, 100, QImage::Format_RGB32);
    Bild.fill(Qt::white);
    QPainter p(&Bild);
    male(p, QRectF(50, 0, 100, 100), z);
    p.end();
    EXPECT_EQ(Bild.pixel(49, 50), Weiss);
    EXPECT_NE(Bild.pixel(50, 50), Weiss);
    EXPECT_NE(Bild.pixel(149, 50), Weiss);
    EXPECT_EQ(Bild.pixel(150, 50), Weiss);
}

TEST(Zeichner, box_is_an_outline) {
    Zeichenliste z = Liste();
    z.Kaesten.push_back({{20, 80}, {70, 40}, 9, 1});
    const QImage Bild = gemalt(z);
    EXPECT_EQ(Bild.pixel(45, 40), Weiss);
    EXPECT_EQ(Bild.pixel(45, 20), 0xFF0000FF);
    EXPECT_EQ(Bild.pixel(45, 60), 0xFF0000FF);
    EXPECT_EQ(Bild.pixel(20, 40), 0xFF0000FF);
    EXPECT_EQ(Bild.pixel(70, 40), 0xFF0000FF);
}

// --- texts -------------------------------------------------------------------------------------------------

const QRectF Flaeche(0, 0, 200, 100);
const Koordinaten System = {0, 100, 200, 0};

TEST(Schrift, stands_with_its_upper_left_corner_at_its_place) {
    const Schriftbild s = setze_Schrift(Flaeche, System, {{30, 80}, "x"});
    EXPECT_EQ(s.Platz.topLeft(), QPointF(30, 20));
    EXPECT_EQ(s.Schrift.pixelSize(), 13);  // 10 points at 96 per inch
    EXPECT_FALSE(s.gekuerzt);
}

TEST(Schrift, number_at_the_edge_is_not_moved) {
    EXPECT_EQ(setze_Schrift(Flaeche, System, {{195, 80}, "365"}).Platz.left(), 195);
}

TEST(Schrift, label_is_moved_inside) {
    const Schriftbild rechts = setze_Schrift(Flaeche, System, {{190, 2}, "label", 0, 10, true, false, true});
    EXPECT_DOUBLE_EQ(rechts.Platz.right(), 200);
    EXPECT_DOUBLE_EQ(rechts.Platz.bottom(), 100);
    const Schriftbild links = setze_Schrift(Flaeche, System, {{-50, 150}, "label", 0, 10, true, false, true});
    EXPECT_EQ(links.Platz.topLeft(), QPointF(0, 0));
    EXPECT_FALSE(links.gekuerzt);
}

TEST(Schrift, label_shrinks_before_it_is_cut) {
    const Schriftzug s = {{0, 50}, "a label of thirty-two characters", 0, 10, false, false, true};
    const Schriftbild Fenster = setze_Schrift(Flaeche, System, s, Schriftgroesse_Fenster);
    EXPECT_TRUE(Fenster.gekuerzt);
    EXPECT_EQ(Fenster.Schrift.pixelSize(), 13);
    EXPECT_LE(Fenster.Platz.width(), 200);
    EXPECT_TRUE(Fenster.Text.startsWith(QStringLiteral("a lab")) && Fenster.Text.endsWith(QStringLiteral("ters")));
    const Schriftbild Bericht = setze_Schrift(Flaeche, System, s, Schriftgroesse_Bericht);
    EXPECT_FALSE(Bericht.gekuerzt);
    EXPECT_LT(Bericht.Schrift.pixelSize(), 13);
    EXPECT_LE(Bericht.Platz.width(), 200);
    EXPECT_EQ(Bericht.Text, QStringLiteral("a label of thirty-two characters"));
}

TEST(Schrift, label_too_wide_even_at_7_points_loses_its_middle) {
    const Schriftbild s =
        setze_Schrift(Flaeche, System, {{0, 50}, std::string(60, 'w'), 0, 10, false, false, true}, Schriftgroesse_Bericht);
    EXPECT_TRUE(s.gekuerzt);
    EXPECT_EQ(s.Schrift.pixelSize(), 9);
    EXPECT_LE(s.Platz.width(), 200);
}

TEST(Legende, frame_grows_with_its_texts_to_a_third_of_the_surface) {
    Legende l = {Legendenart::Zusammenfassung, {{"", {{"S", {}}, {"a long name", {}}}}}};
    Beschriftungsplaetze p;
    p.Legendenrahmen = {0.7, 0.05, 0.1, 0.1};
    passe_Legende_an(l, p, 640);
    EXPECT_GT(p.Legendenrahmen.Breite, 0.1);
    EXPECT_LT(p.Legendenrahmen.Breite, 1.0 / 3);
    EXPECT_DOUBLE_EQ(p.Musterlinie_links, Beschriftungsplaetze().Musterlinie_links);
    EXPECT_EQ(l.Gruppen[0].Eintraege[1].Text, "a long name");
    l.Gruppen[0].Eintraege[1].Text = std::string(80, 'n');
    passe_Legende_an(l, p, 640);
    EXPECT_DOUBLE_EQ(p.Legendenrahmen.Breite, 1.0 / 3);
    EXPECT_LE(p.Legendenrahmen.links + p.Legendenrahmen.Breite, 1);
    EXPECT_EQ(l.Gruppen[0].Eintraege[0].Text, "S");
    EXPECT_LT(l.Gruppen[0].Eintraege[1].Text.size(), 40U);
    EXPECT_EQ(l.Gruppen[0].Eintraege[1].Text.substr(0, 5), "nnnnn");
}

TEST(Legende, sample_lines_give_way_before_a_text_is_cut) {
    Legende l = {Legendenart::Zusammenfassung, {{"", {{"S", {}}, {"a name of some length", {}}}}}};
    Beschriftungsplaetze p;
    p.Legendenrahmen = {0.7, 0.05, 0.25, 0.1};
    passe_Legende_an(l, p, 640);
    EXPECT_EQ(l.Gruppen[0].Eintraege[1].Text, "a name of some length");
    EXPECT_GT(p.Musterlinie_links, Beschriftungsplaetze().Musterlinie_links);
    for (const Legendenzeile& z : Legendenzeilen(l, p.Musterlinie_links)) EXPECT_GT(z.Linie_rechts - z.Linie_links, 0.07);
}

// --- the report's picture ----------------------------------------------------------------------------------

const QRectF Bildflaeche(0, 0, 640, 500);

QRectF Platz(const Zeichenliste& z, const Schriftzug& s) {
    return setze_Schrift(Bildflaeche, z.System, s, Schriftgroesse_Bericht).Platz;
}

// Letters stand within the line: two units of it are air.
QRectF Tinte(const Zeichenliste& z, const Schriftzug& s) { return Platz(z, s).adjusted(0, 1, 0, -1); }

QRectF Legendenkasten(const Zeichenliste& z) {
    const Kasten& k = z.Kaesten.at(0);
    return QRectF(auf_Flaeche(Bildflaeche, z.System, k.links_oben), auf_Flaeche(Bildflaeche, z.System, k.rechts_unten));
}

const Schriftzug& Text(const Zeichenliste& z, const std::string& Inhalt) {
    const auto Treffer = std::find_if(z.Texte.begin(), z.Texte.end(), [&](const Schriftzug& s) { return s.Inhalt == Inhalt; });
    if (Treffer == z.Texte.end()) throw std::logic_error("no text " + Inhalt);
    return *Treffer;
}

TEST(Berichtsbild, holds_axes_curve_and_labels) {
    const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm(Lauf_bauer().Schema(ein_Metabolit).nach_SFO(0.02, 1)));
    std::vector<std::string> Texte;
    for (const Schriftzug& s : z.Texte) Texte.push_back(s.Inhalt);
    for (const char* Text :
         {"Annual concentration of the problem Study: field", "Time after first application (d)", "c(mg/kg)", "PEC"}) {
        EXPECT_NE(std::find(Texte.begin(), Texte.end(), Text), Texte.end()) << Text;
    }
    EXPECT_EQ(z.Kaesten.size(), 1U);
    const QImage Bild = erstelle_Berichtsbild(z);
    EXPECT_EQ(Bild.size(), QSize(1920, 1500));
    EXPECT_GT(Punkte_der_Farbe(Bild, 0xFF000080), 1000);  // the curve of the parent
    EXPECT_EQ(Bild.pixel(0, 0), Weiss);
}

TEST(Berichtsbild, legend_stands_where_it_was_moved_to) {
    const Diagramm d = Wirkstoffdiagramm();
    const QRectF Kasten = Legendenkasten(mit_Beschriftung(d, {.Legende = Flaechenort{0.2, 0.5}}));
    EXPECT_NEAR(Kasten.left(), 128, 1e-6);
    EXPECT_NEAR(Kasten.top(), 250, 1e-6);
}

// The fractions of a window of another shape are kept inside.
TEST(Berichtsbild, legend_stays_on_the_picture_wherever_it_was_moved_to) {
    const Diagramm d = Wirkstoffdiagramm();
    for (const Flaechenort Ort : {Flaechenort{0.99, 0.99}, {0, 0}, {0.9, 0}}) {
        const QRectF Kasten = Legendenkasten(mit_Beschriftung(d, {.Legende = Ort}));
        EXPECT_TRUE(Bildflaeche.contains(Kasten)) << Ort.links << ' ' << Ort.oben;
    }
}

TEST(Berichtsbild, legend_at_home_stands_right_below_title_and_comment) {
    const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm());
    const QRectF Kasten = Legendenkasten(z);
    EXPECT_NEAR(Kasten.left(), 7000 / 15.0, 1e-6);
    EXPECT_NEAR(Kasten.top(), 500 / 15.0, 6);
    for (const Schriftzug& s : z.Texte) {
        EXPECT_FALSE((s.fett || s.kursiv) && Platz(z, s).intersects(Kasten)) << s.Inhalt;
    }
}

// Numbers of any length, at the smallest steps that a range can have.
TEST(Berichtsbild, numbers_touch_neither_each_other_nor_the_names_of_their_axes) {
    struct Fall {
        double Ende;
        const char* Rate;
        int Einheit;
    };
    for (const Fall& f : {Fall{365, "1000", 0}, {3649, "1000", 0}, {1580, "0.0149", 0}, {11, "3.1", 0}, {100, "999000", 1}}) {
        const Darstellungsprobe p = gerechnetes_Problem(Lauf_bauer().Dosis(f.Rate, "0").Einheit(f.Einheit));
        Diagrammbereiche b = Startbereiche(jaehrlich);
        b.X_Ende.fill(f.Ende);
        const Zeichenliste z = mit_Beschriftung(erstelle_Diagramm(p, b, 0, 0));
        std::vector<const Schriftzug*> Zahlen, Namen;
        for (const Schriftzug& s : z.Texte) (s.einpassen ? Namen : Zahlen).push_back(&s);
        ASSERT_GT(Zahlen.size(), 6U);
        for (const Schriftzug* s : Zahlen) {
            EXPECT_TRUE(Bildflaeche.contains(Platz(z, *s))) << s->Inhalt;
            const auto beruehrt = [&](const Schriftzug* t) { return s != t && Tinte(z, *s).intersects(Tinte(z, *t)); };
            for (const Schriftzug* t : Zahlen) EXPECT_FALSE(beruehrt(t)) << s->Inhalt << ' ' << t->Inhalt;
            for (const Schriftzug* t : Namen) EXPECT_FALSE(beruehrt(t)) << s->Inhalt << ' ' << t->Inhalt;
        }
    }
}

TEST(Berichtsbild, names_of_the_axes_stand_in_the_middle_of_one_and_on_top_of_the_other) {
    const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm());
    const QPointF Anfang = auf_Flaeche(Bildflaeche, z.System, z.Linien[0].von);
    const QPointF Ende = auf_Flaeche(Bildflaeche, z.System, z.Linien[0].bis);
    const QRectF Zeit = Platz(z, Text(z, "Time after first application (d)"));
    EXPECT_NEAR(Zeit.center().x(), (Anfang.x() + Ende.x()) / 2, 1);
    EXPECT_GT(Zeit.top(), Anfang.y());
    const QRectF Gehalt = Platz(z, Text(z, "c(mg/kg)"));
    EXPECT_GT(Gehalt.left(), Anfang.x());
    EXPECT_LT(Gehalt.left(), Anfang.x() + 10);
    EXPECT_LT(Gehalt.bottom(), auf_Flaeche(Bildflaeche, z.System, z.Linien[1].bis).y());
}

TEST(Berichtsbild, labels_never_touch_each_other) {
    Lauf_bauer b = Lauf_bauer().Schema(zwei_parallel);
    b.Felder.Beschreibung = "A description that is so long that its title fills the whole width of the picture";
    const Zeichenliste z = mit_Beschriftung(Wirkstoffdiagramm(b));
    std::vector<QRectF> Plaetze;
    for (const Schriftzug& t : z.Texte) {
        if (t.einpassen) Plaetze.push_back(Tinte(z, t));
    }
    ASSERT_GE(Plaetze.size(), 6U);
    for (std::size_t i = 0; i < Plaetze.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(Plaetze[i].intersects(Plaetze[j])) << i << ' ' << j;
    }
}

}  // namespace
}  // namespace varnok::probe
