// Painted drawings against stored pictures, one for each kind of diagram, and what a comparison must not overlook.

#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "painting/bildflaeche.h"
#include "painting/bildprobe.h"
#include "painting/bildvergleich.h"
#include "painting/zeichner.h"

namespace varnok::probe {
namespace {

// On the surface of a report's picture, a pixel for each unit.
QImage gemalt(const Zeichenliste& z) {
    QImage Bild(Bildbreite, Bildhoehe, QImage::Format_RGB32);
    Bild.fill(Qt::white);
    QPainter p(&Bild);
    male(p, QRectF(0, 0, Bildbreite, Bildhoehe), z, Schriftgroesse_Bericht);
    return Bild;
}

// With an averaging window of 28 days.
Lauf_bauer Rechnung() {
    Lauf_bauer b;
    b.Sicht.TWA_Laenge = 6;
    return b;
}

Diagramm einzelnes(PEC_Ansicht PEC_Typ = jaehrlich) {
    Lauf_bauer b = Rechnung().nach_SFO(0.01).regelmaessige_Gaben(2, 60);
    b.Sicht.PEC_Typ = PEC_Typ;
    return Wirkstoffdiagramm(b);
}

Diagramm mehrfaches() {
    const Lauf_bauer b = Rechnung().Schema(zwei_parallel).regelmaessige_Gaben(3, 21).nach_SFO(0.03, 1).nach_SFO(0.008, 2);
    Diagrammbereiche Bereiche = Startbereiche(jaehrlich);
    return erstelle_Diagramm_mehrfach(gerechnetes_Problem(b), Bereiche, Mehrfachsatz_von(zwei_parallel), 0, 0);
}

// Four studies, each a quarter slower than the one before.
Diagramm aller_Studien() {
    Lauf_bauer b = Rechnung().nach_SFO(0.03);
    for (int i = 1; i < 4; ++i) {
        b.Studie(i).nach_SFO(0.03 * std::pow(0.75, i));
        b.Felder.Studie.push_back("soil " + std::to_string(i + 1));
    }
    Diagrammbereiche Bereiche;
    setze_Bereiche_nach_Ansicht(Bereiche, jaehrlich);
    return erstelle_Diagramm_Zusammenfassung(gerechnetes_Problem(b), Bereiche,
                                             Zusammenfassungssatz_von(b.Felder.Berechnungsmodus, 0), 0);
}

TEST(Bild, of_one_compound) { EXPECT_TRUE(aehnlich_der_Datei(gemalt(mit_Beschriftung(einzelnes())), "one compound.png")); }

TEST(Bild, of_one_compound_in_the_background_view) {
    EXPECT_TRUE(aehnlich_der_Datei(gemalt(mit_Beschriftung(einzelnes(Hintergrund))), "one compound, background.png"));
}

TEST(Bild, of_all_compounds) { EXPECT_TRUE(aehnlich_der_Datei(gemalt(mit_Beschriftung(mehrfaches())), "all compounds.png")); }

TEST(Bild, of_all_studies) { EXPECT_TRUE(aehnlich_der_Datei(gemalt(mit_Beschriftung(aller_Studien())), "all studies.png")); }

TEST(Bild, without_labels_and_legend) { EXPECT_TRUE(aehnlich_der_Datei(gemalt(einzelnes().Liste), "without labels.png")); }

// --- what the tolerance lets through and what not ------------------------------------------------------------

class Bildtoleranzprobe : public ::testing::Test {
protected:
    // Whether the picture of the changed drawing passes for that of the drawing.
    template <class Aenderung>
    ::testing::AssertionResult besteht(Aenderung aendere) const {
        Zeichenliste z = Liste_;
        aendere(z);
        return aehnlich(gemalt(z), gemalt(Liste_));
    }
    // The drawing moved on its surface by so many pixels.
    ::testing::AssertionResult verschoben(double x, double y) const {
        return besteht([=](Zeichenliste& z) {
            const double dx = x / Bildbreite * z.System.Breite();
            const double dy = y / Bildhoehe * z.System.Hoehe();
            z.System = {z.System.links - dx, z.System.oben + dy, z.System.rechts - dx, z.System.unten + dy};
        });
    }
    static bool ohne_Linien(Zeichenliste& z, int Farbe, int Breite) {
        return std::erase_if(z.Linien, [=](const Linie& l) { return l.Farbe == Farbe && l.Breite == Breite; }) > 0;
    }

    const Zeichenliste Liste_ = mit_Beschriftung(mehrfaches());
};

TEST_F(Bildtoleranzprobe, lets_the_same_drawing_through) {
    EXPECT_TRUE(besteht([](Zeichenliste&) {}));
}

TEST_F(Bildtoleranzprobe, lets_a_pixel_of_difference_through) {
    EXPECT_TRUE(verschoben(1, 0));
    EXPECT_TRUE(verschoben(0, -1));
}

TEST_F(Bildtoleranzprobe, sees_a_drawing_shifted_by_a_few_pixels) {
    for (const double d : {-4.0, -3.0, 3.0, 4.0}) {
        EXPECT_FALSE(verschoben(d, 0)) << d;
        EXPECT_FALSE(verschoben(0, d)) << d;
    }
}

// Only the lines of the axis: ticks, numbers and curves stay.
TEST_F(Bildtoleranzprobe, sees_one_axis_shifted_by_a_few_pixels) {
    EXPECT_FALSE(besteht([](Zeichenliste& z) {
        const double dy = 3.0 / Bildhoehe * z.System.Hoehe();
        z.Linien[0].von.y -= dy;
        z.Linien[0].bis.y -= dy;
    }));
    EXPECT_FALSE(besteht([](Zeichenliste& z) {
        const double dx = 3.0 / Bildbreite * z.System.Breite();
        z.Linien[1].von.x -= dx;
        z.Linien[1].bis.x -= dx;
    }));
}

TEST_F(Bildtoleranzprobe, sees_that_a_curve_is_missing) {
    for (int c = 0; c < 3; ++c)
        EXPECT_FALSE(besteht([c](Zeichenliste& z) { EXPECT_TRUE(ohne_Linien(z, Kurvenfarbe(c), 2)); })) << c;
}

TEST_F(Bildtoleranzprobe, sees_that_a_box_of_an_average_is_missing) {
    for (int c = 0; c < 3; ++c)
        EXPECT_FALSE(besteht([c](Zeichenliste& z) { EXPECT_TRUE(ohne_Linien(z, TWA_Farbe(c), 1)); })) << c;
}

TEST_F(Bildtoleranzprobe, sees_a_curve_in_the_colour_of_another) {
    EXPECT_FALSE(besteht([](Zeichenliste& z) {
        for (Linie& l : z.Linien) {
            if (l.Farbe == Kurvenfarbe(1)) l.Farbe = Kurvenfarbe(2);
        }
    }));
}

TEST_F(Bildtoleranzprobe, sees_a_curve_that_runs_a_little_higher) {
    EXPECT_FALSE(besteht([](Zeichenliste& z) {
        for (Linie& l : z.Linien) {
            if (l.Farbe != Kurvenfarbe(0)) continue;
            l.von.y *= 1.05;
            l.bis.y *= 1.05;
        }
    }));
}

TEST_F(Bildtoleranzprobe, sees_that_the_box_of_the_legend_is_missing) {
    EXPECT_FALSE(besteht([](Zeichenliste& z) { z.Kaesten.clear(); }));
}

TEST_F(Bildtoleranzprobe, sees_that_a_label_is_missing) {
    for (const Schriftzug& s : Liste_.Texte) {
        if (!s.einpassen || s.Inhalt.size() < 8) continue;
        EXPECT_FALSE(besteht([&](Zeichenliste& z) { std::erase(z.Texte, s); })) << s.Inhalt;
    }
}

TEST_F(Bildtoleranzprobe, sees_that_the_numbers_of_an_axis_are_missing) {
    EXPECT_FALSE(
        besteht([](Zeichenliste& z) { std::erase_if(z.Texte, [](const auto& s) { return !s.einpassen && s.Ort.y < 0; }); }));
    EXPECT_FALSE(
        besteht([](Zeichenliste& z) { std::erase_if(z.Texte, [](const auto& s) { return !s.einpassen && s.Ort.y > 0; }); }));
}

}  // namespace
}  // namespace varnok::probe
